#include "tests/core/LineReaderTest.h"

#include <gtest/gtest.h>

#include <array>
#include <ctime>
#include <random>
#include <vector>

#include "tests/core/Allocations.h"
#include "tests/core/ErrorOf.h"
#include "tests/support/RecordingScreen.h"
#include "tests/support/TestFiles.h"

namespace korvande::testing {

namespace {

constexpr std::size_t block = std::size_t{1} << 17;

class LineReaderTest : public ::testing::Test {
 protected:
    Lines LinesOf(std::string_view bytes) const {
        LineReader reader(folder.Write("test.txt", bytes));
        return AllLines(reader);
    }

    TestFolder folder;
};

// What the lines of a file are, character by character.
Lines LinesByTheRules(std::string_view bytes) {
    if (bytes.ends_with('\x1A')) bytes.remove_suffix(1);
    Lines lines;
    std::string line;
    for (std::size_t i = 0; i < bytes.size(); ++i) {
        if (bytes[i] != '\r' && bytes[i] != '\n') {
            line.push_back(bytes[i]);
            if (i + 1 == bytes.size()) lines.push_back(line);
            continue;
        }
        lines.push_back(line);
        line.clear();
        if (bytes[i] == '\r' && i + 1 < bytes.size() && bytes[i + 1] == '\n') ++i;
    }
    return lines;
}

// Both lists of lines are alike; a long difference is not printed.
::testing::AssertionResult Alike(const Lines& found, const Lines& expected) {
    if (found == expected) return ::testing::AssertionSuccess();
    std::size_t i = 0;
    while (i < found.size() && i < expected.size() && found[i] == expected[i]) ++i;
    return ::testing::AssertionFailure() << found.size() << " lines, not " << expected.size()
                                         << "; the first difference is in line " << i + 1;
}

TEST_F(LineReaderTest, LinesEndAtCrLfAtLfAndAtCr) {
    EXPECT_EQ(LinesOf("a\r\nb\r\n"), (Lines{"a", "b"}));
    EXPECT_EQ(LinesOf("a\nb\n"), (Lines{"a", "b"}));
    EXPECT_EQ(LinesOf("a\rb\r"), (Lines{"a", "b"}));
    EXPECT_EQ(LinesOf("a\rb\nc\r\nd\n\re\r\rf\n\ng"), (Lines{"a", "b", "c", "d", "", "e", "", "f", "", "g"}));
}

TEST_F(LineReaderTest, TheLastLineNeedsNoEnd) {
    EXPECT_EQ(LinesOf("a\r\nb"), (Lines{"a", "b"}));
    EXPECT_EQ(LinesOf("a"), (Lines{"a"}));
}

TEST_F(LineReaderTest, EmptyLinesAreLines) {
    EXPECT_EQ(LinesOf("\r\n\r\na\r\n\r\n"), (Lines{"", "", "a", ""}));
    EXPECT_EQ(LinesOf("\n"), (Lines{""}));
    EXPECT_EQ(LinesOf("\r"), (Lines{""}));
}

TEST_F(LineReaderTest, AnEmptyFileHasNoLines) {
    EXPECT_EQ(LinesOf(""), Lines());
    EXPECT_EQ(LinesOf("\x1A"), Lines());
    EXPECT_EQ(LinesOf("\xEF\xBB\xBF"), Lines());
    EXPECT_EQ(LinesOf("\xEF\xBB\xBF\x1A"), Lines());
}

TEST_F(LineReaderTest, AByte1AIsNoCharacterOnlyAtTheEnd) {
    EXPECT_EQ(LinesOf("a\r\n\x1A"), (Lines{"a"}));
    EXPECT_EQ(LinesOf("a\x1A"), (Lines{"a"}));
    EXPECT_EQ(LinesOf("a\r\x1A"), (Lines{"a"}));
    EXPECT_EQ(LinesOf("a\x1A\x1A"), (Lines{"a\x1A"}));
    EXPECT_EQ(LinesOf("a\x1A"
                      "b\r\n\x1A\r\n"),
              (Lines{"a\x1A"
                     "b",
                     "\x1A"}));
}

TEST_F(LineReaderTest, BytesComeAsTheyStand) {
    std::string all;
    for (int byte = 0; byte < 256; ++byte) {
        if (byte != '\n' && byte != '\r') all.push_back(static_cast<char>(byte));
    }
    EXPECT_EQ(LinesOf(all + "\r\n" + all), (Lines{all, all}));
}

TEST_F(LineReaderTest, AFileWithAByteOrderMarkIsConvertedFromUtf8) {
    EXPECT_EQ(LinesOf("\xEF\xBB\xBF"
                      "é€\r\nα\xFF\r\nb"),
              (Lines{"\xE9\x80", "??", "b"}));
    EXPECT_EQ(LinesOf("é"), (Lines{"\xC3\xA9"}));                   // without the mark
    EXPECT_EQ(LinesOf("a\xEF\xBB\xBF"), (Lines{"a\xEF\xBB\xBF"}));  // not at the beginning
    EXPECT_EQ(LinesOf("\xEF\xBB"), (Lines{"\xEF\xBB"}));
}

TEST_F(LineReaderTest, LinesAreNumberedFromOne) {
    LineReader reader(folder.Write("test.txt", "a\n\nb"));
    EXPECT_EQ(reader.LineNumber(), 0);
    std::string_view line;
    for (std::int64_t number = 1; number <= 3; ++number) {
        ASSERT_TRUE(reader.Next(line));
        EXPECT_EQ(reader.LineNumber(), number);
    }
    EXPECT_FALSE(reader.Next(line));
    EXPECT_FALSE(reader.Next(line));
    EXPECT_EQ(reader.LineNumber(), 3);
}

TEST_F(LineReaderTest, ThePositionRunsToTheLength) {
    const std::string bytes = "ab\r\nc\rd\n" + std::string(2 * block, 'x') + "\r\nlast";
    LineReader reader(folder.Write("test.txt", bytes));
    EXPECT_EQ(reader.Length(), static_cast<std::int64_t>(bytes.size()));
    EXPECT_EQ(reader.Position(), 0);
    std::string_view line;
    for (const std::size_t position :
         {std::size_t{4}, std::size_t{6}, std::size_t{8}, bytes.size() - 4, bytes.size()}) {
        ASSERT_TRUE(reader.Next(line));
        EXPECT_EQ(reader.Position(), static_cast<std::int64_t>(position));
    }
    EXPECT_FALSE(reader.Next(line));
    EXPECT_EQ(reader.Position(), reader.Length());
}

TEST_F(LineReaderTest, APositionBehindTheByteOrderMarkCountsIt) {
    LineReader reader(folder.Write("test.txt",
                                   "\xEF\xBB\xBF"
                                   "é\n"));
    EXPECT_EQ(reader.Position(), 3);
    std::string_view line;
    ASSERT_TRUE(reader.Next(line));
    EXPECT_EQ(reader.Position(), 6);
    EXPECT_EQ(reader.Length(), 6);
}

TEST_F(LineReaderTest, ALineEndMayStandAnywhereAroundTheEndOfABlock) {
    for (const std::string_view lineEnd : {"\r\n", "\n", "\r", "\r\r\n", "\n\r", "\r\n\r\n"}) {
        for (std::size_t before = block - 5; before <= block + 3; ++before) {
            // The first line ends around the first border, the third around a later one.
            const std::string bytes = std::string(before, 'x') + std::string(lineEnd) + "ab" + std::string(lineEnd) +
                                      std::string(block - 4, 'y') + std::string(lineEnd) + "z";
            ASSERT_TRUE(Alike(LinesOf(bytes), LinesByTheRules(bytes))) << before;
        }
    }
}

TEST_F(LineReaderTest, AFileMayEndAnywhereAroundTheEndOfABlock) {
    for (const std::string_view fileEnd :
         {"", "\r\n", "\n", "\r", "\x1A", "\r\n\x1A", "\r\x1A", "\n\x1A", "\x1A\x1A"}) {
        for (std::size_t before = block - 4; before <= block + 2; ++before) {
            const std::string bytes = "first\r\n" + std::string(before - 7, 'x') + std::string(fileEnd);
            ASSERT_TRUE(Alike(LinesOf(bytes), LinesByTheRules(bytes))) << before;
        }
    }
}

TEST_F(LineReaderTest, AnyMixtureOfLinesIsReadAsTheRulesSay) {
    constexpr std::array<std::string_view, 6> lineEnds = {"\r\n", "\r\n", "\n", "\r", "\r\r\n", "\n\r"};
    std::mt19937 random(1);
    for (int round = 0; round < 20; ++round) {
        std::string bytes;
        while (bytes.size() < 5 * block) {
            const std::size_t length = random() % 20 == 0 ? random() % (block / 2) : random() % 100;
            bytes.append(length, static_cast<char>('a' + random() % 26)).append(lineEnds[random() % lineEnds.size()]);
        }
        bytes.resize(bytes.size() - random() % 3);
        ASSERT_TRUE(Alike(LinesOf(bytes), LinesByTheRules(bytes))) << "round " << round;
    }
}

TEST_F(LineReaderTest, ALineMayBeAsLongAsTheFile) {
    std::string longLine;
    longLine.resize(10'000'000, 'x');
    const std::string bytes = "a\r\n" + longLine + "\r\nb";
    EXPECT_TRUE(Alike(LinesOf(bytes), {"a", longLine, "b"}));
    EXPECT_TRUE(Alike(LinesOf(longLine), {longLine}));
}

TEST_F(LineReaderTest, LinesOfEveryKindTakeTheSameTime) {
    // Processor seconds for a file of two million lines.
    const auto secondsFor = [this](std::string_view lineEnd) {
        constexpr std::int64_t lines = 2'000'000;
        std::string bytes;
        for (std::int64_t i = 0; i < lines; ++i) bytes.append("ab").append(lineEnd);
        LineReader reader(folder.Write("test.txt", bytes));
        const std::clock_t start = std::clock();
        std::int64_t count = 0;
        std::string_view line;
        while (reader.Next(line)) count += line == "ab" ? 1 : 0;
        EXPECT_EQ(count, lines);
        return static_cast<double>(std::clock() - start) / CLOCKS_PER_SEC;
    };
    // Where only one kind of line end occurs, the other is not looked for at every line through the whole block.
    const double both = secondsFor("\r\n");
    EXPECT_LT(secondsFor("\r"), 5 * both + 0.1);
    EXPECT_LT(secondsFor("\n"), 5 * both + 0.1);
}

TEST_F(LineReaderTest, ReadingLinesTakesNoHeap) {
    std::string bytes;
    for (int i = 0; i < 20'000; ++i) bytes += "12,\"naam\",123456.789,498765.432;\r\n";
    LineReader reader(folder.Write("test.txt", bytes));
    std::string_view line;
    const auto used = AllocationsOf([&] {
        while (reader.Next(line)) {
        }
    });
    EXPECT_LE(used.blocks, 1U);  // room for what a block leaves over
    EXPECT_EQ(reader.LineNumber(), 20'000);
}

TEST_F(LineReaderTest, OpeningAnotherFileBeginsAnew) {
    LineReader reader(folder.Write("a.txt", "\xEF\xBB\xBFé\nrest"));
    std::string_view line;
    ASSERT_TRUE(reader.Next(line));
    reader.Open(folder.Write("b.txt", "é"));
    EXPECT_EQ(reader.LineNumber(), 0);
    EXPECT_EQ(reader.Position(), 0);
    EXPECT_EQ(reader.Length(), 2);
    EXPECT_EQ(AllLines(reader), (Lines{"\xC3\xA9"}));
}

TEST_F(LineReaderTest, AReaderWithoutFileIsError52) {
    LineReader reader;
    std::string_view line;
    EXPECT_FALSE(reader.IsOpen());
    EXPECT_EQ(ErrorOf([&] { reader.Next(line); }), 52);
    reader.Open(folder.Write("a.txt", "a\nb\n"));
    EXPECT_TRUE(reader.IsOpen());
    ASSERT_TRUE(reader.Next(line));
    reader.Close();
    EXPECT_FALSE(reader.IsOpen());
    EXPECT_EQ(ErrorOf([&] { reader.Next(line); }), 52);
}

TEST_F(LineReaderTest, AFileThatIsMissingIsError53AndAFolderError75) {
    LineReader reader;
    EXPECT_EQ(ErrorOf([&] { reader.Open(folder / "weg.txt"); }), 53);
    EXPECT_EQ(ErrorOf([&] { reader.Open(FromUtf8(folder.Path())); }), 75);
    EXPECT_FALSE(reader.IsOpen());
}

}  // namespace

}  // namespace korvande::testing
