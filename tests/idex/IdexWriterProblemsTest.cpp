#include "tests/idex/IdexWriterTest.h"

namespace korvande::testing {

namespace {

using IdexWriterProblems = IdexWriterTest;

TEST_F(IdexWriterProblems, ADrawingWithoutSuchValuesTellsNothing) {
    translation.ProjectName = u"Kaart";
    AddPoint(drawing, {.id = u"A'1", .east = 999'999'999, .code = u"BOOM", .description = u"Eik, oud"});
    AddLine(drawing, u"MUUR");
    AddEdge(drawing, 1, 1, 1);
    AddText(drawing, 1, u"café €", 5, 399.9995F);
    Write();
    EXPECT_TRUE(Lost().empty());
    EXPECT_TRUE(Wanted().empty());
}

TEST_F(IdexWriterProblems, QuotesAndTerminatorsInValuesAreToldByTheLineOfTheInput) {
    AddPoint(drawing, {.id = u"A;1", .code = u"B\"M", .description = u"\";\""});
    drawing.Points[1].InputLine = 30;
    AddLine(drawing, u"M;R");
    drawing.Lines[1].InputLine = 20;
    AddText(drawing, 1, u"5\" buis");
    drawing.Texts[1].InputLine = 10;
    Write();
    EXPECT_EQ(Lost(), Told{"5 waarden waarin een aanhalingsteken of puntkomma is vervangen (de eerste op regel 10)"});
    EXPECT_FALSE(HasDamage());
}

TEST_F(IdexWriterProblems, AQuoteInTheNameOfTheProjectIsTold) {
    translation.ProjectName = u"Blad \"3\"";
    Write();
    EXPECT_EQ(Lost(), Told{"1 waarde waarin een aanhalingsteken of puntkomma is vervangen"});
}

TEST_F(IdexWriterProblems, ANameIsNotToldAgainByTheEdgesOfItsPoint) {
    AddPoint(drawing, {.id = u"A;1"});
    drawing.Points[1].InputLine = 7;
    AddLine(drawing, u"MUUR");
    AddEdge(drawing, 1, 1, 1);
    Write();
    EXPECT_EQ(Lost(), Told{"1 waarde waarin een aanhalingsteken of puntkomma is vervangen (op regel 7)"});
}

TEST_F(IdexWriterProblems, NumbersThatLoseDigitsInTheirColumnsAreTold) {
    AddPoint(drawing, {.east = 12'345'678'901.2346, .north = -1e17, .direction = 12'345.6789});
    drawing.Points[1].InputLine = 7;
    AddText(drawing, 1, u"T", 1, 12'345.678F);
    drawing.Texts[1].InputLine = 9;
    Write();
    EXPECT_EQ(Lost(), Told{"4 getallen die niet in hun kolommen passen (de eerste op regel 7)"});
    EXPECT_FALSE(HasDamage());
}

TEST_F(IdexWriterProblems, NumbersThatLoseOnlyZeroesBehindTheirPointAreNotTold) {
    AddPoint(drawing, {.east = 12'345'678'901, .north = 123'456'789'012'345, .direction = -12'345});
    Write();
    EXPECT_TRUE(Lost().empty());
}

}  // namespace

}  // namespace korvande::testing
