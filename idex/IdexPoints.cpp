#include "idex/IdexPoints.h"

#include "core/Numbers.h"
#include "core/Picture.h"
#include "core/modKORVANDE.h"
#include "core/modScreen.h"
#include "core/modStrings.h"
#include "idex/IdexFile.h"
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
    PointsReader(IdexFile& idexFile, Drawing& itsDrawing)
        : file(idexFile),
          drawing(itsDrawing),
          table(file, {"POINTNO", "POINTID", "CODE", "DESCRIPTION", "EAST", "NORTH", "ELEVATION", "SYMDIR"}) {}

    void Read(std::string_view headerLine) {
        table.ReadHeader(headerLine);
        std::string_view row;
        while (file.NextCapitalRow(row)) {
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
        if (row.find(file.Terminator()) == std::string_view::npos) {
            joined = row;
            std::string_view next;
            if (file.NextCapitalRow(next)) {
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
        point.SetPointID(table.Unquoted(pointId), Letters::Capitals);
        drawing.SetCode(point, table.Unquoted(code), Letters::Capitals);
        drawing.SetDescription(point, table.WithoutQuotes(Description()), Letters::Capitals);
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
    Drawing& drawing;
    IdexTable table;
    bool isUpdating = false;
    FirstPoints firstPoints{drawing};
    std::int32_t lastIndex = 0;
    std::string joined;
    std::string undisguised;
};

// A code that is an LKI code already, from what a person typed.
FixedText<7> MarkedCode(TextView lkiCode) { return MakeFixedText<7>(Concat(TextView(&lkiCodeMark, 1), lkiCode)); }

TextRec& AppendGenerated(Drawing& drawing, const PointRec& point, std::int16_t anchorPosition, float direction,
                         const FixedText<7>& code) {
    TextRec& text = drawing.Texts.Append();
    text.AnchorPointNo = point.PointNo;
    text.AnchorPosition = anchorPosition;
    text.HzDirection = direction;
    drawing.SetCode(text, code.View());
    return text;
}

void AddPointNumberTexts(Screen& screen, Drawing& drawing, TextView lkiCode) {
    screen.ShowStatus(u"Toevoegen puntnr.teksten");
    const FixedText<7> code = MarkedCode(lkiCode);
    for (std::int32_t index = 1; index <= drawing.Points.UpperBound(); ++index) {
        const PointRec& point = drawing.Points[index];
        const auto& name = point.PointID();
        if (name.IsBlank()) continue;
        AppendGenerated(drawing, point, pointNumberAnchor, 0, code).SetCharacters(name.View());
        ProcessEvents(screen);
    }
}

void AddHeightTexts(Screen& screen, Drawing& drawing, TextView lkiCode) {
    screen.ShowStatus(u"Toevoegen hoogte teksten");
    const FixedText<7> code = MarkedCode(lkiCode);
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
    PointsReader(file, drawing).Read(keywordLine);
    if (options.chkExportPointnoAsText) AddPointNumberTexts(screen, drawing, options.txtPnoTxtLKI);
    if (options.chkExportHeightAsText) AddHeightTexts(screen, drawing, options.txtEleTxtLKI);
}

}  // namespace korvande
