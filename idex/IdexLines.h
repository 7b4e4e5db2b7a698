#pragma once

#include <string_view>

namespace korvande {

struct Drawing;
class IdexFile;
class ObjectAccount;
class Screen;

// The LINES table, with the EDGES inside it, into the drawing. It is handed the line with its keyword.
void ReadLines(Screen& screen, IdexFile& file, std::string_view keywordLine, Drawing& drawing);

// The POLYGONS table, which is accounted for and not translated.
void ReadOverPolygons(Screen& screen, IdexFile& file, std::string_view keywordLine, ObjectAccount& account);

}  // namespace korvande
