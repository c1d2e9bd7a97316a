#: ./run lint    clang-format, cppcheck and clang-tidy, which looks again only at what has changed

check_format() {
  local files
  files=$(find src simulator tests tools bench examples fuzz \( -name '*.cpp' -o -name '*.h' \) -print0 |
    xargs -0 -r clang-format --dry-run 2>&1 | sed -nE 's/^(.+\.(cpp|h)):[0-9]+:.*/\1/p' | sort -u)
  [[ -z $files ]] || { printf 'clang-format would change\n%s\n' "$files" && return 1; }
}

# check_tidy <target> <preset>
check_tidy() { configure "$2" && cmake --build --preset "$2" --target "$1" -- -k 0; }

# tidy_step <target>: the portable sources, and the automation side where the Windows compilers are.
tidy_step() {
  checked "lint $1" check_tidy "$1" native-release || true
  if can_build_windows; then
    checked "lint $1 automation" check_tidy "$1" windows-x64 || true
  fi
}

# passedByValue: what is passed by value here is a view.
check_cppcheck() {
  local found
  found=$(cppcheck --std=c++20 --enable=warning,performance,portability --inline-suppr --quiet "-j$(nproc)" -I src -I . \
    --suppress=missingIncludeSystem --suppress=passedByValue src simulator tools bench examples fuzz 2>&1)
  [[ -z $found ]] || { printf '%s\n' "$found" && return 1; }
}

# `./run test` has clang-tidy look for faults in the component only: everything else takes as long as all the tests.
lint_component() {
  if have_programs cppcheck; then
    checked "lint cppcheck" check_cppcheck || true
  else
    say "cppcheck is left out: it is not installed"
  fi
  if have_programs clang-tidy; then
    tidy_step tidy_component
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
  provide "${kNativePackages[@]}" "${kLintPackages[@]}" "${kWindowsPackages[@]}"
  require "Lint" "${kNativePrograms[@]}" "${kLintPrograms[@]}"
  lint_format
  checked "lint cppcheck" check_cppcheck || true
  tidy_step tidy
  [[ $failed -eq 0 ]]
}
