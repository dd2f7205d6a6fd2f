# Builds for a 64-bit ARM device with Debian 12, in the sysroot that scripts/cross.sh creates.
set(CMAKE_SYSTEM_NAME Linux)
set(CMAKE_SYSTEM_PROCESSOR aarch64)
set(CMAKE_CXX_COMPILER aarch64-linux-gnu-g++)
get_filename_component(CMAKE_SYSROOT ${CMAKE_CURRENT_LIST_DIR}/../build/sysroot-aarch64 ABSOLUTE)
set(libraries ${CMAKE_SYSROOT}/usr/lib/aarch64-linux-gnu)
# The emulator finds libraries in the sysroot, but Qt's plugin search does not look there.
set(CMAKE_CROSSCOMPILING_EMULATOR qemu-aarch64 -L ${CMAKE_SYSROOT} -E QT_PLUGIN_PATH=${libraries}/qt5/plugins)

set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
set(CMAKE_FIND_ROOT_PATH_MODE_LIBRARY ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_INCLUDE ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_PACKAGE ONLY)
set(ENV{PKG_CONFIG_SYSROOT_DIR} ${CMAKE_SYSROOT})
set(ENV{PKG_CONFIG_LIBDIR} ${libraries}/pkgconfig)
