#include "project/ControlTableWriter.h"

#include <initializer_list>

#include "core/Numbers.h"
#include "project/CodeTables.h"
#include "project/Options.h"

// Writing a control table: sections of lines "key = value", then the rows of the code tables, all in Windows-1252 with
// CR LF behind each line. The blanks around the equal signs are part of the format.
namespace korvande {

namespace {

void PutLine(std::string& out, std::initializer_list<std::string_view> parts) {
    for (const std::string_view part : parts) out.append(part);
    out.append("\r\n");
}

// With a blank in front, the place of a sign.
std::string SignedNumber(std::int32_t number) {
    std::string printed = Printed(number);
    printed.pop_back();
    return printed;
}

std::string_view ReportWord(const Options& options) {
    if (options.optReportDisk) return "Disk";
    if (options.optReportScreen) return "Screen";
    if (options.optReportPrinter) return "Printer";
    return "None";
}

void PutOption(std::string& out, const Options& options, const Option& option) {
    const auto text = [&] { return ToWindows1252(options.*std::get<Text Options::*>(option.member)); };
    const auto isSet = [&] { return options.*std::get<bool Options::*>(option.member); };
    switch (option.kind) {
        case OptionKind::PlainText:
        case OptionKind::Owner:
            return PutLine(out, {option.key, " = ", text()});
        case OptionKind::Report:
            return PutLine(out, {option.key, " = ", ReportWord(options)});
        case OptionKind::CheckBox:
            return PutLine(out, {option.key, isSet() ? " = 1" : " = 0"});
        case OptionKind::SetCheckBox:
            if (isSet()) PutLine(out, {option.key, " = 1"});
            return;
        case OptionKind::DateText:
            return PutLine(out, {option.key, " =", text()});
        case OptionKind::DateOption:
            return PutLine(out, {option.key, isSet() ? " =True" : " =False"});
        case OptionKind::PerUser:
            return;
    }
}

void PutOptions(std::string& out, const Options& options) {
    std::string_view section;
    for (const Option& option : AllOptions()) {
        if (option.section.empty()) continue;
        if (option.section != section) PutLine(out, {section.empty() ? "" : "\r\n", "[", option.section, "]"});
        section = option.section;
        PutOption(out, options, option);
    }
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

}  // namespace

std::string ControlTableText(const Options& options, const CodeTables& codes) {
    std::string out;
    PutOptions(out, options);
    PutTable(out, "[Points]", codes.points, true);
    PutTable(out, "[Lines]", codes.lines, true);
    PutTable(out, "[Texts]", codes.texts, false);
    PutLine(out, {"\r\n[End]"});
    return out;
}

}  // namespace korvande
