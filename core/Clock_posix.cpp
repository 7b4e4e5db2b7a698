#include <array>
#include <clocale>
#include <cstdlib>
#include <ctime>
#include <string_view>

#include "core/Clock.h"

namespace korvande {

namespace {

DateTime FromSystem(const std::tm& parts) {
    return {parts.tm_year + 1900, parts.tm_mon + 1, parts.tm_mday, parts.tm_hour, parts.tm_min, parts.tm_sec};
}

// The name of the locale that the user's environment chooses for times.
const char* TimeLocaleName() {
    for (const char* const variable : {"LC_ALL", "LC_TIME", "LANG"}) {
        const char* const value = std::getenv(variable);
        if (value != nullptr && *value != '\0') return value;
    }
    return "C";
}

// C.UTF-8 has several spellings.
bool IsPlain(std::string_view locale) { return locale == "C" || locale == "POSIX" || locale.starts_with("C."); }

}  // namespace

DateTime SystemTime() {
    const std::time_t now = std::time(nullptr);
    std::tm parts{};
    localtime_r(&now, &parts);
    return FromSystem(parts);
}

DateTime UtcTime(long long secondsSince1970) {
    const auto moment = static_cast<std::time_t>(secondsSince1970);
    std::tm parts{};
    gmtime_r(&moment, &parts);
    return FromSystem(parts);
}

std::optional<Text> LocaleShortForm(const DateTime& moment, ShortForm form) {
    const char* const name = TimeLocaleName();
    if (IsPlain(name)) return {};
    const locale_t locale = newlocale(LC_TIME_MASK | LC_CTYPE_MASK, name, static_cast<locale_t>(nullptr));
    if (locale == static_cast<locale_t>(nullptr)) return {};
    std::tm parts{};
    parts.tm_year = moment.year - 1900;
    parts.tm_mon = moment.month - 1;
    parts.tm_mday = moment.day;
    parts.tm_hour = moment.hour;
    parts.tm_min = moment.minute;
    parts.tm_sec = moment.second;
    parts.tm_isdst = -1;
    std::mktime(&parts);
    std::array<char, 128> buffer{};
    const std::size_t length =
        strftime_l(buffer.data(), buffer.size(), form == ShortForm::Date ? "%x" : "%X", &parts, locale);
    freelocale(locale);
    if (length == 0) return {};
    return FromUtf8({buffer.data(), length});
}

}  // namespace korvande
