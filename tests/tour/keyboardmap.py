"""The same six lands as with the mouse, made from the keyboard alone."""
import re

from editor import CONTROLS, GREEN, QUESTION, Editor

# Where the Tab key stops, from the map backwards: all the way round, but for the boxes behind the
# map. The bars are among the stops only while a colour is being mixed.
ORDER = [name for name in CONTROLS
         if not re.match("Label|Countx|Frame|RGBFrame|Message|Helpbar|ArmyAt|Continent", name)]
AT_MAP = ORDER.index("Picture1")
STOPS = ORDER[:AT_MAP][::-1] + ORDER[AT_MAP + 1:][::-1]
NEW_AREA = 273, 138  # where Ctrl and Enter put one: its bottom left corner in the view's middle
NEW_REGION = 48, 163
AREAS = (  # place, turns of the fill corner, name, card symbol, Region, neighbours
    ((85, 201), 0, "Spain", "h", 1, [2]), ((130, 164), 0, "Provence", "g", 1, [1, 3]),
    ((130, 129), 0, "Paris", "g", 1, [2, 4]), ((180, 112), 0, "Germany", "s", 2, [3, 5, 6]),
    ((240, 100), 2, "Poland", "h", 2, [4, 6]), ((225, 117), 0, "Bohemia", "s", 2, [4, 5]))
REGIONS = ((8, 160), "West", "7"), ((200, 76), "Middle", "12")


class KeyboardMap(Editor):
    on_map = False  # whether the map has the keyboard

    def to_map(self):
        if not self.on_map:
            self.key("F6")
        self.on_map = True

    def to_control(self, name, mixing=False):
        self.to_map()
        stops = [stop for stop in STOPS if mixing or not stop.startswith("ColBar")]
        self.key(*["shift+Tab"] * (stops.index(name) + 1))
        self.on_map = False

    def push(self, name):
        self.to_control(name)
        self.key("space")

    def ring(self, number):
        """Takes the marker cursor to an Area, or behind the Areas to a Region."""
        self.to_map()
        self.key("Home", *["Right"] * (number - 1))

    def select_area(self, number):
        self.ring(number)
        self.says(GREEN, lambda: self.key("space"))
        self.on_map = False

    def select_region(self, number):
        self.ring(len(self.areas) + number)
        self.says(GREEN, lambda: self.key("space"))

    def flip(self, numbers):
        for number in numbers:
            self.ring(number)
            self.key("shift+space")

    def carry_by_keys(self, start, end):
        """Takes hold of the marker at the cursor, and carries it from one place to another."""
        keys = []
        for way, back, forth in zip(range(2), ("Left", "Up"), ("Right", "Down")):
            travel = end[way] - start[way]
            arrow = forth if travel > 0 else back
            keys += ["shift+" + arrow] * (abs(travel) // 10) + [arrow] * (abs(travel) % 10)
        self.key("Return", *keys)

    def drop_by_keys(self):
        self.key("Return")

    def map_from_keyboard(self):
        self.step("Once more from the keyboard alone: clear, load a picture, write a header")
        self.push("DelAll")
        self.dialog(QUESTION, "key", "alt+y")
        self.push("LoadMap")
        self.name_file("LoadMap", "europe.bmp")
        self.to_control("Text1")
        self.write("Six lands")
        self.areas, self.regions = {}, {}
        self.place_by_keys()
        self.name_by_keys()
        self.link_by_keys()
        self.colour_by_keys()
        self.to_map()
        self.key("Escape")
        self.on_map = False
        self.wait_look("plain", self.areas, self.regions)
        self.says(GREEN, lambda: self.push("Cvalid"))
        self.shot("keyboard")

    def place_by_keys(self):
        self.step("Add Areas and Regions, and carry them into place, one of them magnified")
        self.to_map()
        for number, (place, turns, *_) in enumerate(AREAS, 1):
            self.key("ctrl+Return", *["c"] * turns)
            if number == 1:
                self.key("ctrl+plus", "ctrl+plus", "ctrl+plus")
            self.carry_by_keys(NEW_AREA, place)
            if number == 1:
                self.shot("carried")
                self.key("ctrl+0")
            self.drop_by_keys()
            self.areas[number] = place
            self.wait_look("plain", [number])
        for number, (place, name, armies) in enumerate(REGIONS, 1):
            self.says(GREEN, lambda: self.push("AddCont"))
            self.to_map()
            self.carry_by_keys(NEW_REGION, place)
            self.drop_by_keys()
            self.regions[number] = place
            self.key("Tab")
            self.write(name)
            self.key(*["Tab"] * 5)
            self.write(armies)
            self.on_map = False
            self.wait_look("current", regions=[number])

    def name_by_keys(self):
        self.step("Names, card symbols")
        for number, (_, _, name, symbol, *_) in enumerate(AREAS, 1):
            self.select_area(number)
            self.screen.tool("type", name)
            self.key("Tab")
            self.says(GREEN, lambda: self.write(symbol))

    def link_by_keys(self):
        self.step("Regions and neighbours")
        for region in range(1, len(REGIONS) + 1):
            self.select_region(region)
            self.flip(number for number, area in enumerate(AREAS, 1) if area[4] == region)
            self.says(GREEN, lambda: self.push("SetCont"))
        for number, (*_, neighbours) in enumerate(AREAS, 1):
            self.select_area(number)
            # The link back is there already.
            self.flip(other for other in neighbours if other > number)
            self.says(GREEN, lambda: self.push("MakeNeibor"))

    def colour_by_keys(self):
        self.step("Colours")
        for region, moves in ((1, [("ColBar1", "Home", "Next", "Next", "Next"),
                                   ("ColBar2", "Home")]),
                              (2, [("ColBar0", "Home"), ("ColBar2", "Prior")])):
            self.select_region(region)
            self.key("Tab", "Tab", "space")
            self.on_map = False
            self.mix(moves)
        self.push_mixing("PlColor0")
        self.mix([("ColBar2", "End")])

    def push_mixing(self, name):
        self.to_control(name, mixing=True)
        self.key("space")

    def mix(self, moves):
        for bar, *keys in moves:
            self.to_control(bar, mixing=True)
            self.key(*keys)
