# Settings shared by every target of the tree.

set(CMAKE_CXX_STANDARD 20)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_CXX_VISIBILITY_PRESET hidden)
set(CMAKE_VISIBILITY_INLINES_HIDDEN ON)
set(CMAKE_POSITION_INDEPENDENT_CODE ON)
set(CMAKE_EXPORT_COMPILE_COMMANDS ON)

if(NOT CMAKE_BUILD_TYPE AND NOT CMAKE_CONFIGURATION_TYPES)
    set(CMAKE_BUILD_TYPE Release CACHE STRING "Build type" FORCE)
endif()

# Before 1.0 each minor version may change the interface of the libraries.
set(INKMACRO_SOVERSION ${PROJECT_VERSION_MAJOR}.${PROJECT_VERSION_MINOR})

# The program looks for the module in ../lib, seen from its own folder, so the build tree has the
# shape of an installation.
set(CMAKE_RUNTIME_OUTPUT_DIRECTORY ${PROJECT_BINARY_DIR}/bin)
set(CMAKE_LIBRARY_OUTPUT_DIRECTORY ${PROJECT_BINARY_DIR}/lib)
set(CMAKE_ARCHIVE_OUTPUT_DIRECTORY ${PROJECT_BINARY_DIR}/lib)

# Relative paths keep an installation usable after it has been moved.
file(RELATIVE_PATH INKMACRO_BIN_TO_LIB ${CMAKE_INSTALL_FULL_BINDIR} ${CMAKE_INSTALL_FULL_LIBDIR})
set(CMAKE_INSTALL_RPATH "$ORIGIN;$ORIGIN/${INKMACRO_BIN_TO_LIB}")

# A folder goes on as it began: with other commands all that it holds would be compiled again.
if(NOT DEFINED INKMACRO_CCACHE)
    find_program(INKMACRO_CCACHE ccache)
endif()
mark_as_advanced(INKMACRO_CCACHE)
if(INKMACRO_CCACHE AND NOT CMAKE_CXX_COMPILER_LAUNCHER)
    # Without these words it keeps nothing that is compiled with a precompiled header.
    set(CMAKE_CXX_COMPILER_LAUNCHER
        ${CMAKE_COMMAND} -E env CCACHE_SLOPPINESS=pch_defines,time_macros ${INKMACRO_CCACHE})
endif()
if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
    add_compile_options(-fpch-preprocess)
else()
    add_compile_options("SHELL:-Xclang -fno-pch-timestamp")
endif()

# "emit" is a word of this project's.
add_compile_definitions(QT_NO_KEYWORDS)
add_compile_options(-Wall -Wextra -Wpedantic)
if(INKMACRO_WERROR)
    add_compile_options(-Werror)
endif()
if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU" AND CMAKE_CXX_COMPILER_VERSION VERSION_LESS 13)
    # GCC 12 reports overlapping copies inside std::string's own operator+ when it optimises, and
    # uninitialised alternatives inside std::variant's own moves.
    add_compile_options(-Wno-restrict -Wno-maybe-uninitialized)
endif()
