#include <gtest/gtest.h>

#include "tests/core/LineReaderTest.h"
#include "tests/support/TestFiles.h"

// What the bytes of a file stand for, line by line.
namespace korvande::testing {
namespace {

class LineReaderCharacterSet : public ::testing::Test {
 protected:
    void Open(std::string_view bytes, CharacterSet set, std::size_t keptWidth = 0) {
        reader.Open(folder.Write("a.txt", bytes));
        reader.ReadAs(set, keptWidth);
    }
    Lines Read(std::string_view bytes, CharacterSet set, std::size_t keptWidth = 0) {
        Open(bytes, set, keptWidth);
        return AllLines(reader);
    }

    TestFolder folder;
    LineReader reader;
};

TEST_F(LineReaderCharacterSet, AReaderBeginsWithWindows1252) {
    reader.Open(folder.Write("a.txt", "Caf\xC3\xA9\n"));
    EXPECT_EQ(AllLines(reader), (Lines{"Caf\xC3\xA9"}));
    EXPECT_EQ(reader.FirstUtf8Line(), 0);
}

TEST_F(LineReaderCharacterSet, ALineOfValidUtf8IsReadSoAndTheFirstIsKept) {
    const Lines lines = Read("plain\nCaf\xE9\nCaf\xC3\xA9\n\xE2\x82\xAC\n", CharacterSet::Automatic);
    EXPECT_EQ(lines, (Lines{"plain", "Caf\xE9", "Caf\xE9", "\x80"}));
    EXPECT_EQ(reader.FirstUtf8Line(), 3);
}

TEST_F(LineReaderCharacterSet, ALineThatMixesBothIsWindows1252) {
    EXPECT_EQ(Read("Caf\xC3\xA9 caf\xE9\n", CharacterSet::Automatic), (Lines{"Caf\xC3\xA9 caf\xE9"}));
    EXPECT_EQ(reader.FirstUtf8Line(), 0);
}

TEST_F(LineReaderCharacterSet, ChoosingWindows1252SwitchesUtf8Off) {
    EXPECT_EQ(Read("Caf\xC3\xA9\n", CharacterSet::Windows1252), (Lines{"Caf\xC3\xA9"}));
    EXPECT_EQ(reader.FirstUtf8Line(), 0);
}

TEST_F(LineReaderCharacterSet, OldDosFilesAreReadByTheirCodePage) {
    EXPECT_EQ(Read("CAF\x82\nplain\n\xC3\xA9\n", CharacterSet::Cp850), (Lines{"CAF\xE9", "plain", "?\xAE"}));
    EXPECT_EQ(reader.FirstUtf8Line(), 0);
}

TEST_F(LineReaderCharacterSet, AByteOrderMarkGoesBeforeWhatWasChosen) {
    EXPECT_EQ(Read("\xEF\xBB\xBF"
                   "Caf\xC3\xA9\n",
                   CharacterSet::Cp850),
              (Lines{"Caf\xE9"}));
    EXPECT_EQ(reader.FirstUtf8Line(), 0);
}

TEST_F(LineReaderCharacterSet, OnlyLinesOfTheKeptWidthKeepTheirColumns) {
    EXPECT_EQ(Read("a\xC3\xA9z\na\xC3\xA9zz\n", CharacterSet::Automatic, 4), (Lines{"a\xE9 z", "a\xE9zz"}));
}

TEST_F(LineReaderCharacterSet, ACharacterThatIsLostIsNotedForItsLineOnly) {
    Open("what?\n\xC5\x81?\nrest\n", CharacterSet::Automatic);
    std::string_view line;
    ASSERT_TRUE(reader.Next(line));
    EXPECT_FALSE(reader.LacksCharacter());
    ASSERT_TRUE(reader.Next(line));
    EXPECT_EQ(line, "??");
    EXPECT_TRUE(reader.LacksCharacter());
    ASSERT_TRUE(reader.Next(line));
    EXPECT_FALSE(reader.LacksCharacter());
}

TEST_F(LineReaderCharacterSet, ACharacterIsLostInAMarkedFileAndACodePageToo) {
    std::string_view line;
    Open("\xEF\xBB\xBF\xC5\x81\n", CharacterSet::Automatic);
    ASSERT_TRUE(reader.Next(line));
    EXPECT_TRUE(reader.LacksCharacter());
    Open("\xC4\n", CharacterSet::Cp850);
    ASSERT_TRUE(reader.Next(line));
    EXPECT_TRUE(reader.LacksCharacter());
}

TEST_F(LineReaderCharacterSet, Utf8IsFoundFarBehindTheFirstBlock) {
    const std::string plain = std::string(63, 'x') + "\n";
    std::string bytes;
    while (bytes.size() < 300'000) bytes += plain;
    const auto before = static_cast<std::int64_t>(bytes.size() / plain.size());
    const Lines lines = Read(bytes + "\xC3\xA9\n", CharacterSet::Automatic);
    EXPECT_EQ(lines.back(), "\xE9");
    EXPECT_EQ(reader.FirstUtf8Line(), before + 1);
}

TEST_F(LineReaderCharacterSet, BytesInMemoryAreReadTheSameWay) {
    reader.OpenBytes("Caf\xC3\xA9\n");
    reader.ReadAs(CharacterSet::Automatic);
    EXPECT_EQ(AllLines(reader), (Lines{"Caf\xE9"}));
    EXPECT_EQ(reader.FirstUtf8Line(), 1);
}

TEST_F(LineReaderCharacterSet, AFileOfUtf16IsKnownByItsMark) {
    for (const std::string_view mark : {"\xFF\xFE", "\xFE\xFF"}) {
        reader.Open(folder.Write("a.txt", std::string(mark) + "0"));
        EXPECT_TRUE(reader.IsUtf16());
    }
    for (const std::string_view bytes : {"", "\xFF",
                                         "\xEF\xBB\xBF"
                                         "0",
                                         "01"}) {
        reader.Open(folder.Write("a.txt", bytes));
        EXPECT_FALSE(reader.IsUtf16()) << bytes;
    }
}

}  // namespace
}  // namespace korvande::testing
