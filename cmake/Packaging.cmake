# The CMake package (find_package(QtComponents)) and the Debian package (cpack).
include(CMakePackageConfigHelpers)

set(QTC_QT_MINIMUM_VERSION 6.4)
install(EXPORT QtComponentsTargets
    NAMESPACE QtComponents::
    DESTINATION ${QTC_INSTALL_CMAKEDIR})
configure_package_config_file(cmake/QtComponentsConfig.cmake.in
    ${CMAKE_CURRENT_BINARY_DIR}/QtComponentsConfig.cmake
    INSTALL_DESTINATION ${QTC_INSTALL_CMAKEDIR}
    PATH_VARS QTC_INSTALL_QMLDIR QTC_INSTALL_DATADIR)
write_basic_package_version_file(${CMAKE_CURRENT_BINARY_DIR}/QtComponentsConfigVersion.cmake
    COMPATIBILITY SameMajorVersion)
install(FILES
    ${CMAKE_CURRENT_BINARY_DIR}/QtComponentsConfig.cmake
    ${CMAKE_CURRENT_BINARY_DIR}/QtComponentsConfigVersion.cmake
    DESTINATION ${QTC_INSTALL_CMAKEDIR})

# One package with everything the install holds: the runtime dependencies are declared, the ones
# for building against it (headers, CMake package) only suggested, so that installing the demo
# does not pull in a compiler's worth of -dev packages.
set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME qtcomponents)
set(CPACK_PACKAGE_VERSION ${PROJECT_VERSION})
set(CPACK_PACKAGE_CONTACT "QtComponents maintainers <maintainers@qtcomponents.invalid>")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "Qt Quick components for structural-engineering applications")
set(CPACK_PACKAGE_DESCRIPTION
    "The QML module Qml.QtComponents (tables with filters and multi-cell editing, numeric inputs \
that take expressions, a radial marking menu, a properties panel, a 3-D viewport), the host kit \
library with its headers and CMake package, and the demo application QtComponentsDemo.")
set(CPACK_PACKAGING_INSTALL_PREFIX ${CMAKE_INSTALL_PREFIX})
set(CPACK_STRIP_FILES ON)
set(CPACK_PACKAGE_DIRECTORY ${CMAKE_BINARY_DIR})
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_SECTION libs)
# Linked libraries (Qt, pugixml, muparser, the C++ runtime) come from dpkg-shlibdeps; what is loaded
# by name at run time it cannot see: the QML modules the documents import, Qt's SQLite driver (the
# results database) and its SVG image plugin (the component library's icons). The libraries use a few
# of Qt's private classes, whose binary interface changes with every Qt release: the package holds
# only with the Qt it was built against.
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
# The package's own libraries, which no installed package describes yet.
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS_PRIVATE_DIRS ${CMAKE_LIBRARY_OUTPUT_DIRECTORY})
set(CPACK_DEBIAN_PACKAGE_DEPENDS
    "qml6-module-qtqml, qml6-module-qtqml-models, qml6-module-qtqml-workerscript, \
qml6-module-qtquick, qml6-module-qtquick-window, qml6-module-qtquick-controls, \
qml6-module-qtquick-templates, qml6-module-qtquick-layouts, qml6-module-qtquick-shapes, \
libqt6sql6-sqlite, libqt6svg6, \
qt6-base-abi (= ${Qt6_VERSION}), qt6-declarative-abi (= ${Qt6_VERSION})")
set(CPACK_DEBIAN_PACKAGE_SUGGESTS "qml-qt6, qt6-base-dev, qt6-declarative-dev, libpugixml-dev")
include(CPack)
