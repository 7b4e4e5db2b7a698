#include "project/frmKORVANDE.h"

#include <algorithm>

#include "core/Clock.h"
#include "core/Numbers.h"
#include "core/Version.h"
#include "project/CodeTables.h"
#include "project/OwnerRecord.h"

namespace korvande {

namespace {

// A table with its unknown row only.
void ResetTable(CodeTable& table, TextView lkiCode, TextView type, TextView description) {
    CodeRow row{};
    row.LiscadCode = u"STANDRD";
    row.LkiCode = lkiCode;
    row.Type = type;
    row.Description = description;
    table.rows.assign(1, row);
    table.RowsChanged();
}

void FillOwner(OwnerRec& owner) {
    owner.NameLong = u"VOSAIZO ZANDERVIK B.V.";
    owner.NameShort = u"VOSAIZO";
    owner.Street = u"POSTBUS";
    owner.Number = u"418";
    owner.Extra = u"";
    owner.ZipCode = u"7391KX";
    owner.Town = u"MOLVEREN";
    owner.Source = u"";
}

void LoadGrid(Grid& grid, const CodeTable& table) {
    grid.SetRowCount(static_cast<int>(table.rows.size()) + 1);
    int gridRow = 1;
    for (const CodeRow& row : table.rows) {
        Grid::Row& cells = grid[gridRow++];
        cells[Grid::Liscad] = row.LiscadCode.Trimmed();
        cells[Grid::Lki] = row.LkiCode.Trimmed();
        cells[Grid::Type] = row.Type.Trimmed();
        cells[Grid::Description] = row.Description.Trimmed();
        cells[Grid::P] = Concat(row.P);
        cells[Grid::I] = Concat(row.I);
        cells[Grid::B] = Concat(row.B);
    }
}

void SaveGrid(const Grid& grid, CodeTable& table) {
    table.rows.clear();
    for (int gridRow = 1; gridRow < grid.RowCount(); ++gridRow) {
        const Grid::Row& cells = grid[gridRow];
        CodeRow& row = table.rows.emplace_back();
        row.LiscadCode = cells[Grid::Liscad];
        row.LkiCode = cells[Grid::Lki];
        row.Type = cells[Grid::Type];
        row.Description = cells[Grid::Description];
        row.P = SmallNumberOrZero(ToWindows1252(cells[Grid::P]));
        row.I = SmallNumberOrZero(ToWindows1252(cells[Grid::I]));
        row.B = SmallNumberOrZero(ToWindows1252(cells[Grid::B]));
    }
    table.RowsChanged();
}

}  // namespace

Grid::Grid(TextView header) : rows(1) {
    for (Text& cell : rows.front()) {
        const std::size_t end = std::min(header.find(u'|'), header.size());
        cell = header.substr(0, end);
        header.remove_prefix(std::min(end + 1, header.size()));
    }
}

TextView ListControl::SelectedText() const {
    if (index < 0 || static_cast<std::size_t>(index) >= items.size()) return {};
    return items[static_cast<std::size_t>(index)];
}

void FormKORVANDE::SelectReport(bool FormKORVANDE::*option) noexcept {
    optReportScreen = optReportDisk = optReportPrinter = optReportNone = false;
    this->*option = true;
}

void FormKORVANDE::SetDateOption(bool FormKORVANDE::*option, bool value) noexcept {
    if (value) optDateSEE = optDateNow = optDateAlt = false;
    this->*option = value;
    txtAltDatumEnabled = optDateAlt;
}

FormKORVANDE& frmKORVANDE() {
    static FormKORVANDE form;
    return form;
}

Text VersionText() { return Concat(versionMajor, u".0", versionMinor, u".0", versionRevision); }

void InitialiseForm() {
    FormKORVANDE& form = frmKORVANDE();
    form = FormKORVANDE();
    form.lblVersion = Concat(u"Versie:  ", VersionText());
    form.cboXlateMode = {{u"IDEX >> NEN1878", u"IDEX >> SUF2", u"NEN1878 >> IDEX", u"SUF2 >> IDEX"}, 0};
    form.lstSource = {{u"Onbekend", u"Terrestr.", u"Fotogramm.", u"Digitizer", u"Scanner", u"Kaartverbet."}, 0};
    form.txtAltDatum = FromWindows1252(CompactDate(Now()));
    StartedInteractively() = true;
    CurrentProject().clear();
    ProjectFolder().clear();
    TheOwner() = {};
    ResetProject();
    ShowOwner();
    LoadGridData();
}

Text& CurrentProject() {
    static Text name;
    return name;
}

Text& ProjectFolder() {
    static Text folder;
    return folder;
}

bool& StartedInteractively() {
    static bool interactively = true;
    return interactively;
}

void ResetProject() {
    ResetTable(PointCodes(), u"Q20", types::point, u"ONBEKEND PUNTOBJECT");
    ResetTable(LineCodes(), u"Q00", types::line, u"ONBEKEND LIJNOBJECT");
    ResetTable(TextCodes(), u"Z19", {}, u"ONBEKEND TEKSTOBJECT");
    if (TheOwner().NameLong.NeverFilled()) FillOwner(TheOwner());
    FormKORVANDE& form = frmKORVANDE();
    form.txtFileSUFNEN = u"voorbeeld.sfn";
    form.txtFileIDEX = u"voorbeeld.idx";
    form.SelectReport(&FormKORVANDE::optReportScreen);
    form.chkImportUnknowns = true;
    form.chkExportUnknowns = false;
    form.chkExportPointnoAsText = false;
    form.chkExportPointnoAsField = false;
    form.chkExportHeightAsText = false;
}

void LoadGridData() {
    FormKORVANDE& form = frmKORVANDE();
    LoadGrid(form.gridPoints, PointCodes());
    LoadGrid(form.gridLines, LineCodes());
    LoadGrid(form.gridTexts, TextCodes());
    if (form.changed) form.changed();
}

void SaveGridData() {
    const FormKORVANDE& form = frmKORVANDE();
    SaveGrid(form.gridPoints, PointCodes());
    SaveGrid(form.gridLines, LineCodes());
    SaveGrid(form.gridTexts, TextCodes());
}

}  // namespace korvande
