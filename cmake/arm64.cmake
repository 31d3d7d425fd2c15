# Builds for 64-bit ARM on another machine, and runs the tests there by qemu. VERDALIS_ARM64_ROOT is a folder with the
# libraries, see tools/arm64-root. VERDALIS_ARM64_CLANG=ON uses clang.
#   cmake --preset release -B build/arm64 --toolchain cmake/arm64.cmake -DVERDALIS_ARM64_ROOT=... -DVERDALIS_DESKTOP=OFF

set(CMAKE_SYSTEM_NAME Linux)
set(CMAKE_SYSTEM_PROCESSOR aarch64)
list(APPEND CMAKE_TRY_COMPILE_PLATFORM_VARIABLES VERDALIS_ARM64_ROOT VERDALIS_ARM64_CLANG)
if(NOT IS_DIRECTORY "${VERDALIS_ARM64_ROOT}/usr/lib/aarch64-linux-gnu")
  message(FATAL_ERROR "VERDALIS_ARM64_ROOT must be the folder that tools/arm64-root prints.")
endif()
set(CMAKE_SYSROOT "${VERDALIS_ARM64_ROOT}")
set(CMAKE_LIBRARY_ARCHITECTURE aarch64-linux-gnu)
if(VERDALIS_ARM64_CLANG)
  set(CMAKE_CXX_COMPILER clang++)
  set(CMAKE_CXX_COMPILER_TARGET aarch64-linux-gnu)
else()
  set(CMAKE_CXX_COMPILER aarch64-linux-gnu-g++)
endif()

# Libraries and headers for ARM only; programs that run during the build from here.
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
set(CMAKE_FIND_ROOT_PATH_MODE_LIBRARY ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_INCLUDE ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_PACKAGE ONLY)
set(ENV{PKG_CONFIG_SYSROOT_DIR} "${VERDALIS_ARM64_ROOT}")
set(ENV{PKG_CONFIG_LIBDIR}
  "${VERDALIS_ARM64_ROOT}/usr/lib/aarch64-linux-gnu/pkgconfig:${VERDALIS_ARM64_ROOT}/usr/share/pkgconfig")

find_program(VERDALIS_QEMU NAMES qemu-aarch64-static qemu-aarch64 REQUIRED)
set(CMAKE_CROSSCOMPILING_EMULATOR "${VERDALIS_QEMU};-L;${VERDALIS_ARM64_ROOT}")
