#include "run/LogBook.h"

#include "tests/support/ProgramState.h"

namespace korvande::testing {
namespace {

class LogBookTest : public ProgramTest {
 protected:
    LogBookTest() { OpenLog(); }

    static LogBook& Log() { return LogFile(); }

    std::string Bytes() const {
        Log().Close();
        return FileBytes(logName);
    }
};

TEST_F(LogBookTest, LinesEndInCrLf) {
    Log().WriteLine(u"een");
    Log().WriteLine();
    Log().WriteLine(u"twee");
    EXPECT_EQ(Bytes(), "een\r\n\r\ntwee\r\n");
}

TEST_F(LogBookTest, TextsAreWrittenAsWindows1252) {
    Log().WriteLine(u"Geëxporteerde € \u0416");
    EXPECT_EQ(Bytes(), "Ge\xEBxporteerde \x80 ?\r\n");
}

TEST_F(LogBookTest, ALineBreakInsideATextBecomesCrLf) {
    Log().WriteLine(u"een\rtwee\ndrie\r\nvier");
    EXPECT_EQ(Bytes(), "een\r\ntwee\r\ndrie\r\nvier\r\n");
}

TEST_F(LogBookTest, WriteGoesOnInTheSameLine) {
    Log().Write(u"een ");
    Log().Write(u"twee");
    EXPECT_EQ(Log().Column(), 9);
    Log().WriteLine(u" drie");
    EXPECT_EQ(Log().Column(), 1);
    EXPECT_EQ(Bytes(), "een twee drie\r\n");
}

TEST_F(LogBookTest, TheColumnIsCountedFromTheLastLineBreak) {
    Log().Write(u"een\rtwee");
    EXPECT_EQ(Log().Column(), 5);
}

TEST_F(LogBookTest, EmptyLinesEndAnUnfinishedLineFirst) {
    Log().Write(u"half");
    Log().WriteEmptyLines(2);
    EXPECT_EQ(Bytes(), "half\r\n\r\n\r\n");
}

TEST_F(LogBookTest, EmptyLinesBehindAFinishedLineAreJustThat) {
    Log().WriteLine(u"heel");
    Log().WriteEmptyLines(2);
    Log().WriteEmptyLines(0);
    EXPECT_EQ(Bytes(), "heel\r\n\r\n\r\n");
}

TEST_F(LogBookTest, ATextGoesToItsPrintColumn) {
    Log().WriteAtColumn(5, u"GEEN");
    Log().WriteAtColumn(12, u"x");
    Log().EndLine();
    Log().WriteAtColumn(1, u"y");
    EXPECT_EQ(Bytes(), "    GEEN   x\r\ny");
}

TEST_F(LogBookTest, APrintColumnThatIsPassedAlreadyIsTheNextOne) {
    Log().Write(u"12345");
    Log().WriteAtColumn(3, u"x");
    EXPECT_EQ(Log().Column(), 7);
    EXPECT_EQ(Bytes(), "12345x");
}

TEST_F(LogBookTest, AnErrorBeginsWithFoutAndIsCounted) {
    EXPECT_EQ(Log().ErrorCount(), 0);
    Log().WriteError(u"Geen HEADER gevonden");
    Log().WriteLine(u"geen fout");
    Log().WriteError(u"Nog een");
    EXPECT_EQ(Log().ErrorCount(), 2);
    EXPECT_EQ(Bytes(), "FOUT:  Geen HEADER gevonden\r\ngeen fout\r\nFOUT:  Nog een\r\n");
}

TEST_F(LogBookTest, TheLineBreaksOfAnErrorAreBlanks) {
    Log().WriteError(u"een;\ntwee\rdrie");
    EXPECT_EQ(Bytes(), "FOUT:  een; twee drie\r\n");
}

TEST_F(LogBookTest, AnEscapedErrorNamesTheLineThatWasBeingRead) {
    CurrentInputLine() = 17;
    Log().WriteEscapedError(RuntimeError(errors::subscriptOutOfRange));
    EXPECT_EQ(Log().ErrorCount(), 1);
    EXPECT_EQ(Bytes(), "FOUT:  Index buiten bereik (regel 17)\r\n");
}

TEST_F(LogBookTest, AnEscapedErrorWithoutInputHasNoLine) {
    Log().WriteEscapedError(RuntimeError(errors::diskFull));
    EXPECT_EQ(Bytes(), "FOUT:  Schijf vol\r\n");
}

TEST_F(LogBookTest, WhatIsWrittenWhileItIsNotOpenIsDropped) {
    Log().WriteLine(u"voor");
    Log().Close();
    EXPECT_FALSE(Log().IsOpen());
    Log().WriteLine(u"na");
    Log().WriteAtColumn(5, u"na");
    Log().WriteEmptyLines(2);
    Log().WriteError(u"na");
    EXPECT_EQ(FileBytes(logName), "voor\r\n");
}

TEST_F(LogBookTest, ALogBookThatWasNeverOpenedTakesWhatIsWritten) {
    LogBook log;
    log.WriteLine(u"nergens");
    log.WriteError(u"nergens");
    log.Close();
    EXPECT_EQ(log.ErrorCount(), 1);
    EXPECT_FALSE(log.HasFailed());
}

TEST_F(LogBookTest, OpeningReplacesTheFileAndForgetsTheErrors) {
    Log().WriteError(u"oud");
    Log().Write(u"onvolledig");
    Log().Close();
    Log().Open(logName);
    EXPECT_EQ(Log().ErrorCount(), 0);
    EXPECT_EQ(Log().Column(), 1);
    Log().WriteLine(u"nieuw");
    EXPECT_EQ(Bytes(), "nieuw\r\n");
}

TEST_F(LogBookTest, AFolderThatDoesNotExistIsARunTimeError) {
    LogBook log;
    EXPECT_THROW(log.Open(folder / "geen/map/x.log"), RuntimeError);
    EXPECT_FALSE(log.IsOpen());
}

TEST_F(LogBookTest, AFullDiskIsToldByTheLogBookOnly) {
    LogBook log;
    log.Open(u"/dev/full");
    log.WriteLine(u"kort");
    EXPECT_FALSE(log.HasFailed());
    log.Close();
    EXPECT_TRUE(log.HasFailed());
    EXPECT_FALSE(log.IsOpen());
}

TEST_F(LogBookTest, AFullDiskOnTheWayDoesNotStopTheWriter) {
    LogBook log;
    log.Open(u"/dev/full");
    for (int i = 0; i < 20000; ++i) log.WriteError(u"een regel die telt");
    EXPECT_TRUE(log.HasFailed());
    EXPECT_EQ(log.ErrorCount(), 20000);
    log.Close();
    EXPECT_FALSE(log.IsOpen());
}

}  // namespace
}  // namespace korvande::testing
