#include "project/Options.h"

#include <initializer_list>
#include <set>

#include "project/ControlTableWriter.h"
#include "tests/project/ProjectTest.h"

namespace korvande::testing {

namespace {

std::string Digits(std::initializer_list<bool> values) {
    std::string digits;
    for (const bool value : values) digits.push_back(value ? '1' : '0');
    return digits;
}

// An option's value, to compare: of the listing destination the one that is selected.
std::string ValueOf(const Options& options, const Option& option) {
    if (option.kind == OptionKind::Report) {
        return Digits(
            {options.optReportScreen, options.optReportDisk, options.optReportPrinter, options.optReportNone});
    }
    if (const auto* const text = std::get_if<Text Options::*>(&option.member)) return ToUtf8(options.**text);
    return options.*std::get<bool Options::*>(option.member) ? "1" : "0";
}

// Gives an option a value that it does not have.
void Change(Options& options, const Option& option) {
    if (option.kind == OptionKind::Report) {
        SelectReport(options, options.optReportNone ? &Options::optReportPrinter : &Options::optReportNone);
    } else if (const auto* const text = std::get_if<Text Options::*>(&option.member)) {
        options.** text = options.**text == u"B" ? u"C" : u"B";
    } else {
        bool& value = options.*std::get<bool Options::*>(option.member);
        value = !value;
    }
}

// The options whose values differ, by their keys.
std::string ChangedKeys(const Options& before, const Options& after) {
    std::string keys;
    for (const Option& option : AllOptions()) {
        if (ValueOf(before, option) == ValueOf(after, option)) continue;
        keys.append(keys.empty() ? "" : " ").append(option.section).append("/").append(option.key);
    }
    return keys;
}

std::string KeyOf(const Option& option) { return std::string(option.section).append("/").append(option.key); }

class OptionsTest : public ProjectTest {};

TEST_F(OptionsTest, TheyBeginWithTheirDefaults) {
    const EnvironmentValue epoch("SOURCE_DATE_EPOCH", "1715644800");
    const Options start;
    EXPECT_EQ(start.txtAltDatum, u"20240514");
    EXPECT_TRUE(start.StartedInteractively);
    EXPECT_EQ(start.lstSource, 0);
    EXPECT_TRUE(start.optReportScreen);
    EXPECT_FALSE(start.optReportDisk || start.optReportPrinter || start.optReportNone);
    EXPECT_TRUE(start.chkImportUnknowns);
    EXPECT_FALSE(start.chkExportUnknowns);
    EXPECT_TRUE(start.optDateSEE);
    EXPECT_FALSE(start.optDateNow);
    EXPECT_FALSE(start.optDateAlt);
    EXPECT_FALSE(start.chkExport3D);
    EXPECT_FALSE(start.chkImportSymRotation);
    EXPECT_FALSE(start.chkExportSymRotation);
    EXPECT_EQ(start.txtPnoTxtLKI, u"");
    EXPECT_EQ(start.txtEleTxtLKI, u"");
    EXPECT_FALSE(start.chkSelectXY);
    EXPECT_EQ(start.txtMinX, u"0");
    EXPECT_EQ(start.txtMaxX, u"999999");
    EXPECT_EQ(start.txtMinY, u"0");
    EXPECT_EQ(start.txtMaxY, u"999999");
}

TEST_F(OptionsTest, TheSourceKindsStandInTheOrderOfTheirNumbers) {
    const std::vector<TextView> kinds(sourceKinds.begin(), sourceKinds.end());
    EXPECT_EQ(kinds, (std::vector<TextView>{u"Onbekend", u"Terrestr.", u"Fotogramm.", u"Digitizer", u"Scanner",
                                            u"Kaartverbet."}));
}

TEST_F(OptionsTest, OneListingDestinationIsSelected) {
    const auto selected = [this] {
        return Digits(
            {options.optReportScreen, options.optReportDisk, options.optReportPrinter, options.optReportNone});
    };
    SelectReport(options, &Options::optReportDisk);
    EXPECT_EQ(selected(), "0100");
    SelectReport(options, &Options::optReportPrinter);
    EXPECT_EQ(selected(), "0010");
    SelectReport(options, &Options::optReportNone);
    EXPECT_EQ(selected(), "0001");
    SelectReport(options, &Options::optReportScreen);
    EXPECT_EQ(selected(), "1000");
}

TEST_F(OptionsTest, TheDateOptionsExcludeEachOther) {
    const auto state = [this] { return Digits({options.optDateSEE, options.optDateNow, options.optDateAlt}); };
    SetDateOption(options, &Options::optDateAlt, true);
    EXPECT_EQ(state(), "001");
    SetDateOption(options, &Options::optDateSEE, false);
    EXPECT_EQ(state(), "001");
    SetDateOption(options, &Options::optDateNow, true);
    EXPECT_EQ(state(), "010");
    SetDateOption(options, &Options::optDateNow, false);
    EXPECT_EQ(state(), "000");
    SetDateOption(options, &Options::optDateSEE, true);
    EXPECT_EQ(state(), "100");
}

TEST_F(OptionsTest, EveryOptionHasAKeyOfItsOwnInItsSection) {
    std::set<std::string> keys;
    for (const Option& option : AllOptions()) {
        EXPECT_FALSE(option.key.empty());
        EXPECT_TRUE(keys.insert(ToCapitals(KeyOf(option))).second) << KeyOf(option);
        EXPECT_EQ(option.section.empty(), option.kind == OptionKind::PerUser) << KeyOf(option);
    }
    EXPECT_EQ(keys.size(), 34U);
}

TEST_F(OptionsTest, EveryOptionHasAPlaceOfItsOwn) {
    for (const Option& option : AllOptions()) {
        Options changed = options;
        Change(changed, option);
        EXPECT_EQ(ChangedKeys(options, changed), KeyOf(option));
    }
}

TEST_F(OptionsTest, TheOptionsOfASectionStandTogether) {
    std::set<std::string_view> before;
    std::string_view section;
    for (const Option& option : AllOptions()) {
        if (option.section == section) continue;
        EXPECT_TRUE(before.insert(option.section).second) << KeyOf(option);
        section = option.section;
    }
}

TEST_F(OptionsTest, EveryOptionOfTheControlTableIsWrittenAndReadBack) {
    // A control table is read in capitals.
    LoadEmptyProject(project);
    LoadProjectBytes(screen, project, ControlTableText(options, project.codes));
    const Project initial = project;
    for (const Option& option : AllOptions()) {
        if (option.kind == OptionKind::PerUser) continue;
        project = initial;
        if (option.kind == OptionKind::DateOption) {
            const auto member = std::get<bool Options::*>(option.member);
            SetDateOption(options, member, !(options.*member));
        } else {
            Change(options, option);
        }
        ASSERT_TRUE(SaveFile(folder / "a.nst"));
        const Options saved = options;
        EXPECT_NE(FileBytes(folder / "a.nst"), ControlTableText(initial.options, initial.codes)) << KeyOf(option);
        BeginAnew();
        ASSERT_TRUE(LoadFile(folder / "a.nst"));
        EXPECT_EQ(ChangedKeys(saved, options), "") << KeyOf(option);
        EXPECT_NE(ChangedKeys(initial.options, options), "") << KeyOf(option);
    }
}

TEST_F(OptionsTest, TheOptionsOfAUserAreNotInTheControlTable) {
    const std::string before = ControlTableText(options, project.codes);
    int perUser = 0;
    for (const Option& option : AllOptions()) {
        if (option.kind != OptionKind::PerUser) continue;
        ++perUser;
        Change(options, option);
        EXPECT_EQ(ControlTableText(options, project.codes), before) << option.key;
    }
    EXPECT_EQ(perUser, 8);
    // Nor are they read from one.
    const Options changed = options;
    LoadProjectBytes(screen, project, "ClipXY = 0\nMinX = 7\n[]\nClipXY = 0\nMinX = 7\n[Import]\nMinX = 7\n");
    EXPECT_EQ(options.chkSelectXY, changed.chkSelectXY);
    EXPECT_EQ(options.txtMinX, changed.txtMinX);
}

TEST_F(OptionsTest, TheCharacterSetIsChosenByItsNameAndAutomaticByAnyOther) {
    EXPECT_EQ(CharacterSetOf(options), CharacterSet::Automatic);
    for (std::size_t i = 0; i < characterSetNames.size(); ++i) {
        options.cboCharacterSet = characterSetNames[i];
        EXPECT_EQ(CharacterSetOf(options), static_cast<CharacterSet>(i));
    }
    options.cboCharacterSet = u"EBCDIC";
    EXPECT_EQ(CharacterSetOf(options), CharacterSet::Automatic);
}

TEST_F(OptionsTest, AResetPutsBackExactlyTheOptionsThatSaySo) {
    const Options start = options;
    for (const Option& option : AllOptions()) Change(options, option);
    const Options changed = options;
    ResetOptions(options);
    std::string reset;
    for (const Option& option : AllOptions()) {
        const Options& expected = option.isReset ? start : changed;
        EXPECT_EQ(ValueOf(options, option), ValueOf(expected, option)) << KeyOf(option);
        if (option.isReset) reset.append(reset.empty() ? "" : " ").append(option.key);
    }
    EXPECT_EQ(reset,
              "SUFNENFile IDEXFile Reporting AcceptUnknown IncludeUnknown IncludeNrAsField IncludeNrAsText "
              "IncludeZAsText ThreePointArcs");
}

TEST_F(OptionsTest, AResetLeavesWhatIsInNoTable) {
    options.lstSource = 3;
    options.StartedInteractively = false;
    ResetOptions(options);
    EXPECT_EQ(options.lstSource, 3);
    EXPECT_FALSE(options.StartedInteractively);
}

}  // namespace

}  // namespace korvande::testing
