# Debian packages, one per component. scripts/packages.sh builds them.
set(debian ${PROJECT_SOURCE_DIR}/packaging/debian)
file(STRINGS ${debian}/changelog latest_change LIMIT_COUNT 1)
string(REGEX MATCH "-([0-9]+)\\)" debian_revision "${latest_change}")
set(debian_version "${PROJECT_VERSION}-${CMAKE_MATCH_1}")

set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME tarnis)
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "") # each package has its own
set(CPACK_PACKAGE_CONTACT "Tarnis maintainers <maintainers@tarnis.invalid>")
set(CPACK_COMPONENTS_ALL runtime development module tools)
set(CPACK_STRIP_FILES ON)
set(CPACK_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS
    OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ GROUP_EXECUTE WORLD_READ WORLD_EXECUTE)
set(CPACK_PRE_BUILD_SCRIPTS ${CMAKE_CURRENT_LIST_DIR}/TarnisPackageFiles.cmake)
set(CPACK_TARNIS_DOCUMENTS ${debian}/changelog ${debian}/copyright)
set(CPACK_DEB_COMPONENT_INSTALL ON)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_RELEASE ${CMAKE_MATCH_1})
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS_PRIVATE_DIRS ${PROJECT_BINARY_DIR}/TarnisLibrary)
set(CPACK_DEBIAN_PACKAGE_GENERATE_SHLIBS ON)
set(CPACK_DEBIAN_PACKAGE_GENERATE_SHLIBS_POLICY >=)

set(CPACK_DEBIAN_RUNTIME_PACKAGE_NAME libtarnislibrary${PROJECT_VERSION_MAJOR})
set(CPACK_DEBIAN_RUNTIME_PACKAGE_SECTION libs)
set(CPACK_DEBIAN_RUNTIME_PACKAGE_CONTROL_EXTRA ${debian}/triggers)
set(CPACK_DEBIAN_RUNTIME_DESCRIPTION "UI resources for the QML front end of a device: library
Answers QML lookups of the colors, fonts, element dimensions, texts and icons
of a device. A D-Bus service provides the paths of the resource files.")

set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_NAME libtarnislibrary-dev)
set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_SECTION libdevel)
set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_SHLIBDEPS OFF)
set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_DEPENDS
    "${CPACK_DEBIAN_RUNTIME_PACKAGE_NAME} (= ${debian_version}), qtbase5-dev (>= 5.15)")
set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_RECOMMENDS "qtdeclarative5-dev (>= 5.15)") # for the component QmlHost
set(CPACK_DEBIAN_DEVELOPMENT_DESCRIPTION "UI resources for the QML front end of a device: development files
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

set(CPACK_DEBIAN_TOOLS_PACKAGE_NAME tarnis-tools)
set(CPACK_DEBIAN_TOOLS_PACKAGE_SECTION devel)
set(CPACK_DEBIAN_TOOLS_PACKAGE_DEPENDS "${CPACK_DEBIAN_RUNTIME_PACKAGE_NAME} (= ${debian_version}), libqt5svg5, \
qml-module-qtquick2, qml-module-qtquick-controls2, qml-module-qtquick-layouts, qml-module-qtquick-window2")
set(CPACK_DEBIAN_TOOLS_PACKAGE_RECOMMENDS "tarnis-module, fonts-inter, fonts-dejavu-core, fonts-ipaexfont-gothic")
set(CPACK_DEBIAN_TOOLS_DESCRIPTION "UI resources for the QML front end of a device: tools
Contains a gallery that shows all resources of a device, and a checker that
finds faults in the resources and in the QML code that uses them.")

include(CPack)
