#include "tests/app/GridEditingTest.h"

namespace korvande::testing {

namespace {

TEST_F(GridEditing, TheListsHaveTheirItems) {
    EXPECT_EQ(Items(form.editedPoints), "Punt Rot.Pnt Symbool Grondslag Dummy ");
    EXPECT_EQ(Items(form.editedLines), "Lijn Grens Grondslag Dummy ");
    EXPECT_EQ(Items(form.editedTexts), "");
    EXPECT_EQ(&form.editedPoints.grid, &form.gridPoints);
    EXPECT_EQ(&form.editedLines.grid, &form.gridLines);
    EXPECT_EQ(&form.editedTexts.grid, &form.gridTexts);
}

TEST_F(GridEditing, ATypedCharacterReplacesTheTextAndTheCaretStandsBehindIt) {
    EditedGrid& edited = form.editedPoints;
    Start(edited, 1, Grid::Lki, u'A');
    EXPECT_EQ(edited.textEditor.text, u"A");
    EXPECT_EQ(edited.textEditor.selectionStart, 1);
    EXPECT_EQ(edited.textEditor.selectionLength, 0);
    EXPECT_TRUE(edited.textEditor.isVisible);
    EXPECT_TRUE(edited.textEditor.hasFocus);
    EXPECT_FALSE(edited.gridHasFocus);
    EXPECT_EQ(Cell(edited, 1, Grid::Lki), "Q20");
    PressText(edited, keys::enter);
    EXPECT_EQ(Cell(edited, 1, Grid::Lki), "A");
    EXPECT_FALSE(edited.textEditor.isVisible);
    EXPECT_FALSE(edited.textEditor.hasFocus);
    EXPECT_TRUE(edited.gridHasFocus);
}

TEST_F(GridEditing, WhatTheControlTableCouldNotGiveBackIsRefusedWithAMessageAndTheCellKeepsItsText) {
    EditedGrid& edited = form.editedPoints;
    Start(edited, 1, Grid::Description);
    edited.textEditor.text = u"BOOM, LOOF";
    PressText(edited, keys::enter);
    EXPECT_EQ(Cell(edited, 1, Grid::Description), "ONBEKEND PUNTOBJECT");
    EXPECT_FALSE(edited.textEditor.isVisible);
    EXPECT_EQ(screen.messages, std::vector<std::string>{
                                   "Niet overgenomen: BOOM, LOOF\nEen komma scheidt in een controletabel de velden, "
                                   "behalve in een tekst tussen dubbele aanhalingstekens."});
    Start(edited, 1, Grid::Liscad);
    edited.textEditor.text = u"[X";
    EndEdits(form);
    EXPECT_EQ(Cell(edited, 1, Grid::Liscad), "STANDRD");
    EXPECT_EQ(screen.messages.size(), 2U);
}

TEST_F(GridEditing, ACellThatIsLeftAsItWasIsNotRefused) {
    EditedGrid& edited = form.editedPoints;
    edited.grid[1][Grid::Liscad] = u"A#B";
    Start(edited, 1, Grid::Liscad);
    PressText(edited, keys::enter);
    EXPECT_EQ(Cell(edited, 1, Grid::Liscad), "A#B");
    EXPECT_TRUE(screen.messages.empty());
}

TEST_F(GridEditing, ADoubleClickOpensTheEditorWithTheWholeTextSelected) {
    EditedGrid& edited = form.editedPoints;
    Start(edited, 1, Grid::Description);
    EXPECT_EQ(edited.textEditor.text, u"ONBEKEND PUNTOBJECT");
    EXPECT_EQ(edited.textEditor.selectionStart, 0);
    EXPECT_EQ(edited.textEditor.selectionLength, 1000);
}

TEST_F(GridEditing, CharactersBelowABlankOrFrom250OnCountAsNone) {
    EditedGrid& edited = form.editedPoints;
    for (const std::int16_t key :
         std::initializer_list<std::int16_t>{0, 8, 27, 31, 250, 252, 255, 0x20AB, 0x0142, -1}) {
        Start(edited, 1, Grid::Lki, key);
        EXPECT_EQ(edited.textEditor.text, u"Q20") << key;
        EXPECT_EQ(edited.textEditor.selectionLength, 1000) << key;
    }
    struct Case {
        std::int16_t key;
        TextView text;
    };
    for (const Case& typed : {Case{32, u" "}, Case{63, u"?"}, Case{233, u"\u00E9"}, Case{249, u"\u00F9"},
                              Case{0x20AC, u"\u20AC"}}) {  // the euro sign is byte 128
        Start(edited, 1, Grid::P, typed.key);
        EXPECT_EQ(edited.textEditor.text, typed.text) << typed.key;
        EXPECT_EQ(edited.textEditor.selectionStart, 1) << typed.key;
    }
}

TEST_F(GridEditing, EveryColumnButTypeHasTheTextEditor) {
    for (const Kind& kind : kinds) {
        EditedGrid& edited = form.*kind.edited;
        for (int column = 0; column < Grid::columns; ++column) {
            Start(edited, 1, column);
            const bool isList = kind.hasList && column == Grid::Type;
            EXPECT_EQ(edited.listEditor.isVisible, isList) << kind.name << column;
            EXPECT_EQ(edited.textEditor.isVisible, !isList) << kind.name << column;
        }
    }
}

TEST_F(GridEditing, TheListBeginsOnTheCellsItemWithoutRegardToCaseAndBlanks) {
    EditedGrid& edited = form.editedPoints;
    Start(edited, 1, Grid::Type);
    EXPECT_EQ(edited.listEditor.text, u"Punt");
    EXPECT_TRUE(edited.listEditor.hasFocus);
    PressList(edited, keys::escape);
    edited.grid[1][Grid::Type] = u"  rot.PNT ";
    Start(edited, 1, Grid::Type);
    EXPECT_EQ(edited.listEditor.text, u"Rot.Pnt");
}

TEST_F(GridEditing, NoItemIsSelectedWhenNoneMatches) {
    EditedGrid& edited = form.editedLines;
    edited.grid[1][Grid::Type] = u"GRONDSL";
    Start(edited, 1, Grid::Type);
    EXPECT_EQ(edited.listEditor.text, u"");
    // The cell takes what the list shows, without any check.
    PressList(edited, keys::enter);
    EXPECT_EQ(Cell(edited, 1, Grid::Type), "");
}

TEST_F(GridEditing, AChosenItemIsStoredInCapitals) {
    EditedGrid& edited = form.editedPoints;
    Start(edited, 1, Grid::Type);
    edited.listEditor.text = u"Rot.Pnt";
    PressList(edited, keys::enter);
    EXPECT_EQ(Cell(edited, 1, Grid::Type), "ROT.PNT");
    EXPECT_FALSE(edited.listEditor.isVisible);
    EXPECT_TRUE(edited.gridHasFocus);
}

TEST_F(GridEditing, GrondslagIsCutToSevenCharactersInTheTable) {
    EditedGrid& edited = form.editedPoints;
    Start(edited, 1, Grid::Type);
    edited.listEditor.text = u"Grondslag";
    PressList(edited, keys::enter);
    EXPECT_EQ(Cell(edited, 1, Grid::Type), "GRONDSLAG");
    SaveGridData(form);
    EXPECT_EQ(form.project.codes.points.rows[0].Type.View(), u"GRONDSL");
}

TEST_F(GridEditing, AListTakesUpAndDownAndNoOtherKey) {
    EditedGrid& edited = form.editedPoints;
    Start(edited, 1, Grid::Type);
    for (std::int16_t key : {keys::up, keys::down}) {
        const std::int16_t before = key;
        EditKeyCodeLists(form, edited, key, 0);
        EXPECT_EQ(key, before);
    }
    for (std::int16_t key : {std::int16_t{65}, std::int16_t{37}, std::int16_t{9}, keys::insertRow, keys::deleteRow}) {
        EditKeyCodeLists(form, edited, key, 1);
        EXPECT_EQ(key, 0);
    }
    EXPECT_TRUE(edited.listEditor.isVisible);
}

TEST_F(GridEditing, EscapeInAListStoresTheItemToo) {
    EditedGrid& edited = form.editedLines;
    Start(edited, 1, Grid::Type);
    edited.listEditor.text = u"Grens";
    PressList(edited, keys::escape);
    EXPECT_EQ(Cell(edited, 1, Grid::Type), "GRENS");
    EXPECT_FALSE(edited.listEditor.isVisible);
    EXPECT_TRUE(edited.gridHasFocus);
}

TEST_F(GridEditing, EscapeStoresTheTypedTextForThereIsNoUndo) {
    EditedGrid& edited = form.editedPoints;
    Start(edited, 1, Grid::Lki, u'A');
    edited.textEditor.text = u"AB";
    PressText(edited, keys::escape);
    EXPECT_EQ(Cell(edited, 1, Grid::Lki), "AB");
    EXPECT_FALSE(edited.textEditor.isVisible);
    EXPECT_TRUE(edited.gridHasFocus);
}

TEST_F(GridEditing, OtherKeysEditTheTextNormally) {
    EditedGrid& edited = form.editedPoints;
    Start(edited, 1, Grid::Lki, u'A');
    for (std::int16_t key : {keys::up, keys::down, keys::insertRow, keys::deleteRow, std::int16_t{65}}) {
        const std::int16_t before = key;
        EditKeyCodeTexts(form, edited, key, 0);
        EXPECT_EQ(key, before);
    }
    EXPECT_TRUE(edited.textEditor.isVisible);
    EXPECT_EQ(Cell(edited, 1, Grid::Lki), "Q20");
}

TEST_F(GridEditing, LosingTheFocusStoresTheTextUnchanged) {
    EditedGrid& edited = form.editedTexts;
    Start(edited, 1, Grid::Description, u' ');
    edited.textEditor.text = u"  straatnaam\u00E9 te lang voor zeven tekens ";
    screen.pumps = 0;
    EndEdit(form, edited);
    EXPECT_EQ(Cell(edited, 1, Grid::Description), "  straatnaamé te lang voor zeven tekens ");
    EXPECT_FALSE(edited.textEditor.isVisible);
    EXPECT_EQ(screen.pumps, 1);
}

TEST_F(GridEditing, AnEditEndsOnce) {
    EditedGrid& edited = form.editedPoints;
    Start(edited, 1, Grid::Lki, u'A');
    EndEdit(form, edited);
    edited.grid[1][Grid::Lki] = u"Q99";
    int changes = 0;
    form.changed = [&] { ++changes; };
    EndEdit(form, edited);  // hiding the editor makes it lose the focus again
    EXPECT_EQ(Cell(edited, 1, Grid::Lki), "Q99");
    EXPECT_EQ(changes, 0);
}

TEST_F(GridEditing, TheWindowThatHearsOfTheEndMayEndTheEditAgain) {
    EditedGrid& edited = form.editedPoints;
    Start(edited, 1, Grid::Lki, u'A');
    int changes = 0;
    form.changed = [&] {
        ++changes;
        EndEdit(form, edited);
    };
    PressText(edited, keys::enter);
    EXPECT_EQ(changes, 1);
    EXPECT_EQ(Cell(edited, 1, Grid::Lki), "A");
}

TEST_F(GridEditing, AnEditElsewhereStoresTheOneBefore) {
    EditedGrid& edited = form.editedPoints;
    AddRows(edited, {u"BOOM"});
    Start(edited, 1, Grid::Lki, u'A');
    StartEdit(form, edited, u'B');
    EXPECT_EQ(Cell(edited, 1, Grid::Lki), "A");
    EXPECT_EQ(edited.textEditor.text, u"B");
}

TEST_F(GridEditing, EveryEditEndsBeforeTheGridsAreRead) {
    Start(form.editedPoints, 1, Grid::Lki, u'A');
    Start(form.editedLines, 1, Grid::Type);
    form.editedLines.listEditor.text = u"Dummy";
    Start(form.editedTexts, 1, Grid::Lki, u'C');
    EndEdits(form);
    EXPECT_EQ(Cell(form.editedPoints, 1, Grid::Lki), "A");
    EXPECT_EQ(Cell(form.editedLines, 1, Grid::Type), "DUMMY");
    EXPECT_EQ(Cell(form.editedTexts, 1, Grid::Lki), "C");
    EXPECT_FALSE(form.editedPoints.textEditor.isVisible);
}

TEST_F(GridEditing, AnEditThatIsDroppedStoresNothing) {
    EditedGrid& edited = form.editedPoints;
    AddRows(edited, {u"BOOM"});
    Start(edited, 2, Grid::Lki, u'A');
    DropEdits(form);
    EXPECT_EQ(Cell(edited, 2, Grid::Lki), "");
    EXPECT_FALSE(edited.textEditor.isVisible);
    EXPECT_EQ(edited.row, 1);
}

}  // namespace

}  // namespace korvande::testing
