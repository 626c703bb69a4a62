# The console program; the module of the codecs is looked for beside it.
if(WIN32)
    set(measure_dir "${CMAKE_INSTALL_BINDIR}")
else()
    set(measure_dir "${CMAKE_INSTALL_LIBDIR}/vkmeasure")
    relative_path(measure_from_bin "${CMAKE_INSTALL_BINDIR}" "${measure_dir}/vkmeasure")
    file(MAKE_DIRECTORY "${CMAKE_CURRENT_BINARY_DIR}/bin")
    file(CREATE_LINK "${measure_from_bin}" "${CMAKE_CURRENT_BINARY_DIR}/bin/vkmeasure" SYMBOLIC)
    install(FILES "${CMAKE_CURRENT_BINARY_DIR}/bin/vkmeasure"
        DESTINATION "${CMAKE_INSTALL_BINDIR}" COMPONENT tools)
endif()
install(TARGETS vkmeasure RUNTIME DESTINATION "${measure_dir}" COMPONENT tools)
install(TARGETS vkmeasurecodecs LIBRARY DESTINATION "${measure_dir}" COMPONENT tools)

if(UNIX AND NOT APPLE)
    configure_file(vkmeasure.1.in vkmeasure.1 @ONLY)
    install_compressed("${CMAKE_CURRENT_BINARY_DIR}/vkmeasure.1"
        DESTINATION "${CMAKE_INSTALL_MANDIR}/man1" COMPONENT tools)
    install(FILES vkmeasure.bash
        DESTINATION "${CMAKE_INSTALL_DATADIR}/bash-completion/completions"
        RENAME vkmeasure COMPONENT tools)
endif()
