#include "host/LiscadRegistry.h"

#include <filesystem>

#include "host/ProgramPlace.h"
#include "tests/support/RecordingScreen.h"
#include "tests/support/TestRegistry.h"

namespace korvande::testing {

namespace {

constexpr TextView liscadKey = u"SOFTWARE\\LISTECH\\LISCAD";

Text VersionKey(TextView version) { return Concat(liscadKey, u"\\", version); }
Text SeeKey(TextView version) { return Concat(VersionKey(version), u"\\SEE"); }
Text ImportKey(TextView version) { return Concat(SeeKey(version), u"\\Data Conversions\\Import"); }
Text ExportKey(TextView version) { return Concat(SeeKey(version), u"\\Data Conversions\\Export"); }

// The entry that an item must get, as the test itself sees its program.
std::string Entry(const std::string& labelAndPattern) {
    const std::filesystem::path program = std::filesystem::read_symlink("/proc/self/exe");
    return "2|" + labelAndPattern + "|" + program.parent_path().string() + "\\" + program.stem().string() + ".exe";
}

class LiscadRegistry : public ::testing::Test {
 protected:
    LiscadRegistry() { LiscadVersions().clear(); }

    static void AddVersions(const std::vector<Text>& versions) {
        for (const Text& version : versions) TestRegistry::AddKey(SeeKey(version));
    }

    // The listed versions, separated by blanks, the preferred one in front.
    static std::string Listed() {
        std::vector<Text> versions;
        ListLiscadVersions(versions);
        std::string text;
        for (const Text& version : versions) text += "[" + ToUtf8(version) + "]";
        return text;
    }

    std::string RegistryText() const { return FileBytes(folder / "registry.reg"); }

    TestFolder folder;
    TestRegistry registry{folder};
    RecordingScreen screen;
};

TEST_F(LiscadRegistry, WithoutLiscadTheListHoldsAnEmptyElementOnly) {
    EXPECT_EQ(Listed(), "[]");
    TestRegistry::AddKey(liscadKey);
    EXPECT_EQ(Listed(), "[]");
}

TEST_F(LiscadRegistry, AListIsFilledAnewWhateverItHeld) {
    AddVersions({u"5.1"});
    std::vector<Text> versions = {u"x", u"y", u"z"};
    ListLiscadVersions(versions);
    EXPECT_EQ(versions, (std::vector<Text>{u"5.1", u"5.1"}));
}

TEST_F(LiscadRegistry, TheHighestNumberIsPreferredAndANumberBehindReleaseWinsFromIt) {
    AddVersions({u"4.0", u"RELEASE", u"5.1"});
    EXPECT_EQ(Listed(), "[5.1][4.0][RELEASE][5.1]");
}

TEST_F(LiscadRegistry, AReleaseBehindAllNumbersIsPreferred) {
    AddVersions({u"5.1", u"Release"});
    EXPECT_EQ(Listed(), "[Release][5.1][Release]");
}

TEST_F(LiscadRegistry, VersionsAreComparedAsNumbers) {
    AddVersions({u"9.5", u"10.0", u"4.0 beta"});
    EXPECT_EQ(Listed(), "[10.0][9.5][10.0][4.0 beta]");
}

TEST_F(LiscadRegistry, AKeyThatIsNoVersionIsListedButNotPreferred) {
    AddVersions({u"Common", u"1E999"});
    EXPECT_EQ(Listed(), "[][Common][1E999]");
}

TEST_F(LiscadRegistry, AFolderGetsASeparatorBehindItOnce) {
    TestRegistry::Set(SeeKey(u"5.1"), u"DataPath", u"C:\\Data");
    TestRegistry::Set(SeeKey(u"5.1"), u"UserPath", u"C:\\User\\");
    EXPECT_EQ(GetLiscadDataPath(u"5.1"), u"C:\\Data\\");
    EXPECT_EQ(GetLiscadUserPath(u"5.1"), u"C:\\User\\");
}

TEST_F(LiscadRegistry, AFolderThatCannotBeReadIsEmpty) {
    AddVersions({u"5.1"});
    EXPECT_EQ(GetLiscadDataPath(u"5.1"), u"");
    EXPECT_EQ(GetLiscadUserPath(u"6.0"), u"");
}

TEST_F(LiscadRegistry, FourLanguagesAreKnownAndAnyOtherIsUs) {
    for (const Text language : {u"nl", u"NL", u"uk", u"UK"}) {
        TestRegistry::Set(VersionKey(u"5.1"), u"Language", language);
        EXPECT_EQ(GetLiscadLanguage(u"5.1"), language);
    }
    for (const Text language : {u"DE", u"Nl", u"nl ", u""}) {
        TestRegistry::Set(VersionKey(u"5.1"), u"Language", language);
        EXPECT_EQ(GetLiscadLanguage(u"5.1"), u"us");
    }
    EXPECT_EQ(GetLiscadLanguage(u"6.0"), u"us");
}

TEST_F(LiscadRegistry, TheMenuKeysAreMadeBelowSeeOnly) {
    AddVersions({u"5.1"});
    TestRegistry::AddKey(VersionKey(u"6.0"));
    EXPECT_TRUE(EnsureDataConversionsKeys(u"5.1"));
    EXPECT_TRUE(EnsureDataConversionsKeys(u"5.1"));
    EXPECT_FALSE(EnsureDataConversionsKeys(u"6.0"));
    RegKey key = 0;
    EXPECT_TRUE(RegOpenSubKey(hives::currentUser, ImportKey(u"5.1"), key));
    RegCloseKeyHandle(key);
    EXPECT_TRUE(RegOpenSubKey(hives::currentUser, ExportKey(u"5.1"), key));
    RegCloseKeyHandle(key);
    EXPECT_FALSE(RegOpenSubKey(hives::currentUser, SeeKey(u"6.0"), key));
}

TEST_F(LiscadRegistry, MakingTheMenuKeysLeavesNoneOpen) {
    AddVersions({u"5.1"});
    RegKey before = 0;
    ASSERT_TRUE(RegOpenSubKey(hives::currentUser, liscadKey, before));
    ASSERT_TRUE(EnsureDataConversionsKeys(u"5.1"));
    for (RegKey key = before + 1; key < before + 10; ++key) EXPECT_EQ(RegKeyName(key), u"");
    RegCloseKeyHandle(before);
}

TEST_F(LiscadRegistry, AKeyThatCannotBeWrittenIsAFailure) {
    AddVersions({u"5.1"});
    const ReadOnlyFolder readOnly(folder.Path());
    EXPECT_FALSE(EnsureDataConversionsKeys(u"5.1"));
    EXPECT_FALSE(RegisterMenuItem(u"5.1", 1, u"SUF2", u"*.sf2"));
}

TEST_F(LiscadRegistry, AnEntryNamesTheRunningProgram) {
    AddVersions({u"5.1"});
    EXPECT_TRUE(RegisterMenuItem(u"5.1", 1, u"SUF2", u"*.sf2"));
    EXPECT_EQ(TestRegistry::Value(ImportKey(u"5.1"), u"MenuItem0"), Entry("SUF2|*.sf2"));
    EXPECT_EQ(TestRegistry::Value(ExportKey(u"5.1"), u"MenuItem0"), "(none)");
}

TEST_F(LiscadRegistry, AnyKindButOneIsTheExportMenu) {
    AddVersions({u"5.1"});
    EXPECT_TRUE(RegisterMenuItem(u"5.1", 7, u"SUF2", u"*.sf2"));
    EXPECT_EQ(TestRegistry::Value(ExportKey(u"5.1"), u"MenuItem0"), Entry("SUF2|*.sf2"));
    EXPECT_EQ(TestRegistry::Value(ImportKey(u"5.1"), u"MenuItem0"), "(none)");
}

TEST_F(LiscadRegistry, EntriesOfOtherProgramsStayAndTheNewOneComesBehindThem) {
    TestRegistry::Set(ImportKey(u"5.1"), u"MenuItem0", u"2|DXF|*.dxf|C:\\A\\A.exe");
    TestRegistry::Set(ImportKey(u"5.1"), u"MenuItem1", u"2|DGN|*.dgn|C:\\B\\B.exe");
    EXPECT_TRUE(RegisterMenuItem(u"5.1", 1, u"SUF2", u"*.sf2"));
    EXPECT_EQ(TestRegistry::Value(ImportKey(u"5.1"), u"MenuItem0"), "2|DXF|*.dxf|C:\\A\\A.exe");
    EXPECT_EQ(TestRegistry::Value(ImportKey(u"5.1"), u"MenuItem1"), "2|DGN|*.dgn|C:\\B\\B.exe");
    EXPECT_EQ(TestRegistry::Value(ImportKey(u"5.1"), u"MenuItem2"), Entry("SUF2|*.sf2"));
}

TEST_F(LiscadRegistry, AnEarlierEntryOfTheSamePatternIsReplacedInAnyCase) {
    TestRegistry::Set(ImportKey(u"5.1"), u"MenuItem0", u"2|DXF|*.dxf|C:\\A\\A.exe");
    TestRegistry::Set(ImportKey(u"5.1"), u"MenuItem1", u"2|oud|*.SF2|C:\\OUD\\OUD.exe");
    TestRegistry::Set(ImportKey(u"5.1"), u"MenuItem2", u"2|DGN|*.dgn|C:\\B\\B.exe");
    EXPECT_TRUE(RegisterMenuItem(u"5.1", 1, u"SUF2", u"*.sf2"));
    EXPECT_EQ(TestRegistry::Value(ImportKey(u"5.1"), u"MenuItem1"), Entry("SUF2|*.sf2"));
    EXPECT_EQ(TestRegistry::Value(ImportKey(u"5.1"), u"MenuItem2"), "2|DGN|*.dgn|C:\\B\\B.exe");
    EXPECT_EQ(TestRegistry::Value(ImportKey(u"5.1"), u"MenuItem3"), "(none)");
}

TEST_F(LiscadRegistry, TheSlotNumbersGoOnPastNine) {
    for (int n = 0; n <= 10; ++n) {
        TestRegistry::Set(ExportKey(u"5.1"), Concat(u"MenuItem", n), u"2|DXF|*.dxf|C:\\A\\A.exe");
    }
    EXPECT_TRUE(RegisterMenuItem(u"5.1", 2, u"SUF2", u"*.sf2"));
    EXPECT_EQ(TestRegistry::Value(ExportKey(u"5.1"), u"MenuItem11"), Entry("SUF2|*.sf2"));
}

TEST_F(LiscadRegistry, TheSelectorChoosesTheMenus) {
    struct Case {
        std::int16_t selector;
        const char* report;
    };
    for (const Case& example :
         {Case{1, "%1 5.1, %2 geen, %3 geen, %4 geen, %5"}, Case{2, "%1 geen, %2 geen, %3 5.1, %4 geen, %5"},
          Case{0, "%1 5.1, %2 geen, %3 5.1, %4 geen, %5"}, Case{3, "%1 5.1, %2 geen, %3 5.1, %4 geen, %5"},
          Case{4, "%1 geen, %2 geen, %3 geen, %4 geen, %5"}}) {
        AddVersions({u"5.1"});
        std::vector<Text> versions;
        EXPECT_EQ(ToUtf8(RegisterWithLiscad(example.selector, u"SUF2", u"*.sf2", versions)), example.report)
            << example.selector;
    }
}

TEST_F(LiscadRegistry, AVersionWithoutSeeFailsAndTheOthersGoOn) {
    TestRegistry::AddKey(VersionKey(u"4.0"));
    AddVersions({u"5.1", u"6.0"});
    std::vector<Text> versions;
    EXPECT_EQ(ToUtf8(RegisterWithLiscad(3, u"SUF2", u"*.sf2", versions)),
              "%1 5.1, 6.0, %2 4.0, %3 5.1, 6.0, %4 4.0, %5");
    EXPECT_EQ(versions, (std::vector<Text>{u"6.0", u"4.0", u"5.1", u"6.0"}));
}

TEST_F(LiscadRegistry, AListThatIsFilledAlreadyIsKept) {
    AddVersions({u"5.1", u"6.0"});
    std::vector<Text> versions = {u"5.1", u"5.1"};
    EXPECT_EQ(ToUtf8(RegisterWithLiscad(1, u"SUF2", u"*.sf2", versions)), "%1 5.1, %2 geen, %3 geen, %4 geen, %5");
}

TEST_F(LiscadRegistry, TheAnnouncementWritesThreeItemsIntoBothMenusOfEveryVersion) {
    AddVersions({u"5.1", u"RELEASE"});
    AnnounceToLiscad();
    for (const TextView version : {u"5.1", u"RELEASE"}) {
        for (const Text& menu : {ImportKey(version), ExportKey(version)}) {
            EXPECT_EQ(TestRegistry::Value(menu, u"MenuItem0"), Entry("SUF2|*.sf2"));
            EXPECT_EQ(TestRegistry::Value(menu, u"MenuItem1"), Entry("NEN1878-SFN|*.sfn"));
            EXPECT_EQ(TestRegistry::Value(menu, u"MenuItem2"), Entry("NEN1878-NEN|*.nen"));
            EXPECT_EQ(TestRegistry::Value(menu, u"MenuItem3"), "(none)");
        }
    }
}

TEST_F(LiscadRegistry, AnnouncingTwiceChangesNothing) {
    AddVersions({u"5.1", u"6.0"});
    AnnounceToLiscad();
    const std::string once = RegistryText();
    AnnounceToLiscad();
    EXPECT_EQ(RegistryText(), once);
    EXPECT_NE(once.find("MenuItem2"), std::string::npos);
}

TEST_F(LiscadRegistry, TheReportHasThreeLines) {
    AddVersions({u"5.1", u"6.0"});
    AnnounceToLiscad();
    ASSERT_EQ(screen.boxes.size(), 1U);
    EXPECT_EQ(screen.messages[0],
              "Aanmelding bij Liscad:\nGeslaagd voor versies: 5.1, 6.0\nMislukt voor versies: geen");
    EXPECT_EQ(screen.boxes[0].title, u"SUF2/NEN1878 Vertaler");
    EXPECT_EQ(screen.boxes[0].icon, Icon::Information);
    EXPECT_EQ(screen.boxes[0].buttons, Buttons::Ok);
}

TEST_F(LiscadRegistry, TheReportNamesTheVersionsThatFailed) {
    TestRegistry::AddKey(VersionKey(u"4.0"));
    AddVersions({u"5.1"});
    AnnounceToLiscad();
    EXPECT_EQ(screen.messages[0], "Aanmelding bij Liscad:\nGeslaagd voor versies: 5.1\nMislukt voor versies: 4.0");
}

TEST_F(LiscadRegistry, WithoutLiscadNothingIsRegisteredAndBothListsAreEmpty) {
    AnnounceToLiscad();
    EXPECT_EQ(screen.messages[0], "Aanmelding bij Liscad:\nGeslaagd voor versies: geen\nMislukt voor versies: geen");
    EXPECT_FALSE(FileIsThere(folder / "registry.reg"));
}

TEST_F(LiscadRegistry, TheRunningProgramIsTheTest) {
    const std::filesystem::path program = std::filesystem::read_symlink("/proc/self/exe");
    EXPECT_EQ(ToUtf8(RunningProgram().folder), program.parent_path().string());
    EXPECT_EQ(ToUtf8(RunningProgram().name), program.stem().string());
}

}  // namespace

}  // namespace korvande::testing
