#pragma once

#include <cstdint>
#include <string_view>
#include <vector>

#include "core/FixedText.h"
#include "core/PagedArray.h"
#include "core/SparseIndex.h"
#include "core/Text.h"

// The drawing: the in-memory picture that a translation passes through. A reader empties and fills it, a writer only
// reads it. Real entries of its arrays start at index 1; element 0 is never used.
//
// The texts of its records have fixed widths, and are read and set through accessors: those of a record itself here,
// those that many records have in common through the drawing, which may keep each of them once.
namespace korvande {

struct Drawing;

// One surveyed point. East, north and height in metres (a height of 0 means none); directions in grads.
struct PointRec {
    double East;
    double North;
    double Elevation;
    double SymDir;
    std::int32_t PointNo;    // the key by which edges and texts refer to points
    std::int32_t InputLine;  // of the input, where it stands; 0: it was made

    // The surveyor's name for it, 9 characters.
    const FixedText<9>& PointID() const noexcept { return pointID; }
    void SetPointID(TextView text) noexcept { pointID = text; }
    void SetPointID(std::string_view bytes, Letters letters = Letters::AsTheyAre) noexcept {
        pointID.Assign(bytes, letters);
    }

 private:
    friend struct Drawing;
    FixedText<9> pointID;
    FixedText<7> code;
    FixedText<80> description;
};

// A line string's attributes, kept at the index of its number; numbers that never occur are blank records in between.
struct LineRec {
    std::int32_t InputLine;
    std::int32_t Flags1;
    std::int32_t Flags2;

 private:
    friend struct Drawing;
    FixedText<7> code;
    FixedText<53> description;
};

// A segment of a line string, between two points given by their index (0: a point that was never read).
struct EdgeRec {
    std::int32_t InputLine;
    std::int32_t LineNo;
    std::int32_t StartPt;
    std::int32_t EndPt;

 private:
    friend struct Drawing;
    FixedText<12> lineType;
};

// A text placed on a point. A code that begins with the character 255 holds an LKI code behind it and is not looked up.
struct TextRec {
    std::int32_t InputLine;
    std::int32_t AnchorPointNo;  // the point's number, not its index
    float HzDirection;           // of the baseline, grads
    std::int16_t AnchorPosition;

    // The text itself, 47 characters.
    const FixedText<47>& Characters() const noexcept { return characters; }
    void SetCharacters(TextView text) noexcept { characters = text; }
    void SetCharacters(std::string_view bytes) noexcept { characters.Assign(bytes); }

 private:
    friend struct Drawing;
    FixedText<7> code;
    FixedText<47> characters;
};

inline constexpr char16_t lkiCodeMark = u'\u00FF';
inline constexpr std::int16_t pointNumberAnchor = 9;  // the anchor position of a generated point-number text
inline constexpr std::int16_t heightAnchor = 5;       // and of a generated height text

struct Drawing {
    PagedArray<PointRec> Points;
    PagedArray<LineRec> Lines;  // by line number
    PagedArray<EdgeRec> Edges;
    PagedArray<TextRec> Texts;
    SparseIndex PointIndex;        // by point number: the point's index, 0 for none
    std::vector<Text> LayerNames;  // by layer number
    char IdexSeparator = ',';      // Windows-1252 bytes, as in the file
    char IdexTerminator = ';';
    Text DrawingName;
    Text DrawingDate;  // dd-mm-yyyy when it is a date

    // NOLINTBEGIN(readability-convert-member-functions-to-static): only the drawing knows where these texts are kept.

    // LISCAD codes, 7 characters.
    const FixedText<7>& Code(const PointRec& point) const noexcept { return point.code; }
    const FixedText<7>& Code(const LineRec& line) const noexcept { return line.code; }
    const FixedText<7>& Code(const TextRec& text) const noexcept { return text.code; }

    // Descriptions: of a point 80 characters, of a line string 53.
    const FixedText<80>& Description(const PointRec& point) const noexcept { return point.description; }
    const FixedText<53>& Description(const LineRec& line) const noexcept { return line.description; }

    // The line type as the file names it, 12 characters.
    const FixedText<12>& LineType(const EdgeRec& edge) const noexcept { return edge.lineType; }

    // A text in memory, or the Windows-1252 bytes of a file, into a record of this drawing or one that is to be
    // appended to it.
    template <class Record>
    void SetCode(Record& record, TextView text) noexcept {
        record.code = text;
    }
    template <class Record>
    void SetCode(Record& record, std::string_view bytes, Letters letters = Letters::AsTheyAre) noexcept {
        record.code.Assign(bytes, letters);
    }
    template <class Record>
    void SetDescription(Record& record, TextView text) noexcept {
        record.description = text;
    }
    template <class Record>
    void SetDescription(Record& record, std::string_view bytes, Letters letters = Letters::AsTheyAre) noexcept {
        record.description.Assign(bytes, letters);
    }
    void SetLineType(EdgeRec& edge, TextView text) noexcept { edge.lineType = text; }
    void SetLineType(EdgeRec& edge, std::string_view bytes, Letters letters = Letters::AsTheyAre) noexcept {
        edge.lineType.Assign(bytes, letters);
    }
    // NOLINTEND(readability-convert-member-functions-to-static)
};

// The opening step of every read: empties the arrays and the point index, sets the separator to "," and the terminator
// to ";" and clears the date.
void ResetDrawing(Drawing& drawing);

// Writes a point's PointID, trimmed, between double quotes, as Windows-1252, at most eleven bytes; returns the place
// behind it.
char* QuotedPointID(const PointRec& point, char* at) noexcept;

}  // namespace korvande
