# The automation side once more, for the tests: it counts what runs. The test program is counted with it, because of an
# inline function the linker keeps one copy. The servers that count stand in counted/, with a copy of the program, since
# some ways lead through a server's entry points only. Those that are delivered count nothing.

set(QORL_COUNTED "${PROJECT_BINARY_DIR}/counted")

# The sources of a target, as paths.
function(qorl_sources_of target result)
  get_target_property(sources ${target} SOURCES)
  get_target_property(folder ${target} SOURCE_DIR)
  list(TRANSFORM sources PREPEND "${folder}/" REGEX "^[^/]")
  set(${result} ${sources} PARENT_SCOPE)
endfunction()

qorl_sources_of(qorltst_automation machinery)
add_library(qorl_counted_automation STATIC ${machinery})
target_compile_options(qorl_counted_automation PUBLIC --coverage -O0)
target_link_options(qorl_counted_automation PUBLIC --coverage)
target_link_libraries(qorl_counted_automation PUBLIC qorltst_core ole32 oleaut32 uuid PRIVATE qorl_warnings)

# The program is the test program of both folders.
function(qorl_count_servers program)
  enable_language(RC)
  foreach(server QorlTST QorlHostToolkit)
    qorl_sources_of(${server} sources)
    add_library(${server}_counted MODULE ${sources})
    target_link_libraries(${server}_counted PRIVATE qorl_counted_automation qorl_simulator qorl_warnings)
    target_link_options(${server}_counted PRIVATE -static)
    add_dependencies(${server}_counted qorl_type_library)
    set_target_properties(${server}_counted PROPERTIES PREFIX "" OUTPUT_NAME ${server}
                                                       LIBRARY_OUTPUT_DIRECTORY "${QORL_COUNTED}")
  endforeach()
  add_custom_target(
    ${program}_counted ALL
    COMMAND "${CMAKE_COMMAND}" -E copy_if_different "$<TARGET_FILE:${program}>" "${QORL_COUNTED}"
    DEPENDS QorlTST_counted QorlHostToolkit_counted
    VERBATIM)
endfunction()
