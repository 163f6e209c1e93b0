# Installs what shells complete command lines with. The program itself writes it.

set(completions ${PROJECT_BINARY_DIR}/completions)
# The folders are those of the shells, the names the ones that they look for.
set(completion_files bash/inkmacro zsh/_inkmacro fish/inkmacro.fish)
add_custom_command(TARGET inkmacro-cli POST_BUILD
    COMMAND ${CMAKE_COMMAND} -D PROGRAM=$<TARGET_FILE:inkmacro-cli> -D FOLDER=${completions}
        "-DFILES=${completion_files}" -P ${CMAKE_CURRENT_LIST_DIR}/WriteCompletions.cmake
    VERBATIM)

install(FILES ${completions}/bash/inkmacro DESTINATION ${CMAKE_INSTALL_DATADIR}/bash-completion/completions
    COMPONENT program)
install(FILES ${completions}/fish/inkmacro.fish DESTINATION ${CMAKE_INSTALL_DATADIR}/fish/vendor_completions.d
    COMPONENT program)
# Debian's zsh looks for what packages bring elsewhere than for what an administrator puts below /usr/local. The prefix is
# known for sure when it is installed only.
install(CODE "
    set(folder site-functions)
    if(CMAKE_INSTALL_PREFIX STREQUAL \"/usr\" AND EXISTS /etc/debian_version)
        set(folder vendor-completions)
    endif()
    file(INSTALL DESTINATION \"\${CMAKE_INSTALL_PREFIX}/${CMAKE_INSTALL_DATADIR}/zsh/\${folder}\"
        TYPE FILE FILES \"${completions}/zsh/_inkmacro\")
" COMPONENT program)
