#include <algorithm>
#include <string>
#include <utility>

#include "bench/Output.h"
#include "bench/generate.h"

namespace korvande::bench {

namespace {

// Every line has 64 columns: two of the record type, 60 of data and two of the end code.
constexpr std::size_t dataColumns = 60;
constexpr std::size_t longestText = 40;

constexpr std::string_view nenHead =
    "010NEN1878    V202405202405       0101S05                     01\r\n"
    "020102150201         0         0         1         0         101\r\n"
    "07NGENERATOR                                        KGEN      00\r\n"
    "07AKERKSTRAAT              12                       P1234AB   00\r\n"
    "07WMOLENDAM                                                   01\r\n";

constexpr std::string_view sufHead =
    "010           V      202405       GENERATOR                   01\r\n"
    "02010201             0         0         1         0         101\r\n";

// What the two formats write differently in the objects.
struct Variant {
    std::string_view head;
    std::string_view pointMark;  // the code record's field of the kind of geometry
    std::string_view lineMark;
    std::string_view quality;    // the letter of the quality field
    std::string_view textCode;   // the letter of a text's code
    std::string_view insideEnd;  // the end code of a record that its group goes on behind
};

constexpr Variant nen{nenHead, "G010111   ", "G120111   ", "Q", "K", "00"};
constexpr Variant suf{sufHead, "G 10 11   ", "G 30 11   ", "K", "Q", "01"};
constexpr std::string_view lastEnd = "01";

// Writes the objects of one drawing, each as a group of records.
class GroupWriter {
 public:
    GroupWriter(Output& out, const Variant& variant, const CodeTables& tables)
        : out_(out), variant_(variant), tables_(tables) {}

    void WritePoint(const DrawingObject& object) {
        const auto& row = tables_.points[object.row];
        WriteCode(row, variant_.pointMark);
        AddVertex("I1        ", object.vertices[0]);
        AddQuality(row);
        Write("04", variant_.insideEnd);
        AddVertex("F112      ", object.vertices[0]);
        Write("05", variant_.insideEnd);
        WriteText("20", row.description);
    }

    void WriteLineString(const DrawingObject& object) {
        const auto& row = tables_.lines[object.row];
        WriteCode(row, variant_.lineMark);
        for (std::size_t i = 0; i < static_cast<std::size_t>(object.vertexCount); ++i)
            AddVertex(i == 0 ? "I1        " : "I2        ", object.vertices[i]);
        AddQuality(row);
        Write("04", lastEnd);
    }

    // The second place tells the direction: a metre to the east, whatever the drawing's direction is.
    void WriteLabel(const DrawingObject& object) {
        constexpr std::int32_t metre = 1000;
        auto second = object.vertices[0];
        second.east += metre;
        AddVertex("F111      ", object.vertices[0]);
        AddVertex("", second);
        data_ += variant_.textCode;
        AddPadded(tables_.texts[object.row].lki, 9);
        Write("05", variant_.insideEnd);
        const auto text = object.text.substr(0, longestText);
        auto count = std::to_string(text.size());
        if (count.size() < 2) count.insert(0, 1, '0');
        WriteText(count, text);
    }

 private:
    void WriteCode(const CodeRow& row, std::string_view mark) {
        data_ += "M";
        AddPadded(row.lki, 9);
        data_ += mark;
        data_ += "D 20240514BSRC   0  ";
        Write("03", variant_.insideEnd);
    }

    void WriteText(std::string_view count, std::string_view text) {
        data_ += "A";
        data_ += count;
        data_ += "T";
        data_ += text;
        Write("06", lastEnd);
    }

    void AddPadded(std::string_view text, std::size_t width) {
        data_ += text;
        data_.append(width - std::min(width, text.size()), ' ');
    }

    void AddVertex(std::string_view before, const Vertex& vertex) {
        data_ += before;
        for (const auto& [letter, number] : {std::pair{'X', vertex.east}, std::pair{'Y', vertex.north}}) {
            const auto digits = std::to_string(number);
            data_ += letter;
            data_.append(9 - digits.size(), ' ');
            data_ += digits;
        }
    }

    void AddQuality(const CodeRow& row) {
        data_ += variant_.quality;
        for (const auto value : {row.p, row.i, row.b}) {
            data_ += "  ";
            data_ += static_cast<char>('0' + value);
        }
    }

    // Writes the record gathered, over as many lines as it needs.
    void Write(std::string_view type, std::string_view end) {
        std::string_view rest = data_;
        do {
            const auto part = rest.substr(0, dataColumns);
            rest.remove_prefix(part.size());
            out_ << type << part << blanks.substr(part.size()) << (rest.empty() ? end : "00");
            out_.EndRow();
        } while (!rest.empty());
        data_.clear();
    }

    static constexpr std::string_view blanks = "                                                            ";
    static_assert(blanks.size() == dataColumns);

    Output& out_;
    const Variant& variant_;
    const CodeTables& tables_;
    std::string data_;  // of the record being gathered, without its type
};

DrawingCounts WriteDrawing(const GeneratorOptions& options, const Variant& variant, std::FILE* file) {
    Output out(file);
    const auto tables = MakeCodeTables(options.tableRows);
    GroupWriter groups(out, variant, tables);
    ObjectStream objects(options, tables);
    DrawingCounts counts;
    DrawingObject object;
    out << variant.head;
    while (objects.Next(object)) {
        counts.points += object.vertexCount;
        switch (object.kind) {
            case ObjectKind::Point:
                groups.WritePoint(object);
                break;
            case ObjectKind::LineString:
                groups.WriteLineString(object);
                ++counts.lineStrings;
                counts.edges += object.vertexCount - 1;
                break;
            case ObjectKind::Label:
                groups.WriteLabel(object);
                ++counts.texts;
                break;
        }
    }
    out << "99                                                              ";
    out.EndRow();
    out.Flush();
    return counts;
}

}  // namespace

DrawingCounts WriteNenDrawing(const GeneratorOptions& options, std::FILE* file) {
    return WriteDrawing(options, nen, file);
}

DrawingCounts WriteSufDrawing(const GeneratorOptions& options, std::FILE* file) {
    return WriteDrawing(options, suf, file);
}

}  // namespace korvande::bench
