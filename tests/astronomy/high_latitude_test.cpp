// The Lagna at a pole.
#include <gtest/gtest.h>

#include "astronomy/find_planet_position.h"

namespace kelvaro {
namespace {

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
