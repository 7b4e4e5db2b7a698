#include "app/frmKORVANDE.h"

#include "tests/app/AppTest.h"

namespace korvande::testing {

namespace {

class Form : public AppTest {
 protected:
    std::string HeaderOf(const Grid& grid) const {
        std::string header;
        for (const Text& cell : grid[0]) header += (header.empty() ? "" : "|") + ToUtf8(cell);
        return header;
    }

    CodeTables& codes = form.project.codes;
};

TEST_F(Form, StartsWithItsListsLabelAndDate) {
    const FormKORVANDE started(screen);
    EXPECT_EQ(started.lblVersion, u"Versie:  8.01.064");
    EXPECT_EQ(started.cboXlateMode.items,
              (std::vector<Text>{u"IDEX >> NEN1878", u"IDEX >> SUF2", u"NEN1878 >> IDEX", u"SUF2 >> IDEX"}));
    EXPECT_EQ(started.cboXlateMode.SelectedText(), u"IDEX >> NEN1878");
    EXPECT_EQ(started.project.options.txtAltDatum, u"20261121");
    EXPECT_TRUE(started.project.options.StartedInteractively);
    EXPECT_FALSE(started.StartedByCommandLine);
    EXPECT_TRUE(started.runMark.empty());
    EXPECT_TRUE(started.CurrentProject.empty());
    EXPECT_TRUE(started.ProjectFolder.empty());
    EXPECT_FALSE(IsBusy(started));
}

TEST_F(Form, StartsWithTheDefaultsInTablesGridsAndOwnerBoxes) {
    EXPECT_EQ(options.txtFileSUFNEN, u"voorbeeld.sfn");
    EXPECT_EQ(options.txtNameLong, u"VOSAIZO ZANDERVIK B.V.");
    EXPECT_EQ(options.txtSource, u"");
    EXPECT_EQ(codes.points.rows.size(), 1U);
    EXPECT_EQ(form.gridPoints[1], (Grid::Row{u"STANDRD", u"Q20", u"PUNT", u"ONBEKEND PUNTOBJECT", u"0", u"0", u"0"}));
    EXPECT_EQ(form.gridLines[1], (Grid::Row{u"STANDRD", u"Q00", u"LIJN", u"ONBEKEND LIJNOBJECT", u"0", u"0", u"0"}));
    EXPECT_EQ(form.gridTexts[1], (Grid::Row{u"STANDRD", u"Z19", u"", u"ONBEKEND TEKSTOBJECT", u"0", u"0", u"0"}));
}

TEST_F(Form, TheGridsHaveTheirHeaders) {
    EXPECT_EQ(HeaderOf(form.gridPoints), "Liscad|LKI|Type|Omschrijving|P|I|B");
    EXPECT_EQ(HeaderOf(form.gridLines), "Liscad|LKI|Type|Omschrijving|P|I|B");
    EXPECT_EQ(HeaderOf(form.gridTexts), "Liscad|LKI|-|Omschrijving|P|I|B");
}

TEST_F(Form, TwoFormsKnowNothingOfEachOther) {
    FormKORVANDE other(screen);
    options.chkExport3D = true;
    form.gridPoints[1][Grid::Lki] = u"Q99";
    StartEdit(form, form.editedPoints, u'X');
    SaveCurrentProject(form);
    EXPECT_FALSE(other.project.options.chkExport3D);
    EXPECT_EQ(other.gridPoints[1][Grid::Lki], u"Q20");
    EXPECT_FALSE(other.editedPoints.textEditor.isVisible);
    EXPECT_EQ(other.project.codes.points.rows[0].LkiCode.TrimmedRight(), u"Q20");
}

TEST(Lists, WithoutASelectionTheTextIsEmpty) {
    ListControl list{{u"een", u"twee"}, 1};
    EXPECT_EQ(list.SelectedText(), u"twee");
    list.index = -1;
    EXPECT_EQ(list.SelectedText(), u"");
    list.index = 2;
    EXPECT_EQ(list.SelectedText(), u"");
}

TEST_F(Form, TheGridsShowTheTablesAndTheWindowHearsOfIt) {
    CodeRow row = codes.points.rows[0];
    row.LiscadCode = u" AB";
    row.Description = u"Café";
    row.P = -32768;
    codes.points.rows.push_back(row);
    int shown = 0;
    form.changed = [&shown] { ++shown; };
    LoadGridData(form);
    EXPECT_EQ(shown, 1);
    ASSERT_EQ(form.gridPoints.RowCount(), 3);
    EXPECT_EQ(form.gridPoints[2], (Grid::Row{u"AB", u"Q20", u"PUNT", u"Café", u"-32768", u"0", u"0"}));
}

TEST_F(Form, TheTablesAreMadeAnewFromTheGrids) {
    form.gridPoints.SetRowCount(3);
    form.gridPoints[2] = {u"ABCDEFGHI", u"S01", u"GRONDSLAG", u"Boom", u"12abc", u"", u"-7.5"};
    form.gridLines[1][Grid::Lki] = u"Q98";
    form.gridTexts.SetRowCount(1);
    CountUse(codes.points, 0, 5);
    SaveGridData(form);
    ASSERT_EQ(codes.points.rows.size(), 2U);
    EXPECT_EQ(codes.points.rows[0].Count, 0);
    EXPECT_EQ(codes.points.rows[1].LiscadCode.View(), u"ABCDEFG");
    EXPECT_EQ(codes.points.rows[1].Type.View(), u"GRONDSL");
    EXPECT_EQ(codes.points.rows[1].P, 12);
    EXPECT_EQ(codes.points.rows[1].B, -8);
    EXPECT_EQ(codes.lines.rows[0].LkiCode.TrimmedRight(), u"Q98");
    EXPECT_TRUE(codes.texts.rows.empty());
}

TEST_F(Form, ALoadShowsTheProjectInGridsOwnerBoxesAndTitle) {
    WriteProject("A.nst", "STAD A", "[Points]\nBOOM = S01, PUNT, EEN BOOM\n");
    form.CurrentProject = u"A.nst";
    EXPECT_TRUE(LoadProjectFile(form, Concat(form.ProjectFolder, form.CurrentProject)));
    EXPECT_EQ(LoadedTown(), "STAD A");
    EXPECT_EQ(form.txtProject, u"A");
    ASSERT_EQ(form.gridPoints.RowCount(), 3);
    EXPECT_EQ(form.gridPoints[2][Grid::Description], u"EEN BOOM");
}

TEST_F(Form, ALoadThatFailsLeavesTheResetStateInTheGridsToo) {
    WriteProject("A.nst", "STAD A", "[Export]\nIncludeUnknown = 1\n[Points]\nBOOM = S01, PUNT, EEN BOOM\n");
    ASSERT_TRUE(LoadProjectFile(form, folder / "projecten/A.nst"));
    ASSERT_TRUE(options.chkExportUnknowns);
    EXPECT_FALSE(LoadProjectFile(form, folder / "projecten/weg.nst"));
    EXPECT_EQ(screen.boxes.back().buttons, Buttons::RetryCancel);
    EXPECT_FALSE(options.chkExportUnknowns);
    EXPECT_EQ(form.gridPoints.RowCount(), 2);
    EXPECT_EQ(codes.points.rows.size(), 1U);
}

TEST_F(Form, AnEmptyProjectHasTheDefaultsAndTheOwnersSource) {
    form.gridPoints.SetRowCount(9);
    options.txtFileIDEX = u"X";
    LoadEmptyProject(form);
    EXPECT_EQ(form.gridPoints.RowCount(), 2);
    EXPECT_EQ(options.txtFileIDEX, u"voorbeeld.idx");
    EXPECT_EQ(options.txtSource, u"VOSAI");
    EXPECT_EQ(form.txtProject, u"");
}

TEST_F(Form, ASaveTakesTheGridsAndTheOwnerBoxes) {
    form.CurrentProject = u"A.nst";
    form.gridPoints[1][Grid::Lki] = u"Q99";
    options.txtCity = u"NIEUWSTAD";
    EXPECT_TRUE(SaveCurrentProject(form));
    EXPECT_NE(ProjectBytes("A.nst").find("Unknown = STANDRD, Q99,"), std::string::npos);
    EXPECT_NE(ProjectBytes("A.nst").find("Town = NIEUWSTAD\r\n"), std::string::npos);
    EXPECT_EQ(form.project.owner.Town.TrimmedRight(), u"NIEUWSTAD");
}

TEST_F(Form, WithoutACurrentProjectASaveTakesTheSameAndWritesNothing) {
    form.gridPoints[1][Grid::Lki] = u"Q99";
    options.txtCity = u"NIEUWSTAD";
    EXPECT_TRUE(SaveCurrentProject(form));
    EXPECT_EQ(ProjectNames(), "");
    EXPECT_EQ(codes.points.rows[0].LkiCode.TrimmedRight(), u"Q99");
    EXPECT_EQ(form.project.owner.Town.TrimmedRight(), u"NIEUWSTAD");
}

TEST_F(Form, ASaveTakesTheGridsEvenWhenTheFileCannotBeWritten) {
    form.gridPoints[1][Grid::Lki] = u"Q99";
    EXPECT_FALSE(SaveProjectFile(form, folder / "geen map/straat.nst"));
    EXPECT_EQ(codes.points.rows[0].LkiCode.TrimmedRight(), u"Q99");
}

}  // namespace

}  // namespace korvande::testing
