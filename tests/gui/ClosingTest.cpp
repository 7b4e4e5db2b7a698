#include <gmock/gmock.h>
#include <wx/dirdlg.h>

#include <utility>

#include "tests/gui/WindowTest.h"

// What closing the window does with a project that another program changed meanwhile, and a start without LISCAD.
namespace korvande::testing {

namespace {

using ::testing::ElementsAre;
using ::testing::StartsWith;

class ClosingTest : public WindowTest {
 protected:
    // Both the window and another program change the project.
    void Open() {
        WriteProject("EEN.NST", "EENDORP");
        Start();
        Type("txtCity", "HIER");
        WriteProject("EEN.NST", "ELDERS");
    }

    bool Holds(const std::string& project, const std::string& town) const {
        return ProjectBytes(project).find("Town = " + town + "\r\n") != std::string::npos;
    }

    // From outside, as a session that ends.
    void EndSession() {
        window->Close(true);
        LetEventsRun();
    }
};

TEST_F(ClosingTest, CancelAtTheQuestionKeepsTheWindowAndWhatWasTyped) {
    Open();
    dialogs.buttons = {wxID_CANCEL};
    EXPECT_FALSE(window->Close());
    LetEventsRun();
    EXPECT_THAT(dialogs.messages, ElementsAre(StartsWith("Het project EEN is door een ander programma gewijzigd")));
    ASSERT_TRUE(IsOpen());
    EXPECT_EQ(TextOf("txtCity"), "HIER");
    EXPECT_TRUE(Holds("EEN.NST", "ELDERS"));
    dialogs.buttons = {wxID_YES};
    Close();
    EXPECT_FALSE(IsOpen());
    EXPECT_TRUE(Holds("EEN.NST", "HIER"));
}

TEST_F(ClosingTest, TheEndOfTheSessionAsksNothingAndLosesNothing) {
    Open();
    EndSession();
    EXPECT_FALSE(IsOpen());
    EXPECT_THAT(dialogs.messages, ElementsAre());
    EXPECT_TRUE(Holds("EEN.NST", "ELDERS"));
    EXPECT_TRUE(Holds("EEN (2).NST", "HIER"));
}

TEST_F(ClosingTest, TheEndOfTheSessionBehindAMessageLosesNothingEither) {
    Open();
    Type("txtFileIDEX", "/weg.idx");
    bool hasEnded = false;
    dialogs.onShownMessage = [this, &hasEnded] {
        if (std::exchange(hasEnded, true)) return;
        window->Close(true);
        Key(WXK_ESCAPE);
    };
    Press("cmdStart");
    dialogs.onShownMessage = {};
    EXPECT_TRUE(hasEnded);
    EXPECT_TRUE(Holds("EEN (2).NST", "HIER"));
}

TEST_F(ClosingTest, WithoutLiscadAFolderIsChosenAndTheWindowOpensOnIt) {
    const EnvironmentValue noLiscad("KORVANDE_REGISTRY", folder.Path() + "/leeg.reg");
    dialogs.buttons = {wxID_OK, wxID_YES};
    std::string title;
    dialogs.onDialog = [&](wxDialog& dialog) {
        auto& chooser = dynamic_cast<wxDirDialog&>(dialog);
        title = chooser.GetTitle().utf8_string();
        const wxString chosen = wxString::FromUTF8(projects);
        chooser.SetPath(chosen);
        WaitUntil("the folder in the dialog", [&] { return chooser.GetPath() == chosen; });
        wxCommandEvent ok(wxEVT_BUTTON, wxID_OK);
        chooser.ProcessWindowEvent(ok);
    };
    Start();
    dialogs.onDialog = {};
    EXPECT_EQ(title, "Map voor de projecten");
    EXPECT_EQ(dialogs.messages.size(), 2U);
    ASSERT_TRUE(IsOpen());
    EXPECT_EQ(TextOf("txtProject"), "Leeg Project");
    EXPECT_EQ(ProjectNames(), "Leeg Project.nst");
}

}  // namespace

}  // namespace korvande::testing
