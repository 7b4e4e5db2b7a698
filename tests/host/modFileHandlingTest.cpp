#include "host/modFileHandling.h"

#include <gtest/gtest.h>

#include <filesystem>

#include "core/NativePath.h"
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

TEST_F(FileHandling, AFileExistsAndAFolderIsNoFile) {
    const Text name = folder.Write("kaart.idx", "");
    EXPECT_TRUE(FileExistsAt(name));
    EXPECT_FALSE(FileExistsAt(folder / "kaart.sfn"));
    fs::create_directory(Path("map.idx"));
    EXPECT_FALSE(FileExistsAt(folder / "map.idx"));
    EXPECT_FALSE(FileExistsAt(folder / ""));
}

TEST_F(FileHandling, HopelessNamesGiveFalseOrNothing) {
    const EnvironmentValue noDrive("KORVANDE_DRIVE_Q", std::nullopt);
    const Text file = folder.Write("a", "inhoud");
    for (const Text& name :
         {Text(), Text(u"a\0b", 3), Text(5000, u'n'), folder / "a/file.idx", Text(u"Q:\\KAART.IDX")}) {
        SCOPED_TRACE(ToUtf8(name.substr(0, 20)));
        EXPECT_FALSE(FileExistsAt(name));
        EXPECT_FALSE(DeleteFileAt(name));
        EXPECT_FALSE(RenameFileAt(name, folder / "b"));
        EXPECT_FALSE(RenameFileAt(file, name));
        EXPECT_FALSE(CopyFileWithReport(screen, name, folder / "b", false));
        EXPECT_FALSE(CopyFileWithReport(screen, file, name, false));
        EXPECT_FALSE(SameFile(name, file));
    }
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

TEST_F(FileHandling, ANameIsFreeUntilAFileOrAFolderHasIt) {
    EXPECT_TRUE(IsFreeName(folder / "nieuw.nst"));
    EXPECT_TRUE(IsFreeName(folder / "geen map/nieuw.nst"));
    folder.Write("bestand.nst", "");
    fs::create_directory(Path("map"));
    EXPECT_FALSE(IsFreeName(folder / "bestand.nst"));
    EXPECT_FALSE(IsFreeName(folder / "BESTAND.NST"));
    EXPECT_FALSE(IsFreeName(folder / "map"));
    EXPECT_TRUE(MayBeMade(folder / "nieuw.nst"));
    EXPECT_FALSE(MayBeMade(folder / "BESTAND.NST"));
    EXPECT_FALSE(MayBeMade(folder / "map"));
}

TEST_F(FileHandling, OnlyARegularFileOrAFreeNameCanBeRenamedTo) {
    EXPECT_TRUE(IsRegularFileOrMissing(folder.Write("kaart.sfn", "")));
    EXPECT_TRUE(IsRegularFileOrMissing(folder / "nieuw.sfn"));
    EXPECT_FALSE(IsRegularFileOrMissing(folder / ""));
    EXPECT_FALSE(IsRegularFileOrMissing(NullDevice()));
}

TEST_F(FileHandling, TwoNamesOfOneFileAreTheSameFile) {
    const Text name = folder.Write("Kaart.idx", "");
    const Text other = folder.Write("andere.idx", "");
    fs::create_hard_link(Path("Kaart.idx"), Path("hard.idx"));
    fs::create_directory(Path("map"));
    EXPECT_TRUE(SameFile(name, name));
    EXPECT_TRUE(SameFile(name, folder / "KAART.IDX"));
    EXPECT_TRUE(SameFile(name, folder / "./map/../Kaart.idx"));
    EXPECT_TRUE(SameFile(name, folder / "hard.idx"));
    EXPECT_FALSE(SameFile(name, other));
    EXPECT_FALSE(SameFile(name, folder / "kaart.sfn"));
}

TEST_F(FileHandling, TwoNamesOfAFileToComeAreTheSameFile) {
    fs::create_directory(Path("map"));
    fs::create_directory(Path("map2"));
    EXPECT_TRUE(SameFile(folder / "map/kaart.log", folder / "map/KAART.LOG"));
    EXPECT_TRUE(SameFile(folder / "map/kaart.log", folder / "map\\.\\kaart.log"));
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
    EXPECT_TRUE(CopyFileWithReport(screen, source, target, true));
    EXPECT_EQ(FileBytes(target), "de inhoud");
    EXPECT_EQ(FileBytes(source), "de inhoud");
    EXPECT_TRUE(screen.messages.empty());
}

TEST_F(FileHandling, AFailedCopyIsReported) {
    EXPECT_FALSE(CopyFileWithReport(screen, folder / "geen.nst", folder / "nieuw.nst", true));
    ASSERT_EQ(screen.boxes.size(), 1U);
    EXPECT_EQ(screen.messages[0], "FileCopy failed:\nSource: " + Path("geen.nst") + "\nTarget: " + Path("nieuw.nst") +
                                      "\nCause: Bestand niet gevonden");
    EXPECT_EQ(screen.boxes[0].title, u"");
    EXPECT_EQ(screen.boxes[0].buttons, Buttons::Ok);
    EXPECT_EQ(screen.boxes[0].icon, Icon::None);
    EXPECT_EQ(folder.Listing(), "");
}

TEST_F(FileHandling, AFailedCopyIsSilentWithoutTheFlag) {
    EXPECT_FALSE(CopyFileWithReport(screen, folder / "geen.nst", folder / "nieuw.nst", false));
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
                 {source, folder / "", "Fout bij toegang tot pad of bestand"},
                 {source, source, "Fout bij toegang tot pad of bestand"}};
    for (const auto& [from, to, cause] : cases) {
        screen.messages.clear();
        EXPECT_FALSE(CopyFileWithReport(screen, from, to, true));
        ASSERT_EQ(screen.messages.size(), 1U);
        EXPECT_TRUE(screen.messages[0].ends_with(std::string("\nCause: ") + cause)) << screen.messages[0];
    }
    EXPECT_EQ(FileBytes(source), "inhoud");
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
    EXPECT_TRUE(SameFile(FolderOf(first), FolderOf(name)));
    EXPECT_TRUE(IsFreeName(first));
    EXPECT_EQ(FolderOf(TemporaryNameBeside(u"kaart.sfn")), u"");
    EXPECT_EQ(folder.Listing(), "");
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
