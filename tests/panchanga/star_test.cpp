#include "panchanga/star.h"

#include <gtest/gtest.h>

#include <cmath>
#include <cstdint>
#include <limits>
#include <string>

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

struct Expect {
  double position;
  bool nextAbove;  // classify the next double above `position` instead
  std::int16_t no;
  const char* name;
  std::int16_t quarter;
  std::int16_t house;  // on a fresh object: 0 where HouseNo is not assigned
};

void Check(const Expect& e) {
  const double position = e.nextAbove ? Above(e.position) : e.position;
  SCOPED_TRACE(testing::Message() << e.position << (e.nextAbove ? " and the next double" : ""));
  const clsStar s = StarAt(position);
  EXPECT_EQ(s.StarNo, e.no);
  EXPECT_EQ(s.StarName, e.name);
  EXPECT_EQ(s.StarQuarter, e.quarter);
  EXPECT_EQ(s.HouseNo, e.house);
  EXPECT_EQ(s.House, "");
}

// A star's end, included, and the next double above it, which belongs to
// the next star's first pada: the first stars, the run through Abijit and the
// last. Stars span 13 degrees 20 minutes; the bounds are
// the stored fifteen-digit decimals. The pada ends of the last pada are the
// star's own, so the distance there is 0. Uttarashada ends at 280 as its Abijit
// part (22); the first pada of Shravana is "Shravana - Abijit".
TEST(Star, StarEndsAndJustAbove) {
  const Expect cases[] = {
      {0, false, 1, "Ashwini", 1, 1},
      {13.3333333333333, false, 1, "Ashwini", 4, 4},
      {13.3333333333333, true, 2, "Bharani", 1, 5},
      {26.6666666666667, false, 2, "Bharani", 4, 8},
      {26.6666666666667, true, 3, "Kritika", 1, 9},
      {40, false, 3, "Kritika", 4, 12},
      {40, true, 4, "Rohini", 1, 1},
      {240, false, 18, "Jyestha", 4, 12},
      {240, true, 19, "Moola", 1, 1},
      {253.333333333333, false, 19, "Moola", 4, 4},
      {253.333333333333, true, 20, "Poorvashada", 1, 0},
      {266.666666666667, false, 20, "Poorvashada", 4, 0},
      {266.666666666667, true, 21, "Uttarashada", 1, 0},
      {280, false, 22, "Uttarashada - Abijit", 4, 0},
      {280, true, 23, "Shravana - Abijit", 1, 1},
      {293.333333333333, false, 23, "Shravana", 4, 4},
      {293.333333333333, true, 24, "Dhanishtha", 1, 5},
      {346.666666666667, false, 27, "U.Bhadrapad", 4, 8},
      {346.666666666667, true, 28, "Revati", 1, 9},
      {360, false, 28, "Revati", 4, 12},
  };
  for (const Expect& e : cases) {
    Check(e);
    if (!e.nextAbove && e.quarter == 4) {
      EXPECT_EQ(StarAt(e.position).StarPadaDistance, 0) << e.position;
    }
  }
}

// The three inner pada ends, each included, and the next double above, for
// the first three stars (the three forms of the ends), the stars without a
// HouseNo, Shravana and the last star. The ends are the star's start plus 3.33333333333333, 6.66666666666667
// and 10, worked in decimal and kept to fifteen significant digits
// (53.3333333333333 + 3.33333333333333 = 56.66666666666663 -> 56.6666666666666),
// except where the almanac stores its own: Uttarashada's 273.333333333333 and
// Shravana's first pada end 283.333333333334. HouseNo runs 1 to 12 a pada at a
// time from Ashwini, and is not assigned in Poorvashada and Uttarashada.
TEST(Star, InnerPadaBoundaries) {
  const Expect cases[] = {
      {3.33333333333333, false, 1, "Ashwini", 1, 1},
      {3.33333333333333, true, 1, "Ashwini", 2, 2},
      {6.66666666666667, false, 1, "Ashwini", 2, 2},
      {6.66666666666667, true, 1, "Ashwini", 3, 3},
      {10, false, 1, "Ashwini", 3, 3},
      {10, true, 1, "Ashwini", 4, 4},
      {16.6666666666666, false, 2, "Bharani", 1, 5},
      {16.6666666666666, true, 2, "Bharani", 2, 6},
      {20, false, 2, "Bharani", 2, 6},
      {20, true, 2, "Bharani", 3, 7},
      {23.3333333333333, false, 2, "Bharani", 3, 7},
      {23.3333333333333, true, 2, "Bharani", 4, 8},
      {30, false, 3, "Kritika", 1, 9},
      {30, true, 3, "Kritika", 2, 10},
      {33.3333333333334, false, 3, "Kritika", 2, 10},
      {33.3333333333334, true, 3, "Kritika", 3, 11},
      {36.6666666666667, false, 3, "Kritika", 3, 11},
      {36.6666666666667, true, 3, "Kritika", 4, 12},
      {256.666666666666, false, 20, "Poorvashada", 1, 0},
      {256.666666666666, true, 20, "Poorvashada", 2, 0},
      {260, false, 20, "Poorvashada", 2, 0},
      {260, true, 20, "Poorvashada", 3, 0},
      {263.333333333333, false, 20, "Poorvashada", 3, 0},
      {263.333333333333, true, 20, "Poorvashada", 4, 0},
      {270, false, 21, "Uttarashada", 1, 0},
      {270, true, 21, "Uttarashada", 2, 0},
      {273.333333333333, false, 21, "Uttarashada", 2, 0},
      {273.333333333333, true, 21, "Uttarashada", 3, 0},
      {276.666666666667, false, 22, "Uttarashada - Abijit", 3, 0},
      {276.666666666667, true, 22, "Uttarashada - Abijit", 4, 0},
      {283.333333333334, false, 23, "Shravana - Abijit", 1, 1},
      {283.333333333334, true, 23, "Shravana", 2, 2},
      {286.666666666667, false, 23, "Shravana", 2, 2},
      {286.666666666667, true, 23, "Shravana", 3, 3},
      {290, false, 23, "Shravana", 3, 3},
      {290, true, 23, "Shravana", 4, 4},
      {350, false, 28, "Revati", 1, 9},
      {350, true, 28, "Revati", 2, 10},
      {353.333333333334, false, 28, "Revati", 2, 10},
      {353.333333333334, true, 28, "Revati", 3, 11},
      {356.666666666667, false, 28, "Revati", 3, 11},
      {356.666666666667, true, 28, "Revati", 4, 12},
  };
  for (const Expect& e : cases) Check(e);
}

// StarPadaDistance is the pada's end minus the position, except for eight
// padas whose constants are irregular and for Ashlesha's third, which is the
// position minus 116.666666666667. Expected values worked in decimal.
TEST(Star, PadaDistanceWithTheIrregularConstants) {
  struct Case {
    const char* why;
    double position;
    std::int16_t no;
    std::int16_t quarter;
    double distance;
  } cases[] = {
      // Regular padas: end minus position.
      {"Ashwini 1: 3.33333333333333 - 1", 1, 1, 1, 2.33333333333333},
      {"Bharani 1: 16.6666666666666 - 15", 15, 2, 1, 1.6666666666666},
      {"Bharani 4: 26.6666666666667 - 25", 25, 2, 4, 1.6666666666667},
      {"Ashlesha 2: 113.333333333334 - 112", 112, 9, 2, 1.333333333334},
      {"Ashlesha 4: 120 - 118", 118, 9, 4, 2},
      {"Uttarashada 2: 273.333333333333 - 272", 272, 21, 2, 1.333333333333},
      {"Abijit 4: 280 - 278", 278, 22, 4, 2},
      {"Shravana 3: 290 - 288", 288, 23, 3, 2},
      {"Revati 4 at 360", 360, 28, 4, 0},
      // The eight irregular constants.
      {"Bharani 3: 23.6666666666667 - 22", 22, 2, 3, 1.6666666666667},
      {"Bharani 3 at its end: 23.6666666666667 - 23.3333333333333", 23.3333333333333, 2, 3, 0.3333333333334},
      {"Mrigshira 1: 56.66525 - 55", 55, 5, 1, 1.66525},
      {"Mrigshira 1 at its end: 56.66525 - 56.6666666666666", 56.6666666666666, 5, 1, -0.0014166666666},
      {"Ardra 1: 90 - 68", 68, 6, 1, 22},
      {"Ardra 1 at its end: 90 - 70", 70, 6, 1, 20},
      {"Punarvasu 1: 83.33125 - 81", 81, 7, 1, 2.33125},
      {"P.Falguni 2: 139.9965 - 138", 138, 11, 2, 1.9965},
      {"P.Falguni 2 at its end: 139.9965 - 140", 140, 11, 2, -0.0035},
      {"Hasta 1: 163.32925 - 161.5", 161.5, 13, 1, 1.82925},
      {"Shravana - Abijit 1: 280.333333333333 - 281", 281, 23, 1, -0.666666666667},
      {"Shravana - Abijit 1 at its end: 280.333333333333 - 283.333333333334", 283.333333333334, 23, 1,
       -3.000000000001},
      {"Shravana 2: 286.6595 - 284", 284, 23, 2, 2.6595},
      // Ashlesha 3 the other way about.
      {"Ashlesha 3: 115 - 116.666666666667", 115, 9, 3, -1.666666666667},
      {"Ashlesha 3 at its end: 116.666666666667 - 116.666666666667", 116.666666666667, 9, 3, 0},
      {"Ashlesha 3 at its start: 113.4 - 116.666666666667", 113.4, 9, 3, -3.266666666667},
  };
  for (const Case& c : cases) {
    SCOPED_TRACE(c.why);
    const clsStar s = StarAt(c.position);
    EXPECT_EQ(s.StarNo, c.no);
    EXPECT_EQ(s.StarQuarter, c.quarter);
    EXPECT_NEAR(s.StarPadaDistance, c.distance, kDistanceTolerance);
  }
}

// The two Abijit parts at their exact bounds. Uttarashada's last part, from
// 276.666666666667 to 280 both included, is star 22; at 276.666666666667 the
// third pada's end and the Abijit start both hold, so it is pada 3. Above 280
// and up to 283.333333333334 is Shravana's first pada, "Shravana - Abijit".
TEST(Star, AbijitAtItsExactBounds) {
  const Expect cases[] = {
      {Below(276.666666666667), false, 21, "Uttarashada", 3, 0},
      {276.666666666667, false, 22, "Uttarashada - Abijit", 3, 0},
      {276.666666666667, true, 22, "Uttarashada - Abijit", 4, 0},
      {278, false, 22, "Uttarashada - Abijit", 4, 0},
      {280, false, 22, "Uttarashada - Abijit", 4, 0},
      {280, true, 23, "Shravana - Abijit", 1, 1},
      {281, false, 23, "Shravana - Abijit", 1, 1},
      // The regular rule would end the pada here; the stored end is one digit on.
      {283.333333333333, false, 23, "Shravana - Abijit", 1, 1},
      {283.333333333334, false, 23, "Shravana - Abijit", 1, 1},
      {283.333333333334, true, 23, "Shravana", 2, 2},
      {284, false, 23, "Shravana", 2, 2},
  };
  for (const Expect& e : cases) Check(e);
}

// HouseNo is not assigned from above 253.333333333333 to 280: the value of the
// previous call on the same object stays (the Ashtakavarga reads it so).
TEST(Star, HouseNoCarriesOverThroughPoorvashadaAndUttarashada) {
  clsStar s;
  s.PlanetPosition = 10.0;  // Ashwini: 6.66666666666667 < 10 <= 10, pada 3, house 3
  s.findstar();
  ASSERT_EQ(s.HouseNo, 3);

  struct Step {
    double position;
    std::int16_t no;
    std::int16_t quarter;
    std::int16_t house;
  } steps[] = {
      {260.0, 20, 2, 3},                // Poorvashada pada 2 (256.666666666666, 260]
      {Above(253.333333333333), 20, 1, 3},
      {266.666666666667, 20, 4, 3},
      {268.0, 21, 1, 3},                // Uttarashada pada 1
      {278.0, 22, 4, 3},                // its Abijit part
      {280.0, 22, 4, 3},
      {Above(280.0), 23, 1, 1},         // Shravana - Abijit assigns again
      {262.0, 20, 3, 1},                // and that value carries now
      {253.333333333333, 19, 4, 4},     // Moola pada 4 assigns 4
      {275.0, 21, 3, 4},
  };
  for (const Step& step : steps) {
    SCOPED_TRACE(step.position);
    s.PlanetPosition = step.position;
    s.findstar();
    EXPECT_EQ(s.StarNo, step.no);
    EXPECT_EQ(s.StarQuarter, step.quarter);
    EXPECT_EQ(s.HouseNo, step.house);
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
