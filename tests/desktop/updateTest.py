# SPDX-License-Identifier: MIT
"""A newer version's way to a window's user: asked for in the menu, fetched, installed at the next start."""
import os
import pathlib
import shutil
import subprocess

from window import is_shown, wait
from windowCase import CONSOLE, VELL, WindowCase, run_tests

SOURCES = pathlib.Path(__file__).parents[2]
PLATFORM = f"linux-{os.uname().machine}"


class UpdateTest(WindowCase):
    def setUp(self):
        super().setUp()
        self.bin = self.home / "own/bin"
        self.bin.mkdir(parents=True)
        shutil.copy(os.environ["VELL_OLDER"], self.bin / "vell")
        self.version = self.version_of(VELL)
        staged = self.home / f"vell-{self.version}/bin"
        staged.mkdir(parents=True)
        for program in (VELL, CONSOLE):
            subprocess.run(["strip", "-g", "-o", staged / pathlib.Path(program).name, program], check=True)
        updates = self.home / "updates"
        updates.mkdir()
        archive = updates / f"vell-{self.version}-{PLATFORM}.tar.gz"
        subprocess.run(["tar", "-C", self.home, "-czf", archive, staged.parent.name], check=True)
        with open(updates / f"{PLATFORM}.txt", "wb") as manifest:
            subprocess.run([SOURCES / "packaging/manifest.sh", "--key", SOURCES / "demo/keys/update-private.pem",
                            "--version", self.version, "--platform", PLATFORM, "--file", archive,
                            "--notes", "It finds more."], check=True, stdout=manifest, stderr=subprocess.DEVNULL)
        self.proxy = self.serve("--updates", updates)
        self.program = str(self.bin / "vell")

    @staticmethod
    def version_of(program):
        return subprocess.run([program, "--version"], check=True, capture_output=True, text=True).stdout.split()[1]

    @staticmethod
    def answer(window, begin):
        """Of the box whose text begins so, once it is there. Nobody looks at the box while it goes."""
        wait(lambda: any(node.get_role_name() == "label" and is_shown(node) and node.get_name().startswith(begin)
                         for node in window.nodes()))
        box = window.uppermost()
        window.press("Return")
        wait(lambda: box not in window.window_ids())

    def test_what_the_menu_finds_is_installed_by_the_next_start(self):
        window = self.start(**self.proxy)
        window.find("push button", "Start download")
        window.press("alt+h", "u")
        self.answer(window, f"Version {self.version} is available.")
        self.answer(window, f"Version {self.version} is ready.")
        self.assertEqual(window.close(), 0)
        self.assertEqual(self.version_of(self.bin / "vell"), "0.0.1")

        window = self.start(**self.proxy)
        program, older = pathlib.Path(f"/proc/{window.process.pid}/exe"), window.application
        before = program.stat().st_ino
        self.answer(window, "An update file is ready to be installed...")
        # It becomes another program in the same process, which the bus takes for another application. Nobody looks
        # at it before.
        wait(lambda: program.stat().st_ino != before, 60)
        window.application = wait(lambda: next((one for one in [window.find_application()]
                                                if one and one != older and one.get_child_count()), None), 60)
        self.answer(window, "Installation completed succesfully")
        window.find("push button", "Start download")
        self.assertFalse((self.home / "own/.vell-update/PREVIOUS").exists())
        self.assertEqual(window.close(), 0)
        self.assertEqual(self.version_of(self.bin / "vell"), self.version)
        self.assertEqual(self.version_of(self.bin / "vell-console"), self.version)
        window = self.start(**self.proxy)
        window.find("push button", "Start download")
        self.assertEqual(window.close(), 0)


if __name__ == "__main__":
    run_tests()
