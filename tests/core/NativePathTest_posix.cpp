#include "core/NativePath.h"

#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cstdlib>
#include <filesystem>

#include "core/LineReader.h"
#include "tests/core/ErrorOf.h"
#include "tests/support/TestFiles.h"

namespace korvande::testing {

namespace {

namespace fs = std::filesystem;

class NativePathTest : public ::testing::Test {
 protected:
    std::string At(std::string_view name) const { return folder.Path() + "/" + std::string(name); }
    std::string Resolved(std::string_view name) const { return NativePath(folder / name); }
    void MakeFolder(std::string_view name) const { fs::create_directories(At(name)); }
    int OpenError(std::string_view name, OpenMode mode) const {
        return ErrorOf([&] { FileHandle(OpenNativeFile(folder / name, mode)); });
    }

    TestFolder folder;
};

TEST_F(NativePathTest, ABackslashIsASlash) {
    MakeFolder("map");
    folder.Write("map/a.idx", "");
    EXPECT_EQ(NativePath(FromUtf8(folder.Path() + "\\map\\a.idx")), At("map/a.idx"));
    EXPECT_EQ(NativePath(u"niet\\hier.idx"), "niet/hier.idx");
}

TEST_F(NativePathTest, ANameThatExistsStaysAsItIs) {
    folder.Write("Straat.idx", "");
    folder.Write("STRAAT.IDX", "");
    EXPECT_EQ(Resolved("Straat.idx"), At("Straat.idx"));
    EXPECT_EQ(Resolved("STRAAT.IDX"), At("STRAAT.IDX"));
    EXPECT_EQ(NativePath(u""), "");
    EXPECT_EQ(NativePath(u"/"), "/");
}

TEST_F(NativePathTest, AComponentIsFoundWithoutRegardToCase) {
    MakeFolder("Projecten/Wijk");
    folder.Write("Projecten/Wijk/Straat.idx", "");
    EXPECT_EQ(Resolved("PROJECTEN/wijk/STRAAT.IDX"), At("Projecten/Wijk/Straat.idx"));
    EXPECT_EQ(Resolved("projecten\\WIJK\\straat.IDX"), At("Projecten/Wijk/Straat.idx"));
    EXPECT_EQ(Resolved("PROJECTEN/Wijk/"), At("Projecten/Wijk/"));
    EXPECT_EQ(Resolved("PROJECTEN//Wijk"), At("Projecten//Wijk"));
    EXPECT_EQ(Resolved("PROJECTEN/../projecten/WIJK"), At("Projecten/../Projecten/Wijk"));
}

TEST_F(NativePathTest, LettersWithAccentsHaveCaseToo) {
    folder.Write("Coördinaten \u0161\u00ff.idx", "");
    EXPECT_EQ(Resolved("COÖRDINATEN \u0160\u0178.IDX"), At("Coördinaten \u0161\u00ff.idx"));
}

TEST_F(NativePathTest, OfSeveralThatDifferInCaseTheFirstInOrderIsTaken) {
    folder.Write("straat.idx", "");
    folder.Write("Straat.idx", "");
    folder.Write("sTRAAT.idx", "");
    EXPECT_EQ(Resolved("STRAAT.IDX"), At("Straat.idx"));
}

TEST_F(NativePathTest, WhatDoesNotExistStaysAsWritten) {
    MakeFolder("Map");
    EXPECT_EQ(Resolved("MAP/Nieuw.IDX"), At("Map/Nieuw.IDX"));
    EXPECT_EQ(Resolved("MAP/Weg/Map/Nieuw.IDX"), At("Map/Weg/Map/Nieuw.IDX"));
    EXPECT_EQ(NativePath(u"Weg\\Ook.idx"), "Weg/Ook.idx");
}

TEST_F(NativePathTest, RelativeNamesAreFoundInTheCurrentFolder) {
    folder.Write("Hier.idx", "");
    const fs::path before = fs::current_path();
    fs::current_path(folder.Path());
    const std::string found = NativePath(u"HIER.IDX");
    fs::current_path(before);
    EXPECT_EQ(found, "Hier.idx");
}

TEST_F(NativePathTest, ADriveIsTheFolderInItsVariable) {
    const EnvironmentValue drive("KORVANDE_DRIVE_Q", folder.Path());
    folder.Write("Debug.txt", "");
    EXPECT_EQ(NativePath(u"Q:\\DEBUG_LINES.TXT"), At("DEBUG_LINES.TXT"));
    EXPECT_EQ(NativePath(u"q:\\debug.TXT"), At("Debug.txt"));
    EXPECT_EQ(NativePath(u"Q:/DEBUG.TXT"), At("Debug.txt"));
    EXPECT_EQ(NativePath(u"Q:DEBUG.TXT"), At("Debug.txt"));
    EXPECT_EQ(NativePath(u"Q:"), At(""));
}

TEST_F(NativePathTest, ADriveFolderMayEndInASlash) {
    const EnvironmentValue drive("KORVANDE_DRIVE_Q", folder.Path() + "/");
    folder.Write("a.txt", "");
    EXPECT_EQ(NativePath(u"Q:A.TXT"), At("a.txt"));
    EXPECT_TRUE(fs::equivalent(NativePath(u"Q:\\A.TXT"), At("a.txt")));
}

TEST_F(NativePathTest, ADriveThatIsNotSetIsError71) {
    const EnvironmentValue unset("KORVANDE_DRIVE_Q", {});
    EXPECT_EQ(ErrorOf([] { NativePath(u"Q:\\a.txt"); }), 71);
    EXPECT_EQ(ErrorOf([] { OpenNativeFile(u"q:a.txt", OpenMode::Write); }), 71);
    const EnvironmentValue empty("KORVANDE_DRIVE_Q", "");
    EXPECT_EQ(ErrorOf([] { NativePath(u"Q:\\a.txt"); }), 71);
}

TEST_F(NativePathTest, AColonElsewhereIsNoDrive) {
    EXPECT_EQ(NativePath(u"é:x"), "é:x");
    EXPECT_EQ(NativePath(u"1:x"), "1:x");
    EXPECT_EQ(NativePath(u"ab:x"), "ab:x");
    EXPECT_EQ(NativePath(u":x"), ":x");
}

TEST_F(NativePathTest, NamesOfAnyBytesAreFound) {
    for (const std::string name : {"é€ \xF0\x9F\x98\x80.idx", "kapot\xFF\xC3.idx"}) {
        folder.Write(name, "inhoud");
        EXPECT_EQ(NativePath(folder / name), At(name));
        EXPECT_EQ(OpenError(name, OpenMode::Read), 0);
    }
}

TEST_F(NativePathTest, AFileIsFoundByItsNameInCapitals) {
    folder.Write("straat.sfn", "inhoud");
    const FileHandle file(OpenNativeFile(folder / "STRAAT.SFN", OpenMode::Read));
    std::array<char, 7> bytes{};
    EXPECT_EQ(std::fread(bytes.data(), 1, bytes.size(), file.get()), 6U);
    EXPECT_STREQ(bytes.data(), "inhoud");
}

TEST_F(NativePathTest, WritingUnderANameInAnotherCaseReplacesTheFile) {
    folder.Write("straat.log", "oud");
    std::fputs("nieuw", FileHandle(OpenNativeFile(folder / "Straat.LOG", OpenMode::Write)).get());
    EXPECT_EQ(folder.Listing(), "straat.log");
    EXPECT_EQ(FileBytes(folder / "straat.log"), "nieuw");
    std::fputs("er", FileHandle(OpenNativeFile(folder / "STRAAT.log", OpenMode::Append)).get());
    EXPECT_EQ(FileBytes(folder / "straat.log"), "nieuwer");
}

TEST_F(NativePathTest, ANewFileKeepsItsNameBesideAnotherSpelling) {
    MakeFolder("Map");
    folder.Write("Map/straat.tmp", "oud");
    std::fputs("nieuw", FileHandle(CreateNativeFile(folder / "MAP\\Straat.TMP", u"")).get());
    EXPECT_EQ(FileBytes(folder / "Map/straat.tmp"), "oud");
    EXPECT_EQ(FileBytes(folder / "Map/Straat.TMP"), "nieuw");
    EXPECT_EQ(CreateNativeFile(folder / "map/Straat.TMP", u""), nullptr);
}

TEST_F(NativePathTest, TheNullDeviceTakesEverythingAndKeepsNothing) {
    std::fputs("weg", FileHandle(OpenNativeFile(NullDevice(), OpenMode::Write)).get());
    const FileHandle file(OpenNativeFile(NullDevice(), OpenMode::Read));
    EXPECT_EQ(std::fgetc(file.get()), EOF);
}

TEST_F(NativePathTest, AMissingFileIsError53) { EXPECT_EQ(OpenError("weg.idx", OpenMode::Read), 53); }

TEST_F(NativePathTest, WritingInAMissingFolderIsError76) {
    EXPECT_EQ(OpenError("weg/a.idx", OpenMode::Write), 76);
    EXPECT_EQ(OpenError("weg/a.idx", OpenMode::Append), 76);
}

TEST_F(NativePathTest, AFileInThePlaceOfAFolderIsError76) {
    folder.Write("bestand", "");
    EXPECT_EQ(OpenError("bestand/a.idx", OpenMode::Read), 76);
    EXPECT_EQ(OpenError("bestand/a.idx", OpenMode::Write), 76);
}

TEST_F(NativePathTest, AFolderIsError75) {
    MakeFolder("map");
    EXPECT_EQ(OpenError("map", OpenMode::Read), 75);
    EXPECT_EQ(OpenError("MAP", OpenMode::Write), 75);
    EXPECT_EQ(OpenError("map", OpenMode::Append), 75);
}

TEST_F(NativePathTest, ANameThatIsNoneIsError52) {
    EXPECT_EQ(ErrorOf([] { OpenNativeFile(u"", OpenMode::Read); }), 52);
    EXPECT_EQ(ErrorOf([] { OpenNativeFile(u"", OpenMode::Write); }), 52);
    folder.Write("a", "");
    EXPECT_EQ(OpenError(std::string_view("a\0b", 3), OpenMode::Read), 52);
    EXPECT_EQ(OpenError(std::string(5000, 'x'), OpenMode::Write), 52);
}

// Runs in a child process, without the rights of the superuser.
void OpenWithoutRights(TextView name) {
    if (::geteuid() == 0 && ::seteuid(65534) != 0) std::_Exit(2);
    const int reading = ErrorOf([&] { OpenNativeFile(name, OpenMode::Read); });
    const int writing = ErrorOf([&] { OpenNativeFile(name, OpenMode::Write); });
    std::_Exit(reading == errors::accessDenied && writing == errors::accessDenied ? 0 : 1);
}

TEST_F(NativePathTest, AFileThatMayNotBeOpenedIsError70) {
    const Text name = folder.Write("geheim.idx", "");
    ASSERT_EQ(::chmod(ToUtf8(name).c_str(), 0), 0);
    EXPECT_EXIT(OpenWithoutRights(name), ::testing::ExitedWithCode(0), "");
}

}  // namespace

}  // namespace korvande::testing
