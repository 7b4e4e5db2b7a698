#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <string>
#include <string_view>

#include "core/Digits.h"
#include "core/RuntimeError.h"
#include "core/Text.h"
#include "translation/Mode.h"

// The records of NEN1878 and SUF2 files. A logical record begins with its two-character type and may be longer than
// the 62 columns of data that a physical line has; columns 63-64 carry the end code.
namespace korvande {

class LineWriter;
class LogBook;
struct Drawing;
struct Options;
struct OwnerRec;
struct PointRec;

// A logical record, or a field of one, while it is built: Windows-1252 bytes kept in place. The longest record, a line
// segment with all its fields, has 112.
class RecordText {
 public:
    static constexpr std::size_t capacity = 160;

    // NOLINTNEXTLINE(modernize-use-equals-default,cppcoreguidelines-pro-type-member-init): its bytes, see there
    RecordText() noexcept {}

    std::string_view View() const noexcept { return {bytes.data(), size}; }
    bool IsEmpty() const noexcept { return size == 0; }
    void Clear() noexcept { size = 0; }

    // Appends the parts one behind the other: bytes, or a text as Windows-1252. Error 9 beyond the capacity.
    template <class... Parts>
    void Put(const Parts&... parts) {
        (Append(parts), ...);
    }

    // Appends a letter and a length (metres) in whole millimetres, right-aligned in nine columns; of a longer number
    // the rightmost nine characters remain. Error 6 when it is no finite number of millimetres.
    void PutMillimetres(char letter, double metres);

 private:
    void Append(std::string_view part) { part.copy(Room(part.size()), part.size()); }
    void Append(TextView part);

    char* Room(std::size_t wanted) {
        if (wanted > capacity - size) throw RuntimeError(errors::subscriptOutOfRange);
        char* const place = bytes.data() + size;
        size += wanted;
        return place;
    }

    // Not filled before it is written: one is made for every point.
    std::array<char, capacity + roomBehindDigits> bytes;
    std::size_t size = 0;
};

// Closing flags: whether the object's group has more records.
inline constexpr int goesOn = 0;
inline constexpr int closesGroup = 1;

// A physical line as it stands in a file, with its line end.
using PhysicalLine = std::array<char, 66>;

// A record that one line holds: its type, and its data padded or cut to their columns.
PhysicalLine OneLine(Variant variant, std::string_view type, std::string_view data, int closingFlag) noexcept;

// The records of one object, put together line by line in place in the output's buffer. Records made of fields have ten
// columns a field, six fields a line; what stands behind the last of them is blank.
class RecordLines {
 public:
    static constexpr std::size_t most = 8;  // lines of an object; with all its fields an arc has 4, a symbol 6

    RecordLines(LineWriter& lineWriter, Variant itsVariant);

    // A line that was made before.
    void PutLine(const PhysicalLine& made) noexcept {
        std::memcpy(at, made.data(), made.size());
        at += made.size();
    }

    // A record of this type (two characters) begins, gets fields of ten columns each, and ends.
    void Begin(std::string_view itsType) noexcept;
    void PutFields(std::string_view fields) noexcept;
    void End(int closingFlag) noexcept;

    // The output takes what was put together.
    void Finish() noexcept;

 private:
    void BeginLine() noexcept;
    void EndLine(char endDigit) noexcept;

    LineWriter& output;
    Variant variant;
    char* begin;
    char* at;    // of the record that goes on: where its next field comes
    char* line;  // where its last line begins
    std::array<char, 2> type{};
};

// Writes the record with the tail behind it, in as many lines as it takes; of the closing flag only the last decimal
// digit counts (1 for the record that closes an object's group or a header block). Nothing is written when the record
// is empty or a bare record type. A record of 63 to 65 characters is one line and loses what is behind column 62. The
// caller empties the record, which has the tail in it now.
void WriteRecord(LineWriter& output, Variant variant, RecordText& record, std::string_view tail, int closingFlag);

// The closing record of a file.
void WriteClosingRecord(LineWriter& output);

// N (10 columns; with chkExportPointnoAsField, unless the name is blank), X (10), Y (10) and Z (10; with chkExport3D,
// unless the height is 0) of a point.
RecordText FormatCoordinates(const Options& options, const PointRec& point);

// The quality field: the last decimal digits of P, I and B in columns 4, 7 and 10.
std::string FormatQuality(Variant variant, int p, int i, int b);

// "D " and yyyymmdd of the drawing's fieldwork date. Empty when there is none; one that is no date is told in the log
// book and left out.
std::string FormatFieldworkDate(const Drawing& drawing, LogBook& log);

// The owner's source in 10 columns, blank when there is none.
std::string FormatSourceBlock(const OwnerRec& owner);

}  // namespace korvande
