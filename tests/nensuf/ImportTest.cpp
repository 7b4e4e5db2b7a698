#include "tests/nensuf/ImportTest.h"

#include <array>
#include <charconv>

#include "core/RuntimeError.h"

namespace korvande::testing {

namespace {

std::string Padded(std::string_view text, std::size_t width) {
    EXPECT_LE(text.size(), width) << text;
    std::string padded(text);
    padded.resize(width, ' ');
    return padded;
}

std::string RightAligned(std::string_view text, std::size_t width) {
    EXPECT_LE(text.size(), width) << text;
    return std::string(width - std::min(text.size(), width), ' ') + std::string(text);
}

// A number with a decimal point, whatever the locale.
std::string Decimal(double value, int decimals) {
    std::array<char, 400> digits{};
    const auto end =
        std::to_chars(digits.data(), digits.data() + digits.size(), value, std::chars_format::fixed, decimals);
    return {digits.data(), end.ptr};
}

void ExpectBalance(const ObjectAccount& accounts) {
    for (std::size_t kind = 0; kind < objectKinds; ++kind) {
        const KindAccount& account = accounts[static_cast<ObjectKind>(kind)];
        EXPECT_EQ(account.read, account.kept + account.LeftOutTotal()) << "kind " << kind;
    }
}

// Points are numbered by their index, and what refers to an element finds one.
void ExpectSoundDrawing(const Drawing& drawing) {
    const std::int32_t points = drawing.Points.UpperBound();
    for (std::int32_t i = 1; i <= points; ++i) {
        ASSERT_EQ(drawing.Points[i].PointNo, i);
        ASSERT_EQ(drawing.PointIndex.Find(i), i);
        ASSERT_FALSE(drawing.Code(drawing.Points[i]).NeverFilled());
        ASSERT_FALSE(drawing.Points[i].PointID().NeverFilled());
    }
    for (std::int32_t i = points + 1; i <= drawing.PointIndex.UpperBound(); ++i) {
        ASSERT_EQ(drawing.PointIndex.Find(i), 0);
    }
    const auto isPoint = [points](std::int32_t index) { return index >= 1 && index <= points; };
    for (std::int32_t i = 1; i <= drawing.Edges.UpperBound(); ++i) {
        const EdgeRec& edge = drawing.Edges[i];
        ASSERT_TRUE(isPoint(edge.StartPt) && isPoint(edge.EndPt)) << i;
        ASSERT_TRUE(edge.LineNo >= 1 && edge.LineNo <= drawing.Lines.UpperBound()) << i;
    }
    for (std::int32_t i = 1; i <= drawing.Texts.UpperBound(); ++i) {
        ASSERT_TRUE(isPoint(drawing.Texts[i].AnchorPointNo)) << i;
    }
}

}  // namespace

std::string Record(std::string_view typeAndPayload, std::string_view endCode) {
    return Padded(typeAndPayload, 62) + std::string(endCode) + "\r\n";
}

std::string Group(std::string_view type, std::string_view payload) {
    constexpr std::size_t width = 60;
    std::string records;
    for (; payload.size() > width; payload.remove_prefix(width)) {
        records += Record(std::string(type).append(payload.substr(0, width)), "00");
    }
    return records + Record(std::string(type).append(payload));
}

std::string Field(char key, std::string_view value) { return key + Padded(value, 9); }
std::string Field(char key, std::int64_t value) { return key + RightAligned(std::to_string(value), 9); }
std::string At(std::int64_t x, std::int64_t y) { return Field('X', x) + Field('Y', y); }
std::string At(std::int64_t x, std::int64_t y, std::int64_t z) { return At(x, y) + Field('Z', z); }
std::string N(std::string_view number) { return Field('N', number); }

std::string Head(std::string_view code, std::string_view kind) {
    return Group("03", Field('M', code) + Field('G', kind));
}
std::string Geometry(std::string_view fields) { return Group("04", fields); }
std::string Point(std::string_view code, std::string_view fields) { return Head(code, "01") + Geometry(fields); }
std::string Line(std::string_view code, std::string_view fields) { return Head(code, "12") + Geometry(fields); }
std::string Arc(std::string_view code, std::string_view fields) { return Head(code, "13") + Geometry(fields); }

std::string Placement(std::string_view placement, std::string_view code, std::string_view fields) {
    return Group("05", Field('F', placement) + Field('K', code) + std::string(fields));
}
std::string Symbol(std::string_view code, std::string_view fields, std::string_view type) {
    return Placement("112" + std::string(type), code, fields);
}

std::string TextRecord(std::string_view text) {
    const std::string count = std::to_string(text.size());
    return Record("06A" + std::string(2 - count.size(), '0') + count + "T" + std::string(text));
}
std::string TextGroups(std::string_view code, std::string_view fields, std::string_view text) {
    return Placement("111", code, fields) + TextRecord(text);
}

std::string FirstLine(std::string_view columns3To62) { return Record("01" + std::string(columns3To62)); }

std::string SecondLine(std::string_view columns3To12, std::string_view originX, std::string_view originY,
                       std::string_view factor, std::string_view originZ, std::string_view factorZ) {
    std::string line = "02" + Padded(columns3To12, 10);
    for (const std::string_view value : {originX, originY, factor, originZ, factorZ}) line += RightAligned(value, 10);
    return Record(line);
}

std::string NenHeader() { return FirstLine() + SecondLine("010215"); }
std::string Suf2Header() { return FirstLine("0           V      202405       VAIKLI, LisCAD") + SecondLine("010201"); }

std::string PointsOf(const Drawing& drawing) {
    const auto& points = drawing.Points;
    std::string lines;
    for (std::int32_t i = 1; i <= points.UpperBound(); ++i) {
        const PointRec& point = points[i];
        lines += ToUtf8(point.PointID().TrimmedRight()) + "|" + ToUtf8(drawing.Code(point).TrimmedRight()) + "|" +
                 Decimal(point.East, 3) + " " + Decimal(point.North, 3) + " " + Decimal(point.Elevation, 3) + "|" +
                 Decimal(point.SymDir, 4) + "\n";
    }
    return lines;
}

std::string LinesOf(const Drawing& drawing) {
    const auto& lineRecords = drawing.Lines;
    std::string lines;
    for (std::int32_t i = 1; i <= lineRecords.UpperBound(); ++i) {
        const LineRec& line = lineRecords[i];
        EXPECT_EQ(line.Flags2, 0);
        lines += ToUtf8(drawing.Code(line).TrimmedRight()) +
                 (line.Flags1 == 0 ? std::string() : "|" + std::to_string(line.Flags1)) + "\n";
    }
    return lines;
}

std::string EdgesOf(const Drawing& drawing) {
    const auto& edges = drawing.Edges;
    std::string lines;
    for (std::int32_t i = 1; i <= edges.UpperBound(); ++i) {
        const EdgeRec& edge = edges[i];
        lines += std::to_string(edge.LineNo) + ": " + std::to_string(edge.StartPt) + "-" + std::to_string(edge.EndPt) +
                 " " + ToUtf8(drawing.LineType(edge).TrimmedRight()) + "\n";
    }
    return lines;
}

std::string TextsOf(const Drawing& drawing) {
    const auto& texts = drawing.Texts;
    std::string lines;
    for (std::int32_t i = 1; i <= texts.UpperBound(); ++i) {
        const TextRec& text = texts[i];
        lines += ToUtf8(drawing.Code(text).TrimmedRight()) + "|" + std::to_string(text.AnchorPointNo) + "|" +
                 std::to_string(text.AnchorPosition) + "|" + Decimal(text.HzDirection, 3) + "|" +
                 ToUtf8(text.Characters().TrimmedRight()) + "\n";
    }
    return lines;
}

ImportTest::ImportTest() {
    Prepare(translation);
    OpenLog();
}

void ImportTest::Prepare(Translation& translation) {
    translation.mode = {Direction::ToIdex, Variant::Nen1878};
    translation.outputTo = OutputTo::Memory;
    translation.options.chkImportUnknowns = false;
    CodeTables& codes = translation.codes;
    AddRow(codes.points, u"BOOM", u"P10", u"Loofboom");
    AddRow(codes.points, u"MAST", u"P20", u"Lichtmast");
    AddRow(codes.lines, u"KANT", u"B10", u"Kant verharding");
    AddRow(codes.lines, u"MUUR", u"B20", u"Muur");
    AddRow(codes.texts, u"STRAAT", u"Z10", u"Straatnaam");
    AddRow(codes.texts, u"PLAATS", u"Z01", u"Plaatsnaam");
}

void ImportTest::AddRow(CodeTable& table, TextView liscad, TextView lki, TextView description) {
    CodeRow& row = table.rows.emplace_back();
    row.LiscadCode = liscad;
    row.LkiCode = lki;
    row.Type = TextView();
    row.Description = description;
    table.RowsChanged();
}

void ImportTest::ImportInput() {
    try {
        ImportNenSuf(translation);
    } catch (const std::exception&) {
        Report(translation, EscapedError(CurrentError()));
    }
    ExpectBalance(translation.account);
    ExpectSoundDrawing(translation.drawing);
}

void ImportTest::ImportBytes(std::string_view bytes) {
    translation.inputBytes = bytes;
    ImportInput();
    translation.inputBytes.reset();
}

void ImportTest::Import(std::string_view groups, std::string_view header) {
    ImportBytes(std::string(header).append(groups).append(Record("99", "  ")));
}

std::string ImportTest::PointDescription(std::int32_t point) const {
    const Drawing& drawing = translation.drawing;
    return ToUtf8(drawing.Description(drawing.Points[point]).TrimmedRight());
}

std::string ImportTest::LineDescription(std::int32_t line) const {
    const Drawing& drawing = translation.drawing;
    return ToUtf8(drawing.Description(drawing.Lines[line]).TrimmedRight());
}

void ImportTest::ExpectAccount(ObjectKind kind, int read, int kept) {
    EXPECT_EQ(translation.account[kind].read, read);
    EXPECT_EQ(translation.account[kind].kept, kept);
}

void ImportTest::ExpectLeft(ObjectKind kind, LeftOut reason, int count) {
    EXPECT_EQ(translation.account[kind].leftOut[static_cast<std::size_t>(reason)], count);
}

}  // namespace korvande::testing
