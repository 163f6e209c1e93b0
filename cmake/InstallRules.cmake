# Installs, in three components: the program with its man page, pages and examples; the libraries that it and other hosts
# run with; and what the development of a host needs.

include(CMakePackageConfigHelpers)

set(packages ${CMAKE_INSTALL_LIBDIR}/cmake/Inkmacro)
set(headers ${CMAKE_INSTALL_INCLUDEDIR}/inkmacro)
# A relative path keeps the installation usable after it has been moved.
file(RELATIVE_PATH pkgconfig_to_prefix ${CMAKE_INSTALL_FULL_LIBDIR}/pkgconfig ${CMAKE_INSTALL_PREFIX})

# Compresses <source> in the way of Debian's packages and installs it as <folder>/<name>.gz.
function(inkmacro_install_compressed component source folder name)
    set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS ${source})
    set(compressed ${PROJECT_BINARY_DIR}/compressed/${component}/${name}.gz)
    cmake_path(GET compressed PARENT_PATH parent)
    file(MAKE_DIRECTORY ${parent})
    # Without the time, so that the same source gives the same file.
    execute_process(COMMAND gzip -9nc ${source} OUTPUT_FILE ${compressed} COMMAND_ERROR_IS_FATAL ANY)
    install(FILES ${compressed} DESTINATION ${folder} COMPONENT ${component})
endfunction()

foreach(target inkhost inkmacro inkrecordfile)
    if(TARGET ${target})
        install(TARGETS ${target} EXPORT InkmacroTargets
            LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR} COMPONENT library NAMELINK_COMPONENT development
            ARCHIVE DESTINATION ${CMAKE_INSTALL_LIBDIR} COMPONENT development)
    endif()
endforeach()
if(TARGET inkmacro-cli)
    install(TARGETS inkmacro-cli RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR} COMPONENT program)
endif()

inkmacro_install_compressed(program ${PROJECT_SOURCE_DIR}/docs/inkmacro.1 ${CMAKE_INSTALL_MANDIR}/man1 inkmacro.1)
# The pages stand as they do here, because they refer to one another.
install(FILES ${PROJECT_SOURCE_DIR}/README.md ${PROJECT_SOURCE_DIR}/CHANGELOG.md
    DESTINATION ${CMAKE_INSTALL_DOCDIR} COMPONENT program)
install(DIRECTORY ${PROJECT_SOURCE_DIR}/docs DESTINATION ${CMAKE_INSTALL_DOCDIR} COMPONENT program
    FILES_MATCHING PATTERN "*.md")
install(DIRECTORY ${PROJECT_SOURCE_DIR}/examples DESTINATION ${CMAKE_INSTALL_DOCDIR} COMPONENT program
    USE_SOURCE_PERMISSIONS)

# The headers stand in their folders below one of their own, and include one another from there: a host may have folders
# of the same names.
install(DIRECTORY ${PROJECT_SOURCE_DIR}/src/host DESTINATION ${headers} COMPONENT development
    FILES_MATCHING PATTERN "*.h")
set(interface
    module/CFxConverterIWAPIModule.h module/Exports.h statements/hostSettings.h
    recordfile/OpenDrawing.h recordfile/Recording.h recordfile/RecordingReader.h recordfile/RecordingSchema.h
    recordfile/RecordingWriter.h)
foreach(header IN LISTS interface)
    cmake_path(GET header PARENT_PATH folder)
    install(FILES ${PROJECT_SOURCE_DIR}/src/${header} DESTINATION ${headers}/${folder} COMPONENT development)
endforeach()
install(CODE "set(headers \"\$ENV{DESTDIR}\${CMAKE_INSTALL_PREFIX}/${headers}\")" COMPONENT development)
install(SCRIPT ${PROJECT_SOURCE_DIR}/cmake/InstalledIncludes.cmake COMPONENT development)

if(TARGET inkmacro)
    install(EXPORT InkmacroTargets NAMESPACE Inkmacro:: DESTINATION ${packages} COMPONENT development)
    configure_package_config_file(${PROJECT_SOURCE_DIR}/cmake/InkmacroConfig.cmake.in
        ${PROJECT_BINARY_DIR}/InkmacroConfig.cmake INSTALL_DESTINATION ${packages})
    write_basic_package_version_file(${PROJECT_BINARY_DIR}/InkmacroConfigVersion.cmake
        COMPATIBILITY SameMinorVersion)
    install(FILES ${PROJECT_BINARY_DIR}/InkmacroConfig.cmake ${PROJECT_BINARY_DIR}/InkmacroConfigVersion.cmake
        DESTINATION ${packages} COMPONENT development)
    configure_file(${PROJECT_SOURCE_DIR}/cmake/inkmacro.pc.in ${PROJECT_BINARY_DIR}/inkmacro.pc @ONLY)
    install(FILES ${PROJECT_BINARY_DIR}/inkmacro.pc DESTINATION ${CMAKE_INSTALL_LIBDIR}/pkgconfig
        COMPONENT development)
endif()
