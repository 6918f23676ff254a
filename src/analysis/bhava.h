#pragma once
// The houses (bhavas): their starts, mid points and ends (sandhis) from the
// Lagna and the midheaven by the semi-arc points, the bodies in each house,
// the grid of limits msh_Bhava, the grid of the mid points' lords
// mshBhavaDetails, and what the Bhava chart shows in each house.
//
// Two systems: "Not Equal" makes the semi-arc points the house starts; every
// other value makes them the mid points ("Equal": the Lagna is the middle of
// house 1, the midheaven of house 10).
#include <array>
#include <cstdint>
#include <string>
#include <vector>

#include "analysis/chart_data.h"
#include "analysis/grid.h"
#include "panchanga/star.h"

namespace kelvaro {

// What one house of the Bhava chart shows. The houses run sign by sign from
// the Lagna's sign, whatever their limits, so each sign holds one house.
struct BhavaChartHouse {
  int house = 0;              // 1 to 12; the North drawing's cell, whose sign label shows `sign`
  std::int16_t sign = 0;      // 1 to 12; the South cell is sign - 1, the East cell sign
  std::string text;           // appended to the cell's caption: the short names, one blank apart
  std::vector<Body> bodies;   // the bodies of `text`, in its order
};

// The limits of the twelve houses; index 0 is house 1.
struct BhavaLimits {
  std::array<double, 25> BhavaPoints{};  // the semi-arc points: 18 the midheaven, 24 the Lagna (not reduced)
  std::array<double, 12> BhavaStart{};
  std::array<double, 12> BhavaMid{};
  std::array<double, 12> BhavaSandhi{};
};

struct BhavaTables {
  BhavaLimits limits;
  std::array<std::int16_t, 12> BhavaRasi{};
  std::array<std::string, 12> BhavaPlanets;
  // Header and twelve rows: house, start, mid, sandhi, planets.
  Grid msh_Bhava{"msh_Bhava"};
  // Header and twelve rows: house, mid point, its rasi, rasi lord, star, pada,
  // star lord and sub lord, as the planet table shows them.
  Grid mshBhavaDetails{"mshBhavaDetails"};
  // The Bhava chart, in the order its cells are filled: house 1 to 12.
  std::array<BhavaChartHouse, 12> chart;
};

inline constexpr const char* kBhavaHeader =
    "House  |  Start Bhava | Mid Bhava    | Sandhi          | Planets                                                       ";
inline constexpr const char* kBhavaDetailsHeader =
    "House         |Longitude |   Rasi       | Rasi Lord |  Star             | Pada |Star Lord       |Sub  Lord    ";

// 360 added while below 0, 360 taken off while 360 or above. A value that is
// not finite raises CalculationError.
double Normalize360(double degrees);

// 12 taken off while the number is 13 or above.
std::int16_t Reduce12(std::int16_t number);

// The house limits for the Lagna and the midheaven under `bhavaSystem`.
BhavaLimits ComputeBhavaLimits(double lagna, double midHeaven, const std::string& bhavaSystem);

// The bodies Sun to Ketu whose longitude lies in the house from `start` to
// `end`, both limits included. A start of 329 or more with an end of 345 or
// less is read as a house across 0 degrees: start to 360 is searched for all
// nine bodies, then 0 to end. These two constants alone decide it, so a house
// across 0 that starts below 329 finds nothing, and a house from 330 to 340
// searches almost the whole zodiac, naming a body inside it twice.
std::vector<Body> BodiesInBhava(const ChartData& chart, double start, double end);

// The ShortNames of BodiesInBhava, one blank apart.
std::string PlanetsInBhava(const ChartData& chart, double start, double end);

// Fills the tables from the chart of the position pass of division 30 (the
// Lagna, the midheaven and the longitudes Sun to Ketu), by
// chart.bhavaSystem. `star` is the shared classifier, left holding the mid
// point of house 12. On an error (CalculationError) `out` is left as it was.
void FillBhava(const ChartData& chart, clsStar& star, BhavaTables& out);

}  // namespace kelvaro
