#include <gtest/gtest.h>

#include <filesystem>

#include "host/Folders.h"
#include "tests/support/TestFiles.h"

// Links as this system has them.
namespace korvande::testing {

namespace {

namespace fs = std::filesystem;

TEST(PosixFolders, ALinkToAFolderIsLeftOutAndOneToAFileIsAFile) {
    const TestFolder folder;
    folder.Write("a.idx", "");
    MakeFolders(folder / "map");
    fs::create_directory_symlink(folder.Path(), folder.Path() + "/map/terug");
    fs::create_symlink(folder.Path() + "/a.idx", folder.Path() + "/map/b.idx");
    fs::create_symlink(folder.Path() + "/weg", folder.Path() + "/map/c.idx");
    const FolderContents contents = ContentsOf(folder / "map");
    EXPECT_TRUE(contents.folders.empty());
    EXPECT_EQ(contents.files, (std::vector<Text>{u"b.idx", u"c.idx"}));
    EXPECT_TRUE(FolderExistsAt(folder / "map/terug"));
}

TEST(PosixFolders, OneThatTheSystemCannotFollowIsNotKnownToBeMissing) {
    const TestFolder folder;
    fs::create_symlink("lus", folder.Path() + "/lus");
    EXPECT_FALSE(FolderExistsAt(folder / "lus/map"));
    EXPECT_FALSE(FolderIsMissing(folder / "lus/map"));
    EXPECT_TRUE(FolderIsMissing(folder / "weg"));
    EXPECT_FALSE(FolderIsMissing(u""));
}

}  // namespace

}  // namespace korvande::testing
