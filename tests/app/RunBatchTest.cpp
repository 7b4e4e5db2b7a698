#include "app/RunBatch.h"

#include <gmock/gmock.h>

#include <algorithm>

#include "app/Batch.h"
#include "core/RuntimeError.h"
#include "tests/app/AppTest.h"

// Several files translated one after the other.
namespace korvande::testing {

namespace {

using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::StartsWith;

class RunBatchTest : public AppRunTest {
 protected:
    RunBatchTest() {
        form.CurrentProject = u"TEST.NST";
        form.unload = [this] { isUnloaded = true; };
    }

    std::vector<BatchOutcome> Translate(const std::vector<Text>& names) {
        return TranslateBatch(form, BatchOf(form, names)).value();
    }

    static std::vector<std::string> Results(const std::vector<BatchOutcome>& outcomes) {
        std::vector<std::string> results;
        for (const BatchOutcome& outcome : outcomes) results.push_back(ToUtf8(outcome.result));
        return results;
    }

    // A NEN1878 file about which its import asks a question.
    static std::string Doubtful() {
        std::string bytes = Nen1878();
        bytes[bytes.find("\r\n02") + 2 + 6] = '0';
        return bytes;
    }

    bool isUnloaded = false;
};

TEST_F(RunBatchTest, EveryFileGetsItsOutputAndItsLogBook) {
    const auto outcomes = Translate({folder.Write("a.idx", Drawing()), folder.Write("b.nen", Nen1878())});
    EXPECT_EQ(ListingWithoutSettings(), "a.LOG a.SFN a.idx b.IDX b.LOG b.nen projecten");
    EXPECT_TRUE(FileBytes(folder / "a.SFN").starts_with("010NEN1878"));
    EXPECT_TRUE(FileBytes(folder / "b.IDX").starts_with("HEADER"));
    EXPECT_THAT(FileBytes(folder / "b.LOG"), HasSubstr("     Bewerking:  NEN1878 >> IDEX\r\n"));
    EXPECT_THAT(Results(outcomes), ElementsAre("1 van 1 object vertaald, 0 weggelaten, 0 fouten — a.SFN",
                                               "1 van 1 object vertaald, 0 weggelaten, 0 fouten — b.IDX"));
    EXPECT_TRUE(outcomes[0].wentWell);
    EXPECT_EQ(outcomes[0].written, 1);
    EXPECT_EQ(outcomes[0].logBook, folder / "a.LOG");
    EXPECT_EQ(outcomes[1].output, folder / "b.IDX");
    EXPECT_TRUE(screen.messages.empty());
}

TEST_F(RunBatchTest, TheReportOptionsOfASingleRunKeepNoLogBookBack) {
    SelectReport(options, &Options::optReportNone);
    Translate({folder.Write("a.idx", Drawing()), folder.Write("b.idx", Drawing())});
    EXPECT_TRUE(FileIsThere(folder / "a.LOG"));
    EXPECT_TRUE(FileIsThere(folder / "b.LOG"));
}

TEST_F(RunBatchTest, OneBrokenFileStopsNoOther) {
    const auto outcomes = Translate({folder.Write("a.idx", "geen tekening"), folder.Write("b.idx", Drawing()),
                                     folder.Write("c.idx", Drawing().substr(0, Drawing().find("END DATABASE")))});
    EXPECT_THAT(Results(outcomes), ElementsAre("Niet vertaald: het is geen IDEX-, NEN1878- of SUF2-bestand.",
                                               StartsWith("1 van 1 object"), StartsWith("1 van 1 object")));
    EXPECT_FALSE(outcomes[0].isTranslated);
    EXPECT_FALSE(outcomes[0].wentWell);
    EXPECT_TRUE(outcomes[1].wentWell);
    EXPECT_TRUE(outcomes[2].isTranslated);
    EXPECT_FALSE(outcomes[2].wentWell) << "something was lost";
    EXPECT_EQ(ToUtf8(SummaryOf(outcomes)), "2 van 3 bestanden vertaald, waarvan 1 met fouten of verlies");
    EXPECT_EQ(ToUtf8(form.lastRun.outcome), ToUtf8(SummaryOf(outcomes)));
    EXPECT_FALSE(form.lastRun.wentWell);
    EXPECT_EQ(form.lastRun.lists.size(), 3U);
}

TEST_F(RunBatchTest, AFileThatVanishedMeanwhileIsToldWithoutAMessage) {
    const Batch batch = BatchOf(form, {folder.Write("a.idx", Drawing()), folder.Write("b.idx", Drawing())});
    std::filesystem::remove(folder.Path() + "/a.idx");
    const auto outcomes = TranslateBatch(form, batch).value();
    EXPECT_TRUE(screen.messages.empty());
    EXPECT_THAT(Results(outcomes), ElementsAre(HasSubstr("is niet vertaald: het bestand kan niet worden gelezen."),
                                               StartsWith("1 van 1 object")));
}

TEST_F(RunBatchTest, ALogBookThatCannotBeWrittenWaitsForNobody) {
    std::filesystem::create_directory(folder.Path() + "/a.LOG");
    const auto outcomes = Translate({folder.Write("a.idx", Drawing()), folder.Write("b.idx", Drawing())});
    EXPECT_TRUE(screen.messages.empty());
    EXPECT_THAT(Results(outcomes),
                ElementsAre(HasSubstr("het logboek kan niet worden geschreven"), StartsWith("1 van 1 object")));
    EXPECT_EQ(outcomes[0].logBook, u"");
    EXPECT_FALSE(FileIsThere(folder / "a.SFN"));
}

TEST_F(RunBatchTest, ExistingOutputsAreAskedAboutOnceAndYesReplacesThem) {
    folder.Write("a.SFN", "oud");
    folder.Write("b.SFN", "oud");
    screen.answers = {Answer::Yes};
    Translate({folder.Write("a.idx", Drawing()), folder.Write("b.idx", Drawing()), folder.Write("c.idx", Drawing())});
    ASSERT_EQ(screen.messages.size(), 1U);
    EXPECT_THAT(screen.messages[0], StartsWith("2 van de 3 uitvoerbestanden bestaan al in "));
    EXPECT_THAT(screen.messages[0], HasSubstr("\n\na.SFN\nb.SFN\n\nJa: vervangen\n"));
    EXPECT_EQ(screen.boxes[0].buttons, Buttons::YesNoCancel);
    EXPECT_TRUE(FileBytes(folder / "b.SFN").starts_with("010NEN1878"));
}

TEST_F(RunBatchTest, NoSkipsTheFilesWhoseOutputIsThere) {
    folder.Write("a.SFN", "oud");
    screen.answers = {Answer::No};
    const auto outcomes = Translate({folder.Write("a.idx", Drawing()), folder.Write("b.idx", Drawing())});
    EXPECT_EQ(FileBytes(folder / "a.SFN"), "oud");
    EXPECT_FALSE(FileIsThere(folder / "a.LOG"));
    EXPECT_TRUE(FileIsThere(folder / "b.SFN"));
    EXPECT_EQ(ToUtf8(outcomes[0].result), "Niet vertaald: overgeslagen, want de uitvoer bestaat al.");
    EXPECT_TRUE(outcomes[0].wentWell) << "as a person wants";
    EXPECT_FALSE(outcomes[0].isTranslated);
}

TEST_F(RunBatchTest, CancelDoesNothingAtAll) {
    folder.Write("a.SFN", "oud");
    screen.answers = {Answer::Cancel};
    EXPECT_FALSE(
        TranslateBatch(form, BatchOf(form, {folder.Write("a.idx", Drawing()), folder.Write("b.idx", Drawing())})));
    EXPECT_EQ(folder.Listing(), "a.SFN a.idx b.idx projecten");
    EXPECT_EQ(ProjectNames(), "");
    EXPECT_EQ(form.runMark, u"");
}

TEST_F(RunBatchTest, WhatThisWindowWroteItselfIsAskedAboutToo) {
    const std::vector<Text> names = {folder.Write("a.idx", Drawing()), folder.Write("b.idx", Drawing())};
    Translate(names);
    EXPECT_FALSE(TranslateBatch(form, BatchOf(form, names)));
    EXPECT_EQ(screen.messages.size(), 1U);
}

TEST_F(RunBatchTest, AfterwardsASingleRunReplacesAnOutputOfItWithoutAQuestion) {
    const Text input = folder.Write("a.idx", Drawing());
    Translate({input, folder.Write("b.idx", Drawing())});
    Choose(0, input, folder / "a.SFN");
    RunTranslation(form);
    EXPECT_THAT(screen.messages, ElementsAre("Verwerking gereed"));
}

TEST_F(RunBatchTest, TheProjectIsSavedBeforeAndTheGridsAreWhatIsTranslatedWith) {
    form.gridPoints.SetRowCount(3);
    form.gridPoints[2] = {u"BOOM", u"S01", u"PUNT", u"Boom", u"0", u"0", u"0"};
    Translate({folder.Write("a.idx", Drawing()), folder.Write("b.idx", Drawing())});
    EXPECT_EQ(ProjectNames(), "TEST.NST");
    EXPECT_THAT(FileBytes(folder / "a.SFN"), HasSubstr("03MS01 "));
    EXPECT_THAT(FileBytes(folder / "b.SFN"), HasSubstr("03MS01 "));
}

TEST_F(RunBatchTest, TheUsesOfCodesAreCountedAnewForEachFile) {
    form.gridPoints.SetRowCount(3);
    form.gridPoints[2] = {u"BOOM", u"S01", u"PUNT", u"Boom", u"0", u"0", u"0"};
    Translate({folder.Write("a.idx", Drawing()), folder.Write("b.idx", Drawing())});
    for (const char* const log : {"a.LOG", "b.LOG"}) {
        EXPECT_THAT(FileBytes(folder / log), ::testing::ContainsRegex("BOOM    = Boom +1 maal\r\n")) << log;
    }
}

TEST_F(RunBatchTest, QuestionsAboutAFormatAreAskedPerFileAndNameIt) {
    screen.answers = {Answer::Yes, Answer::Cancel};
    const auto outcomes = Translate(
        {folder.Write("a.idx", Drawing()), folder.Write("een.nen", Doubtful()), folder.Write("twee.nen", Doubtful())});
    EXPECT_THAT(screen.messages, ElementsAre(StartsWith("een.nen:\n\nDe SUF2 file lijkt een NEN1878"),
                                             StartsWith("twee.nen:\n\nDe SUF2 file lijkt een NEN1878")));
    EXPECT_TRUE(outcomes[1].isTranslated);
    EXPECT_THAT(ToUtf8(outcomes[2].result), HasSubstr("is niet vertaald: afgebroken."));
    EXPECT_TRUE(FileIsThere(folder / "een.IDX"));
    EXPECT_FALSE(FileIsThere(folder / "twee.IDX"));
}

TEST_F(RunBatchTest, AFileOfAnInstrumentIsAskedAboutByItsName) {
    std::string bytes = Drawing();
    const std::size_t layers = bytes.find("LAYERS");
    bytes.erase(layers, bytes.find("DATABASE") - layers);
    screen.answers = {Answer::Yes, Answer::No};
    const auto outcomes = Translate({folder.Write("een.idx", bytes), folder.Write("twee.idx", bytes)});
    ASSERT_EQ(screen.messages.size(), 2U);
    EXPECT_THAT(screen.messages[0], StartsWith("een.idx:\n\n"));
    EXPECT_THAT(screen.messages[1], StartsWith("twee.idx:\n\n"));
    EXPECT_EQ(outcomes[0].written, 1);
    EXPECT_EQ(outcomes[1].errors, 1);
}

TEST_F(RunBatchTest, OneBarShowsTheProgressOfAllAndNeverGoesBack) {
    std::vector<std::int64_t> values;
    screen.onPump = [&] { values.push_back(screen.value); };
    Translate({folder.Write("a.idx", Drawing()), folder.Write("b.idx", Drawing())});
    ASSERT_GT(values.size(), 4U);
    EXPECT_TRUE(std::is_sorted(values.begin(), values.end())) << ::testing::PrintToString(values);
    EXPECT_THAT(screen.maxima, ElementsAre(2000, 1));
    EXPECT_GT(values.back(), 1000);
    EXPECT_LE(values.back(), 2000);
    EXPECT_THAT(screen.statuses, ::testing::Contains("1 van 2, a.idx: Inlezen Punten"));
    EXPECT_THAT(screen.statuses, ::testing::Contains("2 van 2, b.idx: Inlezen Punten"));
    EXPECT_EQ(screen.statuses.back(), "");
}

TEST_F(RunBatchTest, AStopLeavesTheFilesThatFollowUntranslated) {
    const std::vector<Text> names = {folder.Write("a.idx", Drawing()), folder.Write("b.idx", Drawing()),
                                     folder.Write("c.idx", Drawing())};
    screen.onPump = [this] {
        if (!screen.statuses.empty() && screen.statuses.back().starts_with("2 van 3")) StopRun(form);
        EndRunIfAsked(form);
    };
    const auto outcomes = Translate(names);
    EXPECT_THAT(Results(outcomes),
                ElementsAre(StartsWith("1 van 1 object"), HasSubstr("b.idx is niet vertaald: afgebroken."),
                            "Niet vertaald: afgebroken."));
    EXPECT_FALSE(FileIsThere(folder / "b.SFN"));
    EXPECT_FALSE(FileIsThere(folder / "c.LOG"));
    EXPECT_FALSE(IsRunning(form));
    EXPECT_FALSE(isUnloaded);
    EXPECT_EQ(form.runMark, u"");
}

TEST_F(RunBatchTest, ClosingTheWindowEndsItWithoutAList) {
    screen.onPump = [this] {
        QueryClose(form);
        EndRunIfAsked(form);
    };
    EXPECT_FALSE(
        TranslateBatch(form, BatchOf(form, {folder.Write("a.idx", Drawing()), folder.Write("b.idx", Drawing())})));
    EXPECT_TRUE(isUnloaded);
    EXPECT_THAT(screen.messages, ElementsAre("Vertaling afgebroken."));
}

TEST_F(RunBatchTest, WhileARunIsInProgressNoBatchStarts) {
    const Batch batch = BatchOf(form, {folder.Write("a.idx", Drawing()), folder.Write("b.idx", Drawing())});
    const Running running(form.activity);
    EXPECT_FALSE(TranslateBatch(form, batch));
    EXPECT_FALSE(FileIsThere(folder / "a.SFN"));
}

}  // namespace

}  // namespace korvande::testing
