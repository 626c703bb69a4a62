# Builds SOURCE with the compiler alone and what pkg-config says, and runs it on FRAME.
cmake_minimum_required(VERSION 3.25)
set(ENV{PKG_CONFIG_PATH} "${PREFIX}/${LIBDIR}/pkgconfig")
execute_process(COMMAND "${PKG_CONFIG}" --cflags --libs vkintensitywidget
    OUTPUT_VARIABLE package_flags COMMAND_ERROR_IS_FATAL ANY)
separate_arguments(flags UNIX_COMMAND "${FLAGS}")
separate_arguments(package_flags UNIX_COMMAND "${package_flags}")
execute_process(
    COMMAND "${COMPILER}" -std=c++17 -fPIC ${flags} "${SOURCE}" -o "${PROGRAM}" ${package_flags}
        "-Wl,-rpath,${PREFIX}/${LIBDIR}"
    COMMAND_ERROR_IS_FATAL ANY)
execute_process(COMMAND "${PROGRAM}" "${FRAME}" "${PICTURE}" COMMAND_ERROR_IS_FATAL ANY)

# The palettes stand where the package says.
execute_process(COMMAND "${PKG_CONFIG}" --variable=hostkitdir vkintensitywidget
    OUTPUT_VARIABLE kit OUTPUT_STRIP_TRAILING_WHITESPACE COMMAND_ERROR_IS_FATAL ANY)
foreach(file pal/color.pal style.qss vkintensityhost.qrc skin/mdi_bk.jpg)
    if(NOT EXISTS "${kit}/${file}")
        message(SEND_ERROR "${kit}/${file} is missing")
    endif()
endforeach()
