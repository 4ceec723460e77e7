# SPDX-License-Identifier: MIT
"""What the window tells of failures, and how it helps."""
import socket

from window import Atspi, is_shown, text_of, wait
from windowCase import TODAY, WindowCase, run_tests


class MessagesTest(WindowCase):
    def bar(self, window):
        return window.find("notification", "Message")

    def test_a_service_that_does_not_answer_is_told_and_the_message_dismissed_by_keyboard(self):
        with socket.create_server(("127.0.0.1", 0)) as reserved:
            dead = reserved.getsockname()[1]
        settings = self.folder / "vell.ini"
        settings.write_text(settings.read_text().replace("clippings.example", f"127.0.0.1:{dead}"), newline="")
        window = self.start()
        window.press("F9")
        bar = self.bar(window)
        wait(lambda: f"The service at 127.0.0.1:{dead} did not answer." in map(text_of, window.nodes(bar)))
        self.assertEqual([node.get_name() for node in window.nodes(bar) if node.get_role_name() == "push button"
                          and is_shown(node)], ["Try again", "Setup", "Dismiss"])
        self.assertEqual(window.value("Progress all"), 0)
        self.shoot(window, "dead-service")
        next(node for node in window.nodes(bar) if node.get_name() == "Setup").get_action_iface().do_action(0)
        window.find("page tab", "Connection")
        window.press("End")
        wait(lambda: any(node.get_name() == "Host" and node.get_state_set().contains(Atspi.StateType.FOCUSED)
                         for node in window.nodes()))
        window.press("Escape")
        wait(lambda: len(window.window_ids()) == 1)
        window.press("F8", "Escape")
        wait(lambda: not is_shown(bar))
        self.assertEqual(window.close(), 0)

    def test_files_that_failed_are_listed_and_fetched_again(self):
        proxy = self.serve()
        day = self.home / "service" / TODAY.strftime("%d%m%Y")
        gone = sorted(day.glob("*.TXT"))[0]
        gone.rename(day / "away")
        window = self.start(**proxy)
        window.press("F9")
        wait(lambda: "1 file failed. The service does not have it." in window.texts())
        self.shoot(window, "failed-files")
        window.push("Show failed files")
        files = window.find("table", "Failed files").get_table_iface()
        self.assertEqual([text_of(files.get_accessible_at(0, column)) for column in (0, 2, 3)],
                         [TODAY.strftime("%d/%m/%Y"), gone.name, "The service does not have it."])
        self.shoot(window, "failed-files-dialog")
        (day / "away").rename(gone)
        bar = self.bar(window)
        window.press("Return")
        wait(lambda: not is_shown(bar))
        index = (self.clips / TODAY.strftime("%d%m%Y") / "ALLFILES.DIR").read_bytes()
        self.assertNotIn(b"||-||", index)
        wait(lambda: window.value("Progress all") == 1)
        self.shoot(window, "fetched-again")
        self.assertEqual(window.close(), 0)


if __name__ == "__main__":
    run_tests()
