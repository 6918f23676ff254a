// The solar date and the Kaliyuga year. The expected values were worked by
// hand and with a throwaway script that follows the rules step by step with
// Python's datetime (days of fixed length) or with an independent ephemeris's
// sunrises at Hyderabad (the real-place cases, whose deciding moments all lie
// more than ten minutes from a sunset).
#include <gtest/gtest.h>

#include <cstdio>
#include <fstream>
#include <map>
#include <sstream>
#include <string>
#include <utility>
#include <vector>

#include "astronomy/find_sunrise.h"
#include "astronomy/find_sunset.h"
#include "common/date_text.h"
#include "panchanga/solar_calendar.h"
#include "support/moment_text.h"
#include "support/test_data.h"
#include "support/year_table.h"

namespace kelvaro {
namespace {

using testing::FixedDay;
using testing::MomentOf;
using testing::MapYearTable;
using testing::SeedYearTable;

std::string Text(OleDate moment) { return FormatDate(moment, "DD/MM/YYYY HH:NN"); }

const OleDate kToday = OleDate::FromParts(2024, 1, 1);

// The rows of one kind in tests/data/panchanga/solar_calendar_rows.txt.
std::vector<std::vector<std::string>> RowsOf(const std::string& kind) {
  std::vector<std::vector<std::string>> rows;
  for (auto& row : kelvaro::testing::TestDataTable("panchanga/solar_calendar_rows.txt")) {
    if (row[0] == kind) rows.push_back(std::move(row));
  }
  return rows;
}

// 2000 on days of fixed length, seed row 14 ("Vikrama": DayVal 3, YearRemain
// 0.7071). f = 0.7071 + 0.7609 = 1.468: weekday 1 + 3 + 1 = 5, Thursday,
// 13 April 2000; 0.468 of a day is 11 h 13 min after sunrise, before sunset.
// Month m: x = 0.468 + fraction; t = start + Int(x) + days, + Int(24 * frac x)
// hours, + Int(24 * frac(hours)) minutes. Magha's t is 12 Feb 2001 19:22, after
// sunset, so Magha begins at the next sunrise.
TEST(SolarCalendar, MonthStartsOfTwoThousandOnFixedDays) {
  const MapYearTable seed = SeedYearTable();
  const auto start = FindYearStartAndFraction(2000, seed, FixedDay);
  ASSERT_TRUE(start.has_value());
  EXPECT_EQ(Text(start->moment), "13/04/2000 06:00");
  EXPECT_NEAR(start->fraction, 0.468, 1e-12);
  const SolarMonthStarts months = SolarMonthsOf(*start, FixedDay);
  const auto expected = RowsOf("MonthStart");
  ASSERT_EQ(expected.size(), 12u);
  for (size_t i = 0; i < 12; ++i) {
    EXPECT_EQ(months.names[i], expected[i][2]) << i + 1;
    EXPECT_EQ(Text(months.starts[i]), expected[i][3]) << expected[i][2];
  }
}

// The dates of tests/data/panchanga/solar_dates_fixed_days.txt, each on a
// calendar of its own.
TEST(SolarCalendar, DatesAroundTheYearStartOnFixedDays) {
  const MapYearTable seed = SeedYearTable();
  const auto rows = kelvaro::testing::TestDataTable("panchanga/solar_dates_fixed_days.txt");
  ASSERT_EQ(rows.size(), 9u);
  for (const auto& row : rows) {
    ASSERT_EQ(row.size(), 6u);
    SCOPED_TRACE(row[0] + ": " + row[5]);
    int y = 0, mo = 0, d = 0, h = 0, mi = 0;
    ASSERT_EQ(std::sscanf(row[0].c_str(), "%d-%d-%d %d:%d", &y, &mo, &d, &h, &mi), 5);
    SolarCalendar calendar(seed);
    const SolarDate date = calendar.SolarDateOf(OleDate::FromParts(y, mo, d, h, mi), kToday, FixedDay);
    EXPECT_TRUE(date.found);
    EXPECT_EQ(SolarDateText(date), row[1]);
    EXPECT_EQ(Text(date.monthStart), row[2]);
    EXPECT_EQ(date.monthLength, std::stoi(row[3]));
    EXPECT_EQ(date.kaliyugaYear, std::stoi(row[4]));
    EXPECT_EQ(date.kaliDays, 1835322);  // 45292 days from 30/12/1899 to 01/01/2024, plus 1790030
  }
}

// No year before 1866 has a start: no solar date, Kaliyuga year 0, and the
// month name of the date before stays in place.
TEST(SolarCalendar, NoSolarDateBefore1866KeepsThePreviousMonthName) {
  const MapYearTable seed = SeedYearTable();
  SolarCalendar calendar(seed);
  const SolarDate first = calendar.SolarDateOf(OleDate::FromParts(1850, 6, 1, 12, 0), kToday, FixedDay);
  EXPECT_FALSE(first.found);
  EXPECT_EQ(first.kaliyugaYear, 0);
  EXPECT_EQ(first.monthName, "");
  EXPECT_EQ(SolarDateText(first), "");

  calendar.SolarDateOf(OleDate::FromParts(2000, 3, 1, 12, 0), kToday, FixedDay);
  const SolarDate after = calendar.SolarDateOf(OleDate::FromParts(1850, 6, 1, 12, 0), kToday, FixedDay);
  EXPECT_FALSE(after.found);
  EXPECT_EQ(after.monthName, "Magha");
  EXPECT_EQ(after.kaliyugaYear, 0);
  EXPECT_EQ(after.yearName, "");
  EXPECT_EQ(SolarDateText(after), "");
}

TEST(SolarCalendar, SolarDayCountsSunrisesAndIsNeverZero) {
  // A month start of our own at 05:00, an hour before the fixed sunrise, so
  // that a moment on the start's date but before its sunrise is reckoned
  // from the day before: base day 0, shown as 1.
  const OleDate start = OleDate::FromParts(2000, 5, 10, 5, 0);
  const OleDate next = OleDate::FromParts(2000, 6, 10, 5, 0);
  const struct {
    int d, h, mi;
    int day;
  } cases[] = {
      {10, 5, 30, 1},  // base 0 before sunrise: 0, made 1
      {10, 6, 0, 1},   // base 0 from sunrise: 1
      {11, 5, 59, 1},  // base 1 before sunrise: 1
      {11, 6, 0, 2},   // base 1 from sunrise: 2
      {30, 23, 59, 21},
  };
  for (const auto& c : cases) {
    const SolarDay day = SolarDayOf(start, next, OleDate::FromParts(2000, 5, c.d, c.h, c.mi), FixedDay);
    EXPECT_EQ(day.day, c.day) << c.d << " " << c.h << ":" << c.mi;
    EXPECT_EQ(day.length, 31);
  }
}

TEST(SolarCalendar, KaliyugaYearsAndDays) {
  const auto years = RowsOf("KaliyugaYear");
  ASSERT_EQ(years.size(), 10u);
  for (const auto& row : years) EXPECT_EQ(KaliyugaYearOf(MomentOf(row[1])), std::stoi(row[2])) << row[1];
  const auto days = RowsOf("KaliDays");
  ASSERT_EQ(days.size(), 4u);
  for (const auto& row : days) EXPECT_EQ(KaliDays(MomentOf(row[1])), std::stoi(row[2])) << row[1];
}

TEST(SolarCalendar, YearNamesAndTheirLimits) {
  const MapYearTable seed = SeedYearTable();
  EXPECT_EQ(KaliyugaYearName(1986, seed), "Akshaya");
  EXPECT_EQ(KaliyugaYearName(1965, seed), "Vishvavasu");
  EXPECT_EQ(KaliyugaYearName(1987, seed), "Prabhava");
  EXPECT_EQ(KaliyugaYearName(2106, seed), "Akshaya");
  EXPECT_EQ(KaliyugaYearName(2107, seed), "");  // number 61: no row
}

// At Hyderabad with the engine's sunrises. The sample chart lies in the third
// month of 1965: its start (f = 0.2391 + 0.2397 = 0.4788, weekday 0 + 7 + 3
// folded to 3, Tuesday 13 April 1965) plus 62 days, 19 h and 9 min is 15 June
// 01:10, before that day's sunset, so Jyeshtha begins at the sunrise of
// 15 June; 14 July is its 30th day. 1 March 2000 gives 1999's Magha as on fixed days.
TEST(SolarCalendar, SampleChartAtHyderabad) {
  const MapYearTable seed = SeedYearTable();
  clsFindSunrise rise;
  clsFindSunSet set;
  const CalendarPlace hyderabad{"N", 17, 20, "E", 78, 30, 5.5, "E"};
  const SunTimesOfDate sunTimes = SunTimesAt(rise, set, hyderabad);
  SolarCalendar calendar(seed);
  const auto rows = RowsOf("Hyderabad");
  ASSERT_EQ(rows.size(), 3u);
  for (const auto& row : rows) {
    SCOPED_TRACE(row[1]);
    const SolarDate date = calendar.SolarDateOf(MomentOf(row[1]), kToday, sunTimes);
    EXPECT_EQ(SolarDateText(date), row[2]);
    EXPECT_EQ(FormatDate(date.monthStart, "DD/MM/YYYY"), row[3]);
    // Every month starts at a sunrise of the place.
    EXPECT_EQ(date.monthStart, SunriseOf(date.monthStart, sunTimes));
    EXPECT_EQ(date.monthLength, std::stoi(row[4]));
    EXPECT_EQ(date.kaliyugaYear, std::stoi(row[5]));
  }
}

}  // namespace
}  // namespace kelvaro
