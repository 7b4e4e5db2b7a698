#include <filesystem>

#include "tests/cli/CliTest.h"

// A shell hands patterns over as they are.
namespace korvande::testing {

namespace {

class WindowsPatterns : public CliTest {
 protected:
    WindowsPatterns() {
        folder.Write("a.idx", smallIdex);
        folder.Write("b.idx", smallIdex);
        std::filesystem::create_directory(folder.Path() + "/uit");
    }
};

TEST_F(WindowsPatterns, APatternStandsForEveryFileThatMatches) {
    const ProgramResult result = Translate("idex-nen1878", {"--uitvoermap", "uit", "*.idx"});
    EXPECT_EQ(result.status, 0) << result.error;
    EXPECT_TRUE(IsThere("uit/a.sfn"));
    EXPECT_TRUE(IsThere("uit/b.sfn"));
}

TEST_F(WindowsPatterns, ACheckGoesThroughEveryFileThatMatches) {
    const ProgramResult result = Run({"controleer", "?.idx"});
    EXPECT_TRUE(Has(result.output, "Bestand: a.idx"));
    EXPECT_TRUE(Has(result.output, "Bestand: b.idx"));
}

TEST_F(WindowsPatterns, OneThatNothingMatchesOrThatCouldTakeAnInputForTheOutputIsRefused) {
    ExpectRefused({"controleer", "*.nen"}, "Geen bestand voldoet aan: *.nen");
    ExpectRefused({"vertaal", "--modus", "idex-nen1878", "*.idx"},
                  "Meer dan een bestand voldoet aan: *.idx; gebruik --uitvoermap om er meer te vertalen.");
}

}  // namespace

}  // namespace korvande::testing
