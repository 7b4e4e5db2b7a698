#include "nensuf/RecordReader.h"

#include <algorithm>
#include <cstring>

#include "core/Text.h"
#include "core/modScreen.h"
#include "nensuf/RecordLine.h"

namespace korvande {

namespace {

constexpr std::string_view closingType = "99";
constexpr std::size_t payloadBegin = 2;
constexpr std::size_t payloadLength = 60;
constexpr std::size_t endCodeBegin = 62;
constexpr std::size_t fieldLength = 10;

bool GoesOn(const RecordReader::Record& record) {
    return record[endCodeBegin] == '0' && record[endCodeBegin + 1] == '0';
}

}  // namespace

void RecordReader::ReadFileRecord(Record& target) {
    constexpr std::size_t shortest = recordLength - 1;
    std::string_view read;
    do {
        if (!file.Next(read)) {
            target.fill(' ');
            target[0] = target[1] = '9';
            return;
        }
        line = file.LineNumber();
        StepProgress(screen, ReadUnits(file));
        if (read.size() < shortest && !IsWhiteSpace(read)) hasClosingRecord = read.starts_with(closingType);
    } while (read.size() < shortest);
    hasClosingRecord = read.starts_with(closingType);
    if (read.size() > recordLength) read = RecordOfLongLine(read);
    const std::size_t missing = LacksFirstDigit(read) ? 1 : 0;
    std::memcpy(target.data() + missing, read.data(), read.size());
    if (missing > 0 || StandsForZero(target[0])) target[0] = '0';
    hasClosingRecord = hasClosingRecord || std::equal(closingType.begin(), closingType.end(), target.begin());
}

std::string_view RecordReader::ReadRecordGroup(int mode) {
    if (hasLookAhead) {
        record = lookAhead;
    } else {
        ReadFileRecord(record);
    }
    hasLookAhead = mode == 1;
    if (mode > 0) {
        lookAhead = record;
        return {record.data(), record.size()};
    }

    std::copy_n(record.begin(), recordType.size(), recordType.begin());
    payload.assign(record.data() + payloadBegin, payloadLength);
    while (GoesOn(record)) {
        ReadFileRecord(record);
        if (!std::equal(recordType.begin(), recordType.end(), record.begin())) {
            lookAhead = record;
            hasLookAhead = true;
            break;
        }
        payload.append(record.data() + payloadBegin, payloadLength);
    }
    SplitPayload();
    return {};
}

void RecordReader::SplitPayload() {
    std::string_view rest = Trim(std::string_view(payload));
    // The last field may lack its trailing blanks; there is room for them, if need be behind the payload's end.
    const auto begin = static_cast<std::size_t>(rest.data() - payload.data());
    const std::size_t count = (rest.size() + fieldLength - 1) / fieldLength;
    payload.resize(std::max(payload.size(), begin + count * fieldLength), ' ');
    fields.clear();
    for (std::size_t i = 0; i < count; ++i) {
        const char* const field = payload.data() + begin + i * fieldLength;
        fields.push_back({*field, {field + 1, fieldLength - 1}});
    }
}

}  // namespace korvande
