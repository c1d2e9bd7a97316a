#: ./run dump    builds tstdump and runs it with the arguments that follow: ./run dump examples/displays/rich.txt

command_dump() {
  provide "${kNativePackages[@]}"
  require "The program" "${kNativePrograms[@]}"
  step "native-release build" compile native-release --target tstdump >&2
  build/native-release/tstdump "$@"
}
