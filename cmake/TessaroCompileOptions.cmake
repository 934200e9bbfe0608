# Warning and sanitizer flags shared by every target of the project.
function(tessaro_set_compile_options target)
    if(MSVC)
        target_compile_options(${target} PRIVATE /W4 /utf-8)
        if(TESSARO_WARNINGS_AS_ERRORS)
            target_compile_options(${target} PRIVATE /WX)
        endif()
    else()
        # Running off the end of a function that returns a value hands the
        # caller garbage (a copy of it crashes): never a mere warning.
        target_compile_options(${target} PRIVATE -Wall -Wextra -Werror=return-type)
        if(TESSARO_WARNINGS_AS_ERRORS)
            target_compile_options(${target} PRIVATE -Werror)
        endif()
    endif()
    # Fuzz builds instrument every target for coverage and memory errors; the
    # fuzzers themselves add the libFuzzer driver (fuzz/CMakeLists.txt).
    if(TESSARO_BUILD_FUZZ)
        target_compile_options(${target} PRIVATE -fsanitize=fuzzer-no-link,address,undefined
                                                 -fno-sanitize-recover=undefined -fno-omit-frame-pointer)
        target_link_options(${target} PRIVATE -fsanitize=address,undefined)
    endif()
    if(TESSARO_SANITIZE)
        target_compile_options(${target} PRIVATE -fsanitize=${TESSARO_SANITIZE} -fno-omit-frame-pointer)
        target_link_options(${target} PRIVATE -fsanitize=${TESSARO_SANITIZE})
    endif()
endfunction()

# Library code states every string's encoding explicitly.
function(tessaro_set_library_options target)
    tessaro_set_compile_options(${target})
    target_compile_definitions(${target} PRIVATE QT_NO_CAST_FROM_ASCII QT_NO_CAST_TO_ASCII
                                                 QT_NO_URL_CAST_FROM_STRING QT_USE_QSTRINGBUILDER)
endfunction()

find_program(CCACHE_PROGRAM ccache)
if(CCACHE_PROGRAM AND NOT CMAKE_CXX_COMPILER_LAUNCHER)
    set(CMAKE_CXX_COMPILER_LAUNCHER ${CCACHE_PROGRAM} CACHE STRING "")
endif()
