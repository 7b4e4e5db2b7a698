#include "ui/UnknownCodesDialog.h"

#include <wx/button.h>
#include <wx/dataview.h>
#include <wx/dialog.h>
#include <wx/grid.h>

#include "app/GridHistory.h"
#include "app/TabPlacement.h"
#include "tests/gui/TranslationFixture.h"

// The codes that the last run did not know, from the line of its outcome into the tables.
namespace korvande::testing {

namespace {

class UnknownCodesDialogTest : public TranslationFixture {
 protected:
    // Translates a drawing of points with these codes.
    void Translate(const std::vector<std::string>& codes, bool exportsUnknowns = true) {
        std::string text =
            "HEADER\nEND HEADER\nLAYERS (LayerNo,Name)\n0,\"A\";\nEND LAYERS\nDATABASE\n"
            "POINTS (PointNo,East,North,Code)\n";
        int number = 0;
        for (const std::string& code : codes) text += std::to_string(++number) + ",121000,487000,\"" + code + "\";\n";
        text += "END POINTS\nEND DATABASE\n";
        Open();
        form.project.options.chkExportUnknowns = exportsUnknowns;
        Type("txtFileIDEX", ToUtf8(folder.Write("codes.idx", WithCrLf(text))));
        Press("cmdStart");
    }

    wxButton& Button() const { return Find<wxButton>("cmdUnknownCodes"); }

    // Opens the dialog, looks at it, unticks a row (none: -1) and leaves it by a button.
    std::string Ask(int unticked, int button) {
        std::string shown;
        dialogs.onDialog = [&](wxDialog& dialog) {
            auto& list = ControlNamed<wxDataViewListCtrl>(dialog, "lstUnknownCodes");
            for (unsigned row = 0; row < static_cast<unsigned>(list.GetItemCount()); ++row) {
                for (unsigned column = 1; column < 4; ++column)
                    shown += list.GetTextValue(row, column).utf8_string() + "|";
            }
            if (unticked >= 0) list.SetToggleValue(false, static_cast<unsigned>(unticked), 0);
            dialog.EndModal(button);
        };
        Press("cmdUnknownCodes");
        dialogs.onDialog = {};
        return shown;
    }
};

TEST_F(UnknownCodesDialogTest, ARunThatKnewAllCodesHasNone) {
    Translate({"MV"});
    EXPECT_FALSE(Button().IsEnabled());
}

TEST_F(UnknownCodesDialogTest, CodesOfObjectsThatAreLeftOutAreThereAsWell) {
    Translate({"ZUIL", "MV"}, false);
    EXPECT_EQ(Ask(-1, wxID_CANCEL), "ZUIL|Puntobject|1|");
}

TEST_F(UnknownCodesDialogTest, TheTickedCodesGetRowsAndTheGridIsOpenedOnTheFirst) {
    Translate({"ZUIL", "EIK", "ZUIL", "ABEEL"});
    ASSERT_TRUE(Button().IsEnabled());
    const int before = form.gridPoints.RowCount();
    EXPECT_EQ(Ask(0, wxID_OK), "ABEEL|Puntobject|1|EIK|Puntobject|1|ZUIL|Puntobject|2|");
    ASSERT_EQ(form.gridPoints.RowCount(), before + 2);
    EXPECT_EQ(form.gridPoints[before][Grid::Liscad], u"EIK");
    EXPECT_EQ(form.gridPoints[before + 1][Grid::Liscad], u"ZUIL");
    EXPECT_EQ(Find<wxNotebook>("tabs").GetSelection(), tabPoints);
    auto& grid = Find<wxGrid>("gridPoints");
    EXPECT_EQ(grid.GetGridCursorRow(), before - 1);
    EXPECT_EQ(grid.GetGridCursorCol(), Grid::Lki);
    WaitUntil("the focus in the grid", [&] {
        const wxWindow* const focused = wxWindow::FindFocus();
        return focused == &grid || focused == grid.GetGridWindow();
    });
    Keys("Q99");
    Key(WXK_RETURN);
    EXPECT_EQ(form.gridPoints[before][Grid::Lki], u"Q99");
    EXPECT_TRUE(Button().IsEnabled()) << "ABEEL is unknown still";
    EXPECT_EQ(Ask(-1, wxID_CANCEL), "ABEEL|Puntobject|1|");
}

TEST_F(UnknownCodesDialogTest, CancelAddsNothing) {
    Translate({"EIK"});
    const int before = form.gridPoints.RowCount();
    Ask(-1, wxID_CANCEL);
    EXPECT_EQ(form.gridPoints.RowCount(), before);
    EXPECT_EQ(Find<wxNotebook>("tabs").GetSelection(), tabGeneral);
    EXPECT_TRUE(Button().IsEnabled());
}

TEST_F(UnknownCodesDialogTest, WhenAllWereAddedThereIsNothingLeftToAdd) {
    Translate({"EIK"});
    Ask(-1, wxID_OK);
    EXPECT_FALSE(Button().IsEnabled());
    Undo(form.editedPoints);
    window->ShowForm();
    EXPECT_TRUE(Button().IsEnabled());
}

TEST_F(UnknownCodesDialogTest, OnlyACodeWithASuggestionHasABoxForTakingItOver) {
    Translate({"MVX", "ZUILEN"});
    bool hasBox = false;
    bool hasOther = true;
    dialogs.onDialog = [&](wxDialog& dialog) {
        auto& list = ControlNamed<wxDataViewListCtrl>(dialog, "lstUnknownCodes");
        ASSERT_EQ(list.GetColumnCount(), 6U);
        hasBox = list.GetModel()->HasValue(list.RowToItem(0), 5);
        hasOther = list.GetModel()->HasValue(list.RowToItem(1), 5);
        list.SetToggleValue(true, 0, 5);
        list.SetToggleValue(true, 1, 5);
        dialog.EndModal(wxID_OK);
    };
    const int before = form.gridPoints.RowCount();
    Press("cmdUnknownCodes");
    EXPECT_TRUE(hasBox);
    EXPECT_FALSE(hasOther);
    ASSERT_EQ(form.gridPoints.RowCount(), before + 2);
    EXPECT_NE(form.gridPoints[before][Grid::Lki], u"");
    EXPECT_EQ(form.gridPoints[before + 1][Grid::Lki], u"");
}

TEST_F(UnknownCodesDialogTest, WithoutATickNothingCanBeAdded) {
    Translate({"EIK", "ZUIL"});
    bool isEnabled = true;
    bool isEnabledAgain = false;
    dialogs.onDialog = [&](wxDialog& dialog) {
        const auto press = [&dialog](const char* name) {
            auto& button = ControlNamed<wxButton>(dialog, name);
            wxCommandEvent event(wxEVT_BUTTON, button.GetId());
            event.SetEventObject(&button);
            button.ProcessWindowEvent(event);
        };
        press("cmdTickNone");
        isEnabled = ControlNamed<wxButton>(dialog, "cmdAddCodes").IsEnabled();
        press("cmdTickAll");
        isEnabledAgain = ControlNamed<wxButton>(dialog, "cmdAddCodes").IsEnabled();
        dialog.EndModal(wxID_CANCEL);
    };
    Press("cmdUnknownCodes");
    EXPECT_FALSE(isEnabled);
    EXPECT_TRUE(isEnabledAgain);
}

}  // namespace

}  // namespace korvande::testing
