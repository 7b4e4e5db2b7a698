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
    EXPECT_EQ(ToUtf8(form.project.options.txtStreet), "kade");
}

TEST_F(BindingTest, AClickOnACheckBoxIsInTheFormAtOnce) {
    SelectTab(1);
    const bool before = form.project.options.chkExport3D;
    Click("chkExport3D");
    EXPECT_EQ(form.project.options.chkExport3D, !before);
}

TEST_F(BindingTest, TheOtherDateCanBeTypedOnlyWhileItIsChosen) {
    SelectTab(1);
    const auto& date = Find<wxTextCtrl>("txtAltDatum");
    Click("optDateNow");
    EXPECT_FALSE(date.IsEnabled());
    Click("optDateAlt");
    EXPECT_TRUE(date.IsEnabled());
    EXPECT_TRUE(form.project.options.optDateAlt);
    EXPECT_FALSE(form.project.options.optDateNow);
    Click("optDateSEE");
    EXPECT_FALSE(date.IsEnabled());
}

TEST_F(BindingTest, AReportIsChosenAmongFour) {
    for (const char* const name : {"optReportDisk", "optReportPrinter", "optReportNone", "optReportScreen"}) {
        Click(name);
        EXPECT_TRUE(Find<wxRadioButton>(name).GetValue()) << name;
    }
    EXPECT_TRUE(form.project.options.optReportScreen);
    EXPECT_FALSE(form.project.options.optReportNone);
}

}  // namespace

}  // namespace korvande::testing
