#!/usr/bin/env bash
# Installs the Debian packages that a job needs and that are not there yet.
#   tools/packages.sh build|test|check|bench|windows ...
set -euo pipefail

# The last two let GTK draw its own pictures, which it only recommends.
build=(g++ cmake gettext ninja-build pkg-config libarchive-dev libasio-dev libcurl4-openssl-dev libglib2.0-dev libcli11-dev
  libssl-dev libwxgtk3.2-dev libgtk-3-dev librsvg2-common shared-mime-info)
window=(at-spi2-core dbus gir1.2-atspi-2.0 imagemagick python3-gi xdotool xvfb)
test=("${build[@]}" "${window[@]}" libgtest-dev libgmock-dev curl openssl python3-dbusmock python3-pyftpdlib proftpd-core trayer)
check=("${build[@]}" libgtest-dev libgmock-dev clang-format clang-tidy g++-mingw-w64-x86-64-posix git)
# What builds for Windows, and Wine, which runs it. The toolkit is built from its source package.
windows=("${build[@]}" g++-mingw-w64-x86-64-posix g++-mingw-w64-i686-posix wine wine64 dpkg-dev googletest python3)
bench=("${build[@]}" "${window[@]}" libbenchmark-dev nginx-light proftpd-core openssl curl wget aria2 lftp iproute2 python3)

wanted=()
for job in "$@"; do
  case $job in
    build) wanted+=("${build[@]}") ;;
    test) wanted+=("${test[@]}") ;;
    check) wanted+=("${check[@]}") ;;
    bench) wanted+=("${bench[@]}") ;;
    windows) wanted+=("${windows[@]}") ;;
    *) echo "packages.sh: no job '$job'; there are build, test, check, bench and windows" >&2; exit 2 ;;
  esac
done

missing=()
for package in $(printf '%s\n' "${wanted[@]}" | sort -u); do
  dpkg-query -W -f='${db:Status-Status}\n' "$package" 2>/dev/null | grep -qx installed || missing+=("$package")
done
[ ${#missing[@]} -eq 0 ] && exit 0

as_root=()
if [ "$(id -u)" -ne 0 ]; then
  command -v sudo >/dev/null || { echo "These packages are missing and need root to install: ${missing[*]}" >&2; exit 1; }
  as_root=(sudo)
fi
echo "Installing ${#missing[@]} packages: ${missing[*]}"
"${as_root[@]}" apt-get update -q
"${as_root[@]}" env DEBIAN_FRONTEND=noninteractive apt-get install -y -q --no-install-recommends "${missing[@]}"
