#include "tests/project/ProjectState.h"

namespace korvande::testing {

namespace {

// Collects the lines.
class Lines {
 public:
    void Add(const std::string& name, TextView value) { lines.push_back(name + "=" + ToUtf8(value)); }
    void Add(const std::string& name, const Text& value) { Add(name, TextView(value)); }
    void Add(const std::string& name, const std::string& value) { lines.push_back(name + "=" + value); }
    void Add(const std::string& name, bool value) { lines.push_back(name + (value ? "=1" : "=0")); }
    template <std::size_t N>
    void Add(const std::string& name, const FixedText<N>& value) {
        Add(name, value.View());
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

void AddControls(Lines& state, const Options& options) {
    state.Add("txtFileSUFNEN", options.txtFileSUFNEN);
    state.Add("txtFileIDEX", options.txtFileIDEX);
    state.Add("optReportScreen", options.optReportScreen);
    state.Add("optReportDisk", options.optReportDisk);
    state.Add("optReportPrinter", options.optReportPrinter);
    state.Add("optReportNone", options.optReportNone);
    state.Add("chkImportUnknowns", options.chkImportUnknowns);
    state.Add("chkImportSymRotation", options.chkImportSymRotation);
    state.Add("chkSelectXY", options.chkSelectXY);
    state.Add("txtMinX", options.txtMinX);
    state.Add("txtMaxX", options.txtMaxX);
    state.Add("txtMinY", options.txtMinY);
    state.Add("txtMaxY", options.txtMaxY);
    state.Add("chkExportUnknowns", options.chkExportUnknowns);
    state.Add("chkExportPointnoAsField", options.chkExportPointnoAsField);
    state.Add("chkExportPointnoAsText", options.chkExportPointnoAsText);
    state.Add("txtPnoTxtLKI", options.txtPnoTxtLKI);
    state.Add("chkExport3D", options.chkExport3D);
    state.Add("chkExportHeightAsText", options.chkExportHeightAsText);
    state.Add("txtEleTxtLKI", options.txtEleTxtLKI);
    state.Add("chkExportSymRotation", options.chkExportSymRotation);
    state.Add("txtAltDatum", options.txtAltDatum);
    state.Add("optDateSEE", options.optDateSEE);
    state.Add("optDateNow", options.optDateNow);
    state.Add("optDateAlt", options.optDateAlt);
    state.Add("lstSource", std::to_string(options.lstSource));
    state.Add("StartedInteractively", options.StartedInteractively);
}

void AddOwner(Lines& state, const Options& options, const OwnerRec& owner) {
    state.Add("NameLong", owner.NameLong);
    state.Add("NameShort", owner.NameShort);
    state.Add("Street", owner.Street);
    state.Add("Number", owner.Number);
    state.Add("Extra", owner.Extra);
    state.Add("ZipCode", owner.ZipCode);
    state.Add("Town", owner.Town);
    state.Add("Source", owner.Source);
    state.Add("txtNameLong", options.txtNameLong);
    state.Add("txtNameShort", options.txtNameShort);
    state.Add("txtStreet", options.txtStreet);
    state.Add("txtNumber", options.txtNumber);
    state.Add("txtSuffix", options.txtSuffix);
    state.Add("txtZipcode", options.txtZipcode);
    state.Add("txtCity", options.txtCity);
    state.Add("txtSource", options.txtSource);
}

}  // namespace

std::vector<std::string> ProjectState(const Project& project) {
    Lines state;
    AddControls(state, project.options);
    AddOwner(state, project.options, project.owner);
    for (const CodeTable* table : {&project.codes.points, &project.codes.lines, &project.codes.texts}) {
        state.lines.push_back(TableText(*table));
    }
    return state.lines;
}

std::string Differences(const std::vector<std::string>& before, const std::vector<std::string>& after) {
    if (before.size() != after.size()) return "(another number of rows)";
    std::string differences;
    for (std::size_t i = 0; i < before.size(); ++i) {
        if (before[i] != after[i]) differences += (differences.empty() ? "" : "; ") + after[i];
    }
    return differences;
}

std::string TableText(const CodeTable& table) {
    std::string text;
    for (const CodeRow& row : table.rows) text += RowText(row) + "\n";
    return text;
}

std::string CellsText(const Grid::Row& row) {
    std::string text;
    for (const Text& cell : row) text += (&cell == row.data() ? "" : "|") + ToUtf8(cell);
    return text;
}

}  // namespace korvande::testing
