#pragma once

// Distances and positions in the plane; east and north in metres.
namespace korvande {

struct Position {
    double east;
    double north;
};

double Distance(double dEast, double dNorth) noexcept;

// The position at a bearing (radians, clockwise from north) and a distance (metres) from another one.
Position PolarPoint(double east, double north, double bearing, double distance) noexcept;

}  // namespace korvande
