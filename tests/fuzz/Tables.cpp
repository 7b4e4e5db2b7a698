#include <algorithm>
#include <array>

#include "project/CodeTables.h"
#include "project/frmKORVANDE.h"
#include "tests/fuzz/Targets.h"
#include "tests/fuzz/Workplace.h"

namespace korvande::fuzz {

namespace {

// The control table as the program saves it after a load.
std::string Resaved(std::string_view table) {
    ResetProgram();
    Require(LoadProjectFile(WriteFile("tabel", table)), "the control table was not loaded");
    for (const CodeTable* codes : {&PointCodes(), &LineCodes(), &TextCodes()}) {
        Require(!codes->rows.empty(), "a code table lost its unknown row");
    }
    const FormKORVANDE& form = frmKORVANDE();
    const std::array destinations = {form.optReportScreen, form.optReportDisk, form.optReportPrinter,
                                     form.optReportNone};
    Require(std::count(destinations.begin(), destinations.end(), true) == 1, "not one listing destination");
    const std::array dates = {form.optDateSEE, form.optDateNow, form.optDateAlt};
    Require(std::count(dates.begin(), dates.end(), true) <= 1, "more than one date option");
    Require(SaveProjectFile(NameOf("bewaard")), "the control table was not saved");
    return FileBytes("bewaard");
}

}  // namespace

// What a control table says comes to rest: saved again and again it stays the same.
void TryControlTable(std::string_view input) {
    const AnsweringScreen screen(Answer::Cancel);
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
