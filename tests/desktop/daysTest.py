# SPDX-License-Identifier: MIT
"""The list of days: what each has, and what is done to several."""
import subprocess

from window import Atspi, text_of, wait
from windowCase import WindowCase, run_tests


class DaysTest(WindowCase):
    def setUp(self):
        super().setUp()
        self.put_day("07032004", ["Α", "Β"])
        self.put_day("08032004", ["Γ"])
        self.put_day("09032004", ["Δ", "Ε", "Ζ"])

    def days(self, window, name="Day"):
        """The texts; those that are selected have a star."""
        table = window.find("table", name)
        rows = table.get_table_iface()
        cells = [rows.get_accessible_at(row, 0) for row in range(rows.get_n_rows())]
        return [("*" if cell.get_state_set().contains(Atspi.StateType.SELECTED) else "") + text_of(cell)
                for cell in cells]

    def test_days_say_what_they_have_and_two_are_deleted_with_the_keyboard(self):
        window = self.start()
        older = ["Mon 08/03/2004 (1, 1 unread)", "Sun 07/03/2004 (2, 2 unread)"]
        wait(lambda: self.days(window) == ["*Tue 09/03/2004 (3, 3 unread)", *older])
        window.table().get_component_iface().grab_focus()
        window.press("Return")
        wait(lambda: self.days(window) == ["*Tue 09/03/2004 (3, 2 unread)", *older])
        window.press("alt+y", "shift+Down")
        wait(lambda: window.row_count() == 1)  # the day that was chosen last
        self.assertEqual(self.days(window), ["*Tue 09/03/2004 (3, 2 unread)", "*" + older[0], older[1]])
        self.shoot(window, "days")
        window.press("Delete")
        window.find("label", "Delete 2 days with 4 clippings?")
        window.press("Return")
        wait(lambda: len(window.window_ids()) == 1)
        self.assertEqual(len(list(self.clips.iterdir())), 3)
        window.press("Delete")
        window.find("label", "Delete 2 days with 4 clippings?")
        window.press("alt+y")
        wait(lambda: self.days(window) == ["*" + older[1]])
        wait(lambda: window.row_count() == 2)
        self.assertEqual([folder.name for folder in self.clips.iterdir()], ["07032004"])
        self.assertEqual(window.close(), 0)

    def test_days_are_found_by_typing_and_selected_by_mouse(self):
        window = self.start(LANGUAGE="el")
        wait(lambda: self.days(window, "Ημέρα")[0] == "*Τρί 09/03/2004 (3, 3 αδιάβαστα)")
        table = window.find("table", "Ημέρα")
        table.get_component_iface().grab_focus()
        window.type("07/")
        wait(lambda: [day[0] for day in self.days(window, "Ημέρα")] == ["Τ", "Δ", "*"])
        rows = table.get_table_iface()
        subprocess.run(["xdotool", "keydown", "ctrl"], check=True)
        self.addCleanup(lambda: subprocess.run(["xdotool", "keyup", "ctrl"], check=True))
        window.click(rows.get_accessible_at(0, 0))
        wait(lambda: [day[0] for day in self.days(window, "Ημέρα")] == ["*", "Δ", "*"])
        wait(lambda: self.shown(window) == "Δ")
        window.click(rows.get_accessible_at(2, 0))
        wait(lambda: [day[0] for day in self.days(window, "Ημέρα")] == ["*", "Δ", "Κ"])
        window.click(rows.get_accessible_at(0, 0))
        window.click(rows.get_accessible_at(1, 0))  # the other one was shown to the last
        wait(lambda: [day[0] for day in self.days(window, "Ημέρα")] == ["*", "*", "Κ"])
        wait(lambda: self.shown(window) == "Γ")
        subprocess.run(["xdotool", "keyup", "ctrl"], check=True)
        self.shoot(window, "days-greek")
        self.assertEqual(window.close(), 0)

    @staticmethod
    def shown(window):
        """The title of the first clipping."""
        table = window.find("table", "Αποκόμματα").get_table_iface()
        return text_of(table.get_accessible_at(0, 2))


if __name__ == "__main__":
    run_tests()
