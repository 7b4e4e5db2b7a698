#include "project/OptionText.h"

#include <algorithm>

#include "tests/project/ProjectTest.h"

namespace korvande::testing {

namespace {

class OptionTextTest : public ProjectTest {
 protected:
    // The text of the option with this key.
    std::string TextOf(std::string_view key) const {
        const auto all = AllOptions();
        const auto found =
            std::find_if(all.begin(), all.end(), [key](const Option& option) { return option.key == key; });
        return found == all.end() ? "no such option" : ToUtf8(OptionText(options, *found));
    }
};

TEST_F(OptionTextTest, TheDestinationOfTheLogBookHasAWord) {
    const struct {
        bool Options::*option;
        const char* word;
    } cases[] = {{&Options::optReportScreen, "scherm"},
                 {&Options::optReportDisk, "schijf"},
                 {&Options::optReportPrinter, "printer"},
                 {&Options::optReportNone, "geen"}};
    for (const auto& [option, word] : cases) {
        SelectReport(options, option);
        EXPECT_EQ(TextOf("Reporting"), word);
    }
}

TEST_F(OptionTextTest, ADateTellsWhereItComesFrom) {
    options.txtAltDatum = u"20240514";
    SetDateOption(options, &Options::optDateSEE, true);
    EXPECT_EQ(TextOf("AltDate"), "uit het bestand");
    SetDateOption(options, &Options::optDateNow, true);
    EXPECT_EQ(TextOf("AltDate"), "vandaag");
    SetDateOption(options, &Options::optDateAlt, true);
    EXPECT_EQ(TextOf("AltDate"), "alternatief: 20240514");
}

TEST_F(OptionTextTest, ACheckBoxIsYesOrNoAndATextItself) {
    options.chkExport3D = true;
    EXPECT_EQ(TextOf("IncludeZ"), "ja");
    options.chkExport3D = false;
    EXPECT_EQ(TextOf("IncludeZ"), "nee");
    options.txtPnoTxtLKI = u"Z01";
    EXPECT_EQ(TextOf("PointIDLKI"), "Z01");
}

}  // namespace

}  // namespace korvande::testing
