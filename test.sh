#!/usr/bin/env bash
# Installs what is missing, builds with AddressSanitizer and UBSan, and runs every test, as an ordinary user.
set -euo pipefail
cd "$(dirname "$0")"

tools/packages.sh test
cmake --preset debug
cmake --build --preset debug
tools/unprivileged.sh build/debug ctest --preset debug --schedule-random -j "$(nproc)"
