# SPDX-License-Identifier: MIT
"""What fetches a day: our programs and those that a person would take instead. Each function writes what its program
wants to read and returns the command; the files come to be in TARGET or in the day's folder below it."""
import pathlib

import days

TARGET = pathlib.Path("/tmp/clips")
PROGRAM = pathlib.Path("/tmp/program")
SETTINGS = """[Host]\r\nProtocol={protocol}\r\nHost={address}\r\nPort=21\r\nTimeOut=20\r\nUid=u\r
RetryOnFailure=1\r\nRetryDelay=1\r\n[Download]\r\nLocalDir={target}\r\nPrintOnDownload=0\r\nCloseConnection=0\r
[General]\r\nDebug=0\r\n"""


def urls(day, protocol, address):
    folder = (f"http://{address}/{day.http_folder}" if protocol == "HTTP"
              else f"ftp://vell:ruxo@{address}/torvoarchive")
    return [f"{folder}/{name}" for name in day.files()]


def written(name, text):
    path = pathlib.Path("/tmp") / name
    path.write_text(text, newline="")
    return str(path)


def settings(protocol, address):
    PROGRAM.mkdir(exist_ok=True)
    written("program/vell.ini", SETTINGS.format(protocol=protocol, address=address, target=TARGET))


def console(day, protocol, address):
    settings(protocol, address)
    return ["vell_bench_measured", "vell-console", "--folder", str(PROGRAM), "download", "--date", day.name]


def window(day, protocol, address):
    settings(protocol, address)
    return ["inDisplay.sh", "vell_bench_window", "download", str(PROGRAM), day.name]


def curl(day, protocol, address, *options):
    config = "".join(f'url = "{url}"\noutput = "{TARGET}/{url.rsplit("/", 1)[1]}"\n'
                     for url in urls(day, protocol, address))
    return ["vell_bench_measured", "curl", "-q", "-s", *options, "-K", written("curl.config", config)]


def curl_kept(day, protocol, address):
    return curl(day, protocol, address)


def curl_http10(day, protocol, address):
    return curl(day, protocol, address, "--http1.0")


def curl_active(day, protocol, address):
    return curl(day, protocol, address, "--ftp-port", "-", "--disable-eprt")


def url_list(day, protocol, address):
    return written("urls", "".join(f"{url}\n" for url in urls(day, protocol, address)))


def wget(day, protocol, address):
    return ["vell_bench_measured", "wget", "--no-config", "-q", "-i", url_list(day, protocol, address), "-P", str(TARGET)]


def aria2(day, protocol, address):
    return ["vell_bench_measured", "aria2c", "--no-conf", "-q", "-j1", "-i", url_list(day, protocol, address), "-d",
            str(TARGET)]


def lftp(day, protocol, address):
    # Over FTP one session, as a person would; over HTTP there is none, and no folder that could be opened.
    session, files = ("", urls(day, protocol, address))
    if protocol == "FTP":
        session, files = (f"open -u vell,ruxo ftp://{address}/torvoarchive\n", day.files())
    script = written("lftp.script", f"{session}get -O {TARGET} {' '.join(files)}\n")
    return ["vell_bench_measured", "lftp", "--norc", "-f", script]


BY_NAME = {"Vell": console, "Vell's window": window, "curl": curl_kept, "curl --http1.0": curl_http10,
           "curl, active": curl_active, "wget -i": wget, "aria2c -j1": aria2, "lftp": lftp}
