// The lunar searches step over the hours in which neither the tithi nor the
// Sun's sign can change. These tests hold that quick walk to the hour-by-hour
// one: the hourly bounds it relies on, and every result of both walks over
// some hundreds of charts, one run each, as a chart window would make them.
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <string>

#include "common/date_text.h"
#include "panchanga/lunar_calendar.h"
#include "support/year_table.h"

namespace kelvaro {
namespace {

using testing::MapYearTable;
using testing::SeedYearTable;

struct OneChartRun {
  explicit OneChartRun(bool hourly) { calendar.hourByHour = hourly; }
  MapYearTable seed = SeedYearTable();
  ClsFindPlanetPosition positions;
  clsTithi tithi;
  clsFindSunrise sunrise;
  clsFindSunSet sunset;
  LunarCalendar calendar{positions, tithi, sunrise, sunset, seed};
};

// Everything a chart reads from the calendar after its two dates.
std::string Outcome(OneChartRun& run, OleDate birth, const LunarCalendarInputs& in) {
  std::string text = LunarDateText(run.calendar.LunarDateKrishnadi(birth, "TP", in));
  text += " | " + LunarDateText(run.calendar.LunarDateSukladi(birth, "TP", in));
  text += " | forward " + std::to_string(run.calendar.ForwardCount());
  for (OleDate d : run.calendar.MonthEndDates()) text += " " + FormatDate(d, "DD/MM/YYYY");
  char suns[96];
  std::snprintf(suns, sizeof suns, " | %.12f %.12f %.12f", run.calendar.PurnimaSun(), run.calendar.AmavasyaSun(),
                run.positions.FnFindSunPosition());
  return text + suns;
}

double Wrapped(double degrees) {
  double d = std::fmod(degrees, 360);
  if (d > 180) d -= 360;
  if (d < -180) d += 360;
  return d;
}

// The bounds the quick walk steps by: an hour never moves the elongation by
// 0.7 degrees nor the Sun by 0.05. Hours every 61 minutes over three years
// at each end of the accepted range and one in the middle; the largest moves
// found are some 0.61 and 0.043 degrees.
TEST(LunarWalk, HourlyMovesStayInsideTheBounds) {
  ClsFindPlanetPosition positions;
  double maxElongation = 0, maxSun = 0;
  for (int startYear : {1800, 1990, 2997}) {
    OleDate t = OleDate::FromParts(startYear, 1, 1, 0, 0);
    for (int i = 0; i < 3 * 365 * 24 * 60 / 61; ++i) {
      positions.FindSunMoonValues(t, "N", 17, 20, "E", 78, 30, 5.5, "E", 0, "Lahiri", 0, 0);
      const double sun0 = positions.FnFindSunPosition(), moon0 = positions.FnFindMoonPosition();
      const OleDate next = DateAdd(Interval::Hour, 1, t);
      positions.FindSunMoonValues(next, "N", 17, 20, "E", 78, 30, 5.5, "E", 0, "Lahiri", 0, 0);
      const double sun1 = positions.FnFindSunPosition(), moon1 = positions.FnFindMoonPosition();
      maxSun = std::max(maxSun, std::fabs(Wrapped(sun1 - sun0)));
      maxElongation = std::max(maxElongation, std::fabs(Wrapped((moon1 - sun1) - (moon0 - sun0))));
      t = DateAdd(Interval::Minute, 61, t);
    }
  }
  EXPECT_LT(maxElongation, 0.7);
  EXPECT_GT(maxElongation, 0.55);  // the walk really measured the Moon's speed
  EXPECT_LT(maxSun, 0.05);
  EXPECT_GT(maxSun, 0.04);
}

// Charts every 3 days and 5 hours from 2020 to 2023 at Hyderabad, and every
// 11 days and 7 hours at a southern place with the Raman ayanamsa: each
// chart's dates, counts, month-end dates and kept Suns are the same, to the
// last digit, by both walks, run after run.
TEST(LunarWalk, QuickWalkFindsWhatTheHourlyWalkFinds) {
  struct Place {
    LunarCalendarInputs in;
    OleDate first;
    int charts;
    int stepHours;
  };
  LunarCalendarInputs hyderabad;
  hyderabad.place = {"N", 17, 20, "E", 78, 30, 5.5, "E"};
  LunarCalendarInputs south;
  south.place = {"S", 33, 52, "E", 151, 12, 10, "E"};
  south.ayanamsa = "Raman";
  const Place places[] = {{hyderabad, OleDate::FromParts(2020, 1, 1, 6, 0), 340, 3 * 24 + 5},
                          {south, OleDate::FromParts(1899, 3, 1, 13, 0), 60, 11 * 24 + 7}};
  for (const Place& p : places) {
    OneChartRun quick(false), hourly(true);
    OleDate birth = p.first;
    for (int i = 0; i < p.charts; ++i) {
      const std::string when = FormatDate(birth, "DD/MM/YYYY hh:mm");
      ASSERT_EQ(Outcome(quick, birth, p.in), Outcome(hourly, birth, p.in)) << when;
      birth = DateAdd(Interval::Hour, p.stepHours, birth);
    }
  }
}

}  // namespace
}  // namespace kelvaro
