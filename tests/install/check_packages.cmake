# Makes the Debian packages, has lintian look at them, and installs, tries and removes them in a root of their own. The
# root holds nothing but dpkg's knowledge of what this machine has, which tells whether what they depend on exists.

include(${CMAKE_CURRENT_LIST_DIR}/try_installation.cmake)

foreach(tool dpkg fakeroot lintian)
    find_program(${tool} ${tool})
    if(NOT ${tool})
        message("skipped: ${tool} is not installed")
        return()
    endif()
endforeach()

file(REMOVE_RECURSE ${WORK_DIR})
set(root ${WORK_DIR}/root)
file(MAKE_DIRECTORY ${WORK_DIR}/packages ${root}/var/lib/dpkg/info ${root}/var/lib/dpkg/updates)

run(cpack --config ${BUILD_DIR}/CPackConfig.cmake -B ${WORK_DIR}/packages)
file(GLOB program ${WORK_DIR}/packages/inkmacro_*.deb)
file(GLOB library ${WORK_DIR}/packages/libinkmacro[0-9]*.deb)
file(GLOB development ${WORK_DIR}/packages/libinkmacro-dev_*.deb)
run(lintian --allow-root --fail-on error ${program} ${library} ${development})

# The files below a folder, without what dpkg keeps for itself.
function(list_files variable folder)
    file(GLOB_RECURSE files RELATIVE ${folder} ${folder}/*)
    list(FILTER files EXCLUDE REGEX "^var/lib/dpkg/")
    set(${variable} ${files} PARENT_SCOPE)
endfunction()

# The scripts of packages run outside of the root, which has no shell, and may not reach this machine's cache of
# libraries.
file(WRITE ${WORK_DIR}/bin/ldconfig "#!/bin/sh\n")
file(CHMOD ${WORK_DIR}/bin/ldconfig PERMISSIONS OWNER_READ OWNER_WRITE OWNER_EXECUTE)

function(run_dpkg)
    execute_process(COMMAND ${CMAKE_COMMAND} -E env PATH=${WORK_DIR}/bin:$ENV{PATH}:/usr/sbin:/sbin
        fakeroot dpkg --root=${root} --force-not-root --force-script-chrootless ${ARGN}
        COMMAND_ECHO STDOUT RESULT_VARIABLE result OUTPUT_VARIABLE said ERROR_VARIABLE said)
    set(result ${result} PARENT_SCOPE)
    set(said "${said}" PARENT_SCOPE)
endfunction()

file(COPY /var/lib/dpkg/status DESTINATION ${root}/var/lib/dpkg)
foreach(package program development)
    run_dpkg(--install ${${package}})
    if(result EQUAL 0)
        message(FATAL_ERROR "${${package}} was installed without the libraries")
    endif()
    string(REGEX REPLACE ".*/([^/_]+)_[^/]*$" "\\1" name ${${package}})
    run_dpkg(--remove ${name})
endforeach()
run_dpkg(--install ${library} ${program} ${development})
if(NOT result EQUAL 0)
    message(FATAL_ERROR "dpkg ended with ${result}\n${said}")
endif()

# What no component claims is in no package.
run(${CMAKE_COMMAND} -E env DESTDIR=${WORK_DIR}/whole ${CMAKE_COMMAND} --install ${BUILD_DIR} --prefix /usr)
list_files(whole ${WORK_DIR}/whole)
list_files(packaged ${root})
if(NOT whole STREQUAL packaged)
    message(FATAL_ERROR "the packages do not hold what is installed without them\n${whole}\n${packaged}")
endif()

try_installation(${root}/usr)

run_dpkg(--purge libinkmacro-dev inkmacro)
list_files(left ${root})
list(FILTER left EXCLUDE REGEX "^usr/(${LIBDIR}/libink(host|macro)\\.so\\.[0-9.]+|share/doc/libinkmacro[0-9.]+/.*)$")
if(NOT result EQUAL 0 OR left)
    message(FATAL_ERROR "dpkg ended with ${result} and left ${left}\n${said}")
endif()
