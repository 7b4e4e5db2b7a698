#include "app/GridEditing.h"

#include "project/CodeTables.h"
#include "tests/app/AppTest.h"

namespace korvande::testing {

namespace {

// A grid of the three with its kind of editors.
struct Kind {
    const char* name;
    EditedGrid& (*edited)();
    bool hasList;
};
constexpr Kind kinds[] = {{"points", EditedPoints, true}, {"lines", EditedLines, true}, {"texts", EditedTexts, false}};

class GridEditing : public AppTest {
 protected:
    // Starts an edit of a cell as a double click or a character does.
    static void Start(EditedGrid& edited, int row, int column, std::int16_t key = keys::noCharacter) {
        edited.row = row;
        edited.column = column;
        edited.gridHasFocus = true;
        StartEdit(edited, key, {100, 200, 5000, 3000}, {300, 400, 900, 250});
    }

    static void PressText(EditedGrid& edited, std::int16_t key) { EditKeyCodeTexts(edited, key, 0); }
    static void PressList(EditedGrid& edited, std::int16_t key) { EditKeyCodeLists(edited, key, 0); }

    static std::string Cell(const EditedGrid& edited, int row, int column) {
        return ToUtf8((*edited.grid)[row][static_cast<std::size_t>(column)]);
    }

    // Appends rows with these LISCAD codes.
    static void AddRows(EditedGrid& edited, const std::vector<Text>& codes) {
        for (const Text& code : codes) {
            const int row = edited.grid->RowCount();
            edited.grid->SetRowCount(row + 1);
            (*edited.grid)[row][Grid::Liscad] = code;
        }
    }
    static std::string Codes(const EditedGrid& edited) {
        std::string codes;
        for (int row = 1; row < edited.grid->RowCount(); ++row) codes += Cell(edited, row, Grid::Liscad) + " ";
        return codes;
    }

    static std::string Items(const EditedGrid& edited) {
        std::string items;
        for (const Text& item : edited.listItems) items += ToUtf8(item) + " ";
        return items;
    }
};

TEST_F(GridEditing, TheListsHaveTheirItems) {
    EXPECT_EQ(Items(EditedPoints()), "Punt Rot.Pnt Symbool Grondslag Dummy ");
    EXPECT_EQ(Items(EditedLines()), "Lijn Grens Grondslag Dummy ");
    EXPECT_EQ(Items(EditedTexts()), "");
    EXPECT_EQ(EditedPoints().grid, &frmKORVANDE().gridPoints);
    EXPECT_EQ(EditedLines().grid, &frmKORVANDE().gridLines);
    EXPECT_EQ(EditedTexts().grid, &frmKORVANDE().gridTexts);
}

TEST_F(GridEditing, ATypedCharacterReplacesTheTextAndTheCaretStandsBehindIt) {
    EditedGrid& edited = EditedPoints();
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

TEST_F(GridEditing, ADoubleClickOpensTheEditorWithTheWholeTextSelected) {
    EditedGrid& edited = EditedPoints();
    Start(edited, 1, Grid::Description);
    EXPECT_EQ(edited.textEditor.text, u"ONBEKEND PUNTOBJECT");
    EXPECT_EQ(edited.textEditor.selectionStart, 0);
    EXPECT_EQ(edited.textEditor.selectionLength, 1000);
}

TEST_F(GridEditing, CharactersBelowABlankOrFrom250OnCountAsNone) {
    EditedGrid& edited = EditedPoints();
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

TEST_F(GridEditing, TheEditorsLieOverTheCell) {
    EditedGrid& edited = EditedPoints();
    Start(edited, 1, Grid::Lki);
    EXPECT_EQ(edited.textEditor.place.left, 380);
    EXPECT_EQ(edited.textEditor.place.top, 580);
    EXPECT_EQ(edited.textEditor.place.width, 900);
    EXPECT_EQ(edited.textEditor.place.height, 200);
    Start(edited, 1, Grid::Type);
    EXPECT_EQ(edited.listEditor.place.left, 380);
    EXPECT_EQ(edited.listEditor.place.top, 580);
    EXPECT_EQ(edited.listEditor.place.width, 900);
}

TEST_F(GridEditing, EveryColumnButTypeHasTheTextEditor) {
    for (const Kind& kind : kinds) {
        EditedGrid& edited = kind.edited();
        for (int column = 0; column < Grid::columns; ++column) {
            Start(edited, 1, column);
            const bool isList = kind.hasList && column == Grid::Type;
            EXPECT_EQ(edited.listEditor.isVisible, isList) << kind.name << column;
            EXPECT_EQ(edited.textEditor.isVisible, !isList) << kind.name << column;
        }
    }
}

TEST_F(GridEditing, TheListBeginsOnTheCellsItemWithoutRegardToCaseAndBlanks) {
    EditedGrid& edited = EditedPoints();
    Start(edited, 1, Grid::Type);
    EXPECT_EQ(edited.listEditor.text, u"Punt");
    EXPECT_TRUE(edited.listEditor.hasFocus);
    PressList(edited, keys::escape);
    (*edited.grid)[1][Grid::Type] = u"  rot.PNT ";
    Start(edited, 1, Grid::Type);
    EXPECT_EQ(edited.listEditor.text, u"Rot.Pnt");
}

TEST_F(GridEditing, NoItemIsSelectedWhenNoneMatches) {
    EditedGrid& edited = EditedLines();
    (*edited.grid)[1][Grid::Type] = u"GRONDSL";
    Start(edited, 1, Grid::Type);
    EXPECT_EQ(edited.listEditor.text, u"");
    // The cell takes what the list shows, without any check.
    PressList(edited, keys::enter);
    EXPECT_EQ(Cell(edited, 1, Grid::Type), "");
}

TEST_F(GridEditing, AChosenItemIsStoredInCapitals) {
    EditedGrid& edited = EditedPoints();
    Start(edited, 1, Grid::Type);
    edited.listEditor.text = u"Rot.Pnt";
    PressList(edited, keys::enter);
    EXPECT_EQ(Cell(edited, 1, Grid::Type), "ROT.PNT");
    EXPECT_FALSE(edited.listEditor.isVisible);
    EXPECT_TRUE(edited.gridHasFocus);
}

TEST_F(GridEditing, GrondslagIsCutToSevenCharactersInTheTable) {
    EditedGrid& edited = EditedPoints();
    Start(edited, 1, Grid::Type);
    edited.listEditor.text = u"Grondslag";
    PressList(edited, keys::enter);
    EXPECT_EQ(Cell(edited, 1, Grid::Type), "GRONDSLAG");
    SaveGridData();
    EXPECT_EQ(PointCodes().rows[0].Type.View(), u"GRONDSL");
}

TEST_F(GridEditing, AListTakesUpAndDownAndNoOtherKey) {
    EditedGrid& edited = EditedPoints();
    Start(edited, 1, Grid::Type);
    for (std::int16_t key : {keys::up, keys::down}) {
        const std::int16_t before = key;
        EditKeyCodeLists(edited, key, 0);
        EXPECT_EQ(key, before);
    }
    for (std::int16_t key : {std::int16_t{65}, std::int16_t{37}, std::int16_t{9}, keys::insertRow, keys::deleteRow}) {
        EditKeyCodeLists(edited, key, 1);
        EXPECT_EQ(key, 0);
    }
    EXPECT_TRUE(edited.listEditor.isVisible);
}

TEST_F(GridEditing, EscapeInAListStoresTheItemToo) {
    EditedGrid& edited = EditedLines();
    Start(edited, 1, Grid::Type);
    edited.listEditor.text = u"Grens";
    PressList(edited, keys::escape);
    EXPECT_EQ(Cell(edited, 1, Grid::Type), "GRENS");
    EXPECT_FALSE(edited.listEditor.isVisible);
    EXPECT_TRUE(edited.gridHasFocus);
}

TEST_F(GridEditing, EscapeStoresTheTypedTextForThereIsNoUndo) {
    EditedGrid& edited = EditedPoints();
    Start(edited, 1, Grid::Lki, u'A');
    edited.textEditor.text = u"AB";
    PressText(edited, keys::escape);
    EXPECT_EQ(Cell(edited, 1, Grid::Lki), "AB");
    EXPECT_FALSE(edited.textEditor.isVisible);
    EXPECT_TRUE(edited.gridHasFocus);
}

TEST_F(GridEditing, OtherKeysEditTheTextNormally) {
    EditedGrid& edited = EditedPoints();
    Start(edited, 1, Grid::Lki, u'A');
    for (std::int16_t key : {keys::up, keys::down, keys::insertRow, keys::deleteRow, std::int16_t{65}}) {
        const std::int16_t before = key;
        EditKeyCodeTexts(edited, key, 0);
        EXPECT_EQ(key, before);
    }
    EXPECT_TRUE(edited.textEditor.isVisible);
    EXPECT_EQ(Cell(edited, 1, Grid::Lki), "Q20");
}

TEST_F(GridEditing, LosingTheFocusStoresTheTextUnchanged) {
    EditedGrid& edited = EditedTexts();
    Start(edited, 1, Grid::Description, u' ');
    edited.textEditor.text = u"  straatnaam\u00E9 te lang voor zeven tekens ";
    screen.pumps = 0;
    EndEdit(edited);
    EXPECT_EQ(Cell(edited, 1, Grid::Description), "  straatnaamé te lang voor zeven tekens ");
    EXPECT_FALSE(edited.textEditor.isVisible);
    EXPECT_EQ(screen.pumps, 1);
}

TEST_F(GridEditing, AnEditEndsOnce) {
    EditedGrid& edited = EditedPoints();
    Start(edited, 1, Grid::Lki, u'A');
    EndEdit(edited);
    (*edited.grid)[1][Grid::Lki] = u"Q99";
    int changes = 0;
    frmKORVANDE().changed = [&] { ++changes; };
    EndEdit(edited);  // hiding the editor makes it lose the focus again
    EXPECT_EQ(Cell(edited, 1, Grid::Lki), "Q99");
    EXPECT_EQ(changes, 0);
}

TEST_F(GridEditing, TheWindowThatHearsOfTheEndMayEndTheEditAgain) {
    EditedGrid& edited = EditedPoints();
    Start(edited, 1, Grid::Lki, u'A');
    int changes = 0;
    frmKORVANDE().changed = [&] {
        ++changes;
        EndEdit(edited);
    };
    PressText(edited, keys::enter);
    EXPECT_EQ(changes, 1);
    EXPECT_EQ(Cell(edited, 1, Grid::Lki), "A");
}

TEST_F(GridEditing, AnEditElsewhereStoresTheOneBefore) {
    EditedGrid& edited = EditedPoints();
    AddRows(edited, {u"BOOM"});
    Start(edited, 1, Grid::Lki, u'A');
    StartEdit(edited, u'B', {}, {});
    EXPECT_EQ(Cell(edited, 1, Grid::Lki), "A");
    EXPECT_EQ(edited.textEditor.text, u"B");
}

TEST_F(GridEditing, EveryEditEndsBeforeTheGridsAreRead) {
    Start(EditedPoints(), 1, Grid::Lki, u'A');
    Start(EditedLines(), 1, Grid::Type);
    EditedLines().listEditor.text = u"Dummy";
    Start(EditedTexts(), 1, Grid::Lki, u'C');
    EndEdits();
    EXPECT_EQ(Cell(EditedPoints(), 1, Grid::Lki), "A");
    EXPECT_EQ(Cell(EditedLines(), 1, Grid::Type), "DUMMY");
    EXPECT_EQ(Cell(EditedTexts(), 1, Grid::Lki), "C");
    EXPECT_FALSE(EditedPoints().textEditor.isVisible);
}

TEST_F(GridEditing, AnEditThatIsDroppedStoresNothing) {
    EditedGrid& edited = EditedPoints();
    AddRows(edited, {u"BOOM"});
    Start(edited, 2, Grid::Lki, u'A');
    DropEdits();
    EXPECT_EQ(Cell(edited, 2, Grid::Lki), "");
    EXPECT_FALSE(edited.textEditor.isVisible);
    EXPECT_EQ(edited.row, 1);
}

TEST_F(GridEditing, InsertAppendsARowSaysSoAndGoesThere) {
    for (const Kind& kind : kinds) {
        EditedGrid& edited = kind.edited();
        AddRows(edited, {u"BOOM", u"PAAL"});
        edited.row = 2;
        int rowAtMessage = 0;
        screen.onMessage = [&] { rowAtMessage = edited.row; };
        GridKeyDown(edited, keys::insertRow);
        EXPECT_EQ(Codes(edited), "STANDRD BOOM PAAL 999 ") << kind.name;
        for (int column = 1; column < Grid::columns; ++column) EXPECT_EQ(Cell(edited, 4, column), "") << column;
        EXPECT_EQ(edited.row, 4) << kind.name;
        EXPECT_EQ(rowAtMessage, 2) << kind.name;
        EXPECT_EQ(screen.messages.back(),
                  "Liscad code '999' is onderaan de tabel toegevoegd.\nDeze regel wijzigen naar de juiste inhoud.");
        EXPECT_EQ(screen.boxes.back().buttons, Buttons::Ok);
    }
}

TEST_F(GridEditing, InsertTwiceAppendsTwoRows) {
    GridKeyDown(EditedPoints(), keys::insertRow);
    GridKeyDown(EditedPoints(), keys::insertRow);
    EXPECT_EQ(Codes(EditedPoints()), "STANDRD 999 999 ");
    EXPECT_EQ(EditedPoints().row, 3);
}

TEST_F(GridEditing, DeleteAsksAndRemovesTheCurrentRow) {
    for (const Kind& kind : kinds) {
        EditedGrid& edited = kind.edited();
        AddRows(edited, {u"BOOM", u"PAAL"});
        edited.row = 2;
        screen.answers = {Answer::Ok};
        GridKeyDown(edited, keys::deleteRow);
        EXPECT_EQ(Codes(edited), "STANDRD PAAL ") << kind.name;
        EXPECT_EQ(edited.row, 2) << kind.name;
        EXPECT_EQ(screen.messages.back(), "Liscad code 'BOOM' zal worden gewist");
        EXPECT_EQ(screen.boxes.back().title, u"Wissen Tabelregel");
        EXPECT_EQ(screen.boxes.back().buttons, Buttons::OkCancel);
    }
}

TEST_F(GridEditing, ACancelledDeleteRemovesNothing) {
    EditedGrid& edited = EditedPoints();
    AddRows(edited, {u"BOOM"});
    edited.row = 2;
    screen.answers = {Answer::Cancel};
    GridKeyDown(edited, keys::deleteRow);
    EXPECT_EQ(Codes(edited), "STANDRD BOOM ");
}

TEST_F(GridEditing, BehindTheLastRowTheNewLastOneBecomesCurrent) {
    EditedGrid& edited = EditedPoints();
    AddRows(edited, {u"BOOM"});
    edited.row = 2;
    screen.answers = {Answer::Ok};
    GridKeyDown(edited, keys::deleteRow);
    EXPECT_EQ(edited.row, 1);
}

TEST_F(GridEditing, TheUnknownRowCanBeRemovedAndTheNextOneTakesItsPlace) {
    EditedGrid& edited = EditedPoints();
    AddRows(edited, {u"BOOM", u"PAAL"});
    edited.row = 1;
    screen.answers = {Answer::Ok};
    GridKeyDown(edited, keys::deleteRow);
    SaveGridData();
    ASSERT_EQ(PointCodes().rows.size(), 2U);
    EXPECT_EQ(PointCodes().rows[0].LiscadCode.TrimmedRight(), u"BOOM");
    EXPECT_EQ(LookupPointByLiscadCode(MakeFixedText<7>(u"WEG")), 0);
}

TEST_F(GridEditing, ATableCanLoseItsLastRowAndGetOneAgain) {
    EditedGrid& edited = EditedPoints();
    screen.answers = {Answer::Ok};
    GridKeyDown(edited, keys::deleteRow);
    EXPECT_EQ(edited.grid->RowCount(), 1);
    EXPECT_EQ(edited.row, 0);
    GridKeyDown(edited, keys::deleteRow);
    StartEdit(edited, u'A', {}, {});
    EXPECT_EQ(screen.messages.size(), 1U);
    EXPECT_FALSE(edited.textEditor.isVisible);
    EXPECT_EQ(ToUtf8((*edited.grid)[0][Grid::Liscad]), "Liscad");
    SaveGridData();
    EXPECT_TRUE(PointCodes().rows.empty());
    GridKeyDown(edited, keys::insertRow);
    EXPECT_EQ(edited.row, 1);
    EXPECT_EQ(Codes(edited), "999 ");
}

TEST_F(GridEditing, OtherKeysDoNothingOnTheGrid) {
    EditedGrid& edited = EditedPoints();
    const Grid before = *edited.grid;
    for (std::int16_t key = 0; key < 256; ++key) {
        if (key != keys::insertRow && key != keys::deleteRow) GridKeyDown(edited, key);
    }
    EXPECT_EQ(Codes(edited), "STANDRD ");
    EXPECT_EQ(before[1], (*edited.grid)[1]);
    EXPECT_EQ(edited.row, 1);
    EXPECT_FALSE(edited.textEditor.isVisible);
    EXPECT_TRUE(screen.messages.empty());
}

TEST_F(GridEditing, TheWindowHearsOfEveryChange) {
    EditedGrid& edited = EditedPoints();
    int changes = 0;
    frmKORVANDE().changed = [&] { ++changes; };
    GridKeyDown(edited, keys::insertRow);
    EXPECT_GT(changes, 0);
    changes = 0;
    screen.answers = {Answer::Ok};
    GridKeyDown(edited, keys::deleteRow);
    EXPECT_GT(changes, 0);
    changes = 0;
    Start(edited, 1, Grid::Lki, u'A');
    EndEdit(edited);
    EXPECT_GT(changes, 0);
}

TEST_F(GridEditing, TwentyThousandRowsAreNoBurden) {
    EditedGrid& edited = EditedPoints();
    AddRows(edited, std::vector<Text>(20000, u"BOOM"));
    edited.row = 2;
    screen.answers.assign(50, Answer::Ok);
    for (int i = 0; i < 50; ++i) GridKeyDown(edited, keys::deleteRow);
    for (int i = 0; i < 50; ++i) GridKeyDown(edited, keys::insertRow);
    EXPECT_EQ(edited.grid->RowCount(), 20002);
    EXPECT_EQ(edited.row, 20001);
    EXPECT_EQ(Cell(edited, 20001, Grid::Liscad), "999");
}

}  // namespace

}  // namespace korvande::testing
