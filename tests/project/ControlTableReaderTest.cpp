#include <algorithm>
#include <chrono>

#include "tests/project/ControlTableTest.h"

namespace korvande::testing {

namespace {

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

// Reads a control table pair by pair.
class Pairs {
 public:
    explicit Pairs(std::string_view bytes) : file(folder.Write("a.nst", bytes)) {}

    std::string Next() {
        ReadINI(file, section, key, value);
        return std::string(section).append("|").append(key).append("|").append(value);
    }

    std::string section;

 private:
    TestFolder folder;
    LineReader file;
    std::string key = "x";
    std::string value = "x";
};

TEST(ReadIni, GivesTheNextPairAndKeepsTheSection) {
    Pairs pairs("eerst = 1\r\n[Een]\r\n\r\nKey = Waarde \xE9 \r\nleeg=\r\n[Twee]\r\n=x\r\n[End]\r\nz=1\r\n");
    pairs.section = "BEGIN";
    EXPECT_EQ(pairs.Next(), "BEGIN|EERST|1");
    EXPECT_EQ(pairs.Next(), "EEN|KEY|WAARDE \xC9");
    EXPECT_EQ(pairs.Next(), "EEN|LEEG|");
    EXPECT_EQ(pairs.Next(), "TWEE||X");
    EXPECT_EQ(pairs.Next(), "END||");
}

TEST(ReadIni, TheEndOfTheFileIsTheEndOfTheData) {
    Pairs pairs("[Een]\nkey = 1");
    EXPECT_EQ(pairs.Next(), "EEN|KEY|1");
    for (int i = 0; i < 3; ++i) EXPECT_EQ(pairs.Next(), "END||");
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

TEST_F(ControlTable, ALineOfEightMegabytesIsALine) {
    EXPECT_EQ(Rows('P', "AB = Q20, PUNT, " + std::string(8'000'000, 'x') + ", 1, 2, 3\n"),
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
