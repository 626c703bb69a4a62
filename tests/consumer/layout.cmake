# What stands where below PREFIX, and what its package files must not tell.
cmake_minimum_required(VERSION 3.25)

function(expect_content description actual)
    if(NOT "${actual}" STREQUAL "${ARGN}")
        message(SEND_ERROR "${description}: ${actual}\nexpected: ${ARGN}")
    endif()
endfunction()

file(GLOB_RECURSE headers RELATIVE "${PREFIX}/include" "${PREFIX}/include/*")
expect_content("Headers" "${headers}"
    vkintensitywidget/cvkintensitywidget.h vkintensitywidget/vkintensityhost.h
    vkintensitywidget/vkintensitywidget_export.h)

file(GLOB libraries RELATIVE "${PREFIX}/${LIBDIR}" "${PREFIX}/${LIBDIR}/lib*")
expect_content("Libraries" "${libraries}" libVKIntensityHost.a libVKIntensityWidget.so
    libVKIntensityWidget.so.${SOVERSION} libVKIntensityWidget.so.${VERSION})

# The palettes are read from beside the program behind the link.
file(REAL_PATH "${PREFIX}/bin/vkviewer" program)
cmake_path(GET program PARENT_PATH program_dir)
file(GLOB palettes RELATIVE "${program_dir}" "${program_dir}/pal/*")
expect_content("Palettes" "${palettes}" pal/blue.pal pal/color.pal pal/green.pal pal/red.pal)

# The host kit holds the same ones, and everything that its resource file names.
set(kit "${PREFIX}/share/vkintensitywidget/hostkit")
file(GLOB kit_palettes RELATIVE "${kit}" "${kit}/pal/*")
expect_content("Palettes of the host kit" "${kit_palettes}" ${palettes})
file(STRINGS "${kit}/vkintensityhost.qrc" lines REGEX "</file>")
list(LENGTH lines count)
if(count LESS 20)
    message(SEND_ERROR "Resources of the host kit: ${count}")
endif()
foreach(line IN LISTS lines)
    string(REGEX REPLACE ".*>(.+)</file>.*" "\\1" file "${line}")
    if(NOT EXISTS "${kit}/${file}")
        message(SEND_ERROR "${kit}/${file} is missing")
    endif()
endforeach()

if(LANGUAGES)
    file(GLOB translations RELATIVE "${PREFIX}/share/vkintensitywidget/translations"
        "${PREFIX}/share/vkintensitywidget/translations/*")
    string(REPLACE "," ";" LANGUAGES "${LANGUAGES}")
    list(TRANSFORM LANGUAGES REPLACE "(.+)" "vkintensitywidget_\\1.qm" OUTPUT_VARIABLE expected)
    expect_content("Translations" "${translations}" ${expected})
endif()

set(application org.vkintensity.VKViewer)
file(GLOB_RECURSE shared RELATIVE "${PREFIX}/share" "${PREFIX}/share/${application}*")
expect_content("Desktop files" "${shared}"
    applications/${application}.desktop
    icons/hicolor/256x256/apps/${application}.png
    metainfo/${application}.metainfo.xml
    mime/packages/${application}.xml)

file(GLOB package_files "${PREFIX}/${LIBDIR}/cmake/VKIntensityWidget/*"
    "${PREFIX}/${LIBDIR}/pkgconfig/*")
list(LENGTH package_files count)
if(count LESS 6)
    message(SEND_ERROR "Package files: ${package_files}")
endif()
foreach(file IN LISTS package_files)
    file(STRINGS "${file}" leaks REGEX "opencv|hwy|vkintensity_(internal|compat)")
    if(leaks)
        message(SEND_ERROR "${file} tells what the library is made with: ${leaks}")
    endif()
    file(READ "${file}" text)
    string(FIND "${text}" "${PREFIX}" at)
    if(NOT at EQUAL -1)
        message(SEND_ERROR "${file} works in this prefix only")
    endif()
endforeach()
