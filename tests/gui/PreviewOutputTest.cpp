#include <gmock/gmock.h>
#include <wx/button.h>
#include <wx/checkbox.h>
#include <wx/dialog.h>
#include <wx/radiobut.h>

#include <optional>
#include <sstream>
#include <utility>
#include <vector>

#include "tests/gui/PreviewFixture.h"
#include "tests/gui/PrintServer.h"
#include "tests/support/RunProgram.h"

// What is shown, as a picture in a file and on paper.
namespace korvande::testing {

namespace {

using ::testing::AllOf;
using ::testing::HasSubstr;
using ::testing::Not;
using ::testing::StartsWith;

// A page as it comes out of the printer, in tenths of a millimetre. A page that lies is kept on paper that stands, with
// its left side below.
class PaperPage {
 public:
    static constexpr int dotsPerInch = 254;

    PaperPage(const std::string& picture, bool itIsTurned) : isTurned(itIsTurned) {
        std::istringstream reader(picture);
        std::string kind;
        int brightest = 0;
        reader >> kind >> across >> down >> brightest;
        dots.assign(picture, picture.size() - static_cast<std::size_t>(across) * static_cast<std::size_t>(down));
    }
    int Width() const { return isTurned ? down : across; }
    int Height() const { return isTurned ? across : down; }
    bool IsDark(int x, int y) const {
        const int column = isTurned ? y : x;
        const int row = isTurned ? down - 1 - x : y;
        constexpr unsigned char half = 128;
        return static_cast<unsigned char>(dots[static_cast<std::size_t>(row * across + column)]) < half;
    }
    // The first and the last dark place of a row and of a column.
    std::pair<int, int> EndsOfRow(int y, int from, int to) const {
        return Ends(from, to, [&](int x) { return IsDark(x, y); });
    }
    std::pair<int, int> EndsOfColumn(int x, int from, int to) const {
        return Ends(from, to, [&](int y) { return IsDark(x, y); });
    }

 private:
    template <class Dark>
    static std::pair<int, int> Ends(int from, int to, const Dark& isDark) {
        std::pair<int, int> ends(-1, -1);
        for (int place = from; place < to; ++place) {
            if (!isDark(place)) continue;
            if (ends.first < 0) ends.first = place;
            ends.second = place;
        }
        return ends;
    }

    bool isTurned;
    int across = 0;
    int down = 0;
    std::string dots;
};

class PreviewOutputTest : public PreviewFixture {
 protected:
    static void SetUpTestSuite() { printServer.emplace(); }
    static void TearDownTestSuite() { printServer.reset(); }

    std::string Saved(const std::string& name) {
        dialogs.files = {folder / name};
        PressHere("cmdSavePreview");
        return FileBytes(folder / name);
    }
    // The document that comes out of the printer, at the scale of an option.
    std::string Document(const char* option, bool isLandscape) {
        Preview()->printing.asksPrinter = AsksPrinter::No;
        dialogs.onDialog = [&](wxDialog& dialog) {
            ControlNamed<wxRadioButton>(dialog, option).SetValue(true);
            ControlNamed<wxCheckBox>(dialog, "chkLandscape").SetValue(isLandscape);
            dialog.EndModal(wxID_OK);
        };
        PressHere("cmdPrintPreview");
        dialogs.onDialog = {};
        return printServer->TakeDocument();
    }
    static std::string Ask(const char* program, std::vector<std::string> arguments) {
        const ProgramResult result = RunProgram({program, std::move(arguments)});
        EXPECT_EQ(result.status, 0) << program << ": " << result.error;
        return result.output;
    }
    // The text of a page, which lies.
    std::string Printed(const char* option) { return Ask("pdftotext", {"-enc", "UTF-8", Document(option, true), "-"}); }
    // The page at 1:500, as a person holds the paper.
    PaperPage Page(bool isLandscape) {
        const std::string name = folder.Path() + "/blad";
        Ask("pdftoppm", {"-r", std::to_string(PaperPage::dotsPerInch), "-gray", "-singlefile",
                         Document("optScale500", isLandscape), name});
        return PaperPage(FileBytes(folder / "blad.pgm"), isLandscape);
    }

    static std::optional<PrintServer> printServer;
};

std::optional<PrintServer> PreviewOutputTest::printServer;

TEST_F(PreviewOutputTest, WhatIsSeenIsSavedAsSvgWithoutTheHiddenCodes) {
    Open();
    ShowPreview(Street());
    EXPECT_THAT(Saved("beeld.svg"), AllOf(HasSubstr("data-code=\"RAAR\""), HasSubstr("data-code=\"MUUR\"")));
    ControlNamed<CodeList>(*Preview(), "lstCodes").ShowAllCodes(false);
    EXPECT_THAT(Saved("leeg.svg"), AllOf(StartsWith("<?xml"), Not(HasSubstr("data-code"))));
}

TEST_F(PreviewOutputTest, APngIsAtLeast1600PixelsWideAndANameWithoutAnExtensionIsAnSvg) {
    Open();
    ShowPreview(Street());
    const std::string png = Saved("beeld.png");
    ASSERT_THAT(png, StartsWith("\x89PNG"));
    const auto byte = [&png](std::size_t place) { return static_cast<unsigned char>(png[place]); };
    EXPECT_GE(byte(18) * 256 + byte(19), 1600);
    dialogs.files = {folder / "zonder"};
    PressHere("cmdSavePreview");
    EXPECT_THAT(FileBytes(folder / "zonder.svg"), StartsWith("<?xml"));
}

TEST_F(PreviewOutputTest, ANameThatTheDialogDidNotAskAboutIsAskedAboutBeforeAFileIsReplaced) {
    Open();
    ShowPreview(Street());
    folder.Write("blad.svg", "vorige week");
    dialogs.files = {folder / "blad"};
    dialogs.buttons = {wxID_NO};
    PressHere("cmdSavePreview");
    EXPECT_EQ(dialogs.LastMessage(), "Het bestand bestaat al:\n" + ToUtf8(folder / "blad.svg") + "\nVervangen?");
    EXPECT_EQ(FileBytes(folder / "blad.svg"), "vorige week");
    dialogs.files = {folder / "blad"};
    dialogs.buttons = {wxID_YES};
    PressHere("cmdSavePreview");
    EXPECT_THAT(FileBytes(folder / "blad.svg"), StartsWith("<?xml"));
}

TEST_F(PreviewOutputTest, ADrawingIsSavedAsAGeoPackageAsAWholeAndAComparisonIsNot) {
    Open();
    ShowPreview(Street());
    dialogs.buttons = {wxID_YES};
    EXPECT_EQ(Saved("geheel.gpkg").substr(68, 4), "GPKG");
    EXPECT_THAT(dialogs.fileQuestions.back().wildcard, HasSubstr("|GeoPackage (*.gpkg)|*.gpkg"));
}

TEST_F(PreviewOutputTest, ADrawingIsPrintedToScale) {
    Open();
    ShowPreview(Street());
    EXPECT_THAT(Printed("optScale500"), AllOf(HasSubstr("1:500"), HasSubstr("klein.idx"), HasSubstr("20 m")));
    EXPECT_THAT(Printed("optScale1000"), AllOf(HasSubstr("1:1000"), HasSubstr("50 m")));
    EXPECT_THAT(Printed("optScaleFit"), HasSubstr("klein.idx"));
}

// Half a millimetre is what a person with a scale ruler sees.
TEST_F(PreviewOutputTest, APageLiesRightOnPaperThatStandsAndOnPaperThatLies) {
    constexpr int near = 5;
    Open();
    ShowPreview(Street());
    for (const bool isLandscape : {false, true}) {
        SCOPED_TRACE(isLandscape ? "lies" : "stands");
        const PaperPage page = Page(isLandscape);
        ASSERT_NEAR(page.Width(), isLandscape ? 2970 : 2100, near);
        ASSERT_NEAR(page.Height(), isLandscape ? 2100 : 2970, near);
        // The frame leaves 15 mm free, and 12 mm more for what stands below it. Neither drawing nor legend is at 20 mm.
        const std::pair<int, int> across = page.EndsOfRow(200, 0, page.Width());
        const std::pair<int, int> down = page.EndsOfColumn(200, 0, page.Height() - 150 - 120 + 2 * near);
        EXPECT_NEAR(across.first, 150, near);
        EXPECT_NEAR(across.second, page.Width() - 150, near);
        EXPECT_NEAR(down.first, 150, near);
        EXPECT_NEAR(down.second, page.Height() - 150 - 120, near);
        // The wall of 40 m, seen along its middle.
        int wall = page.Height() / 2;
        while (wall < down.second - 50 && !page.IsDark(page.Width() / 2 + 300, wall)) ++wall;
        const std::pair<int, int> ends = page.EndsOfRow(wall, 200, page.Width() - 200);
        EXPECT_NEAR(ends.second - ends.first, 800, near);
        EXPECT_NEAR(ends.first + ends.second, page.Width(), 2 * near);
    }
}

TEST_F(PreviewOutputTest, AComparisonIsSavedAndPrintedWithWhatDiffersInItsColours) {
    Open();
    Type("txtFileIDEX", ToUtf8(Street()));
    Type("txtFileSUFNEN", ToUtf8(folder / "klein.sfn"));
    Press("cmdStart");
    Press("cmdCompare");
    WaitForDrawing();
    const std::string svg = Saved("verschillen.svg");
    EXPECT_EQ(dialogs.fileQuestions.back().title, "Tekening opslaan");
    EXPECT_THAT(dialogs.fileQuestions.back().wildcard, Not(HasSubstr("gpkg")));
    EXPECT_THAT(svg, AllOf(HasSubstr("data-code=\"MUUR\""), HasSubstr("id=\"V-gewijzigd"), Not(HasSubstr("#d00000"))));
    EXPECT_THAT(Saved("verschillen.png"), StartsWith("\x89PNG"));
    EXPECT_THAT(Printed("optScaleFit"), AllOf(HasSubstr("klein.sfn over klein.idx"), HasSubstr("oranje: gewijzigd")));
}

TEST_F(PreviewOutputTest, ControlSAndControlPSaveAndPrint) {
    Open();
    ShowPreview(Street());
    FocusOn(View());
    dialogs.files = {folder / "toets.svg"};
    simulator.Char('S', wxMOD_CONTROL);
    WaitUntil("the picture", [this] { return FileIsThere(folder / "toets.svg"); });
    bool isAsked = false;
    dialogs.onDialog = [&](wxDialog& dialog) {
        isAsked = dialog.GetName() == "frmPrintChoice";
        dialog.EndModal(wxID_CANCEL);
    };
    simulator.Char('P', wxMOD_CONTROL);
    WaitUntil("the question", [&] { return isAsked; });
    LetEventsRun();
    dialogs.onDialog = {};
}

}  // namespace

}  // namespace korvande::testing
