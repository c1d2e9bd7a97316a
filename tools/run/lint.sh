#: ./run lint    clang-format and clang-tidy, which looks again only at what has changed

check_format() {
  local files
  files=$(find src simulator tests tools bench examples fuzz \( -name '*.cpp' -o -name '*.h' \) -print0 |
    xargs -0 -r clang-format --dry-run 2>&1 | sed -nE 's/^(.+\.(cpp|h)):[0-9]+:.*/\1/p' | sort -u)
  [[ -z $files ]] || { printf 'clang-format would change\n%s\n' "$files" && return 1; }
}

check_tidy() { configure native-release && cmake --build --preset native-release --target tidy -- -k 0; }

# clang-tidy is no part of `./run test`: the first time it takes as long as everything else together.
lint_format() {
  if have_programs clang-format; then
    checked "lint format" check_format || true
  else
    say "The check of the format is left out: it needs clang-format"
  fi
}

command_lint() {
  provide "${kNativePackages[@]}" "${kLintPackages[@]}"
  require "Lint" "${kNativePrograms[@]}" "${kLintPrograms[@]}"
  lint_format
  checked "lint tidy" check_tidy || true
  [[ $failed -eq 0 ]]
}
