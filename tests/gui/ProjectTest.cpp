#include <gmock/gmock.h>
#include <wx/dialog.h>
#include <wx/listbox.h>

#include "tests/gui/WindowTest.h"

namespace korvande::testing {

namespace {

using ::testing::ElementsAre;
using ::testing::HasSubstr;

// What the project dialog shows, in UTF-8.
struct ShownDialog {
    std::string caption;
    std::string explanation;
    std::string prompt;
    std::string name;
    std::string selected;
    bool nameHasFocus = false;
};

class ProjectTest : public WindowTest {
 protected:
    void Open() {
        WriteProject("EEN.NST", "EENDORP");
        WriteProject("TWEE.NST", "TWEESTAD");
        Start();
        ASSERT_EQ(Current(), "EEN.NST");
    }

    // Presses a button; in the dialog that it shows, types a name (none: leaves what stands there) and a key.
    ShownDialog Ask(const char* button, const std::string& name, int key) {
        ShownDialog asked;
        // The window comes to the front a while after each change of project, and without a window manager over a
        // dialog.
        WaitUntil("the window in front", [this] { return !form.Timer1Enabled; });
        dialogs.onDialog = [&, this](wxDialog& dialog) {
            WaitUntil("the dialog", [&] { return dialog.IsShownOnScreen(); });
            simulator.MouseMove(dialog.GetScreenPosition() + dialog.GetSize() / 2);
            auto& box = ControlNamed<wxTextCtrl>(dialog, "txtProjectName");
            WaitUntil("the focus", [&] { return box.HasFocus(); });
            asked = {dialog.GetTitle().utf8_string(),
                     ControlNamed<wxStaticText>(dialog, "lblExplanation").GetLabelText().utf8_string(),
                     ControlNamed<wxStaticText>(dialog, "lblPrompt").GetLabelText().utf8_string(),
                     box.GetValue().utf8_string(),
                     box.GetStringSelection().utf8_string(),
                     box.HasFocus()};
            if (!name.empty()) Keys(name);
            Key(key);
        };
        Press(button);
        dialogs.onDialog = {};
        return asked;
    }

    // The entries of the list, the selected one in brackets.
    std::string ListedProjects() const {
        const auto& list = Find<wxListBox>("File1");
        std::string listed;
        for (unsigned i = 0; i < list.GetCount(); ++i) {
            const std::string name = list.GetString(i).utf8_string();
            listed += static_cast<int>(i) == list.GetSelection() ? "[" + name + "]" : " " + name + " ";
        }
        return listed;
    }
    std::string Current() const { return ToUtf8(form.CurrentProject); }
};

TEST_F(ProjectTest, ANewProjectIsMadeUnderTheTypedNameInCapitals) {
    Open();
    const ShownDialog asked = Ask("cmdNewJob", "proef", WXK_RETURN);
    EXPECT_EQ(asked.caption, "Nieuw Project Aanmaken");
    EXPECT_EQ(asked.explanation, "Er wordt een nieuw project aangemaakt met deze naam.");
    EXPECT_EQ(asked.prompt, "De naam voor het nieuwe project:");
    EXPECT_EQ(asked.name, "");
    EXPECT_TRUE(asked.nameHasFocus);
    EXPECT_EQ(ListedProjects(), " EEN.NST [PROEF.NST] TWEE.NST ");
    EXPECT_EQ(TextOf("txtProject"), "PROEF");
    EXPECT_EQ(TextOf("txtCity"), "EENDORP") << "the owner of the previous project";
    EXPECT_THAT(dialogs.messages, ElementsAre());
}

TEST_F(ProjectTest, ADuplicateIsOfferedUnderTheOldNameAllSelected) {
    Open();
    const ShownDialog asked = Ask("cmdCopyJob", "drie.nst", WXK_RETURN);
    EXPECT_EQ(asked.caption, "Project Dupliceren");
    EXPECT_EQ(asked.explanation, "Het actuele project wordt gedupliceerd naar de nieuwe naam.");
    EXPECT_EQ(asked.prompt, "De naam voor het nieuwe project:");
    EXPECT_EQ(asked.name, "EEN.NST");
    EXPECT_EQ(asked.selected, "EEN.NST");
    EXPECT_EQ(ListedProjects(), "[DRIE.NST] EEN.NST  TWEE.NST ");
    EXPECT_EQ(TextOf("txtCity"), "EENDORP");
}

TEST_F(ProjectTest, ADuplicateUnderTheOldNameIsRefused) {
    Open();
    Ask("cmdCopyJob", "een", WXK_RETURN);
    EXPECT_THAT(dialogs.messages, ElementsAre("Nieuwe naam moet anders zijn dan de oude"));
    EXPECT_THAT(dialogs.titles, ElementsAre("Dupliceren is mislukt"));
    EXPECT_THAT(dialogs.labels, ElementsAre("OK"));
    EXPECT_EQ(Current(), "EEN.NST");
}

TEST_F(ProjectTest, ADuplicateWhoseNameDiffersOnlyInCaseIsRefusedWhereItIsTheSameFile) {
    WriteProject("Een.nst", "EENDORP");
    Start();
    Ask("cmdCopyJob", "een", WXK_RETURN);
    EXPECT_THAT(dialogs.messages, ElementsAre("Nieuwe naam moet anders zijn dan de oude"));
    EXPECT_EQ(ListedProjects(), "[Een.nst]");
    EXPECT_THAT(ProjectBytes("Een.nst"), HasSubstr("Town = EENDORP\r\n"));
}

TEST_F(ProjectTest, ADuplicateWhoseNameDiffersOnlyInCaseIsMadeWhereItIsAnotherFile) {
    WriteProject("Een.nst", "EENDORP");
    Start();
    WriteProject("EEN.NST", "ELDERS");
    dialogs.buttons = {wxID_YES};
    Ask("cmdCopyJob", "een", WXK_RETURN);
    EXPECT_THAT(dialogs.messages, ElementsAre(HasSubstr("Het bestand bestaat al:")));
    EXPECT_EQ(Current(), "EEN.NST");
    EXPECT_EQ(TextOf("txtCity"), "EENDORP");
}

TEST_F(ProjectTest, ADeletedProjectMakesRoomForTheNext) {
    Open();
    const ShownDialog asked = Ask("cmdDelJob", "", WXK_RETURN);
    EXPECT_EQ(asked.caption, "Project Wissen");
    EXPECT_EQ(asked.explanation, "Het project zal permanent worden verwijderd.");
    EXPECT_EQ(asked.prompt, "Dit project wordt gewist:");
    EXPECT_EQ(asked.name, "EEN.NST");
    EXPECT_EQ(ListedProjects(), "[TWEE.NST]");
    EXPECT_EQ(TextOf("txtCity"), "TWEESTAD");
    EXPECT_THAT(dialogs.messages, ElementsAre());
}

TEST_F(ProjectTest, EscapeInAnyDialogLeavesTheFilesUntouched) {
    Open();
    for (const char* const button : {"cmdNewJob", "cmdCopyJob", "cmdDelJob"}) {
        Ask(button, "anders", WXK_ESCAPE);
        EXPECT_EQ(ListedProjects(), "[EEN.NST] TWEE.NST ") << button;
        EXPECT_EQ(ProjectNames(), "EEN.NST TWEE.NST") << button;
        EXPECT_EQ(Current(), "EEN.NST") << button;
    }
}

TEST_F(ProjectTest, AClickOnAProjectLoadsItAndSavesTheOneLeft) {
    Open();
    Type("txtCity", "NIEUWSTAD");
    auto& list = Find<wxListBox>("File1");
    const wxPoint first = list.GetScreenPosition() + window->FromDIP(wxPoint(20, 6));
    // The height of a row is the list's own: go down until the second row is hit.
    for (int y = 0; y < 60 && Current() == "EEN.NST"; y += 6) {
        simulator.MouseMove(first + wxPoint(0, y));
        LetEventsRun();
        simulator.MouseClick();
        LetEventsRun();
    }
    EXPECT_EQ(ListedProjects(), " EEN.NST [TWEE.NST]");
    EXPECT_EQ(TextOf("txtCity"), "TWEESTAD");
    EXPECT_THAT(ProjectBytes("EEN.NST"), HasSubstr("Town = NIEUWSTAD\r\n"));
}

TEST_F(ProjectTest, AProjectThatHasVanishedIsToldAndTheWindowGoesOn) {
    Open();
    std::filesystem::remove(projects + "/TWEE.NST");
    Choose("File1", 1);
    ASSERT_FALSE(dialogs.messages.empty());
    EXPECT_THAT(dialogs.messages[0], HasSubstr("TWEE.NST' niet "));
    EXPECT_EQ(dialogs.labels[0], "Opnieuw Annuleren");
    dialogs.messages.clear();
    Choose("File1", 0);
    EXPECT_EQ(TextOf("txtCity"), "EENDORP");
    EXPECT_THAT(dialogs.messages, ElementsAre());
}

TEST_F(ProjectTest, TheTimerRunsAgainAfterAnOperation) {
    Open();
    WaitUntil("the first time", [this] { return !form.Timer1Enabled; });
    Ask("cmdNewJob", "anders", WXK_ESCAPE);
    EXPECT_TRUE(form.Timer1Enabled);
    WaitUntil("the second time", [this] { return !form.Timer1Enabled; });
}

}  // namespace

}  // namespace korvande::testing
