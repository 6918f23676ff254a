// The mean-element theory against modern positions: the worked examples of a
// standard textbook of astronomical algorithms, and a modern numerical
// ephemeris (apparent geocentric longitude of date) at four moments across
// two centuries. The tolerances are the precision of this theory, not of the
// references:
//  - it has no delta-T: T is read as universal time, so the Moon, moving
//    0.00015 degrees a second, lags by up to 0.03 degrees at the century's end;
//  - the Moon's series keeps 50 terms, the planets' a handful each;
//  - Jupiter's and Saturn's aberration puts the distance into a cosine as if it
//    were an angle, which swings those two by a few hundredths of a degree.
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <sstream>
#include <string>

#include "astronomy/find_planet_position.h"
#include "support/test_data.h"

namespace kelvaro {
namespace {

double AngleBetween(double a, double b) {
  const double d = std::fabs(a - b);
  return std::min(d, 360 - d);
}

ClsFindPlanetPosition Tropical(int y, int m, int d, int h, int n) {
  ClsFindPlanetPosition f;
  f.FindFixValues(OleDate::FromParts(y, m, d, h, n), "N", 0, 0, "E", 0, 0, 0, "E", 0, "Sayana", 0, 0);
  return f;
}

TEST(TextbookExamples, SunMoonAndVenus) {
  // Apparent longitudes of date, at 0h dynamical time.
  EXPECT_NEAR(Tropical(1992, 10, 13, 0, 0).FnFindSunPosition(), 199.906061, 0.005);   // 199 54 21.82
  EXPECT_NEAR(Tropical(1992, 4, 12, 0, 0).FnFindMoonPosition(), 133.167265, 0.01);    // with nutation 0.004610
  EXPECT_NEAR(Tropical(1992, 12, 20, 0, 0).FnFindVenusPosition(), 313.08102, 0.02);
}

TEST(ModernEphemeris, WithinThePrecisionOfTheTheory) {
  const char* names[7] = {"Sun", "Moon", "Mercury", "Venus", "Mars", "Jupiter", "Saturn"};
  const double tolerance[7] = {0.005, 0.04, 0.02, 0.02, 0.02, 0.05, 0.05};  // degrees
  double worst[7] = {};
  // From tests/data/astronomy/modern_ephemeris.txt.
  const auto rows = testing::TestDataTable("astronomy/modern_ephemeris.txt");
  ASSERT_EQ(rows.size(), 4u);
  for (const auto& row : rows) {
    ASSERT_EQ(row.size(), 6u);
    int y = 0, m = 0, d = 0, h = 0, n = 0;
    ASSERT_EQ(std::sscanf(row[0].c_str(), "%d-%d-%d %d:%d", &y, &m, &d, &h, &n), 5);
    const auto lat = testing::ReadSided(row[1]), lon = testing::ReadSided(row[2]), zone = testing::ReadSided(row[3]);
    ClsFindPlanetPosition f;
    f.FindFixValues(OleDate::FromParts(y, m, d, h, n), lat.side, lat.value, lat.minutes, lon.side, lon.value,
                    lon.minutes, zone.value, zone.side, 0, "Sayana", 0, 0);
    std::istringstream expected(row[5]);
    const double got[7] = {f.FnFindSunPosition(), f.FnFindMoonPosition(), f.FnFindMercuryPosition(),
                           f.FnFindVenusPosition(), f.FnFindMarsPosition(), f.FnFindJupiterPosition(),
                           f.FnFindSaturnPosition()};
    for (int k = 0; k < 7; ++k) {
      double want = 0;
      ASSERT_TRUE(expected >> want) << names[k];
      const double diff = AngleBetween(got[k], want);
      worst[k] = std::max(worst[k], diff);
      EXPECT_LE(diff, tolerance[k]) << names[k] << " at " << row[4];
    }
  }
  for (int k = 0; k < 7; ++k) std::printf("%s: max %.4f deg over %zu moments\n", names[k], worst[k], rows.size());
}

}  // namespace
}  // namespace kelvaro
