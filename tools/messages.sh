#!/usr/bin/env bash
# Collects the words of the sources that are to be translated, and brings the catalogues in po/ up to date with them.
#   tools/messages.sh           rewrites po/vell.pot and po/*.po; what is new there waits for its translation
#   tools/messages.sh --check   changes nothing; fails when a catalogue is behind the sources or incomplete
set -euo pipefail
cd "$(dirname "$0")/.."

keywords=(--keyword=_ "--keyword=wxPLURAL:1,2" --keyword=menuEntry:3 --keyword=toolEntry:3 --keyword=translatable
  "--keyword=wxGETTEXT_IN_CONTEXT:1c,2"
  "--keyword=translate:1,1t" "--keyword=translate:1,2,3t" "--keyword=numberedText:2,3")
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT

# Into the file, with options for xgettext.
extract() {
  local file=$1
  shift
  git ls-files -z --cached --others --exclude-standard -- 'ui/*' 'app/*' 'config/*' 'update/*' 'desktop/*' |
    grep -z -E '\.(cpp|h)$' | LC_ALL=C sort -z | xargs -0 xgettext --language=C++ --from-code=UTF-8 --keyword "$@" \
      --add-comments=Translators: --add-location=file --sort-by-file --package-name=Vell --output="$file"
}

# To standard output: the words of the sources. A menu entry holds two, and xgettext takes one of a keyword at a time.
# No date, which would differ each time.
collect() {
  extract "$work/words.pot" "${keywords[@]}"
  extract "$work/words.pot" --join-existing --keyword=menuEntry:5
  sed -e '/^"POT-Creation-Date:/d' -e 's/charset=CHARSET/charset=UTF-8/' -e '1,/^#, fuzzy/d' "$work/words.pot" |
    sed '1i # Vell, the texts of the program. Made by tools/messages.sh.\n# SPDX-License-Identifier: MIT'
}

# As it is after a merge with the words of the sources.
merged() {
  msgmerge --quiet --no-fuzzy-matching --add-location=file --output-file=- "$1" "$2"
}

collect >"$work/vell.pot"

if [ "${1:-}" != --check ]; then
  cp "$work/vell.pot" po/vell.pot
  for catalogue in po/*.po; do
    merged "$catalogue" po/vell.pot | msgattrib --no-obsolete --output-file="$work/new.po" -
    cp "$work/new.po" "$catalogue"
    echo "$catalogue: $(msgfmt --statistics --output-file=/dev/null "$catalogue" 2>&1)"
  done
  exit 0
fi

failed=0
fail() { echo "messages.sh: $*" >&2; failed=1; }
cmp -s "$work/vell.pot" po/vell.pot || fail "po/vell.pot is not what the sources say: run tools/messages.sh"
for catalogue in po/*.po; do
  merged "$catalogue" "$work/vell.pot" >"$work/new.po"
  msgfmt --check --check-accelerators='&' --output-file=/dev/null "$work/new.po" || fail "$catalogue has faults"
  for kind in --untranslated --only-fuzzy; do
    left=$(msgattrib "$kind" --no-obsolete --no-wrap "$work/new.po" | grep '^msgid "[^"]' || true)
    [ -z "$left" ] || fail "$catalogue lacks translations:"$'\n'"$left"
  done
done
exit "$failed"
