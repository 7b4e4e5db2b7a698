#include "host/modRegistry.h"

#include <gtest/gtest.h>

#include <filesystem>

#include "host/modFileHandling.h"
#include "tests/support/TestFiles.h"

// What shows only where the registry is a file.
namespace korvande::testing {

namespace {

class RegistryInAFile : public ::testing::Test {
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

TEST_F(RegistryInAFile, OnlyCreatingWritesTheFile) {
    RegKey key = 0;
    RegOpenSubKey(hives::currentUser, u"Software", key);
    EXPECT_EQ(folder.Listing(), "");
    ASSERT_TRUE(RegCreateSubKey(hives::currentUser, u"Software", key));
    RegCloseKeyHandle(key);
    EXPECT_EQ(FileText(), "Windows Registry Editor Version 5.00\n\n[HKEY_CURRENT_USER\\Software]\n");
}

TEST_F(RegistryInAFile, AKeyIsFoundWithoutRegardToCase) {
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

TEST_F(RegistryInAFile, ImpossibleNamesOfKeysAreRefused) {
    RegKey key = 0;
    for (const Text& name : {Text(u"\\A"), Text(u"A\\\\B"), Text(u"A\nB"), Text(256, u'n'), Text(u"A\0B", 3)}) {
        EXPECT_FALSE(RegCreateSubKey(hives::currentUser, name, key)) << ToUtf8(name);
        EXPECT_FALSE(RegOpenSubKey(hives::currentUser, name, key)) << ToUtf8(name);
    }
    EXPECT_EQ(folder.Listing(), "");
}

TEST_F(RegistryInAFile, ASubkeyNameBeyondTheRoomForItIsNotGiven) {
    Fill("[HKEY_CURRENT_USER\\" + std::string(299, 'a') + "]\n[HKEY_CURRENT_USER\\" + std::string(300, 'b') + "]\n");
    Text name;
    EXPECT_EQ(RegEnumSubKey(hives::currentUser, 0, name), regcodes::success);
    EXPECT_EQ(name.size(), 299U);
    EXPECT_EQ(RegEnumSubKey(hives::currentUser, 1, name), regcodes::moreData);
    EXPECT_EQ(name, u"");
}

TEST_F(RegistryInAFile, ATextThatTheFileCannotHoldIsNotWritten) {
    Fill("[HKEY_CURRENT_USER\\A]\n");
    const std::string before = FileText();
    EXPECT_FALSE(WriteRegistryValue(hives::currentUser, u"A", u"v", u"een\ntwee"));
    EXPECT_FALSE(WriteRegistryValue(hives::currentUser, u"A", u"v\r", u"x"));
    EXPECT_EQ(FileText(), before);
}

TEST_F(RegistryInAFile, KeysOpenedForAValueAreClosedOnEveryPath) {
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

TEST_F(RegistryInAFile, AFileThatIsNoRegistryIsLeftAlone) {
    folder.Write("registry.reg", "[NEN1878]\r\n");
    RegKey key = 0;
    Text value;
    EXPECT_FALSE(RegCreateSubKey(hives::currentUser, u"A", key));
    EXPECT_FALSE(ReadRegistryValue(hives::currentUser, u"A", u"v", value));
    EXPECT_EQ(FileBytes(folder / "registry.reg"), "[NEN1878]\r\n");
}

TEST_F(RegistryInAFile, AFileThatCannotBeWrittenMakesCallsFail) {
    RegKey key = 0;
    const EnvironmentValue missing("KORVANDE_REGISTRY", folder.Path() + "/geen map/registry.reg");
    EXPECT_FALSE(RegCreateSubKey(hives::currentUser, u"A", key));
    EXPECT_EQ(folder.Listing(), "");
    const EnvironmentValue full("KORVANDE_REGISTRY", "/dev/full");
    EXPECT_FALSE(RegCreateSubKey(hives::currentUser, u"A", key));
}

TEST_F(RegistryInAFile, WithoutAFileNamedItStandsInTheConfigurationFolder) {
    const EnvironmentValue noFile("KORVANDE_REGISTRY", std::nullopt);
    const EnvironmentValue configuration("XDG_CONFIG_HOME", folder.Path() + "/een/config");
    RegKey key = 0;
    ASSERT_TRUE(RegCreateSubKey(hives::currentUser, u"A", key));
    RegCloseKeyHandle(key);
    EXPECT_TRUE(FileExistsAt(folder / "een/config/korvande/registry.reg"));
}

TEST_F(RegistryInAFile, WithAFileNamedTheConfigurationFolderIsLeftAlone) {
    const EnvironmentValue configuration("XDG_CONFIG_HOME", folder.Path() + "/config");
    RegKey key = 0;
    ASSERT_TRUE(RegCreateSubKey(hives::currentUser, u"A", key));
    RegCloseKeyHandle(key);
    EXPECT_EQ(folder.Listing(), "registry.reg");
}

TEST_F(RegistryInAFile, TheConfigurationFolderIsInTheHomeFolderUnlessNamed) {
    const EnvironmentValue noFile("KORVANDE_REGISTRY", "");
    const EnvironmentValue relative("XDG_CONFIG_HOME", "config");
    const EnvironmentValue home("HOME", folder.Path());
    RegKey key = 0;
    ASSERT_TRUE(RegCreateSubKey(hives::currentUser, u"A", key));
    RegCloseKeyHandle(key);
    EXPECT_TRUE(FileExistsAt(folder / ".config/korvande/registry.reg"));
}

TEST_F(RegistryInAFile, WithoutAnyFolderForItCallsFail) {
    const EnvironmentValue noFile("KORVANDE_REGISTRY", std::nullopt);
    const EnvironmentValue noConfiguration("XDG_CONFIG_HOME", std::nullopt);
    const EnvironmentValue noHome("HOME", std::nullopt);
    RegKey key = 0;
    Text value;
    EXPECT_FALSE(RegCreateSubKey(hives::currentUser, u"A", key));
    EXPECT_FALSE(ReadRegistryValue(hives::currentUser, u"A", u"v", value));
}

TEST_F(RegistryInAFile, ALinkToTheFileStays) {
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
