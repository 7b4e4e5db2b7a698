"""How a drawing is written as a NEN1878 file: lines of 64 columns, fields of ten."""

EAST0, NORTH0 = 121, 487  # kilometres; the file counts its coordinates from here, in millimetres
EOL = "\r\n"
QUALITY = {"terrestrial": (2, 1, 1), "levelled": (1, 1, 1), "green": (4, 2, 3)}


def field(key, value=""):
    """Key and nine columns, left-aligned."""
    assert len(value) <= 9, value
    return key + value.ljust(9)


def number(key, metres):
    """Key and whole millimetres, right-aligned."""
    return "%s%9d" % (key, round(metres * 1000))


def quality(kind):
    return "Q%3d%3d%3d" % QUALITY[kind]


class Place:
    """East and north in metres, and for some a height and the surveyor's number of the point."""

    def __init__(self, east, north, height=None, name=None):
        self.east, self.north, self.height, self.name = east, north, height, name

    def fields(self):
        yield from [field("N", self.name)] if self.name else []
        yield number("X", self.east - EAST0 * 1000)
        yield number("Y", self.north - NORTH0 * 1000)
        yield from [] if self.height is None else [number("Z", self.height)]


def coordinates(places, interpolation):
    """The first point is I1, every further one says how it is reached."""
    for i, place in enumerate(places):
        yield field("I", "1" if i == 0 else interpolation)
        yield from place.fields()


class NenFile:
    def __init__(self, project, year_and_month, owner):
        """Header: the precision digit 1 stands for millimetres; the owner has three records."""
        self.date = year_and_month
        name, short, street, house, zip_code, town = owner
        self.lines = ["%-62s01" % ("010NEN1878    V%s%s       0101%s" % (year_and_month, year_and_month, project)),
                      "0201021502  %10d%10d%10d%10d%10d01" % (EAST0, NORTH0, 1, 0, 1)]
        self.add("07N%-49sK%-8s" % (name, short), "07A%-24s%-5s%-20sP%s" % (street, house, "", zip_code),
                 "07W" + town)

    def add(self, *records):
        """An object: each of its records on as many lines as it needs. Only its last line ends in 01."""
        lines = []
        for record in records:
            kind, payload = record[:2], record[2:]
            lines += [kind + payload[at:at + 60].ljust(60) for at in range(0, len(payload), 60)]
        self.lines += [line + "00" for line in lines[:-1]] + [lines[-1] + "01"]

    def head(self, code, kind, day):
        """03: code, kind of geometry (measured on the ground), day of the measurement."""
        return "03" + field("M", code) + field("G", kind + "0111") + field("D", " %s%02d" % (self.date, day)) + \
            field("B", "VLIET 0")

    def point(self, code, place, kind, description, towards=None, day=11):
        """A second point, one metre on, gives the direction."""
        fields = list(coordinates([place] + ([towards] if towards else []), "2"))
        self.add(self.head(code, "01", day), "04" + "".join(fields) + quality(kind),
                 "05" + field("F", "112") + "".join(place.fields()), "06A%02dT%s" % (len(description), description))

    def line(self, code, places, kind, day=11):
        self.add(self.head(code, "12", day), "04" + "".join(coordinates(places, "2")) + quality(kind))

    def arc(self, code, places, kind, day=11):
        """An odd number of points: each arc runs through the second of its three, and ends where the next begins."""
        assert len(places) % 2 == 1, places
        self.add(self.head(code, "13", day), "04" + "".join(coordinates(places, "4")) + quality(kind))

    def symbol(self, code, place, towards=None, apart=False):
        """Code and type ("S02 B01"); the coordinates stand in the same record, or apart in one of their own."""
        fields = "".join(coordinates([place] + ([towards] if towards else []), "2"))
        placement = "05" + field("F", "112" + code[4:]) + field("K", code[:3])
        self.add(*([placement, "04" + fields] if apart else [placement + fields]))

    def text(self, code, start, end, text, anchor=5, apart=False):
        """A text along a base line. Place names have the number of the municipality before them."""
        fields = "".join(coordinates([start, end], "2"))
        placement = "05" + field("F", "%d11001" % anchor) + field("K", code)
        content = "0417   " + text if code == "Z01" else text
        self.add(*([placement, "04" + fields] if apart else [placement + fields]),
                 "06A%02dT%s" % (len(content), content))

    def end(self):
        return self.lines + ["99".ljust(64)]
