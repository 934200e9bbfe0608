# Checks that every class of the public headers opens with a `///` comment
# that says what the class is for and shows it in use (`@code ... @endcode`).
# Doxygen itself only checks that a comment exists.
#   cmake -DHEADERS_FILE=<file listing the headers> [-DFATAL=ON] -P CheckClassDocs.cmake
if(NOT HEADERS_FILE)
    message(FATAL_ERROR "HEADERS_FILE is not set")
endif()
file(STRINGS ${HEADERS_FILE} headers)

set(problems "")
foreach(header IN LISTS headers)
    # One list element per line; the characters that CMake lists treat
    # specially do not matter here and are masked.
    file(READ ${header} content)
    string(REGEX REPLACE "[][;\\]" " " content "${content}")
    string(REPLACE "\n" ";" lines "${content}")
    set(comment "")
    set(number 0)
    foreach(line IN LISTS lines)
        math(EXPR number "${number} + 1")
        if(line MATCHES "^[ ]*///")
            string(APPEND comment "${line}\n")
            continue()
        endif()
        # A class definition at namespace level (not a forward declaration).
        if(line MATCHES "^(class|struct) ([A-Z_]+_EXPORT )?([A-Za-z0-9_]+)( final)?( *:.*)?$")
            set(name ${CMAKE_MATCH_3})
            if(comment STREQUAL "")
                list(APPEND problems "${header}:${number}: class ${name} has no /// comment")
            elseif(NOT comment MATCHES "^[ ]*/// [^@\n][^\n]*\n")
                list(APPEND problems "${header}:${number}: the comment of ${name} does not open with its purpose")
            elseif(NOT comment MATCHES "\n[ ]*/// @code\n" OR NOT comment MATCHES "\n[ ]*/// @endcode\n")
                list(APPEND problems "${header}:${number}: the comment of ${name} has no usage example (@code ... @endcode)")
            endif()
        endif()
        if(NOT line MATCHES "^template ")
            set(comment "")
        endif()
    endforeach()
endforeach()

foreach(problem IN LISTS problems)
    message("${problem}")
endforeach()
list(LENGTH problems count)
if(count GREATER 0 AND FATAL)
    message(FATAL_ERROR "${count} public classes lack a purpose line or a usage example")
endif()
