#include "core/Clock.h"

#include <gtest/gtest.h>

#include <array>

#include "tests/support/TestFiles.h"

namespace korvande::testing {

namespace {

constexpr DateTime moment = {2024, 3, 7, 9, 5, 2};

TEST(Calendar, ADayStandsInItOrNot) {
    EXPECT_TRUE(IsCalendarDay(2024, 1, 31));
    EXPECT_TRUE(IsCalendarDay(2024, 2, 29));
    EXPECT_TRUE(IsCalendarDay(2000, 2, 29));
    EXPECT_TRUE(IsCalendarDay(1, 1, 1));
    EXPECT_TRUE(IsCalendarDay(9999, 12, 31));
    EXPECT_FALSE(IsCalendarDay(2023, 2, 29));
    EXPECT_FALSE(IsCalendarDay(1900, 2, 29));
    EXPECT_FALSE(IsCalendarDay(2024, 2, 30));
    EXPECT_FALSE(IsCalendarDay(2024, 4, 31));
    EXPECT_FALSE(IsCalendarDay(2024, 13, 1));
    EXPECT_FALSE(IsCalendarDay(2024, 0, 1));
    EXPECT_FALSE(IsCalendarDay(2024, -1, 1));
    EXPECT_FALSE(IsCalendarDay(2024, 1, 0));
    EXPECT_FALSE(IsCalendarDay(2024, 1, -1));
    EXPECT_FALSE(IsCalendarDay(2024, 1, 32));
    EXPECT_FALSE(IsCalendarDay(0, 1, 1));
    int days = 0;
    for (int month = 1; month <= 12; ++month) {
        for (int day = 1; day <= 40; ++day) days += IsCalendarDay(2023, month, day) ? 1 : 0;
    }
    EXPECT_EQ(days, 365);
}

TEST(Clock, CompactDatesHaveLeadingZeros) {
    EXPECT_EQ(CompactDate(moment), "20240307");
    EXPECT_EQ(YearAndMonth(moment), "202403");
    EXPECT_EQ(CompactDate({987, 12, 31, 0, 0, 0}), "09871231");
}

std::string AsText(const DateTime& at) {
    std::array<char, 80> text{};
    std::snprintf(text.data(), text.size(), "%d-%d-%d %d:%d:%d", at.year, at.month, at.day, at.hour, at.minute,
                  at.second);
    return text.data();
}

TEST(Clock, SourceDateEpochIsTheMomentInUtc) {
    const auto now = [](const char* seconds) {
        const EnvironmentValue epoch("SOURCE_DATE_EPOCH", seconds);
        return AsText(Now());
    };
    EXPECT_EQ(now("0"), "1970-1-1 0:0:0");
    EXPECT_EQ(now("1709802302"), "2024-3-7 9:5:2");
    EXPECT_EQ(now("253402300799"), "9999-12-31 23:59:59");
}

TEST(FieldworkDate, EightDigitsBecomeDayMonthYear) {
    EXPECT_EQ(ConvertFieldworkDate("20240307"), "07-03-2024");
    EXPECT_EQ(ConvertFieldworkDate("  \"20240307\" "), "07-03-2024");
    EXPECT_EQ(ConvertFieldworkDate("\" 20240307 \""), "07-03-2024");
}

TEST(FieldworkDate, AnyOtherTextStaysAsItIs) {
    EXPECT_EQ(ConvertFieldworkDate("07-03-2024"), "07-03-2024");
    EXPECT_EQ(ConvertFieldworkDate(" \"7 maart\" "), "7 maart");
    EXPECT_EQ(ConvertFieldworkDate("2024030"), "2024030");
    EXPECT_EQ(ConvertFieldworkDate("202403071"), "202403071");
    EXPECT_EQ(ConvertFieldworkDate("2024030a"), "2024030a");
    EXPECT_EQ(ConvertFieldworkDate("-2024030"), "-2024030");
    EXPECT_EQ(ConvertFieldworkDate(""), "");
    EXPECT_EQ(ConvertFieldworkDate("\""), "");
}

TEST(FieldworkDate, ADateIsReadForARecord) {
    struct Row {
        const char* text;
        int year;
        int month;
        int day;
    };
    constexpr Row rows[] = {
        {"07-03-2024", 2024, 3, 7},
        {"7-3-2024", 2024, 3, 7},
        {"07/03/2024", 2024, 3, 7},
        {"07.03.2024", 2024, 3, 7},
        {"07:03:2024", 2024, 3, 7},
        {"07-03/2024", 2024, 3, 7},
        {" 7 - 3 - 2024 ", 2024, 3, 7},
        {"2024-03-07", 2024, 3, 7},
        {"2024/3/7", 2024, 3, 7},
        {" 2024 - 3 - 7 ", 2024, 3, 7},
        {"07-03-2024/10:20:30.0", 2024, 3, 7},
        {"2024-03-07:10:20", 2024, 3, 7},
        {"07-03-00", 2000, 3, 7},
        {"07-03-29", 2029, 3, 7},
        {"07-03-30", 1930, 3, 7},
        {"07-03-99", 1999, 3, 7},
        {"07-03-104", 2004, 3, 7},
        {"07-03-024", 2004, 3, 7},
        {"29-02-2024", 2024, 2, 29},
        {"0987-12-31", 987, 12, 31},
    };
    for (const Row& row : rows) {
        const auto date = ParseFieldworkDate(row.text);
        ASSERT_TRUE(date.has_value()) << row.text;
        EXPECT_EQ(date->year, row.year) << row.text;
        EXPECT_EQ(date->month, row.month) << row.text;
        EXPECT_EQ(date->day, row.day) << row.text;
    }
}

TEST(FieldworkDate, WhatIsNoDateIsNone) {
    for (const char* const text : {"",
                                   " ",
                                   "x",
                                   "20240307",
                                   "07-03",
                                   "07-03-",
                                   "07--2024",
                                   "-07-03-2024",
                                   "07-03-4",
                                   "07-03-20244",
                                   "29-02-2023",
                                   "31-04-2024",
                                   "00-03-2024",
                                   "07-13-2024",
                                   "07-00-2024",
                                   "07-03-0000",
                                   "7 maart 2024",
                                   "a-b-c",
                                   "07-03-2x24",
                                   "7,5-3-2024",
                                   "07 03 2024",
                                   "07-03-2024 10:20",
                                   "2024-03-2024",
                                   "+7-03-2024",
                                   "99999999999-03-2024"}) {
        EXPECT_FALSE(ParseFieldworkDate(text).has_value()) << text;
    }
}

}  // namespace

}  // namespace korvande::testing
