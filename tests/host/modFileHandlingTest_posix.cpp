#include "host/modFileHandling.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

#include <csignal>
#include <filesystem>

#include "core/LineReader.h"
#include "core/NativePath.h"
#include "core/RuntimeError.h"
#include "tests/core/ErrorOf.h"
#include "tests/support/RecordingScreen.h"
#include "tests/support/TestFiles.h"

// Links, devices, rights and disks as this system has them.
namespace korvande::testing {

namespace {

namespace fs = std::filesystem;

class PosixFiles : public ::testing::Test {
 protected:
    std::string Path(const std::string& name) const { return folder.Path() + "/" + name; }

    TestFolder folder;
    RecordingScreen screen;
};

// Lets no file grow beyond a size as long as it lives: a disk that is full.
class FullDisk {
 public:
    explicit FullDisk(rlim_t bytes) {
        ::getrlimit(RLIMIT_FSIZE, &previous);
        const rlimit limit{bytes, previous.rlim_max};
        ::setrlimit(RLIMIT_FSIZE, &limit);
    }
    FullDisk(const FullDisk&) = delete;
    FullDisk& operator=(const FullDisk&) = delete;
    ~FullDisk() {
        ::setrlimit(RLIMIT_FSIZE, &previous);
        std::signal(SIGXFSZ, previousHandler);
    }

 private:
    void (*previousHandler)(int) = std::signal(SIGXFSZ, SIG_IGN);
    rlimit previous{};
};

TEST_F(PosixFiles, ALinkExistsWhenItsFileDoes) {
    const Text name = folder.Write("kaart.idx", "");
    fs::create_symlink("kaart.idx", Path("link"));
    EXPECT_TRUE(FileExistsAt(folder / "link"));
    ASSERT_TRUE(DeleteFileAt(name));
    EXPECT_FALSE(FileExistsAt(folder / "link"));
}

TEST_F(PosixFiles, NamesComeInTheWayOfTheUser) {
    folder.Write("Café €.idx", "");
    const EnvironmentValue drive("KORVANDE_DRIVE_K", folder.Path());
    EXPECT_TRUE(FileExistsAt(u"K:\\CAFÉ €.IDX"));
    EXPECT_TRUE(FileExistsAt(u"k:café €.idx"));
    EXPECT_FALSE(FileExistsAt(u"K:\\CAFE €.IDX"));
}

TEST_F(PosixFiles, ADeviceExistsAndIsNothingToRenameTo) {
    EXPECT_TRUE(FileExistsAt(u"/dev/null"));
    EXPECT_FALSE(IsRegularFileOrMissing(u"/dev/null"));
    fs::create_symlink("/dev/null", Path("link"));
    EXPECT_FALSE(IsRegularFileOrMissing(folder / "link"));
}

TEST_F(PosixFiles, ANameIsNotFreeWhenALinkToNothingHasIt) {
    fs::create_symlink("nergens", Path("link"));
    EXPECT_FALSE(IsFreeName(folder / "link"));
    EXPECT_FALSE(MayBeMade(folder / "link"));
}

TEST_F(PosixFiles, ANameThatTheSystemCannotFollowIsNotFreeAndAskedForStrictlyAnError) {
    fs::create_symlink("lus", Path("lus"));
    EXPECT_FALSE(IsFreeName(folder / "lus/nieuw.nst"));
    EXPECT_THROW(MayBeMade(folder / "lus/nieuw.nst"), RuntimeError);
}

TEST_F(PosixFiles, LinksAndDrivesLeadToTheSameFile) {
    const Text name = folder.Write("Kaart.idx", "");
    fs::create_symlink("Kaart.idx", Path("link.idx"));
    const EnvironmentValue drive("KORVANDE_DRIVE_K", folder.Path());
    EXPECT_TRUE(SameFile(name, folder / "link.idx"));
    EXPECT_TRUE(SameFile(name, u"K:\\KAART.IDX"));
    fs::create_directory(Path("map"));
    fs::create_directory_symlink("map", Path("link"));
    fs::create_symlink("map/kaart.log", Path("kaart.lnk"));
    EXPECT_TRUE(SameFile(folder / "map/kaart.log", folder / "link/kaart.log"));
    EXPECT_TRUE(SameFile(folder / "map/kaart.log", folder / "kaart.lnk"));
}

TEST_F(PosixFiles, ADriveWithoutAFolderHasNoFiles) {
    const EnvironmentValue noDrive("KORVANDE_DRIVE_Q", std::nullopt);
    EXPECT_EQ(ErrorOf([] { TemporaryNameBeside(u"Q:\\KAART.SFN"); }), errors::deviceNotReady);
    EXPECT_TRUE(FileIsMissing(u"Q:\\KAART.SFN"));
    EXPECT_FALSE(IsRegularFileOrMissing(u"Q:\\KAART.SFN"));
}

TEST_F(PosixFiles, TheReportOfACopyNamesTheCause) {
    const Text source = folder.Write("oud.nst", "inhoud");
    EXPECT_FALSE(CopyFileWithReport(screen, source, folder / std::string(300, 'n'), true));
    EXPECT_FALSE(CopyFileWithReport(screen, source, u"/dev/full", true));
    EXPECT_FALSE(CopyFileWithReport(screen, u"/proc/self/mem", folder / "nieuw.nst", true));
    ASSERT_EQ(screen.messages.size(), 3U);
    EXPECT_TRUE(screen.messages[0].ends_with("\nCause: Ongeldige bestandsnaam of ongeldig bestandsnummer"));
    EXPECT_TRUE(screen.messages[1].ends_with("\nCause: Schijf vol")) << screen.messages[1];
    EXPECT_TRUE(screen.messages[2].ends_with("\nCause: Fout bij toegang tot pad of bestand")) << screen.messages[2];
    EXPECT_EQ(folder.Listing(), "oud.nst");
}

TEST_F(PosixFiles, ACopyOntoAFullDiskIsReported) {
    const Text source = folder.Write("oud.nst", std::string(100'000, 'x'));
    {
        const FullDisk full(50'000);
        EXPECT_FALSE(CopyFileWithReport(screen, source, folder / "nieuw.nst", true));
    }
    ASSERT_EQ(screen.messages.size(), 1U);
    EXPECT_TRUE(screen.messages[0].ends_with("\nCause: Schijf vol")) << screen.messages[0];
    EXPECT_EQ(folder.Listing(), "oud.nst");
}

TEST_F(PosixFiles, DeletingALinkLeavesItsFile) {
    folder.Write("kaart.log", "");
    fs::create_symlink("kaart.log", Path("link"));
    EXPECT_TRUE(DeleteFileAt(folder / "link"));
    EXPECT_EQ(folder.Listing(), "kaart.log");
}

TEST_F(PosixFiles, ALinkStaysWhenItsFileIsReplaced) {
    const Text from = folder.Write("tijdelijk.tmp", "nieuw");
    const Text to = folder.Write("kaart.sfn", "oud");
    fs::create_symlink("kaart.sfn", Path("link"));
    EXPECT_TRUE(RenameFileAt(from, folder / "link"));
    EXPECT_TRUE(fs::is_symlink(Path("link")));
    EXPECT_EQ(FileBytes(to), "nieuw");
    EXPECT_EQ(folder.Listing(), "kaart.sfn link");
}

// A user who may not write everywhere, as long as it lives; the tests may run as one who may.
class PlainUser {
 public:
    PlainUser() { EXPECT_EQ(previous == 0 ? ::seteuid(nobody) : 0, 0); }
    PlainUser(const PlainUser&) = delete;
    PlainUser& operator=(const PlainUser&) = delete;
    ~PlainUser() { EXPECT_EQ(previous == 0 ? ::seteuid(previous) : 0, 0); }

 private:
    static constexpr uid_t nobody = 65534;
    uid_t previous = ::geteuid();
};

TEST_F(PosixFiles, AFileThatMayNotBeWrittenIsNotReplaced) {
    const Text from = folder.Write("tijdelijk.tmp", "nieuw");
    const Text to = folder.Write("kaart.sfn", "oud");
    fs::permissions(folder.Path(), fs::perms::all);
    fs::permissions(Path("kaart.sfn"), fs::perms::owner_read | fs::perms::group_read | fs::perms::others_read);
    {
        const PlainUser user;
        EXPECT_FALSE(RenameFileAt(from, to));
    }
    EXPECT_EQ(FileBytes(to), "oud");
    EXPECT_EQ(folder.Listing(), "kaart.sfn tijdelijk.tmp");
}

TEST_F(PosixFiles, ATemporaryNameForALinkIsBesideItsFile) {
    fs::create_directory(Path("map"));
    fs::create_symlink("map/kaart.sfn", Path("link"));
    EXPECT_EQ(FolderOf(TemporaryNameBeside(folder / "link")), folder / "map/");
}

TEST_F(PosixFiles, ALinkIsListedLikeAFile) {
    folder.Write("a.nst", "");
    fs::create_symlink("a.nst", Path("link.nst"));
    EXPECT_EQ(ListFiles(folder / "", u"*.nst"), (std::vector<Text>{u"a.nst", u"link.nst"}));
}

TEST_F(PosixFiles, NamesThatDifferInCaseOnlyAreListedInAFixedOrder) {
    for (const char* name : {"b.nst", "B.NST", "a.nst"}) folder.Write(name, "");
    EXPECT_EQ(ListFiles(folder / "", u"*.nst"), (std::vector<Text>{u"a.nst", u"B.NST", u"b.nst"}));
}

TEST_F(PosixFiles, FileNamesThatAreNoUtf8AreListedAndFound) {
    folder.Write("straat\xE9.nst", "");
    const std::vector<Text> names = ListFiles(folder / "", u"*.nst");
    ASSERT_EQ(names.size(), 1U);
    EXPECT_TRUE(FileExistsAt(Concat(folder / "", names[0])));
}

TEST_F(PosixFiles, OwnChangesDoNotMakeItReadAFolderAgain) {
    const auto folderTime = [this] {
        struct stat status {};
        EXPECT_EQ(::stat(folder.Path().c_str(), &status), 0);
        return status.st_mtim;
    };
    const auto setFolderTime = [this](timespec time) {
        const timespec times[] = {time, time};
        EXPECT_EQ(::utimensat(AT_FDCWD, folder.Path().c_str(), times, 0), 0);
    };
    // Whether a file that comes unseen is found after this action: then the folder was read again.
    const auto readsAgainAfter = [&](const auto& action) {
        setFolderTime({1'000'000'000, 0});
        EXPECT_FALSE(FileExistsAt(folder / "STIEKEM"));
        action();
        const timespec time = folderTime();
        folder.Write("stiekem", "");
        setFolderTime(time);
        const bool isFound = FileExistsAt(folder / "STIEKEM");
        fs::remove(Path("stiekem"));
        return isFound;
    };
    EXPECT_FALSE(readsAgainAfter([&] { FileHandle(OpenNativeFile(folder / "a", OpenMode::Write)); }));
    EXPECT_FALSE(readsAgainAfter([&] { EXPECT_TRUE(RenameFileAt(folder / "a", folder / "B")); }));
    EXPECT_FALSE(readsAgainAfter([&] { EXPECT_TRUE(DeleteFileAt(folder / "b")); }));
    EXPECT_TRUE(readsAgainAfter([&] { fs::create_directory(Path("c")); }));
}

}  // namespace

}  // namespace korvande::testing
