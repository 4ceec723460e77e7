#!/usr/bin/env bash
# Times whole download runs against the programs that a person would fetch the same files with, and prints a table.
#   bench/runs.sh [REPEATS] [http] [ftp] [rtt] [window]
# REPEATS is 9 unless given: the medians count, and one round before them warms up and compares the files byte by byte.
#   http    300 and 3,000 files and one of 200 MB, from nginx, over loopback
#   ftp     the same from proftpd
#   rtt     300 files over a line with 10 ms of round trip, HTTP and FTP
#   window  1,000 clippings arriving with the window on, against the console
# Everything happens in namespaces of its own: network, mounts, processes. The files lie on a memory file system that is
# gone with the script, as are the servers. Needs root.
set -euo pipefail
cd "$(dirname "$0")/.."

repeats=9
if [[ ${1:-} =~ ^[1-9][0-9]*$ ]]; then
  repeats=$1
  shift
fi
for topic in "$@"; do
  [[ $topic =~ ^(http|ftp|rtt|window)$ ]] || { echo "runs.sh: there are http, ftp, rtt and window, no '$topic'" >&2; exit 2; }
done
[ "$(id -u)" -eq 0 ] || { echo "runs.sh: namespaces and the line with a delay need root" >&2; exit 1; }

tools/packages.sh build bench
cmake --preset release -DVELL_BENCH=ON >/dev/null
cmake --build --preset release --target vell-console vell_bench_measured vell_bench_delay vell_bench_window >/dev/null

exec unshare --net --mount --pid --fork --kill-child --mount-proc bench/runs/inside.sh "$repeats" "$@"
