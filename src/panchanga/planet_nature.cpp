#include "panchanga/planet_nature.h"

#include <array>
#include <cmath>

namespace kelvaro {

namespace {

// Sun, Moon, Mars, Mercury, Jupiter, Venus, Saturn for Lagna rasi 1 to 12.
constexpr std::array<std::array<std::int32_t, 7>, 12> kNature = {{
    {1, 1, 1, -1, 1, 0, -1},
    {1, 0, -1, 1, -2, 1, 1},
    {-1, 0, -2, 2, 0, 1, 1},
    {0, 1, 1, -1, 1, 0, -2},
    {1, -1, 1, 0, 1, 0, -2},
    {-1, 0, -2, 2, 0, 1, 1},
    {-1, 1, -1, 1, -1, 1, 1},
    {1, 1, 1, -2, 1, 0, -1},
    {1, -1, 1, 0, 2, -1, -1},
    {-2, 0, -1, 1, -1, 1, 1},
    // 11-12
    {-1, -1, 0, 1, 0, 1, 1},
    {-1, 1, 1, 0, 2, -2, -2},
}};

}  // namespace

void clsPlanetNature::FindPlanet() {
  if (!(LagnaPosition >= 0 && LagnaPosition < 360)) return;
  const auto rasi = static_cast<size_t>(std::floor(LagnaPosition / 30)) + 1;
  const auto& row = kNature[rasi - 1];
  SunNature = row[0];
  MoonNature = row[1];
  MarsNature = row[2];
  MercuryNature = row[3];
  JupiterNature = row[4];
  VenusNature = row[5];
  SaturnNature = row[6];
}

}  // namespace kelvaro
