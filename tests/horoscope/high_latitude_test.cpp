// Births beyond the polar circles and under a sunset after midnight: what the
// position pass and the whole calculation make of a day that has no sunrise,
// no sunset, or a sunset on the next date.
#include <gtest/gtest.h>

#include <cmath>
#include <string>

#include "common/date_text.h"
#include "horoscope/calculate_horoscope.h"
#include "horoscope/calculation_context.h"
#include "support/charts_master.h"
#include "support/year_table.h"

namespace kelvaro {
namespace {

void SetBirth(HoroscopeState& s, int day, int month, int year, int hour, const char* ns, double latDeg,
              double latMin, const char* ew, double lonDeg, double lonMin, double zone) {
  s.BirthDay = std::to_string(day);
  s.BirthMonth = std::to_string(month);
  s.BirthYear = std::to_string(year);
  s.BirthHour = std::to_string(hour);
  s.BirthMinute = "0";
  s.LatNS = ns;
  s.LatDeg = latDeg;
  s.LatMin = latMin;
  s.LonEW = ew;
  s.LonDeg = lonDeg;
  s.LonMin = lonMin;
  s.TimeDiff = zone;
  s.TimeDiffEW = "E";
}

// A whole calculation needs the divisional-chart bands and the years.
class HighLatitudeRun : public ::testing::Test {
 protected:
  testing::MapYearTable years_ = testing::SeedYearTable();
  testing::SeedChartsMaster charts_;
  CalculationContext ctx_{&years_, &charts_};
};

// Reykjavik (64N08 21W56, zone 0), Thursday 15 Jun 2000: the Sun rises about
// 02:58 and sets about 00:01 on the 16th (NOAA equations, see the astronomy
// tests). Noon is day, and Gulika rises at the 3rd eighth of that whole day.
TEST_F(HighLatitudeRun, ReykjavikMidsummerNoonIsNotNight) {
  SetBirth(ctx_.state, 15, 6, 2000, 12, "N", 64, 8, "W", 21, 56, 0);
  ComputeChartPositions(ctx_, kRasiDivision);
  const HoroscopeState& s = ctx_.state;
  EXPECT_EQ(s.DayOrNight, "Day");
  EXPECT_TRUE(s.GulikaMaandiKnown);
  EXPECT_EQ(s.SunsetEvent.kind, SunEventKind::NextDate);
  EXPECT_EQ(FormatDate(s.DaySunset, "DD/MM/YYYY"), "16/06/2000");
  // Sunrise plus 3 eighths of a day of about 21 hours: near 10:50.
  const double eighth = std::nearbyint(static_cast<double>(DateDiff(Interval::Second, s.DaySunrise, s.DaySunset)) / 8);
  EXPECT_GT(eighth, 20.5 * 3600 / 8);
  const OleDate gulika = DateAdd(Interval::Second, 3 * eighth, s.DaySunrise);
  EXPECT_EQ(FormatDate(s.GulikaMoment, "DD/MM/YYYY HH:NN"), FormatDate(gulika, "DD/MM/YYYY HH:NN"));
  EXPECT_GE(s.GulikaLon, 0);
  EXPECT_LT(s.GulikaLon, 360);

  CalculateHoroscope(ctx_);
  EXPECT_EQ(ctx_.summary.txtSunSet.substr(0, 16), "16/Jun/2000 12:0");
  for (const BirthSummary::Field& f : ctx_.summary.Fields()) {
    EXPECT_EQ(f.text->find("1899"), std::string::npos) << f.control << ": " << *f.text;
  }
}

// At Reykjavik the Sun of 20 Jun 2000 sets at about 00:04 on the 21st: a
// birth at 00:02 is still that day's, one at 00:10 is its night.
TEST(HighLatitudeBirth, BirthBeforeSunsetAfterMidnightIsDay) {
  const struct {
    const char* minute;
    const char* dayOrNight;
  } cases[] = {{"2", "Day"}, {"10", "Night"}};
  for (const auto& c : cases) {
    CalculationContext ctx;
    SetBirth(ctx.state, 21, 6, 2000, 0, "N", 64, 8, "W", 21, 56, 0);
    ctx.state.BirthMinute = c.minute;
    ComputeChartPositions(ctx, kRasiDivision);
    const HoroscopeState& s = ctx.state;
    EXPECT_EQ(s.DayOrNight, c.dayOrNight) << c.minute;
    EXPECT_EQ(FormatDate(s.DaySunrise, "DD/MM/YYYY"), "20/06/2000") << c.minute;
    EXPECT_EQ(FormatDate(s.DaySunset, "DD/MM/YYYY HH"), "21/06/2000 00") << c.minute;
    EXPECT_TRUE(s.GulikaMaandiKnown);
  }
}

// 70N 25E, zone 1 E, 21 Dec 2000: polar night. Everything but what hangs on
// a sunrise is computed; the summary says why the rest is missing.
TEST_F(HighLatitudeRun, SunThatDoesNotRiseIsSaid) {
  SetBirth(ctx_.state, 21, 12, 2000, 12, "N", 70, 0, "E", 25, 0, 1);
  CalculateHoroscope(ctx_);
  const HoroscopeState& s = ctx_.state;
  EXPECT_FALSE(s.GulikaMaandiKnown);
  EXPECT_EQ(s.DayOrNight, "");
  EXPECT_EQ(s.GulikaRasi, 0);
  EXPECT_EQ(ctx_.summary.txtSunRise, "Sun does not rise");
  EXPECT_EQ(ctx_.summary.txtSunSet, "Sun does not rise");
  EXPECT_EQ(ctx_.summary.txtIshtaGhati, "Sun does not rise");
  EXPECT_EQ(ctx_.summary.txtVedic, "Thursday");
  // The avasthas hang on the ishta ghati.
  const Grid& table = ctx_.planets.mshNirayana;
  for (int row = 2; row < table.Rows(); ++row) EXPECT_EQ(table.Text(row, table.Cols() - 1), "----") << row;
  // Neither Gulika nor Maandi stands in a chart; the other eleven names do.
  int placed = 0;
  for (int i = 0; i < 12; ++i) {
    const std::string& cell = ctx_.cells.rasi.south.Caption(i);
    EXPECT_EQ(cell.find("Gul"), std::string::npos) << cell;
    EXPECT_EQ(cell.find("Maa"), std::string::npos) << cell;
    for (const char* name : {"Asc", "Sun", "Moo", "Mar", "Mer", "Jup", "Ven", "Sat", "Rah", "Ket"}) {
      for (auto at = cell.find(name); at != std::string::npos; at = cell.find(name, at + 1)) ++placed;
    }
  }
  EXPECT_EQ(placed, 10);
}

// The Sun that stays up (70N, 21 Jun) is said as such.
TEST_F(HighLatitudeRun, SunThatDoesNotSetIsSaid) {
  SetBirth(ctx_.state, 21, 6, 2000, 23, "N", 70, 0, "E", 25, 0, 1);
  CalculateHoroscope(ctx_);
  EXPECT_FALSE(ctx_.state.GulikaMaandiKnown);
  EXPECT_EQ(ctx_.summary.txtSunRise, "Sun does not set");
  EXPECT_EQ(ctx_.summary.txtSunSet, "Sun does not set");
  EXPECT_EQ(ctx_.summary.txtIshtaGhati, "Sun does not set");
}

// The carried-over sunset of 1899 once made a night of some two and a half
// billion seconds, whose eighth overflowed a 32-bit count: far south in July
// 2500. Every latitude from the polar circles to the poles, both sides.
TEST(HighLatitudeBirth, NoOverflowAtHighLatitude) {
  struct Date {
    int d, m, y;
  };
  constexpr Date kDates[] = {{10, 7, 2500}, {21, 12, 2000}, {21, 6, 1800}, {23, 9, 3000}};
  for (const char* ns : {"N", "S"}) {
    for (double lat : {60.0, 66.0, 67.0, 70.0, 75.0, 80.0, 85.0, 89.0, 90.0}) {
      for (const Date& date : kDates) {
        CalculationContext ctx;
        SetBirth(ctx.state, date.d, date.m, date.y, 12, ns, lat, 0, "E", 25, 0, 1);
        EXPECT_NO_THROW(ComputeChartPositions(ctx, kRasiDivision)) << lat << ns << " " << date.d << "/" << date.m
                                                                    << "/" << date.y;
        const HoroscopeState& s = ctx.state;
        EXPECT_EQ(s.GulikaMaandiKnown, !s.DayOrNight.empty());
        if (s.GulikaMaandiKnown) {
          EXPECT_GT(s.DaySunset, s.DaySunrise);
          EXPECT_GT(s.DayNextSunrise, s.DaySunset);
        }
      }
    }
  }
}

}  // namespace
}  // namespace kelvaro
