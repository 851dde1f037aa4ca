"""Paints the picture from outlines; finds in it what borders on what and where markers fit."""
import math
from collections import Counter

from europe import (AREA_NAMES, HEIGHT, MARKER_HEIGHT, MARKER_WIDTH, REGIONS, SEA_LINKS,
                    SHORTEST_BORDER, WIDTH)
from outlines import sides

SEA_MARK, BEYOND_MARK, BORDER_MARK = 0, len(AREA_NAMES) + 1, 255  # an Area's mark is its number


def fill_rows(rings):
    """Rows y, x1, x2 of the pixels inside the rings, clipped to the picture."""
    for y in range(HEIGHT):
        crossings = sorted(max(a[0], b[0]) for ring in rings for a, b in sides(ring)
                           if (a[1] <= y) != (b[1] <= y))
        for x1, x2 in zip(crossings[::2], crossings[1::2]):
            if x2 > 0 and x1 < WIDTH:
                yield y, max(x1, 0), min(x2, WIDTH)


def draw(shapes):
    """The picture as rows of marks, one byte a pixel: fills first, then every border."""
    grid = [bytearray(WIDTH) for _ in range(HEIGHT)]
    for mark, rings in enumerate(shapes, 1):
        for y, x1, x2 in fill_rows(rings):
            grid[y][x1:x2] = bytes([mark]) * (x2 - x1)
    for ring in (ring for rings in shapes for ring in rings):
        for x, y in ring:
            if 0 <= x < WIDTH and 0 <= y < HEIGHT:
                grid[y][x] = BORDER_MARK
    return grid


def flood(grid, start):
    """The pixels that a flood from start reaches: up, down and sideways up to the black."""
    found, edge = set(), [start]
    while edge:
        x, y = edge.pop()
        if (x, y) not in found and 0 <= x < WIDTH and 0 <= y < HEIGHT and grid[y][x] != BORDER_MARK:
            found.add((x, y))
            edge += [(x + 1, y), (x - 1, y), (x, y + 1), (x, y - 1)]
    return found


def largest_parts(grid):
    """For every Area the largest part that one flood reaches."""
    best, seen = [set() for _ in AREA_NAMES], set()
    for y in range(HEIGHT):
        for x in range(WIDTH):
            if 1 <= grid[y][x] < BEYOND_MARK and (x, y) not in seen:
                part = flood(grid, (x, y))
                seen |= part
                best[grid[y][x] - 1] = max(best[grid[y][x] - 1], part, key=len)
    return best


def find_links(grid):
    """Sorted neighbours of every Area: by shared border, then by sea."""
    touching = Counter()
    for y in range(1, HEIGHT - 1):
        for x in range(1, WIDTH - 1):
            if grid[y][x] == BORDER_MARK:
                around = {m for row in grid[y - 1:y + 2] for m in row[x - 1:x + 2]}
                near = sorted(m for m in around if 1 <= m < BEYOND_MARK)
                touching.update((a, b) for a in near for b in near if a < b)
    pairs = {pair for pair, count in touching.items() if count >= SHORTEST_BORDER}
    pairs |= {(AREA_NAMES.index(a) + 1, AREA_NAMES.index(b) + 1) for a, b in SEA_LINKS}
    pairs |= {(b, a) for a, b in pairs}
    return [sorted(b for a, b in pairs if a == area) for area in range(1, len(AREA_NAMES) + 1)]


def caption_width(text):
    """About the pixels that a Region marker is wide, never fewer."""
    return 6 * len(text) + 10


def overlap(a, b):
    """Common pixels of two boxes left, top, width, height."""
    wide = min(a[0] + a[2], b[0] + b[2]) - max(a[0], b[0])
    high = min(a[1] + a[3], b[1] + b[3]) - max(a[1], b[1])
    return max(wide, 0) * max(high, 0)


def marker_choices(grid, mark, part):
    """Where a marker can stand with its fill point well inside the Area: cost, corner code, box."""
    depth = max(d for d in range(4) if any(is_deep(part, p, d) for p in part))
    seeds = sorted(p for p in part if is_deep(part, p, depth))
    middle = [sum(v) / len(part) for v in zip(*part)]
    for x, y in seeds[::max(1, len(seeds) // 150)]:
        for corner in range(4):
            box = (x - MARKER_WIDTH * (corner & 1), y - MARKER_HEIGHT * (corner >> 1),
                   MARKER_WIDTH, MARKER_HEIGHT)
            if min(box) >= 0 and box[0] + box[2] <= WIDTH and box[1] + box[3] <= HEIGHT:
                rows = [row[box[0]:box[0] + box[2]] for row in grid[box[1]:box[1] + box[3]]]
                own, sea = (sum(row.count(m) for row in rows) for m in (mark, SEA_MARK))
                away = math.dist(middle, (box[0] + box[2] / 2, box[1] + box[3] / 2))
                yield 2 * (box[2] * box[3] - own) - sea + 4 * away, corner, box


def is_deep(part, pixel, depth):
    """Whether the pixels up to depth around a pixel belong to the part too."""
    around = range(-depth, depth + 1)
    return all((pixel[0] + dx, pixel[1] + dy) in part for dx in around for dy in around)


def place_markers(grid, parts):
    """Boxes and corner codes of all Areas. Each in turn, the smallest Area first, takes the place
    that is cheapest beside the others as they stand; after some rounds they stand well together."""
    fixed = [(*place, caption_width(name), MARKER_HEIGHT) for name, _, _, _, place, _ in REGIONS]
    choices = [list(marker_choices(grid, i, part)) for i, part in enumerate(parts, 1)]
    chosen = [None] * len(parts)
    for _ in range(4):
        for i in sorted(range(len(parts)), key=lambda i: len(parts[i])):
            others = fixed + [c[2] for j, c in enumerate(chosen) if c and j != i]
            chosen[i] = min(choices[i], key=lambda c: (
                c[0] + 10 * sum(overlap(c[2], other) for other in others), c))
    return [(box, corner) for _, corner, box in chosen]


def fill_point(box, corner):
    """The pixel from which an Area is flooded: bit 1 of the code is right, bit 2 is bottom."""
    return box[0] + MARKER_WIDTH * (corner & 1), box[1] + MARKER_HEIGHT * (corner >> 1)
