#include "host/modRegistry.h"

#include <windows.h>

#include "tests/support/TestRegistry.h"

// What shows only in the registry of the system.
namespace korvande::testing {

namespace {

class SystemRegistry : public ::testing::Test {
 protected:
    TestFolder folder;
    TestRegistry registry{folder};
};

TEST_F(SystemRegistry, SubkeysComeInTheOrderOfTheirNames) {
    RegKey list = 0;
    for (const TextView name : {u"RELEASE", u"5.1", u"4.0"}) TestRegistry::AddKey(Concat(u"Lijst\\", name));
    ASSERT_TRUE(RegOpenSubKey(hives::currentUser, u"Lijst", list));
    std::vector<Text> names;
    Text name;
    for (std::uint32_t i = 0; RegEnumSubKey(list, i, name) == regcodes::success; ++i) names.push_back(name);
    RegCloseKeyHandle(list);
    EXPECT_EQ(names, (std::vector<Text>{u"4.0", u"5.1", u"RELEASE"}));
}

TEST_F(SystemRegistry, WhatIsWrittenIsATextOfTheSystem) {
    TestRegistry::Set(u"A", u"v", u"Café €");
    wchar_t text[32] = {};
    DWORD size = sizeof text;
    ASSERT_EQ(::RegGetValueW(HKEY_CURRENT_USER, L"A", L"v", RRF_RT_REG_SZ, nullptr, text, &size), ERROR_SUCCESS);
    EXPECT_STREQ(text, L"Café €");
    EXPECT_EQ(size, 7 * sizeof(wchar_t));
}

TEST_F(SystemRegistry, TheOtherHivesAreTheSystems) {
    RegKey key = 0;
    EXPECT_FALSE(RegOpenSubKey(hives::localMachine, u"Software\\Deze sleutel is er niet", key));
    ASSERT_TRUE(RegOpenSubKey(hives::localMachine, u"Software", key));
    EXPECT_EQ(RegKeyName(key), u"HKEY_LOCAL_MACHINE\\Software");
    RegCloseKeyHandle(key);
}

TEST_F(SystemRegistry, KeysOpenedForAValueAreClosedOnEveryPath) {
    TestRegistry::Set(u"A", u"v", u"x");
    TestRegistry::Set(u"A", u"lang", Text(2000, u'x'));
    registry.SetBytes(u"A", u"bytes");
    const std::ptrdiff_t before = OpenFiles();
    Text value;
    for (int i = 0; i < 20; ++i) {
        for (const TextView name : {u"v", u"lang", u"bytes", u"geen"}) {
            ReadRegistryValue(hives::currentUser, u"A", name, value);
        }
        ReadRegistryValue(hives::currentUser, u"Geen", u"v", value);
        WriteRegistryValue(hives::currentUser, u"A", u"v", u"y");
        WriteRegistryValue(hives::currentUser, u"Geen", u"v", u"y");
    }
    EXPECT_LT(OpenFiles(), before + 20);
}

}  // namespace

}  // namespace korvande::testing
