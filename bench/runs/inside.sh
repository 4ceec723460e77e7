#!/usr/bin/env bash
# The part of runs.sh that has its namespaces: puts all that is measured on a memory file system and starts the rounds.
set -euo pipefail
cd "$(dirname "$0")/../.."

# It becomes /tmp, where the display leaves its locks, too. A build that goes on meanwhile changes nothing that is
# measured.
mount -t tmpfs -o size=4g vell-bench /mnt
mkdir /mnt/bin /mnt/home /mnt/servers
cp build/release/bin/{vell-console,vell_bench_measured,vell_bench_delay,vell_bench_window} tests/desktop/inDisplay.sh \
  /mnt/bin
cp -r build/release/libexec bench/runs /mnt
mount --move /mnt /tmp
mount -t tmpfs vell-bench /run # `ip netns` keeps names there
cd /tmp

real_time=(chrt -f 10)
if "${real_time[@]}" true 2>/dev/null; then
  echo "Servers and clients run with real-time priority." >&2
else
  real_time=()
  echo "Real-time priority was refused: other work on this machine counts." >&2
fi
exec env -i PATH="/tmp/bin:/usr/local/sbin:/usr/local/bin:/usr/sbin:/usr/bin:/sbin:/bin" HOME=/tmp/home LC_ALL=C.UTF-8 \
  NO_AT_BRIDGE=1 "${real_time[@]}" /usr/bin/python3 /tmp/runs "$@"
