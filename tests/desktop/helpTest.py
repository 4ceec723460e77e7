# SPDX-License-Identifier: MIT
"""The help page that F1 opens in each language: a section for every entry of the menu, with its keys."""
import pathlib
import re

from window import wait
from windowCase import VELL, WindowCase, run_tests

SPELLED = {"<Primary>": "Ctrl+", "<Shift>": "Shift+", "<Alt>": "Alt+", "comma": ","}


class HelpTest(WindowCase):
    def setUp(self):
        super().setUp()
        self.put_day("07032004", ["Α"])
        recorder = self.home / "applications/recorder.desktop"
        recorder.write_text(recorder.read_text().replace("application/pdf;", "text/html;"))
        (self.home / "applications/mimeapps.list").write_text("[Default Applications]\ntext/html=recorder.desktop\n")

    def test_every_entry_of_the_menu_has_its_section_in_the_language_of_the_desktop(self):
        for language, name in (("", "Vellhelp.htm"), ("el", "Vellhelp.el.htm")):
            window = self.start(LANGUAGE=language)
            entries = {self.as_heading(node) for node in window.nodes(window.find("menu bar"))
                       if node.get_role_name().endswith(("menu", "menu item"))}
            self.assertGreater(len(entries), 40)
            window.press("F1")
            page = wait(lambda name=name: self.opened.exists() and self.opened.read_text().endswith(f"{name}\n")
                        and pathlib.Path(self.opened.read_text().split()[-1]).read_text())
            menus = page[page.index('class="menu"') - 30:]
            headings = re.findall(r"<h[2-4][^>]*>([^<]*?) ?(?:<kbd>([^<]*)</kbd>)?</h", menus)
            self.assertEqual({f"{heading} {keys}" for heading, keys in headings} ^ entries, set())
            self.assertEqual([link for link in re.findall(r'href="#(\w+)"', page) if f'id="{link}"' not in page], [])
            files = re.findall(r'(?:src|href)="(help/[^"]*)"', page)
            self.assertGreater(len(files), 5)
            self.assertEqual([file for file in files if not (pathlib.Path(VELL).parent / file).exists()], [])
            self.assertEqual(window.close(), 0)

    @staticmethod
    def as_heading(node):
        """The name of an entry and its keys as people write them."""
        keys = (node.get_action_iface().get_key_binding(0).split(";") + ["", ""])[2]
        for gtk, people in SPELLED.items():
            keys = keys.replace(gtk, people)
        keys = re.sub(r"\b[a-z]$", lambda letter: letter[0].upper(), keys)
        return f"{node.get_name().removesuffix('...')} {keys}"


if __name__ == "__main__":
    run_tests()
