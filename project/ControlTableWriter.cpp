#include <initializer_list>
#include <string>

#include "core/LineWriter.h"
#include "core/Numbers.h"
#include "core/modScreen.h"
#include "project/CodeTables.h"
#include "project/OwnerRecord.h"
#include "project/frmKORVANDE.h"

// Writing a control table: sections of lines "key = value", then the rows of the code tables, all in Windows-1252 with
// CR LF behind each line. The blanks around the equal signs are part of the format.
namespace korvande {

namespace {

void PutLine(std::string& out, std::initializer_list<std::string_view> parts) {
    for (const std::string_view part : parts) out.append(part);
    out.append("\r\n");
}

void PutText(std::string& out, std::string_view key, const Text& value) { PutLine(out, {key, ToWindows1252(value)}); }

// With a blank in front, the place of a sign.
std::string SignedNumber(std::int32_t number) {
    std::string printed = Printed(number);
    printed.pop_back();
    return printed;
}

void PutCheckBox(std::string& out, std::string_view key, bool isSet) { PutLine(out, {key, isSet ? " 1" : " 0"}); }

void PutDateOption(std::string& out, std::string_view key, bool isSelected) {
    PutLine(out, {key, isSelected ? "True" : "False"});
}

std::string_view ReportLine(const FormKORVANDE& form) {
    if (form.optReportDisk) return "Reporting = Disk";
    if (form.optReportScreen) return "Reporting = Screen";
    if (form.optReportPrinter) return "Reporting = Printer";
    return "Reporting = None";
}

void PutGeneral(std::string& out, const FormKORVANDE& form) {
    PutLine(out, {"[NEN1878]"});
    PutText(out, "SUFNENFile = ", form.txtFileSUFNEN);
    PutText(out, "IDEXFile = ", form.txtFileIDEX);
    PutText(out, "NameLong = ", form.txtNameLong);
    PutText(out, "NameShort = ", form.txtNameShort);
    PutText(out, "Street = ", form.txtStreet);
    PutText(out, "Number = ", form.txtNumber);
    PutText(out, "Extra = ", form.txtSuffix);
    PutText(out, "ZipCode = ", form.txtZipcode);
    PutText(out, "Town = ", form.txtCity);
    PutText(out, "Source = ", form.txtSource);
    PutLine(out, {ReportLine(form)});
}

void PutImport(std::string& out, const FormKORVANDE& form) {
    PutLine(out, {"\r\n[Import]"});
    PutCheckBox(out, "AcceptUnknown =", form.chkImportUnknowns);
    PutCheckBox(out, "SymRotation =", form.chkImportSymRotation);
}

void PutExport(std::string& out, const FormKORVANDE& form) {
    PutLine(out, {"\r\n[Export]"});
    PutCheckBox(out, "IncludeUnknown =", form.chkExportUnknowns);
    PutCheckBox(out, "IncludeNrAsField =", form.chkExportPointnoAsField);
    PutCheckBox(out, "IncludeNrAsText =", form.chkExportPointnoAsText);
    PutText(out, "PointIDLKI = ", form.txtPnoTxtLKI);
    PutCheckBox(out, "IncludeZ =", form.chkExport3D);
    PutCheckBox(out, "IncludeZAsText =", form.chkExportHeightAsText);
    PutText(out, "ElevationLKI = ", form.txtEleTxtLKI);
    PutCheckBox(out, "SymRotation =", form.chkExportSymRotation);
    PutText(out, "AltDate =", form.txtAltDatum);
    PutDateOption(out, "UseDateAlt =", form.optDateAlt);
    PutDateOption(out, "UseDateSEE =", form.optDateSEE);
    PutDateOption(out, "UseDateNow =", form.optDateNow);
}

// A row behind its first code: the other fields, separated by commas.
void PutRowFields(std::string& out, const CodeRow& row, bool withType) {
    out.append(ToWindows1252(row.LkiCode.Trimmed())).append(", ");
    if (withType) out.append(ToWindows1252(row.Type.Trimmed())).append(", ");
    PutLine(out, {ToWindows1252(row.Description.Trimmed()), ",", SignedNumber(row.P), ",", SignedNumber(row.I), ",",
                  SignedNumber(row.B)});
}

void PutTable(std::string& out, std::string_view section, const CodeTable& table, bool withType) {
    PutLine(out, {"\r\n", section});
    bool isUnknownRow = true;
    for (const CodeRow& row : table.rows) {
        if (isUnknownRow) out.append("Unknown = ");
        out.append(ToWindows1252(row.LiscadCode.Trimmed())).append(isUnknownRow ? ", " : " = ");
        PutRowFields(out, row, withType);
        isUnknownRow = false;
    }
}

std::string ControlTableText() {
    const FormKORVANDE& form = frmKORVANDE();
    std::string out;
    PutGeneral(out, form);
    PutImport(out, form);
    PutExport(out, form);
    PutTable(out, "[Points]", PointCodes(), true);
    PutTable(out, "[Lines]", LineCodes(), true);
    PutTable(out, "[Texts]", TextCodes(), false);
    PutLine(out, {"\r\n[End]"});
    return out;
}

}  // namespace

bool SaveProjectFile(TextView fileName) {
    SaveGridData();
    TakeOwner();
    const std::string text = ControlTableText();
    return TryWithRetry(fileName, u"opslaan", [fileName, &text] {
        LineWriter file;
        file.Open(fileName);
        file.Put(text);
        file.Close();
    });
}

bool SaveCurrentProject() {
    if (!CurrentProject().empty()) return SaveProjectFile(Concat(ProjectFolder(), CurrentProject()));
    SaveGridData();
    TakeOwner();
    return true;
}

}  // namespace korvande
