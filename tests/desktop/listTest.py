# SPDX-License-Identifier: MIT
"""The list of clippings: several rows at once, columns, marks, and what is taken elsewhere."""
import subprocess
import time

import gi

gi.require_version("Gtk", "3.0")
gi.require_version("Gdk", "3.0")
from gi.repository import Gdk, Gtk  # noqa: E402

from window import Atspi, is_shown, text_of, wait  # noqa: E402
from windowCase import WindowCase, run_tests  # noqa: E402


def clipboard(target="UTF8_STRING"):
    held = Gtk.Clipboard.get(Gdk.SELECTION_CLIPBOARD).wait_for_contents(Gdk.Atom.intern(target, False))
    return held.get_data().decode().rstrip("\r\n\0") if held else ""


class ListTest(WindowCase):
    def test_several_rows_are_opened_marked_copied_and_saved(self):
        self.put_day("07032004", ["Α", "Β", "Γ"])
        (self.clips / "07032004/C00001.TXT").write_bytes("Κείμενο\r\n".encode("cp1253"))
        window = self.start()
        window.press("shift+Down")
        window.press("Return")
        wait(lambda: self.opened.exists() and self.opened.read_text().count("\n") == 2)
        wait(lambda: [window.marks(row) for row in range(3)] == ["Opened", "Opened", ""])
        window.press("ctrl+a", "ctrl+shift+m")
        wait(lambda: [window.marks(row) for row in range(3)] == ["", "", ""])
        window.press("ctrl+shift+c")
        wait(lambda: clipboard() == "Α\nΒ\nΓ")
        window.press("Home", "Down", "ctrl+c")
        path = self.clips / "07032004/C00001.PDF"
        wait(lambda: clipboard("text/uri-list") == f"file://{path}")
        self.assertEqual(clipboard("x-special/gnome-copied-files"), f"copy\nfile://{path}")
        window.press("ctrl+s")
        name = wait(lambda: next((node for node in window.nodes(window.find("file chooser"))
                                  if text_of(node) == "C00001.PDF"), None))
        window.press("ctrl+a")
        window.type(str(self.home / "copy.pdf"))
        wait(lambda: text_of(name) == str(self.home / "copy.pdf"))
        # The key is lost while the dialog reads its folder.
        wait(lambda: len(window.window_ids()) == 1 or subprocess.call(["xdotool", "key", "Return"]))
        wait(lambda: (self.home / "copy.pdf").exists())
        self.assertEqual((self.home / "copy.pdf").read_bytes(), path.read_bytes())
        wait(lambda: "1 clipping saved." in window.texts())
        self.assertEqual(window.close(), 0)

    def test_the_menu_of_the_list_opens_by_mouse_and_by_keys(self):
        self.put_day("07032004", ["Α", "Β", "Γ"])
        window = self.start()
        window.press("shift+Down")
        for opening, letter, marks in ((lambda: window.press("shift+F10"), "m", "Opened"),
                                       (lambda: window.press("Menu"), "n", ""),
                                       (lambda: window.click(window.cell(1, 2), button=3), "m", "Opened")):
            opening()
            # The menu shows itself to nobody; its letters do nothing without it.
            wait(lambda letter=letter, marks=marks: not subprocess.call(["xdotool", "key", letter]) and
                 [window.marks(row) for row in range(3)] == [marks, marks, ""])
        self.assertEqual(window.close(), 0)

    def test_columns_and_sorting_are_chosen_and_kept(self):
        self.put_day("07032004", ["Α", "Β", "Γ"])
        for number, page in enumerate(("12", "3", "4")):
            (self.clips / f"07032004/C0000{number}.MT").write_text(f"PAGE: {page}\r\n")
        window = self.start()
        for letter, headers in (("p", ["Newspaper", "Title", "Type", "Page"]), ("y", ["Newspaper", "Title", "Page"])):
            window.press("alt+v", "u", letter)
            wait(lambda headers=headers: self.headers(window)[1:] == headers)
        window.click(window.find("table column header", "Page"))
        wait(lambda: [text_of(window.cell(row, 3)) for row in range(3)] == ["3", "4", "12"])
        self.shoot(window, "columns")
        self.assertEqual(window.close(), 0)
        window = self.start()
        wait(lambda: self.headers(window)[1:] == ["Newspaper", "Title", "Page"])
        wait(lambda: [text_of(window.cell(row, 2)) for row in range(3)] == ["Β", "Γ", "Α"])
        self.assertEqual(window.close(), 0)

    def test_columns_stand_where_they_were_drawn_and_the_keyboard_stays_in_the_list(self):
        self.put_day("07032004", ["Α", "Β"])
        window = self.start()
        window.press("Down")
        self.draw_header(window, "Type", "Newspaper")
        wait(lambda: self.headers(window)[1:] == ["Type", "Newspaper", "Title"])
        window.press("Return")
        wait(lambda: self.opened.exists() and self.opened.read_text().endswith("C00001.PDF\n"))
        window.press("alt+v", "u", "l", "t")
        wait(lambda: self.headers(window)[1:] == ["Type", "Title", "Newspaper"])
        window.press("Up", "Return")
        wait(lambda: self.opened.read_text().endswith("C00000.PDF\n"))
        self.assertEqual(window.close(), 0)
        window = self.start()
        wait(lambda: self.headers(window)[1:] == ["Type", "Title", "Newspaper"])
        self.assertEqual(window.close(), 0)

    def draw_header(self, window, name, onto):
        """To the place of the other one."""
        begin, end = (self.extents(window.find("table column header", header)) for header in (name, onto))
        height = begin.y + begin.height // 2
        ways = [begin.x + begin.width // 2, begin.x + begin.width // 2 - 20, end.x + end.width // 2, end.x + 5, end.x + 4]
        moves = [["mousemove", str(x), str(height), "sleep", "0.05"] for x in ways]
        subprocess.run(["xdotool", *moves[0], "mousedown", "1", *sum(moves[1:], []), "mouseup", "1"], check=True)

    @staticmethod
    def headers(window):
        """From the left."""
        shown = [node for node in window.nodes() if node.get_role_name() == "table column header" and is_shown(node)]
        return [node.get_name() for node in sorted(shown, key=lambda node: WindowCase.extents(node).x)]

    def test_greek_letters_find_titles_and_the_keyboard_goes_on_from_there(self):
        self.put_day("07032004", ["Άλφα", "Βήτα", "Έψιλον", "Ζήτα"])
        window = self.start()
        subprocess.run(["setxkbmap", "gr"], check=True)
        window.press("Greek_epsilon", "Greek_psi", "Down", "Return")
        subprocess.run(["setxkbmap", "us"], check=True)
        wait(lambda: self.opened.exists() and self.opened.read_text().endswith("C00003.PDF\n"))
        self.assertEqual(window.close(), 0)

    def test_a_row_is_drawn_out_of_the_window_as_a_file(self):
        self.put_day("07032004", ["Α", "Β"])
        window = self.start()
        cell = window.cell(1, 2).get_component_iface().get_extents(Atspi.CoordType.SCREEN)
        dropped = []
        target = Gtk.Window(type=Gtk.WindowType.POPUP)
        target.drag_dest_set(Gtk.DestDefaults.ALL, [Gtk.TargetEntry.new("text/uri-list", 0, 0)], Gdk.DragAction.COPY)
        target.connect("drag-data-received", lambda *told: dropped.extend(told[4].get_uris()))
        target.resize(80, 60)
        target.show_all()
        self.addCleanup(target.destroy)
        for command in (["mousemove", str(cell.x + 20), str(cell.y + 9), "mousedown", "1"],
                        *(["mousemove", str(40 + part * 50), str(30 + part * 20)] for part in (4, 3, 2, 1, 0)),
                        ["mouseup", "1"]):
            subprocess.run(["xdotool", *command], check=True)
            self.let_happen()
        wait(lambda: self.let_happen() or dropped)
        self.assertEqual(dropped, [f"file://{self.clips}/07032004/C00001.PDF"])
        window.process.terminate()  # the toolkit keeps a window of its own from now on, which would get the keys
        self.assertEqual(window.process.wait(30), 0)

    @staticmethod
    def let_happen():
        end = time.monotonic() + 0.1
        while time.monotonic() < end:
            Gtk.main_iteration_do(False)


if __name__ == "__main__":
    run_tests()
