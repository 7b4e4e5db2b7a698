#include <windows.h>

#include <array>

#include "core/Clock.h"
#include "core/WideText_windows.h"

namespace korvande {

namespace {

DateTime FromSystem(const SYSTEMTIME& parts) {
    return {parts.wYear, parts.wMonth, parts.wDay, parts.wHour, parts.wMinute, parts.wSecond};
}

}  // namespace

DateTime SystemTime() {
    SYSTEMTIME now{};
    ::GetLocalTime(&now);
    return FromSystem(now);
}

// The system counts in units of 100 ns from 1601; the library's own calendar ends with the year 3000.
DateTime UtcTime(long long secondsSince1970) {
    constexpr long long secondsFrom1601To1970 = 11644473600;
    constexpr long long unitsInASecond = 10'000'000;
    const auto units = static_cast<unsigned long long>((secondsSince1970 + secondsFrom1601To1970) * unitsInASecond);
    const FILETIME moment{static_cast<DWORD>(units), static_cast<DWORD>(units >> 32U)};
    SYSTEMTIME parts{};
    ::FileTimeToSystemTime(&moment, &parts);
    return FromSystem(parts);
}

// Windows has no plain locale; the forms are those of the user's regional settings.
std::optional<Text> LocaleShortForm(const DateTime& moment, ShortForm form) {
    SYSTEMTIME parts{};
    parts.wYear = static_cast<WORD>(moment.year);
    parts.wMonth = static_cast<WORD>(moment.month);
    parts.wDay = static_cast<WORD>(moment.day);
    parts.wHour = static_cast<WORD>(moment.hour);
    parts.wMinute = static_cast<WORD>(moment.minute);
    parts.wSecond = static_cast<WORD>(moment.second);
    std::array<wchar_t, 128> buffer{};
    const int room = static_cast<int>(buffer.size());
    const int length =
        form == ShortForm::Date
            ? ::GetDateFormatEx(LOCALE_NAME_USER_DEFAULT, DATE_SHORTDATE, &parts, nullptr, buffer.data(), room, nullptr)
            : ::GetTimeFormatEx(LOCALE_NAME_USER_DEFAULT, 0, &parts, nullptr, buffer.data(), room);
    if (length == 0) return {};
    return FromWide(buffer.data());
}

}  // namespace korvande
