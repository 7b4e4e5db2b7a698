#include <array>
#include <optional>

#include "core/modAzimuth.h"
#include "core/modConstants.h"
#include "core/modLineIntraVerse.h"
#include "core/modScreen.h"
#include "core/modStrings.h"
#include "nensuf/ImportRun.h"
#include "project/frmKORVANDE.h"
#include "run/LogBook.h"
#include "run/ObjectAccount.h"

namespace korvande {

namespace {

constexpr double leastDistance = 0.001;  // metres; closer points give no direction

// The points of a group, at most five, from its coordinate fields.
class GroupPoints {
 public:
    explicit GroupPoints(const ImportRun& run) {
        for (const GroupField& field : run.records.GroupFields()) Take(run.frame, field);
    }

    std::size_t Count() const noexcept { return count; }
    PointRec& First() noexcept { return points[0]; }
    const PointRec& operator[](std::size_t place) const noexcept { return points[place]; }

    // Whether there are two points far enough apart to give a direction.
    bool HaveDirection() const noexcept {
        return count > 1 &&
               Distance(points[1].East - points[0].East, points[1].North - points[0].North) >= leastDistance;
    }

    // The direction from the first point to the second, in grads anticlockwise from east; 0 when there is none.
    double Direction() const noexcept {
        if (!HaveDirection()) return 0;
        const double bearing = Azimuth(points[1].East - points[0].East, points[1].North - points[0].North);
        return MirrorGrads(bearing * gradsPerRadian);
    }

 private:
    static constexpr std::size_t most = 5;

    void Take(const CoordinateFrame& frame, const GroupField& field) {
        switch (field.Key) {
            case 'N':
                number = field.Value;
                break;
            case 'X':
                if (count == most) {
                    isFull = true;
                } else {
                    points[count].East = frame.X(field.Value);
                    points[count].PointID.Assign(number);
                    ++count;
                }
                number = {};
                break;
            case 'Y':
                if (count > 0 && !isFull) points[count - 1].North = frame.Y(field.Value);
                break;
            case 'Z':
                if (count > 0 && !isFull) points[count - 1].Elevation = frame.Z(field.Value);
                break;
            default:
                break;
        }
    }

    std::array<PointRec, most> points{};
    std::size_t count = 0;
    bool isFull = false;  // a further point has begun, whose fields are passed over
    std::string_view number;
};

// Why an object stays out; nothing when it is imported.
std::optional<LeftOut> ReasonToLeave(const ImportRun& run, const CodeTable& table, std::int32_t row,
                                     GroupPoints& points) {
    if (row == 0 && (!run.withUnknowns || table.rows.empty())) return LeftOut::UnknownCode;
    if (points.Count() == 0) return LeftOut::NoCoordinates;
    if (run.selection.Excludes(points.First())) return LeftOut::OutsideRectangle;
    return {};
}

// Adds the first point of a point or symbol group, with the code and description of its row; `key` is the LKI code.
void ImportObject(const ImportRun& run, const CodeKey& key, GroupPoints& points, double direction) {
    const std::int32_t rowNo = LookupPointCode(key);
    if (const auto reason = ReasonToLeave(run, PointCodes(), rowNo, points)) {
        return TheAccount().Leave(ObjectKind::Point, *reason);
    }
    const PointCodeRow& row = PointCodes().rows[static_cast<std::size_t>(rowNo)];
    PointRec& point = points.First();
    point.SymDir = direction;
    point.Code = row.LiscadCode.View();
    point.Description = row.Description.View();
    AddImportedPoint(point);
    ++TheAccount()[ObjectKind::Point].kept;
}

// The coordinates of a placement group: those of a 04 group behind it, else its own.
GroupPoints ReadPlacementPoints(ImportRun& run) {
    if (run.records.NextIs("04")) run.records.ReadRecordGroup(0);
    return GroupPoints(run);
}

// Symbols of the codes S01 to S03 go by code and symbol type (positions 4-6 of the placement), when the table has a row
// for the two together.
CodeKey SymbolKey(const ImportRun& run) {
    const bool hasTypes = run.ObjectCode == "S01" || run.ObjectCode == "S02" || run.ObjectCode == "S03";
    if (hasTypes) {
        const CodeKey withType = KeyOf(run.ObjectCode + " " + run.placement.substr(3, 3));
        if (PointCodes().byLki.Find(PointCodes().rows, withType) != 0) return withType;
    }
    return KeyOf(run.ObjectCode);
}

// The text in a 06 record: behind "06A", the count and "T", so from column 7; for a place name from column 14.
std::string_view TextOf(std::string_view record, std::string_view objectCode) {
    constexpr std::size_t endCode = 62;
    if (objectCode == "Z01") return Trim(record.substr(13, endCode - 13));
    return record.substr(6, endCode - 6);
}

// A text's points go without a code of their own; two that are apart are joined by a line string of the text's code.
std::int32_t AddTextPoints(const GroupPoints& points, const TextCodeRow& row) {
    Drawing& drawing = TheDrawing();
    const std::int32_t first = drawing.Points.UpperBound() + 1;
    for (std::size_t i = 0; i < points.Count(); ++i) AddImportedPoint(points[i]);
    if (!points.HaveDirection()) return first;
    LineRec& line = drawing.Lines.Append();
    line.Code = row.LiscadCode.View();
    line.Description = row.Description.View();
    EdgeRec& edge = drawing.Edges.Append();
    edge.LineNo = drawing.Lines.UpperBound();
    edge.StartPt = first;
    edge.EndPt = first + 1;
    edge.LineType = u"STRAIGHT";
    return first;
}

}  // namespace

void ImportPointGroup(ImportRun& run) {
    ++TheAccount()[ObjectKind::Point].read;
    if (!ReadGeometryGroup(run, u"Punt,")) return TheAccount().Leave(ObjectKind::Point, LeftOut::MissingRecord);
    GroupPoints points(run);
    ImportObject(run, KeyOf(run.ObjectCode), points, points.Direction());
}

void ImportSymbolGroup(ImportRun& run) {
    ++TheAccount()[ObjectKind::Point].read;
    GroupPoints points = ReadPlacementPoints(run);
    double direction = points.Direction();
    // With this option P1-P2 points to the symbol's north, which is what its direction is counted from.
    if (frmKORVANDE().chkImportSymRotation && points.HaveDirection()) direction = NormalizeGrads(direction - 100);
    ImportObject(run, SymbolKey(run), points, direction);
}

void ImportTextGroup(ImportRun& run) {
    ObjectAccount& account = TheAccount();
    ++account[ObjectKind::TextObject].read;
    GroupPoints points = ReadPlacementPoints(run);
    if (!run.records.NextIs("06")) {
        LogFile().WriteError(u"Tekst, 06 record ontbreekt");
        ShowMessage(u"06 record ontbreekt", Icon::Critical);
        return account.Leave(ObjectKind::TextObject, LeftOut::MissingRecord);
    }
    const std::string_view record = run.records.ReadRecordGroup(2);
    const std::int32_t rowNo = LookupTextCode(KeyOf(run.ObjectCode));
    if (const auto reason = ReasonToLeave(run, TextCodes(), rowNo, points)) {
        return account.Leave(ObjectKind::TextObject, *reason);
    }
    const TextCodeRow& row = TextCodes().rows[static_cast<std::size_t>(rowNo)];
    const std::int32_t anchor = AddTextPoints(points, row);
    TextRec& text = TheDrawing().Texts.Append();
    text.Code = row.LiscadCode.View();
    text.AnchorPointNo = anchor;
    text.AnchorPosition =
        static_cast<std::int16_t>(TransposeAnchorPosition(std::string_view(run.placement).substr(0, 1)) - '0');
    text.HzDirection = static_cast<float>(points.Direction());
    text.Text.Assign(TextOf(record, run.ObjectCode));
    ++account[ObjectKind::TextObject].kept;
}

}  // namespace korvande
