#include "translation/LogBook.h"

#include <gtest/gtest.h>

#include "core/RuntimeError.h"
#include "tests/support/TestFiles.h"

namespace korvande::testing {
namespace {

class LogBookTest : public ::testing::Test {
 protected:
    LogBookTest() { log.Open(logName); }

    std::string Bytes() {
        log.Close();
        return FileBytes(logName);
    }

    TestFolder folder;
    Text logName = folder / "test.log";
    LogBook log;
};

TEST_F(LogBookTest, LinesEndInCrLf) {
    log.WriteLine(u"een");
    log.WriteLine();
    log.WriteLine(u"twee");
    EXPECT_EQ(Bytes(), "een\r\n\r\ntwee\r\n");
}

TEST_F(LogBookTest, TextsAreWrittenAsWindows1252) {
    log.WriteLine(u"Geëxporteerde € \u0416");
    EXPECT_EQ(Bytes(), "Ge\xEBxporteerde \x80 ?\r\n");
}

TEST_F(LogBookTest, ALineBreakInsideATextBecomesCrLf) {
    log.WriteLine(u"een\rtwee\ndrie\r\nvier");
    EXPECT_EQ(Bytes(), "een\r\ntwee\r\ndrie\r\nvier\r\n");
}

TEST_F(LogBookTest, WriteGoesOnInTheSameLine) {
    log.Write(u"een ");
    log.Write(u"twee");
    EXPECT_EQ(log.Column(), 9);
    log.WriteLine(u" drie");
    EXPECT_EQ(log.Column(), 1);
    EXPECT_EQ(Bytes(), "een twee drie\r\n");
}

TEST_F(LogBookTest, TheColumnIsCountedFromTheLastLineBreak) {
    log.Write(u"een\rtwee");
    EXPECT_EQ(log.Column(), 5);
}

TEST_F(LogBookTest, EmptyLinesEndAnUnfinishedLineFirst) {
    log.Write(u"half");
    log.WriteEmptyLines(2);
    EXPECT_EQ(Bytes(), "half\r\n\r\n\r\n");
}

TEST_F(LogBookTest, EmptyLinesBehindAFinishedLineAreJustThat) {
    log.WriteLine(u"heel");
    log.WriteEmptyLines(2);
    log.WriteEmptyLines(0);
    EXPECT_EQ(Bytes(), "heel\r\n\r\n\r\n");
}

TEST_F(LogBookTest, ALineOfOneCharacterIsEndedToo) {
    log.Write(u"x");
    log.WriteEmptyLines(1);
    EXPECT_EQ(Bytes(), "x\r\n\r\n");
}

TEST_F(LogBookTest, WhatIsDroppedTakesNoColumns) {
    log.Close();
    log.Write(u"na");
    EXPECT_EQ(log.Column(), 1);
}

TEST_F(LogBookTest, ATextGoesToItsPrintColumn) {
    log.WriteAtColumn(5, u"GEEN");
    log.WriteAtColumn(12, u"x");
    log.EndLine();
    log.WriteAtColumn(1, u"y");
    EXPECT_EQ(Bytes(), "    GEEN   x\r\ny");
}

TEST_F(LogBookTest, APrintColumnThatIsPassedAlreadyIsTheNextOne) {
    log.Write(u"12345");
    log.WriteAtColumn(3, u"x");
    EXPECT_EQ(log.Column(), 7);
    EXPECT_EQ(Bytes(), "12345x");
}

TEST_F(LogBookTest, AnErrorBeginsWithFout) {
    log.WriteError(u"Geen HEADER gevonden");
    log.WriteLine(u"geen fout");
    log.WriteError(u"Nog een");
    EXPECT_EQ(Bytes(), "FOUT:  Geen HEADER gevonden\r\ngeen fout\r\nFOUT:  Nog een\r\n");
}

TEST_F(LogBookTest, TheLineBreaksOfAnErrorAreBlanks) {
    log.WriteError(u"een;\ntwee\rdrie");
    EXPECT_EQ(Bytes(), "FOUT:  een; twee drie\r\n");
}

TEST_F(LogBookTest, WhatIsWrittenWhileItIsNotOpenIsDropped) {
    log.WriteLine(u"voor");
    log.Close();
    EXPECT_FALSE(log.IsOpen());
    log.WriteLine(u"na");
    log.WriteAtColumn(5, u"na");
    log.WriteEmptyLines(2);
    log.WriteError(u"na");
    EXPECT_EQ(FileBytes(logName), "voor\r\n");
}

TEST_F(LogBookTest, ALogBookThatWasNeverOpenedTakesWhatIsWritten) {
    LogBook unopened;
    EXPECT_EQ(unopened.Column(), 1);
    unopened.WriteLine(u"nergens");
    unopened.WriteError(u"nergens");
    unopened.Close();
    EXPECT_FALSE(unopened.HasFailed());
}

TEST_F(LogBookTest, OpeningReplacesTheFile) {
    log.WriteError(u"oud");
    log.Write(u"onvolledig");
    log.Close();
    log.Open(logName);
    EXPECT_EQ(log.Column(), 1);
    log.WriteLine(u"nieuw");
    EXPECT_EQ(Bytes(), "nieuw\r\n");
}

TEST_F(LogBookTest, ReopeningGoesOnBehindItsEnd) {
    log.WriteLine(u"voor");
    log.Write(u"onvolledig");
    log.Close();
    log.Reopen(logName);
    EXPECT_EQ(log.Column(), 1);
    log.WriteLine(u"na");
    EXPECT_EQ(Bytes(), "voor\r\nonvolledigna\r\n");
}

TEST_F(LogBookTest, AFolderThatDoesNotExistIsARunTimeError) {
    LogBook other;
    EXPECT_THROW(other.Open(folder / "geen/map/x.log"), RuntimeError);
    EXPECT_FALSE(other.IsOpen());
}

TEST_F(LogBookTest, AFullDiskIsToldByTheLogBookOnly) {
    log.Open(u"/dev/full");
    log.WriteLine(u"kort");
    EXPECT_FALSE(log.HasFailed());
    log.Close();
    EXPECT_TRUE(log.HasFailed());
    EXPECT_FALSE(log.IsOpen());
}

TEST_F(LogBookTest, AFullDiskOnTheWayDoesNotStopTheWriter) {
    log.Open(u"/dev/full");
    for (int i = 0; i < 20000; ++i) log.WriteError(u"een regel die telt");
    EXPECT_TRUE(log.HasFailed());
    log.Close();
    EXPECT_FALSE(log.IsOpen());
}

}  // namespace
}  // namespace korvande::testing
