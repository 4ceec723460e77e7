# SPDX-License-Identifier: MIT
"""nginx on port 80 and proftpd on port 21, for as long as a measurement lasts."""
import contextlib
import pathlib
import subprocess
import time

import days
import network

NGINX = """daemon off;
user root;
worker_processes 1;
pid {room}/nginx.pid;
error_log {room}/nginx.log;
events {{}}
http {{
  access_log off;
  sendfile on;
  client_body_temp_path {room}/nginx; proxy_temp_path {room}/nginx; fastcgi_temp_path {room}/nginx;
  uwsgi_temp_path {room}/nginx; scgi_temp_path {room}/nginx;
  server {{
    listen {address}:80;
    root {site};
    # The scripts are files, which nginx would not let a form be sent to.
    error_page 405 =200 $uri;
    location = /vell/vellClipsToDownload.asp {{ error_page 405 =200 /vell/today.asp; return 405; }}
    location = /vell/today.asp {{ alias {today}; error_page 405 =200 /vell/today.asp; }}
  }}
}}
"""
PROFTPD = """ServerType standalone
ServerName bench
Port 21
DefaultAddress {address}
SocketBindTight on
UseIPv6 off
UseReverseDNS off
User root
Group root
RootLogin on
RequireValidShell off
AuthOrder mod_auth_file.c
AuthUserFile {room}/users
PidFile {room}/proftpd.pid
ScoreboardFile {room}/scoreboard
DelayTable none
WtmpLog off
TransferLog none
SystemLog {room}/proftpd.log
"""
LISTENS = "0A"
ROOM = pathlib.Path("/tmp/servers")
SAID = ROOM / "said"


@contextlib.contextmanager
def serving(place, *command, port):
    with open(SAID, "w") as said:
        server = subprocess.Popen(network.within(place, *command), stdout=said, stderr=said)
    try:
        wait_for(server, port)
        yield
    finally:
        server.terminate()
        server.wait()


def wait_for(server, port):
    # Looks from outside: a connection for a trial would count.
    sockets = pathlib.Path(f"/proc/{server.pid}/net/tcp")
    for _ in range(1000):
        if server.poll() is not None:
            break
        lines = [line.split() for line in sockets.read_text().splitlines()[1:]]
        if any(line[1].endswith(f":{port:04X}") and line[3] == LISTENS for line in lines):
            return
        time.sleep(0.005)
    raise RuntimeError(f"no server listens on port {port}: {SAID.read_text()}")


def http(place, address):
    config = ROOM / "nginx.conf"
    config.write_text(NGINX.format(room=ROOM, address=address, site=days.SITE, today=days.TODAY))
    return serving(place, "nginx", "-e", f"{ROOM}/nginx.log", "-c", str(config), port=80)


def ftp(place, address):
    users = ROOM / "users"
    password = subprocess.run(["openssl", "passwd", "-1", "ruxo"], check=True, capture_output=True, text=True).stdout
    users.write_text(f"vell:{password.strip()}:0:0::{days.SITE}:/bin/sh\n")
    users.chmod(0o600)
    config = ROOM / "proftpd.conf"
    config.write_text(PROFTPD.format(room=ROOM, address=address))
    return serving(place, "proftpd", "-n", "-c", str(config), port=21)
