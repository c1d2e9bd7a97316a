# The target `tidy`: clang-tidy over the sources of this build, a file at a time: the portable ones in a build for this
# machine, the automation side in one for Windows. A file is looked at again only when it, a header that it includes, or
# .clang-tidy has changed. Tests are left to the compilers' warnings: GoogleTest's macros expand to what half of the checks
# reject. `tidy_component` looks for faults in the component, and leaves questions of style to `tidy`, which takes three
# times as long for a file.

find_program(QORL_CLANG_TIDY NAMES clang-tidy-14 clang-tidy)
if(NOT QORL_CLANG_TIDY)
  message(STATUS "clang-tidy not found: there is no target `tidy`")
  return()
endif()

set(tidyTargets qorltst_core qorl_simulator qorl_model qorl_model_json qorl_report qorl_tstdump_parts tstdump
    qorl_shell_parts qorl_shell qorl_idl qorl_reference qorl_manifest qorl_demo qorl_bench qorl_cost)
set(tidyArguments "")
set(checks "")
set(styleChecks "-cert-*,-cppcoreguidelines-*,-google-*,-misc-*,-modernize-*,-portability-*,-readability-*")
if(WIN32)
  set(tidyTargets qorltst_automation QorlTST QorlHostToolkit)
  # clang reads the headers of mingw's g++, but its own in the place of those that belong to g++ itself.
  set(folders ${CMAKE_CXX_IMPLICIT_INCLUDE_DIRECTORIES})
  list(FILTER folders EXCLUDE REGEX "/gcc/.*/include(-fixed)?$")
  list(TRANSFORM folders PREPEND --extra-arg=-isystem)
  string(CONCAT checks
         # a variant of the system is a union
         "-cppcoreguidelines-pro-type-union-access,"
         # interfaces and texts cross the edge as pointers of another type
         "-cppcoreguidelines-pro-type-reinterpret-cast,-performance-no-int-to-ptr,"
         # the system's functions take what they only read as changeable
         "-cppcoreguidelines-pro-type-const-cast,"
         # they answer questions with an integer
         "-readability-implicit-bool-conversion,"
         # a constant BSTR is a pointer that does not change, which is what is meant
         "-misc-misplaced-const,"
         # the body of an entry point that is marked noexcept runs inside AtEdge, which the check does not see
         "-bugprone-unhandled-exception-at-new")
  set(tidyArguments --extra-arg=--target=${QORL_MINGW_PREFIX} ${folders})
endif()

# qorl_tidy(<stamps> <folder of the stamps> <source> <its name> <checks>): appends the stamp of the source to the list.
function(qorl_tidy stamps folder source name checks)
  set(stamp "${PROJECT_BINARY_DIR}/${folder}/${name}.stamp")
  if(stamp IN_LIST ${stamps})
    return()
  endif()
  set(${stamps} ${${stamps}} "${stamp}" PARENT_SCOPE)
  add_custom_command(
    OUTPUT "${stamp}"
    # Findings go to the standard output; the other stream only counts what was found in system headers.
    COMMAND sh -c "log=$1; shift; \"$@\" 2>\"$log\" || { cat \"$log\" >&2; exit 1; }" tidy "${stamp}.log"
            "${QORL_CLANG_TIDY}" --quiet -p "${PROJECT_BINARY_DIR}" ${tidyArguments} "--checks=${checks}" "${source}"
    COMMAND "${CMAKE_CXX_COMPILER}" -std=c++20 -I "${PROJECT_SOURCE_DIR}/src" -I "${PROJECT_SOURCE_DIR}" -MM -MT "${stamp}"
            -MF "${stamp}.d" "${source}"
    COMMAND "${CMAKE_COMMAND}" -E touch "${stamp}"
    DEPENDS "${source}" "${PROJECT_SOURCE_DIR}/.clang-tidy"
    DEPFILE "${stamp}.d"
    COMMENT "clang-tidy ${name}"
    VERBATIM)
endfunction()

set(stamps "")
set(componentStamps "")
foreach(target ${tidyTargets})
  if(NOT TARGET ${target})
    continue()
  endif()
  get_target_property(sources ${target} SOURCES)
  get_target_property(folder ${target} SOURCE_DIR)
  list(FILTER sources INCLUDE REGEX "\\.cpp$")
  foreach(source ${sources})
    cmake_path(ABSOLUTE_PATH source BASE_DIRECTORY "${folder}" NORMALIZE)
    cmake_path(RELATIVE_PATH source BASE_DIRECTORY "${PROJECT_SOURCE_DIR}" OUTPUT_VARIABLE name)
    qorl_tidy(stamps tidy "${source}" "${name}" "${checks}")
    if(name MATCHES "^src/")
      qorl_tidy(componentStamps tidy_component "${source}" "${name}" "${styleChecks},${checks}")
    endif()
  endforeach()
endforeach()
add_custom_target(tidy DEPENDS ${stamps})
add_custom_target(tidy_component DEPENDS ${componentStamps})
