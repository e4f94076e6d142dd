# A 64-bit Windows program from a Debian machine, with the compilers of g++-mingw-w64-x86-64-posix.
set(CMAKE_SYSTEM_NAME Windows)
set(CMAKE_SYSTEM_PROCESSOR x86_64)
set(CMAKE_C_COMPILER x86_64-w64-mingw32-gcc-posix)
set(CMAKE_CXX_COMPILER x86_64-w64-mingw32-g++-posix)
set(CMAKE_RC_COMPILER x86_64-w64-mingw32-windres)
set(CMAKE_FIND_ROOT_PATH /usr/x86_64-w64-mingw32 $ENV{TIDEMARK_WINDOWS_LIBRARIES})
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
set(CMAKE_FIND_ROOT_PATH_MODE_LIBRARY ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_INCLUDE ONLY)
# What was built runs under wine, which keeps a Windows of its own in the build folder and is not to
# ask for what it may miss there.
set(CMAKE_CROSSCOMPILING_EMULATOR env WINEDEBUG=-all WINEDLLOVERRIDES=mscoree,mshtml= WINEPREFIX=${CMAKE_BINARY_DIR}/wine wine)
