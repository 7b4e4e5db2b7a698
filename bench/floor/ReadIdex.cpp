#include <array>

#include "bench/floor/Drawing.h"
#include "bench/floor/Files.h"

namespace korvande::floor {

namespace {

constexpr std::size_t maxFields = 8;
using Fields = std::array<std::string_view, maxFields>;

enum class Table { None, Layers, Points, Lines, Edges, Boxes, Items };

struct Keyword {
    std::string_view word;
    Table table;
};

constexpr std::array<Keyword, 6> keywords{{{"POINTS", Table::Points},
                                           {"LINES", Table::Lines},
                                           {"EDGES", Table::Edges},
                                           {"BOX_ON_POINT", Table::Boxes},
                                           {"ITEMS", Table::Items},
                                           {"LAYERS", Table::Layers}}};

Table TableBeginning(std::string_view row) {
    for (const auto& keyword : keywords)
        if (row.starts_with(keyword.word)) return keyword.table;
    return Table::None;
}

// What stands before the first ";" outside quotes.
std::string_view WithoutTerminator(std::string_view row) {
    bool quoted = false;
    for (std::size_t i = 0; i < row.size(); ++i) {
        if (row[i] == '"') {
            quoted = !quoted;
        } else if (row[i] == ';' && !quoted) {
            return row.substr(0, i);
        }
    }
    return row;
}

// Splits at the commas outside quotes.
void Split(std::string_view row, Fields& fields) {
    row = Trimmed(WithoutTerminator(row));
    for (auto& field : fields) {
        std::size_t start = 0;
        if (row.starts_with('"')) start = row.find('"', 1);
        const auto comma = row.find(',', start == std::string_view::npos ? 0 : start);
        field = Trimmed(row.substr(0, comma));
        if (comma == std::string_view::npos) return;
        row = Trimmed(row.substr(comma + 1));
    }
}

std::string_view Unquoted(std::string_view field) {
    if (field.starts_with('"')) field.remove_prefix(1);
    if (field.ends_with('"')) field.remove_suffix(1);
    return field;
}

double Decimal(std::string_view field) {
    double number = 0;
    std::from_chars(field.data(), field.data() + field.size(), number);
    return number;
}

std::uint32_t Flags(std::string_view field) {
    std::uint32_t flags = 0;
    for (const char bit : field)
        if (bit != ' ') flags = flags * 2 + (bit == '1' ? 1 : 0);
    return flags;
}

// The element of a number, in a vector that grows to hold it.
template <typename Element>
Element& At(std::vector<Element>& elements, std::string_view number) {
    const auto index = static_cast<std::size_t>(WholeNumber(number));
    if (index >= elements.size()) elements.resize(index + 1);
    return elements[index];
}

class Reader {
 public:
    Drawing Read(const char* name) {
        Lines lines(name);
        auto table = Table::None;
        std::string_view line;
        while (lines.Next(line)) {
            const auto row = Trimmed(line);
            if (row.empty()) continue;
            if (row.front() < '0' || row.front() > '9') {
                table = TableBeginning(row);
            } else {
                TakeRow(table, row);
            }
        }
        return std::move(drawing_);
    }

 private:
    void TakeRow(Table table, std::string_view row) {
        if (table == Table::None) return;
        Fields fields;
        Split(row, fields);
        switch (table) {
            case Table::Layers:
                At(layers_, fields[0]) = Unquoted(fields[1]);
                break;
            case Table::Points:
                TakePoint(fields);
                break;
            case Table::Lines:
                At(drawing_.lines, fields[0]) = {Flags(fields[2]), Flags(fields[3]),
                                                 drawing_.Code(Unquoted(fields[1]))};
                break;
            case Table::Edges:
                drawing_.edges.push_back({WholeNumber(fields[0]), PlaceOf(fields[1]), PlaceOf(fields[3])});
                break;
            case Table::Boxes:
                At(boxes_, fields[0]) = {PlaceOf(fields[1]),
                                         0,
                                         0,
                                         static_cast<std::uint8_t>(WholeNumber(fields[2])),
                                         drawing_.Code(layers_.at(static_cast<std::size_t>(WholeNumber(fields[3])))),
                                         static_cast<float>(Decimal(fields[4]))};
                break;
            case Table::Items:
                TakeLabel(fields);
                break;
            case Table::None:
                break;
        }
    }

    void TakePoint(const Fields& fields) {
        Point point;
        point.number = WholeNumber(fields[0]);
        const auto id = Unquoted(fields[1]);
        point.id = drawing_.Keep(id);
        point.idLength = static_cast<std::uint8_t>(id.size());
        point.east = Decimal(fields[2]);
        point.north = Decimal(fields[3]);
        point.height = Decimal(fields[4]);
        point.code = drawing_.Code(Unquoted(fields[5]));
        const auto description = Unquoted(fields[6]);
        point.description = drawing_.Keep(description);
        point.descriptionLength = static_cast<std::uint8_t>(description.size());
        point.direction = Decimal(fields[7]);
        const auto index = static_cast<std::size_t>(point.number);
        if (index >= places_.size()) places_.resize(index + 1 + index / 2, -1);
        places_[index] = static_cast<std::int32_t>(drawing_.points.size());
        drawing_.points.push_back(point);
    }

    void TakeLabel(const Fields& fields) {
        auto label = boxes_.at(static_cast<std::size_t>(WholeNumber(fields[1])));
        const auto text = Unquoted(fields[4]);
        label.text = drawing_.Keep(text);
        label.length = static_cast<std::uint8_t>(text.size());
        drawing_.labels.push_back(label);
    }

    std::int32_t PlaceOf(std::string_view pointNumber) const {
        return places_.at(static_cast<std::size_t>(WholeNumber(pointNumber)));
    }

    Drawing drawing_;
    std::vector<std::int32_t> places_;  // of the points, by their numbers
    std::vector<std::string> layers_;
    std::vector<Label> boxes_;
};

}  // namespace

Drawing ReadIdex(const char* name) { return Reader().Read(name); }

}  // namespace korvande::floor
