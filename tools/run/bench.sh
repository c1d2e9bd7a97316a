#: ./run bench   measures: times, instructions, toolkit calls, bytes; see docs/performance.md

readonly kBenchPackages=(valgrind)
readonly kCost=build/native-release/qorl_cost

# instructions <component|bare> <display> <retrievals>: what a run takes in all.
instructions() {
  valgrind --tool=callgrind --callgrind-out-file=/dev/null "$kCost" "$@" 2>&1 | sed -n 's/.*Collected : //p'
}

# instructions_each <component|bare> <display>: what one more retrieval takes.
instructions_each() {
  local few many more=50
  few=$(instructions "$1" "$2" 1)
  many=$(instructions "$1" "$2" $((1 + more)))
  echo $(((many - few) / more))
}

# One line of the table for each display: calls against the least possible, lines, texts, instructions and their ratio.
cost_row() {
  local calls least lines texts component=- bare=- ratio=-
  read -r calls least lines texts < <("$kCost" calls "$1")
  if have_programs valgrind; then
    component=$(instructions_each component "$1")
    bare=$(instructions_each bare "$1")
    ratio=$(awk -v a="$component" -v b="$bare" 'BEGIN { printf "%.2f", a / b }')
  fi
  printf '%-30s %7s %7s %6s %6s %12s %12s %6s\n' \
    "${1##*/}" "$calls" "$least" "$lines" "$texts" "$component" "$bare" "$ratio"
}

cost_table() {
  local display
  printf '%-30s %7s %7s %6s %6s %12s %12s %6s\n' display calls least lines texts component bare ratio
  for display in examples/displays/{minimal,fares,fc-pfc,fc-side-trip}.txt segments:{1,10,100,1000} \
    screens:{1,10,100,1000}; do
    cost_row "$display"
  done
}

bytes_table() {
  printf '%-30s %7s %12s\n' "empty object" bytes allocations
  "$kCost" bytes | while read -r name bytes allocations; do
    printf '%-30s %7s %12s\n' "$name" "$bytes" "$allocations"
  done
}

# By hand and by the component, from one script.
measure_script() {
  local display
  for display in fares fc-side-trip; do
    wine cscript //nologo "$(windows_path "$kRoot/bench/automation/walk.vbs")" \
      "$(windows_path "$kRoot/examples/displays/$display.txt")" 300
  done
}

bench_windows() {
  if ! can_build_windows || ! can_run_windows; then
    say "The measurements across the automation border are left out; they need Wine and the Windows compilers"
    return 0
  fi
  step "windows-x64 build" compile windows-x64 --target qorl_automation_bench QorlTST QorlHostToolkit
  step "wine prefix" start_wine
  step "windows-x64 measurements" wine build/windows-x64/qorl_automation_bench.exe
  tr -d '\r' <"$kLogs/windows-x64-measurements.log"
  step "registration" register_servers
  step "script measurements" measure_script
  step "removal" register_servers /u
  tr -d '\r' <"$kLogs/script-measurements.log" | grep -v '^done$'
}

command_bench() {
  provide "${kNativePackages[@]}" "${kBenchPackages[@]}" "${kWindowsPackages[@]}" "${kWinePackages[@]}"
  require "The measurements" "${kNativePrograms[@]}"
  step "native-release build" compile native-release --target qorl_bench qorl_cost
  build/native-release/qorl_bench
  cost_table
  bytes_table
  bench_windows
}
