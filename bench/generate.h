#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <string>
#include <string_view>
#include <vector>

// Invented drawings of any size for the benchmarks. The same options give the same drawing, byte for
// byte, with every compiler and on every machine.
namespace korvande::bench {

// tableRows counts the ordinary rows of the three code tables together.
struct GeneratorOptions {
    std::int64_t objects = 1000;
    std::uint64_t seed = 1878;
    int tableRows = 300;
};

constexpr int minTableRows = 6;
constexpr int maxTableRows = 20'000;

struct CodeRow {
    std::string liscad;
    std::string lki;
    std::string type;  // empty in the texts table
    std::string description;
    int p = 0;
    int i = 0;
    int b = 0;
};

// Row 0 of the points table is the blank code of line vertices and text anchors, a DUMMY.
struct CodeTables {
    std::vector<CodeRow> points;
    std::vector<CodeRow> lines;
    std::vector<CodeRow> texts;
};

// Splits the rows evenly over the three tables. LISCAD and LKI codes are unique in their table. Throws
// std::invalid_argument for a number of rows outside minTableRows..maxTableRows.
CodeTables MakeCodeTables(int tableRows);

enum class ObjectKind { LineString, Point, Label };

// Whole millimetres in the national grid; the height is never 0.
struct Vertex {
    std::int32_t east = 0;
    std::int32_t north = 0;
    std::int32_t height = 0;
};

struct DrawingObject {
    ObjectKind kind = ObjectKind::Point;
    std::size_t row = 0;  // its code's row in the table of its kind
    int vertexCount = 0;  // 2..12 for a line string, else 1
    std::array<Vertex, 12> vertices;
    std::int32_t direction = 0;  // of a point's symbol or a label, in thousandths of a grad
    std::string_view text;       // of a label, in Windows-1252
};

// SplitMix64. The standard's distributions may differ from library to library, so numbers are scaled here.
class Random {
 public:
    explicit Random(std::uint64_t seed) : state_(seed) {}
    // A number from 0 to limit - 1.
    std::uint32_t Below(std::uint32_t limit);

 private:
    std::uint64_t state_;
};

// Yields the drawing's objects in order: about 80 % line strings, 10 % points, 10 % labels. A format
// that needs several passes makes a new stream for each of them, so no drawing is ever held in memory.
class ObjectStream {
 public:
    ObjectStream(const GeneratorOptions& options, const CodeTables& tables);
    // False when all objects have been given; the object is then left as it is.
    bool Next(DrawingObject& object);

 private:
    void PlaceFirstVertex(DrawingObject& object);
    void FillLineString(DrawingObject& object);

    Random random_;
    std::int64_t left_;
    std::uint32_t pointRows_;
    std::uint32_t lineRows_;
    std::uint32_t textRows_;
};

struct DrawingCounts {
    std::int64_t points = 0;
    std::int64_t lineStrings = 0;
    std::int64_t edges = 0;
    std::int64_t texts = 0;
};

// Writes the drawing as an IDEX file. A write error is left in the file's error mark for the caller.
DrawingCounts WriteIdexDrawing(const GeneratorOptions& options, std::FILE* file);

// The same drawing as a NEN1878 or a SUF2 file: a group for every object, of line strings too. Heights and
// directions, which these formats keep elsewhere or not at all, and what texts have beyond 40 characters are left out.
DrawingCounts WriteNenDrawing(const GeneratorOptions& options, std::FILE* file);
DrawingCounts WriteSufDrawing(const GeneratorOptions& options, std::FILE* file);

// The IDEX file as a text in memory.
std::string IdexDrawing(const GeneratorOptions& options);

// A control table file that knows every code of a drawing with the same number of rows.
std::string ControlTable(int tableRows);

}  // namespace korvande::bench
