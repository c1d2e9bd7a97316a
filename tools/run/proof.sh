#: ./run proof   the long forms: every fault at every call, a million retrievals, 10,000 across the automation border,
#:               the fuzzers for an hour; takes about two hours

proof_automation() {
  step "wine prefix" start_wine
  program_step windows-x64 qorl_automation_tests.exe wine --gtest_filter=-ServerCycles*
}

command_proof() {
  provide "${kNativePackages[@]}" "${kSanitizerPackages[@]}" "${kWindowsPackages[@]}" "${kWinePackages[@]}"
  require "The long proof" "${kNativePrograms[@]}"
  export QORL_LONG=1
  step "native-release build" compile native-release --target qorl_tests qorl_memory_tests
  program_step native-release qorl_tests
  program_step native-release qorl_memory_tests
  if can_sanitize; then
    test_sanitized
    test_sanitized_tools
    fuzz_step "$kFuzzSeconds" "${kFuzzTargets[@]}"
  fi
  if can_build_windows && can_run_windows; then
    step "windows-x64 build" compile windows-x64
    proof_automation
  fi
  say "$passed passed, $failed failed, $skipped skipped"
  [[ $failed -eq 0 ]]
}
