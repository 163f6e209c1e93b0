# Helpers which find sources and make test-like executables. A part without sources yields no
# target, and the others do without it, so that the tree always configures.

# Sets <variable> to the C++ sources below the given folders of the current directory.
function(inkmacro_sources variable)
    set(patterns ${ARGN})
    list(TRANSFORM patterns APPEND "/*.cpp")
    file(GLOB_RECURSE found CONFIGURE_DEPENDS ${patterns})
    list(SORT found)
    set(${variable} ${found} PARENT_SCOPE)
endfunction()

# Of the host's headers those that most of what stands above it reads.
set(host_headers db/OdDbClasses.h kernel/CFxActions.h kernel/CFxServices.h)
list(TRANSFORM host_headers PREPEND ${PROJECT_SOURCE_DIR}/src/host/)

# What nearly every source reads: the standard library, Qt and the host's headers are most of the lines of one. A source
# includes what it uses all the same.
function(inkmacro_precompile target)
    target_precompile_headers(${target} PRIVATE
        <algorithm> <array> <cstdint> <functional> <map> <memory> <optional> <set> <span> <unordered_map> <utility>
        <variant> <vector> <QByteArray> <QHash> <QString> <QStringList> <QTextStream> <QVarLengthArray> ${ARGN})
endfunction()

# Makes an executable which sees the internals of the module and knows where the program is:
# inkmacro_developer_executable(<name> SOURCES <file>... [LIBRARIES <library>...])
function(inkmacro_developer_executable name)
    cmake_parse_arguments(PARSE_ARGV 1 arg "" "" "SOURCES;LIBRARIES")
    if(NOT arg_SOURCES)
        return()
    endif()
    add_executable(${name} ${arg_SOURCES})
    target_link_libraries(${name} PRIVATE ${arg_LIBRARIES})
    foreach(library inkmacro_module inkdxf inkrecordfile inkhost)
        if(TARGET ${library})
            target_link_libraries(${name} PRIVATE ${library})
        endif()
    endforeach()
    target_compile_definitions(${name} PRIVATE
        INKMACRO_SOURCE_DIR="${PROJECT_SOURCE_DIR}"
        INKMACRO_PROGRAM="${CMAKE_RUNTIME_OUTPUT_DIRECTORY}/inkmacro")
    if(TARGET inkmacro-cli)
        # The program and the module it loads are run, not linked, so no link edge orders the builds.
        add_dependencies(${name} inkmacro-cli)
    endif()
endfunction()
