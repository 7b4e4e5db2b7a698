#include "app/CheckInput.h"

#include <gmock/gmock.h>

#include <algorithm>

#include "core/RuntimeError.h"
#include "tests/app/AppTest.h"

namespace korvande::testing {

namespace {

using ::testing::ElementsAre;
using ::testing::StartsWith;

// A drawing with these rows of points.
std::string DrawingOf(const std::string& rows) {
    return WithCrLf(
        "HEADER\nEND HEADER\nLAYERS (LayerNo,Name)\n0,\"A\";\nEND LAYERS\nDATABASE\n"
        "POINTS (PointNo,PointID,East,North,Elevation,Code,Description,SymDir)\n" +
        rows + "END POINTS\nEND DATABASE\n");
}

std::string PointRow(int number, const std::string& code, const std::string& east = "121000.5") {
    return std::to_string(number) + ",\"P\"," + east + ",487000.25,1.5,\"" + code + "\",\"\",0;\n";
}

class CheckInputTest : public AppRunTest {
 protected:
    CheckInputTest() {
        form.CurrentProject = u"TEST.NST";
        form.unload = [this] { isUnloaded = true; };
    }

    // The findings of a drawing with these rows of points.
    CheckReport Report(const std::string& bytes) {
        Choose(0, folder.Write("in.idx", bytes), folder / "uit.sfn");
        return CheckInput(form).value();
    }

    // Lets the grid of the points know a code.
    void KnowCode(const Text& code, const Text& type = u"PUNT") {
        form.gridPoints.SetRowCount(3);
        form.gridPoints[2] = {code, u"S01", type, u"Boom", u"0", u"0", u"0"};
    }

    static std::vector<std::string> Lines(const CheckReport& report) {
        std::vector<std::string> lines;
        for (const Finding& finding : report.findings) {
            lines.push_back(std::to_string(finding.line) + " " + ToUtf8(NameOf(finding.kind)) + ": " +
                            ToUtf8(finding.sentence));
        }
        return lines;
    }

    bool isUnloaded = false;
};

TEST_F(CheckInputTest, ADrawingWithoutProblemsHasNone) {
    KnowCode(u"BOOM");
    const CheckReport report = Report(Drawing());
    EXPECT_TRUE(report.findings.empty());
    EXPECT_TRUE(IsFlawless(report));
    EXPECT_EQ(ToUtf8(SummaryOf(report)), "Geen problemen gevonden.");
    EXPECT_EQ(report.input, folder / "in.idx");
    EXPECT_EQ(report.modeText, u"IDEX >> NEN1878");
    EXPECT_THAT(report.account, ElementsAre(u"Punten: 1 gelezen, 1 geschreven, 0 weggelaten"));
}

TEST_F(CheckInputTest, EverySingleProblemIsListedByLineAndThoseOfTheWholeFileFirst) {
    KnowCode(u"BOOM");
    const CheckReport report = Report(
        DrawingOf(PointRow(1, "BOOM", "x") + PointRow(2, "EIK") + PointRow(3, "BOOM", "y") + PointRow(4, "EIK", "z")));
    EXPECT_THAT(Lines(report),
                ElementsAre("0 Onbekende code: Puntcode 'EIK' staat niet in de controletabel: 2 maal",
                            "8 Verlies: 1 coördinaat die geen getal is", "10 Verlies: 1 coördinaat die geen getal is",
                            "11 Verlies: 1 coördinaat die geen getal is"));
    EXPECT_EQ(ToUtf8(SummaryOf(report)), "3 keer verlies, 1 onbekende code.");
    EXPECT_FALSE(IsFlawless(report));
}

TEST_F(CheckInputTest, AFileThatIsNoDrawingIsAnError) {
    const CheckReport report = Report("geen tekening");
    ASSERT_FALSE(report.findings.empty());
    EXPECT_EQ(ToUtf8(report.findings[0].sentence), "Geen HEADER gevonden in het IDEX bestand");
    EXPECT_THAT(ToUtf8(SummaryOf(report)), StartsWith("1 fout"));
}

TEST_F(CheckInputTest, AnUnknownCodeIsNamedOnceWithItsCountWhateverTheOptionsSay) {
    options.chkExportUnknowns = false;
    const CheckReport report = Report(DrawingOf(PointRow(1, "EIK") + PointRow(2, "EIK")));
    EXPECT_THAT(Lines(report), ElementsAre("0 Onbekende code: Puntcode 'EIK' staat niet in de controletabel: 2 maal"));
    EXPECT_EQ(ToUtf8(SummaryOf(report)), "1 onbekende code.");
    EXPECT_FALSE(options.chkExportUnknowns);
}

TEST_F(CheckInputTest, WhatTheTableLeavesOutIsNoProblemButIsListed) {
    KnowCode(u"BOOM", u"DUMMY");
    const CheckReport report = Report(Drawing());
    EXPECT_THAT(Lines(report), ElementsAre("8 Instellingen: 1 punt van het type DUMMY"));
    EXPECT_TRUE(IsFlawless(report));
    EXPECT_EQ(ToUtf8(SummaryOf(report)), "Geen problemen gevonden.");
    EXPECT_EQ(ToUtf8(RemarksOf(report)), "Volgens de controletabel en de instellingen: 1 melding.");
}

TEST_F(CheckInputTest, ADrawingOutsideRdIsRemarkedUponAndFlawless) {
    KnowCode(u"BOOM");
    const CheckReport outside = Report(DrawingOf(PointRow(1, "BOOM") + PointRow(2, "BOOM", "400000")));
    EXPECT_TRUE(IsFlawless(outside));
    EXPECT_EQ(ToUtf8(RemarksOf(outside)), "De tekening ligt buiten RD.");
    KnowCode(u"BOOM", u"DUMMY");
    const CheckReport swapped = Report(DrawingOf("1,\"P\",487000,121000,1.5,\"BOOM\",\"\",0;\n"));
    EXPECT_EQ(ToUtf8(RemarksOf(swapped)),
              "De tekening ligt buiten RD; X en Y verwisseld? Volgens de controletabel en de instellingen: 1 melding.");
}

TEST_F(CheckInputTest, TheGridsAsTheyAreOnTheScreenCount) {
    EXPECT_FALSE(IsFlawless(Report(Drawing())));
    KnowCode(u"BOOM");
    EXPECT_TRUE(IsFlawless(Report(Drawing())));
}

TEST_F(CheckInputTest, NothingIsWrittenOrSaved) {
    options.txtMinX = u"42";
    Choose(0, folder.Write("in.idx", Drawing()), u"");
    ASSERT_TRUE(CheckInput(form));
    EXPECT_EQ(folder.Listing(), "in.idx projecten");
    EXPECT_EQ(ProjectNames(), "");
    EXPECT_EQ(TestRegistry::Value(u"Software\\TERAMUND\\KORVANDE", u"MinX"), "(none)");
    EXPECT_EQ(options.txtFileSUFNEN, u"");
    EXPECT_TRUE(form.lastRun.outcome.empty());
}

TEST_F(CheckInputTest, TheFormatIsThatOfTheChosenMode) {
    Choose(2, u"", folder.Write("in.nen", Nen1878()));
    const CheckReport report = CheckInput(form).value();
    EXPECT_EQ(report.modeText, u"NEN1878 >> IDEX");
    EXPECT_THAT(report.account, ElementsAre(u"Punten: 1 gelezen, 1 geschreven, 0 weggelaten"));
    options.txtFileSUFNEN = folder.Write("in2.nen", Drawing());
    EXPECT_FALSE(IsFlawless(CheckInput(form).value()));
}

TEST_F(CheckInputTest, AQuestionOfTheImportIsAProblemAndTheCheckGoesOnWithYes) {
    std::string bytes = Nen1878();
    bytes[bytes.find("\r\n02") + 2 + 6] = '0';
    Choose(2, u"", folder.Write("in.nen", bytes));
    const CheckReport report = CheckInput(form).value();
    EXPECT_TRUE(screen.messages.empty());
    EXPECT_THAT(
        Lines(report),
        ::testing::Contains("2 Vraag: De NEN1878 file lijkt een oud formaat SUF2 bestand te zijn. Als SUF2 verder "
                            "verwerken ? (hier gecontroleerd met Ja)"));
    EXPECT_THAT(ToUtf8(SummaryOf(report)), StartsWith("2 vragen"));
    EXPECT_THAT(report.account, ElementsAre(u"Punten: 1 gelezen, 1 geschreven, 0 weggelaten"));
}

TEST_F(CheckInputTest, AMissingInputIsToldAsByARun) {
    Choose(0, folder / "weg.idx", u"");
    EXPECT_FALSE(CheckInput(form));
    EXPECT_THAT(screen.messages, ElementsAre("Invoerbestand niet gevonden:\n'" + ToUtf8(folder / "weg.idx") + "'"));
    EXPECT_EQ(form.runMark, u"");
}

TEST_F(CheckInputTest, AStoppedCheckReportsNothing) {
    Choose(0, folder.Write("in.idx", Drawing()), u"");
    screen.onPump = [this] {
        EXPECT_TRUE(IsRunning(form));
        StopRun(form);
        EndRunIfAsked(form);
    };
    EXPECT_FALSE(CheckInput(form));
    EXPECT_FALSE(IsRunning(form));
    EXPECT_FALSE(isUnloaded);
    EXPECT_EQ(screen.statuses.back(), "");
    EXPECT_EQ(screen.maxima.back(), 1);
    EXPECT_TRUE(screen.messages.empty());
}

TEST_F(CheckInputTest, AWindowThatIsClosedMeanwhileClosesAfterTheCheckIsBrokenOff) {
    Choose(0, folder.Write("in.idx", Drawing()), u"");
    screen.onPump = [this] {
        EXPECT_FALSE(QueryClose(form));
        EndRunIfAsked(form);
    };
    EXPECT_FALSE(CheckInput(form));
    EXPECT_TRUE(isUnloaded);
    EXPECT_THAT(screen.messages, ElementsAre("Controle afgebroken."));
}

TEST_F(CheckInputTest, ProgressIsShownAndTheWindowHearsOfBeginAndEnd) {
    std::vector<bool> running;
    form.changed = [&] { running.push_back(IsRunning(form)); };
    Report(Drawing());
    EXPECT_THAT(running, ElementsAre(true, false));
    EXPECT_NE(std::find(screen.statuses.begin(), screen.statuses.end(), "Inlezen Punten"), screen.statuses.end());
}

TEST_F(CheckInputTest, AHundredThousandProblemsAreAllListed) {
    KnowCode(u"BOOM");
    std::string rows;
    for (int i = 1; i <= 100000; ++i) rows += PointRow(i, "BOOM", "x");
    const CheckReport report = Report(DrawingOf(rows));
    EXPECT_EQ(report.findings.size(), 100000U);
    EXPECT_EQ(report.findings.back().line, 100007);
    EXPECT_EQ(ToUtf8(SummaryOf(report)), "100000 keer verlies.");
}

TEST_F(CheckInputTest, TheTextHoldsInputSummaryFindingsAndAccount) {
    KnowCode(u"BOOM");
    const CheckReport report = Report(DrawingOf(PointRow(1, "BOOM", "x") + PointRow(2, "BOOM", "y")));
    EXPECT_EQ(ToUtf8(TextOf(report)),
              ToUtf8(folder / "in.idx") +
                  " (IDEX >> NEN1878)\n2 keer verlies.\n\nRegel\tSoort\tMelding\n"
                  "8\tVerlies\t1 coördinaat die geen getal is\n9\tVerlies\t1 coördinaat die geen getal is\n"
                  "\nObjectbalans:\nPunten: 2 gelezen, 2 geschreven, 0 weggelaten\n");
    EXPECT_EQ(ToUtf8(TextOf(report, {1})), "9\tVerlies\t1 coördinaat die geen getal is\n");
}

TEST_F(CheckInputTest, MoreFindingsThanTheListTakesAreCountedAndSaidSo) {
    CheckReport report;
    report.counts = {5, 0, 0, 0, 0};
    report.findings.resize(3);
    EXPECT_EQ(ToUtf8(SummaryOf(report)), "5 fouten.");
    EXPECT_EQ(ToUtf8(RemarksOf(report)), "De eerste 3 staan in de lijst.");
}

}  // namespace

}  // namespace korvande::testing
