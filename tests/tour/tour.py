#!/usr/bin/env python3
"""Plays the life of a map in the real window, with the mouse and the keyboard.

    tour.py EDITOR OUTPUT

EDITOR is the program; the screenshots and the saved layouts go into the folder OUTPUT. Works in a
copy of the samples. Every step waits for what it must bring about; the first that does not ends the
tour with exit status 1.
"""
import os
import re
import shutil
import sys
import tempfile
import time
from itertools import zip_longest
from pathlib import Path

sys.dont_write_bytecode = True

from editor import (ABOUT, BLACK, FILE_DIALOGS, GREEN, HELP, QUESTION, RED, WHITE,  # noqa: E402
                    WINDOW)
from keyboardmap import KeyboardMap  # noqa: E402
from screen import LIMIT, Failure, Screen  # noqa: E402

HERE = Path(__file__).resolve().parent
SEA = 20, 100  # on the map, where no marker stands
SEA_COLOUR = 0xB0D0EC


class Tour(KeyboardMap):
    def __init__(self, screen, program, output):
        self.output = output
        self.began = time.monotonic()
        self.shots = 0
        super().__init__(screen, program)

    def step(self, text):
        print(f"{time.monotonic() - self.began:6.1f} s  {text}", flush=True)

    def shot(self, name):
        self.shots += 1
        self.screen.save(self.output / f"{self.shots:02}-{name}.png", WINDOW.moved(*self.origin))

    def full_name(self, name):
        """Of a file in the current folder, as the editor writes it into a layout."""
        return os.path.abspath(name)

    def save_and_compare(self, name, expected, picture):
        self.choose("SaveCFG", name)
        self.compare(name, expected, picture)

    def compare(self, name, expected, picture):
        """All lines but the time stamp are as expected; line 4 is the path of the picture."""
        self.wait(f"the file {name}", lambda: os.path.exists(name))
        self.wait_blank_bar()
        shutil.copy(name, self.output)
        got, want = (Path(file).read_bytes().split(b"\r\n") for file in (name, expected))
        want[1], want[3] = got[1], self.full_name(picture).encode()
        for pair in zip_longest(got, want):
            if len(set(pair)) > 1:
                raise Failure("{}: {!r} instead of {!r}".format(name, *pair))

    # A map that is there already.

    def load_sample(self):
        self.step("Load the sample layout")
        self.choose("LoadMpa", "europe.tml")
        # Number and place of each marker; number 0 is none.
        self.areas, self.regions = (
            {int(number): (int(x), int(y)) for number, x, y in
             re.findall(rb"\n([1-9]\d*),(\d+),(\d+)(?=\r)", part)}
            for part in Path("europe.tml").read_bytes().split(b"X,Y Coordinates for ")[1:])
        self.wait_look("plain", self.areas, self.regions)
        self.wait("the sea", lambda: self.shows(*SEA, SEA_COLOUR))
        self.shot("loaded")

    def select(self):
        self.step("Select an Area: its neighbours are marked")
        self.says(GREEN, lambda: self.press_area(15))
        self.wait_look("current", [15])
        self.wait_look("marked", [10, 14, 16, 17, 18])
        self.shot("area")
        self.step("Walk through the Areas with the arrow keys")
        self.says(GREEN, lambda: self.key("Up"))
        self.wait_look("current", [16])
        self.wait_look("marked", [15, 17, 25, 26, 27])
        self.wait_look("plain", [10, 14, 18])
        self.says(GREEN, lambda: self.key("Down", "Down"))
        self.wait_look("current", [14])
        self.step("Select a Region: its Areas are marked; walk on to the next")
        self.says(GREEN, lambda: self.press_marker(self.regions, 4))
        self.wait_look("current", regions=[4])
        self.wait_look("marked", range(14, 20))
        self.says(GREEN, lambda: self.key("Up"))
        self.wait_look("current", regions=[5])
        self.wait_look("marked", range(20, 25))
        self.wait_look("plain", range(14, 20), [4])
        self.shot("region")

    def look_around(self):
        self.step("The help bar tells what is under the pointer")
        bar = self.control("Helpbar")
        for number in (1, 42):
            where = self.marker(self.areas, number)
            self.changes("the help bar", bar, lambda: self.move(*where.centre))
        self.changes("the help bar", bar, self.park)
        self.step("The Shift key on a button opens its help and runs no command")
        before = self.screen.look(self.map)
        self.press_control("Cvalid", ["shift"])
        self.dialog(HELP, "key", "Escape")
        self.wait("the map as it was", lambda: self.screen.look(self.map) == before)
        self.step("The about box opens and closes")
        self.press_control("DBPush1")
        self.screen.wait_active(ABOUT)
        self.shot("about")
        self.dialog(ABOUT, "key", "space")

    def another_picture(self):
        self.step("Load the same picture as a metafile, save under a new name, and compare")
        self.choose("LoadMap", "europe.wmf")
        self.save_and_compare("copy.tml", "europe.tml", "europe.wmf")
        self.wait_look("plain", self.areas, self.regions)

    # A map from nothing.

    def clear(self):
        self.step("Clear the whole map: first No, then Yes")
        self.press_control("DelAll")
        self.answer("Escape")
        self.wait_look("plain", self.areas, self.regions)
        self.clear_map()

    def clear_map(self):
        self.press_control("DelAll")
        self.answer("alt+y")
        self.wait_share("an empty map", self.map, WHITE, 100)

    def begin(self):
        self.step("Load a picture, write a header")
        self.choose("LoadMap", "europe.bmp")
        self.wait("the sea", lambda: self.shows(*SEA, SEA_COLOUR))
        self.changes("the header", self.control("Text1"), lambda: self.fill("Text1", "Six lands"))

    def add_areas(self):
        self.step("Add three Areas with the Ctrl key, each at its fill point")
        self.areas, self.regions = {}, {}
        for number, (x, y) in enumerate([(80, 220), (130, 180), (130, 145)], 1):
            self.add_at(number, x, y)
        self.step("Add three more with the button and drag them into place")
        # One of them goes by way of the button Exit, outside the map.
        for number, to, *via in ((4, (180, 112)), (5, (216, 125), "Quit"), (6, (240, 100))):
            self.changes("the number of Areas", self.control("Countx0"),
                         lambda: self.press_control("AddTer"))
            self.areas[number] = self.areas[number - 1]
            self.drag(self.areas, number, to, via)
            self.wait_look("plain", [number - 1, number])
        self.step("A short drag; and one that Escape ends")
        self.drag(self.areas, 1, (85, 201))
        self.wait_look("plain", [1])
        away = self.marker({2: (20, 40)}, 2)
        before = self.screen.look(away)
        self.lift(self.marker(self.areas, 2))
        self.carry(20, 40)
        self.key("Escape")
        self.drop()
        self.wait("no marker there", lambda: self.screen.look(away) == before)
        self.wait_look("plain", [2])
        self.step("Turn the fill corners with the right button")
        for number in (5, 5, 5, 6, 6):
            self.changes("the corner", self.marker(self.areas, number),
                         lambda: self.press_marker(self.areas, number, button=3))

    def add_at(self, number, x, y):
        """A press with Ctrl on the map; the new marker's bottom left corner lies there."""
        self.changes("the number of Areas", self.control("Countx0"),
                     lambda: self.press_map(x, y, ["ctrl"]))
        self.park()
        self.areas[number] = x, y - 16
        self.wait_look("plain", [number])

    def add_regions(self):
        self.step("Add two Regions, place and name them, give them armies")
        for number, to, name, armies in ((1, (8, 160), "West", "7"),
                                         (2, (200, 76), "Middle", "12")):
            self.says(GREEN, lambda: self.press_control("AddCont"))
            self.regions[number] = 48, 163
            self.wait_look("current", regions=[number])
            self.drag(self.regions, number, to)
            self.wait_look("current", regions=[number])
            self.changes("the Region's name", self.marker(self.regions, number),
                         lambda: self.fill("EditText", name))
            self.changes("the armies", self.control("Armypc"), lambda: self.fill("Armypc", armies))

    def name_areas(self):
        self.step("Name the Areas and give them card symbols")
        for number, name, symbol in ((1, "Spain", "h"), (2, "Provence", "g"), (3, "Paris", "x"),
                                     (4, "Germany", "s"), (5, "Poland", "h"), (6, "Bohemia", "g")):
            self.name_area(number, name, symbol)
        self.shot("placed")

    def name_area(self, number, name, symbol):
        self.says(GREEN, lambda: self.press_area(number))
        # The old name is marked and gives way.
        self.says(GREEN, lambda: self.screen.tool("type", name))
        self.says(GREEN, lambda: self.fill("Symb", symbol))

    def set_region(self, region, areas):
        """Marks the Areas that the Region lacks, and makes them its own."""
        self.says(GREEN, lambda: self.press_marker(self.regions, region))
        for area in areas:
            self.press_area(area, ["shift"])
        self.wait_look("marked", areas)
        self.says(GREEN, lambda: self.press_control("SetCont"))

    def set_neighbours(self, area, flipped, neighbours):
        """Flips marks, and makes the marked Areas the neighbours of the Area."""
        self.says(GREEN, lambda: self.press_area(area))
        for other in flipped:
            self.press_area(other, ["shift"])
        self.wait_look("current", [area])
        self.wait_look("marked", neighbours)
        self.says(GREEN, lambda: self.press_control("MakeNeibor"))

    def link(self):
        self.step("Set Region for both Regions, Set Neighbours for each Area")
        self.set_region(1, [1, 2, 3])
        self.set_region(2, [4, 5, 6])
        for links in ((1, [2], [2]), (2, [3], [1, 3]), (3, [4], [2, 4]), (4, [5, 6], [3, 5, 6]),
                      (5, [6], [4, 6]), (6, [], [4, 5])):
            self.set_neighbours(*links)
        self.shot("linked")

    def validate(self):
        self.step("A link is taken off on one side: Validate Map says so, and paints nothing")
        self.set_neighbours(3, [4], [2])
        self.says(RED, lambda: self.press_control("Cvalid"))
        self.shot("fault")
        if self.screen.count(self.map, RED):
            raise Failure("a map with a fault was flooded")
        self.step("Mended: the map is good and its lands are flooded, the sea is not")
        self.set_neighbours(3, [4], [2, 4])
        self.says(GREEN, lambda: self.press_control("Cvalid"))
        # At places that no marker hides.
        for land in ((95, 230), (140, 188), (122, 150), (200, 105), (252, 136), (230, 100)):
            self.wait(f"paint at {land}", lambda: self.shows(*land, RED))
        for other in (SEA, (100, 110), (160, 270), (300, 150)):
            if self.shows(*other, RED) or self.shows(*other, BLACK):
                raise Failure(f"paint escaped to {other}")
        self.shot("flooded")
        self.step("A press on the sea brings the clean picture back")
        self.press_map(*SEA)
        self.wait("the clean picture", lambda: self.screen.count(self.map, RED) == 0)
        self.wait_blank_bar()
        self.wait_look("plain", self.areas, self.regions)

    def swap(self):
        self.step("Poland and Bohemia stand in each other's place: swap them, once")
        self.press_area(5, ["shift"])
        self.press_area(6, ["shift"])
        self.wait_look("marked", [5, 6])
        self.says(GREEN, lambda: self.press_control("SwapTer"))
        self.areas[5], self.areas[6] = self.areas[6], self.areas[5]
        self.wait_look("plain", [5, 6])
        self.says(RED, lambda: self.press_control("SwapTer"))

    def delete(self):
        self.step("Delete the last Area: refused until its links are cleared")
        self.says(GREEN, lambda: self.press_area(6))
        self.says(RED, lambda: self.press_control("DelControl"))
        self.says(GREEN, lambda: self.press_control("ClearLink"))
        self.says(GREEN, lambda: self.press_area(6))
        self.press_control("DelControl")
        self.changes("the number of Areas", self.control("Countx0"), lambda: self.answer("alt+y"))
        self.step("Five Areas are no good map; make the sixth anew")
        self.says(RED, lambda: self.press_control("Cvalid"))
        self.shot("five")
        self.add_at(6, 225, 133)
        self.name_area(6, "Bohemia", "s")
        self.set_region(2, [6])
        self.set_neighbours(6, [4, 5], [4, 5])

    def paint(self):
        self.step("Colours by the scroll bars: two Regions and a player")
        self.says(GREEN, lambda: self.press_marker(self.regions, 1))
        self.take_colour("PlColor4", 0xFFFFFF)
        self.slide("ColBar1", up=True, shows=0xFF00FF)
        self.slide("ColBar2", up=True, shows=0xFF0000)
        for value in (16, 32, 48):
            self.page("ColBar1", down=True, shows=0xFF0000 | value << 8)
        self.says(GREEN, lambda: self.press_marker(self.regions, 2))
        self.take_colour("PlColor4", 0xFFFFFF)
        self.slide("ColBar0", up=True, shows=0x00FFFF)
        self.page("ColBar2", down=False, shows=0x00FFF0)
        self.take_colour("PlColor0", 0x00FF00)
        self.slide("ColBar2", up=False, shows=0x00FFFF)
        self.press_map(*SEA)
        self.wait_look("plain", self.areas, self.regions)
        for colour, areas, region in ((0xFF3000, (1, 2, 3), 1), (0x00FFF0, (4, 5, 6), 2)):
            for rect in [self.marker(self.areas, area) for area in areas] + [
                    self.marker(self.regions, region)]:
                self.wait_share("a marker", rect, colour, 0.1)
        self.shot("coloured")

    def take_colour(self, button, colour):
        """Makes the scroll bars show the colour of a button."""
        self.target = self.control(button)
        self.wait_share("the button", self.target, colour, 40)
        self.changes("the scroll bars", self.control("RGBFrame"),
                     lambda: self.press_control(button))

    def slide(self, bar, up, shows):
        """Drags a thumb from one end of its bar to the other."""
        rect = self.control(bar)
        x, middle = rect.centre
        bottom = rect.top + rect.height
        self.screen.tool("mousemove", x, bottom - 22 if up else rect.top + 22, "mousedown", 1)
        self.screen.tool("mousemove", x, middle)
        self.screen.tool("mousemove", x, rect.top if up else bottom - 1, "mouseup", 1)
        self.wait_share("the button", self.target, shows, 40)

    def page(self, bar, down, shows):
        """A press beside the thumb."""
        rect = self.control(bar)
        self.press(rect.centre[0], rect.top + (rect.height - 24 if down else 24))
        self.wait_share("the button", self.target, shows, 40)

    def finish(self):
        self.step("Validate once more, by the keyboard alone")
        self.press_control("LoadMap")
        self.dialog(FILE_DIALOGS["LoadMap"], "key", "Escape")
        self.says(GREEN, lambda: self.key("Tab", "space"))
        self.step("Save, and compare with the layout that must come out")
        self.save_and_compare("lands.tml", HERE / "expected.tml", "europe.bmp")
        self.step("Clear, load the saved layout, and save that: nothing is lost")
        self.clear_map()
        self.choose("LoadMpa", "lands.tml")
        self.wait_look("plain", self.areas, self.regions)
        self.shot("again")
        self.save_and_compare("again.tml", "lands.tml", "europe.bmp")

    def from_keyboard(self):
        self.map_from_keyboard()
        self.push("SaveCFG")
        self.name_file("SaveCFG", "keyboard.tml")
        self.compare("keyboard.tml", HERE / "expected.tml", "europe.bmp")

    def leave(self):
        self.step("Exit")
        self.press_control("Quit")
        self.screen.wait_active(QUESTION)
        self.key("alt+y")
        self.screen.started.remove(self.process)
        if status := self.process.wait(LIMIT):
            raise Failure(f"the editor ended with status {status}")

    def play(self):
        for part in (self.load_sample, self.select, self.look_around, self.another_picture,
                     self.clear, self.begin, self.add_areas, self.add_regions, self.name_areas,
                     self.link, self.validate, self.swap, self.delete, self.paint, self.finish,
                     self.from_keyboard, self.leave):
            part()
        self.step(f"The tour is over; its pictures are in {self.output}")


def run(tour, program, output, folder=None):
    """Plays a tour of this class or one of its kind; the samples are copied into the folder."""
    shutil.rmtree(output, ignore_errors=True)
    output.mkdir(parents=True)
    with tempfile.TemporaryDirectory(prefix="terramark-tour-") as own:
        os.chdir(shutil.copytree(HERE.parents[1] / "samples", folder or own + "/samples",
                                 dirs_exist_ok=True))
        screen = Screen(own)
        try:
            tour(screen, program, output).play()
        except Failure as failure:
            print("FAILED:", failure)
            screen.save(output / "failed.png")
            sys.exit(Path(screen.log.name).read_text(errors="replace"))
        finally:
            screen.close()


def main():
    if len(sys.argv) != 3:
        sys.exit(__doc__)
    run(Tour, *(Path(argument).resolve() for argument in sys.argv[1:]))


if __name__ == "__main__":
    main()
