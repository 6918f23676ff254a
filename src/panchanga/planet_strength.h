#pragma once
// clsPlanetStrength: the dignity word of each planet in the sign it occupies
// ("Exa", "Own", "friend", "deb", ...), the nine planets' rows of the almanac.
//
// Usage: set the nine ...House members (the sign counted from 0 for Aries to
// 11 for Pisces), call FindPlanetStrength(), read the ...Strength members. A
// House outside 0 to 11 assigns nothing to its Strength, which keeps the
// previous call's word (empty on a new object: the text's empty variant).
// The words keep the upper and lower case of the almanac's table, which
// differs from row to row; callers show them as they stand.
#include <cstdint>
#include <string>

namespace kelvaro {

class clsPlanetStrength {
 public:
  std::int16_t SunHouse = 0;
  std::int16_t MoonHouse = 0;
  std::int16_t MarsHouse = 0;
  std::int16_t MercuryHouse = 0;
  std::int16_t JupiterHouse = 0;
  std::int16_t VenusHouse = 0;
  std::int16_t SaturnHouse = 0;
  std::int16_t RahuHouse = 0;
  std::int16_t KethuHouse = 0;
  std::string SunStrength;
  std::string MoonStrength;
  std::string MarsStrength;
  std::string MercuryStrength;
  std::string JupiterStrength;
  std::string VenusStrength;
  std::string SaturnStrength;
  std::string RahuStrength;
  std::string KethuStrength;

  void FindPlanetStrength();
};

}  // namespace kelvaro
