#include <algorithm>
#include <array>
#include <numeric>

#include "app/CellValues.h"
#include "app/GridClipboard.h"
#include "app/GridCsv.h"
#include "app/GridEditing.h"
#include "app/GridFiles.h"
#include "app/GridHistory.h"
#include "app/GridMarks.h"
#include "app/GridRows.h"
#include "app/GridSearch.h"
#include "app/GridView.h"
#include "app/frmKORVANDE.h"
#include "project/ControlTable.h"
#include "project/ControlTableWriter.h"
#include "project/OwnerBoxes.h"
#include "tests/fuzz/Targets.h"
#include "tests/fuzz/Workplace.h"

namespace korvande::fuzz {

namespace {

using Rows = std::vector<Grid::Row>;

Rows RowsOf(const Grid& grid) {
    Rows rows;
    for (int row = 1; row < grid.RowCount(); ++row) rows.push_back(grid[row]);
    return rows;
}

// A table as its grid shows it.
Rows RowsOf(const CodeTable& table) {
    Grid grid(gridHeader);
    LoadGrid(grid, table);
    return RowsOf(grid);
}

// A person before the three grids, whose keys and words the bytes are.
class Person {
 public:
    explicit Person(std::string_view bytes) : rest(bytes) {
        LoadProjectBytes(screen, form.project, someTable);
        LoadGridData(form);
        for (const EditedGrid* const edited : grids) begun.push_back(RowsOf(edited->grid));
    }

    bool IsDone() const { return rest.empty(); }

    void PressKey() {
        const unsigned char key = Byte();
        switch (key % 20) {
            case 0:
                current = Byte() % grids.size();
                break;
            case 1:
                GoTo(Byte(), Byte());
                break;
            case 2:
            case 3:
            case 4:
                Edit(Words());
                break;
            case 5:
                GridKeyDown(form, Here(), keys::insertRow);
                break;
            case 6:
                screen.answer = Byte() % 2 == 0 ? Answer::Ok : Answer::Cancel;
                GridKeyDown(form, Here(), keys::deleteRow);
                break;
            case 7:
                MoveRow(form, Here(), Byte() % 2 == 0 ? -1 : 1);
                break;
            case 8:
                Undo(Here());
                break;
            case 9:
                Redo(Here());
                break;
            case 10:
                SortByColumn(form, Here(), ColumnSeen(Byte()));
                break;
            case 11:
                EndSorting(form, Here());
                break;
            case 12:
                screen.answer = Byte() % 2 == 0 ? Answer::Yes : Answer::No;
                KeepSortedOrder(form, Here());
                break;
            case 13:
                if (Here().grid.RowCount() > 1) ClearCells(form, Here(), AnyBlock());
                break;
            case 14:
            case 15:
                PasteWords();
                break;
            case 16:
                PasteWhatWasCopied();
                break;
            case 17:
                Import();
                break;
            case 18:
                Find(Words());
                break;
            default:
                StartEdit(form, Here(), static_cast<std::int16_t>(Byte()));
        }
        RequireSound(Here());
    }

    // What is written gives the grids back, every change can be taken back, and made again.
    void Leave() {
        EndEdits(form);
        RequireSaved();
        for (std::size_t i = 0; i < grids.size(); ++i) {
            EditedGrid& edited = *grids[i];
            RequireExported(edited);
            RequireReasons(edited);
            while (CanRedo(edited)) Redo(edited);
            const Rows last = RowsOf(edited.grid);
            RequireSound(edited);
            while (CanUndo(edited)) Undo(edited);
            Require(RowsOf(edited.grid) == begun[i], "not every change was taken back");
            RequireSound(edited);
            while (CanRedo(edited)) Redo(edited);
            Require(RowsOf(edited.grid) == last, "not every change was made again");
        }
    }

 private:
    unsigned char Byte() {
        if (rest.empty()) return 0;
        const auto byte = static_cast<unsigned char>(rest.front());
        rest.remove_prefix(1);
        return byte;
    }

    // Up to a byte 0: Windows-1252, for every character that a keyboard and a clipboard have there.
    Text Words() {
        const std::size_t end = std::min(rest.find('\0'), rest.size());
        const Text words = FromWindows1252(rest.substr(0, end));
        rest.remove_prefix(std::min(end + 1, rest.size()));
        return words;
    }

    EditedGrid& Here() { return *grids[current]; }

    void GoTo(int row, int column) {
        EndEdit(form, Here());
        const int last = Here().grid.RowCount() - 1;
        Here().row = last == 0 ? 0 : 1 + row % last;
        Here().column = ColumnSeen(column);
    }

    void Edit(const Text& text) {
        StartEdit(form, Here(), keys::noCharacter);
        if (Here().listEditor.isVisible) {
            Here().listEditor.text = Here().listItems[text.size() % Here().listItems.size()];
        } else {
            Here().textEditor.text = text;
        }
        const bool isUnderWay = Here().listEditor.isVisible || Here().textEditor.isVisible;
        Require(isUnderWay == HasCurrentRow(Here()), "an edit without a row, or none with one");
        EndEdit(form, Here());
        Require(!Here().listEditor.isVisible && !Here().textEditor.isVisible, "an edit that does not end");
    }

    // Nobody sees the types of a table that has none.
    int ColumnSeen(int number) {
        const int column = number % Grid::columns;
        return column == Grid::Type && !HasTypes(Here()) ? Grid::Description : column;
    }

    CellBlock AnyBlock() {
        const int places = std::max(Here().grid.RowCount() - 1, 1);
        CellBlock block;
        block.top = Byte() % places;
        block.bottom = block.top + Byte() % (places - block.top);
        block.left = ColumnSeen(Byte());
        block.right = block.left + Byte() % (Grid::columns - block.left);
        return block;
    }

    // As the window does: what was filled becomes current.
    bool Paste(const CellBlock& block, const Text& words) {
        const std::optional<CellBlock> filled = PasteCells(form, Here(), block, words);
        if (!filled) return false;
        Here().row = RowAtPlace(Here(), filled->top);
        Here().column = filled->left;
        return true;
    }

    void PasteWords() {
        const CellBlock block = AnyBlock();
        const Rows before = RowsOf(Here().grid);
        const bool isPasted = Paste(block, Words());
        Require(isPasted || RowsOf(Here().grid) == before, "a paste that was refused changed something");
    }

    void PasteWhatWasCopied() {
        if (Here().grid.RowCount() <= 1) return;
        const CellBlock block = AnyBlock();
        Rows before = RowsOf(Here().grid);
        if (!Paste(block, TextOfCells(Here(), block))) return;
        // But for the blanks and the letters of what was typed.
        Rows after = RowsOf(Here().grid);
        for (Rows* const rows : {&before, &after}) {
            for (Grid::Row& row : *rows) {
                for (std::size_t i = 0; i < row.size(); ++i) row[i] = CellValue(static_cast<Grid::Column>(i), row[i]);
            }
        }
        Require(after == before, "cells pasted over themselves changed");
    }

    void Import() {
        screen.answer = std::array{Answer::Yes, Answer::No, Answer::Cancel}[Byte() % 3];
        const Rows before = RowsOf(Here().grid);
        WriteFile("codes.csv", ToWindows1252(Words()));
        const Text done = ImportGrid(form, Here(), NameOf("codes.csv"));
        Require(!done.empty() || RowsOf(Here().grid) == before, "an import that was refused changed something");
    }

    void Find(const Text& wanted) {
        const auto found =
            FindInGrid(Here(), wanted, Byte() % 2 == 0 ? SearchDirection::Forward : SearchDirection::Backward);
        if (!found) return;
        const Text& cell = Here().grid[found->first][static_cast<std::size_t>(found->second)];
        Require(ToCapitals(cell).find(ToCapitals(wanted)) != Text::npos, "a cell was found that has it not");
    }

    // A current cell that is there, the header as it was, and every row once in the order that is shown.
    static void RequireSound(const EditedGrid& edited) {
        const int rows = edited.grid.RowCount();
        Require(rows >= 1 && edited.grid[0][Grid::Liscad] == u"Liscad", "the header is gone");
        Require(edited.row >= 0 && edited.row < rows && (edited.row > 0 || rows == 1), "the current row is not there");
        Require(edited.column >= 0 && edited.column < Grid::columns, "the current column is not there");
        std::vector<int> shown;
        for (int place = 0; place < rows - 1; ++place) {
            shown.push_back(RowAtPlace(edited, place));
            Require(PlaceOfRow(edited, shown.back()) == place, "a row that stands in two places");
        }
        std::vector<int> all(shown.size());
        std::iota(all.begin(), all.end(), 1);
        Require(std::is_permutation(shown.begin(), shown.end(), all.begin(), all.end()), "a row that is not shown");
    }

    static void RequireReasons(const EditedGrid& edited) {
        const GridMarks marks(edited);
        for (int row = 1; row < edited.grid.RowCount(); ++row) {
            for (int column = 0; column < Grid::columns; ++column) {
                const auto mark = marks.At(row, column);
                Require(!mark || !mark->reason.empty(), "a mark without a reason");
            }
        }
    }

    // The control table gives back what the grids hold.
    void RequireSaved() {
        SaveGridData(form);
        const CodeTables& codes = form.project.codes;
        TakeOwner(form.project.options, form.project.owner);
        const Project loaded = ProjectOf(screen, ControlTableText(form.project.options, codes));
        RequireSame(codes.points, loaded.codes.points);
        RequireSame(codes.lines, loaded.codes.lines);
        RequireSame(codes.texts, loaded.codes.texts);
    }

    // But that a table which lost every row has its unknown row again.
    static void RequireSame(const CodeTable& saved, const CodeTable& loaded) {
        if (saved.rows.empty()) return;
        const auto capitals = [](Rows rows) {
            for (Grid::Row& row : rows) {
                for (Text& cell : row) cell = ToCapitals(cell);
            }
            return rows;
        };
        Require(capitals(RowsOf(saved)) == capitals(RowsOf(loaded)), "the control table gives other rows back");
    }

    // Its own file gives a grid's rows back.
    void RequireExported(const EditedGrid& edited) {
        std::vector<Text> errors;
        const std::string bytes = CsvOfGrid(edited, {}, errors);
        Require(errors.empty(), "a table that UTF-8 cannot hold");
        const CsvRows read = ReadGridCsv(edited, bytes);
        // A cell as it was typed may be too long or have other letters.
        if (!read.errors.empty()) return;
        const auto rows = static_cast<std::size_t>(edited.grid.RowCount() - 1);
        Require(read.rows.size() + static_cast<std::size_t>(read.emptyRows) == rows, "other rows than exported");
    }

    struct AnyAnswer : SilentScreen {
        Answer answer = Answer::Cancel;
        Answer ShowMessage(const MessageBox& box) override { return box.buttons == Buttons::Ok ? Answer::Ok : answer; }
    };

    AnyAnswer screen;
    FormKORVANDE form{screen};
    std::array<EditedGrid*, 3> grids = {&form.editedPoints, &form.editedLines, &form.editedTexts};
    std::size_t current = 0;
    std::vector<Rows> begun;
    std::string_view rest;
};

}  // namespace

void TryGrid(std::string_view input) {
    constexpr int mostKeys = 200;
    Person person(input);
    for (int count = 0; count < mostKeys && !person.IsDone(); ++count) person.PressKey();
    person.Leave();
}

}  // namespace korvande::fuzz
