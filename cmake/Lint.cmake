# The target `tidy`: clang-tidy over the portable sources, a file at a time. A file is looked at again only when it, a
# header that it includes, or .clang-tidy has changed. Tests are left to the compilers' warnings: GoogleTest's macros
# expand to what half of the checks reject.

find_program(QORL_CLANG_TIDY NAMES clang-tidy-14 clang-tidy)
if(NOT QORL_CLANG_TIDY)
  message(STATUS "clang-tidy not found: there is no target `tidy`")
  return()
endif()

set(stamps "")
foreach(target qorltst_core qorl_simulator qorl_model qorl_model_json qorl_report qorl_tstdump_parts tstdump qorl_idl qorl_demo qorl_bench)
  if(NOT TARGET ${target})
    continue()
  endif()
  get_target_property(sources ${target} SOURCES)
  get_target_property(folder ${target} SOURCE_DIR)
  foreach(source ${sources})
    cmake_path(ABSOLUTE_PATH source BASE_DIRECTORY "${folder}" NORMALIZE)
    cmake_path(RELATIVE_PATH source BASE_DIRECTORY "${PROJECT_SOURCE_DIR}" OUTPUT_VARIABLE name)
    set(stamp "${PROJECT_BINARY_DIR}/tidy/${name}.stamp")
    if(stamp IN_LIST stamps)
      continue()
    endif()
    list(APPEND stamps "${stamp}")
    add_custom_command(
      OUTPUT "${stamp}"
      # Findings go to the standard output; the other stream only counts what was found in system headers.
      COMMAND sh -c "\"$1\" --quiet -p \"$2\" \"$3\" 2>\"$4\" || { cat \"$4\" >&2; exit 1; }" tidy "${QORL_CLANG_TIDY}"
              "${PROJECT_BINARY_DIR}" "${source}" "${stamp}.log"
      COMMAND "${CMAKE_CXX_COMPILER}" -std=c++20 -I "${PROJECT_SOURCE_DIR}/src" -I "${PROJECT_SOURCE_DIR}" -MM -MT "${stamp}"
              -MF "${stamp}.d" "${source}"
      COMMAND "${CMAKE_COMMAND}" -E touch "${stamp}"
      DEPENDS "${source}" "${PROJECT_SOURCE_DIR}/.clang-tidy"
      DEPFILE "${stamp}.d"
      COMMENT "clang-tidy ${name}"
      VERBATIM)
  endforeach()
endforeach()
add_custom_target(tidy DEPENDS ${stamps})
