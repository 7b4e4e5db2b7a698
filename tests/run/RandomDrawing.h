#pragma once

#include <cstdint>
#include <random>
#include <string>
#include <vector>

namespace korvande::testing {

// Coordinates in tenths of a millimetre, as IDEX writes them.
struct RandomVertex {
    std::int64_t east = 0;
    std::int64_t north = 0;
    std::int64_t height = 0;
};

// Numbers that are the same on every machine.
class Chance {
 public:
    explicit Chance(unsigned seed) : engine(seed) {}

    // From 0 to below the bound.
    std::size_t Below(std::size_t bound) { return engine() % bound; }
    std::int64_t Between(std::int64_t low, std::int64_t high) {
        const std::uint64_t wide = (std::uint64_t{engine()} << 32) | engine();
        return low + static_cast<std::int64_t>(wide % static_cast<std::uint64_t>(high - low + 1));
    }
    bool Once(std::size_t inSoMany) { return Below(inSoMany) == 0; }

    // A text of this many characters (Windows-1252) that begins and ends with no blank and holds none of IDEX's marks.
    std::string Characters(std::size_t length);

 private:
    std::mt19937 engine;
};

// A code of the control table below: its LISCAD code, LKI code, type and description.
struct RandomCode {
    std::string liscad;
    std::string lki;
    std::string type;
    std::string description;
};

// The codes, of which every LISCAD and LKI code occurs once in its table, and the control table that holds them.
const std::vector<RandomCode>& PointCodesOfTable();
const std::vector<RandomCode>& LineCodesOfTable();
const std::vector<RandomCode>& TextCodesOfTable();
std::string RandomTable();

// A drawing of points, lines and texts with codes of the table, unknown ones, and types that are not written.
struct RandomDrawing {
    struct Point : RandomVertex {
        std::int32_t number = 0;
        std::string name;
        std::string code;
    };
    struct Line {
        std::int32_t number = 0;
        std::string code;
    };
    struct Edge {
        std::int32_t line = 0;
        std::size_t start = 0;  // places in `points`
        std::size_t end = 0;
        std::string type;
    };
    struct Label {
        std::size_t anchor = 0;
        std::int64_t direction = 0;  // thousandths of a grad
        std::string layer;
        std::string text;
    };

    explicit RandomDrawing(unsigned seed);
    std::string AsIdex() const;

    std::vector<Point> points;
    std::vector<Line> lines;
    std::vector<Edge> edges;
    std::vector<Label> labels;
};

}  // namespace korvande::testing
