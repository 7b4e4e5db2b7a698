#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "core/LineReader.h"
#include "core/Numbers.h"
#include "nensuf/RecordLine.h"

namespace korvande {

struct Translation;

// A field of a record group: columns 1 and 2-10 of ten.
struct GroupField {
    char Key = ' ';
    bool isPlain = false;    // a coordinate whose number is known
    std::string_view Value;  // nine characters, blank-padded
    std::int64_t Line = 0;   // of the input, where it begins
    double plainNumber = 0;
};

// The number that the value of a field begins with; and whether all of it is a number.
inline double NumberOf(const GroupField& field) {
    return field.isPlain ? field.plainNumber : LeadingNumber(field.Value);
}
inline bool IsNumber(const GroupField& field) { return field.isPlain || IsNumber(field.Value); }

// Where a record was read, and what is known of its line.
struct RecordOrigin {
    std::int64_t line = 0;
    bool isSilent = false;  // white space, or told of already
    bool mayClose = false;  // as the last written line of the file it is the closing record
    bool isEnd = false;     // no line, but the end of the file
};

// How a record ended.
struct RecordEnd {
    std::array<char, 2> type{};
    std::array<char, 2> code{};
    std::int64_t line = 0;  // 0: there was none

    std::string_view Type() const noexcept { return {type.data(), type.size()}; }
    bool GoesOn() const noexcept { return code[0] == '0' && code[1] == '0'; }
    bool IsEndCode() const noexcept { return code[0] == '0' && (code[1] == '0' || code[1] == '1'); }
};

// Reads a NEN1878 or SUF2 file record by record and group by group, with one record of look-ahead.
//
// The end code "00" of a record says that the next record of the same type goes on with the payload.
class RecordReader {
 public:
    using Record = std::array<char, recordLength>;

    // The translation hears of the progress, of the line being read, and of lines that are lost whole or in part.
    RecordReader(Translation& itsTranslation, LineReader& itsFile) : translation(itsTranslation), file(itsFile) {}

    // The next line as a record of 64 characters: lines below 63 are skipped, the others are what RecordLine.h says.
    // At the end of the file "99".
    void ReadFileRecord(Record& target);

    // Mode 0 reads the next group into the type and the fields. Mode 1 looks at the next record, which stays the next
    // one; a higher mode takes it. In those modes the record is returned, and stands until the next call.
    std::string_view ReadRecordGroup(int mode);

    // The line of the record that was returned last.
    std::int64_t RecordLine() const noexcept { return origin.line; }

    // The group read last: its type (two characters) and its fields, which stand until the next group is read.
    std::string_view RecordType() const noexcept { return {recordType.data(), recordType.size()}; }
    std::span<const GroupField> GroupFields() const noexcept { return {fields.data(), fieldCount}; }

    // The same behind the first field, as it stands: of many groups, one behind the other, it is the same.
    std::string_view BehindFirstField() const noexcept {
        const std::size_t size = fieldCount * fieldLength;
        return fieldCount < 2 ? std::string_view()
                              : std::string_view(payload).substr(fieldsBegin + fieldLength, size - fieldLength);
    }

    // Where that group begins, and how the record before it ended.
    const RecordOrigin& GroupOrigin() const noexcept { return groupOrigin; }
    const RecordEnd& BeforeGroup() const noexcept { return beforeGroup; }

    // Whether the line read last that holds more than white space begins with "99" or counts as such a record. At the
    // end it tells whether the file has a closing record, which may be too short to be read as a record.
    bool HasClosingRecord() const noexcept { return hasClosingRecord; }

    // The line told of last, which was lost whole or in part (0: none).
    std::int64_t ToldLine() const noexcept { return toldLine; }

    // Reads on behind the closing record: the first line that holds more than white space and is no closing record
    // again, or 0.
    std::int64_t LineBehindClosingRecord();

    // Whether the next record is of this type (two characters).
    bool NextIs(std::string_view type) { return ReadRecordGroup(1).starts_with(type); }

 private:
    static constexpr std::size_t fieldLength = 10;

    void PassShortLine(std::string_view read);
    void TakeLine(std::string_view read, Record& target);
    void TellShortClosingLine();
    void AddToPayload(std::int64_t line);
    void SplitPayload();

    Translation& translation;
    LineReader& file;
    std::array<char, 2> recordType{};
    std::string payload;  // longer than what is in it
    std::size_t payloadSize = 0;
    std::vector<std::int64_t> payloadLines;  // of each record in the payload
    std::vector<GroupField> fields;          // more than the group has
    std::size_t fieldCount = 0;
    std::size_t fieldsBegin = 0;  // in the payload
    Record record{};              // the record being read
    Record lookAhead{};
    RecordOrigin lineRead;  // of the record read last from the file
    RecordOrigin origin;    // of `record`
    RecordOrigin lookAheadOrigin;
    RecordOrigin groupOrigin;
    RecordEnd taken;  // the record taken last
    RecordEnd beforeGroup;
    std::int64_t shortClosingLine = 0;  // a short line that is the closing record if no other one follows
    std::int64_t toldLine = 0;
    bool lacksDigits = false;  // the record read last was written without its leading zero
    bool hasLookAhead = false;
    bool hasClosingRecord = false;
};

}  // namespace korvande
