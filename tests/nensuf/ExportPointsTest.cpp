#include "tests/nensuf/ExportTest.h"

namespace korvande::testing {
namespace {

class ExportPoints : public ExportTest {
 protected:
    ExportPoints() { AddRow(translation.codes.points, {u"PUT", u"S01 ROE", types::symbol, u"Rioolput"}); }

    std::int64_t Left(LeftOut reason) {
        return translation.account[ObjectKind::Point].leftOut[static_cast<std::size_t>(reason)];
    }
    std::int64_t Written() { return translation.account[ObjectKind::Point].written; }
};

TEST_F(ExportPoints, APointIsAGroupOfFourRecordsOfWhichTheLastCloses) {
    AddPoint({.code = u"PAAL", .east = 123.4567, .north = 456.789});
    EXPECT_EQ(ExportObjects(), Records("03MG01      G010101   BBRON  0  |00\n"
                                       "04I1        X   123457Y   456789|00\n"
                                       "05F112      X   123457Y   456789|00\n"
                                       "06A20TOmschrijving|01\n"));
}

TEST_F(ExportPoints, APointInSuf2HasItsOwnMarkerAndClosesEveryRecord) {
    AddPoint({.code = u"PAAL"});
    EXPECT_EQ(ExportObjectsAsSuf2(), Records("03MG01      G 10 01   BBRON  0  |01\n"
                                             "04I1        X   100000Y   200000|01\n"
                                             "05F112      X   100000Y   200000|01\n"
                                             "06A20TOmschrijving|01\n"));
}

TEST_F(ExportPoints, ControlPointsAreWrittenAsPoints) {
    AddRow(translation.codes.points, {u"GP", u"E01", types::controlPoint, u"Grondslagpunt"});
    AddPoint({.code = u"GP"});
    EXPECT_EQ(ExportObjects(), Records("03ME01      G010101   BBRON  0  |00\n"
                                       "04I1        X   100000Y   200000|00\n"
                                       "05F112      X   100000Y   200000|00\n"
                                       "06A20TGrondslagpunt|01\n"));
}

TEST_F(ExportPoints, ASymbolHasARotationRecordBehindItsPlacement) {
    AddPoint({.code = u"PUT"});
    EXPECT_EQ(ExportObjects(), Records("03MS01 ROE  G010101   BBRON  0  |00\n"
                                       "04I1        X   100000Y   200000|00\n"
                                       "05F112      X   100000Y   200000|00\n"
                                       "05F012ROE   X   100000Y   200000X   101000Y   200000|00\n"
                                       "06A20TRioolput|01\n"));
}

TEST_F(ExportPoints, ARotatedPointInSuf2HasTheSameRecordsAsASymbol) {
    AddRow(translation.codes.points, {u"LAMP", u"S02", types::rotatedPoint, u"Lantaarn"});
    AddPoint({.code = u"LAMP", .symDir = 100});
    EXPECT_EQ(ExportObjectsAsSuf2(), Records("03MS02      G 10 01   BBRON  0  |01\n"
                                             "04I1        X   100000Y   200000|01\n"
                                             "05F112      X   100000Y   200000|01\n"
                                             "05F012      X   100000Y   200000X   100000Y   201000|01\n"
                                             "06A20TLantaarn|01\n"));
}

// The reference position lies one metre from 100.000, 200.000.
struct Rotation {
    double symDir;
    bool adapted;  // chkExportSymRotation
    std::string reference;
};

class ExportedRotation : public ExportTest, public ::testing::WithParamInterface<Rotation> {};

TEST_P(ExportedRotation, TheReferencePositionLiesInTheSymbolsDirection) {
    AddRow(translation.codes.points, {u"PUT", u"S01", types::symbol});
    AddPoint({.code = u"PUT", .symDir = GetParam().symDir});
    translation.options.chkExportSymRotation = GetParam().adapted;
    const auto lines = SplitLines(ExportObjects());
    ASSERT_EQ(lines.size(), 5U);
    EXPECT_EQ(lines[3].substr(0, 32), "05F012      X   100000Y   200000");
    EXPECT_EQ(lines[3].substr(32, 20), GetParam().reference);
}

INSTANTIATE_TEST_SUITE_P(
    Directions, ExportedRotation,
    ::testing::Values(Rotation{0, false, "X   101000Y   200000"}, Rotation{50, false, "X   100707Y   200707"},
                      Rotation{100, false, "X   100000Y   201000"}, Rotation{200, false, "X    99000Y   200000"},
                      Rotation{300, false, "X   100000Y   199000"}, Rotation{-300, false, "X   100000Y   201000"},
                      Rotation{0, true, "X   100000Y   201000"}, Rotation{50, true, "X    99293Y   200707"},
                      Rotation{100, true, "X    99000Y   200000"}, Rotation{300, true, "X   101000Y   200000"}));

TEST_F(ExportPoints, TheRotationRecordContinuesWhenNamesAndHeightsAreWritten) {
    translation.options.chkExport3D = translation.options.chkExportPointnoAsField = true;
    AddPoint({.code = u"PUT", .elevation = 1.5, .name = u"P17"});
    EXPECT_EQ(ExportObjects(), Records("03MS01 ROE  G010101   BBRON  0  |00\n"
                                       "04I1        NP17      X   100000Y   200000Z     1500|00\n"
                                       "05F112      NP17      X   100000Y   200000Z     1500|00\n"
                                       "05F012ROE   NP17      X   100000Y   200000Z     1500X   101000|00\n"
                                       "05Y   200000Z     1500|00\n"
                                       "06A20TRioolput|01\n"));
}

TEST_F(ExportPoints, ACodeThatCarriesPIAndBEndsTheGeometryRecordWithTheQuality) {
    AddRow(translation.codes.points, {u"PUNT", u"G02", types::point, u"Punt", 0, 12, 3});
    AddPoint({.code = u"PUNT"});
    EXPECT_EQ(SplitLines(ExportObjects())[1] + "\n", Records("04I1        X   100000Y   200000Q  0  2  3|00\n"));
}

TEST_F(ExportPoints, TheQualityInSuf2BeginsWithK) {
    AddRow(translation.codes.points, {u"PUNT", u"G02", types::point, u"Punt", 1, 0, 0});
    AddPoint({.code = u"PUNT"});
    EXPECT_EQ(SplitLines(ExportObjectsAsSuf2())[1] + "\n", Records("04I1        X   100000Y   200000K  1  0  0|01\n"));
}

TEST_F(ExportPoints, NameHeightAndQualityFillTheGeometryRecordToItsLastColumn) {
    translation.options.chkExport3D = translation.options.chkExportPointnoAsField = true;
    AddRow(translation.codes.points, {u"PUNT", u"G02", types::point, u"Punt", 1, 2, 3});
    AddPoint({.code = u"PUNT", .elevation = -0.25, .name = u"ABCDEFGHI"});
    EXPECT_EQ(SplitLines(ExportObjects())[1] + "\n",
              Records("04I1        NABCDEFGHIX   100000Y   200000Z     -250Q  1  2  3|00\n"));
}

TEST_F(ExportPoints, NamesAndHeightsAreLeftOutWithoutTheirOptions) {
    AddPoint({.code = u"PAAL", .elevation = 1.5, .name = u"P17"});
    EXPECT_EQ(SplitLines(ExportObjects())[1] + "\n", Records("04I1        X   100000Y   200000|00\n"));
}

TEST_F(ExportPoints, NegativeAndLargeCoordinatesKeepTheirRightmostNineCharacters) {
    AddPoint({.code = u"PAAL", .east = -12.5, .north = 1234567.891});
    AddPoint({.code = u"PAAL", .east = -123456.789, .north = -99999.999});
    const auto lines = SplitLines(ExportObjects());
    EXPECT_EQ(lines[1].substr(12, 20), "X   -12500Y234567891");
    EXPECT_EQ(lines[5].substr(12, 20), "X123456789Y-99999999");
}

TEST_F(ExportPoints, TheCodeRecordHoldsSourceKindAndFieldworkDate) {
    translation.options.lstSource = 3;
    translation.drawing.DrawingDate = u"01-02-2023";
    AddPoint({.code = u"PAAL"});
    EXPECT_EQ(SplitLines(ExportObjects())[0] + "\n", Records("03MG01      G010131   D 20230201BBRON  0  |00\n"));
}

TEST_F(ExportPoints, EverySourceKindIsItsIndex) {
    AddPoint({.code = u"PAAL"});
    for (int kind = 0; kind <= 5; ++kind) {
        translation.options.lstSource = kind;
        EXPECT_EQ(ExportObjects().substr(17, 5), std::to_string(kind) + "1   ");
    }
}

TEST_F(ExportPoints, WithoutAChosenSourceKindItIsUnknown) {
    AddPoint({.code = u"PAAL"});
    translation.options.lstSource = -1;
    EXPECT_EQ(ExportObjects().substr(17, 5), "01   ");
}

TEST_F(ExportPoints, ABlankSourceLeavesItsBlockBlank) {
    translation.owner.Source = u"";
    translation.drawing.DrawingDate = u"01-02-2023";
    AddPoint({.code = u"PAAL"});
    EXPECT_EQ(SplitLines(ExportObjects())[0] + "\n", Records("03MG01      G010101   D 20230201|00\n"));
}

TEST_F(ExportPoints, AnInvalidFieldworkDateIsToldOnceAndLeftOutOfEveryRecord) {
    translation.drawing.DrawingDate = u"31-02-2023";
    AddPoint({.code = u"PAAL"});
    AddPoint({.code = u"PAAL"});
    const auto lines = SplitLines(ExportObjects());
    EXPECT_EQ(lines[0] + "\n", Records("03MG01      G010101   BBRON  0  |00\n"));
    EXPECT_EQ(lines[4], lines[0]);
    EXPECT_EQ(SplitLines(LogText())[0], "Tekening bevat ongeldige veldwerkdatum, wordt weggelaten...");
    EXPECT_EQ(SplitLines(LogText())[1], " Statistiek:");
}

TEST_F(ExportPoints, ADescriptionIsWrittenInFullWithSingleBytes) {
    const Text description(u"Één lange omschrijving van drieënveertig ts");
    ASSERT_EQ(description.size(), 43U);
    AddRow(translation.codes.points, {u"LANG", u"1234567", types::point, description});
    AddPoint({.code = u"LANG"});
    const auto lines = SplitLines(ExportObjects());
    EXPECT_EQ(lines[0].substr(0, 17), "03M1234567  G0101");
    EXPECT_EQ(lines[3] + "\n", Records("06A20T\xC9\xE9n lange omschrijving van drie\xEBnveertig ts|01\n"));
}

TEST_F(ExportPoints, APointOfTypeDummyIsNotWritten) {
    AddPoint({.code = u""});
    EXPECT_EQ(ExportObjects(), "");
    EXPECT_EQ(Left(LeftOut::Dummy), 1);
    EXPECT_EQ(translation.codes.points.rows[2].Count, 1);
}

TEST_F(ExportPoints, APointOfATypeThatPointsDoNotHaveIsNotWritten) {
    AddRow(translation.codes.points, {u"FOUT", u"G03", types::line});
    AddRow(translation.codes.points, {u"KLEIN", u"G04", u"punt"});
    AddRow(translation.codes.points, {u"LEEG", u"G05", u""});
    for (const TextView code : {u"FOUT", u"KLEIN", u"LEEG"}) AddPoint({.code = code});
    EXPECT_EQ(ExportObjects(), "");
    EXPECT_EQ(Left(LeftOut::OtherType), 3);
}

TEST_F(ExportPoints, OfTwoRowsWithTheSameCodeTheLowerOneCounts) {
    AddRow(translation.codes.points, {u"PAAL", u"G77", types::point});
    AddPoint({.code = u"PAAL"});
    EXPECT_EQ(ExportObjects().substr(0, 10), "03MG77    ");
}

TEST_F(ExportPoints, AnUnknownPointIsLeftOutButCountedWhenUnknownsAreOff) {
    AddPoint({.code = u"RAAR"});
    EXPECT_EQ(ExportObjects(), "");
    EXPECT_EQ(translation.codes.points.rows[0].Count, 1);
    EXPECT_EQ(Left(LeftOut::UnknownCode), 1);
    EXPECT_TRUE(translation.unknowns.Entries().empty());
}

TEST_F(ExportPoints, AnUnknownPointIsWrittenWithTheUnknownRowWhenUnknownsAreOn) {
    translation.options.chkExportUnknowns = true;
    AddPoint({.code = u"RAAR"});
    EXPECT_EQ(ExportObjects(), Records("03MQ20      G010101   BBRON  0  |00\n"
                                       "04I1        X   100000Y   200000|00\n"
                                       "05F112      X   100000Y   200000|00\n"
                                       "06A20TONBEKEND PUNTOBJECT|01\n"));
    EXPECT_EQ(translation.codes.points.rows[0].Count, 1);
    EXPECT_EQ(Written(), 1);
}

TEST_F(ExportPoints, AnUnknownPointIsLeftOutWhenTheUnknownRowIsOfTypeDummy) {
    translation.options.chkExportUnknowns = true;
    translation.codes.points.rows[0].Type = types::dummy;
    AddPoint({.code = u"RAAR"});
    EXPECT_EQ(ExportObjects(), "");
    EXPECT_EQ(Left(LeftOut::UnknownCode), 1);
}

TEST_F(ExportPoints, ATableWithoutRowsLeavesItsObjectsOut) {
    translation.options.chkExportUnknowns = true;
    translation.codes.points.rows.clear();
    translation.codes.points.RowsChanged();
    AddPoint({.code = u"PAAL"});
    EXPECT_EQ(ExportObjects(), "");
    EXPECT_EQ(Left(LeftOut::UnknownCode), 1);
}

TEST_F(ExportPoints, TheWriterLeavesTheDrawingsPointsAsTheyAre) {
    AddPoint({.code = u"PUT", .east = 1, .north = 2, .elevation = 3, .symDir = 4, .name = u"P1"});
    ExportObjects();
    const PointRec& point = translation.drawing.Points[1];
    EXPECT_EQ(point.East, 1);
    EXPECT_EQ(point.North, 2);
    EXPECT_EQ(point.Elevation, 3);
    EXPECT_EQ(point.SymDir, 4);
    EXPECT_EQ(point.PointID().TrimmedRight(), u"P1");
}

}  // namespace
}  // namespace korvande::testing
