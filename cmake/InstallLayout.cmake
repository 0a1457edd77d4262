# Where an install puts things, relative to the install prefix. Everything that refers to another
# installed file does so relative to itself ($ORIGIN, the package's own location), so an install
# tree works wherever it is unpacked (a staging prefix, /usr from the Debian package).
include(GNUInstallDirs)

# QML modules go where Qt keeps its own: installed under Qt's prefix (/usr), the engine finds them
# without an import path.
set(QTC_INSTALL_QMLDIR ${QT6_INSTALL_QML} CACHE STRING "QML import directory, relative to the install prefix")
set(QTC_INSTALL_PLUGINDIR ${QTC_INSTALL_QMLDIR}/Qml/QtComponents)
# Shipped files (Configuration/, illustrations, images, the string catalogues): what a host copies
# into its application directory, and the demo's application directory.
set(QTC_INSTALL_DATADIR ${CMAKE_INSTALL_DATADIR}/QtComponents)
set(QTC_INSTALL_INCLUDEDIR ${CMAKE_INSTALL_INCLUDEDIR}/QtComponents)
set(QTC_INSTALL_CMAKEDIR ${CMAKE_INSTALL_LIBDIR}/cmake/QtComponents)

foreach(dir QTC_INSTALL_QMLDIR CMAKE_INSTALL_LIBDIR CMAKE_INSTALL_BINDIR CMAKE_INSTALL_DATADIR)
    if(IS_ABSOLUTE "${${dir}}")
        message(FATAL_ERROR "${dir} (${${dir}}) must be relative to the install prefix")
    endif()
endforeach()

# qtc_relative_install_path(variable from to): the path from one install directory to another.
function(qtc_relative_install_path variable from to)
    file(RELATIVE_PATH path /${from} /${to})
    if(path STREQUAL "")
        set(path .)
    endif()
    set(${variable} ${path} PARENT_SCOPE)
endfunction()

# qtc_set_install_runpath(target directory): the installed target, in directory, finds the
# project's shared libraries relative to itself. The build tree keeps its absolute build paths.
function(qtc_set_install_runpath target directory)
    qtc_relative_install_path(to_libdir ${directory} ${CMAKE_INSTALL_LIBDIR})
    if(to_libdir STREQUAL ".")
        set_target_properties(${target} PROPERTIES INSTALL_RPATH "$ORIGIN")
    else()
        set_target_properties(${target} PROPERTIES INSTALL_RPATH "$ORIGIN/${to_libdir}")
    endif()
endfunction()
