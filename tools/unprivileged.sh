#!/usr/bin/env bash
# Runs the tests of a build's folder as an ordinary user, also when root calls: root is refused nothing, so that a test
# of a refused permission would show nothing.
#   tools/unprivileged.sh BUILD_FOLDER COMMAND...
set -euo pipefail

build=$1
shift
[ "$(id -u)" -eq 0 ] || exec "$@"

# What tests write into the build's folder. Everything else there stays root's.
mkdir -p "$build/Testing" "$build/screenshots"
if runuser -u nobody -- test -x "$build/bin/vell-console" -a -r CMakePresets.json; then
  become=(runuser -u nobody --)
  chown -R nobody "$build/Testing" "$build/screenshots"
else
  echo "$PWD cannot be reached by other users: the tests run as root without its privileges, not as nobody."
  become=(setpriv --bounding-set=-all --inh-caps=-all)
  chown -R root "$build/Testing" "$build/screenshots"
fi
home=$(mktemp -d)
trap 'rm -rf "$home"' EXIT
chmod 700 "$home"
[ "${become[0]}" = setpriv ] || chown nobody "$home"
"${become[@]}" env -u DBUS_SESSION_BUS_ADDRESS -u XDG_DATA_HOME -u XDG_CONFIG_HOME -u XDG_CACHE_HOME \
  HOME="$home" XDG_RUNTIME_DIR="$home" "$@"
