# vkintensity_add_host(<program> [RUNTIME_DESTINATION <folder>] [COMPONENT <name>] [NO_INSTALL]):
# links the widget and its host kit to the program, which is a target of the calling folder, and puts
# the four palette files into pal/ beside it, where the widget looks for them: in the build tree, and
# at the installation beside RUNTIME_DESTINATION/<program>. That is the folder that install(TARGETS)
# uses for the program; bin, or CMAKE_INSTALL_BINDIR, unless another one is given. With NO_INSTALL
# there is no install rule.
function(vkintensity_add_host program)
    cmake_parse_arguments(PARSE_ARGV 1 arg "NO_INSTALL" "RUNTIME_DESTINATION;COMPONENT" "")
    if(arg_UNPARSED_ARGUMENTS OR arg_KEYWORDS_MISSING_VALUES)
        message(FATAL_ERROR "vkintensity_add_host(${program}): not understood: "
            "${arg_UNPARSED_ARGUMENTS} ${arg_KEYWORDS_MISSING_VALUES}")
    endif()

    # Not target_link_libraries(), whose forms with and without keywords exclude each other.
    set_property(TARGET ${program} APPEND PROPERTY LINK_LIBRARIES VKIntensity::HostKit)

    get_target_property(palettes VKIntensity::HostKit VKINTENSITY_PALETTES)
    set(palette_dir "$<TARGET_FILE_DIR:${program}>/pal")
    add_custom_command(TARGET ${program} POST_BUILD
        COMMAND "${CMAKE_COMMAND}" -E make_directory "${palette_dir}"
        COMMAND "${CMAKE_COMMAND}" -E copy_if_different ${palettes} "${palette_dir}"
        VERBATIM)
    if(NOT arg_NO_INSTALL)
        if(NOT arg_RUNTIME_DESTINATION)
            set(arg_RUNTIME_DESTINATION bin)
            if(CMAKE_INSTALL_BINDIR)
                set(arg_RUNTIME_DESTINATION "${CMAKE_INSTALL_BINDIR}")
            endif()
        endif()
        set(component)
        if(arg_COMPONENT)
            set(component COMPONENT "${arg_COMPONENT}")
        endif()
        install(FILES ${palettes} DESTINATION "${arg_RUNTIME_DESTINATION}/pal" ${component})
    endif()
endfunction()
