"""Writes bitmaps, metafiles and Map Layouts."""
import struct
from functools import reduce
from operator import xor

from europe import (AREA_NAMES, AREA_REGION, BEYOND, BLACK, HEADER, HEIGHT, PLAYER_COLOURS, REGIONS,
                    SEA, TEMPLATE_MARKER, TIME_STAMP, WIDTH)
from outlines import sides
from picture import BEYOND_MARK, BORDER_MARK, SEA_MARK


def write_bmp(path, grid):
    """An 8-bit bitmap, bottom row first."""
    palette = [BLACK, SEA, BEYOND] + [region[3] for region in REGIONS]
    colour = {BORDER_MARK: 0, SEA_MARK: 1, BEYOND_MARK: 2}
    colour.update((area, 2 + region) for area, region in enumerate(AREA_REGION, 1))
    rows = [bytes(colour[mark] for mark in row) + bytes(-WIDTH % 4) for row in reversed(grid)]
    table = b"".join(struct.pack("<4B", b, g, r, 0) for r, g, b in palette)
    pixels = b"".join(rows)
    start = 14 + 40 + len(table)
    with open(path, "wb") as file:
        file.write(struct.pack("<2sIHHI", b"BM", start + len(pixels), 0, 0, start))
        file.write(struct.pack("<IiiHHIIiiII", 40, WIDTH, HEIGHT, 1, 8, 0, len(pixels), 3780, 3780,
                               len(palette), 0))
        file.write(table + pixels)


def record(function, layout="", *values):
    """A metafile record: its size in words, its function and its parameters."""
    body = struct.pack("<" + layout, *values)
    return struct.pack("<IH", 3 + len(body) // 2, function) + body


def corners(ring):
    """The pixels of a ring where it turns."""
    steps = [(b[0] - a[0], b[1] - a[1]) for a, b in sides(ring)]
    return [p for p, before, after in zip(ring, steps[-1:] + steps, steps) if before != after]


def poly_polygon(rings):
    """A PolyPolygon record: how many rings, how many points in each, all points."""
    turns = [corners(ring) for ring in rings]
    flat = [v for ring in turns for pixel in ring for v in pixel]
    return record(0x0538, f"H{len(turns)}H{len(flat)}h", len(turns), *map(len, turns), *flat)


def write_wmf(path, shapes):
    """First all land without outlines, then all outlines, so that no land covers a border."""
    def colour_ref(rgb):
        return rgb[0] | rgb[1] << 8 | rgb[2] << 16

    fills = [SEA, BEYOND] + [region[3] for region in REGIONS]
    hollow, no_line, line = len(fills), len(fills) + 1, len(fills) + 2  # numbers of the tools
    records = [record(0x0103, "H", 8),                       # SetMapMode: anisotropic
               record(0x020B, "hh", 0, 0),                   # SetWindowOrg
               record(0x020C, "hh", HEIGHT, WIDTH),          # SetWindowExt
               record(0x0106, "H", 1)]                       # SetPolyFillMode: alternate
    records += [record(0x02FC, "HIH", 0, colour_ref(fill), 0) for fill in fills]  # solid brushes
    records += [record(0x02FC, "HIH", 1, 0, 0),              # hollow brush
                record(0x02FA, "HhhI", 5, 0, 0, 0),          # pen that draws nothing
                record(0x02FA, "HhhI", 0, 1, 0, 0)]          # black pen
    select = [record(0x012D, "H", tool) for tool in range(line + 1)]
    frame = [(-2, -2), (WIDTH + 2, -2), (WIDTH + 2, HEIGHT + 2), (-2, HEIGHT + 2)]
    records += [select[no_line], select[0], poly_polygon([frame])]
    for region, rings in zip(AREA_REGION + [0], shapes):
        records += [select[region + 1], poly_polygon(rings)]
    records += [select[line], select[hollow]] + [poly_polygon(rings) for rings in shapes]
    records += [record(0)]
    words = 9 + sum(len(r) for r in records) // 2
    placeable = struct.pack("<IHhhhhHI", 0x9AC6CDD7, 0, 0, 0, WIDTH, HEIGHT, 96, 0)
    checksum = reduce(xor, struct.unpack("<10H", placeable))
    with open(path, "wb") as file:
        file.write(placeable + struct.pack("<H", checksum))
        file.write(struct.pack("<HHHIHIH", 1, 9, 0x300, words, line + 1,
                               max(len(r) for r in records) // 2, 0))
        file.write(b"".join(records))


def pairs_text(numbers):
    """A link string: a count and then the numbers, two digits each."""
    return "".join(f"{n:02d}" for n in [len(numbers), *numbers])


def blitz_route(links, area):
    """The longest of the walks that start at the neighbours and always take the first way on."""
    def near(i):
        return [n for n in links[i - 1] if AREA_REGION[n - 1] == AREA_REGION[area - 1]]

    def walk(route):
        for step in near(route[-1]):
            if step != area and step not in route:
                return walk(route + [step])
        return route

    walks = [walk([n]) for n in near(area)]
    best = max(walks, key=len, default=[])
    return ",".join(f"{n:02d}" for n in [len(best), *best]) if best else " "


def layout_lines(picture, links, markers):
    """The lines of a Map Layout, as the editor itself would write them."""
    numbers = range(1, len(AREA_NAMES) + 1)
    abroad = [[n for n in near if AREA_REGION[n - 1] != AREA_REGION[i - 1]]
              for i, near in zip(numbers, links)]
    yield from [HEADER, TIME_STAMP, f"{len(REGIONS)},{len(AREA_NAMES)}", picture, PLAYER_COLOURS]
    for r, (name, armies, (red, green, blue), _, _, areas) in enumerate(REGIONS, 1):
        yield f'{r},{len(areas)},{red},{green},{blue},"{name}",{armies}'
        for i in (i for i in numbers if AREA_REGION[i - 1] == r):
            yield (f'{i},"{"GHS"[i % 3]}","{AREA_NAMES[i - 1]}","{pairs_text(links[i - 1])}",'
                   f'{markers[i - 1][1]}')
    yield "BRIDGES BETWEEN REGIONS"
    yield from (f'{i},"{pairs_text(abroad[i - 1])}"' for i in numbers if abroad[i - 1])
    yield from ['0,"  "', "BLITZ"]
    yield from (f'{i},"{blitz_route(links, i)}"' for i in numbers)
    yield "BREAKS"
    for r in range(1, len(REGIONS) + 1):
        breaks = [f"{n:02d},{i:02d}" for i in numbers if AREA_REGION[i - 1] == r
                  for n in abroad[i - 1]]
        yield f'{r},"{len(breaks):02d},{",".join(breaks)}"'
    yield from ["X,Y Coordinates for Areas", "15,15", TEMPLATE_MARKER]
    yield from (f"{i},{box[0]},{box[1]}" for i, (box, _) in enumerate(markers, 1))
    yield "X,Y Coordinates for Regions"
    yield from (f"{r},{region[4][0]},{region[4][1]}" for r, region in enumerate(REGIONS, 1))
    yield "END OF MAP DEFINITION"
