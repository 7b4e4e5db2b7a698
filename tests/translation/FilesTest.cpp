#include "translation/Files.h"

#include <stdexcept>

#include "host/FileReplacement.h"
#include "tests/support/TranslationState.h"

// The input and the output of a translation: how bytes are taken, lines counted, and what is told of them.
namespace korvande::testing {
namespace {

class FilesTest : public TranslationTest {
 protected:
    // Opens an input of these bytes in memory.
    bool Open(std::string_view bytes) {
        translation.inputBytes = bytes;
        return OpenInput(translation, file, u"");
    }

    // Reads it line by line, as the readers do; the lines.
    std::vector<std::string> ReadAll() {
        std::vector<std::string> lines;
        ReadInput(translation, file, [this, &lines] {
            for (std::string_view line; NextLine(translation, file, line);) lines.emplace_back(line);
        });
        return lines;
    }

    std::vector<std::string> Told(ProblemList list) const {
        std::vector<std::string> told;
        for (const Text& line : translation.problems.Lines(list)) told.push_back(ToUtf8(line));
        return told;
    }

    // What is told when a reader ends with an error.
    template <class Error>
    std::vector<std::string> ToldBehind(const Error& error) {
        translation.inputLine = 3;
        EXPECT_THROW(ReadInput(translation, file, [&error] { throw error; }), Error);
        return Told(ProblemList::Loss);
    }

    using Lines = std::vector<std::string>;
    LineReader file;
};

TEST_F(FilesTest, AnInputInUtf16IsRefusedWithWhatToDo) {
    OpenLog();
    EXPECT_FALSE(Open(std::string_view("\xFF\xFEH\0", 4)));
    EXPECT_TRUE(translation.outcome.wrongFormat);
    EXPECT_EQ(screen.messages, Lines{"Het bestand is UTF-16; sla het op als Windows-1252 of UTF-8"});
    EXPECT_EQ(LogText(), "FOUT:  Het bestand is UTF-16; sla het op als Windows-1252 of UTF-8\n");
    EXPECT_TRUE(screen.maxima.empty());
}

TEST_F(FilesTest, BytesStandForWhatTheOptionsSay) {
    translation.options.cboCharacterSet = characterSetNames[2];
    ASSERT_TRUE(Open("caf\x82"));
    EXPECT_EQ(ReadAll(), Lines{"caf\xE9"});
    translation.options.cboCharacterSet = characterSetNames[1];
    ASSERT_TRUE(Open("caf\x82"));
    EXPECT_EQ(ReadAll(), Lines{"caf\x82"});
}

TEST_F(FilesTest, LinesAreCountedAndAreProgress) {
    const std::string contents = std::string(256, 'x') + "\ntwee\n";
    ASSERT_TRUE(Open(contents));
    std::string_view line;
    ASSERT_TRUE(NextLine(translation, file, line));
    EXPECT_EQ(translation.inputLine, 1);
    EXPECT_EQ(screen.pace.value, 2);
    ASSERT_TRUE(NextLine(translation, file, line));
    EXPECT_EQ(line, "twee");
    EXPECT_EQ(translation.inputLine, 2);
    EXPECT_FALSE(NextLine(translation, file, line));
    EXPECT_EQ(translation.inputLine, 2);
}

TEST_F(FilesTest, ACharacterThatCannotBeKeptIsToldWithItsLine) {
    ASSERT_TRUE(Open("een\ncaf\xC3\xA9\n\xD0\x96\n"));
    EXPECT_EQ(ReadAll(), (Lines{"een", "caf\xE9", "?"}));
    ASSERT_EQ(translation.problems.Counts(ProblemList::Loss).size(), 1U);
    const ProblemCount lost = translation.problems.Counts(ProblemList::Loss)[0];
    EXPECT_EQ(lost.kind, ProblemKind::CharacterUnknown);
    EXPECT_EQ(lost.count, 1);
    EXPECT_EQ(lost.firstLine, 3);
}

TEST_F(FilesTest, ThatAnInputWasReadAsUtf8IsToldOfItsFirstSuchLine) {
    ASSERT_TRUE(Open("caf\xC3\xA9\n"));
    ReadAll();
    EXPECT_EQ(Told(ProblemList::Wanted), Lines{"het bestand is gelezen als UTF-8 (op regel 1)"});
}

TEST_F(FilesTest, OfAnInputThatWasReadAsItIsNothingIsTold) {
    ASSERT_TRUE(Open("een\ncaf\xE9\n"));
    ReadAll();
    EXPECT_EQ(Told(ProblemList::Wanted), Lines{});
    EXPECT_EQ(Told(ProblemList::Loss), Lines{});
}

TEST_F(FilesTest, BehindAnErrorTheRestWasNotRead) {
    ASSERT_TRUE(Open("caf\xC3\xA9\n"));
    std::string_view line;
    ASSERT_TRUE(file.Next(line));
    EXPECT_EQ(ToldBehind(RuntimeError(errors::overflow)),
              Lines{"de rest van het bestand is niet gelezen, vanaf regel 3"});
    EXPECT_EQ(Told(ProblemList::Wanted), Lines{"het bestand is gelezen als UTF-8 (op regel 1)"});
}

TEST_F(FilesTest, BehindAnErrorThatIsNoneOfOursTheRestWasNotReadEither) {
    ASSERT_TRUE(Open("een\n"));
    EXPECT_EQ(ToldBehind(std::length_error("te lang")),
              Lines{"de rest van het bestand is niet gelezen, vanaf regel 3"});
}

TEST_F(FilesTest, BehindTheEndOfTheFileNothingWasLeftToBeRead) {
    ASSERT_TRUE(Open("een\n"));
    EXPECT_EQ(ToldBehind(RuntimeError(errors::inputPastEnd)), Lines{});
}

TEST_F(FilesTest, AnOutputThatIsReplacedStaysAsItWasUntilTheNewOneIsPutInItsPlace) {
    const Text name = folder.Write("uit.sfn", "oud");
    translation.replacement.emplace(name);
    OpenOutput(translation, name);
    translation.output.PutLine("nieuw");
    translation.output.Close();
    EXPECT_EQ(FileBytes(name), "oud");
    translation.replacement->PutInPlace();
    EXPECT_EQ(FileBytes(name), "nieuw\r\n");
}

TEST_F(FilesTest, AnOutputThatCannotBeOpenedMarksTheOutcome) {
    EXPECT_THROW(OpenOutput(translation, folder / "geen/map/uit.sfn"), RuntimeError);
    EXPECT_TRUE(translation.outcome.outputFailed);
    EXPECT_FALSE(translation.outcome.inputUnreadable);
}

}  // namespace
}  // namespace korvande::testing
