# The Wine prefix of the build folder: started, stopped, paths as its programs want them.

# A prefix of our own. Its server is started first and its first program writes to a file: a pipe on a Wine program's
# output is held open by the helpers that the first program leaves behind.
start_wine() {
  export WINEPREFIX=$kRoot/build/wine WINEDEBUG=-all DISPLAY='' WINEDLLOVERRIDES='mscoree,mshtml='
  [[ -e $WINEPREFIX/.complete ]] || rm -rf "$WINEPREFIX"
  mkdir -p "$WINEPREFIX"
  if wineserver -p >/dev/null 2>&1; then
    wineServerStarted=yes
  fi
  if [[ -e $WINEPREFIX/.complete ]]; then
    wine cmd /c exit
  else
    # A driver that draws nothing: looking for a screen that is not there costs a program ten seconds.
    wineboot -i && wine reg add 'HKCU\Software\Wine\Drivers' /v Graphics /d null /f && touch "$WINEPREFIX/.complete"
  fi
}

stop_wine() {
  [[ -n $wineServerStarted ]] || return 0
  wineServerStarted=
  wineserver -k >/dev/null 2>&1 || true
}
trap stop_wine EXIT

windows_path() { printf 'Z:%s' "${1//\//\\}"; }
