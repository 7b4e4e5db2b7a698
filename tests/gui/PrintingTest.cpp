#include <gmock/gmock.h>
#include <wx/button.h>

#include <algorithm>
#include <charconv>
#include <cmath>
#include <filesystem>
#include <optional>
#include <regex>
#include <sstream>

#include "app/Listing.h"
#include "tests/gui/PrintServer.h"
#include "tests/gui/WindowTest.h"
#include "tests/support/RunProgram.h"

namespace korvande::testing {

namespace {

using ::testing::_;
using ::testing::ElementsAre;

using Page = std::vector<Text>;

// A word on a page: its place in points from the upper left corner.
struct Word {
    double left;
    double right;
    double top;
    Text text;

    double CharacterWidth() const { return (right - left) / static_cast<double>(text.size()); }
};

// With a decimal point, in every locale.
double Number(const std::string& digits) {
    double number = 0;
    std::from_chars(digits.data(), digits.data() + digits.size(), number);
    return number;
}

// The lines of a page with these words: each word at its column, an empty line where there is none. All
// characters are equally wide and all lines equally high, so the narrowest step between two lines is a line's height.
Page LinesOf(std::vector<Word> words) {
    std::sort(words.begin(), words.end(), [](const Word& one, const Word& other) {
        return std::pair(std::lround(one.top), one.left) < std::pair(std::lround(other.top), other.left);
    });
    double height = 100;
    for (std::size_t i = 1; i < words.size(); ++i) {
        const double step = words[i].top - words[i - 1].top;
        if (step > 1) height = std::min(height, step);
    }
    Page lines;
    for (const Word& word : words) {
        const auto line = static_cast<std::size_t>(std::lround((word.top - words.front().top) / height));
        const auto column = static_cast<std::size_t>(std::lround(word.left / word.CharacterWidth()));
        lines.resize(std::max(lines.size(), line + 1));
        lines[line].resize(std::max(lines[line].size(), column), u' ');
        lines[line] += word.text;
    }
    return lines;
}

// The log book printed by the window on a printer, and read back from the PDF that the printer got.
class PrintingTest : public WindowTest {
 protected:
    static void SetUpTestSuite() { printServer.emplace(); }
    static void TearDownTestSuite() { printServer.reset(); }

    PrintingTest() { WindowTest::Start(); }

    // Prints a log book of these lines (in Windows-1252).
    void Print(const std::string& lines) { PrintLogBook(screen, folder.Write("proef.LOG", WithCrLf(lines))); }

    void ExpectThatItCannotBePrinted() const {
        EXPECT_THAT(dialogs.messages, ElementsAre("Het logboek kan niet worden afgedrukt. Het is opgeslagen in:\n\n" +
                                                  ToUtf8(folder / "proef.LOG")));
        EXPECT_TRUE(FileIsThere(folder / "proef.LOG"));
    }

    // What a program tells about the document printed last.
    static std::string Ask(const char* program, std::vector<std::string> arguments) {
        const ProgramResult result = RunProgram({program, std::move(arguments)});
        EXPECT_EQ(result.status, 0) << program << ": " << result.error;
        return result.output;
    }

    static std::vector<std::vector<Word>> WordsOf(const std::string& document) {
        static const std::regex word(R"x(xMin="([0-9.]+)" yMin="([0-9.]+)" xMax="([0-9.]+)" .*>(.*)</word>)x");
        std::vector<std::vector<Word>> pages;
        std::istringstream lines(Ask("pdftotext", {"-bbox", "-enc", "UTF-8", document, "-"}));
        std::string line;
        std::smatch found;
        while (std::getline(lines, line)) {
            if (line.find("<page") != std::string::npos) pages.emplace_back();
            if (!std::regex_search(line, found, word)) continue;
            pages.back().push_back({Number(found[1]), Number(found[3]), Number(found[2]), FromUtf8(found[4].str())});
        }
        return pages;
    }

    static std::vector<Page> PagesOf(const std::string& document) {
        std::vector<Page> pages;
        for (auto& words : WordsOf(document)) pages.push_back(LinesOf(std::move(words)));
        return pages;
    }

    static std::optional<PrintServer> printServer;
};

std::optional<PrintServer> PrintingTest::printServer;

TEST_F(PrintingTest, TheWindowOfALogBookPrintsItAndKeepsTheFile) {
    const Text name = folder.Write("proef.LOG", WithCrLf("ge\xEBxporteerd\ntweede\n"));
    ASSERT_TRUE(screen.ViewTextFile(name));
    auto* const book = wxWindow::FindWindowByName("frmLogBook");
    ASSERT_NE(book, nullptr);
    auto& button = ControlNamed<wxButton>(*book, "cmdPrintLogBook");
    wxCommandEvent event(wxEVT_BUTTON, button.GetId());
    event.SetEventObject(&button);
    button.ProcessWindowEvent(event);
    const std::vector<Page> pages = PagesOf(printServer->TakeDocument());
    EXPECT_THAT(dialogs.messages, ElementsAre());
    ASSERT_EQ(pages.size(), 1U);
    ASSERT_GE(pages[0].size(), 3U);
    EXPECT_EQ(pages[0][2], u"geëxporteerd");
    EXPECT_TRUE(FileIsThere(name));
}

TEST_F(PrintingTest, TwoHundredLinesFillSeveralPages) {
    std::string lines;
    for (int i = 1; i <= 200; ++i) lines += "Regel " + std::to_string(i) + "\n";
    Print(lines);
    const std::vector<Page> pages = PagesOf(printServer->TakeDocument());
    EXPECT_THAT(dialogs.messages, ElementsAre());
    ASSERT_GE(pages.size(), 3U);
    const Text heading(34, u' ');
    int number = 0;
    for (std::size_t page = 0; page < pages.size(); ++page) {
        const Page& printed = pages[page];
        ASSERT_GE(printed.size(), 3U);
        EXPECT_EQ(printed[0], Concat(heading, page == 0 ? TextView(u"Pagina: ") : TextView(u"Pagina:"), page + 1));
        EXPECT_EQ(printed[1], u"");
        if (page + 1 < pages.size()) {
            EXPECT_EQ(printed.size(), pages[0].size()) << "as full as the first";
        }
        for (std::size_t line = 2; line < printed.size() && number < 200; ++line) {
            EXPECT_EQ(printed[line], Concat(u"Regel ", ++number));
        }
    }
    EXPECT_EQ(number, 200);
    ASSERT_GE(pages.back().size(), 2U);
    EXPECT_EQ(pages.back().back(), Concat(Text(24, u' '), u"----- Einde van de lijst -----"));
    EXPECT_EQ(pages.back()[pages.back().size() - 2], u"");
    EXPECT_FALSE(FileIsThere(folder / "proef.LOG"));
}

TEST_F(PrintingTest, AShortLogBookIsOnePageWithItsAccents) {
    Print("Co\xF6rdinaat van het\nre\xEBle punt \x80\n");
    EXPECT_THAT(PagesOf(printServer->TakeDocument()),
                ElementsAre(ElementsAre(_, u"", u"Coördinaat van het", u"reële punt €", u"", _)));
}

// Courier New stands for any font of its widths: a character is six tenths of the font's size wide.
TEST_F(PrintingTest, TheFontIsCourierNewOfTenPoints) {
    Print("WWWWWWWWWWWWWWWWWWWW\niiiiiiiiiiiiiiiiiiii\n");
    const std::string document = printServer->TakeDocument();
    const auto pages = WordsOf(document);
    ASSERT_EQ(pages.size(), 1U);
    int found = 0;
    for (const Word& word : pages[0]) {
        if (word.text.size() != 20) continue;
        EXPECT_NEAR(word.CharacterWidth(), 6, 0.05);
        ++found;
    }
    EXPECT_EQ(found, 2);
    EXPECT_THAT(Ask("pdffonts", {document}), ::testing::ContainsRegex("Mono|Courier"));
}

TEST_F(PrintingTest, APrinterThatTakesNoJobsKeepsTheLogBookAndAMessageNamesIt) {
    Ask("/usr/sbin/cupsreject", {"proef"});
    Print("regel\n");
    Ask("/usr/sbin/cupsaccept", {"proef"});
    ExpectThatItCannotBePrinted();
}

TEST_F(PrintingTest, APrinterThatRefusesTheKindOfDocumentKeepsTheLogBookAndAMessageNamesIt) {
    Ask("/usr/sbin/lpadmin", {"-d", "vreemd"});
    Print("regel\n");
    Ask("/usr/sbin/lpadmin", {"-d", "proef"});
    ExpectThatItCannotBePrinted();
}

TEST_F(PrintingTest, WithoutADefaultPrinterAMessageNamesTheLogBookAtOnce) {
    const Text answers = folder.Write("lpstat", "#!/bin/sh\necho 'no system default destination'\n");
    std::filesystem::permissions(ToUtf8(answers), std::filesystem::perms::owner_all);
    const EnvironmentValue path("PATH", folder.Path());
    Print("regel\n");
    ExpectThatItCannotBePrinted();
}

TEST_F(PrintingTest, WithoutAPrintingSystemAMessageNamesTheLogBookAtOnce) {
    const EnvironmentValue path("PATH", folder.Path());
    Print("regel\n");
    ExpectThatItCannotBePrinted();
}

}  // namespace

}  // namespace korvande::testing
