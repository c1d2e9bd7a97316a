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

# program_step <preset> <program> [wine] [options]: runs a test program at one go and adds its tests to the sums.
program_step() {
  local report=$kRoot/build/$1/$2.xml status=0
  local -a call=("$kRoot/build/$1/$2" --gtest_brief=1)
  rm -f "$report"
  if [[ ${3:-} == wine ]]; then
    call=(wine "${call[@]}" "--gtest_output=xml:$(windows_path "$report")" "${@:4}")
  else
    call+=("--gtest_output=xml:$report" "${@:3}")
  fi
  step "$1 ${2%.exe}" "${call[@]}" || status=$?
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

# beside <function> <other function>: both at once, each a row of steps that leaves one of the two cores idle. What the
# second one says is shown when both have ended.
beside() {
  local lane=$kLogs/beside sums
  mkdir -p "$kLogs"
  (
    passed=0 failed=0 skipped=0
    "$2" >"$lane.txt"
    printf '%s %s %s\n' "$passed" "$failed" "$skipped" >"$lane.sums"
  ) &
  local other=$!
  "$1"
  wait "$other" || failed=$((failed + 1))
  cat "$lane.txt"
  read -r -a sums <"$lane.sums" || sums=(0 1 0)
  passed=$((passed + sums[0])) failed=$((failed + sums[1])) skipped=$((skipped + sums[2]))
}

# One process for all tests, so that what they leave behind adds up; the sanitizers look for leaks at its end.
test_sanitized() {
  if ! can_sanitize; then
    say "The sanitizers are left out: they need ${kSanitizerPrograms[*]}"
    skipped=$((skipped + ${#kFuzzTargets[@]}))
    return 0
  fi
  if checked "native-sanitize build" compile native-sanitize --target \
    qorl_tests qorl_memory_tests "${kFuzzTargets[@]/#/qorl_fuzz_}"; then
    export LLVM_PROFILE_FILE=$kRoot/build/native-sanitize/profiles/%m-%p.profraw UBSAN_OPTIONS=print_stacktrace=1
    rm -rf "$kRoot/build/native-sanitize/profiles"
    beside sanitized_tests sanitized_memory_and_fuzz
    coverage_step "coverage of src" native_coverage native-sanitize qorl_tests qorl_memory_tests
  fi
}

sanitized_tests() { program_step native-sanitize qorl_tests; }

sanitized_memory_and_fuzz() {
  program_step native-sanitize qorl_memory_tests
  fuzz_step "$kShortFuzzSeconds" "${kFuzzTargets[@]}"
}

# The programs of tools/: the long proof only.
test_sanitized_tools() {
  local program
  checked "native-sanitize tools build" compile native-sanitize || return 0
  # The first is left out where its libraries are not installed.
  for program in qorl_tool_tests qorl_shell_tests; do
    if [[ -x build/native-sanitize/$program ]]; then
      program_step native-sanitize "$program"
    fi
  done
}

test_windows() {
  checked "windows-x64 build" compile windows-x64 || return 0
  if can_run_windows; then
    checked "wine prefix" start_wine || return 0
    beside build_windows_x86 test_windows_x64
    coverage_step "coverage of src/automation" automation_coverage windows-x64
  else
    say "Tests that run under Wine are left out; they need ${kWinePrograms[*]}; the files are checked"
    ctest_step windows-x64 tests -LE package
    build_windows_x86
  fi
  ctest_step windows-x86 tests -LE package
}

# The tests of the servers that are delivered in one process, those that want one of their own, and once more those that
# go through a server's entry points, with the servers that count.
test_windows_x64() {
  local program=qorl_automation_tests.exe
  find build/windows-x64 -name '*.gcda' -delete
  program_step windows-x64 "$program" wine --gtest_filter=-ServerCycles*
  program_step windows-x64/counted "$program" wine --gtest_filter=Server*:Type*:Registering*:RegisteredToolkit*:EarlyBound*
  ctest_step windows-x64 "other tests" -LE 'package|one-process'
}

build_windows_x86() {
  local -a targets=(all)
  if ! can_run_windows_x86; then
    say "windows-x86: tests that run under Wine are left out, as wine32 is not installed; the files are checked"
    targets=(QorlTST QorlHostToolkit)
  fi
  checked "windows-x86 build" compile windows-x86 --target "${targets[@]}" || return 0
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
  if can_build_windows; then
    test_windows
    test_package
  else
    say "The Windows tests are left out: they need ${kWindowsPrograms[*]}"
  fi
  stop_wine
  say "$passed passed, $failed failed, $skipped skipped"
  [[ $failed -eq 0 ]]
}
