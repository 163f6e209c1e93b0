# Debian packages of the components that InstallRules.cmake installs. They go below /usr, whatever prefix the build was
# configured with.

set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_CONTACT "Inkmacro maintainers <maintainers@inkmacro.invalid>")
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_PACKAGE_DIRECTORY ${PROJECT_BINARY_DIR}/packages)
set(CPACK_COMPONENTS_ALL program library development)
set(CPACK_DEB_COMPONENT_INSTALL ON)
set(CPACK_STRIP_FILES ON)
# Whatever the umask is of who builds.
set(CPACK_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS
    OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ GROUP_EXECUTE WORLD_READ WORLD_EXECUTE)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_CONTROL_STRICT_PERMISSION ON)
set(CPACK_DEBIAN_PACKAGE_GENERATE_SHLIBS ON)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS_PRIVATE_DIRS ${CMAKE_LIBRARY_OUTPUT_DIRECTORY})

# inkmacro_package(<component> <name> <section> <dependencies>). CPACK_COMPONENT_<COMPONENT>_DESCRIPTION holds a line,
# and what stands below it in a list of packages. Dependencies on libraries are found besides.
macro(inkmacro_package component name section dependencies)
    string(TOUPPER ${component} upper)
    set(CPACK_DEBIAN_${upper}_PACKAGE_NAME ${name})
    set(CPACK_DEBIAN_${upper}_PACKAGE_SECTION ${section})
    set(CPACK_DEBIAN_${upper}_PACKAGE_DEPENDS "${dependencies}")
    set(documents ${CMAKE_INSTALL_DATAROOTDIR}/doc/${name})
    inkmacro_install_compressed(${component} ${PROJECT_BINARY_DIR}/changelog ${documents} changelog)
    install(FILES ${PROJECT_SOURCE_DIR}/cmake/copyright DESTINATION ${documents} COMPONENT ${component})
endmacro()

set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS ${PROJECT_SOURCE_DIR}/CHANGELOG.md)
execute_process(COMMAND awk -v package=${PROJECT_NAME} -v maintainer=${CPACK_PACKAGE_CONTACT}
    -f ${PROJECT_SOURCE_DIR}/scripts/debian-changelog.awk ${PROJECT_SOURCE_DIR}/CHANGELOG.md
    OUTPUT_FILE ${PROJECT_BINARY_DIR}/changelog COMMAND_ERROR_IS_FATAL ANY)
set(libraries libinkmacro${INKMACRO_SOVERSION})
set(same_libraries "${libraries} (= ${PROJECT_VERSION})")

# verify runs macros in it.
set(CPACK_DEBIAN_PROGRAM_PACKAGE_SUGGESTS nodejs)
inkmacro_package(program inkmacro utils "${same_libraries}")
set(CPACK_COMPONENT_PROGRAM_DESCRIPTION "macro writer of the CAD application Inkwright
A recording of what a user did becomes a macro that does it again, in C++,
C#, JavaScript, VB.NET or VBA, with the project around it.")

inkmacro_package(library ${libraries} libs "")
set(CPACK_DEBIAN_LIBRARY_PACKAGE_CONTROL_EXTRA ${PROJECT_SOURCE_DIR}/cmake/triggers)
set(CPACK_COMPONENT_LIBRARY_DESCRIPTION "macro writer of the CAD application Inkwright, libraries
The module that makes macros of recordings, and the library of its host.")

inkmacro_package(development libinkmacro-dev libdevel "${same_libraries}, qtbase5-dev, libsimdjson-dev")
set(CPACK_COMPONENT_DEVELOPMENT_DESCRIPTION "macro writer of the CAD application Inkwright, development files
Headers, the reader of recording files, a CMake package and a file for
pkg-config, for programs that make macros of recordings themselves.")

include(CPack)
