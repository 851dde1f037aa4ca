#!/usr/bin/python3
"""Meets the editor as a screen reader does: reads the tree of its window and hears what is told.

    heard.py EDITOR

The program runs on a screen and on buses of its own. The first thing that is not as it must be ends
the run with exit status 1.
"""
import os
import shutil
import sys
import tempfile
from pathlib import Path

sys.dont_write_bytecode = True

import gi  # noqa: E402

gi.require_version("Atspi", "2.0")
from gi.repository import Atspi, GLib  # noqa: E402

from editor import ABOUT, AREA_SIZE, CONTROLS, FILE_DIALOGS, HELP, QUESTION, Editor  # noqa: E402
from screen import Failure, Rect, Screen  # noqa: E402

SAMPLES = Path(__file__).resolve().parents[2] / "samples"
# Roles of what holds or parts others, in a dialog.
LAYOUT = {"filler", "unknown", "split pane", "layered pane", "panel", "frame"}
NAMED, MOVED, FOCUS, SELECT, SHOW = (
    "property-change:accessible-name", "property-change:accessible-description",
    "state-changed:focused", "state-changed:selected", "state-changed:showing")


def extents(node):
    place = Atspi.Component.get_extents(node, Atspi.CoordType.SCREEN)
    return Rect(place.x, place.y, place.width, place.height)


def has(node, state):
    return node.get_state_set().contains(getattr(Atspi.StateType, state))


def below(node):
    for child in filter(None, map(node.get_child_at_index, range(node.get_child_count()))):
        yield child
        yield from below(child)


def pump():
    while GLib.MainContext.default().iteration(False):
        pass


def check(what, right):
    if not right:
        raise Failure(f"{what}: not so")


class Reader(Editor):
    def __init__(self, screen, program):
        screen.start_bus()
        os.environ.clear()
        os.environ.update(screen.environment)
        Atspi.init()
        self.said = []
        self.listener = Atspi.EventListener.new(self.hear)
        for kind in ("state-changed", "property-change", "children-changed"):
            self.listener.register("object:" + kind)
        super().__init__(screen, program)
        self.tree = Atspi.get_desktop(0)
        self.tree = self.find("application", "terramark")
        # What it says when asked counts, not what its events have said of it.
        self.tree.set_cache_mask(Atspi.Cache.NONE)

    def hear(self, event):
        try:
            self.said.append((event.type.removeprefix("object:"), event.detail1,
                              event.source.get_role_name(), event.source.get_name()))
        except GLib.Error:
            pass  # what told it has gone by now

    def hears(self, act, *wanted):
        """Does something and waits until all that is wanted has been told, in that order."""
        self.said.clear()
        act()

        def heard():
            pump()
            said = iter(self.said)
            return all(want in said for want in wanted)
        try:
            self.wait("", heard)
        except Failure as failure:
            raise Failure(f"{wanted} not told, but {self.said}") from failure

    def find(self, role, name):
        found = []

        def look():
            pump()
            try:
                found.extend(node for node in below(self.tree) if has(node, "SHOWING")
                             and (node.get_role_name(), node.get_name()) == (role, name))
            except GLib.Error:
                pass  # a window was just going
            return found
        self.wait(f"the {role} {name!r} in the tree", look)
        return found[0]

    def items(self):
        return [node for node in below(self.find("list", "Map"))
                if node.get_role_name() == "list item"]

    def check_named(self, role, title):
        self.screen.wait_active(title)
        nameless = {node.get_role_name() for node in below(self.find(role, title))
                    if has(node, "SHOWING") and not node.get_name()}
        check(f"{nameless} in {title} named", nameless <= LAYOUT)

    def read_window(self):
        nodes = [node for node in below(self.tree) if has(node, "SHOWING") and
                 node.get_role_name() not in ("filler", "status bar", "notification")]
        for name in CONTROLS.keys() - {"ArmyAt0", "Continent0"}:
            at = [node for node in nodes if extents(node) == self.control(name)]
            check(f"{name} where it stands, with a name apart from its hint", len(at) == 1 and
                  at[0].get_name() and at[0].get_name() != at[0].get_description())
        named = [node.get_name() for node in nodes if has(node, "FOCUSABLE")]
        check("no two controls of one name", len(named) == len(set(named)))

    def load(self):
        self.hears(lambda: self.choose("LoadMpa", "europe.tml"),
                   (NAMED, 0, "label", "Areas 42"), (NAMED, 0, "label", "Regions 8"))
        button = self.find("push button", "Load a Map Layout")
        labels = [tie.get_target(0).get_name() for tie in button.get_relation_set()]
        check("the button has its name, the file's and its label",
              button.get_description().endswith("/europe.tml") and labels == ["Map Layout"])
        items = self.items()
        names = [item.get_name() for item in items]
        check("50 markers in order", len(names) == 50 and names[1::48] == [
            " 2: Scotland in Region The Isles", " 8:  North Africa"])
        self.areas = {1: (43, 91), 2: (86, 67)}
        check("Ireland in its place", extents(items[0]) == self.marker(self.areas, 1))

    def walk(self):
        items = self.items()
        ireland, scotland, england = (("list item", f" {item} in Region The Isles") for item in (
            "1: Ireland", "2: Scotland", "3: England"))
        self.hears(lambda: self.key("F6"), (FOCUS, 1, "list", "Map"))
        self.hears(lambda: self.key("Home"), (FOCUS, 1, *ireland))
        self.hears(lambda: self.key("Right"), (FOCUS, 0, *ireland), (FOCUS, 1, *scotland))
        check("one focused", [has(item, "FOCUSED") for item in items[:3]] == [False, True, False])
        message = "Area Scotland, Region = The Isles, neighbours = 3, card symbol = SOLDIER"
        self.hears(lambda: self.key("space"), (SELECT, 1, *ireland), (SELECT, 1, *england),
                   (SHOW, 1, "status bar", message))
        check("selected", [has(item, "SELECTED") for item in items[2:5]] == [True, False, True])
        self.key("F6")
        for keys, x, way in ((["Return", "shift+Right"], 10, "held at"), (["Escape"], 0, "at"),
                             (["Return", "Left", "Return"], -1, "at")):
            self.hears(lambda: self.key(*keys), (MOVED, 0, *scotland))
            left, top = self.areas[2]
            corner = ", fill point top left" if way == "at" else ""
            where = f"{way} {left + x}, {top}{corner}, current"
            self.wait(f"Scotland {where}", lambda: items[1].get_description() == where)
            check("it stands there", extents(items[1])[:2] == (
                self.map.left + left + x, self.map.top + top))
        self.hears(lambda: self.key("c"), (MOVED, 0, *scotland),
                   (SHOW, 1, "notification", "fill point top right"))
        check("the corner turned", "fill point top right" in items[1].get_description())
        self.key("F6", "ctrl+a")
        self.hears(lambda: self.key("x"), (NAMED, 0, "list item", " 2: x in Region The Isles"))
        self.hears(lambda: self.key("Up"),
                   (SELECT, 0, "list item", " 5: Norway in Region Scandinavia"))

    def announce(self):
        words = "Can only delete the last Area - Egypt"
        refusal = SHOW, 1, "alert", words
        self.hears(lambda: self.press_control("DelControl"), refusal,
                   (SHOW, 1, "notification", words))
        for _ in range(2):  # also where it is no news
            self.hears(lambda: self.press_control("Cvalid"),
                       (SHOW, 1, "status bar", "This map has no errors"))

        def hover_and_press():
            where = self.marker(self.areas, 1).centre
            self.changes("the help bar", self.control("Helpbar"), lambda: self.move(*where))
            self.find("label", "Help bar 1: Ireland in Region The Isles")
            self.press_control("DelControl")
        # Told again where it is met again; of the help bar, nothing before it.
        self.hears(hover_and_press, refusal)
        check("the help bar silent", all(said[2] != "label" for said in self.said))

    def magnify(self):
        self.key("F6", "ctrl+plus", "ctrl+plus", "Home")
        items = self.items()
        self.wait("a larger marker in view, and one out of it", lambda: has(items[0], "SHOWING") and
                  extents(items[0])[2:] == tuple(3 * side for side in AREA_SIZE) and
                  not has(items[-1], "SHOWING"))

    def lose(self):
        self.press_control("DelAll")
        self.check_named("alert", QUESTION)
        self.hears(lambda: self.answer("alt+y"),
                   *50 * [("children-changed:remove", -1, "list", "Map")])
        check("no marker left", not self.items())

    def open_windows(self):
        for button, title in (*FILE_DIALOGS.items(), ("DBPush1", ABOUT)):
            if button == "SaveCFG":
                continue  # there is no map to save
            self.press_control(button)
            self.check_named("dialog", title)
            self.dialog(title, "key", "Escape")

    def read_help(self):
        self.press_control("Cvalid", ["shift"])
        page = self.find("label", "Help page")
        text = Atspi.Text.get_text(page, 0, -1)
        check("the page's words", text.startswith("Validating a map") and
              page.get_description() == text and has(page, "FOCUSED"))
        self.key("Down")
        self.wait("the caret in the page", lambda: Atspi.Text.get_caret_offset(page) > 0)
        search = "text", "Search in all topics"
        search_box = self.find(*search)
        self.hears(lambda: self.key("ctrl+f"), (FOCUS, 1, *search))
        self.hears(lambda: self.screen.tool("type", "shift"), *5 * [(MOVED, 0, *search)])
        self.key("Return")
        self.wait("the place told", lambda: search_box.get_description().startswith("Place "))
        self.check_named("frame", HELP)
        self.dialog(HELP, "key", "Escape")

    def run(self):
        for part in (self.read_window, self.load, self.walk, self.announce, self.magnify,
                     self.lose, self.open_windows, self.read_help):
            print(part.__name__, flush=True)
            part()


def main():
    program = Path(sys.argv[1]).resolve()
    with tempfile.TemporaryDirectory(prefix="terramark-heard-") as folder:
        os.chdir(shutil.copytree(SAMPLES, folder + "/samples"))
        screen = Screen(folder)
        try:
            Reader(screen, program).run()
        except Failure as failure:
            print("FAILED:", failure)
            sys.exit(Path(screen.log.name).read_text(errors="replace"))
        finally:
            screen.close()


if __name__ == "__main__":
    main()
