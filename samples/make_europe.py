#!/usr/bin/env python3
"""Draws the sample map of Europe and the lands around the Mediterranean.

Writes beside itself: europe.bmp and europe.wmf, the same picture twice, and the layouts that
name them, europe.tml and europe-wmf.tml. The results are committed; run this only to change them.

The outlines come from Natural Earth, which is in the public domain, in the
form that the npm package world-atlas ships. To fetch it, somewhere else, and draw the map anew:

    npm pack world-atlas@2.0.2 && tar xzf world-atlas-2.0.2.tgz
    python3 .../samples/make_europe.py package/countries-50m.json

Needs Python 3.9 or later and nothing else. All borders run pixel by pixel along rows, columns
and diagonals, so that every way of drawing lines gives the same black pixels.
"""
import os
import sys
from collections import Counter

sys.dont_write_bytecode = True

from europe import AREA_NAMES, AREA_REGION, REGIONS, WIDTH
from mapfiles import layout_lines, write_bmp, write_wmf
from outlines import Atlas, make_shapes
from picture import (caption_width, draw, fill_point, find_links, flood, largest_parts, overlap,
                     place_markers)


def connected(members, links):
    """Whether every member can be reached from the first without leaving the members."""
    found, edge = set(), members[:1]
    while edge:
        i = edge.pop()
        if i not in found:
            found.add(i)
            edge += [n for n in links[i - 1] if n in members]
    return len(found) == len(members)


def check(grid, links, markers):
    """Stops at the first fault; else tells what was found."""
    numbers = range(1, len(AREA_NAMES) + 1)
    assert len(AREA_NAMES) % 6 == 0 and len(set(AREA_NAMES)) == len(AREA_NAMES)
    sizes = []
    for i, (box, corner) in zip(numbers, markers):
        name, region = AREA_NAMES[i - 1], AREA_REGION[i - 1]
        assert 0 < len(name.encode("cp1252")) <= 16, name
        assert links[i - 1] and all(i in links[n - 1] and n != i for n in links[i - 1]), name
        assert any(AREA_REGION[n - 1] == region for n in links[i - 1]), f"{name}: alone"
        reached = flood(grid, fill_point(box, corner))
        strangers = Counter(grid[y][x] for x, y in reached if grid[y][x] != i)
        assert len(reached) > 100 and not strangers, f"{name}: {len(reached)} {strangers}"
        sizes.append(len(reached))
    for r, region in enumerate(REGIONS, 1):
        members = [i for i in numbers if AREA_REGION[i - 1] == r]
        assert len(members) > 1 and connected(members, links), region[0]
        assert any(AREA_REGION[n - 1] != r for i in members for n in links[i - 1]), region[0]
        assert region[4][0] + caption_width(region[0]) <= WIDTH, region[0]
    assert connected(list(numbers), links)
    boxes = [box for box, _ in markers]
    covered = sum(overlap(a, b) for i, a in enumerate(boxes) for b in boxes[:i])
    print(f"{len(AREA_NAMES)} Areas, {len(REGIONS)} Regions, {sum(map(len, links)) // 2} links, "
          f"floods of {min(sizes)} to {max(sizes)} pixels, {covered} pixels under two markers")


def main():
    folder = os.path.dirname(os.path.abspath(__file__))
    shapes = make_shapes(Atlas(sys.argv[1]))
    grid = draw(shapes)
    links = find_links(grid)
    markers = place_markers(grid, largest_parts(grid))
    check(grid, links, markers)
    write_bmp(os.path.join(folder, "europe.bmp"), grid)
    write_wmf(os.path.join(folder, "europe.wmf"), shapes)
    for layout, picture in (("europe.tml", "europe.bmp"), ("europe-wmf.tml", "europe.wmf")):
        with open(os.path.join(folder, layout), "wb") as file:
            for line in layout_lines(picture, links, markers):
                file.write(line.encode("cp1252") + b"\r\n")


if __name__ == "__main__":
    if len(sys.argv) != 2:
        sys.exit("usage: make_europe.py countries-50m.json (see the head of this file)")
    main()
