# Makes literals of the texts <folder>/texts/<name>.txt below a folder of the current directory, and lets the target
# include them as "<folder>/texts.h", where <name> of the subfolder "cpp" is inkmacro::texts::cpp::<name>. They become
# part of the code, which starts faster than a resource that is registered and unpacked.
#
# A line that ends in a backslash goes on in the next, so that a marker can stand for the line end.
function(inkmacro_embed_texts target folder)
    file(GLOB files CONFIGURE_DEPENDS ${folder}/*/texts/*.txt)
    set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS ${files})
    set(literals "#pragma once\n")
    foreach(file IN LISTS files)
        cmake_path(GET file STEM LAST_ONLY name)
        string(MAKE_C_IDENTIFIER ${name} name)
        string(REGEX REPLACE ".*/([^/]+)/texts/.*" "\\1" subfolder ${file})
        file(READ ${file} text)
        string(REPLACE "\\\n" "" text "${text}")
        string(APPEND literals
            "\nnamespace inkmacro::texts::${subfolder} {\n"
            "inline constexpr char ${name}[] = R\"text(${text})text\";\n}\n")
    endforeach()
    # Written only when it is another: what includes it is not compiled again each time.
    file(CONFIGURE OUTPUT ${PROJECT_BINARY_DIR}/texts/${folder}/texts.h CONTENT "@literals@" @ONLY)
    target_include_directories(${target} PRIVATE ${PROJECT_BINARY_DIR}/texts)
endfunction()
