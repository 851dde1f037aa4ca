"""Writes metafiles that play every record, each case in a cell of its own: everyrecord.wmf and
oldkinds.wmf, and beside each the names of its cells, a line each, from left to right and then down.

    everyrecord.py .../metafilerecords.h FOLDER
"""
import os
import re
import struct
import sys

WIDTH, HEIGHT, COLUMNS = 48, 32, 12  # of a cell, and of the grid
CORNER = object()  # stands for the cell's top left


def words(*values):
    return b"".join(struct.pack("<H", value & 0xFFFF) for value in values)


def longs(*values):
    return b"".join(struct.pack("<I", value & 0xFFFFFFFF) for value in values)


def at(*values):
    """Left, top, right or width, bottom or height and so on: the last comes first."""
    return words(*reversed(values))


BLACK, WHITE, RED, GREEN, BLUE, YELLOW = map(longs, (0, 0xFFFFFF, 0xFF, 0xFF00, 0xFF0000, 0xFFFF))
PICKED = longs(0x01000001)  # the palette's second


def pen(style=0, width=0, colour=BLACK):
    return "CreatePenIndirect", style, width, 0, colour


def brush(colour=RED, style=0, hatch=0):
    return "CreateBrushIndirect", style, colour, hatch


def font(height=-14, width=0, turn=0, weight=400, italic=0, underline=0, strike=0, charset=0,
         family=0, face=b"Arial\0"):
    return ("CreateFontIndirect", height, width, turn, 0, weight, italic | underline << 8,
            strike | charset << 8, 0, family << 8, face)


def text(letters=b"H ag", x=3, y=6):
    return "TextOut", len(letters), letters, at(x, y)


def dib(bits, rows, table=b"", width=4, height=3, coding=0, colours=0):
    head = longs(40, width, height) + words(1, bits) + longs(coding, 0, 0, 0, colours, 0)
    return head + table + bytes.fromhex(rows)


# The same pixels by numbers of colours, the lowest row first; blue comes first in a table.
ROWS, FOUR = "03000001 01010200 00010203", bytes.fromhex("0000ff00 00ff0000 ff000000 00ffff00")
PICTURE = dib(8, ROWS, FOUR, colours=4)
NUMBERED = dib(8, ROWS, words(1, 2, 3, 0), colours=4)
TWO = bytes.fromhex("00000000 ffffff00")
# Black lines on white beside white ones on black.
LINES = dib(1, "7f7f0202" * 12 + "00ff00ff" * 12, TWO, width=32, height=24)
# A bitmap without colours of its own: its head, and rows of two bytes.
HEAD, BITS = words(0, 8, 4, 2, 0x101), bytes.fromhex("f000 0f00 aa00 5500")
TWO_COLOURED = "CreatePatternBrush", HEAD, bytes(22), BITS
RED_ON_YELLOW = ("SetTextColor", RED), ("SetBkColor", YELLOW)

NO_PEN, HOLLOW, FONT, ON_YELLOW = pen(5), brush(BLACK, 1), font(), ("SetBkColor", YELLOW)
BOX, WHOLE = ("Rectangle", at(4, 4, 34, 24)), ("Rectangle", at(2, 2, 47, 31))
RAYS = 48, 16, 24, 0  # from the right end of an ellipse to its top
STAR = 5, 6, 24, 24, 2, 42, 24, 4, 10, 44, 10
NESTED = 2, 4, 4, 4, 4, 44, 4, 44, 28, 4, 28, 14, 10, 34, 10, 34, 22, 14, 22
# Scans: how many edges, top, bottom, the edges, and how many once more.
RINGS = ("CreateRegion", 0, 6, 0, 0, 0, 3, 4, 4, 4, 44, 28, 2, 4, 10, 4, 44, 2,
         4, 10, 20, 4, 14, 34, 44, 4, 2, 20, 28, 4, 24, 2)
PALETTE = ("CreatePalette", 0x300, 4, RED, GREEN, BLUE, YELLOW), ("SelectPalette", 0)
UNDER = NO_PEN, brush(longs(0xAAAAAA)), BOX
CLIPPED = brush(), ("IntersectClipRect", at(10, 8, 30, 20))
# The mapping by the viewport, so that it scales about the cell's corner.
MAPPED = ("SetWindowOrg", 0, 0), ("SetViewportOrg", CORNER), brush(), pen(0, 4)

EVERY_RECORD = [
    ("MoveTo, LineTo", ("MoveTo", at(4, 4)), ("LineTo", at(40, 8)), ("LineTo", at(8, 28))),
    ("Polyline", pen(colour=RED), ("Polyline", *STAR)),
    *[(f"{name}, filled by rule {rule}", brush(), ("SetPolyFillMode", rule), (name, *points))
      for name, points in (("Polygon", STAR), ("PolyPolygon", NESTED)) for rule in (1, 2)],
    *[(name, brush(), (name, at(4, 4, 44, 28, *more))) for name, *more in (
        ("Rectangle",), ("Ellipse",), ("RoundRect", 20, 12), ("Arc", *RAYS), ("Pie", *RAYS),
        ("Chord", *RAYS))],
    ("SetPixel", ("SetPixel", BLUE, at(24, 16))),
    *[(f"pen style {style}", ON_YELLOW, pen(style), BOX) for style in range(6)],
    ("dashes, transparent", ON_YELLOW, ("SetBkMode", 1), pen(1), BOX),
    *[(f"wide pen, style {style}", pen(style, 6, BLUE), BOX) for style in (0, 6)],
    ("wide pen that inverts", ("SetRop2", 6), pen(0, 5), ("Polyline", *STAR)),
    ("hollow brush", brush(), BOX, HOLLOW, WHOLE),
    *[(f"hatch {hatch}", ON_YELLOW, brush(RED, 2, hatch), BOX) for hatch in range(7)],
    ("hatch, transparent", brush(GREEN), BOX, ("SetBkMode", 1), brush(RED, 2, 4), BOX),
    ("DibCreatePatternBrush", ("DibCreatePatternBrush", 5, 0, PICTURE), BOX),
    ("CreatePatternBrush", *RED_ON_YELLOW, TWO_COLOURED, BOX),
    # Each is the grey of its own number less 1, twice as a digit.
    *[(f"SetRop2 {rop}", *UNDER, ("SetRop2", rop), brush(longs(0xCCCCCC)), BOX)
      for rop in range(1, 17)],
    # Each is the grey of its own number.
    *[(f"ternary {rop:02x}", *UNDER, brush(longs(0xF0F0F0)),
       ("StretchDib", 0, rop, 0, at(4, 4, 29, 19, 0, 0, 1, 1), dib(24, "cccccc00", b"", 1, 1)))
      for rop in b"\x00\x11\x22\x33\x44\x5A\x66\x88\xAC\xB8\xBB\xC0\xCA\xE2\xEE\xFB"],
    *[(f"PatBlt {rop:02x}", *UNDER, brush(RED, 2, 2), ("PatBlt", 0, rop, at(8, 8, 30, 16)))
      for rop in b"\x55\x5A\xF0\xFF"],
    *[(name, *MAPPED, (name, *how), BOX) for name, *how in (
        ("SetMapMode", 2), ("SetWindowExt", 700, 864), ("SetViewportExt", 176, 288),
        ("ScaleWindowExt", 1, 2, 3, 4), ("ScaleViewportExt", 4, 3, 2, 1),
        ("OffsetWindowOrg", -4, -8), ("OffsetViewportOrg", 3, 10))],
    # The first level is the cell's own.
    *[(f"RestoreDC {level}", brush(), pen(0, 3), ("SaveDC",), pen(0, 1), ("SaveDC",), brush(BLUE),
       ("RestoreDC", level), BOX, *rest) for level, *rest in ((-1, ("RestoreDC", -1)), (2,))],
    ("SelectObject", brush(), brush(BLUE), ("SelectObject", 0), BOX),
    ("DeleteObject", brush(), ("DeleteObject", 0), WHOLE, brush(BLUE), ("SelectObject", 0), BOX),
    ("IntersectClipRect", *CLIPPED, WHOLE),
    ("ExcludeClipRect", brush(), ("ExcludeClipRect", at(10, 8, 30, 20)), WHOLE),
    ("OffsetClipRgn", *CLIPPED, ("OffsetClipRgn", at(12, 6)), WHOLE),
    # A clip that is a region stands in pixels and is moved to its cell.
    *[(f"{name}, a region", brush(), RINGS, (name, 1), ("OffsetClipRgn", CORNER), WHOLE)
      for name in ("SelectClipRegion", "SelectObject")],
    ("SelectClipRegion, none", *CLIPPED, ("SelectClipRegion", 0), WHOLE),
    *[(name, brush(), brush(GREEN), BOX, RINGS, (name, 2, *more)) for name, *more in (
        ("FillRegion", 0), ("FrameRegion", 0, 3, 2), ("PaintRegion",), ("InvertRegion",))],
    *[(name, pen(colour=BLUE), brush(GREEN), BOX, HOLLOW, ("Ellipse", at(20, 8, 45, 28)), brush(),
       ("SetPixel", BLACK, at(12, 12)), (name.split()[0], *how, at(8, 8))) for name, *how in (
           ("FloodFill", BLUE), ("ExtFloodFill 0", 0, BLUE), ("ExtFloodFill 1", 1, GREEN))],
    *[(name, *PALETTE, brush(PICKED), (name, *how), BOX) for name, *how in (
        ("SelectPalette", 0), ("SetPaletteEntries", 1, 1, BLUE),
        ("AnimatePalette", 0, 2, BLUE, YELLOW))],
    ("no palette", brush(PICKED), BOX),
    *[(f"text, {name}", font(**how), text()) for name, how in {
        "plain": {}, "italic": {"italic": 1}, "underlined": {"underline": 1},
        "struck out": {"strike": 1}, "weight 500": {"weight": 500}, "weight 600": {"weight": 600},
        "weight 700": {"weight": 700}, "8 wide": {"width": 8}, "cell 14 high": {"height": 14},
        "serifs by face": {"face": b"Times New Roman\0"},
        "serifs by family": {"face": b"\0\0", "family": 16},
        "fixed pitch": {"face": b"\0\0", "family": 1}}.items()],
    *[(name, FONT, (name, *how), text(b"i ag")) for name, *how in (
        ("SetTextColor", RED), ("SetBkColor", YELLOW), ("SetTextCharExtra", 4),
        ("SetTextJustification", 2, 12))],
    ("text, transparent", FONT, ON_YELLOW, ("SetBkMode", 1), text()),
    ("text, turned", font(turn=300), ON_YELLOW, text(x=6, y=16)),
    *[(f"SetTextAlign {align}", FONT, ("Polyline", 5, 24, 0, 24, 31, 24, 16, 0, 16, 47, 16),
       ("SetBkMode", 1), ("SetTextAlign", align), text(b"Hg", 24, 16)) for align in (0, 8, 26, 30)],
    ("SetTextAlign 1", FONT, ("SetTextAlign", 1), ("MoveTo", at(3, 8)), text(b"Hg"), text(b"ag")),
    *[(f"ExtTextOut {options}", FONT, ON_YELLOW, ("ExtTextOut", at(3, 6), 2, options, *more))
      for options, *more in (
          (0, b"Hg", 25, 8), (2, 8, 4, 40, 16, b"Hg"), (4, 5, 4, 15, 15, b"Hg"))],
    ("BitBlt", *RED_ON_YELLOW, ("BitBlt", 0, 0xCC, at(8, 8, 8, 4, 0, 0), HEAD, BITS)),
    ("DibBitBlt", ("DibBitBlt", 0, 0xCC, at(8, 8, 3, 2, 1, 0), PICTURE)),
    *[(f"{name} without a bitmap", brush(), (name, 0, 0xF0, 0, 0, 0, at(8, 8, 24, 16)))
      for name in ("BitBlt", "DibBitBlt")],
    ("StretchBlt", *RED_ON_YELLOW,
     ("StretchBlt", 0, 0xCC, at(4, 4, 40, 24, 0, 0, 8, 4), HEAD, BITS)),
    *[(f"DibStretchBlt to {to}", ("DibStretchBlt", 0, 0xCC, at(*to, 0, 0, 4, 3), PICTURE))
      for to in ((4, 4, 40, 24), (44, 4, -40, 24), (4, 28, 40, -24))],
    *[(f"StretchDib from {part}", ("StretchDib", 0, 0xCC, 0, at(4, 4, 40, 24, *part), PICTURE))
      for part in ((1, 0, 2, 2), (2, 1, 4, 4))],
    ("SetDibToDevice", *MAPPED, ("ScaleViewportExt", 1, 4, 1, 4),
     ("SetDibToDevice", 0, 3, 0, at(3, 3, 4, 3, 0, 0), PICTURE)),
    *[(f"SetStretchBltMode {mode}", ("SetStretchBltMode", mode),
       ("StretchDib", 0, 0xCC, 0, at(8, 8, 16, 12, 0, 0, 32, 24), LINES)) for mode in (1, 2, 3)],
]
LETTERS = {  # that the fonts have which the build asks for
    0: b"\xC4\x80", 77: b"\x80\x8A", 128: b"\x84\x40a\x83\xBFa", 129: b"a\xAC\xA1b",
    134: b"a\xA7\xA1b", 136: b"a\xA3\x44b", 161: b"\xC1\xE1", 162: b"\xD0\xFE",
    163: b"\xD0\xF0", 177: b"\xAA\xBA", 186: b"\xC0\xE0", 204: b"\xC6\xE6",
    238: b"\xA3\xB3", 255: b"\x80\xE1"}
OLD_KINDS = [
    *[(f"BitBlt from {part}", ("BitBlt", 0, 0xCC, at(8, 8, 20, 8, *part), HEAD, BITS))
      for part in ((0, 0), (3, 1), (-4, -2))],
    *[(f"StretchBlt to {to}", ON_YELLOW, ("StretchBlt", 0, 0xCC, at(*to, 0, 0, 8, 4), HEAD, BITS))
      for to in ((44, 4, -40, 24), (8, 8, 4, 2))],
    ("CreatePatternBrush, an ellipse", TWO_COLOURED, ("Ellipse", at(4, 4, 44, 28))),
    *[(f"bitmap, {name}", ("StretchDib", 0, 0xCC, 0, at(4, 4, 40, 24, 0, 0, 4, 3), bitmap))
      for name, bitmap in {
          "1 bit": dib(1, "50000000 90000000 60000000", TWO),
          "4 bits": dib(4, "30010000 11200000 01230000", FOUR, colours=4),
          "16 bits": dib(16, "007c e003 1f00 e07f" * 3),
          "24 bits": dib(24, "0000ff 00ff00 ff0000 00ffff" * 3),
          "32 bits by masks": dib(32, FOUR.hex() * 3, longs(0xFF00, 0xFF0000, 0xFF), coding=3),
          "8 bits in runs": dib(8, "000403000001 0000 020101020100 0000 000400010203 0001", FOUR,
                                coding=1, colours=4),
          "4 bits in runs": dib(4, "00043001 0000 0412 0000 00020100 0332 0001", FOUR, coding=2,
                                colours=4),
          "from the top": dib(8, ROWS, FOUR, height=-3, colours=4),
          "an older head": longs(12) + words(4, 3, 1, 24) + FOUR[:12] * 3}.items()],
    ("StretchDib by a palette", *PALETTE,
     ("StretchDib", 0, 0xCC, 1, at(4, 4, 40, 24, 0, 0, 4, 3), NUMBERED)),
    ("SetDibToDevice by a palette", *PALETTE,
     ("SetDibToDevice", 1, 3, 0, at(8, 8, 4, 3, 0, 0), NUMBERED)),
    ("DibCreatePatternBrush by a palette", *PALETTE,
     ("DibCreatePatternBrush", 5, 1, NUMBERED), BOX),
    *[(f"character set {charset}", font(charset=charset), text(letters))
      for charset, letters in LETTERS.items()],
    ("letters that no font has", FONT, ("ExtTextOut", at(3, 6), 2, 0, b"\x81H", 15, 15)),
    # Which font has them depends on the system, so that they are clipped away.
    ("letters of other fonts",
     *[record for charset, face in ((128, b"Arial\0"), (2, b"Symbol\0\0"), (2, b"Signs\0"))
       for record in (font(charset=charset, italic=1, face=face),
                      ("ExtTextOut", 0, 0, 4, 4, 0, 0, 0, 0, b"a\xB1\x93\xFA"))]),
    *[(f"shrunk by a quarter, mode {mode}", ("SetStretchBltMode", mode),
       ("StretchDib", 0, 0xCC, 0, at(8, 8, 24, 18, 0, 0, 32, 24), LINES)) for mode in (1, 2)],
]


def cell(numbers, x, y, case):
    """What the case does, drawn at that place and without a trace in the next one's state."""
    def record(name, *parameters):
        parameters = (at(x, y) if value is CORNER else value for value in parameters)
        body = b"".join(words(p) if isinstance(p, int) else p for p in parameters)
        return longs(3 + len(body) // 2) + words(numbers[name]) + body

    created, data = 0, record("SaveDC") + record("SetWindowOrg", at(-x, -y))
    for name, *parameters in case:
        data += record(name, *parameters)
        if "Create" in name:
            if name not in ("CreateRegion", "CreatePalette"):
                data += record("SelectObject", created)
            created += 1
    return data + record("RestoreDC", -1) + b"".join(record("DeleteObject", number)
                                                     for number in range(created))


def main(header, folder):
    with open(header, encoding="utf-8") as file:
        numbers = {name: int(digits, 16)
                   for name, digits in re.findall(r"(\w+) = 0x(\w{4}),", file.read())}
    for name, cases in (("everyrecord", EVERY_RECORD), ("oldkinds", OLD_KINDS)):
        width, height = COLUMNS * WIDTH, -(-len(cases) // COLUMNS) * HEIGHT
        data = longs(5) + words(numbers["SetWindowExt"], height, width) + b"".join(
            cell(numbers, i % COLUMNS * WIDTH, i // COLUMNS * HEIGHT, case)
            for i, (_, *case) in enumerate(cases)) + longs(3) + words(numbers["End"])
        # One has its frame from a head of its own, the other from the window.
        frame = longs(0x9AC6CDD7) + words(0, 0, 0, width, height, 1440, 0, 0, 0)
        head = words(1, 9, 0x300) + longs(9 + len(data) // 2) + words(9, 0, 0, 0)
        with open(os.path.join(folder, name + ".wmf"), "wb") as file:
            file.write((frame if cases is EVERY_RECORD else b"") + head + data)
        with open(os.path.join(folder, name + ".txt"), "w", encoding="ascii") as file:
            file.writelines(case[0] + "\n" for case in cases)


main(*sys.argv[1:])
