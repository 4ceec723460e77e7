# SPDX-License-Identifier: MIT
"""What the window tells beside the list: counts, runs, alert and advertisement."""
import datetime
import shutil
import subprocess
import unittest

import dbus
import gi
from window import is_shown, text_of, wait
from windowCase import TODAY, WindowCase, run_tests

gi.require_version("Atspi", "2.0")
from gi.repository import Atspi  # noqa: E402

BROWSER = """[Desktop Entry]\nType=Application\nName=Browser\nExec=sh -c 'echo "$1" >>"{}"' sh %u
MimeType=x-scheme-handler/https;\n"""


def focused():
    """The process of the window that has the keyboard."""
    told = subprocess.run(["xdotool", "getwindowfocus", "getwindowpid"], capture_output=True, text=True, check=False)
    return int(told.stdout or 0)


class StatusTest(WindowCase):
    def put_browser(self):
        (self.home / "applications/browser.desktop").write_text(BROWSER.format(self.opened))
        with open(self.home / "applications/mimeapps.list", "a", encoding="ascii") as choices:
            choices.write("x-scheme-handler/https=browser.desktop\n")

    def test_an_address_of_the_alert_is_opened_after_a_question(self):
        self.put_browser()
        self.put_day("07032004", ["Α"])
        (self.clips / "07032004/ALERT.MSG").write_bytes("Απεργία: https://news.example/a?b=1.\r\n".encode("cp1253"))
        window = self.start()
        alert = window.find("text", "Alert")
        wait(lambda: "1 Clippings" in window.texts())
        letter = Atspi.Text.get_character_extents(alert.get_text_iface(), 14, Atspi.CoordType.SCREEN)
        subprocess.run(["xdotool", "mousemove", str(letter.x + 3), str(letter.y + letter.height // 2), "click", "1"],
                       check=True)
        window.find("label", "Open this address?\n\nhttps://news.example/a?b=1")
        window.press("Escape")
        wait(lambda: len(window.window_ids()) == 1)
        self.assertFalse(self.opened.exists())
        window.press("Return")  # where the click has put the cursor
        window.find("label", "Open this address?\n\nhttps://news.example/a?b=1")
        window.press("alt+y")
        wait(lambda: self.opened.exists() and self.opened.read_text() == "https://news.example/a?b=1\n")
        self.shoot(window, "alert")
        self.assertEqual(window.close(), 0)

    def notices(self):
        """A desktop's notification service, on this display's session bus."""
        mock = subprocess.Popen(["/usr/bin/python3", "-m", "dbusmock", "--session", "--template", "notification_daemon",
                                 "--parameters", '{"capabilities": "body body-markup actions"}'],
                                stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
        self.addCleanup(lambda: (mock.terminate(), mock.wait()))
        bus = dbus.SessionBus()
        wait(lambda: bus.name_has_owner("org.freedesktop.Notifications"))
        service = bus.get_object("org.freedesktop.Notifications", "/org/freedesktop/Notifications")
        return dbus.Interface(service, "org.freedesktop.DBus.Mock")

    def schedule_soon(self):
        minutes = [datetime.datetime.now() + datetime.timedelta(minutes=ahead) for ahead in range(2)]
        with open(self.folder / "vell.ini", "a", newline="", encoding="ascii") as settings:
            settings.write("[Schedule]\r\n" + "".join(f"Schedule{number}={minute:%a} {minute:%H:%M}\r\n"
                                                      for number, minute in enumerate(minutes, 1)))

    def test_a_scheduled_run_is_told_to_whoever_looks_elsewhere_and_a_click_leads_to_it(self):
        mock, proxy = self.notices(), self.serve()
        self.put_day("07032004", ["Α"])
        self.schedule_soon()
        window = self.start(**proxy)
        wait(lambda: any(text.startswith("Next: ") for text in window.texts()))
        wait(lambda: focused() == window.process.pid)
        self.look_elsewhere()
        calls = wait(lambda: mock.GetMethodCalls("Notify"), 90)
        self.assertEqual(calls[0][1][0], "Vell")
        title, body, actions = calls[0][1][3:6]
        count = len((self.home / f"service/{TODAY:%d%m%Y}/clippings.tsv").read_text().splitlines()) - 1
        self.assertEqual(title, f"{count} new clippings")
        self.assertEqual(len(body.split("\n")), 4)
        self.assertEqual(actions[0], "default")
        self.shoot(window, "notice")
        mock.EmitSignal("org.freedesktop.Notifications", "ActionInvoked", "us", [dbus.UInt32(1), "default"])
        wait(lambda: focused() == window.process.pid)
        wait(lambda: window.row_count() == count)
        wait(lambda: {f"{count} unread", f"{count} new"} <= set(window.texts()))
        self.shoot(window, "noticed")
        wait(lambda: mock.GetMethodCalls("CloseNotification"))
        self.assertEqual(window.close(), 0)

    def test_a_range_is_summed_up_and_the_alert_it_brought_is_new_until_seen(self):
        window = self.start(**self.serve())
        first, none = (f"{TODAY - datetime.timedelta(days=back):%d/%m/%Y}" for back in (2, 1))
        window.find("text", "From").get_component_iface().grab_focus()
        window.press("ctrl+a")
        window.type(first)
        window.press("F9")
        wait(lambda: f"26 clippings in 2 days; none on {none}" in window.texts(), 60)
        wait(lambda: text_of(window.find("text", "From")) == TODAY.strftime("%d/%m/%Y"))
        wait(lambda: {"12 Clippings", "12 unread", "12 new"} <= set(window.texts()))
        wait(lambda: any(text.startswith("Last: ") and text.endswith(", 26 new") for text in window.texts()))
        self.shoot(window, "range")
        for bar in ("Progress file", "Progress all"):
            wait(lambda bar=bar: self.is_full(window, bar))
        self.assertEqual(self.shown(window, "label").count("new"), 1)
        window.find("text", "Alert").get_component_iface().grab_focus()
        wait(lambda: "new" not in self.shown(window, "label"))
        self.assertEqual(window.close(), 0)

    def is_full(self, window, name):
        """As it is painted: the same colour at both ends."""
        bar, shot = self.extents(window.find("progress bar", name)), self.home / "shot.png"
        window.shoot(shot)
        dots = "".join(f"%[pixel:p{{{x},{bar.y + bar.height // 2}}}] " for x in (bar.x + 4, self.right_end(bar) - 4,
                                                                                 bar.x - 3))
        left, right, outside = subprocess.check_output(["convert", shot, "-format", dots, "info:"], text=True).split()
        return left == right != outside

    @staticmethod
    def shown(window, role):
        return [node.get_name() for node in window.nodes() if node.get_role_name() == role and is_shown(node)]

    def look_elsewhere(self):
        """Another program's window gets the keyboard."""
        other = subprocess.Popen(["/usr/bin/python3", "-c", "import gi; gi.require_version('Gtk', '3.0')\n"
                                  "from gi.repository import Gtk; Gtk.Window(title='other').show(); Gtk.main()"])
        self.addCleanup(lambda: (other.kill(), other.wait()))
        wait(lambda: subprocess.run(["xdotool", "search", "--onlyvisible", "--name", "^other$", "windowfocus"],
                                    capture_output=True, check=False).returncode == 0 and focused() == other.pid)

    def test_a_second_start_brings_the_window_of_the_first_to_the_front(self):
        (self.home / "same").symlink_to(self.folder)
        window = self.start()
        wait(lambda: focused() == window.process.pid)
        self.look_elsewhere()
        self.folder = self.home / "same"
        second = self.start()
        second.find("label", "Program is already running")
        second.press("Return")
        self.assertEqual(second.process.wait(30), 5)
        wait(lambda: focused() == window.process.pid)
        self.assertEqual(window.close(), 0)

    @unittest.skipUnless(shutil.which("trayer"), "needs the package trayer")
    def test_the_icon_in_the_notification_area_opens_the_window_and_ends_the_program(self):
        tray = subprocess.Popen(["trayer", "--edge", "bottom", "--align", "left", "--width", "10", "--height", "32"])
        self.addCleanup(lambda: (tray.kill(), tray.wait()))
        wait(lambda: subprocess.run(["xdotool", "search", "--onlyvisible", "--pid", str(tray.pid)], capture_output=True,
                                    check=False).returncode == 0)
        self.put_day("07032004", ["Α"])
        self.schedule_soon()
        window = self.start()
        window.table()
        window.press("alt+v", "t")
        wait(lambda: "TrayIcon=1" in (self.folder / "vell.ini").read_text())
        self.look_elsewhere()
        bottom = int(subprocess.check_output(["xdotool", "getdisplaygeometry"]).split()[1])
        icon = ["xdotool", "mousemove", "16", str(bottom - 16), "sleep", "1", "click"]
        subprocess.run([*icon, "1"], check=True)
        wait(lambda: focused() == window.process.pid)
        subprocess.run([*icon, "3"], check=True)
        self.assertTrue(wait(lambda: [name for name in self.shown(window, "menu item") if name.startswith("Next: ")]))
        self.shoot(window, "tray")
        exits = [node for node in window.nodes() if node.get_name() == "Exit" and is_shown(node)]
        exits[-1].get_action_iface().do_action(0)
        self.assertEqual(window.process.wait(30), 0)

    def test_the_advertisement_may_be_of_other_kinds_and_is_hidden_for_good(self):
        self.put_day("07032004", ["Α"])
        for kind in ("png", "gif"):
            subprocess.run(["convert", "-size", "300x100", "plasma:red-blue", f"{kind}:{self.folder}/ADVERTISMENT.JPG"], check=True)
            window = self.start()
            wait(lambda window=window: self.advertisement(window))
            self.shoot(window, f"advertisement-{kind}")
            self.assertEqual(window.close(), 0)
        window = self.start()
        window.press("alt+v", "d")
        wait(lambda: not self.advertisement(window))
        self.assertEqual(window.close(), 0)
        again = self.start()
        again.find("push button", "Setup")
        self.assertFalse(self.advertisement(again))
        again.press("alt+v", "d")
        wait(lambda: self.advertisement(again))
        self.assertEqual(again.close(), 0)

    @staticmethod
    def advertisement(window):
        return any(node.get_name() == "Advertisement" and is_shown(node) for node in window.nodes())


if __name__ == "__main__":
    run_tests()
