#include <chrono>
#include <thread>

#include "core/RuntimeError.h"
#include "tests/nensuf/ImportTest.h"

namespace korvande::testing {

namespace {

class ImportGroups : public ImportTest {
 protected:
    // How many points, line strings, edges and texts the drawing holds.
    std::string Counts() const {
        const Drawing& drawing = translation.drawing;
        return std::to_string(drawing.Points.UpperBound()) + " " + std::to_string(drawing.Lines.UpperBound()) + " " +
               std::to_string(drawing.Edges.UpperBound()) + " " + std::to_string(drawing.Texts.UpperBound());
    }
};

const std::string three = At(0, 10000) + At(10000, 0) + At(0, -10000);

TEST_F(ImportGroups, TheNumberInTheGFieldDecidesTheKind) {
    for (const std::string kind : {"1", " 1", "01", "1 ", "0101", " 10", "01X"}) {
        Import(Head("P10", kind) + Geometry(At(1, 1) + At(2, 2)));
        EXPECT_EQ(Counts(), "1 0 0 0") << kind;
    }
    for (const std::string kind : {"3", "5", "12", "03", " 3", " 30", "05", "1201", "12015"}) {
        Import(Head("B10", kind) + Geometry(three));
        EXPECT_EQ(Counts(), "3 1 2 0") << kind;
        EXPECT_NE(Edges().find("STRAIGHT"), std::string::npos) << kind;
    }
    for (const std::string kind : {"4", "13", "04", " 40", "1301"}) {
        Import(Head("B10", kind) + Geometry(three));
        EXPECT_EQ(Counts(), "3 1 2 0") << kind;
        EXPECT_NE(Edges().find("ARC_CENT"), std::string::npos) << kind;
    }
}

TEST_F(ImportGroups, OtherKindsOfGeometryImportNothing) {
    for (const std::string kind : {"2", "6", "0", "00", "11", "14", "99", "", "A1", "-1"}) {
        translation.account = {};
        Import(Head("P10", kind) + Geometry(three));
        EXPECT_EQ(Counts(), "0 0 0 0") << kind;
        ExpectLeft(ObjectKind::Other, LeftOut::NotTranslated);
    }
    EXPECT_TRUE(screen.boxes.empty());
    EXPECT_EQ(LogText(), "");
}

TEST_F(ImportGroups, AGroupWithoutACodeImportsNothing) {
    for (const std::string& head : {Group("03", Field('G', "01")), Head("", "01"), Head("         ", "01")}) {
        translation.account = {};
        Import(head + Geometry(three));
        EXPECT_EQ(Counts(), "0 0 0 0");
        ExpectLeft(ObjectKind::Point, LeftOut::NoCode);
    }
    Import(Head("", "12") + Geometry(three) + Head("", "13") + Geometry(three) + Placement("111", "", three) +
           TextRecord("Weg"));
    EXPECT_EQ(Counts(), "0 0 0 0");
    ExpectLeft(ObjectKind::LineString, LeftOut::NoCode);
    ExpectLeft(ObjectKind::Arc, LeftOut::NoCode);
    ExpectLeft(ObjectKind::TextObject, LeftOut::NoCode);
    EXPECT_TRUE(screen.boxes.empty());
    EXPECT_EQ(LogText(), "");
}

TEST_F(ImportGroups, TheCodeIsTrimmed) {
    Import(Group("03", Field('M', "  P10") + Field('G', "01")) + Geometry(At(1, 1)) +
           Group("05", Field('F', "112") + Field('K', "  P20") + At(2, 2)));
    EXPECT_EQ(Points(), "|BOOM|0.001 0.001 0.000|0.0000\n|MAST|0.002 0.002 0.000|0.0000\n");
}

TEST_F(ImportGroups, TheLastCodeOfAGroupCounts) {
    Import(Group("03", Field('M', "ONB") + Field('G', "01") + Field('M', "P10")) + Geometry(At(1, 1)) +
           Group("05", Field('Q', "ONB") + Field('F', "112") + Field('K', "P20") + At(2, 2)) +
           Group("03", Field('M', "P10") + Field('G', "01") + Field('M', "")) + Geometry(At(3, 3)));
    EXPECT_EQ(Points(), "|BOOM|0.001 0.001 0.000|0.0000\n|MAST|0.002 0.002 0.000|0.0000\n");
}

TEST_F(ImportGroups, OtherFieldsOfAGroupArePassedOver) {
    Import(Group("03", "  " + Field('A', "1") + Field('M', "P10") + Field('S', "12") + Field('G', "01") +
                           Field('D', " 20240514") + Field('g', "12") + Field('m', "ONB")) +
           Geometry(Field('I', "1") + At(1, 1) + Field('Q', "  2  1  1")));
    EXPECT_EQ(Points(), "|BOOM|0.001 0.001 0.000|0.0000\n");
}

TEST_F(ImportGroups, TheCodeOfOneGroupDoesNotReachTheNext) {
    Import(Point("P10", At(1, 1)) + Group("03", Field('G', "01")) + Geometry(At(2, 2)));
    EXPECT_EQ(Counts(), "1 0 0 0");
}

TEST_F(ImportGroups, SeveralGFieldsRunTheirReadersAsPointLineAndArc) {
    AddRow(translation.codes.points, u"ALLES", u"X10", u"Alles");
    AddRow(translation.codes.lines, u"ALLES", u"X10", u"Alles");
    Import(Group("03", Field('M', "X10") + Field('G', "13") + Field('G', "12") + Field('G', "01")) +
           Geometry(At(1000, 1000)) + Geometry(At(2000, 2000) + At(3000, 3000)) + Geometry(three));
    EXPECT_EQ(Edges(), "1: 2-3 STRAIGHT\n2: 4-5 ARC_CENT\n2: 5-6 ARC_CENT\n");
    EXPECT_EQ(Points().substr(0, 33), "|ALLES|1.000 1.000 0.000|0.0000\n|");
    ExpectAccount(ObjectKind::Point, 1, 1);
    ExpectAccount(ObjectKind::LineString, 1, 1);
    ExpectAccount(ObjectKind::Arc, 1, 1);
}

TEST_F(ImportGroups, EachReaderOfAGroupNeedsCoordinatesOfItsOwn) {
    AddRow(translation.codes.lines, u"KANT", u"P10", u"Kant");
    Import(Group("03", Field('M', "P10") + Field('G', "01") + Field('G', "12")) + Geometry(At(1000, 1000)) +
           Point("P20", At(2000, 2000)));
    EXPECT_EQ(Points(), "|BOOM|1.000 1.000 0.000|0.0000\n");
    EXPECT_EQ(LogText(), "FOUT:  Lijn, 04 record ontbreekt\n");
}

TEST_F(ImportGroups, GroupsOfOtherTypesArePassedOver) {
    std::string others;
    for (const std::string type : {"00", "01", "02", "04", "06", "07", "08", "13", "98", "XX", "0\xE9"}) {
        others += Record(type + At(9, 9)) + Record(type + "M" + At(9, 9), "00");
    }
    Import(others + Point("P10", At(1, 1)) + others);
    EXPECT_EQ(Counts(), "1 0 0 0");
    EXPECT_TRUE(screen.boxes.empty());
    EXPECT_EQ(LogText(), "");
}

TEST_F(ImportGroups, WhatStandsBehindTheClosingRecordIsNotRead) {
    Import(Point("P10", At(1, 1)) + Record("99", "  ") + Point("P10", At(2, 2)));
    EXPECT_EQ(Counts(), "1 0 0 0");
}

TEST_F(ImportGroups, AFileWithoutAClosingRecordEndsCleanly) {
    ImportBytes(NenHeader() + Point("P10", N("1") + At(1, 1)) + Point("P10", N("1") + At(2, 2)));
    EXPECT_EQ(Points(), "1|BOOM|0.001 0.001 0.000|0.0000\n|BOOM|0.002 0.002 0.000|0.0000\n");
    EXPECT_EQ(LogText(), "");
}

TEST_F(ImportGroups, LinesOf63And70CharactersImportLikeThoseOf64) {
    const auto change = [](std::string_view lines, auto onLine) {
        std::string changed;
        for (; !lines.empty(); lines.remove_prefix(66)) changed += onLine(std::string(lines.substr(0, 64))) + "\r\n";
        return changed;
    };
    const std::string groups = Point("P10", At(1, 1)) + Line("B10", three) + TextGroups("Z10", At(3, 3), "Weg");
    Import(groups);
    const std::string whole = Points() + Lines() + Edges() + Texts();
    Import(change(groups, [](const std::string& line) { return line.substr(1); }));
    EXPECT_EQ(Points() + Lines() + Edges() + Texts(), whole);
    Import(change(groups, [](const std::string& line) { return " " + line.substr(1); }));
    EXPECT_EQ(Points() + Lines() + Edges() + Texts(), whole);
    Import(change(groups, [](const std::string& line) { return "000123" + line; }));
    EXPECT_EQ(Points() + Lines() + Edges() + Texts(), whole);
    Import(change(groups, [](const std::string& line) { return std::string(1'000'000 - 64, '0') + line; }));
    EXPECT_EQ(Points() + Lines() + Edges() + Texts(), whole);
    Import(change(groups, [](const std::string& line) { return line.substr(0, 62) + "\r\nkort\r\n\r\n" + line; }));
    EXPECT_EQ(Points() + Lines() + Edges() + Texts(), whole);
    EXPECT_TRUE(screen.boxes.empty());
}

TEST_F(ImportGroups, AUtf8FileWithAByteOrderMarkIsReadAsText) {
    ImportBytes("\xEF\xBB\xBF" + NenHeader() + Placement("111", "Z10", At(1, 1)) +
                Record("06A10TCaf\xC3\xA9 Noord ", " 01") + Record("99"));
    EXPECT_EQ(Texts(), "STRAAT|1|1|0.000|Café Noord\n");
}

TEST_F(ImportGroups, TheGroupThatStandsInPlaceOfA04GroupIsLost) {
    Import(Head("P10", "01") + Point("P10", At(1, 1)) + Point("P20", At(2, 2)));
    EXPECT_EQ(Points(), "|MAST|0.002 0.002 0.000|0.0000\n");
    ExpectAccount(ObjectKind::Point, 3, 1);
    ExpectLeft(ObjectKind::Point, LeftOut::MissingRecord, 2);
    EXPECT_EQ(screen.messages, std::vector<std::string>{"04 record ontbreekt"});
}

TEST_F(ImportGroups, ALostGroupIsAccountedForWhateverItIs) {
    const std::string lines = Head("B10", "12");
    Import(lines + lines + Geometry(three));
    ExpectLeft(ObjectKind::LineString, LeftOut::MissingRecord, 2);
    translation.account = {};
    Import(lines + Head("B10", "13") + Geometry(three));
    ExpectLeft(ObjectKind::Arc, LeftOut::MissingRecord);
    translation.account = {};
    Import(lines + TextGroups("Z10", At(1, 1), "Weg"));
    ExpectLeft(ObjectKind::TextObject, LeftOut::MissingRecord);
    translation.account = {};
    Import(lines + Symbol("P10", At(1, 1)));
    ExpectLeft(ObjectKind::Point, LeftOut::MissingRecord);
    translation.account = {};
    Import(lines + Head("B10", "6") + Geometry(three));
    ExpectLeft(ObjectKind::Other, LeftOut::NotTranslated);
    EXPECT_EQ(Counts(), "0 0 0 0");
}

TEST_F(ImportGroups, ALostClosingRecordDoesNotEndTheFile) {
    ImportBytes(NenHeader() + Head("P10", "01") + Record("99") + Point("P10", At(1, 1)));
    EXPECT_EQ(Counts(), "1 0 0 0");
}

TEST_F(ImportGroups, ThePlacementOfAPointIsNoObjectOfItsOwn) {
    const std::string placement = Group("05", Field('F', "112") + At(1, 1));
    Import(Point("P10", At(1, 1)) + placement + Group("05", Field('F', "012A01") + At(1, 1) + At(2, 2)) +
           Record("06A20TLoofboom"));
    EXPECT_EQ(Counts(), "1 0 0 0");
    ExpectAccount(ObjectKind::Point, 1, 1);
    ExpectAccount(ObjectKind::Other, 0, 0);
}

TEST_F(ImportGroups, APlacementWithoutACodeThatBelongsToNothingIsAccountedFor) {
    const std::string placement = Group("05", Field('F', "112") + At(1, 1));
    Import(placement + Point("P10", At(1, 1)) + Symbol("P10", At(2, 2)) + placement + Point("P10", At(3, 3)) +
           Group("03", Field('M', "P10")) + placement + Group("05", Field('F', "113") + Field('K', "P10")));
    EXPECT_EQ(Counts(), "3 0 0 0");
    ExpectAccount(ObjectKind::Point, 6, 3);
    ExpectLeft(ObjectKind::Point, LeftOut::NoCode, 3);
    ExpectLeft(ObjectKind::Other, LeftOut::NotTranslated);
}

TEST_F(ImportGroups, TheHeadOfATextIsNoObjectOfItsOwn) {
    const std::string head = Group("03", Field('M', "Z10"));
    Import(head + TextGroups("Z10", At(1, 1), "Weg"));
    ExpectAccount(ObjectKind::TextObject, 1, 1);
    ExpectAccount(ObjectKind::Other, 0, 0);
    Import(head + head + TextRecord("Weg"));
    ExpectLeft(ObjectKind::Other, LeftOut::NotTranslated, 2);
}

TEST_F(ImportGroups, TheProgressTellsHowFarTheFileWasRead) {
    const std::string half = Point("P10", At(1, 1)) + Head("B10", "12") + Record("08");
    std::string groups;
    for (int i = 0; i < 40; ++i) groups += Point("P10", At(1, 1));
    std::int64_t told = 0;
    screen.onMessage = [this, &told] {
        std::this_thread::sleep_for(std::chrono::milliseconds(60));
        screen.onPump = [this, &told] { told = told == 0 ? screen.value : told; };
    };
    Import(groups + half + groups);
    EXPECT_GT(told, 40);  // in blocks of 128 bytes, about one for each point
    EXPECT_LE(told, screen.maxima[0]);
}

// In this file every group comes from the look-ahead.
TEST_F(ImportGroups, APersonCanEndTheRunBetweenTwoRecords) {
    std::string groups = Point("P10", At(1, 1)) + Head("B10", "12") + Record("08");
    for (int i = 0; i < 100; ++i) groups += Record("03M", "00") + Record("04X", "00");
    screen.onMessage = [this] {
        // Time passes while the message stands; then the person asks for the end.
        std::this_thread::sleep_for(std::chrono::milliseconds(60));
        screen.onPump = [] { throw TranslationAborted(); };
    };
    EXPECT_THROW(Import(groups), TranslationAborted);
    EXPECT_EQ(Counts(), "1 0 0 0");
}

TEST_F(ImportGroups, AnObjectDuringWhichThePersonEndsTheRunIsAccountedFor) {
    std::string fields;
    for (int i = 0; i < 400; ++i) fields += At(i, i);
    screen.onMessage = [this] {
        std::this_thread::sleep_for(std::chrono::milliseconds(60));
        screen.onPump = [] { throw TranslationAborted(); };
    };
    EXPECT_THROW(Import(Head("P10", "01") + Record("08") + Line("B10", fields)), TranslationAborted);
    ExpectLeft(ObjectKind::LineString, LeftOut::Unfinished);
}

}  // namespace

}  // namespace korvande::testing
