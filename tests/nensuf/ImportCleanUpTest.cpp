#include <random>

#include "nensuf/ImportRun.h"
#include "nensuf/PointNumbers.h"
#include "tests/nensuf/ImportTest.h"

namespace korvande::testing {

namespace {

class ImportCleanUp : public ImportTest {
 protected:
    void AddNumbered(TextView number) {
        PointRec point{};
        point.SetPointID(number);
        AddImportedPoint(translation.drawing, point);
    }

    std::vector<Text> Numbers() {
        std::vector<Text> numbers;
        const auto& points = translation.drawing.Points;
        for (std::int32_t i = 1; i <= points.UpperBound(); ++i) numbers.emplace_back(points[i].PointID().View());
        return numbers;
    }

    // From the last point to the second, each is compared with all before it.
    static std::vector<Text> CleanedPlainly(std::vector<Text> numbers) {
        const Text blank(9, u' ');
        for (std::size_t i = numbers.size(); i-- > 1;) {
            if (!(numbers[i] > blank)) continue;
            for (std::size_t j = i; j-- > 0;) {
                if (numbers[j] != numbers[i]) continue;
                numbers[i] = blank;
                break;
            }
        }
        return numbers;
    }
};

TEST_F(ImportCleanUp, OfPointsThatShareANumberTheFirstKeepsIt) {
    Import(Point("P10", N("12") + At(1, 1)) + Point("P10", N("7") + At(2, 2)) + Point("P20", N("12") + At(3, 3)));
    EXPECT_EQ(Points(),
              "12|BOOM|0.001 0.001 0.000|0.0000\n7|BOOM|0.002 0.002 0.000|0.0000\n|MAST|0.003 0.003 0.000|0.0000\n");
    EXPECT_EQ(ToUtf8(translation.drawing.Points[3].PointID().View()), "         ");
}

TEST_F(ImportCleanUp, PointsOfAllKindsShareTheirNumbers) {
    Import(TextGroups("Z10", N("1") + At(1, 1), "Weg") + Line("B10", N("1") + At(2, 2) + N("2") + At(3, 3)) +
           Symbol("P20", N("2") + At(4, 4)) + Point("P10", N("1") + At(5, 5)));
    EXPECT_EQ(Points(),
              "1|100|0.001 0.001 0.000|0.0000\n|KANT|0.002 0.002 0.000|0.0000\n2|KANT|0.003 0.003 0.000|0.0000\n"
              "|MAST|0.004 0.004 0.000|0.0000\n|BOOM|0.005 0.005 0.000|0.0000\n");
}

TEST_F(ImportCleanUp, NumbersAreComparedAtFullWidthAndExactly) {
    Import(Point("P10", N("a") + At(1, 1)) + Point("P10", N("A") + At(1, 1)) + Point("P10", N(" a") + At(1, 1)) +
           Point("P10", N("a") + At(1, 1)) + Point("P10", At(1, 1)) + Point("P10", At(1, 1)));
    EXPECT_EQ(Points().substr(0, Points().find("\n|")),
              "a|BOOM|0.001 0.001 0.000|0.0000\nA|BOOM|0.001 0.001 0.000|0.0000\n a|BOOM|0.001 0.001 0.000|0.0000");
}

TEST_F(ImportCleanUp, ItGivesWhatComparingEveryPairGives) {
    // Few different characters, so that numbers coincide; tabs and NUL sort before the blank.
    using namespace std::literals;
    constexpr TextView alphabet = u"  1122aA\t\0é\u20AC"sv;
    std::mt19937 random(1878);
    for (int round = 0; round < 60; ++round) {
        ResetDrawing(translation.drawing);
        const auto points = static_cast<int>(random() % 300);
        const std::size_t length = 1 + random() % 4;
        for (int i = 0; i < points; ++i) {
            Text number(random() % (length + 1), u' ');
            for (char16_t& character : number) character = alphabet[random() % alphabet.size()];
            AddNumbered(number);
        }
        const std::vector<Text> expected = CleanedPlainly(Numbers());
        CleanUpPointNumbers(translation);
        EXPECT_EQ(Numbers(), expected) << "round " << round;
    }
}

// Comparing every pair of these would take hours.
TEST_F(ImportCleanUp, ItsTimeGrowsWithTheNumberOfPoints) {
    constexpr int points = 300'000;
    for (int i = 0; i < points; ++i) AddNumbered(Concat(i % 250'000));
    CleanUpPointNumbers(translation);
    EXPECT_EQ(ToUtf8(translation.drawing.Points[250'000].PointID().TrimmedRight()), "249999");
    for (std::int32_t i = 250'001; i <= points; ++i) ASSERT_TRUE(translation.drawing.Points[i].PointID().IsBlank());
}

TEST_F(ImportCleanUp, TheProgressRunsToTheNumberOfPointsOrOne) {
    CleanUpPointNumbers(translation);
    AddNumbered(u"1");
    AddNumbered(u"1");
    CleanUpPointNumbers(translation);
    EXPECT_EQ(screen.maxima, (std::vector<std::int64_t>{1, 2}));
    EXPECT_EQ(screen.statuses, (std::vector<std::string>{"Opschonen Puntnummers", "Opschonen Puntnummers"}));
}

TEST_F(ImportCleanUp, AnAddedPointWithoutACodeIsAnUnknownObject) {
    AddNumbered(u"1");
    PointRec point{};
    translation.drawing.SetCode(point, TextView());
    point.SetPointID(TextView());
    point.PointNo = 4711;
    EXPECT_EQ(AddImportedPoint(translation.drawing, point), 2);
    EXPECT_EQ(Points(), "1|100|0.000 0.000 0.000|0.0000\n||0.000 0.000 0.000|0.0000\n");
    EXPECT_EQ(PointDescription(1), "Onbekend Object");
    EXPECT_EQ(translation.drawing.Points[2].PointNo, 2);
    EXPECT_EQ(translation.drawing.PointIndex.Find(2), 2);
}

}  // namespace

}  // namespace korvande::testing
