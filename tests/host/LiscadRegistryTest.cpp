#include "tests/host/LiscadRegistryTest.h"

#include "host/ProgramPlace.h"

namespace korvande::testing {

namespace {

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

TEST_F(LiscadRegistry, TheHighestNumberIsPreferred) {
    AddVersions({u"10.0", u"4.0 beta", u"9.5"});
    EXPECT_EQ(Listed(), "[10.0][10.0][4.0 beta][9.5]");
}

TEST_F(LiscadRegistry, AReleaseBehindAllNumbersIsPreferred) {
    AddVersions({u"5.1", u"Release"});
    EXPECT_EQ(Listed(), "[Release][5.1][Release]");
}

TEST_F(LiscadRegistry, AFolderThatIsSetIsThatOfThePreferredVersion) {
    AddVersions({u"5.1"});
    EXPECT_TRUE(SetLiscadUserPath(u"/home/marie/projecten"));
    EXPECT_EQ(Listed(), "[RELEASE][5.1][RELEASE]");
    EXPECT_EQ(GetLiscadUserPath(u"RELEASE"), u"/home/marie/projecten\\");
    EXPECT_EQ(GetLiscadUserPath(u"5.1"), u"");
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
    Announce();
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
    Announce();
    const std::string once = registry.Contents();
    Announce();
    EXPECT_EQ(registry.Contents(), once);
    EXPECT_NE(once.find("MenuItem2"), std::string::npos);
}

TEST_F(LiscadRegistry, TheReportHasThreeLines) {
    AddVersions({u"5.1", u"6.0"});
    Announce();
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
    Announce();
    EXPECT_EQ(screen.messages[0], "Aanmelding bij Liscad:\nGeslaagd voor versies: 5.1\nMislukt voor versies: 4.0");
}

TEST_F(LiscadRegistry, WithoutLiscadNothingIsRegisteredAndBothListsAreEmpty) {
    Announce();
    EXPECT_EQ(screen.messages[0], "Aanmelding bij Liscad:\nGeslaagd voor versies: geen\nMislukt voor versies: geen");
    EXPECT_EQ(registry.Contents(), "");
}

TEST_F(LiscadRegistry, TheRunningProgramIsTheTest) {
    const Text program = TestProgram();
    EXPECT_EQ(RunningProgram().folder, program.substr(0, program.find_last_of(u"\\/")));
    EXPECT_EQ(RunningProgram().name, FileNameOf(program).substr(0, FileNameOf(program).find(u'.')));
}

}  // namespace

}  // namespace korvande::testing
