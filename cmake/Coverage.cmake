# Coverage by source, counted by clang: in the libraries of the component and its simulator, not in the tests.

option(QORL_COVERAGE "Count what runs (clang only)" OFF)

# Counts what runs of the target's own sources, and makes every program that links it write the counts.
function(qorl_count_coverage target)
  if(NOT QORL_COVERAGE)
    return()
  endif()
  target_compile_options(${target} PRIVATE -fcoverage-mapping -fprofile-instr-generate)
  target_link_options(${target} PUBLIC -fprofile-instr-generate)
endfunction()
