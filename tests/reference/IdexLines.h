#pragma once

#include <functional>
#include <string>
#include <vector>

#include "tests/reference/IdexRows.h"

namespace korvande::reference {

// Keyword tests look at the beginning of a line, in any case.
bool Starts(const std::string& line, const std::string& keyword);

// A keyword line: its first word, and what stands behind it, in capitals.
std::string KeywordOf(const std::string& line);
std::string RestOf(const std::string& line);

// The lines of an IDEX file, one after the other.
class IdexLines {
 public:
    explicit IdexLines(const std::string& file);

    char separator = ',';
    char terminator = ';';

    bool IsAtEnd() const { return next == lines.size(); }
    std::size_t Number() const { return next; }  // of the line read last

    std::string Take();     // the next line; that there is none is an error
    std::string TakeRow();  // the next one that is not empty, without blanks at its ends

    // Up to the line that is looked for, which is taken; whether there is one. Or else that is an error.
    bool Skip(const std::function<bool(const std::string&)>& isIt);
    void SkipTo(const std::string& keyword);

    // A line of which the row is the beginning, when it goes on there.
    std::string WithNextLine(const std::string& row);

    // Of the line read last, the column list, with as many lines as it takes.
    TableColumns ColumnsOfTable();

    std::vector<std::string> Split(const std::string& row) const { return FieldsOf(row, separator, terminator); }

    // The word of a line that opens a block inside a table; empty when the line is another.
    std::string BlockOf(const std::string& row) const;

    // Reads over the block that a word opened; true when its end is that of the table as well.
    bool IsEndedByBlock(const std::string& word);

 private:
    std::vector<std::string> lines;
    std::size_t next = 0;
};

}  // namespace korvande::reference
