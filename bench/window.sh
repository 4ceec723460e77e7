#!/usr/bin/env bash
# Measures the window on a display of its own, with the release build:
#   bench/window.sh          start with a day of 1,000 clippings against an empty window, and scrolling through 10,000
set -euo pipefail
cd "$(dirname "$0")/.."

rounds=21
cmake --preset release -DVELL_BENCH=ON >/dev/null
cmake --build --preset release --target vell_bench_window vell_bench_empty >/dev/null
bin=$PWD/build/release/bin
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT

# A program folder with one day of so many clippings.
prepare() { # FOLDER COUNT
  local day=$1/clips/07032004
  mkdir -p "$day"
  printf '[Download]\r\nLocalDir=%s\r\n' "$1/clips" >"$1/vell.ini"
  for ((i = 0; i < $2; i++)); do
    printf -v name 'C%05d' "$i"
    : >"$day/$name.PDF"
    printf '%s.PDF||Newspaper %d||A title of the usual length, number %d||Politics||News\r\n' "$name" $((i % 7)) "$i"
  done >"$day/ALLFILES.DIR"
  printf '\r\n' >>"$day/ALLFILES.DIR"
}
prepare "$work/thousand" 1000
prepare "$work/ten-thousand" 10000

export NO_AT_BRIDGE=1 LC_ALL=C.UTF-8 BIN=$bin ROUNDS=$rounds WORK=$work
tests/desktop/inDisplay.sh bash -c '
  best() { # PROGRAM ARGUMENTS... What disturbs a measurement makes it longer, never shorter.
    "$@" >/dev/null
    for ((round = 0; round < ROUNDS; round++)); do
      START_NS=$(date +%s%N) "$@" | awk "/first frame/ { print \$3 }"
    done | sort -n | head -1
  }
  empty=$(best "$BIN/vell_bench_empty")
  full=$(best "$BIN/vell_bench_window" start "$WORK/thousand")
  echo "empty window                 $empty ms"
  echo "window with 1,000 clippings  $full ms"
  awk -v a="$full" -v b="$empty" "BEGIN { printf \"ratio                        %.2f\n\", a / b }"
  "$BIN/vell_bench_window" scroll "$WORK/ten-thousand"
'
