#include "tests/project/ProjectState.h"

#include "project/CodeTables.h"
#include "project/OwnerRecord.h"
#include "project/frmKORVANDE.h"

namespace korvande::testing {

namespace {

// Collects the lines.
class Lines {
 public:
    void Add(const std::string& name, TextView value) { lines.push_back(name + "=" + ToUtf8(value)); }
    void Add(const std::string& name, const Text& value) { Add(name, TextView(value)); }
    void Add(const std::string& name, bool value) { lines.push_back(name + (value ? "=1" : "=0")); }
    template <std::size_t N>
    void Add(const std::string& name, const FixedText<N>& value) {
        Add(name, value.View());
    }
    void Add(const std::string& name, const Grid& grid) {
        for (int row = 0; row < grid.RowCount(); ++row) {
            Text cells;
            for (const Text& cell : grid[row]) AppendTo(cells, Concat(cell, u"|"));
            Add(name + std::to_string(row), cells);
        }
    }

    std::vector<std::string> lines;
};

std::string RowText(const CodeRow& row) {
    std::string text;
    for (const TextView field : {row.LiscadCode.TrimmedRight(), row.LkiCode.TrimmedRight(), row.Type.TrimmedRight(),
                                 row.Description.TrimmedRight()}) {
        text += ToUtf8(field) + "|";
    }
    return text + std::to_string(row.P) + "|" + std::to_string(row.I) + "|" + std::to_string(row.B);
}

void AddControls(Lines& state, const FormKORVANDE& form) {
    state.Add("txtFileSUFNEN", form.txtFileSUFNEN);
    state.Add("txtFileIDEX", form.txtFileIDEX);
    state.Add("framStandaloneVisible", form.framStandaloneVisible);
    state.Add("txtProject", form.txtProject);
    state.Add("optReportScreen", form.optReportScreen);
    state.Add("optReportDisk", form.optReportDisk);
    state.Add("optReportPrinter", form.optReportPrinter);
    state.Add("optReportNone", form.optReportNone);
    state.Add("chkImportUnknowns", form.chkImportUnknowns);
    state.Add("chkImportSymRotation", form.chkImportSymRotation);
    state.Add("chkSelectXY", form.chkSelectXY);
    state.Add("chkExportUnknowns", form.chkExportUnknowns);
    state.Add("chkExportPointnoAsField", form.chkExportPointnoAsField);
    state.Add("chkExportPointnoAsText", form.chkExportPointnoAsText);
    state.Add("txtPnoTxtLKI", form.txtPnoTxtLKI);
    state.Add("chkExport3D", form.chkExport3D);
    state.Add("chkExportHeightAsText", form.chkExportHeightAsText);
    state.Add("txtEleTxtLKI", form.txtEleTxtLKI);
    state.Add("chkExportSymRotation", form.chkExportSymRotation);
    state.Add("txtAltDatum", form.txtAltDatum);
    state.Add("txtAltDatumEnabled", form.txtAltDatumEnabled);
    state.Add("optDateSEE", form.optDateSEE);
    state.Add("optDateNow", form.optDateNow);
    state.Add("optDateAlt", form.optDateAlt);
    state.Add("lstSource", form.lstSource.SelectedText());
    state.Add("cboXlateMode", form.cboXlateMode.SelectedText());
}

void AddOwner(Lines& state, const FormKORVANDE& form, const OwnerRec& owner) {
    state.Add("NameLong", owner.NameLong);
    state.Add("NameShort", owner.NameShort);
    state.Add("Street", owner.Street);
    state.Add("Number", owner.Number);
    state.Add("Extra", owner.Extra);
    state.Add("ZipCode", owner.ZipCode);
    state.Add("Town", owner.Town);
    state.Add("Source", owner.Source);
    state.Add("txtNameLong", form.txtNameLong);
    state.Add("txtNameShort", form.txtNameShort);
    state.Add("txtStreet", form.txtStreet);
    state.Add("txtNumber", form.txtNumber);
    state.Add("txtSuffix", form.txtSuffix);
    state.Add("txtZipcode", form.txtZipcode);
    state.Add("txtCity", form.txtCity);
    state.Add("txtSource", form.txtSource);
}

}  // namespace

std::vector<std::string> ProjectState() {
    const FormKORVANDE& form = frmKORVANDE();
    Lines state;
    AddControls(state, form);
    AddOwner(state, form, TheOwner());
    state.Add("StartedInteractively", StartedInteractively());
    for (const char letter : {'P', 'L', 'T'}) state.lines.push_back(TableText(letter));
    state.Add("gridPoints", form.gridPoints);
    state.Add("gridLines", form.gridLines);
    state.Add("gridTexts", form.gridTexts);
    return state.lines;
}

std::string ProjectStateText() {
    std::string text;
    for (const std::string& line : ProjectState()) text += line + "\n";
    return text;
}

std::string Differences(const std::vector<std::string>& before, const std::vector<std::string>& after) {
    if (before.size() != after.size()) return "(another number of rows)";
    std::string differences;
    for (std::size_t i = 0; i < before.size(); ++i) {
        if (before[i] != after[i]) differences += (differences.empty() ? "" : "; ") + after[i];
    }
    return differences;
}

std::string TableText(char letter) {
    const CodeTable& table = letter == 'P' ? PointCodes() : letter == 'L' ? LineCodes() : TextCodes();
    std::string text;
    for (const CodeRow& row : table.rows) text += RowText(row) + "\n";
    return text;
}

}  // namespace korvande::testing
