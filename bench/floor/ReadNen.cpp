#include <array>

#include "bench/floor/Drawing.h"
#include "bench/floor/Files.h"

namespace korvande::floor {

namespace {

constexpr std::size_t lineColumns = 64;
constexpr std::size_t firstField = 2;
constexpr std::size_t fieldsEnd = 62;
constexpr std::size_t fieldWidth = 10;

class Reader {
 public:
    Drawing Read(const char* name) {
        drawing_.Code("");
        Lines lines(name);
        std::string_view line;
        while (lines.Next(line)) {
            if (line.size() < lineColumns) continue;
            const auto type = line.substr(0, 2);
            if (type == "03") {
                TakeCode(line);
            } else if (type == "04") {
                TakeGeometry(line);
            } else if (type == "05") {
                TakePlacement(line);
            } else if (type == "06" && label_) {
                TakeText(line);
            }
        }
        return std::move(drawing_);
    }

 private:
    enum class Kind { None, Point, Line };

    template <typename Take>
    static void ForEachField(std::string_view line, Take take) {
        for (auto column = firstField; column < fieldsEnd; column += fieldWidth)
            take(line[column], line.substr(column + 1, fieldWidth - 1));
    }

    static double Metres(std::string_view value) { return WholeNumber(value) * 0.001; }

    void TakeCode(std::string_view line) {
        kind_ = Kind::None;
        label_ = false;
        previous_ = noPoint;
        ForEachField(line, [this](char key, std::string_view value) {
            if (key == 'M') code_ = drawing_.Code(Trimmed(value));
            if (key == 'G') kind_ = KindOf(WholeNumber(value.substr(0, 2)));
        });
        if (kind_ == Kind::Line) drawing_.lines.push_back({0, 0, code_});
    }

    // Lines are 12 in NEN1878 and 3 in SUF2.
    static Kind KindOf(std::int32_t geometry) {
        if (geometry == 1) return Kind::Point;
        return geometry == 12 || geometry == 3 ? Kind::Line : Kind::None;
    }

    void TakeGeometry(std::string_view line) {
        ForEachField(line, [this](char key, std::string_view value) {
            if (key == 'X') {
                east_ = Metres(value);
            } else if (key == 'Y') {
                const auto place = AddPoint(Metres(value), kind_ == Kind::Point ? code_ : std::uint16_t{0});
                const auto number = static_cast<std::int32_t>(drawing_.lines.size());
                if (previous_ != noPoint) drawing_.edges.push_back({number, previous_, place});
                previous_ = place;
            }
        });
    }

    // Of a text the first place counts; a point's placement repeats what is known.
    void TakePlacement(std::string_view line) {
        label_ = line[firstField] == 'F' && line[firstField + 3] == '1';
        if (!label_) return;
        previous_ = noPoint;
        ForEachField(line, [this](char key, std::string_view value) {
            if (key == 'X') {
                east_ = Metres(value);
            } else if (key == 'Y' && previous_ == noPoint) {
                previous_ = AddPoint(Metres(value), 0);
            } else if (key == 'K' || key == 'Q') {
                code_ = drawing_.Code(Trimmed(value));
            }
        });
    }

    void TakeText(std::string_view line) {
        const auto text = Trimmed(line.substr(6, 40));
        drawing_.labels.push_back(
            {previous_, drawing_.Keep(text), static_cast<std::uint8_t>(text.size()), 7, code_, 0});
        label_ = false;
    }

    // Adds a point named after its number and returns its place.
    std::int32_t AddPoint(double north, std::uint16_t code) {
        const auto place = static_cast<std::int32_t>(drawing_.points.size());
        Point point;
        point.east = east_;
        point.north = north;
        point.number = place + 1;
        point.code = code;
        std::array<char, 12> name{'P'};
        const auto end = std::to_chars(name.data() + 1, name.data() + name.size(), point.number).ptr;
        point.idLength = static_cast<std::uint8_t>(end - name.data());
        point.id = drawing_.Keep({name.data(), point.idLength});
        drawing_.points.push_back(point);
        return place;
    }

    static constexpr std::int32_t noPoint = -1;

    Drawing drawing_;
    Kind kind_ = Kind::None;
    std::uint16_t code_ = 0;
    bool label_ = false;  // a text record is to come
    double east_ = 0;
    std::int32_t previous_ = noPoint;
};

}  // namespace

Drawing ReadNen(const char* name) { return Reader().Read(name); }

}  // namespace korvande::floor
