#!/usr/bin/env bash
# Writes the signed manifest of an archive to standard output.
#   packaging/manifest.sh --key private.pem --version 2.1.38 --platform linux-x86_64 --file ARCHIVE
#                         [--minimum 2.0.0] [--notes "One line"] [--next-key public.pem] [--date dd/mm/yyyy]
set -euo pipefail

fail() { echo "manifest.sh: $*" >&2; exit 2; }
key='' version='' platform='' file='' minimum='' notes='' next='' date=$(date -u +%d/%m/%Y)
while [ $# -gt 0 ]; do
  [ $# -ge 2 ] || fail "$1 wants a value"
  case $1 in
    --key) key=$2 ;;
    --version) version=$2 ;;
    --platform) platform=$2 ;;
    --file) file=$2 ;;
    --minimum) minimum=$2 ;;
    --notes) notes=$2 ;;
    --next-key) next=$2 ;;
    --date) date=$2 ;;
    *) fail "there is no option $1; see the head of this file" ;;
  esac
  shift 2
done
[ -r "$key" ] || fail "--key names no file with the private key"
[ -r "$file" ] || fail "--file names no archive"
[[ $version =~ ^[0-9]+\.[0-9]+\.[0-9]+$ ]] || fail "--version is no a.b.c"
[ -n "$platform" ] || fail "--platform is missing"
case $notes in *$'\n'*) fail "--notes has more than one line" ;; esac

work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
{
  printf 'format=1\nversion=%s\nplatform=%s\nfile=%s\n' "$version" "$platform" "$(basename "$file")"
  printf 'size=%s\nsha256=%s\ndate=%s\n' "$(stat -c %s "$file")" "$(sha256sum "$file" | cut -d' ' -f1)" "$date"
  [ -z "$minimum" ] || printf 'minimum=%s\n' "$minimum"
  [ -z "$next" ] || printf 'nextkey=%s\n' "$(openssl pkey -pubin -in "$next" -outform DER | base64 -w0)"
  # The program's texts are in this code page.
  [ -z "$notes" ] || printf 'notes=%s\n' "$notes" | iconv -f UTF-8 -t CP1253
} >"$work/manifest"
openssl dgst -sha256 -sign "$key" -out "$work/signature" "$work/manifest"
openssl pkey -in "$key" -pubout -out "$work/public.pem"
openssl dgst -sha256 -verify "$work/public.pem" -signature "$work/signature" "$work/manifest" >&2
cat "$work/manifest"
printf 'signature=%s\n' "$(base64 -w0 "$work/signature")"
