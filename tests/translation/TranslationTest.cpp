#include "run/RunValues.h"

#include "tests/support/ProgramState.h"

namespace korvande::testing {
namespace {

class RunValuesTest : public ProgramTest {
 protected:
    static std::string Replaced(TextView name, TextView extension) {
        return ToUtf8(WithLastThreeReplaced(name, extension));
    }
};

TEST_F(RunValuesTest, TheLastThreeCharactersAreReplacedWhateverTheyAre) {
    EXPECT_EQ(Replaced(u"C:\\DATA\\KAART.IDX", u"SFN"), "C:\\DATA\\KAART.SFN");
    EXPECT_EQ(Replaced(u"C:\\DATA\\KAART.IDEX", u"SFN"), "C:\\DATA\\KAART.ISFN");
    EXPECT_EQ(Replaced(u"X.NEN", u"IDX"), "X.IDX");
    EXPECT_EQ(Replaced(u"kaart", u"LOG"), "kaLOG");
}

TEST_F(RunValuesTest, ANameOfUpToThreeCharactersIsReplacedAltogether) {
    EXPECT_EQ(Replaced(u"abc", u"LOG"), "LOG");
    EXPECT_EQ(Replaced(u"ab", u"LOG"), "LOG");
    EXPECT_EQ(Replaced(u"", u"LOG"), "LOG");
}

TEST_F(RunValuesTest, TheOutputIsOpenedUnderItsName) {
    OpenOutput(folder / "uit.sfn");
    TheRun().output.PutLine("regel");
    TheRun().output.Close();
    EXPECT_EQ(FileBytes(folder / "uit.sfn"), "regel\r\n");
}

TEST_F(RunValuesTest, ATemporaryNameTakesTheOutput) {
    TheRun().temporaryOutput = folder / "uit.tmp";
    OpenOutput(folder / "uit.sfn");
    TheRun().output.PutLine("regel");
    TheRun().output.Close();
    EXPECT_EQ(folder.Listing(), "uit.tmp");
    EXPECT_EQ(FileBytes(folder / "uit.tmp"), "regel\r\n");
}

TEST_F(RunValuesTest, AnOutputThatCannotBeOpenedIsARunTimeError) {
    EXPECT_THROW(OpenOutput(folder / "geen/map/uit.sfn"), RuntimeError);
    EXPECT_FALSE(TheRun().output.IsOpen());
}

TEST_F(RunValuesTest, EachFailureMakesTheOutcomeFailed) {
    EXPECT_FALSE(RunOutcome().Failed());
    for (bool RunOutcome::*const failure :
         {&RunOutcome::inputUnreadable, &RunOutcome::wrongFormat, &RunOutcome::outputFailed, &RunOutcome::logBookFailed,
          &RunOutcome::cancelled}) {
        RunOutcome outcome;
        outcome.*failure = true;
        EXPECT_TRUE(outcome.Failed());
    }
}

}  // namespace
}  // namespace korvande::testing
