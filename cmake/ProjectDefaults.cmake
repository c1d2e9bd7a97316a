# What holds for every target: language level, where results go, and a helper that keeps the lists of sources in the folders.

set(CMAKE_CXX_STANDARD 20)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_EXPORT_COMPILE_COMMANDS ON)

# What is delivered does not tell where it was built.
if(WIN32)
  add_compile_options("-ffile-prefix-map=${PROJECT_SOURCE_DIR}/=")
endif()

# Programs and libraries for users stand at the top of the build folder, without a "lib" in front.
set(CMAKE_RUNTIME_OUTPUT_DIRECTORY "${PROJECT_BINARY_DIR}")

# The C++ files of the folders named, so that a new file needs no change here. Stores the list in `result`.
function(qorl_sources result)
  list(TRANSFORM ARGN APPEND "/*.cpp" OUTPUT_VARIABLE patterns)
  file(GLOB files CONFIGURE_DEPENDS LIST_DIRECTORIES false ${patterns})
  set(${result} "${files}" PARENT_SCOPE)
endfunction()
