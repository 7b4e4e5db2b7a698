#include <array>
#include <cstring>

#include "bench/floor/Drawing.h"
#include "bench/floor/Files.h"

namespace korvande::floor {

namespace {

constexpr std::size_t dataColumns = 62;
constexpr std::size_t lineSize = dataColumns + 4;  // an end code, CR and LF
constexpr std::string_view inside = "00";
constexpr std::string_view last = "01";

constexpr std::string_view head =
    "010NEN1878    V202611202611       0101S05                     01\r\n"
    "020102150201         0         0         1         0         101\r\n";

// Fills one record in the writer's own room.
class Record {
 public:
    explicit Record(Writer& writer) : writer_(writer), begin_(writer.Room(lineSize)), at_(begin_) {
        std::memset(begin_, ' ', dataColumns);
    }

    Record& operator<<(std::string_view text) {
        std::memcpy(at_, text.data(), text.size());
        at_ += text.size();
        return *this;
    }

    Record& operator<<(const Point& point) {
        Millimetres('X', point.east);
        Millimetres('Y', point.north);
        return *this;
    }

    void End(std::string_view code) {
        at_ = begin_ + dataColumns;
        *this << code << "\r\n";
        writer_.Take(at_);
    }

 private:
    static constexpr std::ptrdiff_t fieldWidth = 10;

    // The letter, and the number on the right of nine columns.
    void Millimetres(char letter, double metres) {
        const auto rounded = static_cast<std::int64_t>(metres * 1000 + (metres < 0 ? -0.5 : 0.5));
        auto rest = static_cast<std::uint64_t>(rounded < 0 ? -rounded : rounded);
        *at_ = letter;
        char* digit = at_ + fieldWidth;
        do {
            *--digit = static_cast<char>('0' + rest % 10);
            rest /= 10;
        } while (rest != 0 && digit > at_ + 1);
        if (rounded < 0 && digit > at_ + 1) *--digit = '-';
        at_ += fieldWidth;
    }

    Writer& writer_;
    char* begin_;
    char* at_;
};

// The record that a point's or a line's group begins with; the code takes the first of the mark's columns.
void WriteCode(Writer& writer, std::string_view code, std::string_view mark) {
    constexpr std::string_view blanks = "         ";
    Record record(writer);
    record << "03M" << code << blanks.substr(code.size()) << mark << "D 20200401BSRC   0";
    record.End(inside);
}

void WritePoints(const Drawing& drawing, Writer& writer) {
    for (const auto& point : drawing.points) {
        const auto& code = drawing.codes[point.code];
        if (code.empty()) continue;
        WriteCode(writer, code, "G010111   ");
        (Record(writer) << "04I1        " << point << "Q  3  0  0").End(inside);
        (Record(writer) << "05F112      " << point).End(inside);
        (Record(writer) << "06A20TPUNTOBJECT").End(last);
    }
}

void WriteEdges(const Drawing& drawing, Writer& writer) {
    for (const auto& edge : drawing.edges) {
        const auto& line = drawing.lines[static_cast<std::size_t>(edge.line)];
        WriteCode(writer, drawing.codes[line.code], "G120111   ");
        (Record(writer) << "04I1        " << drawing.points[static_cast<std::size_t>(edge.start)] << "I2        "
                        << drawing.points[static_cast<std::size_t>(edge.end)])
            .End(inside);
        (Record(writer) << "04Q  3  0  0").End(last);
    }
}

void WriteTexts(const Drawing& drawing, Writer& writer) {
    constexpr std::size_t longestText = 40;
    for (const auto& label : drawing.labels) {
        const auto& point = drawing.points[static_cast<std::size_t>(label.point)];
        auto second = point;
        second.east += 1;
        (Record(writer) << "05F111      " << point << second << "K" << drawing.codes[label.code]).End(inside);
        const auto text = drawing.Kept(label.text, label.length).substr(0, longestText);
        const std::array<char, 2> count{static_cast<char>('0' + text.size() / 10),
                                        static_cast<char>('0' + text.size() % 10)};
        (Record(writer) << "06A" << std::string_view(count.data(), count.size()) << "T" << text).End(last);
    }
}

}  // namespace

void WriteNen(const Drawing& drawing, const char* name) {
    Writer writer(name);
    writer.Write(head);
    WritePoints(drawing, writer);
    WriteEdges(drawing, writer);
    WriteTexts(drawing, writer);
    (Record(writer) << "99").End("  ");
}

}  // namespace korvande::floor
