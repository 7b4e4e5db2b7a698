#pragma once

#include <charconv>
#include <cstdint>
#include <functional>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

// The drawing as plain vectors and a pool of texts, and the little that both formats need to read one.
namespace korvande::floor {

struct Point {
    double east = 0;  // metres
    double north = 0;
    double height = 0;
    double direction = 0;  // grads
    std::uint32_t id = 0;  // where it begins in the pool
    std::uint32_t description = 0;
    std::uint8_t idLength = 0;
    std::uint8_t descriptionLength = 0;
    std::uint16_t code = 0;
    std::int32_t number = 0;
};

// Start and end are places in the points.
struct Edge {
    std::int32_t line = 0;
    std::int32_t start = 0;
    std::int32_t end = 0;
};

struct Line {
    std::uint32_t flags1 = 0;
    std::uint32_t flags2 = 0;
    std::uint16_t code = 0;
};

struct Label {
    std::int32_t point = 0;
    std::uint32_t text = 0;  // where it begins in the pool
    std::uint8_t length = 0;
    std::uint8_t position = 0;
    std::uint16_t code = 0;
    float direction = 0;
};

struct Drawing {
    std::vector<Point> points;
    std::vector<Line> lines;
    std::vector<Edge> edges;
    std::vector<Label> labels;
    std::vector<char> pool;
    std::vector<std::string> codes;

    std::uint32_t Keep(std::string_view text) {
        const auto start = static_cast<std::uint32_t>(pool.size());
        pool.insert(pool.end(), text.begin(), text.end());
        return start;
    }

    std::string_view Kept(std::uint32_t start, std::uint8_t length) const { return {pool.data() + start, length}; }

    // The code's number; the one asked for last time is found at once.
    std::uint16_t Code(std::string_view code) {
        if (lastCode_ < codes.size() && codes[lastCode_] == code) return lastCode_;
        const auto found = numberOfCode_.find(code);
        if (found != numberOfCode_.end()) return lastCode_ = found->second;
        lastCode_ = static_cast<std::uint16_t>(codes.size());
        numberOfCode_.emplace(code, lastCode_);
        codes.emplace_back(code);
        return lastCode_;
    }

 private:
    // Lets the map be searched for a code without a string made of it.
    struct Hash : std::hash<std::string_view> {
        using is_transparent = void;
    };

    std::unordered_map<std::string, std::uint16_t, Hash, std::equal_to<>> numberOfCode_;
    std::uint16_t lastCode_ = 0;
};

inline std::string_view Trimmed(std::string_view text) {
    while (!text.empty() && text.front() == ' ') text.remove_prefix(1);
    while (!text.empty() && text.back() == ' ') text.remove_suffix(1);
    return text;
}

// The number behind any blanks, 0 when there is none.
inline std::int32_t WholeNumber(std::string_view text) {
    while (!text.empty() && text.front() == ' ') text.remove_prefix(1);
    std::int32_t number = 0;
    std::from_chars(text.data(), text.data() + text.size(), number);
    return number;
}

Drawing ReadIdex(const char* name);
void WriteIdex(const Drawing& drawing, const char* name);
Drawing ReadNen(const char* name);  // SUF2 too
void WriteNen(const Drawing& drawing, const char* name);

}  // namespace korvande::floor
