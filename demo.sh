#!/usr/bin/env bash
# Downloads today's clippings from the bundled demo service and shows them. Installs what is missing and builds first.
#   ./demo.sh           today's day
#   ./demo.sh --range   three days, one of them without clippings
# Everything it makes lies in build/demo. Run it again and it goes on with what is there.
set -euo pipefail
cd "$(dirname "$0")"

range=0
for argument in "$@"; do
  case $argument in
    --range) range=1 ;;
    *) echo "demo.sh: unknown option '$argument'; there is --range" >&2; exit 2 ;;
  esac
done

tools/packages.sh build
echo "Building Vell ..."
cmake --preset release >/dev/null
cmake --build --preset release --target vell-console vell-demo-service
bin=$PWD/build/release/bin
demo=$PWD/build/demo
mkdir -p "$demo/program" "$demo/clippings"

# The demo service plays the press-clipping service: on ports of its own, for this run only.
rm -f "$demo/ready"
"$bin/vell-demo-service" --root "$demo/service" --http 127.0.0.1:0 --ftp 127.0.0.1:0 --ready-file "$demo/ready" \
  >"$demo/service.log" 2>&1 &
service=$!
trap 'kill "$service" 2>/dev/null || true; wait "$service" 2>/dev/null || true' EXIT
for _ in $(seq 100); do
  [ -s "$demo/ready" ] && break
  kill -0 "$service" 2>/dev/null || { cat "$demo/service.log" >&2; exit 1; }
  sleep 0.1
done
[ -s "$demo/ready" ] || { echo "demo.sh: the demo service did not start" >&2; exit 1; }
# The client always asks port 80 of its host. Going through the service as a proxy leads it there without privileges.
http_proxy=http://$(awk '$1 == "http" { print $2 }' "$demo/ready")
export http_proxy
unset no_proxy NO_PROXY

vell() { "$bin/vell-console" --folder "$demo/program" "$@"; }
if [ ! -e "$demo/program/vell.ini" ]; then
  printf '; The settings of the demo.\r\n[General]\r\nDebug=0\r\n' >"$demo/program/vell.ini"
  for setting in Protocol=HTTP Host=clippings.example Uid=demo LocalDir="$demo/clippings" RetryOnFailure=3 \
    RetryDelay=1 TimeOut=20 AutoPlayDelay=5 PrintAllDelay=5; do
    vell setup "${setting%%=*}" "${setting#*=}" >/dev/null
  done
  printf 'demo\n' | vell setup Pwd - >/dev/null
fi

echo
code=0
if [ "$range" -eq 1 ]; then
  vell download --from "$(date -d '2 days ago' +%d/%m/%Y)" --to "$(date +%d/%m/%Y)" || code=$?
else
  vell download || code=$?
fi
[ "$code" -eq 0 ] || { echo "demo.sh: the download ended with code $code" >&2; exit "$code"; }
echo
vell list
cat <<END

The clippings lie in     ${demo#"$PWD"/}/clippings, a folder per day
Settings and log         ${demo#"$PWD"/}/program (set Debug=1 in vell.ini to keep the log)
Look further, for example
  build/release/bin/vell-console --folder build/demo/program days
  build/release/bin/vell-console --folder build/demo/program list --tsv
  build/release/bin/vell-console --help
END
