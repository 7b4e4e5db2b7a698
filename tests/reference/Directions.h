#pragma once

namespace korvande::reference {

inline constexpr double pi = 3.14159265358979323846;

// Of a difference east and north, in radians clockwise from north; of no difference it is north.
double Bearing(double east, double north);

// Into 0 to below 400 grads.
double Normalized(double grads);

// From a bearing to a direction in a drawing (grads, anticlockwise from east), and back.
double DirectionOfBearing(double bearing);
double BearingOfDirection(double grads);

double Distance(double east, double north);

}  // namespace korvande::reference
