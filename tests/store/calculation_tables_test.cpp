// The tables the calculation uses: the chartsmaster lookup with its bounds,
// and the text columns of tempBhukthi.
#include <gtest/gtest.h>

#include "store/calculation_tables.h"
#include "store/database.h"
#include "store_test_support.h"

namespace kelvaro::store {
namespace {

using testing::TempFolder;

class CalculationTables : public ::testing::Test {
 protected:
  TempFolder folder_;
  Database db_{folder_ / "DBMirvaneBasic.db"};
};

// Bands of our own, so the rule is tested apart from the seed's values: the
// lower limit is inclusive, the upper exclusive, the chart name matched
// without regard to case, the rasi must agree.
TEST_F(CalculationTables, ChartsMasterLookupBounds) {
  db_.Connection().exec(
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
    EXPECT_EQ(ChartsMasterHouse(db_, c.chart, c.degree, c.rasi), c.house);
  }
}

// Replacing a user's rows is worked through the dasa's sink in
// bhukthi_sink_test; here the text columns as stored.
TEST_F(CalculationTables, BhukthiRowsAreStoredAsText) {
  const std::vector<BhukthiRow> rows = {{"Moon", "Moon", "14/07/1970", "14/05/1971", "0"}};
  ReplaceBhukthiRows(db_, "7", rows);
  EXPECT_EQ(BhukthiRowsOf(db_, "7"), rows);
  // The end column spelled as the program spells it.
  EXPECT_EQ(db_.Connection().execAndGet("SELECT BhukhiEnd FROM tempBhukthi WHERE UserID = '7'").getString(),
            "14/05/1971");
}

}  // namespace
}  // namespace kelvaro::store
