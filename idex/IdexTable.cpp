#include "idex/IdexTable.h"

#include <algorithm>
#include <array>

#include "core/modParser.h"
#include "core/modStrings.h"

namespace korvande {

namespace {

constexpr std::string_view blanks = " \t";

// Columns that tables have beside the wanted ones.
constexpr std::array<std::string_view, 6> knownBeside = {"STARTPTID",      "ENDPTID",   "TEXTITEMNO",
                                                         "TEXTPROPERTYNO", "TEXTBOXNO", "FLAGS"};

bool IsDigit(char byte) noexcept { return byte >= '0' && byte <= '9'; }

bool MayBeginComment(char byte) noexcept { return byte == '!' || byte == '#' || byte == '-' || byte == '/'; }

// Whether the place in a row lies between the quotes of a field that begins with one and is closed.
bool IsInsideQuotes(std::string_view row, std::size_t place, char separator) {
    std::size_t at = 0;
    while (at < place) {
        at = row.find_first_not_of(blanks, at);
        if (at >= place) return false;
        if (row[at] == '"') {
            std::size_t close = row.find('"', at + 1);
            while (close != std::string_view::npos && close + 1 < row.size() && row[close + 1] == '"') {
                close = row.find('"', close + 2);
            }
            if (close == std::string_view::npos) return false;
            if (place < close) return true;
            at = close;
        }
        at = row.find(separator, at);
        if (at == std::string_view::npos) return false;
        ++at;
    }
    return false;
}

bool IsBlankField(std::string_view field) noexcept {
    return std::all_of(field.begin(), field.end(),
                       [](char byte) { return byte == ' ' || byte == '\t' || byte == '"'; });
}

bool IsWholeNumber(std::string_view field) {
    std::size_t end = 0;
    LeadingNumber(field, end);
    return !field.empty() && end == field.size();
}

}  // namespace

void IdexTable::TakeHeader(std::string_view headerLine) {
    std::string header(headerLine);
    file.CompleteHeader(header);
    header = ToCapitals(header);
    const std::size_t open = header.find('(');
    const std::size_t close = header.find(')', open == std::string::npos ? 0 : open);
    std::vector<std::string_view> names;
    std::string_view list;
    if (open != std::string::npos && close != std::string::npos) {
        list = std::string_view(header).substr(open + 1, close - open - 1);
    }
    ParseFields(list, file.Separator(), file.Terminator(), Blanks::SpacesAndTabs, names);

    positions.clear();
    for (const IdexColumn& column : columns) {
        const auto found = std::find(names.begin(), names.end(), column.name);
        positions.push_back(found == names.end() ? 0 : static_cast<std::size_t>(found - names.begin()) + 1);
    }
    hasUnknown = std::any_of(names.begin(), names.end(), [this](std::string_view name) {
        return std::find(knownBeside.begin(), knownBeside.end(), name) == knownBeside.end() &&
               std::none_of(columns.begin(), columns.end(),
                            [name](const IdexColumn& column) { return column.name == name; });
    });
    lastPosition = *std::max_element(positions.begin(), positions.end());
    columnCount = names.size();
    fields.assign(columnCount + 1, {});
    fieldCount = 0;
}

void IdexTable::ReadHeader(std::string_view headerLine) {
    const std::int64_t line = file.Line();
    TakeHeader(headerLine);
    for (std::size_t column = 0; column < columns.size(); ++column) {
        const Lacking lacking = columns[column].lacking;
        const bool isTold = lacking == Lacking::IsTold || (lacking == Lacking::MayBeTold && hasUnknown);
        if (HasColumn(column) || !isTold) continue;
        const std::string words = std::string(columns[column].name).append(" in ").append(table);
        file.Tell(ProblemKind::ColumnMissing, words, line);
    }
}

void IdexTable::ReadPartialHeader(std::string_view headerLine) { TakeHeader(headerLine); }

RowEnd IdexTable::SplitUnjudged(std::string_view row) {
    rowEnd = row.data() + row.size();
    const RowEnd end = SplitRow(row, file.Separator(), file.Terminator(), fields);
    fieldCount = end.count;
    return end;
}

void IdexTable::Judge(std::string_view row, const RowEnd& end) {
    isDamaged = false;
    isSilent = false;
    const bool isWhole = end.terminator + 1 == row.size() && fieldCount >= lastPosition && fieldCount <= columnCount;
    if (!isWhole || MayBeginComment(row.front())) TellSplit(row, end.terminator);
}

void IdexTable::SplitDamaged(std::string_view row) {
    SplitUnjudged(row);
    isDamaged = true;
    isSilent = true;
}

void IdexTable::TellSplit(std::string_view row, std::size_t end) {
    ProblemKind kind = ProblemKind::RowOfOtherLength;
    if (IsNoRow(row)) {
        kind = ProblemKind::LineInTable;
        isSilent = true;
    } else if (end == std::string_view::npos) {
        kind = ProblemKind::RowWithoutTerminator;
    } else if (row.find_first_not_of(blanks, end + 1) != std::string_view::npos) {
        const bool isInside = IsInsideQuotes(row, end, file.Separator());
        if (isInside) return file.TellOfRow(ProblemKind::CutAtTerminator);
        kind = ProblemKind::RowBehindTerminator;
    } else if (fieldCount >= lastPosition && !HasMoreFields(row)) {
        return;
    }
    isDamaged = true;
    file.TellOfRow(kind);
}

bool IdexTable::IsComment(std::string_view line) const noexcept {
    const auto begins = [this, line](std::string_view mark) {
        return line.starts_with(mark) && mark.front() != file.Separator() && mark.front() != file.Terminator();
    };
    return begins("!") || begins("#") || begins("--") || begins("/*") || begins("//");
}

bool IdexTable::IsNoRow(std::string_view line) const noexcept {
    return IsComment(line) || (columnCount > 1 && line.find(file.Separator()) == std::string_view::npos &&
                               line.find(file.Terminator()) == std::string_view::npos);
}

// Whether a row has a field behind those of the table that is not empty.
bool IdexTable::HasMoreFields(std::string_view row) const {
    std::vector<std::string_view> all;
    ParseFields(row, file.Separator(), file.Terminator(), Blanks::SpacesAndTabs, all);
    for (std::size_t i = columnCount; i < all.size(); ++i) {
        if (!all[i].empty()) return true;
    }
    return false;
}

bool IdexTable::IsRowItself(std::string_view line, Columns known) const {
    std::vector<std::string_view> all;
    ParseFields(line, file.Separator(), file.Terminator(), Blanks::SpacesAndTabs, all);
    bool isKnown = false;
    for (const std::size_t column : known) {
        const std::size_t position = positions[column];
        if (position == 0) continue;
        isKnown = true;
        if (position > all.size() || !IsWholeNumber(all[position - 1])) return false;
    }
    return isKnown;
}

bool IdexTable::SwallowsRow(std::string_view row, std::string_view next, Columns known) const {
    if (HasMoreFields(std::string(row).append(next))) return true;
    return IsRowItself(row, known) && IsRowItself(next, known);
}

bool IdexTable::IsBlank(std::size_t column) const noexcept {
    const std::string_view field = Field(column);
    // Fields have no blanks around them.
    return field.empty() || (field.front() == '"' && IsBlankField(field));
}

std::int32_t IdexTable::Flags(std::size_t column) {
    const std::string_view field = Field(column);
    // As nearly every line string has them.
    if (field == "00000000 00000000") return 0;
    const bool isBinary = std::all_of(field.begin(), field.end(), [](char byte) {
        return byte == '0' || byte == '1' || byte == ' ' || byte == '\t';
    });
    if (!isBinary) Tell(ProblemKind::NumberNoNumber);
    return BinaryToFlags(field);
}

void IdexTable::Tell(ProblemKind kind) {
    if (!isSilent) file.TellOfRow(kind);
}

void IdexTable::TellNoNumber(std::string_view field, std::size_t end, ProblemKind kind) {
    if (IsBlankField(field)) return;
    const std::string_view behind = field.substr(end);
    const bool isComma = end > 0 && IsDigit(field[end - 1]) && behind.size() > 1 && behind.front() == ',' &&
                         std::all_of(behind.begin() + 1, behind.end(), IsDigit);
    Tell(isComma ? ProblemKind::DecimalComma : kind);
}

void IdexTable::TellWhenCut(std::string_view value, std::size_t width, ProblemKind kind) {
    if (value.find_first_not_of(' ', width) != std::string_view::npos) Tell(kind);
}

std::string_view IdexTable::WithSingleQuotes(std::string_view value) {
    Tell(ProblemKind::CharacterReplaced);
    unquoted = value;
    std::replace(unquoted.begin(), unquoted.end(), '"', '\'');
    return unquoted;
}

}  // namespace korvande
