#!/usr/bin/env bash
# Tests of tstdump from outside, one a call: program.sh <tstdump> <source folder> <case>. Silent when all is well.
set -euo pipefail

readonly kProgram=$1 kSources=$2
readonly kSamples=$kSources/examples/displays
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT

fail() { printf '%s\n' "$*" && exit 1; }

# expect <code> <arguments...>: runs the program; its streams go to $work/out and $work/messages.
expect() {
  local code=$1 status=0
  shift
  "$kProgram" "$@" >"$work/out" 2>"$work/messages" || status=$?
  [[ $status -eq $code ]] || fail "tstdump $*: ended with $status, not with $code: $(cat "$work/messages")"
}

# generate <number>: so many displays in one stream, with fares that differ.
generate() {
  awk -v number="$1" 'BEGIN {
    for (i = 1; i <= number; ++i)
      printf "> TQT\nTST %05d P/F\nNAMES 1.ORRIN/HALE MR (ADT)\nAIR 1 LON QX 0341 Y 12DEC 0930 OK\nDEST PAR\n" \
        "FARE F GBP %d.00\nFCALC LON QX PAR %d.00YRT NUC%d.00END ROE0.8\n", i % 100000, i, i, i
  }'
}

case_exit_codes() {
  expect 0 "$kSamples/minimal.txt"
  expect 1 "$kSamples/not-a-tst.txt"
  expect 2 --nonsense
  expect 3 "$kSamples/none.txt" "$kSamples/minimal.txt"
  local status=0
  "$kProgram" "$kSamples/minimal.txt" >/dev/full 2>"$work/messages" || status=$?
  [[ $status -eq 4 ]] || fail "a full device: ended with $status, not with 4"
  grep -qx 'tstdump: the output cannot be written' "$work/messages" || fail "a full device: $(cat "$work/messages")"
}

# A reader that goes away ends the program, without a message.
case_closed_pipe() {
  generate 2000 >"$work/in"
  local -a status
  "$kProgram" --jsonl "$work/in" 2>"$work/messages" | head -n 1 >"$work/out" || true
  status=("${PIPESTATUS[@]}")
  [[ $(wc -l <"$work/out") -eq 1 ]] || fail "not one line: ${status[*]}"
  [[ ! -s $work/messages ]] || fail "$(cat "$work/messages")"
}

# A line is there as soon as the next command has come in, although the input stays open. The pipe is read by its name:
# reading the standard input would flush the output by itself.
case_flush() {
  mkfifo "$work/in"
  "$kProgram" --jsonl "$work/in" >"$work/out" &
  local reader=$! tries=0
  exec 9>"$work/in"
  generate 1 >&9
  echo '> TQT/T2' >&9
  until [[ -s $work/out ]]; do
    sleep 0.05
    tries=$((tries + 1))
    if [[ $tries -ge 200 ]]; then
      exec 9>&-
      wait "$reader" || true
      fail "nothing came out while the input was open"
    fi
  done
  exec 9>&-
  wait "$reader" || true
}

# Peak memory in kB of a run over so many displays, of the program's own accounting.
peak() {
  generate "$1" >"$work/in"
  # The shell's own child accounting would count the largest child ever; a fresh shell has this one only.
  bash -c '"$0" --jsonl - <"$1" >"$2" & pid=$!; peak=0
    while kill -0 $pid 2>/dev/null; do
      now=$(sed -n "s/^VmHWM:[^0-9]*\([0-9]*\).*/\1/p" /proc/$pid/status 2>/dev/null) && peak=${now:-$peak}
      sleep 0.05
    done; wait $pid && echo $peak' "$kProgram" "$work/in" "$work/out"
}

case_big_batch() {
  local small big
  small=$(peak 2000)
  big=$(peak 10000)
  [[ $(wc -l <"$work/out") -eq 10000 ]] || fail "$(wc -l <"$work/out") lines"
  [[ $(tail -n 1 "$work/out") == *'"FareBaseLineBaseAmount":"10000.0000"'* ]] || fail "the last display is another"
  say "2,000 displays: $small kB, 10,000 displays: $big kB"
  [[ $big -lt $((small + 2048)) ]] || fail "memory grows with the batch: $small kB, then $big kB"
}

# The order of files and the bytes of the output are the same whoever splits the batch.
case_fan_out() {
  local i
  for i in 1 2 3 4 5 6; do generate "$i" >"$work/display$i.txt"; done
  find "$work" -name 'display*.txt' -print0 | sort -z >"$work/list"
  expect 0 --jsonl -0 --files-from "$work/list"
  xargs -0 -n 2 "$kProgram" --jsonl <"$work/list" | cmp - "$work/out" || fail "the parts differ from the whole"
  [[ $(wc -l <"$work/out") -eq 21 ]] || fail "$(wc -l <"$work/out") lines"
}

# Progress is shown on a terminal, and nowhere else.
case_progress() {
  command -v script >/dev/null || { echo "skipped: there is no script(1)" && exit 77; }
  mkfifo "$work/in"
  (generate 1 && sleep 1.3 && generate 2) >"$work/in" &
  script -qec "'$kProgram' --jsonl - <'$work/in' >'$work/out'" /dev/null </dev/null >"$work/terminal"
  grep -q 'displays, ' "$work/terminal" || fail "no progress on the terminal"
  (generate 1 && sleep 1.3 && generate 2) >"$work/in" &
  "$kProgram" --jsonl - <"$work/in" >"$work/out" 2>"$work/messages"
  [[ ! -s $work/messages ]] || fail "progress went to a file"
}

case_manual() {
  local manual=$kSources/tools/tstdump/tstdump.1 option
  if command -v mandoc >/dev/null; then mandoc -T lint -W warning "$manual" || fail "mandoc finds fault"; fi
  if command -v groff >/dev/null; then
    [[ -z $(groff -z -w all -mdoc "$manual" 2>&1) ]] || fail "groff finds fault"
  fi
  expect 0 --help
  grep -oE -- '--[a-z-]+' "$work/out" | sort -u >"$work/help"
  sed -nE 's/^\.It (.*)/\1/p' "$manual" | grep -oE 'Fl -[a-z-]+' | sed 's/Fl -/--/' | sort -u >"$work/manual"
  diff "$work/help" "$work/manual" || fail "--help and the manual page name different options"
}

# The examples in docs/tstdump.md print what is shown there: lines after "$ " up to the next one or the end of the block.
case_documentation() {
  local page=$kSources/docs/tstdump.md count=0 command
  mkdir "$work/bin" "$work/shown"
  ln -s "$kProgram" "$work/bin/tstdump"
  awk -v folder="$work/shown" '
    /^```/ { inside = !inside && /console/; file = ""; next }
    inside && /^\$ / { file = sprintf("%s/%02d", folder, ++n); print substr($0, 3) >(file ".command"); printf "" >file; next }
    inside && file != "" { print >file }' "$page"
  for command in "$work"/shown/*.command; do
    (cd "$kSources/examples/displays" && PATH=$work/bin:$PATH bash "$command") >"$work/out" 2>&1 || true
    diff "${command%.command}" "$work/out" || fail "the page shows another output of: $(cat "$command")"
    count=$((count + 1))
  done
  [[ $count -ge 5 ]] || fail "only $count examples were found in the page"
}

# Pages of all samples are HTML that a validator has nothing to say about.
case_pages() {
  expect 1 --html --output "$work/pages" "$kSamples"
  [[ $(find "$work/pages" -name '*.html' | wc -l) -ge 20 ]] || fail "too few pages"
  command -v tidy >/dev/null || { echo "skipped: there is no tidy(1)" && exit 77; }
  local page
  for page in "$work"/pages/*.html; do
    tidy -quiet -errors "$page" >"$work/findings" 2>&1 || true
    [[ ! -s $work/findings ]] || fail "$(basename "$page"): $(head -n 3 "$work/findings")"
  done
}

# in_browser <page> <width> <extra options...>: prints what page-check.js finds in it.
in_browser() {
  local page=$1 width=$2
  shift 2
  # The copy may run the check; the page itself lets nothing run.
  # Whether a window without a screen has the focus is a matter of chance, so that a class stands in for it.
  { sed -e '/Content-Security-Policy/d' -e 's/\.piece:focus/.piece.focused/g' "$page" && echo '<script>' && cat "$kSources/tests/tools/page-check.js" && echo '</script>'; } \
    >"$work/copy.html"
  chromium --headless --no-sandbox --disable-gpu --no-first-run --disable-background-networking --disable-component-update \
    --disable-sync --user-data-dir="$(mktemp -d -p "$work")" --window-size="$width,900" "$@" --dump-dom \
    "file://$work/copy.html" 2>/dev/null | grep -oE '<title>findings: [^<]*' | sed 's/<title>//'
}

case_browser() {
  command -v chromium >/dev/null || { echo "skipped: there is no chromium" && exit 77; }
  expect 1 --html --output "$work/pages" "$kSamples"
  local name found
  for name in rich-3 warnings-15 fc-side-trip-3 not-a-tst-2; do
    found=$(in_browser "$work"/pages/*-"$name".html 1200)
    [[ $found == 'findings: none | light | 1200' ]] || fail "$name: $found"
    found=$(in_browser "$work"/pages/*-"$name".html 500 --blink-settings=preferredColorScheme=0)
    [[ $found == 'findings: none | dark | 500' ]] || fail "$name, narrow and dark: $found"
  done
}

say() { printf '%s\n' "$*"; }

"case_$3"
