"""The code tables of the sample project and the control table file that holds them."""

# LISCAD code, LKI code, type, description, P, I, B and for some rows a remark; a text alone is a
# remark on a line of its own.
POINTS = [
    ("STANDRD", "Q20", "PUNT", "ONBEKEND PUNTOBJECT", 0, 0, 0),
    "# Punten zonder code zijn hoekpunten van lijnen en komen niet als punt in de uitvoer",
    ("", "Q20", "DUMMY", "LEEG", 0, 0, 0),
    ("HULP", "Q25", "DUMMY", "HULPPUNT", 0, 0, 0, "middelpunten van bogen"),
    "# Grondslag",
    ("GP", "E01", "GRONDSL", "GRONDSLAGPUNT", 1, 1, 1),
    ("RD", "E02", "GRONDSL", "COÖRDINAATPUNT", 1, 1, 1, "van de landelijke grondslag"),
    ("NAP", "E03", "GRONDSL", "NAP-BOUT", 1, 1, 1),
    "# Hoogten en losse punten",
    ("MV", "Q21", "PUNT", "MAAIVELDHOOGTE", 4, 1, 2),
    ("WH", "Q22", "PUNT", "WEGDEKHOOGTE", 3, 1, 2),
    ("VP", "Q23", "PUNT", "VLOERPEIL BEGANE GROND", 2, 1, 1),
    ("DRAIN", "Q24", "PUNT", "DRAINAGE-EINDBUIS Ø110", 4, 2, 3),
    ("AMPAAL", "P01", "PUNT", "ANTIPARKEERPAAL", 0, 0, 0),
    ("GRPAAL", "P02", "PUNT", "GRENSPAAL VAN EEN PERCEEL", 2, 1, 1),
    "# Bomen",
    ("LOOF", "S01 A01", "SYMBOOL", "LOOFBOOM", 4, 2, 3),
    ("NAALD", "S01 A02", "SYMBOOL", "NAALDBOOM", 4, 2, 3),
    ("BEUK", "S01 A05", "SYMBOOL", "SOLITAIRE BOOM", 4, 2, 3),
    "# Verlichting, riolering en leidingen",
    ("LM", "S02 B01", "SYMBOOL", "LICHTMAST", 3, 1, 2),
    ("LMU", "S02 B02", "ROT.PNT", "LICHTMAST MET UITHOUDER", 3, 1, 2),
    ("PUTR", "S02 C01", "SYMBOOL", "RIOOLPUT", 3, 1, 2),
    ("PUTI", "S02 C02", "SYMBOOL", "INSPECTIEPUT", 3, 1, 2),
    ("KOLK", "S02 C03", "ROT.PNT", "STRAATKOLK", 3, 1, 2, "richting langs de band"),
    ("TKOLK", "S02 C04", "ROT.PNT", "TROTTOIRKOLK", 3, 1, 2),
    ("BRKRAAN", "S02 D01", "ROT.PNT", "ONDERGRONDSE BRANDKRAAN", 0, 0, 0),
    ("AFSL", "S02 D02", "SYMBOOL", "AFSLUITER WATERLEIDING", 0, 0, 0),
    "# Straatmeubilair",
    ("EKAST", "S03 E01", "ROT.PNT", "ELEKTRICITEITSKAST", 3, 1, 2),
    ("CAI", "S03 E02", "ROT.PNT", "CAI-KAST (COAXKABEL)", 3, 1, 2),
    ("BORD", "S03 F01", "ROT.PNT", "VERKEERSBORD", 0, 0, 0),
    ("SNBORD", "S03 F02", "ROT.PNT", "STRAATNAAMBORD", 0, 0, 0),
    ("BANK", "S03 G01", "ROT.PNT", "ZITBANK", 0, 0, 0),
    ("AFVAL", "S03 G02", "SYMBOOL", "AFVALBAK", 0, 0, 0),
    ("FONTEIN", "S03 G03", "SYMBOOL", "FONTEIN", 0, 0, 0),
    ("BRIEF", "S03 G04", "ROT.PNT", "BRIEVENBUS", 0, 0, 0),
    ("PARASOL", "S03 G05", "SYMBOOL", "PARASOLVOET OP CAFÉTERRAS", 0, 0, 0),
]

LINES = [
    ("STANDRD", "Q00", "LIJN", "ONBEKEND LIJNOBJECT", 0, 0, 0),
    "# Gebouwen",
    ("HGEB", "B01", "GRENS", "HOOFDGEBOUW", 2, 1, 1),
    ("BGEB", "B02", "GRENS", "BIJGEBOUW", 3, 1, 2),
    ("OVERK", "B03", "LIJN", "OVERKAPPING OF LUIFEL", 0, 0, 0),
    ("MUUR", "B05", "LIJN", "VRIJSTAANDE MUUR", 3, 1, 2),
    "# Verharding",
    ("TRBAND", "V01", "GRENS", "TROTTOIRBAND", 3, 1, 2),
    ("TROT", "V02", "GRENS", "ACHTERKANT TROTTOIR", 3, 1, 2),
    ("PARK", "V03", "LIJN", "PARKEERVAK", 0, 0, 0),
    ("INRIT", "V04", "LIJN", "INRIT VAN ÉÉN PERCEEL", 4, 1, 2),
    ("DREMPEL", "V05", "LIJN", "VERKEERSDREMPEL", 0, 0, 0),
    ("VPAD", "V06", "GRENS", "VOETPAD", 4, 2, 2, "halfverharding"),
    ("ACHTERP", "V07", "GRENS", "ACHTERPAD", 4, 1, 2),
    ("TERRAS", "V08", "GRENS", "CAFÉTERRAS", 0, 0, 0),
    "# Groen, afscheidingen en water",
    ("HAAG", "G01", "LIJN", "HAAG OF HEG", 4, 2, 3),
    ("PLANTS", "G02", "GRENS", "PLANTSOEN", 4, 2, 3),
    ("BOOMSP", "G03", "LIJN", "BOOMSPIEGEL", 0, 0, 0),
    ("HEK", "T01", "LIJN", "HEK OF AFRASTERING", 3, 1, 2),
    ("SCHUT", "T02", "LIJN", "SCHUTTING", 3, 1, 2),
    ("SLOOT", "W01", "GRENS", "INSTEEK VAN EEN SLOOT", 5, 2, 3),
    ("WATER", "W02", "GRENS", "WATERLIJN OF BESCHOEIING", 5, 2, 3),
    ("DUIKER", "W03", "LIJN", "DUIKER Ø600", 0, 0, 0),
    "# Wordt niet uitgevoerd",
    ("PERCEEL", "K01", "DUMMY", "KADASTRALE GRENS", 0, 0, 0, "ter oriëntatie"),
    ("HULPLN", "Q90", "DUMMY", "HULPLIJN VAN DE METING", 0, 0, 0),
]

# The code of a text is the name of its layer. Texts have no type.
TEXTS = [
    ("STANDRD", "Z19", None, "ONBEKEND TEKSTOBJECT", 0, 0, 0),
    ("GEMNAAM", "Z01", None, "NAAM VAN DE GEMEENTE", 0, 0, 0),
    ("STRNAAM", "Z02", None, "STRAATNAAM", 0, 0, 0),
    ("HUISNR", "Z03", None, "HUISNUMMER", 0, 0, 0),
    ("NAAM", "Z04", None, "NAAM VAN EEN GEBOUW OF CAFÉ", 0, 0, 0),
    ("WATNAAM", "Z05", None, "NAAM VAN HET WATER", 0, 0, 0),
    ("GROEN", "Z06", None, "OMSCHRIJVING VAN BEPLANTING", 0, 0, 0),
    ("OPM", "Z07", None, "OPMERKING VAN DE MEETPLOEG", 0, 0, 0),
    ("STNDRD", "Z08", None, "TEKST OP DE STANDAARDLAAG", 0, 0, 0, "laag 0"),
    "# Teksten die bij de uitvoer uit punten ontstaan",
    ("PUNTNR", "Z30", None, "PUNTNUMMER", 0, 0, 0),
    ("HOOGTE", "Z31", None, "HOOGTECIJFER", 0, 0, 0),
]

TABLES = {"points": POINTS, "lines": LINES, "texts": TEXTS}

# The drawing's layers; texts lie on them, SCHETS is in no table.
LAYERS = {"STNDRD": 0, "HUISNR": 2, "STRNAAM": 1, "NAAM": 3, "WATNAAM": 4, "GROEN": 5, "OPM": 10, "SCHETS": 11,
          "GEMNAAM": 12}

UNKNOWN_CODES = {"points": {"KUNST", "FIETSNT"}, "lines": {"LEIDING", "GEUL"}, "texts": {"SCHETS"}}

OPTIONS = """# Voorbeeldproject: codetabellen en instellingen bij de tekening straat.idx.
# Regels zonder isgelijkteken worden overgeslagen, tekst achter een hekje ook.
[NEN1878]
SUFNENFile = {empty}
IDEXFile = {empty}
NameLong = VOSAIZO ZANDERVIK B.V.
NameShort = VOSAIZO
Street = POSTBUS
Number = 418
Extra = {empty}
ZipCode = 7391KX
Town = MOLVEREN
Source = VOSAI
Reporting = Screen

[Import]
AcceptUnknown = 1
SymRotation = 0

[Export]
IncludeUnknown = 1
IncludeNrAsField = 1
IncludeNrAsText = 0
PointIDLKI = Z30
IncludeZ = 1
IncludeZAsText = 0
ElevationLKI = Z31
SymRotation = 0
AltDate =20240514
UseDateAlt =False
UseDateSEE =True
UseDateNow =False
"""


def known_codes(table):
    return {row[0] for row in TABLES[table] if isinstance(row, tuple)}


def row_text(row, unknown):
    code, lki, kind, description, p, i, b, *remark = row
    fields = ([code] if unknown else []) + [lki] + ([] if kind is None else [kind]) + [description]
    text = "%s = %s, %d, %d, %d" % ("Unknown" if unknown else code, ", ".join(fields), p, i, b)
    return text + "".join(" # " + part for part in remark)


def control_table():
    """The file's lines, as the program writes them."""
    yield from OPTIONS.format(empty="").rstrip("\n").split("\n")
    for name, rows in TABLES.items():
        yield from ["", "[%s]" % name.capitalize()]
        for row in rows:
            yield row if isinstance(row, str) else row_text(row, row is rows[0])
    yield from ["", "[End]"]
