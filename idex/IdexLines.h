#pragma once

#include <string_view>

namespace korvande {

class IdexFile;
struct Translation;

// The LINES table, with the EDGES inside it, into the drawing. It is handed the line with its keyword.
void ReadLines(Translation& translation, IdexFile& file, std::string_view keywordLine);

// The POLYGONS table, which is accounted for and not translated. True when edges inside it ended it before its end.
bool ReadOverPolygons(Translation& translation, IdexFile& file, std::string_view keywordLine);

// Accounts for a polygon of the line being read, and tells it.
void AccountForPolygon(Translation& translation);

}  // namespace korvande
