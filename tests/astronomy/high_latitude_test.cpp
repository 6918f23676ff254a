// Sunrise and sunset beyond the polar circles and after midnight; the Lagna
// at a pole.
#include <gtest/gtest.h>

#include "astronomy/find_planet_position.h"
#include "astronomy/find_sunrise.h"
#include "astronomy/find_sunset.h"

namespace kelvaro {
namespace {

// Reference: NOAA solar equations, a minute-by-minute scan to -0.833 deg. At
// 70N 25E (zone 1 E) the Sun stays down all 21 Dec 2000 and up all 21 Jun;
// at Reykjavik (64N08 21W56, zone 0) on 15 Jun it sets at 00:01 on the 16th
// (three minutes allow for the engine's theory at a grazing crossing).
TEST(HighLatitude, SunThatDoesNotRiseIsSaid) {
  const struct {
    int m, d;
    double lat, latMin;
    const char* ew;
    double lon, lonMin, zone;
    SunEventKind kind;
    const char* words;
  } cases[] = {{12, 21, 70, 0, "E", 25, 0, 1, SunEventKind::SunStaysDown, "Sun does not rise"},
               {6, 21, 70, 0, "E", 25, 0, 1, SunEventKind::SunStaysUp, "Sun does not set"},
               {6, 15, 64, 8, "W", 21, 56, 0, SunEventKind::NextDate, ""}};
  clsFindSunSet set;
  for (const auto& c : cases) {
    set.FnFindSunset(OleDate::FromParts(2000, c.m, c.d), "N", c.lat, c.latMin, c.ew, c.lon, c.lonMin, 0, c.zone, "E");
    EXPECT_EQ(set.LastSunset().kind, c.kind) << c.d << "/" << c.m;
    EXPECT_STREQ(SunEventWords(set.LastSunset()), c.words) << c.d << "/" << c.m;
  }
  EXPECT_NEAR(set.LastSunset().moment.Value(), OleDate::FromParts(2000, 6, 16, 0, 1).Value(), 3.0 / 1440);
}

// At a pole the ascendant degenerates; with a zero ayanamsa it came out as
// exactly 360 at 06:00 on 21 Mar 2000.
TEST(HighLatitude, SouthPoleLagnaInRange) {
  ClsFindPlanetPosition f;
  for (int hour = 0; hour < 24; ++hour) {
    f.FindFixValues(OleDate::FromParts(2000, 3, 21, hour, 0), "S", 90, 0, "E", 0, 0, 0, "E", 0, "Sayana", 0, 0);
    EXPECT_GE(f.FnFindLagnaPosition(), 0.0) << hour;
    EXPECT_LT(f.FnFindLagnaPosition(), 360.0) << hour;
  }
}

}  // namespace
}  // namespace kelvaro
