// The dasa step's sub-periods in tempBhukthi through the interface the step
// sees: only the last chart of a user id stays, other users keep theirs, and a
// write that fails half-way leaves the user's previous rows.
#include "store/bhukthi_sink.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "store/calculation_tables.h"
#include "store/database.h"
#include "store/store_error.h"
#include "store_test_support.h"

namespace kelvaro::store {
namespace {

using testing::TempFolder;

class BhukthiSinkTest : public ::testing::Test {
 protected:
  // The user's rows as the table holds them, in the order of insertion.
  std::vector<kelvaro::BhukthiRow> Stored(const std::string& userId) {
    std::vector<kelvaro::BhukthiRow> rows;
    for (const BhukthiRow& r : BhukthiRowsOf(db_, userId)) {
      rows.push_back({r.dasaName, r.bhukthiName, r.start, r.end, r.age});
    }
    return rows;
  }
  int Count() { return db_.Connection().execAndGet("SELECT count(*) FROM tempBhukthi").getInt(); }

  TempFolder folder_;
  Database db_{folder_ / "DBMirvaneBasic.db"};
  DatabaseBhukthiSink store_{db_};
  kelvaro::BhukthiSink& sink_ = store_;
};

const std::vector<kelvaro::BhukthiRow> kFirstChart = {
    {"Sun", "Mercury", "14/Jul/1965", "24/Mar/1966", "0"},
    {"Sun", "Kethu", "24/Mar/1966", "30/Jul/1966", "0"},
    {"Sun", "Venus", "30/Jul/1966", "30/Jul/1967", "1"},
};
const std::vector<kelvaro::BhukthiRow> kSecondChart = {
    {"Chandra", "Kuja", "02/Jan/1990", "01/Aug/1990", "0"},
    {"Chandra", "Rahu", "01/Aug/1990", "01/Feb/1992", "0"},
};

TEST_F(BhukthiSinkTest, OnlyTheLastChartOfAUserStays) {
  sink_.Replace("Velnesh", kFirstChart);
  sink_.Replace("Other", kSecondChart);
  EXPECT_EQ(Stored("Velnesh"), kFirstChart);
  EXPECT_EQ(Count(), 5);

  sink_.Replace("Velnesh", kSecondChart);
  EXPECT_EQ(Stored("Velnesh"), kSecondChart);
  EXPECT_EQ(Stored("Other"), kSecondChart);
  EXPECT_EQ(Count(), 4);

  sink_.Replace("Velnesh", {});
  EXPECT_TRUE(Stored("Velnesh").empty());
  EXPECT_EQ(Stored("Other"), kSecondChart);
}

// Bound, not joined into the statement: a quote is kept as it is.
TEST_F(BhukthiSinkTest, QuotesAreStoredAsTheyAre) {
  const std::vector<kelvaro::BhukthiRow> rows = {{"Ra'hu", "Gu'ru", "01/Jan/2000", "02/Jan/2000", "3"}};
  sink_.Replace("O'Brien", rows);
  EXPECT_EQ(Stored("O'Brien"), rows);
  // The end column spelled as the program spells it, the dates as text.
  EXPECT_EQ(db_.Connection().execAndGet("SELECT BhukhiEnd FROM tempBhukthi").getString(), "02/Jan/2000");
}

// The third insert fails: the delete and the two inserts before it are rolled
// back, so the user's previous chart is still there.
TEST_F(BhukthiSinkTest, FailedWriteKeepsThePreviousRows) {
  sink_.Replace("Velnesh", kFirstChart);
  db_.Connection().exec(
      "CREATE TRIGGER refuse_rahu BEFORE INSERT ON tempBhukthi WHEN NEW.BhukthiName = 'Rahu' "
      "BEGIN SELECT RAISE(ABORT, 'refused'); END");
  std::vector<kelvaro::BhukthiRow> failing = kSecondChart;
  failing.push_back({"Chandra", "Rahu", "01/Feb/1992", "01/Jun/1993", "2"});
  failing[1].bhukthiName = "Guru";
  EXPECT_THROW(sink_.Replace("Velnesh", failing), StoreError);
  EXPECT_EQ(Stored("Velnesh"), kFirstChart);
  EXPECT_EQ(Count(), 3);
}

}  // namespace
}  // namespace kelvaro::store
