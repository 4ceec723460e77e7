# SPDX-License-Identifier: MIT
"""The program's window as a screen reader sees it, driven by keyboard and mouse."""
import os
import subprocess
import time

import gi

gi.require_version("Atspi", "2.0")
from gi.repository import Atspi, GLib  # noqa: E402

Atspi.get_desktop(0).get_child_count()  # starts the bus, which a program that comes too early would miss


def wait(condition, seconds=30):
    """The condition's first true value. Parts of the window come and go while it is looked at."""
    end = time.monotonic() + seconds
    while time.monotonic() < end:
        try:
            value = condition()
            if value:
                return value
        except GLib.Error:
            pass
        time.sleep(0.05)
    raise AssertionError("waited in vain")


def text_of(node):
    interface = node and node.get_text_iface()
    return Atspi.Text.get_text(interface, 0, -1).strip() if interface else ""


def is_shown(node):
    return node.get_state_set().contains(Atspi.StateType.SHOWING)


class Window:
    def __init__(self, vell, folder, environment, complaints):
        with open(complaints, "ab") as errors:
            self.process = subprocess.Popen([vell, "--folder", str(folder)], env={**os.environ, **environment},
                                            stderr=errors)
        self.application = wait(self.find_application)
        wait(lambda: self.application.get_child_count())

    def find_application(self):
        desktop = Atspi.get_desktop(0)
        children = [desktop.get_child_at_index(i) for i in range(desktop.get_child_count())]
        return next((one for one in children if one and one.get_process_id() == self.process.pid), None)

    def nodes(self, root=None, most=2000):
        """All that can be seen, top down."""
        stack = [root or self.application]
        while stack and most:
            node = stack.pop()
            most -= 1
            yield node
            count = node.get_child_count()
            stack.extend(child for i in reversed(range(min(count, 200))) if (child := node.get_child_at_index(i)))

    def find(self, role, name=None, seconds=30):
        return wait(lambda: next((node for node in self.nodes() if node.get_role_name() == role and is_shown(node)
                                  and (name is None or node.get_name() == name)), None), seconds)

    def texts(self, role="label"):
        return [text_of(node) or node.get_name() for node in self.nodes() if node.get_role_name() == role]

    def table(self):
        return self.find("table", "Clippings")

    def row_count(self):
        return self.table().get_table_iface().get_n_rows()

    def cell(self, row, column):
        return self.table().get_table_iface().get_accessible_at(row, column)

    def marks(self, row):
        return " ".join(text_of(node) for node in self.nodes(self.cell(row, 0))).strip()

    def value(self, name):
        return self.find("progress bar", name).get_value_iface().get_current_value()

    def press(self, *keys, how="key"):
        subprocess.run(["xdotool", "windowfocus", "--sync", self.uppermost(), how, *keys], check=True)

    def type(self, text):
        self.press(text, how="type")

    def push(self, name):
        self.find("push button", name).get_action_iface().do_action(0)

    def window_ids(self):
        found = subprocess.run(["xdotool", "search", "--onlyvisible", "--pid", str(self.process.pid)],
                               capture_output=True, text=True, check=False)
        return found.stdout.split()

    def uppermost(self):
        """The id of the window or dialog in front, once there is one."""
        return wait(self.window_ids)[-1]

    def click(self, node, times=1, button=1):
        """On its middle."""
        place = node.get_component_iface().get_extents(Atspi.CoordType.SCREEN)
        at = [str(place.x + place.width // 2), str(place.y + place.height // 2)]
        subprocess.run(["xdotool", "mousemove", *at, "click", "--repeat", str(times), "--delay", "60", str(button)], check=True)

    def shoot(self, path):
        subprocess.run(["import", "-window", "root", str(path)], check=True)

    def close(self):
        """As the window's own close button does it. The exit code."""
        if self.process.poll() is None:
            self.press("ctrl+q")
        return self.process.wait(30)

    def kill(self):
        if self.process.poll() is None:
            self.process.kill()
            self.process.wait()
