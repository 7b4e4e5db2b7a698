#include <gtest/gtest.h>

#include <chrono>

#include "tests/project/ProjectState.h"
#include "tests/support/ProgramState.h"

namespace korvande::testing {

namespace {

class ControlTable : public ProgramTest {
 protected:
    // Loads a control table of these Windows-1252 lines.
    void Load(std::string_view linesWithLf) {
        ASSERT_TRUE(LoadProjectFile(folder.Write("project.nst", WithCrLf(linesWithLf))));
    }

    // What a control table changes in the state that one without any key leaves.
    std::string Changes(std::string_view lines) {
        InitialiseForm();
        Load("[End]\n");
        const std::vector<std::string> before = ProjectState();
        InitialiseForm();
        Load(lines);
        return Differences(before, ProjectState());
    }

    // The rows that lines in a section add to its table, or the unknown row that they leave.
    std::string Rows(char table, const std::string& lines) {
        const char* const section = table == 'P' ? "[Points]\n" : table == 'L' ? "[Lines]\n" : "[Texts]\n";
        Load(section + lines);
        const std::string text = TableText(table);
        return text.substr(text.find('\n') + 1);
    }
    std::string UnknownRow(char table, const std::string& lines) {
        Rows(table, lines);
        const std::string text = TableText(table);
        return text.substr(0, text.find('\n'));
    }
};

// A control table's line, and what becomes different by it.
struct KeyCase {
    const char* section;
    const char* line;
    const char* changes;
};

constexpr KeyCase keyCases[] = {
    {"NEN1878", "StandaloneAllowed = no", "framStandaloneVisible=0; StartedInteractively=0"},
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
    {"Export", "UseDateAlt =True", "txtAltDatumEnabled=1; optDateSEE=0; optDateAlt=1"},
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

TEST_F(ControlTable, CaseAndBlanksInTheFileDoNotMatter) {
    EXPECT_EQ(Changes("  [export]  \n   includez=1   \n"), "chkExport3D=1");
    EXPECT_EQ(Changes("[EXPORT]\nINCLUDEZ    =    1\n"), "chkExport3D=1");
}

TEST_F(ControlTable, AFileWithItsEndOnlyLeavesTheResetStateAndASource) {
    const std::vector<std::string> before = ProjectState();
    Load("[End]\n");
    EXPECT_EQ(Differences(before, ProjectState()), "Source=VOSAI; txtSource=VOSAI");
    EXPECT_EQ(TableText('P'), "STANDRD|Q20|PUNT|ONBEKEND PUNTOBJECT|0|0|0\n");
    EXPECT_EQ(TableText('L'), "STANDRD|Q00|LIJN|ONBEKEND LIJNOBJECT|0|0|0\n");
    EXPECT_EQ(TableText('T'), "STANDRD|Z19||ONBEKEND TEKSTOBJECT|0|0|0\n");
}

TEST_F(ControlTable, AnEmptyProjectIsAsAFileWithItsEndOnly) {
    Load("[End]\n");
    const std::vector<std::string> loaded = ProjectState();
    InitialiseForm();
    frmKORVANDE().chkExportUnknowns = true;
    PointCodes().rows.resize(3);
    LoadEmptyProject();
    EXPECT_EQ(Differences(loaded, ProjectState()), "");
}

TEST_F(ControlTable, AnEmptyFileIsAsOneWithItsEndOnly) {
    Load("[End]\n");
    const std::vector<std::string> loaded = ProjectState();
    InitialiseForm();
    Load("");
    EXPECT_EQ(Differences(loaded, ProjectState()), "");
}

TEST_F(ControlTable, ALoadBeginsWithAReset) {
    Load("[NEN1878]\nReporting = None\n[Export]\nIncludeUnknown = 1\n[Points]\nA = Q1, PUNT, X\n[End]\n");
    Load("[End]\n");
    EXPECT_TRUE(frmKORVANDE().optReportScreen);
    EXPECT_FALSE(frmKORVANDE().chkExportUnknowns);
    EXPECT_EQ(PointCodes().rows.size(), 1U);
}

TEST_F(ControlTable, TheOwnerOfThePreviousProjectSurvivesAFileWithoutOne) {
    Load("[NEN1878]\nNameLong = Bureau\nTown = Elders\nSource = BR\n[End]\n");
    Load("[NEN1878]\nTown = Hier\n[End]\n");
    EXPECT_EQ(TheOwner().NameLong.TrimmedRight(), u"BUREAU");
    EXPECT_EQ(TheOwner().Town.TrimmedRight(), u"HIER");
    EXPECT_EQ(frmKORVANDE().txtNameLong, u"BUREAU");
    EXPECT_EQ(frmKORVANDE().txtSource, u"BR");
}

TEST_F(ControlTable, TheSourceIsMadeFromTheShortNameAndElseFromTheLongOne) {
    Load("[NEN1878]\nSource = \nNameShort = Meetbureau\nNameLong = Lang\n[End]\n");
    EXPECT_EQ(frmKORVANDE().txtSource, u"MEETB");
    Load("[NEN1878]\nSource = \nNameShort = \nNameLong = Landmeters\n[End]\n");
    EXPECT_EQ(frmKORVANDE().txtSource, u"LANDM");
    Load("[NEN1878]\nSource = \nNameShort = \nNameLong = \n[End]\n");
    EXPECT_EQ(frmKORVANDE().txtSource, u"");
    TheOwner().Source = u" ab";
    Load("[End]\n");
    EXPECT_EQ(TheOwner().Source.View(), u"ab   ");
    TheOwner().Source = u"";
    TheOwner().NameShort = u"één ding";
    Load("[End]\n");
    EXPECT_EQ(TheOwner().Source.View(), u"ÉÉN D");
    EXPECT_EQ(TheOwner().NameShort.View(), u"één ding");
}

TEST_F(ControlTable, TheProjectNameIsTheFileNameWithoutItsExtension) {
    CurrentProject() = u"Mijn straat.nst";
    Load("[End]\n");
    EXPECT_EQ(frmKORVANDE().txtProject, u"Mijn straat");
    CurrentProject() = u"nst";
    Load("[End]\n");
    EXPECT_EQ(frmKORVANDE().txtProject, u"");
}

TEST_F(ControlTable, TheGridsShowWhatWasLoaded) {
    int shown = 0;
    frmKORVANDE().changed = [&shown] { ++shown; };
    Load("[Points]\nAB = Q21, PUNT, BOOM, 1, 2, 3\n[End]\n");
    ASSERT_EQ(frmKORVANDE().gridPoints.RowCount(), 3);
    EXPECT_EQ(frmKORVANDE().gridPoints[2], (Grid::Row{u"AB", u"Q21", u"PUNT", u"BOOM", u"1", u"2", u"3"}));
    EXPECT_EQ(shown, 1);
}

TEST_F(ControlTable, OnlyFileNonePrinterAreListingDestinationsBesideTheScreen) {
    const struct {
        const char* value;
        bool FormKORVANDE::*option;
    } cases[] = {{"FILE", &FormKORVANDE::optReportDisk},       {"none", &FormKORVANDE::optReportNone},
                 {"Printer", &FormKORVANDE::optReportPrinter}, {"Disk", &FormKORVANDE::optReportScreen},
                 {"Screen", &FormKORVANDE::optReportScreen},   {"", &FormKORVANDE::optReportScreen}};
    for (const char* key : {"[NEN1878]\nReporting", "[Import]\nOutputListing", "[Export]\nOutputListing"}) {
        for (const auto& [value, option] : cases) {
            Load(std::string("[NEN1878]\nReporting = None\n") + key + " = " + value + "\n[End]\n");
            const FormKORVANDE& form = frmKORVANDE();
            EXPECT_TRUE(form.*option) << key << value;
            EXPECT_EQ(form.optReportScreen + form.optReportDisk + form.optReportPrinter + form.optReportNone, 1);
        }
    }
}

TEST_F(ControlTable, AnOlderFolderKeyFillsTheIdexNameOnlyWhenThatIsEmpty) {
    Load("[NEN1878]\nIDEXFile = \nSUF2Path = d:\\werk\\\n[End]\n");
    EXPECT_EQ(frmKORVANDE().txtFileSUFNEN, u"D:\\WERK\\Voorbeeld.sfn");
    EXPECT_EQ(frmKORVANDE().txtFileIDEX, u"D:\\WERK\\Voorbeeld.sfn");
    Load("[NEN1878]\nIDEXFile = A.IDX\nNEN1878Path = d:\\werk\\\n[End]\n");
    EXPECT_EQ(frmKORVANDE().txtFileIDEX, u"A.IDX");
}

TEST_F(ControlTable, ACheckBoxTakesZeroAndOneAndNothingElse) {
    const struct {
        const char* value;
        bool isSet;
    } cases[] = {{"0", false}, {"1", true}, {"1.0", true}, {" 1 ", true}, {"0.4", false}, {"+1", true}, {"1E0", true}};
    for (const auto& [value, isSet] : cases) {
        Load(std::string("[Import]\nSymRotation = ") + (isSet ? "0" : "1") + "\nSymRotation = " + value + "\n[End]\n");
        EXPECT_EQ(frmKORVANDE().chkImportSymRotation, isSet) << value;
    }
    for (const char* value : {"", "2", "-1", "TRUE", "JA", "1 x", "1,0", "99999999999", "1e999"}) {
        for (const char* set : {"0", "1"}) {
            Load(std::string("[Import]\nSymRotation = ") + set + "\nSymRotation = " + value + "\n[End]\n");
            EXPECT_EQ(frmKORVANDE().chkImportSymRotation, *set == '1') << value;
        }
    }
}

TEST_F(ControlTable, ADateOptionTakesAWordOrANumber) {
    for (const char* value : {"True", "TRUE", "true", "1", "-1", "0.5", "2"}) {
        Load(std::string("[Export]\nUseDateNow = ") + value + "\n[End]\n");
        EXPECT_TRUE(frmKORVANDE().optDateNow) << value;
        EXPECT_FALSE(frmKORVANDE().optDateSEE) << value;
        frmKORVANDE().SetDateOption(&FormKORVANDE::optDateSEE, true);
    }
    for (const char* value : {"False", "0", "0.0", "", "JA", "YES", "WAAR", "1 x"}) {
        Load(std::string("[Export]\nUseDateNow = ") + value + "\n[End]\n");
        EXPECT_FALSE(frmKORVANDE().optDateNow) << value;
        EXPECT_TRUE(frmKORVANDE().optDateSEE) << value;
    }
}

TEST_F(ControlTable, TheAlternativeDateCanBeEditedOnlyWhileItIsTaken) {
    Load("[Export]\nUseDateAlt = True\n[End]\n");
    EXPECT_TRUE(frmKORVANDE().optDateAlt);
    EXPECT_TRUE(frmKORVANDE().txtAltDatumEnabled);
    Load("[Export]\nUseDateAlt = False\n[End]\n");
    EXPECT_FALSE(frmKORVANDE().optDateAlt);
    EXPECT_FALSE(frmKORVANDE().txtAltDatumEnabled);
}

TEST_F(ControlTable, TheLastDateOptionThatIsTrueIsSelected) {
    Load("[Export]\nUseDateAlt =True\nUseDateSEE =False\nUseDateNow =True\n[End]\n");
    EXPECT_FALSE(frmKORVANDE().optDateAlt);
    EXPECT_TRUE(frmKORVANDE().optDateNow);
    EXPECT_FALSE(frmKORVANDE().txtAltDatumEnabled);
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
        StartedInteractively() = false;
        Load(std::string("[NEN1878]\nStandaloneAllowed = ") + word + "\n[End]\n");
        EXPECT_TRUE(StartedInteractively()) << word;
        EXPECT_TRUE(frmKORVANDE().framStandaloneVisible) << word;
    }
    for (const char* word : {"ja", "2", ""}) {
        StartedInteractively() = true;
        Load(std::string("[NEN1878]\nStandaloneAllowed = ") + word + "\n[End]\n");
        EXPECT_FALSE(StartedInteractively()) << word;
        EXPECT_FALSE(frmKORVANDE().framStandaloneVisible) << word;
    }
}

TEST_F(ControlTable, ACodeRowTakesItsFields) {
    EXPECT_EQ(Rows('P', "ab = q21, symbool, boom, 1, -2, 3\n"), "AB|Q21|SYMBOOL|BOOM|1|-2|3\n");
    EXPECT_EQ(Rows('L', "ab = b01, grens, gebouw, 1, 2, 3\n"), "AB|B01|GRENS|GEBOUW|1|2|3\n");
    EXPECT_EQ(Rows('T', "ab = z02, straatnaam, 1, 2, 3\n"), "AB|Z02||STRAATNAAM|1|2|3\n");
    EXPECT_FALSE(TextCodes().rows[1].Type.NeverFilled());
}

TEST_F(ControlTable, TheOlderRotatedPointTypeIsRenamed) {
    EXPECT_EQ(Rows('P', "AB = Q20, ROT.PUN, BOOM\n"), "AB|Q20|ROT.PNT|BOOM|0|0|0\n");
    EXPECT_EQ(Rows('P', "AB = ROT.PUN, ROT.PUNT, ROT.PUN\n"), "AB|ROT.PUN|ROT.PUN|ROT.PUN|0|0|0\n");
    EXPECT_EQ(Rows('L', "AB = Q20, ROT.PUN, X\n"), "AB|Q20|ROT.PUN|X|0|0|0\n");
    EXPECT_EQ(Rows('T', "AB = Q20, ROT.PUN, 1, 2, 3\n"), "AB|Q20||ROT.PUN|1|2|3\n");
    EXPECT_EQ(UnknownRow('P', "UNKNOWN = AB, ROT.PUN, PUNT, X, 1, 2, 3\n"), "AB|ROT.PNT|PUNT|X|1|2|3");
}

TEST_F(ControlTable, MissingNumbersAreZero) {
    EXPECT_EQ(Rows('T', "T1 = Z19, NAAM\n"), "T1|Z19||NAAM|0|0|0\n");
    EXPECT_EQ(Rows('P', "AB = Q20, PUNT, BOOM\n"), "AB|Q20|PUNT|BOOM|0|0|0\n");
}

TEST_F(ControlTable, FieldsThatAreShortOfTheirNumberGetThreeZerosBehindThem) {
    EXPECT_EQ(Rows('P', "AB =\n"), "AB|0|0|0|0|0|0\n");
    EXPECT_EQ(Rows('P', "AB = Q20\n"), "AB|Q20|0|0|0|0|0\n");
    EXPECT_EQ(Rows('P', "AB = Q20, PUNT\n"), "AB|Q20|PUNT|0|0|0|0\n");
    EXPECT_EQ(Rows('P', "AB = Q20, PUNT, X, 4\n"), "AB|Q20|PUNT|X|4|0|0\n");
    EXPECT_EQ(Rows('P', "AB = Q20, PUNT, X, 4, 5\n"), "AB|Q20|PUNT|X|4|5|0\n");
    EXPECT_EQ(Rows('P', "AB = Q20, PUNT, X, 4, 5, 6, 7, 8\n"), "AB|Q20|PUNT|X|4|5|6\n");
    EXPECT_EQ(Rows('T', "AB =\n"), "AB|0||0|0|0|0\n");
    EXPECT_EQ(Rows('T', "AB = Z19\n"), "AB|Z19||0|0|0|0\n");
    EXPECT_EQ(Rows('T', "AB = Z19, X, 4\n"), "AB|Z19||X|4|0|0\n");
    EXPECT_EQ(Rows('T', "AB = Z19, X, 4, 5\n"), "AB|Z19||X|4|5|0\n");
}

TEST_F(ControlTable, ATrailingSeparatorMakesOneMoreEmptyField) {
    EXPECT_EQ(Rows('P', "AB = Q20, PUNT, X, 4, 5,\n"), "AB|Q20|PUNT|X|4|5|0\n");
    EXPECT_EQ(Rows('P', "AB = Q20, PUNT,\n"), "AB|Q20|PUNT||0|0|0\n");
    EXPECT_EQ(Rows('P', "AB = ,,,,,\n"), "AB||||0|0|0\n");
}

TEST_F(ControlTable, TheUnknownRowIsOverwritten) {
    EXPECT_EQ(UnknownRow('P', "Unknown = ABC, Q99, SYMBOOL, Anders, 1, 2, 3\n"), "ABC|Q99|SYMBOOL|ANDERS|1|2|3");
    EXPECT_EQ(UnknownRow('L', "Unknown = ABC, Q99, GRENS, Anders, 1, 2, 3\n"), "ABC|Q99|GRENS|ANDERS|1|2|3");
    EXPECT_EQ(UnknownRow('T', "Unknown = ABC, Z99, Anders, 1, 2, 3\n"), "ABC|Z99||ANDERS|1|2|3");
    EXPECT_EQ(TextCodes().rows.size(), 1U);
}

TEST_F(ControlTable, AMissingLastFieldOfTheUnknownRowLeavesWhatIsThere) {
    EXPECT_EQ(UnknownRow('P', "Unknown = A, Q9, PUNT, X, 1, 2, 3\nUnknown = B, Q8, DUMMY, Y, 4, 5\n"),
              "B|Q8|DUMMY|Y|4|5|3");
    EXPECT_EQ(UnknownRow('T', "Unknown = A, Z9, X, 1, 2, 3\nUnknown = B, Z8, Y, 4, 5\n"), "B|Z8||Y|4|5|3");
    EXPECT_EQ(UnknownRow('P', "Unknown = A, Q9, PUNT, X\n"), "A|Q9|PUNT|X|0|0|0");
    EXPECT_EQ(UnknownRow('P', "Unknown = A\n"), "A|0|0|0|0|0|0");
    EXPECT_EQ(UnknownRow('L', "Unknown =\n"), "0|0|0|ONBEKEND LIJNOBJECT|0|0|0");
}

TEST_F(ControlTable, CodesAndDescriptionsThatAreTooLongAreCut) {
    EXPECT_EQ(Rows('P', "ABCDEFGHI = 123456789, GRONDSLAG, " + std::string(50, 'X') + "\n"),
              "ABCDEFG|1234567|GRONDSL|" + std::string(43, 'X') + "|0|0|0\n");
}

TEST_F(ControlTable, DuplicatesAreAppended) {
    EXPECT_EQ(Rows('L', "A = Q1, LIJN, EEN\nA = Q2, LIJN, TWEE\nA = Q1, LIJN, EEN\n"),
              "A|Q1|LIJN|EEN|0|0|0\nA|Q2|LIJN|TWEE|0|0|0\nA|Q1|LIJN|EEN|0|0|0\n");
}

TEST_F(ControlTable, ARemarkBehindARowIsDropped) {
    EXPECT_EQ(Rows('P', "AB = Q20, PUNT, BOOM # een boom, 1, 2, 3\n"), "AB|Q20|PUNT|BOOM|0|0|0\n");
    EXPECT_EQ(Rows('P', "AB = Q20, PUNT, BOOM, 1, 2, 3 # hoogte\n"), "AB|Q20|PUNT|BOOM|1|2|3\n");
    EXPECT_EQ(Rows('P', "AB = # niets\n"), "AB|0|0|0|0|0|0\n");
}

TEST_F(ControlTable, LinesWithoutAnEqualSignAreSkipped) {
    EXPECT_EQ(Rows('P', "\n# een opmerking\nlosse woorden\n   \nAB = Q20, PUNT, X\nAB Q20\n"), "AB|Q20|PUNT|X|0|0|0\n");
}

TEST_F(ControlTable, ABlankCodeIsACode) { EXPECT_EQ(Rows('P', " = Q20, DUMMY, LEEG\n"), "|Q20|DUMMY|LEEG|0|0|0\n"); }

TEST_F(ControlTable, QuotedFieldsKeepTheirQuotes) {
    EXPECT_EQ(Rows('P', "AB = Q20, PUNT, \"een, twee\", 1, 2, 3\n"), "AB|Q20|PUNT|\"EEN, TWEE\"|1|2|3\n");
    EXPECT_EQ(Rows('P', "AB = Q20, PUNT, \"een \"\"b\"\"\", 1, 2, 3\n"), "AB|Q20|PUNT|\"EEN \"\"B\"\"\"|1|2|3\n");
    EXPECT_EQ(Rows('P', "AB = Q20, PUNT, \"open, 1, 2, 3\n"), "AB|Q20|PUNT|\"OPEN|1|2|3\n");
}

TEST_F(ControlTable, NumbersOfARowAreLeadingNumbersOfSixteenBits) {
    EXPECT_EQ(Rows('P', "AB = Q20, PUNT, X, 12m, , -3.5\n"), "AB|Q20|PUNT|X|12|0|-4\n");
    EXPECT_EQ(Rows('P', "AB = Q20, PUNT, X, 32767, 32768, -32768\n"), "AB|Q20|PUNT|X|32767|0|-32768\n");
    EXPECT_EQ(Rows('P', "AB = Q20, PUNT, X, X1, 1E999, -\n"), "AB|Q20|PUNT|X|0|0|0\n");
}

TEST_F(ControlTable, OnlyTheFirstEqualSignDividesALine) {
    EXPECT_EQ(Rows('P', "AB = Q20, PUNT, A=B\n"), "AB|Q20|PUNT|A=B|0|0|0\n");
    Load("[NEN1878]\nSUFNENFile = a=b.sfn\n");
    EXPECT_EQ(frmKORVANDE().txtFileSUFNEN, u"A=B.SFN");
}

TEST_F(ControlTable, NothingBehindTheEndIsRead) {
    EXPECT_EQ(Rows('P', "AB = Q20, PUNT, X\n[End]\nCD = Q20, PUNT, X\n[Points]\nEF = Q20, PUNT, X\n"),
              "AB|Q20|PUNT|X|0|0|0\n");
}

TEST_F(ControlTable, TheClosingBracketOfAHeaderIsNotChecked) {
    Load("[PointsX\nAB = Q20, PUNT, X\n[EndX\nCD = Q20, PUNT, X\n");
    EXPECT_EQ(PointCodes().rows.size(), 2U);
    Load("[\nAB = Q20, PUNT, X\n[]\nAB = Q20, PUNT, X\n");
    EXPECT_EQ(PointCodes().rows.size(), 1U);
}

TEST_F(ControlTable, ASectionMayComeTwice) {
    EXPECT_EQ(Rows('P', "A = Q1, PUNT, X\n[Lines]\nL = Q1, LIJN, X\n[POINTS]\nB = Q1, PUNT, X\n"),
              "A|Q1|PUNT|X|0|0|0\nB|Q1|PUNT|X|0|0|0\n");
}

TEST_F(ControlTable, AKeyThatComesTwiceTakesTheLastValue) {
    EXPECT_EQ(Changes("[Export]\nIncludeZ = 1\nIncludeZ = 0\nPointIDLKI = A\nPointIDLKI = B\n"), "txtPnoTxtLKI=B");
}

TEST_F(ControlTable, ABlankIsASpaceAndNoTab) { EXPECT_EQ(Changes("[Export]\n\tIncludeZ = 1\n"), ""); }

TEST(ReadIni, GivesTheNextPairAndKeepsTheSection) {
    const TestFolder folder;
    LineReader file(folder.Write(
        "a.nst", "eerst = 1\r\n[Een]\r\n\r\nKey = Waarde é \r\nleeg=\r\n[Twee]\r\n=x\r\n[End]\r\nz=1\r\n"));
    std::string section = "BEGIN";
    std::string key;
    std::string value;
    const auto next = [&] {
        ReadINI(file, section, key, value);
        return section + "|" + key + "|" + value;
    };
    EXPECT_EQ(next(), "BEGIN|EERST|1");
    EXPECT_EQ(next(), "EEN|KEY|WAARDE \xC3\xA9");
    EXPECT_EQ(next(), "EEN|LEEG|");
    EXPECT_EQ(next(), "TWEE||X");
    EXPECT_EQ(next(), "END||");
}

TEST(ReadIni, TheEndOfTheFileIsTheEndOfTheData) {
    const TestFolder folder;
    LineReader file(folder.Write("a.nst", "[Een]\nkey = 1"));
    std::string section;
    std::string key;
    std::string value;
    ReadINI(file, section, key, value);
    EXPECT_EQ(section + "|" + key + "|" + value, "EEN|KEY|1");
    for (int i = 0; i < 3; ++i) {
        ReadINI(file, section, key, value);
        EXPECT_EQ(section + "|" + key + "|" + value, "END||");
    }
}

// A control table with something of everything, its accents in Windows-1252.
std::string FullTable() {
    return Utf8ToWindows1252(
        "[NEN1878]\nNameLong = Bureau Één\nTown = Sint Anthonis ü\nReporting = None\n\n[Import]\nAcceptUnknown = 0\n\n"
        "[Export]\nIncludeZ = 1\nUseDateNow =True\n\n[Points]\nUnknown = STANDRD, Q20, PUNT, ONBEKEND, 1, 2, 3\n"
        "AB = Q21, ROT.PUN, BOOM Ž€, 4, 5, 6 # remark\n\n[Lines]\nMUUR = B05, LIJN, MUUR\n\n[Texts]\n"
        "NAAM = Z02, STRAATNAAM, 1, 1, 1\n\n[End]\n");
}

TEST_F(ControlTable, EveryKindOfLineEndIsRead) {
    Load(FullTable());
    const std::string expected = ProjectStateText();
    ASSERT_NE(expected.find("NameLong=BUREAU ÉÉN "), std::string::npos);
    ASSERT_NE(expected.find("AB|Q21|ROT.PNT|BOOM Ž€|4|5|6"), std::string::npos);
    std::string bytes = FullTable();
    InitialiseForm();
    ASSERT_TRUE(LoadProjectFile(folder.Write("lf.nst", bytes)));
    EXPECT_EQ(ProjectStateText(), expected);
    std::replace(bytes.begin(), bytes.end(), '\n', '\r');
    InitialiseForm();
    ASSERT_TRUE(LoadProjectFile(folder.Write("cr.nst", bytes)));
    EXPECT_EQ(ProjectStateText(), expected);
    InitialiseForm();
    ASSERT_TRUE(LoadProjectFile(folder.Write("eof.nst", WithCrLf(FullTable()) + "\x1A")));
    EXPECT_EQ(ProjectStateText(), expected);
}

TEST_F(ControlTable, AUtf8ByteOrderMarkIsBelieved) {
    Load(FullTable());
    const std::string expected = ProjectStateText();
    InitialiseForm();
    ASSERT_TRUE(LoadProjectFile(folder.Write("utf8.nst", "\xEF\xBB\xBF" + Windows1252ToUtf8(FullTable()))));
    EXPECT_EQ(ProjectStateText(), expected);
}

TEST_F(ControlTable, AFileCutOffAnywhereIsReadAsFarAsItGoes) {
    const std::string whole = WithCrLf(FullTable());
    Load(FullTable());
    const std::string points = TableText('P');
    std::size_t rows = 3;
    for (std::size_t length = 0; length <= whole.size(); ++length) {
        ASSERT_TRUE(LoadProjectFile(folder.Write("kort.nst", whole.substr(0, length))));
        const std::size_t rowsNow = PointCodes().rows.size() + LineCodes().rows.size() + TextCodes().rows.size();
        ASSERT_TRUE(rowsNow == rows || rowsNow == rows + 1) << length;
        rows = rowsNow;
    }
    EXPECT_EQ(rows, 6U);
    EXPECT_EQ(TableText('P'), points);
    EXPECT_TRUE(screen.messages.empty());
}

TEST_F(ControlTable, AnyBytesAreReadWithoutHarm) {
    std::string bytes = "[Points]\n";
    for (int i = 0; i < 4096; ++i) bytes.push_back(static_cast<char>((i * 7919) >> 3));
    ASSERT_TRUE(LoadProjectFile(folder.Write("ruis.nst", bytes)));
    EXPECT_FALSE(PointCodes().rows.empty());
    EXPECT_EQ(frmKORVANDE().gridPoints.RowCount(), static_cast<int>(PointCodes().rows.size()) + 1);
}

TEST_F(ControlTable, ALineOfTenMegabytesIsALine) {
    EXPECT_EQ(Rows('P', "AB = Q20, PUNT, " + std::string(10'000'000, 'x') + ", 1, 2, 3\n"),
              "AB|Q20|PUNT|" + std::string(43, 'X') + "|1|2|3\n");
}

TEST_F(ControlTable, ManyRowsLoadInTimeThatGrowsWithTheirNumber) {
    constexpr int count = 200'000;
    std::string lines = "[Points]\n";
    for (int i = 0; i < count; ++i) lines += "C" + std::to_string(i) + " = Q20, PUNT, OMSCHRIJVING, 1, 2, 3\n";
    const auto start = std::chrono::steady_clock::now();
    Load(lines);
    const std::chrono::duration<double> seconds = std::chrono::steady_clock::now() - start;
    EXPECT_EQ(PointCodes().rows.size(), count + 1U);
    // Copying the table for each row would take hours.
    EXPECT_LT(seconds.count(), 30);
}

TEST_F(ControlTable, TheSampleHasItsRows) {
    ASSERT_TRUE(LoadProjectFile(FromUtf8(KORVANDE_SOURCE_DIR "/samples/voorbeeld.nst")));
    const std::string points = TableText('P');
    EXPECT_EQ(points.substr(0, points.find('\n')), "STANDRD|Q20|PUNT|ONBEKEND PUNTOBJECT|0|0|0");
    EXPECT_NE(points.find("\n|Q20|DUMMY|"), std::string::npos);
    EXPECT_NE(TableText('L').find("É"), std::string::npos);
    EXPECT_GE(PointCodes().rows.size() + LineCodes().rows.size() + TextCodes().rows.size(), 43U);
}

}  // namespace

}  // namespace korvande::testing
