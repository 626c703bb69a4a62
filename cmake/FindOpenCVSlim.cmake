# Finds OpenCV's core and image codec libraries alone.
#
# Debian's libopencv-core-dev and libopencv-imgcodecs-dev carry neither a CMake package nor a
# pkg-config file, so headers and libraries are looked for directly; a full OpenCV installation
# with its own CMake package serves as well. In OpenCV 2.4 the codecs are part of highgui.
#
# Targets: OpenCVSlim::core, OpenCVSlim::imgcodecs

find_path(OpenCVSlim_INCLUDE_DIR NAMES opencv2/core/core.hpp PATH_SUFFIXES opencv4)
find_library(OpenCVSlim_CORE_LIBRARY NAMES opencv_core)
find_library(OpenCVSlim_IMGCODECS_LIBRARY NAMES opencv_imgcodecs opencv_highgui)

if(NOT (OpenCVSlim_INCLUDE_DIR AND OpenCVSlim_CORE_LIBRARY AND OpenCVSlim_IMGCODECS_LIBRARY))
    find_package(OpenCV QUIET)
    if(OpenCV_FOUND)
        set(OpenCVSlim_INCLUDE_DIR ${OpenCV_INCLUDE_DIRS})
        set(OpenCVSlim_CORE_LIBRARY opencv_core)
        if(OpenCV_VERSION VERSION_LESS 3)
            set(OpenCVSlim_IMGCODECS_LIBRARY opencv_highgui)
        else()
            set(OpenCVSlim_IMGCODECS_LIBRARY opencv_imgcodecs)
        endif()
    endif()
endif()

include(FindPackageHandleStandardArgs)
find_package_handle_standard_args(OpenCVSlim REQUIRED_VARS
    OpenCVSlim_CORE_LIBRARY OpenCVSlim_IMGCODECS_LIBRARY OpenCVSlim_INCLUDE_DIR)
mark_as_advanced(OpenCVSlim_INCLUDE_DIR OpenCVSlim_CORE_LIBRARY OpenCVSlim_IMGCODECS_LIBRARY)

if(OpenCVSlim_FOUND)
    foreach(module core imgcodecs)
        if(NOT TARGET OpenCVSlim::${module})
            string(TOUPPER ${module} upper)
            add_library(OpenCVSlim::${module} INTERFACE IMPORTED)
            target_include_directories(OpenCVSlim::${module} SYSTEM INTERFACE
                ${OpenCVSlim_INCLUDE_DIR})
            target_link_libraries(OpenCVSlim::${module} INTERFACE
                ${OpenCVSlim_${upper}_LIBRARY})
        endif()
    endforeach()
endif()
