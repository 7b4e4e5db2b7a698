#include <algorithm>
#include <cmath>

#include "geopackage/LineShape.h"
#include "tests/geopackage/GeoPackageTest.h"

namespace korvande::testing {

namespace {

class LineGeometries : public GeoPackageTest {
 protected:
    // The geometries of the line strings of a drawing.
    std::string Of(const Heights& rows, const GeoPackageChoice& choice = {}) {
        return Written(Idex(rows), choice).Rows("SELECT geom FROM lijnen");
    }

    // The shape of the first line string of the drawing read last.
    LineShape Shape(const Heights& rows, bool isStraight) {
        const DisplayList list = Picture(idexToNen, Idex(rows));
        const SegmentsOfLines segments(last->drawing);
        return LineShapes(last->drawing, list.origin, isStraight).Of(segments.Of(1));
    }
};

// A quarter of a circle with radius 10 about (121010, 487000), between straight lines.
const std::string quarter =
    "1,\"A\",121000,486990,0,\"MV\",0,\"\"\n2,\"B\",121000,487000,0,\"MV\",0,\"\"\n"
    "3,\"M\",121010,487000,0,\"HULP\",0,\"\"\n4,\"C\",121010,487010,0,\"MV\",0,\"\"\n"
    "5,\"D\",121020,487010,0,\"MV\",0,\"\"";
const std::string quarterEdges = "1,1,2,STRAIGHT\n1,2,3,ARC_CENT\n1,3,4,ARC_CENT\n1,4,5,STRAIGHT";

TEST_F(LineGeometries, StraightSegmentsThatGoOnFromEachOtherAreOneLine) {
    EXPECT_EQ(Of({quarter, "1,\"MUUR\",0", "1,1,2,STRAIGHT\n1,2,4,STRAIGHT"}),
              "28992 [121000.000 121010.000 486990.000 487010.000] MULTICURVE (LINESTRING (121000.000 486990.000, "
              "121000.000 487000.000, 121010.000 487010.000))\n");
}

TEST_F(LineGeometries, AnArcBetweenStraightSegmentsIsAPartOfACompoundCurve) {
    EXPECT_EQ(Of({quarter, "1,\"MUUR\",0", quarterEdges}),
              "28992 [121000.000 121020.000 486990.000 487010.000] MULTICURVE (COMPOUNDCURVE (LINESTRING (121000.000 "
              "486990.000, 121000.000 487000.000), CIRCULARSTRING (121000.000 487000.000, 121002.929 487007.071, "
              "121010.000 487010.000), LINESTRING (121010.000 487010.000, 121020.000 487010.000)))\n");
}

TEST_F(LineGeometries, AnArcTheOtherWayRoundCoversWhatItReaches) {
    EXPECT_EQ(Of({quarter, "1,\"MUUR\",10000", "1,2,3,ARC_CENT\n1,3,4,ARC_CENT"}),
              "28992 [121000.000 121020.000 486990.000 487010.000] MULTICURVE (CIRCULARSTRING (121000.000 487000.000, "
              "121017.071 486992.929, 121010.000 487010.000))\n");
}

TEST_F(LineGeometries, ACircleIsTwoHalvesThatTellHowItTurns) {
    EXPECT_EQ(Of({quarter, "1,\"MUUR\",0", "1,2,3,CIRCLE_CENT\n1,3,2,CIRCLE_CENT"}),
              "28992 [121000.000 121020.000 486990.000 487010.000] MULTICURVE (CIRCULARSTRING (121000.000 487000.000, "
              "121010.000 487010.000, 121020.000 487000.000, 121010.000 486990.000, 121000.000 487000.000))\n");
}

TEST_F(LineGeometries, ALineStringWithAGapHasTwoMembers) {
    EXPECT_EQ(Of({quarter, "1,\"MUUR\",0", "1,1,2,STRAIGHT\n1,4,5,STRAIGHT"}),
              "28992 [121000.000 121020.000 486990.000 487010.000] MULTICURVE (LINESTRING (121000.000 486990.000, "
              "121000.000 487000.000), LINESTRING (121010.000 487010.000, 121020.000 487010.000))\n");
}

TEST_F(LineGeometries, HeightsStandAtEachPlaceAndThoseMissingAreCounted) {
    const std::string points =
        "1,\"A\",121000,487000,1.5,\"MV\",0,\"\"\n2,\"B\",121010,487000,2.5,\"MV\",0,\"\"\n"
        "3,\"C\",121020,487000,0,\"MV\",0,\"\"\n4,\"D\",121030,487000,0,\"MV\",0,\"\"";
    Written(Idex(Heights{points, "1,\"MUUR\",0\n2,\"MUUR\",0", "1,1,2,STRAIGHT\n1,2,3,STRAIGHT\n2,3,4,STRAIGHT"}));
    EXPECT_EQ(Rows("SELECT geom, zonder_hoogte FROM lijnen"),
              "28992 [121000.000 121020.000 487000.000 487000.000] MULTICURVE Z (LINESTRING Z (121000.000 487000.000 "
              "1.500, 121010.000 487000.000 2.500, 121020.000 487000.000 0.000))|1\n"
              "28992 [121020.000 121030.000 487000.000 487000.000] MULTICURVE (LINESTRING (121020.000 487000.000, "
              "121030.000 487000.000))|2\n");
}

TEST_F(LineGeometries, TheMiddleOfAnArcLiesBetweenTheHeightsOfItsEnds) {
    const std::string points =
        "1,\"A\",121000,487000,1,\"MV\",0,\"\"\n2,\"M\",121010,487000,9,\"HULP\",0,\"\"\n"
        "3,\"C\",121020,487000,2,\"MV\",0,\"\"";
    EXPECT_EQ(Of({points, "1,\"MUUR\",0", "1,1,2,ARC_CENT\n1,2,3,ARC_CENT"}),
              "28992 [121000.000 121020.000 487000.000 487010.000] MULTICURVE Z (CIRCULARSTRING Z (121000.000 "
              "487000.000 1.000, 121010.000 487010.000 1.500, 121020.000 487000.000 2.000))\n");
}

TEST_F(LineGeometries, WithStraightLinesOnlyThereAreNoArcsAndTheLayerSaysSo) {
    EXPECT_TRUE(Of({quarter, "1,\"MUUR\",0", quarterEdges}, {.isStraight = true})
                    .starts_with("28992 [121000.000 121020.000 486990.000 487010.000] MULTILINESTRING (LINESTRING ("));
    EXPECT_EQ(Rows("SELECT geometry_type_name FROM gpkg_geometry_columns WHERE table_name = 'lijnen'"),
              "MULTILINESTRING\n");
    EXPECT_EQ(Rows("SELECT type FROM pragma_table_info('lijnen') WHERE name = 'geom'"), "MULTILINESTRING\n");
    EXPECT_EQ(Rows("SELECT * FROM gpkg_extensions WHERE extension_name LIKE 'gpkg_geom%'"), "");
}

TEST_F(LineGeometries, StraightLinesKeepToTheArcThatTheyStandForWithinAMillimetre) {
    const LineShape shape = Shape({quarter, "1,\"MUUR\",0", "1,2,3,ARC_CENT\n1,3,4,ARC_CENT"}, true);
    ASSERT_EQ(shape.runs.size(), 1U);
    ASSERT_GT(shape.vertices.size(), 10U);
    EXPECT_LT(shape.vertices.size(), 100U);
    for (std::size_t i = 1; i < shape.vertices.size(); ++i) {
        const Vertex& a = shape.vertices[i - 1];
        const Vertex& b = shape.vertices[i];
        EXPECT_NEAR(std::hypot(b.east - 121010, b.north - 487000), 10, 1e-6);
        const double middle = std::hypot((a.east + b.east) / 2 - 121010, (a.north + b.north) / 2 - 487000);
        EXPECT_GE(middle, 10 - besideCurve - 1e-6);
    }
}

TEST_F(LineGeometries, ASmoothCurveGoesThroughItsPointsInStepsThatBendLittle) {
    const std::string points =
        "1,\"A\",121000,487000,0,\"MV\",0,\"\"\n2,\"B\",121010,487010,0,\"MV\",0,\"\"\n"
        "3,\"C\",121020,487000,0,\"MV\",0,\"\"";
    const LineShape shape = Shape({points, "1,\"MUUR\",0", "1,1,2,CURVE_3RD\n1,2,3,CURVE_3RD"}, false);
    ASSERT_EQ(shape.runs.size(), 1U);
    EXPECT_FALSE(shape.runs.front().isOfArcs);
    const auto isB = [](const Vertex& vertex) { return vertex.east == 121010 && vertex.north == 487010; };
    EXPECT_EQ(std::count_if(shape.vertices.begin(), shape.vertices.end(), isB), 1);
    // The curve rises and falls once, and neighbouring steps turn by a few degrees at most.
    for (std::size_t i = 2; i < shape.vertices.size(); ++i) {
        const auto bearing = [&](std::size_t at) {
            return std::atan2(shape.vertices[at].north - shape.vertices[at - 1].north,
                              shape.vertices[at].east - shape.vertices[at - 1].east);
        };
        EXPECT_LE(bearing(i), bearing(i - 1) + 1e-6);
        EXPECT_GE(bearing(i), bearing(i - 1) - 0.15);
    }
}

// About the other half of the country, which a table of steps without an end would never hold.
TEST_F(LineGeometries, AnEnormousCircleTakesNoMoreStepsThanAreGood) {
    const std::string points =
        "1,\"A\",0,0,0,\"MV\",0,\"\"\n2,\"M\",900000,0,0,\"HULP\",0,\"\"\n3,\"C\",1800000,0,0,\"MV\",0,\"\"";
    const LineShape shape = Shape({points, "1,\"MUUR\",0", "1,1,2,ARC_CENT\n1,2,3,ARC_CENT"}, true);
    EXPECT_EQ(shape.vertices.size(), 20'001U);
}

}  // namespace

}  // namespace korvande::testing
