#include <cmath>

#include "tests/nensuf/ImportTest.h"

namespace korvande::testing {

namespace {

using ImportHeader = ImportTest;

// The point that two raw coordinate values become.
std::string PointOf(std::string_view fields) { return Point("P10", fields); }

TEST_F(ImportHeader, CoordinatesOfAUsualFileAreMillimetres) {
    Import(PointOf(At(121000123, 487000456, -1789)));
    EXPECT_EQ(Points(), "|BOOM|121000.123 487000.456 -1.789|0.0000\n");
}

TEST_F(ImportHeader, ThePrecisionDigitOfNen1878StandsInColumn7) {
    for (int digit = 1; digit <= 9; ++digit) {
        Import(PointOf(At(1000000, 0)), FirstLine() + SecondLine("0102" + std::to_string(digit) + "5"));
        EXPECT_NEAR(translation.drawing.Points[1].East, 1000000 * std::pow(10, digit - 4), 1e-6) << digit;
    }
}

TEST_F(ImportHeader, ThePrecisionDigitOfSuf2StandsInColumn8) {
    translation.mode.variant = Variant::Suf2;
    for (int digit = 0; digit <= 9; ++digit) {
        screen.answers = {Answer::No};
        Import(PointOf(At(1000000, 0)), FirstLine() + SecondLine("01029" + std::to_string(digit)));
        EXPECT_NEAR(translation.drawing.Points[1].East, 1000000 * std::pow(10, digit - 4), 1e-6) << digit;
        screen.answers.clear();
    }
}

TEST_F(ImportHeader, APrecisionThatIsNoDigitCountsAsZero) {
    Import(PointOf(At(20000, 0)), FirstLine() + SecondLine("0102X5"));
    EXPECT_EQ(Points(), "|BOOM|2.000 0.000 0.000|0.0000\n");
}

TEST_F(ImportHeader, TheFiveHeaderValuesMoveAndScaleCoordinates) {
    Import(PointOf(At(1000, 2000, 3000)), FirstLine() + SecondLine("010225", "120", "480.5", "0.5", "-1", "2"));
    EXPECT_EQ(Points(), "|BOOM|120005.000 480510.000 -940.000|0.0000\n");
}

TEST_F(ImportHeader, OfAHeaderValueTheLeadingNumberCounts) {
    Import(PointOf(At(1000, 1000)), FirstLine() + SecondLine("010215", "1km", "", "2E0x", "abc", "1"));
    EXPECT_EQ(Points(), "|BOOM|1002.000 2.000 0.000|0.0000\n");
}

TEST_F(ImportHeader, ValuesThatAShortSecondLineLacksAreZero) {
    Import(PointOf(At(1000, 1000, 1000)), FirstLine() + "020102154321         2\r\n");
    EXPECT_EQ(Points(), "|BOOM|2000.000 0.000 0.000|0.0000\n");
}

TEST_F(ImportHeader, HeaderLinesAreReadAsTheyStand) {
    Import(PointOf(At(1000, 1000)), "01kort\r\n02010215    " + std::string(20, ' ') + "         1" +
                                        std::string(20, ' ') + std::string(40, '7') + "\r\n");
    EXPECT_EQ(Points(), "|BOOM|1.000 1.000 0.000|0.0000\n");
}

TEST_F(ImportHeader, AHeaderValueBeyondAllNumbersEndsTheImport) {
    Import(PointOf(At(1000, 1000)), FirstLine() + SecondLine("010215", "9E307"));
    EXPECT_EQ(LogText(), "FOUT:  Overloop (regel 2)\n");
    EXPECT_EQ(Points(), "");
}

TEST_F(ImportHeader, TheProjectNameStandsInColumns39To62) {
    Import("", FirstLine(std::string(36, ' ') + " Kruispunt caf\xE9 Noord  ") + SecondLine("010215"));
    EXPECT_EQ(ToUtf8(translation.ProjectName), "Kruispunt café Noord");
    Import("", FirstLine(std::string(35, ' ') + "xHeel het kruispunt Noord") + SecondLine("010215"));
    EXPECT_EQ(ToUtf8(translation.ProjectName), "Heel het kruispunt Noord");
}

TEST_F(ImportHeader, WithoutAProjectNameColumns3To14AreTheName) {
    Import("", FirstLine("  Plan Zuid    202405") + SecondLine("010215"));
    EXPECT_EQ(ToUtf8(translation.ProjectName), "Plan Zuid");
    Import("", FirstLine("Plan Oost 23x   202405") + SecondLine("010215"));
    EXPECT_EQ(ToUtf8(translation.ProjectName), "Plan Oost 23");
}

std::string DateOf(const std::optional<DateTime>& date) { return date ? CompactDate(*date) : "-"; }

TEST_F(ImportHeader, TheProjectDateIsTheFirstDayOfTheMonthInColumns22To27) {
    Import("", FirstLine("0NEN1878    V199901202312") + SecondLine("010215"));
    EXPECT_EQ(DateOf(translation.ProjectDate), "20231201");
}

TEST_F(ImportHeader, AProjectDateThatIsNoneIsToday) {
    for (const std::string date :
         {"      ", "202300", "202313", " 20231", "2023 1", "-20231", "+20231", "2023AB", ""}) {
        Import("", FirstLine("0NEN1878    V199901" + date) + SecondLine("010215"));
        EXPECT_EQ(DateOf(translation.ProjectDate), "20240515") << date;
    }
    Import("", "010NEN1878    V1999012312\r\n" + SecondLine("010215"));
    EXPECT_EQ(DateOf(translation.ProjectDate), "20240515");
}

TEST_F(ImportHeader, NameAndDateOfAnEarlierImportAreForgotten) {
    Import("", FirstLine(std::string(36, ' ') + "Eerste") + SecondLine("010215"));
    ImportBytes("geen kop\r\n");
    EXPECT_EQ(ToUtf8(translation.ProjectName), "");
    EXPECT_EQ(DateOf(translation.ProjectDate), "-");
}

TEST_F(ImportHeader, TheDrawingOfAnEarlierImportIsForgotten) {
    translation.options.chkExportUnknowns = true;
    Import(PointOf(At(1, 2)) + Point("ONB", At(1, 2)) + Line("B10", At(1, 1) + At(2, 2)) +
           TextGroups("Z10", At(1, 1), "Kade"));
    ASSERT_EQ(translation.unknowns.Entries().size(), 1U);
    Import("");
    EXPECT_EQ(Points() + Lines() + Edges() + Texts(), "");
    EXPECT_EQ(translation.drawing.PointIndex.UpperBound(), 0);
    EXPECT_EQ(translation.unknowns.Entries().size(), 0U);
}

void ExpectMessage(const MessageBox& box, std::string_view text) {
    EXPECT_EQ(ToUtf8(box.text), text);
    EXPECT_EQ(ToUtf8(box.title), "");
    EXPECT_EQ(box.icon, Icon::None);
    EXPECT_EQ(box.buttons, Buttons::Ok);
}

TEST_F(ImportHeader, AFirstLineThatIsNo01RecordEndsTheImport) {
    for (const Variant variant : {Variant::Nen1878, Variant::Suf2}) {
        for (const std::string& first :
             {std::string(), "1" + std::string(61, ' ') + "\r\n", std::string(5, 'x') + FirstLine().substr(1)}) {
            translation.mode.variant = variant;
            translation.outcome = {};
            screen.boxes.clear();
            ImportBytes(first + SecondLine("010215") + PointOf(At(1, 2)));
            ASSERT_EQ(screen.boxes.size(), 1U);
            ExpectMessage(screen.boxes[0], "NEN1878 bestand bevat geen '01' (KOP) record.");
            EXPECT_TRUE(translation.outcome.wrongFormat);
            EXPECT_EQ(Points(), "");
        }
    }
    const std::string line = "FOUT:  NEN1878 bestand bevat geen '01' (KOP) record.\n";
    EXPECT_EQ(LogText(), line + line + line + line + line + line);
}

TEST_F(ImportHeader, AnEmptyFileHasNo01Record) {
    for (const std::string bytes : {"", "\r\n", " \r\n\t\r\n  "}) {
        screen.messages.clear();
        ImportBytes(bytes);
        EXPECT_EQ(screen.messages, std::vector<std::string>{"NEN1878 bestand bevat geen '01' (KOP) record."});
    }
}

// The two usual header lines, each changed.
template <typename Change>
std::string ChangedHeader(Change change) {
    return change(FirstLine(std::string(36, ' ') + "Noord")) + change(SecondLine("010225", "1"));
}

TEST_F(ImportHeader, LinesThatLackTheirZeroOrHaveABlankForItAreReadAsIfTheyHadIt) {
    const std::string wanted = "|BOOM|1010.000 20.000 0.000|0.0000\n";
    const auto without = [](const std::string& line) { return line.substr(1); };
    const auto withBlank = [](const std::string& line) { return " " + line.substr(1); };
    const auto longer = [](const std::string& line) { return "1234 6" + line; };
    const auto longerWithBlank = [](const std::string& line) { return "000001 " + line.substr(1); };
    const auto padded = [](const std::string& line) { return " " + line.substr(1, 63) + "   \r\n"; };
    for (const std::string& header :
         {ChangedHeader(without), ChangedHeader(withBlank), ChangedHeader(longer), ChangedHeader(longerWithBlank),
          ChangedHeader(padded), "\r\n\t \r\n" + ChangedHeader(without)}) {
        screen.messages.clear();
        Import(PointOf(At(1000, 2000)), header);
        EXPECT_EQ(screen.messages, std::vector<std::string>()) << header;
        EXPECT_EQ(Points(), wanted) << header;
        EXPECT_EQ(ToUtf8(translation.ProjectName), "Noord") << header;
    }
}

TEST_F(ImportHeader, ALongerLineThatBeginsWithItsTypeIsTakenAsItStands) {
    const std::string second = SecondLine("010225", "1");
    Import(PointOf(At(1000, 2000)), FirstLine() + second.substr(0, 64) + "020102\r\n");
    EXPECT_EQ(Points(), "|BOOM|1010.000 20.000 0.000|0.0000\n");
}

TEST_F(ImportHeader, AnErrorInAHeaderLineThatLacksItsZeroIsToldWithItsLine) {
    Import(PointOf(At(1000, 1000)), "\r\n" + FirstLine() + SecondLine("010215", "9E307").substr(1));
    EXPECT_EQ(LogText(), "FOUT:  Overloop (regel 3)\n");
}

TEST_F(ImportHeader, ASecondLineThatIsNo02RecordEndsTheImport) {
    for (const Variant variant : {Variant::Nen1878, Variant::Suf2}) {
        for (const std::string& second : {std::string(), Record("03M"), "\r\n" + SecondLine("010215")}) {
            translation.mode.variant = variant;
            translation.outcome = {};
            screen.boxes.clear();
            ImportBytes(FirstLine() + second + PointOf(At(1, 2)));
            ASSERT_EQ(screen.boxes.size(), 1U);
            ExpectMessage(screen.boxes[0], "NEN1878 bestand bevat geen '02' (KOP) record.");
            EXPECT_TRUE(translation.outcome.wrongFormat);
            EXPECT_EQ(Points(), "");
        }
    }
    const std::string line = "FOUT:  NEN1878 bestand bevat geen '02' (KOP) record.\n";
    EXPECT_EQ(LogText(), line + line + line + line + line + line);
}

TEST_F(ImportHeader, AnInputThatCannotBeOpenedIsReportedAndTheOutputOpenedAllTheSame) {
    translation.SufNenFileName = folder / "weg.sfn";
    translation.IdexFileName = folder / "uit.idx";
    translation.outputTo = OutputTo::File;
    ImportNenSuf(translation);
    ASSERT_EQ(screen.boxes.size(), 1U);
    ExpectMessage(screen.boxes[0], "Error:53 - Bestand niet gevonden\n" + folder.Path() + "/weg.sfn");
    EXPECT_TRUE(translation.outcome.inputUnreadable);
    EXPECT_TRUE(translation.output.IsOpen());
    EXPECT_EQ(LogText(), "FOUT:  Error:53 - Bestand niet gevonden " + folder.Path() + "/weg.sfn\n");
}

TEST_F(ImportHeader, AnOutputThatCannotBeOpenedIsReportedAndTheFileReadAllTheSame) {
    translation.IdexFileName = FromUtf8(folder.Path());
    translation.outputTo = OutputTo::File;
    Import(PointOf(At(1000, 2000)));
    ASSERT_EQ(screen.boxes.size(), 1U);
    const std::string message = ToUtf8(screen.boxes[0].text);
    ExpectMessage(screen.boxes[0], message);
    EXPECT_EQ(message.substr(0, message.find(' ')), "Error:75");
    EXPECT_EQ(message.substr(message.find('\n')), "\n" + folder.Path());
    EXPECT_TRUE(translation.outcome.outputFailed);
    EXPECT_FALSE(translation.output.IsOpen());
    EXPECT_EQ(Points(), "|BOOM|1.000 2.000 0.000|0.0000\n");
    std::string line = "FOUT:  " + message + "\n";
    line[line.find('\n')] = ' ';
    EXPECT_EQ(LogText(), line);
}

TEST_F(ImportHeader, NeitherFileCanBeOpened) {
    translation.SufNenFileName = folder / "weg.sfn";
    translation.IdexFileName = FromUtf8(folder.Path());
    translation.outputTo = OutputTo::File;
    ImportNenSuf(translation);
    EXPECT_EQ(screen.boxes.size(), 2U);
    EXPECT_TRUE(translation.outcome.inputUnreadable);
    EXPECT_TRUE(translation.outcome.outputFailed);
}

TEST_F(ImportHeader, TheStatusTellsTheStepsAndTheVariant) {
    Import("");
    EXPECT_EQ(screen.statuses, (std::vector<std::string>{"Inlezen NEN1878", "Opschonen Puntnummers"}));
    screen.statuses.clear();
    translation.mode.variant = Variant::Suf2;
    Import("", Suf2Header());
    EXPECT_EQ(screen.statuses, (std::vector<std::string>{"Inlezen SUF2", "Opschonen Puntnummers"}));
}

TEST_F(ImportHeader, BehindTheLastRecordNoLineIsBeingRead) {
    Import(PointOf(At(1, 1)));
    EXPECT_EQ(translation.inputLine, 0);
}

TEST_F(ImportHeader, ProgressIsCountedInBlocksOfTheFileAndThenInPoints) {
    const std::string bytes = NenHeader() + PointOf(At(1, 1)) + PointOf(At(2, 2)) + PointOf(At(3, 3));
    ImportBytes(bytes);
    const auto length = static_cast<std::int64_t>(bytes.size());
    EXPECT_EQ(screen.maxima, (std::vector<std::int64_t>{length / 128 + 1, 3}));
    screen.maxima.clear();
    Import("");
    EXPECT_EQ(screen.maxima, (std::vector<std::int64_t>{3 * 66 / 128 + 1, 1}));
}

}  // namespace

}  // namespace korvande::testing
