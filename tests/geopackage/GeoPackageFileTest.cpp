#include <gmock/gmock.h>

#include "core/Numbers.h"
#include "core/RuntimeError.h"
#include "geopackage/Metadata.h"
#include "geopackage/Schema.h"
#include "tests/core/ErrorOf.h"
#include "tests/geopackage/GeoPackageTest.h"

namespace korvande::testing {

namespace {

using ::testing::HasSubstr;

using GeoPackage = GeoPackageTest;

const std::string arcPoints =
    "1,\"A\",121000,487000,0,\"MV\",0,\"\"\n2,\"M\",121010,487000,0,\"HULP\",0,\"\"\n"
    "3,\"C\",121020,487000,0,\"MV\",0,\"\"\n4,\"D\",121030,487000,0,\"MV\",0,\"\"";

TEST_F(GeoPackage, ItIsMarkedAsOneAndSound) {
    Written(OnePoint());
    EXPECT_EQ(FileBytes(Name()).substr(68, 4), "GPKG");
    EXPECT_EQ(Rows("PRAGMA user_version"), "10200\n");
    EXPECT_EQ(Rows("PRAGMA integrity_check"), "ok\n");
    EXPECT_EQ(Rows("PRAGMA foreign_key_check"), "");
    EXPECT_EQ(Rows("SELECT rtreecheck('rtree_punten_geom')"), "ok\n");
}

TEST_F(GeoPackage, EveryCoordinateSystemThatMustBeThereIs) {
    Written(OnePoint());
    EXPECT_EQ(Rows("SELECT srs_id, organization, organization_coordsys_id FROM gpkg_spatial_ref_sys ORDER BY srs_id"),
              "-1|NONE|-1\n0|NONE|0\n4326|EPSG|4326\n28992|EPSG|28992\n");
    const std::string rd = Rows("SELECT definition FROM gpkg_spatial_ref_sys WHERE srs_id = 28992");
    EXPECT_THAT(rd, ::testing::StartsWith("PROJCS[\"Amersfoort / RD New\",GEOGCS["));
    EXPECT_EQ(std::count(rd.begin(), rd.end(), '['), std::count(rd.begin(), rd.end(), ']'));
}

TEST_F(GeoPackage, ItsContentsTellTheLayersWithTheirExtents) {
    Written(Idex(Heights{arcPoints, "1,\"MUUR\",0", "1,1,2,ARC_CENT\n1,2,3,ARC_CENT"}));
    EXPECT_EQ(Rows("SELECT table_name, data_type, min_x, min_y, max_x, max_y, srs_id, last_change FROM gpkg_contents"),
              "punten|features|121000.000|487000.000|121030.000|487000.000|28992|2026-11-21T03:00:00.000Z\n"
              "lijnen|features|121000.000|487000.000|121020.000|487010.000|28992|2026-11-21T03:00:00.000Z\n"
              "teksten|features|-|-|-|-|28992|2026-11-21T03:00:00.000Z\n"
              "layer_styles|attributes|-|-|-|-|-|2026-11-21T03:00:00.000Z\n");
    EXPECT_EQ(Rows("SELECT * FROM gpkg_geometry_columns"),
              "punten|geom|POINT|28992|2|0\nlijnen|geom|MULTICURVE|28992|2|0\nteksten|geom|POINT|28992|2|0\n");
}

TEST_F(GeoPackage, TheSampleStreetCoversWhatItsPictureCovers) {
    const Text samples = FromUtf8(KORVANDE_SOURCE_DIR "/samples/");
    ASSERT_TRUE(LoadProjectFile(screen, project, Concat(samples, u"voorbeeld.nst")));
    const DisplayList list = Picture(idexToNen, FileBytes(Concat(samples, u"straat.idx")));
    RowCounts counts;
    {
        GeoPackageFile file(Name(), {});
        counts = file.Add(*last, list);
        file.Finish();
    }
    queried = std::make_unique<QueriedFile>(Path());
    EXPECT_EQ(static_cast<std::size_t>(counts.points), list.points.size());
    EXPECT_EQ(static_cast<std::size_t>(counts.texts), list.texts.size());
    std::int64_t unknown = 0;
    for (const PictureCode& code : list.codes) unknown += code.isKnown ? 0 : code.count;
    EXPECT_EQ(counts.unknown, unknown);
    for (const char* const layer : {"punten", "lijnen", "teksten"}) {
        const std::string rows = Rows("SELECT count(*) FROM " + std::string(layer));
        EXPECT_NE(rows, "0\n") << layer;
        EXPECT_EQ(Rows("SELECT count(*) FROM rtree_" + std::string(layer) + "_geom"), rows);
    }
    const Position least = list.origin.Metres({list.extent.minEast, list.extent.minNorth});
    const Position most = list.origin.Metres({list.extent.maxEast, list.extent.maxNorth});
    // A picture is in whole millimetres.
    const auto side = [this](const std::string& which) {
        return LeadingNumber(Rows("SELECT " + which + " FROM gpkg_contents"));
    };
    EXPECT_NEAR(side("min(min_x)"), least.east, 0.0006);
    EXPECT_NEAR(side("min(min_y)"), least.north, 0.0006);
    EXPECT_NEAR(side("max(max_x)"), most.east, 0.0006);
    EXPECT_NEAR(side("max(max_y)"), most.north, 0.0006);
}

TEST_F(GeoPackage, ItNamesTheKindsOfGeometryThatNotEveryReaderKnows) {
    const std::string kinds =
        "SELECT extension_name FROM gpkg_extensions WHERE extension_name LIKE 'gpkg_geom%' AND table_name = 'lijnen' "
        "ORDER BY rowid";
    Written(Idex(Heights{arcPoints, "1,\"MUUR\",0", "1,1,3,STRAIGHT"}));
    EXPECT_EQ(Rows(kinds), "gpkg_geom_MULTICURVE\n");
    Written(Idex(Heights{arcPoints, "1,\"MUUR\",0", "1,1,2,ARC_CENT\n1,2,3,ARC_CENT"}), {.replaces = true});
    EXPECT_EQ(Rows(kinds), "gpkg_geom_MULTICURVE\ngpkg_geom_CIRCULARSTRING\n");
    Written(Idex(Heights{arcPoints, "1,\"MUUR\",0", "1,1,2,ARC_CENT\n1,2,3,ARC_CENT\n1,3,4,STRAIGHT"}),
            {.replaces = true});
    EXPECT_EQ(Rows(kinds), "gpkg_geom_MULTICURVE\ngpkg_geom_CIRCULARSTRING\ngpkg_geom_COMPOUNDCURVE\n");
    EXPECT_EQ(Rows("SELECT table_name, column_name FROM gpkg_extensions WHERE extension_name = 'gpkg_rtree_index' "
                   "ORDER BY rowid"),
              "punten|geom\nlijnen|geom\nteksten|geom\n");
}

TEST_F(GeoPackage, ALocalOneHasNoCoordinateSystem) {
    Written(OnePoint(), {.isLocal = true});
    EXPECT_EQ(Rows("SELECT DISTINCT srs_id FROM gpkg_geometry_columns"), "-1\n");
    EXPECT_EQ(Rows("SELECT srs_id FROM gpkg_contents WHERE table_name = 'punten'"), "-1\n");
    EXPECT_EQ(Rows("SELECT geom FROM punten"), "-1 POINT Z (121000.500 487000.250 1.500)\n");
}

TEST_F(GeoPackage, ManyDrawingsGoIntoOneFile) {
    {
        GeoPackageFile file(Name(), {});
        const RowCounts first = AddTo(file, idexToNen, OnePoint(), u"map/een.idx");
        EXPECT_EQ(first.points, 1);
        EXPECT_EQ(first.unknown, 0);
        const RowCounts second = AddTo(
            file, idexToNen, Idex(Heights{arcPoints, "1,\"VREEMD\",0", "1,1,2,ARC_CENT\n1,2,3,ARC_CENT"}), u"twee.idx");
        EXPECT_EQ(second.lineStrings, 1);
        EXPECT_EQ(second.unknown, 1);
        file.Finish();
    }
    queried = std::make_unique<QueriedFile>(Path());
    EXPECT_EQ(Rows("SELECT bestand, count(*) FROM punten GROUP BY bestand"), "een.idx|1\ntwee.idx|3\n");
    EXPECT_EQ(Rows("SELECT min(fid), max(fid) FROM punten"), "1|4\n");
    EXPECT_EQ(Rows("SELECT count(*) FROM rtree_punten_geom"), "4\n");
    EXPECT_EQ(Rows("SELECT reference_scope, md_file_id, timestamp FROM gpkg_metadata_reference"),
              "geopackage|1|2026-11-21T03:00:00.000Z\ngeopackage|2|2026-11-21T03:00:00.000Z\n");
}

TEST_F(GeoPackage, TheMetadataTellWhatTheFileSaysOfItself) {
    std::string idex = OnePoint();
    idex.insert(idex.find("END HEADER"), "PROJECT\r\nNAME \"A & B\"\r\nFIELD_DATE 14-05-2024\r\nEND PROJECT\r\n");
    project.owner.NameLong = u"GEMEENTE";
    Written(idex, {.namesOwner = true});
    const std::string metadata = Rows("SELECT metadata FROM gpkg_metadata");
    EXPECT_THAT(metadata, HasSubstr("<dc:title>A &amp; B</dc:title>\n<dc:date>2024-05-14</dc:date>\n"
                                    "<dc:creator>GEMEENTE</dc:creator>\n<dc:source>klein.idx</dc:source>\n"
                                    "<dc:format>IDEX</dc:format>\n"));
    EXPECT_THAT(metadata, HasSubstr("1 punten, 0 lijnstrings, 0 teksten, 0 onbekende objecten"));
    Written(idex, {.replaces = true});
    EXPECT_THAT(Rows("SELECT metadata FROM gpkg_metadata"), ::testing::Not(HasSubstr("dc:creator")));
    EXPECT_EQ(Rows("SELECT table_name FROM gpkg_extensions WHERE extension_name = 'gpkg_metadata'"),
              "gpkg_metadata\ngpkg_metadata_reference\n");
}

TEST_F(GeoPackage, AnExchangeFileTellsItsOwnerItself) {
    const std::string nen =
        "010NEN1878    V202405202405       0101S05                     01\r\n"
        "020102150201         0         0         1         0         101\r\n"
        "07NGEMEENTE DE K\xD6PEL, GEO & VASTGOED X              KDEKOPEL  00\r\n"
        "07ADORPSSTRAAT             1                        P1234AB   00\r\n"
        "07WDE KOPEL                                                   01\r\n"
        "99                                                              \r\n";
    Written(nen, {}, nenToIdex);
    EXPECT_THAT(Rows("SELECT metadata FROM gpkg_metadata"),
                HasSubstr("<dc:creator>GEMEENTE DE KÖPEL, GEO &amp; VASTGOED X</dc:creator>\n"));
}

TEST_F(GeoPackage, WithoutADrawingItHasItsLayersAllTheSame) {
    GeoPackageFile(Name(), {}).Finish();
    queried = std::make_unique<QueriedFile>(Path());
    EXPECT_EQ(Rows("SELECT table_name, min_x FROM gpkg_contents WHERE data_type = 'features'"),
              "punten|-\nlijnen|-\nteksten|-\n");
}

TEST_F(GeoPackage, OneThatIsNotFinishedLeavesNothing) {
    {
        GeoPackageFile file(Name(), {});
        AddTo(file, idexToNen, OnePoint());
        EXPECT_NE(folder.Listing(), "");
    }
    EXPECT_EQ(folder.Listing(), "");
}

TEST_F(GeoPackage, APersonWhoStopsItIsHeardWhileItIsWritten) {
    std::string points;
    for (int i = 1; i <= 1000; ++i) points += std::to_string(i) + ",\"A\",121000,487000,0,\"MV\",0,\"\"\n";
    points.pop_back();
    {
        const DisplayList list = Picture(idexToNen, Idex(Heights{points}));
        GeoPackageFile file(Name(), {});
        EXPECT_THROW(file.Add(*last, list, [] { throw TranslationAborted(); }), TranslationAborted);
    }
    EXPECT_EQ(folder.Listing(), "");
}

TEST_F(GeoPackage, AnEarlierFileStaysUnlessItIsToBeReplaced) {
    folder.Write("uit.gpkg", "oud");
    EXPECT_EQ(ErrorOf([&] { GeoPackageFile(Name(), {}).Finish(); }), 70);
    EXPECT_EQ(FileBytes(Name()), "oud");
    GeoPackageFile(Name(), {.replaces = true}).Finish();
    EXPECT_EQ(FileBytes(Name()).substr(68, 4), "GPKG");
    EXPECT_EQ(folder.Listing(), "uit.gpkg");
}

TEST_F(GeoPackage, AFolderThatIsNotThereIsTold) {
    EXPECT_EQ(ErrorOf([&] { GeoPackageFile(folder / "weg/uit.gpkg", {}); }), 76);
}

TEST_F(GeoPackage, TheSameDrawingMakesTheSameBytes) {
    Written(OnePoint());
    const std::string first = FileBytes(Name());
    Written(OnePoint(), {.replaces = true});
    EXPECT_EQ(FileBytes(Name()), first);
}

TEST_F(GeoPackage, ANameThatIsNoUtf8StandsInItAsUtf8) {
    EXPECT_EQ(FileNameIn(FromUtf8("caf\xE9.idx")), "caf?.idx");
    EXPECT_EQ(FileNameIn(u"kaart \U0001F5FA.idx"), "kaart \xF0\x9F\x97\xBA.idx");
}

}  // namespace

}  // namespace korvande::testing
