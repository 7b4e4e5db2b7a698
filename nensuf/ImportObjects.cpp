#include "nensuf/ImportObjects.h"

#include <array>

#include "core/modAzimuth.h"
#include "core/modConstants.h"
#include "core/modLineIntraVerse.h"
#include "core/modScreen.h"
#include "core/modStrings.h"
#include "nensuf/ImportProblems.h"
#include "nensuf/Overflow.h"
#include "translation/CodeLookups.h"
#include "translation/Translation.h"

namespace korvande {

namespace {

constexpr double leastDistance = 0.001;  // metres; closer points give no direction

// How many points of a group an object takes: of a symbol its place and the one that it is turned to.
constexpr std::size_t pointsOfSymbol = 2;
constexpr std::size_t pointsOfText = 5;

// The points of a group, at most five, from its coordinate fields.
class GroupPoints {
 public:
    explicit GroupPoints(const ImportRun& run) {
        for (const GroupField& field : run.records.GroupFields()) Take(run.frame, field);
        LeaveNumber();
    }

    std::size_t Count() const noexcept { return count; }
    PointRec& First() noexcept { return points[0]; }

    // Tells what was wrong with the fields, and which points an object passes over that takes so many.
    void TellFaults(Translation& translation, std::size_t taken) {
        watch.Tell(translation);
        if (begun <= taken) return;
        Tell(translation, {.kind = ProblemKind::PointsPassedOver, .line = lineOfLast},
             static_cast<std::int64_t>(begun - taken));
    }

    const PointRec& operator[](std::size_t place) const noexcept { return points[place]; }

    // The direction from the first point to the second, in grads anticlockwise from east; nothing when there are no two
    // points, or none far enough apart.
    std::optional<double> Direction() const {
        if (count < 2) return {};
        const double dEast = points[1].East - points[0].East;
        const double dNorth = points[1].North - points[0].North;
        if (WithoutOverflow(Distance(dEast, dNorth)) < leastDistance) return {};
        return MirrorGrads(Azimuth(dEast, dNorth) * gradsPerRadian);
    }

 private:
    static constexpr std::size_t most = pointsOfText;

    void LeaveNumber() {
        if (!number.empty()) watch.LeaveNumber(number, lineOfNumber);
    }

    void Take(const CoordinateFrame& frame, const GroupField& field) {
        watch.See(field);
        switch (field.Key) {
            case 'N':
                LeaveNumber();
                number = field.Value;
                lineOfNumber = field.Line;
                break;
            case 'X':
                ++begun;
                lineOfLast = field.Line;
                if (count == most) {
                    isFull = true;
                } else {
                    points[count].InputLine = static_cast<std::int32_t>(field.Line);
                    points[count].East = frame.X(field);
                    points[count].SetPointID(number);
                    ++count;
                }
                number = {};
                break;
            case 'Y':
                if (count > 0 && !isFull) points[count - 1].North = frame.Y(field);
                break;
            case 'Z':
                if (count > 0 && !isFull) points[count - 1].Elevation = frame.Z(field);
                break;
            default:
                break;
        }
    }

    std::array<PointRec, most> points{};
    std::size_t count = 0;
    bool isFull = false;  // a further point has begun, whose fields are passed over
    std::string_view number;

    CoordinateWatch watch;
    std::size_t begun = 0;  // also those beyond the five
    std::int64_t lineOfLast = 0;
    std::int64_t lineOfNumber = 0;
};

// Why an object, which takes so many points, stays out; nothing when it is imported.
std::optional<LeftOut> ReasonToLeave(const ImportRun& run, const CodeTable& table, std::int32_t row,
                                     GroupPoints& points, std::size_t takenPoints) {
    if (row == 0 && (!run.withUnknowns || table.rows.empty())) return LeftOut::UnknownCode;
    points.TellFaults(run.translation, takenPoints);
    if (points.Count() == 0) return LeftOut::NoCoordinates;
    if (run.selection.Excludes(points.First())) return LeftOut::OutsideRectangle;
    return {};
}

// Adds the first point of a point or symbol group, with the code and description of its row. Direction in grads.
void AddObject(ImportRun& run, GroupPoints& points, double direction, const ObjectRow& row) {
    PointRec& point = points.First();
    point.SymDir = direction;
    run.pointKinds.Mark(point, row);
    AddImportedPoint(run.translation.drawing, point);
}

// The coordinates of a placement group: those of a 04 group behind it, else its own.
GroupPoints ReadPlacementPoints(ImportRun& run) {
    if (run.records.NextIs("04")) run.records.ReadRecordGroup(0);
    return GroupPoints(run);
}

// Symbols of the codes S01 to S03 go by code and symbol type (positions 4-6 of the placement), when the table has a row
// for the two together.
CodeKey SymbolKey(const ImportRun& run, CodeTable& points) {
    const std::string& code = run.group.ObjectCode;
    if (code == "S01" || code == "S02" || code == "S03") {
        const CodeKey withType = KeyOf(code + " " + run.group.placement.substr(3, 3));
        if (FindLkiCode(points, withType) != 0) return withType;
    }
    return KeyOf(code);
}

// The text in a 06 record: behind "06A", the count and "T", so from column 7; for a place name from column 14.
std::string_view TextOf(std::string_view record, std::string_view objectCode) {
    constexpr std::size_t endCode = 62;
    if (objectCode == "Z01") return Trim(record.substr(13, endCode - 13));
    return record.substr(6, endCode - 6);
}

// How many characters a text says it has, in columns 4-5 of its record; 0 when that is no number.
int SaidLength(std::string_view record) {
    const auto digitAt = [record](std::size_t place) { return record[place] - '0'; };
    const auto isDigit = [](int digit) { return digit >= 0 && digit <= 9; };
    return isDigit(digitAt(3)) && isDigit(digitAt(4)) ? 10 * digitAt(3) + digitAt(4) : 0;
}

// Tells what of a text's characters is lost: those behind the ones that are kept, those that go on in a further record,
// and the first ones of a place name.
void TellTextCut(ImportRun& run, std::string_view record) {
    constexpr int kept = 47;
    constexpr int mostInRecord = 56;
    Translation& translation = run.translation;
    const std::int64_t line = run.records.RecordLine();
    const bool isPlaceName = run.group.ObjectCode == "Z01";
    if (isPlaceName && !Trim(record.substr(6, 7)).empty()) {
        Tell(translation, {.kind = ProblemKind::PlaceNameStart, .line = line});
    }
    const bool isTooLong = TrimRight(TextOf(record, run.group.ObjectCode)).size() > std::size_t{kept};
    const bool saysMore = SaidLength(record) > mostInRecord;
    const bool goesOn = record.ends_with("00") && run.records.NextIs("06");
    if (!isTooLong && !saysMore && !goesOn) return;
    Tell(translation, {.kind = ProblemKind::TextCut, .words = Concat(kept), .line = line});
    run.isTold = true;
}

// A text's points go without a code of their own; two that are apart are joined by a line string of the text's code.
// Returns the index of the first.
std::int32_t AddTextPoints(ImportRun& run, const GroupPoints& points, bool joined, const ObjectRow& row) {
    Drawing& drawing = run.translation.drawing;
    const auto inputLine = static_cast<std::int32_t>(run.group.line);
    const std::int32_t first = drawing.Points.UpperBound() + 1;
    for (std::size_t i = 0; i < points.Count(); ++i) AddImportedPoint(drawing, points[i]);
    if (!joined) return first;
    LineRec& line = drawing.Lines.Append();
    line.InputLine = inputLine;
    run.textLineKinds.Mark(line, row);
    EdgeRec& edge = drawing.Edges.Append();
    edge.InputLine = inputLine;
    edge.LineNo = drawing.Lines.UpperBound();
    edge.StartPt = first;
    edge.EndPt = first + 1;
    Drawing::SetLineTypeNumber(edge, run.straight);
    return first;
}

}  // namespace

std::optional<LeftOut> ImportPointGroup(ImportRun& run) {
    if (!ReadGeometryGroup(run, u"Punt,")) return LeftOut::MissingRecord;
    CodeTable& codes = run.translation.codes.points;
    const CodeKey code = KeyOf(run.group.ObjectCode);
    const std::int32_t row = LookupPointCode(codes, run.unknowns, code);
    GroupPoints points(run);
    if (const auto reason = ReasonToLeave(run, codes, row, points, pointsOfSymbol)) return reason;
    AddObject(run, points, points.Direction().value_or(0), RowFor(run, row, code));
    return {};
}

std::optional<LeftOut> ImportSymbolGroup(ImportRun& run) {
    CodeTable& codes = run.translation.codes.points;
    const CodeKey code = SymbolKey(run, codes);
    const std::int32_t row = LookupPointCode(codes, run.unknowns, code);
    GroupPoints points = ReadPlacementPoints(run);
    if (const auto reason = ReasonToLeave(run, codes, row, points, pointsOfSymbol)) return reason;
    std::optional<double> direction = points.Direction();
    // With this option P1-P2 points to the symbol's north, which is what its direction is counted from.
    const bool pointsNorth = run.translation.options.chkImportSymRotation;
    if (direction && pointsNorth) direction = NormalizeGrads(*direction - 100);
    AddObject(run, points, direction.value_or(0), RowFor(run, row, code));
    return {};
}

std::optional<LeftOut> ImportTextGroup(ImportRun& run) {
    Translation& translation = run.translation;
    GroupPoints points = ReadPlacementPoints(run);
    if (!run.records.NextIs("06")) {
        Report(translation, {.kind = ProblemKind::NoTextRecord});
        ShowMessage(translation.screen, u"06 record ontbreekt", Icon::Critical);
        return LeftOut::MissingRecord;
    }
    const std::string_view record = run.records.ReadRecordGroup(2);
    const GroupObjects& group = run.group;
    CodeTable& codes = translation.codes.texts;
    const CodeKey code = KeyOf(group.ObjectCode);
    const std::int32_t rowNo = LookupTextCode(codes, run.unknowns, code);
    if (const auto reason = ReasonToLeave(run, codes, rowNo, points, pointsOfText)) return reason;
    const ObjectRow row = RowFor(run, rowNo, code);
    const std::optional<double> direction = points.Direction();
    Drawing& drawing = translation.drawing;
    const std::int32_t anchor = AddTextPoints(run, points, direction.has_value(), row);
    TextRec& text = drawing.Texts.Append();
    drawing.SetCode(text, LiscadCodeOf(codes, row).View());
    text.AnchorPointNo = anchor;
    text.AnchorPosition = static_cast<std::int16_t>(TransposeAnchorPosition(group.placement.substr(0, 1)) - '0');
    text.HzDirection = static_cast<float>(direction.value_or(0));
    text.InputLine = static_cast<std::int32_t>(group.line);
    text.SetCharacters(TextOf(record, group.ObjectCode));
    TellTextCut(run, record);
    return {};
}

}  // namespace korvande
