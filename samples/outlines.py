"""Makes closed chains of pixels, one Area's outlines, from the coasts and borders of countries."""
import json
import math

from europe import (AREA_NAMES, CUTS, HEIGHT, LANDS_BEYOND, MARGIN, MOVED, NORTH, REGIONS, SCALE,
                    SMALLEST_RING, TOLERANCE, TRUE_LATITUDE, WEST, WIDTH)


def project(place):
    """Equirectangular projection: a longitude and a latitude to pixels as fractions."""
    longitude = place[0] + (360 if place[0] < -100 else 0)  # the far end of Asia
    return ((longitude - WEST) * SCALE * math.cos(math.radians(TRUE_LATITUDE)),
            (NORTH - place[1]) * SCALE)


def simplify(points):
    """Leaves out points that lie within TOLERANCE of the line between those kept."""
    (ax, ay), (bx, by) = points[0], points[-1]
    length = math.hypot(bx - ax, by - ay)

    def distance(p):
        if length < 1e-9:
            return math.hypot(p[0] - ax, p[1] - ay)
        return abs((bx - ax) * (p[1] - ay) - (by - ay) * (p[0] - ax)) / length

    far = max(range(len(points)), key=lambda i: distance(points[i]))
    if len(points) < 3 or distance(points[far]) <= TOLERANCE:
        return [points[0], points[-1]]
    return simplify(points[:far + 1])[:-1] + simplify(points[far:])


def line_pixels(a, b):
    """The pixels from a to b, both included; each touches the next at a side or a corner."""
    steps = max(abs(b[0] - a[0]), abs(b[1] - a[1]), 1)
    return [((a[0] * (steps - i) * 2 + b[0] * i * 2 + steps) // (2 * steps),
             (a[1] * (steps - i) * 2 + b[1] * i * 2 + steps) // (2 * steps))
            for i in range(steps + 1)]


def pixel_chain(points):
    """A chain of pixels along fractional points, none of them farther out than MARGIN."""
    whole = [(min(max(round(x), -MARGIN), WIDTH + MARGIN),
              min(max(round(y), -MARGIN), HEIGHT + MARGIN)) for x, y in points]
    chain = whole[:1]
    for a, b in zip(whole, whole[1:]):
        if a != b:
            chain += line_pixels(a, b)[1:]
    return chain


def sides(ring):
    """Each point of a ring with the one after it."""
    return zip(ring, ring[1:] + ring[:1])


class Atlas:
    """The countries of a TopoJSON file: polygons made of arcs that neighbours share."""

    def __init__(self, path):
        with open(path, encoding="utf-8") as file:
            topology = json.load(file)
        scale, shift = topology["transform"]["scale"], topology["transform"]["translate"]
        self.ends, self.chains = {}, {}  # arc n runs forward, arc ~n is the same one backward
        for number, arc in enumerate(topology["arcs"]):
            x = y = 0
            places = []
            for dx, dy in arc:
                x, y = x + dx, y + dy
                places.append((x * scale[0] + shift[0], y * scale[1] + shift[1]))
            chain = pixel_chain(simplify([project(p) for p in places]))
            self.ends[number], self.ends[~number] = (places[0], places[-1]), (places[-1], places[0])
            self.chains[number], self.chains[~number] = chain, chain[::-1]
        self.polygons = {}  # country: polygons, each a list of the rings' arcs
        for shape in topology["objects"]["countries"]["geometries"]:
            arcs = shape.get("arcs", [])
            self.polygons[shape["properties"]["name"]] = (
                [arcs] if shape["type"] == "Polygon" else arcs)

    def dissolve(self, polygons):
        """The rings around polygons, without the borders between them."""
        arcs = {arc for polygon in polygons for ring in polygon for arc in ring}
        starts = {}
        for arc in sorted(arcs):
            if ~arc not in arcs:
                starts.setdefault(self.ends[arc][0], []).append(arc)
        rings = []
        while starts:
            ring, place = [], next(iter(starts))
            while place in starts:
                arc = starts[place].pop()
                if not starts[place]:
                    del starts[place]
                ring += self.chains[arc][:-1]
                place = self.ends[arc][1]
            rings.append(ring)
        return rings


def ring_area(ring):
    return abs(sum(a[0] * b[1] - b[0] * a[1] for a, b in sides(ring))) / 2


def inside(place, ring):
    """Whether a pixel lies inside a ring."""
    x, y = place
    return sum((a[1] <= y) != (b[1] <= y) and a[0] + b[0] > 2 * x
               for a, b in sides(ring)) % 2 == 1


def cut_ring(ring, line):
    """Cuts a ring in two along a line of places, which ends at the nearest pixels of the ring."""
    points = [project(place) for place in line]
    first, last = (min(range(len(ring)), key=lambda i: math.dist(ring[i], end))
                   for end in (points[0], points[-1]))
    across = pixel_chain([ring[first]] + points[1:-1] + [ring[last]])
    if first > last:
        first, last, across = last, first, across[::-1]
    return ring[:first] + across + ring[last + 1:], across[:0:-1] + ring[first:last + 1][:-1]


def area_polygons(atlas):
    """The polygons of every Area, and under the name "" those of the lands beyond the map."""
    polygons = {name: [] for name in AREA_NAMES + [""]}
    owners = {land: area for *_, areas in REGIONS for area, lands in areas for land in lands}
    owners.update(dict.fromkeys(LANDS_BEYOND, ""))
    for land, owner in owners.items():
        moved = [(project(place), area) for name, place, area in MOVED if name == land]
        for polygon in atlas.polygons[land]:
            ring = [pixel for arc in polygon[0] for pixel in atlas.chains[arc]]
            taken = [area for place, area in moved if inside(place, ring)]
            polygons[taken[0] if taken else owner].append(polygon)
    return polygons


def make_shapes(atlas):
    """The rings of every Area in order, and last those of the lands beyond the map."""
    shapes = {name: atlas.dissolve(polygons) for name, polygons in area_polygons(atlas).items()}
    for name, new, place, line in CUTS:
        largest = max(shapes[name], key=ring_area)
        shapes[name].remove(largest)
        for part in cut_ring(largest, line):
            shapes[new if inside(project(place), part) else name].append(part)
    return [[ring for ring in shapes[name] if ring_area(ring) >= SMALLEST_RING and
             any(0 <= x < WIDTH and 0 <= y < HEIGHT for x, y in ring)]
            for name in AREA_NAMES + [""]]
