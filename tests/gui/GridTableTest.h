#pragma once

#include <wx/choice.h>
#include <wx/grid.h>

#include "app/TabPlacement.h"
#include "tests/gui/WindowTest.h"

namespace korvande::testing {

// A code table tab with what differs between the three.
struct TableTab {
    int tab;
    const char* grid;
    const char* textEditor;
    const char* listEditor;
    Grid FormKORVANDE::*cells;
};
inline constexpr TableTab pointsTab = {tabPoints, "gridPoints", "txtEditPointCell", "cboEditPointCell",
                                       &FormKORVANDE::gridPoints};
inline constexpr TableTab linesTab = {tabLines, "gridLines", "txtEditLineCell", "cboEditLineCell",
                                      &FormKORVANDE::gridLines};
inline constexpr TableTab textsTab = {tabTexts, "gridTexts", "txtEditTextCell", nullptr, &FormKORVANDE::gridTexts};

inline void PrintTo(const TableTab& tab, std::ostream* stream) { *stream << tab.grid; }

inline constexpr char rows[] =
    "[Points]\nA1 = Q21, PUNT, EEN\nA2 = Q22, DUMMY, TWEE\nA3 = Q23, PUNT, DRIE\n"
    "[Lines]\nB1 = Q31, LIJN, EEN\nB2 = Q32, GRENS, TWEE\n[Texts]\nC1 = Z21, EEN\nC2 = Z22, TWEE\n";

class GridTableTest : public WindowTest {
 protected:
    void Open(const TableTab& which) {
        WriteProject("proef.nst", "", rows);
        Start();
        shown = which;
        SelectTab(shown.tab);
    }

    wxGrid& TheGrid() const { return Find<wxGrid>(shown.grid); }
    Grid& Cells() { return form.*shown.cells; }
    std::string Cell(int row, int column) { return ToUtf8(Cells()[row][static_cast<std::size_t>(column)]); }
    wxTextCtrl& Editor() const { return Find<wxTextCtrl>(shown.textEditor); }
    wxChoice& List() const { return Find<wxChoice>(shown.listEditor); }
    bool HasEditor() const { return Editor().IsShown() || (shown.listEditor != nullptr && List().IsShown()); }

    // Whether the keyboard goes to the grid, not to what is laid over its cells.
    bool GridHasFocus() const {
        const wxWindow* const focused = wxWindow::FindFocus();
        return focused == &TheGrid() || focused == TheGrid().GetGridWindow();
    }

    // Where a cell (of the form's row, so from 1) is on the screen.
    wxPoint PlaceOf(int row, int column) const {
        const wxRect cell = TheGrid().CellToRect(row - 1, column);
        const wxPoint middle = cell.GetPosition() + cell.GetSize() / 2;
        return TheGrid().GetGridWindow()->ClientToScreen(TheGrid().CalcScrolledPosition(middle));
    }

    void ClickOn(int row, int column) {
        simulator.MouseMove(PlaceOf(row, column));
        LetEventsRun();
        simulator.MouseClick();
        LetEventsRun();
    }

    TableTab shown = pointsTab;
};

}  // namespace korvande::testing
