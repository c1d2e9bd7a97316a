#: ./run bench   measures

command_bench() {
  provide "${kNativePackages[@]}" "${kWindowsPackages[@]}" "${kWinePackages[@]}"
  require "The measurements" "${kNativePrograms[@]}"
  step "native-release build" compile native-release --target qorl_bench
  build/native-release/qorl_bench
  if [[ ! -e bench/automation/CMakeLists.txt ]] || ! can_build_windows || ! can_run_windows; then
    return
  fi
  step "windows-x64 build" compile windows-x64 --target qorl_automation_bench
  step "wine prefix" start_wine
  step "windows-x64 measurements" wine build/windows-x64/qorl_automation_bench.exe
  tr -d '\r' <"$kLogs/windows-x64-measurements.log"
}
