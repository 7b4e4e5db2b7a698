#pragma once

#include <cstddef>
#include <cstdint>
#include <initializer_list>
#include <string>
#include <string_view>
#include <vector>

#include "core/Numbers.h"
#include "core/PlainNumbers.h"
#include "core/RowSplit.h"
#include "idex/IdexFile.h"

namespace korvande {

// A wanted column, in capitals, and when a table that lacks it is told so: always, when it has one of an unknown name
// that may be it, or never, for nothing of it is written.
enum class Lacking { IsTold, MayBeTold, IsFine };
struct IdexColumn {
    std::string_view name;
    Lacking lacking = Lacking::IsTold;
};

// A table's wanted columns and where they stand in the file: columns come in any order, extra ones are passed over, a
// missing one reads as an empty field. What its rows lose when they are split and read is told.
class IdexTable {
 public:
    // The wanted columns are numbered from 0 in this order.
    IdexTable(IdexFile& idexFile, std::string_view tableName, std::initializer_list<IdexColumn> wantedColumns)
        : file(idexFile), table(tableName), columns(wantedColumns) {}

    // Takes the column list in parentheses from the table's header, which may go on in the following lines. What
    // it lacks is told.
    void ReadHeader(std::string_view headerLine);

    // The same for the header of rows that need not have every column.
    void ReadPartialHeader(std::string_view headerLine);

    // Splits a row; Field then gives the field of a wanted column, quotes included. A row that is none, or is not
    // whole, is told.
    void Split(std::string_view row) { Judge(row, SplitUnjudged(row)); }

    // The two steps of that: what the row is split into may show that it must be another one.
    RowEnd SplitUnjudged(std::string_view row);
    void Judge(std::string_view row, const RowEnd& end);

    // The same for a row whose damage was told already: nothing more is.
    void SplitDamaged(std::string_view row);

    std::string_view Field(std::size_t column) const noexcept {
        const std::size_t position = positions[column];
        return position == 0 || position > fieldCount ? std::string_view() : fields[position - 1];
    }
    bool HasColumn(std::size_t column) const noexcept { return positions[column] != 0; }

    // The first field, of whatever column.
    std::string_view FirstField() const noexcept { return fieldCount == 0 ? std::string_view() : fields.front(); }

    // Whether a field is empty, also between quotes.
    bool IsBlank(std::size_t column) const noexcept;

    // Whether a field is missing from a row whose damage was told.
    bool IsToldAsLacking(std::size_t column) const noexcept { return isDamaged && positions[column] > fieldCount; }

    // The number that a field begins with; what is not wholly a number is told, as this kind.
    double Number(std::size_t column, ProblemKind kind = ProblemKind::NumberNoNumber) {
        const std::string_view field = Field(column);
        double value = 0;
        return PlainNumber(field, rowEnd, value) ? value : NumberOf(field, kind);
    }
    std::int32_t Whole(std::size_t column) {
        std::int32_t number = 0;
        return PlainWhole(Field(column), rowEnd, number) ? number : WholeNumber(Number(column));
    }

    // The number that a whole field is; error 13 when it is none.
    std::int32_t StrictWhole(std::size_t column) const {
        const std::string_view field = Field(column);
        std::int32_t number = 0;
        return PlainWhole(field, rowEnd, number) ? number : StrictWholeNumber(field);
    }
    double NumberOf(std::string_view field, ProblemKind kind) {
        std::size_t end = 0;
        const double value = LeadingNumber(field, end);
        if (end != field.size()) TellNoNumber(field, end, kind);
        return value;
    }

    // A flag word; characters that are no binary digits are told.
    std::int32_t Flags(std::size_t column);

    // The same without its quotes: one at each end is taken away, any other becomes a single one. It stands until the
    // next call.
    std::string_view Unquoted(std::size_t column) { return WithoutQuotes(Field(column)); }
    std::string_view WithoutQuotes(std::string_view field) {
        if (!field.empty() && field.front() == '"') field.remove_prefix(1);
        if (!field.empty() && field.back() == '"') field.remove_suffix(1);
        return field.find('"') == std::string_view::npos ? field : WithSingleQuotes(field);
    }

    // A value that is stored in so many characters: told when it has more, blanks behind it not counted.
    std::string_view Fitting(std::string_view value, std::size_t width, ProblemKind kind) {
        if (value.size() > width) TellWhenCut(value, width, kind);
        return value;
    }

    // Tells a problem of the row, unless its damage was told already.
    void Tell(ProblemKind kind);

    // Whether a line of the table is none of its rows: a comment, or without a separator and a terminator.
    bool IsComment(std::string_view line) const noexcept;
    bool IsNoRow(std::string_view line) const noexcept;

    // Whether a line has numbers in these columns, those of them that the file has, and so is a row by itself.
    using Columns = std::initializer_list<std::size_t>;
    bool IsRowItself(std::string_view line, Columns known) const;

    // Whether a line without a terminator lost it, for its next line, to which it is joined, is a row itself.
    bool SwallowsRow(std::string_view row, std::string_view next, Columns known) const;

 private:
    void TakeHeader(std::string_view headerLine);
    void TellSplit(std::string_view row, std::size_t end);
    bool HasMoreFields(std::string_view row) const;
    void TellNoNumber(std::string_view field, std::size_t end, ProblemKind kind);
    void TellWhenCut(std::string_view value, std::size_t width, ProblemKind kind);
    std::string_view WithSingleQuotes(std::string_view value);

    IdexFile& file;
    std::string_view table;
    std::vector<IdexColumn> columns;
    std::vector<std::size_t> positions;  // from 1; 0: the file has no such column
    std::size_t lastPosition = 0;
    std::size_t columnCount = 0;           // in the file
    bool hasUnknown = false;               // one of them has a name that is not known
    std::vector<std::string_view> fields;  // of the row, and room for one more than the columns
    std::size_t fieldCount = 0;
    const char* rowEnd = nullptr;  // behind the last byte of the row
    bool isDamaged = false;        // the row: it is none or not whole, which was told
    bool isSilent = false;         // nothing more of it is told
    std::string unquoted;
};

}  // namespace korvande
