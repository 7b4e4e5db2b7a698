#pragma once

#include <memory>
#include <string>

#include "geopackage/GeoPackageFile.h"
#include "tests/geopackage/QueriedFile.h"
#include "tests/picture/PictureTest.h"

namespace korvande::testing {

// GeoPackages of small drawings, with the control table of the tests of pictures.
class GeoPackageTest : public PictureTest {
 protected:
    // An IDEX drawing with heights: rows of points (number, name, east, north, height, code, direction, description),
    // of line strings (number, code, flags) and of segments (line, start, end, type).
    struct Heights {
        std::string points;
        std::string lines{};
        std::string edges{};
    };
    static std::string Idex(const Heights& rows);
    using PictureTest::Idex;

    // Adds a drawing, and what was counted.
    RowCounts AddTo(GeoPackageFile& file, Mode mode, std::string_view bytes, const Text& name = u"klein.idx");

    // A file of one drawing, read back.
    QueriedFile& Written(std::string_view bytes, const GeoPackageChoice& choice = {}, Mode mode = idexToNen);

    // The rows of a query on the file that was written last.
    std::string Rows(const std::string& sql) { return queried->Rows(sql); }

    std::string Path() const { return folder.Path() + "/uit.gpkg"; }
    Text Name() const { return folder / "uit.gpkg"; }

    std::unique_ptr<QueriedFile> queried;
};

}  // namespace korvande::testing
