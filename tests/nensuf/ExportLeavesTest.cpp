#include <sstream>

#include "tests/nensuf/ExportTest.h"

namespace korvande::testing {
namespace {

// Everything that a drawing holds, element 0 of its arrays too, as text to be compared.
std::string Everything(const Drawing& drawing) {
    std::ostringstream all;
    all << std::hexfloat;
    for (std::int32_t i = 0; i <= drawing.Points.UpperBound(); ++i) {
        const PointRec& point = drawing.Points[i];
        all << "punt " << point.East << " " << point.North << " " << point.Elevation << " " << point.SymDir << " "
            << point.PointNo << "|" << ToUtf8(point.PointID().View()) << "|" << ToUtf8(drawing.Code(point).View())
            << "|" << ToUtf8(drawing.Description(point).View()) << "\n";
    }
    for (std::int32_t i = 0; i <= drawing.Lines.UpperBound(); ++i) {
        const LineRec& line = drawing.Lines[i];
        all << "lijn " << line.Flags1 << " " << line.Flags2 << "|" << ToUtf8(drawing.Code(line).View()) << "|"
            << ToUtf8(drawing.Description(line).View()) << "\n";
    }
    for (std::int32_t i = 0; i <= drawing.Edges.UpperBound(); ++i) {
        const EdgeRec& edge = drawing.Edges[i];
        all << "segment " << edge.LineNo << " " << edge.StartPt << " " << edge.EndPt << "|"
            << ToUtf8(drawing.LineType(edge).View()) << "\n";
    }
    for (std::int32_t i = 0; i <= drawing.Texts.UpperBound(); ++i) {
        const TextRec& text = drawing.Texts[i];
        all << "tekst " << text.AnchorPointNo << " " << text.HzDirection << " " << text.AnchorPosition << "|"
            << ToUtf8(drawing.Code(text).View()) << "|" << ToUtf8(text.Characters().View()) << "\n";
    }
    for (std::int32_t i = 0; i <= drawing.PointIndex.UpperBound(); ++i) all << drawing.PointIndex.Find(i) << " ";
    for (const Text& layer : drawing.LayerNames) all << ToUtf8(layer) << "|";
    all << drawing.IdexSeparator << drawing.IdexTerminator << ToUtf8(drawing.DrawingName) << "|"
        << ToUtf8(drawing.DrawingDate);
    return all.str();
}

// All but the use counts.
std::string Everything(const CodeTables& codes) {
    std::ostringstream all;
    for (const CodeTable* table : {&codes.points, &codes.lines, &codes.texts}) {
        for (const CodeRow& row : table->rows) {
            all << ToUtf8(row.LiscadCode.View()) << "|" << ToUtf8(row.LkiCode.View()) << "|" << ToUtf8(row.Type.View())
                << "|" << ToUtf8(row.Description.View()) << "|" << row.P << " " << row.I << " " << row.B << "\n";
        }
    }
    return all.str();
}

class ExportLeaves : public ExportTest {
 protected:
    // Objects that bring every part of the writer to work: symbols and texts with a place beside them, names with a
    // blank in front, unknown codes, and references to nothing.
    ExportLeaves() {
        AddRow(translation.codes.points, {u"PUT", u"S01 ROE", types::symbol, u"Rioolput", 1, 2, 3});
        AddPoint({.code = u"PUT", .east = 1, .north = 2, .elevation = 3, .symDir = 40, .name = u"  P1"});
        AddPoint({.code = u"PAAL", .name = u"P2"});
        AddPoint({.code = u"RAAR", .elevation = -1, .name = u"", .number = 12});
        AddLine(u"KANT");
        AddLine(u"RAAR");
        for (const std::int32_t line : {1, 2, 3}) AddSegment({.type = u"ARC_CENT", .line = line});
        AddText({.text = u"  Weg ", .direction = 50});
        AddText({.text = u"P2", .code = u"\u00FFZ30", .position = pointNumberAnchor, .anchor = 12});
        AddText({.text = u"raar", .code = u"RAAR"});
        AddText({.text = u"los", .anchor = 99});
        translation.drawing.LayerNames = {u"laag 0", u"laag 1"};
        translation.drawing.DrawingName = u"Kruising";
        translation.drawing.DrawingDate = u"01-02-2023";
    }

    template <class Check>
    void ExportInEveryWay(Check check) {
        for (const Variant variant : {Variant::Nen1878, Variant::Suf2}) {
            for (const bool withOptions : {false, true}) {
                translation.mode.variant = variant;
                Options& options = translation.options;
                options.chkExportUnknowns = options.chkExport3D = options.chkExportPointnoAsField = withOptions;
                options.chkExportSymRotation = withOptions;
                EXPECT_GT(Export().size(), 1000U);
                check();
            }
        }
    }
};

TEST_F(ExportLeaves, TheDrawingAsItIs) {
    const std::string before = Everything(translation.drawing);
    ExportInEveryWay([&] { EXPECT_EQ(Everything(translation.drawing), before); });
}

TEST_F(ExportLeaves, TheCodeTablesAsTheyAreExceptTheirUseCounts) {
    const std::string before = Everything(translation.codes);
    ASSERT_NE(before.find("STANDRD|Q20    |PUNT   |"), std::string::npos) << before;
    ExportInEveryWay([&] { EXPECT_EQ(Everything(translation.codes), before); });
    EXPECT_EQ(translation.codes.points.rows[0].Count, 4);
    EXPECT_EQ(translation.codes.points.rows[1].Count, 4);
}

TEST_F(ExportLeaves, NothingBehindThatTheNextExportMeets) {
    const std::string without = Export();
    EXPECT_EQ(without.find("03MQ"), std::string::npos);
    translation.options.chkExportUnknowns = true;
    const std::string with = Export();
    for (const std::string code : {"03MQ20", "03MQ00", "03MZ19"}) EXPECT_NE(with.find(code), std::string::npos) << code;
    translation.options.chkExportUnknowns = false;
    EXPECT_EQ(Export(), without);
}

// A screen that lets something happen when a step of a run begins.
class InterveningScreen : public RecordingScreen {
 public:
    std::function<void(const std::string& status)> onStatus;

    void ShowStatus(TextView text) override {
        RecordingScreen::ShowStatus(text);
        if (onStatus) onStatus(statuses.back());
    }
};

class TwoExports : public ExportTest {
 protected:
    // The same drawing with the option set that touches every record, in one variant or the other.
    static void Fill(Translation& translation, Variant variant) {
        Prepare(translation);
        translation.mode.variant = variant;
        const bool isSuf2 = variant == Variant::Suf2;
        Options& options = translation.options;
        options.chkExport3D = options.chkExportPointnoAsField = options.chkExportUnknowns = isSuf2;
        options.lstSource = isSuf2 ? 4 : 1;
        translation.owner.Source = isSuf2 ? TextView(u"ANDER") : TextView(u"BRON");
        Drawing& drawing = translation.drawing;
        AddRow(translation.codes.points, {u"PUT", isSuf2 ? TextView(u"S02") : TextView(u"S01"), types::symbol});
        AddPoint(drawing, {.code = u"PUT", .elevation = 5, .name = isSuf2 ? TextView(u"ANDER") : TextView(u"EEN")});
        AddPoint(drawing, {.code = u"RAAR", .east = 7, .north = 8, .elevation = 9, .name = u"R"});
        AddLine(drawing, u"KANT");
        AddSegment(drawing, {});
        AddText(drawing, {.text = isSuf2 ? TextView(u"ander") : TextView(u"een")});
    }

    // What a translation comes to: its bytes, its account and the uses of its codes.
    static std::string Result(Translation& translation) {
        std::string result = translation.outputBytes + ToUtf8(translation.account.Summary());
        for (const CodeTable* table : {&translation.codes.points, &translation.codes.lines, &translation.codes.texts}) {
            for (const CodeRow& row : table->rows) result += " " + std::to_string(row.Count);
        }
        for (const UnknownCodeRec& unknown : translation.unknowns.Entries()) result += ToUtf8(unknown.Code.View());
        return result;
    }

    static std::string ResultAlone(Variant variant) {
        RecordingScreen screen;
        Translation translation(screen);
        Fill(translation, variant);
        ExportSufNen(translation);
        return Result(translation);
    }
};

TEST_F(TwoExports, OneAfterTheOtherOfTwoTranslationsThatAreAliveAtOnceGivesEachItsOwn) {
    Translation one(screen);
    Translation other(screen);
    Fill(one, Variant::Nen1878);
    Fill(other, Variant::Suf2);
    ExportSufNen(one);
    ExportSufNen(other);
    EXPECT_EQ(Result(one), ResultAlone(Variant::Nen1878));
    EXPECT_EQ(Result(other), ResultAlone(Variant::Suf2));
    EXPECT_NE(Result(one), Result(other));
}

TEST_F(TwoExports, OneInTheMiddleOfTheOtherTouchesNothingOfIt) {
    for (const TextView moment : {u"Voorbereiden", u"Symbolen", u"Lijnen", u"Teksten"}) {
        InterveningScreen outer;
        Translation one(outer);
        Translation other(screen);
        Fill(one, Variant::Nen1878);
        Fill(other, Variant::Suf2);
        int exports = 0;
        outer.onStatus = [&](const std::string& status) {
            if (!status.ends_with(ToUtf8(moment))) return;
            ExportSufNen(other);
            ++exports;
        };
        ExportSufNen(one);
        EXPECT_EQ(exports, 1) << ToUtf8(moment);
        EXPECT_EQ(Result(one), ResultAlone(Variant::Nen1878)) << ToUtf8(moment);
        EXPECT_EQ(Result(other), ResultAlone(Variant::Suf2)) << ToUtf8(moment);
    }
}

}  // namespace
}  // namespace korvande::testing
