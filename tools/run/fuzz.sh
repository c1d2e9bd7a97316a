#: ./run fuzz    invents input for the component and its simulator, 20 minutes a target;
#:               ./run fuzz 60 takes a minute for each, ./run fuzz 60 display for this one

readonly kFuzzTargets=(amount display tree)
readonly kFuzzSeconds=1200
# In `./run test`.
readonly kShortFuzzSeconds=20
# Long enough for several screens; what takes longer or more memory than this is a finding.
readonly -a kFuzzLimits=(-max_len=4096 -timeout=10 -rss_limit_mb=1024)

# fuzz_target <target> <seconds>: the kept inputs and those of former crashes first, then new ones. What the fuzzer
# learns stays in build/fuzz; an input that ends the program is written to build/fuzz/found.
fuzz_target() {
  local target=$1 seconds=$2 learnt=$kRoot/build/fuzz/$1
  mkdir -p "$learnt" "fuzz/crashes/$target" build/fuzz/found
  local -x LLVM_PROFILE_FILE=$kRoot/build/fuzz/%p.profraw UBSAN_OPTIONS=print_stacktrace=1
  local -x ASAN_OPTIONS=malloc_context_size=5:quarantine_size_mb=32
  "build/native-sanitize/qorl_fuzz_$target" "$learnt" "fuzz/corpus/$target" "fuzz/crashes/$target" \
    "-dict=fuzz/$target.dict" "-artifact_prefix=build/fuzz/found/$target-" "${kFuzzLimits[@]}" -print_final_stats=1 \
    "-max_total_time=$seconds"
}

# What the fuzzer reports at its end: edges of the program that inputs have taken, and features of them.
fuzz_figures() {
  local log=$kLogs/fuzz-$1.log
  sed -nE 's/^#[0-9]+\s+DONE\s+cov: ([0-9]+) ft: ([0-9]+) corp: ([0-9]+).*/  \1 edges, \2 features, \3 inputs kept/p' "$log"
  sed -nE -e 's/^stat::number_of_executed_units: /  executions: /p' -e 's/^stat::average_exec_per_sec: /  a second: /p' "$log"
  rm -f "$kRoot"/build/fuzz/*.profraw
}

# fuzz_step <seconds> <targets...>: each target counts as a test.
fuzz_step() {
  local seconds=$1 target
  shift
  for target in "$@"; do
    if checked "fuzz $target" fuzz_target "$target" "$seconds"; then
      passed=$((passed + 1))
    fi
    fuzz_figures "$target"
  done
}

command_fuzz() {
  local seconds=${1:-$kFuzzSeconds}
  local -a targets=("${@:2}")
  [[ ${#targets[@]} -gt 0 ]] || targets=("${kFuzzTargets[@]}")
  provide "${kNativePackages[@]}" "${kSanitizerPackages[@]}"
  require "Fuzzing" "${kNativePrograms[@]}" "${kSanitizerPrograms[@]}"
  step "native-sanitize build" compile native-sanitize --target "${targets[@]/#/qorl_fuzz_}"
  fuzz_step "$seconds" "${targets[@]}"
  say "$passed passed, $failed failed"
  [[ $failed -eq 0 ]]
}
