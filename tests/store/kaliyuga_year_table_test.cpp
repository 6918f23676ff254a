// The sixty Kaliyuga years as the calendars read them from a new database:
// every row as the seed file holds it, the numbers without a row, and a
// DayVal that does not fit the 16 bits the calendars hold it in.
#include <gtest/gtest.h>

#include <string>

#include "common/calculation_error.h"
#include "store/database.h"
#include "store/kaliyuga_year_table.h"
#include "store_test_support.h"
#include "support/year_table.h"

namespace kelvaro::store {
namespace {

using testing::TempFolder;

class KaliyugaYearTableTest : public ::testing::Test {
 protected:
  TempFolder folder_;
  Database db_{folder_ / "DBMirvaneBasic.db"};
  DatabaseKaliyugaYearTable table_{db_};
};

// Through the interface the calendars see, compared with the file in data/
// read here field by field.
TEST_F(KaliyugaYearTableTest, EveryRowAsTheSeedFileHoldsIt) {
  const kelvaro::KaliyugaYearTable& table = table_;
  const kelvaro::testing::MapYearTable seed = kelvaro::testing::SeedYearTable();
  int rows = 0;
  for (const auto& [yearno, expected] : seed.rows) {
    const auto row = table.Row(yearno);
    ASSERT_TRUE(row.has_value()) << yearno;
    EXPECT_EQ(row->yearname, expected.yearname) << yearno;
    EXPECT_EQ(row->YearVal, expected.YearVal) << yearno;
    EXPECT_EQ(row->DayVal, expected.DayVal) << yearno;
    EXPECT_EQ(row->YearRemain, expected.YearRemain) << yearno;
    ++rows;
  }
  EXPECT_EQ(rows, 60);
}

TEST_F(KaliyugaYearTableTest, NumbersWithoutARowAndDayValOutsideSixteenBits) {
  for (int yearno : {0, -1, 61, 120}) EXPECT_FALSE(table_.Row(yearno).has_value()) << yearno;
  db_.Connection().exec("UPDATE KaliyugaYearDetails SET DayVal = 32768 WHERE Yearno = 5");
  EXPECT_THROW(table_.Row(5), kelvaro::CalculationError);
  db_.Connection().exec("UPDATE KaliyugaYearDetails SET DayVal = -32768 WHERE Yearno = 5");
  EXPECT_EQ(table_.Row(5)->DayVal, -32768);
}

}  // namespace
}  // namespace kelvaro::store
