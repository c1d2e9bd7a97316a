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

# The compiler's libraries go into the results: what we build needs nothing but Windows. Without a time stamp the same
# sources give the same file.
foreach(kind EXE SHARED MODULE)
  set(CMAKE_${kind}_LINKER_FLAGS_INIT "-static -Wl,--no-insert-timestamp")
  set(CMAKE_${kind}_LINKER_FLAGS_RELEASE_INIT -s)
endforeach()

# Without Wine programs are built and not run.
if(EXISTS /usr/lib/wine/wine64)
  set(CMAKE_CROSSCOMPILING_EMULATOR wine)
endif()
