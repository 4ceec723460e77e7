#!/usr/bin/env bash
# Builds the toolkit for Windows with MinGW-w64, statically, from Debian's own source package, and prints the folder
# that holds it. What was built once is used again: the folder is named after the versions and options that went in.
#   packaging/windows/build-libraries.sh            builds what is missing (12 to 40 minutes on 2 cores)
#   packaging/windows/build-libraries.sh --where    prints the folder, built or not
# VELL_WINDOWS_CACHE names another place than ~/.cache/vell/windows, VELL_DEBIAN_MIRROR another mirror.
set -euo pipefail

host=x86_64-w64-mingw32
cache=${VELL_WINDOWS_CACHE:-${XDG_CACHE_HOME:-$HOME/.cache}/vell/windows}
mirror=${VELL_DEBIAN_MIRROR:-http://deb.debian.org/debian}
say() { echo "build-libraries.sh: $*" >&2; }

# The program draws its pictures from SVG; other pictures are decoded by the system, so no library for them is needed.
options=(--disable-shared --enable-optimise --disable-debug_info --disable-svg --with-nanosvg
  --without-libjpeg --without-libpng --without-libtiff --without-expat --without-zlib --without-liblzma
  --disable-xrc --disable-aui --disable-ribbon --disable-propgrid --disable-richtext --disable-stc --disable-webview
  --disable-mediactrl --without-opengl --disable-html --disable-webrequest --without-regex
  "CC=$host-gcc-posix" "CXX=$host-g++-posix" "CXXFLAGS=-O2 -ffunction-sections -fdata-sections")

command -v "$host-g++-posix" >/dev/null || { say "package g++-mingw-w64-x86-64-posix is missing"; exit 1; }
command -v dpkg-source >/dev/null || { say "package dpkg-dev is missing"; exit 1; }

# The toolkit of the Linux build and this one are the same version, so that both are the same program.
version=$(dpkg-query -W -f='${source:Version}' wx3.2-headers 2>/dev/null) ||
  { say "package libwxgtk3.2-dev is missing; its version is the one to build"; exit 1; }
key=$(printf '%s\n' "$version" "$("$host-g++-posix" -dumpfullversion)" "${options[@]}" | sha256sum | cut -c1-12)
folder=$cache/wx-$version-$key
if [ "${1:-}" = --where ] || [ -e "$folder/complete" ]; then
  echo "$folder"
  exit 0
fi

mkdir -p "$cache"
exec 9>"$cache/lock"
flock 9
[ ! -e "$folder/complete" ] || { echo "$folder"; exit 0; }

work=$(mktemp -d "$cache/work.XXXXXX")
trap 'rm -rf "$work"' EXIT

say "fetching the source package wxwidgets3.2 $version"
# A list of source packages of its own: the machine's lists stay as they are, and no root is needed.
mkdir -p "$work/lists/partial"
printf 'deb-src %s bookworm main\ndeb-src %s bookworm-updates main\n' "$mirror" "$mirror" >"$work/sources.list"
apt=(-q -o "Dir::Etc::SourceList=$work/sources.list" -o Dir::Etc::SourceParts=/dev/null -o "Dir::State::Lists=$work/lists"
  -o "Dir::Cache=$work" -o APT::Sandbox::User=)
(cd "$work" && apt-get "${apt[@]}" update && apt-get "${apt[@]}" source "wxwidgets3.2=$version") >&2 ||
  { say "the source package of wxwidgets3.2 $version cannot be had from $mirror"; exit 1; }

source=$(echo "$work"/wxwidgets3.2-*/)
mkdir "$work/build"
cd "$work/build"
rm -rf "$folder"
say "building; the output is in $folder.log"
{
  "$source/configure" --host=$host --build="$(gcc -dumpmachine)" --prefix="$folder" "${options[@]}" &&
    make -j "$(nproc)" && make install
} >"$folder.log" 2>&1 || { tail -20 "$folder.log" >&2; say "the build failed"; exit 1; }
touch "$folder/complete"
echo "$folder"
