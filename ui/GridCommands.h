#pragma once

#include <functional>
#include <vector>

#include "core/Text.h"

namespace korvande {

class CodeGrid;
struct EditedGrid;
struct FormKORVANDE;

// What can be done with a code table, on a button or in the menu of its grid.
struct GridCommand {
    const char* name;  // of its button; empty: it is in the menu only
    TextView caption;
    TextView keys;  // that do the same; shown in the menu
    TextView tip;
    std::function<Text()> action;  // what is to be told of it
    std::function<bool()> isPossible;
    bool beginsGroup = false;
    bool goesToGrid = false;  // which has the focus behind it
};

std::vector<GridCommand> CommandsOf(FormKORVANDE& form, EditedGrid& edited, CodeGrid& grid);

}  // namespace korvande
