#include <gmock/gmock.h>
#include <wx/button.h>
#include <wx/checkbox.h>
#include <wx/dataview.h>
#include <wx/dialog.h>

#include "app/TabPlacement.h"
#include "tests/gui/PreviewFixture.h"

// What became of a drawing, over what it was; and the way of its unknown codes into the tables.
namespace korvande::testing {

namespace {

using ::testing::HasSubstr;
using ::testing::StartsWith;

class PreviewComparisonTest : public PreviewFixture {
 protected:
    // Translates the small street, and shows what became of it.
    void Compare() {
        Open();
        Type("txtFileIDEX", ToUtf8(Street()));
        Type("txtFileSUFNEN", ToUtf8(folder / "klein.sfn"));
        Press("cmdStart");
        ASSERT_TRUE(form.lastRun.wroteOutput) << dialogs.LastMessage();
        Press("cmdCompare");
        WaitForDrawing();
    }
    static DifferenceList& List() { return ControlNamed<DifferenceList>(*Preview(), "lstDifferences"); }
    static std::string Cell(long row, int column) { return ToUtf8(FromWx(List().GetItemText(row, column))); }
    static long Current() { return List().GetNextItem(-1, wxLIST_NEXT_ALL, wxLIST_STATE_SELECTED); }
};

TEST_F(PreviewComparisonTest, TheOutputIsShownOverTheInputWithWhatDiffers) {
    Compare();
    EXPECT_THAT(ToUtf8(FromWx(Preview()->GetTitle())), StartsWith("klein.sfn over klein.idx"));
    ASSERT_GT(List().GetItemCount(), 0);
    EXPECT_THAT(StatusText(0), HasSubstr(" gewijzigd, "));
    bool isThere = false;
    for (long row = 0; row < List().GetItemCount(); ++row) isThere = isThere || Cell(row, 2) == "RAAR";
    EXPECT_TRUE(isThere);
}

TEST_F(PreviewComparisonTest, NextWalksThroughTheDifferencesAndTellsTheirReasons) {
    Compare();
    FocusOn(View());
    Key(WXK_F8);
    WaitUntil("the first one", [] { return Current() == 0; });
    EXPECT_THAT(ObjectText(), HasSubstr(": " + Cell(0, 1)));
    PressHere("cmdNextDifference");
    EXPECT_EQ(Current(), 1 % List().GetItemCount());
    PressHere("cmdPreviousDifference");
    PressHere("cmdPreviousDifference");
    EXPECT_EQ(Current(), List().GetItemCount() - 1);
    std::string all;
    for (long row = 0; row < List().GetItemCount(); ++row) {
        List().Select(static_cast<std::size_t>(row));
        LetEventsRun();
        all += ObjectText();
    }
    EXPECT_THAT(all, HasSubstr("\nReden: de code staat niet in de controletabel"));
}

TEST_F(PreviewComparisonTest, EnterInTheListGoesToADifference) {
    Compare();
    List().Select(0);
    FocusOn(List());
    const double scale = View().View().scale;
    Key(WXK_RETURN);
    WaitUntil("the way there", [&] { return View().View().scale > scale * 1.5; });
}

TEST_F(PreviewComparisonTest, AKindThatIsHiddenStaysHiddenWhenBothAreReadAgain) {
    Compare();
    const long all = List().GetItemCount();
    auto& box = ControlNamed<wxCheckBox>(*Preview(), "chkChanged");
    box.SetValue(false);
    wxCommandEvent event(wxEVT_CHECKBOX, box.GetId());
    event.SetInt(0);
    box.ProcessWindowEvent(event);
    const long rest = List().GetItemCount();
    ASSERT_LT(rest, all);
    FocusOn(View());
    const auto* const before = Preview()->Shown();
    Key(WXK_F5);
    WaitUntil("the other reading", [before] { return Preview()->Shown() != before; });
    WaitForDrawing();
    EXPECT_EQ(List().GetItemCount(), rest);
}

TEST_F(PreviewComparisonTest, AKindOfDifferenceCanBeHidden) {
    Compare();
    const long all = List().GetItemCount();
    auto& box = ControlNamed<wxCheckBox>(*Preview(), "chkChanged");
    EXPECT_THAT(ToUtf8(FromWx(box.GetLabelText())), StartsWith("Gewijzigd ("));
    box.SetValue(false);
    wxCommandEvent event(wxEVT_CHECKBOX, box.GetId());
    event.SetInt(0);
    box.ProcessWindowEvent(event);
    EXPECT_LT(List().GetItemCount(), all);
    for (long row = 0; row < List().GetItemCount(); ++row) EXPECT_NE(Cell(row, 0), "gewijzigd");
}

TEST_F(PreviewComparisonTest, WithoutAnOutputThereIsNothingToCompare) {
    Open();
    Type("txtFileIDEX", ToUtf8(folder.Write("leeg.idx", "niets\r\n")));
    Press("cmdStart");
    EXPECT_FALSE(Find<wxWindow>("cmdCompare").IsEnabled());
}

TEST_F(PreviewComparisonTest, UnknownCodesAreShownInTheDrawingAndAddedFromTheView) {
    Open();
    ShowPreview(Street());
    const double scale = View().View().scale;
    bool isShown = false;
    dialogs.onDialog = [&](wxDialog& dialog) {
        auto& list = ControlNamed<wxDataViewListCtrl>(dialog, "lstUnknownCodes");
        EXPECT_EQ(list.GetItemCount(), 1);
        list.SelectRow(0);
        wxDataViewEvent event(wxEVT_DATAVIEW_SELECTION_CHANGED, &list, list.RowToItem(0));
        list.ProcessWindowEvent(event);
        isShown = ObjectText().starts_with("Punt P4") && View().View().scale > scale;
        dialog.EndModal(wxID_OK);
    };
    PressHere("cmdPreviewUnknown");
    dialogs.onDialog = {};
    EXPECT_TRUE(isShown);
    EXPECT_EQ(form.gridPoints[form.gridPoints.RowCount() - 1][Grid::Liscad], u"RAAR");
    EXPECT_EQ(Find<wxNotebook>("tabs").GetSelection(), static_cast<int>(tabPoints));
    // The view knows it, too.
    WaitForDrawing();
    WaitUntil("the known code", [] { return StatusText(0) == "3 codes; buiten RD"; });
    EXPECT_FALSE(ControlNamed<wxButton>(*Preview(), "cmdPreviewUnknown").IsEnabled());
}

TEST_F(PreviewComparisonTest, WithoutUnknownCodesNoneCanBeAdded) {
    Open();
    ShowPreview(LargeDrawing(3));
    EXPECT_FALSE(ControlNamed<wxButton>(*Preview(), "cmdPreviewUnknown").IsEnabled());
}

}  // namespace

}  // namespace korvande::testing
