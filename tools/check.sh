#!/usr/bin/env bash
# The checks of the sources: format, forbidden words, floors, headers that compile alone, catalogues, clang-tidy, the
# release, and the compiler of the other system.
#   tools/check.sh          everything
#   tools/check.sh --fast   all but the catalogues, clang-tidy, the release and the other system's compiler
set -euo pipefail
cd "$(dirname "$0")/.."

tools/packages.sh check
fast=0
[ "${1:-}" = --fast ] && fast=1
failed=0
fail() { echo "check: $*" >&2; failed=1; }
sources() { git ls-files --cached --others --exclude-standard -- '*.cpp' '*.h'; }

echo "== format"
sources | xargs clang-format --dry-run -Werror 2>&1 | grep -E 'error' | head -20 && fail "run clang-format -i on these"

echo "== words and platform conditionals"
git grep -n -I '_WIN32' -- '*.h' '*.cpp' ':!platform/' && fail "_WIN32 stands outside platform/"
git grep -n -I -i -E '\b(the|this) (spec|specification)\b|\bPart [0-9]|\bas (the )?(issue|task) (says|asks|requires)' \
  -- ':!tools/check.sh' && fail "speaks of where a requirement was written, not of the program"
git grep -n -I -E '(^|[^a-z])/(work|root)/' -- ':!tools/check.sh' && fail "a path of somebody's machine"
for file in $(sources); do
  head -1 "$file" | grep -q SPDX-License-Identifier || fail "$file has no SPDX line"
done
[ -z "$(git grep -L '#pragma once' -- '*.h')" ] || fail "no #pragma once in: $(git grep -L '#pragma once' -- '*.h')"

echo "== floors"
# A folder may include what stands before it in this list, and itself.
floors=(base platform log ftp net config store service update ui app)
allowed=""
for floor in "${floors[@]}"; do
  allowed="$allowed|$floor"
  # shellcheck disable=SC2086
  git grep -n -E '#include "[a-z]+/' -- "$floor/*.h" "$floor/*.cpp" | grep -v -E "#include \"(${allowed#|})/" &&
    fail "$floor/ includes what stands above it"
done
git grep -n -E '#include <(asio|curl|gio|glib|wx|windows|unistd|sys/|poll)' -- '*.h' '*.cpp' ':!platform/' ':!desktop/' \
  ':!demo/' ':!tests/' ':!bench/' && fail "system headers outside platform/"

echo "== documents"
for folder in "${floors[@]}" console desktop demo tests bench fuzz packaging po; do
  [ ! -d "$folder" ] || grep -q "\`$folder/\`" docs/architecture.md || fail "docs/architecture.md does not name $folder/"
done
if command -v shellcheck >/dev/null; then shellcheck demo.sh test.sh packaging/*.sh tools/*.sh .ci/run || fail "shellcheck"; fi

echo "== headers compile alone"
cmake --preset debug >/dev/null
# What the build tells the tests: where programs and scripts are.
places="-DVELL_CONSOLE=__FILE__ -DVELL_REAL_SERVER=__FILE__ -DVELL_NETWORK_MANAGER_PY=__FILE__ -DVELL_DEMO_UPDATE_KEY=__FILE__"
flags="-std=c++20 -fsyntax-only -I. -DASIO_STANDALONE -DASIO_NO_DEPRECATED $places $(pkg-config --cflags gio-2.0) $(wx-config --cxxflags)"
# A header that its own .cpp includes first has shown it in every build; the others are shown here.
lone_headers() {
  local header unit
  git ls-files --cached --others --exclude-standard -- '*.h' | grep -v -E '^(platform/windows|bench)/' | while read -r header; do
    unit=${header%.h}.cpp
    [ -f "$unit" ] && [ "$(grep -m1 '^#include' "$unit")" = "#include \"$header\"" ] || echo "$header"
  done
}
# shellcheck disable=SC2086
lone_headers | xargs -P "$(nproc)" -I{} g++ $flags -x c++ -include {} /dev/null || fail "a header does not compile alone"

# What stands in for desktop/native/gtk on other systems is in no build of this one.
# shellcheck disable=SC2086
git ls-files 'desktop/native/generic/*.cpp' | xargs -P "$(nproc)" -I{} g++ $flags -Wall -Wextra -Werror {} ||
  fail "desktop/native/generic does not compile"

if [ "$fast" -eq 0 ]; then
  echo "== catalogues"
  tools/messages.sh --check || fail "po/ is not up to date"

  echo "== clang-tidy"
  units=$(sources | grep '\.cpp$' | grep -v -E '^(platform/windows|tests/support/windows|desktop/native/generic|fuzz|bench)/')
  echo "$units" | xargs -P "$(nproc)" -n 4 clang-tidy --quiet -p build/debug --extra-arg=-Wno-unknown-warning-option 2>/dev/null || fail "clang-tidy"

  # What the demo builds. The optimiser warns of things that no other build sees.
  echo "== release"
  cmake --preset release >/dev/null
  cmake --build --preset release || fail "the release does not build"

  echo "== MinGW-w64"
  # The programs without their window and tests; ./test.sh --windows has the rest.
  cmake -S . -B build/windows-check --preset windows -DVELL_TESTS=OFF -DVELL_DESKTOP=OFF >/dev/null
  cmake --build build/windows-check || fail "does not build for Windows"
fi

[ "$failed" -eq 0 ] && echo "All checks passed."
exit "$failed"
