#include "tests/project/ControlTableTest.h"

namespace korvande::testing {

namespace {

TEST_F(ControlTable, ACodeRowTakesItsFields) {
    EXPECT_EQ(Rows('P', "ab = q21, symbool, boom, 1, -2, 3\n"), "AB|Q21|SYMBOOL|BOOM|1|-2|3\n");
    EXPECT_EQ(Rows('L', "ab = b01, grens, gebouw, 1, 2, 3\n"), "AB|B01|GRENS|GEBOUW|1|2|3\n");
    EXPECT_EQ(Rows('T', "ab = z02, straatnaam, 1, 2, 3\n"), "AB|Z02||STRAATNAAM|1|2|3\n");
    EXPECT_FALSE(textTable.rows[1].Type.NeverFilled());
}

TEST_F(ControlTable, TheOlderRotatedPointTypeIsRenamed) {
    EXPECT_EQ(Rows('P', "AB = Q20, ROT.PUN, BOOM\n"), "AB|Q20|ROT.PNT|BOOM|0|0|0\n");
    EXPECT_EQ(Rows('P', "AB = ROT.PUN, ROT.PUNT, ROT.PUN\n"), "AB|ROT.PUN|ROT.PUN|ROT.PUN|0|0|0\n");
    EXPECT_EQ(Rows('L', "AB = Q20, ROT.PUN, X\n"), "AB|Q20|ROT.PUN|X|0|0|0\n");
    EXPECT_EQ(Rows('T', "AB = Q20, ROT.PUN, 1, 2, 3\n"), "AB|Q20||ROT.PUN|1|2|3\n");
    EXPECT_EQ(UnknownRow('P', "UNKNOWN = AB, ROT.PUN, PUNT, X, 1, 2, 3\n"), "AB|ROT.PNT|PUNT|X|1|2|3");
}

TEST_F(ControlTable, TheOlderTypeIsRenamedInAShortRowToo) {
    EXPECT_EQ(Rows('P', "AB = Q20, ROT.PUN\n"), "AB|Q20|ROT.PNT|0|0|0|0\n");
}

TEST_F(ControlTable, MissingNumbersAreZero) {
    EXPECT_EQ(Rows('T', "T1 = Z19, NAAM\n"), "T1|Z19||NAAM|0|0|0\n");
    EXPECT_EQ(Rows('P', "AB = Q20, PUNT, BOOM\n"), "AB|Q20|PUNT|BOOM|0|0|0\n");
}

TEST_F(ControlTable, FieldsThatAreShortOfTheirNumberGetThreeZerosBehindThem) {
    EXPECT_EQ(Rows('P', "AB =\n"), "AB|0|0|0|0|0|0\n");
    EXPECT_EQ(Rows('P', "AB = Q20\n"), "AB|Q20|0|0|0|0|0\n");
    EXPECT_EQ(Rows('P', "AB = Q20, PUNT\n"), "AB|Q20|PUNT|0|0|0|0\n");
    EXPECT_EQ(Rows('P', "AB = Q20, PUNT, X, 4\n"), "AB|Q20|PUNT|X|4|0|0\n");
    EXPECT_EQ(Rows('P', "AB = Q20, PUNT, X, 4, 5\n"), "AB|Q20|PUNT|X|4|5|0\n");
    EXPECT_EQ(Rows('P', "AB = Q20, PUNT, X, 4, 5, 6, 7, 8\n"), "AB|Q20|PUNT|X|4|5|6\n");
    EXPECT_EQ(Rows('T', "AB =\n"), "AB|0||0|0|0|0\n");
    EXPECT_EQ(Rows('T', "AB = Z19\n"), "AB|Z19||0|0|0|0\n");
    EXPECT_EQ(Rows('T', "AB = Z19, X, 4\n"), "AB|Z19||X|4|0|0\n");
    EXPECT_EQ(Rows('T', "AB = Z19, X, 4, 5\n"), "AB|Z19||X|4|5|0\n");
}

TEST_F(ControlTable, ATrailingSeparatorMakesOneMoreEmptyField) {
    EXPECT_EQ(Rows('P', "AB = Q20, PUNT, X, 4, 5,\n"), "AB|Q20|PUNT|X|4|5|0\n");
    EXPECT_EQ(Rows('P', "AB = Q20, PUNT,\n"), "AB|Q20|PUNT||0|0|0\n");
    EXPECT_EQ(Rows('P', "AB = ,,,,,\n"), "AB||||0|0|0\n");
}

TEST_F(ControlTable, TheUnknownRowIsOverwritten) {
    EXPECT_EQ(UnknownRow('P', "Unknown = ABC, Q99, SYMBOOL, Anders, 1, 2, 3\n"), "ABC|Q99|SYMBOOL|ANDERS|1|2|3");
    EXPECT_EQ(UnknownRow('L', "Unknown = ABC, Q99, GRENS, Anders, 1, 2, 3\n"), "ABC|Q99|GRENS|ANDERS|1|2|3");
    EXPECT_EQ(UnknownRow('T', "Unknown = ABC, Z99, Anders, 1, 2, 3\n"), "ABC|Z99||ANDERS|1|2|3");
    EXPECT_EQ(textTable.rows.size(), 1U);
}

TEST_F(ControlTable, AMissingLastFieldOfTheUnknownRowLeavesWhatIsThere) {
    EXPECT_EQ(UnknownRow('P', "Unknown = A, Q9, PUNT, X, 1, 2, 3\nUnknown = B, Q8, DUMMY, Y, 4, 5\n"),
              "B|Q8|DUMMY|Y|4|5|3");
    EXPECT_EQ(UnknownRow('T', "Unknown = A, Z9, X, 1, 2, 3\nUnknown = B, Z8, Y, 4, 5\n"), "B|Z8||Y|4|5|3");
    EXPECT_EQ(UnknownRow('P', "Unknown = A, Q9, PUNT, X, 1, 2, 3\nUnknown = B, Q8, DUMMY, Y, 4\n"),
              "B|Q8|DUMMY|Y|4|0|0");
    EXPECT_EQ(UnknownRow('T', "Unknown = A, Z9, X, 1, 2, 3\nUnknown = B, Z8, Y, 4\n"), "B|Z8||Y|4|0|0");
    EXPECT_EQ(UnknownRow('P', "Unknown = A, Q9, PUNT, X\n"), "A|Q9|PUNT|X|0|0|0");
    EXPECT_EQ(UnknownRow('P', "Unknown = A\n"), "A|0|0|0|0|0|0");
    EXPECT_EQ(UnknownRow('L', "Unknown =\n"), "0|0|0|ONBEKEND LIJNOBJECT|0|0|0");
}

TEST_F(ControlTable, CodesAndDescriptionsThatAreTooLongAreCut) {
    EXPECT_EQ(Rows('P', "ABCDEFGHI = 123456789, GRONDSLAG, " + std::string(50, 'X') + "\n"),
              "ABCDEFG|1234567|GRONDSL|" + std::string(43, 'X') + "|0|0|0\n");
}

TEST_F(ControlTable, DuplicatesAreAppended) {
    EXPECT_EQ(Rows('L', "A = Q1, LIJN, EEN\nA = Q2, LIJN, TWEE\nA = Q1, LIJN, EEN\n"),
              "A|Q1|LIJN|EEN|0|0|0\nA|Q2|LIJN|TWEE|0|0|0\nA|Q1|LIJN|EEN|0|0|0\n");
}

TEST_F(ControlTable, ARemarkBehindARowIsDropped) {
    EXPECT_EQ(Rows('P', "AB = Q20, PUNT, BOOM # een boom, 1, 2, 3\n"), "AB|Q20|PUNT|BOOM|0|0|0\n");
    EXPECT_EQ(Rows('P', "AB = Q20, PUNT, BOOM, 1, 2, 3 # hoogte\n"), "AB|Q20|PUNT|BOOM|1|2|3\n");
    EXPECT_EQ(Rows('P', "AB = # niets\n"), "AB|0|0|0|0|0|0\n");
}

TEST_F(ControlTable, LinesWithoutAnEqualSignAreSkipped) {
    EXPECT_EQ(Rows('P', "\n# een opmerking\nlosse woorden\n   \nAB = Q20, PUNT, X\nAB Q20\n"), "AB|Q20|PUNT|X|0|0|0\n");
}

TEST_F(ControlTable, ABlankCodeIsACode) { EXPECT_EQ(Rows('P', " = Q20, DUMMY, LEEG\n"), "|Q20|DUMMY|LEEG|0|0|0\n"); }

TEST_F(ControlTable, QuotedFieldsKeepTheirQuotes) {
    EXPECT_EQ(Rows('P', "AB = Q20, PUNT, \"een, twee\", 1, 2, 3\n"), "AB|Q20|PUNT|\"EEN, TWEE\"|1|2|3\n");
    EXPECT_EQ(Rows('P', "AB = Q20, PUNT, \"een \"\"b\"\"\", 1, 2, 3\n"), "AB|Q20|PUNT|\"EEN \"\"B\"\"\"|1|2|3\n");
    EXPECT_EQ(Rows('P', "AB = Q20, PUNT, \"open, 1, 2, 3\n"), "AB|Q20|PUNT|\"OPEN|1|2|3\n");
}

TEST_F(ControlTable, NumbersOfARowAreLeadingNumbersOfSixteenBits) {
    EXPECT_EQ(Rows('P', "AB = Q20, PUNT, X, 12m, , -3.5\n"), "AB|Q20|PUNT|X|12|0|-4\n");
    EXPECT_EQ(Rows('P', "AB = Q20, PUNT, X, 32767, 32768, -32768\n"), "AB|Q20|PUNT|X|32767|0|-32768\n");
    EXPECT_EQ(Rows('P', "AB = Q20, PUNT, X, X1, 1E999, -\n"), "AB|Q20|PUNT|X|0|0|0\n");
}

TEST_F(ControlTable, OnlyTheFirstEqualSignDividesALine) {
    EXPECT_EQ(Rows('P', "AB = Q20, PUNT, A=B\n"), "AB|Q20|PUNT|A=B|0|0|0\n");
    Load("[NEN1878]\nSUFNENFile = a=b.sfn\n");
    EXPECT_EQ(options.txtFileSUFNEN, u"A=B.SFN");
}

}  // namespace

}  // namespace korvande::testing
