#include "run/UserSettings.h"

#include "tests/run/RunTest.h"

namespace korvande::testing {

namespace {

class UserSettingsTest : public RunTest {};

TEST_F(UserSettingsTest, WithoutSavedSettingsTheRectangleIsTheWholeGridAndOff) {
    frmKORVANDE().chkSelectXY = true;
    frmKORVANDE().txtMaxX = u"5";
    ReadUserSettings();
    EXPECT_EQ(ToUtf8(CurrentProject()), "");
    EXPECT_FALSE(frmKORVANDE().chkSelectXY);
    EXPECT_EQ(ToUtf8(frmKORVANDE().txtMinX), "0");
    EXPECT_EQ(ToUtf8(frmKORVANDE().txtMaxX), "999999");
    EXPECT_EQ(ToUtf8(frmKORVANDE().txtMinY), "0");
    EXPECT_EQ(ToUtf8(frmKORVANDE().txtMaxY), "999999");
}

TEST_F(UserSettingsTest, SavedSettingsComeBack) {
    CurrentProject() = u"COÖRDINATEN \"A\\B\".NST";
    frmKORVANDE().chkSelectXY = true;
    frmKORVANDE().txtMinX = u"1";
    frmKORVANDE().txtMaxX = u"2";
    frmKORVANDE().txtMinY = u"3";
    frmKORVANDE().txtMaxY = u"4,5";
    SaveUserSettings();
    InitialiseForm();
    ReadUserSettings();
    EXPECT_EQ(CurrentProject(), u"COÖRDINATEN \"A\\B\".NST");
    EXPECT_TRUE(frmKORVANDE().chkSelectXY);
    EXPECT_EQ(ToUtf8(frmKORVANDE().txtMinX), "1");
    EXPECT_EQ(ToUtf8(frmKORVANDE().txtMaxX), "2");
    EXPECT_EQ(ToUtf8(frmKORVANDE().txtMinY), "3");
    EXPECT_EQ(ToUtf8(frmKORVANDE().txtMaxY), "4,5");
}

}  // namespace

}  // namespace korvande::testing
