#include "analysis/planet_table.h"

#include <gtest/gtest.h>

#include <cmath>
#include <string>
#include <vector>

#include "analysis/avasthas.h"
#include "analysis/karakas.h"
#include "common/calculation_error.h"
#include "common/ole_date.h"
#include "support/sample_chart.h"
#include "support/test_data.h"

namespace kelvaro {
namespace {

using Row = std::vector<std::string>;

using testing::EnglishNames;
using testing::SanskritNames;

// The sample chart: 14/07/1965 14:15 at 17N20 78E30, zone 5.5 E, Lahiri,
// with the longitudes of its position pass.
ChartData SampleChart() {
  ChartData c = EnglishNames();
  c.longitude = testing::kSampleLongitude;
  c.birthMoment = OleDate::FromParts(1965, 7, 14, 14, 15);
  c.latNS = "N";
  c.latDeg = 17;
  c.latMin = 20;
  c.lonEW = "E";
  c.lonDeg = 78;
  c.lonMin = 30;
  c.timeDiff = 5.5;
  c.timeDiffEW = "E";
  c.ayanamsaInForce = "Lahiri";
  return c;
}

constexpr double kSampleIshtaGhati = 20.375;

double Above(double x) { return std::nextafter(x, 100.0); }

// The bands of the four sub-lord tables at their limits, from
// tests/data/planet_table/sub_lord_bands.txt.
TEST(SubLords, BandsEndAtTheirLimitInclusive) {
  const ChartData chart = SanskritNames();
  using Table = const std::string& (*)(const ChartData&, double);
  const Table tables[] = {SubLordTable1, SubLordTable2, SubLordTable3, SubLordTable4};
  const auto rows = testing::TestDataTable("planet_table/sub_lord_bands.txt");
  ASSERT_EQ(rows.size(), 24u);
  for (const auto& row : rows) {
    ASSERT_EQ(row.size(), 4u);
    const double degrees = row[2] == "above" ? Above(std::stod(row[1])) : std::stod(row[1]);
    EXPECT_EQ(tables[std::stoi(row[0]) - 1](chart, degrees), row[3]) << "table " << row[0] << " at " << degrees;
  }
}

// A planet table with only the degrees texts of Sun to Saturn (rows 2 to 8).
Grid DegreesGrid(const std::vector<std::string>& sunToSaturn) {
  Grid g("mshNirayana");
  g.SetHeader(kPlanetTableHeader);
  g.Resize(11, 10);
  for (size_t i = 0; i < sunToSaturn.size(); ++i) g.SetText(static_cast<int>(i) + 2, 1, sunToSaturn[i]);
  return g;
}

std::vector<std::string> Column(const Grid& g, int col, int fromRow, int toRow) {
  std::vector<std::string> texts;
  for (int r = fromRow; r <= toRow; ++r) texts.push_back(g.Text(r, col));
  return texts;
}

TEST(Karakas, RankedByTextNotByDegrees) {
  // Sun, Moon, Mars, Mercury, Jupiter, Venus, Saturn. Mars at 12.5.7 and
  // Saturn at 9.10.3: as text "9" is above "1", so Saturn ranks first.
  Grid g = DegreesGrid({"28.19.3", "5.27.22", "12.5.7", "1.0.0", "25.29.53", "22.59.36", "9.10.3"});
  Grid sort("MSFlexGridSort");
  RankKarakas(g, sort);
  EXPECT_EQ(Column(sort, 0, 1, 7),
            (std::vector<std::string>{"9.10.3", "5.27.22", "28.19.3", "25.29.53", "22.59.36", "12.5.7", "1.0.0"}));
  EXPECT_EQ(Column(g, 8, 2, 8),
            (std::vector<std::string>{"Bhratri", "Amatya", "Gnati", "Dara", "Matri", "Puttra", "Atma"}));
  // Rows outside Sun to Saturn are not touched.
  EXPECT_EQ(g.Text(1, 8), "");
  EXPECT_EQ(g.Text(9, 8), "");
  EXPECT_EQ(g.Text(10, 8), "");
}

TEST(Karakas, EqualTextsBothTakeTheLaterRank) {
  // Sun and Venus share 5.0.0 and match ranks 3 and 4: both end as Matri,
  // and Bhratri goes to no one.
  Grid g = DegreesGrid({"5.0.0", "9.0.0", "8.0.0", "4.0.0", "3.0.0", "5.0.0", "2.0.0"});
  Grid sort("MSFlexGridSort");
  RankKarakas(g, sort);
  EXPECT_EQ(Column(g, 8, 2, 8),
            (std::vector<std::string>{"Matri", "Atma", "Amatya", "Puttra", "Gnati", "Matri", "Dara"}));
}

// The rows of tests/data/analysis/planet_table_rules.txt, each against its
// function: the sub lord's table, the retrograde mark, the avastha's factors
// and names, and avasthas worked by hand.
TEST(PlanetTableRules, WorkedRows) {
  const ChartData chart = SanskritNames();
  clsStar star;
  const auto rows = testing::TestDataTable("analysis/planet_table_rules.txt");
  ASSERT_EQ(rows.size(), 49u);
  for (const auto& row : rows) {
    SCOPED_TRACE(row[0] + " " + row[1]);
    ASSERT_GE(row.size(), 3u);
    const std::string& expected = row.back();
    if (row[0] == "SubLordOf") {
      EXPECT_EQ(SubLordOf(chart, std::stoi(row[1]), std::stod(row[2])), expected);
    } else if (row[0] == "RetroMark") {
      EXPECT_EQ(RetroMark(std::stod(row[1]), std::stod(row[2]), std::stoi(row[3])), expected);
    } else if (row[0] == "SortedStarNumber") {
      EXPECT_EQ(SortedStarNumber(star, std::stod(row[1])), std::stoi(expected));
    } else if (row[0] == "PlanetOrdinal") {
      EXPECT_EQ(PlanetOrdinal(row[1]), std::stoi(expected));
    } else if (row[0] == "NavamsaInRasi") {
      const double degrees = row[2] == "above" ? Above(std::stod(row[1])) : std::stod(row[1]);
      EXPECT_EQ(NavamsaInRasi(degrees), std::stoi(expected));
    } else if (row[0] == "AvasthaName") {
      EXPECT_EQ(AvasthaName(std::stoi(row[1])), expected);
    } else {
      ASSERT_EQ(row[0], "SayanadiAvastha");
      const auto lagnaRasi = static_cast<std::int16_t>(std::stoi(row[3]));
      EXPECT_EQ(SayanadiAvastha(star, 100, row[1], 290, lagnaRasi, std::stod(row[2])), expected);
    }
  }
}

TEST(Avasthas, SixteenBitOverflowIsAnError) {
  clsStar star;
  // Sun at 0.5 and Moon at 0.5: 1 * 1 * 1 + 1 + ishta + 1.
  EXPECT_EQ(SayanadiAvastha(star, 0.5, "Sun", 0.5, 1, 32764), "Sabha");  // 32767, remainder 7
  EXPECT_THROW(SayanadiAvastha(star, 0.5, "Sun", 0.5, 1, 32765), CalculationError);  // the sum reaches 32768
  EXPECT_THROW(SayanadiAvastha(star, 0.5, "Sun", 0.5, 1, 40000), CalculationError);  // ishta ghati itself
}

TEST(PlanetTableFill, SampleChartWorkedIndependently) {
  const ChartData chart = SampleChart();
  ClsFindPlanetPosition positions;
  clsStar star;
  PlanetTable table;
  FillPlanetTable(chart, kSampleIshtaGhati, positions, star, table);
  const Grid& g = table.mshNirayana;
  ASSERT_EQ(g.Rows(), 11);
  ASSERT_EQ(g.Cols(), 10);
  EXPECT_EQ(g.Text(0, 1), "   Longitude  ");
  EXPECT_EQ(g.Text(0, 9), "Avasthas** ");
  // Worked with a separate script from the longitudes (in
  // tests/data/planet_table/sample_chart.txt): degrees in rasi as
  // d.m.s, rasi, its lord, star and pada by 13 1/3 degrees, the star lord by
  // the cycle of nine, the sub lord from the bands, the karaka from the text
  // order, and the avastha star * ordinal * navamsa + 21 (Moon) + 20 + 7
  // (Libra) modulo 12. Saturn is retrograde: 323.609 the day after is 323.582.
  const auto expected = testing::TestDataTable("planet_table/sample_chart.txt");
  ASSERT_EQ(expected.size(), 10u);
  for (int r = 1; r <= 10; ++r) EXPECT_EQ(g.RowTexts(r), expected[static_cast<size_t>(r - 1)]) << "row " << r;
  for (int r = 1; r <= 10; ++r) {
    const bool dashes = r == 1 || r == 9 || r == 10;
    EXPECT_EQ(g.Bold(r, 8), dashes) << "row " << r;
    EXPECT_FALSE(g.Bold(r, 9)) << "row " << r;
  }
  // The hidden grid keeps the seven texts in rank order, without the mark.
  EXPECT_EQ(Column(table.MSFlexGridSort, 0, 1, 7),
            (std::vector<std::string>{"5.27.22", "28.19.3", "25.29.53", "24.37.45", "23.36.33", "22.59.36",
                                      "14.39.30"}));
  // The facade is left at the day after the birth.
  EXPECT_NEAR(positions.FnFindSaturnPosition(), 323.58167418685605, 1e-9);

  // The driver builds the table twice; the second build is the same.
  PlanetTable again = table;
  FillPlanetTable(chart, kSampleIshtaGhati, positions, star, again);
  for (int r = 0; r <= 10; ++r) EXPECT_EQ(again.mshNirayana.RowTexts(r), g.RowTexts(r));
}

TEST(PlanetTableFill, BodiesOnBandLimitsAndAKarakaTie) {
  ChartData chart = SanskritNames();
  chart.birthMoment = OleDate::FromParts(1965, 7, 14, 14, 15);
  // Lagna on the 3.0 limit of Aries, Moon 3.0 into Scorpio, Jupiter on 7.0 of
  // Capricorn and Ketu on 10.0 of it; Sun 10.0 into Aries and Venus 10.0 into
  // Leo share the text 10.0.0.
  chart.longitude = {3.0, 10.0, 213.0, 45.5, 62.25, 277.0, 130.0, 300.75, 100.0, 280.0, 0, 0};
  ClsFindPlanetPosition positions;
  clsStar star;
  PlanetTable table;
  FillPlanetTable(chart, 0, positions, star, table);
  const Grid& g = table.mshNirayana;
  EXPECT_EQ(Column(g, 0, 1, 10),
            (std::vector<std::string>{"Lag", "Rav", "Cha", "Kuj", "Bud", "Gur", "Suk", "San", "Rah", "Ket"}));
  EXPECT_EQ(Column(g, 2, 1, 3), (std::vector<std::string>{"Mesha", "Mesha", "Vrischika"}));
  // Rasi lords by their long names, like the lord columns beside them
  // (RasiLordInTheChartsLanguage: they used to stay English).
  EXPECT_EQ(Column(g, 3, 1, 3), (std::vector<std::string>{"Kuja", "Kuja", "Kuja"}));
  // Table 1 at 3.0 Venus, at 10.0 Saturn; table 4 at 3.0 Rahu; table 2 at
  // 15.5 Jupiter; table 3 at 2.25 Ketu; table 2 at 7.0 Mercury; table 1 at
  // 10.0 Saturn; table 3 at 0.75 Mercury; table 4 at 10.0 Venus; table 2 at
  // 10.0 Venus.
  EXPECT_EQ(Column(g, 7, 1, 10), (std::vector<std::string>{"Sukra", "Sani", "Rahu", "Guru", "Ketu", "Budha", "Sani",
                                                            "Budha", "Sukra", "Sukra"}));
  // Jupiter at 277 and Ketu at 280 stand in the Abijit part, ruled by the Sun.
  EXPECT_EQ(g.Text(6, 4), "Uttarashada - Abijit");
  EXPECT_EQ(g.Text(6, 6), "Surya");
  EXPECT_EQ(g.Text(10, 6), "Surya");
  // Text order 7.0.0, 3.0.0, 2.15.0, 15.30.0, 10.0.0, 10.0.0, 0.45.0: Sun
  // and Venus match ranks 5 and 6 and both keep Gnati; Puttra stays unused.
  EXPECT_EQ(Column(g, 8, 1, 10), (std::vector<std::string>{"--", "Gnati", "Amatya", "Matri", "Bhratri", "Atma",
                                                           "Gnati", "Dara", "--", "--"}));
}

TEST(PlanetTableFill, AFailedStepLeavesTheLastTable) {
  const ChartData chart = SampleChart();
  ClsFindPlanetPosition positions;
  clsStar star;
  PlanetTable table;
  FillPlanetTable(chart, kSampleIshtaGhati, positions, star, table);
  const Row sun = table.mshNirayana.RowTexts(2);
  // An ishta ghati past 16 bits fails in the avastha of the Sun.
  EXPECT_THROW(FillPlanetTable(chart, 40000, positions, star, table), CalculationError);
  EXPECT_EQ(table.mshNirayana.RowTexts(2), sun);
  EXPECT_EQ(table.mshNirayana.Rows(), 11);
}

}  // namespace
}  // namespace kelvaro
