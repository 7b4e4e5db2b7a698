#include <gtest/gtest.h>

#include <memory>
#include <vector>

#include "core/RuntimeError.h"
#include "tests/core/Allocations.h"
#include "tests/core/ErrorOf.h"
#include "tests/core/LineReaderTest.h"
#include "tests/support/TestFiles.h"

// Bytes in memory are read as a file of the same bytes.
namespace korvande::testing {

namespace {

// Bytes with nothing behind them, so that a reader that goes too far is found.
class Bytes {
 public:
    explicit Bytes(std::string_view text) : bytes(text.begin(), text.end()) { bytes.shrink_to_fit(); }
    std::string_view View() const { return {bytes.data(), bytes.size()}; }

 private:
    std::vector<char> bytes;
};

// Each line with its number and the place behind it, then how often the end was told.
Lines Story(LineReader& reader) {
    Lines story{std::to_string(reader.Length()) + " bytes, from " + std::to_string(reader.Position())};
    std::string_view line;
    while (reader.Next(line)) {
        story.push_back(std::to_string(reader.LineNumber()) + ":" + std::string(line) + ":" +
                        std::to_string(reader.Position()));
    }
    story.push_back(reader.Next(line) ? "goes on" : "ends at " + std::to_string(reader.Position()));
    return story;
}

class LineReaderOfBytes : public ::testing::Test {
 protected:
    // Whether a file and memory of these bytes tell the same.
    ::testing::AssertionResult Agree(std::string_view text) {
        const Bytes bytes(text);
        fromFile.Open(folder.Write("a.txt", text));
        fromMemory.OpenBytes(bytes.View());
        const Lines expected = Story(fromFile);
        const Lines found = Story(fromMemory);
        if (found == expected) return ::testing::AssertionSuccess();
        return ::testing::AssertionFailure()
               << ::testing::PrintToString(text) << ": " << ::testing::PrintToString(found) << " instead of "
               << ::testing::PrintToString(expected);
    }

    // Every text of up to so many of these characters, behind some bytes.
    void ExpectAgreementOnAll(const std::string& before, std::string_view characters, std::size_t longest) {
        ASSERT_TRUE(Agree(before));
        if (longest == 0) return;
        for (const char character : characters) {
            ExpectAgreementOnAll(before + character, characters, longest - 1);
            if (HasFatalFailure()) return;
        }
    }

    TestFolder folder;
    LineReader fromFile;
    LineReader fromMemory;
};

TEST_F(LineReaderOfBytes, EverySmallTextHasTheLinesOfItsFile) { ExpectAgreementOnAll("", "a\r\n\x1A", 5); }

TEST_F(LineReaderOfBytes, EverySmallTextBehindAByteOrderMarkHasTheLinesOfItsFile) {
    ExpectAgreementOnAll("\xEF\xBB\xBF", "\xC3\xA9\r\n\x1A", 3);
}

TEST_F(LineReaderOfBytes, APartOfAByteOrderMarkIsTextAsInAFile) { ExpectAgreementOnAll("", "\xEF\xBB\xBF\n\x1A", 3); }

TEST_F(LineReaderOfBytes, ATextCutOffAtAnyByteHasTheLinesOfItsFile) {
    const std::string text = "\xEF\xBB\xBFHEADER\r\nCaf\xC3\xA9 \xE2\x82\xAC\n\nlaatste\r1\x1A 2\r\r\neinde\r\n\x1A";
    for (const std::string_view whole : {std::string_view(text), std::string_view(text).substr(3)}) {
        for (std::size_t length = 0; length <= whole.size(); ++length) ASSERT_TRUE(Agree(whole.substr(0, length)));
    }
}

TEST_F(LineReaderOfBytes, ATextLongerThanAFilesBlocksHasTheLinesOfItsFile) {
    std::string text;
    for (int i = 0; i < 40'000; ++i)
        text.append(static_cast<std::size_t>(i % 23), 'x').append(i % 3 == 0 ? "\r" : "\r\n");
    EXPECT_TRUE(Agree(text));
    EXPECT_TRUE(Agree("\xEF\xBB\xBF" + text + "\x1A"));
    EXPECT_TRUE(Agree(std::string(1'000'000, 'x')));
}

TEST_F(LineReaderOfBytes, NoBytesAtAllAreAnEmptyFile) {
    fromMemory.OpenBytes({});
    EXPECT_TRUE(fromMemory.IsOpen());
    EXPECT_EQ(Story(fromMemory), (Lines{"0 bytes, from 0", "ends at 0"}));
}

TEST_F(LineReaderOfBytes, LinesAreTakenFromWhereTheyStand) {
    const std::string text = "een\r\ntwee\r\n";
    fromMemory.OpenBytes(text);
    std::string_view line;
    const auto used = AllocationsOf([&] { ASSERT_TRUE(fromMemory.Next(line)); });
    EXPECT_EQ(line.data(), text.data());
    EXPECT_EQ(used.blocks, 0U);
}

TEST_F(LineReaderOfBytes, AReaderGoesFromAFileToMemoryAndBack) {
    const Text name = folder.Write("a.txt", "bestand\n\xC3\xA9\n");
    LineReader reader(name);
    std::string_view line;
    ASSERT_TRUE(reader.Next(line));
    reader.OpenBytes("\xEF\xBB\xBFgeheugen\n\xC3\xA9");
    EXPECT_EQ(reader.LineNumber(), 0);
    EXPECT_EQ(AllLines(reader), (Lines{"geheugen", "\xE9"}));
    reader.Open(name);
    EXPECT_EQ(reader.LineNumber(), 0);
    EXPECT_EQ(AllLines(reader), (Lines{"bestand", "\xC3\xA9"}));
    reader.Close();
    EXPECT_FALSE(reader.IsOpen());
    EXPECT_EQ(ErrorOf([&] { reader.Next(line); }), 52);
}

}  // namespace

}  // namespace korvande::testing
