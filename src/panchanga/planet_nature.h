#pragma once
// clsPlanetNature: how benefic each of the seven planets is for a Lagna, from
// 2 (the strongest benefic) to -2 (the strongest malefic), by the Lagna's rasi.
//
// Usage: set LagnaPosition (sidereal degrees), call FindPlanet(), read the
// seven ...Nature members. The rasi is the whole part of LagnaPosition / 30,
// plus 1; a position that gives no rasi 1 to 12 (below 0, or 360 and above)
// assigns nothing and the previous call's values stay.
#include <cstdint>

namespace kelvaro {

class clsPlanetNature {
 public:
  double LagnaPosition = 0;  // input, degrees
  std::int32_t SunNature = 0;
  std::int32_t MoonNature = 0;
  std::int32_t MarsNature = 0;
  std::int32_t MercuryNature = 0;
  std::int32_t JupiterNature = 0;
  std::int32_t VenusNature = 0;
  std::int32_t SaturnNature = 0;

  void FindPlanet();
};

}  // namespace kelvaro
