#!/usr/bin/env bash
# Lays a program and the component side by side, with the package's manifests, and runs it. Nothing of the component is
# registered; its host toolkit is.
# shellcheck source=tests/packaging/prefix.sh
source "$(dirname "${BASH_SOURCE[0]}")/prefix.sh"

use() {
  local folder=$kScratch/program status=0
  mkdir "$folder"
  cp "$PROGRAM" "$folder/Program.exe"
  cp "$PACKAGE/$ARCHITECTURE"/QorlTST.{dll,"$ARCHITECTURE.manifest"} "$folder"
  cp "$PACKAGE/$ARCHITECTURE/Client.exe.manifest" "$folder/Program.exe.manifest"
  simulator || fail "the simulated toolkit was not registered"
  quietly "$folder/Program.exe" "$(windows_path "$PACKAGE/examples/displays/rich.txt")" || status=$?
  tr -d '\r' <"$kScratch/output"
  simulator /u
  [[ $status -eq 0 ]] || fail "the program ended with $status"
}

start
"$1"
