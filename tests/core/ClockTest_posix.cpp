#include <gtest/gtest.h>

#include <array>
#include <clocale>
#include <cstdio>
#include <ctime>
#include <optional>

#include "core/Clock.h"
#include "tests/support/TestFiles.h"

// Time zones and locales, which the environment chooses here.
namespace korvande::testing {

namespace {

constexpr DateTime moment = {2024, 3, 7, 9, 5, 2};

std::string AsText(const DateTime& at) {
    std::array<char, 80> text{};
    std::snprintf(text.data(), text.size(), "%d-%d-%d %d:%d:%d", at.year, at.month, at.day, at.hour, at.minute,
                  at.second);
    return text.data();
}

// The system's time in another zone, which knows nothing of time zones of its own.
std::string HoursAheadOfUtc(std::time_t hours) {
    const std::time_t there = std::time(nullptr) + hours * 3600;
    const std::tm* const parts = std::gmtime(&there);
    return AsText(
        {parts->tm_year + 1900, parts->tm_mon + 1, parts->tm_mday, parts->tm_hour, parts->tm_min, parts->tm_sec});
}

// Tests in a time zone that is five hours ahead of UTC.
class LocalTime : public ::testing::Test {
 protected:
    void SetUp() override {
        zone.emplace("TZ", "XYZ-5");
        ::tzset();
    }
    void TearDown() override {
        zone.reset();
        ::tzset();
    }

    std::optional<EnvironmentValue> zone;

    // A second may pass between two looks at the clock.
    static void ExpectNowIsLocal() {
        std::string before;
        std::string now;
        std::string after;
        do {
            before = HoursAheadOfUtc(5);
            now = AsText(Now());
            after = HoursAheadOfUtc(5);
        } while (before != after);
        EXPECT_EQ(now, before);
    }
};

TEST_F(LocalTime, NowIsLocalWithoutSourceDateEpoch) {
    const EnvironmentValue epoch("SOURCE_DATE_EPOCH", {});
    ExpectNowIsLocal();
}

TEST_F(LocalTime, ASourceDateEpochThatIsNoMomentIsNotThere) {
    for (const char* const value : {"", "x", "12x", " 12", "-1", "1.5", "253402300800", "99999999999999999999"}) {
        const EnvironmentValue epoch("SOURCE_DATE_EPOCH", value);
        ExpectNowIsLocal();
    }
}

class ShortForms : public ::testing::Test {
 protected:
    static std::string Both() { return ToUtf8(Concat(ShortDate(moment), u" ", ShortTime(moment))); }

    EnvironmentValue epoch{"SOURCE_DATE_EPOCH", {}};
    EnvironmentValue all{"LC_ALL", {}};
    EnvironmentValue time{"LC_TIME", {}};
    EnvironmentValue language{"LANG", {}};
};

constexpr const char* plainForm = "07-03-2024 09:05:02";

// The short forms of a locale as the C library has them, which are not the plain ones; the plain ones when the system
// does not have the locale.
std::string FormsOf(const char* name) {
    const locale_t locale = ::newlocale(LC_ALL_MASK, name, static_cast<locale_t>(nullptr));
    if (locale == static_cast<locale_t>(nullptr)) return plainForm;
    std::tm parts{};
    parts.tm_year = 124;
    parts.tm_mon = 2;
    parts.tm_mday = 7;
    parts.tm_wday = 4;
    parts.tm_yday = 66;
    parts.tm_hour = 9;
    parts.tm_min = 5;
    parts.tm_sec = 2;
    std::array<char, 200> text{};
    ::strftime_l(text.data(), text.size(), "%x %X", &parts, locale);
    ::freelocale(locale);
    return text.data();
}

TEST_F(ShortForms, WithoutALocaleTheyArePlain) { EXPECT_EQ(Both(), plainForm); }

TEST_F(ShortForms, InAPlainLocaleTheyArePlain) {
    for (const char* const name : {"C", "POSIX", "C.UTF-8", "C.utf8", "C.UTF8"}) {
        const EnvironmentValue chosen("LC_ALL", name);
        EXPECT_EQ(Both(), plainForm) << name;
    }
}

TEST_F(ShortForms, InAnotherLocaleTheyAreItsOwn) {
    for (const char* const variable : {"LC_ALL", "LC_TIME", "LANG"}) {
        const EnvironmentValue chosen(variable, "nl_NL.UTF-8");
        EXPECT_EQ(Both(), FormsOf("nl_NL.UTF-8")) << variable;
    }
}

TEST_F(ShortForms, InALocaleThatIsNotThereTheyArePlain) {
    const EnvironmentValue chosen("LC_ALL", "xx_XX.UTF-8");
    EXPECT_EQ(Both(), plainForm);
}

TEST_F(ShortForms, TheMoreParticularVariableDecides) {
    const EnvironmentValue forLanguage("LANG", "nl_NL.UTF-8");
    const EnvironmentValue forTime("LC_TIME", "C");
    EXPECT_EQ(Both(), plainForm);
    const EnvironmentValue forAll("LC_ALL", "nl_NL.UTF-8");
    EXPECT_EQ(Both(), FormsOf("nl_NL.UTF-8"));
    const EnvironmentValue empty("LC_ALL", "");
    EXPECT_EQ(Both(), plainForm);
}

TEST_F(ShortForms, AnotherVariableThatNamesNoLocaleDoesNotMatter) {
    const EnvironmentValue forLanguage("LANG", "xx_XX.UTF-8");
    const EnvironmentValue forTime("LC_TIME", "nl_NL.UTF-8");
    EXPECT_EQ(Both(), FormsOf("nl_NL.UTF-8"));
}

TEST_F(ShortForms, WithSourceDateEpochTheyArePlainInEveryLocale) {
    const EnvironmentValue fixed("SOURCE_DATE_EPOCH", "0");
    const EnvironmentValue chosen("LC_ALL", "nl_NL.UTF-8");
    EXPECT_EQ(Both(), plainForm);
}

}  // namespace

}  // namespace korvande::testing
