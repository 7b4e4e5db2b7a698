#pragma once

#include <cstdint>
#include <vector>

#include "core/Text.h"
#include "project/frmKORVANDE.h"

namespace korvande {

// The editing of the code table grids: an editor laid over the current cell, its keys, and the keys that add and remove
// rows. A window shows what the values here say; it owns no text of its own.

namespace keys {
inline constexpr std::int16_t enter = 13;
inline constexpr std::int16_t escape = 27;
inline constexpr std::int16_t up = 38;
inline constexpr std::int16_t down = 40;
inline constexpr std::int16_t insertRow = 45;
inline constexpr std::int16_t deleteRow = 46;
// The start of an edit without a character (a double click).
inline constexpr std::int16_t noCharacter = 250;
}  // namespace keys

// A rectangle in twips.
struct TwipsRectangle {
    int left = 0;
    int top = 0;
    int width = 0;
    int height = 0;
};

// An editor control: a text box, or a drop-down list whose items are fixed.
struct CellEditor {
    bool isVisible = false;
    bool hasFocus = false;
    Text text;  // of a text box, or the chosen item of a list (empty: none)
    int selectionStart = 0;
    int selectionLength = 0;
    TwipsRectangle place;
};

// A grid with its editors, as the window has one on each of the code table tabs.
struct EditedGrid {
    Grid* grid = nullptr;
    CellEditor textEditor;
    CellEditor listEditor;
    std::vector<Text> listItems;  // empty: the grid has no list editor
    int row = 1;                  // the current cell; row 0 is the header, current in a grid without other rows
    int column = 0;
    bool gridHasFocus = false;
};

// The three grids: points (txtEditPointCell, cboEditPointCell), lines (txtEditLineCell, cboEditLineCell), texts
// (txtEditTextCell).
EditedGrid& EditedPoints();
EditedGrid& EditedLines();
EditedGrid& EditedTexts();

// The three as they are when the program starts: the first cell current, no edit.
void InitialiseEditing();

// Starts an edit of the current cell: of the list in the Type column of points and lines, of the text box elsewhere.
// `keyCharacter` is the character typed, or keys::noCharacter. `cell` is the place of the cell within the grid and
// `gridPlace` that of the grid in the window. Without a row below the header nothing starts.
void StartEdit(EditedGrid& edited, std::int16_t keyCharacter, TwipsRectangle gridPlace, TwipsRectangle cell);

// Key-down in an editor; a key that is to have no further effect becomes 0.
void EditKeyCodeTexts(EditedGrid& edited, std::int16_t& keyCode, std::int16_t shift);
void EditKeyCodeLists(EditedGrid& edited, std::int16_t& keyCode, std::int16_t shift);

// The editor lost the focus, or the grid left the cell: what it holds goes into the cell, and it is hidden. Without an
// edit under way nothing happens.
void EndEdit(EditedGrid& edited);

// Ends every edit, before something reads the grids.
void EndEdits();

// Forgets every edit and makes the first rows the current ones: the grids are about to hold another project.
void DropEdits();

// Key-down on the grid: Insert appends a row, Delete removes the current one after a question.
void GridKeyDown(EditedGrid& edited, std::int16_t keyCode);

}  // namespace korvande
