# SPDX-License-Identifier: MIT
"""The window as a whole: days, runs, dialogs that go on beside them, starts and ends."""
import datetime
import os
import pathlib
import socket
import subprocess
import time

from window import Atspi, is_shown, text_of, wait
from windowCase import CONSOLE, TODAY, VELL, WindowCase, run_tests


class WindowTest(WindowCase):
    def test_a_screen_reader_finds_a_name_or_value_for_everything(self):
        self.put_day("07032004", ["Τα <b>νέα</b> & άλλα", "Second"])
        window = self.start()
        self.assertEqual(text_of(window.cell(0, 2)), "Τα <b>νέα</b> & άλλα")
        self.assertEqual(text_of(window.cell(0, 1)), "Εφημερίδα")
        speechless = {"panel", "filler", "scroll pane", "scroll bar", "separator", "tool bar", "menu bar", "table cell",
                      "label"}
        for node in window.nodes():
            in_menu = node.get_role_name() == "menu item"
            if node.get_role_name() in speechless or node.get_parent() is None or not (in_menu or is_shown(node)):
                continue
            if node.get_role_name() == "table column header" and node.get_index_in_parent() == 0:
                continue  # over the pictures
            self.assertTrue(node.get_name() or text_of(node), f"{node.get_role_name()} in {node.get_parent().get_name()}")
        self.assertIn("2 Clippings", window.texts())
        for keys, role, name in (("ctrl+comma", "page tab", "Connection"), ("ctrl+shift+s", "table", "Schedule"),
                                 ("ctrl+shift+f", "label", "Types"), ("ctrl+alt+p", "push button", "Add >"),
                                 ("F6", "slider", "Seconds per clipping")):
            window.press(keys)
            window.find(role, name)
            wait(lambda: len(window.window_ids()) == 2)
            self.shoot(window, f"dialog-{keys}")
            window.press("Escape")
            wait(lambda: len(window.window_ids()) == 1)
        self.assertEqual(window.close(), 0)

    def test_days_are_chosen_by_keyboard_and_by_mouse(self):
        self.put_day("07032004", ["older"])
        self.put_day("08032004", ["newer", "another"])
        window = self.start()
        wait(lambda: window.row_count() == 2)
        window.press("alt+Down")
        wait(lambda: window.row_count() == 1)
        window.click(window.find("table", "Day").get_table_iface().get_accessible_at(0, 0))
        wait(lambda: window.row_count() == 2)
        self.assertEqual(window.close(), 0)

    def test_a_range_that_ends_before_it_begins_is_corrected_with_a_message(self):
        window = self.start()
        window.find("text", "From").get_component_iface().grab_focus()
        window.press("ctrl+a")
        window.type((TODAY + datetime.timedelta(days=1)).strftime("%d/%m/%Y"))
        window.press("Return")
        wait(lambda: "To date can not be less that From date. Please correct it." in window.texts())
        self.assertEqual(text_of(window.find("text", "From")), TODAY.strftime("%d/%m/%Y"))
        self.shoot(window, "message")
        away = window.find("push button", "Dismiss")
        window.push("Dismiss")
        wait(lambda: not is_shown(away))
        window.press("Up")
        wait(lambda: is_shown(away))
        self.assertEqual(text_of(window.find("text", "From")), TODAY.strftime("%d/%m/%Y"))
        window.press("ctrl+a")
        window.type("30/02/2026")
        window.press("F9")
        wait(lambda: "'30/02/2026' is no day of the calendar. Write a day as dd/mm/yyyy." in window.texts())
        self.assertEqual(list(self.clips.iterdir()), [])  # other days than the typed ones are not fetched
        self.assertEqual(window.close(), 0)

    def test_a_long_answer_of_a_broken_service_leaves_the_window_in_shape(self):
        answer = b"HTTP/1.0 404 Not Found\r\nX-Long: " + b"y" * 900 + b"\r\n\r\n"
        with socket.create_server(("127.0.0.1", 0)) as service:
            window = self.start(http_proxy=f"http://127.0.0.1:{service.getsockname()[1]}")
            window.press("F9")
            service.settimeout(30)
            with service.accept()[0] as caller:
                caller.sendall(answer)
                caller.shutdown(socket.SHUT_WR)
                while caller.recv(4096):
                    pass
            window.find("push button", "Try again")
        away = window.find("push button", "Dismiss")
        self.assertIn("Quillon Service not accessible.\nHTTP/1.0 404 Not Found", "".join(window.texts()))
        self.assertLess(self.right_end(self.extents(away)), self.right_end(self.extents(window.find("frame"))))
        self.shoot(window, "answer")
        window.push("Dismiss")
        wait(lambda: not is_shown(away))
        self.assertEqual(window.close(), 0)

    def test_a_double_click_opens_marks_and_keeps_its_row_when_sorted(self):
        self.put_day("07032004", ["Β", "Α", "Γ"])
        window = self.start()
        window.press("ctrl+3")
        wait(lambda: text_of(window.cell(0, 2)) == "Α")
        window.click(window.cell(0, 2), times=2)
        wait(lambda: self.opened.exists() and self.opened.read_text().endswith("C00001.PDF\n"))
        wait(lambda: window.marks(0) == "Opened")
        window.press("Down", "Return")
        wait(lambda: self.opened.read_text().endswith("C00000.PDF\n"))
        self.assertIn(b"C00001.PDF=1", (self.clips / "07032004/OPENED.DIR").read_bytes())
        (self.clips / "07032004/PRINTED.DIR").write_bytes(b"[PRINT]\r\nC00001.PDF=1\r\n")
        window.press("F5")
        wait(lambda: window.marks(0) == "Opened, printed")
        self.shoot(window, "opened")
        self.assertEqual(window.close(), 0)

    def test_keys_that_the_list_knows_itself_are_the_commands_of_the_menu(self):
        self.put_day("07032004", ["Α", "Β"])
        (self.home / "lp").write_text(f'#!/bin/sh\nshift $(($# - 1))\necho "$1" >>"{self.opened}"\n')
        (self.home / "lp").chmod(0o755)
        window = self.start(PATH=f"{self.home}:{os.environ['PATH']}")
        window.press("Down", "ctrl+p")
        wait(lambda: window.marks(1) == "Printed")
        wait(lambda: self.opened.exists() and self.opened.read_text().count("\n") == 1)
        self.assertTrue(self.opened.read_text().endswith("C00001.PDF\n"))
        window.press("ctrl+shift+f")
        window.find("label", "Types")
        wait(lambda: len(window.window_ids()) == 2)
        window.press("Escape")
        wait(lambda: len(window.window_ids()) == 1)
        self.assertEqual(window.close(), 0)

    def test_the_dialogs_save_what_was_entered(self):
        self.put_day("07032004", ["Α"])
        window = self.start()
        window.press("ctrl+shift+s")
        window.push("Add...")
        window.find("text", "Schedule Time")
        window.type("07:30")
        window.press("Return")
        wait(lambda: text_of(self.in_schedule(window, 7)) == "07:30")
        window.click(self.in_schedule(window, 6))
        window.click(self.in_schedule(window, 7))
        window.find("text", "Schedule Time")
        window.type("08:45")
        window.press("Return")
        wait(lambda: text_of(self.in_schedule(window, 7)) == "08:45")
        window.push("OK")
        wait(lambda: "Schedule1=Mon Tue Wed Thu Fri Sat 08:45" in self.settings())
        window.press("ctrl+comma")
        window.find("page tab", "Connection")  # where the password is missing
        window.press("ctrl+Prior", "alt+a")
        window.type("50")
        window.press("Tab")
        wait(lambda: "At most 49" in window.texts())
        window.push("OK")
        window.find("label", "Error! Password not specified")
        window.press("Return")
        window.find("page tab", "Connection")
        window.press("Escape")
        wait(lambda: len(window.window_ids()) == 1)
        self.assertIn("AutoPlayDelay=5\n", self.settings())
        self.assertEqual(window.close(), 0)

    def settings(self):
        return (self.folder / "vell.ini").read_text()

    @staticmethod
    def in_schedule(window, column):
        return window.find("table", "Schedule").get_table_iface().get_accessible_at(0, column)

    def test_the_row_stays_selected_while_the_day_changes_and_typing_finds_one(self):
        self.put_day("07032004", ["Beta", "alpha", "Gamma", "Alps"])
        window = self.start()
        window.press("a", "l", "p", "s", "Return")
        wait(lambda: self.opened.exists() and self.opened.read_text().endswith("C00003.PDF\n"))
        (self.clips / "07032004/B.PDF").write_bytes(b"%PDF-1.4\n")
        window.press("F5")
        wait(lambda: window.row_count() == 5)
        window.click(window.find("table column header", "Title"))
        wait(lambda: [text_of(window.cell(row, 2)) for row in range(5)] == ["", "alpha", "Alps", "Beta", "Gamma"])
        window.press("Up", "Return")
        wait(lambda: self.opened.read_text().endswith("C00001.PDF\n"))
        self.assertEqual(window.close(), 0)

    def test_a_filter_shows_some_and_auto_view_opens_them_in_turn(self):
        self.put_day("07032004", ["one", "two", "three"])
        index = self.clips / "07032004/ALLFILES.DIR"
        index.write_bytes(index.read_bytes().replace(b"two||\xd0", b"two||Sport|\xd0"))
        window = self.start()
        window.press("ctrl+shift+f")
        sport = wait(lambda: next((node for node in window.nodes() if text_of(node) == "Sport (1)"), None))
        window.click(sport.get_parent().get_child_at_index(sport.get_index_in_parent() - 1))
        self.shoot(window, "filter")
        window.push("OK")
        wait(lambda: "Only: Sport" in window.texts() and "1 of 3" in window.texts())
        window.push("Show all")
        wait(lambda: window.row_count() == 3)
        window.press("F6")
        window.find("slider", "Seconds per clipping").get_value_iface().set_current_value(1)
        window.push("Start")  # at the row that stayed selected
        wait(lambda: self.opened.exists() and self.opened.read_text().count("\n") == 2)
        wait(lambda: [window.marks(row) for row in range(3)] == ["", "Opened", "Opened"])
        window.find("push button", "Start")
        window.press("Escape")
        wait(lambda: len(window.window_ids()) == 1)
        self.assertEqual(window.close(), 0)

    def test_only_a_sound_advertisement_is_shown(self):
        picture = self.folder / "ADVERTISMENT.JPG"
        subprocess.run(["convert", "-size", "300x100", "xc:red", picture], check=True)
        sound = picture.read_bytes()
        for bytes_of_it, shown in ((sound, True), (sound[:200], False), (b"", False), (sound[:2] + b"x" * 99, False)):
            picture.write_bytes(bytes_of_it)
            window = self.start()
            window.find("push button", "Setup")
            names = [node.get_name() for node in window.nodes() if is_shown(node)]
            self.assertEqual("Advertisement" in names, shown, len(bytes_of_it))
            self.assertEqual(window.close(), 0)

    def test_a_run_is_seen_and_stopped(self):
        window = self.start(**self.serve("--rate", "20", "--latency", "20"))
        window.press("F9")
        window.find("push button", "Stop download")
        wait(lambda: window.row_count() >= 2)
        wait(lambda: 0 < window.value("Progress all") < 1)
        self.shoot(window, "running")
        window.push("Stop download")
        wait(lambda: "Download STOPED by user." in window.texts())
        window.find("push button", "Start download")
        self.assertIn(TODAY.strftime("%d/%m/%Y"), text_of(window.find("table", "Day").get_table_iface()
                                                          .get_accessible_at(0, 0)))
        self.assertEqual(window.close(), 0)

    def test_closing_during_a_run_ends_at_once_and_the_place_is_kept(self):
        proxy = self.serve("--rate", "40")
        window = self.start(**proxy)
        frame = window.uppermost()
        subprocess.run(["xdotool", "windowmove", "--sync", frame, "30", "45", "windowsize", frame, "900", "600"], check=True)
        wait(lambda: self.geometry(window) == ["X=30", "Y=45", "WIDTH=900", "HEIGHT=600"])
        window.press("F9")
        wait(lambda: window.row_count() >= 1)
        self.assertEqual(window.close(), 0)
        again = self.start(**proxy)
        wait(lambda: self.geometry(again) == ["X=30", "Y=45", "WIDTH=900", "HEIGHT=600"])
        subprocess.run(["xdotool", "windowsize", "--sync", again.uppermost(), "640", "560"],
                       check=True)
        wait(lambda: self.extents(again.find("frame")).height == 560)
        self.shoot(again, "small")
        self.assertEqual(again.close(), 0)

    def test_the_schedule_is_kept_while_a_dialog_is_open(self):
        proxy = self.serve()
        minutes = [datetime.datetime.now() + datetime.timedelta(minutes=ahead) for ahead in range(2)]
        with open(self.folder / "vell.ini", "a", newline="", encoding="ascii") as settings:
            settings.write("[Schedule]\r\n" + "".join(f"Schedule{number}={minute:%a} {minute:%H:%M}\r\n"
                                                      for number, minute in enumerate(minutes, 1)))
        window = self.start(**proxy)
        window.press("ctrl+comma")
        window.find("page tab", "Connection")
        count = len((self.home / f"service/{TODAY:%d%m%Y}/clippings.tsv").read_text().splitlines()) - 1
        wait(lambda: f"Finished: {count} of {count} clippings downloaded." in window.texts())
        window.find("page tab", "Connection")
        window.press("Escape")
        wait(lambda: window.row_count() == count)
        self.assertEqual(window.close(), 0)

    def test_a_download_goes_on_behind_a_dialog(self):
        window = self.start(**self.serve("--rate", "20", "--latency", "20"))
        window.press("F9")
        wait(lambda: window.row_count() >= 1)
        for keys, role, name in (("ctrl+shift+f", "label", "Types"), ("ctrl+comma", "page tab", "Connection")):
            window.press(keys)
            window.find(role, name)
            rows = window.row_count()
            wait(lambda rows=rows: window.row_count() > rows)
            window.press("Escape")
            wait(lambda: len(window.window_ids()) == 1)
        window.press("ctrl+shift+s")
        window.find("table", "Schedule")
        window.process.terminate()
        self.assertEqual(window.process.wait(30), 0)

    def test_a_column_fits_its_texts_until_the_user_draws_it(self):
        self.put_day("07032004", ["Α"])
        window = self.start()
        narrow = self.header(window, "Newspaper").width
        index = self.clips / "07032004/ALLFILES.DIR"
        index.write_bytes(index.read_bytes().replace("Εφημερίδα".encode("cp1253"), b"A newspaper of a longer name"))
        window.press("F5")
        wait(lambda: self.header(window, "Newspaper").width > narrow)
        wait(lambda: self.right_end(self.header(window, "Type")) == self.right_end(self.extents(window.table())))
        before = self.header(window, "Newspaper")
        edge, middle = str(before.x + before.width), str(before.y + before.height // 2)
        subprocess.run(["xdotool", "mousemove", edge, middle, "mousedown", "1", "mousemove_relative", "30", "0",
                        "mousemove_relative", "30", "0", "mouseup", "1"], check=True)
        wait(lambda: self.header(window, "Newspaper").width > before.width + 40)
        drawn = self.header(window, "Newspaper").width
        wait(lambda: self.right_end(self.header(window, "Type")) == self.right_end(self.extents(window.table())))
        self.assertEqual(window.close(), 0)
        again = self.start()
        wait(lambda: self.header(again, "Newspaper").width == drawn)
        self.assertEqual(again.close(), 0)

    def header(self, window, name):
        return self.extents(window.find("table column header", name))

    @staticmethod
    def geometry(window):
        told = subprocess.run(["xdotool", "getwindowgeometry", "--shell", window.uppermost()], capture_output=True,
                              text=True, check=True)
        return told.stdout.split()[1:5]

    def test_a_second_one_is_refused_and_an_idle_one_rests(self):
        window = self.start()
        window.find("push button", "Setup")
        second = self.start()
        second.find("label", "Program is already running")
        second.press("Return")
        self.assertEqual(second.process.wait(30), 5)
        refused = subprocess.run([CONSOLE, "--folder", self.folder, "download"], capture_output=True, text=True,
                                 env={**os.environ, **self.environment}, check=False)
        self.assertEqual((refused.returncode, refused.stderr), (5, "Program is already running\n"))
        before = self.used_seconds(window)
        time.sleep(3)  # nothing but time shows that a program rests
        self.assertLess(self.used_seconds(window) - before, 0.06)
        window.process.terminate()
        self.assertEqual(window.process.wait(30), 0)

    def test_without_a_display_it_says_so(self):
        environment = {name: value for name, value in os.environ.items() if name != "DISPLAY"}
        told = subprocess.run([VELL, "--folder", self.folder], capture_output=True, text=True, check=False,
                              env={**environment, **self.environment})
        self.assertEqual(told.returncode, 1)
        self.assertIn("vell: There is no display to show the window on. vell-console needs none.\n", told.stderr)


if __name__ == "__main__":
    run_tests()
