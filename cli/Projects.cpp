#include "cli/Projects.h"

#include <algorithm>
#include <array>
#include <variant>

#include "cli/Arguments.h"
#include "cli/ConsoleScreen.h"
#include "cli/JsonDocument.h"
#include "cli/Print.h"
#include "core/modScreen.h"
#include "host/modFileHandling.h"
#include "project/ControlTable.h"
#include "project/Grid.h"
#include "project/OptionText.h"
#include "project/Project.h"
#include "report/ProjectJson.h"

namespace korvande {

namespace {

void PrintValue(TextView label, TextView value) {
    constexpr std::size_t width = 32;
    Text line(label);
    line.resize(std::max(width, line.size() + 1), u' ');
    PrintLine(TrimRight(TextView(Concat(line, value))));
}

// What a control table has no line for is not shown either.
bool IsLeftOut(const Options& options, const Option& option) {
    return option.kind == OptionKind::SetCheckBox && !(options.*std::get<bool Options::*>(option.member));
}

void PrintSettings(const Options& options) {
    constexpr std::string_view generalSection = "NEN1878";
    std::string_view section;
    for (const Option& option : AllOptions()) {
        if (option.label.empty() || IsLeftOut(options, option)) continue;
        if (option.section != section) {
            if (!section.empty()) PrintLine(u"");
            section = option.section;
            PrintLine(Concat(u"[", section == generalSection ? "Algemeen" : section, u"]"));
        }
        PrintValue(option.label, OptionText(options, option));
    }
}

void PrintTable(TextView heading, TextView header, const CodeTable& table) {
    constexpr std::array<std::size_t, Grid::columns> widths = {9, 9, 9, 45, 6, 6, 0};
    Grid grid(header);
    LoadGrid(grid, table);
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

bool LoadControlTable(Screen& screen, Project& project, const std::string& file) {
    if (!file.empty()) return LoadProjectFile(screen, project, FromUtf8(file));
    LoadProjectWithoutTable(project);
    return true;
}

int MakeProject(const std::string& file) {
    const Text name = FromUtf8(file);
    ConsoleScreen screen(false);
    bool mayBeMade = false;
    if (!TryWithRetry(screen, name, u"opslaan", [&] { mayBeMade = MayBeMade(name); })) return status::failed;
    if (!mayBeMade) throw UsageError{Concat(u"Er bestaat al een bestand met deze naam:\n", name)};
    Project project;
    LoadEmptyProject(project);
    return SaveProjectFile(screen, project, name) ? status::done : status::failed;
}

int ShowProject(const std::string& file, bool asJson) {
    ConsoleScreen screen(false);
    Project project;
    JsonDocument document(asJson, "project toon");
    document.Member("bestand", JsonString(FromUtf8(file)));
    if (!LoadControlTable(screen, project, file)) return document.End(status::failed);
    if (asJson) {
        document.Member("instellingen", SettingsJson(project));
        document.Member("codetabellen", CodeTablesJson(project));
        return document.End(status::done);
    }
    PrintSettings(project.options);
    PrintTable(u"Puntobjecten", gridHeader, project.codes.points);
    PrintTable(u"Lijnobjecten", gridHeader, project.codes.lines);
    PrintTable(u"Tekstobjecten", textGridHeader, project.codes.texts);
    return document.End(status::done);
}

}  // namespace korvande
