#include "tests/cli/CliTest.h"

namespace korvande::testing {

namespace {

class DrawCommand : public CliTest {
 protected:
    DrawCommand() {
        folder.Write("klein.idx", smallIdex);
        folder.Write("klein.sfn", smallNen1878);
        folder.Write("klein.nst", smallTable);
    }
};

TEST_F(DrawCommand, APictureIsMadeOfAnyFormat) {
    const ProgramResult idex = Run({"teken", "--project", "klein.nst", "klein.idx", "beeld.svg"});
    EXPECT_EQ(idex.status, 0);
    EXPECT_EQ(idex.error, "");
    EXPECT_EQ(idex.output, "beeld.svg: 3 punten, 1 lijnstrings, 1 teksten, 1 onbekende objecten\n");
    const std::string svg = Bytes("beeld.svg");
    EXPECT_TRUE(svg.starts_with("<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<svg ")) << svg;
    EXPECT_TRUE(svg.ends_with("</svg>\n")) << svg;
    EXPECT_TRUE(Has(svg, "<title>klein.idx</title>"));
    EXPECT_TRUE(Has(svg, "<g id=\"P-VREEMD\" data-code=\"VREEMD\" data-lki=\"Q20\" class=\"onbekend\""));
    EXPECT_TRUE(Has(svg, ">Café</text>"));
    const ProgramResult nen = Run({"teken", "--project", "klein.nst", "klein.sfn", "nen.SVG"});
    EXPECT_EQ(nen.status, 0);
    EXPECT_EQ(nen.output, "nen.SVG: 2 punten, 1 lijnstrings, 0 teksten, 1 onbekende objecten\n");
    EXPECT_TRUE(Has(Bytes("nen.SVG"), "data-code=\"Q77\""));
}

TEST_F(DrawCommand, APngHasTheWidthAskedFor) {
    ASSERT_EQ(Run({"teken", "--breedte", "300", "klein.idx", "beeld.png"}).status, 0);
    const std::string png = Bytes("beeld.png");
    EXPECT_EQ(png.substr(0, 8), "\x89PNG\r\n\x1A\n");
    EXPECT_EQ(png.substr(16, 4), std::string("\0\0\x01\x2C", 4));
}

TEST_F(DrawCommand, AFrameLimitsThePicture) {
    ASSERT_EQ(Run({"teken", "--kader", "1005,1995,1025,2005", "klein.idx", "beeld.svg"}).status, 0);
    const std::string svg = Bytes("beeld.svg");
    EXPECT_TRUE(Has(svg, "viewBox=\"0 0 20 10\" data-east=\"1005\" data-north=\"2005\"")) << svg;
    EXPECT_FALSE(Has(svg, "Café"));
}

TEST_F(DrawCommand, WhatTheFrameShowsIsCounted) {
    const ProgramResult part = Run({"teken", "--kader", "1005,1995,1025,2005", "klein.idx", "beeld.svg"});
    EXPECT_EQ(part.output, "beeld.svg: 2 punten, 1 lijnstrings, 0 teksten, 3 onbekende objecten\n");
    const ProgramResult nothing = Run({"teken", "--kader", "5000,5000,5010,5010", "klein.idx", "leeg.svg"});
    EXPECT_EQ(nothing.status, 0);
    EXPECT_EQ(nothing.output, "leeg.svg: 0 punten, 0 lijnstrings, 0 teksten, 0 onbekende objecten\n");
    EXPECT_FALSE(Has(Bytes("leeg.svg"), "<g id="));
}

TEST_F(DrawCommand, AFrameWithoutAreaOrBeyondReachIsRefused) {
    for (const char* const frame : {"1000,2000,1000,2010", "1000,2000,1010,2000", "1000,2000,1000.0001,2010"}) {
        ExpectRefused({"teken", "--kader=" + std::string(frame), "klein.idx", "beeld.svg"},
                      "--kader heeft geen breedte of geen hoogte.");
    }
    ExpectRefused({"teken", "--kader=0,0,1e9,10", "klein.idx", "beeld.svg"},
                  "--kader reikt verder dan 2000 kilometer van de tekening.");
}

TEST_F(DrawCommand, OnePointAloneIsDrawnWithRoomAroundIt) {
    folder.Write("punt.idx",
                 "HEADER\r\nEND HEADER\r\nLAYERS (LayerNo,Name)\r\nEND LAYERS\r\nDATABASE\r\n"
                 "POINTS (PointNo,PointID,East,North,Code)\r\n1,\"A\",121000,487000,\"MV\";\r\nEND POINTS\r\n"
                 "END DATABASE\r\n");
    ASSERT_EQ(Run({"teken", "punt.idx", "punt.svg"}).status, 0);
    EXPECT_TRUE(Has(Bytes("punt.svg"), "viewBox=\"0 0 4 4\" data-east=\"120998\" data-north=\"487002\""))
        << Bytes("punt.svg");
    EXPECT_EQ(Run({"teken", "punt.idx", "punt.png"}).status, 0);
}

// All of it on one line from south to north would be 26 times as high as wide.
TEST_F(DrawCommand, AHighDrawingIsNarrowerThanUsualAndNotRefused) {
    folder.Write("hoog.idx",
                 "HEADER\r\nEND HEADER\r\nLAYERS (LayerNo,Name)\r\nEND LAYERS\r\nDATABASE\r\n"
                 "POINTS (PointNo,PointID,East,North,Code)\r\n1,\"A\",121000,487000,\"MV\";\r\n"
                 "2,\"B\",121000,497000,\"MV\";\r\nEND POINTS\r\nEND DATABASE\r\n");
    ASSERT_EQ(Run({"teken", "hoog.idx", "hoog.png"}).status, 0);
    EXPECT_EQ(Bytes("hoog.png").substr(16, 4), std::string("\0\0\x03\x01", 4));
    ExpectRefused({"teken", "--breedte=1600", "hoog.idx", "hoog.png"},
                  "De afbeelding wordt te hoog: 41600 pixels; kies een kleinere --breedte of een --kader.");
}

TEST_F(DrawCommand, AnEarlierPictureIsReplacedWhenTheNewOneIsWholeOnly) {
    folder.Write("beeld.svg", "oud");
    folder.Write("brief.txt", "Geachte heer,\r\n");
    folder.Write("leeg.idx",
                 "HEADER\r\nEND HEADER\r\nLAYERS (LayerNo,Name)\r\nEND LAYERS\r\nDATABASE\r\nEND DATABASE\r\n");
    EXPECT_EQ(Run({"teken", "brief.txt", "beeld.svg"}).status, 3);
    EXPECT_EQ(Run({"teken", "weg.idx", "beeld.svg"}).status, 3);
    const ProgramResult empty = Run({"teken", "leeg.idx", "beeld.svg"});
    EXPECT_EQ(empty.status, 3);
    EXPECT_EQ(empty.error, "leeg.idx: er is niets te tekenen.\n");
    EXPECT_EQ(Bytes("beeld.svg"), "oud");
    EXPECT_EQ(Run({"teken", "klein.idx", "beeld.svg"}).status, 0);
    EXPECT_TRUE(Bytes("beeld.svg").starts_with("<?xml"));
    EXPECT_EQ(folder.Listing().find('~'), std::string::npos) << folder.Listing();
}

TEST_F(DrawCommand, APictureThatCannotBeWrittenIsTold) {
    const ProgramResult result = Run({"teken", "klein.idx", "nergens/beeld.svg"});
    EXPECT_EQ(result.status, 3);
    EXPECT_TRUE(Has(result.error, "Kon bestand: 'nergens/beeld.svg' niet opslaan;\nFoutcode: 76\n")) << result.error;
}

TEST_F(DrawCommand, AControlTableThatIsNotThereIsTold) {
    const ProgramResult result = Run({"teken", "--project", "weg.nst", "klein.idx", "beeld.svg"});
    EXPECT_EQ(result.status, 3);
    EXPECT_EQ(result.error, "Kon bestand: 'weg.nst' niet openen;\nFoutcode: 53\nBestand niet gevonden\n");
    EXPECT_FALSE(IsThere("beeld.svg"));
}

TEST_F(DrawCommand, WrongUsageIsRefusedBeforeAnythingIsRead) {
    ExpectRefused({"teken"}, "Er ontbreekt een argument: invoer");
    ExpectRefused({"teken", "klein.idx"}, "Er ontbreekt een argument: uitvoer");
    ExpectRefused({"teken", "klein.idx", "beeld.gif"}, "De uitvoer moet op .svg of .png eindigen: beeld.gif");
    ExpectRefused({"teken", "--breedte", "200", "klein.idx", "beeld.svg"},
                  "--breedte gaat samen met een .png; een .svg is in meters.");
    for (const char* const width : {"breed", "15", "20001", "-300", "1e99"}) {
        ExpectRefused({"teken", "--breedte=" + std::string(width), "klein.idx", "beeld.png"},
                      "Ongeldige waarde bij --breedte: " + std::string(width) + " (16 tot en met 20000 pixels)");
    }
    for (const char* const frame : {"1,2,3", "1,2,0,4", "1,4,3,2", "a,b,c,d", "1,2,3,4,5", "nan,0,1,1", "0,0,inf,1",
                                    "0,0,1,1e999", "1,,3,4", "1,2,3,4,"}) {
        ExpectRefused({"teken", "--kader=" + std::string(frame), "klein.idx", "beeld.svg"},
                      "Ongeldige waarde bij --kader: " + std::string(frame) + " (MINX,MINY,MAXX,MAXY in meters)");
    }
    folder.Write("zelf.svg", smallIdex);
    ExpectRefused({"teken", "zelf.svg", "zelf.svg"}, "Invoer en uitvoer zijn hetzelfde bestand:\nzelf.svg");
    ExpectRefused({"teken", "--project", "zelf.svg", "klein.idx", "zelf.svg"},
                  "Controletabel en uitvoer zijn hetzelfde bestand:\nzelf.svg");
    ExpectRefused({"teken", "--kader=1000,1000,1001,9000", "--breedte=10000", "klein.idx", "hoog.png"},
                  "De afbeelding wordt te hoog: 80000000 pixels; kies een kleinere --breedte of een --kader.");
    ExpectRefused({"teken", "--kader=1000,1000,1000.01,9000", "klein.idx", "hoog.png"},
                  "De afbeelding wordt te hoog: 12800000 pixels; kies een kleinere --breedte of een --kader.");
}

TEST_F(DrawCommand, ADamagedDrawingIsDrawnAsFarAsItGoesWithStatusOne) {
    folder.Write("half.idx", smallIdex.substr(0, smallIdex.find("  END LINES")));
    const ProgramResult result = Run({"teken", "half.idx", "beeld.svg"});
    EXPECT_EQ(result.status, 1);
    EXPECT_TRUE(Has(result.error, "half.idx: ")) << result.error;
    EXPECT_TRUE(Has(Bytes("beeld.svg"), "data-code=\"MUUR\""));
}

}  // namespace

}  // namespace korvande::testing
