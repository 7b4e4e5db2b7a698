#include "core/SparseIndex.h"

#include <gtest/gtest.h>

#include <limits>
#include <map>
#include <random>

#include "tests/core/Allocations.h"
#include "tests/core/ErrorOf.h"

namespace korvande::testing {

namespace {

constexpr std::int32_t largest = std::numeric_limits<std::int32_t>::max();

TEST(SparseIndex, AnEmptyOneHasElementZeroOnly) {
    const SparseIndex index;
    EXPECT_EQ(index.UpperBound(), 0);
    EXPECT_EQ(index[0], 0);
    EXPECT_EQ(ErrorOf([&] { static_cast<void>(index[1]); }), 9);
}

TEST(SparseIndex, APlaceIsSetLikeItsElement) {
    SparseIndex index;
    std::int32_t& place = index.Place(40);
    EXPECT_EQ(place, 0);
    EXPECT_EQ(index.UpperBound(), 40);
    place = 7;
    EXPECT_EQ(index[40], 7);
    EXPECT_EQ(index.Place(40), 7);
    EXPECT_EQ(ErrorOf([&] { index.Place(-1); }), 9);
}

TEST(SparseIndex, NumbersChosenToMeetInATableTakeNoMoreStepsThanAnyOthers) {
    constexpr std::int32_t blocks = 50'000;
    // Blocks whose keys, multiplied, agree in the middle bits: they would meet in a table that only multiplies.
    SparseIndex chosen;
    std::int32_t found = 0;
    for (std::int64_t key = 0; found != blocks; ++key) {
        if (((static_cast<std::uint64_t>(key) * 0x9E3779B97F4A7C15ULL) >> 32 & 0x7F0) != 0) continue;
        chosen.Set(static_cast<std::int32_t>(key * 16), ++found);
    }
    SparseIndex usual;
    for (std::int32_t block = 0; block != blocks; ++block) usual.Set(block * 16, 1);
    // A table at most three quarters full takes two or three steps for each.
    EXPECT_LT(usual.StepsInTable(), 4 * blocks);
    EXPECT_LT(chosen.StepsInTable(), 4 * blocks);
}

TEST(SparseIndex, ALowerNumberLeavesTheSizeAndBothAreFound) {
    SparseIndex index;
    index.Set(500, 1);
    index.Set(20, 2);
    EXPECT_EQ(index.UpperBound(), 500);
    EXPECT_EQ(index[500], 1);
    EXPECT_EQ(index[20], 2);
    EXPECT_EQ(index[499], 0);
    EXPECT_EQ(index[0], 0);
}

TEST(SparseIndex, ANumberOutsideTheArrayIsError9) {
    SparseIndex index;
    index.Set(500, 1);
    EXPECT_EQ(ErrorOf([&] { static_cast<void>(index[501]); }), 9);
    EXPECT_EQ(ErrorOf([&] { static_cast<void>(index[-1]); }), 9);
    EXPECT_EQ(ErrorOf([&] { index.Set(-1, 1); }), 9);
    EXPECT_EQ(index.UpperBound(), 500);
}

TEST(SparseIndex, LookingForANumberOutsideTheArrayGivesZero) {
    SparseIndex index;
    index.Set(3, 8);
    EXPECT_EQ(index.Find(3), 8);
    EXPECT_EQ(index.Find(4), 0);
    EXPECT_EQ(index.Find(1'000'000), 0);
    EXPECT_EQ(index.Find(-1), 0);
}

TEST(SparseIndex, TheLargestNumberOf32BitsIsTaken) {
    SparseIndex index;
    index.Set(largest, 1);
    index.Set(0, 2);
    EXPECT_EQ(index.UpperBound(), largest);
    EXPECT_EQ(index[largest], 1);
    EXPECT_EQ(index[largest - 1], 0);
    EXPECT_EQ(index[0], 2);
}

TEST(SparseIndex, AHighNumberCostsNoMoreMemoryThanALowOne) {
    const auto bytesFor = [](std::int32_t first, int count) {
        return AllocationsOf([=] {
                   SparseIndex index;
                   for (int i = 0; i < count; ++i) index.Set(first + i * 16, i + 1);
               })
            .bytes;
    };
    EXPECT_GT(bytesFor(1, 1), 0U);
    EXPECT_LT(bytesFor(1, 1), 1'000U);
    EXPECT_EQ(bytesFor(2'000'000'000, 1), bytesFor(1, 1));
    EXPECT_EQ(bytesFor(2'000'000'000, 10'000), bytesFor(1, 10'000));
}

TEST(SparseIndex, ScatteredNumbersAreFoundAsAMapFindsThem) {
    std::mt19937 random(1);
    SparseIndex index;
    std::map<std::int32_t, std::int32_t> map;
    const auto number = [&]() -> std::int32_t {
        // Anywhere, close together, and a power of two apart, where a poor hash would put all in one place.
        switch (random() % 3) {
            case 0:
                return static_cast<std::int32_t>(random() >> 1);
            case 1:
                return static_cast<std::int32_t>(random() % 50'000);
            default:
                return static_cast<std::int32_t>((random() % 30'000) << 16);
        }
    };
    for (int i = 1; i <= 200'000; ++i) {
        const std::int32_t where = number();
        index.Set(where, i);
        map[where] = i;
        const std::int32_t other = number();
        const auto found = map.find(other);
        ASSERT_EQ(index.Find(other), found == map.end() ? 0 : found->second) << other;
    }
    for (const auto& [where, value] : map) ASSERT_EQ(index[where], value) << where;
    EXPECT_EQ(index.UpperBound(), map.rbegin()->first);
}

TEST(SparseIndex, ResettingEmptiesIt) {
    SparseIndex index;
    for (int i = 0; i < 1'000; ++i) index.Set(i, i);
    index.Reset();
    EXPECT_EQ(index.UpperBound(), 0);
    EXPECT_EQ(index.Find(500), 0);
    index.Set(2, 3);
    EXPECT_EQ(index[2], 3);
    EXPECT_EQ(index[1], 0);
}

}  // namespace

}  // namespace korvande::testing
