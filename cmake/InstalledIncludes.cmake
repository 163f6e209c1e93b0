# Runs when the headers have been installed into the folder ${headers}, and puts that folder's name before the paths by
# which they include one another.

cmake_path(GET headers FILENAME root)
file(GLOB_RECURSE installed ${headers}/*.h)
foreach(header IN LISTS installed)
    file(READ ${header} text)
    string(REGEX REPLACE "#include \"([a-z])" "#include \"${root}/\\1" with_root "${text}")
    string(REPLACE "\"${root}/${root}/" "\"${root}/" with_root "${with_root}")
    if(NOT with_root STREQUAL text)
        file(WRITE ${header} "${with_root}")
    endif()
endforeach()
