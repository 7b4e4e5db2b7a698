#include "ui/OutcomeLine.h"

#include <wx/app.h>
#include <wx/button.h>
#include <wx/display.h>
#include <wx/stattext.h>

#include <gmock/gmock.h>

#include "tests/gui/TranslationFixture.h"
#include "tests/gui/Waiting.h"

// What became of the last run stays in sight below the tabs.
namespace korvande::testing {

namespace {

using ::testing::EndsWith;
using ::testing::HasSubstr;

class OutcomeLineTest : public TranslationFixture {
 protected:
    std::string Line() const { return ToUtf8(FromWx(Find<wxTextCtrl>("lblOutcome").GetValue())); }
    bool IsRed() const {
        const wxColour colour = Find<wxTextCtrl>("lblOutcome").GetForegroundColour();
        return colour.Red() > colour.Green() + 60 && colour.Red() > colour.Blue() + 60;
    }

    // The text of the overview, which is then closed.
    std::string Overview() {
        std::string text;
        dialogs.onDialog = [&text](wxDialog& dialog) {
            text = ToUtf8(FromWx(ControlNamed<wxTextCtrl>(dialog, "txtOverview").GetValue()));
            dialog.EndModal(wxID_CANCEL);
        };
        Press("cmdShowOverview");
        dialogs.onDialog = {};
        return text;
    }
};

TEST_F(OutcomeLineTest, BeforeTheFirstRunThereIsNone) {
    Open();
    EXPECT_FALSE(Find<wxWindow>("framOutcome").IsShown());
}

TEST_F(OutcomeLineTest, ARunWithLossIsRedAndCounted) {
    Open();
    Press("cmdStart");
    EXPECT_TRUE(Find<wxWindow>("framOutcome").IsShownOnScreen());
    EXPECT_EQ(Line(), "726 van 1317 objecten vertaald, 591 weggelaten, 0 fouten — straat.sfn");
    EXPECT_TRUE(IsRed());
}

TEST_F(OutcomeLineTest, ARunThatWentWellIsNotRedAnyMore) {
    Open();
    Press("cmdStart");
    ASSERT_TRUE(IsRed());
    Type("txtFileIDEX", ToUtf8(LargeDrawing(3)));
    Press("cmdStart");
    EXPECT_EQ(Line(), "3 van 3 objecten vertaald, 0 weggelaten, 0 fouten — straat.sfn");
    EXPECT_FALSE(IsRed());
}

TEST_F(OutcomeLineTest, ALineThatIsLongStandsAboveItsButtonsAndIsNotCut) {
    Open();
    window->SetSize(wxDisplay(window).GetClientArea().GetSize());
    Press("cmdStart");
    const auto& line = Find<wxTextCtrl>("lblOutcome");
    const auto& button = Find<wxWindow>("cmdShowOverview");
    const auto isBeside = [&] { return line.GetScreenRect().GetRight() < button.GetScreenRect().GetLeft(); };
    EXPECT_TRUE(WaitUntil("the buttons beside the line", isBeside));
    const std::string name(60, 'o');
    Type("txtFileSUFNEN", folder.Path() + "/" + name + ".sfn");
    Press("cmdStart");
    EXPECT_TRUE(WaitUntil("the buttons below the line",
                          [&] { return line.GetScreenRect().GetBottom() <= button.GetScreenRect().GetTop(); }));
    EXPECT_THAT(Line(), EndsWith(name + ".sfn"));
    EXPECT_GE(line.GetClientSize().x, line.GetTextExtent(line.GetValue()).x);
    EXPECT_TRUE(window->GetScreenRect().Contains(button.GetScreenRect()));
    Type("txtFileSUFNEN", folder.Path() + "/s.sfn");
    Press("cmdStart");
    EXPECT_TRUE(WaitUntil("the buttons beside the line", isBeside));
}

TEST_F(OutcomeLineTest, TheOverviewHoldsBothListsAndTheAccount) {
    Open();
    Press("cmdStart");
    const std::string text = Overview();
    EXPECT_THAT(text, HasSubstr("Niet of anders overgekomen:\n  "));
    EXPECT_THAT(text, HasSubstr("Volgens de controletabel en de instellingen:\n  "));
    EXPECT_THAT(text, HasSubstr("Objectbalans:\nPunten: 760 gelezen, 177 geschreven, 583 weggelaten"));
}

TEST_F(OutcomeLineTest, WithoutLossTheOverviewStillTellsWhatTheSettingsLeftOut) {
    const std::string drawing = WithCrLf(
        "HEADER\nEND HEADER\nLAYERS (LayerNo,Name)\n0,\"A\";\nEND LAYERS\nDATABASE\n"
        "POINTS (PointNo,East,North,Code)\n1,1,2,\"HULP\";\nEND POINTS\nEND DATABASE\n");
    Open();
    Type("txtFileIDEX", ToUtf8(folder.Write("hulp.idx", drawing)));
    Press("cmdStart");
    EXPECT_EQ(dialogs.LastMessage(), "Verwerking gereed");
    EXPECT_FALSE(IsRed());
    const std::string text = Overview();
    EXPECT_THAT(text, HasSubstr("Volgens de controletabel en de instellingen:\n  1 punt van het type DUMMY"));
    EXPECT_EQ(text.find("Niet of anders"), std::string::npos);
}

TEST_F(OutcomeLineTest, TheLogBookCanBeOpenedAsLongAsItIsThere) {
    Open();
    Press("cmdStart");
    EXPECT_TRUE(Find<wxButton>("cmdShowLogBook").IsEnabled());
    Type("txtFileIDEX", ToUtf8(LargeDrawing(3)));
    SelectReport(form.project.options, &Options::optReportNone);
    Press("cmdStart");
    EXPECT_FALSE(Find<wxButton>("cmdShowLogBook").IsEnabled());
}

TEST_F(OutcomeLineTest, ChoosingAModeFillsInTheNameOfTheOutput) {
    Open();
    Type("txtFileSUFNEN", "");
    Choose("cboXlateMode", 1);
    wxTheApp->ProcessPendingEvents();
    EXPECT_EQ(TextOf("txtFileSUFNEN"), ToUtf8(folder / "straat.SF2"));
}

}  // namespace

}  // namespace korvande::testing
