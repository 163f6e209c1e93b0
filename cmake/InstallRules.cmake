# Installs the libraries, their headers, the program, its man page and a CMake package.

include(CMakePackageConfigHelpers)

set(packages ${CMAKE_INSTALL_LIBDIR}/cmake/Inkmacro)
set(headers ${CMAKE_INSTALL_INCLUDEDIR}/inkmacro)

foreach(target inkhost inkmacro)
    if(TARGET ${target})
        install(TARGETS ${target} EXPORT InkmacroTargets LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR})
    endif()
endforeach()
if(TARGET inkmacro-cli)
    install(TARGETS inkmacro-cli RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR})
endif()

# The folders below src/ stay, because the headers include one another by those paths.
install(DIRECTORY ${PROJECT_SOURCE_DIR}/src/host DESTINATION ${headers} FILES_MATCHING PATTERN "*.h")
install(FILES ${PROJECT_SOURCE_DIR}/src/module/CFxConverterIWAPIModule.h DESTINATION ${headers}/module OPTIONAL)
install(FILES ${PROJECT_SOURCE_DIR}/docs/inkmacro.1 DESTINATION ${CMAKE_INSTALL_MANDIR}/man1)

if(TARGET inkmacro)
    install(EXPORT InkmacroTargets NAMESPACE Inkmacro:: DESTINATION ${packages})
    configure_package_config_file(${PROJECT_SOURCE_DIR}/cmake/InkmacroConfig.cmake.in
        ${PROJECT_BINARY_DIR}/InkmacroConfig.cmake INSTALL_DESTINATION ${packages})
    write_basic_package_version_file(${PROJECT_BINARY_DIR}/InkmacroConfigVersion.cmake
        COMPATIBILITY SameMinorVersion)
    install(FILES ${PROJECT_BINARY_DIR}/InkmacroConfig.cmake ${PROJECT_BINARY_DIR}/InkmacroConfigVersion.cmake
        DESTINATION ${packages})
endif()
