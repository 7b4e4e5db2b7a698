#pragma once

namespace korvande {

// The circle as the surveying package counts it: truncated values, which results depend on in their last digits.
inline constexpr double pi = 3.14159265358979;
inline constexpr double fullCircle = 6.28318530717958;

// Radians to grads, 200/π.
inline constexpr double gradsPerRadian = 63.6619772367582;

}  // namespace korvande
