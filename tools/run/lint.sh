#: ./run lint    clang-format, cppcheck and clang-tidy, which looks again only at what has changed

check_format() {
  local files
  files=$(find src simulator tests tools bench examples fuzz \( -name '*.cpp' -o -name '*.h' \) -print0 |
    xargs -0 -r clang-format --dry-run 2>&1 | sed -nE 's/^(.+\.(cpp|h)):[0-9]+:.*/\1/p' | sort -u)
  [[ -z $files ]] || { printf 'clang-format would change\n%s\n' "$files" && return 1; }
}

# check_tidy <target>
check_tidy() { configure native-release && cmake --build --preset native-release --target "$1" -- -k 0; }

# passedByValue: what is passed by value here is a view.
check_cppcheck() {
  local found
  found=$(cppcheck --std=c++20 --enable=warning,performance,portability --inline-suppr --quiet "-j$(nproc)" -I src -I . \
    --suppress=missingIncludeSystem --suppress=passedByValue src simulator tools bench examples fuzz 2>&1)
  [[ -z $found ]] || { printf '%s\n' "$found" && return 1; }
}

# `./run test` has clang-tidy look at the component only: with everything else it takes as long as all the tests.
lint_component() {
  if have_programs cppcheck; then
    checked "lint cppcheck" check_cppcheck || true
  else
    say "cppcheck is left out: it is not installed"
  fi
  if have_programs clang-tidy; then
    checked "lint tidy of the component" check_tidy tidy_component || true
  else
    say "clang-tidy is left out: it is not installed"
  fi
}

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
  checked "lint cppcheck" check_cppcheck || true
  checked "lint tidy" check_tidy tidy || true
  [[ $failed -eq 0 ]]
}
