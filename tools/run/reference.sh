#: ./run reference  writes the pages of docs/ anew that are made: the object model, its picture, the log excerpts

command_reference() {
  provide "${kNativePackages[@]}"
  require "The reference" "${kNativePrograms[@]}"
  step "native-release build" compile native-release --target qorl_reference
  step "reference" build/native-release/qorl_reference "$kRoot" "$kRoot/docs"
}
