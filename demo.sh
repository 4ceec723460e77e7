#!/usr/bin/env bash
# Downloads today's clippings from the bundled demo service and shows them in the window; on a machine without a display
# in the terminal. Installs what is missing and builds first.
#   ./demo.sh           today's day
#   ./demo.sh --range   three days, one of them without clippings
#   ./demo.sh --ftp     over FTP instead of HTTP; may be combined with --range
# Everything it makes lies in build/demo. Run it again and it goes on with what is there.
set -euo pipefail
cd "$(dirname "$0")"

range=0
protocol=HTTP
for argument in "$@"; do
  case $argument in
    --range) range=1 ;;
    --ftp) protocol=FTP ;;
    *) echo "demo.sh: unknown option '$argument'; there are --range and --ftp" >&2; exit 2 ;;
  esac
done

tools/packages.sh build
echo "Building Vell ..."
# The key whose other half everybody has: for trying out updates, and for this demo alone.
cmake --preset release -DVELL_UPDATE_KEY=demo/keys/update-public.pem >/dev/null
cmake --build --preset release
bin=$PWD/build/release/bin
demo=$PWD/build/demo
mkdir -p "$demo/program" "$demo/clippings"

# The demo service plays the press-clipping service, for this run only. The settings keep four digits of an FTP port.
start_service() {
  rm -f "$demo/ready"
  "$bin/vell-demo-service" --root "$demo/service" --http 127.0.0.1:0 --ftp "127.0.0.1:$1" --ready-file "$demo/ready" \
    >"$demo/service.log" 2>&1 &
  service=$!
  for _ in $(seq 100); do
    [ -s "$demo/ready" ] && return 0
    kill -0 "$service" 2>/dev/null || return 1
    sleep 0.1
  done
  return 1
}
trap 'kill "$service" 2>/dev/null || true; wait "$service" 2>/dev/null || true' EXIT
for ftp_port in 2121 $(shuf -i 2200-9900 -n 20); do
  start_service "$ftp_port" && break
done
[ -s "$demo/ready" ] || { cat "$demo/service.log" >&2; echo "demo.sh: the demo service did not start" >&2; exit 1; }
# The client always asks port 80 of its host. Going through the service as a proxy leads it there without privileges.
http_proxy=http://$(awk '$1 == "http" { print $2 }' "$demo/ready")
export http_proxy
unset no_proxy NO_PROXY

vell() { "$bin/vell-console" --folder "$demo/program" "$@"; }
if [ ! -e "$demo/program/vell.ini" ]; then
  printf '; The settings of the demo.\r\n[General]\r\nDebug=0\r\n' >"$demo/program/vell.ini"
  for setting in Uid=demo LocalDir="$demo/clippings" RetryOnFailure=3 \
    RetryDelay=1 TimeOut=20 AutoPlayDelay=5 PrintAllDelay=5; do
    vell setup "${setting%%=*}" "${setting#*=}" >/dev/null
  done
  printf 'demo\n' | vell setup Pwd - >/dev/null
fi
for setting in Protocol="$protocol" Host=127.0.0.1 Port="$ftp_port"; do
  vell setup "${setting%%=*}" "${setting#*=}" >/dev/null
done

echo
code=0
if [ "$range" -eq 1 ]; then
  vell download --from "$(date -d '2 days ago' +%d/%m/%Y)" --to "$(date +%d/%m/%Y)" || code=$?
else
  vell download || code=$?
fi
[ "$code" -eq 0 ] || { echo "demo.sh: the download ended with code $code" >&2; exit "$code"; }

say_where() {
  cat <<END

The clippings lie in     ${demo#"$PWD"/}/clippings, a folder per day
Settings and log         ${demo#"$PWD"/}/program (set Debug=1 in vell.ini to keep the log)
Look further, for example
  build/release/bin/vell --folder build/demo/program
  build/release/bin/vell-console --folder build/demo/program days
  build/release/bin/vell-console --folder build/demo/program list --tsv
  build/release/bin/vell-console --help
END
}

# The service goes on as long as the window, whose Download button asks it again.
if [ -n "${DISPLAY:-}${WAYLAND_DISPLAY:-}" ]; then
  say_where
  printf '\nThe window shows the clippings of today. Close it to end the demo.\n'
  "$bin/vell" --folder "$demo/program" && exit 0
  printf '\nThe window could not be shown. The clippings of today:\n\n'
else
  printf '\nThere is no display to show the window on. The clippings of today:\n\n'
fi
vell list
say_where
