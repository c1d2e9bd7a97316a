# How much of the component the tests reach; part of `./run test`. Lines and branches without a reason in
# tests/unreached.txt or tests/automation/unreached.txt are a failure.

# native_coverage <preset> <programs...>: merges what the sanitizers' tests counted and prints what they did not reach.
native_coverage() {
  local build=$kRoot/build/$1 program
  local -a objects=()
  for program in "${@:3}"; do
    objects+=(-object "$build/$program")
  done
  llvm-profdata merge -o "$build/all.profdata" "$build"/profiles/*.profraw &&
    llvm-cov export -format=text "$build/$2" "${objects[@]}" "-instr-profile=$build/all.profdata" "$kRoot/src" \
      >"$build/coverage.json" &&
    python3 tools/coverage/report.py llvm "$build/coverage.json" tests/unreached.txt
}

# automation_coverage <preset>: what the counting programs left behind in the build folder.
automation_coverage() {
  python3 tools/coverage/report.py gcov "$kRoot/build/$1" tests/automation/unreached.txt \
    x86_64-w64-mingw32-gcov-posix src/automation/
}

# coverage_step <name> <command...>: a failure counts.
coverage_step() {
  checked "$@" || return 0
  grep "^  " "$kLogs/${1//[ \/]/-}.log"
}
