#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace korvande {

class IdexFile;

// Lines between tables that are none of those that are read. A block, from "NAME (" to its END, is told by its name and
// the number of its lines, any other line by its first word. Not told are empty lines, ENDs, and what goes around texts
// in every file: BOXES and PROPERTIES.
class PassedOver {
 public:
    explicit PassedOver(IdexFile& idexFile) : file(idexFile) {}

    // A trimmed line that was passed over.
    void Add(std::string_view line);

    // Closes the block that is open, if any: a table that is read begins here, or the file ends.
    void Close();

 private:
    void AddEnd(std::string_view line);

    IdexFile& file;
    std::string block;  // empty: none is open
    std::int64_t blockLine = 0;
    std::int64_t lines = 0;
};

}  // namespace korvande
