#include "nensuf/RecordReader.h"

#include <gtest/gtest.h>

#include "tests/nensuf/ImportTest.h"

namespace korvande::testing {

namespace {

// Reads a file of given bytes record by record or group by group.
class RecordReaderTest : public ::testing::Test {
 protected:
    RecordReader& Open(std::string_view bytes) {
        input = bytes;
        file.OpenBytes(input);
        return reader.emplace(translation, file);
    }

    std::string NextRecord() {
        RecordReader::Record record{};
        reader->ReadFileRecord(record);
        return {record.data(), record.size()};
    }

    // The first record of a file with this one line.
    std::string RecordOf(std::string_view line) {
        Open(std::string(line) + "\r\n");
        return NextRecord();
    }

    // The next group: its type, and its fields between bars.
    std::string NextGroup() {
        EXPECT_EQ(reader->ReadRecordGroup(0), "");
        std::string group(reader->RecordType());
        for (const GroupField& field : reader->GroupFields()) {
            EXPECT_EQ(field.Value.size(), 9U);
            group += "|" + std::string(1, field.Key) + std::string(field.Value);
        }
        return group;
    }

    std::string input;
    LineReader file;
    SilentScreen screen;
    Translation translation{screen};
    std::optional<RecordReader> reader;
};

// A line of this many characters that begins with `first` and goes on with digits.
std::string LineOf(std::size_t length, std::string_view first) {
    std::string line(first);
    while (line.size() < length) line.push_back(static_cast<char>('0' + line.size() % 10));
    return line;
}

const std::string closingRecord = "99" + std::string(62, ' ');

TEST_F(RecordReaderTest, ALineOf64CharactersIsTheRecord) { EXPECT_EQ(RecordOf(LineOf(64, "03M")), LineOf(64, "03M")); }

TEST_F(RecordReaderTest, ALineOf63CharactersGetsItsLeadingZero) {
    EXPECT_EQ(RecordOf(LineOf(63, "3M")), "0" + LineOf(63, "3M"));
}

TEST_F(RecordReaderTest, OfALongerLineTheLast64CharactersCount) {
    for (const std::size_t length : {std::size_t{65}, std::size_t{70}, std::size_t{1'000'000}}) {
        const std::string line = LineOf(length - 64, "") + LineOf(64, "03M");
        EXPECT_EQ(RecordOf(line), LineOf(64, "03M")) << length;
    }
}

TEST_F(RecordReaderTest, BlanksBehindARecordAreLeftToTheEditorThatPutThemThere) {
    for (const std::string blanks : {" ", "      ", "                "}) {
        for (const std::string& line : {LineOf(62, "03M") + "01", LineOf(62, "04X") + "00", LineOf(62, " 4X") + "00"}) {
            EXPECT_EQ(RecordOf(line + blanks).substr(1), line.substr(1));
            EXPECT_EQ(RecordOf(line + blanks).front(), '0');
        }
        EXPECT_EQ(RecordOf(closingRecord + blanks), closingRecord);
    }
}

TEST_F(RecordReaderTest, OtherLongLinesKeepTheirLast64CharactersWhateverTheirEnd) {
    const std::string record = LineOf(62, "03M") + "01";
    for (const std::string& line : {record + "\t", record + " 1", LineOf(64, "03M") + "      ",
                                    LineOf(62, "03M") + "0100", "000000" + record, LineOf(62, "03M") + "02  "}) {
        std::string last = line.substr(line.size() - 64);
        if (last[0] < '0') last[0] = '0';
        EXPECT_EQ(RecordOf(line), last) << line;
    }
}

TEST_F(RecordReaderTest, ALastLineThatBeginsWith99IsTheClosingRecordHoweverShort) {
    for (const std::string& last : {closingRecord, std::string("99"), std::string("99   01"),
                                    "99" + std::string(61, ' '), closingRecord + "   ", "abcdef" + closingRecord}) {
        for (const char* const behind : {"", "\r\n", "\r\n\r\n \t \r\n\x1A"}) {
            Open(Record("03M1") + last + behind);
            EXPECT_EQ(NextGroup(), "03|M1        ");
            EXPECT_FALSE(reader->HasClosingRecord());
            while (NextGroup() != "99") {
            }
            EXPECT_TRUE(reader->HasClosingRecord()) << last << behind;
        }
    }
}

TEST_F(RecordReaderTest, WithoutSuchALastLineThereIsNoClosingRecord) {
    for (const std::string bytes : {"", "99\r\n9\r\n", "9", "099", " 99", "99\r\nkort\r\n"}) {
        Open(Record("03M1") + bytes);
        NextGroup();
        EXPECT_EQ(NextGroup(), "99");
        EXPECT_FALSE(reader->HasClosingRecord()) << bytes;
    }
}

TEST_F(RecordReaderTest, AShort99InTheMiddleIsSkippedLikeAnyShortLine) {
    Open(Record("03M1") + "99\r\n" + Record("04X1", "00") + "99   01\r\n" + Record("04X2"));
    EXPECT_EQ(NextGroup(), "03|M1        ");
    EXPECT_EQ(NextGroup().substr(0, 13), "04|X1        ");
    EXPECT_EQ(NextGroup(), "99");
    EXPECT_FALSE(reader->HasClosingRecord());
}

TEST_F(RecordReaderTest, LinesOfFewerThan63CharactersAreSkipped) {
    Open("\r\n" + LineOf(10, "03") + "\r\n" + LineOf(62, "03") + "\r\n" + LineOf(64, "05F") + "\r\n" +
         LineOf(62, "06"));
    EXPECT_EQ(NextRecord(), LineOf(64, "05F"));
    EXPECT_EQ(NextRecord(), closingRecord);
}

TEST_F(RecordReaderTest, AFirstCharacterThatSortsBeforeZeroIsAZero) {
    for (const char first : {' ', '\t', '!', '/', '\0'}) {
        EXPECT_EQ(RecordOf(LineOf(64, std::string(1, first) + "3M")), LineOf(64, "03M")) << static_cast<int>(first);
    }
    EXPECT_EQ(RecordOf(LineOf(6, "") + LineOf(64, " 3M")), LineOf(64, "03M"));
}

TEST_F(RecordReaderTest, AFirstCharacterFromZeroOnStays) {
    for (const char first : {'0', '1', '9', ':', 'A', '\x80', '\xE9', '\xFF'}) {
        EXPECT_EQ(RecordOf(LineOf(64, std::string(1, first) + "3M")), LineOf(64, std::string(1, first) + "3M"));
    }
}

TEST_F(RecordReaderTest, TheEndOfTheFileIsAClosingRecordAgainAndAgain) {
    Open("");
    EXPECT_EQ(NextRecord(), closingRecord);
    EXPECT_EQ(NextRecord(), closingRecord);
    EXPECT_EQ(NextGroup(), "99");
    EXPECT_EQ(NextGroup(), "99");
}

TEST_F(RecordReaderTest, LinesEndAtAnyLineEndAndTheLastMayLackIt) {
    const std::string first = LineOf(64, "03M");
    const std::string second = LineOf(64, "04X");
    for (const std::string lineEnd : {"\r\n", "\n", "\r"}) {
        for (const std::string& lastEnd : {lineEnd, std::string(), std::string("\x1A")}) {
            std::string bytes = first;
            Open(bytes.append(lineEnd).append(second).append(lastEnd));
            EXPECT_EQ(NextRecord(), first);
            EXPECT_EQ(NextRecord(), second);
            EXPECT_EQ(NextRecord(), closingRecord);
        }
    }
}

TEST_F(RecordReaderTest, TheLineReadLastIsKnownForErrors) {
    Open("kort\r\n\r\n" + Record("03") + Record("04"));
    NextRecord();
    EXPECT_EQ(translation.inputLine, 3);
    NextRecord();
    EXPECT_EQ(translation.inputLine, 4);
}

TEST_F(RecordReaderTest, AGroupIsSplitIntoFieldsOfTenColumns) {
    Open(Record("03M123456789G0101       "));
    EXPECT_EQ(NextGroup(), "03|M123456789|G0101     ");
}

TEST_F(RecordReaderTest, TheLastFieldIsFilledWithBlanks) {
    Open(Record("03M12") + Record("04" + std::string(59, 'X')));
    EXPECT_EQ(NextGroup(), "03|M12       ");
    EXPECT_EQ(NextGroup(), "04|XXXXXXXXXX|XXXXXXXXXX|XXXXXXXXXX|XXXXXXXXXX|XXXXXXXXXX|XXXXXXXXX ");
}

TEST_F(RecordReaderTest, ThePayloadLosesItsLeadingBlanksWithTheirColumns) {
    Open(Record("04   X        1Y        2") + Record("04" + std::string(55, ' ') + "X1"));
    EXPECT_EQ(NextGroup(), "04|X        1|Y        2");
    EXPECT_EQ(NextGroup(), "04|X1        ");
}

TEST_F(RecordReaderTest, ABlankFieldInTheMiddleStays) {
    Open(Record("04X        1          Y        2"));
    EXPECT_EQ(NextGroup(), "04|X        1|          |Y        2");
}

TEST_F(RecordReaderTest, ABlankPayloadHasNoFields) {
    Open(Record("07") + Record("03M"));
    EXPECT_EQ(NextGroup(), "07");
    EXPECT_EQ(NextGroup(), "03|M         ");
}

TEST_F(RecordReaderTest, TheEndCode00GoesOnWithTheNextRecordOfTheSameType) {
    const std::string sixty = "X        1Y        2X        3Y        4X        5Y        6";
    Open(Record("04" + sixty, "00") + Record("04X        7Y        8", "00") + Record("04Z        9") + Record("03M"));
    EXPECT_EQ(NextGroup(),
              "04|X        1|Y        2|X        3|Y        4|X        5|Y        6|X        7|Y        8|" +
                  std::string("          |          |          |          |Z        9"));
    EXPECT_EQ(NextGroup(), "03|M         ");
}

TEST_F(RecordReaderTest, AnyOtherEndCodeClosesTheGroup) {
    for (const std::string endCode : {"01", "02", "0 ", " 0", "  ", "10", "0O"}) {
        Open(Record("04X1", endCode) + Record("04X2"));
        EXPECT_EQ(NextGroup(), "04|X1        ") << endCode;
        EXPECT_EQ(NextGroup(), "04|X2        ") << endCode;
    }
}

TEST_F(RecordReaderTest, ARecordOfAnotherTypeClosesTheGroupAndIsTheNextOne) {
    Open(Record("03M1", "00") + Record("04X1", "00") + Record("05F1", "00"));
    EXPECT_EQ(NextGroup(), "03|M1        ");
    EXPECT_EQ(NextGroup(), "04|X1        ");
    EXPECT_EQ(NextGroup(), "05|F1        ");
    EXPECT_EQ(NextGroup(), "99");
}

TEST_F(RecordReaderTest, AFieldMayLieAcrossTwoRecords) {
    Open(Record("04 " + std::string(58, 'A') + "X", "00") + Record("04        1"));
    EXPECT_EQ(NextGroup().substr(57), "|AAAAAAAAX |       1  ");
}

TEST_F(RecordReaderTest, TheNumberOfFieldsHasNoLimit) {
    constexpr std::size_t records = 12'000;
    std::string bytes;
    for (std::size_t i = 0; i < records; ++i) bytes += Record("04" + std::string(60, 'X'), "00");
    Open(bytes);
    reader->ReadRecordGroup(0);
    EXPECT_EQ(reader->GroupFields().size(), 6 * records);
}

TEST_F(RecordReaderTest, ALookLeavesTheRecordForTheNextGroup) {
    Open(Record("06A01TX", "00") + Record("06B") + Record("03"));
    EXPECT_EQ(reader->ReadRecordGroup(1), Record("06A01TX", "00").substr(0, 64));
    EXPECT_EQ(reader->ReadRecordGroup(1), Record("06A01TX", "00").substr(0, 64));
    EXPECT_EQ(NextGroup().substr(0, 10), "06|A01TX  ");
    EXPECT_EQ(NextGroup(), "03");
}

TEST_F(RecordReaderTest, AHigherModeTakesTheRecord) {
    Open(Record("06A") + Record("06B") + Record("06C") + Record("03M1"));
    EXPECT_EQ(reader->ReadRecordGroup(2).substr(0, 3), "06A");
    EXPECT_EQ(reader->ReadRecordGroup(1).substr(0, 3), "06B");
    EXPECT_EQ(reader->ReadRecordGroup(2).substr(0, 3), "06B");
    EXPECT_EQ(reader->ReadRecordGroup(3).substr(0, 3), "06C");
    EXPECT_EQ(NextGroup(), "03|M1        ");
}

TEST_F(RecordReaderTest, ASingleRecordLeavesTheGroupBeforeItInPlace) {
    Open(Record("05F111", "00") + Record("06A01TX"));
    reader->ReadRecordGroup(0);
    EXPECT_EQ(reader->ReadRecordGroup(1).substr(0, 3), "06A");
    EXPECT_EQ(reader->ReadRecordGroup(2).substr(0, 3), "06A");
    EXPECT_EQ(reader->RecordType(), "05");
    ASSERT_EQ(reader->GroupFields().size(), 1U);
    EXPECT_EQ(reader->GroupFields()[0].Value, "111      ");
}

TEST_F(RecordReaderTest, AGroupThatTheFileBreaksOffEndsThere) {
    Open(Record("04X1", "00") + Record("04Y2", "00") + "04Z3");
    EXPECT_EQ(NextGroup().substr(0, 13), "04|X1        ");
    EXPECT_EQ(NextGroup(), "99");
}

}  // namespace

}  // namespace korvande::testing
