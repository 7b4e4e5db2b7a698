#include "idex/IdexPoints.h"

#include <algorithm>

#include "core/Picture.h"
#include "core/modKORVANDE.h"
#include "core/modScreen.h"
#include "core/modStrings.h"
#include "idex/IdexFile.h"
#include "idex/IdexTable.h"
#include "translation/Translation.h"

namespace korvande {

namespace {

// An escaped quote, and what stands in its place so that it is not taken for a closing quote.
constexpr std::string_view escapedQuote = "\\\"";
constexpr std::string_view quoteInDisguise = "\\@\\";

// The first stored point of each point number, for rows that update points. Built when the first such row comes.
class FirstPoints {
 public:
    explicit FirstPoints(const Drawing& itsDrawing) : drawing(itsDrawing) {}

    // The index of the first point with this number; one past the last point when there is none.
    std::int32_t IndexFor(std::int32_t pointNo) {
        Build();
        const std::int32_t index = firsts.Find(pointNo);
        return index != 0 ? index : drawing.Points.UpperBound() + 1;
    }

    // Notes that the point at this index has (from now on) this number; before it had another one, of which it was the
    // first, or was not there.
    void Note(std::int32_t index, std::int32_t numberBefore, std::int32_t pointNo) {
        if (numberBefore != pointNo) firsts.Set(numberBefore, NextWith(numberBefore, index + 1));
        const std::int32_t first = firsts.Find(pointNo);
        if (first == 0 || index < first) firsts.Set(pointNo, index);
    }

 private:
    void Build() {
        if (isBuilt) return;
        isBuilt = true;
        const auto& points = drawing.Points;
        for (std::int32_t index = points.UpperBound(); index >= 1; --index) firsts.Set(points[index].PointNo, index);
    }

    std::int32_t NextWith(std::int32_t pointNo, std::int32_t from) const {
        const auto& points = drawing.Points;
        while (from <= points.UpperBound() && points[from].PointNo != pointNo) ++from;
        return from <= points.UpperBound() ? from : 0;
    }

    const Drawing& drawing;
    SparseIndex firsts;
    bool isBuilt = false;
};

class PointsReader {
 public:
    PointsReader(Translation& itsTranslation, IdexFile& idexFile)
        : translation(itsTranslation),
          file(idexFile),
          drawing(itsTranslation.drawing),
          pointsBefore(drawing.Points.UpperBound()),
          table(file, "POINTS",
                {{"POINTNO", Lacking::MayBeTold},
                 {"POINTID", Lacking::MayBeTold},
                 {"CODE"},
                 {"DESCRIPTION", Lacking::IsFine},
                 {"EAST"},
                 {"NORTH"},
                 {"ELEVATION", Lacking::MayBeTold},
                 {"SYMDIR", Lacking::MayBeTold}}) {}

    void Read(std::string_view headerLine) {
        tableLine = file.Line();
        table.ReadHeader(headerLine);
        std::string_view row;
        try {
            while (file.NextCapitalRow(row)) {
                if (StartsWith(row, "EXTRAINFO")) {
                    isUpdating = true;
                    table.ReadPartialHeader(std::string(row.substr(std::string_view("EXTRAINFO").size())));
                } else if (!file.SkipNestedBlock(row, "POINTS")) {
                    SplitWhole(row);
                    ReadPoint();
                }
            }
        } catch (const RuntimeError&) {
            TellReplaced();
            throw;
        }
        TellReplaced();
    }

 private:
    enum Column { pointNo, pointId, code, description, east, north, elevation, symDir };

    struct Numbers {
        double east;
        double north;
        double elevation;
        double symDir;
    };

    // Splits a row, with the line that it goes on in.
    void SplitWhole(std::string_view row) {
        isToldAlready = false;
        hasDisguise = false;
        const RowEnd end = table.SplitUnjudged(row);
        // Nearly every row is whole and has nothing in it to be put in disguise.
        if (end.terminator != std::string_view::npos && !end.hasBackslash) return table.Judge(row, end);
        const std::string_view whole = WholeRow(row);
        if (isToldAlready) {
            table.SplitDamaged(whole);
        } else {
            table.Split(whole);
        }
    }

    // A row that has no terminator goes on in the next line; its escaped quotes are put in disguise.
    std::string_view WholeRow(std::string_view row) {
        if (row.find(file.Terminator()) == std::string_view::npos) row = Joined(row);
        if (row.find(escapedQuote) == std::string_view::npos) return row;
        hasDisguise = true;
        return joined = ReplaceAll(row, escapedQuote, quoteInDisguise);
    }

    std::string_view Joined(std::string_view row) {
        const std::int64_t begins = file.rowLine;
        joined = row;
        std::string_view next;
        if (!file.NextCapitalRow(next) || (!file.NameOfBlock(next).empty() && !StartsWith(next, "EXTRAINFO"))) {
            file.TakeBack();
        } else {
            TellJoin(joined, next, begins);
            joined.append(next);
        }
        file.rowLine = begins;
        return joined;
    }

    // Two lines are one row when the second ends in a terminator and is no row itself.
    void TellJoin(std::string_view asRead, std::string_view nextAsRead, std::int64_t begins) {
        const std::string row = ReplaceAll(asRead, escapedQuote, quoteInDisguise);
        const std::string next = ReplaceAll(nextAsRead, escapedQuote, quoteInDisguise);
        const bool isNextNoRow = table.IsNoRow(next);
        const bool isEnded = next.find(file.Terminator()) != std::string_view::npos;
        const bool isNextRow = !isNextNoRow && table.IsRowItself(next, {pointNo, east, north});
        isToldAlready = true;
        if (table.IsComment(row) || (table.IsNoRow(row) && (!isEnded || isNextNoRow || isNextRow))) {
            file.Tell(ProblemKind::LineInTable, {}, begins);
        } else if (!isEnded || isNextNoRow || table.SwallowsRow(row, next, {pointNo, east, north})) {
            file.Tell(ProblemKind::RowWithoutTerminator, {}, begins, !isEnded && isNextRow ? 2 : 1);
        } else {
            isToldAlready = false;
        }
        if (isNextNoRow) file.TellOfRow(ProblemKind::LineInTable);
    }

    void ReadPoint() {
        const std::string_view numberField = table.Field(pointNo);
        std::int32_t number = table.Whole(pointNo);
        const std::int32_t index = isUpdating ? firstPoints.IndexFor(number) : lastIndex + 1;
        if (numberField.empty()) number = isUpdating ? index : index + leftOut;
        const Numbers numbers = {table.Number(east, ProblemKind::CoordinateNoNumber),
                                 table.Number(north, ProblemKind::CoordinateNoNumber),
                                 table.Number(elevation, ProblemKind::CoordinateNoNumber), table.Number(symDir)};
        const bool isUpdate = isUpdating && index <= drawing.Points.UpperBound();
        if (isUpdate) {
            if (Blanks(drawing.Points[index])) table.Tell(ProblemKind::PointBlanked);
        } else if (table.IsBlank(east) || table.IsBlank(north)) {
            if (translation.options.chkWithoutZeroes) return LeavePoint(number);
            if (!table.IsToldAsLacking(east) && !table.IsToldAsLacking(north)) TellOfPoint(ProblemKind::NoCoordinates);
        }
        Store(index, number, numbers);
    }

    // Whether an update by the row takes values away from a point that has them.
    bool Blanks(const PointRec& point) const {
        return (point.East != 0 && table.IsBlank(east)) || (point.North != 0 && table.IsBlank(north)) ||
               (point.Elevation != 0 && table.IsBlank(elevation)) || (point.SymDir != 0 && table.IsBlank(symDir)) ||
               (!point.PointIDBytes().IsBlank() && table.IsBlank(pointId)) ||
               (!drawing.CodeBytes(point).IsBlank() && table.IsBlank(code)) ||
               (!drawing.DescriptionBytes(point).IsBlank() && table.IsBlank(description));
    }

    void TellOfPoint(ProblemKind kind) {
        Tell(translation, {.kind = kind, .object = ObjectKind::Point, .line = file.rowLine});
    }

    // A point that is left out: what refers to its number refers to no point, and the numbers of those behind it that
    // have none in the file stay as they are.
    void LeavePoint(std::int32_t number) {
        drawing.PointIndex.Set(number, drawing.PointIndex.Find(number));
        ++leftOut;
        ++translation.account[ObjectKind::Point].read;
        LeaveOut(translation, ObjectKind::Point, LeftOut::NoPlace, file.rowLine);
    }

    // Everything that can fail comes before the first change to the drawing.
    void Store(std::int32_t index, std::int32_t number, const Numbers& numbers) {
        const bool isNew = index > drawing.Points.UpperBound();
        std::int32_t& indexOfNumber = drawing.PointIndex.Place(number);
        const std::int32_t indexBefore = indexOfNumber;
        PointRec point{};
        if (!isNew) point = drawing.Points[index];
        if (indexBefore != 0 && indexBefore < index && !isUpdating) TellTwice(indexBefore, number);
        const std::int32_t numberBefore = isNew ? number : point.PointNo;
        point.East = numbers.east;
        point.North = numbers.north;
        point.Elevation = numbers.elevation;
        point.SymDir = numbers.symDir;
        point.PointNo = number;
        point.InputLine = static_cast<std::int32_t>(file.rowLine);
        if (hasDisguise) TellDisguised();
        point.SetPointID(table.Fitting(table.Unquoted(pointId), 9, ProblemKind::NameCut), Letters::Capitals);
        Drawing::SetKind(point, ReadKind());
        drawing.Points.GrowTo(index);
        drawing.Points[index] = point;
        indexOfNumber = index;
        if (isUpdating) firstPoints.Note(index, numberBefore, number);
        lastIndex = index;
        if (!isUpdating) lastOfTable = index;
    }

    // The code and description of the row. Most rows have those of the one before, which were told of then, when there
    // was something to tell.
    KeptNumber ReadKind() {
        constexpr std::size_t codeWidth = decltype(PointKind::code)::width;
        constexpr std::size_t descriptionWidth = decltype(PointKind::description)::width;
        const std::string_view codeField = table.Field(code);
        const std::string_view descriptionField = table.Field(description);
        if (isKindKnown && codeField == lastCode && descriptionField == lastDescription) return lastKind;
        const std::string_view codeText = table.Unquoted(code);
        const bool isCodePlain = IsPartOf(codeField, codeText) && codeText.size() <= codeWidth;
        PointKind kind{};
        kind.code.Assign(table.Fitting(codeText, codeWidth, ProblemKind::CodeCut), Letters::Capitals);
        const std::string_view text = table.WithoutQuotes(Description());
        const bool isPlain = isCodePlain && IsPartOf(descriptionField, text) && text.size() <= descriptionWidth;
        kind.description.Assign(table.Fitting(text, descriptionWidth, ProblemKind::DescriptionCut), Letters::Capitals);
        const KeptNumber number = drawing.PointKinds.NumberOf(kind);
        // A row that something must be told of each time is looked at each time.
        isKindKnown = isPlain;
        if (isPlain) {
            lastCode = codeField;
            lastDescription = descriptionField;
            lastKind = number;
        }
        return number;
    }

    static bool IsPartOf(std::string_view whole, std::string_view part) noexcept {
        return part.empty() || (part.data() >= whole.data() && part.data() < whole.data() + whole.size());
    }

    // The index may be of a point that has another number by now.
    void TellTwice(std::int32_t indexBefore, std::int32_t number) {
        if (drawing.Points[indexBefore].PointNo == number) table.Tell(ProblemKind::NumberTwice);
    }

    // Only a description gets its quotes back.
    void TellDisguised() {
        for (const Column column : {pointId, code}) {
            if (table.Field(column).find(quoteInDisguise) != std::string_view::npos) {
                table.Tell(ProblemKind::CharacterReplaced);
            }
        }
    }

    // What an earlier table brought and this one overwrote.
    void TellReplaced() {
        const std::int32_t replaced = std::min(lastOfTable, pointsBefore);
        if (replaced > 0) file.Tell(ProblemKind::PointReplaced, {}, tableLine, replaced);
    }

    // Whatever stands in the file as a quote in disguise is one.
    std::string_view Description() {
        const std::string_view field = table.Field(description);
        if (field.find(quoteInDisguise) == std::string_view::npos) return field;
        undisguised = ReplaceAll(field, quoteInDisguise, "\"");
        return undisguised;
    }

    Translation& translation;
    IdexFile& file;
    Drawing& drawing;
    std::int32_t pointsBefore;  // of earlier tables
    IdexTable table;
    std::int64_t tableLine = 0;
    bool isUpdating = false;
    bool isToldAlready = false;  // the row read last was told as damaged
    bool hasDisguise = false;    // it has a quote in disguise
    FirstPoints firstPoints{drawing};
    std::int32_t lastIndex = 0;
    std::int32_t lastOfTable = 0;  // without the rows that update
    std::int32_t leftOut = 0;
    std::string joined;
    std::string undisguised;
    bool isKindKnown = false;  // of a code and description as they stand in a row
    std::string lastCode;
    std::string lastDescription;
    KeptNumber lastKind = 0;
};

// A code that is an LKI code already, from what a person typed.
FixedBytes<7> MarkedCode(TextView lkiCode) {
    return MakeFixedBytes<7>(Concat(std::string_view(&lkiCodeMark, 1), lkiCode));
}

TextRec& AppendGenerated(Drawing& drawing, const PointRec& point, std::int16_t anchorPosition, float direction,
                         KeptNumber code) {
    TextRec& text = drawing.Texts.Append();
    text.InputLine = point.InputLine;
    text.AnchorPointNo = point.PointNo;
    text.AnchorPosition = anchorPosition;
    text.HzDirection = direction;
    Drawing::SetCodeNumber(text, code);
    return text;
}

void AddPointNumberTexts(Screen& screen, Drawing& drawing, TextView lkiCode) {
    screen.ShowStatus(u"Toevoegen puntnr.teksten");
    const KeptNumber code = drawing.TextCodes.NumberOf(MarkedCode(lkiCode));
    for (std::int32_t index = 1; index <= drawing.Points.UpperBound(); ++index) {
        const PointRec& point = drawing.Points[index];
        const auto& name = point.PointIDBytes();
        if (name.IsBlank()) continue;
        AppendGenerated(drawing, point, pointNumberAnchor, 0, code).SetCharacters(name.View());
        ProcessEvents(screen);
    }
}

void AddHeightTexts(Screen& screen, Drawing& drawing, TextView lkiCode) {
    screen.ShowStatus(u"Toevoegen hoogte teksten");
    const KeptNumber code = drawing.TextCodes.NumberOf(MarkedCode(lkiCode));
    for (std::int32_t index = 1; index <= drawing.Points.UpperBound(); ++index) {
        const PointRec& point = drawing.Points[index];
        if (point.Elevation == 0) continue;
        const std::string height = PointToComma(FormatPicture(point.Elevation, "####0.00"));
        AppendGenerated(drawing, point, heightAnchor, 50, code).SetCharacters(PadLeft(height, 7));
        ProcessEvents(screen);
    }
}

}  // namespace

void ReadPoints(Translation& translation, IdexFile& file, std::string_view keywordLine) {
    Screen& screen = translation.screen;
    Drawing& drawing = translation.drawing;
    const Options& options = translation.options;
    screen.ShowStatus(u"Inlezen Punten");
    PointsReader(translation, file).Read(keywordLine);
    if (options.chkExportPointnoAsText) AddPointNumberTexts(screen, drawing, options.txtPnoTxtLKI);
    if (options.chkExportHeightAsText) AddHeightTexts(screen, drawing, options.txtEleTxtLKI);
}

}  // namespace korvande
