# Tries what has been installed below a prefix: runs the program, and builds and runs a program of another project, which
# finds the libraries by their CMake package and by pkg-config.

function(run)
    execute_process(COMMAND ${ARGN} COMMAND_ECHO STDOUT COMMAND_ERROR_IS_FATAL ANY)
endfunction()

# The words that pkg-config gives of the installation.
function(ask_pkg_config variable)
    execute_process(COMMAND ${CMAKE_COMMAND} -E env PKG_CONFIG_PATH=${prefix}/${LIBDIR}/pkgconfig
        pkg-config ${ARGN} inkmacro OUTPUT_VARIABLE words COMMAND_ERROR_IS_FATAL ANY)
    separate_arguments(words UNIX_COMMAND "${words}")
    set(${variable} ${words} PARENT_SCOPE)
endfunction()

# Runs the consumer, which has to leave a macro.
function(run_consumer program)
    file(REMOVE ${WORK_DIR}/consumer.cs)
    run(${program} ${WORK_DIR}/consumer.cs)
    if(NOT EXISTS ${WORK_DIR}/consumer.cs)
        message(FATAL_ERROR "the consumer wrote no macro file")
    endif()
endfunction()

# Below ${prefix}, which needs not to be where it was installed first.
function(try_installation prefix)
    file(STRINGS ${SOURCE_DIR}/CHANGELOG.md version REGEX "^## [0-9]" LIMIT_COUNT 1)
    string(REGEX REPLACE "^## ([^ ]+).*" "\\1" version "${version}")
    execute_process(COMMAND ${prefix}/${BINDIR}/inkmacro --version OUTPUT_VARIABLE named COMMAND_ERROR_IS_FATAL ANY)
    ask_pkg_config(packaged --modversion)
    if(NOT named STREQUAL "inkmacro ${version}\n" OR NOT packaged STREQUAL version)
        message(FATAL_ERROR "CHANGELOG.md tells of ${version}, the program is ${named}, the libraries are ${packaged}")
    endif()

    file(GLOB modules ${prefix}/${LIBDIR}/libinkmacro.so.*)
    list(GET modules 0 module)
    execute_process(COMMAND ${NM} -D --defined-only --format=posix ${module}
        OUTPUT_VARIABLE listing COMMAND_ERROR_IS_FATAL ANY)
    string(REGEX MATCHALL "[^\n]+" lines "${listing}")
    list(TRANSFORM lines REPLACE " .*" "")
    list(SORT lines)
    if(NOT lines STREQUAL "odrxCreateModuleObject;odrxGetAPIVersion")
        message(FATAL_ERROR "${module} exports other symbols than its two entry points: ${lines}")
    endif()

    run(${prefix}/${BINDIR}/inkmacro convert ${prefix}/share/doc/inkmacro/examples/gasket.jsonl --target all --quiet
        --output ${WORK_DIR}/macros/)

    run(${CMAKE_COMMAND} -S ${SOURCE_DIR}/tests/install -B ${WORK_DIR}/build -G ${GENERATOR}
        -D CMAKE_PREFIX_PATH=${prefix} -D CMAKE_CXX_COMPILER=${CXX_COMPILER}
        -D CMAKE_CXX_FLAGS=${CXX_FLAGS} -D CMAKE_BUILD_TYPE=${BUILD_TYPE})
    run(${CMAKE_COMMAND} --build ${WORK_DIR}/build)
    run_consumer(${WORK_DIR}/build/consumer)

    ask_pkg_config(flags --cflags --libs)
    separate_arguments(more UNIX_COMMAND "${CXX_FLAGS}")
    run(${CXX_COMPILER} -std=c++20 -fPIC ${more} ${SOURCE_DIR}/tests/install/main.cpp -o ${WORK_DIR}/packaged_consumer ${flags}
        -Wl,-rpath,${prefix}/${LIBDIR})
    run_consumer(${WORK_DIR}/packaged_consumer)
endfunction()
