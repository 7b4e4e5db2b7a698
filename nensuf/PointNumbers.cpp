#include "nensuf/PointNumbers.h"

#include <bit>
#include <cstdint>
#include <string_view>
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
    explicit NumbersMet(const PagedArray<PointRec>& itsPoints) : points(itsPoints) {}

    // False when an earlier point has the same number.
    bool Add(std::int32_t index) {
        // Most drawings that come this way have no numbers at all.
        if (slots.empty()) slots.assign(std::bit_ceil(static_cast<std::size_t>(points.UpperBound()) * 2 + 2), 0);
        const auto& number = points[index].PointIDBytes();
        const std::size_t mask = slots.size() - 1;
        std::size_t slot = HashOfBytes(seed, number.bytes.data(), number.bytes.size()) & mask;
        for (; slots[slot] != 0; slot = (slot + 1) & mask) {
            if (points[slots[slot]].PointIDBytes() == number) return false;
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
    constexpr std::string_view noNumber = "         ";
    Screen& screen = translation.screen;
    auto& points = translation.drawing.Points;
    screen.ShowStatus(u"Opschonen Puntnummers");
    BeginProgress(screen, MaxLong(points.UpperBound(), 1));
    NumbersMet met(points);
    for (std::int32_t index = 1; index <= points.UpperBound(); ++index) {
        StepProgress(screen, index);
        PointRec& point = points[index];
        if (!(point.PointIDBytes().View() > noNumber) || met.Add(index)) continue;
        point.SetPointID(TextView());
        Tell(translation, {.kind = ProblemKind::NumberBlanked, .line = point.InputLine});
    }
}

}  // namespace korvande
