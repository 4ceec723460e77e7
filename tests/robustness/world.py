# SPDX-License-Identifier: MIT
"""A service with one day of clippings that are published again and again, and a client's folders with what must hold
in them at any moment."""
import os
import random
import socket
import subprocess
import time

DAY, OTHER_DAY = "07032004", "06032004"
DATE = "07/03/2004"
SIZES = {"AAA01": (700, 400, 60), "BBB02": (90_000, 1200, 180), "CCC03": (300_000, 2400, 200),
         "DDD04": (700_000, 900, 90)}
FORMS = (".PDF", ".TXT", ".MT")
MARKS = b"[VIEW]\r\nBBB02_20040307.PDF=1\r\nNOT%20HERE=1\r\n"
INI = """[General]\r\nDebug=1\r\nPrintAllDelay=0\r\nAutoPlayDelay=5\r\n[Host]\r\nProtocol={protocol}\r\nHost={host}\r
Uid=demo\r\nPwd={password}\r\nPort={port}\r\nRetryOnFailure=1\r\nRetryDelay=0\r\nTimeOut=5\r\n[Download]\r
LocalDir={clips}\r\n[Schedule]\r\nSchedule1=Mon 06:30\r\nSchedule2=Tue Thu 07:15\r\nSchedule3=Sat 09:00\r\n"""


class Service:
    """The demo service on a folder of ours, with what each clipping has been."""

    def __init__(self, program, folder, samples, *options):
        self.folder, self.day = folder / "service", folder / f"service/{DAY}"
        self.day.mkdir(parents=True)
        (self.folder / "users.tsv").write_text("user\tpassword\ndemo\tdemo\n")
        (self.folder / "ADVERTISMENT.JPG").write_bytes((samples / "ADVERTISMENT.JPG").read_bytes())
        (self.day / "alert.txt").write_text("Today's clippings are complete.\r\n" * 40)
        self.versions, self.contents = {}, {}  # of a base name; of (file, change field)
        for name in SIZES:
            self.publish(name)
        ready = folder / "ready"
        with socket.socket() as probe:
            while True:  # the client keeps four digits of a port
                self.ftp_port = random.randrange(2200, 9900)
                if probe.connect_ex(("127.0.0.1", self.ftp_port)):
                    break
        self.process = subprocess.Popen([program, "--root", self.folder, "--ready-file", ready, "--ftp",
                                         f"127.0.0.1:{self.ftp_port}", "--for", "7200", *options], stdout=subprocess.DEVNULL)
        while not ready.exists():
            if self.process.poll() is not None:
                raise SystemExit("the demo service did not start")
            time.sleep(0.02)
        self.proxy = "http://" + ready.read_text().split()[1]

    def change_of(self, name):
        return f"2004030706{self.versions[name]:05}"

    def publish(self, name):
        """A new version of the clipping, often of another length than the last."""
        version = self.versions[name] = self.versions.get(name, 0) + 1
        chance = random.Random(f"{name} {version}")
        for form, size in zip(FORMS, SIZES[name]):
            length = size if version % 3 == 0 else chance.randrange(size // 2, size * 3 // 2)
            head = b"%PDF-1.4\n" if form == ".PDF" else b"Text\r\n"
            content = head + f"{name} {version} ".encode() + chance.randbytes(length)
            (self.day / f"{name}_20040307{form}").write_bytes(content)
            self.contents[f"{name}_20040307{form}", self.change_of(name)] = content
        rows = [f"{one}_20040307.PDF\tPaper\tTitle {one}\tSport\tNews\t{self.change_of(one)}\n" for one in self.versions]
        (self.day / "clippings.tsv").write_text("file\tnewspaper\ttitle\tcategory\ttype\tchange\n" + "".join(rows))

    def current(self):
        return {f"{name}_20040307{form}": self.contents[f"{name}_20040307{form}", self.change_of(name)]
                for name in SIZES for form in FORMS}

    def is_whole(self, file, content):
        return any(content == whole for (name, _), whole in self.contents.items() if name == file)


class Box:
    """A program folder and a download folder of one client."""

    def __init__(self, console, folder, service, protocol, number=1):
        """Boxes of one protocol share their download folder; each number has a program folder of its own."""
        self.console, self.service = console, service
        self.root = folder / f"box-{protocol}"
        self.program, self.clips, self.home = self.root / f"program{number}", self.root / "clips", folder / "home"
        self.day = self.clips / DAY
        for place in (self.program, self.day, self.clips / OTHER_DAY, self.home / "bin", self.home / "applications"):
            place.mkdir(parents=True, exist_ok=True)
        (self.home / "bin/lp").write_text("#!/bin/sh\nexit 0\n")
        (self.home / "bin/lp").chmod(0o755)
        (self.home / "applications/v.desktop").write_text("[Desktop Entry]\nType=Application\nName=V\nExec=true %f\n")
        (self.home / "applications/mimeapps.list").write_text("[Default Applications]\napplication/pdf=v.desktop\n")
        self.other = self.clips / OTHER_DAY / "OLD.PDF"
        self.other.write_bytes(b"%PDF-1.4\nold\n")
        self.environment = {**os.environ, "http_proxy": service.proxy, "no_proxy": "", "NO_PROXY": "", "TZ": "UTC",
                            "XDG_DATA_HOME": str(self.home), "XDG_CONFIG_HOME": str(self.home), "LC_ALL": "C.UTF-8",
                            "PATH": f"{self.home}/bin:{os.environ['PATH']}"}
        ini = INI.format(protocol=protocol, host="127.0.0.1", password="", port=service.ftp_port, clips=self.clips)
        (self.program / "vell.ini").write_bytes(ini.encode())
        self.run("setup", "Pwd", "-", given="demo\n")
        self.settings = (self.program / "vell.ini").read_bytes()

    def start(self, *words, **environment):
        return subprocess.Popen([self.console, "--folder", self.program, *words], stdin=subprocess.PIPE,
                                stdout=subprocess.PIPE, stderr=subprocess.PIPE, env={**self.environment, **environment})

    def run(self, *words, given="", **environment):
        """The exit code, the output, the errors; -99 and nothing when it did not end within a minute."""
        process = self.start(*words, **environment)
        try:
            out, errors = process.communicate(given.encode(), timeout=60)
            return process.returncode, out.decode(errors="replace"), errors.decode(errors="replace")
        except subprocess.TimeoutExpired:
            process.kill()
            process.communicate()
            return -99, "", "it hung"

    def download(self, **environment):
        return self.run("download", "--date", DATE, **environment)

    def files(self):
        return {path.name: path.read_bytes() for path in self.day.iterdir()} if self.day.exists() else {}

    def reset(self, day=None, settings=None):
        """The day's folder and the settings as they are given, and nothing else."""
        for path in list(self.day.iterdir()) if self.day.exists() else []:
            path.unlink()
        for path in self.program.iterdir():
            path.unlink()
        self.day.mkdir(exist_ok=True)
        for name, content in (day or {}).items():
            (self.day / name).write_bytes(content)
        (self.program / "vell.ini").write_bytes(settings or self.settings)

    def records(self, index):
        return [line.split("||") for line in index.decode("cp1253").split("\r\n") if line]

    def broken(self, before):
        """What of the promises does not hold now, with what was there before the client ran: (kind, what)."""
        files, found = self.files(), []
        for name, content in files.items():
            if name.startswith(".") or not name.endswith(FORMS):
                continue
            if content not in (before.get(name), self.service.current().get(name)):
                found.append(("wrong file", f"{name}: {len(content)} bytes of no version that it may be"))
        for name in before:
            if name not in files and not name.endswith(".part"):
                found.append(("lost file", name))
        found += self.broken_index(files, before.get("ALLFILES.DIR"))
        if before.get("OPENED.DIR") != files.get("OPENED.DIR"):
            found.append(("marks lost", "OPENED.DIR is another"))
        if (self.program / "vell.ini").read_bytes() != self.settings:
            found.append(("settings lost", "vell.ini is another"))
        return found + self.broken_list()

    def broken_index(self, files, old):
        index, found = files.get("ALLFILES.DIR"), []
        if index is None or index == old:
            records = self.records(index or b"")
        else:
            records = self.records(index)
            if not index.endswith(b"\r\n") or [row[0][:5] for row in records] != list(SIZES):
                return [("wrong index", repr(index[-80:]))]
        for row in records:
            for form in FORMS if "d" in row[5:7] else ():
                name = row[0].replace(".PDF", form)
                if files.get(name) != self.service.contents.get((name, row[5])):
                    found.append(("wrong mark", f"{name} is not the {row[5]} that its record says"))
        return found

    def broken_list(self):
        code, out, errors = self.run("list", "--date", DATE, "--tsv")
        if code not in (0, 1) or (code == 1 and "has not been fetched" not in errors):
            return [("list failed", f"{code} {errors}")]
        names = [row.split("\t")[5] for row in out.splitlines()]
        return [("half file listed", name) for name in names
                if not self.service.is_whole(name, (self.day / name).read_bytes())]

    def incomplete(self):
        """What a run that ended well has left undone."""
        files = self.files()
        missing = [name for name, content in self.service.current().items() if files.get(name) != content]
        unmarked = [row[0] for row in self.records(files.get("ALLFILES.DIR", b""))
                    if row[5:7] != [self.service.change_of(row[0][:5]), "d"]]
        return missing + unmarked
