#include <wx/checkbox.h>
#include <wx/choice.h>
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

TEST_F(BindingTest, ArcsOfThreePointsAreWantedByAClickOrByTheLetterOfTheirBox) {
    SelectTab(1);
    EXPECT_FALSE(Find<wxCheckBox>("chkThreePointArcs").GetValue());
    Click("chkThreePointArcs");
    EXPECT_TRUE(form.project.options.chkThreePointArcs);
    simulator.Char('R', wxMOD_ALT);
    LetEventsRun();
    EXPECT_FALSE(form.project.options.chkThreePointArcs);
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

TEST_F(BindingTest, ABoxThatAnOptionMakesCountCanBeTypedInOnlyWhileItIsSet) {
    SelectTab(1);
    const std::pair<const char*, std::vector<const char*>> options[] = {
        {"chkSelectXY", {"txtMinX", "txtMaxX", "txtMinY", "txtMaxY"}},
        {"chkExportPointnoAsText", {"txtPnoTxtLKI"}},
        {"chkExportHeightAsText", {"txtEleTxtLKI"}}};
    for (const auto& [option, boxes] : options) {
        for (const bool isSet : {true, false}) {
            if (Find<wxCheckBox>(option).GetValue() != isSet) Click(option);
            for (const char* const box : boxes) EXPECT_EQ(Find<wxTextCtrl>(box).IsEnabled(), isSet) << box;
        }
    }
}

TEST_F(BindingTest, HowFilesAreReadIsInTheFormAtOnce) {
    SelectTab(1);
    Click("chkWithoutZeroes");
    EXPECT_TRUE(form.project.options.chkWithoutZeroes);
    EXPECT_EQ(Find<wxChoice>("cboCharacterSet").GetStringSelection(), "Automatisch");
    Choose("cboCharacterSet", 2);
    EXPECT_EQ(ToUtf8(form.project.options.cboCharacterSet), "CP850 (DOS)");
    EXPECT_EQ(CharacterSetOf(form.project.options), CharacterSet::Cp850);
    Choose("cboCharacterSet", 1);
    EXPECT_EQ(CharacterSetOf(form.project.options), CharacterSet::Windows1252);
    Choose("cboCharacterSet", 0);
    EXPECT_EQ(CharacterSetOf(form.project.options), CharacterSet::Automatic);
}

TEST_F(BindingTest, TheLettersOfTheReadingOptionsAreTheirOwn) {
    SelectTab(1);
    Click("chkSelectXY");
    Find<wxWindow>("txtMinY").SetFocus();
    simulator.Char('W', wxMOD_ALT);
    LetEventsRun();
    EXPECT_TRUE(form.project.options.chkWithoutZeroes);
    simulator.Char('X', wxMOD_ALT);
    LetEventsRun();
    EXPECT_TRUE(Find<wxWindow>("txtMinX").HasFocus());
    simulator.Char('K', wxMOD_ALT);
    LetEventsRun();
    EXPECT_TRUE(Find<wxChoice>("cboCharacterSet").HasFocus());
    simulator.Char('V', wxMOD_ALT);
    LetEventsRun();
    EXPECT_TRUE(Find<wxChoice>("cboXlateMode").HasFocus());
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
