#include "nensuf/PointNumbers.h"

#include <bit>
#include <cstdint>
#include <functional>
#include <vector>

#include "core/modKORVANDE.h"
#include "core/modMiniMax.h"
#include "core/modScreen.h"

namespace korvande {

namespace {

// The numbers met so far: a hash table of point indexes (0: free), at most half full.
class NumbersMet {
 public:
    explicit NumbersMet(const PagedArray<PointRec>& itsPoints)
        : points(itsPoints), slots(std::bit_ceil(static_cast<std::size_t>(points.UpperBound()) * 2 + 2), 0) {}

    // False when an earlier point has the same number.
    bool Add(std::int32_t index) {
        const auto& number = points[index].PointID();
        const std::size_t mask = slots.size() - 1;
        std::size_t slot = std::hash<TextView>()(number.View()) & mask;
        for (; slots[slot] != 0; slot = (slot + 1) & mask) {
            if (points[slots[slot]].PointID().View() == number.View()) return false;
        }
        slots[slot] = index;
        return true;
    }

 private:
    const PagedArray<PointRec>& points;
    std::vector<std::int32_t> slots;
};

}  // namespace

void CleanUpPointNumbers(Screen& screen, Drawing& drawing) {
    constexpr TextView noNumber = u"         ";
    auto& points = drawing.Points;
    screen.ShowStatus(u"Opschonen Puntnummers");
    BeginProgress(screen, MaxLong(points.UpperBound(), 1));
    NumbersMet met(points);
    for (std::int32_t index = 1; index <= points.UpperBound(); ++index) {
        StepProgress(screen, index);
        PointRec& point = points[index];
        if (point.PointID().View() > noNumber && !met.Add(index)) point.SetPointID(TextView());
    }
}

}  // namespace korvande
