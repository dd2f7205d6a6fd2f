# How other projects find the installed library: find_package(TarnisLibrary) and pkg-config tarnislibrary.
# Install components: runtime (the library), module (the service and the sample resources), development, tools.
include(CMakePackageConfigHelpers)
set(package_directory ${CMAKE_INSTALL_LIBDIR}/cmake/TarnisLibrary)

configure_package_config_file(${CMAKE_CURRENT_LIST_DIR}/TarnisLibraryConfig.cmake.in
    ${PROJECT_BINARY_DIR}/TarnisLibraryConfig.cmake
    INSTALL_DESTINATION ${package_directory}
    NO_SET_AND_CHECK_MACRO)
write_basic_package_version_file(${PROJECT_BINARY_DIR}/TarnisLibraryConfigVersion.cmake
    COMPATIBILITY SameMajorVersion)
install(FILES ${PROJECT_BINARY_DIR}/TarnisLibraryConfig.cmake ${PROJECT_BINARY_DIR}/TarnisLibraryConfigVersion.cmake
    DESTINATION ${package_directory} COMPONENT development)
install(EXPORT TarnisLibraryTargets NAMESPACE Tarnis:: DESTINATION ${package_directory} COMPONENT development)

set(pkgconfig_directory ${CMAKE_INSTALL_LIBDIR}/pkgconfig)
file(RELATIVE_PATH pkgconfig_to_prefix /${pkgconfig_directory} /)
configure_file(${CMAKE_CURRENT_LIST_DIR}/tarnislibrary.pc.in ${PROJECT_BINARY_DIR}/tarnislibrary.pc @ONLY)
install(FILES ${PROJECT_BINARY_DIR}/tarnislibrary.pc DESTINATION ${pkgconfig_directory} COMPONENT development)
