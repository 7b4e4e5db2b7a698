#include <gtest/gtest.h>
#include <windows.h>

#include <cstdio>
#include <filesystem>

#include "core/LineReader.h"
#include "core/NativePath.h"
#include "core/WideText_windows.h"
#include "tests/core/ErrorOf.h"
#include "tests/support/TestFiles.h"

namespace korvande::testing {

namespace {

class NativePathTest : public ::testing::Test {
 protected:
    void MakeFolder(std::string_view name) const { ::CreateDirectoryW(ToWide(folder / name).c_str(), nullptr); }
    int OpenError(std::string_view name, OpenMode mode) const { return ErrorOfOpening(folder / name, mode); }
    static int ErrorOfOpening(TextView name, OpenMode mode) {
        return ErrorOf([&] { FileHandle(OpenNativeFile(name, mode)); });
    }

    TestFolder folder;
};

TEST_F(NativePathTest, ANameStaysAsItIs) { EXPECT_EQ(NativePath(u"C:\\Data\\Café/€.idx"), "C:\\Data\\Café/€.idx"); }

TEST_F(NativePathTest, NamesOfAllCharactersAreOpened) {
    for (const TextView name : {u"café €.idx", u"Ωmega.idx", u"\U0001F4D0.idx", u"met  blanks .idx"}) {
        const Text file = Concat(folder / "", name);
        std::fputs("inhoud", FileHandle(OpenNativeFile(file, OpenMode::Write)).get());
        EXPECT_NE(::GetFileAttributesW(ToWide(file).c_str()), INVALID_FILE_ATTRIBUTES) << ToUtf8(name);
        EXPECT_EQ(FileBytes(file), "inhoud");
    }
}

TEST_F(NativePathTest, BytesAreWrittenAndReadAsTheyAre) {
    const Text name = folder / "bytes";
    const std::string bytes("a\r\nb\nc\x1A\0d", 9);
    std::fwrite(bytes.data(), 1, bytes.size(), FileHandle(OpenNativeFile(name, OpenMode::Write)).get());
    EXPECT_EQ(FileBytes(name), bytes);
    std::string read(20, ' ');
    read.resize(std::fread(read.data(), 1, read.size(), FileHandle(OpenNativeFile(name, OpenMode::Read)).get()));
    EXPECT_EQ(read, bytes);
}

TEST_F(NativePathTest, WritingReplacesAndAppendingGoesOn) {
    folder.Write("straat.log", "oud en lang");
    std::fputs("nieuw", FileHandle(OpenNativeFile(folder / "STRAAT.LOG", OpenMode::Write)).get());
    EXPECT_EQ(FileBytes(folder / "straat.log"), "nieuw");
    std::fputs("er", FileHandle(OpenNativeFile(folder / "straat.LOG", OpenMode::Append)).get());
    EXPECT_EQ(FileBytes(folder / "straat.log"), "nieuwer");
    EXPECT_EQ(folder.Listing(), "straat.log");
}

TEST_F(NativePathTest, TheNullDeviceTakesEverythingAndKeepsNothing) {
    std::fputs("weg", FileHandle(OpenNativeFile(NullDevice(), OpenMode::Write)).get());
    const FileHandle file(OpenNativeFile(NullDevice(), OpenMode::Read));
    EXPECT_EQ(std::fgetc(file.get()), EOF);
}

TEST_F(NativePathTest, WhatIsNotThereHasItsErrors) {
    EXPECT_EQ(OpenError("weg.idx", OpenMode::Read), 53);
    for (const OpenMode mode : {OpenMode::Read, OpenMode::Write, OpenMode::Append}) {
        EXPECT_EQ(OpenError("weg/a.idx", mode), 76);
        EXPECT_EQ(ErrorOfOpening(u"Q:\\kaart.idx", mode), 71);
        EXPECT_EQ(ErrorOfOpening(u"Q:\\map\\kaart.idx", mode), 71);
    }
}

TEST_F(NativePathTest, AFolderIsError75) {
    MakeFolder("map");
    for (const OpenMode mode : {OpenMode::Read, OpenMode::Write, OpenMode::Append}) {
        EXPECT_EQ(OpenError("MAP", mode), 75);
    }
}

TEST_F(NativePathTest, ANameThatIsNoneIsError52) {
    folder.Write("a", "");
    for (const OpenMode mode : {OpenMode::Read, OpenMode::Write, OpenMode::Append}) {
        EXPECT_EQ(ErrorOfOpening(u"", mode), 52);
        EXPECT_EQ(OpenError(std::string_view("a\0b", 3), mode), 52);
        EXPECT_EQ(OpenError("a*b?.idx", mode), 52);
    }
}

TEST_F(NativePathTest, AFileThatMayNotBeWrittenIsError70) {
    const Text name = folder.Write("vast.idx", "inhoud");
    ::SetFileAttributesW(ToWide(name).c_str(), FILE_ATTRIBUTE_READONLY);
    EXPECT_EQ(OpenError("vast.idx", OpenMode::Read), 0);
    EXPECT_EQ(OpenError("vast.idx", OpenMode::Write), 70);
    EXPECT_EQ(OpenError("vast.idx", OpenMode::Append), 70);
    ::SetFileAttributesW(ToWide(name).c_str(), FILE_ATTRIBUTE_NORMAL);
    EXPECT_EQ(FileBytes(name), "inhoud");
}

TEST_F(NativePathTest, AFileThatAnotherProgramHoldsIsError70) {
    const Text name = folder.Write("bezet.idx", "");
    const HANDLE holder =
        ::CreateFileW(ToWide(name).c_str(), GENERIC_READ, 0, nullptr, OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL, nullptr);
    ASSERT_NE(holder, INVALID_HANDLE_VALUE);
    EXPECT_EQ(OpenError("bezet.idx", OpenMode::Read), 70);
    EXPECT_EQ(OpenError("bezet.idx", OpenMode::Write), 70);
    ::CloseHandle(holder);
}

}  // namespace

}  // namespace korvande::testing
