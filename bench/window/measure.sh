#!/usr/bin/env bash
# The part of window.sh that has a display: measures in the folders below WORK with the programs in BIN, prints the table.
set -euo pipefail
first_frame() { # PROGRAM ARGUMENTS... The best of 21: what disturbs a measurement makes it longer, never shorter.
  "$@" >/dev/null
  for ((round = 0; round < 21; round++)); do
    START_NS=$(date +%s%N) "$@" | awk '/first frame/ { print $3 }'
  done | sort -n | head -1
}
figure() { awk -v name="$2" 'index($0, name " ") == 1 { print $NF }' "$WORK/$1"; } # MEASURE NAME
row() { # WHAT FIGURE UNIT [AIM]
  awk -v what="$1" -v figure="$2" -v unit="$3" -v aim="${4:-}" 'BEGIN {
    verdict = aim == "" ? "" : aim unit (figure + 0 <= aim + 0 ? ", met" : ", **not met**")
    printf "| %s | %.*f%s | %s |\n", what, unit == "" ? 2 : 1, figure, unit, verdict }'
}

"$BIN/vell_bench_window" find "$WORK/texts" half=5000 h=10000 ha=5000 ra=10 r=10000 zq=0 rare=10 \
  zqzqzq=0 'rare half=10' >"$WORK/find"
empty=$(first_frame "$BIN/vell_bench_empty")
full=$(first_frame "$BIN/vell_bench_window" start "$WORK/thousand")
"$BIN/vell_bench_window" open "$WORK/two-days" 41 >"$WORK/open"
"$BIN/vell_bench_window" scroll "$WORK/ten-thousand" >"$WORK/scroll"

echo '| what | measured | aim |'
echo '| --- | --- | --- |'
row 'start with an empty window of the toolkit' "$empty" ' ms'
row 'start with a day of 1,000 clippings' "$full" ' ms'
row 'the same against an empty window' "$(awk -v a="$full" -v b="$empty" 'BEGIN { print a / b }')" '' 1.5
row 'a day of 1,000 opened, from the choice to the painted list, median of 41' "$(figure open median)" ' ms' 40
row 'the longest of them' "$(figure open longest)" ' ms'
row 'their processor time, median' "$(figure open 'processor time')" ' ms'
row 'a step through 10,000 clippings, median' "$(figure scroll median)" ' ms'
row 'the longest of all steps' "$(figure scroll longest)" ' ms' 50
row 'the most processor time of a step' "$(figure scroll 'most processor time')" ' ms'
row 'find in 10,000 clippings with 50 MB of text, the first time' "$(figure find 'half=5000 answered')" ' ms'
row 'the longest step of the window meanwhile' "$(figure find 'half=5000 longest step')" ' ms' 50
row 'find, every further letter: the slowest answer' "$(figure find 'letter answered')" ' ms' 100
row 'the longest step of the window meanwhile' "$(figure find 'letter longest step')" ' ms' 50
