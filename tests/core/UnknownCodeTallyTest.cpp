#include "core/UnknownCodeTally.h"

#include <gtest/gtest.h>

#include <string>

#include "tests/core/Allocations.h"

namespace korvande::testing {

namespace {

TEST(UnknownCodeTally, ItBeginsEmpty) { EXPECT_TRUE(UnknownCodeTally().Entries().empty()); }

TEST(UnknownCodeTally, UnknownCodesAreCountedInOrderOfFirstOccurrence) {
    UnknownCodeTally tally;
    for (const TextView code : {u"LB02", u"PA01", u"LB02", u"TC03", u"LB02", u"PA01"}) {
        CountUnknownCode(tally, MakeFixedText<8>(code));
    }
    const auto& entries = tally.Entries();
    ASSERT_EQ(entries.size(), 3U);
    EXPECT_EQ(entries[0].Code, MakeFixedText<8>(u"LB02"));
    EXPECT_EQ(entries[0].Count, 3);
    EXPECT_EQ(entries[1].Code, MakeFixedText<8>(u"PA01"));
    EXPECT_EQ(entries[1].Count, 2);
    EXPECT_EQ(entries[2].Code, MakeFixedText<8>(u"TC03"));
    EXPECT_EQ(entries[2].Count, 1);
}

TEST(UnknownCodeTally, CodesAreComparedExactly) {
    UnknownCodeTally tally;
    CountUnknownCode(tally, MakeFixedText<8>(u"PA01"));
    CountUnknownCode(tally, MakeFixedText<8>(u"Pa01"));
    CountUnknownCode(tally, MakeFixedText<8>(u"PA01   X"));
    FixedText<8> neverFilled = MakeFixedText<8>(u"P");
    neverFilled.characters.back() = u'\0';
    CountUnknownCode(tally, neverFilled);
    CountUnknownCode(tally, MakeFixedText<8>(u"P"));
    EXPECT_EQ(tally.Entries().size(), 5U);
}

TEST(UnknownCodeTally, SortedCodesAreStillFound) {
    UnknownCodeTally tally;
    for (const TextView code : {u"TC03", u"LB02", u"PA01", u"LB01", u"TC03"}) {
        CountUnknownCode(tally, MakeFixedText<8>(code));
    }
    tally.Sort();
    CountUnknownCode(tally, MakeFixedText<8>(u"PA01"));
    CountUnknownCode(tally, MakeFixedText<8>(u"TC03"));
    std::string text;
    for (const auto& [code, count] : tally.Entries()) {
        text += ToUtf8(Concat(code.TrimmedRight(), u"=", count, u" "));
    }
    EXPECT_EQ(text, "LB01=1 LB02=1 PA01=2 TC03=3 ");
}

TEST(UnknownCodeTally, AfterAResetCountingBeginsAgain) {
    UnknownCodeTally tally;
    CountUnknownCode(tally, MakeFixedText<8>(u"PA01"));
    tally.Reset();
    CountUnknownCode(tally, MakeFixedText<8>(u"TB02"));
    CountUnknownCode(tally, MakeFixedText<8>(u"PA01"));
    const auto& entries = tally.Entries();
    ASSERT_EQ(entries.size(), 2U);
    EXPECT_EQ(entries[0].Code, MakeFixedText<8>(u"TB02"));
    EXPECT_EQ(entries[1].Count, 1);
}

TEST(UnknownCodeTally, CountingACodeThatIsThereTakesNoHeap) {
    UnknownCodeTally tally;
    const auto code = MakeFixedText<8>(u"LABCDEFG");
    CountUnknownCode(tally, code);
    EXPECT_EQ(AllocationsOf([&] { CountUnknownCode(tally, code); }).blocks, 0U);
    EXPECT_EQ(tally.Entries()[0].Count, 2);
}

}  // namespace

}  // namespace korvande::testing
