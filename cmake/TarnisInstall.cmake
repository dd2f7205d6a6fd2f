# How other projects find the installed library: find_package(TarnisLibrary) and pkg-config tarnislibrary; for Qt 6,
# find_package(TarnisLibrary-qt6) and pkg-config tarnislibrary-qt6.
# Install components: runtime (the library), module (the service and the sample resources), development, gallery (with
# the QML module), checker.
include(CMakePackageConfigHelpers)

configure_package_config_file(${CMAKE_CURRENT_LIST_DIR}/TarnisLibraryConfig.cmake.in
    ${PROJECT_BINARY_DIR}/${package}Config.cmake
    INSTALL_DESTINATION ${package_directory}
    NO_SET_AND_CHECK_MACRO)
write_basic_package_version_file(${PROJECT_BINARY_DIR}/${package}ConfigVersion.cmake
    COMPATIBILITY SameMajorVersion)
install(FILES ${PROJECT_BINARY_DIR}/${package}Config.cmake ${PROJECT_BINARY_DIR}/${package}ConfigVersion.cmake
    DESTINATION ${package_directory} COMPONENT development)
install(EXPORT TarnisLibraryTargets NAMESPACE Tarnis:: DESTINATION ${package_directory} COMPONENT development)

set(pkgconfig_directory ${CMAKE_INSTALL_LIBDIR}/pkgconfig)
file(RELATIVE_PATH pkgconfig_to_prefix /${pkgconfig_directory} /)
configure_file(${CMAKE_CURRENT_LIST_DIR}/tarnislibrary.pc.in ${PROJECT_BINARY_DIR}/tarnislibrary${qt_suffix}.pc @ONLY)
install(FILES ${PROJECT_BINARY_DIR}/tarnislibrary${qt_suffix}.pc DESTINATION ${pkgconfig_directory} COMPONENT development)
