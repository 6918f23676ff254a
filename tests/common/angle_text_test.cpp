#include "common/angle_text.h"

#include <gtest/gtest.h>

namespace kelvaro {
namespace {

TEST(AngleText, MinutesSecondsAndTheCarry) {
  struct Case {
    double angle;
    const char* dm;
    const char* dms;
  } cases[] = {
      {12.0 + 5.0 / 60, "12.5", "12.5.0"},          // not a decimal fraction
      {5.0 + 7.0 / 60 + 9.0 / 3600, "5.7", "5.7.9"},
      {29.99999, "29.60", "29.60.0"},               // 59 min 59.964 s: the carry makes 60 minutes
      {0.0, "0.0", "0.0.0"},
      {10.0 + 30.5 / 3600, "10.0", "10.0.31"},      // 30.5 seconds round half away from zero
      {-23.372143351941208, "-23.22", "-23.22.20"},  // the sample chart's Lahiri ayanamsa
      {359.999999, "359.60", "359.60.0"},           // degrees are never carried
  };
  for (const auto& c : cases) {
    EXPECT_EQ(DegreeMinuteText(c.angle), c.dm) << c.angle;
    EXPECT_EQ(DegreeMinuteSecondText(c.angle), c.dms) << c.angle;
    EXPECT_EQ(FormatDegrees(c.angle), c.dms) << c.angle;
  }
}

}  // namespace
}  // namespace kelvaro
