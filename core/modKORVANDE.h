#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <unordered_map>
#include <vector>

#include "core/FixedText.h"
#include "core/PagedArray.h"
#include "core/SparseIndex.h"
#include "core/Text.h"

// The drawing: the one in-memory picture that a translation passes through. A reader empties and fills it, a writer
// only reads it. One drawing exists at a time. Real entries of its arrays start at index 1; element 0 is scratch space.
namespace korvande {

// One surveyed point. East, north and height in metres (a height of 0 means none); directions in grads.
struct PointRec {
    double East;
    double North;
    double Elevation;
    double SymDir;
    std::int32_t PointNo;  // the key by which edges and texts refer to points
    FixedText<9> PointID;  // the surveyor's name for it
    FixedText<7> Code;
    FixedText<80> Description;
};

// A line string's attributes, kept at the index of its number; numbers that never occur are blank records in between.
struct LineRec {
    FixedText<7> Code;
    FixedText<53> Description;
    std::int32_t Flags1;
    std::int32_t Flags2;
};

// A segment of a line string, between two points given by their index (0: a point that was never read).
struct EdgeRec {
    std::int32_t LineNo;
    std::int32_t StartPt;
    std::int32_t EndPt;
    FixedText<12> LineType;
};

// A text placed on a point. A code that begins with the character 255 holds an LKI code behind it and is not looked up.
struct TextRec {
    std::int32_t AnchorPointNo;  // the point's number, not its index
    float HzDirection;           // of the baseline, grads
    std::int16_t AnchorPosition;
    FixedText<7> Code;
    FixedText<47> Text;
};

inline constexpr char16_t lkiCodeMark = u'\u00FF';
inline constexpr std::int16_t pointNumberAnchor = 9;  // the anchor position of a generated point-number text
inline constexpr std::int16_t heightAnchor = 5;       // and of a generated height text

// A code that a translation could not find, and how many objects carried it. The code's first character is the letter
// of the table: L, P or T.
struct UnknownCodeRec {
    FixedText<8> Code;
    std::int32_t Count;
};

// The tally of unknown codes, in order of first occurrence.
class UnknownCodeTally {
 public:
    void Count(const FixedText<8>& code);
    void Reset();

    // Puts the entries in the order of their codes.
    void Sort();
    std::vector<UnknownCodeRec>& Entries() noexcept { return entries; }

 private:
    struct Hash {
        std::size_t operator()(const FixedText<8>& code) const noexcept { return std::hash<TextView>()(code.View()); }
    };

    std::vector<UnknownCodeRec> entries;
    std::unordered_map<FixedText<8>, std::size_t, Hash> places;  // in `entries`
};

struct Drawing {
    PagedArray<PointRec> Points;
    PagedArray<LineRec> Lines;  // by line number
    PagedArray<EdgeRec> Edges;
    PagedArray<TextRec> Texts;
    SparseIndex PointIndex;        // by point number: the point's index, 0 for none
    std::vector<Text> LayerNames;  // by layer number
    UnknownCodeTally UnknownCodes;
    char IdexSeparator = ',';  // Windows-1252 bytes, as in the file
    char IdexTerminator = ';';
    Text DrawingName;
    Text DrawingDate;  // dd-mm-yyyy when it is a date
};

// The first call makes it, for which memory may run out.
Drawing& TheDrawing();

// The opening step of every read: empties the arrays, the point index and the tally of unknown codes, sets the
// separator to "," and the terminator to ";" and clears the date.
void ResetDrawing();

// Adds 1 to the tally's entry of the code, given in its fixed 8-character form (table letter and code).
void CountUnknownCode(const FixedText<8>& code);

// Trims the point's PointID in place and writes it between double quotes, as Windows-1252, at most eleven bytes;
// returns the place behind it.
char* QuotedPointID(std::int32_t pointIndex, char* at) noexcept;

}  // namespace korvande
