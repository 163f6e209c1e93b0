# cmake -D PROGRAM=FILE -D FOLDER=DIR -D FILES=SHELL/NAME;... -P WriteCompletions.cmake
#
# Writes each of the files into its folder, as the program prints it for that shell.

foreach(file IN LISTS FILES)
    cmake_path(GET file PARENT_PATH shell)
    file(MAKE_DIRECTORY ${FOLDER}/${shell})
    execute_process(COMMAND ${PROGRAM} completion ${shell} OUTPUT_FILE ${FOLDER}/${file} COMMAND_ERROR_IS_FATAL ANY)
endforeach()
