#!/usr/bin/env python3
"""Takes the pictures of the help anew, from the real window on a screen that nobody sees.

    take_pictures.py EDITOR

EDITOR is the program. The pictures go into pictures/ beside this script; the same program gives
the same pictures. The README and the packages show window.png too.
"""
import os
import re
import shutil
import sys
import tempfile
import time
from pathlib import Path

sys.dont_write_bytecode = True
HERE = Path(__file__).resolve().parent
sys.path.insert(0, str(HERE.parent / "tests/tour"))

from editor import GREEN, Editor  # noqa: E402
from screen import Failure, Rect, Screen, rgb_rows, write_png  # noqa: E402

# Where the maps lie while the pictures are taken; the window shows the name.
MAPS = Path("/tmp/maps")
SETTLED = 0.4  # seconds after which nothing on the screen is still on its way
BLINK = 1.2  # seconds in which a caret has been seen and not seen

CONTROLS = Rect(0, 0, 632, 448)  # what stands in the window, without the empty form beside it
BOXES_AND_MAP = Rect(0, 19, 546, 196)
COLOURS = Rect(546, 136, 86, 230)
CORNERS = Rect(108, 128, 184, 156)
COAST = Rect(0, 188, 336, 178)
CLOSE = Rect(0, 166, 336, 180)

NARROW = 560  # pixels, for the page of the help
SHADES = 16  # a step between shades that the eye does not miss, and that makes for a small file

GAP = [(59, 201), (59, 202), (59, 203)]  # on the picture, in the western coast of Area 8
MAGNIFIED = 4  # turns of the wheel, to see it


def open_border(path):
    """Makes a gap in a border of the sample's bitmap: its pixels take the colour beside them."""
    bitmap = bytearray(path.read_bytes())
    start, width, height = (int.from_bytes(bitmap[at:at + 4], "little") for at in (10, 18, 22))
    stride = (width + 3) // 4 * 4
    for x, y in GAP:
        at = start + (height - 1 - y) * stride + x
        bitmap[at] = bitmap[at - 1]
    path.write_bytes(bitmap)


def shares(size, wanted):
    """For each of the wanted pixels of a row the pixels that it covers, each with its part."""
    step = size / wanted
    for i in range(wanted):
        begin, end = i * step, min((i + 1) * step, size)
        yield [(at, min(at + 1, end) - max(at, begin)) for at in range(int(begin), -int(-end // 1))]


def shrunk(rows, width):
    """Rows of red, green and blue, made so narrow."""
    columns = list(shares(len(rows[0]) // 3, width))
    lines = list(shares(len(rows), round(len(rows) * width / (len(rows[0]) // 3))))
    narrow = [[sum(row[3 * at + part] * share for at, share in column) for column in columns
               for part in range(3)] for row in rows]
    area = (len(rows[0]) / 3 / width) ** 2
    for line in lines:
        sums = (sum(narrow[at][i] * share for at, share in line) for i in range(3 * width))
        yield bytes(min(255, round(value / area / SHADES) * SHADES) for value in sums)


class Photographer(Editor):
    def keep(self, name, part, width=None):
        """The part of the window, as it looks while no caret is in sight."""
        rect = part.moved(*self.origin)
        time.sleep(SETTLED)
        looks, end = set(), time.monotonic() + BLINK
        while time.monotonic() < end:
            looks.add(self.screen.look(rect))
            time.sleep(0.1)
        rows = list(rgb_rows(min(looks), rect.width))
        write_png(HERE / "pictures" / name, list(shrunk(rows, width)) if width else rows)
        print(name)

    def load(self, folder):
        self.choose("LoadMpa", str(folder / "europe.tml"))
        self.areas, self.regions = (
            {int(number): (int(x), int(y)) for number, x, y in
             re.findall(rb"\n([1-9]\d*),(\d+),(\d+)(?=\r)", part)}
            for part in (folder / "europe.tml").read_bytes().split(b"X,Y Coordinates for ")[1:])
        self.wait_look("plain", self.areas, self.regions)

    def take(self):
        self.load(MAPS)
        self.keep("corners.png", CORNERS)
        self.says(GREEN, lambda: self.press_area(15))
        self.keep("area.png", BOXES_AND_MAP)
        self.says(GREEN, lambda: self.press_marker(self.regions, 4))
        self.keep("region.png", BOXES_AND_MAP)
        self.keep("window.png", CONTROLS)
        self.keep("glance.png", CONTROLS, NARROW)
        self.changes("the bars", self.control("RGBFrame"), lambda: self.press_control("PlColor4"))
        self.park()
        self.keep("colours.png", COLOURS)
        self.validate()
        self.keep("flooded.png", COAST)
        self.load(MAPS / "gap")
        self.validate()
        self.keep("leak.png", COAST)
        x, y = GAP[1]
        for _ in range(MAGNIFIED):
            self.changes("the map, magnified", self.map, lambda: self.press(
                self.map.left + x, self.map.top + y, ["ctrl"], 4))
        self.park()
        self.keep("gap.png", CLOSE)

    def validate(self):
        self.says(GREEN, lambda: self.press_control("Cvalid"))
        self.park()


def main():
    if len(sys.argv) != 2:
        sys.exit(__doc__)
    program = Path(sys.argv[1]).resolve()
    if MAPS.exists():
        sys.exit(f"{MAPS} is in the way: the pictures show that name")
    MAPS.mkdir()
    try:
        for folder in MAPS, MAPS / "gap":
            folder.mkdir(exist_ok=True)
            for name in "europe.tml", "europe.bmp":
                shutil.copy(HERE.parent / "samples" / name, folder)
        open_border(MAPS / "gap/europe.bmp")
        os.chdir(MAPS)
        with tempfile.TemporaryDirectory(prefix="terramark-help-") as home:
            screen = Screen(home)
            try:
                Photographer(screen, program).take()
            except Failure as failure:
                sys.exit(f"FAILED: {failure}\n{Path(screen.log.name).read_text(errors='replace')}")
            finally:
                screen.close()
    finally:
        os.chdir("/")
        shutil.rmtree(MAPS)


if __name__ == "__main__":
    main()
