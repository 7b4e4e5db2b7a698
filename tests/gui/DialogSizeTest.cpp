#include <gmock/gmock.h>
#include <wx/app.h>
#include <wx/button.h>
#include <wx/dialog.h>
#include <wx/display.h>
#include <wx/dnd.h>

#include <functional>

#include "tests/gui/Layout.h"
#include "tests/gui/PreviewFixture.h"

// The windows and dialogs beside the main one, with a text of any size.
namespace korvande::testing {

namespace {

using ::testing::IsEmpty;

// What a window manager puts to the left and right of a window at most.
constexpr int frameRoom = 16;

class DialogSizeTest : public PreviewFixture {
 protected:
    static void ExpectWholeOnTheDisplay(const wxWindow& shown) {
        const std::string name = shown.GetName().utf8_string();
        WaitUntil(name + " on the screen", [&] { return shown.IsShownOnScreen(); });
        const wxRect display = wxDisplay(&shown).GetClientArea();
        const bool fits = WaitUntil(name + " on the display", [&] { return display.Contains(shown.GetScreenRect()); });
        const wxRect place = shown.GetScreenRect();
        // Also when the frame turns out wider than was known when the window was made.
        EXPECT_LE(shown.GetClientSize().x + frameRoom, display.width) << name;
        EXPECT_TRUE(fits) << place.x << "," << place.y << " " << place.width << "x" << place.height;
        WaitUntil("room for all of " + name, [&] { return CutControls(shown).empty(); });
        EXPECT_THAT(CutControls(shown), IsEmpty());
    }

    // The same of a window that stands beside the main one, which is then closed.
    static void ExpectWholeBeside(const char* name) {
        wxWindow* const shown = wxWindow::FindWindowByName(name);
        ASSERT_NE(shown, nullptr) << name;
        ExpectWholeOnTheDisplay(*shown);
        shown->Destroy();
    }

    // The same of the dialog that a button opens.
    void ExpectWholeDialog(const char* button) {
        ExpectWholeDialog([this, button] { Press(button); });
    }
    void ExpectWholeDialog(const std::function<void()>& open) {
        int looks = 0;
        dialogs.onDialog = [&looks](wxDialog& dialog) {
            ++looks;
            ExpectWholeOnTheDisplay(dialog);
            dialog.EndModal(wxID_CANCEL);
        };
        open();
        EXPECT_EQ(looks, 1);
        dialogs.onDialog = {};
    }
};

TEST_F(DialogSizeTest, NothingIsCutInTheDialogForAName) {
    Open();
    ExpectWholeDialog("cmdNewJob");
}

TEST_F(DialogSizeTest, NothingIsCutInTheOutcomeAndItsDialogs) {
    Open();
    Press("cmdStart");
    ExpectWholeOnTheDisplay(*window);
    ExpectWholeDialog("cmdShowOverview");
    ExpectWholeDialog("cmdUnknownCodes");
}

TEST_F(DialogSizeTest, NothingIsCutInTheLogBook) {
    Open();
    SelectReport(form.project.options, &Options::optReportScreen);
    Press("cmdStart");
    ExpectWholeBeside("frmLogBook");
}

TEST_F(DialogSizeTest, NothingIsCutInTheCheck) {
    Open();
    Press("cmdCheck");
    ExpectWholeBeside("frmCheck");
}

TEST_F(DialogSizeTest, NothingIsCutInThePreviewAndItsDialogs) {
    Open();
    ShowPreview(Street());
    ExpectWholeOnTheDisplay(*Preview());
    ExpectWholeDialog([] { PressHere("cmdPreviewUnknown"); });
    ExpectWholeDialog([] { PressHere("cmdPrintPreview"); });
}

TEST_F(DialogSizeTest, NothingIsCutInTheComparison) {
    Open();
    Press("cmdStart");
    Press("cmdCompare");
    WaitForDrawing();
    ExpectWholeOnTheDisplay(*Preview());
}

TEST_F(DialogSizeTest, NothingIsCutInABatchAndItsOutcomes) {
    Open();
    int looks = 0;
    dialogs.onDialog = [&looks](wxDialog& dialog) {
        ++looks;
        ExpectWholeOnTheDisplay(dialog);
        auto& translate = ControlNamed<wxButton>(dialog, "cmdTranslateBatch");
        wxCommandEvent event(wxEVT_BUTTON, translate.GetId());
        event.SetEventObject(&translate);
        translate.ProcessWindowEvent(event);
    };
    wxArrayString dropped;
    for (const Text& name : {folder / "straat.idx", LargeDrawing(3)}) dropped.push_back(ToWx(name));
    dynamic_cast<wxFileDropTarget&>(*window->GetDropTarget()).OnDropFiles(0, 0, dropped);
    wxTheApp->ProcessPendingEvents();
    EXPECT_EQ(looks, 1);
    ExpectWholeBeside("frmBatchOutcomes");
}

}  // namespace

}  // namespace korvande::testing
