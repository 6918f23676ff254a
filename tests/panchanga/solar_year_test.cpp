// The year-start rule on hand-worked rows, and the sixty seed rows of
// KaliyugaYearDetails against the Sun's entry into sidereal Aries.
#include <gtest/gtest.h>

#include <fstream>
#include <map>
#include <sstream>
#include <string>

#include "astronomy/find_planet_position.h"
#include "astronomy/find_sunrise.h"
#include "astronomy/find_sunset.h"
#include "common/date_text.h"
#include "panchanga/solar_year.h"
#include "support/test_data.h"
#include "support/year_table.h"

namespace kelvaro {
namespace {

using testing::FixedDay;
using testing::MapYearTable;
using testing::SeedYearTable;

TEST(SolarYear, WeekdayNamesAndYearNumbers) {
  EXPECT_EQ(WeekdayNameOf(1), "Sunday");
  EXPECT_EQ(WeekdayNameOf(7), "Saturday");
  EXPECT_EQ(WeekdayNameOf(8), "Sunday");
  EXPECT_EQ(WeekdayNameOf(15), "Sunday");
  EXPECT_EQ(WeekdayNameOf(0), "");
  struct Case {
    int year, number;
  } cases[] = {{1987, 1}, {1986, 60}, {2046, 60}, {2047, 1}, {2106, 60}, {2107, 61}, {1926, 60}, {1900, 34}};
  for (const auto& c : cases) EXPECT_EQ(KaliyugaYearNumber(c.year), c.number) << c.year;
}

// The candidates and fractions of tests/data/panchanga/solar_year_starts.txt.
TEST(SolarYear, CandidateAndFractionRules) {
  const auto rows = kelvaro::testing::TestDataTable("panchanga/solar_year_starts.txt");
  ASSERT_EQ(rows.size(), 7u);
  for (const auto& row : rows) {
    ASSERT_EQ(row.size(), 4u);
    SCOPED_TRACE(row[3]);
    MapYearTable t;
    t.rows[14] = {"Vikrama", 2000, static_cast<std::int16_t>(std::stoi(row[1])), std::stod(row[0])};
    const auto start = FindYearStart(2000, t, FixedDay);
    ASSERT_TRUE(start.has_value());
    EXPECT_EQ(FormatDate(*start, "DD/MM/YYYY HH:NN"), row[2]);
  }
}

TEST(SolarYear, PeriodsAndMissingRows) {
  MapYearTable t;
  // 1900 (Yearno 34, first period: +0.7189, +4): YearRemain 0.5 gives Int(f) 1,
  // DayVal -3 a sum of 2, Monday, which is 16 April 1900: the fifth
  // candidate, which the first period does not try.
  t.rows[34] = {"Pramadi", 1900, -3, 0.5};
  EXPECT_FALSE(FindYearStart(1900, t, FixedDay).has_value());
  // 1930 (Yearno 4, second period: +0.2397, +3): 16 April 1930 was a
  // Wednesday (4); YearRemain 0.7603 gives f = 1.0, so DayVal 0 sums to 4.
  t.rows[4] = {"Pramoda", 1930, 0, 0.7603};
  const auto start = FindYearStart(1930, t, FixedDay);
  ASSERT_TRUE(start.has_value());
  EXPECT_EQ(start->Day(), 16);
  // No correction before 1866, and no row, give no start.
  t.rows[40] = {"Paridhavi", 1846, 1, 0.1};
  EXPECT_FALSE(FindYearStart(1846, t, FixedDay).has_value());
  EXPECT_FALSE(FindYearStart(1999, t, FixedDay).has_value());
}

SunTimes Ujjain(OleDate date) {
  clsFindSunrise rise;
  clsFindSunSet set;
  return {rise.FnFindSunrise(date, "N", 23, 11, "E", 75, 46, 0, 5.5, "E"),
          set.FnFindSunset(date, "N", 23, 11, "E", 75, 46, 0, 5.5, "E")};
}

// The first minute of April at which the Sun's sidereal (Lahiri) longitude has
// passed 0 Aries, by stepping hours and then minutes.
OleDate AriesEntry(int year) {
  ClsFindPlanetPosition f;
  auto passed = [&](OleDate m) {
    f.FindSunMoonValues(m, "N", 23, 11, "E", 75, 46, 5.5, "E", 0, "Lahiri", 0, 0);
    return f.FnFindSunPosition() < 180;
  };
  OleDate t = OleDate::FromParts(year, 4, 9);
  while (!passed(DateAdd(Interval::Hour, 1, t))) t = DateAdd(Interval::Hour, 1, t);
  while (!passed(t)) t = DateAdd(Interval::Minute, 1, t);
  return t;
}

TEST(SolarYear, SeedRowsLandOnTheDayOfTheSunsEntryIntoAries) {
  const MapYearTable seed = SeedYearTable();
  ASSERT_EQ(seed.rows.size(), 60u);
  EXPECT_EQ(seed.rows.at(1).yearname, "Prabhava");
  for (int year = 1987; year <= 2046; ++year) {
    const OleDate entry = AriesEntry(year);
    const SunTimes day = Ujjain(entry.DateOnly());
    // The day of the entry, or the next when the entry falls after sunset.
    const OleDate expected = entry >= day.sunset ? Ujjain(DateAdd(Interval::Day, 1, entry.DateOnly())).sunrise
                                                 : day.sunrise;
    const auto start = FindYearStart(year, seed, Ujjain);
    ASSERT_TRUE(start.has_value()) << year;
    EXPECT_EQ(FormatDate(*start, "DD/MM/YYYY HH:NN"), FormatDate(expected, "DD/MM/YYYY HH:NN"))
        << year << ", entry " << FormatDate(entry, "DD/MM/YYYY HH:NN");
  }
}

}  // namespace
}  // namespace kelvaro
