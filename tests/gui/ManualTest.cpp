#include "ui/Manual.h"

#include <gmock/gmock.h>
#include <wx/clipbrd.h>
#include <wx/grid.h>
#include <wx/listbox.h>

#include <filesystem>

#include "app/TabPlacement.h"
#include "tests/gui/TranslationFixture.h"
#include "ui/LogBookWindow.h"

// The manual, and what else a person takes from the window to other programs.
namespace korvande::testing {

namespace {

using ::testing::ElementsAre;
using ::testing::EndsWith;
using ::testing::HasSubstr;

class ManualTest : public TranslationFixture {
 protected:
    ManualTest() {
        const Text opener =
            folder.Write("bin/xdg-open", "#!/bin/sh\nprintf '%s' \"$1\" >\"$0.deel\"\nmv \"$0.deel\" \"$0.naam\"\n");
        std::filesystem::permissions(ToUtf8(opener), std::filesystem::perms::owner_all);
    }

    // What the system was asked to open since the last time.
    std::string Opened() const {
        const std::string record = folder.Path() + "/bin/xdg-open.naam";
        if (!WaitUntil("the opener", [&] { return std::filesystem::exists(record); })) return {};
        const std::string name = FileBytes(FromUtf8(record));
        std::filesystem::remove(record);
        return name;
    }

    // The page that was opened, which leads to a chapter.
    std::string OpenedPage() const { return FileBytes(FromUtf8(Opened())); }

 private:
    struct Folder {
        explicit Folder(const std::string& name) { std::filesystem::create_directory(name); }
    };
    Folder programs{folder.Path() + "/bin"};
    EnvironmentValue path{"PATH", folder.Path() + "/bin:/usr/bin:/bin"};
    EnvironmentValue cache{"XDG_CACHE_HOME", folder.Path() + "/cache"};
};

TEST_F(ManualTest, F1OpensItAtTheChapterOfTheTab) {
    Open();
    const struct {
        int tab;
        const char* control;
        const char* chapter;
    } places[] = {{tabGeneral, "txtCity", "#venster\""},
                  {tabSettings, "chkExport3D", "#instellingen\""},
                  {tabPoints, "gridPoints", "#codetabellen\""},
                  {tabTexts, "gridTexts", "#codetabellen\""}};
    for (const auto& place : places) {
        SelectTab(place.tab);
        Find<wxWindow>(place.control).SetFocus();
        LetEventsRun();
        Key(WXK_F1);
        const std::string page = OpenedPage();
        EXPECT_THAT(page, HasSubstr("docs/handleiding/handleiding.html")) << place.control;
        EXPECT_THAT(page, HasSubstr(place.chapter)) << place.control;
    }
}

TEST_F(ManualTest, F1InTheLogBookOpensItThere) {
    Open();
    Press("cmdStart");
    Press("cmdShowLogBook");
    auto* const book = wxWindow::FindWindowByName("frmLogBook");
    ASSERT_NE(book, nullptr);
    WaitUntil("the log book", [&] { return book->IsShownOnScreen(); });
    simulator.MouseMove(book->GetScreenPosition() + book->GetSize() / 2);
    WaitUntil("the keyboard in the log book",
              [&] { return wxWindow::FindFocus() != nullptr && wxGetTopLevelParent(wxWindow::FindFocus()) == book; });
    Key(WXK_F1);
    EXPECT_THAT(OpenedPage(), HasSubstr("#logboek\""));
}

TEST_F(ManualTest, F1InThePreviewOpensItThere) {
    Open();
    Press("cmdPreview");
    auto* const preview = wxWindow::FindWindowByName("frmPreview");
    ASSERT_NE(preview, nullptr);
    WaitUntil("the preview", [&] { return preview->IsShownOnScreen(); });
    simulator.MouseMove(preview->GetScreenPosition() + preview->GetSize() / 2);
    WaitUntil("the keyboard in the preview", [&] {
        return wxWindow::FindFocus() != nullptr && wxGetTopLevelParent(wxWindow::FindFocus()) == preview;
    });
    Key(WXK_F1);
    EXPECT_THAT(OpenedPage(), HasSubstr("#voorbeeld\""));
}

TEST_F(ManualTest, TheButtonOpensItAtItsBeginning) {
    Open();
    SelectTab(tabInformation);
    Click("cmdManual");
    EXPECT_THAT(Opened(), EndsWith("docs/handleiding/handleiding.html"));
}

TEST_F(ManualTest, WithoutAPlaceForTheLeadingPageItOpensAtItsBeginning) {
    folder.Write("cache", "geen map");
    Open();
    Key(WXK_F1);
    EXPECT_THAT(Opened(), EndsWith("docs/handleiding/handleiding.html"));
    EXPECT_THAT(dialogs.messages, ElementsAre());
}

TEST_F(ManualTest, AManualThatIsNotThereIsToldWithThePlaceWhereItBelongs) {
    OpenManual(screen, u"venster", FromUtf8(projects));
    EXPECT_THAT(dialogs.messages, ElementsAre("De handleiding is niet gevonden. Ze hoort bij het programma te staan, "
                                              "dat in deze map staat:\n" +
                                              projects));
}

TEST_F(ManualTest, ASystemThatOpensNothingIsTold) {
    const EnvironmentValue nothing("PATH", folder.Path() + "/leeg");
    Open();
    SelectTab(tabInformation);
    Press("cmdManual");
    EXPECT_THAT(dialogs.LastMessage(), HasSubstr("De handleiding kan niet worden geopend:\n"));
}

TEST_F(ManualTest, TheFolderOfTheProjectsOpens) {
    Open();
    SelectTab(tabInformation);
    Click("cmdOpenProjects");
    EXPECT_EQ(Opened(), projects + "/");
}

TEST_F(ManualTest, TheFactsAndTheOutcomeCanBeSelectedAndCopied) {
    Open();
    Press("cmdStart");
    const auto copied = [this](const char* name) {
        Find<wxTextCtrl>(name).SetFocus();
        LetEventsRun();
        simulator.Char('A', wxMOD_CONTROL);
        simulator.Char('C', wxMOD_CONTROL);
        LetEventsRun();
        wxTextDataObject data;
        const wxClipboardLocker clipboard;
        return wxTheClipboard->GetData(data) ? data.GetText().utf8_string() : "(none)";
    };
    EXPECT_THAT(copied("lblOutcome"), EndsWith("objecten vertaald, 591 weggelaten, 0 fouten — straat.sfn"));
    SelectTab(tabInformation);
    EXPECT_EQ(copied("txtProjectFolder"), projects + "/");
    EXPECT_EQ(copied("txtLiscadData"), "C:\\LISCAD\\Data\\");
    EXPECT_EQ(copied("txtLiscadVersion"), "5.1");
    EXPECT_EQ(copied("txtOwnVersion"), "8.01.064");
    Keys("x");
    EXPECT_EQ(TextOf("txtOwnVersion"), "8.01.064");
}

}  // namespace

}  // namespace korvande::testing
