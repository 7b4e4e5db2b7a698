#include <gtest/gtest.h>

#include <filesystem>

#include "host/modFileHandling.h"
#include "tests/support/TestFiles.h"

namespace korvande::testing {

namespace {

namespace fs = std::filesystem;

TEST(FileNames, TheLastComponentIsTheFileName) {
    EXPECT_EQ(FileNameOf(u"C:\\DATA\\KAART.IDX"), u"KAART.IDX");
    EXPECT_EQ(FileNameOf(u"/home/marie/kaart.idx"), u"kaart.idx");
    EXPECT_EQ(FileNameOf(u"DATA\\sub/kaart.idx"), u"kaart.idx");
    EXPECT_EQ(FileNameOf(u"KAART.IDX"), u"KAART.IDX");
    EXPECT_EQ(FileNameOf(u"C:KAART.IDX"), u"KAART.IDX");
    EXPECT_EQ(FileNameOf(u"C:\\DATA\\"), u"DATA");
    EXPECT_EQ(FileNameOf(u"C:\\"), u"");
    EXPECT_EQ(FileNameOf(u"/"), u"");
    EXPECT_EQ(FileNameOf(u""), u"");
    EXPECT_EQ(FileNameOf(u"/data/meting 12:30.idx"), u"meting 12:30.idx");
}

TEST(FileNames, TheFolderEndsInASeparator) {
    EXPECT_EQ(FolderOf(u"C:\\DATA\\KAART.IDX"), u"C:\\DATA\\");
    EXPECT_EQ(FolderOf(u"C:\\KAART.IDX"), u"C:\\");
    EXPECT_EQ(FolderOf(u"C:KAART.IDX"), u"C:\\");
    EXPECT_EQ(FolderOf(u"\\\\server\\deel\\KAART.IDX"), u"\\\\server\\deel\\");
    EXPECT_EQ(FolderOf(u"/home/marie/kaart.idx"), u"/home/marie/");
    EXPECT_EQ(FolderOf(u"/kaart.idx"), u"/");
    EXPECT_EQ(FolderOf(u"C:\\DATA\\SUB\\"), u"C:\\DATA\\");
}

TEST(FileNames, ARootAndABareNameHaveNoParentFolder) {
    EXPECT_EQ(FolderOf(u"KAART.IDX"), u"");
    EXPECT_EQ(FolderOf(u"C:\\"), u"");
    EXPECT_EQ(FolderOf(u"/"), u"");
    EXPECT_EQ(FolderOf(u""), u"");
}

TEST(FileNames, AFolderGetsTheSeparatorThatItUses) {
    EXPECT_EQ(FolderWithSeparator(u"C:\\DATA"), u"C:\\DATA\\");
    EXPECT_EQ(FolderWithSeparator(u"C:\\DATA\\"), u"C:\\DATA\\");
    EXPECT_EQ(FolderWithSeparator(u"C:"), u"C:\\");
    EXPECT_EQ(FolderWithSeparator(u"/home/marie"), u"/home/marie/");
    EXPECT_EQ(FolderWithSeparator(u"/"), u"/");
    EXPECT_EQ(FolderWithSeparator(u""), u"");
    EXPECT_EQ(FolderWithSeparator(u"uit"), Concat(u"uit", Text(1, fs::path::preferred_separator)));
}

TEST(FileNames, ANameInFullHasItsFolder) {
    const TestFolder folder;
    const fs::path before = fs::current_path();
    fs::current_path(folder.Path());
    folder.Write("Café.idx", "x");
    const Text full = FullName(u"Café.idx");
    const Text missing = FullName(u"weg.idx");
    fs::current_path(before);
    EXPECT_TRUE(SameFile(full, folder / "Café.idx")) << ToUtf8(full);
    EXPECT_EQ(FileNameOf(missing), u"weg.idx");
    EXPECT_NE(FolderOf(missing), u"");
    EXPECT_TRUE(SameFile(FullName(folder / "Café.idx"), folder / "Café.idx"));
}

TEST(ListOfFiles, AFolderIsListedByPatternWithoutRegardToCase) {
    const TestFolder folder;
    for (const char* name : {"straat.nst", "ALFA.NST", "beta.Nst", "zeta.nst2", "geen.txt", "Ärger.nst", "nst"}) {
        folder.Write(name, "");
    }
    fs::create_directory(folder.Path() + "/map.nst");
    const std::vector<Text> expected = {u"ALFA.NST", u"beta.Nst", u"straat.nst", u"Ärger.nst"};
    EXPECT_EQ(ListFiles(folder / "", u"*.nst"), expected);
    EXPECT_EQ(ListFiles(folder / ".", u"*.NST"), expected);
}

TEST(ListOfFiles, AFolderThatIsMissingListsNothing) {
    const TestFolder folder;
    EXPECT_TRUE(ListFiles(folder / "geen map", u"*").empty());
    EXPECT_TRUE(ListFiles(folder.Write("bestand", ""), u"*").empty());
}

TEST(ListOfFiles, PatternsKnowStarsAndQuestionMarks) {
    const TestFolder folder;
    folder.Write("a.b.nst", "");
    for (const char16_t* pattern : {u"*", u"*.*", u"a*", u"*.nst", u"a.?.nst", u"*b*", u"***a*.*t***", u"?.b.nst",
                                    u"A.B.NST", u"*.b.*", u"a.b.nst*"}) {
        EXPECT_EQ(ListFiles(folder / "", pattern).size(), 1U) << ToUtf8(pattern);
    }
    for (const char16_t* pattern : {u"", u"?", u"*.ini", u"a", u"?a.b.nst", u"a.b.nst?", u"*x*", u"b*"}) {
        EXPECT_EQ(ListFiles(folder / "", pattern).size(), 0U) << ToUtf8(pattern);
    }
}

TEST(ListOfFiles, APatternFullOfStarsTakesNoTime) {
    const TestFolder folder;
    folder.Write(std::string(200, 'a'), "");
    Text pattern;
    for (int i = 0; i < 100; ++i) pattern += u"a*";
    EXPECT_EQ(ListFiles(folder / "", pattern + u"b").size(), 0U);
    EXPECT_EQ(ListFiles(folder / "", pattern).size(), 1U);
}

}  // namespace

}  // namespace korvande::testing
