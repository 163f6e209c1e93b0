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

# Makes literals of what node and pages run: the tables <folder>/web/*.txt, and the scripts of the subfolders web, node,
# frame and page, each in the order of the lines of its scripts.list; and of what stands in pages besides, page/page.html
# and page/*.css. The target includes them as "<folder>/scriptTexts.h", as lists inkmacro::texts::<subfolder>Scripts,
# tables, markup and styles.
function(inkmacro_embed_scripts target folder)
    cmake_path(ABSOLUTE_PATH folder OUTPUT_VARIABLE source)
    file(GLOB tables CONFIGURE_DEPENDS ${source}/web/*.txt)
    file(GLOB styles CONFIGURE_DEPENDS ${source}/page/*.css)
    set(markup ${source}/page/page.html)
    set(lists tables styles markup)
    set(orders "")
    foreach(part web node frame page)
        file(STRINGS ${source}/${part}/scripts.list ${part}Scripts)
        list(TRANSFORM ${part}Scripts PREPEND ${source}/${part}/)
        list(APPEND lists ${part}Scripts)
        list(APPEND orders ${source}/${part}/scripts.list)
    endforeach()
    set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS ${orders})
    # Clang warns of literals above 64 KB, which not every compiler takes.
    string(CONCAT literals "#pragma once\n\n#include <initializer_list>\n"
        "\n#pragma GCC diagnostic ignored \"-Woverlength-strings\"\n"
        "\nnamespace inkmacro::texts {\nstruct Named\n{\n    const char* name;\n    const char* text;\n};\n")
    foreach(list IN LISTS lists)
        set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS ${${list}})
        string(APPEND literals "inline constexpr std::initializer_list<Named> ${list} = {")
        foreach(file IN LISTS ${list})
            cmake_path(GET file FILENAME name)
            file(READ ${file} text)
            string(FIND "${text}" ")script\"" at)
            if(NOT at EQUAL -1)
                message(FATAL_ERROR "${file} holds )script\", which ends the literal that is made of it")
            endif()
            string(APPEND literals "\n{\"${name}\", R\"script(${text})script\"},")
        endforeach()
        string(APPEND literals "\n};\n")
    endforeach()
    string(APPEND literals "}\n")
    file(CONFIGURE OUTPUT ${PROJECT_BINARY_DIR}/texts/${folder}/scriptTexts.h CONTENT "@literals@" @ONLY)
    target_include_directories(${target} PRIVATE ${PROJECT_BINARY_DIR}/texts)
endfunction()
