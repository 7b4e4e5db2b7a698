#include "host/FileReplacement.h"

#include <gtest/gtest.h>

#include <filesystem>

#include "core/LineWriter.h"
#include "host/modFileHandling.h"
#include "tests/core/ErrorOf.h"
#include "tests/support/TestFiles.h"

namespace korvande::testing {

namespace {

class Replacement : public ::testing::Test {
 protected:
    TestFolder folder;
    Text name = folder / "kaart.sfn";
    LineWriter writer;
};

TEST_F(Replacement, ANewFileNeverTakesTheNameOfAnother) {
    const Text taken = folder.Write("bestaat", "bewaren");
    EXPECT_EQ(CreateNativeFile(taken, name), nullptr);
    EXPECT_FALSE(writer.Create(taken, name));
    EXPECT_FALSE(writer.IsOpen());
    EXPECT_EQ(FileBytes(taken), "bewaren");
}

TEST_F(Replacement, AnEarlierFileStaysUntilTheNewOneIsPutInItsPlace) {
    folder.Write("kaart.sfn", "van gisteren");
    FileReplacement replacement(name);
    replacement.Open(writer);
    writer.Put("van vandaag");
    writer.Close();
    EXPECT_EQ(FileBytes(name), "van gisteren");
    replacement.PutInPlace();
    EXPECT_EQ(FileBytes(name), "van vandaag");
    EXPECT_EQ(folder.Listing(), "kaart.sfn");
}

TEST_F(Replacement, WhatIsNotPutInPlaceIsRemoved) {
    folder.Write("kaart.sfn", "van gisteren");
    {
        FileReplacement replacement(name);
        replacement.Open(writer);
        EXPECT_NE(folder.Listing(), "kaart.sfn");
        writer.Close();
    }
    EXPECT_EQ(folder.Listing(), "kaart.sfn");
    EXPECT_EQ(FileBytes(name), "van gisteren");
}

TEST_F(Replacement, WhatWasNeverOpenedCannotBePutInPlace) {
    folder.Write("kaart.sfn", "van gisteren");
    FileReplacement replacement(name);
    EXPECT_NE(ErrorOf([&] { replacement.PutInPlace(); }), 0);
    EXPECT_EQ(FileBytes(name), "van gisteren");
}

TEST_F(Replacement, APlaceThatAFolderTookMeanwhileIsAnErrorAndNothingStays) {
    FileReplacement replacement(name);
    replacement.Open(writer);
    writer.Close();
    std::filesystem::create_directory(folder.Path() + "/kaart.sfn");
    EXPECT_EQ(ErrorOf([&] { replacement.PutInPlace(); }), errors::pathAccess);
    EXPECT_EQ(folder.Listing(), "kaart.sfn");
}

TEST_F(Replacement, AFileIsGivenOtherBytesAsAWhole) {
    for (const std::string_view bytes : {"lang en breed", "kort", ""}) {
        ReplaceFile(name, bytes);
        EXPECT_EQ(FileBytes(name), bytes);
        EXPECT_EQ(folder.Listing(), "kaart.sfn");
    }
}

TEST_F(Replacement, AFileIsReadAsAWholeWithEveryByteOfIt) {
    std::string bytes(10000, '\xE9');
    bytes[5000] = '\0';
    bytes += "\r\n\x1A";
    EXPECT_EQ(FileBytesOf(folder.Write("kaart.sfn", bytes)), bytes);
    EXPECT_EQ(ErrorOf([&] { FileBytesOf(folder / "weg.sfn"); }), errors::fileNotFound);
}

TEST_F(Replacement, AFolderThatIsNotThereIsAnError) {
    EXPECT_EQ(ErrorOf([&] { ReplaceFile(folder / "geen map/kaart.sfn", "x"); }), errors::pathNotFound);
    EXPECT_EQ(ErrorOf([&] { ReplaceFile(folder / "", "x"); }), errors::pathAccess);
    EXPECT_EQ(folder.Listing(), "");
}

}  // namespace

}  // namespace korvande::testing
