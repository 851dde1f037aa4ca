"""The editor's window as a person meets it: its controls, the markers on the map, the gestures."""
from screen import Rect

TITLE = "TERRAMARK 1"
FILE_DIALOG = "Choose a File"
QUESTION = "Terramark"
HELP = "Terramark Help"
ABOUT = "About Terramark"

GREEN, RED = 0x008000, 0x800000
BLACK, WHITE, GREY = 0x000000, 0xFFFFFF, 0x808080
LOOKS = {"plain": BLACK, "current": WHITE, "marked": GREY}

TWIPS = 15  # per pixel
AREA_SIZE = 32, 16
HOLD = 8  # where in a marker the mouse takes hold, from its left and top edge


def _pixels(twips):
    return int(twips / TWIPS + 0.5)


def _place(left, top, width, height, frame=(0, 0)):
    return Rect(_pixels(left), _pixels(top), _pixels(width), _pixels(height)).moved(
        *map(_pixels, frame))


_COLOURS, _RGB = (8220, 2070), (8220, 3750)

# The controls that the tour uses, in twips from the window's inside.
CONTROLS = {
    "Text1":     _place(0, 0, 8175, 315),
    "EditText":  _place(0, 288, 2145, 315),
    "Symb":      _place(2145, 288, 300, 315),
    "Armypc":    _place(2445, 288, 390, 315),
    "Helpbar":   _place(2835, 300, 5340, 300),
    "Message":   _place(0, 600, 8175, 270),
    "Picture1":  _place(0, 864, 8196, 4620),
    "LoadMpa":   _place(48, 5820, 2295, 255),
    "LoadMap":   _place(48, 6435, 2295, 255),
    "Cvalid":    _place(2430, 5580, 2295, 255),
    "SaveCFG":   _place(2430, 5865, 2295, 255),
    "DelAll":    _place(2430, 6150, 2295, 255),
    "DBPush1":   _place(2430, 6435, 2295, 255),
    "RefMap":    _place(4770, 5580, 2295, 255),
    "SwapTer":   _place(4770, 5865, 2295, 255),
    "ClearLink": _place(4770, 6150, 2295, 255),
    "DelControl": _place(4770, 6435, 2295, 255),
    "AddTer":    _place(7110, 5580, 2295, 255),
    "AddCont":   _place(7110, 5865, 2295, 255),
    "MakeNeibor": _place(7110, 6150, 2295, 255),
    "SetCont":   _place(7110, 6435, 2295, 255),
    "Quit":      _place(8220, 90, 1215, 255),
    "Countx0":   _place(60, 450, 1080, 210, (8220, 660)),
    "Countx1":   _place(60, 930, 1080, 210, (8220, 660)),
    "PlColor0":  _place(60, 240, 1100, 255, _COLOURS),
    "PlColor4":  _place(60, 1260, 1100, 255, _COLOURS),
    "RGBFrame":  _place(8220, 3750, 1215, 1695),
    "ColBar0":   _place(120, 240, 204, 1284, _RGB),
    "ColBar1":   _place(510, 240, 200, 1284, _RGB),
    "ColBar2":   _place(840, 240, 200, 1284, _RGB),
}
WINDOW = _place(0, 0, 12645, 8985)
BARE_FORM = 700, 500  # a place of the window where nothing stands


class Editor:
    def __init__(self, screen, program, folder):
        self.screen = screen
        self.process = screen.start(program, folder)
        window = screen.wait("the window", lambda: screen.window(TITLE))
        self.back()
        self.origin = screen.corner(window)
        self.areas, self.regions = {}, {}  # where the markers stand on the map, by number
        self.park()
        self.wait_bar(GREEN)

    # Places on the screen.

    def control(self, name):
        return CONTROLS[name].moved(*self.origin)

    @property
    def window(self):
        return WINDOW.moved(*self.origin)

    @property
    def map(self):
        return self.control("Picture1")

    def marker(self, markers, number):
        """A marker of self.areas or self.regions; of a Region's only the part that all have."""
        return Rect(*markers[number], *AREA_SIZE).moved(self.map.left, self.map.top)

    # Looking.

    def wait(self, what, seen):
        return self.screen.wait(what, seen)

    def changes(self, what, rect, act):
        """Does something and waits until a part of the screen looks different."""
        before = self.screen.look(rect)
        act()
        self.wait(what, lambda: self.screen.look(rect) != before)

    def wait_share(self, what, rect, colour, percent):
        wanted = percent * rect.width * rect.height
        self.wait(what, lambda: 100 * self.screen.count(rect, colour) >= wanted)

    def wait_look(self, look, areas=(), regions=()):
        for number in areas:
            self.wait_share(f"Area {number} {look}", self.marker(self.areas, number).inner(1),
                            LOOKS[look], 45)
        for number in regions:  # a name covers more of its marker than a number
            self.wait_share(f"Region {number} {look}", self.marker(self.regions, number).inner(1),
                            LOOKS[look], 30)

    def wait_bar(self, colour):
        self.wait_share(f"the message bar in {colour:06X}", self.control("Message"), colour, 60)

    def says(self, colour, act):
        """Does something and waits until the message bar says something new in the colour."""
        bar = self.control("Message").inner(1)
        self.changes("a message", bar, act)
        self.wait_bar(colour)
        self.wait("a text in the message bar", lambda: not self._blank(bar, colour))

    def wait_blank_bar(self):
        bar = self.control("Message").inner(1)
        self.wait("a blank message bar", lambda: self._blank(bar, GREEN))

    def _blank(self, rect, colour):
        return self.screen.count(rect, colour) == rect.width * rect.height

    def flooded(self):
        """Pixels of the map painted by Validate Map."""
        return self.screen.count(self.map, RED)

    def map_colour(self, x, y):
        return self.screen.colour(self.map.left + x, self.map.top + y)

    # Mouse and keys.

    def back(self):
        """The window has the keyboard and is alone: a list that a dialog leaves behind for a moment
        would still swallow a press."""
        self.screen.wait_active(TITLE)
        self.wait("all dialogs gone", lambda: len(self.screen.windows("terramark")) == 1)

    def park(self):
        """Moves the pointer out of the way; tips over the boxes go away."""
        self.move(*self._on_form(BARE_FORM))

    def _on_form(self, point):
        return point[0] + self.origin[0], point[1] + self.origin[1]

    def move(self, x, y):
        self.screen.tool("mousemove", x, y)

    def press(self, x, y, keys=(), button=1):
        down = [word for key in keys for word in ("keydown", key)]
        up = [word for key in keys for word in ("keyup", key)]
        self.screen.tool("mousemove", x, y, *down, "click", button, *up)

    def press_control(self, name, keys=(), button=1):
        self.press(*self.control(name).centre, keys, button)

    def press_map(self, x, y, keys=()):
        self.press(self.map.left + x, self.map.top + y, keys)

    def press_area(self, number, keys=(), button=1):
        self._press_marker(self.marker(self.areas, number), keys, button)

    def press_region(self, number, keys=()):
        self._press_marker(self.marker(self.regions, number), keys, 1)

    def _press_marker(self, rect, keys, button):
        self.press(rect.left + HOLD, rect.top + HOLD, keys, button)
        self.park()

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
        x, y = self.map.left + left, self.map.top + top
        # The pointer itself hides what is right of the hold.
        self.changes(f"the marker in the air at {left}, {top}",
                     Rect(x, y, HOLD - 2, AREA_SIZE[1]), lambda: self.move(x + HOLD, y + HOLD))

    def drop(self):
        self.screen.tool("mouseup", 1)
        self.park()

    def drag(self, markers, number, to, via=()):
        """Drags a marker to a place on the map, by way of places of the window's inside."""
        self.lift(self.marker(markers, number))
        for point in via:
            self.move(*self._on_form(point))
        self.carry(*to)
        self.drop()
        markers[number] = to

    # Files.

    def choose(self, button, name):
        """Presses a button that asks for a file, and types its name."""
        self.press_control(button)
        self.screen.wait_active(FILE_DIALOG)
        self.screen.tool("type", name)
        self.key("Return")
        self.back()
        self.park()

    def answer(self, key):
        """Answers the question that is up: Return is Yes, Escape is No."""
        self.screen.wait_active(QUESTION)
        self.key(key)
        self.back()
