#include "core/Clock.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cstdlib>
#include <string_view>
#include <utility>

#include "core/Picture.h"
#include "core/modStrings.h"

namespace korvande {

namespace {

std::optional<long long> SourceDateEpoch() {
    const char* const value = std::getenv("SOURCE_DATE_EPOCH");
    if (value == nullptr) return {};
    const std::string_view text(value);
    constexpr long long lastMoment = 253402300799;  // the end of the year 9999
    long long seconds = 0;
    const auto [end, problem] = std::from_chars(text.data(), text.data() + text.size(), seconds);
    if (problem != std::errc() || end != text.data() + text.size()) return {};
    if (seconds < 0 || seconds > lastMoment) return {};
    return seconds;
}

std::string Digits(int number, std::string_view picture) { return FormatPicture(number, picture); }

// The digits of a date's group as a number, -1 when it is no whole number.
int GroupNumber(std::string_view group) {
    group = Trim(group);
    int number = -1;
    const auto [end, problem] = std::from_chars(group.data(), group.data() + group.size(), number);
    return problem == std::errc() && end == group.data() + group.size() ? number : -1;
}

// A year from a group of one to four digits, -1 when it is none.
int YearOf(std::string_view group) {
    group = Trim(group);
    const int number = GroupNumber(group);
    if (number < 0) return -1;
    switch (group.size()) {
        case 2:
            return number <= 29 ? 2000 + number : 1900 + number;
        case 3:
            return 2000 + number % 10;
        case 4:
            return number;
        default:
            return -1;
    }
}

}  // namespace

DateTime Now() {
    const auto fixed = SourceDateEpoch();
    return fixed ? UtcTime(*fixed) : SystemTime();
}

bool IsCalendarDay(int year, int month, int day) noexcept {
    constexpr std::array<int, 13> days = {0, 31, 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};
    if (year < 1 || month < 1 || month > 12 || day < 1) return false;
    const bool leap = (year % 4 == 0 && year % 100 != 0) || year % 400 == 0;
    return day <= days[static_cast<std::size_t>(month)] + (month == 2 && leap ? 1 : 0);
}

std::string CompactDate(const DateTime& date) { return YearAndMonth(date) + Digits(date.day, "00"); }

std::string YearAndMonth(const DateTime& date) { return Digits(date.year, "0000") + Digits(date.month, "00"); }

Text ShortDate(const DateTime& moment) {
    if (!SourceDateEpoch()) {
        if (auto local = LocaleShortForm(moment, ShortForm::Date)) return *local;
    }
    return Concat(Digits(moment.day, "00"), "-", Digits(moment.month, "00"), "-", Digits(moment.year, "0000"));
}

Text ShortTime(const DateTime& moment) {
    if (!SourceDateEpoch()) {
        if (auto local = LocaleShortForm(moment, ShortForm::Time)) return *local;
    }
    return Concat(Digits(moment.hour, "00"), ":", Digits(moment.minute, "00"), ":", Digits(moment.second, "00"));
}

std::string ConvertFieldworkDate(std::string_view text) {
    const std::string stripped = StripQuotes(text);
    std::string date(Trim(stripped));
    const bool eightDigits = date.size() == 8 && date.find_first_not_of("0123456789") == std::string::npos;
    if (!eightDigits) return date;
    return date.substr(6, 2) + "-" + date.substr(4, 2) + "-" + date.substr(0, 4);
}

std::optional<DateTime> ParseFieldworkDate(std::string_view text) {
    constexpr std::string_view separators = "-/.:";
    std::array<std::string_view, 3> groups;
    for (std::string_view& group : groups) {
        const std::size_t end = std::min(text.find_first_of(separators), text.size());
        group = text.substr(0, end);
        text.remove_prefix(std::min(end + 1, text.size()));
    }
    if (Trim(groups[0]).size() == 4) std::swap(groups[0], groups[2]);
    DateTime date;
    date.day = GroupNumber(groups[0]);
    date.month = GroupNumber(groups[1]);
    date.year = YearOf(groups[2]);
    if (!IsCalendarDay(date.year, date.month, date.day)) return {};
    return date;
}

}  // namespace korvande
