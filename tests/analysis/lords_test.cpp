#include "analysis/lords.h"

#include <gtest/gtest.h>

#include <string>

#include "common/calculation_error.h"
#include "support/sample_chart.h"
#include "support/test_data.h"

namespace kelvaro {
namespace {

// The Sanskrit tables, so that a local name differs from its English lord.
using testing::SanskritNames;

// The rows of tests/data/analysis/lords.txt, each against its function.
TEST(Lords, WorkedLordsAndNames) {
  const ChartData chart = SanskritNames();
  const auto rows = testing::TestDataTable("analysis/lords.txt");
  ASSERT_EQ(rows.size(), 46u);
  for (const auto& row : rows) {
    SCOPED_TRACE(row[0] + " " + row[1]);
    ASSERT_GE(row.size(), 3u);
    if (row[0] == "DegreesInRasi") {
      EXPECT_DOUBLE_EQ(DegreesInRasi(std::stod(row[1])), std::stod(row[2]));
    } else if (row[0] == "RasiLordOf") {
      ASSERT_EQ(row.size(), 4u);
      EXPECT_EQ(RasiLordOf(std::stod(row[1]), row[2]), row[3]);
    } else if (row[0] == "StarLordOf") {
      EXPECT_EQ(StarLordOf(std::stoi(row[1])), row[2]);
    } else {
      ASSERT_EQ(row[0], "LocalisedPlanetName");
      EXPECT_EQ(LocalisedPlanetName(chart, row[1]), row[2]);
    }
  }
}

TEST(Lords, RasiNameOfOneToTwelve) {
  const ChartData chart = SanskritNames();
  EXPECT_EQ(RasiNameOf(chart, 1), "Mesha");
  EXPECT_EQ(RasiNameOf(chart, 10), "Makara");
  EXPECT_EQ(RasiNameOf(chart, 12), "Meena");
  EXPECT_THROW(RasiNameOf(chart, 0), CalculationError);
  EXPECT_THROW(RasiNameOf(chart, 13), CalculationError);
}

}  // namespace
}  // namespace kelvaro
