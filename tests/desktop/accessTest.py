# SPDX-License-Identifier: MIT
"""The window and every dialog of its menu for whoever does without a mouse, without eyes or with large letters: names,
keys, the way of the keyboard, sizes. In both languages."""
import pathlib
import shutil
import subprocess

from window import Atspi, GLib, is_shown, text_of, wait
from windowCase import WindowCase, run_tests

FIELDS = {"text", "password text", "table", "combo box", "check box", "radio button", "slider", "spin button"}


class AccessTest(WindowCase):
    def setUp(self):
        super().setUp()
        self.put_day("07032004", ["Τα νέα", "Second"])
        (self.clips / "07032004/ALERT.MSG").write_bytes(b"Read http://clippings.example/")
        subprocess.run(["convert", "-size", "200x100", "xc:red", self.folder / "ADVERTISMENT.JPG"], check=True)

    def test_keys_are_unique_and_dialogs_are_named_small_and_begin_in_their_first_field(self):
        for language, pixels in (("", 1), ("el", 2)):
            window = self.start(LANGUAGE=language, GDK_SCALE=str(pixels))
            frame = window.find("frame")
            self.assertTrue(self.fits(frame, pixels))
            self.assertEqual(self.doubled(window.nodes(window.find("menu bar"))), [])
            self.assertEqual(self.doubled(window.nodes(frame), shown=True), [])
            for way in self.ways_to_dialogs(window):
                dialog = self.opened_by(window, way)
                with self.subTest(language=language, dialog=dialog.get_name()):
                    self.assert_sound(window, dialog, pixels)
                window.press("Escape")
                wait(lambda: len(window.window_ids()) == 1)
            self.assertEqual(window.close(), 0)

    def test_whoever_walks_with_tab_sees_and_hears_where_the_keyboard_is(self):
        window = self.start()
        self.assertEqual(self.signless(window), [])
        window.press("ctrl+l")
        for way in self.ways_to_dialogs(window):
            dialog = self.opened_by(window, way)
            if dialog.get_role_name() == "dialog":
                self.assertEqual(self.signless(window), [], dialog.get_name())
            window.press("Escape")
            wait(lambda: len(window.window_ids()) == 1)

    def test_what_has_the_keyboard_has_its_sign_before_the_first_key(self):
        shutil.rmtree(self.clips / "07032004")
        window = self.start()
        window.find("label", "Setup is not complete")
        subprocess.run(["xdotool", "windowfocus", "--sync", window.uppermost()], check=True)
        stop = wait(lambda: next(node for node in window.nodes() if self.has(node, Atspi.StateType.FOCUSED)))
        self.assertEqual(stop.get_name(), "Setup")
        place = self.extents(stop)
        with_keyboard, without = self.home / "with.png", self.home / "without.png"
        window.shoot(with_keyboard)
        window.find("text", "From").get_component_iface().grab_focus()
        wait(lambda: not window.shoot(without) and self.differ(place, "", with_keyboard, without))
        self.assertEqual(window.close(), 0)

    def ways_to_dialogs(self, window):
        """The keys that lead to each, for example ctrl+shift+s, or alt+h and a through the menu."""
        entries = [node for node in window.nodes(window.find("menu bar")) if node.get_name().endswith("...")]
        window.press("F10", *5 * ["Right"], "Escape", "Escape")  # what cannot be done is grey now
        wait(lambda: [len(window.window_ids()) for _ in range(20)] == 20 * [1])  # the menus are gone, not about to come
        for entry in entries:
            if not self.has(entry, Atspi.StateType.SENSITIVE):
                continue
            _, through_menu, accelerator = entry.get_action_iface().get_key_binding(0).split(";")
            keys = (accelerator or through_menu).replace("<Primary>", "ctrl+").replace("<Shift>", "shift+")
            yield keys.replace("<Alt>", "alt+").split(":")

    def opened_by(self, window, way):
        """The dialog, once it has the keyboard. The letter of a menu that a busy machine has not shown yet is lost."""
        dialog = None
        for _ in range(4):
            window.press(*way)
            try:
                dialog = wait(lambda: self.shown_dialog(window), 8)
                break
            except AssertionError:
                window.press("Escape", "Escape")
        self.assertTrue(dialog, way)
        wait(lambda: len(window.window_ids()) == 2)
        wait(lambda: self.give_keyboard(window) or any(self.has(node, Atspi.StateType.FOCUSED)
                                                       for node in window.nodes(dialog)))
        return dialog

    @staticmethod
    def shown_dialog(window):
        tops = window.application
        return next((top for i in range(tops.get_child_count()) if is_shown(top := tops.get_child_at_index(i))
                     and top.get_role_name() in ("dialog", "alert", "file chooser")), None)

    @staticmethod
    def give_keyboard(window):
        """There is no window manager; and a menu that goes just now is waited for."""
        subprocess.run(["xdotool", "windowfocus", window.uppermost()], check=False, stderr=subprocess.DEVNULL)

    def assert_sound(self, window, dialog, pixels):
        self.assertTrue(dialog.get_name())
        if dialog.get_role_name() != "dialog":
            return  # the toolkit's own
        self.assertTrue(self.fits(dialog, pixels))
        nodes = list(window.nodes(dialog))
        stops = [node for node in nodes if self.has(node, Atspi.StateType.FOCUSABLE) and is_shown(node)
                 and node.get_role_name() not in ("table cell", "scroll pane", "dialog")]
        self.assertEqual([node.get_role_name() for node in stops if not self.spoken(node)], [])
        self.assertEqual(self.doubled(nodes, shown=True), [])
        first = next((node for node in stops if self.has(node, Atspi.StateType.FOCUSED)), None)
        if any(node.get_role_name() in FIELDS for node in stops):
            self.assertTrue(first and first.get_role_name() in FIELDS)

    @staticmethod
    def has(node, state):
        return node.get_state_set().contains(state)

    @staticmethod
    def spoken(node):
        if node.get_name():
            return node.get_name()
        labels = [relation.get_target(0) for relation in node.get_relation_set()
                  if relation.get_relation_type() == Atspi.RelationType.LABELLED_BY]
        return any(text_of(label) for label in labels)

    @staticmethod
    def doubled(nodes, shown=False):
        """Mnemonics, with the menus that lead to them, and keys that stand for two things."""
        users = {}
        for node in nodes:
            action = node.get_action_iface()
            if not action or not action.get_n_actions() or (shown and not is_shown(node)):
                continue
            keys = action.get_key_binding(0).split(";")
            for key in {key for key in keys[1:] or keys if key}:
                users.setdefault(key, []).append(node.get_name())
        return [(key, names) for key, names in users.items() if len(names) > 1]

    @staticmethod
    def fits(node, pixels):
        place = node.get_component_iface().get_extents(Atspi.CoordType.SCREEN)
        size = subprocess.run(["xdotool", "getdisplaygeometry"], capture_output=True, text=True, check=True).stdout.split()
        return place.width * pixels <= int(size[0]) and place.height * pixels <= int(size[1])

    def signless(self, window):
        """The stops of Tab that have no name, or look the same with the keyboard and without it."""
        wrong, seen, before = [], set(), None
        for step in range(40):
            stop = self.next_stop(window)
            place = stop.get_component_iface().get_extents(Atspi.CoordType.SCREEN)
            shot = self.home / f"{step % 2}.png"
            window.shoot(shot)
            name = f"{stop.get_role_name()} {self.spoken(stop)}"
            if before and not self.comes_to_differ(window, before, shot):
                wrong.append(before[1])
            if not self.spoken(stop):
                wrong.append(name)
            if (name, place.x, place.y) in seen:
                return wrong
            seen.add((name, place.x, place.y))
            before = (place, name, shot)
        raise AssertionError(f"no end in {seen}")

    def comes_to_differ(self, window, before, shot):
        """A busy machine paints in its own time."""
        try:
            return wait(lambda: self.differ(*before, shot) or window.shoot(shot), 3)
        except AssertionError:
            return False

    def next_stop(self, window):
        """Where Tab leads to. Not every stop can be found by walking down from the window."""
        stops = []
        listener = Atspi.EventListener.new(lambda event: event.detail1 and stops.append(event.source))
        listener.register("object:state-changed:focused")
        window.press("Tab")
        wait(lambda: GLib.MainContext.default().iteration(False) * 0 or stops, 5)
        listener.deregister("object:state-changed:focused")
        return stops[-1]

    @staticmethod
    def differ(place, _name, before, after):
        crop = f"{place.width + 6}x{place.height + 6}+{max(0, place.x - 3)}+{max(0, place.y - 3)}"
        told = subprocess.run(["compare", "-metric", "AE", "-extract", crop, before, after, "null:"], capture_output=True,
                              text=True, check=False)
        return told.stderr.split()[0] != "0"


if __name__ == "__main__":
    run_tests()
