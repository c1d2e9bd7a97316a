# Windows x64, built with mingw-w64 (posix threads). Its counterpart stands beside it.

set(CMAKE_SYSTEM_NAME Windows)
set(CMAKE_SYSTEM_PROCESSOR x86_64)

set(QORL_MINGW_PREFIX x86_64-w64-mingw32)
set(CMAKE_C_COMPILER ${QORL_MINGW_PREFIX}-gcc-posix)
set(CMAKE_CXX_COMPILER ${QORL_MINGW_PREFIX}-g++-posix)
set(CMAKE_RC_COMPILER ${QORL_MINGW_PREFIX}-windres)

set(CMAKE_FIND_ROOT_PATH /usr/${QORL_MINGW_PREFIX})
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
set(CMAKE_FIND_ROOT_PATH_MODE_LIBRARY ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_INCLUDE ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_PACKAGE ONLY)

# The compiler's libraries go into the results: what we build needs nothing but Windows.
set(CMAKE_EXE_LINKER_FLAGS_INIT -static)
set(CMAKE_SHARED_LINKER_FLAGS_INIT -static)

set(CMAKE_CROSSCOMPILING_EMULATOR wine)
