#!/usr/bin/env python3
"""Plays the life of a map in the real window, with the mouse and the keyboard.

    tour.py EDITOR OUTPUT

EDITOR is the program; the screenshots and the saved layouts go into the folder OUTPUT. Works in a
copy of the samples. Every step waits for what it must bring about; the first that does not ends the
tour with exit status 1.
"""
import os
import shutil
import sys
import tempfile
import time
from itertools import zip_longest

sys.dont_write_bytecode = True

from editor import ABOUT, BLACK, CONTROLS, FILE_DIALOG, GREEN, HELP, QUESTION, RED, WHITE, Editor  # noqa: E402
from screen import Failure, Screen  # noqa: E402

HERE = os.path.dirname(os.path.abspath(__file__))
SAMPLES = os.path.join(HERE, "..", "..", "samples")
SEA = 20, 100  # on the map, where no marker stands
SEA_COLOUR = 0xB0D0EC


class Tour:
    def __init__(self, screen, program, output):
        self.output = output
        self.folder = os.path.join(screen.folder, "samples")
        shutil.copytree(SAMPLES, self.folder)
        self.began = time.monotonic()
        self.shots = 0
        self.screen = screen
        self.editor = Editor(screen, program, self.folder)

    def step(self, text):
        print(f"{time.monotonic() - self.began:6.1f} s  {text}", flush=True)

    def shot(self, name):
        self.shots += 1
        self.screen.save(os.path.join(self.output, f"{self.shots:02}-{name}.png"),
                         self.editor.window)

    def path(self, name):
        return os.path.join(self.folder, name)

    def lines(self, name):
        with open(self.path(name), "rb") as file:
            return file.read().split(b"\r\n")

    def save_as(self, name):
        """Saves, waits for the file and keeps a copy of it."""
        self.editor.choose("SaveCFG", name)
        self.editor.wait(f"the file {name}", lambda: os.path.exists(self.path(name)))
        self.editor.wait_blank_bar()
        shutil.copy(self.path(name), self.output)

    def compare(self, saved, expected, picture):
        """All lines but the time stamp are as expected; line 4 is the path of the picture."""
        got, want = self.lines(saved), self.lines(expected)
        want[3] = picture.encode()
        for number, (mine, its) in enumerate(zip_longest(got, want), 1):
            if mine != its and number != 2:
                raise Failure(f"{saved}, line {number}: {mine!r} instead of {its!r}")

    # A map that is there already.

    def load_sample(self):
        self.step("Load the sample layout")
        editor = self.editor
        editor.choose("LoadMpa", "europe.tml")
        editor.areas, editor.regions = places(self.lines("europe.tml"))
        editor.wait_look("plain", editor.areas, editor.regions)
        editor.wait("the sea", lambda: editor.map_colour(*SEA) == SEA_COLOUR)
        self.shot("loaded")

    def select(self):
        editor = self.editor
        self.step("Select an Area: its neighbours are marked")
        editor.says(GREEN, lambda: editor.press_area(15))
        editor.wait_look("current", [15])
        editor.wait_look("marked", [10, 14, 16, 17, 18])
        self.shot("area")
        self.step("Walk through the Areas with the arrow keys")
        editor.says(GREEN, lambda: editor.key("Up"))
        editor.wait_look("current", [16])
        editor.wait_look("marked", [15, 17, 25, 26, 27])
        editor.wait_look("plain", [10, 14, 18])
        editor.says(GREEN, lambda: editor.key("Down", "Down"))
        editor.wait_look("current", [14])
        self.step("Select a Region: its Areas are marked; walk on to the next")
        editor.says(GREEN, lambda: editor.press_region(4))
        editor.wait_look("current", regions=[4])
        editor.wait_look("marked", range(14, 20))
        editor.says(GREEN, lambda: editor.key("Up"))
        editor.wait_look("current", regions=[5])
        editor.wait_look("marked", range(20, 25))
        editor.wait_look("plain", range(14, 20), [4])
        self.shot("region")

    def look_around(self):
        editor = self.editor
        self.step("The help bar tells what is under the pointer")
        bar = editor.control("Helpbar")
        for number in (1, 42):
            where = editor.marker(editor.areas, number)
            editor.changes("the help bar", bar, lambda: editor.move(*where.centre))
        editor.changes("the help bar", bar, editor.park)
        self.step("The Shift key on a button opens its help and runs no command")
        before = self.screen.look(editor.map)
        editor.press_control("Cvalid", ["shift"])
        self.screen.wait_active(HELP)
        editor.key("Escape")
        editor.back()
        editor.wait("the map as it was", lambda: self.screen.look(editor.map) == before)
        self.step("The about box opens and closes")
        editor.press_control("DBPush1")
        self.screen.wait_active(ABOUT)
        self.shot("about")
        editor.key("space")
        editor.back()

    def another_picture(self):
        editor = self.editor
        self.step("Load the same picture as a metafile")
        editor.choose("LoadMap", "europe.wmf")
        self.step("Save under a new name, and compare")
        self.save_as("copy.tml")
        self.compare("copy.tml", "europe.tml", self.path("europe.wmf"))
        editor.wait_look("plain", editor.areas, editor.regions)

    # A map from nothing.

    def clear(self):
        editor = self.editor
        self.step("Clear the whole map: first No, then Yes")
        before = self.screen.look(editor.map)
        editor.press_control("DelAll")
        editor.answer("Escape")
        editor.wait("the map as it was", lambda: self.screen.look(editor.map) == before)
        self.clear_map()

    def clear_map(self):
        editor = self.editor
        editor.press_control("DelAll")
        editor.answer("Return")
        editor.park()
        editor.wait_share("an empty map", editor.map, WHITE, 100)

    def begin(self):
        editor = self.editor
        self.step("Load a picture, write a header")
        editor.choose("LoadMap", "europe.bmp")
        editor.wait("the sea", lambda: editor.map_colour(*SEA) == SEA_COLOUR)
        header = editor.control("Text1")
        editor.changes("the header", header, lambda: editor.fill("Text1", "Six lands"))

    def add_areas(self):
        editor = self.editor
        self.step("Add three Areas with the Ctrl key, each at its fill point")
        editor.areas, editor.regions = {}, {}
        for number, (x, y) in enumerate([(80, 220), (130, 180), (130, 145)], 1):
            self.add_at(number, x, y)
        self.step("Add three more with the button and drag them into place")
        for number, to in ((4, (180, 112)), (5, (216, 125)), (6, (240, 100))):
            editor.changes("the number of Areas", editor.control("Countx0"),
                           lambda: editor.press_control("AddTer"))
            editor.areas[number] = editor.areas[number - 1]
            # One of them goes by way of the button Exit, outside the map.
            via = [CONTROLS["Quit"].centre] if number == 5 else []
            editor.drag(editor.areas, number, to, via)
            editor.wait_look("plain", [number - 1, number])
        self.step("A short drag; and one that Escape ends")
        editor.drag(editor.areas, 1, (85, 201))
        editor.wait_look("plain", [1])
        away = editor.marker({2: (20, 40)}, 2)
        before = self.screen.look(away)
        editor.lift(editor.marker(editor.areas, 2))
        editor.carry(20, 40)
        editor.key("Escape")
        editor.drop()
        editor.wait("no marker there", lambda: self.screen.look(away) == before)
        editor.wait_look("plain", [2])
        self.step("Turn the fill corners with the right button")
        for number, times in ((5, 3), (6, 2)):
            for _ in range(times):
                corner = editor.marker(editor.areas, number)
                editor.changes("the corner", corner,
                               lambda: editor.press_area(number, button=3))

    def add_at(self, number, x, y):
        """A press with Ctrl on the map; the new marker's bottom left corner lies there."""
        editor = self.editor
        editor.changes("the number of Areas", editor.control("Countx0"),
                       lambda: editor.press_map(x, y, ["ctrl"]))
        editor.park()
        editor.areas[number] = x, y - 16
        editor.wait_look("plain", [number])

    def add_regions(self):
        editor = self.editor
        self.step("Add two Regions, place and name them, give them armies")
        for number, to, name, armies in ((1, (8, 160), "West", "7"),
                                         (2, (200, 76), "Middle", "12")):
            editor.says(GREEN, lambda: editor.press_control("AddCont"))
            editor.regions[number] = 48, 163
            editor.wait_look("current", regions=[number])
            editor.drag(editor.regions, number, to)
            editor.wait_look("current", regions=[number])
            marker = editor.marker(editor.regions, number)
            editor.changes("the Region's name", marker, lambda: editor.fill("EditText", name))
            box = editor.control("Armypc")
            editor.changes("the armies", box, lambda: editor.fill("Armypc", armies))

    def name_areas(self):
        editor = self.editor
        self.step("Name the Areas and give them card symbols")
        for number, name, symbol in ((1, "Spain", "h"), (2, "Provence", "g"), (3, "Paris", "x"),
                                     (4, "Germany", "s"), (5, "Poland", "h"),
                                     (6, "Bohemia", "g")):
            self.name_area(number, name, symbol)
        self.shot("placed")

    def name_area(self, number, name, symbol):
        editor = self.editor
        editor.says(GREEN, lambda: editor.press_area(number))
        editor.says(GREEN, lambda: editor.write(name))
        editor.says(GREEN, lambda: editor.fill("Symb", symbol))

    def set_region(self, region, areas):
        """Marks the Areas that the Region lacks, and makes them its own."""
        editor = self.editor
        editor.says(GREEN, lambda: editor.press_region(region))
        for area in areas:
            editor.press_area(area, ["shift"])
        editor.wait_look("marked", areas)
        editor.says(GREEN, lambda: editor.press_control("SetCont"))

    def set_neighbours(self, area, flipped, neighbours):
        """Flips marks, and makes the marked Areas the neighbours of the Area."""
        editor = self.editor
        editor.says(GREEN, lambda: editor.press_area(area))
        for other in flipped:
            editor.press_area(other, ["shift"])
        editor.wait_look("current", [area])
        editor.wait_look("marked", neighbours)
        editor.says(GREEN, lambda: editor.press_control("MakeNeibor"))

    def link(self):
        self.step("Set Region for both Regions")
        self.set_region(1, [1, 2, 3])
        self.set_region(2, [4, 5, 6])
        self.step("Set Neighbours for each Area")
        self.set_neighbours(1, [2], [2])
        self.set_neighbours(2, [3], [1, 3])
        self.set_neighbours(3, [4], [2, 4])
        self.set_neighbours(4, [5, 6], [3, 5, 6])
        self.set_neighbours(5, [6], [4, 6])
        self.set_neighbours(6, [], [4, 5])
        self.shot("linked")

    def validate(self):
        editor = self.editor
        self.step("A link is taken off on one side: Validate Map says so, and paints nothing")
        self.set_neighbours(3, [4], [2])
        editor.says(RED, lambda: editor.press_control("Cvalid"))
        self.shot("fault")
        if editor.flooded():
            raise Failure("a map with a fault was flooded")
        self.step("Mended: the map is good and its lands are flooded, the sea is not")
        self.set_neighbours(3, [4], [2, 4])
        editor.says(GREEN, lambda: editor.press_control("Cvalid"))
        self.wait_flood()
        self.shot("flooded")
        self.step("A press on the sea brings the clean picture back")
        editor.press_map(*SEA)
        editor.wait("the clean picture", lambda: editor.flooded() == 0)
        editor.wait_blank_bar()
        editor.wait_look("plain", editor.areas, editor.regions)

    def wait_flood(self):
        """Each of the six lands is painted, at a place that no marker hides; others are not."""
        editor = self.editor
        for land in ((95, 230), (140, 188), (122, 150), (200, 105), (252, 136), (230, 100)):
            editor.wait(f"paint at {land}", lambda: editor.map_colour(*land) == RED)
        for other in (SEA, (100, 110), (160, 270), (300, 150)):
            if editor.map_colour(*other) in (RED, BLACK):
                raise Failure(f"paint escaped to {other}")

    def swap(self):
        editor = self.editor
        self.step("Poland and Bohemia stand in each other's place: swap them")
        editor.press_area(5, ["shift"])
        editor.press_area(6, ["shift"])
        editor.wait_look("marked", [5, 6])
        editor.says(GREEN, lambda: editor.press_control("SwapTer"))
        editor.areas[5], editor.areas[6] = editor.areas[6], editor.areas[5]
        editor.wait_look("plain", [5, 6])
        self.step("A second press finds nothing marked")
        editor.says(RED, lambda: editor.press_control("SwapTer"))

    def delete(self):
        editor = self.editor
        counts = editor.control("Countx0")
        self.step("Delete the last Area: refused while it has links")
        editor.says(GREEN, lambda: editor.press_area(6))
        editor.says(RED, lambda: editor.press_control("DelControl"))
        self.step("Clear its links, and delete it")
        editor.says(GREEN, lambda: editor.press_control("ClearLink"))
        editor.says(GREEN, lambda: editor.press_area(6))
        editor.press_control("DelControl")
        editor.changes("the number of Areas", counts, lambda: editor.answer("Return"))
        self.step("Five Areas are no good map; make the sixth anew")
        editor.says(RED, lambda: editor.press_control("Cvalid"))
        self.shot("five")
        self.add_at(6, 225, 133)
        self.name_area(6, "Bohemia", "s")
        self.set_region(2, [6])
        self.set_neighbours(6, [4, 5], [4, 5])

    def paint(self):
        editor = self.editor
        self.step("Colours by the scroll bars: two Regions and a player")
        editor.says(GREEN, lambda: editor.press_region(1))
        self.take_colour("PlColor4", 0xFFFFFF)
        self.slide("ColBar1", up=True, shows=0xFF00FF)
        self.slide("ColBar2", up=True, shows=0xFF0000)
        for value in (16, 32, 48):
            self.page("ColBar1", down=True, shows=0xFF0000 | value << 8)
        editor.says(GREEN, lambda: editor.press_region(2))
        self.take_colour("PlColor4", 0xFFFFFF)
        self.slide("ColBar0", up=True, shows=0x00FFFF)
        self.page("ColBar2", down=False, shows=0x00FFF0)
        self.take_colour("PlColor0", 0x00FF00)
        self.slide("ColBar2", up=False, shows=0x00FFFF)
        editor.press_map(*SEA)
        editor.wait_look("plain", editor.areas, editor.regions)
        for colour, areas, region in ((0xFF3000, (1, 2, 3), 1), (0x00FFF0, (4, 5, 6), 2)):
            for rect in [editor.marker(editor.areas, area) for area in areas] + [
                    editor.marker(editor.regions, region)]:
                editor.wait(f"a marker in {colour:06X}",
                            lambda: self.screen.count(rect, colour) > 0)
        self.shot("coloured")

    def take_colour(self, button, colour):
        """Makes the scroll bars show the colour of a button."""
        editor = self.editor
        self.target = button
        editor.wait_share("the button's colour", editor.control(button), colour, 40)
        editor.changes("the scroll bars", editor.control("RGBFrame"),
                       lambda: editor.press_control(button))

    def slide(self, bar, up, shows):
        """Drags a thumb from one end of its bar to the other."""
        editor = self.editor
        rect = editor.control(bar)
        x, _ = rect.centre
        top, bottom = rect.top + 22, rect.top + rect.height - 22
        editor.screen.tool("mousemove", x, bottom if up else top, "mousedown", 1)
        editor.screen.tool("mousemove", x, (top + bottom) // 2)
        editor.screen.tool("mousemove", x, rect.top if up else rect.top + rect.height - 1)
        editor.screen.tool("mouseup", 1)
        editor.wait_share(f"the colour {shows:06X}", editor.control(self.target), shows, 40)

    def page(self, bar, down, shows):
        """A press beside the thumb."""
        editor = self.editor
        rect = editor.control(bar)
        x, _ = rect.centre
        editor.press(x, rect.top + rect.height - 24 if down else rect.top + 24)
        editor.wait_share(f"the colour {shows:06X}", editor.control(self.target), shows, 40)

    def finish(self):
        editor = self.editor
        self.step("Validate once more, by the keyboard alone")
        editor.press_control("LoadMap")
        self.screen.wait_active(FILE_DIALOG)
        editor.key("Escape")
        editor.back()
        editor.says(GREEN, lambda: editor.key("Tab", "space"))
        self.step("Save, and compare with the layout that must come out")
        shutil.copy(os.path.join(HERE, "expected.tml"), self.folder)
        self.save_as("lands.tml")
        self.compare("lands.tml", "expected.tml", self.path("europe.bmp"))
        self.step("Clear, load the saved layout, and save that: nothing is lost")
        self.clear_map()
        editor.choose("LoadMpa", "lands.tml")
        editor.wait_look("plain", editor.areas, editor.regions)
        self.shot("again")
        self.save_as("again.tml")
        self.compare("again.tml", "lands.tml", self.path("europe.bmp"))
        self.step("Exit")
        editor.press_control("Quit")
        self.screen.wait_active(QUESTION)
        editor.key("Return")
        status = self.screen.wait_end(editor.process)
        if status:
            raise Failure(f"the editor ended with status {status}")

    def play(self):
        for part in (self.load_sample, self.select, self.look_around, self.another_picture,
                     self.clear, self.begin, self.add_areas, self.add_regions, self.name_areas,
                     self.link, self.validate, self.swap, self.delete, self.paint, self.finish):
            part()
        self.step("The tour is over; its pictures are in " + self.output)


def places(lines):
    """The places of the markers that a layout holds: of the Areas and of the Regions."""
    def after(head, first):
        found = {}
        for line in lines[lines.index(head) + first:]:
            fields = line.split(b",")
            if len(fields) != 3:
                return found
            found[int(fields[0])] = int(fields[1]), int(fields[2])
        return found

    areas = after(b"X,Y Coordinates for Areas", 2)
    del areas[0]
    return areas, after(b"X,Y Coordinates for Regions", 1)


def main():
    if len(sys.argv) != 3:
        sys.exit(__doc__)
    program, output = map(os.path.abspath, sys.argv[1:])
    shutil.rmtree(output, ignore_errors=True)
    os.makedirs(output)
    with tempfile.TemporaryDirectory(prefix="terramark-tour-") as folder:
        screen = Screen(folder)
        try:
            Tour(screen, program, output).play()
        except Failure as failure:
            print("FAILED:", failure)
            screen.save(os.path.join(output, "failed.png"), screen.everything)
            print(screen.said())
            sys.exit(1)
        finally:
            screen.close()


if __name__ == "__main__":
    main()
