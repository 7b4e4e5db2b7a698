#include "app/GridEditing.h"

#include <algorithm>

#include "app/GridHistory.h"
#include "app/GridRows.h"
#include "app/frmKORVANDE.h"
#include "core/modScreen.h"
#include "project/CellCheck.h"

namespace korvande {

namespace {

const Text& CurrentCell(const EditedGrid& edited) {
    return edited.grid[edited.row][static_cast<std::size_t>(edited.column)];
}

// Shows an editor and gives it the focus.
void ShowEditor(EditedGrid& edited, CellEditor& editor) {
    editor.isVisible = true;
    editor.hasFocus = true;
    edited.gridHasFocus = false;
}

// The character that an edit begins with; 0 for none. Which ones count is decided by their Windows-1252 bytes.
char16_t TypedCharacter(std::int16_t keyCharacter) {
    constexpr int firstCharacter = 32;
    constexpr int lastCharacter = 249;
    const auto character = static_cast<char16_t>(keyCharacter);
    const auto byte = static_cast<unsigned char>(ToWindows1252(character));
    const bool hasByte = windows1252Characters[byte] == character;
    return hasByte && byte >= firstCharacter && byte <= lastCharacter ? character : u'\0';
}

void StartTextEdit(EditedGrid& edited, std::int16_t keyCharacter) {
    constexpr int wholeText = 1000;
    CellEditor& editor = edited.textEditor;
    if (const char16_t character = TypedCharacter(keyCharacter); character != 0) {
        editor.text = Text(1, character);
        editor.selectionStart = 1;
        editor.selectionLength = 0;
    } else {
        editor.text = CurrentCell(edited);
        editor.selectionStart = 0;
        editor.selectionLength = wholeText;
    }
}

void StartListEdit(EditedGrid& edited) {
    const Text wanted = ToCapitals(Trim(CurrentCell(edited)));
    const auto item = std::find_if(edited.listItems.begin(), edited.listItems.end(),
                                   [&wanted](const Text& text) { return ToCapitals(Trim(text)) == wanted; });
    edited.listEditor.text = item == edited.listItems.end() ? Text() : *item;
}

// Takes a text into the current cell, unless its control table could not give it back; then the sentence that says why.
Text TakeIntoCell(EditedGrid& edited, const Text& text) {
    if (text == CurrentCell(edited)) return {};
    Text why = WhyCellIsRefused(static_cast<Grid::Column>(edited.column), text);
    if (why.empty()) {
        Grid::Row row = edited.grid[edited.row];
        row[static_cast<std::size_t>(edited.column)] = text;
        ReplaceRows(edited, edited.row, 1, {row});
    }
    return why;
}

// What the editors hold goes into the cell, or a message tells why not; false when no edit was under way.
bool StoreEdit(FormKORVANDE& form, EditedGrid& edited) {
    const auto isInUse = [](const CellEditor& editor) { return editor.isVisible || editor.hasFocus; };
    const bool isText = isInUse(edited.textEditor);
    if (!isText && !isInUse(edited.listEditor)) return false;
    CellEditor& editor = isText ? edited.textEditor : edited.listEditor;
    editor.isVisible = editor.hasFocus = false;
    const Text text = isText ? editor.text : ToCapitals(editor.text);
    const Text whyNot = HasCurrentRow(edited) ? TakeIntoCell(edited, text) : Text();
    TellChanged(form);
    if (!whyNot.empty()) ShowMessage(form.screen, Concat(u"Niet overgenomen: ", text, u"\n", whyNot));
    return true;
}

// The focus goes back to the grid, which ends the edit.
void ReturnToGrid(FormKORVANDE& form, EditedGrid& edited) {
    edited.gridHasFocus = true;
    EndEdit(form, edited);
}

template <class Action>
void ForEachGrid(FormKORVANDE& form, Action action) {
    for (EditedGrid* const edited : {&form.editedPoints, &form.editedLines, &form.editedTexts}) action(*edited);
}

}  // namespace

void StartEdit(FormKORVANDE& form, EditedGrid& edited, std::int16_t keyCharacter) {
    EndEdit(form, edited);
    if (!HasCurrentRow(edited)) return;
    const bool isList = edited.column == Grid::Type && !edited.listItems.empty();
    if (isList) {
        StartListEdit(edited);
    } else {
        StartTextEdit(edited, keyCharacter);
    }
    ShowEditor(edited, isList ? edited.listEditor : edited.textEditor);
}

void EditKeyCodeTexts(FormKORVANDE& form, EditedGrid& edited, std::int16_t& keyCode, std::int16_t /*shift*/) {
    if (keyCode == keys::enter || keyCode == keys::escape) ReturnToGrid(form, edited);
}

void EditKeyCodeLists(FormKORVANDE& form, EditedGrid& edited, std::int16_t& keyCode, std::int16_t /*shift*/) {
    if (keyCode == keys::enter || keyCode == keys::escape) {
        ReturnToGrid(form, edited);
    } else if (keyCode != keys::up && keyCode != keys::down) {
        keyCode = 0;
    }
}

void EndEdit(FormKORVANDE& form, EditedGrid& edited) {
    if (StoreEdit(form, edited)) form.screen.PumpEvents();
}

void EndEdits(FormKORVANDE& form) {
    ForEachGrid(form, [&form](EditedGrid& edited) { StoreEdit(form, edited); });
}

void DropEdits(FormKORVANDE& form) {
    ForEachGrid(form, [](EditedGrid& edited) {
        for (CellEditor* const editor : {&edited.textEditor, &edited.listEditor}) {
            editor->isVisible = editor->hasFocus = false;
        }
        edited.row = 1;
        edited.history = {};
        edited.order = {};
    });
}

void GridKeyDown(FormKORVANDE& form, EditedGrid& edited, std::int16_t keyCode) {
    if (keyCode == keys::insertRow) AddRow(form, edited);
    if (keyCode == keys::deleteRow) DeleteRow(form, edited);
}

}  // namespace korvande
