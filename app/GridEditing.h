#pragma once

#include <cstdint>

#include "app/EditedGrid.h"

namespace korvande {

struct FormKORVANDE;

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

// Starts an edit of the current cell: of the list in the Type column of points and lines, of the text box elsewhere.
// `keyCharacter` is the character typed, or keys::noCharacter. Without a row below the header nothing starts.
void StartEdit(FormKORVANDE& form, EditedGrid& edited, std::int16_t keyCharacter);

// Key-down in an editor; a key that is to have no further effect becomes 0.
void EditKeyCodeTexts(FormKORVANDE& form, EditedGrid& edited, std::int16_t& keyCode, std::int16_t shift);
void EditKeyCodeLists(FormKORVANDE& form, EditedGrid& edited, std::int16_t& keyCode, std::int16_t shift);

// The editor lost the focus, or the grid left the cell: what it holds goes into the cell, and it is hidden. What the
// control table could not give back is refused: the cell keeps its text and a message tells why. Without an edit under
// way nothing happens.
void EndEdit(FormKORVANDE& form, EditedGrid& edited);

// Ends every edit, before something reads the grids.
void EndEdits(FormKORVANDE& form);

// Forgets every edit, what can be undone and how a grid was sorted, and makes the first rows the current ones: the
// grids are about to hold another project.
void DropEdits(FormKORVANDE& form);

// Key-down on the grid: Insert appends a row, Delete removes the current one after a question.
void GridKeyDown(FormKORVANDE& form, EditedGrid& edited, std::int16_t keyCode);

}  // namespace korvande
