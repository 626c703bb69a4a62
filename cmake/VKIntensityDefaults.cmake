# Compile settings that every target of this project carries; nothing is set globally.

set(CMAKE_POSITION_INDEPENDENT_CODE ON)
set(vkintensity_sanitizers -fsanitize=address,undefined)

# vkintensity_target_defaults(<target>): C++17, warnings, exact floating point, hidden symbols,
# and the sanitizers when VKINTENSITY_SANITIZE is on.
function(vkintensity_target_defaults target)
    target_compile_features(${target} PUBLIC cxx_std_17)
    set_target_properties(${target} PROPERTIES
        CXX_EXTENSIONS OFF
        CXX_VISIBILITY_PRESET hidden
        VISIBILITY_INLINES_HIDDEN ON)
    target_compile_definitions(${target} PRIVATE
        QT_NO_KEYWORDS QT_NO_CAST_TO_ASCII QT_DEPRECATED_WARNINGS)
    if(MSVC) # also Clang with the options of this one
        target_compile_options(${target} PRIVATE /W4 /utf-8 /fp:precise)
        if(VKINTENSITY_WERROR)
            target_compile_options(${target} PRIVATE /WX)
        endif()
    elseif(CMAKE_CXX_COMPILER_ID MATCHES "GNU|Clang")
        target_compile_options(${target} PRIVATE
            -Wall -Wextra -Wpedantic -Wshadow -Wconversion -Wno-sign-conversion
            -Wnon-virtual-dtor -Woverloaded-virtual -Wdouble-promotion -Wformat=2
            -ffp-contract=off) # doubles keep their bits on machines with fused multiply-add
        if(VKINTENSITY_WERROR)
            target_compile_options(${target} PRIVATE -Werror)
        endif()
        if(VKINTENSITY_SANITIZE)
            target_compile_options(${target} PRIVATE
                -O1 -g1 # finds as much as -O0 and lets the whole suite run in minutes
                ${vkintensity_sanitizers} -fno-sanitize-recover=all -fno-omit-frame-pointer)
            target_link_options(${target} PRIVATE ${vkintensity_sanitizers})
        endif()
    endif()
endfunction()
