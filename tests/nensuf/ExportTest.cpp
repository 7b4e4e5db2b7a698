#include "tests/nensuf/ExportTest.h"

#include <utility>

namespace korvande::testing {

std::vector<std::string> SplitLines(std::string_view text) {
    std::vector<std::string> lines;
    while (!text.empty()) {
        const std::size_t end = std::min(text.find('\n'), text.size());
        lines.emplace_back(text.substr(0, end));
        text.remove_prefix(std::min(end + 1, text.size()));
    }
    return lines;
}

std::string Records(std::string_view marked) {
    std::string records;
    for (std::string line : SplitLines(marked)) {
        const std::size_t mark = line.find('|');
        EXPECT_LE(mark, 62U) << line;
        const std::string endCode = line.substr(mark + 1);
        line.resize(mark);
        line.resize(62, ' ');
        records += line + endCode + "\n";
    }
    return records;
}

ExportTest::ExportTest() {
    Prepare(translation);
    translation.SufNenFileName = folder / "uit.sfn";
    OpenLog();
}

void ExportTest::Prepare(Translation& translation) {
    translation.mode = {Direction::FromIdex, Variant::Nen1878};
    translation.outputTo = OutputTo::Memory;
    translation.owner.Source = u"BRON";
    translation.options.chkExportUnknowns = false;
    CodeTables& codes = translation.codes;
    AddRow(codes.points, {u"PAAL", u"G01", types::point});
    AddRow(codes.points, {u"", u"Q99", types::dummy});
    AddRow(codes.lines, {u"KANT", u"B01", types::line});
    AddRow(codes.texts, {u"TEKST", u"Z01", u""});
}

void ExportTest::AddRow(CodeTable& table, const RowOf& row) {
    CodeRow& added = table.rows.emplace_back();
    added.LiscadCode = row.liscad;
    added.LkiCode = row.lki;
    added.Type = row.type;
    added.Description = row.description;
    added.P = row.p;
    added.I = row.i;
    added.B = row.b;
    table.RowsChanged();
}

void ExportTest::AddPoint(Drawing& drawing, const PointOf& point) {
    PointRec& added = drawing.Points.Append();
    const std::int32_t index = drawing.Points.UpperBound();
    added.PointNo = point.number == 0 ? index : point.number;
    added.SetPointID(point.name);
    drawing.SetCode(added, point.code);
    drawing.SetDescription(added, TextView());
    added.East = point.east;
    added.North = point.north;
    added.Elevation = point.elevation;
    added.SymDir = point.symDir;
    drawing.PointIndex.Set(added.PointNo, index);
}

void ExportTest::AddLine(Drawing& drawing, TextView code) {
    LineRec& added = drawing.Lines.Append();
    drawing.SetCode(added, code);
    drawing.SetDescription(added, TextView());
}

void ExportTest::AddSegment(Drawing& drawing, const SegmentOf& segment) {
    EdgeRec& added = drawing.Edges.Append();
    added.LineNo = segment.line;
    added.StartPt = segment.start;
    added.EndPt = segment.end;
    drawing.SetLineType(added, segment.type);
}

void ExportTest::AddText(Drawing& drawing, const TextOf& text) {
    TextRec& added = drawing.Texts.Append();
    added.AnchorPointNo = text.anchor;
    added.AnchorPosition = text.position;
    added.HzDirection = text.direction;
    drawing.SetCode(added, text.code);
    added.SetCharacters(text.text);
}

void ExportTest::AddBarePoints() {
    AddPoint({.code = u"", .east = 10, .north = 20});
    AddPoint({.code = u"", .east = 11, .north = 22});
}

std::string ExportTest::Export(Translation& translation) {
    ExportSufNen(translation);
    std::string text = std::exchange(translation.outputBytes, {});
    std::erase(text, '\r');
    return text;
}

std::string ExportTest::ExportObjects() {
    const std::vector<std::string> lines = SplitLines(Export());
    const std::size_t headerLines = translation.mode.variant == Variant::Nen1878 ? 5 : 2;
    EXPECT_GT(lines.size(), headerLines);
    EXPECT_EQ(lines.back().substr(0, 2), "99");
    std::string objects;
    for (std::size_t i = headerLines; i + 1 < lines.size(); ++i) objects += lines[i] + "\n";
    return objects;
}

std::string ExportTest::ExportObjectsAsSuf2() {
    translation.mode.variant = Variant::Suf2;
    return ExportObjects();
}

}  // namespace korvande::testing
