#include "nensuf/PointNumbers.h"

#include <bit>
#include <cstdint>
#include <vector>

#include "core/Hash.h"
#include "core/modKORVANDE.h"
#include "core/modMiniMax.h"
#include "core/modScreen.h"
#include "translation/Translation.h"

namespace korvande {

namespace {

// The numbers met so far: a hash table of point indexes (0: free), at most half full, in which no numbers can be chosen
// to meet.
class NumbersMet {
 public:
    explicit NumbersMet(const PagedArray<PointRec>& itsPoints)
        : points(itsPoints), slots(std::bit_ceil(static_cast<std::size_t>(points.UpperBound()) * 2 + 2), 0) {}

    // False when an earlier point has the same number.
    bool Add(std::int32_t index) {
        const auto& number = points[index].PointID();
        const std::size_t mask = slots.size() - 1;
        std::size_t slot = HashOfBytes(seed, number.characters.data(), sizeof(number.characters)) & mask;
        for (; slots[slot] != 0; slot = (slot + 1) & mask) {
            if (points[slots[slot]].PointID().View() == number.View()) return false;
        }
        slots[slot] = index;
        return true;
    }

 private:
    const PagedArray<PointRec>& points;
    std::uint64_t seed = NewHashSeed();
    std::vector<std::int32_t> slots;
};

}  // namespace

void CleanUpPointNumbers(Translation& translation) {
    constexpr TextView noNumber = u"         ";
    Screen& screen = translation.screen;
    auto& points = translation.drawing.Points;
    screen.ShowStatus(u"Opschonen Puntnummers");
    BeginProgress(screen, MaxLong(points.UpperBound(), 1));
    NumbersMet met(points);
    for (std::int32_t index = 1; index <= points.UpperBound(); ++index) {
        StepProgress(screen, index);
        PointRec& point = points[index];
        if (!(point.PointID().View() > noNumber) || met.Add(index)) continue;
        point.SetPointID(TextView());
        Tell(translation, {.kind = ProblemKind::NumberBlanked, .line = point.InputLine});
    }
}

}  // namespace korvande
