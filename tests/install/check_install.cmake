# Installs the build, and tries it where it has been moved to.

include(${CMAKE_CURRENT_LIST_DIR}/try_installation.cmake)

# A file left from an earlier run would hide that the installation no longer holds it.
file(REMOVE_RECURSE ${WORK_DIR})
run(${CMAKE_COMMAND} --install ${BUILD_DIR} --prefix ${WORK_DIR}/prefix)

# Moved, because an installation may not depend on the place it was first put.
file(RENAME ${WORK_DIR}/prefix ${WORK_DIR}/moved)
try_installation(${WORK_DIR}/moved)
