#!/bin/sh
# Runs a command on a display and a session bus of its own, so that no window of the user's is touched. The server
# picks the display's number itself: several may begin at once.
number=$(mktemp)
Xvfb -displayfd 3 -nolisten tcp -screen 0 "${SCREEN:-1180x760x24}" 3>"$number" 2>/dev/null &
server=$!
work=
trap 'kill $work "$server" 2>/dev/null; rm -f "$number"' EXIT
trap 'exit 130' INT TERM
until [ -s "$number" ]; do
  kill -0 "$server" || { echo "inDisplay.sh: the display did not start" >&2; exit 1; }
  sleep 0.05
done
DISPLAY=:$(cat "$number") dbus-run-session -- "$@" &
work=$!
wait "$work"
