# GTest::gtest, GTest::gtest_main and GTest::gmock, from the installed library or, for Windows, from Debian's sources.

include(GoogleTest)

if(NOT WIN32)
  find_package(GTest REQUIRED)
  return()
endif()

set(QORL_GOOGLETEST_SOURCES "/usr/src/googletest" CACHE PATH "Where GoogleTest's sources stand")
set(INSTALL_GTEST OFF CACHE BOOL "" FORCE)
add_subdirectory("${QORL_GOOGLETEST_SOURCES}" "${PROJECT_BINARY_DIR}/googletest" EXCLUDE_FROM_ALL SYSTEM)
foreach(library gtest gtest_main gmock gmock_main)
  if(NOT TARGET GTest::${library})
    add_library(GTest::${library} ALIAS ${library})
  endif()
endforeach()
