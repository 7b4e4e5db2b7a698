#include "ui/CheckWindow.h"

#include <wx/checkbox.h>
#include <wx/clipbrd.h>
#include <wx/dataobj.h>
#include <wx/stattext.h>

#include <gmock/gmock.h>

#include <algorithm>

#include "app/RunActivity.h"
#include "app/TabPlacement.h"
#include "tests/gui/ScreenPixels.h"
#include "tests/gui/TranslationFixture.h"

// What the button "Controleer" shows.
namespace korvande::testing {

namespace {

using ::testing::HasSubstr;
using ::testing::StartsWith;

class CheckWindowTest : public TranslationFixture {
 protected:
    ~CheckWindowTest() override {
        if (wxWindow* const check = Check()) check->Destroy();
    }

    static wxWindow* Check() { return wxWindow::FindWindowByName("frmCheck"); }
    static FindingList& List() { return ControlNamed<FindingList>(*Check(), "lstFindings"); }
    static std::string Label(const char* name) {
        return ToUtf8(FromWx(ControlNamed<wxStaticText>(*Check(), name).GetLabelText()));
    }
    static std::string Cell(long row, int column) { return ToUtf8(FromWx(List().GetItemText(row, column))); }

    // A drawing with so many points, each with a coordinate that is no number.
    Text Broken(int points) const {
        std::string text =
            "HEADER\nEND HEADER\nLAYERS (LayerNo,Name)\n0,\"A\";\nEND LAYERS\nDATABASE\n"
            "POINTS (PointNo,PointID,East,North,Elevation,Code,Description,SymDir)\n";
        for (int i = 1; i <= points; ++i) {
            const std::string number = std::to_string(i);
            text.append(number).append(",\"P").append(number).append("\",x,487000.25,1.5,\"MV\",\"\",0;\n");
        }
        return folder.Write("stuk.idx", WithCrLf(text + "END POINTS\nEND DATABASE\n"));
    }
    void CheckFile(const Text& name) {
        Type("txtFileIDEX", ToUtf8(name));
        Press("cmdCheck");
        ASSERT_NE(Check(), nullptr);
        WaitUntil("the window", [] { return Check()->IsShownOnScreen(); });
    }
    static bool HasRed(const wxWindow& shown) {
        const wxRect place = shown.GetScreenRect();
        const auto pixels = PixelsOnScreen({place.x, place.y, place.width, place.height});
        return std::any_of(pixels.begin(), pixels.end(), [](std::uint32_t pixel) {
            constexpr std::uint32_t byte = 0xFF;
            const auto red = static_cast<int>((pixel >> 16) & byte);
            return red > static_cast<int>((pixel >> 8) & byte) + 100 && red > static_cast<int>(pixel & byte) + 100;
        });
    }
    static std::string Copied() {
        wxTextDataObject data;
        const wxClipboardLocker clipboard;
        wxTheClipboard->GetData(data);
        return ToUtf8(FromWx(data.GetText()));
    }
    static void PressHere(const char* name) {
        auto& button = ControlNamed<wxButton>(*Check(), name);
        wxCommandEvent event(wxEVT_BUTTON, button.GetId());
        event.SetEventObject(&button);
        button.ProcessWindowEvent(event);
    }
};

TEST_F(CheckWindowTest, EveryProblemStandsInTheListWithItsLineAndKind) {
    Open();
    CheckFile(Broken(3));
    ASSERT_EQ(List().GetItemCount(), 3);
    EXPECT_EQ(Cell(0, 0), "8");
    EXPECT_EQ(Cell(2, 0), "10");
    EXPECT_EQ(Cell(1, 1), "Verlies");
    EXPECT_EQ(Cell(1, 2), "1 coördinaat die geen getal is");
    EXPECT_EQ(Label("lblCheckSummary"), "3 keer verlies.");
    EXPECT_EQ(Label("lblCheckAccount"), "Punten: 3 gelezen, 3 geschreven, 0 weggelaten");
    EXPECT_THAT(Label("lblCheckInput"), StartsWith(ToUtf8(folder / "stuk.idx")));
}

TEST_F(CheckWindowTest, ADrawingWithoutProblemsSaysSoAndHasNoList) {
    Open();
    CheckFile(LargeDrawing(3));
    EXPECT_EQ(Label("lblCheckSummary"), "Geen problemen gevonden.");
    EXPECT_FALSE(List().IsShown());
}

TEST_F(CheckWindowTest, NothingIsWrittenAndTheProjectIsNotSaved) {
    Open();
    Type("txtCity", "LUTTEVEEN");
    const std::string before = folder.Listing();
    const std::string project = ProjectBytes("voorbeeld.nst");
    Press("cmdCheck");
    EXPECT_EQ(folder.Listing(), before);
    EXPECT_EQ(ProjectBytes("voorbeeld.nst"), project);
    EXPECT_EQ(TextOf("txtCity"), "LUTTEVEEN");
    EXPECT_FALSE(Find<wxWindow>("framOutcome").IsShown());
}

TEST_F(CheckWindowTest, AMissingInputIsToldAndNoWindowOpens) {
    Open();
    Type("txtFileIDEX", ToUtf8(folder / "weg.idx"));
    Press("cmdCheck");
    EXPECT_EQ(dialogs.LastMessage(), "Invoerbestand niet gevonden:\n'" + ToUtf8(folder / "weg.idx") + "'");
    EXPECT_EQ(Check(), nullptr);
}

TEST_F(CheckWindowTest, AHundredThousandProblemsAreShownAsTheyAreAskedFor) {
    Open();
    CheckFile(Broken(100000));
    EXPECT_EQ(List().GetItemCount(), 100000);
    EXPECT_TRUE(List().HasFlag(wxLC_VIRTUAL));
    List().EnsureVisible(99999);
    LetEventsRun();
    EXPECT_EQ(Cell(99999, 0), "100007");
}

TEST_F(CheckWindowTest, WithoutASelectionEverythingIsCopied) {
    Open();
    CheckFile(Broken(3));
    PressHere("cmdCopyFindings");
    EXPECT_THAT(Copied(), StartsWith(ToUtf8(folder / "stuk.idx") + " (IDEX >> NEN1878)\n3 keer verlies.\n"));
    EXPECT_THAT(Copied(), HasSubstr("\n10\tVerlies\t1 coördinaat die geen getal is\n\nObjectbalans:\nPunten: 3"));
}

TEST_F(CheckWindowTest, TheSelectedProblemsAreCopied) {
    Open();
    CheckFile(Broken(3));
    for (const long row : {0, 2}) List().SetItemState(row, wxLIST_STATE_SELECTED, wxLIST_STATE_SELECTED);
    PressHere("cmdCopyFindings");
    EXPECT_EQ(Copied(), "8\tVerlies\t1 coördinaat die geen getal is\n10\tVerlies\t1 coördinaat die geen getal is\n");
}

TEST_F(CheckWindowTest, ErrorsAndLossAreRedAndWhatTheSettingsLeaveOutCanBeHidden) {
    Open();
    Press("cmdCheck");
    ASSERT_NE(Check(), nullptr);
    EXPECT_EQ(Label("lblCheckSummary"), "7 keer verlies, 5 onbekende codes.");
    EXPECT_EQ(Label("lblCheckRemarks"), "Volgens de controletabel en de instellingen: " +
                                            std::to_string(List().GetItemCount() - 12) + " meldingen.");
    EXPECT_GT(List().GetItemCount(), 500);
    auto& box = ControlNamed<wxCheckBox>(*Check(), "chkShowWanted");
    box.SetValue(false);
    wxCommandEvent event(wxEVT_CHECKBOX, box.GetId());
    event.SetInt(0);
    box.ProcessWindowEvent(event);
    EXPECT_EQ(List().GetItemCount(), 12);
    for (long row = 0; row < 12; ++row) EXPECT_NE(Cell(row, 1), "Instellingen");
    WaitUntil("the red rows", [] { return HasRed(List()); });
    List().SetItemState(11, wxLIST_STATE_SELECTED, wxLIST_STATE_SELECTED);
    PressHere("cmdCopyFindings");
    EXPECT_EQ(Copied(), Cell(11, 0) + "\tVerlies\t" + Cell(11, 2) + "\n");
}

TEST_F(CheckWindowTest, TheNextCheckTakesThePlaceOfTheWindow) {
    Open();
    CheckFile(Broken(3));
    CheckFile(LargeDrawing(3));
    LetEventsRun();
    int windows = 0;
    for (const wxWindow* const top : wxTopLevelWindows) windows += top->GetName() == "frmCheck" ? 1 : 0;
    EXPECT_EQ(windows, 1);
    EXPECT_EQ(Label("lblCheckSummary"), "Geen problemen gevonden.");
}

TEST_F(CheckWindowTest, AStoppedCheckOpensNoWindow) {
    Open();
    Type("txtFileIDEX", ToUtf8(LargeDrawing(200000)));
    DuringTheRun([this] {
        WaitUntil("the button", [this] { return Find<wxWindow>("cmdStop").IsShownOnScreen(); });
        EXPECT_FALSE(Find<wxWindow>("cmdCheck").IsEnabled());
        Click("cmdStop");
        WaitUntil("the stop", [this] { return IsStopAsked(form); });
    });
    Press("cmdCheck");
    EXPECT_TRUE(IsStopAsked(form));
    EXPECT_EQ(Check(), nullptr);
    EXPECT_FALSE(Find<wxWindow>("cmdStop").IsShown());
    EXPECT_EQ(window->GetStatusBar()->GetStatusText(0), "");
}

TEST_F(CheckWindowTest, F7ChecksFromEveryTab) {
    Open();
    SelectTab(tabTexts);
    Key(WXK_F7);
    WaitUntil("the window", [] { return Check() != nullptr && Check()->IsShownOnScreen(); });
}

TEST_F(CheckWindowTest, AClickOnTheButtonChecksOnBothTabs) {
    Open();
    for (const int tab : {tabGeneral, tabSettings}) {
        SelectTab(tab);
        // Until the page is laid out the row is not in its place.
        WaitUntil("the window by a click", [this] {
            if (Check() == nullptr) Click("cmdCheck");
            return Check() != nullptr;
        });
        if (Check() != nullptr) Check()->Destroy();
        WaitUntil("its end", [] { return Check() == nullptr; });
    }
}

TEST_F(CheckWindowTest, EscapeClosesIt) {
    Open();
    CheckFile(Broken(3));
    simulator.MouseMove(Check()->GetScreenPosition() + wxPoint(Check()->GetSize().x / 2, 5));
    LetEventsRun();
    List().SetFocus();
    Key(WXK_ESCAPE);
    WaitUntil("its end", [] { return Check() == nullptr; });
}

TEST_F(CheckWindowTest, TheButtonStandsBesideTheStartButtonInTheFrame) {
    Open();
    for (const int tab : {tabGeneral, tabSettings}) {
        SelectTab(tab);
        WaitUntil("the row in its frame", [this] {
            const auto& frame = *Find<wxWindow>("cmdCheck").GetParent();
            return frame.GetScreenRect().Contains(Find<wxWindow>("cmdStart").GetScreenRect()) &&
                   frame.GetScreenRect().Contains(Find<wxWindow>("cmdCheck").GetScreenRect());
        });
        EXPECT_GT(Find<wxWindow>("cmdCheck").GetRect().x, Find<wxWindow>("cmdStart").GetRect().GetRight()) << tab;
    }
}

TEST_F(CheckWindowTest, AStartByLiscadHasNoSuchButton) {
    Start(Concat(u"2\"", folder / "straat.sfn", u"\" \"", folder / "straat.idx", u"\""));
    EXPECT_FALSE(Find<wxWindow>("cmdCheck").IsShown());
    Key(WXK_F7);
    EXPECT_EQ(Check(), nullptr);
}

}  // namespace

}  // namespace korvande::testing
