#!/usr/bin/env bash
# Builds for Windows and runs the tests under Wine; installs what is missing.
set -euo pipefail
cd "$(dirname "$0")/../.."

tools/packages.sh windows
cmake --preset release
cmake --build --preset release --target vell-console vell-demo-service
cmake --preset windows -DVELL_NATIVE="$PWD/build/release"
cmake --build --preset windows
cmake --preset windows32
cmake --build --preset windows32
# One after the other: Wine's server has one thread for all of them.
ctest --preset windows
ls -l build/windows/bin/*.exe
