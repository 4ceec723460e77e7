#!/usr/bin/env bash
# Takes the pictures of the help pages anew, in both languages, from the windows that a build's programs open:
#   tools/helpPictures.sh BUILD_FOLDER
set -euo pipefail
cd "$(dirname "$0")/.."

bin=$(realpath "$1")/bin
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
# The desktop's toolkit speaks Greek only where the locale is there.
localedef -i el_GR -f UTF-8 "$work/el_GR.UTF-8"
for language in en el; do
  locale=C.UTF-8
  [ $language = en ] || locale=el_GR.UTF-8
  LANGUAGE=$language LOCPATH=$work LC_ALL=$locale SCREEN=1060x720x24 tests/desktop/inDisplay.sh /usr/bin/python3 \
    tools/helpPictures.py "$bin/vell" "$bin/vell-demo-service" "$bin/vell-console" "$work/$language"
  mkdir -p "desktop/help/$language"
  for picture in "$work/$language"/*.png; do
    convert "$picture" -resize 70% -strip -colors 96 "PNG8:desktop/help/$language/$(basename "$picture")"
  done
done
