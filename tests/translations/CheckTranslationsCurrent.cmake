# Fails when lupdate would change a committed .ts file (a text added, changed
# or dropped in the sources without `make translations`), or when a file has
# entries without a finished translation.
foreach(ts IN LISTS TS_FILES)
    get_filename_component(name ${ts} NAME)
    set(copy ${WORK_DIR}/${name})
    file(COPY ${ts} DESTINATION ${WORK_DIR})
    execute_process(COMMAND ${LUPDATE} ${LUPDATE_ARGUMENTS} -ts ${copy}
                    RESULT_VARIABLE result OUTPUT_QUIET ERROR_QUIET)
    if(NOT result EQUAL 0)
        message(FATAL_ERROR "lupdate failed on ${name} (${result})")
    endif()
    execute_process(COMMAND ${CMAKE_COMMAND} -E compare_files ${ts} ${copy} RESULT_VARIABLE differs)
    if(differs)
        execute_process(COMMAND diff -u ${ts} ${copy})
        message(FATAL_ERROR "${name} is not what lupdate makes of the sources: run `make translations`")
    endif()
    file(STRINGS ${ts} unfinished REGEX "type=\"unfinished\"")
    if(unfinished)
        list(LENGTH unfinished count)
        message(FATAL_ERROR "${name} has ${count} unfinished translation(s)")
    endif()
endforeach()
