#include "nensuf/ImportRun.h"

#include <bit>

#include "core/Numbers.h"
#include "core/modMiniMax.h"
#include "core/modScreen.h"
#include "nensuf/Overflow.h"
#include "run/LogBook.h"

namespace korvande {

double CoordinateFrame::Metres(std::string_view value, double factor, double origin) {
    return WithoutOverflow(factor * LeadingNumber(value) + origin);
}

namespace {

// A 03 group: M holds the code (nine characters), G the kind of geometry in its first two.
void ReadGeometryFields(ImportRun& run, GroupObjects& objects) {
    run.afterGeometry = false;
    for (const GroupField& field : run.records.GroupFields()) {
        if (field.Key == 'M') {
            objects.ObjectCode = Trim(field.Value);
        } else if (field.Key == 'G') {
            const double kind = LeadingNumber(field.Value.substr(0, 2));
            objects.isPoint = objects.isPoint || kind == 1;
            objects.isLine = objects.isLine || kind == 3 || kind == 5 || kind == 12;
            objects.isArc = objects.isArc || kind == 4 || kind == 13;
            run.afterGeometry = true;
        }
    }
    objects.isPart = !run.afterGeometry && run.records.NextIs("05");
}

// A 05 group: Q or K holds the code, F the placement, whose third character tells texts from symbols.
void ReadPlacementFields(ImportRun& run, GroupObjects& objects) {
    for (const GroupField& field : run.records.GroupFields()) {
        if (field.Key == 'Q' || field.Key == 'K') {
            objects.ObjectCode = Trim(field.Value);
        } else if (field.Key == 'F') {
            objects.placement = field.Value;
            objects.isText = objects.isText || field.Value[2] == '1';
            objects.isSymbol = objects.isSymbol || field.Value[2] == '2';
        }
    }
    const bool hasCode = !objects.ObjectCode.empty();
    objects.isPart = run.afterGeometry && !hasCode && !objects.isText;
    if (hasCode) run.afterGeometry = false;
}

}  // namespace

GroupObjects ReadObjects(ImportRun& run) {
    GroupObjects objects;
    if (run.records.RecordType() == "03") {
        ReadGeometryFields(run, objects);
    } else {
        ReadPlacementFields(run, objects);
    }
    return objects;
}

void LeaveObjects(const GroupObjects& objects, LeftOut reason) {
    if (objects.isPart) return;
    const auto leave = [reason](ObjectKind kind) {
        ++TheAccount()[kind].read;
        TheAccount().Leave(kind, kind == ObjectKind::Other ? LeftOut::NotTranslated : reason);
    };
    const bool isPointOrSymbol = objects.isPoint || objects.isSymbol;
    if (isPointOrSymbol) leave(ObjectKind::Point);
    if (objects.isLine) leave(ObjectKind::LineString);
    if (objects.isArc) leave(ObjectKind::Arc);
    if (objects.isText) leave(ObjectKind::TextObject);
    if (!isPointOrSymbol && !objects.isLine && !objects.isArc && !objects.isText) leave(ObjectKind::Other);
}

void SettleObject(ObjectKind kind, std::optional<LeftOut> reason) {
    if (reason) {
        TheAccount().Leave(kind, *reason);
    } else {
        ++TheAccount()[kind].kept;
    }
}

std::int32_t AddImportedPoint(const PointRec& point) {
    Drawing& drawing = TheDrawing();
    PointRec& added = drawing.Points.Append(point);
    const std::int32_t index = drawing.Points.UpperBound();
    added.PointNo = index;
    drawing.PointIndex.Set(index, index);
    if (added.Code.NeverFilled()) {
        added.Code = u"100";
        added.Description = u"Onbekend Object";
    }
    return index;
}

bool ReadGeometryGroup(ImportRun& run, TextView kind) {
    run.records.ReadRecordGroup(0);
    if (run.records.RecordType() == "04") return true;
    LogFile().WriteError(Concat(kind, u" 04 record ontbreekt"));
    ShowMessage(u"04 record ontbreekt", Icon::Critical);
    const std::string_view lost = run.records.RecordType();
    if (lost == "03" || lost == "05") LeaveObjects(ReadObjects(run), LeftOut::MissingRecord);
    return false;
}

CodeKey KeyOf(std::string_view code) {
    CodeKey key;
    key.Assign(code);
    return key;
}

namespace {

// The numbers met so far: a hash table of point indexes (0: free), at most half full.
class NumbersMet {
 public:
    explicit NumbersMet(std::int32_t points) : slots(std::bit_ceil(static_cast<std::size_t>(points) * 2 + 2), 0) {}

    // False when an earlier point has the same number.
    bool Add(std::int32_t index) {
        const auto& points = TheDrawing().Points;
        const TextView number = points[index].PointID.View();
        const std::size_t mask = slots.size() - 1;
        std::size_t slot = std::hash<TextView>()(number) & mask;
        for (; slots[slot] != 0; slot = (slot + 1) & mask) {
            if (points[slots[slot]].PointID.View() == number) return false;
        }
        slots[slot] = index;
        return true;
    }

 private:
    std::vector<std::int32_t> slots;
};

}  // namespace

void CleanUpPointNumbers() {
    constexpr TextView noNumber = u"         ";
    auto& points = TheDrawing().Points;
    ShowStatus(u"Opschonen Puntnummers");
    BeginProgress(MaxLong(points.UpperBound(), 1));
    NumbersMet met(points.UpperBound());
    for (std::int32_t index = 1; index <= points.UpperBound(); ++index) {
        StepProgress(index);
        FixedText<9>& number = points[index].PointID;
        if (number.View() > noNumber && !met.Add(index)) number = TextView();
    }
}

}  // namespace korvande
