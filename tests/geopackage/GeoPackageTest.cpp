#include "tests/geopackage/GeoPackageTest.h"

#include <sstream>

namespace korvande::testing {

namespace {

std::string Terminated(const std::string& lines) {
    std::istringstream in(lines);
    std::string rows;
    for (std::string line; std::getline(in, line);) rows += line + ";\n";
    return rows;
}

}  // namespace

std::string GeoPackageTest::Idex(const Heights& rows) {
    std::string idex = "HEADER\nEND HEADER\nLAYERS (LayerNo,Name)\n0,\"NAAM\";\nEND LAYERS\nDATABASE\n";
    idex += "POINTS (PointNo,PointID,East,North,Elevation,Code,SymDir,Description)\n" + Terminated(rows.points) +
            "END POINTS\n";
    if (!rows.lines.empty()) {
        idex += "LINES (LineNo,Code,Flags1)\n" + Terminated(rows.lines);
        idex += "EDGES (LineNo,StartPt,EndPt,LINETYPE)\n" + Terminated(rows.edges) + "END EDGES\nEND LINES\n";
    }
    return WithCrLf(idex + "END DATABASE\n");
}

RowCounts GeoPackageTest::AddTo(GeoPackageFile& file, Mode mode, std::string_view bytes, const Text& name) {
    const DisplayList list = Picture(mode, bytes);
    (mode.direction == Direction::FromIdex ? last->IdexFileName : last->SufNenFileName) = name;
    return file.Add(*last, list);
}

QueriedFile& GeoPackageTest::Written(std::string_view bytes, const GeoPackageChoice& choice, Mode mode) {
    queried.reset();  // an open file is not replaced everywhere
    GeoPackageFile file(Name(), choice);
    AddTo(file, mode, bytes);
    file.Finish();
    queried = std::make_unique<QueriedFile>(Path());
    return *queried;
}

}  // namespace korvande::testing
