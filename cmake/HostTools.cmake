# Programs that a Windows build runs on the building machine. They come from that machine's own build, with its own
# compiler; both Windows presets and the native one share it.
# QORL_IDL_WRITER and QORL_MANIFEST_WRITER are the paths of the writers; a command that runs one names that path among
# its DEPENDS.

include(ExternalProject)

set(QORL_NATIVE_BINARY_DIR "${PROJECT_BINARY_DIR}/native" CACHE PATH "Where this machine's own build is, or is to be")
set(QORL_IDL_WRITER "${QORL_NATIVE_BINARY_DIR}/qorl_idl" CACHE INTERNAL "The IDL writer of this build")
set(QORL_MANIFEST_WRITER "${QORL_NATIVE_BINARY_DIR}/qorl_manifest" CACHE INTERNAL "The manifest writer of this build")

# BUILD_ALWAYS: the native build knows its own sources; when nothing changed it leaves the programs untouched.
ExternalProject_Add(
  qorl_host_tools
  SOURCE_DIR "${PROJECT_SOURCE_DIR}"
  BINARY_DIR "${QORL_NATIVE_BINARY_DIR}"
  PREFIX "${PROJECT_BINARY_DIR}/host-steps"
  CMAKE_ARGS -DCMAKE_BUILD_TYPE=Release
  BUILD_COMMAND "${CMAKE_COMMAND}" --build <BINARY_DIR> --target qorl_idl qorl_manifest
  BUILD_ALWAYS ON
  BUILD_BYPRODUCTS "${QORL_IDL_WRITER}" "${QORL_MANIFEST_WRITER}"
  INSTALL_COMMAND "")
