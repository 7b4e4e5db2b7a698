#include "core/modParser.h"

#include <gtest/gtest.h>

#include <random>
#include <string>

#include "tests/core/Allocations.h"

namespace korvande::testing {

namespace {

using Fields = std::vector<std::string>;

Fields Split(std::string_view line, Blanks blanks = Blanks::Spaces, std::size_t maximum = 1000, char separator = ',',
             char terminator = ';') {
    std::vector<std::string_view> fields = {"left over"};
    ParseFields(line, separator, terminator, blanks, fields, maximum);
    return {fields.begin(), fields.end()};
}

TEST(ParseFields, ALineIsSplitAtTheSeparatorAndTrimmed) {
    EXPECT_EQ(Split(" 1, \"A\" ,2.5 ,  x y ;"), (Fields{"1", "\"A\"", "2.5", "x y"}));
    EXPECT_EQ(Split("one"), (Fields{"one"}));
}

TEST(ParseFields, TheResultIsThePlaceOfTheTerminatorInTheLine) {
    const auto placeIn = [](std::string_view line, char terminator) {
        std::vector<std::string_view> fields;
        return ParseFields(line, ',', terminator, Blanks::SpacesAndTabs, fields, 2);
    };
    EXPECT_EQ(placeIn("1,2;", ';'), 3U);
    EXPECT_EQ(placeIn("  1,2,3 ; 4; ", ';'), 8U);
    EXPECT_EQ(placeIn(" ;", ';'), 1U);
    EXPECT_EQ(placeIn("  1 2", ' '), 3U);
    EXPECT_EQ(placeIn("1,2", ';'), std::string_view::npos);
}

TEST(ParseFields, AnEmptyLineHasNoFields) {
    EXPECT_EQ(Split(""), Fields());
    EXPECT_EQ(Split("    "), Fields());
    EXPECT_EQ(Split(";"), Fields());
    EXPECT_EQ(Split("   ; a,b"), Fields());
}

TEST(ParseFields, EmptyFieldsCount) {
    EXPECT_EQ(Split(",a,,b"), (Fields{"", "a", "", "b"}));
    EXPECT_EQ(Split(" , , ;"), (Fields{"", "", ""}));
}

TEST(ParseFields, ASeparatorAtTheEndMakesOneMoreEmptyField) {
    EXPECT_EQ(Split("a,b,"), (Fields{"a", "b", ""}));
    EXPECT_EQ(Split("a,b,  ;"), (Fields{"a", "b", ""}));
    EXPECT_EQ(Split(","), (Fields{"", ""}));
}

TEST(ParseFields, TheLineEndsBeforeItsFirstTerminator) {
    EXPECT_EQ(Split("a,b;c,d;"), (Fields{"a", "b"}));
    EXPECT_EQ(Split("\"a;b\",c"), (Fields{"\"a"}));  // also between quotes
}

TEST(ParseFields, ASeparatorBetweenQuotesIsText) {
    EXPECT_EQ(Split("1,\"A,B\",2;"), (Fields{"1", "\"A,B\"", "2"}));
    EXPECT_EQ(Split("\"A,B\""), (Fields{"\"A,B\""}));
    EXPECT_EQ(Split("\",\",\",\""), (Fields{"\",\"", "\",\""}));
}

TEST(ParseFields, ADoubledQuoteDoesNotClose) {
    EXPECT_EQ(Split(R"("a""b,c",d)"), (Fields{R"("a""b,c")", "d"}));
    EXPECT_EQ(Split(R"("a"","b",c)"), (Fields{R"("a"","b")", "c"}));
    EXPECT_EQ(Split(R"("""",a)"), (Fields{R"("""")", "a"}));
}

TEST(ParseFields, TwoQuotesAreAnEmptyText) {
    EXPECT_EQ(Split(R"("","",a)"), (Fields{"\"\"", "\"\"", "a"}));
    EXPECT_EQ(Split(R"("")"), (Fields{"\"\""}));
}

TEST(ParseFields, TheSeparatorIsLookedForBehindTheClosingQuote) {
    EXPECT_EQ(Split(R"("a"b , c)"), (Fields{R"("a"b)", "c"}));
    EXPECT_EQ(Split(R"("a" "b,c",d)"), (Fields{R"("a" "b)", "c\"", "d"}));
}

TEST(ParseFields, AQuoteWithoutItsClosingOneIsAnOrdinaryCharacter) {
    EXPECT_EQ(Split("\"a,b,c"), (Fields{"\"a", "b", "c"}));
    EXPECT_EQ(Split("x,\""), (Fields{"x", "\""}));
    EXPECT_EQ(Split(R"("""a,b)"), (Fields{R"("""a)", "b"}));  // only doubled ones follow
}

TEST(ParseFields, AQuoteInsideAFieldIsText) { EXPECT_EQ(Split(R"(5" pijp,4",x)"), (Fields{R"(5" pijp)", "4\"", "x"})); }

TEST(ParseFields, TabsAreBlanksOnlyWhereAsked) {
    EXPECT_EQ(Split("\ta\t,\tb\t"), (Fields{"\ta\t", "\tb\t"}));
    EXPECT_EQ(Split("\ta \t,\t b\t", Blanks::SpacesAndTabs), (Fields{"a", "b"}));
    EXPECT_EQ(Split(" \t ; x", Blanks::SpacesAndTabs), Fields());
    EXPECT_EQ(Split(" \t", Blanks::Spaces), (Fields{"\t"}));
    EXPECT_EQ(Split("\t\"a,b\",c", Blanks::SpacesAndTabs), (Fields{"\"a,b\"", "c"}));
    EXPECT_EQ(Split("\t\"a,b\",c", Blanks::Spaces), (Fields{"\t\"a", "b\"", "c"}));
}

TEST(ParseFields, NoMoreThanTheMaximumIsTaken) {
    EXPECT_EQ(Split("a,b,c", Blanks::Spaces, 2), (Fields{"a", "b"}));
    EXPECT_EQ(Split("a,b,c", Blanks::Spaces, 3), (Fields{"a", "b", "c"}));
    EXPECT_EQ(Split("a,b,", Blanks::Spaces, 2), (Fields{"a", "b"}));
    EXPECT_EQ(Split("a,b", Blanks::Spaces, 0), Fields());
}

TEST(ParseFields, SeparatorAndTerminatorAreAnyCharacters) {
    EXPECT_EQ(Split("1;2,5;\"a;b\"#rest", Blanks::Spaces, 1000, ';', '#'), (Fields{"1", "2,5", "\"a;b\""}));
    EXPECT_EQ(Split("a b  c", Blanks::Spaces, 1000, ' ', ';'), (Fields{"a", "b", "c"}));
}

TEST(ParseFields, FieldsAreViewsOnTheLineAndTakeNoHeap) {
    const std::string line = R"(12,"naam",123456.789,498765.432,1.25,"A01","omschrijving van een punt",0.0000;)";
    std::vector<std::string_view> fields;
    fields.reserve(8);
    EXPECT_EQ(AllocationsOf([&] { ParseFields(line, ',', ';', Blanks::Spaces, fields); }).blocks, 0U);
    ASSERT_EQ(fields.size(), 8U);
    for (const std::string_view field : fields) {
        EXPECT_GE(field.data(), line.data());
        EXPECT_LE(field.data() + field.size(), line.data() + line.size());
    }
}

// The rules once more, step by step, on copies of the text.
std::string Trimmed(std::string text) {
    while (!text.empty() && text.back() == ' ') text.pop_back();
    while (!text.empty() && text.front() == ' ') text.erase(0, 1);
    return text;
}

Fields SplitStepByStep(const std::string& line) {
    std::string rest = Trimmed(line);
    if (rest.find(';') != std::string::npos) rest.erase(rest.find(';'));
    Fields fields;
    if (rest.empty()) return fields;
    while (true) {
        std::size_t from = 0;
        if (rest[0] == '"') {
            from = 1;
            for (std::size_t i = 1; i < rest.size(); ++i) {
                if (rest[i] != '"') continue;
                if (i + 1 < rest.size() && rest[i + 1] == '"') {
                    ++i;
                    continue;
                }
                from = i + 1;
                break;
            }
        }
        const std::size_t comma = rest.find(',', from);
        if (comma == std::string::npos) {
            fields.push_back(Trimmed(rest));
            return fields;
        }
        fields.push_back(Trimmed(rest.substr(0, comma)));
        rest = Trimmed(rest.substr(comma + 1));
    }
}

TEST(ParseFields, AnyLineIsSplitAsTheRulesSay) {
    constexpr std::string_view alphabet = "a,\"\", ,\";\t";
    std::mt19937 random(1);
    for (int round = 0; round < 200'000; ++round) {
        std::string line(random() % 16, '\0');
        for (char& character : line) character = alphabet[random() % (random() % 4 == 0 ? alphabet.size() : 7)];
        ASSERT_EQ(Split(line), SplitStepByStep(line)) << "'" << line << "'";
    }
}

}  // namespace

}  // namespace korvande::testing
