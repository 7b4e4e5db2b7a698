#include "project/ControlTableReader.h"

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
    const std::vector<std::string> before = State();
    Load("[End]\n");
    EXPECT_EQ(Differences(before, State()), "Source=VOSAI; txtSource=VOSAI");
    EXPECT_EQ(TableText(pointTable), "STANDRD|Q20|PUNT|ONBEKEND PUNTOBJECT|0|0|0\n");
    EXPECT_EQ(TableText(lineTable), "STANDRD|Q00|LIJN|ONBEKEND LIJNOBJECT|0|0|0\n");
    EXPECT_EQ(TableText(textTable), "STANDRD|Z19||ONBEKEND TEKSTOBJECT|0|0|0\n");
}

TEST_F(ControlTable, AnEmptyProjectIsAsAFileWithItsEndOnly) {
    Load("[End]\n");
    const std::vector<std::string> loaded = State();
    BeginAnew();
    options.chkExportUnknowns = true;
    pointTable.rows.resize(3);
    LoadEmptyProject(project);
    EXPECT_EQ(Differences(loaded, State()), "");
}

TEST_F(ControlTable, WithoutOneUnknownObjectsAreTakenBothWaysAndListed) {
    pointTable.rows.resize(5);
    options.chkExportUnknowns = options.chkImportUnknowns = false;
    LoadProjectWithoutTable(project);
    EXPECT_EQ(pointTable.rows.size(), 1U);
    EXPECT_TRUE(options.chkExportUnknowns);
    EXPECT_TRUE(options.chkImportUnknowns);
}

TEST_F(ControlTable, AFileIsReadAsItsBytesInMemory) {
    const std::string bytes = FileBytes(FromUtf8(KORVANDE_SOURCE_DIR "/samples/voorbeeld.nst"));
    LoadBytes(bytes);
    const std::vector<std::string> fromMemory = State();
    BeginAnew();
    ASSERT_TRUE(LoadFile(folder.Write("a.nst", bytes)));
    EXPECT_EQ(Differences(fromMemory, State()), "");
}

TEST_F(ControlTable, AnEmptyFileIsAsOneWithItsEndOnly) {
    Load("[End]\n");
    const std::vector<std::string> loaded = State();
    BeginAnew();
    Load("");
    EXPECT_EQ(Differences(loaded, State()), "");
}

TEST_F(ControlTable, ALoadBeginsWithAReset) {
    Load("[NEN1878]\nReporting = None\n[Export]\nIncludeUnknown = 1\n[Points]\nA = Q1, PUNT, X\n[End]\n");
    Load("[End]\n");
    EXPECT_TRUE(options.optReportScreen);
    EXPECT_FALSE(options.chkExportUnknowns);
    EXPECT_EQ(pointTable.rows.size(), 1U);
}

TEST_F(ControlTable, TheOwnerOfThePreviousProjectSurvivesAFileWithoutOne) {
    Load("[NEN1878]\nNameLong = Bureau\nTown = Elders\nSource = BR\n[End]\n");
    Load("[NEN1878]\nTown = Hier\n[End]\n");
    EXPECT_EQ(owner.NameLong.TrimmedRight(), u"BUREAU");
    EXPECT_EQ(owner.Town.TrimmedRight(), u"HIER");
    EXPECT_EQ(options.txtNameLong, u"BUREAU");
    EXPECT_EQ(options.txtSource, u"BR");
}

TEST_F(ControlTable, TheSourceIsMadeFromTheShortNameAndElseFromTheLongOne) {
    Load("[NEN1878]\nSource = \nNameShort = Meetbureau\nNameLong = Lang\n[End]\n");
    EXPECT_EQ(options.txtSource, u"MEETB");
    Load("[NEN1878]\nSource = \nNameShort = \nNameLong = Landmeters\n[End]\n");
    EXPECT_EQ(options.txtSource, u"LANDM");
    Load("[NEN1878]\nSource = \nNameShort = \nNameLong = \n[End]\n");
    EXPECT_EQ(options.txtSource, u"");
    owner.Source = u" ab";
    Load("[End]\n");
    EXPECT_EQ(owner.Source.View(), u"ab   ");
    owner.Source = u"";
    owner.NameShort = u"één ding";
    Load("[End]\n");
    EXPECT_EQ(owner.Source.View(), u"ÉÉN D");
    EXPECT_EQ(owner.NameShort.View(), u"ÉÉN DING");
}

TEST_F(ControlTable, NothingBehindTheEndIsRead) {
    EXPECT_EQ(Rows('P', "AB = Q20, PUNT, X\n[End]\nCD = Q20, PUNT, X\n[Points]\nEF = Q20, PUNT, X\n"),
              "AB|Q20|PUNT|X|0|0|0\n");
}

TEST_F(ControlTable, TheClosingBracketOfAHeaderIsNotChecked) {
    Load("[PointsX\nAB = Q20, PUNT, X\n[EndX\nCD = Q20, PUNT, X\n");
    EXPECT_EQ(pointTable.rows.size(), 2U);
    Load("[\nAB = Q20, PUNT, X\n[]\nAB = Q20, PUNT, X\n");
    EXPECT_EQ(pointTable.rows.size(), 1U);
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
    explicit Pairs(std::string_view bytes) { file.OpenBytes(bytes); }

    std::string Next() {
        ReadINI(screen, file, section, key, value);
        return std::string(section).append("|").append(key).append("|").append(value);
    }

    std::string section;

 private:
    SilentScreen screen;
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

TEST(ReadIni, ASectionMayHaveAnyName) {
    Pairs pairs("[A]\n[B=C]\nkey = 1\n[X]\nkey = 2\n[]\nkey = 3\n[\nkey = 4\n");
    EXPECT_EQ(pairs.Next(), "B=C|KEY|1");
    EXPECT_EQ(pairs.Next(), "X|KEY|2");
    EXPECT_EQ(pairs.Next(), "|KEY|3");
    EXPECT_EQ(pairs.Next(), "|KEY|4");
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
    const std::string expected = StateText();
    ASSERT_NE(expected.find("NameLong=BUREAU ÉÉN "), std::string::npos);
    ASSERT_NE(expected.find("AB|Q21|ROT.PNT|BOOM Ž€|4|5|6"), std::string::npos);
    std::string bytes = FullTable();
    BeginAnew();
    LoadBytes(bytes);
    EXPECT_EQ(StateText(), expected);
    std::replace(bytes.begin(), bytes.end(), '\n', '\r');
    BeginAnew();
    LoadBytes(bytes);
    EXPECT_EQ(StateText(), expected);
    BeginAnew();
    LoadBytes(WithCrLf(FullTable()) + "\x1A");
    EXPECT_EQ(StateText(), expected);
}

TEST_F(ControlTable, AUtf8ByteOrderMarkIsBelieved) {
    Load(FullTable());
    const std::string expected = StateText();
    BeginAnew();
    LoadBytes("\xEF\xBB\xBF" + Windows1252ToUtf8(FullTable()));
    EXPECT_EQ(StateText(), expected);
}

TEST_F(ControlTable, AFileCutOffAnywhereIsReadAsFarAsItGoes) {
    const std::string whole = WithCrLf(FullTable());
    Load(FullTable());
    const std::string points = TableText(pointTable);
    std::size_t rows = 3;
    for (std::size_t length = 0; length <= whole.size(); ++length) {
        LoadBytes(std::string_view(whole).substr(0, length));
        const std::size_t rowsNow = pointTable.rows.size() + lineTable.rows.size() + textTable.rows.size();
        ASSERT_TRUE(rowsNow == rows || rowsNow == rows + 1) << length;
        rows = rowsNow;
    }
    EXPECT_EQ(rows, 6U);
    EXPECT_EQ(TableText(pointTable), points);
    EXPECT_TRUE(screen.messages.empty());
}

TEST_F(ControlTable, AnyBytesAreReadWithoutHarm) {
    std::string bytes = "[Points]\n";
    for (int i = 0; i < 4096; ++i) bytes.push_back(static_cast<char>((i * 7919) >> 3));
    LoadBytes(bytes);
    EXPECT_FALSE(pointTable.rows.empty());
    EXPECT_TRUE(screen.messages.empty());
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
    EXPECT_EQ(pointTable.rows.size(), count + 1U);
    // Copying the table for each row would take hours.
    EXPECT_LT(seconds.count(), 30);
}

TEST_F(ControlTable, TheSampleHasItsRows) {
    ASSERT_TRUE(LoadFile(FromUtf8(KORVANDE_SOURCE_DIR "/samples/voorbeeld.nst")));
    const std::string points = TableText(pointTable);
    EXPECT_EQ(points.substr(0, points.find('\n')), "STANDRD|Q20|PUNT|ONBEKEND PUNTOBJECT|0|0|0");
    EXPECT_NE(points.find("\n|Q20|DUMMY|"), std::string::npos);
    EXPECT_NE(TableText(lineTable).find("É"), std::string::npos);
    EXPECT_GE(pointTable.rows.size() + lineTable.rows.size() + textTable.rows.size(), 43U);
}

}  // namespace

}  // namespace korvande::testing
