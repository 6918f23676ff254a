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

// The bounds of tests/data/panchanga/yoga_bounds.txt, and the next double
// above each but the last.
TEST(Yoga, UpperBoundsAndJustAbove) {
  const auto rows = testing::TestDataTable("panchanga/yoga_bounds.txt");
  ASSERT_EQ(rows.size(), 7u);
  for (const auto& row : rows) {
    ASSERT_EQ(row.size(), 4u);
    SCOPED_TRACE(row[0]);
    const clsYoga at = YogaAt(std::stod(row[0]), 0);
    EXPECT_EQ(at.YogaNo, std::stoi(row[1]));
    EXPECT_EQ(at.YogaName, row[2]);
    if (!row[3].empty()) {
      const clsYoga above = YogaAt(Above(std::stod(row[0])), 0);
      EXPECT_EQ(above.YogaNo, std::stoi(row[1]) + 1);
      EXPECT_EQ(above.YogaName, row[3]);
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
