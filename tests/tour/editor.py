"""The editor's window as a person meets it: its controls, the markers on the map, the gestures."""
import re
from pathlib import Path

from screen import Rect

FORM = Path(__file__).resolve().parents[2] / "src/shell/form1controls.cpp"
TITLE = "TERRAMARK 1"
# Titles of the file dialog, by the button that asks.
FILE_DIALOGS = {"LoadMpa": "Load a Map Layout", "LoadMap": "Load a Picture",
                "SaveCFG": "Save a Map Layout"}
QUESTION = "Terramark"
HELP = "Terramark Help"
ABOUT = "About Terramark"

GREEN, RED = 0x008000, 0x800000
BLACK, WHITE, GREY = 0x000000, 0xFFFFFF, 0x808080
# The background of a marker, and how much of it a number and a name leave to be seen.
LOOKS = {"plain": BLACK, "current": WHITE, "marked": GREY}
NUMBER_SHARE, NAME_SHARE = 45, 30

TWIPS = 15  # per pixel
AREA_SIZE = 32, 16
HOLD = 8  # where in a marker the mouse takes hold, from its left and top edge
WINDOW = Rect(0, 0, 843, 599)
BARE_FORM = Rect(700, 500, 1, 1)  # a place of the window where nothing stands

# From the editor's own table, by name, and in an array by name and index: the frame that a control
# stands in, and its left, top, width and height in pixels.
CONTROLS = {
    name + index: (frame, [int(int(twips) / TWIPS + 0.5) for twips in at])
    for name, index, frame, *at in re.findall(
        r'{(?:ControlOf|Make)<&Form1::(\w+)(?:, (\d))?>, +".*?", +\d+, +'
        r'(?:Itself|ControlOf<&Form1::(\w+)>),'
        r" +(\d+), +(\d+), +(\d+), +(\d+)", FORM.read_text("utf-8"))}
if not CONTROLS:
    raise LookupError(f"{FORM}: no row of the control table is as editor.py reads it")


def place_of(name):
    """Where a control stands in the window."""
    frame, place = CONTROLS[name]
    return Rect(*place).moved(*(place_of(frame)[:2] if frame else (0, 0)))


class Editor:
    WINDOWS = "^terramark$"  # the instance part of the class that all its windows have

    def __init__(self, screen, program):
        self.screen = screen
        self.wait = screen.wait
        self.process = screen.start([program])
        self.back()
        self.origin = screen.corner()
        self.areas, self.regions = {}, {}  # where the markers stand on the map, by number
        self.park()
        self.wait_share("the message bar", self.control("Message"), GREEN, 60)

    # Places on the screen.

    def control(self, name):
        return place_of(name).moved(*self.origin)

    @property
    def map(self):
        return self.control("Picture1")

    def marker(self, markers, number):
        """A marker of self.areas or self.regions; of a Region's only the part that all have."""
        return Rect(*markers[number], *AREA_SIZE).moved(*self.map[:2])

    # Looking.

    def changes(self, what, rect, act):
        """Does something and waits until a part of the screen looks different."""
        before = self.screen.look(rect)
        act()
        self.wait(what, lambda: self.screen.look(rect) != before)

    def wait_share(self, what, rect, colour, percent):
        wanted = percent * rect.width * rect.height
        self.wait(f"{what} in {colour:06X}",
                  lambda: 100 * self.screen.count(rect, colour) >= wanted)

    def wait_look(self, look, areas=(), regions=()):
        for markers, numbers, share in ((self.areas, areas, NUMBER_SHARE),
                                        (self.regions, regions, NAME_SHARE)):
            for number in numbers:
                self.wait_share(f"marker {number} {look}", self.marker(markers, number).inner(1),
                                LOOKS[look], share)

    def says(self, colour, act):
        """Does something and waits until the message bar says something new in the colour."""
        bar = self.control("Message").inner(1)
        whole = bar.width * bar.height
        self.changes("a message", bar, act)
        self.wait(f"a text on {colour:06X} in the message bar",
                  lambda: 0.6 * whole <= self.screen.count(bar, colour) < whole)

    def wait_blank_bar(self):
        self.wait_share("a blank message bar", self.control("Message").inner(1), GREEN, 100)

    def shows(self, x, y, colour):
        """Whether a pixel of the map has a colour."""
        return self.screen.count(Rect(x, y, 1, 1).moved(*self.map[:2]), colour) == 1

    # Mouse and keys.

    def back(self):
        """The window has the keyboard and is alone: a list that a dialog leaves behind for a moment
        would still swallow a press."""
        self.screen.wait_active(TITLE)
        self.wait("all dialogs gone", lambda: len(self.screen.tool(
            "search", "--onlyvisible", "--classname", self.WINDOWS, check=False).split()) == 1)

    def park(self):
        """Moves the pointer out of the way; tips over the boxes go away."""
        self.move(*BARE_FORM.moved(*self.origin).centre)

    def move(self, x, y):
        self.screen.tool("mousemove", x, y)

    def press(self, x, y, keys=(), button=1):
        down = [word for key in keys for word in ("keydown", key)]
        up = [word for key in keys for word in ("keyup", key)]
        self.screen.tool("mousemove", x, y, *down, "click", button, *up)

    def press_control(self, name, keys=()):
        self.press(*self.control(name).centre, keys)

    def press_map(self, x, y, keys=()):
        self.press(self.map.left + x, self.map.top + y, keys)

    def press_marker(self, markers, number, keys=(), button=1):
        rect = self.marker(markers, number)
        self.press(rect.left + HOLD, rect.top + HOLD, keys, button)
        self.park()

    def press_area(self, number, keys=()):
        self.press_marker(self.areas, number, keys)

    def key(self, *keys):
        self.screen.tool("key", *keys)

    def write(self, text):
        """Into the box that has the keyboard, in place of what stands there."""
        self.screen.tool("key", "ctrl+a", "type", text)

    def fill(self, name, text):
        self.press_control(name)
        self.write(text)
        self.park()

    # Markers in the air.

    def lift(self, rect):
        self.move(rect.left + HOLD, rect.top + HOLD)
        self.screen.tool("mousedown", 1)

    def carry(self, left, top):
        """Moves what is held until its corner is at a place of the map, and sees it there."""
        # The pointer itself hides what is right of the hold.
        seen = Rect(left, top, HOLD - 2, AREA_SIZE[1]).moved(*self.map[:2])
        self.changes(f"the marker in the air at {left}, {top}", seen,
                     lambda: self.move(seen.left + HOLD, seen.top + HOLD))

    def drop(self):
        self.screen.tool("mouseup", 1)
        self.park()

    def drag(self, markers, number, to, via=()):
        """Drags a marker to a place on the map, by way of controls."""
        self.lift(self.marker(markers, number))
        for name in via:
            self.move(*self.control(name).centre)
        self.carry(*to)
        self.drop()
        markers[number] = to

    # Dialogs.

    def dialog(self, title, *words):
        """Closes the dialog that is up, or will be, by words for xdotool."""
        self.screen.wait_active(title)
        self.screen.tool(*words)
        self.back()
        self.park()

    def choose(self, button, name):
        """Presses a button that asks for a file, and types its name."""
        self.press_control(button)
        self.name_file(button, name)

    def name_file(self, button, name):
        """In the dialog that the button brings up."""
        self.screen.wait_active(FILE_DIALOGS[button])
        self.screen.tool("type", name)
        self.dialog(FILE_DIALOGS[button], "key", "Return")

    def answer(self, key):
        """Answers the question that is up: alt+y is Yes, Escape No, whatever Return would mean."""
        self.dialog(QUESTION, "key", key)
