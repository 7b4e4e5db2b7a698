#include "tests/fuzz/Mutators.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <set>

#include "tests/fuzz/Lines.h"
#include "tests/fuzz/Targets.h"
#include "tests/fuzz/Workplace.h"
#include "tests/support/TestFiles.h"

// What becomes of inputs that are changed by who knows their format.
namespace korvande::testing {

namespace {

using fuzz::Lines;
using fuzz::LinesOf;

constexpr unsigned seeds = 500;
constexpr std::size_t room = 1 << 16;

std::string Sample(const std::string& name) {
    return FileBytes(FromUtf8(std::string(KORVANDE_SOURCE_DIR) + "/" + name));
}

std::string Idex() { return Sample("tests/golden/punten.idx"); }
std::string Exchange() { return Sample("samples/kruispunt.sfn").substr(0, 60 * 66); }
std::string Table() { return Sample("tests/golden/klein.nst"); }

TEST(Mutators, AChangedRecordKeepsTheColumnsOfEveryLine) {
    const std::string file = Exchange();
    for (unsigned seed = 0; seed < seeds; ++seed) {
        for (const std::string& line : LinesOf(fuzz::ChangeRecords(file, seed, room))) {
            ASSERT_EQ(line.size(), 66U) << seed;
            ASSERT_TRUE(line.ends_with("\r\n")) << seed;
        }
    }
}

TEST(Mutators, NowAndThenARecordIsBroken) {
    const std::string file = Exchange();
    unsigned broken = 0;
    for (unsigned seed = 0; seed < seeds; ++seed) {
        const Lines lines = LinesOf(fuzz::MutateExchange(file, seed, room));
        if (std::any_of(lines.begin(), lines.end(), [](const auto& line) { return line.size() != 66; })) ++broken;
    }
    EXPECT_GT(broken, seeds / 20);
    EXPECT_LT(broken, seeds / 4);
}

TEST(Mutators, MostChangesOfAnIdexFileLeaveItsTablesAsTheyAre) {
    const std::string file = Idex();
    ASSERT_NE(file.find("POINTS ("), std::string::npos);
    unsigned whole = 0;
    for (unsigned seed = 0; seed < seeds; ++seed) {
        const std::string changed = fuzz::MutateIdex(file, seed, room);
        const bool isWhole = changed.find("END HEADER") != std::string::npos &&
                             changed.find("POINTS (") != std::string::npos &&
                             changed.find("END POINTS") != std::string::npos;
        if (isWhole) ++whole;
    }
    EXPECT_GT(whole, seeds * 6 / 10);
}

TEST(Mutators, AChangedControlTableMostlyKeepsItsSections) {
    const std::string file = Table();
    unsigned whole = 0;
    for (unsigned seed = 0; seed < seeds; ++seed) {
        const std::string changed = fuzz::MutateTable(file, seed, room);
        const bool isWhole =
            changed.find("[Points]") != std::string::npos && changed.find("[End]") != std::string::npos;
        if (isWhole) ++whole;
    }
    EXPECT_GT(whole, seeds * 6 / 10);
}

TEST(Mutators, OfARunEitherTheTableOrTheDrawingChanges) {
    const std::string table = Table().substr(0, fuzz::EndOfTable(Table()));
    const std::string drawing = Idex();
    const std::string input = "@" + table + drawing;
    std::set<std::string> changedParts;
    for (unsigned seed = 0; seed < seeds; ++seed) {
        const std::string changed = fuzz::MutateRun(input, seed, room).substr(1);
        const bool hasTable = changed.starts_with(table);
        const bool hasDrawing = changed.ends_with(drawing);
        ASSERT_TRUE(hasTable || hasDrawing) << seed;
        if (!hasTable) changedParts.insert("table");
        if (!hasDrawing) changedParts.insert("drawing");
    }
    EXPECT_EQ(changedParts.size(), 2U);
}

TEST(Mutators, CallsKeepTheDrawingBehindThemOrTheDrawingChanges) {
    const std::string drawing = Exchange();
    const std::string input = "\x01\x02\n" + drawing;
    for (unsigned seed = 0; seed < seeds; ++seed) {
        const std::string changed = fuzz::MutateCalls(input, seed, room);
        ASSERT_TRUE(changed.ends_with("\n" + drawing) || changed.starts_with("\x01\x02\n")) << seed;
    }
}

TEST(Mutators, CrossedLinesAreLinesOfBoth) {
    const Lines lines = LinesOf(Exchange());
    const Lines others = LinesOf(Table());
    std::set<std::string> known(lines.begin(), lines.end());
    known.insert(others.begin(), others.end());
    for (unsigned seed = 0; seed < seeds; ++seed) {
        const Lines crossed = LinesOf(fuzz::CrossLines(Exchange(), Table(), seed, room));
        ASSERT_GT(crossed.size(), lines.size());
        for (const std::string& line : crossed) ASSERT_TRUE(known.contains(line)) << seed << line;
    }
}

// Also of what is none of the format, or nothing at all.
TEST(Mutators, NothingGrowsBeyondTheLimitAndASeedAlwaysGivesTheSame) {
    const std::string inputs[] = {"",     "\n",       "0",     "[End]\r\n",           "(\"",
                                  Idex(), Exchange(), Table(), "B" + Table() + Idex()};
    for (const fuzz::Target& target : fuzz::Targets()) {
        if (target.mutate == nullptr) continue;
        std::set<std::string> results;
        for (unsigned seed = 0; seed < 300; ++seed) {
            const std::string& input = inputs[seed % std::size(inputs)];
            const std::size_t limit = seed % 7 == 0 ? seed % 64 : input.size() + seed;
            const std::string changed = target.mutate(input, seed, limit);
            ASSERT_LE(changed.size(), limit) << target.name << seed;
            ASSERT_EQ(changed, target.mutate(input, seed, limit)) << target.name << seed;
            ASSERT_LE(fuzz::CrossLines(input, inputs[seed % 5], seed, limit).size(), limit);
            results.insert(changed);
        }
        EXPECT_GT(results.size(), 100U) << target.name;
    }
}

TEST(Mutators, ABlockIsNowAndThenRepeatedUpToTheLimit) {
    const std::string file = Exchange();
    std::size_t longest = 0;
    for (unsigned seed = 0; seed < seeds; ++seed) {
        longest = std::max(longest, fuzz::ChangeRecords(file, seed, room).size());
    }
    EXPECT_GT(longest, 5 * file.size());
}

}  // namespace

}  // namespace korvande::testing
