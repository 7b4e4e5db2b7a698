#include "tests/nensuf/ImportTest.h"
#include "tests/nensuf/ProblemLists.h"

namespace korvande::testing {

namespace {

// The header has two lines, so that the first group begins in line 3.
class ImportRecordProblems : public ImportTest {
 protected:
    // What is told of groups, or of a whole file.
    std::string LossOfGroups(std::string_view groups, std::string_view header = NenHeader()) {
        translation.problems = {};
        Import(groups, header);
        return LossOf(translation);
    }
    std::string LossOfFile(std::string_view bytes) {
        translation.problems = {};
        ImportBytes(bytes);
        return LossOf(translation);
    }
    void ExpectDamage(bool isDamage = true) { EXPECT_EQ(translation.problems.HasDamage(), isDamage); }
};

const std::string point = Point("P10", At(1, 1));
const std::string closing = Record("99", "  ");

// A point as the program writes it: with its placements and its description.
const std::string wholePoint = Record("03MP10      G010111", "00") + Record("04" + At(1, 1), "00") +
                               Record("05F112      " + At(1, 1), "00") + Record("05F012A01   " + At(1, 1), "00") +
                               Record("06A20TLoofboom");

TEST_F(ImportRecordProblems, AGoodFileTellsNothing) {
    EXPECT_EQ(LossOfGroups(wholePoint + Line("B10", At(1, 1) + At(2, 2)) + TextGroups("Z10", At(1, 1), "Weg") +
                           Record("07WPlaats") + Point("P10", At(1, 1)) + Record("06A20TLoofboom") +
                           Symbol("P20", At(1, 1)) + Record("06A20TMast")),
              "");
    EXPECT_EQ(WantedOf(translation), "");
}

TEST_F(ImportRecordProblems, TheSamplesTellNothing) {
    for (const std::string name : {"kruispunt.sfn", "straat.sfn", "straat.sf2"}) {
        const bool isSuf2 = name.ends_with("2");
        translation.mode.variant = isSuf2 ? Variant::Suf2 : Variant::Nen1878;
        EXPECT_EQ(LossOfFile(FileBytes(FromUtf8(KORVANDE_SOURCE_DIR "/samples/" + name))), "") << name;
    }
}

TEST_F(ImportRecordProblems, ALongLineThatLosesCharactersIsToldWithItsLine) {
    const std::string first = point.substr(0, 64);
    const std::string rest = point.substr(66);
    EXPECT_EQ(LossOfGroups("000001" + point),
              "1 regel van meer dan 64 tekens, waarvan de laatste 64 zijn gelezen (op regel 3)\n");
    ExpectDamage();
    EXPECT_EQ(Points(), "|BOOM|0.001 0.001 0.000|0.0000\n");
    EXPECT_EQ(LossOfGroups(first + "      \r\n" + rest), "");
    EXPECT_EQ(LossOfGroups("      " + point), "");
}

TEST_F(ImportRecordProblems, LineNumbersBehindTheRecordsAreLongLinesAndNothingElse) {
    const std::string numbered = point.substr(0, 64) + "00000003\r\n" + point.substr(66, 64) + "00000004\r\n";
    EXPECT_EQ(LossOfGroups(numbered),
              "2 regels van meer dan 64 tekens, waarvan de laatste 64 zijn gelezen (de eerste op regel 3)\n");
    EXPECT_EQ(Points(), "");
}

TEST_F(ImportRecordProblems, ALongHeaderLineIsToldWhenItLosesCharacters) {
    const std::string second = SecondLine("010215");
    EXPECT_EQ(LossOfGroups(point, "xxxxxx" + NenHeader()),
              "1 regel van meer dan 64 tekens, waarvan de laatste 64 zijn gelezen (op regel 1)\n");
    EXPECT_EQ(LossOfGroups(point, FirstLine().substr(0, 64) + "  \r\n" + second), "");
    EXPECT_EQ(LossOfGroups(point, FirstLine() + second.substr(0, 64) + "0000002\r\n"),
              "1 regel van meer dan 64 tekens, waarvan de laatste 64 zijn gelezen (op regel 2)\n");
}

TEST_F(ImportRecordProblems, AHeaderValueThatIsNoNumberIsTold) {
    const auto lossWith = [this](const std::string& second) { return LossOfGroups(point, FirstLine() + second); };
    const std::string told = "1 waarde die geen getal is (op regel 2)\n";
    EXPECT_EQ(lossWith(SecondLine("0102 5")), told);
    EXPECT_EQ(lossWith(SecondLine("010215", "12l")), told);
    EXPECT_EQ(lossWith(SecondLine("010215", "0", "0", "")), told);
    EXPECT_EQ(lossWith(SecondLine("010215").substr(0, 52) + "\r\n"), told);
    ExpectDamage();
    EXPECT_EQ(lossWith(SecondLine("010215", "", "", ".5", "", "")), "");
}

TEST_F(ImportRecordProblems, AShortLineThatIsNotEmptyIsToldWithItsLine) {
    EXPECT_EQ(LossOfGroups(point + "kort\r\n\r\n   \t\r\n" + point + "04X\r\n"),
              "2 te korte regels overgeslagen (de eerste op regel 5)\n");
    ExpectDamage();
}

TEST_F(ImportRecordProblems, AShort99ClosesTheFileOnlyAsItsLastLine) {
    EXPECT_EQ(LossOfFile(NenHeader() + point + "99\r\n\r\n"), "");
    EXPECT_EQ(LossOfFile(NenHeader() + point + "99\r\n" + point + "99"),
              "1 te korte regel overgeslagen (op regel 5)\n");
}

TEST_F(ImportRecordProblems, AClosingRecordWithoutItsFirstDigitClosesTheFile) {
    const std::string blanks(62, ' ');
    EXPECT_EQ(LossOfFile(NenHeader() + point + "9" + blanks + "\r\n"), "");
    EXPECT_EQ(LossOfFile(NenHeader() + point + " 9" + blanks + "\r\n\r\n"), "");
    const std::string without = NenHeader() + Head("P10", "01").substr(1) + Geometry(At(1, 1)).substr(1);
    EXPECT_EQ(LossOfFile(without + "9\r\n"), "");
    EXPECT_EQ(
        LossOfFile(NenHeader() + point + "9\r\n"),
        "1 te korte regel overgeslagen (op regel 5)\nhet bestand is afgebroken: record 99 ontbreekt (op regel 5)\n");
    EXPECT_EQ(LossOfFile(NenHeader() + point + "9" + blanks + "\r\n" + point + closing),
              "1 record van type 09 overgeslagen (op regel 5)\n");
}

TEST_F(ImportRecordProblems, AFileWithoutAClosingRecordIsCutOff) {
    EXPECT_EQ(LossOfFile(NenHeader() + point), "het bestand is afgebroken: record 99 ontbreekt (op regel 4)\n");
    ExpectDamage();
    EXPECT_EQ(LossOfFile(NenHeader() + closing + point + point),
              "de rest van het bestand is niet gelezen, vanaf regel 4\n");
}

TEST_F(ImportRecordProblems, WhatStandsBehindTheClosingRecordIsToldWithItsFirstLine) {
    EXPECT_EQ(LossOfGroups(point + closing + "\r\n  \r\n" + "kort\r\n" + point),
              "de rest van het bestand is niet gelezen, vanaf regel 8\n");
    ExpectDamage();
    EXPECT_EQ(LossOfFile(NenHeader() + point + closing + "\r\n   "), "");
    EXPECT_EQ(LossOfFile(NenHeader() + point + closing + "99\r\n99   \r\n"), "");
    EXPECT_EQ(LossOfFile(NenHeader() + point + closing + "99\r\n99 M\r\n"),
              "de rest van het bestand is niet gelezen, vanaf regel 7\n");
}

TEST_F(ImportRecordProblems, AGroupWhoseLastRecordSaysThatItGoesOnIsNotClosed) {
    const std::string open = Head("P10", "01") + Record("04" + At(1, 1), "00");
    const std::string told = "1 groep die niet is afgesloten (op regel 4)\n";
    EXPECT_EQ(LossOfGroups(open + point), told);
    ExpectDamage();
    EXPECT_EQ(LossOfGroups(open), told);
    EXPECT_EQ(LossOfFile(NenHeader() + open + "99"), told);
    EXPECT_EQ(LossOfFile(NenHeader() + open), "het bestand is afgebroken: record 99 ontbreekt (op regel 4)\n");
    EXPECT_EQ(LossOfGroups(Placement("111", "Z10", At(1, 1)) + Record("06A03TWeg", "00") + point), told);
    EXPECT_EQ(LossOfGroups(open + Record("05F112      " + At(1, 1))), "");
}

TEST_F(ImportRecordProblems, AGroupThatLostItsEndWithALineIsToldByThatLineAlone) {
    EXPECT_EQ(LossOfGroups(Head("B10", "12") + Record("04" + At(1, 1) + At(2, 2), "00") + "04X\r\n" + point),
              "1 te korte regel overgeslagen (op regel 5)\n");
}

TEST_F(ImportRecordProblems, AnEndCodeThatIsNoneAndCutsAGroupIsToldWithItsLine) {
    const std::string line = Head("B10", "12") + Record("04" + At(1, 1) + At(2, 2), "  ") + Record("04" + At(3, 3));
    EXPECT_EQ(LossOfGroups(line + point), "1 groep die niet is afgesloten (op regel 4)\n");
    ExpectDamage();
    EXPECT_EQ(Edges(), "1: 1-2 STRAIGHT\n");
    EXPECT_EQ(LossOfGroups(Head("B10", "12") + Record("04" + At(1, 1) + At(2, 2), "  ")), "");
}

TEST_F(ImportRecordProblems, ASecondCodeInAGroupTellsThatTheFirstWasNotClosed) {
    const std::string symbol = Record("05F112      " + At(1, 1) + "KP10", "00");
    EXPECT_EQ(LossOfGroups(symbol + Symbol("P20", At(2, 2))), "1 groep die niet is afgesloten (op regel 4)\n");
    EXPECT_EQ(LossOfGroups(Record("03MP10      G01", "00") + point), "1 groep die niet is afgesloten (op regel 4)\n");
}

TEST_F(ImportRecordProblems, RecordTypesThatAreNotReadAreTold) {
    EXPECT_EQ(
        LossOfGroups(Record("08Iets") + point + Record("09Meer") + Record("01Kop") + Record("08") + Record("07N")),
        "2 records van type 08 overgeslagen (de eerste op regel 3)\n"
        "1 record van type 09 overgeslagen (op regel 6)\n1 record van type 01 overgeslagen (op regel 7)\n");
    ExpectDamage();
    EXPECT_EQ(LossOfGroups(Head("P10", "01") + Record("08Iets") + point),
              "1 record van type 08 overgeslagen (op regel 4)\n1 punt waarvan een record ontbreekt (op regel 3)\n");
}

TEST_F(ImportRecordProblems, RecordsOfNoObjectAreTold) {
    EXPECT_EQ(LossOfGroups(Line("B10", At(1, 1) + At(2, 2)) + Geometry(At(3, 3)) + Record("06A01TX")),
              "1 record van type 04 overgeslagen (op regel 5)\n1 record van type 06 overgeslagen (op regel 6)\n");
    EXPECT_EQ(LossOfGroups(wholePoint + Record("06A03TNog")), "1 record van type 06 overgeslagen (op regel 8)\n");
    EXPECT_EQ(LossOfGroups(TextGroups("Z10", At(1, 1), "Weg") + TextRecord("Nog")),
              "1 record van type 06 overgeslagen (op regel 5)\n");
}

TEST_F(ImportRecordProblems, APlacementWithoutACodeBelongsToPointsOnly) {
    const std::string placement = Group("05", Field('F', "112") + At(1, 1));
    EXPECT_EQ(LossOfGroups(point + placement), "");
    EXPECT_EQ(LossOfGroups(Line("B10", At(1, 1) + At(2, 2)) + placement),
              "1 record van type 05 overgeslagen (op regel 5)\n");
}

TEST_F(ImportRecordProblems, TheRecordsOfAnObjectThatWasToldAreNotToldAgain) {
    EXPECT_EQ(LossOfGroups(Head("P10", "14") + Geometry(At(1, 1)) + Geometry(At(2, 2)) + Record("06A01TX")),
              "1 object van een soort die niet wordt vertaald (op regel 3)\n");
    EXPECT_EQ(LossOfGroups(Placement("111", "", At(1, 1)) + TextRecord("Weg")),
              "1 tekst zonder code of soort (op regel 3)\n");
}

TEST_F(ImportRecordProblems, ALineOfBlanksIsNoRecord) {
    EXPECT_EQ(LossOfGroups(point + std::string(64, ' ') + "\r\n" + std::string(70, ' ') + "\r\n" + point), "");
}

TEST_F(ImportRecordProblems, LinesOfUtf8KeepTheirColumns) {
    const std::string text = "06A04TCaf\xC3\xA9";
    EXPECT_EQ(LossOfGroups(Placement("111", "Z10", At(1, 1)) + Record(text) + point), "");
    EXPECT_EQ(Texts(), "STRAAT|1|1|0.000|Café\n");
    EXPECT_EQ(WantedOf(translation), "het bestand is gelezen als UTF-8 (op regel 4)\n");
}

}  // namespace

}  // namespace korvande::testing
