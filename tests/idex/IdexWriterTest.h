#pragma once

#include <string>
#include <string_view>

#include "tests/idex/IdexTest.h"

namespace korvande::testing {

// Records for a drawing built in memory. What is not named is empty.
struct PointOf {
    TextView id{};
    double east = 0;
    double north = 0;
    double elevation = 0;
    TextView code{};
    TextView description{};
    double direction = 0;
};
void AddPoint(Drawing& drawing, const PointOf& point);
void AddLine(Drawing& drawing, TextView code, std::int32_t flags1 = 0, std::int32_t flags2 = 0);
void AddEdge(Drawing& drawing, std::int32_t line, std::int32_t start, std::int32_t end, TextView type = u"STRAIGHT");
void AddText(Drawing& drawing, std::int32_t anchor, TextView text, std::int16_t position = 1, float direction = 0);

// Opens the output of a translation in memory, with nothing in it.
void OpenMemory(Translation& translation);

// Writes the drawing of a translation into memory and gives the bytes.
std::string WriteOf(Translation& translation);

// A test that writes IDEX files.
class IdexWriterTest : public IdexTest {
 protected:
    std::string Write() { return WriteOf(translation); }

    // The same with a line feed behind each line: the whole file, and the lines between DATABASE and END DATABASE.
    std::string WriteLines();
    std::string WriteTables();
};

}  // namespace korvande::testing
