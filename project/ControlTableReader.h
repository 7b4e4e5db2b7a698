#pragma once

#include <string>
#include <string_view>

#include "core/LineReader.h"

namespace korvande {

struct Project;
class Screen;

// What a file tells of itself: whether it is a control table at all, and a whole one.
struct ControlTableSigns {
    bool hasKnownSection = false;  // [End] is one
    bool hasEnd = false;
};

// Reads a control table over a reset project; errors of the reading escape.
ControlTableSigns ReadControlTable(Screen& screen, LineReader& file, Project& project);

// The next key and value of a control table, all in capitals. `section` is kept between calls; it becomes "END" at the
// end of the data, with an empty key and value.
void ReadINI(Screen& screen, LineReader& file, std::string& section, std::string& key, std::string& value);

// True exactly for "1", "TRUE" and "YES".
void INI_TrueFalse(std::string_view value, bool& result) noexcept;

}  // namespace korvande
