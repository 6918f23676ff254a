#pragma once
// clsYoga: the yoga of a moment from the sum of the Moon's and the Sun's
// sidereal longitudes. A pure table classifier.
//
// Usage: set moon_position, then sun_position (degrees), call findyoga(), read
// YogaName and YogaNo. A sum that stays outside 0 to 360 after one fold
// assigns nothing, and the previous call's results stay.
#include <cstdint>
#include <string>

namespace kelvaro {

class clsYoga {
 public:
  // Inputs, degrees.
  double sun_position = 0;
  double moon_position = 0;

  // Results.
  std::string YogaName;
  std::int16_t YogaNo = 0;  // 1 to 27

  void findyoga();
};

}  // namespace kelvaro
