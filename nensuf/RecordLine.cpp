#include "nensuf/RecordLine.h"

namespace korvande {

namespace {

bool EndsInEndCode(std::string_view record) noexcept { return record.ends_with("00") || record.ends_with("01"); }

}  // namespace

bool IsWhiteSpace(std::string_view line) noexcept {
    return line.find_first_not_of(" \t\v\f") == std::string_view::npos;
}

std::string_view RecordOfLongLine(std::string_view line) noexcept {
    const std::string_view last = line.substr(line.size() - recordLength);
    if (EndsInEndCode(last)) return last;
    const std::string_view first = line.substr(0, recordLength);
    const bool isRecord = EndsInEndCode(first) || first.starts_with("99");
    return isRecord && line.find_first_not_of(' ', recordLength) == std::string_view::npos ? first : last;
}

bool NextWritten(LineReader& file, std::string_view& line) {
    do {
        if (!file.Next(line)) return false;
    } while (IsWhiteSpace(line));
    return true;
}

std::optional<std::string> HeaderRecord(std::string_view line, std::string_view type) {
    if (line.starts_with(type)) return std::string(line);
    std::string record(line.size() > recordLength ? RecordOfLongLine(line) : line);
    if (LacksFirstDigit(line)) record.insert(record.begin(), '0');
    if (!record.empty() && StandsForZero(record.front())) record.front() = '0';
    if (!record.starts_with(type)) return {};
    return record;
}

bool LosesCharacters(std::string_view line) noexcept {
    if (line.size() <= recordLength) return false;
    const bool keepsFirst = RecordOfLongLine(line).data() == line.data();
    return !keepsFirst && !IsWhiteSpace(line.substr(0, line.size() - recordLength));
}

bool HeaderLosesCharacters(std::string_view line, std::string_view type) noexcept {
    if (!line.starts_with(type)) return LosesCharacters(line);
    return line.size() > recordLength && !IsWhiteSpace(line.substr(recordLength));
}

}  // namespace korvande
