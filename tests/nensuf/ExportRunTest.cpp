#include <chrono>
#include <thread>

#include "tests/nensuf/ExportTest.h"

namespace korvande::testing {
namespace {

class ExportRun : public ExportTest {
 protected:
    RunOutcome& Outcome() { return translation.outcome; }
    std::int64_t Unfinished(ObjectKind kind) {
        return translation.account[kind].leftOut[static_cast<std::size_t>(LeftOut::Unfinished)];
    }
};

TEST_F(ExportRun, EachStepIsShownInTheStatusLine) {
    Export();
    EXPECT_EQ(screen.statuses,
              (std::vector<std::string>{"Schrijven Exportbestand: Voorbereiden", "Schrijven Exportbestand: Symbolen",
                                        "Schrijven Exportbestand: Lijnen", "Schrijven Exportbestand: Teksten"}));
}

TEST_F(ExportRun, TheProgressOfAStepCountsItsObjects) {
    AddBarePoints();
    AddLine(u"KANT");
    AddSegment({});
    for (int i = 0; i < 3; ++i) AddText({.text = u"a"});
    Export();
    EXPECT_EQ(screen.maxima, (std::vector<std::int64_t>{2, 1, 3}));
}

TEST_F(ExportRun, AFinishedExportHasClosedItsOutputAndShownNothing) {
    Export();
    EXPECT_FALSE(translation.output.IsOpen());
    EXPECT_FALSE(Outcome().Failed());
    EXPECT_TRUE(screen.messages.empty());
}

TEST_F(ExportRun, AnEarlierFileIsReplacedByTheBytesThatMemoryWouldGet) {
    AddPoint({.code = u"PAAL"});
    ExportSufNen(translation);
    folder.Write("uit.sfn", std::string(100000, 'x'));
    translation.outputTo = OutputTo::File;
    ExportSufNen(translation);
    EXPECT_EQ(FileBytes(translation.SufNenFileName), translation.outputBytes);
    EXPECT_EQ(translation.outputBytes.size(), (6U + 4U) * 66);
}

TEST_F(ExportRun, AFileThatCannotBeOpenedIsToldAndEndsTheExport) {
    AddPoint({.code = u"PAAL"});
    translation.SufNenFileName = folder / "geen/map/uit.sfn";
    translation.outputTo = OutputTo::File;
    ExportSufNen(translation);
    const std::string name = ToUtf8(translation.SufNenFileName);
    ASSERT_EQ(screen.boxes.size(), 1U);
    EXPECT_EQ(screen.messages[0], "Kon bestand: '" + name + "' niet opslaan;\nFoutcode: 76");
    EXPECT_EQ(screen.boxes[0].buttons, Buttons::Ok);
    EXPECT_EQ(LogText(), "FOUT:  Kon bestand: '" + name + "' niet opslaan; Foutcode: 76\n");
    EXPECT_TRUE(Outcome().outputFailed);
    EXPECT_EQ(Unfinished(ObjectKind::Point), 1);
    EXPECT_EQ(translation.codes.points.rows[1].Count, 0);
}

TEST_F(ExportRun, AFolderInPlaceOfTheFileIsToldWithItsErrorNumber) {
    translation.SufNenFileName = folder / "";
    translation.outputTo = OutputTo::File;
    ExportSufNen(translation);
    ASSERT_EQ(screen.boxes.size(), 1U);
    EXPECT_NE(screen.messages[0].find("niet opslaan;\nFoutcode: 75"), std::string::npos) << screen.messages[0];
    EXPECT_TRUE(Outcome().outputFailed);
}

TEST_F(ExportRun, TheTemporaryNameTakesTheFileAndTheMessageNamesTheRealOne) {
    translation.temporaryOutput = folder / "tijdelijk.tmp";
    translation.outputTo = OutputTo::File;
    ExportSufNen(translation);
    EXPECT_FALSE(FileIsThere(translation.SufNenFileName));
    EXPECT_EQ(FileBytes(translation.temporaryOutput).size(), 6U * 66);

    translation.temporaryOutput = folder / "geen/map/tijdelijk.tmp";
    ExportSufNen(translation);
    ASSERT_EQ(screen.messages.size(), 1U);
    EXPECT_NE(screen.messages[0].find("uit.sfn' niet opslaan;"), std::string::npos);
}

TEST_F(ExportRun, AFullDiskEndsTheExportWithoutStatistics) {
    translation.temporaryOutput = u"/dev/full";
    translation.outputTo = OutputTo::File;
    EXPECT_EQ(ErrorOf([this] { ExportSufNen(translation); }), errors::diskFull);
    EXPECT_TRUE(Outcome().outputFailed);
    EXPECT_EQ(LogText(), "");
}

TEST_F(ExportRun, AFullDiskEndsALongExportOnTheWay) {
    translation.temporaryOutput = u"/dev/full";
    translation.outputTo = OutputTo::File;
    for (int i = 0; i < 2000; ++i) AddPoint({.code = u"PAAL"});
    EXPECT_EQ(ErrorOf([this] { ExportSufNen(translation); }), errors::diskFull);
    EXPECT_GT(translation.account[ObjectKind::Point].written, 0);
    EXPECT_GT(Unfinished(ObjectKind::Point), 0);
    EXPECT_TRUE(translation.account.Balances());
    EXPECT_TRUE(Outcome().outputFailed);
}

TEST_F(ExportRun, ACoordinateThatOverflowsEndsTheExportAfterWhatWasWritten) {
    AddPoint({.code = u"PAAL"});
    AddPoint({.code = u"PAAL", .east = 1e306});
    AddText({.text = u"a"});
    EXPECT_EQ(ErrorOf([this] { ExportSufNen(translation); }), errors::overflow);
    EXPECT_TRUE(Outcome().outputFailed);
    ASSERT_TRUE(translation.output.IsOpen()) << "the run closes it";
    translation.output.Close();
    EXPECT_EQ(translation.outputBytes.size(), (5U + 4U) * 66);
    EXPECT_EQ(translation.account[ObjectKind::Point].written, 1);
    EXPECT_EQ(Unfinished(ObjectKind::Point), 1);
    EXPECT_EQ(Unfinished(ObjectKind::TextObject), 1);
}

TEST_F(ExportRun, APersonCanEndTheExport) {
    AddPoint({.code = u"PAAL"});
    screen.onPump = [] { throw TranslationAborted(); };
    EXPECT_THROW(ExportSufNen(translation), TranslationAborted);
    EXPECT_FALSE(Outcome().outputFailed);
    EXPECT_EQ(Unfinished(ObjectKind::Point), 1);
}

TEST_F(ExportRun, APersonCanEndTheExportBetweenTwoObjects) {
    for (int i = 0; i < 300; ++i) AddPoint({.code = u"PAAL"});
    std::this_thread::sleep_for(std::chrono::milliseconds(60));  // longer than progress keeps silent
    screen.onPump = [this] {
        if (screen.value > 0) throw TranslationAborted();
    };
    EXPECT_THROW(ExportSufNen(translation), TranslationAborted);
    EXPECT_EQ(translation.account[ObjectKind::Point].written, screen.value);
    EXPECT_EQ(Unfinished(ObjectKind::Point), 300 - screen.value);
}

TEST_F(ExportRun, TheAccountBalances) {
    AddRow(translation.codes.points, {u"LIJN", u"G09", types::line});
    AddRow(translation.codes.texts, {u"HULP", u"Z98", types::dummy});
    for (const TextView code : {u"PAAL", u"", u"LIJN", u"RAAR", u"PAAL"}) AddPoint({.code = code});
    AddLine(u"KANT");
    AddLine(u"RAAR");
    for (const std::int32_t line : {1, 2, 3, 1}) AddSegment({.line = line});
    AddSegment({.type = u"SPLINE"});
    AddText({.text = u"a"});
    AddText({.text = u""});
    AddText({.text = u"b", .code = u"HULP"});
    AddText({.text = u"c", .anchor = 99});
    ExportSufNen(translation);
    EXPECT_TRUE(translation.account.Balances());
    EXPECT_EQ(ToUtf8(translation.account.Summary()),
              "Punten: 5 gelezen, 2 geschreven, 3 weggelaten (1 onbekende code, 1 type DUMMY, 1 ander type)\n"
              "Lijnsegmenten: 5 gelezen, 2 geschreven, 3 weggelaten (1 onbekende code, 1 ander lijntype, 1 verwijst "
              "naar niets)\n"
              "Teksten: 4 gelezen, 1 geschreven, 3 weggelaten (1 type DUMMY, 1 lege tekst, 1 verwijst naar niets)\n");
}

TEST_F(ExportRun, ASecondRunWritesTheSameFile) {
    AddPoint({.code = u"PAAL"});
    AddText({.text = u"a"});
    const std::string first = Export();
    EXPECT_EQ(Export(), first);
}

}  // namespace
}  // namespace korvande::testing
