# SPDX-License-Identifier: MIT
"""Opens the window and its dialogs over days of the demo service and takes a picture of each: VELL DEMO_SERVICE CONSOLE
FOLDER, in the language of the environment. Called by helpPictures.sh."""
import os
import pathlib
import subprocess
import sys
import time

sys.path.insert(0, str(pathlib.Path(__file__).parents[1] / "tests/desktop"))
from window import wait  # noqa: E402
from windowCase import CONSOLE, SHOTS, WindowCase, run_tests  # noqa: E402

DIALOGS = {"setup": "ctrl+comma", "schedule": "ctrl+shift+s", "filter": "ctrl+shift+f", "print": "ctrl+alt+p"}


class HelpPictures(WindowCase):
    def test_pictures(self):
        self.environment = {name: value for name, value in self.environment.items() if name not in ("LC_ALL", "LANGUAGE")}
        places = "[Position]\r\nposTop=0\r\nposLeft=0\r\nposWidth=15900\r\nposHeight=10800\r\n"
        times = "[Schedule]\r\nSchedule1=Mon Tue Wed Thu Fri 07:30\r\nSchedule2=Sat 09:00\r\n"
        with open(self.folder / "vell.ini", "a", newline="", encoding="ascii") as settings:
            settings.write(places + times)
        proxy = self.serve()
        subprocess.run([CONSOLE, "--folder", self.folder, "download"], env={**os.environ, **self.environment, **proxy},
                       check=True, stdout=subprocess.DEVNULL)
        window = self.start(**proxy)
        wait(lambda: any(node.get_table_iface().get_n_rows() > 5 for node in window.nodes() if node.get_role_name() == "table"))
        window.press("Down")
        self.take(window, "window")
        for name, keys in DIALOGS.items():
            window.press(keys)
            wait(lambda: len(window.window_ids()) == 2)
            if name == "setup":
                window.press("ctrl+Next")  # the page Connection
            if name == "print":
                window.press("alt+a" if os.environ["LANGUAGE"] == "en" else "Tab", "space")
            self.take(window, name)
            window.press("Escape")
            wait(lambda: len(window.window_ids()) == 1)
        window.press("F6")
        wait(lambda: len(window.window_ids()) == 2)
        window.press("Return")
        self.take(window, "autoview")
        window.press("Escape")
        wait(lambda: len(window.window_ids()) == 1)
        window.press("ctrl+f")
        window.type("θέμα" if os.environ["LANGUAGE"] == "el" else "the")
        self.take(window, "find")

    @staticmethod
    def take(window, name):
        time.sleep(1)  # until everything is drawn: a picture that is taken too early is seen at once
        subprocess.run(["import", "-window", window.uppermost(), str(pathlib.Path(SHOTS) / f"{name}.png")], check=True)


run_tests()
