#include "app/Listing.h"

#include <chrono>
#include <thread>

#include "app/RunTranslation.h"
#include "tests/app/AppTest.h"

namespace korvande::testing {

namespace {

// Longer than the time for which the program lets no events run.
constexpr auto betweenEvents = std::chrono::milliseconds(60);

std::vector<Text> Lines(int count) {
    std::vector<Text> lines;
    for (int i = 1; i <= count; ++i) lines.push_back(Concat(u"Regel ", i));
    return lines;
}

const Text firstHeading = Concat(Text(34, u' '), u"Pagina: 1");
const Text endLine = Concat(Text(24, u' '), u"----- Einde van de lijst -----");

TEST(Listing, AShortLogBookIsOnePage) {
    EXPECT_EQ(ListingPages(Lines(2), 60),
              (std::vector<std::vector<Text>>{{firstHeading, u"", u"Regel 1", u"Regel 2", u"", endLine}}));
}

TEST(Listing, AnEmptyLogBookIsAHeadingAndAnEnd) {
    EXPECT_EQ(ListingPages({}, 60), (std::vector<std::vector<Text>>{{firstHeading, u"", u"", endLine}}));
}

TEST(Listing, LaterHeadingsHaveNoBlankBeforeTheNumber) {
    const auto pages = ListingPages(Lines(200), 60);
    ASSERT_EQ(pages.size(), 4U);
    EXPECT_EQ(pages[1][0], Concat(Text(34, u' '), u"Pagina:2"));
    EXPECT_EQ(pages[3][0], Concat(Text(34, u' '), u"Pagina:4"));
    for (const auto& page : pages) EXPECT_EQ(page[1], u"");
}

TEST(Listing, TwoHundredLinesFillPagesOfOneLineLessThanThePaperHolds) {
    const auto pages = ListingPages(Lines(200), 60);
    ASSERT_EQ(pages.size(), 4U);
    for (std::size_t i = 0; i < 3; ++i) EXPECT_EQ(pages[i].size(), 59U) << i;
    EXPECT_EQ(pages[0].back(), u"Regel 57");
    EXPECT_EQ(pages[1][2], u"Regel 58");
    EXPECT_EQ(pages[3].size(), 2U + 200U - 3U * 57U + 2U);
    EXPECT_EQ(pages[3].back(), endLine);
}

TEST(Listing, EveryLineIsPrintedOnceAndInOrder) {
    const auto lines = Lines(200);
    std::vector<Text> printed;
    for (const auto& page : ListingPages(lines, 23)) printed.insert(printed.end(), page.begin() + 2, page.end());
    ASSERT_EQ(printed.size(), lines.size() + 2);
    printed.resize(lines.size());
    EXPECT_EQ(printed, lines);
}

TEST(Listing, ThePageIsTurnedWhenItIsFullAndNotBefore) {
    constexpr int linesPerPage = 10;  // seven lines of the log book
    const auto notFull = ListingPages(Lines(6), linesPerPage);
    ASSERT_EQ(notFull.size(), 1U);
    EXPECT_EQ(notFull[0].size(), 10U);  // the end lines fill the paper
    const auto full = ListingPages(Lines(7), linesPerPage);
    ASSERT_EQ(full.size(), 2U);
    EXPECT_EQ(full[0].size(), 9U);
    EXPECT_EQ(full[1], (std::vector<Text>{Concat(Text(34, u' '), u"Pagina:2"), u"", u"", endLine}));
}

TEST(Listing, PaperWithoutRoomGetsALineAPage) {
    EXPECT_EQ(ListingPages(Lines(3), 0).size(), 4U);
    EXPECT_EQ(ListingPages(Lines(3), 3).size(), 4U);
}

class PrintLogBookTest : public ::testing::Test {
 protected:
    void WriteLogBook(int lineCount) const {
        std::string text;
        for (const Text& line : Lines(lineCount)) text += ToUtf8(line) + "\r\n";
        folder.Write("uit.LOG", text);
    }
    void Print() { PrintLogBook(screen, folder / "uit.LOG"); }

    TestFolder folder;
    RecordingScreen screen;
};

TEST_F(PrintLogBookTest, APrintedLogBookIsDeleted) {
    WriteLogBook(200);
    Print();
    EXPECT_EQ(screen.printed, ListingPages(Lines(200), screen.linesPerPage));
    EXPECT_FALSE(FileIsThere(folder / "uit.LOG"));
    EXPECT_TRUE(screen.messages.empty());
}

TEST_F(PrintLogBookTest, AccentsArePrintedAsTheyAre) {
    folder.Write("uit.LOG", "Caf\xE9 \x80 1\r\n");
    Print();
    ASSERT_EQ(screen.printed.size(), 1U);
    EXPECT_EQ(screen.printed[0][2], u"Caf\u00E9 \u20AC 1");
}

TEST_F(PrintLogBookTest, AListingThatFailsToPrintKeepsTheLogBookAndNamesIt) {
    WriteLogBook(2);
    screen.printerWorks = false;
    Print();
    EXPECT_TRUE(FileIsThere(folder / "uit.LOG"));
    EXPECT_EQ(screen.messages,
              std::vector<std::string>{"Het logboek kan niet worden afgedrukt. Het is opgeslagen in:\n\n" +
                                       ToUtf8(folder / "uit.LOG")});
}

TEST_F(PrintLogBookTest, AVanishedLogBookIsTold) {
    Print();
    EXPECT_TRUE(screen.printed.empty());
    EXPECT_EQ(screen.messages, std::vector<std::string>{"Het logboek kan niet worden afgedrukt:\n" +
                                                        ToUtf8(folder / "uit.LOG") + "\nBestand niet gevonden"});
}

TEST_F(PrintLogBookTest, TheWindowGetsItsEventsWhileTheLogBookIsRead) {
    WriteLogBook(200);
    std::this_thread::sleep_for(betweenEvents);
    Print();
    EXPECT_GE(screen.pumps, 1);
}

// A run with a listing to the printer, in its order.
class PrintingRunTest : public AppRunTest {
 protected:
    PrintingRunTest() {
        SelectReport(options, &Options::optReportPrinter);
        Choose(0, folder.Write("in.idx", Drawing()), folder / "uit.sfn");
    }

    bool LogBookIsFinished() const {
        return FileIsThere(folder / "uit.LOG") && FileBytes(folder / "uit.LOG").find("Gereed:") != std::string::npos;
    }
};

TEST_F(PrintingRunTest, AListingToThePrinterIsPrintedAndLeavesNoLogBook) {
    RunTranslation(form);
    ASSERT_EQ(screen.printed.size(), 1U);
    EXPECT_NE(ToUtf8(screen.printed[0][3]).find("  -  Logboek ---"), std::string::npos);
    EXPECT_EQ(screen.messages, std::vector<std::string>{"Verwerking gereed"});
    EXPECT_FALSE(FileIsThere(folder / "uit.LOG"));
    EXPECT_TRUE(FileIsThere(folder / "uit.sfn"));
}

TEST_F(PrintingRunTest, WithoutAPrinterTheLogBookStaysAndTheRunIsDone) {
    screen.printerWorks = false;
    RunTranslation(form);
    ASSERT_EQ(screen.messages.size(), 2U);
    EXPECT_NE(screen.messages[0].find(ToUtf8(folder / "uit.LOG")), std::string::npos);
    EXPECT_EQ(screen.messages[1], "Verwerking gereed");
    EXPECT_TRUE(FileIsThere(folder / "uit.LOG"));
}

TEST_F(PrintingRunTest, ARunThatIsToEndWhileItPrintsKeepsItsLogBookAndEndsTheProgram) {
    bool isUnloaded = false;
    form.unload = [&] { isUnloaded = true; };
    screen.onPump = [&] {
        if (!LogBookIsFinished()) return std::this_thread::sleep_for(betweenEvents);
        AskEndOfRun(form);
        EndRunIfAsked(form);
    };
    RunTranslation(form);
    EXPECT_TRUE(isUnloaded);
    EXPECT_TRUE(screen.printed.empty());
    EXPECT_TRUE(screen.messages.empty());
    EXPECT_TRUE(FileIsThere(folder / "uit.LOG"));
    EXPECT_EQ(form.runMark, u"");
}

}  // namespace

}  // namespace korvande::testing
