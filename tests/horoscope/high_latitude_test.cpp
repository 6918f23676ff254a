// Births where the Sun sets after midnight, or does not rise or set at all.
// Reference times: the NOAA solar equations and a minute-by-minute altitude
// scan to -0.833 degrees.
#include <gtest/gtest.h>

#include "common/date_text.h"
#include "horoscope/calculate_horoscope.h"
#include "support/charts_master.h"
#include "support/year_table.h"

namespace kelvaro {
namespace {

struct Birth {
  const char *day, *month, *hour, *minute;
  double lat, latMin;
  const char* ew;
  double lon, lonMin, zone;
};

void Set(HoroscopeState& s, const Birth& b, const char* ns = "N", const char* year = "2000") {
  s.BirthDay = b.day, s.BirthMonth = b.month, s.BirthYear = year, s.BirthHour = b.hour, s.BirthMinute = b.minute;
  s.LatNS = ns, s.LatDeg = b.lat, s.LatMin = b.latMin, s.LonEW = b.ew, s.LonDeg = b.lon, s.LonMin = b.lonMin;
  s.TimeDiff = b.zone, s.TimeDiffEW = "E";
}

// Reykjavik (64N08 21W56, zone 0): the Sun of 15 Jun 2000 sets at 00:01 on
// the 16th, that of 20 Jun at 00:04 on the 21st. Three minutes allow for the
// engine's small theory at a grazing crossing and its whole minutes.
TEST(HighLatitudeBirth, ReykjavikMidsummerNoonIsNotNight) {
  const struct {
    Birth birth;
    const char* dayOrNight;
    OleDate sunset;
  } cases[] = {{{"15", "6", "12", "0", 64, 8, "W", 21, 56, 0}, "Day", OleDate::FromParts(2000, 6, 16, 0, 1)},
               {{"21", "6", "0", "2", 64, 8, "W", 21, 56, 0}, "Day", OleDate::FromParts(2000, 6, 21, 0, 4)},
               {{"21", "6", "0", "10", 64, 8, "W", 21, 56, 0}, "Night", OleDate::FromParts(2000, 6, 21, 0, 4)}};
  for (const auto& c : cases) {
    CalculationContext ctx;
    Set(ctx.state, c.birth);
    ComputeChartPositions(ctx, kRasiDivision);
    EXPECT_EQ(ctx.state.DayOrNight, c.dayOrNight) << c.birth.day << " " << c.birth.minute;
    EXPECT_NEAR(ctx.state.DaySunset.Value(), c.sunset.Value(), 3.0 / 1440) << c.birth.day << " " << c.birth.minute;
    EXPECT_GT(ctx.state.GulikaMoment, ctx.state.DaySunrise);
  }
  CalculationContext ctx;  // the summary shows the true date, not a moment of 1899
  Set(ctx.state, cases[0].birth);
  ComputeChartPositions(ctx, kRasiDivision);
  FillBirthSummary(ctx);
  EXPECT_EQ(ctx.summary.txtSunSet.substr(0, 16), "16/Jun/2000 12:0");
}

// 70N 25E, zone 1 E: the Sun stays down all 21 Dec 2000 and up all 21 Jun.
// The summary says so, Gulika and Maandi stand in no chart, and the avasthas
// (which count from the ishta ghati) are left out.
TEST(HighLatitudeBirth, SunThatDoesNotRiseIsSaid) {
  testing::MapYearTable years = testing::SeedYearTable();
  testing::SeedChartsMaster charts;
  for (const auto& [month, words] : {std::pair{"12", "Sun does not rise"}, std::pair{"6", "Sun does not set"}}) {
    CalculationContext ctx{&years, &charts};
    Set(ctx.state, {"21", month, "12", "0", 70, 0, "E", 25, 0, 1});
    CalculateHoroscope(ctx);
    EXPECT_EQ(ctx.state.DayOrNight, "");
    for (const std::string* text : {&ctx.summary.txtSunRise, &ctx.summary.txtSunSet, &ctx.summary.txtIshtaGhati}) {
      EXPECT_EQ(*text, words);
    }
    EXPECT_EQ(ctx.planets.mshNirayana.Text(2, 9), "----");
    for (int i = 0; i < 12; ++i) EXPECT_EQ(ctx.cells.rasi.south.Caption(i).find("Gul"), std::string::npos);
  }
}

// The 1899 sunset carried into a night of July 2500 made a span whose eighth
// overflowed a 32-bit count of seconds.
TEST(HighLatitudeBirth, NoOverflowAtHighLatitude) {
  for (const char* ns : {"N", "S"}) {
    for (double lat : {66.0, 70.0, 80.0, 90.0}) {
      CalculationContext ctx;
      Set(ctx.state, {"10", "7", "12", "0", lat, 0, "E", 25, 0, 1}, ns, "2500");
      EXPECT_NO_THROW(ComputeChartPositions(ctx, kRasiDivision)) << lat << ns;
    }
  }
}

}  // namespace
}  // namespace kelvaro
