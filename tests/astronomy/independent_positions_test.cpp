// The engine against an independent implementation of the same theory,
// written separately from the same description in another language (Python)
// by another engineer, with the same literals and order of steps. Agreement
// to 1e-9 degrees means both read every literal, quirk and step alike; the two
// differ only in the order of a few multiplications (x * pi / 180 against
// x * (pi / 180)), which moves the twelfth decimal at most.
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

constexpr double kAgreement = 1e-9;  // degrees

// The reference rows of tests/data/astronomy/independent_positions.txt.
TEST(IndependentCheck, TwelveGettersAgreeForEveryCase) {
  const char* names[12] = {"lagna", "sun", "moon", "mars", "mercury", "jupiter", "venus", "saturn", "rahu", "ketu", "midheaven", "ayanamsa"};
  const auto rows = testing::TestDataTable("astronomy/independent_positions.txt");
  ASSERT_EQ(rows.size(), 15u);
  double worst = 0;
  for (const auto& row : rows) {
    ASSERT_EQ(row.size(), 8u);
    SCOPED_TRACE(row[0] + " " + row[4]);
    int y = 0, m = 0, d = 0, h = 0, n = 0;
    ASSERT_EQ(std::sscanf(row[0].c_str(), "%d-%d-%d %d:%d", &y, &m, &d, &h, &n), 5);
    const auto lat = testing::ReadSided(row[1]), lon = testing::ReadSided(row[2]), zone = testing::ReadSided(row[3]);
    std::istringstream ayanamsa(row[4]), expected(row[7]);
    std::string name;
    double zeroYear = 0, progress = 0;
    ayanamsa >> name >> zeroYear >> progress;
    ClsFindPlanetPosition f;
    f.FindFixValues(OleDate::FromParts(y, m, d, h, n), lat.side, lat.value, lat.minutes, lon.side, lon.value,
                    lon.minutes, zone.value, zone.side, 0, name, zeroYear, progress);
    EXPECT_EQ(f.Planet().DayNumber, std::stod(row[5]));
    EXPECT_NEAR(f.Planet().UniversalHours, std::stod(row[6]), 1e-12);
    const double got[12] = {f.FnFindLagnaPosition(), f.FnFindSunPosition(), f.FnFindMoonPosition(),
                            f.FnFindMarsPosition(), f.FnFindMercuryPosition(), f.FnFindJupiterPosition(),
                            f.FnFindVenusPosition(), f.FnFindSaturnPosition(), f.FnFindRahuPosition(),
                            f.FnFindKethuPosition(), f.FnFindMidHeaven(), f.FnFindAyanamsa()};
    for (int k = 0; k < 12; ++k) {
      double want = 0;
      ASSERT_TRUE(expected >> want) << names[k];
      // Longitudes near 0 and 360 are the same place.
      double diff = std::fabs(got[k] - want);
      if (k < 11) diff = std::min(diff, 360 - diff);
      worst = std::max(worst, diff);
      EXPECT_LE(diff, kAgreement) << names[k];
    }
  }
  std::printf("independent implementation: max difference %.3g degrees over %zu charts\n", worst, rows.size());
}

}  // namespace
}  // namespace kelvaro
