#pragma once
// Degrees and minutes of a place with their side. The side rides on the sign
// of the degrees, and 0 degrees on the far side is a negative zero, so that
// 0 S 13 (Quito) stays south of the equator and 0 W 7 (London) west of
// Greenwich.
#include <cmath>

namespace kelvaro {

// The degrees, negated when the letter names the negative side; degrees that
// are already negative stay as they are.
inline double SignedDegrees(bool negativeSide, double degrees) {
  if (std::signbit(degrees)) return degrees;
  return negativeSide ? -degrees : degrees;
}

// Degrees and minutes joined, the minutes taking the sign of the degrees.
inline double JoinDegrees(double degrees, double minutes) {
  return std::signbit(degrees) ? degrees - minutes / 60 : degrees + minutes / 60;
}

}  // namespace kelvaro
