#include "bench/generate.h"

#include <stdexcept>

#include "bench/Output.h"

namespace korvande::bench {

namespace {

struct Share {
    int value;
    std::uint32_t percent;
};

// Vertices of a line string, on average 4: most are walls, kerbs and fences of a few corners.
constexpr std::array<Share, 7> vertexShares{{{2, 40}, {3, 15}, {4, 15}, {5, 10}, {6, 5}, {8, 10}, {12, 5}}};

constexpr std::array<std::string_view, 12> labels{"12",
                                                  "148A",
                                                  "12bis",
                                                  "KERKSTRAAT",
                                                  "Molenweg",
                                                  "De Brink",
                                                  "Sluis 4",
                                                  "Caf\xE9 't Hoekje",
                                                  "Co\xF6peratieplein",
                                                  "Plantsoen, honden aan de lijn",
                                                  "Boulevard Heuvelinkstraat",
                                                  "Kabeltrac\xE9 nog in te meten na gereedkomen werk"};

constexpr std::string_view codeTableHead =
    "[Export]\r\n"
    "IncludeUnknown = 1\r\n"
    "IncludeNrAsField = 0\r\n"
    "IncludeNrAsText = 0\r\n"
    "IncludeZ = 0\r\n"
    "IncludeZAsText = 0\r\n"
    "SymRotation = 0\r\n"
    "UseDateAlt =False\r\n"
    "UseDateSEE =True\r\n"
    "UseDateNow =False\r\n";

// A prefix and a number of at least so many digits.
std::string Numbered(std::string_view prefix, int number, std::size_t digits) {
    const auto text = std::to_string(number);
    std::string result(prefix);
    if (text.size() < digits) result.append(digits - text.size(), '0');
    return result + text;
}

// S01, S02 or S03, a blank and a symbol number of a letter and two digits.
std::string SymbolCode(int number) {
    const auto symbol = number / 3;
    return Numbered("S", 1 + number % 3, 2) + ' ' +
           Numbered(std::string(1, static_cast<char>('A' + symbol / 100)), symbol % 100, 2);
}

CodeRow PointRow(int number) {
    constexpr std::array<std::string_view, 4> types{"PUNT", "SYMBOOL", "ROT.PNT", "GRONDSL"};
    const auto type = types[static_cast<std::size_t>(number % 4)];
    const auto isSymbol = type == "SYMBOOL" || type == "ROT.PNT";
    const auto quality = number % 2 == 0;
    return {Numbered("P", number, 3), isSymbol ? SymbolCode(number) : Numbered("P", number, 2),
            std::string(type),        Numbered("PUNTSOORT ", number, 1),
            quality ? 3 : 0,          quality ? 1 : 0,
            quality ? 2 : 0};
}

CodeRow LineRow(int number) {
    constexpr std::string_view groups = "BGVTWK";
    const auto group = groups.substr(static_cast<std::size_t>(number) % groups.size(), 1);
    const auto quality = number % 3 != 0;
    return {Numbered("L", number, 3),
            Numbered(group, 1 + number / static_cast<int>(groups.size()), 2),
            number % 2 == 0 ? "LIJN" : "GRENS",
            Numbered("LIJNSOORT ", number, 1),
            quality ? 2 : 0,
            quality ? 1 : 0,
            0};
}

// Z01 is left out: readers take the text of that code from other columns.
CodeRow TextRow(int number) {
    return {Numbered("T", number, 3), Numbered("Z", 1 + number, 2), "", Numbered("TEKSTSOORT ", number, 1), 0, 0, 0};
}

void WriteCodeRows(Output& out, std::string_view section, const std::vector<CodeRow>& rows) {
    out << "\r\n[" << section << "]\r\n";
    for (const auto& row : rows) {
        out << row.liscad << " = " << row.lki;
        if (!row.type.empty()) out << ", " << row.type;
        out << ", " << row.description << ", " << row.p << ", " << row.i << ", " << row.b;
        out.EndRow();
    }
}

}  // namespace

CodeTables MakeCodeTables(int tableRows) {
    if (tableRows < minTableRows || tableRows > maxTableRows) {
        throw std::invalid_argument("the code tables need " + std::to_string(minTableRows) + " to " +
                                    std::to_string(maxTableRows) + " rows");
    }
    const auto share = tableRows / 3;
    CodeTables tables;
    tables.points.push_back({"", "Q20", "DUMMY", "LEEG", 0, 0, 0});
    for (int number = 1; number < share; ++number) tables.points.push_back(PointRow(number));
    for (int number = 1; number <= share; ++number) tables.lines.push_back(LineRow(number));
    for (int number = 1; number <= tableRows - 2 * share; ++number) tables.texts.push_back(TextRow(number));
    return tables;
}

std::uint32_t Random::Below(std::uint32_t limit) {
    state_ += 0x9E3779B97F4A7C15U;
    auto mixed = state_;
    mixed = (mixed ^ (mixed >> 30)) * 0xBF58476D1CE4E5B9U;
    mixed = (mixed ^ (mixed >> 27)) * 0x94D049BB133111EBU;
    mixed ^= mixed >> 31;
    return static_cast<std::uint32_t>(((mixed >> 32) * limit) >> 32);
}

ObjectStream::ObjectStream(const GeneratorOptions& options, const CodeTables& tables)
    : random_(options.seed),
      left_(options.objects),
      pointRows_(static_cast<std::uint32_t>(tables.points.size())),
      lineRows_(static_cast<std::uint32_t>(tables.lines.size())),
      textRows_(static_cast<std::uint32_t>(tables.texts.size())) {}

bool ObjectStream::Next(DrawingObject& object) {
    if (left_ <= 0) return false;
    --left_;
    const auto percent = random_.Below(100);
    PlaceFirstVertex(object);
    if (percent < 80) {
        FillLineString(object);
        return true;
    }
    object.direction = static_cast<std::int32_t>(random_.Below(400000));
    if (percent < 90) {
        object.kind = ObjectKind::Point;
        object.row = 1 + random_.Below(pointRows_ - 1);
    } else {
        object.kind = ObjectKind::Label;
        object.row = random_.Below(textRows_);
        object.text = labels[random_.Below(static_cast<std::uint32_t>(labels.size()))];
    }
    return true;
}

void ObjectStream::PlaceFirstVertex(DrawingObject& object) {
    object.vertexCount = 1;
    object.vertices[0].east = 100'000'000 + static_cast<std::int32_t>(random_.Below(100'000'000));
    object.vertices[0].north = 400'000'000 + static_cast<std::int32_t>(random_.Below(150'000'000));
    object.vertices[0].height = 1 + static_cast<std::int32_t>(random_.Below(5000));
}

// Each vertex lies at most 20 m from the one before, both ways along either axis.
void ObjectStream::FillLineString(DrawingObject& object) {
    object.kind = ObjectKind::LineString;
    object.row = random_.Below(lineRows_);
    auto percent = random_.Below(100);
    for (const auto& share : vertexShares) {
        object.vertexCount = share.value;
        if (percent < share.percent) break;
        percent -= share.percent;
    }
    for (std::size_t i = 1; i < static_cast<std::size_t>(object.vertexCount); ++i) {
        object.vertices[i] = object.vertices[i - 1];
        object.vertices[i].east += static_cast<std::int32_t>(random_.Below(40'001)) - 20'000;
        object.vertices[i].north += static_cast<std::int32_t>(random_.Below(40'001)) - 20'000;
    }
}

std::string ControlTable(int tableRows) {
    const auto tables = MakeCodeTables(tableRows);
    Output out(nullptr);
    out << codeTableHead;
    WriteCodeRows(out, "Points", tables.points);
    WriteCodeRows(out, "Lines", tables.lines);
    WriteCodeRows(out, "Texts", tables.texts);
    out << "\r\n[End]\r\n";
    return out.Take();
}

}  // namespace korvande::bench
