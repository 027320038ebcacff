#!/usr/bin/env python3
"""Makes the map's outlines (land.txt, italy.txt, borders.txt) from world-atlas.

    python3 extract.py countries-10m.json

writes the three files beside this script; README.md tells their form.
"""

import json
import pathlib
import sys

ITALY = "380"
SCALE = 1000  # the files hold thousandths of a degree
ROW_WIDTH = 100

WEST, SOUTH, EAST, NORTH = -34, 22, 54, 76  # what the widest map shows, and a margin

# From the closest maps to the widest: west, south, east, north, how far a simplified line may lie
# from the true one (degrees), and the smallest island that is kept (square degrees).
ZONES = [
    (3, 35, 20, 49, 0.006, 0.0004),
    (-15, 33, 36, 57, 0.02, 0.008),
    (WEST, SOUTH, EAST, NORTH, 0.05, 0.03),
]
FAR = (0.5, 1.0)  # beyond all of them


def zone(point):
    for west, south, east, north, tolerance, smallest in ZONES:
        if west <= point[0] <= east and south <= point[1] <= north:
            return tolerance, smallest
    return FAR


def decoded_arcs(topology):
    scale, translate = topology["transform"]["scale"], topology["transform"]["translate"]
    for arc in topology["arcs"]:
        x = y = 0
        points = []
        for step in arc:
            x, y = x + step[0], y + step[1]
            points.append((x * scale[0] + translate[0], y * scale[1] + translate[1]))
        yield points


def distance(point, start, end):
    dx, dy = end[0] - start[0], end[1] - start[1]
    length = dx * dx + dy * dy
    along = 0
    if length > 0:
        along = ((point[0] - start[0]) * dx + (point[1] - start[1]) * dy) / length
        along = min(1, max(0, along))
    return ((point[0] - start[0] - along * dx) ** 2 + (point[1] - start[1] - along * dy) ** 2) ** 0.5


def simplified(points):
    """Douglas-Peucker, each point by the tolerance of its own zone. The ends stay, so that arcs
    that met still do, and a border and the coasts beside it stay one line."""
    kept = {0, len(points) - 1}
    stack = [(0, len(points) - 1)]
    while stack:
        first, last = stack.pop()
        worst, at = 1, None
        for i in range(first + 1, last):
            excess = distance(points[i], points[first], points[last]) / zone(points[i])[0]
            if excess > worst:
                worst, at = excess, i
        if at is not None:
            kept.add(at)
            stack += [(first, at), (at, last)]
    return [points[i] for i in sorted(kept)]


def ring_points(arcs, numbers):
    points = []
    for number in numbers:
        arc = arcs[number] if number >= 0 else arcs[~number][::-1]
        points += arc[1:]  # the first one is the last of the arc before
    return unrolled(points)


def unrolled(ring):
    """Longitudes without the jump from 180 to -180, which would cut across the whole map."""
    turn, result = 0, []
    for before, point in zip(ring[:1] + ring[:-1], ring):
        turn += 360 * ((before[0] - point[0] > 180) - (before[0] - point[0] < -180))
        result.append((point[0] + turn, point[1]))
    middle = (min(x for x, _ in result) + max(x for x, _ in result)) / 2
    return [(x - 360 * round(middle / 360), y) for x, y in result]


def area(ring):
    closed = zip(ring, ring[1:] + ring[:1])
    return abs(sum(a[0] * b[1] - b[0] * a[1] for a, b in closed)) / 2


def cut(ring, axis, limit, keep_below):
    """One step of Sutherland and Hodgman."""
    inside = lambda p: p[axis] <= limit if keep_below else p[axis] >= limit
    result = []
    for before, point in zip(ring[-1:] + ring[:-1], ring):
        if inside(before) != inside(point):
            share = (limit - before[axis]) / (point[axis] - before[axis])
            other = before[1 - axis] + share * (point[1 - axis] - before[1 - axis])
            result.append((limit, other) if axis == 0 else (other, limit))
        if inside(point):
            result.append(point)
    return result


def clipped(ring):
    for axis, limit, keep_below in [(0, WEST, False), (0, EAST, True), (1, SOUTH, False),
                                    (1, NORTH, True)]:
        ring = cut(ring, axis, limit, keep_below)
    return ring


def polygons(geometry):
    return [geometry["arcs"]] if geometry["type"] == "Polygon" else geometry["arcs"]


def rings(arcs, geometry):
    """The rings of a geometry, holes among them, that are in the window and not too small."""
    for polygon in polygons(geometry):
        for numbers in polygon:
            ring = clipped(ring_points(arcs, numbers))
            if len(ring) >= 3 and area(ring) >= zone(ring[0])[1]:
                yield ring


def border_lines(arcs, countries):
    """The arcs that two countries share."""
    users = {}
    for index, country in enumerate(countries):
        for polygon in polygons(country):
            for numbers in polygon:
                for number in numbers:
                    users.setdefault(max(number, ~number), set()).add(index)
    for number in sorted(users):
        line = arcs[number]
        if len(users[number]) > 1 and any(
                WEST <= x <= EAST and SOUTH <= y <= NORTH for x, y in line):
            yield line


def write(path, lines, shortest):
    """Writes lines of points, and tells their number."""
    text, count = [], 0
    for line in lines:
        whole = [(round(x * SCALE), round(y * SCALE)) for x, y in line]
        steps = [(b[0] - a[0], b[1] - a[1]) for a, b in zip(whole, whole[1:])]
        steps = [step for step in steps if step != (0, 0)]
        if len(steps) + 1 < shortest:
            continue
        count += 1
        text.append("from %d %d" % whole[0])
        row = ""
        for step in steps:
            words = "%d %d" % step
            if row and len(row) + 1 + len(words) > ROW_WIDTH:
                text.append(row)
                row = ""
            row += (" " if row else "") + words
        text.append(row)
    path.write_text("\n".join(text) + "\n", encoding="ascii")
    print(path.name, count, "lines of points,", path.stat().st_size, "bytes")


def main():
    topology = json.loads(pathlib.Path(sys.argv[1]).read_text(encoding="utf-8"))
    arcs = [simplified(arc) for arc in decoded_arcs(topology)]
    countries = [c for c in topology["objects"]["countries"]["geometries"] if c["type"]]
    land = topology["objects"]["land"]["geometries"][0]
    italy = next(c for c in countries if c.get("id") == ITALY)
    folder = pathlib.Path(__file__).resolve().parent
    write(folder / "land.txt", rings(arcs, land), 3)
    write(folder / "italy.txt", rings(arcs, italy), 3)
    write(folder / "borders.txt", border_lines(arcs, countries), 2)


if __name__ == "__main__":
    main()
