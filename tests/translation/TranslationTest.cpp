#include "core/LineReader.h"
#include "host/modFileHandling.h"
#include "translation/Translation.h"

#include "core/RuntimeError.h"
#include "tests/support/TranslationState.h"
#include "translation/Files.h"

namespace korvande::testing {
namespace {

class TranslationStateTest : public TranslationTest {
 protected:
    static std::string Replaced(TextView name, TextView extension) {
        return ToUtf8(WithLastThreeReplaced(name, extension));
    }

    void WriteLineTo(const Text& name) {
        OpenOutput(translation, name);
        translation.output.PutLine("regel");
        translation.output.Close();
    }
};

TEST_F(TranslationStateTest, ItBeginsWithAProjectsBeginnings) {
    EXPECT_EQ(translation.codes.points.rows.size(), 1U);
    EXPECT_EQ(translation.codes.lines.rows.size(), 1U);
    EXPECT_EQ(translation.codes.texts.rows.size(), 1U);
    EXPECT_EQ(translation.owner.NameShort.TrimmedRight(), u"VOSAIZO");
    EXPECT_EQ(translation.options.txtFileIDEX, u"voorbeeld.idx");
    EXPECT_EQ(translation.mode, Mode());
    EXPECT_EQ(&translation.screen, &screen);
    EXPECT_FALSE(translation.outcome.Failed());
    EXPECT_TRUE(translation.account.Balances());
    EXPECT_TRUE(translation.withDiagnosticFiles);
    EXPECT_FALSE(translation.readsWithoutLayers);
    EXPECT_FALSE(translation.keepsUnknownCodes);
    EXPECT_EQ(translation.crossingsFound, 0);
}

TEST_F(TranslationStateTest, ItTakesAProjectsTablesAsGridsWouldGiveThemBack) {
    Project project;
    ResetProject(project);
    project.options.chkExport3D = true;
    project.owner.Town = u"ELDERS";
    CodeRow row{};
    row.LiscadCode = u" AB";
    row.Description = u" Boom ";
    project.codes.points.rows.push_back(row);
    CountUse(project.codes.points, 1, 7);
    const Translation made(screen, project);
    EXPECT_TRUE(made.options.chkExport3D);
    EXPECT_EQ(made.owner.Town.TrimmedRight(), u"ELDERS");
    ASSERT_EQ(made.codes.points.rows.size(), 2U);
    EXPECT_EQ(made.codes.points.rows[1].LiscadCode.View(), u"AB     ");
    EXPECT_EQ(made.codes.points.rows[1].Description.TrimmedRight(), u"Boom");
    EXPECT_EQ(made.codes.points.rows[1].Count, 0);
    EXPECT_EQ(project.codes.points.rows[1].Count, 7) << "the project itself stays as it is";
}

TEST_F(TranslationStateTest, TablesThatServedAnotherTranslationBeginWithoutItsCounts) {
    Project project;
    ResetProject(project);
    CodeTables tables = FreshTables(project);
    CountUse(tables.points, 0, 7);
    const Translation made(screen, project, std::move(tables));
    EXPECT_EQ(made.codes.points.rows[0].Count, 0);
}

TEST_F(TranslationStateTest, TheModeTellsWhichNameIsTheInputs) {
    translation.IdexFileName = u"a.idx";
    translation.SufNenFileName = u"a.sfn";
    translation.mode.direction = Direction::FromIdex;
    EXPECT_EQ(InputName(translation), u"a.idx");
    EXPECT_EQ(OutputName(translation), u"a.sfn");
    translation.mode.direction = Direction::ToIdex;
    EXPECT_EQ(InputName(translation), u"a.sfn");
    EXPECT_EQ(OutputName(translation), u"a.idx");
}

TEST_F(TranslationStateTest, TheLastThreeCharactersAreReplacedWhateverTheyAre) {
    EXPECT_EQ(Replaced(u"C:\\DATA\\KAART.IDX", u"SFN"), "C:\\DATA\\KAART.SFN");
    EXPECT_EQ(Replaced(u"C:\\DATA\\KAART.IDEX", u"SFN"), "C:\\DATA\\KAART.ISFN");
    EXPECT_EQ(Replaced(u"X.NEN", u"IDX"), "X.IDX");
    EXPECT_EQ(Replaced(u"kaart", u"LOG"), "kaLOG");
}

TEST_F(TranslationStateTest, ANameOfUpToThreeCharactersIsReplacedAltogether) {
    EXPECT_EQ(Replaced(u"abc", u"LOG"), "LOG");
    EXPECT_EQ(Replaced(u"ab", u"LOG"), "LOG");
    EXPECT_EQ(Replaced(u"", u"LOG"), "LOG");
}

TEST_F(TranslationStateTest, TheOutputIsOpenedUnderItsName) {
    WriteLineTo(folder / "uit.sfn");
    EXPECT_EQ(FileBytes(folder / "uit.sfn"), "regel\r\n");
}

TEST_F(TranslationStateTest, ATemporaryNameTakesTheOutput) {
    translation.temporaryOutput = folder / "uit.tmp";
    WriteLineTo(folder / "uit.sfn");
    EXPECT_EQ(folder.Listing(), "uit.tmp");
    EXPECT_EQ(FileBytes(folder / "uit.tmp"), "regel\r\n");
}

TEST_F(TranslationStateTest, TheOutputGoesToMemoryOrNowhereInsteadWhateverItsName) {
    translation.temporaryOutput = folder / "geen/map/uit.tmp";
    translation.outputTo = OutputTo::Memory;
    WriteLineTo(folder / "geen/map/uit.sfn");
    EXPECT_EQ(translation.outputBytes, "regel\r\n");
    translation.outputTo = OutputTo::Nowhere;
    WriteLineTo(folder / "uit.sfn");
    EXPECT_EQ(translation.outputBytes, "regel\r\n");
    EXPECT_EQ(folder.Listing(), "");
}

TEST_F(TranslationStateTest, AnOutputThatCannotBeOpenedIsARunTimeError) {
    EXPECT_THROW(OpenOutput(translation, folder / "geen/map/uit.sfn"), RuntimeError);
    EXPECT_FALSE(translation.output.IsOpen());
}

TEST_F(TranslationStateTest, TheInputIsReadFromItsFileAndItsProgressBegins) {
    LineReader file;
    ASSERT_TRUE(OpenInput(translation, file, folder.Write("in.idx", std::string(300, 'x') + "\n")));
    EXPECT_EQ(screen.maxima, std::vector<std::int64_t>{301 / 128 + 1});
    std::string_view line;
    ASSERT_TRUE(file.Next(line));
    EXPECT_EQ(line.size(), 300U);
    EXPECT_EQ(ReadUnits(file), 301 / 128);
}

TEST_F(TranslationStateTest, TheInputIsReadFromMemoryWhenItStandsThere) {
    translation.inputBytes = "een\ntwee";
    LineReader file;
    ASSERT_TRUE(OpenInput(translation, file, folder / "geen.idx"));
    EXPECT_EQ(screen.maxima, std::vector<std::int64_t>{1});
    std::string_view line;
    ASSERT_TRUE(file.Next(line));
    EXPECT_EQ(line, "een");
    // No bytes are bytes too.
    translation.inputBytes = "";
    ASSERT_TRUE(OpenInput(translation, file, folder / "geen.idx"));
    EXPECT_FALSE(file.Next(line));
    EXPECT_TRUE(screen.messages.empty());
}

TEST_F(TranslationStateTest, AnInputThatCannotBeOpenedIsShownLoggedAndMarked) {
    OpenLog();
    const Text name = folder / "geen.idx";
    LineReader file;
    EXPECT_FALSE(OpenInput(translation, file, name));
    const std::string text = "Error:53 - Bestand niet gevonden";
    EXPECT_EQ(screen.messages, std::vector<std::string>{text + "\n" + ToUtf8(name)});
    EXPECT_EQ(LogText(), "FOUT:  " + text + " " + ToUtf8(name) + "\n");
    EXPECT_TRUE(translation.outcome.inputUnreadable);
    EXPECT_EQ(translation.problems.errors, 1);
    EXPECT_TRUE(screen.maxima.empty());
}

TEST_F(TranslationStateTest, AnErrorOfTheReaderGoesOnAndIsNoFailureOfTheFile) {
    LineReader file;
    file.OpenBytes("een\n");
    EXPECT_THROW(ReadInput(translation, file, [] { throw RuntimeError(errors::overflow); }), RuntimeError);
    EXPECT_FALSE(translation.outcome.inputUnreadable);
}

TEST_F(TranslationStateTest, EachFailureMakesTheOutcomeFailed) {
    EXPECT_FALSE(RunOutcome().Failed());
    for (bool RunOutcome::*const failure :
         {&RunOutcome::inputUnreadable, &RunOutcome::wrongFormat, &RunOutcome::outputFailed, &RunOutcome::logBookFailed,
          &RunOutcome::cancelled, &RunOutcome::importCancelled}) {
        RunOutcome outcome;
        outcome.*failure = true;
        EXPECT_TRUE(outcome.Failed());
    }
}

}  // namespace
}  // namespace korvande::testing
