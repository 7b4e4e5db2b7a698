#pragma once

#include <optional>

#include "core/Text.h"

namespace korvande {

struct DateTime {
    int year = 0;
    int month = 0;
    int day = 0;
    int hour = 0;
    int minute = 0;
    int second = 0;
};

// Local time; when the environment variable SOURCE_DATE_EPOCH holds a number of seconds, that moment in UTC.
DateTime Now();

// Whether the day stands in the calendar.
bool IsCalendarDay(int year, int month, int day) noexcept;

// yyyymmdd and yyyymm of a date.
std::string CompactDate(const DateTime& date);
std::string YearAndMonth(const DateTime& date);

// A date and a time in the system's short form: dd-mm-yyyy and hh:mm:ss when SOURCE_DATE_EPOCH is set or the user's
// locale is a plain one, otherwise the locale's own.
Text ShortDate(const DateTime& moment);
Text ShortTime(const DateTime& moment);

// A fieldwork date as a drawing keeps it: quotes are stripped and blanks trimmed; eight digits yyyymmdd become
// dd-mm-yyyy, any other text stays as it is.
std::string ConvertFieldworkDate(std::string_view text);

// The date of a drawing's fieldwork text, for a record: day-month-year, or year-month-day when the first group has four
// digits, separated by "-", "/", "." or ":"; groups behind the third are ignored. Two digits of year are 2000-2029 or
// 1930-1999, three are 200 and the last digit. Nothing when it is no date.
std::optional<DateTime> ParseFieldworkDate(std::string_view text);

// Platform: the locale's own short form of the date or the time; nothing when the user's locale is a plain one or is
// not installed.
enum class ShortForm { Date, Time };
std::optional<Text> LocaleShortForm(const DateTime& moment, ShortForm form);
DateTime SystemTime();
DateTime UtcTime(long long secondsSince1970);

}  // namespace korvande
