#include "panchanga/star.h"

#include <gtest/gtest.h>

#include <cmath>
#include <cstdint>
#include <limits>
#include <string>

#include "support/test_data.h"

namespace kelvaro {
namespace {

// Distances are compared with values worked in decimal from the stored
// literals; the doubles of those literals are a few 1e-14 off the decimals,
// and the smallest irregular constant differs from the regular end by 1.4e-3.
constexpr double kDistanceTolerance = 1e-12;  // degrees

double Above(double x) { return std::nextafter(x, std::numeric_limits<double>::infinity()); }
double Below(double x) { return std::nextafter(x, -std::numeric_limits<double>::infinity()); }

clsStar StarAt(double position) {
  clsStar s;
  s.PlanetPosition = position;
  s.findstar();
  return s;
}

// Star ends, inner pada ends and the Abijit bounds, each included, and the
// next double beside them, from tests/data/star/boundaries.txt. The pada ends
// of a star's last pada are the star's own, so the distance there is 0.
TEST(Star, StarAndPadaBoundaries) {
  const auto rows = kelvaro::testing::TestDataTable("star/boundaries.txt");
  ASSERT_EQ(rows.size(), 67u);
  for (const auto& row : rows) {
    ASSERT_EQ(row.size(), 6u);
    const double at = std::stod(row[0]);
    const double position = row[1] == "above" ? Above(at) : row[1] == "below" ? Below(at) : at;
    SCOPED_TRACE(row[0] + " " + row[1]);
    const clsStar s = StarAt(position);
    EXPECT_EQ(s.StarNo, std::stoi(row[2]));
    EXPECT_EQ(s.StarName, row[3]);
    EXPECT_EQ(s.StarQuarter, std::stoi(row[4]));
    EXPECT_EQ(s.HouseNo, std::stoi(row[5]));
    EXPECT_EQ(s.House, "");
    if (row[1].empty() && s.StarQuarter == 4 && at != 278) {  // 278 lies inside its pada
      EXPECT_EQ(s.StarPadaDistance, 0);
    }
  }
}

// StarPadaDistance is the pada's end minus the position, except for eight
// padas whose constants are irregular and for Ashlesha's third, which is the
// position minus 116.666666666667. Expected values, worked in decimal, in
// tests/data/star/pada_distance.txt.
TEST(Star, PadaDistanceWithTheIrregularConstants) {
  const auto rows = kelvaro::testing::TestDataTable("star/pada_distance.txt");
  ASSERT_EQ(rows.size(), 25u);
  for (const auto& row : rows) {
    ASSERT_EQ(row.size(), 5u);
    SCOPED_TRACE(row[0]);
    const clsStar s = StarAt(std::stod(row[1]));
    EXPECT_EQ(s.StarNo, std::stoi(row[2]));
    EXPECT_EQ(s.StarQuarter, std::stoi(row[3]));
    EXPECT_NEAR(s.StarPadaDistance, std::stod(row[4]), kDistanceTolerance);
  }
}

// HouseNo is not assigned from above 253.333333333333 to 280: the value of the
// previous call on the same object stays (the Ashtakavarga reads it so). The
// steps, in their order, are in tests/data/star/house_carry.txt.
TEST(Star, HouseNoCarriesOverThroughPoorvashadaAndUttarashada) {
  clsStar s;
  s.PlanetPosition = 10.0;  // Ashwini: 6.66666666666667 < 10 <= 10, pada 3, house 3
  s.findstar();
  ASSERT_EQ(s.HouseNo, 3);

  const auto steps = kelvaro::testing::TestDataTable("star/house_carry.txt");
  ASSERT_EQ(steps.size(), 10u);
  for (const auto& step : steps) {
    ASSERT_EQ(step.size(), 5u);
    SCOPED_TRACE(step[0] + " " + step[1]);
    s.PlanetPosition = step[1] == "above" ? Above(std::stod(step[0])) : std::stod(step[0]);
    s.findstar();
    EXPECT_EQ(s.StarNo, std::stoi(step[2]));
    EXPECT_EQ(s.StarQuarter, std::stoi(step[3]));
    EXPECT_EQ(s.HouseNo, std::stoi(step[4]));
  }

  // A fresh object has nothing to carry: 0.
  EXPECT_EQ(StarAt(260.0).HouseNo, 0);
}

// Outside 0 to 360 nothing is assigned, and StarName is set back to the name
// the object built last, whatever was written into StarName meanwhile.
TEST(Star, OutOfRangeKeepsResultsAndRestoresTheLastName) {
  const double nan = std::numeric_limits<double>::quiet_NaN();
  const double outside[] = {360.5, Above(360), Below(0), -10, 400, nan};
  for (double position : outside) {
    SCOPED_TRACE(position);
    clsStar s;
    s.PlanetPosition = 281.0;  // Shravana - Abijit, 23, pada 1, house 1
    s.findstar();
    s.StarName = "written by someone else";
    s.PlanetPosition = position;
    s.findstar();
    EXPECT_EQ(s.StarName, "Shravana - Abijit");
    EXPECT_EQ(s.StarNo, 23);
    EXPECT_EQ(s.StarQuarter, 1);
    EXPECT_EQ(s.HouseNo, 1);
    EXPECT_NEAR(s.StarPadaDistance, -0.666666666667, kDistanceTolerance);
  }

  // An object that never found a star has an empty private name.
  clsStar fresh;
  fresh.StarName = "junk";
  fresh.PlanetPosition = 360.5;
  fresh.findstar();
  EXPECT_EQ(fresh.StarName, "");
  EXPECT_EQ(fresh.StarNo, 0);
  EXPECT_EQ(fresh.StarQuarter, 0);
}

}  // namespace
}  // namespace kelvaro
