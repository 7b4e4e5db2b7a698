#include "tests/host/LiscadRegistryTest.h"

// What shows where the registry is a file: its keys stand in the order in which they were made, its handles are given
// out in order, and a folder may be closed.
namespace korvande::testing {

namespace {

TEST_F(LiscadRegistry, TheHighestNumberIsPreferredAndANumberBehindReleaseWinsFromIt) {
    AddVersions({u"4.0", u"RELEASE", u"5.1"});
    EXPECT_EQ(Listed(), "[5.1][4.0][RELEASE][5.1]");
}

TEST_F(LiscadRegistry, VersionsAreComparedAsNumbers) {
    AddVersions({u"9.5", u"10.0", u"4.0 beta"});
    EXPECT_EQ(Listed(), "[10.0][9.5][10.0][4.0 beta]");
}

TEST_F(LiscadRegistry, AKeyThatIsNoVersionIsListedButNotPreferred) {
    AddVersions({u"Common", u"1E999"});
    EXPECT_EQ(Listed(), "[][Common][1E999]");
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

}  // namespace

}  // namespace korvande::testing
