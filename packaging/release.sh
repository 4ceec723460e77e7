#!/usr/bin/env bash
# Makes what a release puts on the service for this system: the archive, and its manifest signed with the maker's key.
#   packaging/release.sh --key private.pem [--out DIR] [--minimum 2.0.0] [--notes "One line"] [--next-key public.pem]
# The programs in it take updates that this key has signed. docs/releasing.md tells the rest.
set -euo pipefail
cd "$(dirname "$0")/.."

key='' out=build/package/release more=()
while [ $# -gt 0 ]; do
  [ $# -ge 2 ] || { echo "release.sh: $1 wants a value" >&2; exit 2; }
  case $1 in
    --key) key=$2 ;;
    --out) out=$2 ;;
    --minimum | --notes | --next-key) more+=("$1" "$2") ;;
    *) echo "release.sh: there is no option $1; see the head of this file" >&2; exit 2 ;;
  esac
  shift 2
done
[ -r "$key" ] || { echo "release.sh: --key names no file with the private key" >&2; exit 2; }
version=$(sed -n 's/^project(VELL VERSION \([0-9.]*\).*/\1/p' CMakeLists.txt)
platform=linux-$(uname -m)
name=vell-$version-$platform

# A folder of its own: no other build shall have this key, and this one none but this.
build=build/package
mkdir -p "$build" "$out"
openssl pkey -in "$key" -pubout -out "$build/public.pem"
cmake -S . -B "$build" -G Ninja -DCMAKE_BUILD_TYPE=Release -DVELL_TESTS=OFF -DVELL_DESKTOP=ON \
  -DCMAKE_INSTALL_LIBDIR=lib -DVELL_UPDATE_KEY="$PWD/$build/public.pem" >/dev/null
cmake --build "$build"
rm -rf "${build:?}/stage"
cmake --install "$build" --prefix "$build/stage/vell-$version" --strip >/dev/null
[ "$("$build/stage/vell-$version/bin/vell-console" --version)" = "vell-console $version" ]

# The same sources give the same archive.
tar -C "$build/stage" --sort=name --owner=0 --group=0 --numeric-owner --mtime="$(git log -1 --format=%cI)" \
  -cf - "vell-$version" | gzip -9n >"$out/$name.tar.gz"
packaging/manifest.sh --key "$key" --version "$version" --platform "$platform" --file "$out/$name.tar.gz" "${more[@]}" \
  >"$build/$platform.txt"
mv "$build/$platform.txt" "$out/$platform.txt"
echo "Put $platform.txt behind /vell/vellUpdate.asp and $name.tar.gz under /vell/update/. They lie in $out."
