# Tries what has been installed below a prefix: runs the program, and builds and runs the host of docs/embedding.md,
# which finds the libraries by their CMake package and by pkg-config.

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

# Writes what stands in docs/embedding.md as text of that language.
function(take_from_page language file)
    execute_process(COMMAND awk -v "fence=```" -v "language=${language}"
        [[$0 == fence { on = 0 } on; $0 == fence language { on = 1 }]] ${SOURCE_DIR}/docs/embedding.md
        OUTPUT_FILE ${file} COMMAND_ERROR_IS_FATAL ANY)
endfunction()

# Runs the host, which has to give the macro that the program gives.
function(run_host host)
    file(REMOVE_RECURSE ${WORK_DIR}/made)
    file(MAKE_DIRECTORY ${WORK_DIR}/made)
    run(${host} ${examples}/plate_dimensioned.jsonl ${WORK_DIR}/made/plate_dimensioned.cs)
    run(${CMAKE_COMMAND} -E compare_files ${WORK_DIR}/made/plate_dimensioned.cs ${WORK_DIR}/macros/csharp/plate_dimensioned.cs)
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
    cmake_path(GET module FILENAME name)
    foreach(page docs/inkmacro.1 docs/embedding.md)
        file(READ ${SOURCE_DIR}/${page} text)
        string(FIND "${text}" ${name} at)
        if(at EQUAL -1)
            message(FATAL_ERROR "${page} names the module otherwise than it is installed, as ${name}")
        endif()
    endforeach()
    file(STRINGS ${SOURCE_DIR}/docs/inkmacro.1 title REGEX "^\\.TH INKMACRO 1 \"\" \"inkmacro ${version}\" ")
    if(NOT title)
        message(FATAL_ERROR "docs/inkmacro.1 is not of version ${version}")
    endif()
    execute_process(COMMAND ${NM} -D --defined-only --format=posix ${module}
        OUTPUT_VARIABLE listing COMMAND_ERROR_IS_FATAL ANY)
    string(REGEX MATCHALL "[^\n]+" lines "${listing}")
    list(TRANSFORM lines REPLACE " .*" "")
    list(SORT lines)
    if(NOT lines STREQUAL "odrxCreateModuleObject;odrxGetAPIVersion")
        message(FATAL_ERROR "${module} exports other symbols than its two entry points: ${lines}")
    endif()

    set(examples ${prefix}/share/doc/inkmacro/examples)
    run(${prefix}/${BINDIR}/inkmacro convert ${examples}/plate_dimensioned.jsonl --target all --repair --quiet
        --output ${WORK_DIR}/macros/)

    set(host ${WORK_DIR}/host)
    file(MAKE_DIRECTORY ${host})
    take_from_page(cpp ${host}/host.cpp)
    take_from_page(cmake ${host}/CMakeLists.txt)
    run(${CMAKE_COMMAND} -S ${host} -B ${host}/build -G ${GENERATOR}
        -D CMAKE_PREFIX_PATH=${prefix} -D CMAKE_CXX_COMPILER=${CXX_COMPILER}
        -D CMAKE_CXX_FLAGS=${CXX_FLAGS} -D CMAKE_BUILD_TYPE=${BUILD_TYPE})
    run(${CMAKE_COMMAND} --build ${host}/build)
    run_host(${host}/build/host)

    ask_pkg_config(flags --cflags --libs)
    separate_arguments(more UNIX_COMMAND "${CXX_FLAGS}")
    run(${CXX_COMPILER} -std=c++20 -fPIC -Wall -Wextra -Werror ${more} ${host}/host.cpp -o ${host}/host ${flags}
        -Wl,-rpath,${prefix}/${LIBDIR})
    run_host(${host}/host)

    # Each header finds those that it includes.
    file(GLOB_RECURSE headers RELATIVE ${prefix}/include ${prefix}/include/inkmacro/*.h)
    list(TRANSFORM headers REPLACE "(.+)" "#include <\\1>\n")
    string(CONCAT text ${headers})
    file(WRITE ${host}/headers.cpp "${text}")
    run(${CXX_COMPILER} -std=c++20 -fPIC ${more} -fsyntax-only ${host}/headers.cpp ${flags})
endfunction()
