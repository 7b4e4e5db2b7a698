#pragma once

#include <string_view>

namespace korvande {

class IdexFile;
struct Translation;

// The POINTS table into the drawing, with the generated texts that the options ask for. It is handed the line with its
// keyword.
void ReadPoints(Translation& translation, IdexFile& file, std::string_view keywordLine);

}  // namespace korvande
