#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

#include <filesystem>

#include "core/LineWriter.h"
#include "core/RuntimeError.h"
#include "host/FileReplacement.h"
#include "tests/core/ErrorOf.h"
#include "tests/support/TestFiles.h"

// Rights, links and devices as this system has them.
namespace korvande::testing {

namespace {

namespace fs = std::filesystem;

class PosixReplacement : public ::testing::Test {
 protected:
    std::string Path(const std::string& of) const { return folder.Path() + "/" + of; }

    struct stat StatusOf(const std::string& of) const {
        struct stat status {};
        EXPECT_EQ(::stat(Path(of).c_str(), &status), 0) << of;
        return status;
    }

    // The name of the only file in the folder that is not this one.
    std::string OtherThan(const std::string& one) const {
        for (const auto& entry : fs::directory_iterator(folder.Path())) {
            if (entry.path().filename() != one) return entry.path().filename();
        }
        return {};
    }

    TestFolder folder;
    LineWriter writer;
};

TEST_F(PosixReplacement, TheTemporaryFileHasTheRightsOfWhatItReplacesFromTheStart) {
    const Text name = folder.Write("kaart.sfn", "geheim");
    for (const mode_t rights : {0600U, 0640U, 0664U, 0606U}) {
        ASSERT_EQ(::chmod(Path("kaart.sfn").c_str(), rights), 0);
        FileReplacement replacement(name);
        replacement.Open(writer);
        EXPECT_EQ(StatusOf(OtherThan("kaart.sfn")).st_mode & 07777, rights);
        writer.Close();
        replacement.PutInPlace();
        EXPECT_EQ(StatusOf("kaart.sfn").st_mode & 07777, rights);
    }
}

TEST_F(PosixReplacement, ANewFileHasTheRightsThatNewFilesHave) {
    const mode_t previous = ::umask(027);
    ReplaceFile(folder / "kaart.sfn", "x");
    ::umask(previous);
    EXPECT_EQ(StatusOf("kaart.sfn").st_mode & 07777, 0640U);
}

TEST_F(PosixReplacement, TheOwnerStaysTheOwner) {
    if (::geteuid() != 0) GTEST_SKIP() << "only the superuser can give a file away";
    const Text name = folder.Write("kaart.sfn", "x");
    ASSERT_EQ(::chown(Path("kaart.sfn").c_str(), 1234, 5678), 0);
    ReplaceFile(name, "y");
    EXPECT_EQ(StatusOf("kaart.sfn").st_uid, 1234U);
    EXPECT_EQ(StatusOf("kaart.sfn").st_gid, 5678U);
}

TEST_F(PosixReplacement, AGroupThatCannotBeKeptGetsNoMoreThanEverybody) {
    if (::geteuid() != 0) GTEST_SKIP() << "only the superuser can give a file to a group that is not its own";
    const Text name = folder.Write("kaart.sfn", "x");
    ASSERT_EQ(::chown(Path("kaart.sfn").c_str(), 0, 5678), 0);
    ASSERT_EQ(::chmod(Path("kaart.sfn").c_str(), 0662), 0);
    ASSERT_EQ(::chmod(folder.Path().c_str(), 0777), 0);
    ASSERT_EQ(::seteuid(65534), 0);
    const int error = ErrorOf([&] { ReplaceFile(name, "y"); });
    ASSERT_EQ(::seteuid(0), 0);
    EXPECT_EQ(error, 0);
    EXPECT_NE(StatusOf("kaart.sfn").st_gid, 5678U);
    EXPECT_EQ(StatusOf("kaart.sfn").st_mode & 07777, 0622U);
}

TEST_F(PosixReplacement, ALinkIsFollowedAlsoToAFileThatIsStillToCome) {
    fs::create_directory(Path("archief"));
    folder.Write("archief/echt.nst", "oud");
    fs::create_symlink("archief/echt.nst", Path("a.nst"));
    fs::create_symlink("archief/nieuw.nst", Path("b.nst"));
    for (const char* const name : {"a.nst", "b.nst"}) {
        ReplaceFile(folder / name, "nieuw");
        EXPECT_TRUE(fs::is_symlink(Path(name)));
        EXPECT_EQ(FileBytes(folder / name), "nieuw");
    }
    EXPECT_EQ(folder.Listing(), "a.nst archief b.nst");
    EXPECT_EQ(FileBytes(folder / "archief/echt.nst"), "nieuw");
}

TEST_F(PosixReplacement, InAFolderThatTakesNoNewFileAFileThatMayBeWrittenIsWrittenInPlace) {
    const Text name = folder.Write("kaart.sfn", "van gisteren");
    ASSERT_EQ(::chmod(Path("kaart.sfn").c_str(), 0666), 0);
    {
        const ReadOnlyFolder readOnly(folder.Path());
        ReplaceFile(name, "nieuw");
        EXPECT_EQ(ErrorOf([&] { ReplaceFile(folder / "ander.sfn", "x"); }), errors::accessDenied);
    }
    EXPECT_EQ(FileBytes(name), "nieuw");
    EXPECT_EQ(folder.Listing(), "kaart.sfn");
}

TEST_F(PosixReplacement, AFileThatMayNotBeWrittenIsNotReplaced) {
    const Text name = folder.Write("kaart.sfn", "bewaren");
    ASSERT_EQ(::chmod(Path("kaart.sfn").c_str(), 0444), 0);
    {
        const ReadOnlyFolder readOnly(folder.Path());
        EXPECT_EQ(ErrorOf([&] { ReplaceFile(name, "x"); }), errors::accessDenied);
    }
    EXPECT_EQ(FileBytes(name), "bewaren");
}

TEST_F(PosixReplacement, ADeviceIsWrittenDirectly) {
    ReplaceFile(u"/dev/null", "x");
    EXPECT_TRUE(fs::is_character_file("/dev/null"));
    EXPECT_EQ(ErrorOf([] { ReplaceFile(u"/dev/full", "x"); }), errors::diskFull);
}

}  // namespace

}  // namespace korvande::testing
