# Builds the program that README shows with the CMakeLists.txt that stands there, both as they are,
# against the tree in PREFIX, in FOLDER, and installs it beside its palettes.
cmake_minimum_required(VERSION 3.25)
file(REMOVE_RECURSE "${FOLDER}")
file(READ "${README}" text)
string(REGEX MATCH "```cpp\n(#include <cvkintensitywidget.h>[^`]*)```" block "${text}")
file(WRITE "${FOLDER}/main.cpp" "${CMAKE_MATCH_1}")
string(REGEX MATCH "```cmake\n(cmake_minimum_required[^`]*)```" block "${text}")
file(WRITE "${FOLDER}/CMakeLists.txt" "${CMAKE_MATCH_1}")
file(STRINGS "${FOLDER}/main.cpp" lines REGEX ".")
list(LENGTH lines count)
if(count LESS 8 OR count GREATER 16)
    message(SEND_ERROR "The program has ${count} lines")
endif()

string(REPLACE "|" ";" options "${OPTIONS}")
set(run COMMAND_ERROR_IS_FATAL ANY)
execute_process(COMMAND "${CMAKE_COMMAND}" -G "${GENERATOR}" -S "${FOLDER}" -B "${FOLDER}/build"
    ${options} "-DCMAKE_INSTALL_RPATH=${PREFIX}/${LIBDIR}" ${run})
execute_process(COMMAND "${CMAKE_COMMAND}" --build "${FOLDER}/build" ${run})
execute_process(COMMAND "${CMAKE_COMMAND}" --install "${FOLDER}/build"
    --prefix "${FOLDER}/installed" ${run})
foreach(folder build installed/bin)
    file(GLOB files RELATIVE "${FOLDER}/${folder}" "${FOLDER}/${folder}/app"
        "${FOLDER}/${folder}/pal/*.pal")
    if(NOT files STREQUAL "app;pal/blue.pal;pal/color.pal;pal/green.pal;pal/red.pal")
        message(SEND_ERROR "${folder}: ${files}")
    endif()
endforeach()

# The window stays open, so running out of time is what is wanted.
execute_process(COMMAND "${FOLDER}/installed/bin/app" "${FRAME}" TIMEOUT 3
    RESULT_VARIABLE result ERROR_VARIABLE errors OUTPUT_QUIET)
if(NOT result MATCHES "timeout")
    message(SEND_ERROR "The program ended: ${result}\n${errors}")
endif()
if(errors MATCHES "Could not|cannot|No such")
    message(SEND_ERROR "${errors}")
endif()
