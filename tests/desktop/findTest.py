# SPDX-License-Identifier: MIT
"""Finding clippings in the window."""
from window import Atspi, is_shown, text_of, wait
from windowCase import WindowCase, run_tests


class FindTest(WindowCase):
    def put(self, day, titles, texts):
        self.put_day(day, titles)
        for number, text in enumerate(texts):
            (self.clips / f"{day}/C{number:05}.TXT").write_bytes(text.encode("cp1253"))

    def titles(self, window, column=2):
        return [text_of(window.cell(row, column)) for row in range(window.row_count())]

    def find(self, window, text):
        window.press("ctrl+f")
        self.box(window).get_editable_text_iface().set_text_contents(text)

    @staticmethod
    def box(window):
        return wait(lambda: next((node for node in window.nodes() if node.get_name() == "Find"
                                  and node.get_editable_text_iface() and is_shown(node)), None))

    @staticmethod
    def has_focus(node):
        return node.get_state_set().contains(Atspi.StateType.FOCUSED)

    def test_the_list_narrows_as_one_types_and_escape_ends_it(self):
        self.put("07032004", ["ΑΛΦΑ", "ΒΗΤΑ", "ΓΑΜΑ"], ["ο κόσμος", "ένα πλοίο", "δύο πλοία στον κόσμο"])
        window = self.start()
        wait(lambda: window.row_count() == 3)
        self.find(window, "κοσμοσ")
        wait(lambda: self.titles(window) == ["ΑΛΦΑ"] and "1 of 3" in window.texts())
        self.shoot(window, "find")
        self.find(window, "πλοι Γάμα")
        wait(lambda: self.titles(window) == ["ΓΑΜΑ"])
        wait(lambda: "δύο πλοία" in text_of(window.find("text", "Text")))
        window.press("Return", "Return")
        wait(lambda: self.opened.exists() and self.opened.read_text().endswith("C00002.PDF\n"))
        self.find(window, "τίποτα" * 10000)
        wait(lambda: "Nothing found" in window.texts())
        self.assertEqual(text_of(self.box(window)), ("τίποτα" * 10000)[:200])
        self.shoot(window, "find-nothing")
        window.press("Escape")
        wait(lambda: window.row_count() == 3 and self.has_focus(window.table()))
        self.assertEqual(text_of(self.box(window)), "")
        window.click(window.find("check box", "In texts"))
        self.find(window, "πλοι")
        wait(lambda: "Nothing found" in window.texts())
        self.assertEqual(window.close(), 0)
        self.assertIn("FindInTexts=0", (self.folder / "vell.ini").read_text())

    def test_all_days_are_searched_and_each_hit_tells_its_day(self):
        self.put("07032004", ["ΑΛΦΑ", "ΒΗΤΑ"], ["", "ένα πλοίο"])
        self.put("08032004", ["ΓΑΜΑ", "ΔΕΛΤΑ"], ["δύο πλοία", ""])
        window = self.start()
        self.find(window, "πλοι")
        wait(lambda: self.titles(window) == ["ΓΑΜΑ"])
        window.click(window.find("check box", "All days"))
        wait(lambda: self.titles(window, 1) == ["08/03/2004", "07/03/2004"])
        wait(lambda: "2 found in 2 days" in window.texts())
        self.shoot(window, "find-all-days")
        # On a busy display the key may come before the click has given the keyboard back.
        wait(lambda: self.has_focus(window.table()) or window.press("ctrl+l"))
        window.press("Down", "Return")
        wait(lambda: self.opened.exists() and self.opened.read_text().endswith("07032004/C00001.PDF\n"))
        wait(lambda: window.marks(1) == "Opened")
        window.press("alt+Down")
        wait(lambda: self.titles(window) == ["ΒΗΤΑ"] and window.marks(0) == "Opened")
        window.press("ctrl+shift+l")
        wait(lambda: window.row_count() == 2)
        self.assertEqual(window.close(), 0)


if __name__ == "__main__":
    run_tests()
