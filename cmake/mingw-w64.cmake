# Builds for Windows (64 bit) on Debian with g++-mingw-w64-x86-64-posix; programs of the build run under wine64.
set(CMAKE_SYSTEM_NAME Windows)
set(CMAKE_SYSTEM_PROCESSOR x86_64)
set(CMAKE_C_COMPILER x86_64-w64-mingw32-gcc-posix)
set(CMAKE_CXX_COMPILER x86_64-w64-mingw32-g++-posix)
set(CMAKE_RC_COMPILER x86_64-w64-mingw32-windres)
# The compiler's own libraries go into each program, so that it needs none beside it.
set(CMAKE_EXE_LINKER_FLAGS_INIT -static)

list(APPEND CMAKE_FIND_ROOT_PATH /usr/x86_64-w64-mingw32)
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
set(CMAKE_FIND_ROOT_PATH_MODE_LIBRARY ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_INCLUDE ONLY)

find_program(VESK_WINE wine64 PATHS /usr/lib/wine NO_CMAKE_FIND_ROOT_PATH)
if(VESK_WINE)
  set(CMAKE_CROSSCOMPILING_EMULATOR ${VESK_WINE})
endif()
