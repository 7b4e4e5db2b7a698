#include "host/modFileHandling.h"

#include <gtest/gtest.h>
#include <windows.h>

#include "core/WideText_windows.h"
#include "tests/support/HeldFile_windows.h"
#include "tests/support/RecordingScreen.h"
#include "tests/support/TestFiles.h"

// Files as Windows has them.
namespace korvande::testing {

namespace {

class WindowsFiles : public ::testing::Test {
 protected:
    TestFolder folder;
    RecordingScreen screen;
};

TEST_F(WindowsFiles, NamesGoToTheSystemAsTheyAre) {
    const Text name = folder.Write("Café € Ω.idx", "inhoud");
    EXPECT_TRUE(FileExistsAt(name));
    EXPECT_TRUE(FileExistsAt(folder / "CAFÉ € ω.IDX"));
    EXPECT_FALSE(FileExistsAt(folder / "CAFE € ω.IDX"));
    EXPECT_NE(::GetFileAttributesW(ToWide(name).c_str()), INVALID_FILE_ATTRIBUTES);
}

TEST_F(WindowsFiles, AFileThatAnotherProgramHoldsIsNeitherCopiedNorReplacedNorDeleted) {
    const Text held = folder.Write("vast.nst", "inhoud");
    const Text other = folder.Write("ander.nst", "nieuw");
    {
        const HeldFile holder(held);
        EXPECT_FALSE(CopyFileWithReport(screen, held, folder / "kopie.nst", true));
        ASSERT_EQ(screen.messages.size(), 1U);
        EXPECT_TRUE(screen.messages[0].ends_with("\nCause: Toegang geweigerd")) << screen.messages[0];
        EXPECT_FALSE(CopyFileWithReport(screen, other, held, false));
        EXPECT_FALSE(RenameFileAt(other, held));
        EXPECT_FALSE(DeleteFileAt(held));
    }
    EXPECT_EQ(FileBytes(held), "inhoud");
    EXPECT_EQ(folder.Listing(), "ander.nst vast.nst");
}

TEST_F(WindowsFiles, AFileThatMayNotBeWrittenIsNotReplaced) {
    const Text from = folder.Write("tijdelijk.tmp", "nieuw");
    const Text to = folder.Write("kaart.sfn", "oud");
    ASSERT_NE(::SetFileAttributesW(ToWide(to).c_str(), FILE_ATTRIBUTE_READONLY), 0);
    EXPECT_FALSE(RenameFileAt(from, to));
    EXPECT_FALSE(CopyFileWithReport(screen, from, to, true));
    ASSERT_EQ(screen.messages.size(), 1U);
    EXPECT_TRUE(screen.messages[0].ends_with("\nCause: Toegang geweigerd")) << screen.messages[0];
    EXPECT_EQ(FileBytes(to), "oud");
    ::SetFileAttributesW(ToWide(to).c_str(), FILE_ATTRIBUTE_NORMAL);
}

TEST_F(WindowsFiles, AWholePathAndAPathWithoutItsDriveMeanTheSameFile) {
    const Text name = folder.Write("kaart.idx", "");
    ASSERT_EQ(name[1], u':');
    wchar_t before[MAX_PATH] = {};
    ::GetCurrentDirectoryW(MAX_PATH, before);
    ASSERT_NE(::SetCurrentDirectoryW(ToWide(FromUtf8(folder.Path())).c_str()), 0);
    EXPECT_TRUE(SameFile(name, u"KAART.idx"));
    EXPECT_TRUE(SameFile(name, Concat(name.substr(0, 2), u"kaart.idx")));
    EXPECT_TRUE(FileExistsAt(Concat(name.substr(0, 2), u"kaart.idx")));
    ::SetCurrentDirectoryW(before);
}

}  // namespace

}  // namespace korvande::testing
