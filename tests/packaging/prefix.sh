# What the tests of the package share: whether they can run, their Wine prefix, what it holds. Sourced; the environment
# has PACKAGE (the folder that was packed; archives beside it), INSTALLER, ARCHITECTURE, LOADER, BUILT, WINEPREFIX.
# shellcheck shell=bash
set -euo pipefail

# ctest's word for a test that was not run.
readonly kSkipped=77
kScratch=$(mktemp -d)
readonly kDrive=$WINEPREFIX/drive_c

skip() { echo "Skipped: $1" && exit "$kSkipped"; }
fail() { echo "FAILED: $1" && exit 1; }

end() {
  wineserver -k >/dev/null 2>&1 || true
  rm -rf "$kScratch"
}

# No output of a Wine program goes to a pipe: the helpers that it leaves behind would hold that open.
quietly() { wine "$@" >"$kScratch/output" 2>&1; }

# The first test makes the prefix; a driver that draws nothing spares each program ten seconds of looking for a screen.
start() {
  [[ -x $LOADER ]] || skip "Wine has no $ARCHITECTURE half here ($LOADER)"
  [[ -d $PACKAGE ]] || skip "there is no package: ./run package makes it"
  cmp -s "$BUILT" "$PACKAGE/$ARCHITECTURE/QorlTST.dll" || skip "the package is older than the build: ./run package"
  # Without its debugger, which would wait, Wine lets a program that crashes end.
  export WINEDEBUG=-all DISPLAY='' WINEDLLOVERRIDES='mscoree,mshtml,winedbg.exe='
  trap end EXIT
  [[ -e $WINEPREFIX/.complete ]] || rm -rf "$WINEPREFIX"
  mkdir -p "$WINEPREFIX"
  wineserver -p >/dev/null 2>&1 || true
  [[ -e $WINEPREFIX/.complete ]] || make_prefix
  quietly cmd /c exit
}

# Scripting registers itself when the first script runs.
make_prefix() {
  wineboot -i >"$kScratch/output" 2>&1
  quietly reg add 'HKCU\Software\Wine\Drivers' /v Graphics /d null /f
  echo 'WScript.Echo "done"' >"$kScratch/warm.vbs"
  quietly cscript //nologo "$(windows_path "$kScratch/warm.vbs")"
  touch "$WINEPREFIX/.complete"
}

windows_path() { printf 'Z:%s' "${1//\//\\}"; }

# registry <file>: what programs keep in the registry, as text. The network cards are Wine's own and come late.
registry() {
  local hive
  for hive in 'HKEY_LOCAL_MACHINE\Software' 'HKEY_CURRENT_USER\Software'; do
    quietly regedit /E "$(windows_path "$kScratch/hive.reg")" "$hive"
    iconv -f UTF-16 -t UTF-8 "$kScratch/hive.reg" | tr -d '\r'
  done | awk '/^\[/ { own = /\\NetworkCards/ } !own' >"$1"
}

# files <file>: every file of the drive with its size and time, and every folder. The copy from which an uninstaller works
# goes with the next start of the system.
files() {
  (cd "$kDrive" && find . -path './users/*/Temp/~nsu*' -prune -o -type d -printf '%p\n' -o -printf '%p %s %T@\n') |
    LC_ALL=C sort >"$1"
}

# remember: takes down what is there; expect_unchanged: nothing has been added, changed or removed since.
remember() { registry "$kScratch/registry.before" && files "$kScratch/files.before"; }
expect_unchanged() {
  registry "$kScratch/registry.after"
  files "$kScratch/files.after"
  grep -q 'Windows NT' "$kScratch/registry.after" || fail "the registry could not be read"
  diff "$kScratch/registry.before" "$kScratch/registry.after" || fail "the registry differs"
  diff "$kScratch/files.before" "$kScratch/files.after" || fail "the files differ"
}

# simulator [/u]: the host toolkit of the package's examples.
simulator() {
  quietly regsvr32 /s "$@" "$(windows_path "$PACKAGE/examples/simulator/$ARCHITECTURE/QorlHostToolkit.dll")"
}
