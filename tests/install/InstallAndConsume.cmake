# Installs the built tree into a scratch prefix, then uses it as hosts do:
# builds the consumer and the minimal example with find_package(Tessaro) and
# runs them, and runs the installed demo. Nothing sets a library path: the
# installed binaries and the hosts must find the libraries themselves.
function(run)
    execute_process(COMMAND ${ARGN} RESULT_VARIABLE result OUTPUT_VARIABLE output ERROR_VARIABLE output)
    if(NOT result EQUAL 0)
        message(FATAL_ERROR "${ARGN} failed (${result}):\n${output}")
    endif()
endfunction()

function(build_host source binary)
    run(${CMAKE_COMMAND} -S ${source} -B ${binary} -DCMAKE_PREFIX_PATH=${PREFIX} -DCMAKE_BUILD_TYPE=${CONFIG})
    run(${CMAKE_COMMAND} --build ${binary})
endfunction()

file(REMOVE_RECURSE ${PREFIX} ${WORK_DIR})
run(${CMAKE_COMMAND} --install ${BUILD_DIR} --prefix ${PREFIX})
set(ENV{XDG_CONFIG_HOME} ${WORK_DIR}/config)

build_host(${SOURCE_DIR}/consumer ${WORK_DIR}/consumer)
run(${WORK_DIR}/consumer/consumer)

build_host(${EXAMPLE_DIR} ${WORK_DIR}/example)
run(${WORK_DIR}/example/minimal-host --quit)
run(${WORK_DIR}/example/minimal-host --quit) # again, restoring what the first run saved

if(EXISTS ${PREFIX}/bin/tessaro-demo)
    run(${PREFIX}/bin/tessaro-demo --help)
endif()
