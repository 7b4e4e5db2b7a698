#include "app/ReadPreview.h"

#include <algorithm>

#include "app/GridHistory.h"
#include "tests/app/PreviewTest.h"

namespace korvande::testing {

namespace {

class ReadPreviewTest : public PreviewTest {
 protected:
    // A drawing of so many points, which takes a while.
    Text LargeDrawing(int points) const {
        std::string text =
            "HEADER\nEND HEADER\nLAYERS (LayerNo,Name)\n0,\"A\";\nEND LAYERS\nDATABASE\n"
            "POINTS (PointNo,PointID,East,North,Elevation,Code,Description,SymDir)\n";
        for (int i = 1; i <= points; ++i) {
            const std::string number = std::to_string(i);
            text.append(number).append(",\"P").append(number).append("\",121000.5,487000.25,1.5,\"MV\",\"\",0;\n");
        }
        return folder.Write("groot.idx", WithCrLf(text + "END POINTS\nEND DATABASE\n"));
    }
    // Why an order cannot be read.
    static std::string FailureOf(PreviewOrder order) {
        PreviewReading reading(std::move(order));
        while (!reading.IsOver()) std::this_thread::yield();
        EXPECT_EQ(reading.End(), PreviewEnd::Failed);
        return ToUtf8(reading.Failure());
    }
    void Translate() {
        form.askProjectName = {};
        options.StartedInteractively = true;
        options.optReportNone = true;
        RunTranslation(form);
    }
};

TEST_F(ReadPreviewTest, TheInputOfTheSelectedModeIsReadWithTheCodesOnTheScreen) {
    const std::unique_ptr<Preview> preview = ReadStreet();
    EXPECT_EQ(preview->drawing.list.points.size(), 2U);
    EXPECT_EQ(preview->drawing.list.segments, 1);
    ASSERT_EQ(preview->drawing.list.codes.size(), 3U);
    int unknown = 0;
    for (const PictureCode& code : preview->drawing.list.codes) unknown += code.isKnown ? 0 : 1;
    EXPECT_EQ(unknown, 1);
    EXPECT_EQ(preview->output, nullptr);
    // A row that was added on the screen counts.
    ReplaceRows(form.editedPoints, form.gridPoints.RowCount(), 0, {{{u"RAAR", u"Q22", u"PUNT", u"RAAR PUNT"}}});
    const std::unique_ptr<Preview> completed = ReadStreet();
    ASSERT_EQ(completed->drawing.list.codes.size(), preview->drawing.list.codes.size());
    for (const PictureCode& code : completed->drawing.list.codes) EXPECT_TRUE(code.isKnown) << ToUtf8(code.code);
}

TEST_F(ReadPreviewTest, AnExchangeFileIsReadByItsOwnReader) {
    Choose(2, {}, folder.Write("in.sfn", Nen1878()));
    const std::unique_ptr<Preview> preview = Read(*PreviewOfInput(form));
    EXPECT_EQ(preview->drawing.list.points.size(), 1U);
}

TEST_F(ReadPreviewTest, AMissingInputIsToldAndThereIsNoPreview) {
    Choose(0, folder / "weg.idx", {});
    EXPECT_FALSE(PreviewOfInput(form));
    EXPECT_EQ(screen.messages.back(), "Invoerbestand niet gevonden:\n'" + ToUtf8(folder / "weg.idx") + "'");
}

TEST_F(ReadPreviewTest, NothingIsReadDuringARun) {
    Choose(0, Street(), {});
    const Running running(form.activity);
    EXPECT_FALSE(PreviewOfInput(form));
}

TEST_F(ReadPreviewTest, AFileThatIsNoDrawingFailsWithItsNameAndTheReason) {
    Choose(0, folder.Write("niets.idx", "niets\r\n"), {});
    EXPECT_EQ(FailureOf(*PreviewOfInput(form)), "Het bestand kan niet worden gelezen:\n" +
                                                    ToUtf8(folder / "niets.idx") +
                                                    "\nGeen HEADER gevonden in het IDEX bestand (regel 1)");
    Choose(2, {}, folder.Write("niets.sfn", "01NIETS\r\nniets\r\n"));
    EXPECT_EQ(FailureOf(*PreviewOfInput(form)), "Het bestand kan niet worden gelezen:\n" +
                                                    ToUtf8(folder / "niets.sfn") +
                                                    "\nNEN1878 bestand bevat geen '02' (KOP) record. (regel 2)");
}

TEST_F(ReadPreviewTest, AnOutputThatCannotBeReadBackFailsWithItsName) {
    Choose(0, Street(), folder / "straat.sfn");
    Translate();
    const std::optional<PreviewOrder> order = PreviewOfRun(form);
    ASSERT_TRUE(order);
    folder.Write("straat.sfn", "niets\r\n");
    EXPECT_EQ(FailureOf(*order), "Het bestand kan niet worden gelezen:\n" + ToUtf8(folder / "straat.sfn") +
                                     "\nNEN1878 bestand bevat geen '01' (KOP) record. (regel 1)");
    std::filesystem::remove(folder.Path() + "/straat.sfn");
    EXPECT_EQ(FailureOf(*order), "Bestand: " + ToUtf8(folder / "straat.sfn") +
                                     " niet gevonden.\nGebruik [Bladeren...] om het juiste bestand te zoeken.");
}

TEST_F(ReadPreviewTest, AReadingThatIsStoppedEndsSoon) {
    Choose(0, LargeDrawing(300000), {});
    PreviewReading reading(*PreviewOfInput(form));
    reading.Stop();
    while (!reading.IsOver()) std::this_thread::yield();
    EXPECT_EQ(reading.End(), PreviewEnd::Stopped);
}

TEST_F(ReadPreviewTest, ItTellsHowFarItIs) {
    Choose(0, LargeDrawing(300000), {});
    PreviewReading reading(*PreviewOfInput(form));
    double most = 0;
    bool hasStatus = false;
    while (!reading.IsOver()) {
        most = std::max(most, reading.Part());
        hasStatus = hasStatus || !reading.Status().empty();
    }
    EXPECT_GT(most, 0);
    EXPECT_LE(most, 1);
    EXPECT_TRUE(hasStatus);
}

TEST_F(ReadPreviewTest, TheOutputOfTheLastRunIsReadBackAndComparedWithItsInput) {
    EXPECT_FALSE(PreviewOfRun(form));
    Choose(0, Street(), folder / "straat.sfn");
    Translate();
    ASSERT_TRUE(form.lastRun.wroteOutput) << ::testing::PrintToString(screen.messages);
    const std::optional<PreviewOrder> order = PreviewOfRun(form);
    ASSERT_TRUE(order);
    const std::unique_ptr<Preview> preview = Read(*order);
    ASSERT_NE(preview->output, nullptr);
    EXPECT_EQ(preview->output->list.points.size(), 2U);
    // The unknown point has the code of the unknown row.
    const auto& differences = preview->comparison.differences;
    EXPECT_TRUE(std::any_of(differences.begin(), differences.end(),
                            [](const Difference& difference) { return difference.code == u"RAAR"; }));
    std::filesystem::remove(folder.Path() + "/straat.sfn");
    EXPECT_FALSE(PreviewOfRun(form));
    EXPECT_EQ(screen.messages.back(), "Uitvoerbestand niet gevonden:\n'" + ToUtf8(folder / "straat.sfn") + "'");
}

}  // namespace

}  // namespace korvande::testing
