#include "core/RowSplit.h"

#include <gtest/gtest.h>

#include <random>
#include <string>
#include <vector>

#include "core/LineEnds.h"
#include "core/modParser.h"
#include "tests/support/GuardedBytes.h"

namespace korvande::testing {

namespace {

using Fields = std::vector<std::string_view>;

class RowSplitTest : public ::testing::Test {
 protected:
    // Text of such characters, up to a length, at the end of the memory.
    std::string_view Any(std::string_view alphabet, std::size_t longest) {
        std::string text(random() % (longest + 1), '\0');
        for (char& character : text) character = alphabet[random() % alphabet.size()];
        return bytes.AtEnd(text);
    }

    // A row is split as the parser splits it, into the very same places.
    static void ExpectSame(std::string_view row, char separator, char terminator, std::size_t maximum) {
        Fields found(maximum);
        Fields expected;
        const RowEnd end = SplitRow(row, separator, terminator, found);
        ASSERT_LE(end.count, maximum) << row;
        found.resize(end.count);
        const std::size_t expectedEnd =
            ParseFields(row, separator, terminator, Blanks::SpacesAndTabs, expected, maximum);
        ASSERT_EQ(end.terminator, expectedEnd) << row;
        ASSERT_EQ(end.hasBackslash, row.find('\\') != std::string_view::npos) << row;
        ASSERT_EQ(found, expected) << row;
        for (std::size_t i = 0; i < found.size(); ++i) {
            if (found[i].empty()) continue;
            ASSERT_EQ(found[i].data(), expected[i].data()) << row << i;
        }
    }

    std::mt19937 random{1};
    GuardedBytes bytes;
};

TEST_F(RowSplitTest, RowsAreSplitAsTheParserSplitsThem) {
    const std::string_view rows[] = {
        "",
        ";",
        "  \t ",
        "1",
        "1;",
        R"(1,"P1",134330.4550    ,457960.2090    ,1.8480         ,"","",0.0000   ;)",
        "\t1 ,\"P,1\" , 2 ; 3",
        R"("a""b","","""",c)",
        R"("a"b,c"d",e)",
        "\"a,b;c\",d",
        "\"a,b",
        "a,\"b",
        "a,b,c,d,e,f,g,h,i,j",
        ",,;,",
        "a\\\"b,c;",
    };
    for (const std::string_view row : rows) {
        for (const std::size_t maximum : {1U, 2U, 9U}) ExpectSame(bytes.AtEnd(row), ',', ';', maximum);
    }
}

TEST_F(RowSplitTest, AnyRowIsSplitAsTheParserSplitsIt) {
    for (int round = 0; round < 200'000; ++round) {
        const std::size_t longest = round % 3 == 0 ? 300 : 20;
        const std::string_view alphabet = round % 2 == 0 ? "ab,\"\"; \t\\" : "0123456789.,,\"\" ";
        ExpectSame(Any(alphabet, longest), ',', ';', 1 + random() % 9);
    }
}

TEST_F(RowSplitTest, AnyCharactersSeparateAndEnd) {
    constexpr std::string_view characters = "a,;\" \t\\";
    for (int round = 0; round < 50'000; ++round) {
        const char separator = characters[random() % characters.size()];
        const char terminator = characters[random() % characters.size()];
        ExpectSame(Any("ab,\"\"; \t\\", 40), separator, terminator, 1 + random() % 9);
    }
}

TEST_F(RowSplitTest, MarksAreThoseThatAreFoundByteByByte) {
    for (int round = 0; round < 20'000; ++round) {
        const std::string_view row = Any(round % 2 == 0 ? "ab,\"; \t\\" : "abcdefghijklmnop,", RowMarks::most);
        RowMarks marks;
        RowMarks plain;
        MarkRow(row, ',', ';', marks);
        MarkRowPlainly(row, ',', ';', plain);
        ASSERT_EQ(marks.special, plain.special) << row;
        ASSERT_EQ(marks.written, plain.written) << row;
        ASSERT_EQ(marks.hasBackslash, plain.hasBackslash) << row;
    }
}

TEST_F(RowSplitTest, LineEndsAreThoseThatAreFoundByteByByte) {
    for (int round = 0; round < 50'000; ++round) {
        const std::string_view text =
            Any(round % 2 == 0 ? "abcdefghijklmnopq\n" : "abcdefghijklmnopqrstuvwxyzabcdef\r", 100);
        const char* const end = text.data() + text.size();
        ASSERT_EQ(FindLineEnd(text.data(), end), FindLineEndPlainly(text.data(), end)) << text;
    }
}

}  // namespace

}  // namespace korvande::testing
