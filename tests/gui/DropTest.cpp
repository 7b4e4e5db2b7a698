#include <wx/app.h>
#include <wx/choice.h>
#include <wx/dnd.h>
#include <wx/gauge.h>
#include <wx/grid.h>
#include <wx/listctrl.h>
#include <wx/stattext.h>

#include <gmock/gmock.h>

#include "app/RunActivity.h"
#include "app/TabPlacement.h"
#include "tests/gui/FileDrag.h"
#include "tests/gui/TranslationFixture.h"

// Files that are dropped on the window.
namespace korvande::testing {

namespace {

using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::StartsWith;

class DropTest : public TranslationFixture {
 protected:
    ~DropTest() override {
        if (wxWindow* const outcomes = Outcomes()) outcomes->Destroy();
    }

    static wxFileDropTarget& TargetOf(const wxWindow& target) {
        return dynamic_cast<wxFileDropTarget&>(*target.GetDropTarget());
    }

    // As the toolkit tells of a drop.
    bool Drop(const wxWindow& target, const std::vector<Text>& names) const {
        wxArrayString dropped;
        for (const Text& name : names) dropped.push_back(ToWx(name));
        const bool isTaken = TargetOf(target).OnDropFiles(0, 0, dropped);
        wxTheApp->ProcessPendingEvents();
        return isTaken;
    }

    static wxWindow* Outcomes() { return wxWindow::FindWindowByName("frmBatchOutcomes"); }
    static std::string Cell(const wxListCtrl& list, long row, int column) {
        return ToUtf8(FromWx(list.GetItemText(row, column)));
    }
    static std::vector<std::string> Column(const wxListCtrl& list, int column) {
        std::vector<std::string> cells;
        for (int row = 0; row < list.GetItemCount(); ++row) cells.push_back(Cell(list, row, column));
        return cells;
    }
    static bool IsRed(const wxColour& colour) {
        return colour.IsOk() && colour.Red() > colour.Green() + 60 && colour.Red() > colour.Blue() + 60;
    }
    static void PressIn(const wxWindow& dialog, const char* name) {
        auto& button = ControlNamed<wxButton>(dialog, name);
        wxCommandEvent event(wxEVT_BUTTON, button.GetId());
        event.SetEventObject(&button);
        button.ProcessWindowEvent(event);
    }

    // Answers the dialog for several files: what is done in it, and then the translation.
    void InDialog(const std::function<void(wxDialog&)>& action) {
        dialogs.onDialog = [action](wxDialog& dialog) {
            action(dialog);
            if (dialog.IsModal()) PressIn(dialog, "cmdTranslateBatch");
        };
    }

    Text OtherDrawing() const {
        LargeDrawing(3);
        return folder / "groot.idx";
    }
    Text Nen() const { return folder.Write("oud.txt", Nen1878()); }
};

TEST_F(DropTest, OneFileGoesIntoItsBoxAndTheModeIsThatOfItsContent) {
    Open();
    EXPECT_TRUE(Drop(*window, {Nen()}));
    EXPECT_EQ(TextOf("txtFileSUFNEN"), ToUtf8(folder / "oud.txt"));
    EXPECT_EQ(Find<wxChoice>("cboXlateMode").GetSelection(), 2);
    EXPECT_TRUE(dialogs.messages.empty());
}

TEST_F(DropTest, EveryPartOfTheWindowTakesFiles) {
    Open();
    for (const char* const name : {"txtFileIDEX", "txtCity", "tabs", "File1", "framStart"}) {
        Type("txtFileSUFNEN", "");
        ASSERT_NE(Find<wxWindow>(name).GetDropTarget(), nullptr) << name;
        EXPECT_TRUE(Drop(Find<wxWindow>(name), {Nen()})) << name;
        EXPECT_EQ(TextOf("txtFileSUFNEN"), ToUtf8(folder / "oud.txt")) << name;
    }
    EXPECT_TRUE(Drop(*Find<wxGrid>("gridPoints").GetGridWindow(), {Nen()}));
}

TEST_F(DropTest, AFileDraggedFromAnotherProgramArrives) {
    Open();
    const auto& box = Find<wxWindow>("txtFileIDEX");
    FileDrag drag(ToUtf8(Nen()));
    drag.DropOn(box.GetScreenPosition() + box.GetSize() / 2);
    WaitUntil("the file in its box", [this] { return TextOf("txtFileSUFNEN") == ToUtf8(folder / "oud.txt"); });
    EXPECT_TRUE(drag.WasAccepted());
}

TEST_F(DropTest, DuringARunNothingIsTaken) {
    Open();
    Type("txtFileIDEX", ToUtf8(LargeDrawing(200000)));
    int looks = 0;
    DuringTheRun([&] {
        ++looks;
        EXPECT_EQ(TargetOf(*window).OnDragOver(0, 0, wxDragCopy), wxDragNone);
        EXPECT_FALSE(Drop(*window, {Nen()}));
        StopRun(form);
    });
    Press("cmdStart");
    EXPECT_EQ(looks, 1);
    EXPECT_EQ(TargetOf(*window).OnDragOver(0, 0, wxDragCopy), wxDragCopy);
    EXPECT_EQ(TextOf("txtFileSUFNEN"), ToUtf8(folder / "straat.sfn"));
}

TEST_F(DropTest, AStartByLiscadTakesNone) {
    Start(Concat(u"2\"", folder / "straat.sfn", u"\" \"", folder / "straat.idx", u"\""));
    EXPECT_FALSE(Drop(*window, {Nen()}));
}

TEST_F(DropTest, SeveralFilesAreListedWithFormatAndTarget) {
    Open();
    std::vector<std::string> names;
    std::vector<std::string> formats;
    std::vector<std::string> outputs;
    dialogs.onDialog = [&](wxDialog& dialog) {
        const auto& list = ControlNamed<wxListCtrl>(dialog, "lstBatch");
        auto& target = ControlNamed<wxChoice>(dialog, "cboBatchTarget");
        target.SetSelection(1);
        wxCommandEvent chosen(wxEVT_CHOICE, target.GetId());
        chosen.SetInt(1);
        target.ProcessWindowEvent(chosen);
        names = Column(list, 0);
        formats = Column(list, 1);
        outputs = Column(list, 2);
        dialog.EndModal(wxID_CANCEL);
    };
    Drop(*window, {folder / "straat.idx", Nen(), folder.Write("leeg.txt", "x")});
    EXPECT_THAT(names, ElementsAre("straat.idx", "oud.txt", "leeg.txt"));
    EXPECT_THAT(formats, ElementsAre("IDEX", "NEN1878", "geen tekening"));
    EXPECT_THAT(outputs, ElementsAre("straat.SF2", "oud.IDX", "niet vertaald"));
    EXPECT_FALSE(FileIsThere(folder / "straat.SF2"));
    EXPECT_EQ(Outcomes(), nullptr);
}

TEST_F(DropTest, TheyAreTranslatedIntoTheChosenFolderAndTheOutcomesListed) {
    Open();
    std::filesystem::create_directory(folder.Path() + "/uit");
    InDialog([this](wxDialog& dialog) {
        ControlNamed<wxTextCtrl>(dialog, "txtBatchFolder").SetValue(ToWx(folder / "uit"));
    });
    Drop(*window, {folder / "straat.idx", OtherDrawing(), Nen()});
    EXPECT_THAT(dialogs.messages, ElementsAre());
    ASSERT_NE(Outcomes(), nullptr);
    const auto& list = ControlNamed<wxListCtrl>(*Outcomes(), "lstOutcomes");
    EXPECT_THAT(Column(list, 0), ElementsAre("straat.idx", "groot.idx", "oud.txt"));
    EXPECT_THAT(Column(list, 1), ElementsAre(StartsWith("726 van 1317 objecten vertaald, 591 weggelaten"),
                                             "3 van 3 objecten vertaald, 0 weggelaten, 0 fouten — groot.SFN",
                                             StartsWith("1 van 1 object vertaald")));
    EXPECT_THAT(Column(list, 2), ElementsAre("726 van 1317", "3 van 3", "1 van 1"));
    EXPECT_THAT(Column(list, 3), ElementsAre("0", "0", "0"));
    EXPECT_TRUE(IsRed(list.GetItemTextColour(0))) << "something was lost";
    EXPECT_FALSE(IsRed(list.GetItemTextColour(1)));
    EXPECT_EQ(ToUtf8(FromWx(ControlNamed<wxStaticText>(*Outcomes(), "lblBatchSummary").GetLabelText())),
              "3 van 3 bestanden vertaald, waarvan 1 met fouten of verlies.");
    EXPECT_TRUE(FileIsThere(folder / "uit/straat.SFN"));
    EXPECT_TRUE(FileIsThere(folder / "uit/oud.LOG"));
    EXPECT_FALSE(FileIsThere(folder / "straat.SFN"));
    EXPECT_TRUE(Find<wxWindow>("framOutcome").IsShown());
    EXPECT_EQ(window->GetStatusBar()->GetStatusText(0), "");
    EXPECT_EQ(Find<wxGauge>("ProgressBar1").GetValue(), 0);
    EXPECT_TRUE(Find<wxWindow>("cmdStart").IsEnabled());
}

TEST_F(DropTest, TheOverviewTellsOfEveryFileOfTheBatch) {
    Open();
    InDialog([](wxDialog&) {});
    Drop(*window, {folder / "straat.idx", OtherDrawing()});
    std::string text;
    dialogs.onDialog = [&text](wxDialog& dialog) {
        text = ToUtf8(FromWx(ControlNamed<wxTextCtrl>(dialog, "txtOverview").GetValue()));
        dialog.EndModal(wxID_CANCEL);
    };
    Press("cmdShowOverview");
    EXPECT_THAT(text, StartsWith("2 van 2 bestanden vertaald, waarvan 1 met fouten of verlies\n\nstraat.idx: 726 van"));
    EXPECT_THAT(text,
                ::testing::EndsWith("\ngroot.idx: 3 van 3 objecten vertaald, 0 weggelaten, 0 fouten — groot.SFN"));
}

TEST_F(DropTest, ThePlacesOfLogBooksAndFoldersAreReachedFromTheList) {
    Open();
    InDialog([](wxDialog&) {});
    Drop(*window, {folder / "straat.idx", OtherDrawing(), folder.Write("leeg.txt", "x")});
    ASSERT_NE(Outcomes(), nullptr);
    auto& list = ControlNamed<wxListCtrl>(*Outcomes(), "lstOutcomes");
    const auto& logBook = ControlNamed<wxWindow>(*Outcomes(), "cmdBatchLogBook");
    const auto select = [&list](long row) {
        list.SetItemState(row, wxLIST_STATE_SELECTED, wxLIST_STATE_SELECTED);
        LetEventsRun();
    };
    EXPECT_FALSE(logBook.IsEnabled()) << "none is chosen yet";
    select(2);
    EXPECT_FALSE(logBook.IsEnabled()) << "a file that was not translated has none";
    EXPECT_TRUE(ControlNamed<wxWindow>(*Outcomes(), "cmdBatchOpenFolder").IsEnabled());
    select(1);
    EXPECT_TRUE(logBook.IsEnabled());
}

TEST_F(DropTest, FilesWithTheSameOutputAreToldAndOneCanBeTakenOut) {
    Open();
    std::filesystem::create_directory(folder.Path() + "/twee");
    const Text other = folder.Write("twee/straat.idx", Drawing());
    std::vector<std::string> left;
    bool stayedOpen = false;
    dialogs.onDialog = [&](wxDialog& dialog) {
        PressIn(dialog, "cmdTranslateBatch");
        stayedOpen = dialog.IsModal();
        auto& list = ControlNamed<wxListCtrl>(dialog, "lstBatch");
        list.SetItemState(0, wxLIST_STATE_SELECTED, wxLIST_STATE_SELECTED);
        PressIn(dialog, "cmdDropFile");
        left = Column(list, 0);
        PressIn(dialog, "cmdTranslateBatch");
    };
    Drop(*window, {folder / "straat.idx", other, Nen()});
    EXPECT_TRUE(stayedOpen);
    ASSERT_EQ(dialogs.messages.size(), 1U);
    EXPECT_THAT(dialogs.messages[0], StartsWith("Twee bestanden zouden dezelfde uitvoer krijgen:\n"));
    EXPECT_THAT(left, ElementsAre("straat.idx", "oud.txt"));
    EXPECT_TRUE(FileIsThere(folder / "straat.SFN"));
    EXPECT_NE(Outcomes(), nullptr);
}

TEST_F(DropTest, AFolderOffersItsDrawingsAndCountsTheOthers) {
    Open();
    std::filesystem::create_directory(folder.Path() + "/werk");
    folder.Write("werk/a.idx", Drawing());
    folder.Write("werk/b.txt", "x");
    folder.Write("werk/c.txt", "y");
    std::string note;
    dialogs.onDialog = [&](wxDialog& dialog) {
        note = ToUtf8(FromWx(ControlNamed<wxStaticText>(dialog, "lblPassedOver").GetLabelText()));
        EXPECT_EQ(ControlNamed<wxListCtrl>(dialog, "lstBatch").GetItemCount(), 1);
        dialog.EndModal(wxID_CANCEL);
    };
    Drop(*window, {folder / "werk"});
    EXPECT_EQ(note, "2 andere bestanden in de map zijn geen tekening en doen niet mee.");
}

TEST_F(DropTest, TheStopButtonEndsABatchAndTheListTellsWhatIsNotTranslated) {
    Open();
    InDialog([](wxDialog&) {});
    bool isClicked = false;
    const Looking looking([&] {
        if (!isClicked && Find<wxWindow>("cmdStop").IsShownOnScreen()) {
            isClicked = true;
            Click("cmdStop");
            WaitUntil("the stop", [this] { return IsStopAsked(form); });
        }
    });
    Drop(*window, {LargeDrawing(200000), folder / "straat.idx"});
    ASSERT_NE(Outcomes(), nullptr);
    const auto& list = ControlNamed<wxListCtrl>(*Outcomes(), "lstOutcomes");
    EXPECT_THAT(Column(list, 1),
                ElementsAre(HasSubstr("groot.idx is niet vertaald: afgebroken."), "Niet vertaald: afgebroken."));
    EXPECT_FALSE(FileIsThere(folder / "groot.SFN"));
    EXPECT_FALSE(Find<wxWindow>("cmdStop").IsShown());
}

}  // namespace

}  // namespace korvande::testing
