#include "nensuf/ImportRun.h"

#include <bit>
#include <cmath>

#include "core/Numbers.h"
#include "core/RuntimeError.h"
#include "core/modMiniMax.h"
#include "core/modScreen.h"
#include "run/LogBook.h"

namespace korvande {

double CoordinateFrame::Metres(std::string_view value, double factor, double origin) {
    const double metres = factor * LeadingNumber(value) + origin;
    if (!std::isfinite(metres)) throw RuntimeError(errors::overflow);
    return metres;
}

std::int32_t AddImportedPoint(const PointRec& point) {
    Drawing& drawing = TheDrawing();
    PointRec& added = drawing.Points.Append();
    const std::int32_t index = drawing.Points.UpperBound();
    added = point;
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
