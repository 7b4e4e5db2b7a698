#include "geopackage/Schema.h"

#include "geopackage/Database.h"

namespace korvande {

namespace {

// "GPKG", and version 1.2, which every reader of today knows.
constexpr const char* marks = "PRAGMA application_id = 1196444487; PRAGMA user_version = 10200;";

constexpr const char* commonTables = R"sql(
CREATE TABLE gpkg_spatial_ref_sys (
  srs_name TEXT NOT NULL,
  srs_id INTEGER NOT NULL PRIMARY KEY,
  organization TEXT NOT NULL,
  organization_coordsys_id INTEGER NOT NULL,
  definition TEXT NOT NULL,
  description TEXT
);
CREATE TABLE gpkg_contents (
  table_name TEXT NOT NULL PRIMARY KEY,
  data_type TEXT NOT NULL,
  identifier TEXT UNIQUE,
  description TEXT DEFAULT '',
  last_change DATETIME NOT NULL DEFAULT (strftime('%Y-%m-%dT%H:%M:%fZ','now')),
  min_x DOUBLE,
  min_y DOUBLE,
  max_x DOUBLE,
  max_y DOUBLE,
  srs_id INTEGER,
  CONSTRAINT fk_gc_r_srs_id FOREIGN KEY (srs_id) REFERENCES gpkg_spatial_ref_sys(srs_id)
);
CREATE TABLE gpkg_geometry_columns (
  table_name TEXT NOT NULL,
  column_name TEXT NOT NULL,
  geometry_type_name TEXT NOT NULL,
  srs_id INTEGER NOT NULL,
  z TINYINT NOT NULL,
  m TINYINT NOT NULL,
  CONSTRAINT pk_geom_cols PRIMARY KEY (table_name, column_name),
  CONSTRAINT uk_gc_table_name UNIQUE (table_name),
  CONSTRAINT fk_gc_tn FOREIGN KEY (table_name) REFERENCES gpkg_contents(table_name),
  CONSTRAINT fk_gc_srs FOREIGN KEY (srs_id) REFERENCES gpkg_spatial_ref_sys (srs_id)
);
CREATE TABLE gpkg_extensions (
  table_name TEXT,
  column_name TEXT,
  extension_name TEXT NOT NULL,
  definition TEXT NOT NULL,
  scope TEXT NOT NULL,
  CONSTRAINT ge_tce UNIQUE (table_name, column_name, extension_name)
);
CREATE TABLE gpkg_metadata (
  id INTEGER CONSTRAINT m_pk PRIMARY KEY ASC NOT NULL,
  md_scope TEXT NOT NULL DEFAULT 'dataset',
  md_standard_uri TEXT NOT NULL,
  mime_type TEXT NOT NULL DEFAULT 'text/xml',
  metadata TEXT NOT NULL DEFAULT ''
);
CREATE TABLE gpkg_metadata_reference (
  reference_scope TEXT NOT NULL,
  table_name TEXT,
  column_name TEXT,
  row_id_value INTEGER,
  timestamp DATETIME NOT NULL DEFAULT (strftime('%Y-%m-%dT%H:%M:%fZ','now')),
  md_file_id INTEGER NOT NULL,
  md_parent_id INTEGER,
  CONSTRAINT crmr_mfi_fk FOREIGN KEY (md_file_id) REFERENCES gpkg_metadata(id),
  CONSTRAINT crmr_mpi_fk FOREIGN KEY (md_parent_id) REFERENCES gpkg_metadata(id)
);
INSERT INTO gpkg_extensions VALUES
  ('gpkg_metadata', NULL, 'gpkg_metadata', 'http://www.geopackage.org/spec120/#extension_metadata', 'read-write'),
  ('gpkg_metadata_reference', NULL, 'gpkg_metadata', 'http://www.geopackage.org/spec120/#extension_metadata',
   'read-write');
)sql";

constexpr const char* referenceSystems = R"sql(
INSERT INTO gpkg_spatial_ref_sys VALUES
  ('Undefined cartesian SRS', -1, 'NONE', -1, 'undefined', 'undefined cartesian coordinate reference system'),
  ('Undefined geographic SRS', 0, 'NONE', 0, 'undefined', 'undefined geographic coordinate reference system'),
  ('WGS 84 geodetic', 4326, 'EPSG', 4326,
   'GEOGCS["WGS 84",DATUM["WGS_1984",SPHEROID["WGS 84",6378137,298.257223563,AUTHORITY["EPSG","7030"]],'
   || 'AUTHORITY["EPSG","6326"]],PRIMEM["Greenwich",0,AUTHORITY["EPSG","8901"]],'
   || 'UNIT["degree",0.0174532925199433,AUTHORITY["EPSG","9122"]],AXIS["Latitude",NORTH],AXIS["Longitude",EAST],'
   || 'AUTHORITY["EPSG","4326"]]',
   'longitude/latitude coordinates in decimal degrees on the WGS 84 spheroid'),
  ('Amersfoort / RD New', 28992, 'EPSG', 28992,
   'PROJCS["Amersfoort / RD New",GEOGCS["Amersfoort",DATUM["Amersfoort",'
   || 'SPHEROID["Bessel 1841",6377397.155,299.1528128,AUTHORITY["EPSG","7004"]],AUTHORITY["EPSG","6289"]],'
   || 'PRIMEM["Greenwich",0,AUTHORITY["EPSG","8901"]],UNIT["degree",0.0174532925199433,AUTHORITY["EPSG","9122"]],'
   || 'AUTHORITY["EPSG","4289"]],PROJECTION["Oblique_Stereographic"],'
   || 'PARAMETER["latitude_of_origin",52.1561605555556],PARAMETER["central_meridian",5.38763888888889],'
   || 'PARAMETER["scale_factor",0.9999079],PARAMETER["false_easting",155000],PARAMETER["false_northing",463000],'
   || 'UNIT["metre",1,AUTHORITY["EPSG","9001"]],AXIS["Easting",EAST],AXIS["Northing",NORTH],'
   || 'AUTHORITY["EPSG","28992"]]',
   'Rijksdriehoeksmeting');
)sql";

// What every layer tells of its objects, before what is their own.
constexpr std::string_view commonColumns = R"sql(  code TEXT,
  lki_code TEXT,
  omschrijving TEXT,
  bekend BOOLEAN NOT NULL,
  p SMALLINT,
  i SMALLINT,
  b SMALLINT,
  datum DATE,
  bron TEXT,
  inwinning TEXT,
  status TEXT,
  bestand TEXT NOT NULL,
  regel INTEGER,)sql";

// "#" stands for those columns, and "@" for the kind of geometry of lines. Directions are degrees, clockwise from
// north.
constexpr std::string_view layerTables = R"sql(
CREATE TABLE punten (
  fid INTEGER PRIMARY KEY AUTOINCREMENT NOT NULL,
  geom POINT,
#
  puntnummer TEXT,
  hoogte DOUBLE,
  richting DOUBLE
);
CREATE TABLE lijnen (
  fid INTEGER PRIMARY KEY AUTOINCREMENT NOT NULL,
  geom @,
#
  lijnnummer INTEGER,
  zonder_hoogte INTEGER NOT NULL
);
CREATE TABLE teksten (
  fid INTEGER PRIMARY KEY AUTOINCREMENT NOT NULL,
  geom POINT,
#
  tekst TEXT NOT NULL,
  richting DOUBLE,
  anker SMALLINT
);
CREATE VIRTUAL TABLE rtree_punten_geom USING rtree(id, minx, maxx, miny, maxy);
CREATE VIRTUAL TABLE rtree_lijnen_geom USING rtree(id, minx, maxx, miny, maxy);
CREATE VIRTUAL TABLE rtree_teksten_geom USING rtree(id, minx, maxx, miny, maxy);
)sql";

// What keeps the index of a layer in order, in the words that readers look for, with "@" for the layer. Whoever changes
// a layer brings the functions ST_... along.
constexpr std::string_view indexTriggers = R"sql(
CREATE TRIGGER "rtree_@_geom_insert" AFTER INSERT ON "@"
WHEN (new."geom" NOT NULL AND NOT ST_IsEmpty(NEW."geom"))
BEGIN
  INSERT OR REPLACE INTO "rtree_@_geom" VALUES (
    NEW."fid",
    ST_MinX(NEW."geom"), ST_MaxX(NEW."geom"),
    ST_MinY(NEW."geom"), ST_MaxY(NEW."geom")
  );
END;
CREATE TRIGGER "rtree_@_geom_update1" AFTER UPDATE OF "geom" ON "@"
WHEN OLD."fid" = NEW."fid" AND (NEW."geom" NOTNULL AND NOT ST_IsEmpty(NEW."geom"))
BEGIN
  INSERT OR REPLACE INTO "rtree_@_geom" VALUES (
    NEW."fid",
    ST_MinX(NEW."geom"), ST_MaxX(NEW."geom"),
    ST_MinY(NEW."geom"), ST_MaxY(NEW."geom")
  );
END;
CREATE TRIGGER "rtree_@_geom_update2" AFTER UPDATE OF "geom" ON "@"
WHEN OLD."fid" = NEW."fid" AND (NEW."geom" ISNULL OR ST_IsEmpty(NEW."geom"))
BEGIN
  DELETE FROM "rtree_@_geom" WHERE id = OLD."fid";
END;
CREATE TRIGGER "rtree_@_geom_update3" AFTER UPDATE ON "@"
WHEN OLD."fid" != NEW."fid" AND (NEW."geom" NOTNULL AND NOT ST_IsEmpty(NEW."geom"))
BEGIN
  DELETE FROM "rtree_@_geom" WHERE id = OLD."fid";
  INSERT OR REPLACE INTO "rtree_@_geom" VALUES (
    NEW."fid",
    ST_MinX(NEW."geom"), ST_MaxX(NEW."geom"),
    ST_MinY(NEW."geom"), ST_MaxY(NEW."geom")
  );
END;
CREATE TRIGGER "rtree_@_geom_update4" AFTER UPDATE ON "@"
WHEN OLD."fid" != NEW."fid" AND (NEW."geom" ISNULL OR ST_IsEmpty(NEW."geom"))
BEGIN
  DELETE FROM "rtree_@_geom" WHERE id IN (OLD."fid", NEW."fid");
END;
CREATE TRIGGER "rtree_@_geom_delete" AFTER DELETE ON "@"
WHEN old."geom" NOT NULL
BEGIN
  DELETE FROM "rtree_@_geom" WHERE id = OLD."fid";
END;
)sql";

std::string WithFilledIn(std::string_view statements, char mark, std::string_view text) {
    std::string filled;
    for (const char character : statements) {
        if (character == mark) {
            filled += text;
        } else {
            filled.push_back(character);
        }
    }
    return filled;
}

void PutSide(Statement& statement, const Envelope& extent, double side) {
    if (extent.IsEmpty()) {
        statement.PutNothing();
    } else {
        statement.Put(side);
    }
}

}  // namespace

void MakeTables(Database& database, std::string_view lineGeometry) {
    database.Execute(marks);
    database.Execute(commonTables);
    database.Execute(referenceSystems);
    database.Execute(WithFilledIn(WithFilledIn(layerTables, '#', commonColumns), '@', lineGeometry));
}

void RegisterLayer(Database& database, const LayerTotal& layer, std::int32_t referenceSystem, std::string_view moment) {
    Statement contents(database,
                       "INSERT INTO gpkg_contents (table_name, data_type, identifier, description, last_change, min_x, "
                       "min_y, max_x, max_y, srs_id) VALUES (?, 'features', ?, ?, ?, ?, ?, ?, ?, ?)");
    contents.Put(layer.name).Put(layer.name).Put(layer.title).Put(moment);
    for (const double side : {layer.extent.minEast, layer.extent.minNorth, layer.extent.maxEast, layer.extent.maxNorth})
        PutSide(contents, layer.extent, side);
    contents.Put(std::int64_t{referenceSystem}).Run();
    // Heights may be there and may be missing.
    Statement geometry(database, "INSERT INTO gpkg_geometry_columns VALUES (?, 'geom', ?, ?, 2, 0)");
    geometry.Put(layer.name).Put(layer.geometry).Put(std::int64_t{referenceSystem}).Run();
    Statement extension(database,
                        "INSERT INTO gpkg_extensions VALUES (?, 'geom', 'gpkg_rtree_index', "
                        "'http://www.geopackage.org/spec120/#extension_rtree', 'write-only')");
    extension.Put(layer.name).Run();
    database.Execute(WithFilledIn(indexTriggers, '@', layer.name));
}

void RegisterKind(Database& database, std::string_view layer, std::string_view geometry) {
    Statement extension(database,
                        "INSERT INTO gpkg_extensions VALUES (?, 'geom', 'gpkg_geom_' || ?, "
                        "'http://www.geopackage.org/spec120/#extension_geometry_types', 'read-write')");
    extension.Put(layer).Put(geometry).Run();
}

std::string IndexOf(std::string_view layer) { return "rtree_" + std::string(layer) + "_geom"; }

}  // namespace korvande
