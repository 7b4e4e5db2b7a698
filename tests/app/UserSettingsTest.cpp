#include "app/UserSettings.h"

#include "tests/app/AppTest.h"

namespace korvande::testing {

namespace {

class UserSettingsTest : public AppTest {};

TEST_F(UserSettingsTest, WithoutSavedSettingsTheRectangleIsTheWholeGridAndOff) {
    options.chkSelectXY = true;
    options.txtMaxX = u"5";
    ReadUserSettings(form);
    EXPECT_EQ(ToUtf8(form.CurrentProject), "");
    EXPECT_FALSE(options.chkSelectXY);
    EXPECT_EQ(ToUtf8(options.txtMinX), "0");
    EXPECT_EQ(ToUtf8(options.txtMaxX), "999999");
    EXPECT_EQ(ToUtf8(options.txtMinY), "0");
    EXPECT_EQ(ToUtf8(options.txtMaxY), "999999");
}

TEST_F(UserSettingsTest, SavedSettingsComeBack) {
    form.CurrentProject = u"COÖRDINATEN \"A\\B\".NST";
    options.chkSelectXY = true;
    options.txtMinX = u"1";
    options.txtMaxX = u"2";
    options.txtMinY = u"3";
    options.txtMaxY = u"4,5";
    SaveUserSettings(form);
    FormKORVANDE next(screen);
    ReadUserSettings(next);
    EXPECT_EQ(next.CurrentProject, u"COÖRDINATEN \"A\\B\".NST");
    EXPECT_TRUE(next.project.options.chkSelectXY);
    EXPECT_EQ(ToUtf8(next.project.options.txtMinX), "1");
    EXPECT_EQ(ToUtf8(next.project.options.txtMaxX), "2");
    EXPECT_EQ(ToUtf8(next.project.options.txtMinY), "3");
    EXPECT_EQ(ToUtf8(next.project.options.txtMaxY), "4,5");
}

#ifndef _WIN32  // where the system keeps them

TEST_F(UserSettingsTest, WhatIsKeptAlreadyIsNotWrittenAgain) {
    options.txtMinX = u"1";
    SaveUserSettings(form);
    const std::string file = folder.Path() + "/registry.reg";
    const std::filesystem::file_time_type longAgo{};
    std::filesystem::last_write_time(file, longAgo);
    SaveUserSettings(form);
    EXPECT_EQ(std::filesystem::last_write_time(file), longAgo);
    options.txtMinX = u"2";
    SaveUserSettings(form);
    EXPECT_NE(std::filesystem::last_write_time(file), longAgo);
}

#endif

}  // namespace

}  // namespace korvande::testing
