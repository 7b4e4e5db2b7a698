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

}  // namespace

}  // namespace korvande::testing
