# SPDX-License-Identifier: MIT
# Builds for arm64 on a machine of another architecture, with the libraries that scripts/sysroot.sh
# unpacks. What is built can be tried with qemu's emulation of a single program.
set(CMAKE_SYSTEM_NAME Linux)
set(CMAKE_SYSTEM_PROCESSOR aarch64)
set(CMAKE_SYSROOT ${CMAKE_CURRENT_LIST_DIR}/../build/sysroot-arm64)
cmake_path(NORMAL_PATH CMAKE_SYSROOT)
if(NOT EXISTS ${CMAKE_SYSROOT}/contents)
  message(FATAL_ERROR "There are no libraries in ${CMAKE_SYSROOT}: run scripts/sysroot.sh arm64")
endif()

set(CMAKE_CXX_COMPILER aarch64-linux-gnu-g++)
# Started by its own loader, a program sees this machine's files where it opens any; with qemu's option
# -L it would see the libraries' root directory in place of the machine's, and no mocked one in it.
set(libraries ${CMAKE_SYSROOT}/usr/lib/aarch64-linux-gnu)
set(CMAKE_CROSSCOMPILING_EMULATOR qemu-aarch64
  -E GCONV_PATH=${libraries}/gconv -E QT_PLUGIN_PATH=${libraries}/qt5/plugins
  ${libraries}/ld-linux-aarch64.so.1 --library-path ${libraries})

# Programs run here; all else is of the other architecture.
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
set(CMAKE_FIND_ROOT_PATH_MODE_LIBRARY ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_INCLUDE ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_PACKAGE ONLY)
set(ENV{PKG_CONFIG_SYSROOT_DIR} ${CMAKE_SYSROOT})
set(ENV{PKG_CONFIG_LIBDIR}
  ${CMAKE_SYSROOT}/usr/lib/aarch64-linux-gnu/pkgconfig:${CMAKE_SYSROOT}/usr/share/pkgconfig)
