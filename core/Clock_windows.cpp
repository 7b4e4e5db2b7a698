#include <windows.h>

#include <array>
#include <ctime>

#include "core/Clock.h"
#include "core/WideText_windows.h"

namespace korvande {

DateTime SystemTime() {
    SYSTEMTIME now{};
    ::GetLocalTime(&now);
    return {now.wYear, now.wMonth, now.wDay, now.wHour, now.wMinute, now.wSecond};
}

DateTime UtcTime(long long secondsSince1970) {
    const __time64_t moment = secondsSince1970;
    std::tm parts{};
    _gmtime64_s(&parts, &moment);
    return {parts.tm_year + 1900, parts.tm_mon + 1, parts.tm_mday, parts.tm_hour, parts.tm_min, parts.tm_sec};
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
