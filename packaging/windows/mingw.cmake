# Builds for 64-bit Windows with the compiler of Debian's package g++-mingw-w64-x86-64-posix.
# VERDALIS_WINDOWS_PREFIX is the folder of the libraries that packaging/windows/libraries has built.
set(CMAKE_SYSTEM_NAME Windows)
set(CMAKE_SYSTEM_PROCESSOR x86_64)
set(CMAKE_C_COMPILER x86_64-w64-mingw32-gcc-posix)
set(CMAKE_CXX_COMPILER x86_64-w64-mingw32-g++-posix)
set(CMAKE_RC_COMPILER x86_64-w64-mingw32-windres)
list(APPEND CMAKE_TRY_COMPILE_PLATFORM_VARIABLES VERDALIS_WINDOWS_PREFIX)

set(CMAKE_FIND_ROOT_PATH /usr/x86_64-w64-mingw32 ${VERDALIS_WINDOWS_PREFIX})
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
set(CMAKE_FIND_ROOT_PATH_MODE_LIBRARY ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_INCLUDE ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_PACKAGE ONLY)

# Static libraries name what they need themselves.
set(PKG_CONFIG_EXECUTABLE /usr/bin/pkg-config)
set(PKG_CONFIG_ARGN --static)
set(ENV{PKG_CONFIG_LIBDIR} ${VERDALIS_WINDOWS_PREFIX}/lib/pkgconfig:${VERDALIS_WINDOWS_PREFIX}/share/pkgconfig)
