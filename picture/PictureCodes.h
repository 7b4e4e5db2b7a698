#pragma once

#include <cstdint>
#include <unordered_map>
#include <unordered_set>
#include <vector>

#include "picture/DisplayList.h"
#include "project/CodeTables.h"

namespace korvande {

struct Translation;

// Finds the codes of a picture for those of a drawing, and adds each to the list when it is met first. Nothing is
// counted in the code tables.
class PictureCodes {
 public:
    PictureCodes(Translation& translation, std::vector<PictureCode>& itsList);

    std::uint32_t PointCode(const CodeKey& code) { return CodeOf(points, code); }
    std::uint32_t LineCode(const CodeKey& code) { return CodeOf(lines, code); }
    std::uint32_t TextCode(const CodeKey& code) { return CodeOf(texts, code); }

 private:
    // What is known of one table.
    struct Table {
        CodeTable* table;
        std::unordered_map<Text, std::uint32_t> found;  // places in the list, by the code at its full width
        std::unordered_set<Text> unknowns;              // codes that an exchange file has and the table has not
        CodeKey last{};
        std::uint32_t lastFound = 0;
        bool hasLast = false;
    };

    std::uint32_t CodeOf(Table& table, const CodeKey& code);
    PictureCode Describe(const Table& table, const CodeKey& code) const;
    void TakeUnknowns(Translation& translation);

    std::vector<PictureCode>& list;
    bool isFromIdex;
    Table points;
    Table lines;
    Table texts;
};

}  // namespace korvande
