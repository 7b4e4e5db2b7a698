#include <wx/radiobut.h>

#include "tests/gui/WindowTest.h"

namespace korvande::testing {

namespace {

class BindingTest : public WindowTest {
 protected:
    BindingTest() { Start(); }
};

TEST_F(BindingTest, WhatIsTypedIsInTheFormAtOnce) {
    Click("txtStreet");
    simulator.Char('A', wxMOD_CONTROL);
    Keys("kade");
    EXPECT_EQ(ToUtf8(frmKORVANDE().txtStreet), "kade");
}

TEST_F(BindingTest, AClickOnACheckBoxIsInTheFormAtOnce) {
    SelectTab(1);
    const bool before = frmKORVANDE().chkExport3D;
    Click("chkExport3D");
    EXPECT_EQ(frmKORVANDE().chkExport3D, !before);
}

TEST_F(BindingTest, TheOtherDateCanBeTypedOnlyWhileItIsChosen) {
    SelectTab(1);
    const auto& date = Find<wxTextCtrl>("txtAltDatum");
    Click("optDateNow");
    EXPECT_FALSE(date.IsEnabled());
    Click("optDateAlt");
    EXPECT_TRUE(date.IsEnabled());
    EXPECT_TRUE(frmKORVANDE().optDateAlt);
    EXPECT_FALSE(frmKORVANDE().optDateNow);
    Click("optDateSEE");
    EXPECT_FALSE(date.IsEnabled());
}

TEST_F(BindingTest, AReportIsChosenAmongFour) {
    for (const char* const name : {"optReportDisk", "optReportPrinter", "optReportNone", "optReportScreen"}) {
        Click(name);
        EXPECT_TRUE(Find<wxRadioButton>(name).GetValue()) << name;
    }
    EXPECT_TRUE(frmKORVANDE().optReportScreen);
    EXPECT_FALSE(frmKORVANDE().optReportNone);
}

}  // namespace

}  // namespace korvande::testing
