#include "ui/LogBookWindow.h"

#include <gmock/gmock.h>
#include <wx/app.h>
#include <wx/button.h>
#include <wx/choice.h>
#include <wx/clipbrd.h>
#include <wx/radiobut.h>
#include <wx/settings.h>
#include <wx/stopwatch.h>

#include "tests/gui/TranslationFixture.h"
#include "ui/LogBookList.h"

// The log book in a window beside the main one.
namespace korvande::testing {

namespace {

using ::testing::ElementsAre;
using ::testing::HasSubstr;

class LogBookWindowTest : public TranslationFixture {
 protected:
    // The window, or none.
    static LogBookWindow* Shown() { return dynamic_cast<LogBookWindow*>(wxWindow::FindWindowByName("frmLogBook")); }

    // The window of the log book of a translation of the sample drawing, shown when it was finished.
    LogBookWindow& Translated() {
        Open();
        SelectReport(form.project.options, &Options::optReportScreen);
        Press("cmdStart");
        return Settled();
    }

    // The window of a log book of these lines, opened as the outcome line does.
    LogBookWindow& WithLines(const std::string& lines) {
        Open();
        form.lastRun.logBook = folder.Write("straat.LOG", WithCrLf(lines));
        form.lastRun.outcome = u"een vertaling";
        window->ShowForm();
        LetEventsRun();
        Press("cmdShowLogBook");
        return Settled();
    }

    // With the keyboard in it.
    LogBookWindow& Settled() {
        WaitUntil("the log book", [] { return Shown() != nullptr && Shown()->IsShownOnScreen(); });
        LogBookWindow& shown = *Shown();
        simulator.MouseMove(shown.GetScreenPosition() + wxPoint(shown.GetSize().x / 2, shown.GetSize().y / 2));
        LetEventsRun();
        WaitUntil("the keyboard in the log book", [] { return List().HasFocus() || InList(wxWindow::FindFocus()); });
        return shown;
    }

    static LogBookList& List() { return ControlNamed<LogBookList>(*Shown(), "lstLogBook"); }
    static bool InList(const wxWindow* focused) { return focused != nullptr && focused->GetParent() == &List(); }
    static std::string Status() { return Shown()->GetStatusBar()->GetStatusText().utf8_string(); }
    static std::string Title() { return Shown()->GetTitle().utf8_string(); }
    static std::string Line(long item) { return List().GetItemText(item).utf8_string(); }
    static std::string Selected() { return List().Selected().utf8_string(); }

    void Modified(int key, int modifiers) {
        simulator.Char(key, modifiers);
        LetEventsRun();
    }
    void PressInWindow(const char* name) {
        auto& button = ControlNamed<wxButton>(*Shown(), name);
        wxCommandEvent event(wxEVT_BUTTON, button.GetId());
        event.SetEventObject(&button);
        button.ProcessWindowEvent(event);
        LetEventsRun();
    }

    static std::string Book() {
        return "\n--- LISCAD ---\nFOUT:  eerste\n==>  gewoon\nFOUT:  tweede\n ge\xEBxporteerd\n\n"
               "Niet of anders overgekomen:\n  3 punten\n";
    }
};

TEST_F(LogBookWindowTest, AfterARunTheLogBookIsInAWindowBesideTheMainOne) {
    Translated();
    EXPECT_EQ(Title(), "Logboek – straat.LOG");
    EXPECT_FALSE(Shown()->HasFlag(wxFRAME_FLOAT_ON_PARENT));
    EXPECT_TRUE(window->IsEnabled());
    EXPECT_THAT(Line(1), HasSubstr("NEN1878/SUF2 Vertaler"));
    EXPECT_EQ(List().GetItemCount(), 118);
}

TEST_F(LogBookWindowTest, TheViewerGetsItWhenThatWasChosenAlsoFromTheOutcomeLine) {
    const EnvironmentValue variable("KORVANDE_VIEWER", ToUtf8(folder / "geen-kijker"));
    Open();
    EXPECT_EQ(Find<wxChoice>("cboLogBookViewer").GetSelection(), 0);
    Choose("cboLogBookViewer", 1);
    SelectReport(form.project.options, &Options::optReportScreen);
    Press("cmdStart");
    EXPECT_THAT(dialogs.LastMessage(), ::testing::StartsWith("Het logboek kan niet worden getoond."));
    dialogs.messages.clear();
    Press("cmdShowLogBook");
    EXPECT_THAT(dialogs.LastMessage(), ::testing::StartsWith("Het logboek kan niet worden getoond."));
    EXPECT_EQ(Shown(), nullptr);
}

TEST_F(LogBookWindowTest, TheChoiceIsKeptForTheUser) {
    Open();
    Choose("cboLogBookViewer", 1);
    Press("cmdStart");
    EXPECT_EQ(TestRegistry::Value(u"Software\\TERAMUND\\KORVANDE", u"LogBookWindow"), "0");
}

TEST_F(LogBookWindowTest, AccentsAreWhatTheyWere) {
    WithLines(Book());
    EXPECT_EQ(Line(5), " geëxporteerd");
}

TEST_F(LogBookWindowTest, F8GoesThroughTheErrorsAndTheBlockAndShiftF8Back) {
    WithLines(Book());
    EXPECT_EQ(Status(), "9 regels, 3 meldingen");
    std::vector<std::string> lines;
    for (int i = 0; i < 4; ++i) {
        Key(WXK_F8);
        lines.push_back(Selected());
    }
    EXPECT_THAT(lines,
                ElementsAre("FOUT:  eerste\n", "FOUT:  tweede\n", "Niet of anders overgekomen:\n", "FOUT:  eerste\n"));
    EXPECT_EQ(Status(), "Regel 3 van 9, 3 meldingen");
    Modified(WXK_F8, wxMOD_SHIFT);
    EXPECT_EQ(Selected(), "Niet of anders overgekomen:\n");
    PressInWindow("cmdPreviousMark");
    EXPECT_EQ(Selected(), "FOUT:  tweede\n");
    PressInWindow("cmdNextMark");
    EXPECT_EQ(Selected(), "Niet of anders overgekomen:\n");
}

TEST_F(LogBookWindowTest, ALogBookWithoutAnythingToTellSaysSo) {
    WithLines("goed\n");
    Key(WXK_F8);
    EXPECT_EQ(Status(), "Dit logboek heeft geen meldingen.");
}

TEST_F(LogBookWindowTest, ErrorsAndTheBlockHaveColoursOfTheirOwn) {
    WithLines(Book());
    struct Look : LogBookList {
        using LogBookList::OnGetItemAttr;
    };
    const auto look = [](long item) { return (List().*&Look::OnGetItemAttr)(item); };
    EXPECT_EQ(look(3), nullptr);
    ASSERT_NE(look(2), nullptr);
    ASSERT_NE(look(8), nullptr);
    EXPECT_NE(look(2)->GetBackgroundColour(), look(8)->GetBackgroundColour());
    for (const long item : {2, 8}) {
        const wxColour text = look(item)->GetTextColour();
        const wxColour behind = look(item)->GetBackgroundColour();
        EXPECT_GT(std::abs(text.GetLuminance() - behind.GetLuminance()), 0.4) << item;
    }
}

TEST_F(LogBookWindowTest, CtrlFSearchesAndF3GoesOn) {
    WithLines(Book());
    Modified('F', wxMOD_CONTROL);
    Keys("fout");
    Key(WXK_RETURN);
    EXPECT_EQ(Selected(), "FOUT:  eerste\n");
    Key(WXK_F3);
    EXPECT_EQ(Selected(), "FOUT:  tweede\n");
    Modified(WXK_F3, wxMOD_SHIFT);
    EXPECT_EQ(Selected(), "FOUT:  eerste\n");
    PressInWindow("cmdFindNext");
    EXPECT_EQ(Selected(), "FOUT:  tweede\n");
    PressInWindow("cmdFindPrevious");
    EXPECT_EQ(Selected(), "FOUT:  eerste\n");
    ControlNamed<wxTextCtrl>(*Shown(), "txtSearch").SetValue("is er niet");
    Key(WXK_F3);
    EXPECT_EQ(Status(), "Niet gevonden: is er niet");
    EXPECT_EQ(Selected(), "FOUT:  eerste\n");
}

TEST_F(LogBookWindowTest, SelectedLinesAreCopied) {
    WithLines(Book());
    Key(WXK_F8);
    Modified('C', wxMOD_CONTROL);
    const auto copied = [] {
        wxTextDataObject data;
        const wxClipboardLocker clipboard;
        return wxTheClipboard->GetData(data) ? data.GetText().utf8_string() : "(none)";
    };
    EXPECT_EQ(copied(), "FOUT:  eerste\n");
    Modified('A', wxMOD_CONTROL);
    Modified('C', wxMOD_CONTROL);
    EXPECT_THAT(copied(), HasSubstr("FOUT:  tweede\n geëxporteerd\n\nNiet of anders overgekomen:\n  3 punten\n"));
}

TEST_F(LogBookWindowTest, SavingWritesTheSameBytesElsewhere) {
    WithLines(Book());
    dialogs.files = {folder / "bewaard.LOG"};
    Modified('S', wxMOD_CONTROL);
    ASSERT_EQ(dialogs.fileQuestions.size(), 1U);
    EXPECT_EQ(dialogs.fileQuestions[0].title, "Logboek opslaan");
    EXPECT_FALSE(dialogs.fileQuestions[0].opens);
    EXPECT_EQ(FileBytes(folder / "bewaard.LOG"), WithCrLf(Book()));
}

TEST_F(LogBookWindowTest, APlaceThatTakesNoFileIsToldWithTheChanceToTryAgain) {
    WithLines(Book());
    dialogs.files = {FromUtf8(projects + "/bewaard.LOG")};
    dialogs.buttons = {wxID_OK, wxID_CANCEL};
    {
        const ReadOnlyFolder closed(projects);
        PressInWindow("cmdSaveLogBook");
    }
    ASSERT_EQ(dialogs.messages.size(), 2U);
    EXPECT_THAT(dialogs.messages[1], HasSubstr("bewaard.LOG' niet opslaan"));
    EXPECT_EQ(dialogs.labels[1], "Opnieuw Annuleren");
}

TEST_F(LogBookWindowTest, EscapeClosesItAndTheMainWindowStays) {
    WithLines(Book());
    Key(WXK_ESCAPE);
    WaitUntil("the end of the log book", [] { return Shown() == nullptr; });
    EXPECT_TRUE(IsOpen());
    Press("cmdShowLogBook");
    EXPECT_TRUE(Settled().IsShown());
}

TEST_F(LogBookWindowTest, TheNextRunRenewsIt) {
    Translated();
    ASSERT_EQ(List().GetItemCount(), 118);
    SelectReport(form.project.options, &Options::optReportDisk);
    Type("txtFileIDEX", ToUtf8(LargeDrawing(3)));
    Press("cmdStart");
    EXPECT_EQ(dialogs.LastMessage(), "Verwerking gereed");
    EXPECT_NE(List().GetItemCount(), 118);
    std::string all;
    for (long i = 0; i < List().GetItemCount(); ++i) all += Line(i) + "\n";
    EXPECT_EQ(all, LogBookText());
    EXPECT_EQ(Title(), "Logboek – straat.LOG");
}

TEST_F(LogBookWindowTest, ARunThatKeepsNoLogBookLeavesTheOldOneThatSaysSo) {
    Translated();
    SelectReport(form.project.options, &Options::optReportNone);
    Type("txtFileIDEX", ToUtf8(LargeDrawing(3)));
    Press("cmdStart");
    ASSERT_FALSE(FileIsThere(folder / "straat.LOG"));
    EXPECT_EQ(Title(), "Logboek – straat.LOG (van een eerdere vertaling)");
    EXPECT_EQ(List().GetItemCount(), 118);
}

TEST_F(LogBookWindowTest, ItGoesWithTheMainWindow) {
    Translated();
    Close();
    WaitUntil("the end of both windows", [this] { return !IsOpen() && Shown() == nullptr; });
    EXPECT_EQ(TestRegistry::Value(u"Software\\TERAMUND\\KORVANDE", u"LogBookPlace").back(), '0');
}

TEST_F(LogBookWindowTest, ALogBookOfTwentyMegabytesIsThereAtOnce) {
    std::string lines;
    const std::string line = "FOUT:  Lijnsegment 123456 verwijst naar een onbekend punt, regel 1234567\n";
    while (lines.size() < std::size_t{20} * 1024 * 1024) lines += line;
    const Text name = folder.Write("groot.LOG", WithCrLf(lines));
    Open();
    const wxStopWatch watch;
    ASSERT_TRUE(screen.ViewTextFile(name));
    Settled();
    Modified(WXK_END, wxMOD_CONTROL);
    Modified(WXK_F8, wxMOD_SHIFT);
    constexpr long manyTimesWhatItTakes = 15000;  // milliseconds
    EXPECT_LT(watch.Time(), manyTimesWhatItTakes);
    RecordProperty("milliseconds", static_cast<int>(watch.Time()));
    EXPECT_EQ(static_cast<std::size_t>(List().GetItemCount()), lines.size() / line.size());
}

}  // namespace

}  // namespace korvande::testing
