#include <gmock/gmock.h>
#include <wx/dirdlg.h>

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

TEST_F(ClosingTest, WithoutLiscadADialogAsksForAFolderAndCancelEndsTheProgram) {
    const EnvironmentValue noLiscad("KORVANDE_REGISTRY", folder.Path() + "/leeg.reg");
    dialogs.buttons = {wxID_OK, wxID_YES};
    std::string asked;
    dialogs.onDialog = [&asked](wxDialog& dialog) {
        asked = dynamic_cast<wxDirDialog&>(dialog).GetMessage().utf8_string();
        dialog.EndModal(wxID_CANCEL);
    };
    Start();
    dialogs.onDialog = {};
    EXPECT_EQ(asked, "Map voor de projecten");
    EXPECT_EQ(dialogs.messages.size(), 2U);
    EXPECT_FALSE(IsOpen());
    EXPECT_FALSE(FileIsThere(folder / "leeg.reg"));
}

}  // namespace

}  // namespace korvande::testing
