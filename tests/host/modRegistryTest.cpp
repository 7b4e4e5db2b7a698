#include "host/modRegistry.h"

#include <gtest/gtest.h>

#include <filesystem>

#include "host/modFileHandling.h"
#include "tests/support/TestFiles.h"

namespace korvande::testing {

namespace {

class Registry : public ::testing::Test {
 protected:
    void Fill(const std::string& lines) {
        folder.Write("registry.reg", "Windows Registry Editor Version 5.00\r\n\r\n" + WithCrLf(lines));
    }
    std::string FileText() const {
        std::string text = FileBytes(folder / "registry.reg");
        std::erase(text, '\r');
        return text;
    }

    TestFolder folder;
    EnvironmentValue file{"KORVANDE_REGISTRY", folder.Path() + "/registry.reg"};
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
    EXPECT_EQ(folder.Listing(), "");
}

TEST_F(Registry, OpeningDoesNotCreate) {
    RegKey key = 0;
    EXPECT_FALSE(RegOpenSubKey(hives::currentUser, u"Software", key));
    EXPECT_EQ(folder.Listing(), "");
    ASSERT_TRUE(RegCreateSubKey(hives::currentUser, u"Software", key));
    RegCloseKeyHandle(key);
    EXPECT_TRUE(RegOpenSubKey(hives::currentUser, u"Software", key));
    RegCloseKeyHandle(key);
    EXPECT_EQ(FileText(), "Windows Registry Editor Version 5.00\n\n[HKEY_CURRENT_USER\\Software]\n");
}

TEST_F(Registry, CreatingOpensAKeyThatIsThere) {
    Fill("[HKEY_CURRENT_USER\\Software]\n\"v\"=\"x\"\n");
    const std::string before = FileText();
    RegKey key = 0;
    ASSERT_TRUE(RegCreateSubKey(hives::currentUser, u"SOFTWARE\\", key));
    RegValue value;
    EXPECT_EQ(RegQueryValue(key, u"V", value), regcodes::success);
    EXPECT_EQ(value.text, u"x");
    RegCloseKeyHandle(key);
    EXPECT_EQ(FileText(), before);
}

TEST_F(Registry, ImpossibleNamesOfKeysAreRefused) {
    RegKey key = 0;
    for (const Text& name : {Text(u"\\A"), Text(u"A\\\\B"), Text(u"A\nB"), Text(256, u'n'), Text(u"A\0B", 3)}) {
        EXPECT_FALSE(RegCreateSubKey(hives::currentUser, name, key)) << ToUtf8(name);
        EXPECT_FALSE(RegOpenSubKey(hives::currentUser, name, key)) << ToUtf8(name);
    }
    EXPECT_EQ(folder.Listing(), "");
}

TEST_F(Registry, SubkeysAreEnumeratedUntilThereAreNoMore) {
    const Text longest(255, u'n');
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

TEST_F(Registry, ASubkeyNameBeyondTheRoomForItIsNotGiven) {
    Fill("[HKEY_CURRENT_USER\\" + std::string(299, 'a') + "]\n[HKEY_CURRENT_USER\\" + std::string(300, 'b') + "]\n");
    Text name;
    EXPECT_EQ(RegEnumSubKey(hives::currentUser, 0, name), regcodes::success);
    EXPECT_EQ(name.size(), 299U);
    EXPECT_EQ(RegEnumSubKey(hives::currentUser, 1, name), regcodes::moreData);
    EXPECT_EQ(name, u"");
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
    EXPECT_EQ(folder.Listing(), "");
}

TEST_F(Registry, WhatIsMissingCannotBeReadAndGivesTheEmptyText) {
    Fill("[HKEY_CURRENT_USER\\A]\n\"v\"=\"x\"\n\"bytes\"=hex:01\n");
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
    Fill(
        "[HKEY_CURRENT_USER\\A]\n\"nul\"=dword:0\n\"klein\"=dword:0000000a\n\"midden\"=dword:0001000a\n"
        "\"groot\"=dword:ffffffff\n");
    Text value;
    EXPECT_TRUE(ReadRegistryValue(hives::currentUser, u"A", u"nul", value));
    EXPECT_EQ(value, u"0");
    EXPECT_TRUE(ReadRegistryValue(hives::currentUser, u"A", u"klein", value));
    EXPECT_EQ(value, u"10");
    EXPECT_TRUE(ReadRegistryValue(hives::currentUser, u"A", u"midden", value));
    EXPECT_EQ(value, u"65546");
    EXPECT_TRUE(ReadRegistryValue(hives::currentUser, u"A", u"groot", value));
    EXPECT_EQ(value, u"4294967295");
}

TEST_F(Registry, ATextEndsAtItsFirstNulCharacter) {
    Fill("[HKEY_CURRENT_USER\\A]\n\"v\"=\"een" + std::string(1, '\0') + "twee\"\n");
    Text value;
    EXPECT_TRUE(ReadRegistryValue(hives::currentUser, u"A", u"v", value));
    EXPECT_EQ(value, u"een");
}

TEST_F(Registry, ATextThatTheFileCannotHoldIsNotWritten) {
    Fill("[HKEY_CURRENT_USER\\A]\n");
    const std::string before = FileText();
    EXPECT_FALSE(WriteRegistryValue(hives::currentUser, u"A", u"v", u"een\ntwee"));
    EXPECT_FALSE(WriteRegistryValue(hives::currentUser, u"A", u"v\r", u"x"));
    EXPECT_EQ(FileText(), before);
}

TEST_F(Registry, KeysOpenedForAValueAreClosedOnEveryPath) {
    Fill("[HKEY_CURRENT_USER\\A]\n\"v\"=\"x\"\n\"lang\"=\"" + std::string(2000, 'x') + "\"\n");
    RegKey before = 0;
    RegKey after = 0;
    ASSERT_TRUE(RegOpenSubKey(hives::currentUser, u"A", before));
    Text value;
    ReadRegistryValue(hives::currentUser, u"A", u"v", value);
    ReadRegistryValue(hives::currentUser, u"A", u"lang", value);
    ReadRegistryValue(hives::currentUser, u"A", u"geen", value);
    WriteRegistryValue(hives::currentUser, u"A", u"v", u"y");
    WriteRegistryValue(hives::currentUser, u"A", u"v", u"een\ntwee");
    ASSERT_TRUE(RegOpenSubKey(hives::currentUser, u"A", after));
    // Handles are given out in order, so the ones in between are those of the calls.
    EXPECT_EQ(after - before, 6U);
    for (RegKey key = before + 1; key < after; ++key) EXPECT_EQ(RegKeyName(key), u"") << key;
    RegCloseKeyHandle(before);
    RegCloseKeyHandle(after);
}

TEST_F(Registry, AFileThatIsNoRegistryIsLeftAlone) {
    folder.Write("registry.reg", "[NEN1878]\r\n");
    RegKey key = 0;
    Text value;
    EXPECT_FALSE(RegCreateSubKey(hives::currentUser, u"A", key));
    EXPECT_FALSE(ReadRegistryValue(hives::currentUser, u"A", u"v", value));
    EXPECT_EQ(FileBytes(folder / "registry.reg"), "[NEN1878]\r\n");
}

TEST_F(Registry, AFileThatCannotBeWrittenMakesCallsFail) {
    RegKey key = 0;
    const EnvironmentValue missing("KORVANDE_REGISTRY", folder.Path() + "/geen map/registry.reg");
    EXPECT_FALSE(RegCreateSubKey(hives::currentUser, u"A", key));
    EXPECT_EQ(folder.Listing(), "");
    const EnvironmentValue full("KORVANDE_REGISTRY", "/dev/full");
    EXPECT_FALSE(RegCreateSubKey(hives::currentUser, u"A", key));
}

TEST_F(Registry, WithoutAFileNamedItStandsInTheConfigurationFolder) {
    const EnvironmentValue noFile("KORVANDE_REGISTRY", std::nullopt);
    const EnvironmentValue configuration("XDG_CONFIG_HOME", folder.Path() + "/een/config");
    RegKey key = 0;
    ASSERT_TRUE(RegCreateSubKey(hives::currentUser, u"A", key));
    RegCloseKeyHandle(key);
    EXPECT_TRUE(FileExistsAt(folder / "een/config/korvande/registry.reg"));
}

TEST_F(Registry, WithAFileNamedTheConfigurationFolderIsLeftAlone) {
    const EnvironmentValue configuration("XDG_CONFIG_HOME", folder.Path() + "/config");
    RegKey key = 0;
    ASSERT_TRUE(RegCreateSubKey(hives::currentUser, u"A", key));
    RegCloseKeyHandle(key);
    EXPECT_EQ(folder.Listing(), "registry.reg");
}

TEST_F(Registry, TheConfigurationFolderIsInTheHomeFolderUnlessNamed) {
    const EnvironmentValue noFile("KORVANDE_REGISTRY", "");
    const EnvironmentValue relative("XDG_CONFIG_HOME", "config");
    const EnvironmentValue home("HOME", folder.Path());
    RegKey key = 0;
    ASSERT_TRUE(RegCreateSubKey(hives::currentUser, u"A", key));
    RegCloseKeyHandle(key);
    EXPECT_TRUE(FileExistsAt(folder / ".config/korvande/registry.reg"));
}

TEST_F(Registry, WithoutAnyFolderForItCallsFail) {
    const EnvironmentValue noFile("KORVANDE_REGISTRY", std::nullopt);
    const EnvironmentValue noConfiguration("XDG_CONFIG_HOME", std::nullopt);
    const EnvironmentValue noHome("HOME", std::nullopt);
    RegKey key = 0;
    Text value;
    EXPECT_FALSE(RegCreateSubKey(hives::currentUser, u"A", key));
    EXPECT_FALSE(ReadRegistryValue(hives::currentUser, u"A", u"v", value));
}

TEST_F(Registry, ALinkToTheFileStays) {
    std::filesystem::create_directory(folder.Path() + "/map");
    std::filesystem::create_symlink("map/echt.reg", folder.Path() + "/registry.reg");
    RegKey key = 0;
    ASSERT_TRUE(RegCreateSubKey(hives::currentUser, u"A", key));
    RegCloseKeyHandle(key);
    EXPECT_TRUE(std::filesystem::is_symlink(folder.Path() + "/registry.reg"));
    EXPECT_TRUE(FileIsThere(folder / "map/echt.reg"));
    EXPECT_EQ(folder.Listing(), "map registry.reg");
}

}  // namespace

}  // namespace korvande::testing
