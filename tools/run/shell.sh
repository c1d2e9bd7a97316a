#: ./run shell   an interactive session on the simulated host: ./run shell examples/displays/rich.txt

command_shell() {
  provide "${kNativePackages[@]}" "${kShellPackages[@]}" >&2
  require "The shell" "${kNativePrograms[@]}"
  step "native-release build" compile native-release --target qorl_shell >&2 </dev/null
  exec build/native-release/qorl_shell --history build/shell-history "$@"
}
