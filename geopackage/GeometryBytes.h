#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "geopackage/LineShape.h"

namespace korvande {

// Geometries as a GeoPackage keeps them: its own header, of lines with what they cover, and behind it well-known binary
// with the low byte first. The bytes stay until the next geometry is made.
class GeometryBytes {
 public:
    explicit GeometryBytes(std::int32_t itsReferenceSystem) : referenceSystem(itsReferenceSystem) {}

    std::string_view OfPoint(const Vertex& at);

    // One MULTICURVE of lines, arcs and what is made of both; or, of a shape without arcs that is to be no more than
    // that, a MULTILINESTRING.
    std::string_view OfLines(const LineShape& shape, bool isStraight);

 private:
    void PutByte(unsigned value) { bytes.push_back(static_cast<char>(value)); }
    void PutNumber(std::uint32_t value);
    void PutReal(double value);
    void PutKind(std::uint32_t kind);
    void PutVertex(const Vertex& vertex);
    void PutRun(const LineShape& shape, const LineRun& run);
    void BeginHeader(bool hasEnvelope);

    std::int32_t referenceSystem;
    bool hasHeights = false;  // the geometry being made
    std::string bytes;
};

}  // namespace korvande
