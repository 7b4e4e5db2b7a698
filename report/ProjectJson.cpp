#include "report/ProjectJson.h"

#include <variant>

#include "project/OptionText.h"
#include "project/Project.h"
#include "report/JsonParts.h"

namespace korvande {

namespace {

Json ValueJson(const Options& options, const Option& option) {
    const bool isFlag = option.kind == OptionKind::CheckBox || option.kind == OptionKind::SetCheckBox;
    if (isFlag) return options.*std::get<bool Options::*>(option.member);
    return JsonText(OptionText(options, option));
}

Json RowsJson(const CodeTable& table) {
    Json rows = Json::array();
    for (const CodeRow& row : table.rows) {
        rows.push_back({{"liscad", JsonText(TrimRight(row.LiscadCode.View()))},
                        {"lki", JsonText(TrimRight(row.LkiCode.View()))},
                        {"type", JsonText(TrimRight(row.Type.View()))},
                        {"omschrijving", JsonText(TrimRight(row.Description.View()))},
                        {"p", row.P},
                        {"i", row.I},
                        {"b", row.B}});
    }
    return rows;
}

}  // namespace

std::string JsonString(TextView text) { return OnOneLine(JsonText(text)); }

std::string SettingsJson(const Project& project) {
    Json settings = Json::array();
    for (const Option& option : AllOptions()) {
        if (option.label.empty()) continue;
        settings.push_back({{"sectie", option.section},
                            {"sleutel", option.key},
                            {"naam", JsonText(option.label)},
                            {"waarde", ValueJson(project.options, option)}});
    }
    return OnOneLine(settings);
}

std::string CodeTablesJson(const Project& project) {
    return OnOneLine({{"punten", RowsJson(project.codes.points)},
                      {"lijnen", RowsJson(project.codes.lines)},
                      {"teksten", RowsJson(project.codes.texts)}});
}

}  // namespace korvande
