#include <gtest/gtest.h>

#include <random>

#include "tests/project/ProjectState.h"
#include "tests/support/ProgramState.h"

namespace korvande::testing {

namespace {

class SavedControlTable : public ProgramTest {
 protected:
    // The file as saved, in UTF-8 and with line feeds.
    std::string Saved() {
        const Text name = folder / "project.nst";
        EXPECT_TRUE(SaveProjectFile(name));
        std::string text = Windows1252ToUtf8(FileBytes(name));
        EXPECT_EQ(std::count(text.begin(), text.end(), '\r'), std::count(text.begin(), text.end(), '\n'));
        std::erase(text, '\r');
        return text;
    }

    // The saved lines that begin with a key, behind the header of a section.
    std::string SavedLine(const std::string& section, const std::string& key) {
        const std::string text = Saved();
        const std::size_t sectionBegin = text.find("[" + section + "]\n");
        const std::size_t begin = text.find("\n" + key, sectionBegin);
        if (sectionBegin == std::string::npos || begin == std::string::npos) return "(none)";
        return text.substr(begin + 1, text.find('\n', begin + 1) - begin - 1);
    }
};

TEST_F(SavedControlTable, TheDefaultsAreWrittenLineByLine) {
    frmKORVANDE().txtAltDatum = u"20240514";
    EXPECT_EQ(Saved(),
              "[NEN1878]\n"
              "SUFNENFile = voorbeeld.sfn\n"
              "IDEXFile = voorbeeld.idx\n"
              "NameLong = VOSAIZO ZANDERVIK B.V.\n"
              "NameShort = VOSAIZO\n"
              "Street = POSTBUS\n"
              "Number = 418\n"
              "Extra = \n"
              "ZipCode = 7391KX\n"
              "Town = MOLVEREN\n"
              "Source = \n"
              "Reporting = Screen\n"
              "\n"
              "[Import]\n"
              "AcceptUnknown = 1\n"
              "SymRotation = 0\n"
              "\n"
              "[Export]\n"
              "IncludeUnknown = 0\n"
              "IncludeNrAsField = 0\n"
              "IncludeNrAsText = 0\n"
              "PointIDLKI = \n"
              "IncludeZ = 0\n"
              "IncludeZAsText = 0\n"
              "ElevationLKI = \n"
              "SymRotation = 0\n"
              "AltDate =20240514\n"
              "UseDateAlt =False\n"
              "UseDateSEE =True\n"
              "UseDateNow =False\n"
              "\n"
              "[Points]\n"
              "Unknown = STANDRD, Q20, PUNT, ONBEKEND PUNTOBJECT, 0, 0, 0\n"
              "\n"
              "[Lines]\n"
              "Unknown = STANDRD, Q00, LIJN, ONBEKEND LIJNOBJECT, 0, 0, 0\n"
              "\n"
              "[Texts]\n"
              "Unknown = STANDRD, Z19, ONBEKEND TEKSTOBJECT, 0, 0, 0\n"
              "\n"
              "[End]\n");
}

// A form in which nothing is as the reset leaves it.
void FillForm() {
    FormKORVANDE& form = frmKORVANDE();
    form.txtFileSUFNEN = u"C:\\Data\\Kaart één.sfn";
    form.txtFileIDEX = u"C:\\Data\\Kaart één.idx";
    form.txtNameLong = u"Gemeente Súdwest-Fryslân";
    form.txtNameShort = u"Súdwest";
    form.txtStreet = u"Marktstraat";
    form.txtNumber = u"15";
    form.txtSuffix = u"bis";
    form.txtZipcode = u"8601CR";
    form.txtCity = u"Sneek";
    form.txtSource = u"SWF";
    form.SelectReport(&FormKORVANDE::optReportPrinter);
    form.chkImportUnknowns = false;
    form.chkImportSymRotation = form.chkExportUnknowns = form.chkExportPointnoAsField = true;
    form.chkExportPointnoAsText = form.chkExport3D = form.chkExportHeightAsText = form.chkExportSymRotation = true;
    form.txtPnoTxtLKI = u"Z30";
    form.txtEleTxtLKI = u"Z31";
    form.txtAltDatum = u"19991231";
    form.SetDateOption(&FormKORVANDE::optDateAlt, true);
    form.gridPoints.SetRowCount(4);
    form.gridPoints[1] = {u"ANDERS", u"Q99", u"SYMBOOL", u"Onbekend", u"1", u"2", u"3"};
    form.gridPoints[2] = {u" AB ", u"S01 A01", u"ROT.PNT", u"Knotwilg €", u"-4", u"32767", u"-32768"};
    form.gridLines.SetRowCount(3);
    form.gridLines[2] = {u"MUUR", u"B05", u"GRENS", u"Muur, laag", u"1", u"x", u"12m"};
    form.gridTexts.SetRowCount(3);
    form.gridTexts[2] = {u"NAAM", u"Z02", u"TYPE", u"Straatnaam", u"7", u"8", u"9"};
}

TEST_F(SavedControlTable, EveryValueIsWrittenLineByLine) {
    FillForm();
    EXPECT_EQ(Saved(),
              "[NEN1878]\n"
              "SUFNENFile = C:\\Data\\Kaart één.sfn\n"
              "IDEXFile = C:\\Data\\Kaart één.idx\n"
              "NameLong = Gemeente Súdwest-Fryslân\n"
              "NameShort = Súdwest\n"
              "Street = Marktstraat\n"
              "Number = 15\n"
              "Extra = bis\n"
              "ZipCode = 8601CR\n"
              "Town = Sneek\n"
              "Source = SWF\n"
              "Reporting = Printer\n"
              "\n"
              "[Import]\n"
              "AcceptUnknown = 0\n"
              "SymRotation = 1\n"
              "\n"
              "[Export]\n"
              "IncludeUnknown = 1\n"
              "IncludeNrAsField = 1\n"
              "IncludeNrAsText = 1\n"
              "PointIDLKI = Z30\n"
              "IncludeZ = 1\n"
              "IncludeZAsText = 1\n"
              "ElevationLKI = Z31\n"
              "SymRotation = 1\n"
              "AltDate =19991231\n"
              "UseDateAlt =True\n"
              "UseDateSEE =False\n"
              "UseDateNow =False\n"
              "\n"
              "[Points]\n"
              "Unknown = ANDERS, Q99, SYMBOOL, Onbekend, 1, 2, 3\n"
              "AB = S01 A01, ROT.PNT, Knotwilg €,-4, 32767,-32768\n"
              " = , , , 0, 0, 0\n"
              "\n"
              "[Lines]\n"
              "Unknown = STANDRD, Q00, LIJN, ONBEKEND LIJNOBJECT, 0, 0, 0\n"
              "MUUR = B05, GRENS, Muur, laag, 1, 0, 12\n"
              "\n"
              "[Texts]\n"
              "Unknown = STANDRD, Z19, ONBEKEND TEKSTOBJECT, 0, 0, 0\n"
              "NAAM = Z02, Straatnaam, 7, 8, 9\n"
              "\n"
              "[End]\n");
}

TEST_F(SavedControlTable, EachCheckBoxHasItsLine) {
    const struct {
        bool FormKORVANDE::*box;
        const char* section;
        const char* key;
    } cases[] = {{&FormKORVANDE::chkImportUnknowns, "Import", "AcceptUnknown"},
                 {&FormKORVANDE::chkImportSymRotation, "Import", "SymRotation"},
                 {&FormKORVANDE::chkExportUnknowns, "Export", "IncludeUnknown"},
                 {&FormKORVANDE::chkExportPointnoAsField, "Export", "IncludeNrAsField"},
                 {&FormKORVANDE::chkExportPointnoAsText, "Export", "IncludeNrAsText"},
                 {&FormKORVANDE::chkExport3D, "Export", "IncludeZ ="},
                 {&FormKORVANDE::chkExportHeightAsText, "Export", "IncludeZAsText"},
                 {&FormKORVANDE::chkExportSymRotation, "Export", "SymRotation"}};
    for (const auto& [box, section, key] : cases) {
        frmKORVANDE().*box = false;
        EXPECT_TRUE(SavedLine(section, key).ends_with(" = 0")) << key;
        frmKORVANDE().*box = true;
        EXPECT_TRUE(SavedLine(section, key).ends_with(" = 1")) << key;
        frmKORVANDE().*box = false;
    }
}

TEST_F(SavedControlTable, TheListingDestinationIsOneOfFourWords) {
    FormKORVANDE& form = frmKORVANDE();
    const auto line = [&](bool FormKORVANDE::*option) {
        form.SelectReport(option);
        return SavedLine("NEN1878", "Reporting");
    };
    EXPECT_EQ(line(&FormKORVANDE::optReportDisk), "Reporting = Disk");
    EXPECT_EQ(line(&FormKORVANDE::optReportScreen), "Reporting = Screen");
    EXPECT_EQ(line(&FormKORVANDE::optReportPrinter), "Reporting = Printer");
    EXPECT_EQ(line(&FormKORVANDE::optReportNone), "Reporting = None");
    form.optReportNone = false;
    EXPECT_EQ(SavedLine("NEN1878", "Reporting"), "Reporting = None");
    form.optReportPrinter = form.optReportScreen = true;
    EXPECT_EQ(SavedLine("NEN1878", "Reporting"), "Reporting = Screen");
    form.optReportDisk = true;
    EXPECT_EQ(SavedLine("NEN1878", "Reporting"), "Reporting = Disk");
}

TEST_F(SavedControlTable, AListingToDiskComesBackAsOneToTheScreen) {
    frmKORVANDE().SelectReport(&FormKORVANDE::optReportDisk);
    ASSERT_TRUE(SaveProjectFile(folder / "a.nst"));
    ASSERT_TRUE(LoadProjectFile(folder / "a.nst"));
    EXPECT_TRUE(frmKORVANDE().optReportScreen);
    EXPECT_FALSE(frmKORVANDE().optReportDisk);
}

TEST_F(SavedControlTable, TheDateOptionsAreWrittenAsTheyAre) {
    frmKORVANDE().SetDateOption(&FormKORVANDE::optDateNow, true);
    EXPECT_EQ(SavedLine("Export", "UseDateAlt"), "UseDateAlt =False");
    EXPECT_EQ(SavedLine("Export", "UseDateSEE"), "UseDateSEE =False");
    EXPECT_EQ(SavedLine("Export", "UseDateNow"), "UseDateNow =True");
}

TEST_F(SavedControlTable, TextsAreWrittenAsTheyStandInTheirBoxes) {
    frmKORVANDE().txtNameShort = u"  Een heel lange korte naam  ";
    EXPECT_EQ(SavedLine("NEN1878", "NameShort"), "NameShort =   Een heel lange korte naam  ");
    frmKORVANDE().txtPnoTxtLKI = u" z30 ";
    EXPECT_EQ(SavedLine("Export", "PointIDLKI"), "PointIDLKI =  z30 ");
}

TEST_F(SavedControlTable, ACharacterWithoutAByteIsAQuestionMark) {
    frmKORVANDE().txtCity = u"Łódź 𝄞";
    EXPECT_EQ(SavedLine("NEN1878", "Town"), "Town = ?ód? ?");
}

TEST_F(SavedControlTable, TheOwnerBoxesReachTheOwnerRecord) {
    frmKORVANDE().txtNameLong = u"Bureau";
    frmKORVANDE().txtNameShort = u"Veel te lang";
    frmKORVANDE().txtSource = u"";
    Saved();
    EXPECT_EQ(TheOwner().NameLong, MakeFixedText<35>(u"Bureau"));
    EXPECT_EQ(TheOwner().NameShort, MakeFixedText<8>(u"Veel te lang"));
    EXPECT_TRUE(TheOwner().Source.IsBlank());
    EXPECT_FALSE(TheOwner().Source.NeverFilled());
}

TEST_F(SavedControlTable, TheGridsAreTakenIntoTheTables) {
    PointCodes().rows.resize(5);
    PointCodes().rows[0].Count = 3;
    frmKORVANDE().gridPoints[1][Grid::Description] = u"Gewijzigd";
    EXPECT_EQ(SavedLine("Points", "Unknown"), "Unknown = STANDRD, Q20, PUNT, Gewijzigd, 0, 0, 0");
    EXPECT_EQ(PointCodes().rows.size(), 1U);
    EXPECT_EQ(PointCodes().rows[0].Count, 0);
}

TEST_F(SavedControlTable, ACodeOfNineCharactersIsCut) {
    frmKORVANDE().gridLines.SetRowCount(3);
    frmKORVANDE().gridLines[2][Grid::Liscad] = u"ABCDEFGHI";
    EXPECT_EQ(SavedLine("Lines", "ABC"), "ABCDEFG = , , , 0, 0, 0");
}

TEST_F(SavedControlTable, ATableWithoutAnyRowHasNoUnknownLine) {
    for (Grid* grid : {&frmKORVANDE().gridPoints, &frmKORVANDE().gridLines, &frmKORVANDE().gridTexts}) {
        grid->SetRowCount(1);
    }
    const std::string text = Saved();
    EXPECT_TRUE(text.ends_with("\n\n[Points]\n\n[Lines]\n\n[Texts]\n\n[End]\n"));
}

TEST_F(SavedControlTable, AnEarlierFileIsWrittenOver) {
    folder.Write("project.nst", std::string(100'000, 'x'));
    EXPECT_TRUE(Saved().ends_with("\n[End]\n"));
}

TEST_F(SavedControlTable, WhatWasSavedIsLoadedAgainInCapitals) {
    FillForm();
    frmKORVANDE().gridLines[2][Grid::Description] = u"Muur";
    ASSERT_TRUE(SaveProjectFile(folder / "a.nst"));
    InitialiseForm();
    ASSERT_TRUE(LoadProjectFile(folder / "a.nst"));
    const FormKORVANDE& form = frmKORVANDE();
    EXPECT_EQ(form.txtFileSUFNEN, u"C:\\DATA\\KAART ÉÉN.SFN");
    EXPECT_EQ(form.txtNameLong, u"GEMEENTE SÚDWEST-FRYSLÂN");
    EXPECT_TRUE(form.optReportPrinter);
    EXPECT_FALSE(form.chkImportUnknowns);
    EXPECT_TRUE(form.chkExportSymRotation);
    EXPECT_TRUE(form.optDateAlt);
    EXPECT_EQ(form.txtAltDatum, u"19991231");
    EXPECT_EQ(TableText('P'),
              "ANDERS|Q99|SYMBOOL|ONBEKEND|1|2|3\nAB|S01 A01|ROT.PNT|KNOTWILG €|-4|32767|-32768\n||||0|0|0\n");
    EXPECT_EQ(TableText('L'), "STANDRD|Q00|LIJN|ONBEKEND LIJNOBJECT|0|0|0\nMUUR|B05|GRENS|MUUR|1|0|12\n");
    EXPECT_EQ(TableText('T'), "STANDRD|Z19||ONBEKEND TEKSTOBJECT|0|0|0\nNAAM|Z02||STRAATNAAM|7|8|9\n");
    // From here on nothing changes any more.
    const std::vector<std::string> before = ProjectState();
    ASSERT_TRUE(SaveProjectFile(folder / "b.nst"));
    InitialiseForm();
    ASSERT_TRUE(LoadProjectFile(folder / "b.nst"));
    EXPECT_EQ(Differences(before, ProjectState()), "");
    ASSERT_TRUE(SaveProjectFile(folder / "c.nst"));
    EXPECT_EQ(FileBytes(folder / "b.nst"), FileBytes(folder / "c.nst"));
}

TEST_F(SavedControlTable, EveryAccentSurvives) {
    Text accents;
    for (int byte = 0xC0; byte < 0xDF; ++byte) accents.push_back(static_cast<char16_t>(byte));
    accents += u"ŠŒŽŸß€µ";
    for (std::size_t at = 0; at < accents.size(); at += 7) {
        InitialiseForm();
        const Text part = accents.substr(at, 7);
        frmKORVANDE().txtCity = part;
        frmKORVANDE().gridTexts.SetRowCount(3);
        frmKORVANDE().gridTexts[2] = {part, part, u"", part, u"0", u"0", u"0"};
        ASSERT_TRUE(SaveProjectFile(folder / "a.nst"));
        InitialiseForm();
        ASSERT_TRUE(LoadProjectFile(folder / "a.nst"));
        EXPECT_EQ(frmKORVANDE().txtCity, part);
        EXPECT_EQ(frmKORVANDE().gridTexts[2], (Grid::Row{part, part, u"", part, u"0", u"0", u"0"}));
    }
}

// A cell that a control table can hold: in capitals, without what divides its lines and fields.
Text RandomCell(std::mt19937& random, std::size_t longest) {
    constexpr TextView letters = u"ABCÉÜ€Z0123456789.-/ '()";
    Text cell;
    for (std::size_t length = random() % (longest + 1); length > 0; --length)
        cell += letters[random() % letters.size()];
    return Text(Trim(cell));
}

void FillRandomly(Grid& grid, std::mt19937& random, bool withType) {
    grid.SetRowCount(static_cast<int>(2 + random() % 60));
    for (int row = 1; row < grid.RowCount(); ++row) {
        grid[row] = {Concat(u"C", RandomCell(random, 6)),         RandomCell(random, 7),
                     withType ? RandomCell(random, 7) : Text(),   RandomCell(random, 43),
                     Concat(static_cast<std::int16_t>(random())), Concat(static_cast<std::int16_t>(random())),
                     Concat(static_cast<std::int16_t>(random()))};
    }
}

TEST_F(SavedControlTable, RandomProjectsComeBackAsTheyWere) {
    std::mt19937 random(1878);
    for (int round = 0; round < 50; ++round) {
        InitialiseForm();
        FormKORVANDE& form = frmKORVANDE();
        for (Text* box : {&form.txtNameLong, &form.txtNameShort, &form.txtStreet, &form.txtNumber, &form.txtSuffix,
                          &form.txtZipcode, &form.txtCity, &form.txtPnoTxtLKI, &form.txtEleTxtLKI, &form.txtFileIDEX,
                          &form.txtFileSUFNEN, &form.txtAltDatum}) {
            *box = RandomCell(random, 5);
        }
        form.txtSource = u"BRON";
        for (bool* box : {&form.chkImportUnknowns, &form.chkImportSymRotation, &form.chkExportUnknowns,
                          &form.chkExportPointnoAsField, &form.chkExportPointnoAsText, &form.chkExport3D,
                          &form.chkExportHeightAsText, &form.chkExportSymRotation}) {
            *box = random() % 2 == 0;
        }
        FillRandomly(form.gridPoints, random, true);
        FillRandomly(form.gridLines, random, true);
        FillRandomly(form.gridTexts, random, false);
        ASSERT_TRUE(SaveProjectFile(folder / "a.nst"));
        const std::vector<std::string> saved = ProjectState();
        InitialiseForm();
        ASSERT_TRUE(LoadProjectFile(folder / "a.nst"));
        ASSERT_EQ(Differences(saved, ProjectState()), "") << round;
    }
}

TEST_F(SavedControlTable, TheSampleComesBackAsItWas) {
    ASSERT_TRUE(LoadProjectFile(FromUtf8(KORVANDE_SOURCE_DIR "/samples/voorbeeld.nst")));
    const std::vector<std::string> loaded = ProjectState();
    ASSERT_TRUE(SaveProjectFile(folder / "a.nst"));
    InitialiseForm();
    ASSERT_TRUE(LoadProjectFile(folder / "a.nst"));
    EXPECT_EQ(Differences(loaded, ProjectState()), "");
}

}  // namespace

}  // namespace korvande::testing
