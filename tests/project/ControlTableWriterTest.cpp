#include <gtest/gtest.h>

#include <random>

#include "tests/project/ProjectTest.h"

namespace korvande::testing {

namespace {

class SavedControlTable : public ProjectTest {
 protected:
    // The file as saved, in UTF-8 and with line feeds.
    std::string Saved() {
        const Text name = folder / "project.nst";
        EXPECT_TRUE(SaveFile(name));
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
    options.txtAltDatum = u"20240514";
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

// A project in which nothing is as the reset leaves it.
void Fill(Project& project) {
    Options& options = project.options;
    options.txtFileSUFNEN = u"C:\\Data\\Kaart één.sfn";
    options.txtFileIDEX = u"C:\\Data\\Kaart één.idx";
    options.txtNameLong = u"Gemeente Súdwest-Fryslân";
    options.txtNameShort = u"Súdwest";
    options.txtStreet = u"Marktstraat";
    options.txtNumber = u"15";
    options.txtSuffix = u"bis";
    options.txtZipcode = u"8601CR";
    options.txtCity = u"Sneek";
    options.txtSource = u"SWF";
    SelectReport(options, &Options::optReportPrinter);
    options.chkImportUnknowns = false;
    options.chkImportSymRotation = options.chkExportUnknowns = options.chkExportPointnoAsField = true;
    options.chkExportPointnoAsText = options.chkExport3D = options.chkExportHeightAsText =
        options.chkExportSymRotation = true;
    options.txtPnoTxtLKI = u"Z30";
    options.txtEleTxtLKI = u"Z31";
    options.txtAltDatum = u"19991231";
    SetDateOption(options, &Options::optDateAlt, true);
    Edit(project.codes.points, 1, {u"ANDERS", u"Q99", u"SYMBOOL", u"Onbekend", u"1", u"2", u"3"});
    Edit(project.codes.points, 2, {u" AB ", u"S01 A01", u"ROT.PNT", u"Knotwilg €", u"-4", u"32767", u"-32768"});
    Edit(project.codes.points, 3, {});
    Edit(project.codes.lines, 2, {u"MUUR", u"B05", u"GRENS", u"Muur, laag", u"1", u"x", u"12m"});
    Edit(project.codes.texts, 2, {u"NAAM", u"Z02", u"TYPE", u"Straatnaam", u"7", u"8", u"9"});
}

TEST_F(SavedControlTable, EveryValueIsWrittenLineByLine) {
    Fill(project);
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
        bool Options::*box;
        const char* section;
        const char* key;
    } cases[] = {{&Options::chkImportUnknowns, "Import", "AcceptUnknown"},
                 {&Options::chkImportSymRotation, "Import", "SymRotation"},
                 {&Options::chkExportUnknowns, "Export", "IncludeUnknown"},
                 {&Options::chkExportPointnoAsField, "Export", "IncludeNrAsField"},
                 {&Options::chkExportPointnoAsText, "Export", "IncludeNrAsText"},
                 {&Options::chkExport3D, "Export", "IncludeZ ="},
                 {&Options::chkExportHeightAsText, "Export", "IncludeZAsText"},
                 {&Options::chkExportSymRotation, "Export", "SymRotation"}};
    for (const auto& [box, section, key] : cases) {
        options.*box = false;
        EXPECT_TRUE(SavedLine(section, key).ends_with(" = 0")) << key;
        options.*box = true;
        EXPECT_TRUE(SavedLine(section, key).ends_with(" = 1")) << key;
        options.*box = false;
    }
}

TEST_F(SavedControlTable, ThreePointArcsHaveALineOnlyWhenTheyAreWanted) {
    const std::string without = ControlTableText(options, project.codes);
    EXPECT_EQ(without.find("ThreePointArcs"), std::string::npos);
    options.chkThreePointArcs = true;
    const std::string with = ControlTableText(options, project.codes);
    EXPECT_NE(with.find("SymRotation = 0\r\nThreePointArcs = 1\r\nAltDate ="), std::string::npos) << with;
    LoadProjectBytes(screen, project, with);
    EXPECT_TRUE(project.options.chkThreePointArcs);
    // A table without the line does not want them, whatever the one before did.
    LoadProjectBytes(screen, project, without);
    EXPECT_FALSE(project.options.chkThreePointArcs);
}

TEST_F(SavedControlTable, TheListingDestinationIsOneOfFourWords) {
    const auto line = [&](bool Options::*option) {
        SelectReport(options, option);
        return SavedLine("NEN1878", "Reporting");
    };
    EXPECT_EQ(line(&Options::optReportDisk), "Reporting = Disk");
    EXPECT_EQ(line(&Options::optReportScreen), "Reporting = Screen");
    EXPECT_EQ(line(&Options::optReportPrinter), "Reporting = Printer");
    EXPECT_EQ(line(&Options::optReportNone), "Reporting = None");
    options.optReportNone = false;
    EXPECT_EQ(SavedLine("NEN1878", "Reporting"), "Reporting = None");
    options.optReportPrinter = options.optReportScreen = true;
    EXPECT_EQ(SavedLine("NEN1878", "Reporting"), "Reporting = Screen");
    options.optReportDisk = true;
    EXPECT_EQ(SavedLine("NEN1878", "Reporting"), "Reporting = Disk");
}

TEST_F(SavedControlTable, AListingToDiskComesBackAsOneToTheScreen) {
    SelectReport(options, &Options::optReportDisk);
    ASSERT_TRUE(SaveFile(folder / "a.nst"));
    ASSERT_TRUE(LoadFile(folder / "a.nst"));
    EXPECT_TRUE(options.optReportScreen);
    EXPECT_FALSE(options.optReportDisk);
}

TEST_F(SavedControlTable, TheDateOptionsAreWrittenAsTheyAre) {
    SetDateOption(options, &Options::optDateNow, true);
    EXPECT_EQ(SavedLine("Export", "UseDateAlt"), "UseDateAlt =False");
    EXPECT_EQ(SavedLine("Export", "UseDateSEE"), "UseDateSEE =False");
    EXPECT_EQ(SavedLine("Export", "UseDateNow"), "UseDateNow =True");
}

TEST_F(SavedControlTable, TextsAreWrittenAsTheyStandInTheirBoxes) {
    options.txtNameShort = u"  Een heel lange korte naam  ";
    EXPECT_EQ(SavedLine("NEN1878", "NameShort"), "NameShort =   Een heel lange korte naam  ");
    options.txtPnoTxtLKI = u" z30 ";
    EXPECT_EQ(SavedLine("Export", "PointIDLKI"), "PointIDLKI =  z30 ");
}

TEST_F(SavedControlTable, ACharacterWithoutAByteIsAQuestionMark) {
    options.txtCity = u"Łódź 𝄞";
    EXPECT_EQ(SavedLine("NEN1878", "Town"), "Town = ?ód? ?");
}

TEST_F(SavedControlTable, TheOwnerBoxesReachTheOwnerRecord) {
    options.txtNameLong = u"Bureau";
    options.txtNameShort = u"Veel te lang";
    options.txtSource = u"";
    Saved();
    EXPECT_EQ(owner.NameLong, MakeFixedText<35>(u"Bureau"));
    EXPECT_EQ(owner.NameShort, MakeFixedText<8>(u"Veel te lang"));
    EXPECT_TRUE(owner.Source.IsBlank());
    EXPECT_FALSE(owner.Source.NeverFilled());
}

TEST_F(SavedControlTable, ACodeOfNineCharactersIsCut) {
    Edit(lineTable, 2, {u"ABCDEFGHI"});
    EXPECT_EQ(SavedLine("Lines", "ABC"), "ABCDEFG = , , , 0, 0, 0");
}

TEST_F(SavedControlTable, ATableWithoutAnyRowHasNoUnknownLine) {
    for (CodeTable* table : {&pointTable, &lineTable, &textTable}) table->rows.clear();
    const std::string text = Saved();
    EXPECT_TRUE(text.ends_with("\n\n[Points]\n\n[Lines]\n\n[Texts]\n\n[End]\n"));
}

TEST_F(SavedControlTable, AnEarlierFileIsWrittenOver) {
    folder.Write("project.nst", std::string(100'000, 'x'));
    EXPECT_TRUE(Saved().ends_with("\n[End]\n"));
}

TEST_F(SavedControlTable, WhatWasSavedIsLoadedAgainInCapitals) {
    Fill(project);
    lineTable.rows[1].Description = u"Muur";
    ASSERT_TRUE(SaveFile(folder / "a.nst"));
    BeginAnew();
    ASSERT_TRUE(LoadFile(folder / "a.nst"));
    EXPECT_EQ(options.txtFileSUFNEN, u"C:\\DATA\\KAART ÉÉN.SFN");
    EXPECT_EQ(options.txtNameLong, u"GEMEENTE SÚDWEST-FRYSLÂN");
    EXPECT_TRUE(options.optReportPrinter);
    EXPECT_FALSE(options.chkImportUnknowns);
    EXPECT_TRUE(options.chkExportSymRotation);
    EXPECT_TRUE(options.optDateAlt);
    EXPECT_EQ(options.txtAltDatum, u"19991231");
    EXPECT_EQ(TableText(pointTable),
              "ANDERS|Q99|SYMBOOL|ONBEKEND|1|2|3\nAB|S01 A01|ROT.PNT|KNOTWILG €|-4|32767|-32768\n||||0|0|0\n");
    EXPECT_EQ(TableText(lineTable), "STANDRD|Q00|LIJN|ONBEKEND LIJNOBJECT|0|0|0\nMUUR|B05|GRENS|MUUR|1|0|12\n");
    EXPECT_EQ(TableText(textTable), "STANDRD|Z19||ONBEKEND TEKSTOBJECT|0|0|0\nNAAM|Z02||STRAATNAAM|7|8|9\n");
    // From here on nothing changes any more.
    const std::vector<std::string> before = State();
    ASSERT_TRUE(SaveFile(folder / "b.nst"));
    BeginAnew();
    ASSERT_TRUE(LoadFile(folder / "b.nst"));
    EXPECT_EQ(Differences(before, State()), "");
    ASSERT_TRUE(SaveFile(folder / "c.nst"));
    EXPECT_EQ(FileBytes(folder / "b.nst"), FileBytes(folder / "c.nst"));
}

TEST_F(SavedControlTable, EveryAccentSurvives) {
    Text accents;
    for (int byte = 0xC0; byte < 0xDF; ++byte) accents.push_back(static_cast<char16_t>(byte));
    accents += u"ŠŒŽŸß€µ";
    for (std::size_t at = 0; at < accents.size(); at += 7) {
        BeginAnew();
        const Text part = accents.substr(at, 7);
        options.txtCity = part;
        Edit(project.codes.texts, 2, {part, part, u"", part, u"0", u"0", u"0"});
        ASSERT_TRUE(SaveFile(folder / "a.nst"));
        BeginAnew();
        ASSERT_TRUE(LoadFile(folder / "a.nst"));
        EXPECT_EQ(options.txtCity, part);
        Grid grid(textGridHeader);
        LoadGrid(grid, textTable);
        EXPECT_EQ(grid[2], (Grid::Row{part, part, u"", part, u"0", u"0", u"0"}));
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

void FillRandomly(CodeTable& table, std::mt19937& random, bool withType) {
    Grid grid(gridHeader);
    grid.SetRowCount(static_cast<int>(2 + random() % 60));
    for (int row = 1; row < grid.RowCount(); ++row) {
        grid[row] = {Concat(u"C", RandomCell(random, 6)),         RandomCell(random, 7),
                     withType ? RandomCell(random, 7) : Text(),   RandomCell(random, 43),
                     Concat(static_cast<std::int16_t>(random())), Concat(static_cast<std::int16_t>(random())),
                     Concat(static_cast<std::int16_t>(random()))};
    }
    SaveGrid(grid, table);
}

TEST_F(SavedControlTable, RandomProjectsComeBackAsTheyWere) {
    std::mt19937 random(1878);
    for (int round = 0; round < 50; ++round) {
        BeginAnew();
        for (Text* box : {&options.txtNameLong, &options.txtNameShort, &options.txtStreet, &options.txtNumber,
                          &options.txtSuffix, &options.txtZipcode, &options.txtCity, &options.txtPnoTxtLKI,
                          &options.txtEleTxtLKI, &options.txtFileIDEX, &options.txtFileSUFNEN, &options.txtAltDatum}) {
            *box = RandomCell(random, 5);
        }
        options.txtSource = u"BRON";
        for (bool* box : {&options.chkImportUnknowns, &options.chkImportSymRotation, &options.chkExportUnknowns,
                          &options.chkExportPointnoAsField, &options.chkExportPointnoAsText, &options.chkExport3D,
                          &options.chkExportHeightAsText, &options.chkExportSymRotation}) {
            *box = random() % 2 == 0;
        }
        FillRandomly(pointTable, random, true);
        FillRandomly(lineTable, random, true);
        FillRandomly(textTable, random, false);
        ASSERT_TRUE(SaveFile(folder / "a.nst"));
        const std::vector<std::string> saved = State();
        BeginAnew();
        ASSERT_TRUE(LoadFile(folder / "a.nst"));
        ASSERT_EQ(Differences(saved, State()), "") << round;
    }
}

TEST_F(SavedControlTable, TheSampleComesBackAsItWas) {
    ASSERT_TRUE(LoadFile(FromUtf8(KORVANDE_SOURCE_DIR "/samples/voorbeeld.nst")));
    const std::vector<std::string> loaded = State();
    ASSERT_TRUE(SaveFile(folder / "a.nst"));
    BeginAnew();
    ASSERT_TRUE(LoadFile(folder / "a.nst"));
    EXPECT_EQ(Differences(loaded, State()), "");
}

}  // namespace

}  // namespace korvande::testing
