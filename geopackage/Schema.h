#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "geopackage/LineShape.h"

namespace korvande {

class Database;

// In which coordinates the geometries are.
namespace systems {
inline constexpr std::int32_t rdNew = 28992;  // EPSG's number of the national grid
inline constexpr std::int32_t unknown = -1;   // metres, of nowhere known
}  // namespace systems

namespace layers {
inline constexpr std::string_view points = "punten";
inline constexpr std::string_view lines = "lijnen";
inline constexpr std::string_view texts = "teksten";
}  // namespace layers

// A layer as it ends up.
struct LayerTotal {
    std::string_view name;
    std::string_view title;
    std::string_view geometry;  // its kind
    Envelope extent{};
};

// Makes the tables that every GeoPackage has, those of the layers, and the metadata's, in a database that holds
// nothing; with the kind of geometry of the lines.
void MakeTables(Database& database, std::string_view lineGeometry);

// Tells what a layer is, with its extent, and gives it an index over its places, which whoever changes it later keeps
// in order. The moment is that of the file: yyyy-mm-ddThh:mm:ss.000Z.
void RegisterLayer(Database& database, const LayerTotal& layer, std::int32_t referenceSystem, std::string_view moment);

// Names a kind of geometry that is beyond points and straight lines and stands in a layer.
void RegisterKind(Database& database, std::string_view layer, std::string_view geometry);

// The name of the index of a layer.
std::string IndexOf(std::string_view layer);

}  // namespace korvande
