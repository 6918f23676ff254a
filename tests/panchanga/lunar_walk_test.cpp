// The lunar walks step over the hours in which neither the tithi nor the
// Sun's sign can change, and keep what they worked out: held here to the
// hourly bounds they rely on and to the hour-by-hour walk.
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <string>
#include <tuple>

#include "common/date_text.h"
#include "panchanga/lunar_calendar.h"
#include "support/year_table.h"

namespace kelvaro {
namespace {

struct OneChartRun {
  explicit OneChartRun(bool hourly) { calendar.hourByHour = hourly; }
  testing::MapYearTable seed = testing::SeedYearTable();
  ClsFindPlanetPosition positions;
  clsTithi tithi;
  clsFindSunrise sunrise;
  clsFindSunSet sunset;
  LunarCalendar calendar{positions, tithi, sunrise, sunset, seed};

  // Everything a chart reads from the calendar and its facade after its dates.
  std::string Outcome(OleDate birth, const LunarCalendarInputs& in) {
    std::string text = LunarDateText(calendar.LunarDateKrishnadi(birth, "TP", in)) + " | " +
                       LunarDateText(calendar.LunarDateSukladi(birth, "TP", in)) + " | " +
                       std::to_string(calendar.ForwardCount());
    for (OleDate d : calendar.MonthEndDates()) text += " " + FormatDate(d, "DD/MM/YYYY");
    char suns[96];
    std::snprintf(suns, sizeof suns, " | %.12f %.12f %.12f", calendar.PurnimaSun(), calendar.AmavasyaSun(),
                  positions.FnFindSunPosition());
    return text + suns;
  }
};

double Turn(double degrees) { return std::remainder(degrees, 360.0); }

// An hour never moves the elongation by 0.7 degrees nor the Sun by 0.05: hours
// every 61 minutes over three years at each end of the accepted range and in
// the middle. The largest moves are some 0.61 and 0.043 degrees.
TEST(LunarWalk, HourlyMovesStayInsideTheBounds) {
  ClsFindPlanetPosition p;
  double elongation = 0, sun = 0;
  for (int year : {1800, 1990, 2997}) {
    for (OleDate t = OleDate::FromParts(year, 1, 1); t.Year() < year + 3; t = DateAdd(Interval::Minute, 61, t)) {
      p.FindSunMoonValues(t, "N", 17, 20, "E", 78, 30, 5.5, "E", 0, "Lahiri", 0, 0);
      const double s0 = p.FnFindSunPosition(), e0 = p.FnFindMoonPosition() - s0;
      p.FindSunMoonValues(DateAdd(Interval::Hour, 1, t), "N", 17, 20, "E", 78, 30, 5.5, "E", 0, "Lahiri", 0, 0);
      sun = std::max(sun, std::fabs(Turn(p.FnFindSunPosition() - s0)));
      elongation = std::max(elongation, std::fabs(Turn(p.FnFindMoonPosition() - p.FnFindSunPosition() - e0)));
    }
  }
  EXPECT_LT(elongation, 0.7);
  EXPECT_GT(elongation, 0.55);
  EXPECT_LT(sun, 0.05);
  EXPECT_GT(sun, 0.04);
}

// Charts every 3 days 5 hours through 2020 to 2022 at Hyderabad, and every 11
// days 7 hours from 1899 at a southern place with the Raman ayanamsa, one run
// each: every result of both walks is the same to the last digit.
TEST(LunarWalk, QuickWalkFindsWhatTheHourlyWalkFinds) {
  LunarCalendarInputs hyderabad, south;
  hyderabad.place = {"N", 17, 20, "E", 78, 30, 5.5, "E"};
  south.place = {"S", 33, 52, "E", 151, 12, 10, "E"};
  south.ayanamsa = "Raman";
  for (auto [in, birth, charts, stepHours] : {std::tuple{hyderabad, OleDate::FromParts(2020, 1, 1, 6, 0), 340, 77},
                                              std::tuple{south, OleDate::FromParts(1899, 3, 1, 13, 0), 60, 271}}) {
    OneChartRun quick(false), hourly(true);
    for (int i = 0; i < charts; ++i, birth = DateAdd(Interval::Hour, stepHours, birth)) {
      ASSERT_EQ(quick.Outcome(birth, in), hourly.Outcome(birth, in)) << FormatDate(birth, "DD/MM/YYYY hh:mm");
    }
  }
}

}  // namespace
}  // namespace kelvaro
