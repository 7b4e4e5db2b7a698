#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "core/LineReader.h"
#include "core/Text.h"
#include "translation/Problem.h"

// The line level of an IDEX file: lines, keyword lines, rows and blocks. Lines are trimmed of spaces and tabs. Keywords
// are met in any case; what stands in rows is put into capitals by who stores it, or before they are split when a
// letter separates fields or ends rows.
namespace korvande {

struct Translation;

// Tests a number up to which an array is to grow, given how many rows of its kind were read so far, this one included:
// error 9 for a negative one, and for one above a million that is also above ten times the rows.
void RequireArrayIndex(std::int32_t number, std::int64_t rowsRead);

// Whether a line starts with a keyword (given in capitals), whatever the line's case.
bool IsStartOf(std::string_view keyword, std::string_view line) noexcept;
inline bool StartsWith(std::string_view line, std::string_view keyword) noexcept {
    // Most lines are rows, which begin with a digit.
    return !line.empty() && ToCapital(line.front()) == keyword.front() && IsStartOf(keyword, line);
}

// What stands behind END in a line that starts with it, in capitals: the name of what ends.
std::string NameOfEnd(std::string_view line);

// A line split at its first blank: "NAME  "Kaart"" is the keyword NAME and the rest "KAART", both in capitals.
struct KeywordLine {
    std::string_view line;
    std::string_view keyword;
    std::string_view rest;
};

class IdexFile {
 public:
    IdexFile(Translation& itsTranslation, LineReader& lineReader) : translation(itsTranslation), reader(lineReader) {}

    // The next line, trimmed; false at the end of the file. It stands until the next call.
    bool TryNext(std::string_view& line);

    // The next line, trimmed; error 62 at the end of the file, for inside a table that is an error.
    std::string_view Next();

    // The next line of a table that is not empty; false at the line that starts with END.
    bool NextRow(std::string_view& row);

    // The same for the tables whose rows are split in capitals: a letter that separates or ends does so in any case.
    // The row stands until the next line is read.
    bool NextCapitalRow(std::string_view& row);

    // Gives the line read last once more.
    void TakeBack() noexcept { takenBack = true; }

    // The next line as a keyword line, in capitals; the keyword EOF at the end of the file.
    KeywordLine NextKeyword();

    // Reads on to the first line that contains the keyword; false at the end of the file.
    bool SkipToContaining(std::string_view keyword, std::string& line);

    // The name of a block that a line inside a table opens: a word, "(", names, ")", and no terminator. Empty for any
    // other line.
    std::string_view NameOfBlock(std::string_view row) const noexcept;

    // Reads over the block that a row of a table opens, to its own END, and tells so. An END of the table itself, or
    // of one around it, ends the block too and is given once more. A block with the name of another table tells that
    // the table's own END is missing. False when the row opens none.
    bool SkipNestedBlock(std::string_view row, std::string_view table);

    // Reads over the EXTRAINFO of an EDGES table, to the next line that starts with END or the end of the file.
    void SkipExtraInfo();

    // Completes a table header that holds no ")" yet with the lines that follow, as they are.
    void CompleteHeader(std::string& header);

    // What separates fields and ends rows; a letter is a capital, for so are the header's lines.
    char Separator() const noexcept { return separator; }
    char Terminator() const noexcept { return terminator; }
    void SetSeparator(char character) noexcept;
    void SetTerminator(char character) noexcept;

    // The line that was read last.
    std::int64_t Line() const noexcept { return reader.LineNumber(); }

    // Tells a problem of the row read last.
    void TellOfRow(ProblemKind kind, std::int64_t count = 1);
    void Tell(ProblemKind kind, std::string_view words, std::int64_t line, std::int64_t count = 1);

    // Tells a block that was read over, by the number of its lines.
    void TellBlock(std::string_view name, std::int64_t line, std::int64_t count);

    // Whether the line END DATABASE was met.
    bool HasEnded() const noexcept { return hasEnded; }
    void NoteEnd(std::string_view line);

    // The line of the row that was read last, or where it begins.
    std::int64_t rowLine = 0;

    // The rows of LINES and BOX_ON_POINT tables read so far.
    std::int64_t lineRows = 0;
    std::int64_t boxRows = 0;

 private:
    bool TryNextRaw(std::string_view& line);

    Translation& translation;
    LineReader& reader;
    char separator = ',';
    char terminator = ';';
    bool letters = false;  // one of them is a letter
    bool hasEnded = false;
    std::string_view current;
    bool takenBack = false;
    std::string capitals;    // the keyword line
    std::string capitalRow;  // the row read last, when letters separate or end
};

}  // namespace korvande
