#include "host/modFileHandling.h"

#include <gtest/gtest.h>
#include <sys/resource.h>
#include <unistd.h>

#include <csignal>
#include <filesystem>

#include "tests/support/RecordingScreen.h"
#include "tests/support/TestFiles.h"

namespace korvande::testing {

namespace {

namespace fs = std::filesystem;

class FileHandling : public ::testing::Test {
 protected:
    std::string Path(const std::string& name) const { return folder.Path() + "/" + name; }

    TestFolder folder;
    RecordingScreen screen;
};

// Names that the system can do nothing with.
std::vector<Text> HopelessNames() {
    return {u"", Text(u"a\0b", 3), Text(5000, u'n'), u"/dev/null/file.idx", u"Q:\\KAART.IDX"};
}

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

TEST_F(FileHandling, AFileExistsAndAFolderIsNoFile) {
    const Text name = folder.Write("kaart.idx", "");
    EXPECT_TRUE(FileExistsAt(name));
    EXPECT_FALSE(FileExistsAt(folder / "kaart.sfn"));
    fs::create_directory(Path("map.idx"));
    EXPECT_FALSE(FileExistsAt(folder / "map.idx"));
    EXPECT_FALSE(FileExistsAt(folder / ""));
    EXPECT_TRUE(FileExistsAt(u"/dev/null"));
}

TEST_F(FileHandling, ALinkExistsWhenItsFileDoes) {
    const Text name = folder.Write("kaart.idx", "");
    fs::create_symlink("kaart.idx", Path("link"));
    EXPECT_TRUE(FileExistsAt(folder / "link"));
    ASSERT_TRUE(DeleteFileAt(name));
    EXPECT_FALSE(FileExistsAt(folder / "link"));
}

TEST_F(FileHandling, NamesComeInTheWayOfTheUser) {
    folder.Write("Café €.idx", "");
    const EnvironmentValue drive("KORVANDE_DRIVE_K", folder.Path());
    EXPECT_TRUE(FileExistsAt(u"K:\\CAFÉ €.IDX"));
    EXPECT_TRUE(FileExistsAt(u"k:café €.idx"));
    EXPECT_FALSE(FileExistsAt(u"K:\\CAFE €.IDX"));
}

TEST_F(FileHandling, HopelessNamesGiveFalseOrNothing) {
    const EnvironmentValue noDrive("KORVANDE_DRIVE_Q", std::nullopt);
    const Text file = folder.Write("a", "inhoud");
    for (const Text& name : HopelessNames()) {
        SCOPED_TRACE(ToUtf8(name.substr(0, 20)));
        EXPECT_FALSE(FileExistsAt(name));
        EXPECT_FALSE(DeleteFileAt(name));
        EXPECT_FALSE(RenameFileAt(name, folder / "b"));
        EXPECT_FALSE(RenameFileAt(file, name));
        EXPECT_FALSE(CopyFileWithReport(name, folder / "b", false));
        EXPECT_FALSE(CopyFileWithReport(file, name, false));
        EXPECT_FALSE(SameFile(name, file));
    }
    EXPECT_EQ(TemporaryNameBeside(u"Q:\\KAART.SFN"), u"");
    EXPECT_FALSE(IsRegularFileOrMissing(u"Q:\\KAART.SFN"));
    EXPECT_TRUE(ListFiles(u"Q:\\", u"*").empty());
    EXPECT_TRUE(screen.messages.empty());
    EXPECT_EQ(folder.Listing(), "a");
}

TEST_F(FileHandling, ANameWithANulCharacterDoesNotMeanTheFileBeforeIt) {
    const Text file = folder.Write("a", "");
    EXPECT_FALSE(DeleteFileAt(file + Text(u"\0.idx", 5)));
    EXPECT_FALSE(FileExistsAt(file + Text(u"\0.idx", 5)));
    EXPECT_EQ(folder.Listing(), "a");
}

TEST_F(FileHandling, ANameIsFreeUntilAFileAFolderOrALinkHasIt) {
    EXPECT_TRUE(IsFreeName(folder / "nieuw.nst"));
    EXPECT_TRUE(IsFreeName(folder / "geen map/nieuw.nst"));
    folder.Write("bestand.nst", "");
    fs::create_directory(Path("map"));
    fs::create_symlink("nergens", Path("link"));
    EXPECT_FALSE(IsFreeName(folder / "bestand.nst"));
    EXPECT_FALSE(IsFreeName(folder / "BESTAND.NST"));
    EXPECT_FALSE(IsFreeName(folder / "map"));
    EXPECT_FALSE(IsFreeName(folder / "link"));
}

TEST_F(FileHandling, OnlyARegularFileOrAFreeNameCanBeRenamedTo) {
    EXPECT_TRUE(IsRegularFileOrMissing(folder.Write("kaart.sfn", "")));
    EXPECT_TRUE(IsRegularFileOrMissing(folder / "nieuw.sfn"));
    EXPECT_FALSE(IsRegularFileOrMissing(u"/dev/null"));
    EXPECT_FALSE(IsRegularFileOrMissing(folder / ""));
    fs::create_symlink("/dev/null", Path("link"));
    EXPECT_FALSE(IsRegularFileOrMissing(folder / "link"));
}

TEST_F(FileHandling, TwoNamesOfOneFileAreTheSameFile) {
    const Text name = folder.Write("Kaart.idx", "");
    const Text other = folder.Write("andere.idx", "");
    fs::create_symlink("Kaart.idx", Path("link.idx"));
    fs::create_hard_link(Path("Kaart.idx"), Path("hard.idx"));
    fs::create_directory(Path("map"));
    const EnvironmentValue drive("KORVANDE_DRIVE_K", folder.Path());
    EXPECT_TRUE(SameFile(name, name));
    EXPECT_TRUE(SameFile(name, folder / "KAART.IDX"));
    EXPECT_TRUE(SameFile(name, folder / "./map/../Kaart.idx"));
    EXPECT_TRUE(SameFile(name, folder / "link.idx"));
    EXPECT_TRUE(SameFile(name, folder / "hard.idx"));
    EXPECT_TRUE(SameFile(name, u"K:\\KAART.IDX"));
    EXPECT_FALSE(SameFile(name, other));
    EXPECT_FALSE(SameFile(name, folder / "kaart.sfn"));
}

TEST_F(FileHandling, TwoNamesOfAFileToComeAreTheSameFile) {
    fs::create_directory(Path("map"));
    fs::create_directory(Path("map2"));
    fs::create_directory_symlink("map", Path("link"));
    fs::create_symlink("map/kaart.log", Path("kaart.lnk"));
    EXPECT_TRUE(SameFile(folder / "map/kaart.log", folder / "map/KAART.LOG"));
    EXPECT_TRUE(SameFile(folder / "map/kaart.log", folder / "map\\.\\kaart.log"));
    EXPECT_TRUE(SameFile(folder / "map/kaart.log", folder / "link/kaart.log"));
    EXPECT_TRUE(SameFile(folder / "map/kaart.log", folder / "kaart.lnk"));
    EXPECT_TRUE(SameFile(u"kaart die er niet is.log", u".\\KAART DIE ER NIET IS.LOG"));
    EXPECT_FALSE(SameFile(folder / "map/kaart.log", folder / "map2/kaart.log"));
    EXPECT_FALSE(SameFile(folder / "map/kaart.log", folder / "map/kaart.sfn"));
    EXPECT_FALSE(SameFile(folder / "geen/kaart.log", folder / "kaart.log"));
}

TEST_F(FileHandling, AFileCreatedUnderEitherOfTwoSameNamesIsOneFile) {
    const Text first = folder / "kaart.log";
    const Text second = folder / "KAART.LOG";
    ASSERT_TRUE(SameFile(first, second));
    folder.Write("kaart.log", "");
    EXPECT_TRUE(SameFile(first, second));
    EXPECT_EQ(FileIdentity(first), FileIdentity(second));
}

TEST_F(FileHandling, ACopyTakesThePlaceOfAnEarlierFile) {
    const Text source = folder.Write("oud.nst", "de inhoud");
    const Text target = folder.Write("nieuw.nst", "een veel langere inhoud dan die van de kopie");
    EXPECT_TRUE(CopyFileWithReport(source, target, true));
    EXPECT_EQ(FileBytes(target), "de inhoud");
    EXPECT_EQ(FileBytes(source), "de inhoud");
    EXPECT_TRUE(screen.messages.empty());
}

TEST_F(FileHandling, AFailedCopyIsReported) {
    EXPECT_FALSE(CopyFileWithReport(folder / "geen.nst", folder / "nieuw.nst", true));
    ASSERT_EQ(screen.boxes.size(), 1U);
    EXPECT_EQ(screen.messages[0], "FileCopy failed:\nSource: " + Path("geen.nst") + "\nTarget: " + Path("nieuw.nst") +
                                      "\nCause: Bestand niet gevonden");
    EXPECT_EQ(screen.boxes[0].title, u"");
    EXPECT_EQ(screen.boxes[0].buttons, Buttons::Ok);
    EXPECT_EQ(screen.boxes[0].icon, Icon::None);
    EXPECT_EQ(folder.Listing(), "");
}

TEST_F(FileHandling, AFailedCopyIsSilentWithoutTheFlag) {
    EXPECT_FALSE(CopyFileWithReport(folder / "geen.nst", folder / "nieuw.nst", false));
    EXPECT_TRUE(screen.messages.empty());
}

TEST_F(FileHandling, TheReportOfACopyNamesTheCause) {
    const EnvironmentValue noDrive("KORVANDE_DRIVE_Q", std::nullopt);
    const Text source = folder.Write("oud.nst", "inhoud");
    const struct {
        Text from;
        Text to;
        const char* cause;
    } cases[] = {{source, folder / "geen map/nieuw.nst", "Pad niet gevonden"},
                 {source, u"Q:\\NIEUW.NST", "Station niet gereed"},
                 {u"Q:\\OUD.NST", folder / "nieuw.nst", "Station niet gereed"},
                 {source, u"/dev/full", "Schijf vol"},
                 {u"/proc/self/mem", folder / "nieuw.nst", "Fout bij toegang tot pad of bestand"},
                 {source, folder / "", "Fout bij toegang tot pad of bestand"},
                 {folder / "", folder / "nieuw.nst", "Fout bij toegang tot pad of bestand"},
                 {source, source, "Fout bij toegang tot pad of bestand"},
                 {source, folder / std::string(300, 'n'), "Ongeldige bestandsnaam of ongeldig bestandsnummer"}};
    for (const auto& [from, to, cause] : cases) {
        screen.messages.clear();
        EXPECT_FALSE(CopyFileWithReport(from, to, true));
        ASSERT_EQ(screen.messages.size(), 1U);
        EXPECT_TRUE(screen.messages[0].ends_with(std::string("\nCause: ") + cause)) << screen.messages[0];
    }
    EXPECT_EQ(FileBytes(source), "inhoud");
    EXPECT_EQ(folder.Listing(), "oud.nst");
}

TEST_F(FileHandling, ACopyOntoAFullDiskIsReported) {
    const Text source = folder.Write("oud.nst", std::string(100'000, 'x'));
    {
        const FullDisk full(50'000);
        EXPECT_FALSE(CopyFileWithReport(source, folder / "nieuw.nst", true));
    }
    ASSERT_EQ(screen.messages.size(), 1U);
    EXPECT_TRUE(screen.messages[0].ends_with("\nCause: Schijf vol")) << screen.messages[0];
    EXPECT_EQ(folder.Listing(), "oud.nst");
}

TEST_F(FileHandling, AFileIsDeletedAndAFolderIsNot) {
    const Text name = folder.Write("kaart.log", "");
    fs::create_directory(Path("map"));
    EXPECT_TRUE(DeleteFileAt(folder / "KAART.LOG"));
    EXPECT_FALSE(DeleteFileAt(name));
    EXPECT_FALSE(DeleteFileAt(folder / "map"));
    EXPECT_EQ(folder.Listing(), "map");
}

TEST_F(FileHandling, DeletingALinkLeavesItsFile) {
    folder.Write("kaart.log", "");
    fs::create_symlink("kaart.log", Path("link"));
    EXPECT_TRUE(DeleteFileAt(folder / "link"));
    EXPECT_EQ(folder.Listing(), "kaart.log");
}

TEST_F(FileHandling, ARenamedFileReplacesAnEarlierOne) {
    const Text from = folder.Write("tijdelijk.tmp", "nieuw");
    const Text to = folder.Write("kaart.sfn", "oud");
    EXPECT_TRUE(RenameFileAt(from, to));
    EXPECT_EQ(FileBytes(to), "nieuw");
    EXPECT_EQ(folder.Listing(), "kaart.sfn");
}

TEST_F(FileHandling, ARenamedFileReplacesNothingWhenAskedSo) {
    const Text from = folder.Write("project.ini", "nieuw");
    const Text to = folder.Write("PROJECT.NST", "oud");
    EXPECT_FALSE(RenameFileAt(from, folder / "project.nst", Replace::No));
    EXPECT_EQ(FileBytes(to), "oud");
    EXPECT_TRUE(RenameFileAt(from, folder / "ander.nst", Replace::No));
    EXPECT_EQ(folder.Listing(), "PROJECT.NST ander.nst");
}

TEST_F(FileHandling, ALinkStaysWhenItsFileIsReplaced) {
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

TEST_F(FileHandling, AFileThatMayNotBeWrittenIsNotReplaced) {
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

TEST_F(FileHandling, AReplacedFileKeepsItsPermissions) {
    const fs::perms ownersOnly = fs::perms::owner_read | fs::perms::owner_write;
    const Text from = folder.Write("tijdelijk.tmp", "nieuw");
    const Text to = folder.Write("kaart.sfn", "oud");
    fs::permissions(Path("tijdelijk.tmp"), fs::perms::all);
    fs::permissions(Path("kaart.sfn"), ownersOnly);
    EXPECT_TRUE(RenameFileAt(from, to));
    EXPECT_EQ(FileBytes(to), "nieuw");
    EXPECT_EQ(fs::status(Path("kaart.sfn")).permissions(), ownersOnly);
}

TEST_F(FileHandling, WhatCannotBeRenamedStays) {
    const Text from = folder.Write("kaart.sfn", "inhoud");
    EXPECT_FALSE(RenameFileAt(folder / "geen.sfn", folder / "nieuw.sfn"));
    EXPECT_FALSE(RenameFileAt(from, folder / "geen map/nieuw.sfn"));
    EXPECT_FALSE(RenameFileAt(from, folder / ""));
    EXPECT_EQ(FileBytes(from), "inhoud");
}

TEST_F(FileHandling, ATemporaryNameIsNewAndInTheSameFolder) {
    const Text name = folder / "kaart.sfn";
    const Text first = TemporaryNameBeside(name);
    const Text second = TemporaryNameBeside(name);
    EXPECT_NE(first, second);
    EXPECT_EQ(FolderOf(first), FolderOf(name));
    EXPECT_TRUE(IsFreeName(first));
    EXPECT_EQ(FolderOf(TemporaryNameBeside(u"kaart.sfn")), u"");
    EXPECT_EQ(folder.Listing(), "");
}

TEST_F(FileHandling, ATemporaryNameForALinkIsBesideItsFile) {
    fs::create_directory(Path("map"));
    fs::create_symlink("map/kaart.sfn", Path("link"));
    EXPECT_EQ(FolderOf(TemporaryNameBeside(folder / "link")), folder / "map/");
}

TEST_F(FileHandling, ATemporaryNameIsShortHoweverLongTheName) {
    const Text name = folder / std::string(250, 'n');
    const Text temporary = TemporaryNameBeside(name);
    folder.Write(ToUtf8(FileNameOf(temporary)), "inhoud");
    EXPECT_TRUE(RenameFileAt(temporary, name));
    EXPECT_EQ(FileBytes(name), "inhoud");
}

}  // namespace

}  // namespace korvande::testing
