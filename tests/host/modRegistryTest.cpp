#include "host/modRegistry.h"

#include <utility>

#include "tests/support/TestRegistry.h"

namespace korvande::testing {

namespace {

class Registry : public ::testing::Test {
 protected:
    TestFolder folder;
    TestRegistry registry{folder};
};

TEST_F(Registry, TheHivesHaveTheirNames) {
    EXPECT_EQ(RegKeyName(hives::classesRoot), u"HKEY_CLASSES_ROOT");
    EXPECT_EQ(RegKeyName(hives::currentUser), u"HKEY_CURRENT_USER");
    EXPECT_EQ(RegKeyName(hives::localMachine), u"HKEY_LOCAL_MACHINE");
    EXPECT_EQ(RegKeyName(hives::users), u"HKEY_USERS");
}

TEST_F(Registry, AnUnknownHandleHasNoName) {
    EXPECT_EQ(RegKeyName(0), u"");
    EXPECT_EQ(RegKeyName(987654321), u"");
    EXPECT_EQ(RegKeyName(hives::users + 1), u"");
}

TEST_F(Registry, TheOpenKeyTableTellsFullNames) {
    RegKey software = 0;
    RegKey program = 0;
    ASSERT_TRUE(RegCreateSubKey(hives::currentUser, u"Software", software));
    ASSERT_TRUE(RegCreateSubKey(software, u"TERAMUND\\KORVANDE", program));
    EXPECT_EQ(RegKeyName(software), u"HKEY_CURRENT_USER\\Software");
    EXPECT_EQ(RegKeyName(program), u"HKEY_CURRENT_USER\\Software\\TERAMUND\\KORVANDE");
    RegKey again = 0;
    ASSERT_TRUE(RegOpenSubKey(software, u"teramund", again));
    EXPECT_EQ(RegKeyName(again), u"HKEY_CURRENT_USER\\Software\\teramund");
    EXPECT_NE(again, program);
    for (const RegKey key : {software, program, again}) EXPECT_TRUE(RegCloseKeyHandle(key));
}

TEST_F(Registry, AClosedHandleIsForgotten) {
    RegKey key = 0;
    ASSERT_TRUE(RegCreateSubKey(hives::currentUser, u"A", key));
    EXPECT_TRUE(RegCloseKeyHandle(key));
    EXPECT_EQ(RegKeyName(key), u"");
    EXPECT_FALSE(RegCloseKeyHandle(key));
    EXPECT_TRUE(RegCloseKeyHandle(hives::currentUser));
    EXPECT_EQ(RegKeyName(hives::currentUser), u"HKEY_CURRENT_USER");
}

TEST_F(Registry, AnUnknownHandleFailsEverywhere) {
    constexpr RegKey unknown = 987654321;
    RegKey key = 0;
    Text name = u"x";
    RegValue value;
    EXPECT_FALSE(RegCreateSubKey(unknown, u"A", key));
    EXPECT_FALSE(RegOpenSubKey(unknown, u"A", key));
    EXPECT_FALSE(RegCloseKeyHandle(unknown));
    EXPECT_EQ(RegEnumSubKey(unknown, 0, name), regcodes::invalidHandle);
    EXPECT_EQ(name, u"");
    EXPECT_EQ(RegQueryValue(unknown, u"v", value), regcodes::invalidHandle);
    EXPECT_EQ(RegSetTextValue(unknown, u"v", u"x"), regcodes::invalidHandle);
    EXPECT_EQ(registry.Contents(), "");
}

TEST_F(Registry, OpeningDoesNotCreate) {
    RegKey key = 0;
    EXPECT_FALSE(RegOpenSubKey(hives::currentUser, u"Software", key));
    EXPECT_EQ(registry.Contents(), "");
    ASSERT_TRUE(RegCreateSubKey(hives::currentUser, u"Software", key));
    RegCloseKeyHandle(key);
    EXPECT_TRUE(RegOpenSubKey(hives::currentUser, u"SOFTWARE", key));
    RegCloseKeyHandle(key);
}

TEST_F(Registry, CreatingOpensAKeyThatIsThere) {
    TestRegistry::Set(u"Software", u"v", u"x");
    const std::string before = registry.Contents();
    RegKey key = 0;
    ASSERT_TRUE(RegCreateSubKey(hives::currentUser, u"SOFTWARE\\", key));
    RegValue value;
    EXPECT_EQ(RegQueryValue(key, u"V", value), regcodes::success);
    EXPECT_EQ(value.text, u"x");
    RegCloseKeyHandle(key);
    EXPECT_EQ(registry.Contents(), before);
}

TEST_F(Registry, ANameWithANulCharacterIsRefused) {
    RegKey key = 0;
    EXPECT_FALSE(RegCreateSubKey(hives::currentUser, TextView(u"A\0B", 3), key));
    EXPECT_FALSE(RegOpenSubKey(hives::currentUser, TextView(u"A\0B", 3), key));
    EXPECT_EQ(registry.Contents(), "");
}

TEST_F(Registry, SubkeysAreEnumeratedUntilThereAreNoMore) {
    const Text longest(255, u'z');
    RegKey list = 0;
    RegKey key = 0;
    ASSERT_TRUE(RegCreateSubKey(hives::currentUser, u"Lijst", list));
    for (const Text& name : {Text(u"4.0"), Text(u"RELEASE"), longest}) {
        ASSERT_TRUE(RegCreateSubKey(list, name, key));
        RegCloseKeyHandle(key);
    }
    Text name;
    EXPECT_EQ(RegEnumSubKey(list, 0, name), regcodes::success);
    EXPECT_EQ(name, u"4.0");
    EXPECT_EQ(RegEnumSubKey(list, 1, name), regcodes::success);
    EXPECT_EQ(name, u"RELEASE");
    EXPECT_EQ(RegEnumSubKey(list, 2, name), regcodes::success);
    EXPECT_EQ(name, longest);
    EXPECT_EQ(RegEnumSubKey(list, 3, name), regcodes::noMoreItems);
    EXPECT_EQ(name, u"");
    RegCloseKeyHandle(list);
}

TEST_F(Registry, AValueIsWrittenAndRead) {
    RegKey key = 0;
    ASSERT_TRUE(RegCreateSubKey(hives::currentUser, u"Software\\TERAMUND\\KORVANDE", key));
    RegCloseKeyHandle(key);
    Text value;
    EXPECT_TRUE(
        WriteRegistryValue(hives::currentUser, u"Software\\TERAMUND\\KORVANDE", u"CurrProject", u"Café \\ \"€\""));
    EXPECT_TRUE(ReadRegistryValue(hives::currentUser, u"SOFTWARE\\teramund\\korvande", u"CURRPROJECT", value));
    EXPECT_EQ(value, u"Café \\ \"€\"");
    EXPECT_TRUE(WriteRegistryValue(hives::currentUser, u"Software\\TERAMUND\\KORVANDE", u"CurrProject", u""));
    EXPECT_TRUE(ReadRegistryValue(hives::currentUser, u"Software\\TERAMUND\\KORVANDE", u"CurrProject", value));
    EXPECT_EQ(value, u"");
}

TEST_F(Registry, AValueIsNotWrittenToAKeyThatIsMissing) {
    EXPECT_FALSE(WriteRegistryValue(hives::currentUser, u"Software\\Geen", u"v", u"x"));
    EXPECT_EQ(registry.Contents(), "");
}

TEST_F(Registry, WhatIsMissingCannotBeReadAndGivesTheEmptyText) {
    TestRegistry::Set(u"A", u"v", u"x");
    registry.SetBytes(u"A", u"bytes");
    Text value = u"oud";
    EXPECT_FALSE(ReadRegistryValue(hives::currentUser, u"A", u"geen", value));
    EXPECT_EQ(value, u"");
    value = u"oud";
    EXPECT_FALSE(ReadRegistryValue(hives::currentUser, u"B", u"v", value));
    EXPECT_EQ(value, u"");
    value = u"oud";
    EXPECT_FALSE(ReadRegistryValue(hives::localMachine, u"A", u"v", value));
    EXPECT_EQ(value, u"");
    value = u"oud";
    EXPECT_FALSE(ReadRegistryValue(hives::currentUser, u"A", u"bytes", value));
    EXPECT_EQ(value, u"");
}

TEST_F(Registry, AValueOfUpTo1023CharactersIsRead) {
    RegKey key = 0;
    ASSERT_TRUE(RegCreateSubKey(hives::currentUser, u"A", key));
    RegCloseKeyHandle(key);
    for (const std::size_t length : {1022U, 1023U, 1024U, 1025U, 5000U}) {
        ASSERT_TRUE(WriteRegistryValue(hives::currentUser, u"A", u"v", Text(length, u'é')));
        Text value = u"oud";
        EXPECT_EQ(ReadRegistryValue(hives::currentUser, u"A", u"v", value), length <= 1023U) << length;
        EXPECT_EQ(value, length <= 1023U ? Text(length, u'é') : Text()) << length;
    }
}

TEST_F(Registry, ADoubleWordIsReadAsANumber) {
    const std::pair<std::uint32_t, TextView> numbers[] = {
        {0, u"0"}, {10, u"10"}, {0x1000A, u"65546"}, {0x7FFFFFFF, u"2147483647"}, {0xFFFFFFFF, u"4294967295"}};
    for (const auto& [number, text] : numbers) {
        registry.SetDoubleWord(u"A", u"v", number);
        Text value;
        EXPECT_TRUE(ReadRegistryValue(hives::currentUser, u"A", u"v", value));
        EXPECT_EQ(value, text);
    }
}

TEST_F(Registry, ATextEndsAtItsFirstNulCharacter) {
    registry.SetRawText(u"A", u"v", TextView(u"een\0twee", 8));
    Text value;
    EXPECT_TRUE(ReadRegistryValue(hives::currentUser, u"A", u"v", value));
    EXPECT_EQ(value, u"een");
}

TEST_F(Registry, AKeyHasADefaultValueWithoutAName) {
    TestRegistry::Set(u"A", u"", u"standaard");
    Text value;
    EXPECT_TRUE(ReadRegistryValue(hives::currentUser, u"A", u"", value));
    EXPECT_EQ(value, u"standaard");
}

}  // namespace

}  // namespace korvande::testing
