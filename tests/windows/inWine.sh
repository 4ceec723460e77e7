#!/usr/bin/env bash
# Runs a program for Windows under Wine, in a Windows of the tests' own that is made at first: VELL_WINEPREFIX, or
# wine/ in the build's folder.
#   tests/windows/inWine.sh PROGRAM [ARGUMENT...]
set -euo pipefail

here=$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)
export WINEPREFIX=${VELL_WINEPREFIX:-$here/../../build/windows/wine}
export WINEDEBUG=${WINEDEBUG:--all} WINEDLLOVERRIDES="mscoree,mshtml,winemenubuilder.exe="
if [ ! -e "$WINEPREFIX/ready" ]; then
  mkdir -p "$WINEPREFIX"
  exec 9>"$WINEPREFIX.lock"
  flock 9
  if [ ! -e "$WINEPREFIX/ready" ]; then
    DISPLAY='' wine wineboot --init >/dev/null 2>&1
    wineserver --wait
    touch "$WINEPREFIX/ready"
  fi
  exec 9>&-
fi
exec wine "$@"
