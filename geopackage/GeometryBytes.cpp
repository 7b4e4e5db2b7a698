#include "geopackage/GeometryBytes.h"

#include <bit>

namespace korvande {

namespace {

namespace kinds {
constexpr std::uint32_t point = 1;
constexpr std::uint32_t lineString = 2;
constexpr std::uint32_t multiLineString = 5;
constexpr std::uint32_t circularString = 8;
constexpr std::uint32_t compoundCurve = 9;
constexpr std::uint32_t multiCurve = 11;
constexpr std::uint32_t withHeights = 1000;  // beside one of the others
}  // namespace kinds

constexpr unsigned lowByteFirst = 1;

// The place behind the last run that goes on from this one.
std::size_t EndOfMember(const LineShape& shape, std::size_t first) {
    std::size_t end = first + 1;
    while (end < shape.runs.size() && shape.runs[end].goesOn) ++end;
    return end;
}

std::uint32_t MembersOf(const LineShape& shape) {
    std::uint32_t members = 0;
    for (const LineRun& run : shape.runs) members += run.goesOn ? 0 : 1;
    return members;
}

}  // namespace

void GeometryBytes::PutNumber(std::uint32_t value) {
    for (int shift = 0; shift < 32; shift += 8) PutByte(value >> shift & 0xFFU);
}

void GeometryBytes::PutReal(double value) {
    const auto bits = std::bit_cast<std::uint64_t>(value);
    PutNumber(static_cast<std::uint32_t>(bits));
    PutNumber(static_cast<std::uint32_t>(bits >> 32));
}

void GeometryBytes::PutKind(std::uint32_t kind) {
    PutByte(lowByteFirst);
    PutNumber(kind + (hasHeights ? kinds::withHeights : 0));
}

void GeometryBytes::PutVertex(const Vertex& vertex) {
    PutReal(vertex.east);
    PutReal(vertex.north);
    if (hasHeights) PutReal(vertex.height);
}

void GeometryBytes::PutRun(const LineShape& shape, const LineRun& run) {
    PutKind(run.isOfArcs ? kinds::circularString : kinds::lineString);
    PutNumber(static_cast<std::uint32_t>(run.vertexCount));
    for (std::size_t i = 0; i < run.vertexCount; ++i) PutVertex(shape.vertices[run.firstVertex + i]);
}

// "GP", version 0, and flags: the order of bytes, and behind it whether an envelope of four numbers follows.
void GeometryBytes::BeginHeader(bool hasEnvelope) {
    constexpr unsigned fourNumbers = 1U << 1;
    bytes = "GP";
    PutByte(0);
    PutByte(lowByteFirst | (hasEnvelope ? fourNumbers : 0));
    PutNumber(static_cast<std::uint32_t>(referenceSystem));
}

std::string_view GeometryBytes::OfPoint(const Vertex& at) {
    hasHeights = at.height != 0;
    BeginHeader(false);
    PutKind(kinds::point);
    PutVertex(at);
    return bytes;
}

std::string_view GeometryBytes::OfLines(const LineShape& shape, bool isStraight) {
    hasHeights = shape.HasHeights();
    BeginHeader(true);
    for (const double side :
         {shape.envelope.minEast, shape.envelope.maxEast, shape.envelope.minNorth, shape.envelope.maxNorth}) {
        PutReal(side);
    }
    PutKind(isStraight ? kinds::multiLineString : kinds::multiCurve);
    PutNumber(MembersOf(shape));
    for (std::size_t first = 0; first < shape.runs.size();) {
        const std::size_t end = EndOfMember(shape, first);
        if (end - first > 1) {
            PutKind(kinds::compoundCurve);
            PutNumber(static_cast<std::uint32_t>(end - first));
        }
        for (; first < end; ++first) PutRun(shape, shape.runs[first]);
    }
    return bytes;
}

}  // namespace korvande
