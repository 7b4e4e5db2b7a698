"""What stands in the street: all places in metres along (u) and to the left of (v) its axis."""
import math

from samples.drawing import Drawing


def ground(u, v):
    """Height of the surface: a crowned road, pavements a kerb higher."""
    return 1.2 + 0.0025 * u + (-0.02 * abs(v) if abs(v) < 3.2 else 0.06)


def steps(start, end, step):
    count = max(1, round(abs(end - start) / step))
    return [start + (end - start) * i / count for i in range(count + 1)]


def control_points(d):
    """Numbered high and standing first, with heights and places to the tenth of a millimetre."""
    for i, (code, u, v, name, description) in enumerate([
            ("RD", 4, -24.5, "25B-0174", "Klinknagel in hoek bordestrap"), ("GP", 12, 1.1, "GP101", "Meetspijker"),
            ("GP", 64, -1.2, "GP102", "Meetspijker"), ("GP", 96, -30, "GP103", "Buis, 0,15 m onder straatwerk"),
            ("GP", 148, 5.5, "GP104", "Meetspijker"), ("GP", 176, 0.6, "GP105", "Meetspijker"),
            ("NAP", 124.02, 12, "25B0332", "Bout in gevel café")]):
        p = d.point(code, u, v, 1.3 + 0.002 * u, description, name=name, number=9001 + i)
        p.east, p.north, p.height = p.east + 5, p.north + 4, p.height + i


def kerbs(d):
    for line, v0 in (("TRBAND", 3.0), ("TROT", 5.2)):  # south side, round both corners of the side street
        bend, wide = 8.0 - v0, 88.5 + 8.0 - v0
        pen = d.line(line, "Zuidzijde tot zijstraat")
        for u in steps(0, 88.5, 15):
            pen.to(u, -v0, ground(u, v0))
        pen.arc((88.5, -8), (wide, -8), ground(wide, 5))
        for v in steps(-8, -46, 13)[1:]:
            pen.to(wide, v, ground(wide, 5))
        pen = d.line(line, "Zuidzijde vanaf zijstraat")
        for v in steps(-46, -8, 13):
            pen.to(192 - wide, v, ground(100, 5))
        pen.arc((103.5, -8), (103.5, -v0), ground(103, v0))
        for u in steps(103.5, 180, 15)[1:]:
            pen.to(u, -v0, ground(u, v0))
    pen = d.line("TRBAND", "Noordzijde met parkeerhaven", "00000000 00010000")  # its arc turns to the left
    for u, v in [(0, 3), (15, 3), (29.5, 3), (31, 5), (58, 5), (59.5, 3), (75, 3), (92, 3), (110, 3), (126, 3)]:
        pen.to(u, v, ground(u, v))
    pen.arc((126, 7), (130, 7), ground(130, 7)).to(130, 22, 1.6).to(130, 38, 1.62)
    pen = d.line("TRBAND", "Plein tot einde straat", "00010000")
    pen.to(165, 38, 1.68).to(165, 22, 1.66).to(165, 7, ground(165, 7)).arc((169, 7), (169, 3), ground(169, 3))
    pen.to(180, 3, ground(180, 3))
    d.polyline("TROT", [(0, 7.4), (45, 7.4), (92, 7.4), (107, 7.4), (108, 9.5)], ground, "Noordzijde")
    d.polyline("TROT", [(170.2, 38), (170.2, 10), (172.8, 7.4), (180, 7.4)], ground)
    for u in steps(31, 58, 5.4)[1:-1]:
        d.polyline("PARK", [(u, 3), (u, 5)], ground)
    for u in (70, 73.5):
        d.polyline("DREMPEL", [(u, -3), (u, 3)], ground, "Drempel, 30 km/u")


def house(d, number, u0, u1, front, back, annexe, left):
    """Closed walls, an annexe behind one half, the floor level at the door and the number inside."""
    middle = (u0 + u1) / 2
    walls = ([(u0, front), (u1, front), (u1, back), (middle, back), (middle, annexe), (u0, annexe)] if left else
             [(u0, front), (u1, front), (u1, annexe), (middle, annexe), (middle, back), (u0, back)])
    d.polyline("HGEB", walls, closed=True)
    d.point("VP", (u0 if left else u1) + (1.2 if left else -1.2), front, ground(u0, 9) + 0.25, "Bovenkant dorpel")
    d.text("HUISNR", middle, (front + back) / 2, number)


def terraces(d):
    """North side: two terraces, each garden with a shed and fences."""
    numbers = ["2", "4", "6", "8", "10", "12", "12bis", "14", "16", "18", "20", "20a"]
    for i, number in enumerate(numbers):
        u0, front = (6 if i < 6 else 10) + 6 * i, 9.5 if i < 6 else 10.3
        u1, left = u0 + 6, i % 2 == 0
        house(d, number, u0, u1, front, front + 9, front + 11.5, left)
        shed = u0 + (3.1 if left else 0.2)
        d.polyline("BGEB", [(shed, 27.6), (shed + 2.7, 27.6), (shed + 2.7, 31), (shed, 31)], None, "Berging", True)
        if i not in (5, 11):
            d.polyline("SCHUT", [(u1, front + (9 if left else 11.5)), (u1, 31)])
        if i % 3 != 1:
            d.polyline("HAAG", [(u0, front), (u0, 7.6), (u0 + 4.4, 7.6)], ground, "Haag, liguster")
    for u0, u1 in ((6, 42), (46, 82)):
        d.polyline("SCHUT", [(u0, 20), (u0, 31), ((u0 + u1) / 2, 31), (u1, 31), (u1, 20)], ground)
    d.polyline("ACHTERP", [(4.4, 20), (4.4, 32.6), (44, 32.7), (83.6, 32.6), (83.6, 20)], ground, "Achterpad, tegels")


def villas(d):
    """South side: four pairs and three single houses, with garages, drives and gardens."""
    numbers = ["1", "3", "5", "7", "9", "11", "13", "15"]
    for i in range(8):
        pair, left = 5 + 22 * (i // 2), i % 2 == 0
        u0 = pair + (0 if left else 7)
        house(d, numbers[i], u0, u0 + 7, -9.4, -17.8, -20.2, not left)
        g = u0 - 3.1 if left else u0 + 7
        d.polyline("BGEB", [(g, -13), (g + 3.1, -13), (g + 3.1, -19), (g, -19)], None, "Garage", True)
        d.polyline("INRIT", [(g + 0.2, -3), (g + 0.6, -5.2), (g + 0.6, -13)], ground)
        d.polyline("INRIT", [(g + 2.9, -3), (g + 2.5, -5.2), (g + 2.5, -13)], ground)
        d.polyline("HEK", [(u0 + 7, -20.2), (u0 + 7, -33)] if left else [(u0 + 11, -5.6), (u0 + 11, -33)], ground)
    d.polyline("HAAG", [(8.5, -5.6), (11, -5.7), (14.5, -5.6), (18, -5.7)], ground, "Haag, beuken")
    for number, u0, size in (("17", 108, 10), ("19", 129, 11), ("21hs", 152, 12)):
        house(d, number, u0, u0 + size, -10.5, -20, -23, number == "19")
        d.polyline("BGEB", [(u0 + size + 2, -16), (u0 + size + 6, -16), (u0 + size + 6, -22.5), (u0 + size + 2, -22.5)],
                   None, "Garage \"dubbel\"" if number == "19" else "Garage", True)
        d.polyline("OVERK", [(u0 + size, -16.3), (u0 + size + 2, -16.3), (u0 + size + 2, -20), (u0 + size, -20)])
        d.polyline("HAAG", [(u0 - 2.5, -5.6), (u0 - 2.5, -29)] if size < 11 else [(u0 - 4, -5.6), (u0 - 4, -28)], ground)
        d.polyline("INRIT", [(u0 + size + 2.4, -3), (u0 + size + 2.8, -5.2), (u0 + size + 2.8, -16)], ground)
        d.polyline("INRIT", [(u0 + size + 6, -3), (u0 + size + 5.6, -5.2), (u0 + size + 5.6, -16)], ground)
    d.polyline("PERCEEL", [(101, -29), (140, -28), (180, -28)])
    for u in (105.5, 125, 148):
        d.point("GRPAAL", u, -28.6, 1.32, "Grenspaal, kop 0,10 m boven maaiveld")


def square(d):
    """The square with its café, terrace, hall, flower bed and furniture."""
    d.polyline("HGEB", [(108, 9.5), (124, 9.5), (124, 22), (114, 22), (114, 19), (108, 19)], None, "Horeca", True)
    d.text("NAAM", 116, 15.5, "Café 't Hoekje")
    d.text("HUISNR", 110, 11.5, "24")
    d.polyline("TERRAS", [(124, 11), (128.6, 11), (128.6, 21), (124, 21)], ground, "Terras, mei t/m september")
    for u, v in ((125.4, 13), (127.4, 16), (125.4, 19)):
        d.point("PARASOL", u, v, 1.6)
    d.text("NAAM", 119, 24.5, "Terras", "(mei t/m september,", "niet overdekt)", position=2)
    pen = d.line("HGEB", "Dorpshuis met ronde zaal", "00000000 00010000")
    pen.to(133, 44).to(142, 44).arc((147.5, 44), (153, 44), None).to(162, 44).to(162, 56).to(133, 56).to(133, 44)
    d.text("NAAM", 147.5, 50, "Dorpshuis 'De Coöperatie'")
    d.text("HUISNR", 135, 46, "1")
    d.line("PLANTS", "Bloembed").to(151.5, 22, 1.72).arc((147.5, 22), (151.5, 22), 1.72, "CIRCLE_CENT")
    d.point("FONTEIN", 147.5, 22, 1.8, "Fontein, bekken Ø1,20 m")
    d.text("STRNAAM", 147.5, 31, "Coöperatieplein")
    for angle in (45, 135, 225, 315):
        dx, dy = math.cos(math.radians(angle)), math.sin(math.radians(angle))
        d.point("BANK", 147.5 + 6.2 * dx, 22 + 6.2 * dy, 1.65, facing=angle + 180)
        d.point("LOOF", 147.5 + 12 * dx, 22 + 12 * dy, 1.66, "Plataan, stam Ø0,35")
        edge = (148.3 + 12 * dx, 22 + 12 * dy)
        d.line("BOOMSP").to(*edge, 1.66).arc((147.5 + 12 * dx, 22 + 12 * dy), edge, 1.66, "CIRCLE_CENT")
    for u in steps(132, 163, 3.4):
        d.point("AMPAAL", u, 4.1, ground(u, 4))
    d.point("KUNST", 140, 33, 1.7, "Beeld \\\"De Maaier\\\", brons")
    d.point("BRIEF", 131.2, 8.5, 1.55, facing=0)
    d.point("AFVAL", 131.4, 20, 1.63)
    for u in (157, 158.2, 159.4, 160.6):
        d.point("FIETSNT", u, 41.6, 1.66, "Fietsbeugel")
    d.text("SCHETS", 158, 39.5, "beugels nog niet definitief", position=1)


def street_furniture(d):
    for i, u in enumerate(steps(8, 104, 12)):
        d.point("NAALD" if i == 6 else "LOOF", u, 6.3, ground(u, 6), "Linde, stam Ø0,%02d" % (22 + 3 * (i % 4)), blur=0.3)
    for i, v in enumerate(steps(-13, -43, 10)):
        d.point("LOOF", 102.2, v, 1.45, "Sierpeer", blur=0.2)
    d.point("BEUK", 143.5, -25.5, 1.38, "Rode beuk, stam Ø1,10, kroon Ø14 m, beschermd, zie kapverordening")
    for u in steps(14, 172, 31.6):
        d.point("LMU", u, -4.7, ground(u, 5), "Mast 6 m", facing=90)
    for v in (-20, -40):
        d.point("LM", 92.4, v, 1.42, "Mast 4 m")
    for v, facing in ((-2.75, 0), (2.75, 180)):
        for u in steps(10, 174, 20.5):
            d.point("KOLK", u, v, None, facing=facing)
    for v in (-14, -27, -40):
        d.point("TKOLK", 93.7, v, None, facing=270)
    for i, u in enumerate(steps(5, 175, 34)):
        d.point("PUTR", u, 0.3, ground(u, 0), "Put R%02d, diepte 1,85 m" % (i + 1))
    d.point("PUTR", 96, -18, 1.4, "Put R11, diepte 1,60 m, overstort op sloot, deksel vierkant \\\"DWA\\\"")
    for u in (9.2, 33.5, 55, 76.4):
        d.point("PUTI", u, -6.1, ground(u, 6))
    d.point("BRKRAAN", 44.5, -4.1, ground(44, 4), facing=0)
    d.point("BRKRAAN", 121, 4.2, ground(121, 4), facing=180)
    for u in (43.8, 120.2):
        d.point("AFSL", u, -3.9 if u < 50 else 4.4, ground(u, 4))
    d.point("EKAST", 67, -5.9, 1.5, "Kast \\\"EK 14-3\\\", deur noordzijde, sleutel bij netbeheerder", facing=90)
    d.point("CAI", 45.1, 8.1, 1.4, "Kast \\\"C7\\\"", facing=270)
    for u, v, facing, sign in ((105.8, -4.6, 180, "B6"), (3, 4.4, 180, "A1, 30 km zone"), (30.2, 5.8, 270, "E4"),
                               (171.5, 5.4, 0, "C2")):
        d.point("BORD", u, v, ground(u, 5), "Bord " + sign, facing=facing)
    d.point("SNBORD", 89.2, -4.9, 1.48, "Straatnaambord \\\"Lindenhof\\\"", facing=0)
    d.point("SNBORD", 131, 6.4, 1.57, "Straatnaambord, twee zijden", facing=45)


def heights(d):
    for u in steps(2, 178, 11):
        d.point("WH", u, 0, ground(u, 0), "As rijbaan")
    for v in steps(-8, -44, 9):
        d.point("WH", 96, v, 1.42 + 0.003 * v, "As rijbaan")
    for u in steps(6, 84, 13):
        d.point("MV", u, 24.5, ground(u, 9) + 0.1, blur=0.8)
        d.point("MV", u, -27, ground(u, 9) - 0.1, blur=0.8)
    for u in steps(135, 160, 8):
        d.point("MV", u, 13, 1.63, blur=0.5)


def water_and_green(d):
    """A ditch and a footpath, both curved, and what lies underground."""
    def bank(offset):
        return [(u, -38 - offset + 0.8 * math.sin(u / 11)) for u in steps(0, 84, 9.4)]
    d.polyline("SLOOT", bank(-2.2), lambda u, v: 0.72, "Insteek noord", kind="CURVE_4RD")
    d.polyline("WATER", bank(-1.0), lambda u, v: -0.45, "Beschoeiing", kind="CURVE_4RD")
    d.polyline("WATER", bank(1.0), lambda u, v: -0.45, kind="CURVE_4RD")
    d.polyline("SLOOT", bank(2.2), lambda u, v: 0.7, "Insteek zuid", kind="CURVE_4RD")
    d.polyline("DUIKER", [(84, -37.2), (106, -37.6)], lambda u, v: -0.6, "Duiker Ø600 beton")
    for u in (21, 43, 65):
        d.point("DRAIN", u, -36.6, -0.3, "Uitstroom drain")
    d.text("WATNAAM", 42, -39, "Heuvelinksloot", facing=0)
    for offset in (0, 1.8):
        d.polyline("VPAD", [(u, -33.5 - offset - 2.2 * math.sin((u - 101) / 12)) for u in steps(100.7, 178, 7)],
                   lambda u, v: 1.25, "Halfverharding", kind="CURVE_3RD")
    d.polyline("PLANTS", [(106, -40), (124, -44), (150, -42), (176, -44.5), (178, -40), (150, -37.8), (128, -39)],
               lambda u, v: 1.2, "Heesters", True)
    d.text("GROEN", 142, -41, "Plantsoen, honden aan de lijn", facing=2)
    for i, (u, v) in enumerate([(112, -41), (121, -42.3), (134, -41), (158, -40.5), (168, -42.5)]):
        d.point("NAALD" if i % 2 else "LOOF", u, v, 1.2, "Es" if i % 2 == 0 else "Grove den", blur=0.5)
    d.polyline("LEIDING", [(0, -4.2), (60, -4.3), (86, -4.3), (92.9, -8.5), (92.9, -46)], None, "Waterleiding 110 pvc")
    d.polyline("LEIDING", [(0, 6.9), (90, 6.8), (125, 6.4)], None, "Gasleiding, uit revisie")
    d.polyline("GEUL", [(130.5, 36), (164.5, 36)], lambda u, v: 1.6, "Lijngoot")
    d.polyline("HULPLN", [(0, 0), (180, 0)], None, "Meetlijn")
    d.polyline("MUUR", [(170.4, 12), (178, 12), (178, 30)], ground, "Tuinmuur, h=1,20")


def names(d):
    for u in (26, 116):
        d.text("STRNAAM", u, -0.9 if u < 90 else 0.9, "Boulevard Heuvelinkstraat")
    d.text("STRNAAM", 95.3, -28, "Lindenhof", facing=270)
    d.text("OPM", 45, 5.9, "Parkeerhaven,", "blauwe zone", position=4)
    d.text("OPM", 153, -1.3, "Kabeltracé nog in te meten na gereedkomen werk")
    d.text("SCHETS", 184, 0, "aansluiting Hoge Weg?", facing=90, position=7)
    d.text("STNDRD", 97, -47.5, "naar nr. 33–41", facing=270)
    manhole = next(p for p in d.points if p.code == "PUTR")
    d.text("OPM", 0, 0, "R01", at=manhole, position=9)


def street():
    d = Drawing()
    control_points(d)
    for draw in (kerbs, terraces, villas, square, street_furniture, heights, water_and_green, names):
        draw(d)
        d.gap(6, 3)
    return d
