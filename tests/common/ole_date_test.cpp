#include "common/ole_date.h"

#include <gtest/gtest.h>

#include <array>
#include <stdexcept>

#include "common/calculation_error.h"
#include "support/moment_text.h"
#include "support/test_data.h"

namespace kelvaro {
namespace {

constexpr double kSecond = 1.0 / 86400.0;

// The parts as one value, so that a row is compared in one expectation.
std::array<int, 6> Fields(const DateParts& p) { return {p.year, p.month, p.day, p.hour, p.minute, p.second}; }

// The rows of tests/data/common/ole_dates.txt: serials both ways, and
// DateAdd from a start.
TEST(OleDate, WorkedSerialsAndSums) {
  const auto rows = testing::TestDataTable("common/ole_dates.txt");
  ASSERT_EQ(rows.size(), 28u);
  for (const auto& row : rows) {
    SCOPED_TRACE(row[0] + " " + row[1]);
    if (row[0] == "Serial") {
      ASSERT_EQ(row.size(), 3u);
      EXPECT_NEAR(testing::MomentOf(row[1]).Value(), std::stod(row[2]), 1e-9);
      EXPECT_EQ(Fields(OleDate(std::stod(row[2])).Parts()), testing::MomentFields(row[1]));
    } else {
      ASSERT_EQ(row[0], "DateAdd");
      ASSERT_EQ(row.size(), 5u);
      const OleDate sum = DateAdd(row[2], std::stod(row[3]), testing::MomentOf(row[1]));
      EXPECT_EQ(Fields(sum.Parts()), testing::MomentFields(row[4])) << row[2] << " " << row[3];
    }
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
