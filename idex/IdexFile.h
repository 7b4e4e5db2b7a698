#pragma once

#include <cstddef>
#include <cstdint>
#include <initializer_list>
#include <string>
#include <string_view>
#include <vector>

#include "core/LineReader.h"

// The line level of an IDEX file: lines, keyword lines, table headers and rows. Lines are trimmed of spaces and tabs.
// Keywords are met in any case; what stands in rows is put into capitals by who stores it, or before they are split
// when a letter separates fields or ends rows.
namespace korvande {

class Screen;

// Tests a number up to which an array is to grow, given how many rows of its kind were read so far, this one included:
// error 9 for a negative one, and for one above a million that is also above ten times the rows.
void RequireArrayIndex(std::int32_t number, std::int64_t rowsRead);

// Whether a line starts with a keyword (given in capitals), whatever the line's case.
bool StartsWith(std::string_view line, std::string_view keyword) noexcept;

// A line split at its first blank: "NAME  "Kaart"" is the keyword NAME and the rest "KAART", both in capitals.
struct KeywordLine {
    std::string_view line;
    std::string_view keyword;
    std::string_view rest;
};

class IdexFile {
 public:
    // Each line that is read is noted by its number, and is progress on the screen.
    IdexFile(LineReader& lineReader, Screen& itsScreen, std::int64_t& lineNumber)
        : reader(lineReader), screen(itsScreen), inputLine(lineNumber) {}

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

    // Reads on to the first line that starts with (or contains) the keyword; false at the end of the file.
    bool SkipToStart(std::string_view keyword, std::string& line);
    bool SkipToContaining(std::string_view keyword);

    // Reads on behind the next line that starts with END, or to the end of the file.
    void SkipBlock();

    // Completes a table header that holds no ")" yet with the lines that follow, as they are.
    void CompleteHeader(std::string& header);

    // What separates fields and ends rows; a letter is a capital, for so are the header's lines.
    char Separator() const noexcept { return separator; }
    char Terminator() const noexcept { return terminator; }
    void SetSeparator(char character) noexcept;
    void SetTerminator(char character) noexcept;

    // The rows of LINES and BOX_ON_POINT tables read so far.
    std::int64_t lineRows = 0;
    std::int64_t boxRows = 0;

 private:
    bool TryNextRaw(std::string_view& line);

    LineReader& reader;
    Screen& screen;
    std::int64_t& inputLine;
    char separator = ',';
    char terminator = ';';
    bool letters = false;  // one of them is a letter
    std::string_view current;
    bool takenBack = false;
    std::string capitals;    // the keyword line
    std::string capitalRow;  // the row read last, when letters separate or end
};

// A table's wanted columns and where they stand in the file: columns come in any order, extra ones are passed over, a
// missing one reads as an empty field.
class IdexTable {
 public:
    // The wanted columns, in capitals, numbered from 0 in this order.
    IdexTable(IdexFile& idexFile, std::initializer_list<std::string_view> wantedColumns)
        : file(idexFile), names(wantedColumns) {}

    // Takes the column list in parentheses from the table's header, which may go on in the following lines.
    void ReadHeader(std::string_view headerLine);

    // Splits a row; Field then gives the field of a wanted column, quotes included.
    void Split(std::string_view row);
    std::string_view Field(std::size_t column) const noexcept {
        const std::size_t position = positions[column];
        return position == 0 || position > fields.size() ? std::string_view() : fields[position - 1];
    }

    // The same without its quotes: one at each end is taken away, any other becomes a single one. It stands until the
    // next call.
    std::string_view Unquoted(std::size_t column) { return WithoutQuotes(Field(column)); }
    std::string_view WithoutQuotes(std::string_view field) {
        if (!field.empty() && field.front() == '"') field.remove_prefix(1);
        if (!field.empty() && field.back() == '"') field.remove_suffix(1);
        return field.find('"') == std::string_view::npos ? field : WithSingleQuotes(field);
    }

 private:
    std::string_view WithSingleQuotes(std::string_view value);

    IdexFile& file;
    std::vector<std::string_view> names;
    std::vector<std::size_t> positions;  // from 1; 0: the file has no such column
    std::size_t lastPosition = 0;
    std::vector<std::string_view> fields;
    std::string unquoted;
};

}  // namespace korvande
