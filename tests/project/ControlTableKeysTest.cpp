#include <algorithm>

#include "project/ControlTableReader.h"
#include "tests/project/ControlTableTest.h"

namespace korvande::testing {

namespace {

// A control table's line, and what becomes different by it.
struct KeyCase {
    const char* section;
    const char* line;
    const char* changes;
};

constexpr KeyCase keyCases[] = {
    {"NEN1878", "StandaloneAllowed = no", "StartedInteractively=0"},
    {"NEN1878", "NameLong = Bureau Één", "NameLong=BUREAU ÉÉN                         ; txtNameLong=BUREAU ÉÉN"},
    {"NEN1878", "NameShort = abcdefghij", "NameShort=ABCDEFGH; Source=ABCDE; txtNameShort=ABCDEFGH; txtSource=ABCDE"},
    {"NEN1878", "Street = Dorpsstraat", "Street=DORPSSTRAAT             ; txtStreet=DORPSSTRAAT"},
    {"NEN1878", "Number = 1234567", "Number=12345; txtNumber=12345"},
    {"NEN1878", "Extra = bis", "Extra=BIS  ; txtSuffix=BIS"},
    {"NEN1878", "ZipCode = 1234 ab", "ZipCode=1234 A; txtZipcode=1234 A"},
    {"NEN1878", "Town = Elders", "Town=ELDERS                  ; txtCity=ELDERS"},
    {"NEN1878", "Source = bron", "Source=BRON ; txtSource=BRON"},
    {"NEN1878", "SUFNENFile = C:\\Data\\Kaart.sfn", "txtFileSUFNEN=C:\\DATA\\KAART.SFN"},
    {"NEN1878", "IDEXFile = C:\\Data\\Kaart.idx", "txtFileIDEX=C:\\DATA\\KAART.IDX"},
    {"NEN1878", "SUF2Path = C:\\Data\\", "txtFileSUFNEN=C:\\DATA\\Voorbeeld.sfn"},
    {"NEN1878", "NEN1878Path = C:\\Data\\", "txtFileSUFNEN=C:\\DATA\\Voorbeeld.sfn"},
    {"NEN1878", "Reporting = File", "optReportScreen=0; optReportDisk=1"},
    {"Import", "AcceptUnknown = 0", "chkImportUnknowns=0"},
    {"Import", "OutputListing = Printer", "optReportScreen=0; optReportPrinter=1"},
    {"Import", "SymRotation = 1", "chkImportSymRotation=1"},
    {"Export", "IncludeUnknown = 1", "chkExportUnknowns=1"},
    {"Export", "IncludeNr = 1", "chkExportPointnoAsField=1"},
    {"Export", "IncludeNrAsField = 1", "chkExportPointnoAsField=1"},
    {"Export", "IncludeNrAsText = 1", "chkExportPointnoAsText=1"},
    {"Export", "PointIDLKI = z30", "txtPnoTxtLKI=Z30"},
    {"Export", "IncludeZ = 1", "chkExport3D=1"},
    {"Export", "IncludeZAsText = 1", "chkExportHeightAsText=1"},
    {"Export", "ElevationLKI = z31", "txtEleTxtLKI=Z31"},
    {"Export", "OutputListing = None", "optReportScreen=0; optReportNone=1"},
    {"Export", "SymRotation = 1", "chkExportSymRotation=1"},
    {"Export", "AltDate =19991231", "txtAltDatum=19991231"},
    {"Export", "UseDateSEE =False", "optDateSEE=0"},
    {"Export", "UseDateNow =True", "optDateSEE=0; optDateNow=1"},
    {"Export", "UseDateAlt =True", "optDateSEE=0; optDateAlt=1"},
};

TEST_F(ControlTable, EachKeySetsItsPlaceAndNothingElse) {
    for (const KeyCase& entry : keyCases) {
        const std::string line = Utf8ToWindows1252(entry.line);
        EXPECT_EQ(Changes(std::string("[") + entry.section + "]\n" + line + "\n[End]\n"), entry.changes) << entry.line;
    }
}

TEST_F(ControlTable, AKeyCountsInItsOwnSectionsOnly) {
    for (const KeyCase& entry : keyCases) {
        for (const char* section :
             {"", "[NEN1878]\n", "[Import]\n", "[Export]\n", "[Other]\n", "[]\n", "[NEN1878 ]\n"}) {
            const std::string line(entry.line);
            const std::string key = line.substr(0, line.find(' '));
            const bool isHome = std::any_of(std::begin(keyCases), std::end(keyCases), [&](const KeyCase& other) {
                return section == std::string("[") + other.section + "]\n" &&
                       std::string(other.line).starts_with(key + " ");
            });
            if (isHome) continue;
            EXPECT_EQ(Changes(section + line + "\n"), "") << section << line;
        }
    }
}

TEST_F(ControlTable, OnlyFileNonePrinterAreListingDestinationsBesideTheScreen) {
    const struct {
        const char* value;
        bool Options::*option;
    } cases[] = {{"FILE", &Options::optReportDisk},       {"none", &Options::optReportNone},
                 {"Printer", &Options::optReportPrinter}, {"Disk", &Options::optReportScreen},
                 {"Screen", &Options::optReportScreen},   {"", &Options::optReportScreen}};
    for (const char* key : {"[NEN1878]\nReporting", "[Import]\nOutputListing", "[Export]\nOutputListing"}) {
        for (const auto& [value, option] : cases) {
            Load(std::string("[NEN1878]\nReporting = None\n") + key + " = " + value + "\n[End]\n");
            EXPECT_TRUE(options.*option) << key << value;
            EXPECT_EQ(
                options.optReportScreen + options.optReportDisk + options.optReportPrinter + options.optReportNone, 1);
        }
    }
}

TEST_F(ControlTable, TheListingDestinationIsNoCheckBoxAndNoKeyOfTheOwner) {
    Load("[NEN1878]\nReporting = Printer\nTown = ELDERS\n[End]\n");
    EXPECT_TRUE(options.optReportPrinter);
    Load("[NEN1878]\nReporting = 0\n[End]\n");
    EXPECT_TRUE(options.optReportScreen);
}

TEST_F(ControlTable, AnOlderFolderKeyFillsTheIdexNameOnlyWhenThatIsEmpty) {
    Load("[NEN1878]\nIDEXFile = \nSUF2Path = d:\\werk\\\n[End]\n");
    EXPECT_EQ(options.txtFileSUFNEN, u"D:\\WERK\\Voorbeeld.sfn");
    EXPECT_EQ(options.txtFileIDEX, u"D:\\WERK\\Voorbeeld.sfn");
    Load("[NEN1878]\nIDEXFile = A.IDX\nNEN1878Path = d:\\werk\\\n[End]\n");
    EXPECT_EQ(options.txtFileIDEX, u"A.IDX");
}

TEST_F(ControlTable, ACheckBoxTakesZeroAndOneAndNothingElse) {
    const struct {
        const char* value;
        bool isSet;
    } cases[] = {{"0", false}, {"1", true}, {"1.0", true}, {" 1 ", true}, {"0.4", false}, {"+1", true}, {"1E0", true}};
    for (const auto& [value, isSet] : cases) {
        Load(std::string("[Import]\nSymRotation = ") + (isSet ? "0" : "1") + "\nSymRotation = " + value + "\n[End]\n");
        EXPECT_EQ(options.chkImportSymRotation, isSet) << value;
    }
    for (const char* value : {"", "2", "-1", "TRUE", "JA", "1 x", "1,0", "99999999999", "1e999"}) {
        for (const char* set : {"0", "1"}) {
            Load(std::string("[Import]\nSymRotation = ") + set + "\nSymRotation = " + value + "\n[End]\n");
            EXPECT_EQ(options.chkImportSymRotation, *set == '1') << value;
        }
    }
}

TEST_F(ControlTable, ADateOptionTakesAWordOrANumber) {
    for (const char* value : {"True", "TRUE", "true", "1", "-1", "0.5", "2"}) {
        Load(std::string("[Export]\nUseDateNow = ") + value + "\n[End]\n");
        EXPECT_TRUE(options.optDateNow) << value;
        EXPECT_FALSE(options.optDateSEE) << value;
        SetDateOption(options, &Options::optDateSEE, true);
    }
    for (const char* value : {"False", "0", "0.0", "", "JA", "YES", "WAAR", "1 x"}) {
        Load(std::string("[Export]\nUseDateNow = ") + value + "\n[End]\n");
        EXPECT_FALSE(options.optDateNow) << value;
        EXPECT_TRUE(options.optDateSEE) << value;
    }
}

TEST_F(ControlTable, TheAlternativeDateIsTakenWhenItsOptionIsTrue) {
    Load("[Export]\nUseDateAlt = True\n[End]\n");
    EXPECT_TRUE(options.optDateAlt);
    Load("[Export]\nUseDateAlt = False\n[End]\n");
    EXPECT_FALSE(options.optDateAlt);
}

TEST_F(ControlTable, TheLastDateOptionThatIsTrueIsSelected) {
    Load("[Export]\nUseDateAlt =True\nUseDateSEE =False\nUseDateNow =True\n[End]\n");
    EXPECT_FALSE(options.optDateAlt);
    EXPECT_TRUE(options.optDateNow);
}

TEST(TrueFalse, OnlyThreeWordsAreTrue) {
    const auto isTrue = [](std::string_view value) {
        bool result = false;
        bool opposite = true;
        INI_TrueFalse(value, result);
        INI_TrueFalse(value, opposite);
        EXPECT_EQ(result, opposite) << value;
        return result;
    };
    for (const char* word : {"1", "TRUE", "YES"}) EXPECT_TRUE(isTrue(word)) << word;
    for (const char* word : {"Y", "WAAR", "2", "-1", "ON", "JA", "yes", "True", "", " 1", "0", "FALSE"}) {
        EXPECT_FALSE(isTrue(word)) << word;
    }
}

TEST_F(ControlTable, StandaloneIsAllowedByThreeWordsInAnyCase) {
    for (const char* word : {"yes", "True", "1"}) {
        options.StartedInteractively = false;
        Load(std::string("[NEN1878]\nStandaloneAllowed = ") + word + "\n[End]\n");
        EXPECT_TRUE(options.StartedInteractively) << word;
    }
    for (const char* word : {"ja", "2", ""}) {
        options.StartedInteractively = true;
        Load(std::string("[NEN1878]\nStandaloneAllowed = ") + word + "\n[End]\n");
        EXPECT_FALSE(options.StartedInteractively) << word;
    }
}

}  // namespace

}  // namespace korvande::testing
