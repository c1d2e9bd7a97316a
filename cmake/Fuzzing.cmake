# Programs that feed invented input to the component, made with clang's libFuzzer. They are fuzz/.

option(QORL_FUZZING "Build the fuzz programs (clang only)" OFF)

# Tells the fuzzer which ways through the target's own sources an input takes. Other programs that link the target work
# as before.
function(qorl_guide_fuzzing target)
  if(QORL_FUZZING)
    target_compile_options(${target} PRIVATE -fsanitize=fuzzer-no-link)
  endif()
endfunction()
