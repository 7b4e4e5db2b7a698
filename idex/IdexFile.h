#pragma once

#include <cstddef>
#include <cstdint>
#include <initializer_list>
#include <string>
#include <string_view>
#include <vector>

#include "core/FixedText.h"
#include "core/LineReader.h"

// The line level of an IDEX file: lines, keyword lines, table headers and rows. Lines are trimmed of spaces and tabs.
// Keywords are met in any case; what stands in rows is put into capitals by who stores it.
namespace korvande {

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
    explicit IdexFile(LineReader& lineReader) : reader(lineReader) {}

    // The next line, trimmed; false at the end of the file. It stands until the next call.
    bool TryNext(std::string_view& line);

    // The next line, trimmed; error 62 at the end of the file, for inside a table that is an error.
    std::string_view Next();

    // The next line of a table that is not empty; false at the line that starts with END.
    bool NextRow(std::string_view& row);

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

    char separator = ',';
    char terminator = ';';

    // The rows of LINES tables read so far.
    std::int64_t lineRows = 0;

 private:
    bool TryNextRaw(std::string_view& line);

    LineReader& reader;
    std::string_view current;
    bool takenBack = false;
    std::string capitals;  // the keyword line
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

 private:
    IdexFile& file;
    std::vector<std::string_view> names;
    std::vector<std::size_t> positions;  // from 1; 0: the file has no such column
    std::size_t lastPosition = 0;
    std::vector<std::string_view> fields;
};

// A field without its quotes (see StripQuotes) into a fixed-width text.
enum class Letters { AsTheyAre, Capitals };
template <std::size_t N>
void AssignUnquoted(FixedText<N>& text, std::string_view field, Letters letters = Letters::Capitals) {
    if (!field.empty() && field.front() == '"') field.remove_prefix(1);
    if (!field.empty() && field.back() == '"') field.remove_suffix(1);
    text.Assign(field, letters == Letters::Capitals);
    if (field.find('"') == std::string_view::npos) return;
    for (char16_t& character : text.characters) {
        if (character == u'"') character = u'\'';
    }
}

// The tables of the database. Each is handed the line with its keyword.
void ReadPoints(IdexFile& file, std::string_view keywordLine);
void ReadLines(IdexFile& file, std::string_view keywordLine);
void ReadOverPolygons(IdexFile& file, std::string_view keywordLine);
void ReadTexts(IdexFile& file);

// "D:\DEBUG_LINES.TXT" and "D:\DEBUG_EDGES.TXT": the lines and edges of the drawing as read. Nothing is said when they
// cannot be written, for the drawing is complete.
void WriteDiagnosticFiles();

}  // namespace korvande
