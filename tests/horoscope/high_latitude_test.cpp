// Births where the Sun sets after midnight, or does not rise or set at all.
#include <gtest/gtest.h>

#include "common/date_text.h"
#include "horoscope/calculate_horoscope.h"
#include "support/charts_master.h"
#include "support/year_table.h"

namespace kelvaro {
namespace {

struct Birth {
  const char *day, *month, *year, *hour, *minute, *ns;
  double lat, latMin;
  const char* ew;
  double lon, lonMin, zone;
};

void Set(HoroscopeState& s, const Birth& b) {
  s.BirthDay = b.day, s.BirthMonth = b.month, s.BirthYear = b.year, s.BirthHour = b.hour, s.BirthMinute = b.minute;
  s.LatNS = b.ns, s.LatDeg = b.lat, s.LatMin = b.latMin, s.LonEW = b.ew, s.LonDeg = b.lon, s.LonMin = b.lonMin;
  s.TimeDiff = b.zone, s.TimeDiffEW = "E";
}

// Reykjavik (64N08 21W56, zone 0): the Sun of 15 Jun 2000 sets at about 00:01
// on the 16th, that of 20 Jun at about 00:04 on the 21st (NOAA equations).
TEST(HighLatitudeBirth, ReykjavikMidsummerNoonIsNotNight) {
  const struct {
    Birth birth;
    const char *dayOrNight, *sunset;
  } cases[] = {{{"15", "6", "2000", "12", "0", "N", 64, 8, "W", 21, 56, 0}, "Day", "16/06/2000"},
               {{"21", "6", "2000", "0", "2", "N", 64, 8, "W", 21, 56, 0}, "Day", "21/06/2000"},
               {{"21", "6", "2000", "0", "10", "N", 64, 8, "W", 21, 56, 0}, "Night", "21/06/2000"}};
  for (const auto& c : cases) {
    CalculationContext ctx;
    Set(ctx.state, c.birth);
    ComputeChartPositions(ctx, kRasiDivision);
    EXPECT_EQ(ctx.state.DayOrNight, c.dayOrNight) << c.birth.day << " " << c.birth.minute;
    EXPECT_EQ(FormatDate(ctx.state.DaySunset, "DD/MM/YYYY HH"), std::string(c.sunset) + " 00");
    EXPECT_GT(ctx.state.GulikaMoment, ctx.state.DaySunrise);
  }
  CalculationContext ctx;  // the summary shows the true date, not a moment of 1899
  Set(ctx.state, cases[0].birth);
  ComputeChartPositions(ctx, kRasiDivision);
  FillBirthSummary(ctx);
  EXPECT_EQ(ctx.summary.txtSunSet.substr(0, 16), "16/Jun/2000 12:0");
}

// 70N 25E, zone 1 E, 21 Dec 2000, polar night: the summary says so, Gulika
// and Maandi stand in no chart, the avasthas (which count from the ishta
// ghati) are left out.
TEST(HighLatitudeBirth, SunThatDoesNotRiseIsSaid) {
  testing::MapYearTable years = testing::SeedYearTable();
  testing::SeedChartsMaster charts;
  CalculationContext ctx{&years, &charts};
  Set(ctx.state, {"21", "12", "2000", "12", "0", "N", 70, 0, "E", 25, 0, 1});
  CalculateHoroscope(ctx);
  EXPECT_EQ(ctx.state.DayOrNight, "");
  for (const std::string* text : {&ctx.summary.txtSunRise, &ctx.summary.txtSunSet, &ctx.summary.txtIshtaGhati}) {
    EXPECT_EQ(*text, "Sun does not rise");
  }
  EXPECT_EQ(ctx.planets.mshNirayana.Text(2, 9), "----");
  for (int i = 0; i < 12; ++i) EXPECT_EQ(ctx.cells.rasi.south.Caption(i).find("Gul"), std::string::npos);
}

// The 1899 sunset carried into a night of July 2500 made a span whose eighth
// overflowed a 32-bit count of seconds.
TEST(HighLatitudeBirth, NoOverflowAtHighLatitude) {
  for (const char* ns : {"N", "S"}) {
    for (double lat : {66.0, 70.0, 80.0, 90.0}) {
      CalculationContext ctx;
      Set(ctx.state, {"10", "7", "2500", "12", "0", ns, lat, 0, "E", 25, 0, 1});
      EXPECT_NO_THROW(ComputeChartPositions(ctx, kRasiDivision)) << lat << ns;
    }
  }
}

}  // namespace
}  // namespace kelvaro
