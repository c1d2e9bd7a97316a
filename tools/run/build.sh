#: ./run build   builds everything: build/<preset>, the component as build/windows-x64/QorlTST.dll and
#:               build/windows-x86/QorlTST.dll, the simulated host toolkit as QorlHostToolkit.dll beside each

command_build() {
  provide "${kNativePackages[@]}" "${kWindowsPackages[@]}"
  require "The build" "${kNativePrograms[@]}"
  local -a presets=("${kNativePresets[@]}")
  if can_build_windows; then
    presets+=(windows-x64 windows-x86)
  else
    say "The Windows builds are left out: they need ${kWindowsPrograms[*]}"
  fi
  local preset
  for preset in "${presets[@]}"; do
    step "$preset build" compile "$preset"
  done
}
