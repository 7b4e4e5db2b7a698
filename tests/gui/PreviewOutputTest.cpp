#include <gmock/gmock.h>
#include <wx/button.h>
#include <wx/dialog.h>
#include <wx/radiobut.h>

#include <optional>

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

class PreviewOutputTest : public PreviewFixture {
 protected:
    static void SetUpTestSuite() { printServer.emplace(); }
    static void TearDownTestSuite() { printServer.reset(); }

    std::string Saved(const std::string& name) {
        dialogs.files = {folder / name};
        PressHere("cmdSavePreview");
        return FileBytes(folder / name);
    }
    // The text of a page that comes out of the printer, at the scale of an option.
    std::string Printed(const char* option) {
        Preview()->printing.asksPrinter = AsksPrinter::No;
        dialogs.onDialog = [&](wxDialog& dialog) {
            ControlNamed<wxRadioButton>(dialog, option).SetValue(true);
            dialog.EndModal(wxID_OK);
        };
        PressHere("cmdPrintPreview");
        dialogs.onDialog = {};
        const ProgramResult result = RunProgram({"pdftotext", {"-enc", "UTF-8", printServer->TakeDocument(), "-"}});
        EXPECT_EQ(result.status, 0) << result.error;
        return result.output;
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

TEST_F(PreviewOutputTest, ADrawingIsPrintedToScale) {
    Open();
    ShowPreview(Street());
    EXPECT_THAT(Printed("optScale500"), AllOf(HasSubstr("1:500"), HasSubstr("klein.idx"), HasSubstr("20 m")));
    EXPECT_THAT(Printed("optScale1000"), AllOf(HasSubstr("1:1000"), HasSubstr("50 m")));
    EXPECT_THAT(Printed("optScaleFit"), HasSubstr("klein.idx"));
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
