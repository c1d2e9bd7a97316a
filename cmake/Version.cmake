# Link `qorl_version` to have Version.h: the version of CMakeLists.txt for programs that tell it (--version).

configure_file("${CMAKE_CURRENT_LIST_DIR}/Version.h.in" "${PROJECT_BINARY_DIR}/version/Version.h" @ONLY)
add_library(qorl_version INTERFACE)
target_include_directories(qorl_version INTERFACE "${PROJECT_BINARY_DIR}/version")
