# SPDX-License-Identifier: MIT
"""Reading the texts of a day in the window."""
import subprocess

from window import is_shown, text_of, wait
from windowCase import WindowCase, run_tests

DAY = "07032004"


class ReadingTest(WindowCase):
    def put_text(self, number, text, companion=""):
        for ending, content in (("TXT", text), ("MT", companion)):
            if content:
                (self.clips / f"{DAY}/C{number:05}.{ending}").write_bytes(content.replace("\n", "\r\n").encode("cp1253"))

    @staticmethod
    def text(window):
        return text_of(window.find("text", "Text"))

    def test_a_day_is_read_with_the_arrow_keys_alone(self):
        self.put_day(DAY, ["ΠΡΩΤΟ", "ΔΕΥΤΕΡΟ", "ΤΡΙΤΟ"])
        self.put_text(0, "Η αρχή.\n\n" + "Μια παράγραφος. " * 40 + "\n" * 60 + "Το τέλος.\n",
                      "NEWSPAPER: Εσπερινό Κύμα\nPAGE: 18\nTITLE: Πρώτο\nDATE: 07/03/2004\n")
        self.put_text(1, "Άλλο κείμενο.\n")
        window = self.start()
        wait(lambda: self.text(window).startswith("Πρώτο\nΕσπερινό Κύμα · page 18 · 07/03/2004\n\nΗ αρχή."))
        self.shoot(window, "reading")
        window.press("Down")
        wait(lambda: self.text(window) == "ΔΕΥΤΕΡΟ\nΕφημερίδα · 07/03/2004\n\nΆλλο κείμενο.")
        window.press("Down")
        wait(lambda: self.text(window).endswith("This clipping has no text. Open it to see its page."))
        self.put_text(2, "Ήρθε τώρα.\n")
        window.press("F5")
        wait(lambda: self.text(window).endswith("Ήρθε τώρα."))
        window.press("Home", "space")
        wait(lambda: self.text(window).startswith("Πρώτο"))
        for _ in range(4):
            window.press("space")
        wait(lambda: self.text(window).startswith("ΔΕΥΤΕΡΟ") or window.press("space"))
        self.assertEqual([window.marks(row) for row in range(3)], ["", "", ""])
        window.press("Tab", "Return")
        wait(lambda: self.opened.exists() and self.opened.read_text().endswith("C00001.PDF\n"))
        self.assertEqual(window.close(), 0)

    def test_the_pane_stands_where_it_was_put(self):
        self.put_day(DAY, ["ΠΡΩΤΟ"])
        self.put_text(0, "Η αρχή.\n")
        window = self.start()
        wait(lambda: "Η αρχή." in self.text(window))
        window.press("ctrl+alt+2")
        wait(lambda: self.stands_beside(window))
        self.shoot(window, "beside")
        self.assertEqual(window.close(), 0)
        window = self.start()
        wait(lambda: self.stands_beside(window) and "Η αρχή." in self.text(window))
        text = window.find("text", "Text")
        window.press("ctrl+alt+0")
        wait(lambda: not is_shown(text))
        self.shoot(window, "off")
        self.assertEqual(window.close(), 0)

    def test_the_pane_is_there_for_texts_alone_and_keeps_the_height_that_was_drawn(self):
        window = self.start()
        window.find("label", "Setup is not complete")
        self.assertNotIn("Text", [node.get_name() for node in window.nodes() if is_shown(node)])
        self.put_day(DAY, ["ΠΡΩΤΟ"])
        self.put_text(0, "Η αρχή.\n")
        window.press("F5")
        wait(lambda: "Η αρχή." in self.text(window))
        self.assertNotIn("ReadingPane", (self.folder / "vell.ini").read_text())
        before = self.extents(window.find("text", "Text"))
        self.draw_line(window, -60)
        wait(lambda: self.extents(window.find("text", "Text")).height == before.height + 60)
        wait(lambda: "ReadingPaneHeight" in (self.folder / "vell.ini").read_text())
        window.press("ctrl+f")
        window.type("zzz")
        window.find("label", "Nothing found")
        window.press("Escape")
        wait(lambda: self.extents(window.find("text", "Text")).height == before.height + 60)
        self.assertEqual(window.close(), 0)
        window = self.start()
        wait(lambda: self.extents(window.find("text", "Text")).height == before.height + 60)
        self.assertEqual(window.close(), 0)

    def draw_line(self, window, down):
        """The one between list and pane."""
        table = self.extents(window.table())
        half = ["mousemove_relative", "--", "0", str(down // 2)]
        subprocess.run(["xdotool", "mousemove", str(table.x + 40), str(table.y + table.height + 3), "mousedown", "1", *half,
                        *half, "mouseup", "1"], check=True)

    def stands_beside(self, window):
        return self.extents(window.find("text", "Text")).x > self.right_end(self.extents(window.table()))

    def test_a_long_text_holds_nobody_up(self):
        self.put_day(DAY, ["ΜΑΚΡΥ", "ΔΕΥΤΕΡΟ"])
        self.put_text(0, "Η αρχή.\n" + ("Λέξεις και λέξεις. " * 20 + "\n") * 50000 + "Το τέλος.\n")
        self.put_text(1, "Άλλο κείμενο.\n")
        window = self.start()
        wait(lambda: window.find("text", "Text").get_text_iface().get_character_count() > 1000)
        window.press("Down")
        wait(lambda: self.text(window).endswith("Άλλο κείμενο."))
        window.press("Up")
        wait(lambda: window.find("text", "Text").get_text_iface().get_character_count() > 19_000_000, 60)
        self.assertEqual(window.close(), 0)


if __name__ == "__main__":
    run_tests()
