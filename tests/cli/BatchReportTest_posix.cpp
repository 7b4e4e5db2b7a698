#include "tests/cli/BatchTest.h"

// A disk that is full as this system has it.
namespace korvande::testing {

namespace {

namespace fs = std::filesystem;

class PosixReports : public BatchTest {};

TEST_F(PosixReports, OneThatCannotBeWrittenIsToldAndTakesNoOutputBack) {
    fs::create_directory(Path("uit"));
    std::vector<std::string> arguments = {"--stil", "--verslag", "v.csv"};
    for (int i = 0; i < 100; ++i) {
        arguments.push_back("a" + std::to_string(i) + ".idx");
        Write(arguments.back(), smallIdex);
    }
    const ProgramResult result = TranslateAll(arguments, {.largestFile = 4096});
    EXPECT_EQ(result.status, 1);
    EXPECT_TRUE(result.error.starts_with("Kon verslag: 'v.csv' niet opslaan;\nFoutcode: 61\n")) << result.error;
    EXPECT_FALSE(IsThere("v.csv"));
    EXPECT_TRUE(IsThere("uit/a99.sfn"));
}

TEST_F(PosixReports, AGeoPackageThatCannotGrowEndsTheWorkOfAll) {
    for (int i = 0; i < 8; ++i) Write("in/" + std::to_string(i) + ".idx", IdexPoints(5000));
    const ProgramResult result =
        Run({"geopackage", "--lokaal", "--taken", "4", "in/", "uit.gpkg"}, {.largestFile = 1000000});
    EXPECT_EQ(result.status, 3);
    EXPECT_TRUE(result.error.ends_with("Kon bestand: 'uit.gpkg' niet opslaan;\nFoutcode: 61\nSchijf vol\n"))
        << result.error;
    EXPECT_EQ(folder.Listing(), "in");
}

}  // namespace

}  // namespace korvande::testing
