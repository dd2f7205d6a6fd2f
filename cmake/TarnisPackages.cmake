# Debian packages, one per component. scripts/packages.sh builds them with Qt 5 and with Qt 6. The service and the
# checker exist once: the QML parser of Qt 5.15 rejects QML that is written for Qt 6, that of Qt 6 reads both.
set(debian ${PROJECT_SOURCE_DIR}/packaging/debian)
file(STRINGS ${debian}/changelog latest_change LIMIT_COUNT 1)
string(REGEX REPLACE ".*-([0-9]+)\\).*" "\\1" debian_revision "${latest_change}")
set(debian_version "${PROJECT_VERSION}-${debian_revision}")

set(qt_name "Qt ${TARNIS_QT_MAJOR}")
# Debian separates the version of the library file by a hyphen from a name that ends with a digit.
string(REGEX REPLACE "([0-9])$" "\\1-" soname_suffix "${qt_suffix}")
string(APPEND soname_suffix ${PROJECT_VERSION_MAJOR})

set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME tarnis)
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "") # each package has its own
set(CPACK_PACKAGE_CONTACT "Tarnis maintainers <maintainers@tarnis.invalid>")
if(TARNIS_QT_MAJOR EQUAL 5)
    set(CPACK_COMPONENTS_ALL runtime development gallery module)
    set(qt_development_packages "qtbase5-dev (>= 5.15)")
    set(qml_development_packages "qtdeclarative5-dev (>= 5.15)")
    set(qml_modules "libqt5svg5, qml-module-qtquick2, qml-module-qtquick-controls2, qml-module-qtquick-layouts, \
qml-module-qtquick-window2")
else()
    set(CPACK_COMPONENTS_ALL runtime development gallery checker)
    set(qt_development_packages "qt6-base-dev (>= 6.4)")
    set(qml_development_packages "qt6-declarative-dev (>= 6.4)")
    set(qml_modules "libqt6svg6, qml6-module-qtqml, qml6-module-qtqml-models, qml6-module-qtqml-workerscript, \
qml6-module-qtquick, qml6-module-qtquick-controls, qml6-module-qtquick-layouts, qml6-module-qtquick-templates, \
qml6-module-qtquick-window")
endif()
set(CPACK_STRIP_FILES ON)
set(CPACK_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS
    OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ GROUP_EXECUTE WORLD_READ WORLD_EXECUTE)
set(CPACK_PRE_BUILD_SCRIPTS ${CMAKE_CURRENT_LIST_DIR}/TarnisPackageFiles.cmake)
set(CPACK_TARNIS_DOCUMENTS ${debian}/changelog ${debian}/copyright)
set(CPACK_DEB_COMPONENT_INSTALL ON)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_RELEASE ${debian_revision})
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS_PRIVATE_DIRS ${PROJECT_BINARY_DIR}/TarnisLibrary)
set(CPACK_DEBIAN_PACKAGE_GENERATE_SHLIBS ON)
set(CPACK_DEBIAN_PACKAGE_GENERATE_SHLIBS_POLICY >=)

set(CPACK_DEBIAN_RUNTIME_PACKAGE_NAME libtarnislibrary${soname_suffix})
set(CPACK_DEBIAN_RUNTIME_PACKAGE_SECTION libs)
set(CPACK_DEBIAN_RUNTIME_PACKAGE_CONTROL_EXTRA ${debian}/triggers)
set(CPACK_DEBIAN_RUNTIME_DESCRIPTION "UI resources for the QML front end of a device: library (${qt_name})
Answers QML lookups of the colors, fonts, element dimensions, texts and icons
of a device. A D-Bus service provides the paths of the resource files.")

set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_NAME libtarnislibrary${qt_suffix}-dev)
set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_SECTION libdevel)
set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_SHLIBDEPS OFF)
set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_DEPENDS
    "${CPACK_DEBIAN_RUNTIME_PACKAGE_NAME} (= ${debian_version}), ${qt_development_packages}")
set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_RECOMMENDS "${qml_development_packages}") # for the component QmlHost
set(CPACK_DEBIAN_DEVELOPMENT_DESCRIPTION "UI resources for the QML front end of a device: headers (${qt_name})
Contains headers, CMake and pkg-config files, a stand-in for the classes of
the host platform, and QML types for Qt Creator and qmllint.")

set(CPACK_DEBIAN_MODULE_PACKAGE_NAME tarnis-module)
set(CPACK_DEBIAN_MODULE_PACKAGE_SECTION admin)
set(CPACK_DEBIAN_MODULE_PACKAGE_DEPENDS "default-dbus-system-bus | dbus-system-bus, \
systemd | systemd-standalone-sysusers | systemd-sysusers")
set(CPACK_DEBIAN_MODULE_PACKAGE_CONTROL_EXTRA ${debian}/postinst ${debian}/prerm ${debian}/postrm)
set(CPACK_DEBIAN_MODULE_PACKAGE_CONTROL_STRICT_PERMISSION ON)
set(CPACK_DEBIAN_MODULE_DESCRIPTION "UI resources for the QML front end of a device: service
Publishes the paths of the colors, fonts, dimensions and icons of a device on
the D-Bus. Contains the resources of a sample device.")

set(CPACK_DEBIAN_GALLERY_PACKAGE_NAME tarnis-gallery${qt_suffix})
set(CPACK_DEBIAN_GALLERY_PACKAGE_SECTION devel)
set(CPACK_DEBIAN_GALLERY_PACKAGE_DEPENDS "${CPACK_DEBIAN_RUNTIME_PACKAGE_NAME} (= ${debian_version}), ${qml_modules}")
set(CPACK_DEBIAN_GALLERY_PACKAGE_RECOMMENDS "tarnis-module, fonts-inter, fonts-dejavu-core, fonts-ipaexfont-gothic")
set(CPACK_DEBIAN_GALLERY_DESCRIPTION "UI resources for the QML front end of a device: gallery (${qt_name})
Contains a gallery that shows all resources of a device and previews front
ends that are written for ${qt_name}, and the QML module for tools of Qt.")

set(CPACK_DEBIAN_CHECKER_PACKAGE_NAME tarnis-resource-check)
set(CPACK_DEBIAN_CHECKER_PACKAGE_SECTION devel)
set(CPACK_DEBIAN_CHECKER_PACKAGE_DEPENDS "${CPACK_DEBIAN_RUNTIME_PACKAGE_NAME} (= ${debian_version}), libqt6svg6")
set(CPACK_DEBIAN_CHECKER_DESCRIPTION "UI resources for the QML front end of a device: checker
Finds faults in the resources of a device and in the QML code that uses them.
Reads QML that is written for Qt 5 or for Qt 6.")

include(CPack)
