#include "common/ole_date.h"

#include <gtest/gtest.h>

#include <array>
#include <stdexcept>

#include "common/calculation_error.h"

namespace kelvaro {
namespace {

constexpr double kSecond = 1.0 / 86400.0;

// The parts as one value, so that a row is compared in one expectation.
std::array<int, 6> Fields(const DateParts& p) { return {p.year, p.month, p.day, p.hour, p.minute, p.second}; }

TEST(OleDate, KnownSerials) {
  struct Case {
    int y, m, d, h, n, s;
    double serial;
  } cases[] = {
      {1899, 12, 30, 0, 0, 0, 0.0},
      {1899, 12, 31, 0, 0, 0, 1.0},
      {1900, 1, 1, 0, 0, 0, 2.0},
      {1899, 12, 29, 6, 0, 0, -1.25},  // negative day, forward clock
      {1899, 12, 30, 6, 0, 0, 0.25},
      {1965, 7, 14, 14, 15, 0, 23937.59375},
      {2000, 3, 1, 0, 0, 0, 36586.0},
      {100, 1, 1, 0, 0, 0, -657434.0},
  };
  for (const auto& c : cases) {
    const OleDate d = OleDate::FromParts(c.y, c.m, c.d, c.h, c.n, c.s);
    EXPECT_NEAR(d.Value(), c.serial, 1e-9) << c.y << "-" << c.m << "-" << c.d;
    EXPECT_EQ(Fields(OleDate(c.serial).Parts()), (std::array<int, 6>{c.y, c.m, c.d, c.h, c.n, c.s}));
  }
}

TEST(OleDate, InvalidDatesAreRefused) {
  EXPECT_THROW(OleDate::FromParts(1965, 2, 29), std::invalid_argument);
  EXPECT_THROW(OleDate::FromParts(1965, 4, 31), std::invalid_argument);
  EXPECT_THROW(OleDate::FromParts(1965, 13, 1), std::invalid_argument);
  EXPECT_THROW(OleDate::FromParts(1965, 7, 14, 14, 75), std::invalid_argument);
  EXPECT_NO_THROW(OleDate::FromParts(2000, 2, 29));
  EXPECT_THROW(OleDate::FromParts(1900, 2, 29), std::invalid_argument);
}

TEST(OleDate, PartsAreReadRoundedToTheSecond) {
  // 23:59:59.6 reads as the next day's midnight.
  const OleDate late(OleDate::FromParts(1965, 7, 14, 23, 59, 59).Linear() + 0.6 * kSecond);
  EXPECT_EQ(Fields(late.Parts()), (std::array<int, 6>{1965, 7, 15, 0, 0, 0}));
  const OleDate early(OleDate::FromParts(1965, 7, 14, 10, 0, 0).Linear() + 0.4 * kSecond);
  EXPECT_EQ(early.Second(), 0);
}

TEST(OleDate, WeekdaysRunSundayOneToSaturdaySeven) {
  EXPECT_EQ(OleDate::FromParts(1899, 12, 30).Weekday(), 7);  // Saturday
  EXPECT_EQ(OleDate::FromParts(1899, 12, 31).Weekday(), 1);
  EXPECT_EQ(OleDate::FromParts(1965, 7, 14).Weekday(), 4);  // Wednesday
  EXPECT_EQ(OleDate::FromParts(2026, 11, 21).Weekday(), 7);
  EXPECT_EQ(OleDate::FromParts(1899, 12, 29, 23, 0).Weekday(), 6);
}

TEST(DateAdd, CountIsMadeWholeHalfToEven) {
  const OleDate base = OleDate::FromParts(2000, 1, 1, 6, 0, 0);
  struct Case {
    const char* interval;
    double count;
    int y, m, d, h, n, s;
  } cases[] = {
      {"s", 1441.87, 2000, 1, 1, 6, 24, 2},  // 1442 seconds
      {"d", 2.5, 2000, 1, 3, 6, 0, 0},       // 2 days, half to even
      {"d", 3.5, 2000, 1, 5, 6, 0, 0},       // 4 days
      {"D", -1, 1999, 12, 31, 6, 0, 0},
      {"h", 18, 2000, 1, 2, 0, 0, 0},
      {"H", -7, 1999, 12, 31, 23, 0, 0},
      {"n", 90, 2000, 1, 1, 7, 30, 0},
      {"n", 0.5, 2000, 1, 1, 6, 0, 0},
      {"n", 1.5, 2000, 1, 1, 6, 2, 0},
  };
  for (const auto& c : cases) {
    EXPECT_EQ(Fields(DateAdd(c.interval, c.count, base).Parts()), (std::array<int, 6>{c.y, c.m, c.d, c.h, c.n, c.s}))
        << c.interval << " " << c.count;
  }
}

TEST(DateAdd, MonthsAndYearsClampToMonthEnd) {
  struct Case {
    const char* interval;
    int count;
    int y0, m0, d0;
    int y, m, d;
  } cases[] = {
      {"m", 1, 2001, 1, 31, 2001, 2, 28},    {"m", 1, 2000, 1, 31, 2000, 2, 29},
      {"m", -1, 2001, 3, 31, 2001, 2, 28},   {"m", 12, 1965, 7, 14, 1966, 7, 14},
      {"m", 13, 1965, 12, 15, 1967, 1, 15},  {"yyyy", 1, 2000, 2, 29, 2001, 2, 28},
      {"yyyy", 4, 2000, 2, 29, 2004, 2, 29}, {"m", -14, 2000, 1, 10, 1998, 11, 10},
  };
  for (const auto& c : cases) {
    const OleDate start = OleDate::FromParts(c.y0, c.m0, c.d0, 14, 15);
    // The clock is kept.
    EXPECT_EQ(Fields(DateAdd(c.interval, c.count, start).Parts()), (std::array<int, 6>{c.y, c.m, c.d, 14, 15, 0}));
  }
}

TEST(DateAdd, BeforeTheEpochFollowsTheCalendar) {
  const OleDate d = OleDate::FromParts(1899, 12, 29, 6, 0);
  EXPECT_EQ(Fields(DateAdd("h", 6, d).Parts()), (std::array<int, 6>{1899, 12, 29, 12, 0, 0}));
  EXPECT_EQ(Fields(DateAdd("h", 18, d).Parts()), (std::array<int, 6>{1899, 12, 30, 0, 0, 0}));
  EXPECT_EQ(Fields(DateAdd("d", 1, d).Parts()), (std::array<int, 6>{1899, 12, 30, 6, 0, 0}));
}

TEST(DateAdd, CountBeyond32BitsIsAnError) {
  EXPECT_THROW(DateAdd("s", 3e9, OleDate(0.0)), CalculationError);
}

TEST(DateDiff, CountsBoundariesAndWholeUnits) {
  const OleDate a = OleDate::FromParts(1965, 7, 14, 23, 59, 0);
  const OleDate b = OleDate::FromParts(1965, 7, 15, 0, 1, 0);
  EXPECT_EQ(DateDiff("d", a, b), 1);  // one midnight crossed, two minutes apart
  EXPECT_EQ(DateDiff("d", b, a), -1);
  EXPECT_EQ(DateDiff("n", a, b), 2);
  EXPECT_EQ(DateDiff("s", a, b), 120);
  EXPECT_EQ(DateDiff("d", OleDate::FromParts(1965, 7, 14, 0, 0), OleDate::FromParts(1965, 7, 14, 23, 59)), 0);
  EXPECT_EQ(DateDiff("yyyy", OleDate::FromParts(1965, 12, 31), OleDate::FromParts(1966, 1, 1)), 1);
  EXPECT_EQ(DateDiff("yyyy", OleDate::FromParts(1965, 1, 1), OleDate::FromParts(1965, 12, 31)), 0);
  // Minutes count whole units: 1 min 59 s is one minute, -1 min 59 s is minus one.
  const OleDate c = OleDate::FromParts(2000, 1, 1, 6, 0, 0);
  const OleDate d = OleDate::FromParts(2000, 1, 1, 6, 1, 59);
  EXPECT_EQ(DateDiff("n", c, d), 1);
  EXPECT_EQ(DateDiff("n", d, c), -1);
  // Twelve hours of seconds, and across the epoch.
  EXPECT_EQ(DateDiff("s", OleDate::FromParts(2000, 1, 1, 6, 0), OleDate::FromParts(2000, 1, 1, 18, 0)), 43200);
  EXPECT_EQ(DateDiff("d", OleDate::FromParts(1899, 12, 29, 23, 0), OleDate::FromParts(1899, 12, 30, 1, 0)), 1);
}

TEST(DateAdd, RoundTripsWithDateDiff) {
  const OleDate start = OleDate::FromParts(1987, 4, 14, 5, 59, 0);
  for (int n : {-100000, -86401, -1, 0, 1, 59, 3600, 86399, 86400, 1000000}) {
    EXPECT_EQ(DateDiff("s", start, DateAdd("s", n, start)), n);
  }
  for (int n : {-400, -1, 1, 365, 36525}) EXPECT_EQ(DateDiff("d", start, DateAdd("d", n, start)), n);
}

}  // namespace
}  // namespace kelvaro
