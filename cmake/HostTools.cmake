# Builds the programs that a Windows build runs on the building machine, with that machine's own compiler.
# QORL_IDL_WRITER and QORL_MANIFEST_WRITER are the paths of the writers; a command that runs one names that path among
# its DEPENDS.

include(ExternalProject)

set(QORL_HOST_BINARY_DIR "${PROJECT_BINARY_DIR}/host")
set(QORL_IDL_WRITER "${QORL_HOST_BINARY_DIR}/qorl_idl" CACHE INTERNAL "The IDL writer of this build")
set(QORL_MANIFEST_WRITER "${QORL_HOST_BINARY_DIR}/qorl_manifest" CACHE INTERNAL "The manifest writer of this build")

if(EXISTS "${PROJECT_SOURCE_DIR}/tools/idl/CMakeLists.txt")
  # BUILD_ALWAYS: the nested build knows its own sources; when nothing changed it leaves the program untouched.
  ExternalProject_Add(
    qorl_host_tools
    SOURCE_DIR "${PROJECT_SOURCE_DIR}"
    BINARY_DIR "${QORL_HOST_BINARY_DIR}"
    PREFIX "${PROJECT_BINARY_DIR}/host-steps"
    CMAKE_ARGS -DQORL_HOST_TOOLS_ONLY=ON -DCMAKE_BUILD_TYPE=Debug
    BUILD_COMMAND "${CMAKE_COMMAND}" --build <BINARY_DIR> --target qorl_idl qorl_manifest
    BUILD_ALWAYS ON
    BUILD_BYPRODUCTS "${QORL_IDL_WRITER}" "${QORL_MANIFEST_WRITER}"
    INSTALL_COMMAND "")
endif()
