#include "core/LineWriter.h"

#include <gtest/gtest.h>

#include <cstring>
#include <filesystem>

#include "tests/core/Allocations.h"
#include "tests/core/ErrorOf.h"
#include "tests/support/TestFiles.h"

namespace korvande::testing {

namespace {

constexpr std::size_t bufferSize = std::size_t{1} << 17;

class LineWriterTest : public ::testing::Test {
 protected:
    TestFolder folder;
    Text name = folder / "uit.txt";
    LineWriter writer;
};

TEST_F(LineWriterTest, LinesEndWithCrLf) {
    writer.Open(name);
    writer.PutLine("HEADER");
    writer.PutLine("");
    writer.Put("a");
    writer.Put("\x80\r");
    writer.PutLine("b");
    writer.Close();
    EXPECT_EQ(FileBytes(name), "HEADER\r\n\r\na\x80\rb\r\n");
    EXPECT_FALSE(writer.IsOpen());
    EXPECT_FALSE(writer.HasFailed());
}

TEST_F(LineWriterTest, NothingAtAllCanBeWritten) {
    writer.Open(name);
    writer.Put({});
    writer.Put("");
    writer.PutLine({});
    writer.Put({});
    writer.Close();
    EXPECT_EQ(FileBytes(name), "\r\n");
}

TEST_F(LineWriterTest, AFileIsEmptyUntilSomethingIsWritten) {
    folder.Write("uit.txt", "an earlier and longer text");
    writer.Open(name);
    EXPECT_EQ(FileBytes(name), "");
    writer.Put("new");
    writer.Close();
    EXPECT_EQ(FileBytes(name), "new");
}

TEST_F(LineWriterTest, TextOfAnyLengthIsWrittenInOrder) {
    std::string expected;
    writer.Open(name);
    for (const std::size_t length : {std::size_t{10}, bufferSize - 10, std::size_t{1}, bufferSize, bufferSize + 1,
                                     std::size_t{0}, 5 * bufferSize, std::size_t{3}, bufferSize - 2, bufferSize - 1}) {
        const std::string text(length, static_cast<char>('a' + length % 26));
        writer.Put(text);
        writer.PutLine(text);
        expected += text + text + "\r\n";
    }
    writer.Close();
    EXPECT_TRUE(FileBytes(name) == expected);
}

TEST_F(LineWriterTest, ManyLinesAreWrittenWithoutHeap) {
    writer.Open(name);
    const auto used = AllocationsOf([&] {
        for (int i = 0; i < 100'000; ++i)
            writer.PutLine("64 characters, as a record of the exchange format has them.....");
    });
    EXPECT_EQ(used.blocks, 0U);
    writer.Close();
    EXPECT_EQ(std::filesystem::file_size(ToUtf8(name)), 100'000U * 65);
}

TEST_F(LineWriterTest, TheBufferCanBeFilledInPlace) {
    writer.Open(name);
    std::string expected;
    for (int i = 0; i < 5'000; ++i) {
        std::memcpy(writer.Reserve(100), "0123456789", 10);
        writer.Advance(10);
        expected += "0123456789";
    }
    static_cast<void>(writer.Reserve(3 * bufferSize));  // and used for nothing
    writer.Close();
    EXPECT_TRUE(FileBytes(name) == expected);
}

TEST_F(LineWriterTest, AFullDiskIsError61WhenTheBufferIsWritten) {
    writer.Open(u"/dev/full");
    writer.Put(std::string(bufferSize, 'x'));
    EXPECT_EQ(ErrorOf([&] { writer.Put("x"); }), 61);
    EXPECT_TRUE(writer.HasFailed());
}

TEST_F(LineWriterTest, AFullDiskIsError61WhenTheFileIsClosed) {
    writer.Open(u"/dev/full");
    writer.PutLine("a little");
    EXPECT_EQ(ErrorOf([&] { writer.Close(); }), 61);
    EXPECT_TRUE(writer.HasFailed());
    EXPECT_FALSE(writer.IsOpen());
}

TEST_F(LineWriterTest, AfterAFailureNothingMoreIsWrittenAndNothingMoreIsSaid) {
    writer.Open(u"/dev/full");
    writer.Put(std::string(bufferSize, 'x'));
    EXPECT_EQ(ErrorOf([&] { writer.Put("x"); }), 61);
    for (int i = 0; i < 3; ++i) EXPECT_NO_THROW(writer.Put(std::string(bufferSize, 'x')));
    EXPECT_NO_THROW(writer.Close());
    EXPECT_TRUE(writer.HasFailed());
}

TEST_F(LineWriterTest, AnotherFileBeginsWithoutTheFailureOfTheOneBefore) {
    writer.Open(u"/dev/full");
    writer.Put("lost");
    EXPECT_EQ(ErrorOf([&] { writer.Close(); }), 61);
    writer.Open(name);
    EXPECT_FALSE(writer.HasFailed());
    writer.Put("kept");
    writer.Close();
    EXPECT_EQ(FileBytes(name), "kept");
}

TEST_F(LineWriterTest, AMissingFolderIsError76AndAFolderError75) {
    EXPECT_EQ(ErrorOf([&] { writer.Open(folder / "weg/uit.txt"); }), 76);
    EXPECT_EQ(ErrorOf([&] { writer.Open(FromUtf8(folder.Path())); }), 75);
    EXPECT_FALSE(writer.IsOpen());
}

TEST_F(LineWriterTest, AWriterWithoutFileIsError52) {
    EXPECT_EQ(ErrorOf([&] { writer.Put("x"); }), 52);
    EXPECT_EQ(ErrorOf([&] { writer.PutLine(""); }), 52);
    EXPECT_EQ(ErrorOf([&] { writer.Put({}); }), 52);
    EXPECT_EQ(ErrorOf([&] { writer.Reserve(1); }), 52);
    EXPECT_EQ(ErrorOf([&] { writer.Close(); }), 52);
    writer.Open(name);
    writer.Close();
    EXPECT_EQ(ErrorOf([&] { writer.Put("x"); }), 52);
    EXPECT_EQ(ErrorOf([&] { writer.Close(); }), 52);
}

TEST_F(LineWriterTest, AnAbandonedFileKeepsOnlyWhatWasWrittenAlready) {
    writer.Open(name);
    writer.Put("lost");
    writer.Abandon();
    EXPECT_FALSE(writer.IsOpen());
    EXPECT_EQ(FileBytes(name), "");
    EXPECT_NO_THROW(writer.Abandon());
}

// What is written by every procedure, in pieces around the size of the buffer.
void WriteSomeOfEverything(LineWriter& writer) {
    writer.PutLine("HEADER");
    writer.PutLine({});
    writer.Put("\x80\r\n\x1A");
    for (const std::size_t length :
         {bufferSize - 20, std::size_t{10}, bufferSize, 3 * bufferSize + 1, std::size_t{0}}) {
        writer.PutLine(std::string(length, 'x'));
    }
    std::memcpy(writer.Reserve(100), "in place", 8);
    writer.Advance(8);
    writer.Put("end");
}

TEST_F(LineWriterTest, MemoryGetsTheBytesThatAFileGets) {
    writer.Open(name);
    WriteSomeOfEverything(writer);
    writer.Close();
    std::string bytes;
    writer.OpenBytes(bytes);
    EXPECT_TRUE(writer.IsOpen());
    WriteSomeOfEverything(writer);
    writer.Close();
    EXPECT_FALSE(writer.IsOpen());
    EXPECT_FALSE(writer.HasFailed());
    EXPECT_TRUE(bytes == FileBytes(name));
    EXPECT_GT(bytes.size(), 5 * bufferSize);
}

TEST_F(LineWriterTest, WhatIsWrittenToMemoryGoesBehindWhatItHolds) {
    std::string bytes = "before;";
    writer.OpenBytes(bytes);
    writer.Put("first;");
    writer.Close();
    writer.OpenBytes(bytes);
    writer.Put("second");
    writer.Close();
    EXPECT_EQ(bytes, "before;first;second");
}

TEST_F(LineWriterTest, NowhereTakesEverythingAndKeepsNothing) {
    // Not even where the writer wrote before.
    std::string bytes;
    writer.OpenBytes(bytes);
    writer.Close();
    writer.OpenNowhere();
    EXPECT_TRUE(writer.IsOpen());
    const auto used = AllocationsOf([&] {
        for (int i = 0; i < 10'000; ++i)
            writer.PutLine("64 characters, as a record of the exchange format has them.....");
    });
    EXPECT_EQ(used.blocks, 0U);
    WriteSomeOfEverything(writer);
    writer.Close();
    EXPECT_FALSE(writer.IsOpen());
    EXPECT_FALSE(writer.HasFailed());
    EXPECT_EQ(folder.Listing(), "");
    EXPECT_EQ(bytes, "");
    EXPECT_EQ(ErrorOf([&] { writer.Put("x"); }), 52);
}

TEST_F(LineWriterTest, AFailureIsForgottenInMemoryAndNowhere) {
    std::string bytes;
    writer.Open(u"/dev/full");
    writer.Put("lost");
    EXPECT_EQ(ErrorOf([&] { writer.Close(); }), 61);
    writer.OpenBytes(bytes);
    EXPECT_FALSE(writer.HasFailed());
    writer.Put("kept");
    writer.Close();
    EXPECT_EQ(bytes, "kept");
    writer.Open(u"/dev/full");
    writer.Put("lost");
    EXPECT_EQ(ErrorOf([&] { writer.Close(); }), 61);
    writer.OpenNowhere();
    EXPECT_FALSE(writer.HasFailed());
}

TEST_F(LineWriterTest, AbandonedMemoryKeepsOnlyWhatWasWrittenAlready) {
    std::string bytes;
    writer.OpenBytes(bytes);
    writer.Put("lost");
    writer.Abandon();
    EXPECT_FALSE(writer.IsOpen());
    EXPECT_EQ(bytes, "");
}

TEST_F(LineWriterTest, OpeningAFileLeavesTheMemoryBehind) {
    std::string bytes;
    writer.OpenBytes(bytes);
    writer.Open(name);
    writer.Put("to the file");
    writer.Close();
    EXPECT_EQ(bytes, "");
    EXPECT_EQ(FileBytes(name), "to the file");
}

TEST_F(LineWriterTest, AWriterCanBeHandedOn) {
    writer.Open(name);
    writer.PutLine("one");
    LineWriter other = std::move(writer);
    EXPECT_FALSE(writer.IsOpen());  // NOLINT(bugprone-use-after-move)
    other.PutLine("two");
    other.Close();
    EXPECT_EQ(FileBytes(name), "one\r\ntwo\r\n");
}

}  // namespace

}  // namespace korvande::testing
