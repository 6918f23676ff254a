// The divisional-chart bands as the calculation reads them from a new
// database: seed rows worked from the classical rules, the band limits, the
// name without regard to case, agreement with the query of the store, and the
// table read once.
#include "store/charts_master_table.h"

#include <gtest/gtest.h>

#include <fstream>
#include <optional>
#include <string>

#include "store/calculation_tables.h"
#include "store/database.h"
#include "store/seed_files.h"
#include "store_test_support.h"
#include "support/test_data.h"

namespace kelvaro::store {
namespace {

using testing::TempFolder;

class ChartsMasterTableTest : public ::testing::Test {
 protected:
  void SetUp() override {
    if (!SeedFile("chartsmaster.csv")) GTEST_SKIP() << "the build has no data/chartsmaster.csv";
  }
  TempFolder folder_;
  Database db_{folder_ / "DBMirvaneBasic.db"};
};

int SeedRowCount() { return static_cast<int>(kelvaro::testing::SeedCsvRows("chartsmaster.csv").size()); }

// Each expected sign, in tests/data/charts_master/classical_rules.txt, is
// worked by hand from the rule of the chart (sign numbers 1 Aries to 12
// Pisces), not read from the seed file.
TEST_F(ChartsMasterTableTest, SeedRowsFollowTheClassicalRules) {
  const DatabaseChartsMasterTable table(db_);
  EXPECT_EQ(static_cast<int>(table.RowCount()), SeedRowCount());
  const kelvaro::ChartsMasterTable& lookup = table;
  const auto rows = kelvaro::testing::TestDataTable("charts_master/classical_rules.txt");
  ASSERT_EQ(rows.size(), 28u);
  for (const auto& row : rows) {
    ASSERT_EQ(row.size(), 5u);
    SCOPED_TRACE(row[0] + " " + row[1] + " rasi " + row[2] + ": " + row[4]);
    const std::optional<int> house = row[3].empty() ? std::nullopt : std::optional<int>(std::stoi(row[3]));
    EXPECT_EQ(lookup.House(row[0], std::stod(row[1]), std::stoi(row[2])), house);
  }
}

// The answer from memory is the answer of the query, on every band edge and
// just inside both sides of it, for every chart and sign of the seed.
TEST_F(ChartsMasterTableTest, AgreesWithTheQueryOnEveryEdge) {
  const DatabaseChartsMasterTable table(db_);
  SQLite::Statement rows(db_.Connection(), "SELECT chartname, RasiHouse, startDegree, EndDegree FROM chartsmaster");
  int checked = 0;
  while (rows.executeStep()) {
    const std::string chart = rows.getColumn(0).getString();
    const int rasi = rows.getColumn(1).getInt();
    const double start = rows.getColumn(2).getDouble();
    const double end = rows.getColumn(3).getDouble();
    for (double d : {start, (start + end) / 2, end, end - 1e-9}) {
      ASSERT_EQ(table.House(chart, d, rasi), ChartsMasterHouse(db_, chart, d, rasi))
          << chart << " rasi " << rasi << " degree " << d;
      ++checked;
    }
  }
  EXPECT_EQ(checked, 4 * SeedRowCount());
}

// Bands of our own: where two bands of one sign overlap, the first row wins,
// as the query's first row does.
TEST_F(ChartsMasterTableTest, FirstRowWinsAndTheTableIsReadOnce) {
  db_.Connection().exec(
      "INSERT INTO chartsmaster (chartname, RasiHouse, startDegree, EndDegree, HouseNumber) VALUES "
      "('testamsa', 3, 0, 20, 7), ('TestAmsa', 3, 10, 30, 8), ('testamsa', 4, 0, 30, 11)");
  const DatabaseChartsMasterTable table(db_);
  EXPECT_EQ(table.House("TESTAMSA", 15.0, 3), 7);
  EXPECT_EQ(table.House("testamsa", 20.0, 3), 8);
  EXPECT_EQ(table.House("testamsa", 15.0, 4), 11);
  db_.Connection().exec("DELETE FROM chartsmaster");
  EXPECT_EQ(table.House("testamsa", 15.0, 4), 11);
  EXPECT_EQ(table.House("HORA", 3.0, 1), 5);
  EXPECT_EQ(DatabaseChartsMasterTable(db_).House("HORA", 3.0, 1), std::nullopt);
}

// The query on bands of our own, so the rule is tested apart from the seed's
// values: the lower limit is inclusive, the upper exclusive, the chart name
// matched without regard to case, the rasi must agree.
TEST(ChartsMasterQuery, BandLimits) {
  TempFolder folder;
  Database db(folder / "DBMirvaneBasic.db");
  db.Connection().exec(
      "INSERT INTO chartsmaster (chartname, RasiHouse, startDegree, EndDegree, HouseNumber) VALUES "
      "('testamsa', 3, 0, 10, 7), ('testamsa', 3, 10, 20, 8), ('testamsa', 3, 20, 30, 9), "
      "('testamsa', 4, 0, 30, 11)");
  const struct {
    const char* chart;
    double degree;
    int rasi;
    std::optional<int> house;
  } cases[] = {
      {"testamsa", 0.0, 3, 7},   {"testamsa", 9.999999, 3, 7}, {"testamsa", 10.0, 3, 8},  // on EndDegree: next row
      {"TESTAMSA", 19.5, 3, 8},  {"TestAmsa", 29.99, 3, 9},    {"testamsa", 30.0, 3, std::nullopt},
      {"testamsa", 15.0, 4, 11}, {"testamsa", 15.0, 5, std::nullopt}, {"otheramsa", 15.0, 3, std::nullopt},
  };
  for (const auto& c : cases) {
    SCOPED_TRACE(std::string(c.chart) + " " + std::to_string(c.degree) + " rasi " + std::to_string(c.rasi));
    EXPECT_EQ(ChartsMasterHouse(db, c.chart, c.degree, c.rasi), c.house);
  }
}

}  // namespace
}  // namespace kelvaro::store
