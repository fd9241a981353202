# Configures the project as for Windows, on Debian, with the compiler only: sources are checked, not
# linked, since Debian has the Windows compiler but no Qt for Windows. Everything that chooses files
# by platform chooses as on Windows, so no source can be left out of the check.
set(CMAKE_SYSTEM_NAME Windows)
set(CMAKE_SYSTEM_PROCESSOR x86_64)
set(CMAKE_CXX_COMPILER x86_64-w64-mingw32-g++-posix)
set(CMAKE_C_COMPILER x86_64-w64-mingw32-gcc-posix)

# Only CMake's package files are taken from the host; its headers and libraries would mislead.
set(CMAKE_PREFIX_PATH /usr/lib/x86_64-linux-gnu/cmake)
set(QT_HOST_PATH /usr)
set(QT_HOST_PATH_CMAKE_DIR /usr/lib/x86_64-linux-gnu/cmake)
