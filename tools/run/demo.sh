#: ./run demo    builds what a script client needs and runs one: it retrieves a recorded display and prints the fare

demo_native() {
  say "The demo runs natively: the script client needs ${kWindowsPrograms[*]} ${kWinePrograms[*]}"
  step "native-release build" compile native-release --target qorl_demo
  build/native-release/qorl_demo examples/displays/rich.txt
}

# register_servers [/u]
register_servers() {
  local server
  for server in QorlHostToolkit QorlTST; do
    wine regsvr32 /s "$@" "$(windows_path "$kRoot/build/windows-x64/$server.dll")" || return
  done
}

run_script() {
  wine cscript //nologo "$(windows_path "$kRoot/examples/retrieve.vbs")" \
    "$(windows_path "$kRoot/examples/displays/rich.txt")"
}

command_demo() {
  provide g++ cmake ninja-build "${kWindowsPackages[@]}" "${kWinePackages[@]}"
  require "The demo" "${kNativePrograms[@]}"
  if ! can_build_windows || ! can_run_windows; then
    demo_native
    return
  fi
  step "windows-x64 build" compile windows-x64 --target QorlTST QorlHostToolkit
  step "wine prefix" start_wine
  step "registration" register_servers
  step "script client" run_script
  tr -d '\r' <"$kLogs/script-client.log"
  step "removal" register_servers /u
  # cscript ends with 0 whatever happened to the script: only its own last line tells.
  if [[ $(tr -d '\r' <"$kLogs/script-client.log" | tail -n 1) != "done" ]]; then
    say "The script did not come to its end"
    return 1
  fi
}
