#include "panchanga/yoga.h"

#include <gtest/gtest.h>

#include <cmath>
#include <cstdint>
#include <limits>
#include <string>

#include "support/test_data.h"

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

// The sums of tests/data/panchanga/yoga_sums.txt.
TEST(Yoga, WorkedSums) {
  const auto rows = testing::TestDataTable("panchanga/yoga_sums.txt");
  ASSERT_EQ(rows.size(), 7u);
  for (const auto& row : rows) {
    ASSERT_EQ(row.size(), 5u);
    SCOPED_TRACE(row[4]);
    const clsYoga y = YogaAt(std::stod(row[0]), std::stod(row[1]));
    EXPECT_EQ(y.YogaNo, std::stoi(row[2]));
    EXPECT_EQ(y.YogaName, row[3]);
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
