#include <wx/choice.h>
#include <wx/gauge.h>
#include <wx/grid.h>
#include <wx/notebook.h>
#include <wx/radiobut.h>

#include <gmock/gmock.h>
#include <unistd.h>

#include <filesystem>
#include <fstream>
#include <set>

#include "core/NativePath.h"
#include "tests/gui/TranslationFixture.h"

namespace korvande::testing {

namespace {

using ::testing::ElementsAre;
using ::testing::HasSubstr;

class TranslationTest : public TranslationFixture {};

TEST_F(TranslationTest, FromChoosingTheFilesToTheFinishedLogBook) {
    Start();
    dialogs.files = {folder / "straat.idx", folder / "uitvoer.sfn"};
    Click("cmdBrowseIDEX");
    Click("cmdBrowseSUFNEN");
    ASSERT_EQ(dialogs.fileQuestions.size(), 2U);
    EXPECT_EQ(dialogs.fileQuestions[0].title, "Inlezen IDEX bestand");
    EXPECT_TRUE(dialogs.fileQuestions[0].opens);
    EXPECT_EQ(dialogs.fileQuestions[0].wildcard, "IDEX bestanden (*.IDX)|*.idx;*.IDX|Alle bestanden (*.*)|*.*");
    EXPECT_EQ(dialogs.fileQuestions[1].title, "Opslaan SUF2/NEN1878 bestand");
    EXPECT_FALSE(dialogs.fileQuestions[1].opens);
    EXPECT_EQ(TextOf("txtFileIDEX"), ToUtf8(folder / "straat.idx"));
    EXPECT_EQ(TextOf("txtFileSUFNEN"), ToUtf8(folder / "uitvoer.sfn"));
    Click("optReportDisk");
    Click("cmdStart");
    EXPECT_THAT(dialogs.messages, ElementsAre(KeptMessage("uitvoer.LOG"), SampleIsTranslated()));
    EXPECT_EQ(FileBytes(folder / "uitvoer.sfn").substr(0, 3), "010");
    const std::string log = LogBookText("uitvoer.LOG");
    EXPECT_THAT(log, HasSubstr("\n     Bewerking:  IDEX >> NEN1878\n     Start:      "));
    EXPECT_THAT(log, HasSubstr("\n     Gereed:     "));
    EXPECT_EQ(log.find("FOUT"), std::string::npos);
    EXPECT_EQ(ToUtf8(form.runMark), "");
}

TEST_F(TranslationTest, EveryModeOfTheListTranslates) {
    Open();
    struct Mode {
        int index;
        const char* outputBox;
        const char* begin;
    };
    for (const Mode& mode : {Mode{0, "txtFileSUFNEN", "010NEN1878"}, Mode{2, "txtFileIDEX", "HEADER"},
                             Mode{1, "txtFileSUFNEN", "010     "}, Mode{3, "txtFileIDEX", "HEADER"}}) {
        Choose("cboXlateMode", mode.index);
        LetEventsRun();
        // What is there is replaced.
        dialogs.buttons = {wxID_YES, wxID_YES};
        Press("cmdStart");
        EXPECT_THAT(dialogs.LastMessage(), ::testing::AnyOf("Verwerking gereed", HasSubstr(" is vertaald, met ")));
        const std::string output = NativePath(FromUtf8(TextOf(mode.outputBox)));
        EXPECT_THAT(FileBytes(FromUtf8(output)), ::testing::StartsWith(mode.begin)) << mode.index;
    }
}

TEST_F(TranslationTest, AnEmptyOutputNameIsFilledInInTheWindow) {
    Open();
    Type("txtFileSUFNEN", "");
    Press("cmdStart");
    EXPECT_EQ(TextOf("txtFileSUFNEN"), ToUtf8(folder / "straat.SFN"));
    EXPECT_TRUE(FileIsThere(folder / "straat.SFN"));
}

TEST_F(TranslationTest, TheStatusBarAndTheGaugeShowHowFarItIs) {
    Open();
    // Large enough for several looks, however fast the machine is.
    Type("txtFileIDEX", ToUtf8(LargeDrawing(200000)));
    std::set<std::string> steps;
    std::set<int> values;
    Looking looking([&] {
        steps.insert(window->GetStatusBar()->GetStatusText(0).utf8_string());
        values.insert(Find<wxGauge>("ProgressBar1").GetValue());
    });
    Press("cmdStart");
    EXPECT_EQ(dialogs.LastMessage(), "Verwerking gereed");
    EXPECT_TRUE(steps.contains("Inlezen Punten")) << ::testing::PrintToString(steps);
    EXPECT_GT(values.size(), 1U) << ::testing::PrintToString(values);
    EXPECT_LE(*values.rbegin(), Find<wxGauge>("ProgressBar1").GetRange());
    EXPECT_EQ(window->GetStatusBar()->GetStatusText(0), "");
    EXPECT_EQ(Find<wxGauge>("ProgressBar1").GetValue(), 0);
}

TEST_F(TranslationTest, WhileItRunsTheOptionsAreDisabled) {
    Open();
    const char* const names[] = {"cmdStart", "File1", "cmdNewJob", "txtFileIDEX", "gridPoints", "chkExport3D"};
    auto& tabs = Find<wxNotebook>("tabs");
    std::set<std::string> disabled;
    DuringTheRun([&] {
        EXPECT_EQ(ToUtf8(form.runMark), "XLATE RUNNING");
        for (size_t page = tabs.GetPageCount(); page-- > 0;) {
            tabs.SetSelection(page);
            for (const char* const name : names) {
                if (!Find<wxWindow>(name).IsShownOnScreen()) continue;
                EXPECT_FALSE(Find<wxWindow>(name).IsEnabled()) << name;
                disabled.insert(name);
            }
        }
    });
    Press("cmdStart");
    EXPECT_EQ(disabled.size(), std::size(names)) << ::testing::PrintToString(disabled);
    for (const char* const name : names) EXPECT_TRUE(Find<wxWindow>(name).IsEnabled()) << name;
}

TEST_F(TranslationTest, ClosingWhileItRunsBreaksItOff) {
    Open();
    Type("txtFileIDEX", ToUtf8(LargeDrawing(200000)));
    DuringTheRun([this] { window->Close(); });
    Press("cmdStart");
    EXPECT_THAT(dialogs.messages, ElementsAre("Vertaling afgebroken."));
    EXPECT_THAT(LogBookText(), HasSubstr("\n==>  Vertaling afgebroken.\n"));
    WaitUntil("the end of the window", [this] { return !IsOpen(); });
}

TEST_F(TranslationTest, TheOptionsOnTheScreenAreInTheControlTableOfTheRun) {
    Open();
    Type("txtCity", "LUTTEVEEN");
    Press("cmdStart");
    EXPECT_THAT(ProjectBytes("voorbeeld.nst"), HasSubstr("Town = LUTTEVEEN\r\n"));
    EXPECT_THAT(FileBytes(folder / "straat.sfn"), HasSubstr("LUTTEVEEN"));
}

TEST_F(TranslationTest, AnEditUnderWayCountsInTheRun) {
    Open();
    auto& editor = Find<wxTextCtrl>("txtEditPointCell");
    SelectTab(2);
    Find<wxGrid>("gridPoints").SetFocus();
    Keys("NIEUW");
    ASSERT_TRUE(editor.IsShown());
    SelectTab(1);
    Click("cmdStart");
    EXPECT_THAT(ProjectBytes("voorbeeld.nst"), HasSubstr("Unknown = NIEUW, "));
}

TEST_F(TranslationTest, WithoutALogBookNoFileRemains) {
    Open();
    Type("txtFileIDEX", ToUtf8(LargeDrawing(10)));
    Click("optReportNone");
    Press("cmdStart");
    EXPECT_THAT(dialogs.messages, ElementsAre("Verwerking gereed"));
    EXPECT_FALSE(FileIsThere(folder / "straat.LOG"));
}

TEST_F(TranslationTest, ASecondRunAfterAFailedOneSucceeds) {
    Open();
    Type("txtFileIDEX", ToUtf8(folder / "weg.idx"));
    Press("cmdStart");
    EXPECT_THAT(dialogs.messages, ElementsAre("Invoerbestand niet gevonden:\n'" + ToUtf8(folder / "weg.idx") + "'"));
    EXPECT_EQ(ToUtf8(form.runMark), "XLATE RUNNING") << "the mark stays behind";
    EXPECT_TRUE(Find<wxButton>("cmdStart").IsEnabled());
    Type("txtFileIDEX", ToUtf8(folder / "straat.idx"));
    Click("cmdStart");
    EXPECT_EQ(dialogs.LastMessage(), SampleIsTranslated());
    EXPECT_TRUE(FileIsThere(folder / "straat.sfn"));
}

// Resident memory in bytes, and the number of open files, of this program.
struct Resources {
    std::int64_t memory = 0;
    std::ptrdiff_t files = 0;
};
Resources UsedNow() {
    std::int64_t whole = 0;
    std::int64_t resident = 0;
    std::ifstream("/proc/self/statm") >> whole >> resident;
    const std::filesystem::directory_iterator files("/proc/self/fd");
    return {resident * ::sysconf(_SC_PAGESIZE), std::distance(begin(files), end(files))};
}

TEST_F(TranslationTest, TenTranslationsInARowLeaveMemoryAndFilesWhereTheyWere) {
    Open();
    Type("txtFileIDEX", ToUtf8(LargeDrawing(20000)));
    const auto translate = [this] {
        dialogs.messages.clear();
        Press("cmdStart");
        ASSERT_EQ(dialogs.LastMessage(), "Verwerking gereed");
    };
    // The first ones fill the library's own caches.
    for (int i = 0; i < 3; ++i) translate();
    const Resources before = UsedNow();
    for (int i = 0; i < 10; ++i) translate();
    const Resources after = UsedNow();
    EXPECT_EQ(after.files, before.files);
    constexpr std::int64_t oneDrawing = std::int64_t{20000} * 232;
    EXPECT_LT(after.memory - before.memory, oneDrawing);
}

TEST_F(TranslationTest, TheMarkOfAMissingInputDoesNotKeepTheWindowOpen) {
    Open();
    Type("txtFileIDEX", ToUtf8(folder / "weg.idx"));
    Press("cmdStart");
    Close();
    EXPECT_EQ(dialogs.LastMessage(), "Vertaling afgebroken.");
    EXPECT_FALSE(IsOpen());
}

TEST_F(TranslationTest, RetryOpensALogBookThatCouldNotBeOpened) {
    Open();
    Type("txtFileSUFNEN", ToUtf8(folder / "map/straat.sfn"));
    dialogs.buttons = {wxID_OK, wxID_OK};
    int asked = 0;
    dialogs.onMessage = [&] {
        if (++asked == 2) std::filesystem::create_directory(folder.Path() + "/map");
    };
    Press("cmdStart");
    ASSERT_EQ(dialogs.messages.size(), 4U);
    EXPECT_THAT(dialogs.messages[0], ::testing::StartsWith("Kon bestand: '" + ToUtf8(folder / "map/straat.LOG") +
                                                           "' niet opslaan;\nFoutcode: 76\n"));
    EXPECT_EQ(dialogs.labels[0], "Opnieuw Annuleren");
    EXPECT_EQ(dialogs.messages[1], dialogs.messages[0]);
    EXPECT_EQ(dialogs.LastMessage(), SampleIsTranslated());
    EXPECT_TRUE(FileIsThere(folder / "map/straat.sfn"));
}

TEST_F(TranslationTest, CancelEndsARunWhoseLogBookCannotBeOpened) {
    Open();
    Type("txtFileSUFNEN", ToUtf8(folder / "map/straat.sfn"));
    dialogs.buttons = {wxID_CANCEL};
    Press("cmdStart");
    EXPECT_EQ(dialogs.messages.size(), 1U);
    EXPECT_EQ(ToUtf8(form.runMark), "");
    EXPECT_TRUE(Find<wxButton>("cmdStart").IsEnabled());
}

TEST_F(TranslationTest, AnInputThatVanishesAfterTheStartIsToldAndLogged) {
    Open();
    Type("txtFileSUFNEN", ToUtf8(folder / "map/straat.sfn"));
    dialogs.buttons = {wxID_OK};
    dialogs.onMessage = [&] {
        std::filesystem::create_directory(folder.Path() + "/map");
        std::filesystem::remove(folder.Path() + "/straat.idx");
    };
    Press("cmdStart");
    const std::string name = ToUtf8(folder / "straat.idx");
    ASSERT_GE(dialogs.messages.size(), 2U);
    EXPECT_EQ(dialogs.messages[1],
              "Bestand: " + name + " niet gevonden.\nGebruik [Bladeren...] om het juiste bestand te zoeken.");
    EXPECT_THAT(LogBookText("map/straat.LOG"),
                HasSubstr("==>  Bestand: " + name + " niet gevonden; verwerking afgebroken.\n"));
}

TEST_F(TranslationTest, InputAndOutputMayNotBeTheSameFile) {
    Open();
    Type("txtFileSUFNEN", ToUtf8(folder / "straat.idx"));
    Press("cmdStart");
    EXPECT_THAT(dialogs.messages,
                ElementsAre("Invoer en uitvoer zijn hetzelfde bestand:\n" + ToUtf8(folder / "straat.idx")));
}

TEST_F(TranslationTest, TablesWhoseLastRowWasDeletedLeaveTheirObjectsOut) {
    Open();
    for (Grid FormKORVANDE::*cells : {&FormKORVANDE::gridPoints, &FormKORVANDE::gridLines, &FormKORVANDE::gridTexts}) {
        (form.*cells).SetRowCount(1);
    }
    window->ShowForm();
    Press("cmdStart");
    EXPECT_EQ(dialogs.LastMessage(), SampleIsTranslated());
    EXPECT_THAT(LogBookText(), HasSubstr("GEEN"));
    EXPECT_EQ(FileBytes(folder / "straat.sfn").find("\n03"), std::string::npos);
}

TEST_F(TranslationTest, TheViewerGetsTheLogBook) {
    const Text viewer =
        folder.Write("kijker", "#!/bin/sh\nprintf '%s' \"$1\" >\"$0.naam.deel\"\nmv \"$0.naam.deel\" \"$0.naam\"\n");
    std::filesystem::permissions(ToUtf8(viewer), std::filesystem::perms::owner_all);
    const EnvironmentValue variable("KORVANDE_VIEWER", ToUtf8(viewer));
    Open();
    Choose("cboLogBookViewer", 1);
    Click("optReportScreen");
    Press("cmdStart");
    EXPECT_THAT(dialogs.messages, ElementsAre(SampleIsTranslated()));
    WaitUntil("the viewer", [this] { return FileIsThere(folder / "kijker.naam"); });
    EXPECT_EQ(FileBytes(folder / "kijker.naam"), ToUtf8(folder / "straat.LOG"));
}

TEST_F(TranslationTest, WithoutAViewerAMessageNamesTheLogBook) {
    const EnvironmentValue variable("KORVANDE_VIEWER", ToUtf8(folder / "geen-kijker"));
    Open();
    Choose("cboLogBookViewer", 1);
    Click("optReportScreen");
    Press("cmdStart");
    EXPECT_THAT(dialogs.messages,
                ElementsAre(SampleIsTranslated(), "Het logboek kan niet worden getoond. Het is opgeslagen in:\n\n" +
                                                      ToUtf8(folder / "straat.LOG")));
    EXPECT_TRUE(FileIsThere(folder / "straat.LOG"));
}

TEST_F(TranslationTest, TheFinishedMessageIsAnsweredWithEnter) {
    Open();
    Type("txtFileIDEX", ToUtf8(LargeDrawing(10)));
    dialogs.onShownMessage = [this] {
        simulator.MouseMove(window->GetScreenPosition() + window->GetSize() / 2);
        simulator.Char(WXK_RETURN);
    };
    Click("optReportNone");
    Press("cmdStart");
    EXPECT_THAT(dialogs.messages, ElementsAre("Verwerking gereed"));
    EXPECT_THAT(dialogs.titles, ElementsAre("KORVANDE"));
}

}  // namespace

}  // namespace korvande::testing
