#include "cli/TranslateReport.h"

#include <array>
#include <type_traits>

#include "cli/BatchReport.h"

namespace korvande {

namespace {

// The columns of a report.
using Member = std::variant<Text TranslateRow::*, std::int64_t TranslateRow::*, bool TranslateRow::*>;
struct Column {
    const char* name;
    Member member;
};
constexpr std::array columns{Column{"invoer", &TranslateRow::input},       Column{"uitvoer", &TranslateRow::output},
                             Column{"logboek", &TranslateRow::logBook},    Column{"status", &TranslateRow::status},
                             Column{"hervat", &TranslateRow::isSkipped},   Column{"gelezen", &TranslateRow::read},
                             Column{"geschreven", &TranslateRow::written}, Column{"weggelaten", &TranslateRow::leftOut},
                             Column{"onbekend", &TranslateRow::unknown},   Column{"fouten", &TranslateRow::errors},
                             Column{"meldingen", &TranslateRow::problems}, Column{"opties", &TranslateRow::options}};

BatchReport EmptyReport() {
    BatchReport report{.command = u"vertaal", .columns = {}, .rows = {}};
    for (const Column& column : columns) report.columns.emplace_back(column.name);
    return report;
}

ReportRow ValuesOf(const TranslateRow& row) {
    ReportRow values;
    for (const Column& column : columns) {
        values.push_back(std::visit([&row](auto member) { return ReportValue(row.*member); }, column.member));
    }
    return values;
}

TranslateRow RowOf(const ReportRow& values) {
    TranslateRow row;
    auto value = values.begin();
    for (const Column& column : columns) {
        std::visit([&row, &value](auto member) { row.*member = std::get<std::decay_t<decltype(row.*member)>>(*value); },
                   column.member);
        ++value;
    }
    return row;
}

}  // namespace

bool WriteTranslateReport(TextView name, const std::vector<TranslateRow>& rows) {
    BatchReport report = EmptyReport();
    for (const TranslateRow& row : rows) report.rows.push_back(ValuesOf(row));
    return WriteReport(name, report);
}

std::vector<TranslateRow> ReadTranslateReport(TextView name) {
    BatchReport report = EmptyReport();
    ReadReport(name, ValuesOf({}), report);
    std::vector<TranslateRow> rows;
    for (const ReportRow& values : report.rows) rows.push_back(RowOf(values));
    return rows;
}

}  // namespace korvande
