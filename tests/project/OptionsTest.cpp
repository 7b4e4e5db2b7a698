#include "project/frmKORVANDE.h"

#include <gtest/gtest.h>

#include <initializer_list>

#include "core/Version.h"
#include "tests/project/ProjectState.h"
#include "tests/support/ProgramState.h"

namespace korvande::testing {

namespace {

class Form : public ProgramTest {};

std::string HeaderOf(const Grid& grid) {
    std::string header;
    for (const Text& cell : grid[0]) header += (header.empty() ? "" : "|") + ToUtf8(cell);
    return header;
}

std::string Digits(std::initializer_list<bool> values) {
    std::string digits;
    for (const bool value : values) digits.push_back(value ? '1' : '0');
    return digits;
}

TEST_F(Form, StartsWithItsListsLabelAndDate) {
    const EnvironmentValue epoch("SOURCE_DATE_EPOCH", "1715644800");
    InitialiseForm();
    const FormKORVANDE& form = frmKORVANDE();
    EXPECT_EQ(VersionText(), Concat(versionMajor, u".0", versionMinor, u".0", versionRevision));
    EXPECT_EQ(form.lblVersion, u"Versie:  8.01.064");
    EXPECT_EQ(form.cboXlateMode.items,
              (std::vector<Text>{u"IDEX >> NEN1878", u"IDEX >> SUF2", u"NEN1878 >> IDEX", u"SUF2 >> IDEX"}));
    EXPECT_EQ(form.cboXlateMode.SelectedText(), u"IDEX >> NEN1878");
    EXPECT_EQ(form.lstSource.items,
              (std::vector<Text>{u"Onbekend", u"Terrestr.", u"Fotogramm.", u"Digitizer", u"Scanner", u"Kaartverbet."}));
    EXPECT_EQ(form.lstSource.SelectedText(), u"Onbekend");
    EXPECT_EQ(form.txtAltDatum, u"20240514");
    EXPECT_TRUE(StartedInteractively());
    EXPECT_TRUE(form.framStandaloneVisible);
    EXPECT_TRUE(form.runMark.empty());
    EXPECT_TRUE(CurrentProject().empty());
    EXPECT_TRUE(ProjectFolder().empty());
}

TEST_F(Form, StartsWithItsOptions) {
    const FormKORVANDE& form = frmKORVANDE();
    EXPECT_TRUE(form.optDateSEE);
    EXPECT_FALSE(form.optDateNow);
    EXPECT_FALSE(form.optDateAlt);
    EXPECT_FALSE(form.txtAltDatumEnabled);
    EXPECT_FALSE(form.chkExport3D);
    EXPECT_FALSE(form.chkImportSymRotation);
    EXPECT_FALSE(form.chkExportSymRotation);
    EXPECT_EQ(form.txtPnoTxtLKI, u"");
    EXPECT_EQ(form.txtEleTxtLKI, u"");
    EXPECT_FALSE(form.chkSelectXY);
    EXPECT_EQ(form.txtMinX, u"0");
    EXPECT_EQ(form.txtMaxX, u"999999");
    EXPECT_EQ(form.txtMinY, u"0");
    EXPECT_EQ(form.txtMaxY, u"999999");
}

TEST_F(Form, StartsAnewWhateverWasChanged) {
    const std::vector<std::string> before = ProjectState();
    TheOwner().NameLong = u"IEMAND";
    frmKORVANDE().optDateNow = true;
    frmKORVANDE().runMark = u"XLATE RUNNING";
    frmKORVANDE().gridLines.SetRowCount(9);
    StartedInteractively() = false;
    CurrentProject() = u"X.NST";
    InitialiseForm();
    EXPECT_EQ(Differences(before, ProjectState()), "");
    EXPECT_TRUE(frmKORVANDE().runMark.empty());
}

TEST_F(Form, TheGridsHaveTheirHeaders) {
    EXPECT_EQ(HeaderOf(frmKORVANDE().gridPoints), "Liscad|LKI|Type|Omschrijving|P|I|B");
    EXPECT_EQ(HeaderOf(frmKORVANDE().gridLines), "Liscad|LKI|Type|Omschrijving|P|I|B");
    EXPECT_EQ(HeaderOf(frmKORVANDE().gridTexts), "Liscad|LKI|-|Omschrijving|P|I|B");
}

TEST_F(Form, OneListingDestinationIsSelected) {
    FormKORVANDE& form = frmKORVANDE();
    const auto selected = [&form] {
        return Digits({form.optReportScreen, form.optReportDisk, form.optReportPrinter, form.optReportNone});
    };
    form.SelectReport(&FormKORVANDE::optReportDisk);
    EXPECT_EQ(selected(), "0100");
    form.SelectReport(&FormKORVANDE::optReportPrinter);
    EXPECT_EQ(selected(), "0010");
    form.SelectReport(&FormKORVANDE::optReportNone);
    EXPECT_EQ(selected(), "0001");
    form.SelectReport(&FormKORVANDE::optReportScreen);
    EXPECT_EQ(selected(), "1000");
}

TEST_F(Form, TheDateOptionsExcludeEachOtherAndTheAlternativeDateFollows) {
    FormKORVANDE& form = frmKORVANDE();
    const auto state = [&form] {
        return Digits({form.optDateSEE, form.optDateNow, form.optDateAlt, form.txtAltDatumEnabled});
    };
    form.SetDateOption(&FormKORVANDE::optDateAlt, true);
    EXPECT_EQ(state(), "0011");
    form.SetDateOption(&FormKORVANDE::optDateSEE, false);
    EXPECT_EQ(state(), "0011");
    form.SetDateOption(&FormKORVANDE::optDateNow, true);
    EXPECT_EQ(state(), "0100");
    form.SetDateOption(&FormKORVANDE::optDateNow, false);
    EXPECT_EQ(state(), "0000");
    form.SetDateOption(&FormKORVANDE::optDateSEE, true);
    EXPECT_EQ(state(), "1000");
}

TEST(Lists, WithoutASelectionTheTextIsEmpty) {
    ListControl list{{u"een", u"twee"}, 1};
    EXPECT_EQ(list.SelectedText(), u"twee");
    list.index = -1;
    EXPECT_EQ(list.SelectedText(), u"");
    list.index = 2;
    EXPECT_EQ(list.SelectedText(), u"");
}

TEST(Grids, ARowIsRemovedFromItsPlace) {
    Grid grid(u"A|B");
    grid.SetRowCount(4);
    for (int row = 1; row < 4; ++row) grid[row][Grid::Liscad] = Concat(row);
    grid.RemoveRow(2);
    ASSERT_EQ(grid.RowCount(), 3);
    EXPECT_EQ(grid[0][Grid::Liscad], u"A");
    EXPECT_EQ(grid[0][Grid::Lki], u"B");
    EXPECT_EQ(grid[0][Grid::Type], u"");
    EXPECT_EQ(grid[2][Grid::Liscad], u"3");
}

TEST_F(Form, AResetLeavesOneUnknownRowInEachTable) {
    for (CodeTable* table : {&PointCodes(), &LineCodes(), &TextCodes()}) {
        table->rows.resize(5);
        table->rows[0].Type = u"DUMMY";
        table->rows[0].Count = 7;
    }
    ResetProject();
    EXPECT_EQ(TableText('P'), "STANDRD|Q20|PUNT|ONBEKEND PUNTOBJECT|0|0|0\n");
    EXPECT_EQ(TableText('L'), "STANDRD|Q00|LIJN|ONBEKEND LIJNOBJECT|0|0|0\n");
    EXPECT_EQ(TableText('T'), "STANDRD|Z19||ONBEKEND TEKSTOBJECT|0|0|0\n");
    EXPECT_EQ(PointCodes().rows[0].Count, 0);
    EXPECT_FALSE(TextCodes().rows[0].Type.NeverFilled());
}

TEST_F(Form, AResetSetsItsOptionsAndLeavesTheOthers) {
    FormKORVANDE& form = frmKORVANDE();
    const std::vector<std::string> atStart = ProjectState();
    form.txtFileSUFNEN = form.txtFileIDEX = u"X";
    form.SelectReport(&FormKORVANDE::optReportNone);
    form.chkImportUnknowns = false;
    form.chkExportUnknowns = form.chkExportPointnoAsField = form.chkExportPointnoAsText = form.chkExportHeightAsText =
        true;
    ResetProject();
    EXPECT_EQ(Differences(atStart, ProjectState()), "");
    EXPECT_EQ(form.txtFileSUFNEN, u"voorbeeld.sfn");
    EXPECT_EQ(form.txtFileIDEX, u"voorbeeld.idx");
    EXPECT_TRUE(form.optReportScreen);
    EXPECT_TRUE(form.chkImportUnknowns);

    form.chkImportSymRotation = form.chkExportSymRotation = form.chkExport3D = form.chkSelectXY = true;
    form.txtPnoTxtLKI = form.txtEleTxtLKI = u"Z30";
    form.txtAltDatum = u"20200101";
    form.SetDateOption(&FormKORVANDE::optDateAlt, true);
    form.lstSource.index = 3;
    form.cboXlateMode.index = 2;
    form.txtProject = u"PROJECT";
    form.txtNameLong = u"NAAM";
    form.gridPoints.SetRowCount(9);
    const std::vector<std::string> before = ProjectState();
    ResetProject();
    EXPECT_EQ(Differences(before, ProjectState()), "");
}

TEST_F(Form, OnlyTheFirstResetFillsTheOwner) {
    const OwnerRec& owner = TheOwner();
    EXPECT_EQ(owner.NameLong, MakeFixedText<35>(u"VOSAIZO ZANDERVIK B.V."));
    EXPECT_EQ(owner.NameShort, MakeFixedText<8>(u"VOSAIZO"));
    EXPECT_EQ(owner.Street, MakeFixedText<24>(u"POSTBUS"));
    EXPECT_EQ(owner.Number, MakeFixedText<5>(u"418"));
    EXPECT_EQ(owner.Extra, MakeFixedText<5>(u""));
    EXPECT_EQ(owner.ZipCode, MakeFixedText<6>(u"7391KX"));
    EXPECT_EQ(owner.Town, MakeFixedText<24>(u"MOLVEREN"));
    EXPECT_EQ(owner.Source, MakeFixedText<5>(u""));
    TheOwner().NameLong = u"";
    TheOwner().Town = u"ELDERS";
    ResetProject();
    EXPECT_TRUE(owner.NameLong.IsBlank());
    EXPECT_EQ(owner.Town.TrimmedRight(), u"ELDERS");
}

TEST_F(Form, TheOwnerBoxesShowTheRecordWithoutTrailingBlanks) {
    EXPECT_EQ(frmKORVANDE().txtNameLong, u"VOSAIZO ZANDERVIK B.V.");
    EXPECT_EQ(frmKORVANDE().txtSuffix, u"");
    TheOwner().ZipCode = u" 12";
    ShowOwner();
    EXPECT_EQ(frmKORVANDE().txtZipcode, u" 12");
}

TEST_F(Form, TheGridsShowTheTables) {
    CodeRow row = PointCodes().rows[0];
    row.LiscadCode = u" AB";
    row.LkiCode = u"S01 A01";
    row.Type = u"ROT.PNT";
    row.Description = u"Café";
    row.P = -32768;
    row.I = 0;
    row.B = 32767;
    PointCodes().rows.push_back(row);
    int shown = 0;
    frmKORVANDE().changed = [&shown] { ++shown; };
    LoadGridData();
    EXPECT_EQ(shown, 1);
    const Grid& grid = frmKORVANDE().gridPoints;
    ASSERT_EQ(grid.RowCount(), 3);
    EXPECT_EQ(grid[0][Grid::Liscad], u"Liscad");
    EXPECT_EQ(grid[1], (Grid::Row{u"STANDRD", u"Q20", u"PUNT", u"ONBEKEND PUNTOBJECT", u"0", u"0", u"0"}));
    EXPECT_EQ(grid[2], (Grid::Row{u"AB", u"S01 A01", u"ROT.PNT", u"Café", u"-32768", u"0", u"32767"}));
    EXPECT_EQ(frmKORVANDE().gridLines[1],
              (Grid::Row{u"STANDRD", u"Q00", u"LIJN", u"ONBEKEND LIJNOBJECT", u"0", u"0", u"0"}));
    EXPECT_EQ(frmKORVANDE().gridTexts[1],
              (Grid::Row{u"STANDRD", u"Z19", u"", u"ONBEKEND TEKSTOBJECT", u"0", u"0", u"0"}));
}

TEST_F(Form, AGridGetsShorterWithItsTable) {
    PointCodes().rows.resize(10, PointCodes().rows[0]);
    LoadGridData();
    EXPECT_EQ(frmKORVANDE().gridPoints.RowCount(), 11);
    ResetProject();
    LoadGridData();
    EXPECT_EQ(frmKORVANDE().gridPoints.RowCount(), 2);
    PointCodes().rows.clear();
    LoadGridData();
    EXPECT_EQ(frmKORVANDE().gridPoints.RowCount(), 1);
}

TEST_F(Form, TheTablesAreMadeAnewFromTheGrids) {
    Grid& grid = frmKORVANDE().gridPoints;
    grid.SetRowCount(4);
    grid[2] = {u"ABCDEFGHI", u"123456789", u"GRONDSLAG", Text(50, u'd'), u"12abc", u"", u"-7.5"};
    PointCodes().rows[0].Count = 5;
    SaveGridData();
    EXPECT_EQ(TableText('P'), "STANDRD|Q20|PUNT|ONBEKEND PUNTOBJECT|0|0|0\nABCDEFG|1234567|GRONDSL|" +
                                  std::string(43, 'd') + "|12|0|-8\n|||" + "|0|0|0\n");
    for (const CodeRow& row : PointCodes().rows) EXPECT_EQ(row.Count, 0);
    EXPECT_FALSE(PointCodes().rows[2].LiscadCode.NeverFilled());
}

TEST_F(Form, AnEmptyCellIsZeroAndANumberEndsWhereItsDigitsDo) {
    const struct {
        TextView cell;
        std::int16_t number;
    } cases[] = {{u"", 0},      {u"12", 12}, {u"  12 m", 12},   {u"12abc", 12}, {u"abc", 0},         {u"-3", -3},
                 {u"2.5", 2},   {u"3.5", 4}, {u"32767", 32767}, {u"32768", 0},  {u"-32768", -32768}, {u"-32769", 0},
                 {u"1e999", 0}, {u"€", 0},   {u"1E2", 100}};
    for (const auto& [cell, number] : cases) {
        frmKORVANDE().gridLines[1][Grid::P] = cell;
        SaveGridData();
        EXPECT_EQ(LineCodes().rows[0].P, number) << ToUtf8(cell);
    }
}

TEST_F(Form, AGridWithoutAnyRowMakesATableWithoutAnyRow) {
    frmKORVANDE().gridTexts.SetRowCount(1);
    SaveGridData();
    EXPECT_TRUE(TextCodes().rows.empty());
    frmKORVANDE().gridTexts.SetRowCount(0);
    SaveGridData();
    EXPECT_TRUE(TextCodes().rows.empty());
}

TEST_F(Form, GridsToTablesAndBackChangeNothing) {
    frmKORVANDE().gridTexts.SetRowCount(3);
    frmKORVANDE().gridTexts[2] = {u"NAAM", u"Z02", u"", u"Straatnaam é", u"1", u"-2", u"3"};
    SaveGridData();
    const std::vector<std::string> before = ProjectState();
    LoadGridData();
    SaveGridData();
    EXPECT_EQ(Differences(before, ProjectState()), "");
}

}  // namespace

}  // namespace korvande::testing
