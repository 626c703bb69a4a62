# Packages made by cpack: one Debian package for each component, or one archive of everything.
set(CPACK_PACKAGE_VENDOR "The VKIntensityWidget developers")
set(CPACK_PACKAGE_CONTACT "The VKIntensityWidget developers <vkintensity@example.org>")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "") # each component has its own
set(CPACK_RESOURCE_FILE_LICENSE "${PROJECT_SOURCE_DIR}/LICENSE")
set(CPACK_STRIP_FILES ON)
set(CPACK_COMPONENTS_ALL library development)

set(CPACK_DEB_COMPONENT_INSTALL ON)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_SOURCE vkintensitywidget)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS_PRIVATE_DIRS "${PROJECT_BINARY_DIR}/src")
set(CPACK_DEBIAN_PACKAGE_GENERATE_SHLIBS ON)
set(CPACK_DEBIAN_ENABLE_COMPONENT_DEPENDS ON)

set(library_package "libvkintensitywidget${PROJECT_VERSION_MAJOR}")
set(CPACK_DEBIAN_LIBRARY_PACKAGE_NAME ${library_package})
set(CPACK_DEBIAN_LIBRARY_PACKAGE_SECTION libs)
set(CPACK_DEBIAN_LIBRARY_PACKAGE_CONTROL_EXTRA "${CMAKE_CURRENT_SOURCE_DIR}/debian/triggers")
set(CPACK_DEBIAN_LIBRARY_DESCRIPTION [[Qt widget for examining camera images - library
VKIntensityWidget shows a camera image with the row and the column profile
through a cross-hair, rulers in pixels or wavelengths, false-colour palettes,
and regions of interest with their statistics and histogram. It reads JPEG,
TIFF, BMP and PNG images and raw camera frames, with 8, 16 or 32 bits a sample.

This package contains the shared library.]])

set(qt5_development qtbase5-dev)
set(qt6_development qt6-base-dev)
set(CPACK_COMPONENT_DEVELOPMENT_DEPENDS library)
set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_NAME libvkintensitywidget-dev)
set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_SECTION libdevel)
set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_DEPENDS ${qt${QT_VERSION_MAJOR}_development})
set(CPACK_DEBIAN_DEVELOPMENT_DESCRIPTION [[Qt widget for examining camera images - development files
VKIntensityWidget shows a camera image with its intensity profiles, rulers,
false-colour palettes and regions of interest.

This package contains what is needed to build applications with the widget: its
header, the host kit with skin images, style sheet and palettes, a CMake
package, a pkg-config file and a plugin for Qt Designer.]])

# install_documents(<component> <package>): what each Debian package carries; left out of a plain
# installation.
function(install_documents component package)
    set(documents "${CMAKE_INSTALL_DATADIR}/doc/${package}")
    install(FILES debian/copyright
        DESTINATION "${documents}" COMPONENT ${component} EXCLUDE_FROM_ALL)
    install_compressed("${CMAKE_CURRENT_SOURCE_DIR}/debian/changelog"
        DESTINATION "${documents}" COMPONENT ${component} EXCLUDE_FROM_ALL)
endfunction()
install_documents(library ${library_package})
install_documents(development libvkintensitywidget-dev)

if(VKINTENSITY_BUILD_VIEWER)
    list(APPEND CPACK_COMPONENTS_ALL viewer)
    set(CPACK_COMPONENT_VIEWER_DEPENDS library)
    set(CPACK_DEBIAN_VIEWER_PACKAGE_NAME vkviewer)
    set(CPACK_DEBIAN_VIEWER_PACKAGE_SECTION science)
    set(qt5_translations qttranslations5-l10n) # the texts of Qt's own dialogs
    set(qt6_translations qt6-translations-l10n)
    set(CPACK_DEBIAN_VIEWER_PACKAGE_RECOMMENDS ${qt${QT_VERSION_MAJOR}_translations})
    set(CPACK_DEBIAN_VIEWER_DESCRIPTION [[viewer for the intensity of camera images
VKIntensity Viewer shows a camera image with the row and the column profile
through a cross-hair, rulers in pixels or wavelengths, false-colour palettes
and the exact value of each pixel. Regions of interest come with statistics
and histogram, charts of a whole row or column with labelled peaks, and
folders as a gallery.]])
    install_documents(viewer vkviewer)

    list(APPEND CPACK_COMPONENTS_ALL tools) # needs no library package: it links the core
    set(CPACK_DEBIAN_TOOLS_PACKAGE_NAME vkintensity-tools)
    set(CPACK_DEBIAN_TOOLS_PACKAGE_SECTION science)
    set(CPACK_DEBIAN_TOOLS_DESCRIPTION [[numbers of camera images on the command line
vkmeasure prints statistics of camera images and of regions in them, values of
rows and columns with their peaks, and histograms, as JSON lines or CSV tables.
It reads JPEG, TIFF, BMP and PNG images and raw camera frames, with 8, 16 or
32 bits a sample, needs no display, and measures several files at a time.]])
    install_documents(tools vkintensity-tools)
endif()

include(CPack)
