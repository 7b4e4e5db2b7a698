"""A crossing of two streets: all places in metres along (u) and to the left of (v) the first street's axis."""
import math

from samples.codes import LINES, POINTS, TEXTS
from samples.nen import NenFile, Place

EAST, NORTH, TURN = 121412.0, 487158.0, math.radians(11.5)  # the middle, and the direction of the first street
WIDE, NARROW = 4.0, 3.25  # half the width of the carriageway of the two streets
PAVEMENT = 2.2
OWNER = ("MEETDIENST VLIETERHOEK", "VLIETER", "ZUIDERKÉ", "27A", "9994ZZ", "VLIETERHOEK")


def ground(u, v):
    return 1.45 + 0.004 * u - 0.003 * v


def at(u, v, height=False, name=None):
    east = EAST + u * math.cos(TURN) - v * math.sin(TURN)
    north = NORTH + u * math.sin(TURN) + v * math.cos(TURN)
    return Place(east, north, ground(u, v) if height else None, name)


def ahead(u, v, degrees):
    """One metre on in a direction, counted anticlockwise from the first street's axis."""
    return at(u + math.cos(math.radians(degrees)), v + math.sin(math.radians(degrees)))


def steps(start, end, step):
    count = max(1, round(abs(end - start) / step))
    return [start + (end - start) * i / count for i in range(count + 1)]


def turn_of(u, v, radius, degrees):
    return u + radius * math.cos(math.radians(degrees)), v + radius * math.sin(math.radians(degrees))


def through(u, v, radius, begin, end, arcs=1):
    """Points for a chain of arcs on one circle."""
    return [turn_of(u, v, radius, begin + (end - begin) * i / (2 * arcs)) for i in range(2 * arcs + 1)]


class Numbers:
    """The surveyors' numbers of points; two lines that meet share theirs."""

    def __init__(self):
        self.names = {}

    def place(self, u, v, height=True):
        name = self.names.setdefault((round(u, 2), round(v, 2)), "K%d" % (201 + len(self.names)))
        return at(u, v, height, name)


def corner(width, narrow, radius):
    """From one street to the other: an arc of one radius."""
    return through(narrow + radius, width + radius, radius, 270, 180)


def wide_corner(width, narrow, first, second, share=38):
    """A curve of two arcs that touch: a wide one first, a sharper one behind it."""
    bend = math.radians(share)
    u1 = narrow + second + (first - second) * math.sin(bend)
    u2 = narrow + second
    v2 = width + first + (second - first) * math.cos(bend)
    begin = through(u1, width + first, first, 270, 270 - share)
    return begin + through(u2, v2, second, 270 - share, 180)[1:]


def kerbs(file, numbers):
    """Each quarter: along the first street, round the corner, along the second; kerb and back of the pavement."""
    for su, sv in ((1, 1), (-1, 1), (-1, -1), (1, -1)):
        for code, back in (("V01", 0), ("V02", PAVEMENT)):
            w, n = WIDE + back, NARROW + back
            bend = corner(w, n, 9 - back) if su * sv > 0 else wide_corner(w, n, 15 - back, 7 - back)
            (u, _), (_, v) = bend[0], bend[-1]
            file.line(code, [numbers.place(su * along, sv * w) for along in steps(72, u, 8.5)], "terrestrial")
            file.arc(code, [at(su * a, sv * b, True) for a, b in bend], "terrestrial")
            file.line(code, [numbers.place(su * n, sv * along) for along in steps(v, 58, 7)], "terrestrial")


def islands(file, numbers):
    """Refuges in the first street, with round ends, and raised tables in the second."""
    for u0, u1 in ((16, 27), (-27, -16)):
        file.line("V01", [numbers.place(u, -0.9) for u in steps(u0, u1, 5.5)], "terrestrial")
        file.arc("V01", [at(*p, True) for p in through(u1, 0, 0.9, -90, 90)], "terrestrial")
        file.line("V01", [numbers.place(u, 0.9) for u in steps(u1, u0, 5.5)], "terrestrial")
        file.arc("V01", [at(*p, True) for p in through(u0, 0, 0.9, 90, 270)], "terrestrial")
        file.symbol("S03 F01", at(u0 + 0.8, 0, True), ahead(u0 + 0.8, 0, 180))
    for v0, v1 in ((17, 20), (-20, -17)):
        for v in (v0, v1):
            file.line("V05", [at(u, v, True) for u in (-NARROW, 0, NARROW)], "terrestrial")


def house(file, numbers, corners, number, code="B01"):
    """Walls, and for a house number the floor level and the number inside."""
    file.line(code, [numbers.place(u, v, False) for u, v in corners + corners[:1]], "terrestrial", 12)
    if number:
        us, vs = [u for u, _ in corners], [v for _, v in corners]
        middle = (min(us) + max(us)) / 2, (min(vs) + max(vs)) / 2
        (u0, v0), (u1, v1) = corners[0], corners[1]
        file.text("Z03", at(*middle), ahead(*middle, 0), number)
        file.point("Q23", at((u0 + u1) / 2, (v0 + v1) / 2, True, "VP" + number), "levelled", "VLOERPEIL BEGANE GROND",
                   day=12)


def buildings(file, numbers):
    for i, number in enumerate(("12", "14", "16", "18", "20", "20A")):  # a row of houses, north-west
        u = -67 + 7.5 * i
        walls = [(u, 9.4), (u + 7.5, 9.4), (u + 7.5, 19), (u + 3.4, 19), (u + 3.4, 21.6), (u, 21.6)]
        house(file, numbers, walls, number)
        house(file, numbers, [(u + 4, 34), (u + 7, 34), (u + 7, 38), (u + 4, 38)], None, "B02")
        if i:
            file.line("T02", [at(u, v) for v in (21.6, 34)], "terrestrial", 12)
    file.line("T02", [at(u, 38) for u in steps(-67, -22, 7.5)], "terrestrial", 12)
    house(file, numbers, [(16, 10.5), (34, 10.5), (34, 24), (22, 24), (22, 19), (16, 19)], "2")  # the café
    file.line("V08", [at(u, v) for u, v in ((9.4, 15), (16, 15), (16, 27), (9.4, 27), (9.4, 15))], "terrestrial", 12)
    for u, v in ((11.5, 18), (13.8, 21), (11.5, 24)):
        file.symbol("S03 G05", at(u, v))
    file.text("Z04", at(25, 14.5), ahead(25, 14.5, 0), "Café 't Kruispunt")
    wall = [(42, 10), (66, 10), (66, 30), (58, 30)]  # the school, with a round hall
    file.line("B01", [numbers.place(u, v, False) for u, v in wall], "terrestrial", 12)
    file.arc("B01", [at(*p) for p in through(54, 30, 4, 0, 180, 2)], "terrestrial", 12)
    file.line("B01", [numbers.place(u, v, False) for u, v in ((50, 30), (42, 30), (42, 10))], "terrestrial", 12)
    file.text("Z04", at(54, 20), ahead(54, 20, 0), "Basisschool 'De Veêrhoek'", apart=True)
    for i, number in enumerate(("1", "3", "5")):  # detached houses, south-west
        u = -66 + 18 * i
        house(file, numbers, [(u + 11, -12), (u, -12), (u, -23), (u + 11, -23)], number)
        file.line("B03", [at(u + 11, v) for v in (-15, -21)] + [at(u + 14, -21), at(u + 14, -15), at(u + 11, -15)],
                  "terrestrial", 12)
        file.line("G01", [at(u + 16, v) for v in steps(-7, -31, 8)], "green", 12)
        for du in (12, 15):
            file.line("V04", [at(u + du, v, True) for v in (-WIDE, -6.2, -15)], "terrestrial")


def oval(u, v, half, radius, degrees):
    """Four arcs that touch: sharp ends of this radius, half their distance from the middle, and wide sides."""
    rise = half * math.tan(math.radians(degrees))
    side = radius + half / math.cos(math.radians(degrees))
    places = through(u + half, v, radius, -degrees, degrees)
    places += through(u, v - rise, side, degrees, 180 - degrees)[1:]
    places += through(u - half, v, radius, 180 - degrees, 180 + degrees)[1:]
    return places + through(u, v + rise, side, 180 + degrees, 360 - degrees)[1:]


def park(file):
    """South-east: a pond, a winding path round it, and a ditch that goes under the second street."""
    u, v, radius = 42, -32, 19
    file.arc("W02", [at(*p) for p in oval(u, v, 6, 8, 50)], "green", 12)
    for aside in (-0.8, 0.8):  # the path bends to the left round the pond, to the right before and behind that
        path = through(*turn_of(u, v, radius + 12, 130), 12 - aside, 370, 310)
        path += through(u, v, radius + aside, 130, 350, 2)[1:]
        path += through(*turn_of(u, v, radius + 30, 350), 30 - aside, 170, 130)[1:]
        file.arc("V06", [at(*p, True) for p in path], "green", 12)
    for offset in (-1.2, 1.2):
        file.line("W01", [at(u, -56 + offset + 0.7 * math.sin(u / 9)) for u in steps(6, 72, 4.7)], "green", 12)
        file.line("W01", [at(u, -56 + offset + 0.7 * math.sin(u / 9)) for u in steps(-72, -6, 4.7)], "green", 12)
    file.line("W03", [at(-6, -56.4), at(6, -55.6)], "green", 12)
    file.text("Z05", at(-40, -57), ahead(-40, -57, 0), "Veêrsloot")
    file.text("Z06", at(42, -32), ahead(42, -32, 0), "Vijver")
    trees = ((14, -33), (17, -44), (28, -24), (56, -24), (58, -52), (28, -51), (47, -54), (68, -30))
    for i, (u, v) in enumerate(trees):
        file.symbol("S01 A05" if i == 3 else "S01 A0%d" % (1 + i % 2), at(u, v))
    for u, v, degrees in ((21.2, -31, 0), (42, -52.4, 90)):
        file.symbol("S03 G01", at(u, v), ahead(u, v, degrees))
    file.symbol("S03 G02", at(21.2, -34))
    file.line("G02", [at(u, v) for u, v in ((9, -12), (20, -10.5), (19, -20), (11, -27), (9, -12))], "green", 12)


def along_the_streets(file):
    """What stands in rows: trees, lamps turned to the carriageway, gullies along the kerb, manholes on the axis."""
    for u in steps(-68, -26, 10.5) + steps(26, 68, 10.5):
        file.symbol("S01 A01", at(u, 5.6, True))
    for i, (u, v, degrees) in enumerate(((-60, -5.4, 90), (-28, 5.4, 270), (28, -5.4, 90), (60, 5.4, 270),
                                         (4.7, 38, 180), (-4.7, -38, 0))):
        file.symbol("S02 B02", at(u, v, True, "LM%d" % (i + 1)), ahead(u, v, degrees), apart=i % 2 == 1)
    for u, v in ((14, 9.6), (-14, -9.6)):
        file.symbol("S02 B01", at(u, v, True), apart=True)
    for u in (-62, -41, 41, 62):
        for v, degrees in ((WIDE - 0.3, 180), (0.3 - WIDE, 0)):
            file.point("S02 C03", at(u, v), "terrestrial", "STRAATKOLK", ahead(u, v, degrees))
    for i, (u, v) in enumerate(((-55, 0.2), (-8, 0.2), (40, 0.2), (0.3, 30), (0.3, -34))):
        file.symbol("S02 C01", at(u, v, True, "R%02d" % (i + 1)))
    for u, v, degrees, code in ((-11.5, 7.2, 315, "S03 F01"), (11.5, -7.2, 135, "S03 F01"), (8.4, 10.2, 0, "S03 F02"),
                                (7.6, 11, 90, "S03 F02"), (-20, -6, 90, "S03 E01"), (18, 6, 270, "S03 G04"),
                                (36, -5, 0, "S02 D01")):
        file.symbol(code, at(u, v, True), ahead(u, v, degrees))
    for i, u in enumerate(steps(-65, 65, 13)):
        file.point("Q22", at(u, 0, True, str(301 + i)), "levelled", "WEGDEKHOOGTE")
    for i, v in enumerate((-50, -26, -11, 11, 26, 50)):
        file.point("Q22", at(0, v, True, str(321 + i)), "levelled", "WEGDEKHOOGTE")
    for i, (u, v) in enumerate(((-40, 27), (-30, -40), (36, 35), (62, -48), (18, 45))):
        file.point("Q21", at(u, v, True, str(331 + i)), "green", "MAAIVELDHOOGTE", day=12)


def control_points(file):
    texts = {"E01": "GRONDSLAGPUNT", "E02": "COÖRDINAATPUNT", "E03": "NAP-BOUT"}
    for code, u, v, name in (("E02", -71, 2, "25B-0207"), ("E01", -34, -4.9, "GP201"), ("E01", 5.1, 3, "GP202"),
                             ("E01", 50, -4.9, "GP203"), ("E01", -2, 54, "GP204"), ("E03", 34, 12, "25B0419")):
        file.point(code, at(u, v, True, name), "levelled", texts[code], day=10)


def names(file):
    for u in (-46, 46):
        file.text("Z02", at(u, -1.6), ahead(u, -1.6, 0), "Coöperatieweg")
    file.text("Z02", at(1.6, 40), ahead(1.6, 40, 90), "Curaçaokade", apart=True)
    file.text("Z02", at(1.6, -42), ahead(1.6, -42, 90), "Hélènestraat")
    file.text("Z01", at(-66, 50), ahead(-66, 50, 0), "Vlieterhoek", anchor=1)
    file.text("Z07", at(27.5, 2), ahead(27.5, 2, 0), "vluchtheuvel, gewijzigd", anchor=2)
    file.text("Z07", at(-3, -57), at(-3, -57), "duiker Ø600", anchor=3)


def check_codes(lines):
    """Every code of the file must be in the control table."""
    known = {row[1] for table in (POINTS, LINES, TEXTS) for row in table if isinstance(row, tuple)}
    for line in lines:
        if line[:2] == "03":
            code = line[3:10].rstrip()
        elif line[:3] == "05F" and line[12:13] == "K":
            code = line[13:16] + (" " + line[6:9] if line[13:14] == "S" else "")
        else:
            continue
        assert code in known, line


def crossing():
    """The lines of the file."""
    file, numbers = NenFile("Kruising Coöperatieweg", "202406", OWNER), Numbers()
    control_points(file)
    for draw in (kerbs, islands, buildings):
        draw(file, numbers)
    for draw in (park, along_the_streets, names):
        draw(file)
    lines = file.end()
    check_codes(lines)
    return lines
