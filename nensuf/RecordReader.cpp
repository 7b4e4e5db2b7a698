#include "nensuf/RecordReader.h"

#include <algorithm>
#include <cstring>

#include "core/PlainNumbers.h"
#include "core/Text.h"
#include "nensuf/RecordLine.h"
#include "translation/Files.h"
#include "translation/Translation.h"

namespace korvande {

namespace {

constexpr std::string_view closingType = "99";
constexpr std::size_t payloadBegin = 2;
constexpr std::size_t payloadLength = 60;
constexpr std::size_t endCodeBegin = 62;

RecordEnd EndOf(const RecordReader::Record& record, std::int64_t line) {
    return {.type = {record[0], record[1]}, .code = {record[endCodeBegin], record[endCodeBegin + 1]}, .line = line};
}

// A closing record whose first digit is lost: "9" and blanks have become the type 09.
bool IsClosingWithoutDigit(const RecordReader::Record& record) {
    const std::string_view bytes(record.data(), record.size());
    return bytes.starts_with("09") && Trim(bytes.substr(payloadBegin)).empty();
}

}  // namespace

void RecordReader::ReadFileRecord(Record& target) {
    std::string_view read;
    while (NextLine(translation, file, read)) {
        if (read.size() + 1 >= recordLength) return TakeLine(read, target);
        if (!IsWhiteSpace(read)) PassShortLine(read);
    }
    lineRead = {.line = translation.inputLine, .isEnd = true};
    target.fill(' ');
    target[0] = target[1] = '9';
}

// A short "99" is the closing record when nothing follows; so is "9" where leading zeros are not written.
void RecordReader::PassShortLine(std::string_view read) {
    TellShortClosingLine();
    hasClosingRecord = read.starts_with(closingType);
    const bool mayClose = hasClosingRecord || (lacksDigits && Trim(read) == "9");
    hasClosingRecord = mayClose;
    if (mayClose) {
        shortClosingLine = translation.inputLine;
    } else {
        toldLine = translation.inputLine;
        Tell(translation, {.kind = ProblemKind::ShortLine});
    }
}

void RecordReader::TellShortClosingLine() {
    if (shortClosingLine == 0) return;
    Tell(translation, {.kind = ProblemKind::ShortLine, .line = shortClosingLine});
    shortClosingLine = 0;
}

void RecordReader::TakeLine(std::string_view read, Record& target) {
    // Nearly every line is a record as it stands, and no closing one.
    if (read.size() == recordLength && read.front() == '0' && !lacksDigits) {
        std::memcpy(target.data(), read.data(), recordLength);
        lineRead = {.line = translation.inputLine};
        if (shortClosingLine != 0) TellShortClosingLine();
        hasClosingRecord = false;
        return;
    }
    const std::string_view line = read;
    if (read.size() > recordLength) read = RecordOfLongLine(read);
    const std::size_t missing = LacksFirstDigit(read) ? 1 : 0;
    std::memcpy(target.data() + missing, read.data(), read.size());
    lacksDigits = missing > 0 || StandsForZero(target[0]);
    if (lacksDigits) target[0] = '0';
    lineRead = {.line = translation.inputLine, .isSilent = IsWhiteSpace(line)};
    if (lineRead.isSilent) return;
    TellShortClosingLine();
    if (line.size() > recordLength && LosesCharacters(line)) {
        toldLine = translation.inputLine;
        Tell(translation, {.kind = ProblemKind::LongLine});
        lineRead.isSilent = true;
    }
    lineRead.mayClose = line.starts_with(closingType) ||
                        std::equal(closingType.begin(), closingType.end(), target.begin()) ||
                        (lacksDigits && IsClosingWithoutDigit(target));
    hasClosingRecord = lineRead.mayClose;
}

std::int64_t RecordReader::LineBehindClosingRecord() {
    std::string_view read;
    while (NextLine(translation, file, read)) {
        const bool closesAgain = read.starts_with(closingType) && IsWhiteSpace(read.substr(closingType.size()));
        if (!closesAgain && !IsWhiteSpace(read)) return translation.inputLine;
    }
    return 0;
}

std::string_view RecordReader::ReadRecordGroup(int mode) {
    if (hasLookAhead) {
        record = lookAhead;
        origin = lookAheadOrigin;
    } else {
        ReadFileRecord(record);
        origin = lineRead;
    }
    hasLookAhead = mode == 1;
    if (mode > 0) {
        if (mode > 1) taken = EndOf(record, origin.line);
        lookAhead = record;
        lookAheadOrigin = origin;
        return {record.data(), record.size()};
    }

    groupOrigin = origin;
    beforeGroup = taken;
    taken = EndOf(record, origin.line);
    recordType = taken.type;
    payloadSize = 0;
    payloadLines.clear();
    AddToPayload(origin.line);
    while (taken.GoesOn()) {
        ReadFileRecord(record);
        if (record[0] != recordType[0] || record[1] != recordType[1]) {
            lookAhead = record;
            lookAheadOrigin = lineRead;
            hasLookAhead = true;
            break;
        }
        taken = EndOf(record, lineRead.line);
        AddToPayload(lineRead.line);
    }
    SplitPayload();
    return {};
}

void RecordReader::AddToPayload(std::int64_t line) {
    // The last field may lack its trailing blanks; there is room for them behind the payload's end.
    const std::size_t size = payloadSize + payloadLength + fieldLength;
    if (payload.size() < size) payload.resize(2 * size);
    std::memcpy(payload.data() + payloadSize, record.data() + payloadBegin, payloadLength);
    payloadSize += payloadLength;
    payloadLines.push_back(line);
}

void RecordReader::SplitPayload() {
    std::memset(payload.data() + payloadSize, ' ', fieldLength);
    // Whole fields at the end are often blank.
    constexpr std::string_view blankField = "          ";
    std::size_t size = payloadSize;
    while (size > 0 && std::memcmp(payload.data() + size - fieldLength, blankField.data(), fieldLength) == 0) {
        size -= fieldLength;
    }
    const std::string_view rest = Trim(std::string_view(payload.data(), size));
    const auto begin = static_cast<std::size_t>(rest.data() - payload.data());
    const std::size_t count = (rest.size() + fieldLength - 1) / fieldLength;
    if (fields.size() < count) fields.resize(2 * count);
    fieldCount = count;
    fieldsBegin = begin;
    for (std::size_t i = 0; i < count; ++i) {
        const std::size_t at = begin + i * fieldLength;
        const char* const field = payload.data() + at;
        GroupField& added = fields[i];
        added.Key = *field;
        added.Value = {field + 1, fieldLength - 1};
        added.Line = payloadLines[at / payloadLength];
        const bool isCoordinate = added.Key == 'X' || added.Key == 'Y' || added.Key == 'Z';
        added.isPlain = isCoordinate && PlainColumns(added.Value, added.plainNumber);
    }
}

}  // namespace korvande
