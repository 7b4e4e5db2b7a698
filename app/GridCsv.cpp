#include "app/GridCsv.h"

#include <algorithm>
#include <optional>
#include <utility>

#include "app/CellValues.h"
#include "core/Csv.h"

namespace korvande {

namespace {

constexpr std::string_view utf8Mark = "\xEF\xBB\xBF";

std::vector<int> ColumnsOf(const EditedGrid& edited) {
    std::vector<int> columns;
    for (int column = 0; column < Grid::columns; ++column) {
        if (column != Grid::Type || HasTypes(edited)) columns.push_back(column);
    }
    return columns;
}

int LineOf(TextView text, std::size_t place) {
    return static_cast<int>(std::count(text.begin(), text.begin() + static_cast<std::ptrdiff_t>(place), u'\n')) + 1;
}

// Where a text decoded from UTF-8 stands for a byte that is none.
std::size_t FindBadByte(TextView text) {
    const auto isHigh = [](char16_t character) { return character >= 0xD800 && character < 0xDC00; };
    for (std::size_t i = 0; i < text.size(); ++i) {
        const bool isLow = text[i] >= 0xDC00 && text[i] < 0xE000;
        if (isLow && (i == 0 || !isHigh(text[i - 1]))) return i;
    }
    return TextView::npos;
}

// The text of a file; nothing, and an error, when it is none.
std::optional<Text> Decoded(std::string_view bytes, std::vector<Text>& errors) {
    if (bytes.starts_with("\xFF\xFE") || bytes.starts_with("\xFE\xFF")) {
        errors.emplace_back(u"Regel 1: het bestand is UTF-16. Bewaar het als CSV in UTF-8 of Windows-1252.");
        return {};
    }
    const bool hasMark = bytes.starts_with(utf8Mark);
    if (hasMark) bytes.remove_prefix(utf8Mark.size());
    Text text = FromUtf8(bytes);
    if (const std::size_t bad = FindBadByte(text); bad != Text::npos) {
        if (hasMark) {
            errors.push_back(Concat(u"Regel ", LineOf(text, bad), u": hier staat een teken dat geen UTF-8 is."));
            return {};
        }
        text = FromWindows1252(bytes);
    }
    if (const std::size_t nul = text.find(u'\0'); nul != Text::npos) {
        errors.push_back(Concat(u"Regel ", LineOf(text, nul), u": hier staat een teken dat in tekst niet voorkomt."));
        return {};
    }
    return text;
}

bool IsHeader(const CsvLine& line) {
    const auto has = [&line](TextView name) {
        return std::any_of(line.fields.begin(), line.fields.end(),
                           [name](const Text& field) { return ToCapitals(Trim(field)) == name; });
    };
    return has(u"LISCAD") && has(u"LKI");
}

// The text's rows by the separator that it seems to have.
CsvText ReadWithItsSeparator(TextView text) {
    constexpr char16_t separators[] = {u';', u',', u'\t'};
    CsvText best;
    std::size_t most = 0;
    for (const char16_t separator : separators) {
        CsvText read = ReadCsv(text, separator);
        if (read.lines.empty() && !read.error.empty()) {
            if (most == 0) best = std::move(read);
            continue;
        }
        const CsvLine first = read.lines.empty() ? CsvLine() : read.lines.front();
        const std::size_t fields = first.fields.size() + (IsHeader(first) ? Grid::columns : 0);
        if (fields <= most) continue;
        most = fields;
        best = std::move(read);
    }
    return best;
}

class GridCsvReader {
 public:
    explicit GridCsvReader(const EditedGrid& itsEdited) : edited(itsEdited), columns(ColumnsOf(itsEdited)) {}

    CsvRows Read(std::string_view bytes) {
        const std::optional<Text> text = Decoded(bytes, result.errors);
        if (!text) return std::move(result);
        const CsvText csv = ReadWithItsSeparator(*text);
        auto line = csv.lines.begin();
        if (line != csv.lines.end()) {
            if (line->fields.size() == 1) {
                AddError(*line, u"er is geen puntkomma, komma of tab. Dit is geen CSV-bestand van een codetabel.");
                return std::move(result);
            }
            if (IsHeader(*line)) TakeHeader(*line++);
        }
        for (; line != csv.lines.end() && result.errors.size() <= mostErrors; ++line) TakeRow(*line);
        if (!csv.error.empty()) result.errors.push_back(csv.error);
        return std::move(result);
    }

 private:
    static constexpr std::size_t mostErrors = 1000;
    static constexpr int noColumn = -1;

    void AddError(const CsvLine& line, TextView what) {
        result.errors.push_back(Concat(u"Regel ", line.number, u": ", what));
    }

    void TakeHeader(const CsvLine& line) {
        columns.clear();
        for (const Text& field : line.fields) {
            const int column = ColumnNamed(ToCapitals(Trim(field)));
            if (column == noColumn && !Trim(field).empty()) {
                AddError(line, Concat(u"de kolom '", Trim(field), u"' hoort niet in deze tabel."));
            } else if (column != noColumn && std::count(columns.begin(), columns.end(), column) > 0) {
                AddError(line, Concat(u"de kolom ", Trim(field), u" staat er meer dan een keer."));
            }
            columns.push_back(column);
        }
    }

    static int ColumnNamed(TextView capitals) {
        const Grid names(gridHeader);
        for (int column = 0; column < Grid::columns; ++column) {
            if (ToCapitals(names[0][static_cast<std::size_t>(column)]) == capitals) return column;
        }
        return noColumn;
    }

    void TakeRow(const CsvLine& line) {
        const auto isEmpty = [](const Text& field) { return Trim(field).empty(); };
        if (std::all_of(line.fields.begin(), line.fields.end(), isEmpty)) {
            ++result.emptyRows;
            return;
        }
        const bool isTooLong =
            line.fields.size() > columns.size() &&
            !std::all_of(line.fields.begin() + static_cast<std::ptrdiff_t>(columns.size()), line.fields.end(), isEmpty);
        if (line.fields.size() < columns.size() || isTooLong) {
            AddError(line, Concat(line.fields.size(), u" velden in plaats van ", columns.size(), u"."));
            return;
        }
        Grid::Row row;
        for (std::size_t i = 0; i < columns.size(); ++i) TakeField(line, columns[i], line.fields[i], row);
        result.rows.push_back(std::move(row));
    }

    void TakeField(const CsvLine& line, int columnNumber, const Text& field, Grid::Row& row) {
        if (columnNumber == noColumn) {
            if (!Trim(field).empty()) AddError(line, Concat(u"'", field, u"' staat in een kolom zonder naam."));
            return;
        }
        const auto column = static_cast<Grid::Column>(columnNumber);
        row[column] = CellValue(column, field);
        const Text why = WhyValueIsRefused(edited, column, row[column]);
        if (!why.empty()) AddError(line, Concat(u"kolom ", Grid(gridHeader)[0][column], u": ", why));
    }

    const EditedGrid& edited;
    std::vector<int> columns;  // of the fields
    CsvRows result;
};

}  // namespace

std::string CsvOfGrid(const EditedGrid& edited, const CsvForm& form, std::vector<Text>& errors) {
    std::string bytes(form.isUtf8 ? utf8Mark : std::string_view());
    const std::vector<int> columns = ColumnsOf(edited);
    for (int row = 0; row < edited.grid.RowCount(); ++row) {
        Text line;
        for (const int column : columns) {
            if (!line.empty() || column != columns.front()) line.push_back(form.separator);
            AppendTo(line, CsvField(edited.grid[row][static_cast<std::size_t>(column)], form.separator));
        }
        std::string encoded = form.isUtf8 ? ToUtf8(line) : ToWindows1252(line);
        if (!form.isUtf8 && FromWindows1252(encoded) != line) {
            errors.push_back(Concat(u"Regel ", row, u": er is een teken dat Windows-1252 niet heeft."));
        }
        bytes.append(encoded).append("\r\n");
    }
    return errors.empty() ? bytes : std::string();
}

CsvRows ReadGridCsv(const EditedGrid& edited, std::string_view bytes) { return GridCsvReader(edited).Read(bytes); }

}  // namespace korvande
