#!/usr/bin/env python3
"""Reads a picture as any program reads SVG, and tells what is in it.

usage: svg.py PICTURE.svg

One line for each group: its id, code, title and how many paths, circles and texts it has; one with what the places of
line strings cover; and one for each arc of them: its centre, sweep in degrees (clockwise positive), both from its flags.
"""
import math
import re
import sys
import xml.etree.ElementTree as ET

SVG = "{http://www.w3.org/2000/svg}"


def centre(x1, y1, r, large, sweep, x2, y2):
    """The centre and the sweep of an arc, as SVG computes them; y grows downwards."""
    dx, dy = (x1 - x2) / 2, (y1 - y2) / 2
    half = math.hypot(dx, dy)
    r = max(r, half)
    rise = math.sqrt(max(0.0, r * r - half * half)) / half
    if large == sweep:
        rise = -rise
    cx, cy = (x1 + x2) / 2 + rise * dy, (y1 + y2) / 2 - rise * dx
    turn = math.atan2(y2 - cy, x2 - cx) - math.atan2(y1 - cy, x1 - cx)
    if sweep and turn < 0:
        turn += 2 * math.pi
    if not sweep and turn > 0:
        turn -= 2 * math.pi
    return cx, cy, math.degrees(turn)


def main():
    root = ET.parse(sys.argv[1]).getroot()
    assert root.tag == SVG + "svg", root.tag
    east, north = float(root.get("data-east")), float(root.get("data-north"))
    ids = [element.get("id") for element in root.iter() if element.get("id")]
    assert len(ids) == len(set(ids)), "an id twice"
    arcs, xs, ys = [], [], []
    for group in root.iter(SVG + "g"):
        if not group.get("id"):
            continue
        counts = [len(group.findall(SVG + kind)) for kind in ("path", "circle", "text")]
        print(group.get("id"), group.get("data-code"), "|", group.find(SVG + "title").text, "|", *counts)
        if not group.get("id").startswith("L-"):
            continue
        for path in group.findall(SVG + "path"):
            for letter, rest in re.findall(r"([A-Z])([^A-Z]*)", path.get("d")):
                numbers = [float(number) for number in rest.split()]
                if letter == "A":
                    assert numbers[0] == numbers[1]
                    arcs.append(centre(xs[-1], ys[-1], numbers[0], numbers[3], numbers[4], *numbers[-2:]))
                xs.append(numbers[-2])
                ys.append(numbers[-1])
    if xs:
        print("extent %.3f %.3f %.3f %.3f" % (east + min(xs), north - max(ys), east + max(xs), north - min(ys)))
    for x, y, turn in arcs:
        print("arc %.3f %.3f %.2f" % (east + x, north - y, turn))


main()
