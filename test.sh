#!/usr/bin/env bash
# Installs what is missing, builds, and runs every test.
#   ./test.sh              for this system, with AddressSanitizer and UBSan, as an ordinary user
#   ./test.sh --windows    for Windows, under Wine, held against the programs of this system
set -euo pipefail
cd "$(dirname "$0")"

if [ "${1:-}" = --windows ]; then
  exec tests/windows/all.sh
fi
tools/packages.sh test
cmake --preset debug
cmake --build --preset debug
tools/unprivileged.sh build/debug ctest --preset debug --schedule-random -j "$(nproc)"
