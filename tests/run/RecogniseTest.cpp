#include "run/Recognise.h"

#include <gtest/gtest.h>

#include "core/RuntimeError.h"
#include "tests/support/RecordingScreen.h"
#include "tests/support/TestFiles.h"

namespace korvande::testing {

namespace {

std::optional<Format> FormatOf(std::string_view bytes) {
    LineReader file;
    file.OpenBytes(bytes);
    return Recognise(file);
}

TEST(Recognise, TheSamplesAreWhatTheirExtensionsSay) {
    const auto formatOf = [](const char* name) {
        LineReader file(FromUtf8(std::string(KORVANDE_SOURCE_DIR "/samples/") + name));
        return Recognise(file);
    };
    EXPECT_EQ(formatOf("straat.idx"), Format::Idex);
    EXPECT_EQ(formatOf("straat.sfn"), Format::Nen1878);
    EXPECT_EQ(formatOf("straat.sf2"), Format::Suf2);
    EXPECT_EQ(formatOf("voorbeeld.nst"), std::nullopt);
}

TEST(Recognise, AHeaderInAnyLineAndAnyCaseMakesIdex) {
    EXPECT_EQ(FormatOf("HEADER"), Format::Idex);
    EXPECT_EQ(FormatOf("een\r\n\r\n  de header \r\n"), Format::Idex);
    EXPECT_EQ(FormatOf("0102 HEADER\n"), std::nullopt) << "a first line of an exchange file";
}

TEST(Recognise, TheSeventhColumnOfThe02RecordTellsTheExchangeFormatsApart) {
    EXPECT_EQ(FormatOf("01\r\n02010201             0"), Format::Suf2);
    EXPECT_EQ(FormatOf("01\r\n020102150201         0"), Format::Nen1878);
    EXPECT_EQ(FormatOf("01 HEADER\n0201020 "), Format::Suf2);
    EXPECT_EQ(FormatOf("01\n020102  "), Format::Nen1878);
}

TEST(Recognise, An01RecordWithoutAWhole02RecordBehindItIsNothing) {
    for (const char* const bytes :
         {"01", "01\r\n", "01\r\n03MBOOM     ", "01\r\n0201020", "01\r\n\r\n02010201", "01\nHEADER\n"}) {
        EXPECT_EQ(FormatOf(bytes), std::nullopt) << bytes;
    }
}

TEST(Recognise, HeaderLinesAreWhatTheImportTakesForSuch) {
    const std::string first = "010NEN1878" + std::string(52, ' ') + "01";
    const std::string second = "020102150201" + std::string(50, ' ') + "01";
    const auto formatOf = [](std::string_view one, std::string_view two) {
        return FormatOf(std::string(one) + "\r\n" + std::string(two) + "\r\n");
    };
    EXPECT_EQ(formatOf(first.substr(1), second), Format::Nen1878);
    EXPECT_EQ(formatOf(first, second.substr(1)), Format::Nen1878);
    EXPECT_EQ(formatOf(" " + first.substr(1), " " + second.substr(1)), Format::Nen1878);
    EXPECT_EQ(formatOf("regel " + first, "regel " + second), Format::Nen1878);
    EXPECT_EQ(formatOf("\r\n \t\r\n" + first, second), Format::Nen1878);
    EXPECT_EQ(formatOf(first, "2010201 " + std::string(53, ' ') + "01"), Format::Suf2);
    EXPECT_EQ(formatOf(first, "\r\n" + second), std::nullopt) << "an empty line between them";
    EXPECT_EQ(formatOf(first.substr(1), first), std::nullopt);
    EXPECT_EQ(FormatOf(first.substr(1)), std::nullopt);
}

TEST(Recognise, ALineThatOnlyCountsAsAn01RecordMayStandInIdex) {
    EXPECT_EQ(FormatOf(" 1 januari\nHEADER\n"), Format::Idex);
    EXPECT_EQ(FormatOf(" 1 header"), Format::Idex);
    EXPECT_EQ(FormatOf(" 1 header\n 2 version\n"), Format::Nen1878) << "an 02 record, whatever it holds";
    EXPECT_EQ(FormatOf(" 1 header\nVERSION\n"), Format::Idex);
    EXPECT_EQ(FormatOf(" 1 januari\n\n\nheader\n"), Format::Idex);
    EXPECT_EQ(FormatOf(" 1 januari\n"), std::nullopt);
}

TEST(Recognise, AnythingElseIsNothing) {
    for (const char* const bytes : {"", "\n", "\x1A", "02010201\n", "HEADE\nR\n", "[NEN1878]\n", "010203"}) {
        EXPECT_EQ(FormatOf(bytes), std::nullopt) << bytes;
    }
}

TEST(Recognise, AFileCutOffAnywhereIsItsFormatOrNothing) {
    for (const auto& [bytes, format] :
         {std::pair("LAYERS\r\nHEADER\r\nEND", Format::Idex), std::pair("010\r\n02010201 \r\n03", Format::Suf2)}) {
        const std::string_view whole(bytes);
        bool wasRecognised = false;
        for (std::size_t length = 0; length <= whole.size(); ++length) {
            const std::optional<Format> found = FormatOf(whole.substr(0, length));
            EXPECT_TRUE(!found || found == format) << length;
            EXPECT_TRUE(found || !wasRecognised) << length;
            wasRecognised = found.has_value();
        }
        EXPECT_TRUE(wasRecognised);
    }
}

TEST(Recognise, AFileIsLookedAtByItsNameAndWhatIsNoneIsNothing) {
    using namespace std::string_view_literals;
    RecordingScreen screen;
    const TestFolder folder;
    EXPECT_EQ(FormatOfFile(screen, folder.Write("a", "HEADER\n")), Format::Idex);
    EXPECT_EQ(FormatOfFile(screen, folder.Write("b", "\xFF\xFEH\0E\0A\0D\0E\0R\0"sv)), std::nullopt);
    EXPECT_EQ(FormatOfFile(screen, folder / "weg"), std::nullopt);
    EXPECT_EQ(FormatOfFile(screen, folder / ""), std::nullopt);
}

TEST(Recognise, AReaderThatIsNotOpenIsARunTimeError) {
    LineReader file;
    EXPECT_THROW(Recognise(file), RuntimeError);
}

}  // namespace

}  // namespace korvande::testing
