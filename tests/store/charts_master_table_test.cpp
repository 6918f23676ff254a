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

int SeedRowCount() {
  std::ifstream in(std::string(KELVARO_DATA_DIR) + "/chartsmaster.csv");
  std::string line;
  int rows = -1;  // the first line holds the column names
  while (std::getline(in, line)) {
    if (!line.empty()) ++rows;
  }
  return rows;
}

// Each expected sign is worked by hand from the rule of the chart (sign
// numbers 1 Aries to 12 Pisces), not read from the seed file.
TEST_F(ChartsMasterTableTest, SeedRowsFollowTheClassicalRules) {
  const DatabaseChartsMasterTable table(db_);
  EXPECT_EQ(static_cast<int>(table.RowCount()), SeedRowCount());
  const kelvaro::ChartsMasterTable& lookup = table;
  const struct {
    const char* chart;
    double degree;
    int rasi;
    std::optional<int> house;
    const char* why;
  } cases[] = {
      {"HORA", 14.999, 1, 5, "odd sign, first half: the Sun's hora, Leo"},
      {"HORA", 15.0, 1, 4, "odd sign, on 15: the second half, Cancer"},
      {"HORA", 0.0, 2, 4, "even sign, first half: the Moon's hora, Cancer"},
      {"DREKKANA", 9.999, 2, 2, "Taurus, first third: Taurus itself"},
      {"DREKKANA", 10.0, 2, 6, "Taurus, on 10: its 5th, Virgo"},
      {"CHATURTHAMSHA", 7.4999, 1, 1, "Aries, first quarter: Aries"},
      {"CHATURTHAMSHA", 7.5, 1, 4, "Aries, on 7.5: its 4th, Cancer"},
      {"DASHAMSHA", 29.99, 1, 10, "Aries, tenth part from Aries: Capricorn"},
      {"DASHAMSHA", 3.0, 2, 11, "Taurus counts from its 9th (Capricorn); part 2 is Aquarius"},
      {"EKADASHAMSHA", 2.7272727272727, 2, 12, "just below 30/11"},
      {"EKADASHAMSHA", 2.72727272727273, 2, 1, "on the stored edge of 30/11: Aries"},
      {"DWADASHAMSHA", 2.5, 12, 1, "Pisces, part 2 from Pisces: Aries"},
      {"CHATURVIMSHAMSHA", 28.75, 4, 3, "even sign from Cancer, part 24: Gemini"},
      {"TRIMSHAMSHA", 4.99, 1, 1, "odd sign, Mars 0-5: Aries"},
      {"TRIMSHAMSHA", 5.0, 1, 11, "odd sign, Saturn 5-10: Aquarius"},
      {"TRIMSHAMSHA", 11.99, 2, 6, "even sign, Mercury 5-12: Virgo"},
      {"TRIMSHAMSHA", 12.0, 2, 12, "even sign, Jupiter 12-20: Pisces"},
      {"KHAVEDAMSA", 0.0, 2, 7, "even sign from Libra"},
      {"AKSHVEDAMSA", 0.0, 3, 9, "dual sign from Sagittarius"},
      {"AKSHVEDAMSA", 0.666666666666667, 4, 2, "movable sign from Aries, on the edge of part 2: Taurus"},
      {"SHASTIAMSA", 0.5, 7, 8, "Libra, part 2 from Libra: Scorpio"},
      {"hora", 3.0, 1, 5, "the name in lower case"},
      {"Drekkana", 10.0, 2, 6, "the name in mixed case"},
      {"HORA", 30.0, 1, std::nullopt, "30 is no degree within a sign"},
      {"HORA", -0.5, 1, std::nullopt, "below the first band"},
      {"HORA", 3.0, 13, std::nullopt, "no sign 13"},
      {"NAVAMSA", 3.0, 1, std::nullopt, "computed charts have no rows"},
      {"HORA ", 3.0, 1, std::nullopt, "the name is not trimmed"},
  };
  for (const auto& c : cases) {
    SCOPED_TRACE(std::string(c.chart) + " " + std::to_string(c.degree) + " rasi " + std::to_string(c.rasi) + ": " +
                 c.why);
    EXPECT_EQ(lookup.House(c.chart, c.degree, c.rasi), c.house);
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

}  // namespace
}  // namespace kelvaro::store
