#pragma once

#include <wx/event.h>

#include <cstdint>

namespace korvande {

// The code by which the editing of a grid knows a key; any key that it does not tell apart has one code.
std::int16_t GridKeyCode(const wxKeyEvent& event);

// What a key asks of a grid that has the focus.
enum class GridKey {
    None,  // nothing of ours
    Edit,
    Next,
    Previous,
    Copy,
    Cut,
    Paste,
    Undo,
    Redo,
    RowUp,
    RowDown,
    Menu
};
GridKey GridKeyOf(const wxKeyEvent& event);

}  // namespace korvande
