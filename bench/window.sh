#!/usr/bin/env bash
# Measures the window on a display of its own, with the release build, and prints a table:
#   start with a day of 1,000 clippings against an empty window, opening a day of 1,000, scrolling through 10,000
# A further measure is a function in bench/window/measures.h with its name in the table of windowBench.cpp, the folder it
# wants below, and its rows in bench/window/measure.sh.
set -euo pipefail
cd "$(dirname "$0")/.."

tools/packages.sh build bench
cmake --preset release -DVELL_BENCH=ON >/dev/null
cmake --build --preset release --target vell_bench_window vell_bench_empty >/dev/null
bin=$PWD/build/release/bin
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT

put_day() { # PROGRAM_FOLDER DAY CLIPPINGS
  local day=$1/clips/$2 name
  mkdir -p "$day"
  printf '[Download]\r\nLocalDir=%s\r\n' "$1/clips" >"$1/vell.ini"
  for ((i = 0; i < $3; i++)); do
    printf -v name 'C%05d' "$i"
    : >"$day/$name.PDF"
    printf '%s.PDF||Newspaper %d||A title of the usual length, number %d||Politics||News\r\n' "$name" $((i % 7)) "$i"
  done >"$day/ALLFILES.DIR"
  printf '\r\n' >>"$day/ALLFILES.DIR"
}
put_day "$work/thousand" 07032004 1000
put_day "$work/two-days" 07032004 1000
put_day "$work/two-days" 08032004 1
put_day "$work/ten-thousand" 07032004 10000
# 50 MB of text: every second one has "half", ten have "rare", which the list says of none.
put_day "$work/texts" 07032004 10000
filler=$(printf '\xe1\xf0\xfc\xea\xef\xec\xec\xe1 \xf4\xe7\xf2 \xe7\xec\xdd\xf1\xe1\xf2 %.0s' {1..227})
for ((i = 0; i < 10000; i++)); do
  printf -v name 'C%05d' "$i"
  words=
  ((i % 2)) || words+=' half'
  ((i % 1000)) || words+=' rare'
  printf '%s%s\r\n' "$filler" "$words" >"$work/texts/clips/07032004/$name.TXT"
done

export NO_AT_BRIDGE=1 LC_ALL=C.UTF-8 BIN=$bin WORK=$work
real_time=(chrt -f 10)
"${real_time[@]}" true 2>/dev/null || real_time=(env) # others' work on this machine counts
"${real_time[@]}" tests/desktop/inDisplay.sh bench/window/measure.sh
