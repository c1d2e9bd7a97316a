# How much of the component the sanitizers' tests reach; part of `./run test`.

# coverage_report <preset> <programs...>: merges what the programs counted and prints what they did not reach. Lines and
# branches without a reason in tests/unreached.txt are a failure.
coverage_report() {
  local build=$kRoot/build/$1 program
  local -a objects=()
  for program in "${@:3}"; do
    objects+=(-object "$build/$program")
  done
  llvm-profdata merge -o "$build/all.profdata" "$build"/profiles/*.profraw &&
    llvm-cov export -format=text "$build/$2" "${objects[@]}" "-instr-profile=$build/all.profdata" "$kRoot/src" \
      >"$build/coverage.json" &&
    python3 tools/coverage/report.py "$build/coverage.json" tests/unreached.txt
}

# coverage_step <preset> <programs...>: a failure counts.
coverage_step() {
  checked "coverage of src" coverage_report "$@" || return 0
  grep '^  ' "$kLogs/coverage-of-src.log"
}
