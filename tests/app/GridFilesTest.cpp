#include "app/GridFiles.h"

#include "app/GridHistory.h"
#include "app/GridView.h"
#include "tests/app/GridEditingTest.h"

// Importing and exporting a code table.
namespace korvande::testing {

namespace {

class GridFilesTest : public GridEditing {
 protected:
    GridFilesTest() { AddRows(edited, {u"BOOM"}); }

    EditedGrid& edited = form.editedPoints;
};

TEST_F(GridFilesTest, AfterYesTheRowsReplaceTheTable) {
    const Text name = folder.Write("codes.csv", "Liscad;LKI\nSTANDRD;Q20\nEIK;Q21\n");
    SortByColumn(form, edited, Grid::Liscad);
    screen.answers = {Answer::Yes};
    EXPECT_EQ(ToUtf8(ImportGrid(form, edited, name)), "2 regels geïmporteerd uit codes.csv.");
    EXPECT_EQ(screen.messages.back(),
              "codes.csv heeft 2 regels.\n\nJa: de regels van de tabel vervangen\nNee: de regels onderaan de tabel "
              "toevoegen\nAnnuleren: niets doen");
    EXPECT_EQ(Codes(edited), "STANDRD EIK ");
    EXPECT_EQ(edited.row, 1);
    EXPECT_FALSE(IsSorted(edited));
    Undo(edited);
    EXPECT_EQ(Codes(edited), "STANDRD BOOM ");
}

TEST_F(GridFilesTest, AfterNoTheyComeBehindItsRows) {
    const Text name = folder.Write("codes.csv", "Liscad;LKI\n;\nEIK;Q21\n");
    screen.answers = {Answer::No};
    EXPECT_EQ(ToUtf8(ImportGrid(form, edited, name)), "1 regel geïmporteerd uit codes.csv.");
    EXPECT_EQ(screen.messages.back().substr(0, 58), "codes.csv heeft 1 regel (1 lege regel niet meegerekend).\n\n");
    EXPECT_EQ(Codes(edited), "STANDRD BOOM EIK ");
    EXPECT_EQ(edited.row, 3);
}

TEST_F(GridFilesTest, AfterCancelNothingHappens) {
    const Text name = folder.Write("codes.csv", "Liscad;LKI\nEIK;Q21\n");
    screen.answers = {Answer::Cancel};
    EXPECT_EQ(ImportGrid(form, edited, name), u"");
    EXPECT_EQ(Codes(edited), "STANDRD BOOM ");
    EXPECT_FALSE(CanUndo(edited));
}

TEST_F(GridFilesTest, AFileWithErrorsChangesNothingAndTheMessageNamesTheLines) {
    std::string bytes = "Liscad;LKI\nEIK;Q21\n";
    for (int i = 0; i < 12; ++i) bytes += "LANTAARNPAAL;Q22\n";
    const Text name = folder.Write("codes.csv", bytes);
    EXPECT_EQ(ImportGrid(form, edited, name), u"");
    EXPECT_EQ(Codes(edited), "STANDRD BOOM ");
    const std::string& message = screen.messages.back();
    EXPECT_EQ(message.substr(0, message.find('\n')), "Niet geïmporteerd: " + ToUtf8(name));
    EXPECT_NE(message.find("\nRegel 3: kolom Liscad: 'LANTAARNPAAL'"), std::string::npos);
    EXPECT_NE(message.find("\n… en nog 2."), std::string::npos);
}

TEST_F(GridFilesTest, AnEmptyFileAndOneThatIsNotThereSaySo) {
    ImportGrid(form, edited, folder.Write("leeg.csv", "Liscad;LKI\n"));
    EXPECT_NE(screen.messages.back().find("Het bestand heeft geen regels."), std::string::npos);
    EXPECT_EQ(ImportGrid(form, edited, folder / "weg.csv"), u"");
    EXPECT_NE(screen.messages.back().find("Kon bestand: "), std::string::npos);
    EXPECT_EQ(screen.boxes.back().buttons, Buttons::RetryCancel);
}

TEST_F(GridFilesTest, AnExportIsTheTableInItsOwnOrder) {
    SortByColumn(form, edited, Grid::Liscad);
    EXPECT_EQ(ToUtf8(ExportGrid(form, edited, folder / "codes.csv", {u';', false})),
              "2 regels geëxporteerd naar codes.csv.");
    EXPECT_EQ(FileBytes(folder / "codes.csv"),
              "Liscad;LKI;Type;Omschrijving;P;I;B\r\nSTANDRD;Q20;PUNT;ONBEKEND PUNTOBJECT;0;0;0\r\nBOOM;;;;;;\r\n");
}

TEST_F(GridFilesTest, ANameWithoutTheEndingGetsItAndIsNotReplacedUnasked) {
    WriteProject("proef.nst");
    const std::string before = ProjectBytes("proef.nst");
    folder.Write("projecten/proef.nst.csv", "oud");
    const Text name = FromUtf8(projects + "/proef.nst");
    EXPECT_EQ(ExportGrid(form, edited, name, {}), u"") << "No";
    EXPECT_EQ(ProjectBytes("proef.nst.csv"), "oud");
    screen.answers = {Answer::Yes};
    EXPECT_NE(ExportGrid(form, edited, name, {}), u"");
    EXPECT_NE(ProjectBytes("proef.nst.csv"), "oud");
    EXPECT_EQ(ProjectBytes("proef.nst"), before);
}

TEST_F(GridFilesTest, AnExportThatCannotBeWrittenSaysSo) {
    EXPECT_EQ(ExportGrid(form, edited, folder / "geen map/codes.csv", {}), u"");
    EXPECT_EQ(screen.boxes.back().buttons, Buttons::RetryCancel);
    edited.grid[1][Grid::P] = u"\u2603";
    EXPECT_EQ(ExportGrid(form, edited, folder / "codes.csv", {u';', false}), u"");
    EXPECT_EQ(screen.messages.back(), "Niet geëxporteerd.\nRegel 1: er is een teken dat Windows-1252 niet heeft.");
    EXPECT_FALSE(FileExistsAt(folder / "codes.csv"));
}

}  // namespace

}  // namespace korvande::testing
