#pragma once

#include <cstdint>
#include <string_view>
#include <vector>

#include "core/FixedBytes.h"
#include "core/FixedText.h"
#include "core/KeptTexts.h"
#include "core/ObjectSources.h"
#include "core/PagedArray.h"
#include "core/SparseIndex.h"
#include "core/Text.h"

// The drawing: the in-memory picture that a translation passes through. A reader empties and fills it, a writer only
// reads it. Real entries of its arrays start at index 1; element 0 is never used.
//
// A drawing has very many records, so they are small: their texts have fixed widths and are kept as Windows-1252 bytes,
// and what many of them have in common is kept once by the drawing and known by its number. Texts are read and set
// through accessors: those of a record itself here, the others through the drawing. Each can be had in 16-bit
// characters or, where every record is gone through, as the bytes that it is.
namespace korvande {

struct Drawing;

// A LISCAD code and the description that goes with it, as many points or line strings have them together.
template <std::size_t DescriptionWidth>
struct CodeAndDescription {
    FixedBytes<7> code;
    FixedBytes<DescriptionWidth> description;

    friend bool operator==(const CodeAndDescription&, const CodeAndDescription&) = default;
};
using PointKind = CodeAndDescription<80>;
using LineKind = CodeAndDescription<53>;
using KeptNumber = std::uint32_t;

// One surveyed point. East, north and height in metres (a height of 0 means none); directions in grads.
struct PointRec {
    double East;
    double North;
    double Elevation;
    double SymDir;
    std::int32_t PointNo;    // the key by which edges and texts refer to points
    std::int32_t InputLine;  // of the input, where it stands; 0: it was made

    // The surveyor's name for it, 9 characters.
    FixedText<9> PointID() const noexcept { return pointID.Wide(); }
    const FixedBytes<9>& PointIDBytes() const noexcept { return pointID; }
    void SetPointID(TextView text) noexcept { pointID.Assign(text); }
    void SetPointID(std::string_view bytes, Letters letters = Letters::AsTheyAre) noexcept {
        pointID.Assign(bytes, letters);
    }

 private:
    friend struct Drawing;
    KeptNumber kind;
    FixedBytes<9> pointID;
};

// A line string's attributes, kept at the index of its number; numbers that never occur are blank records in between.
struct LineRec {
    std::int32_t InputLine;
    std::int32_t Flags1;
    std::int32_t Flags2;

 private:
    friend struct Drawing;
    KeptNumber kind;
};

// A segment of a line string, between two points given by their index (0: a point that was never read).
struct EdgeRec {
    std::int32_t InputLine;
    std::int32_t LineNo;
    std::int32_t StartPt;
    std::int32_t EndPt;

 private:
    friend struct Drawing;
    KeptNumber lineType;
};

// A text placed on a point. A code that begins with the character 255 holds an LKI code behind it and is not looked up.
struct TextRec {
    std::int32_t InputLine;
    std::int32_t AnchorPointNo;  // the point's number, not its index
    float HzDirection;           // of the baseline, grads
    std::int16_t AnchorPosition;

    // The text itself, 47 characters.
    static constexpr std::size_t longest = 47;
    FixedText<longest> Characters() const noexcept { return characters.Wide(); }
    const FixedBytes<longest>& CharacterBytes() const noexcept { return characters; }
    void SetCharacters(TextView text) noexcept { characters.Assign(text); }
    void SetCharacters(std::string_view bytes) noexcept { characters.Assign(bytes); }

 private:
    friend struct Drawing;
    KeptNumber code;
    FixedBytes<longest> characters;
};

inline constexpr char lkiCodeMark = '\xFF';
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

    // Of the objects of a NEN1878/SUF2 file, by their lines of the input.
    ObjectSources Sources;

    // What its records have in common. A number that was never set is 0, of a text that was never filled.
    KeptTexts<PointKind> PointKinds;
    KeptTexts<LineKind> LineKinds;
    KeptTexts<FixedBytes<12>> LineTypes;
    KeptTexts<FixedBytes<7>> TextCodes;

    static KeptNumber KindOf(const PointRec& point) noexcept { return point.kind; }
    static KeptNumber KindOf(const LineRec& line) noexcept { return line.kind; }
    static KeptNumber LineTypeNumber(const EdgeRec& edge) noexcept { return edge.lineType; }
    static KeptNumber CodeNumber(const TextRec& text) noexcept { return text.code; }
    static void SetKind(PointRec& point, KeptNumber kind) noexcept { point.kind = kind; }
    static void SetKind(LineRec& line, KeptNumber kind) noexcept { line.kind = kind; }
    static void SetLineTypeNumber(EdgeRec& edge, KeptNumber lineType) noexcept { edge.lineType = lineType; }
    static void SetCodeNumber(TextRec& text, KeptNumber code) noexcept { text.code = code; }

    // LISCAD codes, 7 characters.
    const FixedBytes<7>& CodeBytes(const PointRec& point) const noexcept { return PointKinds[point.kind].code; }
    const FixedBytes<7>& CodeBytes(const LineRec& line) const noexcept { return LineKinds[line.kind].code; }
    const FixedBytes<7>& CodeBytes(const TextRec& text) const noexcept { return TextCodes[text.code]; }
    template <class Record>
    FixedText<7> Code(const Record& record) const noexcept {
        return CodeBytes(record).Wide();
    }

    // Descriptions: of a point 80 characters, of a line string 53.
    const FixedBytes<80>& DescriptionBytes(const PointRec& point) const noexcept {
        return PointKinds[point.kind].description;
    }
    const FixedBytes<53>& DescriptionBytes(const LineRec& line) const noexcept {
        return LineKinds[line.kind].description;
    }
    FixedText<80> Description(const PointRec& point) const noexcept { return DescriptionBytes(point).Wide(); }
    FixedText<53> Description(const LineRec& line) const noexcept { return DescriptionBytes(line).Wide(); }

    // The line type as the file names it, 12 characters.
    const FixedBytes<12>& LineTypeBytes(const EdgeRec& edge) const noexcept { return LineTypes[edge.lineType]; }
    FixedText<12> LineType(const EdgeRec& edge) const noexcept { return LineTypeBytes(edge).Wide(); }

    // Put a text into a record of this drawing, or into one that is to be appended to it: a text in memory, or the
    // Windows-1252 bytes of a file and what becomes of their letters.
    template <class Record, class... Written>
    void SetCode(Record& record, const Written&... text) {
        auto kind = KindsOf(record)[record.kind];
        kind.code.Assign(text...);
        record.kind = KindsOf(record).NumberOf(kind);
    }
    template <class... Written>
    void SetCode(TextRec& record, const Written&... text) {
        FixedBytes<7> code{};
        code.Assign(text...);
        record.code = TextCodes.NumberOf(code);
    }
    template <class Record, class... Written>
    void SetDescription(Record& record, const Written&... text) {
        auto kind = KindsOf(record)[record.kind];
        kind.description.Assign(text...);
        record.kind = KindsOf(record).NumberOf(kind);
    }
    template <class... Written>
    void SetLineType(EdgeRec& edge, const Written&... text) {
        FixedBytes<12> lineType{};
        lineType.Assign(text...);
        edge.lineType = LineTypes.NumberOf(lineType);
    }

 private:
    KeptTexts<PointKind>& KindsOf(const PointRec&) noexcept { return PointKinds; }
    KeptTexts<LineKind>& KindsOf(const LineRec&) noexcept { return LineKinds; }
};

// The opening step of every read: empties the arrays and the point index, sets the separator to "," and the terminator
// to ";" and clears the date.
void ResetDrawing(Drawing& drawing);

}  // namespace korvande
