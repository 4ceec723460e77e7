#!/bin/sh
# Runs a command on a display and a session bus of its own, so that no window of the user's is touched.
exec xvfb-run --auto-servernum --server-args="-screen 0 ${SCREEN:-1180x760x24}" dbus-run-session -- "$@"
