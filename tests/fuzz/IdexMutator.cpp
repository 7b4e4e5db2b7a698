#include <algorithm>
#include <array>
#include <cctype>

#include "tests/fuzz/Lines.h"
#include "tests/fuzz/Mutators.h"

namespace korvande::fuzz {

namespace {

struct Marks {
    char separator = ',';
    char terminator = ';';
};

// Those that the header names; the usual ones without.
Marks MarksOf(std::string_view file) {
    const auto named = [file](std::string_view keyword, char usual) {
        const std::size_t place = file.find(keyword);
        const std::size_t quote = place == std::string_view::npos ? place : file.find('\'', place);
        return quote < place + 20 && quote + 1 < file.size() ? file[quote + 1] : usual;
    };
    return {named("SEPARATOR", ','), named("TERMINATOR", ';')};
}

// A row, or a list of column names, as its fields; in front of them what introduces it, behind them its end.
struct Row {
    std::string front;
    std::vector<std::string> fields;
    std::string end;
};

Row RowOf(std::string_view line, const Marks& marks) {
    Row row;
    std::size_t first = line.find('(');
    first = first == std::string_view::npos ? line.find_first_not_of(" \t") : first + 1;
    row.front = line.substr(0, first);
    if (first >= line.size()) return row;
    bool isQuoted = false;
    std::size_t at = first;
    row.fields.emplace_back();
    for (; at < line.size(); ++at) {
        const char character = line[at];
        if (character == '\r' || character == '\n') break;
        if (!isQuoted && (character == marks.terminator || (row.front.ends_with('(') && character == ')'))) break;
        if (character == '"') isQuoted = !isQuoted;
        if (!isQuoted && character == marks.separator) {
            row.fields.emplace_back();
        } else {
            row.fields.back() += character;
        }
    }
    row.end = line.substr(at);
    return row;
}

std::string TextOf(const Row& row, const Marks& marks) {
    std::string text = row.front;
    for (std::size_t i = 0; i < row.fields.size(); ++i) {
        if (i > 0) text += marks.separator;
        text += row.fields[i];
    }
    return text + row.end;
}

std::string NearNumber(const std::string& field, Chance& chance) {
    const std::size_t digit = field.find_first_of("0123456789");
    if (digit == std::string::npos) return "1";
    std::size_t last = digit;
    while (last < field.size() && last < digit + 9 && std::isdigit(static_cast<unsigned char>(field[last])) != 0)
        ++last;
    const std::int64_t number = std::stol(field.substr(digit, last - digit)) + chance.Between(-3, 3);
    return field.substr(0, digit) + std::to_string(number) + field.substr(last);
}

std::string AnyValue(Chance& chance) {
    constexpr std::array values = {"",
                                   "0",
                                   "-1",
                                   "-0",
                                   "1000000",
                                   "1000001",
                                   "2147483647",
                                   "2147483648",
                                   "-2147483649",
                                   "99999999999999999999",
                                   "999999.9995",
                                   "1000000.0",
                                   "-99999.999",
                                   "-100000",
                                   "0.0005",
                                   "1005.0005",
                                   "1E308",
                                   "1E309",
                                   "NaN",
                                   "\"",
                                   "\"\"",
                                   "\"a\\\"b\"",
                                   "\"a,b;c\"",
                                   "STRAIGHT",
                                   "ARC_CENT",
                                   "CIRCLE_CENT",
                                   "CURVE_3RD",
                                   "CURVE_4RD",
                                   "POLYLINE",
                                   "\"MV\"",
                                   "\"BOOM\"",
                                   "\"PAAL\"",
                                   "\"WEG\"",
                                   "\"MUUR\"",
                                   "\"GRENS\"",
                                   "\"NAAM\"",
                                   "\"PLAATS\"",
                                   "00000000 00010000",
                                   "\"\xC3\xA9\x80\""};
    if (chance.Once(8)) return '"' + std::string(1 + chance.Below(120), chance.Once(2) ? ' ' : 'W') + '"';
    return AnyOf(values, chance);
}

void ChangeField(Row& row, Row& other, Chance& chance) {
    if (row.fields.empty()) return;
    std::string& field = row.fields[chance.Below(row.fields.size())];
    const auto place = row.fields.begin() + (&field - row.fields.data());
    switch (chance.Below(8)) {
        case 0:
        case 1:
            field = AnyValue(chance);
            break;
        case 2:
        case 3:
            field = NearNumber(field, chance);
            break;
        case 4:
            if (!other.fields.empty()) {
                const auto column = static_cast<std::size_t>(place - row.fields.begin());
                field = chance.Once(4) ? AnyOf(other.fields, chance) : other.fields[column % other.fields.size()];
            }
            break;
        case 5:
            row.fields.erase(place);
            break;
        case 6:
            row.fields.insert(place, AnyValue(chance));
            break;
        default:
            std::swap(field, row.fields[chance.Below(row.fields.size())]);
    }
}

void ChangeRow(Lines& lines, const Marks& marks, Chance& chance) {
    const std::size_t index = chance.Below(lines.size());
    // Rows of one table stand together.
    const std::size_t otherIndex = chance.Once(3) ? chance.Below(lines.size()) : std::min(index + 1, lines.size() - 1);
    Row row = RowOf(lines[index], marks);
    Row other = RowOf(lines[otherIndex], marks);
    ChangeField(row, other, chance);
    lines[index] = TextOf(row, marks);
}

void ChangeKeyword(std::string& line, Chance& chance) {
    constexpr std::array keywords = {"HEADER",        "END HEADER",
                                     "LAYERS",        "DATABASE",
                                     "POINTS",        "END POINTS",
                                     "EXTRAINFO",     "LINES",
                                     "EDGES",         "END",
                                     "POLYGONS",      "TEXT",
                                     "BOX_ON_POINT",  "ITEMS",
                                     "EOF",           "FIELD_DATE 01-02-1999",
                                     "SEPARATOR ';'", "TERMINATOR ','",
                                     "NAME \"X\""};
    const std::size_t first = std::min(line.find_first_not_of(" \t"), line.size());
    const std::size_t last = std::min(line.find_first_of(" \t(\r\n", first), line.size());
    line.replace(first, last - first, AnyOf(keywords, chance));
}

// Quotes, terminators and breaks that are missing or too many.
void BreakLine(std::string& line, const Marks& marks, Chance& chance) {
    const std::string marked = {'"', marks.separator, marks.terminator, '(', ')', '\\', '\n', '\r', '\t', '\xE9'};
    const std::size_t place = line.find_first_of(marked, chance.Below(line.size() + 1));
    if (place != std::string::npos && chance.Once(2)) {
        line.erase(place, 1);
    } else {
        line.insert(chance.Below(line.size() + 1), 1, AnyOf(marked, chance));
    }
}

bool StartsTable(const std::string& line) { return line.find('(') != std::string::npos; }
bool EndsTable(const std::string& line) {
    return line.compare(std::min(line.find_first_not_of(" \t"), line.size()), 3, "END") == 0;
}

// From a table's list of columns to its end.
Block AnyTable(const Lines& lines, Chance& chance) {
    std::size_t first = chance.Below(lines.size());
    while (first > 0 && !StartsTable(lines[first])) --first;
    std::size_t last = first;
    while (last < lines.size() && !EndsTable(lines[last])) ++last;
    return {first, std::min(last + 1, lines.size()) - first};
}

void ChangeOnce(Lines& lines, const Marks& marks, Chance& chance, std::size_t limit) {
    if (lines.empty()) return;
    const std::size_t choice = chance.Below(16);
    if (choice < 10) {
        ChangeRow(lines, marks, chance);
    } else if (choice < 14) {
        Rearrange(lines, chance.Once(4) ? AnyTable(lines, chance) : AnyLines(lines, chance), chance, limit);
    } else if (choice < 15) {
        ChangeKeyword(lines[chance.Below(lines.size())], chance);
    } else {
        BreakLine(lines[chance.Below(lines.size())], marks, chance);
    }
}

}  // namespace

std::string MutateIdex(std::string_view file, unsigned seed, std::size_t limit) {
    Chance chance(seed);
    const Marks marks = MarksOf(file.substr(0, 4096));
    Lines lines = LinesOf(file);
    for (std::size_t count = 1 + chance.Below(4); count > 0; --count) ChangeOnce(lines, marks, chance, limit);
    return Joined(lines, limit);
}

}  // namespace korvande::fuzz
