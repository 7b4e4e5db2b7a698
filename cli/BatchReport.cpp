#include "cli/BatchReport.h"

#include <charconv>
#include <stdexcept>
#include <utility>

#include <nlohmann/json.hpp>

#include "cli/Arguments.h"
#include "cli/Print.h"
#include "core/Csv.h"
#include "core/RuntimeError.h"
#include "host/FileReplacement.h"
#include "host/Folders.h"
#include "host/modFileHandling.h"

namespace korvande {

namespace {

using nlohmann::ordered_json;

constexpr int schemaVersion = 1;
constexpr char16_t separator = u';';
constexpr std::string_view byteOrderMark = "\xEF\xBB\xBF";

bool IsJson(TextView name) { return ToCapitals(name).ends_with(u".JSON"); }

ordered_json JsonOf(const ReportValue& value) {
    if (const auto* const text = std::get_if<Text>(&value)) return ToUtf8(*text);
    if (const auto* const number = std::get_if<std::int64_t>(&value)) return *number;
    return std::get<bool>(value);
}

std::string JsonReport(const BatchReport& report) {
    ordered_json all;
    all["opdracht"] = ToUtf8(report.command);
    all["versie"] = schemaVersion;
    ordered_json& files = all["bestanden"] = ordered_json::array();
    for (const ReportRow& row : report.rows) {
        ordered_json& object = files.emplace_back();
        for (std::size_t place = 0; place < row.size(); ++place) object[report.columns[place]] = JsonOf(row[place]);
    }
    // Names of files may have bytes that are no UTF-8.
    return all.dump(1, ' ', false, ordered_json::error_handler_t::replace) + "\n";
}

// A value of the kind of the sample; another kind is an error.
ReportValue ValueOf(const ordered_json& value, const ReportValue& sample) {
    if (std::holds_alternative<Text>(sample)) return FromUtf8(value.get<std::string>());
    if (std::holds_alternative<bool>(sample)) return value.get<bool>();
    return value.get<std::int64_t>();
}

void ReadJson(const std::string& bytes, const ReportRow& sample, BatchReport& report) {
    const ordered_json all = ordered_json::parse(bytes);
    for (const ordered_json& object : all.at("bestanden")) {
        ReportRow row;
        for (std::size_t place = 0; place < sample.size(); ++place) {
            row.push_back(ValueOf(object.at(report.columns[place]), sample[place]));
        }
        report.rows.push_back(std::move(row));
    }
}

Text CellOf(const ReportValue& value) {
    if (const auto* const text = std::get_if<Text>(&value)) return *text;
    if (const auto* const number = std::get_if<std::int64_t>(&value)) return Concat(*number);
    return std::get<bool>(value) ? u"ja" : u"nee";
}

std::string TableReport(const BatchReport& report) {
    Text table;
    const auto addCell = [&table](std::size_t place, TextView cell) {
        if (place > 0) table.push_back(separator);
        AppendTo(table, CsvField(cell, separator));
    };
    for (std::size_t place = 0; place < report.columns.size(); ++place) {
        addCell(place, FromUtf8(report.columns[place]));
    }
    AppendTo(table, u"\r\n");
    for (const ReportRow& row : report.rows) {
        for (std::size_t place = 0; place < row.size(); ++place) addCell(place, CellOf(row[place]));
        AppendTo(table, u"\r\n");
    }
    return std::string(byteOrderMark) + ToUtf8(table);
}

ReportValue ValueOf(const Text& cell, const ReportValue& sample) {
    if (std::holds_alternative<Text>(sample)) return cell;
    if (std::holds_alternative<bool>(sample)) return cell == u"ja";
    const std::string digits = ToUtf8(cell);
    std::int64_t number = 0;
    const auto end = std::from_chars(digits.data(), digits.data() + digits.size(), number);
    if (end.ec != std::errc() || end.ptr != digits.data() + digits.size()) throw std::invalid_argument(digits);
    return number;
}

void ReadTable(std::string_view bytes, const ReportRow& sample, BatchReport& report) {
    if (bytes.starts_with(byteOrderMark)) bytes.remove_prefix(byteOrderMark.size());
    const CsvText table = ReadCsv(FromUtf8(bytes), separator);
    if (!table.error.empty()) throw std::invalid_argument("quotes");
    const std::vector<Text>& heads = table.lines.at(0).fields;
    for (std::size_t place = 0; place < sample.size(); ++place) {
        if (heads.at(place) != FromUtf8(report.columns[place])) throw std::invalid_argument("column");
    }
    for (std::size_t line = 1; line < table.lines.size(); ++line) {
        ReportRow row;
        for (std::size_t place = 0; place < sample.size(); ++place) {
            row.push_back(ValueOf(table.lines[line].fields.at(place), sample[place]));
        }
        report.rows.push_back(std::move(row));
    }
}

}  // namespace

void RefuseReportName(TextView name) {
    if (!IsJson(name) && !ToCapitals(name).ends_with(u".CSV")) {
        throw UsageError{Concat(u"Het verslag moet op .csv of .json eindigen: ", name)};
    }
    if (FolderIsMissing(FolderOf(name))) throw UsageError{Concat(u"De map van het verslag bestaat niet: ", name)};
    if (FolderExistsAt(name)) throw UsageError{Concat(u"Het verslag is een map: ", name)};
}

bool WriteReport(TextView name, const BatchReport& report) {
    try {
        ReplaceFile(name, IsJson(name) ? JsonReport(report) : TableReport(report));
        return true;
    } catch (const RuntimeError& error) {
        PrintErrorLine(Concat(u"Kon verslag: '", name, u"' niet opslaan;\nFoutcode: ", error.Number(), u"\n",
                              error.Description()));
        return false;
    }
}

void ReadReport(TextView name, const ReportRow& sample, BatchReport& report) {
    if (IsFreeName(name)) return;
    const std::string bytes = FileBytesOf(name);
    try {
        if (IsJson(name)) {
            ReadJson(bytes, sample, report);
        } else {
            ReadTable(bytes, sample, report);
        }
    } catch (const std::exception&) {
        throw UsageError{Concat(u"Dit bestand is geen verslag van ", report.command, u": ", name)};
    }
}

Text InOneValue(const std::vector<Text>& lines) {
    Text value;
    for (const Text& line : lines) AppendTo(value, Concat(value.empty() ? u"" : u"; ", line));
    return value;
}

}  // namespace korvande
