#include "cli/Arguments.h"
#include "core/ConsoleScreen.h"
#include "host/modFileHandling.h"
#include "project/CodeTables.h"
#include "project/frmKORVANDE.h"

namespace korvande {

namespace {

void PrintValue(TextView label, TextView value) {
    constexpr std::size_t width = 32;
    Text line(label);
    line.resize(std::max(width, line.size() + 1), u' ');
    PrintLine(TrimRight(TextView(Concat(line, value))));
}

void PrintCheck(TextView label, bool value) { PrintValue(label, value ? u"ja" : u"nee"); }

TextView ReportText(const FormKORVANDE& form) {
    return form.optReportDisk      ? u"schijf"
           : form.optReportPrinter ? u"printer"
           : form.optReportNone    ? u"geen"
                                   : u"scherm";
}

Text DateText(const FormKORVANDE& form) {
    if (form.optDateNow) return u"vandaag";
    if (form.optDateAlt) return Concat(u"alternatief: ", form.txtAltDatum);
    return u"uit het bestand";
}

void PrintSettings(const FormKORVANDE& form) {
    PrintLine(u"[Algemeen]");
    PrintValue(u"NEN1878/SUF2 bestand", form.txtFileSUFNEN);
    PrintValue(u"IDEX bestand", form.txtFileIDEX);
    PrintValue(u"Naam", form.txtNameLong);
    PrintValue(u"Korte naam", form.txtNameShort);
    PrintValue(u"Straat", form.txtStreet);
    PrintValue(u"Nummer", form.txtNumber);
    PrintValue(u"Toevoeging", form.txtSuffix);
    PrintValue(u"Postcode", form.txtZipcode);
    PrintValue(u"Plaats", form.txtCity);
    PrintValue(u"Bron", form.txtSource);
    PrintValue(u"Logboek", ReportText(form));
    PrintLine(u"");
    PrintLine(u"[Import]");
    PrintCheck(u"Onbekende objecten", form.chkImportUnknowns);
    PrintCheck(u"Symboolrotatie aanpassen", form.chkImportSymRotation);
    PrintLine(u"");
    PrintLine(u"[Export]");
    PrintCheck(u"Onbekende objecten", form.chkExportUnknowns);
    PrintCheck(u"Puntnummer als veld", form.chkExportPointnoAsField);
    PrintCheck(u"Puntnummer als tekst", form.chkExportPointnoAsText);
    PrintValue(u"LKI-code puntnummertekst", form.txtPnoTxtLKI);
    PrintCheck(u"3D", form.chkExport3D);
    PrintCheck(u"Hoogte als tekst", form.chkExportHeightAsText);
    PrintValue(u"LKI-code hoogtetekst", form.txtEleTxtLKI);
    PrintCheck(u"Symboolrotatie aanpassen", form.chkExportSymRotation);
    PrintValue(u"Veldwerkdatum", DateText(form));
}

void PrintGrid(TextView heading, const Grid& grid) {
    constexpr std::array<std::size_t, Grid::columns> widths = {9, 9, 9, 45, 6, 6, 0};
    PrintLine(u"");
    PrintLine(Concat(u"[", heading, u"] ", grid.RowCount() - 1, u" regels"));
    for (int row = 0; row < grid.RowCount(); ++row) {
        Text line;
        for (std::size_t column = 0; column < widths.size(); ++column) {
            Text cell = grid[row][column];
            if (cell.size() < widths[column]) cell.resize(widths[column], u' ');
            AppendTo(line, cell);
        }
        PrintLine(TrimRight(TextView(line)));
    }
}

}  // namespace

bool LoadControlTable(const std::string& file) {
    if (file.empty()) {
        LoadEmptyProject();
        frmKORVANDE().chkExportUnknowns = frmKORVANDE().chkImportUnknowns = true;
    } else {
        const Text name = FromUtf8(file);
        CurrentProject() = FileNameOf(name);
        if (!LoadProjectFile(name)) return false;
    }
    StartedInteractively() = false;
    return true;
}

int MakeProject(const std::string& file) {
    ConsoleScreen screen(false);
    const ScreenInUse inUse(screen);
    const Text name = FromUtf8(file);
    if (!IsFreeName(name)) {
        throw UsageError{Concat(u"Er bestaat al een bestand met deze naam:\n", name)};
    }
    LoadEmptyProject();
    return SaveProjectFile(name) ? status::done : status::failed;
}

int ShowProject(const std::string& file) {
    ConsoleScreen screen(false);
    const ScreenInUse inUse(screen);
    if (!LoadControlTable(file)) return status::failed;
    const FormKORVANDE& form = frmKORVANDE();
    PrintSettings(form);
    PrintGrid(u"Puntobjecten", form.gridPoints);
    PrintGrid(u"Lijnobjecten", form.gridLines);
    PrintGrid(u"Tekstobjecten", form.gridTexts);
    return status::done;
}

}  // namespace korvande
