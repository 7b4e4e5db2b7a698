#include "cli/Patterns.h"

#include <filesystem>

#include "cli/Arguments.h"
#include "tests/cli/CliTest.h"

namespace korvande::testing {

namespace {

using Names = std::vector<std::string>;

class Patterns : public CliTest {
 protected:
    Patterns() {
        for (const char* const name : {"b.sfn", "A.SFN", "c1.sfn", "a.idx"}) folder.Write(name, "");
        std::filesystem::create_directory(folder.Path() + "/map.sfn");
    }

    // An argument in the folder.
    std::string In(const std::string& name) const { return folder.Path() + "/" + name; }

    template <class Action>
    static std::string RefusalOf(Action action) {
        try {
            action();
        } catch (const UsageError& error) {
            return ToUtf8(error.message);
        }
        return "(none)";
    }
};

TEST_F(Patterns, AStarAndAQuestionMarkStandForTheFilesThatMatchSorted) {
    EXPECT_EQ(WithPatternsExpanded({In("*.sfn")}), (Names{In("A.SFN"), In("b.sfn"), In("c1.sfn")}));
    EXPECT_EQ(WithPatternsExpanded({In("?.SFN")}), (Names{In("A.SFN"), In("b.sfn")}));
}

TEST_F(Patterns, OtherNamesStayAsTheyAreAndInTheirPlaces) {
    EXPECT_EQ(WithPatternsExpanded({"weg.idx", In("c*"), "[a]"}), (Names{"weg.idx", In("c1.sfn"), "[a]"}));
    EXPECT_EQ(WithPatternsExpanded({"\\\\?\\C:\\a.sfn"}), (Names{"\\\\?\\C:\\a.sfn"}));
    EXPECT_EQ(WithPatternsExpanded({}), Names());
}

TEST_F(Patterns, APatternWithoutAFolderMatchesInTheCurrentOne) {
    const auto before = std::filesystem::current_path();
    std::filesystem::current_path(folder.Path());
    const Names names = WithPatternsExpanded({"?.idx"});
    std::filesystem::current_path(before);
    EXPECT_EQ(names, Names{"a.idx"});
}

TEST_F(Patterns, OneThatNothingMatchesIsWrongUsageAndNamed) {
    EXPECT_EQ(RefusalOf([&] {
                  WithPatternsExpanded({In("a.idx"), In("*.nen")});
              }),
              "Geen bestand voldoet aan: " + In("*.nen"));
    EXPECT_EQ(RefusalOf([&] { WithPatternsOfOneExpanded({In("*.nen")}); }), "Geen bestand voldoet aan: " + In("*.nen"));
}

TEST_F(Patterns, BesideAnOutputAPatternStandsForOneFileSoThatNoInputIsTakenForIt) {
    EXPECT_EQ(WithPatternsOfOneExpanded({In("*.idx"), "uit.sfn"}), (Names{In("a.idx"), "uit.sfn"}));
    EXPECT_EQ(RefusalOf([&] { WithPatternsOfOneExpanded({In("?.sfn")}); }),
              "Meer dan een bestand voldoet aan: " + In("?.sfn") + "; gebruik --uitvoermap om er meer te vertalen.");
}

}  // namespace

}  // namespace korvande::testing
