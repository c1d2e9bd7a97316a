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
    listed || return 0
    sleep 0.1
  done
  return 1
}

# The entry among the installed programs stands with the 64-bit ones where there are such.
listed() {
  local view=
  [[ ! -e $kDrive/windows/syswow64/regsvr32.exe ]] || view=/reg:64
  quietly reg query "$kUninstallKey" "$@" ${view:+"$view"}
}

# listed_value <name>
listed_value() {
  listed /v "$1"
  sed -nE 's/^.*REG_SZ +//p' "$kScratch/output" | tr -d '\r'
}

# The architectures whose programs can run here, which are those that the installer registers.
architectures() {
  [[ ! -d "$kDrive/Program Files (x86)" ]] || echo 64
  [[ -d "$kDrive/Program Files (x86)" && ! -e $kDrive/windows/syswow64/regsvr32.exe ]] || echo 32
}

# server <64 or 32>: the library that serves the class TST.
server() {
  local classId view=
  classId=$(grep -B 1 '<progid>QorlTST.TST<' "$PACKAGE/x64/QorlTST.x64.manifest" | sed -nE 's/.* clsid="([^"]*)".*/\1/p')
  [[ ! -d "$kDrive/Program Files (x86)" ]] || view=/reg:$1
  quietly reg query "HKCR\\CLSID\\$classId\\InprocServer32" /ve ${view:+"$view"} || return 0
  sed -nE 's/^.*REG_SZ +//p' "$kScratch/output" | tr -d '\r'
}

lays_out_the_package() {
  install || fail "the installer ended with $?"
  diff -r "$PACKAGE" "$kFolder" >"$kScratch/difference" || true
  [[ $(<"$kScratch/difference") == "Only in $kFolder: uninstall.exe" ]] || fail "$(<"$kScratch/difference")"
  [[ $(listed_value DisplayVersion) == "${PACKAGE##*-}" ]] || fail "listed with another version"
  [[ $(listed_value QuietUninstallString) == '"C:\Program Files\QorlTST\uninstall.exe" /S' ]] ||
    fail "listed with another uninstaller"
  remove || fail "the uninstaller did not come to its end"
}

registers_what_can_run() {
  local architecture comments
  install || fail "the installer ended with $?"
  comments=$(listed_value Comments)
  for architecture in 64 32; do
    server "$architecture" >"$kScratch/server.$architecture"
  done
  remove || fail "the uninstaller did not come to its end"
  for architecture in $(architectures); do
    [[ $(<"$kScratch/server.$architecture") == 'C:\Program Files\QorlTST\x'"${architecture/32/86}"'\QorlTST.dll' ]] ||
      fail "for $architecture bits served by '$(<"$kScratch/server.$architecture")'"
    [[ $comments == *"Registered for $architecture-bit programs."* ]] || fail "listed as '$comments'"
    echo "registered for $architecture bits"
  done
}

installed_component_retrieves() {
  install || fail "the installer ended with $?"
  simulator || fail "the simulated toolkit was not registered"
  (cd "$kFolder" && quietly cscript //nologo 'examples\retrieve.vbs' 'examples\displays\rich.txt')
  tr -d '\r' <"$kScratch/output" >"$kScratch/printed"
  simulator /u
  remove || fail "the uninstaller did not come to its end"
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
  remove || fail "the uninstaller did not come to its end"
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
  remove || fail "the uninstaller did not come to its end"
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
