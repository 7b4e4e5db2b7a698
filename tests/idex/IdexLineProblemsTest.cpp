#include "tests/idex/IdexTest.h"

// What the table of line strings tells of their numbers.
namespace korvande::testing {

namespace {

class IdexLineProblems : public IdexTest {
 protected:
    // Reads rows of which the first is line 9.
    std::string ReadLines(std::string_view rows) {
        return ReadTables("LINES (LineNo,Code)\n" + std::string(rows) + "END LINES\n");
    }
};

TEST_F(IdexLineProblems, ANumberThatComesTwiceIsToldForItsFirstRowIsLost) {
    ASSERT_EQ(ReadLines("3,\"A\";\n1,\"B\";\n3,\"C\";\n3,\"D\";\n"), "");
    EXPECT_EQ(Lost(), Told{"2 lijnstringnummers die al voorkwamen (de eerste op regel 11)"});
    EXPECT_FALSE(HasDamage());
}

TEST_F(IdexLineProblems, NumberZeroIsNoLineAndIsToldEachTime) {
    ASSERT_EQ(ReadLines("0,\"A\";\n0,\"B\";\n"), "");
    EXPECT_EQ(drawing.Lines.UpperBound(), 0);
    EXPECT_EQ(Lost(), Told{"2 lijnstrings met nummer 0, dat geen nummer is (de eerste op regel 9)"});
}

TEST_F(IdexLineProblems, GapsBetweenTheNumbersAreNoLoss) {
    ASSERT_EQ(ReadLines("1,\"A\";\n9,\"B\";\n"), "");
    EXPECT_TRUE(Lost().empty());
}

}  // namespace

}  // namespace korvande::testing
