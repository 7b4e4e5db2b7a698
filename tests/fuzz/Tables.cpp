#include <algorithm>
#include <array>

#include "project/ControlTableWriter.h"
#include "project/Grid.h"
#include "project/OwnerBoxes.h"
#include "tests/fuzz/Targets.h"
#include "tests/fuzz/Workplace.h"

namespace korvande::fuzz {

namespace {

// The control table as the program saves it after a load.
std::string Resaved(std::string_view table) {
    AnsweringScreen screen(Answer::Cancel);
    Project project = ProjectOf(screen, table);
    const CodeTables& codes = project.codes;
    for (const CodeTable* const rows : {&codes.points, &codes.lines, &codes.texts}) {
        Require(!rows->rows.empty(), "a code table lost its unknown row");
    }
    const Options& options = project.options;
    const std::array destinations = {options.optReportScreen, options.optReportDisk, options.optReportPrinter,
                                     options.optReportNone};
    Require(std::count(destinations.begin(), destinations.end(), true) == 1, "not one listing destination");
    const std::array dates = {options.optDateSEE, options.optDateNow, options.optDateAlt};
    Require(std::count(dates.begin(), dates.end(), true) <= 1, "more than one date option");
    PassThroughGrids(project.codes);
    TakeOwner(options, project.owner);
    return ControlTableText(options, project.codes);
}

}  // namespace

// What a control table says comes to rest: saved again and again it stays the same.
void TryControlTable(std::string_view input) {
    constexpr int rounds = 4;
    std::string table = Resaved(input);
    for (int round = 1; round < rounds; ++round) {
        const std::string next = Resaved(table);
        if (next == table) return;
        table = next;
    }
    Require(false, "a control table that changes with every save");
}

}  // namespace korvande::fuzz
