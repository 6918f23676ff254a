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

#include "astronomy/find_sunrise.h"
#include "astronomy/find_sunset.h"
#include "common/date_text.h"
#include "panchanga/solar_calendar.h"
#include "support/test_data.h"
#include "support/year_table.h"

namespace kelvaro {
namespace {

using testing::FixedDay;
using testing::MapYearTable;
using testing::SeedYearTable;

std::string Text(OleDate moment) { return FormatDate(moment, "DD/MM/YYYY HH:NN"); }

const OleDate kToday = OleDate::FromParts(2024, 1, 1);

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
  const struct {
    const char* name;
    const char* start;
  } expected[] = {
      {"Chaitra", "13/04/2000 06:00"},    {"Vaisakha", "14/05/2000 06:00"}, {"Jyeshtha", "15/06/2000 06:00"},
      {"Ashadha", "16/07/2000 06:00"},    {"Sravana", "17/08/2000 06:00"},  {"Bhadrapada", "17/09/2000 06:00"},
      {"Asvina", "17/10/2000 06:00"},     {"Karttika", "16/11/2000 06:00"}, {"Margasira", "16/12/2000 06:00"},
      {"Pausha", "14/01/2001 06:00"},     {"Magha", "13/02/2001 06:00"},    {"Phalguna", "14/03/2001 06:00"},
  };
  for (size_t i = 0; i < 12; ++i) {
    EXPECT_EQ(months.names[i], expected[i].name) << i + 1;
    EXPECT_EQ(Text(months.starts[i]), expected[i].start) << expected[i].name;
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

TEST(SolarCalendar, KaliyugaYearAcrossPeriodAnchors) {
  const struct {
    int y, mo, d;
    int year;
  } cases[] = {
      {1865, 12, 31, 0},    {1866, 1, 1, 4967},  {1925, 12, 31, 5026}, {1926, 1, 1, 5027}, {1965, 4, 13, 5066},
      {1985, 12, 31, 5086}, {1986, 1, 1, 5087},  {2045, 12, 31, 5146}, {2046, 1, 1, 5147}, {2100, 7, 1, 5201},
  };
  for (const auto& c : cases) {
    EXPECT_EQ(KaliyugaYearOf(OleDate::FromParts(c.y, c.mo, c.d, 23, 59)), c.year) << c.y << "-" << c.mo << "-" << c.d;
  }
}

TEST(SolarCalendar, KaliDaysCountFromTheDateOrigin) {
  const struct {
    int y, mo, d;
    std::int32_t days;
  } cases[] = {
      {1899, 12, 30, 1790030},  // the origin 1 / 1 / 1800 is 48 s into this day
      {1899, 12, 29, 1790029},
      {1965, 7, 14, 1813967},
      {2024, 1, 1, 1835322},
  };
  for (const auto& c : cases) {
    EXPECT_EQ(KaliDays(OleDate::FromParts(c.y, c.mo, c.d, 10, 0)), c.days) << c.y;
  }
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
  const struct {
    int y, mo, d, h, mi;
    const char* text;
    const char* monthStartDate;
    int length;
    int kaliyuga;
  } cases[] = {
      {1965, 7, 14, 14, 15, "30  /  Jyeshtha  /  Vishvavasu", "15/06/1965", 31, 5066},
      {2000, 3, 1, 12, 0, "18  /  Magha  /  Pramathi", "13/02/2000", 30, 5100},
      {2000, 4, 13, 12, 0, "1  /  Chaitra  /  Vikrama", "13/04/2000", 31, 5101},
  };
  for (const auto& c : cases) {
    const OleDate moment = OleDate::FromParts(c.y, c.mo, c.d, c.h, c.mi);
    const SolarDate date = calendar.SolarDateOf(moment, kToday, sunTimes);
    EXPECT_EQ(SolarDateText(date), c.text) << c.y;
    EXPECT_EQ(FormatDate(date.monthStart, "DD/MM/YYYY"), c.monthStartDate) << c.y;
    // Every month starts at a sunrise of the place.
    EXPECT_EQ(date.monthStart, SunriseOf(date.monthStart, sunTimes)) << c.y;
    EXPECT_EQ(date.monthLength, c.length) << c.y;
    EXPECT_EQ(date.kaliyugaYear, c.kaliyuga) << c.y;
  }
}

}  // namespace
}  // namespace kelvaro
