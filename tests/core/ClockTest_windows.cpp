#include <gtest/gtest.h>
#include <windows.h>

#include <array>
#include <string>

#include "core/Clock.h"
#include "tests/support/TestFiles.h"

// Time and forms of dates, which the user's settings choose here.
namespace korvande::testing {

namespace {

constexpr DateTime moment = {2024, 3, 7, 9, 5, 2};

// One of the user's regional settings, as long as this object lives.
class RegionalSetting {
 public:
    RegionalSetting(LCTYPE itsKind, const wchar_t* value) : kind(itsKind) {
        ::GetLocaleInfoW(LOCALE_USER_DEFAULT, kind, previous.data(), static_cast<int>(previous.size()));
        EXPECT_NE(::SetLocaleInfoW(LOCALE_USER_DEFAULT, kind, value), 0);
    }
    RegionalSetting(const RegionalSetting&) = delete;
    RegionalSetting& operator=(const RegionalSetting&) = delete;
    ~RegionalSetting() { ::SetLocaleInfoW(LOCALE_USER_DEFAULT, kind, previous.data()); }

 private:
    LCTYPE kind;
    std::array<wchar_t, 100> previous{};
};

class ShortForms : public ::testing::Test {
 protected:
    static std::string Both() { return ToUtf8(Concat(ShortDate(moment), u" ", ShortTime(moment))); }

    EnvironmentValue epoch{"SOURCE_DATE_EPOCH", {}};
};

TEST_F(ShortForms, TheyAreTheUsersOwn) {
    const RegionalSetting date(LOCALE_SSHORTDATE, L"d/M/yyyy");
    const RegionalSetting time(LOCALE_STIMEFORMAT, L"H.mm.ss");
    EXPECT_EQ(Both(), "7/3/2024 9.05.02");
    const RegionalSetting otherDate(LOCALE_SSHORTDATE, L"yyyy-MM-dd");
    EXPECT_EQ(Both(), "2024-03-07 9.05.02");
}

TEST_F(ShortForms, WithSourceDateEpochTheyArePlain) {
    const RegionalSetting date(LOCALE_SSHORTDATE, L"d/M/yyyy");
    const EnvironmentValue fixed("SOURCE_DATE_EPOCH", "0");
    EXPECT_EQ(Both(), "07-03-2024 09:05:02");
}

TEST(LocalTime, NowIsTheSystemsLocalTime) {
    const EnvironmentValue epoch("SOURCE_DATE_EPOCH", {});
    SYSTEMTIME before{};
    SYSTEMTIME after{};
    DateTime now;
    do {
        ::GetLocalTime(&before);
        now = Now();
        ::GetLocalTime(&after);
    } while (before.wSecond != after.wSecond);
    EXPECT_EQ(now.year, before.wYear);
    EXPECT_EQ(now.month, before.wMonth);
    EXPECT_EQ(now.day, before.wDay);
    EXPECT_EQ(now.hour, before.wHour);
    EXPECT_EQ(now.minute, before.wMinute);
    EXPECT_EQ(now.second, before.wSecond);
}

}  // namespace

}  // namespace korvande::testing
