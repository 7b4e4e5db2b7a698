#include "host/Folders.h"

#include <gtest/gtest.h>

#include "core/RuntimeError.h"
#include "host/SystemPath.h"
#include "tests/support/TestFiles.h"

namespace korvande::testing {

namespace {

namespace fs = std::filesystem;

class Folders : public ::testing::Test {
 protected:
    static std::string Joined(const std::vector<Text>& names) {
        std::string joined;
        for (const Text& name : names) joined += (joined.empty() ? "" : "|") + ToUtf8(name);
        return joined;
    }

    TestFolder folder;
};

TEST_F(Folders, HoldFilesAndFoldersSortedWithoutRegardToCase) {
    for (const char* const name : {"b.idx", "C", "a één.idx", "D.idx"}) folder.Write(name, "");
    MakeFolders(folder / "zuid");
    MakeFolders(folder / "Noord");
    const FolderContents contents = ContentsOf(FromUtf8(folder.Path()));
    EXPECT_EQ(Joined(contents.files), "a één.idx|b.idx|C|D.idx");
    EXPECT_EQ(Joined(contents.folders), "Noord|zuid");
    EXPECT_EQ(Joined(ContentsOf(folder / "zuid").files), "");
}

TEST_F(Folders, AreMadeWithThoseThatTheyAreIn) {
    const Text deep = folder / "wijk één/straat 2/blok/";
    EXPECT_FALSE(FolderExistsAt(deep));
    MakeFolders(deep);
    EXPECT_TRUE(FolderExistsAt(deep));
    MakeFolders(deep);  // which is there
    EXPECT_TRUE(FolderExistsAt(folder / "wijk één"));
}

TEST_F(Folders, AFileIsNone) {
    const Text file = folder.Write("a", "");
    EXPECT_FALSE(FolderExistsAt(file));
    EXPECT_THROW(ContentsOf(file), RuntimeError);
    EXPECT_THROW(MakeFolders(Concat(file, u"/b")), RuntimeError);
    EXPECT_THROW(ContentsOf(folder / "weg"), RuntimeError);
}

TEST_F(Folders, TheEmptyNameIsTheCurrentOne) { EXPECT_TRUE(FolderExistsAt(u"")); }

TEST_F(Folders, TheTimeOfAFileIsThatOfItsLastWriting) {
    const Text file = folder.Write("a", "");
    const auto time = fs::last_write_time(PathOf(file));
    EXPECT_EQ(WriteTimeOf(file), time);
    fs::last_write_time(PathOf(file), time - std::chrono::hours(1));
    EXPECT_EQ(WriteTimeOf(file), time - std::chrono::hours(1));
    EXPECT_FALSE(WriteTimeOf(folder / "weg"));
}

TEST_F(Folders, PathsKeepNamesInEveryLanguage) {
    const Text name = FromUtf8("map/Wijk één Ω.idx");
    EXPECT_EQ(NameOf(PathOf(name).filename()), FromUtf8("Wijk één Ω.idx"));
    EXPECT_THROW(PathOf(Text(u"a\0b", 3)), RuntimeError);
}

}  // namespace

}  // namespace korvande::testing
