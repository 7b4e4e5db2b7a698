#include "host/modFileHandling.h"

#include <gtest/gtest.h>
#include <sys/resource.h>

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

TEST_F(FileHandling, AFolderIsListedByPatternWithoutRegardToCase) {
    for (const char* name : {"straat.nst", "ALFA.NST", "beta.Nst", "zeta.nst2", "geen.txt", "Ärger.nst", "nst"}) {
        folder.Write(name, "");
    }
    fs::create_directory(Path("map.nst"));
    fs::create_symlink("ALFA.NST", Path("link.nst"));
    const std::vector<Text> expected = {u"ALFA.NST", u"beta.Nst", u"link.nst", u"straat.nst", u"Ärger.nst"};
    EXPECT_EQ(ListFiles(folder / "", u"*.nst"), expected);
    EXPECT_EQ(ListFiles(folder / ".", u"*.NST"), expected);
}

TEST_F(FileHandling, NamesThatDifferInCaseOnlyAreListedInAFixedOrder) {
    for (const char* name : {"b.nst", "B.NST", "a.nst"}) folder.Write(name, "");
    EXPECT_EQ(ListFiles(folder / "", u"*.nst"), (std::vector<Text>{u"a.nst", u"B.NST", u"b.nst"}));
}

TEST_F(FileHandling, AFolderThatIsMissingListsNothing) {
    EXPECT_TRUE(ListFiles(folder / "geen map", u"*").empty());
    EXPECT_TRUE(ListFiles(folder.Write("bestand", ""), u"*").empty());
}

TEST_F(FileHandling, PatternsKnowStarsAndQuestionMarks) {
    folder.Write("a.b.nst", "");
    for (const char16_t* pattern : {u"*", u"*.*", u"a*", u"*.nst", u"a.?.nst", u"*b*", u"***a*.*t***", u"?.b.nst",
                                    u"A.B.NST", u"*.b.*", u"a.b.nst*"}) {
        EXPECT_EQ(ListFiles(folder / "", pattern).size(), 1U) << ToUtf8(pattern);
    }
    for (const char16_t* pattern : {u"", u"?", u"*.ini", u"a", u"?a.b.nst", u"a.b.nst?", u"*x*", u"b*"}) {
        EXPECT_EQ(ListFiles(folder / "", pattern).size(), 0U) << ToUtf8(pattern);
    }
}

TEST_F(FileHandling, APatternFullOfStarsTakesNoTime) {
    folder.Write(std::string(200, 'a'), "");
    Text pattern;
    for (int i = 0; i < 100; ++i) pattern += u"a*";
    EXPECT_EQ(ListFiles(folder / "", pattern + u"b").size(), 0U);
    EXPECT_EQ(ListFiles(folder / "", pattern).size(), 1U);
}

TEST_F(FileHandling, FileNamesThatAreNoUtf8AreListedAndFound) {
    folder.Write("straat\xE9.nst", "");
    const std::vector<Text> names = ListFiles(folder / "", u"*.nst");
    ASSERT_EQ(names.size(), 1U);
    EXPECT_TRUE(FileExistsAt(Concat(folder / "", names[0])));
}

}  // namespace

}  // namespace korvande::testing
