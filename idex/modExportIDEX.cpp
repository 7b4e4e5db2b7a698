#include "idex/modExportIDEX.h"

#include <algorithm>
#include <array>
#include <vector>

#include "core/Numbers.h"
#include "core/modKORVANDE.h"
#include "core/modScreen.h"
#include "idex/IdexRow.h"
#include "translation/CodeStatistics.h"
#include "translation/Translation.h"
#include "translation/UnknownObjects.h"

namespace korvande {

namespace {

// The head of the file, up to the project's name.
constexpr std::string_view headerStart =
    "HEADER\r\n"
    "  VERSION     1.20\r\n"
    "  SYSTEM      \"NEN1878 - LISCAD 7.00\"\r\n"
    "  SEPARATOR   ','\r\n"
    "  TERMINATOR  ';'\r\n"
    "  UNITS\r\n"
    "    ANGULAR   GRADS\r\n"
    "    LINEAR    METRE\r\n"
    "    TEMP      CELSIUS\r\n"
    "    PRESS     HPA\r\n"
    "    TIME      DMY\r\n"
    "  END UNITS\r\n"
    "  PROJECT\r\n";

constexpr std::string_view definitions =
    "  END PROJECT\r\n"
    "END HEADER\r\n"
    "\r\n"
    "\r\n"
    "DEFINITIONS\r\n"
    "  LAYERS (LayerNo,Name,Flags)\r\n"
    "    0,  \"STNDRD\",   00000001;\r\n"
    "  END LAYERS\r\n"
    "END DEFINITIONS\r\n"
    "\r\n"
    "\r\n"
    "DATABASE\r\n";

void TellLost(Translation& translation, const IdexRow& row, std::int64_t line) {
    if (row.Replaced() > 0) {
        Tell(translation, {.kind = ProblemKind::CharacterReplaced, .line = line}, row.Replaced());
    }
    if (row.Cut() > 0) Tell(translation, {.kind = ProblemKind::NumberCut, .line = line}, row.Cut());
}

// Ends the row of a record of this line of the input, and tells what of its values was lost.
void End(Translation& translation, IdexRow& row, std::int64_t line) {
    row.End();
    if (row.Replaced() != 0 || row.Cut() != 0) TellLost(translation, row, line);
}

void WriteHeader(Translation& translation) {
    LineWriter& output = translation.output;
    translation.screen.ShowStatus(u"Wegschrijven Header");
    output.Put(headerStart);
    const std::string name = ToWindows1252(Trim(translation.ProjectName));
    IdexRow row(output, name.size());
    row.Put("    NAME          ").PutQuoted(name);
    End(translation, row, 0);
    if (translation.ProjectDate) {
        const std::string date = ConvertFieldworkDate(CompactDate(*translation.ProjectDate));
        IdexRow(output).Put("    CREATION_DATE ").Put(date).Put("/00:00:00.0").End();
    }
    output.Put(definitions);
}

// The code and description of points, quoted as rows have them. Each is made once, of the first kinds that a drawing
// keeps; no drawing of a surveyor has more, and one of another program may have as many as points.
class QuotedKinds {
 public:
    explicit QuotedKinds(const Drawing& itsDrawing)
        : drawing(itsDrawing), made(std::min<std::size_t>(drawing.PointKinds.Count(), mostMade)) {}

    void Put(IdexRow& row, KeptNumber kind) {
        if (kind < made.size()) return PutMade(row, made[kind], kind);
        Quoted quoted;
        PutMade(row, quoted, kind);
    }

 private:
    static constexpr std::size_t mostMade = 1024;

    struct Quoted {
        std::array<char, 7 + 80 + 5> bytes{};
        std::size_t size = 0;  // 0: not made yet
        int replaced = 0;
    };

    void PutMade(IdexRow& row, Quoted& quoted, KeptNumber kind) const {
        if (quoted.size == 0) Make(quoted, drawing.PointKinds[kind]);
        row.PutMade({quoted.bytes.data(), quoted.size}, quoted.replaced);
    }

    static void Make(Quoted& quoted, const PointKind& kind) noexcept {
        char* const begin = quoted.bytes.data();
        char* at = WriteQuoted(begin, kind.code.TrimmedRight(), quoted.replaced);
        *at++ = ',';
        at = WriteQuoted(at, kind.description.TrimmedRight(), quoted.replaced);
        quoted.size = static_cast<std::size_t>(at - begin);
    }

    const Drawing& drawing;
    std::vector<Quoted> made;
};

// The digits of 1, 2, 3 and so on.
class RowNumber {
 public:
    void Next() noexcept {
        std::size_t place = size;
        while (place > 0 && digits[place - 1] == '9') digits[--place] = '0';
        if (place > 0) {
            ++digits[place - 1];
            return;
        }
        digits[0] = '1';
        if (size > 0) digits[size] = '0';
        ++size;
    }

    void Put(IdexRow& row) const noexcept { row.PutDigits(digits, size); }

 private:
    IdexRow::Digits digits{};
    std::size_t size = 0;  // it was not begun
};

void WritePoints(Translation& translation) {
    Screen& screen = translation.screen;
    LineWriter& output = translation.output;
    const Drawing& drawing = translation.drawing;
    constexpr std::size_t lengthWidth = 15;
    constexpr std::size_t directionWidth = 9;
    screen.ShowStatus(u"Wegschrijven punten");
    const auto& points = drawing.Points;
    QuotedKinds kinds(drawing);
    RowNumber number;
    BeginProgress(screen, points.UpperBound());
    output.PutLine("  POINTS (PointNo,PointID,East,North,Elevation,Code,Description,SymDir)");
    for (std::int32_t index = 1; index <= points.UpperBound(); ++index) {
        StepProgress(screen, index);
        const PointRec& point = points[index];
        IdexRow row(output);
        number.Next();
        number.Put(row.Put("    "));
        row.Put(",").PutPointID(point).Put(",");
        row.PutDecimal(point.East, 4, lengthWidth).Put(",");
        row.PutDecimal(point.North, 4, lengthWidth).Put(",");
        row.PutDecimal(point.Elevation, 4, lengthWidth).Put(",");
        kinds.Put(row, Drawing::KindOf(point));
        row.Put(",").PutDecimal(point.SymDir, 4, directionWidth).Put(";");
        End(translation, row, point.InputLine);
    }
    output.PutLine("  END POINTS");
}

void WriteLines(Translation& translation) {
    Screen& screen = translation.screen;
    LineWriter& output = translation.output;
    const Drawing& drawing = translation.drawing;
    const auto& lines = drawing.Lines;
    if (lines.UpperBound() == 0) return;
    screen.ShowStatus(u"Wegschrijven lijnstrings");
    BeginProgress(screen, lines.UpperBound());
    output.PutLine({});
    output.PutLine("  LINES (LineNo,Code,Flags1,Flags2)");
    for (std::int32_t lineNo = 1; lineNo <= lines.UpperBound(); ++lineNo) {
        StepProgress(screen, lineNo);
        const LineRec& line = lines[lineNo];
        IdexRow row(output);
        row.Put("    ").PutWhole(lineNo).Put(",").PutQuoted(drawing.CodeBytes(line).Trimmed()).Put(",");
        row.PutFlags(line.Flags1).Put(",").PutFlags(line.Flags2).Put(";");
        End(translation, row, line.InputLine);
    }
}

// A whole number and its digits, which many rows have from the row before.
class KnownNumber {
 public:
    bool Is(std::int32_t wanted) const noexcept { return number == wanted; }

    void Put(IdexRow& row, std::int32_t wanted) noexcept {
        if (!Is(wanted)) {
            number = wanted;
            size = static_cast<std::size_t>(WriteWhole(digits.data(), number) - digits.data());
        }
        row.PutDigits(digits, size);
    }

 private:
    std::int32_t number = 0;
    std::size_t size = 1;
    IdexRow::Digits digits{'0'};
};

// The points' names were told with the points.
void WriteEdges(Screen& screen, LineWriter& output, const Drawing& drawing) {
    const auto& edges = drawing.Edges;
    if (edges.UpperBound() == 0) return;
    screen.ShowStatus(u"Wegschrijven lijnsegmenten");
    BeginProgress(screen, edges.UpperBound());
    output.PutLine({});
    output.PutLine("    EDGES (LineNo,StartPt,StartPtID,EndPt,EndPtID,LINETYPE)");
    KnownNumber lineNo;
    KnownNumber start;
    KnownNumber end;
    for (std::int32_t index = 1; index <= edges.UpperBound(); ++index) {
        StepProgress(screen, index);
        const EdgeRec& edge = edges[index];
        IdexRow row(output);
        lineNo.Put(row.Put("      "), edge.LineNo);
        // A line string goes on where it was.
        if (end.Is(edge.StartPt)) start = end;
        start.Put(row.Put(","), edge.StartPt);
        row.Put(", ").PutPointID(drawing.Points[edge.StartPt]);
        end.Put(row.Put(","), edge.EndPt);
        row.Put(", ").PutPointID(drawing.Points[edge.EndPt]).Put(",");
        row.PutFixed(drawing.LineTypeBytes(edge).View()).Put(";").End();
    }
    output.PutLine("    END EDGES");
}

void WriteTextBoxes(Translation& translation) {
    LineWriter& output = translation.output;
    const auto& texts = translation.drawing.Texts;
    output.PutLine({});
    output.PutLine("  TEXT");
    output.PutLine("    PROPERTIES (TextPropertyNo)");
    output.PutLine("        1;");
    output.PutLine("    END PROPERTIES");
    output.PutLine({});
    output.PutLine("    BOXES");
    output.PutLine("      BOX_ON_POINT (TextBoxNo,AnchorPointNo,AnchorPosition,LayerNo,HzDirection)");
    for (std::int32_t index = 1; index <= texts.UpperBound(); ++index) {
        StepProgress(translation.screen, index);
        const TextRec& text = texts[index];
        IdexRow row(output);
        row.Put("          ").PutWhole(index).Put(",").PutPrinted(text.AnchorPointNo).Put(",");
        row.PutPrinted(text.AnchorPosition).Put(", 0,");
        // Two blanks stand before the number, inside the nine columns.
        row.Put("  ").PutDecimal(text.HzDirection, 3, 7).Put(";");
        End(translation, row, text.InputLine);
    }
    output.PutLine("      END BOX_ON_POINT");
    output.PutLine("    END BOXES");
}

// Every text is a box of its own, numbered by its index, with a single item.
void WriteTexts(Translation& translation) {
    Screen& screen = translation.screen;
    LineWriter& output = translation.output;
    const auto& texts = translation.drawing.Texts;
    if (texts.UpperBound() == 0) return;
    screen.ShowStatus(u"Wegschrijven teksten");
    BeginProgress(screen, 2 * std::int64_t{texts.UpperBound()});
    WriteTextBoxes(translation);
    output.PutLine({});
    output.PutLine("    ITEMS (TextItemNo, TextBoxNo, TextPropertyNo, LineNo, TextItem)");
    for (std::int32_t index = 1; index <= texts.UpperBound(); ++index) {
        StepProgress(screen, std::int64_t{texts.UpperBound()} + index);
        IdexRow row(output);
        row.Put("          ").PutWhole(index).Put(",").PutPrinted(index).Put(", 1, 1,");
        row.PutQuoted(texts[index].CharacterBytes().Trimmed()).Put(";");
        End(translation, row, texts[index].InputLine);
    }
    output.PutLine("    END ITEMS");
    output.PutLine("  END TEXT");
    output.PutLine({});
}

void WriteCount(LogBook& log, TextView label, std::int32_t count) { log.WriteLine(Concat(label, Printed(count))); }

void WriteStatistics(LogBook& log, const Drawing& drawing, const CodeTables& codes, UnknownCodeTally& unknowns) {
    log.WriteLine();
    log.WriteLine(u"IDEX statistiek:");
    WriteCount(log, u"IDEX punten:        ", drawing.Points.UpperBound());
    WriteCount(log, u"IDEX lijnen:        ", drawing.Lines.UpperBound());
    WriteCount(log, u"IDEX lijnsegmenten: ", drawing.Edges.UpperBound());
    WriteCount(log, u"IDEX teksten:       ", drawing.Texts.UpperBound());
    WriteCodeStatistics(log, codes, u"Geïmporteerde", NoneFor::TablesWithoutUsedRows);
    log.WriteEmptyLines(2);
    log.WriteLine(u"Onbekende objecten werden niet geimporteerd.");
    log.WriteEmptyLines(2);
    WriteUnknownObjectOverview(log, unknowns);
}

}  // namespace

void WriteIdexFile(Translation& translation) {
    LineWriter& output = translation.output;
    // Without an output there is nothing to say that its failure to open has not said.
    if (!output.IsOpen()) return;
    Screen& screen = translation.screen;
    const Drawing& drawing = translation.drawing;
    WriteHeader(translation);
    WritePoints(translation);
    WriteLines(translation);
    WriteEdges(screen, output, drawing);
    output.PutLine("  END LINES");
    WriteTexts(translation);
    output.PutLine("END DATABASE");
    WriteStatistics(translation.log, drawing, translation.codes, translation.unknowns);
    output.Close();
    translation.account.KeptAreWritten();
}

}  // namespace korvande
