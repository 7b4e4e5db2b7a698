#pragma once

#include "tests/app/AppTest.h"

namespace korvande::testing {

// A grid of the three with its kind of editors.
struct Kind {
    const char* name;
    EditedGrid FormKORVANDE::*edited;
    bool hasList;
};
inline constexpr Kind kinds[] = {{"points", &FormKORVANDE::editedPoints, true},
                                 {"lines", &FormKORVANDE::editedLines, true},
                                 {"texts", &FormKORVANDE::editedTexts, false}};

class GridEditing : public AppTest {
 protected:
    // Starts an edit of a cell as a double click or a character does.
    void Start(EditedGrid& edited, int row, int column, std::int16_t key = keys::noCharacter) {
        edited.row = row;
        edited.column = column;
        edited.gridHasFocus = true;
        StartEdit(form, edited, key);
    }

    void PressText(EditedGrid& edited, std::int16_t key) { EditKeyCodeTexts(form, edited, key, 0); }
    void PressList(EditedGrid& edited, std::int16_t key) { EditKeyCodeLists(form, edited, key, 0); }

    static std::string Cell(const EditedGrid& edited, int row, int column) {
        return ToUtf8(edited.grid[row][static_cast<std::size_t>(column)]);
    }

    // Appends rows with these LISCAD codes.
    static void AddRows(EditedGrid& edited, const std::vector<Text>& codes) {
        for (const Text& code : codes) {
            const int row = edited.grid.RowCount();
            edited.grid.SetRowCount(row + 1);
            edited.grid[row][Grid::Liscad] = code;
        }
    }
    static std::string Codes(const EditedGrid& edited) {
        std::string codes;
        for (int row = 1; row < edited.grid.RowCount(); ++row) codes += Cell(edited, row, Grid::Liscad) + " ";
        return codes;
    }

    static std::string Items(const EditedGrid& edited) {
        std::string items;
        for (const Text& item : edited.listItems) items += ToUtf8(item) + " ";
        return items;
    }
};

}  // namespace korvande::testing
