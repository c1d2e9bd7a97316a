#: ./run test    format, tests, sanitizers, Windows tests under Wine, the package; ends with "N passed, N failed, N skipped"

# The number in an attribute of ctest's report.
reported() { grep -oE "\b$2=\"[0-9]+\"" "$1" | head -n 1 | tr -dc 0-9; }

# add_report <report> <status of the run>: adds a run's tests to the sums.
add_report() {
  local report=$1 total bad left
  if [[ ! -s $report ]]; then
    failed=$((failed + 1))
    return 0
  fi
  total=$(reported "$report" tests)
  bad=$(reported "$report" failures)
  left=$(($(grep -c '<skipped' "$report" || true) + $(reported "$report" disabled)))
  # A run that failed without a failed test (a program that could not be asked for its tests) counts as one failure.
  [[ $2 -eq 0 || $bad -gt 0 ]] || failed=$((failed + 1))
  passed=$((passed + total - bad - left))
  failed=$((failed + bad))
  skipped=$((skipped + left))
  say "  $((total - bad - left)) passed, $bad failed, $left skipped"
}

# ctest_step <preset> [what] [options]: runs its tests, each in a process of its own. Which tests there are, CMake decides:
# those that need Wine are there where Wine is.
ctest_step() {
  local preset=$1 report=$kRoot/build/$1/tests.xml status=0
  rm -f "$report"
  step "$preset ${2:-tests}" ctest --preset "$preset" --output-junit "$report" "${@:3}" || status=$?
  add_report "$report" "$status"
}

# program_step <preset> <program> [wine]: runs a test program at one go and adds its tests to the sums.
program_step() {
  local report=$kRoot/build/$1/$2.xml status=0
  rm -f "$report"
  step "$1 $2" "${@:3}" "$kRoot/build/$1/$2" --gtest_brief=1 "--gtest_output=xml:$report" || status=$?
  add_report "$report" "$status"
}

test_native() {
  if checked "native-release build" compile native-release; then
    ctest_step native-release
    test_valgrind
  fi
}

# What the sanitizers do not see, uninitialised memory above all, in the optimised program: retrievals from end to end,
# failing calls and failing allocations.
memcheck() {
  valgrind --quiet --error-exitcode=9 --leak-check=full --errors-for-leak-kinds=definite,indirect,possible "$@" \
    --gtest_brief=1
}

test_valgrind() {
  if ! have_programs valgrind; then
    say "valgrind is left out: it is not installed"
    return 0
  fi
  checked "valgrind retrievals" memcheck build/native-release/qorl_tests \
    --gtest_filter='*EndToEnd*:RetrievalTest*:TstTest*:TstParser*:AmountTest*:HostScreens.That*' || true
  # This program has an operator new of its own, which valgrind would otherwise replace.
  checked "valgrind allocations" memcheck --soname-synonyms=somalloc=nouserintercepts \
    build/native-release/qorl_memory_tests \
    --gtest_filter='*warnings*:*fcexchange*:*Classes*:*Begin*' || true
}

# One process for all tests, so that what they leave behind adds up; the sanitizers look for leaks at its end.
test_sanitized() {
  if ! can_sanitize; then
    say "The sanitizers are left out: they need ${kSanitizerPrograms[*]}"
    return 0
  fi
  if checked "native-sanitize build" compile native-sanitize; then
    export LLVM_PROFILE_FILE=$kRoot/build/native-sanitize/profiles/%m-%p.profraw UBSAN_OPTIONS=print_stacktrace=1
    rm -rf "$kRoot/build/native-sanitize/profiles"
    program_step native-sanitize qorl_tests
    program_step native-sanitize qorl_memory_tests
    # Left out where its libraries are not installed.
    if [[ -x build/native-sanitize/qorl_tool_tests ]]; then
      program_step native-sanitize qorl_tool_tests
    fi
    program_step native-sanitize qorl_shell_tests
    coverage_step native-sanitize qorl_tests qorl_memory_tests
  fi
}

test_windows_x64() {
  checked "windows-x64 build" compile windows-x64 || return 0
  if can_run_windows; then
    checked "wine prefix" start_wine || return 0
  else
    say "windows-x64: tests that run under Wine are left out; they need ${kWinePrograms[*]}; the files are checked"
  fi
  ctest_step windows-x64 tests -LE package
}

test_windows_x86() {
  local -a targets=(all)
  if ! can_run_windows_x86; then
    say "windows-x86: tests that run under Wine are left out, as wine32 is not installed; the files are checked"
    targets=(QorlTST QorlHostToolkit)
  fi
  checked "windows-x86 build" compile windows-x86 --target "${targets[@]}" || return 0
  ctest_step windows-x86 tests -LE package
}

# The package is made of both builds; its tests stop what they start.
test_package() {
  if ! can_package; then
    say "The package is left out: it needs ${kPackagePrograms[*]}"
    return 0
  fi
  checked "package" make_package || return 0
  ctest_step windows-x64 "package tests" -L package
  ctest_step windows-x86 "package tests" -L package
}

command_test() {
  provide "${kNativePackages[@]}" "${kLintPackages[@]}" valgrind "${kPagePackages[@]}" "${kSanitizerPackages[@]}" \
    "${kWindowsPackages[@]}" "${kWinePackages[@]}" "${kPackagePackages[@]}" "${kExamplePackages[@]}" \
    "${kShellPackages[@]}"
  require "The tests" "${kNativePrograms[@]}"
  lint_format
  lint_component
  test_native
  test_sanitized
  test_fuzz
  if can_build_windows; then
    test_windows_x64
    test_windows_x86
    test_package
  else
    say "The Windows tests are left out: they need ${kWindowsPrograms[*]}"
  fi
  stop_wine
  say "$passed passed, $failed failed, $skipped skipped"
  [[ $failed -eq 0 ]]
}
