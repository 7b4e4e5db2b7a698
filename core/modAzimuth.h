#pragma once

// Bearings and directions. A bearing is counted clockwise from grid north, in radians; a direction kept in a drawing is
// in grads (400 to the circle).
namespace korvande {

// The bearing of a vector (metres), in [0, 2π); 0 for the null vector.
double Azimuth(double dEast, double dNorth) noexcept;

// The same angle in [0, 400) grads.
double NormalizeGrads(double angle) noexcept;

// Turns a direction counted clockwise from north into one counted anticlockwise from east, and back (grads).
double MirrorGrads(double angle) noexcept;

// The clockwise sweep from one bearing to another (radians), in [0, 2π) for angles within one turn.
double AngleFromTo(double from, double to) noexcept;

double GradsToRadians(double grads) noexcept;

}  // namespace korvande
