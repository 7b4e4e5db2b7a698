#pragma once

#include <cstdint>
#include <string>
#include <unordered_map>
#include <unordered_set>
#include <vector>

#include "core/modKORVANDE.h"
#include "picture/DisplayList.h"
#include "project/CodeTables.h"

namespace korvande {

struct Translation;

// Finds the codes of a picture for those of a drawing, and adds each to the list when it is met first. Nothing is
// counted in the code tables.
class PictureCodes {
 public:
    PictureCodes(Translation& translation, std::vector<PictureCode>& itsList);

    // The places in the list: of the codes of records of the translation's drawing, and of a line string without code.
    std::uint32_t CodeOf(const PointRec& point) { return CodeOf(points, Drawing::KindOf(point), point); }
    std::uint32_t CodeOf(const LineRec& line) { return CodeOf(lines, Drawing::KindOf(line), line); }
    std::uint32_t CodeOf(const TextRec& text) { return CodeOf(texts, Drawing::CodeNumber(text), text); }
    std::uint32_t BlankLineCode() { return FindOrAdd(lines, MakeFixedBytes<CodeKey::width>(TextView())); }

 private:
    using CodeBytes = FixedBytes<CodeKey::width>;

    // What is known of one table.
    struct Table {
        CodeTable* table;
        std::vector<std::uint32_t> ofNumber;  // by the drawing's number of a code: its place in the list and 1, or 0
        std::unordered_map<std::string, std::uint32_t> found{};  // places in the list, by the code at its full width
        std::unordered_set<std::string> unknowns{};  // codes that an exchange file has and the table has not
    };

    template <class Record>
    std::uint32_t CodeOf(Table& table, KeptNumber number, const Record& record) {
        std::uint32_t& place = table.ofNumber[number];
        if (place == 0) place = FindOrAdd(table, drawing.CodeBytes(record)) + 1;
        return place - 1;
    }

    std::uint32_t FindOrAdd(Table& table, const CodeBytes& code);
    PictureCode Describe(const Table& table, const CodeBytes& code) const;
    void TakeUnknowns(Translation& translation);

    const Drawing& drawing;
    std::vector<PictureCode>& list;
    bool isFromIdex;
    Table points;
    Table lines;
    Table texts;
};

}  // namespace korvande
