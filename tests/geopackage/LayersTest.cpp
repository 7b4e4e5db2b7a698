#include "tests/geopackage/GeoPackageTest.h"

namespace korvande::testing {

namespace {

using Layers = GeoPackageTest;

TEST_F(Layers, APointHasItsPlaceItsHeightAndWhatItIs) {
    Written(
        Idex(Heights{"1,\"P1\",121000.5,487000.25,1.5,\"BOOM\",0,\"\"\n"
                     "2,\"\",121001,487001,0,\"VREEMD\",0,\"Eigen é\""}));
    EXPECT_EQ(Rows("SELECT fid, geom, code, lki_code, omschrijving, bekend, puntnummer, hoogte FROM punten"),
              "1|28992 POINT Z (121000.500 487000.250 1.500)|BOOM|S01 A01|LOOFBOOM|1|P1|1.500\n"
              "2|28992 POINT (121001.000 487001.000)|VREEMD|Q20|EIGEN É|0|2|-\n");
}

// Directions in a drawing are grads, anticlockwise from east.
TEST_F(Layers, DirectionsAreDegreesClockwiseFromNorth) {
    Written(
        Idex(Heights{"1,\"A\",121000,487000,0,\"LAMP\",0,\"\"\n2,\"B\",121000,487000,0,\"LAMP\",100,\"\"\n"
                     "3,\"C\",121000,487000,0,\"BOOM\",133.3333,\"\"\n4,\"D\",121000,487000,0,\"MV\",0,\"\"\n"
                     "5,\"E\",121000,487000,0,\"MV\",200,\"\""}));
    EXPECT_EQ(Rows("SELECT richting FROM punten"), "90.000\n0.000\n330.00003\n-\n270.000\n");
}

TEST_F(Layers, ATextStandsWithItsDirectionAndWhatOfItLiesAtItsPlace) {
    Written(PictureTest::Idex({.points = "1,\"A\",121000,487000,\"HULP\",0,\"\"\n2,\"B\",121010,487000,\"HULP\",0,\"\"",
                               .texts = "1,5,50,\"Café\"\n2,0,0,\"12\""}));
    EXPECT_EQ(Rows("SELECT geom, tekst, richting, anker, code, bekend FROM teksten"),
              "28992 POINT (121000.000 487000.000)|Café|45.000|5|NAAM|1\n"
              "28992 POINT (121010.000 487000.000)|12|90.000|-|NAAM|1\n");
    EXPECT_EQ(Rows("SELECT count(*) FROM punten"), "0\n");
}

TEST_F(Layers, ALineStringHasItsNumberAndTheLineOfTheFile) {
    Written(Idex(Heights{"1,\"A\",121000,487000,0,\"MV\",0,\"\"\n2,\"B\",121010,487000,0,\"MV\",0,\"\"",
                         "7,\"GEVEL\",0", "7,1,2,STRAIGHT"}));
    EXPECT_EQ(Rows("SELECT code, lki_code, omschrijving, bekend, lijnnummer, regel, bestand FROM lijnen"),
              "GEVEL|B01|GEVEL|1|7|12|klein.idx\n");
    EXPECT_EQ(Rows("SELECT regel FROM punten"), "8\n9\n");
}

TEST_F(Layers, PrecisionReliabilityAndIdealisationAreThoseOfTheRowOfTheCode) {
    LoadProjectBytes(screen, project,
                     "[Points]\nUnknown = STANDRD, Q20, PUNT, ONBEKEND PUNT, 1, 1, 1\n"
                     "BOOM = S01 A01, SYMBOOL, LOOFBOOM, 3, 2, 0\nMV = Q21, PUNT, MAAIVELD\n[End]\n");
    Written(
        Idex(Heights{"1,\"A\",121000,487000,0,\"BOOM\",0,\"\"\n2,\"B\",121000,487000,0,\"MV\",0,\"\"\n"
                     "3,\"C\",121000,487000,0,\"VREEMD\",0,\"\""}));
    EXPECT_EQ(Rows("SELECT p, i, b FROM punten"), "3|2|0\n-|-|-\n-|-|-\n");
}

TEST_F(Layers, TheDayOfAnIdexDrawingIsThatOfItsFieldwork) {
    std::string idex = OnePoint();
    idex.insert(idex.find("END HEADER"), "PROJECT\r\nNAME \"Klein\"\r\nFIELD_DATE 14-05-2024\r\nEND PROJECT\r\n");
    Written(idex);
    EXPECT_EQ(Rows("SELECT datum FROM punten"), "2024-05-14\n");
    Written(OnePoint(), {.replaces = true});
    EXPECT_EQ(Rows("SELECT datum FROM punten"), "-\n");
}

TEST_F(Layers, AnObjectOfAnExchangeFileHasTheSourceThatItsFieldsTell) {
    const std::string nen =
        "010NEN1878    V202405202405       0101S05                     01\r\n"
        "020102150201         0         0         1         0         101\r\n"
        "03MQ21      G010111   D 20240514BVOSAI 0                      00\r\n"
        "04I1        X121000000Y487000000                              01\r\n"
        "03MQ21      G01012A   D 20240230BCAF\xC9  0                      00\r\n"
        "04I1        X121001000Y487000000                              01\r\n"
        "03MQ21      G0101                                             00\r\n"
        "04I1        X121002000Y487000000                              01\r\n"
        "03MB05      G120191   D 20240513                              00\r\n"
        "04I1        X121000000Y487000000I2        X121009000Y48700000001\r\n"
        "03MZ04           31   D 20240512BMEET  0                      00\r\n"
        "05F1 1      X121000000Y487000000X121000000Y487001000KZ04      00\r\n"
        "06A04TNAAM                                                    01\r\n"
        "99                                                              \r\n";
    Written(nen, {}, nenToIdex);
    const std::string columns = "SELECT datum, bron, inwinning, status FROM ";
    EXPECT_EQ(Rows(columns + "punten"), "2024-05-14|VOSAI|Terrestr.|1\n-|CAFÉ|Fotogramm.|A\n-|-|-|-\n");
    EXPECT_EQ(Rows(columns + "lijnen"), "2024-05-13|-|9|1\n");
    EXPECT_EQ(Rows(columns + "teksten"), "2024-05-12|MEET|Digitizer|-\n");
}

TEST_F(Layers, AnIdexDrawingIsOfTheSourceThatTheControlTableNames) {
    project.owner.Source = u"VOSAI";
    Written(OnePoint(), {.namesOwner = true});
    EXPECT_EQ(Rows("SELECT bron, inwinning, status FROM punten"), "VOSAI|-|-\n");
    Written(OnePoint(), {.replaces = true});
    EXPECT_EQ(Rows("SELECT bron FROM punten"), "-\n");
}

TEST_F(Layers, ACodeThatAnExchangeFileHasOfItsOwnIsUnknown) {
    const std::string nen =
        "010NEN1878    V202405202405       0101S05                     01\r\n"
        "020102150201         0         0         1         0         101\r\n"
        "03MQ21      G0101                                             00\r\n"
        "04I1        X121000000Y487000000                              01\r\n"
        "03MQ77      G0101                                             00\r\n"
        "04I1        X121000000Y487001000                              01\r\n"
        "99                                                              \r\n";
    Written(nen, {}, nenToIdex);
    EXPECT_EQ(Rows("SELECT code, bekend FROM punten"), "MV|1\nQ77|0\n");
}

TEST_F(Layers, TheIndexHoldsWhatEachGeometryCovers) {
    Written(
        Idex(Heights{"1,\"A\",121000,487000,0,\"MV\",0,\"\"\n2,\"M\",121008,487000,0,\"HULP\",0,\"\"\n"
                     "3,\"C\",121016,487000,0,\"MV\",0,\"\"",
                     "1,\"MUUR\",0", "1,1,2,ARC_CENT\n1,2,3,ARC_CENT"}));
    EXPECT_EQ(Rows("SELECT id FROM rtree_punten_geom WHERE maxx > 121010"), "2\n");
    EXPECT_EQ(Rows("SELECT id, minx, maxx, miny, maxy FROM rtree_lijnen_geom"),
              "1|121000.000|121016.000|487000.000|487008.000\n");
    EXPECT_EQ(Rows("SELECT count(*) FROM rtree_teksten_geom"), "0\n");
}

TEST_F(Layers, WhoeverChangesALayerChangesItsIndexToo) {
    QueriedFile& file =
        Written(Idex(Heights{"1,\"A\",121000,487000,0,\"MV\",0,\"\"\n"
                             "2,\"B\",121008,487000,0,\"MV\",0,\"\""}));
    file.KnowPoints();
    file.Rows("UPDATE punten SET geom = (SELECT geom FROM punten WHERE fid = 2) WHERE fid = 1");
    EXPECT_EQ(Rows("SELECT id, minx FROM rtree_punten_geom ORDER BY id"), "1|121008.000\n2|121008.000\n");
    file.Rows("UPDATE punten SET geom = NULL WHERE fid = 1");
    EXPECT_EQ(Rows("SELECT id FROM rtree_punten_geom"), "2\n");
    file.Rows("UPDATE punten SET fid = 7 WHERE fid = 2");
    EXPECT_EQ(Rows("SELECT id FROM rtree_punten_geom"), "7\n");
    file.Rows("INSERT INTO punten (geom, bekend, bestand) SELECT geom, 1, 'zelf' FROM punten WHERE fid = 7");
    EXPECT_EQ(Rows("SELECT id FROM rtree_punten_geom ORDER BY id"), "7\n8\n");
    file.Rows("UPDATE punten SET fid = 9, geom = NULL WHERE fid = 8");
    EXPECT_EQ(Rows("SELECT id FROM rtree_punten_geom"), "7\n");
    file.Rows("DELETE FROM punten");
    EXPECT_EQ(Rows("SELECT count(*) FROM rtree_punten_geom"), "0\n");
}

}  // namespace

}  // namespace korvande::testing
