#include "core/Hash.h"

#include <gtest/gtest.h>

#include <array>
#include <set>

namespace korvande::testing {

namespace {

using Key = std::array<char16_t, 9>;

std::uint64_t HashOf(std::uint64_t seed, const Key& key) { return HashOfBytes(seed, key.data(), sizeof(key)); }

TEST(Hash, EachTableHasASeedOfItsOwn) {
    std::set<std::uint64_t> seeds;
    for (int i = 0; i < 100; ++i) seeds.insert(NewHashSeed());
    EXPECT_GT(seeds.size(), 90U);
}

TEST(Hash, NumbersInAnyStepsSpreadOverTheLowBits) {
    constexpr std::uint64_t places = 4096;
    for (const std::uint64_t step : {1ULL, 16ULL, 4096ULL, 65536ULL, 0x100000000ULL, 0x9E3779B97F4A7C15ULL}) {
        std::set<std::uint64_t> taken;
        for (std::uint64_t i = 0; i < places; ++i) taken.insert(Mixed(i * step) & (places - 1));
        // By chance about 63 in 100 are taken.
        EXPECT_GT(taken.size(), places / 2) << step;
    }
}

TEST(Hash, EveryByteOfAKeyCounts) {
    const Key blank = {u' ', u' ', u' ', u' ', u' ', u' ', u' ', u' ', u' '};
    for (std::size_t place = 0; place < blank.size(); ++place) {
        Key other = blank;
        other[place] = u'1';
        EXPECT_NE(HashOf(7, other), HashOf(7, blank)) << place;
    }
}

TEST(Hash, KeysThatMeetUnderOneSeedDoNotUnderAnother) {
    constexpr std::uint64_t places = 1024;
    std::set<std::uint64_t> elsewhere;
    int met = 0;
    for (char16_t number = 0; number < 0xFFFF; ++number) {
        const Key key = {number, u'1', u' ', u' ', u' ', u' ', u' ', u' ', u' '};
        if ((HashOf(1, key) & (places - 1)) != 0) continue;
        ++met;
        elsewhere.insert(HashOf(2, key) & (places - 1));
    }
    ASSERT_GT(met, 30);
    EXPECT_GT(elsewhere.size(), static_cast<std::size_t>(met) / 2);
}

}  // namespace

}  // namespace korvande::testing
