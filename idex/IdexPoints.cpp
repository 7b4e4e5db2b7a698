#include "core/Numbers.h"
#include "core/Picture.h"
#include "core/modKORVANDE.h"
#include "core/modScreen.h"
#include "core/modStrings.h"
#include "idex/IdexFile.h"
#include "project/frmKORVANDE.h"

namespace korvande {

namespace {

// An escaped quote, and what stands in its place so that it is not taken for a closing quote.
constexpr std::string_view escapedQuote = "\\\"";
constexpr std::string_view quoteInDisguise = "\\@\\";

// The first stored point of each point number, for rows that update points. Built when the first such row comes.
class FirstPoints {
 public:
    // The index of the first point with this number; one past the last point when there is none.
    std::int32_t IndexFor(std::int32_t pointNo) {
        Build();
        const std::int32_t index = firsts.Find(pointNo);
        return index != 0 ? index : TheDrawing().Points.UpperBound() + 1;
    }

    // Notes that the point at this index has (from now on) this number; before it had another one, or was not there.
    void Note(std::int32_t index, std::int32_t numberBefore, std::int32_t pointNo) {
        if (numberBefore != pointNo && firsts.Find(numberBefore) == index) {
            firsts.Set(numberBefore, NextWith(numberBefore, index + 1));
        }
        const std::int32_t first = firsts.Find(pointNo);
        if (first == 0 || index < first) firsts.Set(pointNo, index);
    }

 private:
    void Build() {
        if (isBuilt) return;
        isBuilt = true;
        const auto& points = TheDrawing().Points;
        for (std::int32_t index = points.UpperBound(); index >= 1; --index) firsts.Set(points[index].PointNo, index);
    }

    static std::int32_t NextWith(std::int32_t pointNo, std::int32_t from) {
        const auto& points = TheDrawing().Points;
        while (from <= points.UpperBound() && points[from].PointNo != pointNo) ++from;
        return from <= points.UpperBound() ? from : 0;
    }

    SparseIndex firsts;
    bool isBuilt = false;
};

class PointsReader {
 public:
    explicit PointsReader(IdexFile& idexFile)
        : file(idexFile),
          table(file, {"POINTNO", "POINTID", "CODE", "DESCRIPTION", "EAST", "NORTH", "ELEVATION", "SYMDIR"}) {}

    void Read(std::string_view headerLine) {
        table.ReadHeader(headerLine);
        std::string_view row;
        while (file.NextRow(row)) {
            if (StartsWith(row, "EXTRAINFO")) {
                isUpdating = true;
                table.ReadHeader(std::string(row.substr(std::string_view("EXTRAINFO").size())));
            } else {
                ReadPoint(WholeRow(row));
            }
        }
    }

 private:
    enum Column { pointNo, pointId, code, description, east, north, elevation, symDir };

    struct Numbers {
        double east;
        double north;
        double elevation;
        double symDir;
    };

    // A row that has no terminator goes on in the next line; its escaped quotes are put in disguise.
    std::string_view WholeRow(std::string_view row) {
        if (row.find(file.terminator) == std::string_view::npos) {
            joined = row;
            std::string_view next;
            if (file.NextRow(next)) {
                joined.append(next);
            } else {
                file.TakeBack();
            }
            row = joined;
        }
        if (row.find(escapedQuote) == std::string_view::npos) return row;
        return joined = ReplaceAll(row, escapedQuote, quoteInDisguise);
    }

    void ReadPoint(std::string_view row) {
        table.Split(row);
        const std::string_view numberField = table.Field(pointNo);
        std::int32_t number = LeadingWholeNumber(numberField);
        const std::int32_t index = isUpdating ? firstPoints.IndexFor(number) : lastIndex + 1;
        if (numberField.empty()) number = index;
        Store(index, number,
              {LeadingNumber(table.Field(east)), LeadingNumber(table.Field(north)),
               LeadingNumber(table.Field(elevation)), LeadingNumber(table.Field(symDir))});
    }

    // Everything that can fail comes before the first change to the drawing.
    void Store(std::int32_t index, std::int32_t number, const Numbers& numbers) {
        Drawing& drawing = TheDrawing();
        const bool isNew = index > drawing.Points.UpperBound();
        drawing.PointIndex.Set(number, drawing.PointIndex.Find(number));
        drawing.Points.GrowTo(index);
        PointRec& point = drawing.Points[index];
        const std::int32_t numberBefore = isNew ? number : point.PointNo;
        point.East = numbers.east;
        point.North = numbers.north;
        point.Elevation = numbers.elevation;
        point.SymDir = numbers.symDir;
        point.PointNo = number;
        AssignUnquoted(point.PointID, table.Field(pointId));
        AssignUnquoted(point.Code, table.Field(code));
        AssignUnquoted(point.Description, Description());
        drawing.PointIndex.Set(number, index);
        if (isUpdating) firstPoints.Note(index, numberBefore, number);
        lastIndex = index;
    }

    // Whatever stands in the file as a quote in disguise is one.
    std::string_view Description() {
        const std::string_view field = table.Field(description);
        if (field.find(quoteInDisguise) == std::string_view::npos) return field;
        undisguised = ReplaceAll(field, quoteInDisguise, "\"");
        return undisguised;
    }

    IdexFile& file;
    IdexTable table;
    bool isUpdating = false;
    FirstPoints firstPoints;
    std::int32_t lastIndex = 0;
    std::string joined;
    std::string undisguised;
};

// A code that is an LKI code already, from what a person typed.
FixedText<7> MarkedCode(TextView lkiCode) { return MakeFixedText<7>(Concat(TextView(&lkiCodeMark, 1), lkiCode)); }

TextRec& AppendGenerated(const PointRec& point, std::int16_t anchorPosition, float direction,
                         const FixedText<7>& code) {
    TextRec& text = TheDrawing().Texts.Append();
    text.AnchorPointNo = point.PointNo;
    text.AnchorPosition = anchorPosition;
    text.HzDirection = direction;
    text.Code = code;
    return text;
}

void AddPointNumberTexts() {
    ShowStatus(u"Toevoegen puntnr.teksten");
    const FixedText<7> code = MarkedCode(frmKORVANDE().txtPnoTxtLKI);
    Drawing& drawing = TheDrawing();
    for (std::int32_t index = 1; index <= drawing.Points.UpperBound(); ++index) {
        const PointRec& point = drawing.Points[index];
        if (point.PointID.IsBlank()) continue;
        AppendGenerated(point, pointNumberAnchor, 0, code).Text = point.PointID.View();
        ProcessEvents();
    }
}

void AddHeightTexts() {
    ShowStatus(u"Toevoegen hoogte teksten");
    const FixedText<7> code = MarkedCode(frmKORVANDE().txtEleTxtLKI);
    Drawing& drawing = TheDrawing();
    for (std::int32_t index = 1; index <= drawing.Points.UpperBound(); ++index) {
        const PointRec& point = drawing.Points[index];
        if (point.Elevation == 0) continue;
        const std::string height = PointToComma(FormatPicture(point.Elevation, "####0.00"));
        AppendGenerated(point, heightAnchor, 50, code).Text.Assign(PadLeft(height, 7));
        ProcessEvents();
    }
}

}  // namespace

void ReadPoints(IdexFile& file, std::string_view keywordLine) {
    ShowStatus(u"Inlezen Punten");
    PointsReader(file).Read(keywordLine);
    if (frmKORVANDE().chkExportPointnoAsText) AddPointNumberTexts();
    if (frmKORVANDE().chkExportHeightAsText) AddHeightTexts();
}

}  // namespace korvande
