# Installs the build, then builds and runs a program of another project against the installation.

set(prefix ${WORK_DIR}/prefix)

function(run)
    execute_process(COMMAND ${ARGN} COMMAND_ECHO STDOUT COMMAND_ERROR_IS_FATAL ANY)
endfunction()

# A file left from an earlier run would hide that the installation no longer holds it.
file(REMOVE_RECURSE ${WORK_DIR})
run(${CMAKE_COMMAND} --install ${BUILD_DIR} --prefix ${prefix})

# Moved, because an installation may not depend on the place it was first put.
file(RENAME ${prefix} ${prefix}-moved)
set(prefix ${prefix}-moved)

run(${prefix}/${BINDIR}/inkmacro --version)

execute_process(COMMAND ${NM} -D --defined-only --format=posix ${prefix}/${LIBDIR}/libinkmacro.so
    OUTPUT_VARIABLE listing COMMAND_ERROR_IS_FATAL ANY)
string(REGEX MATCHALL "[^\n]+" lines "${listing}")
list(TRANSFORM lines REPLACE " .*" "")
list(SORT lines)
if(NOT lines STREQUAL "odrxCreateModuleObject;odrxGetAPIVersion")
    message(FATAL_ERROR "libinkmacro.so exports other symbols than its two entry points: ${lines}")
endif()

run(${CMAKE_COMMAND} -S ${CONSUMER_DIR} -B ${WORK_DIR}/build -G ${GENERATOR}
    -D CMAKE_PREFIX_PATH=${prefix} -D CMAKE_CXX_COMPILER=${CXX_COMPILER}
    -D CMAKE_CXX_FLAGS=${CXX_FLAGS} -D CMAKE_BUILD_TYPE=${BUILD_TYPE})
run(${CMAKE_COMMAND} --build ${WORK_DIR}/build)
run(${WORK_DIR}/build/consumer ${WORK_DIR}/consumer.cs)
if(NOT EXISTS ${WORK_DIR}/consumer.cs)
    message(FATAL_ERROR "the consumer wrote no macro file")
endif()
