#include "panchanga/yoga.h"

#include <gtest/gtest.h>

#include <cmath>
#include <cstdint>
#include <limits>
#include <string>

namespace kelvaro {
namespace {

double Above(double x) { return std::nextafter(x, std::numeric_limits<double>::infinity()); }

clsYoga YogaAt(double moon, double sun) {
  clsYoga y;
  y.moon_position = moon;
  y.sun_position = sun;
  y.findyoga();
  return y;
}

// With the Sun at 0 the sum is the Moon's longitude exactly. Bounds are
// k * 13.333 (worked in decimal: 13.333, 26.666, ..., 346.658) and 360; each
// is included, and the next double above it is the next yoga. The first,
// some middle and the last bounds.
TEST(Yoga, UpperBoundsAndJustAbove) {
  struct Case {
    double upTo;
    std::int16_t no;
    const char* name;
    const char* next;
  } cases[] = {
      {13.333, 1, "Vishkumbha", "Preeti"},
      {26.666, 2, "Preeti", "Ayushmaana"},
      {39.999, 3, "Ayushmaana", "Saubhagya"},
      {133.33, 10, "Ganda", "Vriddhi"},
      {266.66, 20, "Shiva", "Siddha"},
      {346.658, 26, "Indra", "Vaidhriti"},
      {360, 27, "Vaidhriti", nullptr},
  };
  for (const Case& c : cases) {
    SCOPED_TRACE(c.upTo);
    const clsYoga at = YogaAt(c.upTo, 0);
    EXPECT_EQ(at.YogaNo, c.no);
    EXPECT_EQ(at.YogaName, c.name);
    if (c.next != nullptr) {
      const clsYoga above = YogaAt(Above(c.upTo), 0);
      EXPECT_EQ(above.YogaNo, c.no + 1);
      EXPECT_EQ(above.YogaName, c.next);
    }
  }
}

TEST(Yoga, WorkedSums) {
  struct Case {
    const char* why;
    double moon, sun;
    std::int16_t no;
    const char* name;
  } cases[] = {
      {"0 is the first row's start, included", 0, 0, 1, "Vishkumbha"},
      {"13.3333333 (13 deg 20 min) is past the cut bound 13.333", 13.3333333, 0, 2, "Preeti"},
      {"200 + 160 = 360 exactly stays 360", 200, 160, 27, "Vaidhriti"},
      {"360 + 360 = 720, one fold to 360", 360, 360, 27, "Vaidhriti"},
      {"300 + 60.5 = 360.5, folds to 0.5", 300, 60.5, 1, "Vishkumbha"},
      {"sample chart: 275.4562 + 88.3176 = 363.7738 -> 3.7738", 275.4562, 88.3176, 1, "Vishkumbha"},
      {"250 + 150 = 400 -> 40: just past 39.999", 250, 150, 4, "Saubhagya"},
  };
  for (const Case& c : cases) {
    SCOPED_TRACE(c.why);
    const clsYoga y = YogaAt(c.moon, c.sun);
    EXPECT_EQ(y.YogaNo, c.no);
    EXPECT_EQ(y.YogaName, c.name);
  }
}

// A sum below 0, or still above 360 after the one fold, matches nothing and
// the previous results stay.
TEST(Yoga, OutOfRangeKeepsThePreviousResult) {
  const double nan = std::numeric_limits<double>::quiet_NaN();
  struct Case {
    const char* why;
    double moon, sun;
  } cases[] = {
      {"400 + 400 = 800 -> 440", 400, 400},
      {"just above 720 -> just above 360", Above(720), 0},
      {"-10 + 5 = -5", -10, 5},
      {"not a number", nan, 0},
  };
  for (const Case& c : cases) {
    SCOPED_TRACE(c.why);
    clsYoga y = YogaAt(100, 50);  // 150: Dhruva, 12
    y.moon_position = c.moon;
    y.sun_position = c.sun;
    y.findyoga();
    EXPECT_EQ(y.YogaNo, 12);
    EXPECT_EQ(y.YogaName, "Dhruva");
  }
  const clsYoga fresh = YogaAt(400, 400);
  EXPECT_EQ(fresh.YogaNo, 0);
  EXPECT_EQ(fresh.YogaName, "");
}

}  // namespace
}  // namespace kelvaro
