# SPDX-License-Identifier: MIT
"""What every test of the real window needs: a program folder, days, a service. Each test file is called with
VELL DEMO_SERVICE CONSOLE SCREENSHOTS on a display of its own (inDisplay.sh)."""
import datetime
import os
import pathlib
import subprocess
import sys
import tempfile
import unittest

from window import Atspi, Window, wait

VELL, SERVICE, CONSOLE, SHOTS = sys.argv[1:5]
TODAY = datetime.date.today()
SETTINGS = """[General]\r\nAutoPlayDelay=5\r\nPrintAllDelay=1\r\n[Host]\r\nProtocol=HTTP\r\nHost=clippings.example\r
Uid=demo\r\nPort=21\r\nRetryOnFailure=3\r\nRetryDelay=1\r\nTimeOut=20\r\n[Download]\r\nAutoUpdateCheck=0\r\nLocalDir={}\r\n"""
RECORDER = """[Desktop Entry]\nType=Application\nName=Recorder\nExec=sh -c 'echo "$1" >>"{}"' sh %f\nMimeType=application/pdf;\n"""
# What the libraries say of themselves, whatever a program does.
NOT_OURS = [
    "gtk_notebook_get_tab_label: assertion 'list != NULL' failed",  # a screen reader looks on while its pages go
    "Invalid JPEG",  # the decoder, of a damaged picture
    # A header that is drawn elsewhere has no width for a moment: it is laid out anew in a window of its own.
    "Negative content width -11 (allocation 1, extents 6x6) while allocating gadget (node button, owner GtkButton)",
]


class WindowCase(unittest.TestCase):
    program = VELL

    def setUp(self):
        self.temporary = tempfile.TemporaryDirectory()
        self.addCleanup(self.temporary.cleanup)
        self.home = pathlib.Path(self.temporary.name)
        self.folder, self.clips, self.opened = self.home / "program", self.home / "clips", self.home / "opened"
        for folder in (self.folder, self.clips, self.home / "applications"):
            folder.mkdir()
        (self.folder / "vell.ini").write_text(SETTINGS.format(self.clips), newline="")
        (self.home / "applications/recorder.desktop").write_text(RECORDER.format(self.opened))
        (self.home / "applications/mimeapps.list").write_text("[Default Applications]\napplication/pdf=recorder.desktop\n")
        self.environment = {"XDG_DATA_HOME": str(self.home), "XDG_CONFIG_HOME": str(self.home / "config"),
                            "ASAN_OPTIONS": "detect_leaks=0", "LC_ALL": "C.UTF-8", "LANGUAGE": ""}

    def tearDown(self):
        complaints = self.home / "complaints"
        lines = complaints.read_text().splitlines() if complaints.exists() else []
        self.assertEqual([line for line in lines if line and not any(known in line for known in NOT_OURS)], [])

    def put_day(self, day, titles):
        folder = self.clips / day
        folder.mkdir()
        lines = []
        for number, title in enumerate(titles):
            (folder / f"C{number:05}.PDF").write_bytes(b"%PDF-1.4\n%%EOF\n")
            lines.append(f"C{number:05}.PDF||Εφημερίδα||{title}||Πολιτική||Άρθρο\r\n")
        (folder / "ALLFILES.DIR").write_bytes("".join(lines + ["\r\n"]).encode("cp1253"))

    def start(self, **environment):
        window = Window(self.program, self.folder, {**self.environment, **environment}, self.home / "complaints")
        self.addCleanup(window.kill)
        return window

    def serve(self, *options):
        ready = self.home / "ready"
        service = subprocess.Popen([SERVICE, "--root", self.home / "service", "--ready-file", ready, *options],
                                   stdout=subprocess.DEVNULL)
        self.addCleanup(lambda: (service.terminate(), service.wait()))
        wait(lambda: ready.exists() and ready.read_text().count("\n") == 2)
        subprocess.run([CONSOLE, "--folder", self.folder, "setup", "Pwd", "-"], input="demo\n", text=True, check=True,
                       stdout=subprocess.DEVNULL, env={**os.environ, **self.environment})
        return {"http_proxy": "http://" + ready.read_text().split()[1]}

    def shoot(self, window, name):
        window.shoot(pathlib.Path(SHOTS) / f"{name}.png")

    @staticmethod
    def extents(node):
        return node.get_component_iface().get_extents(Atspi.CoordType.SCREEN)

    @staticmethod
    def right_end(place):
        return place.x + place.width

    @staticmethod
    def used_seconds(window):
        fields = pathlib.Path(f"/proc/{window.process.pid}/stat").read_text().rsplit(")", 1)[1].split()
        return (int(fields[11]) + int(fields[12])) / os.sysconf("SC_CLK_TCK")


def run_tests():
    pathlib.Path(SHOTS).mkdir(parents=True, exist_ok=True)
    unittest.main(argv=[sys.argv[0], *sys.argv[5:]], verbosity=2, warnings="ignore")
