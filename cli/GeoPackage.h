#pragma once

namespace korvande {

struct GeoPackageOptions;

// The command `geopackage`: puts drawings into one GeoPackage. The exit status.
int MakeGeoPackage(const GeoPackageOptions& options);

}  // namespace korvande
