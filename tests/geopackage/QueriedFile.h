#pragma once

#include <memory>
#include <string>

struct sqlite3;

namespace korvande::testing {

// A GeoPackage that is read back, and changed, as any other program would.
class QueriedFile {
 public:
    explicit QueriedFile(const std::string& path);

    // The rows that a query gives, each on a line with "|" between its values; a geometry as text. A test failure when
    // it is refused.
    std::string Rows(const std::string& sql);

    // Brings the functions of geometries along that the triggers of an index call: of points only.
    void KnowPoints();

 private:
    struct Closer {
        void operator()(sqlite3* opened) const noexcept;
    };
    std::unique_ptr<sqlite3, Closer> handle;
};

// A geometry of a GeoPackage as text, with three decimals: "28992 POINT Z (1.000 2.000 3.000)". "?" where the bytes are
// none, or are more or fewer than they say.
std::string GeometryText(const std::string& bytes);

}  // namespace korvande::testing
