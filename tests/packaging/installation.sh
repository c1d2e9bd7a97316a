#!/usr/bin/env bash
# Installs and removes the component under Wine, without windows, and looks at what that leaves. The argument is the case.
# shellcheck source=tests/packaging/prefix.sh
source "$(dirname "${BASH_SOURCE[0]}")/prefix.sh"

readonly kFolder="$kDrive/Program Files/QorlTST"
readonly kUninstallKey='HKLM\Software\Microsoft\Windows\CurrentVersion\Uninstall\QorlTST'

# A folder with blanks comes as several words: Wine would put one word in quotes, which /D does not take.
# shellcheck disable=SC2086
install() { quietly "$PACKAGE-$INSTALLER.exe" /S ${1:+"/D="$1}; }

# The uninstaller goes on in a copy of itself; its own file goes last.
remove() {
  local folder=${1:-$kFolder} i
  quietly "$folder/uninstall.exe" /S || return
  for ((i = 0; i < 100; i++)); do
    [[ -e $folder/uninstall.exe ]] || break
    sleep 0.1
  done
  # The entry among the installed programs goes after it.
  for ((i = 0; i < 100; i++)); do
    quietly reg query "$kUninstallKey" || return 0
    sleep 0.1
  done
  return 1
}

# value <key> [name]: a string in the registry.
value() {
  if [[ -n ${2:-} ]]; then quietly reg query "$1" /v "$2"; else quietly reg query "$1" /ve; fi
  sed -nE 's/^.*REG_SZ +//p' "$kScratch/output" | tr -d '\r'
}

lays_out_the_package() {
  install || fail "the installer ended with $?"
  diff -r "$PACKAGE" "$kFolder" >"$kScratch/difference" || true
  [[ $(<"$kScratch/difference") == "Only in $kFolder: uninstall.exe" ]] || fail "$(<"$kScratch/difference")"
  [[ $(value "$kUninstallKey" DisplayVersion) == "${PACKAGE##*-}" ]] || fail "listed with another version"
  [[ $(value "$kUninstallKey" QuietUninstallString) == '"C:\Program Files\QorlTST\uninstall.exe" /S' ]] ||
    fail "listed with another uninstaller"
  [[ $(value "$kUninstallKey" Comments) == *"Registered for ${ARCHITECTURE/x/}"* ||
    $(value "$kUninstallKey" Comments) == *"Registered for 32"* ]] || fail "says nothing of its registration"
  remove
}

installed_component_retrieves() {
  install || fail "the installer ended with $?"
  simulator || fail "the simulated toolkit was not registered"
  (cd "$kFolder" && quietly cscript //nologo 'examples\retrieve.vbs' 'examples\displays\rich.txt')
  tr -d '\r' <"$kScratch/output" >"$kScratch/printed"
  simulator /u
  remove
  head -n 3 "$kScratch/printed"
  grep -q '^Result  *0 (parsed)$' "$kScratch/printed" || fail "nothing was retrieved"
  [[ $(tail -n 1 "$kScratch/printed") == "done" ]] || fail "the script did not come to its end"
}

goes_to_the_folder_named() {
  remember
  install 'C:\Tools\Qorl TST' || fail "the installer ended with $?"
  [[ -e "$kDrive/Tools/Qorl TST/x64/QorlTST.dll" && ! -e $kFolder ]] || fail "installed elsewhere"
  remove "$kDrive/Tools/Qorl TST"
  # The folder above is not the installer's.
  rmdir "$kDrive/Tools"
  expect_unchanged
}

second_replaces_the_first() {
  remember
  install 'C:\Tools' || fail "the installer ended with $?"
  # A file that the newer version has no longer.
  install 'C:\Program Files\QorlTST' || fail "the second installer ended with $?"
  [[ ! -e $kDrive/Tools ]] || fail "the first one is still there"
  [[ -e $kFolder/uninstall.exe ]] || fail "the second one is not there"
  remove
  expect_unchanged
}

removal_leaves_nothing() {
  remember
  install || fail "the installer ended with $?"
  remove || fail "the uninstaller did not come to its end"
  expect_unchanged
}

removal_spares_other_files() {
  install || fail "the installer ended with $?"
  echo "the user's" >"$kFolder/examples/own.txt"
  remove
  [[ $(cd "$kFolder" && find . -type f) == ./examples/own.txt ]] || fail "not the user's file alone is left"
  rm -r "$kFolder"
}

# A name of the component that belongs to another one makes the registration fail.
failure_leaves_nothing() {
  local code=0
  quietly reg add 'HKCR\QorlTST.TST\CLSID' /ve /d '{00000000-0000-0000-0000-000000000001}' /f
  remember
  install || code=$?
  expect_unchanged
  quietly reg delete 'HKCR\QorlTST.TST' /f
  [[ $code -eq 2 ]] || fail "the installer ended with $code, not 2"
}

start
"$1"
