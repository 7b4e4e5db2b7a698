"""A drawing laid out along a street's axis, and how it is written as an IDEX file."""
import math
import random

from samples.codes import LAYERS

EAST0, NORTH0, TURN = 121012.0, 487031.0, 17.3  # grid position and direction (degrees) of the axis
EOL = "\r\n"


def grads(degrees):
    """Direction along the street's own axes to grads in the grid: 0 is east, anticlockwise."""
    return round((degrees + TURN) / 0.9, 4) % 400


def metres(tenths, decimals=4):
    """Coordinates are kept in tenths of millimetres, so that no rounding depends on the machine."""
    text = "%s%d.%04d" % ("-" if tenths < 0 else "", *divmod(abs(tenths), 10000))
    return text[:len(text) - 4 + decimals]


class Point:
    def __init__(self, number, name, east, north, height, code, description, direction):
        self.number, self.name, self.code = number, name, code
        self.east, self.north, self.height = east, north, height
        self.description, self.direction = description, direction

    def row(self):
        fields = ["    %8d" % self.number, '"%s"' % self.name, metres(self.east).ljust(15),
                  metres(self.north).ljust(15), metres(self.height).ljust(15), '"%s"' % self.code,
                  '"%s"' % self.description, ("%.4f" % self.direction).ljust(9) + ";"]
        if len(self.description) > 45:  # a long row goes on on the next line
            return ",".join(fields[:5]) + "," + EOL + " " * 12 + ",".join(fields[5:])
        return ",".join(fields)


class Drawing:
    def __init__(self):
        self.random = random.Random(1878)
        self.points, self.corners = [], {}
        self.lines, self.edges, self.texts = [], [], []
        self.number = self.line_number = 0

    def gap(self, points, lines):
        """Numbers are not contiguous: a new subject starts a little further on."""
        self.number += points
        self.line_number += lines

    def point(self, code, u, v, z=None, description="", facing=None, name=None, number=None, blur=0.012):
        """A point at u metres along and v metres to the left of the axis; z None has no height."""
        u += self.random.uniform(-blur, blur)
        v += self.random.uniform(-blur, blur)
        turn = math.radians(TURN)
        east = EAST0 + u * math.cos(turn) - v * math.sin(turn)
        north = NORTH0 + u * math.sin(turn) + v * math.cos(turn)
        if number is None:
            self.number += 1
            number = self.number
        self.points.append(Point(number, str(1000 + number) if name is None else name, round(east * 1000) * 10,
                                 round(north * 1000) * 10, 0 if z is None else round(z * 1000) * 10, code, description,
                                 0.0 if facing is None else grads(facing)))
        return self.points[-1]

    def corner(self, u, v, z=None):
        """A vertex of line strings; two that meet at the same place share one point."""
        key = (round(u, 2), round(v, 2))
        if key not in self.corners:
            self.corners[key] = self.point("", u, v, z)
        return self.corners[key]

    def line(self, code, description="", flags="00000000 00000000"):
        self.line_number += 1
        self.lines.append((self.line_number, code, description, flags))
        return Pen(self, self.line_number)

    def polyline(self, code, places, z=None, description="", closed=False, kind="STRAIGHT"):
        pen = self.line(code, description)
        for u, v in places + (places[:1] if closed else []):
            pen.to(u, v, z(u, v) if z else None, kind)

    def text(self, layer, u, v, *items, facing=0, position=5, at=None):
        """A text of one or more lines, hanging on a point of its own or on the point given."""
        anchor = at or self.point("", u, v, name="")
        self.texts.append((LAYERS[layer], anchor.number, position, grads(facing), items))


class Pen:
    """Draws the segments of one line string from vertex to vertex."""

    def __init__(self, drawing, line):
        self.drawing, self.number, self.last = drawing, line, None

    def to(self, u, v, z=None, kind="STRAIGHT"):
        return self.join(self.drawing.corner(u, v, z), kind)

    def join(self, point, kind):
        if self.last:
            self.drawing.edges.append((self.number, self.last, point, kind))
        self.last = point
        return self

    def arc(self, centre, end, z, kind="ARC_CENT"):
        """An arc is two segments: from its start to its centre and from there to its end."""
        middle = self.drawing.point("HULP", *centre, description="Middelpunt", name="", blur=0)
        return self.join(middle, kind).to(*end, z, kind)


def remeasured(d):
    """Rows that replace points already read: gullies levelled later, a lamp post turned, one point more."""
    rows = []
    for p in d.points:
        if p.code in ("KOLK", "TKOLK"):
            rows.append((p, 11300 + p.number % 7 * 130, p.direction, "Nagewaterpast"))
    lamp = next(p for p in d.points if p.code == "LMU")
    rows.append((lamp, lamp.height, (lamp.direction + 50) % 400, "Mast 6 m, vervangen"))
    extra = d.point("MV", 168, 20, 1.61, "Aanvulling")
    d.points.remove(extra)
    rows.append((extra, extra.height, 0.0, extra.description))
    return ['      %d,"%s","%s","%s",%s,%s,%s,%.3f;' % (
        p.number, p.code, p.name, text, metres(p.east, 3), metres(p.north, 3), metres(height, 3), direction)
        for p, height, direction, text in rows]


def edge_row(edge):
    line, start, end, kind = edge
    return '      %6d,%7d, "%s",%7d, "%s",%-12s;' % (line, start.number, start.name, end.number, end.name, kind)


def points_table(d, update):
    yield "  POINTS (PointNo,PointID,East,North,Elevation,Code,Description,SymDir)"
    yield from (p.row() for p in d.points)
    yield "    EXTRAINFO (PointNo,Code,PointID,Description,East,North,Elevation,SymDir)"
    yield from update
    yield "    END EXTRAINFO"
    yield "  END POINTS"


def lines_table(d):
    yield "  LINES (LineNo,Code,Description,Flags1,Flags2)"
    for number, code, description, flags in d.lines:
        yield '    %8d,"%s","%s",%s,00000000 00000000;' % (number, code, description.replace('"', "'"), flags)
    yield ""
    yield "    EDGES (LineNo,StartPt,StartPtID,EndPt,EndPtID,LINETYPE)"
    arcs = [edge for edge in d.edges if edge[3] == "ARC_CENT"]
    split = d.edges.index(arcs[-1]) + 1
    yield from map(edge_row, d.edges[:split])
    yield "      EXTRAINFO (LineNo,CentrePt,Radius)"
    for start, end in zip(arcs[::2], arcs[1::2]):
        radius = math.hypot(start[2].east - start[1].east, start[2].north - start[1].north)
        yield "        %d,%d,%.3f;" % (start[0], end[1].number, radius / 10000)
    yield "      END EXTRAINFO"
    yield from map(edge_row, d.edges[split:])
    yield "    END EDGES"
    yield "  END LINES"


def polygons_table(d):
    """The main buildings once more, as areas."""
    areas = [line[0] for line in d.lines if line[1] == "HGEB"][-5:]
    yield "  POLYGONS (LineNo,Code,Description)"
    yield from ('    %8d,"PAND","Vlak van lijn %d";' % (5000 + line, line) for line in areas)
    yield "    EDGES (LineNo,StartPt,StartPtID,EndPt,EndPtID,LINETYPE)"
    yield from (edge_row((5000 + edge[0], *edge[1:])) for edge in d.edges if edge[0] in areas)
    yield "    END EDGES"
    yield "  END POLYGONS"


def text_table(d):
    yield from ["  TEXT", "    PROPERTIES (TextPropertyNo,Font,Height,Width)", '        1,"ISO",1.800,1.000;',
                '        2,"ISO",2.500,1.000;', "    END PROPERTIES", "", "    BOXES",
                "      BOX_ON_POINT (TextBoxNo,AnchorPointNo,AnchorPosition,LayerNo,HzDirection)"]
    for box, (layer, anchor, position, direction, _) in enumerate(d.texts, 1):
        yield "        %8d, %d , %d , %d,  %-7.3f;" % (box + box // 20, anchor, position, layer, direction)
    yield from ["      END BOX_ON_POINT", "    END BOXES", "",
                "    ITEMS (TextItemNo, TextBoxNo, TextPropertyNo, LineNo, TextItem)"]
    number = 0
    for box, (layer, _, _, _, items) in enumerate(d.texts, 1):
        for line, item in enumerate(items, 1):
            number += 1
            yield '        %8d, %d , %d, %d,"%s";' % (number, box + box // 20, 2 if layer == LAYERS["STRNAAM"] else 1,
                                                     line, item)
    yield from ["    END ITEMS", "  END TEXT"]


HEADER = """HEADER
  VERSION     1.20
  SYSTEM      "LISCAD 7.00"
  SEPARATOR   ','
  TERMINATOR  ';'
  UNITS
    ANGULAR   GRADS
    LINEAR    METRE
    TEMP      CELSIUS
    PRESS     HPA
    TIME      DMY
  END UNITS
  PROJECT
    NAME          "Boulevard Heuvelinkstraat"
    CREATION_DATE 13-05-2024/08:15:00.0
    FIELD_DATE    14-05-2024/09:30:00.0
  END PROJECT
END HEADER


DEFINITIONS
  LAYERS (LayerNo,Name,Flags)"""


def idex(d):
    update = remeasured(d)
    yield from HEADER.split("\n")
    yield from ('    %d,  "%s",   00000001;' % (number, name) for name, number in LAYERS.items())
    yield from ["  END LAYERS", "END DEFINITIONS", "", "", "DATABASE"]
    for table in (points_table(d, update), lines_table(d), polygons_table(d), text_table(d)):
        yield from table
        yield ""
    yield "END DATABASE"
