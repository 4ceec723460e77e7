# SPDX-License-Identifier: MIT
"""A newcomer's way: from an empty program folder over Setup to the first clipping that is read."""
import subprocess

from window import Atspi, is_shown, text_of, wait
from windowCase import TODAY, WindowCase, run_tests


class WelcomeTest(WindowCase):
    def test_the_keyboard_alone_leads_from_an_empty_folder_to_a_read_clipping(self):
        proxy = self.serve()
        (self.folder / "vell.ini").unlink()
        window = self.start(HOME=str(self.home), **proxy)
        window.find("page tab", "Connection")
        self.wait_for_cursor(window, "Host")
        self.assertFalse((self.folder / "vell.ini").exists())
        for text, onward in (("clippings.example", "Tab"), ("demo", "Tab"), ("wrong", "Shift_L")):
            window.type(text)
            window.press(onward)
        self.shoot(window, "newcomer-setup")
        window.press("Return")
        wait(lambda: "No clippings yet" in window.texts())
        self.wait_for_cursor(window, "Start download")
        self.shoot(window, "newcomer-empty")
        window.press("space")
        window.find("label", "Please enter a correct username/password combination.")
        window.press("Return")
        self.wait_for_cursor(window, "Password")
        self.assertTrue(window.find("page tab", "Connection").get_state_set().contains(Atspi.StateType.SELECTED))
        window.type("demo")
        window.press("Return")
        wait(lambda: window.row_count() > 2)
        window.find("push button", "Start download")
        read = wait(lambda: text_of(window.find("text", "Text")))
        window.press("Down")
        wait(lambda: len(text_of(window.find("text", "Text"))) > 100 and text_of(window.find("text", "Text")) != read)
        self.shoot(window, "newcomer-reads")
        window.press("Return")
        wait(lambda: self.opened.exists() and self.opened.read_text().count("\n") == 1)
        wait(lambda: window.marks(1) == "Opened")
        self.assertIn(f"/Clippings/{TODAY:%d%m%Y}/", self.opened.read_text())
        self.assertEqual(window.close(), 0)

    @staticmethod
    def wait_for_cursor(window, name):
        def has_cursor():
            # There is no window manager; and a window that goes just now is waited for.
            subprocess.run(["xdotool", "windowfocus", window.uppermost()], check=False, stderr=subprocess.DEVNULL)
            return any(node.get_name() == name and node.get_state_set().contains(Atspi.StateType.FOCUSED)
                       for node in window.nodes() if is_shown(node))
        wait(has_cursor)


if __name__ == "__main__":
    run_tests()
