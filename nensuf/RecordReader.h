#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "core/LineReader.h"
#include "core/modScreen.h"
#include "nensuf/RecordLine.h"

namespace korvande {

// A field of a record group: columns 1 and 2-10 of ten.
struct GroupField {
    char Key;
    std::string_view Value;  // nine characters, blank-padded
};

// Reads a NEN1878 or SUF2 file record by record and group by group, with one record of look-ahead.
//
// The end code "00" of a record says that the next record of the same type goes on with the payload.
class RecordReader {
 public:
    using Record = std::array<char, recordLength>;

    // The screen hears of the progress; the number of the line read last is kept in `inputLine`.
    RecordReader(LineReader& itsFile, Screen& itsScreen, std::int64_t& inputLine)
        : file(itsFile), screen(itsScreen), line(inputLine) {}

    // The next line as a record of 64 characters: lines below 63 are skipped, the others are what RecordLine.h says.
    // At the end of the file "99".
    void ReadFileRecord(Record& target);

    // Mode 0 reads the next group into the type and the fields. Mode 1 looks at the next record, which stays the next
    // one; a higher mode takes it. In those modes the record is returned, and stands until the next call.
    std::string_view ReadRecordGroup(int mode);

    // The group read last: its type (two characters) and its fields, which stand until the next group is read.
    std::string_view RecordType() const noexcept { return {recordType.data(), recordType.size()}; }
    const std::vector<GroupField>& GroupFields() const noexcept { return fields; }

    // Whether the line read last that holds more than white space begins with "99" or counts as such a record. At the
    // end it tells whether the file has a closing record, which may be too short to be read as a record.
    bool HasClosingRecord() const noexcept { return hasClosingRecord; }

    // Whether the next record is of this type (two characters).
    bool NextIs(std::string_view type) { return ReadRecordGroup(1).starts_with(type); }

 private:
    void SplitPayload();

    LineReader& file;
    Screen& screen;
    std::int64_t& line;
    std::array<char, 2> recordType{};
    std::string payload;
    std::vector<GroupField> fields;
    Record record{};  // the record being read
    Record lookAhead{};
    bool hasLookAhead = false;
    bool hasClosingRecord = false;
};

}  // namespace korvande
