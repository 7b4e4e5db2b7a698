#pragma once

#include <optional>
#include <string>
#include <vector>

namespace korvande::reference {

struct Field {
    char letter = ' ';
    std::string value;  // the nine characters behind it; fewer at the end of a group
};

// Records of one type, one behind the other.
struct Group {
    std::string type;
    std::vector<Field> fields;
};

// The lines of an exchange file as records and groups.
class Records {
 public:
    explicit Records(std::vector<std::string> fileLines);

    // The header's lines; empty when there is none of this type.
    std::string TakeHeader(const std::string& type);

    std::string Take();  // the next record, 64 characters
    std::string Look();  // the same, and it stays
    Group TakeGroup();

    std::size_t LineNumber() const { return next; }  // of the line read last

 private:
    std::string Read();
    bool IsClosing(const std::string& line) const;

    std::vector<std::string> lines;
    std::size_t next = 0;
    std::optional<std::string> ahead;
};

}  // namespace korvande::reference
