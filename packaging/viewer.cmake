# The viewer and what makes a desktop know it.

# Palettes and guide are looked for beside the program, which therefore has a folder of its own.
if(WIN32)
    set(viewer_dir "${CMAKE_INSTALL_BINDIR}")
else()
    set(viewer_dir "${CMAKE_INSTALL_LIBDIR}/vkviewer")
    relative_path(program_from_bin "${CMAKE_INSTALL_BINDIR}" "${viewer_dir}/vkviewer")
    file(MAKE_DIRECTORY "${CMAKE_CURRENT_BINARY_DIR}/bin")
    file(CREATE_LINK "${program_from_bin}" "${CMAKE_CURRENT_BINARY_DIR}/bin/vkviewer" SYMBOLIC)
    install(FILES "${CMAKE_CURRENT_BINARY_DIR}/bin/vkviewer"
        DESTINATION "${CMAKE_INSTALL_BINDIR}" COMPONENT viewer)
endif()
find_library_from(vkviewer "${viewer_dir}")
install(TARGETS vkviewer RUNTIME DESTINATION "${viewer_dir}" COMPONENT viewer)
install(DIRECTORY "${kit_dir}/pal" DESTINATION "${viewer_dir}" COMPONENT viewer)
install(DIRECTORY "${PROJECT_BINARY_DIR}/viewer/guide" DESTINATION "${viewer_dir}" COMPONENT viewer)

if(UNIX AND NOT APPLE)
    set(application org.vkintensity.VKViewer)
    configure_file(${application}.metainfo.xml.in ${application}.metainfo.xml @ONLY)
    install(FILES ${application}.desktop
        DESTINATION "${CMAKE_INSTALL_DATADIR}/applications" COMPONENT viewer)
    install(FILES ${application}.xml
        DESTINATION "${CMAKE_INSTALL_DATADIR}/mime/packages" COMPONENT viewer)
    install(FILES "${CMAKE_CURRENT_BINARY_DIR}/${application}.metainfo.xml"
        DESTINATION "${CMAKE_INSTALL_DATADIR}/metainfo" COMPONENT viewer)
    install(FILES "${PROJECT_BINARY_DIR}/viewer/resources/logo.png"
        DESTINATION "${CMAKE_INSTALL_DATADIR}/icons/hicolor/256x256/apps"
        RENAME ${application}.png COMPONENT viewer)

    configure_file(vkviewer.1.in vkviewer.1 @ONLY)
    install_compressed("${CMAKE_CURRENT_BINARY_DIR}/vkviewer.1"
        DESTINATION "${CMAKE_INSTALL_MANDIR}/man1" COMPONENT viewer)
endif()
