// The Ashtakavarga grid: one chart worked apart from the table's text, the
// column totals that no chart can change, the turn of the whole grid with the
// chart, the captions, and the Moon's star with the HouseNo that findstar
// leaves over.
#include "analysis/ashtakavarga.h"

#include <gtest/gtest.h>

#include <array>
#include <random>
#include <string>

#include "common/calculation_error.h"
#include "support/sample_chart.h"
#include "support/test_data.h"

namespace kelvaro {
namespace {

// Rasi numbers in the order Sun, Moon, Mars, Mercury, Venus, Jupiter, Saturn,
// Lagna (the table's order); Rahu's is given apart since it must not count.
ChartData ChartWithRasis(const std::array<int, 8>& r, int rahu = 1) {
  ChartData chart;
  chart.RasiNames = testing::EnglishNames().RasiNames;
  const std::array<Body, 8> bodies = {Body::Sun,   Body::Moon,    Body::Mars,   Body::Mercury,
                                      Body::Venus, Body::Jupiter, Body::Saturn, Body::Lagna};
  for (size_t i = 0; i < 8; ++i) chart.rasi[static_cast<size_t>(bodies[i])] = static_cast<std::int16_t>(r[i]);
  chart.rasi[static_cast<size_t>(Body::Rahu)] = static_cast<std::int16_t>(rahu);
  chart.rasi[static_cast<size_t>(Body::Ketu)] = static_cast<std::int16_t>(rahu > 6 ? rahu - 6 : rahu + 6);
  chart.longitude[static_cast<size_t>(Body::Moon)] = (r[1] - 1) * 30 + 12.5;
  return chart;
}

int Cell(const Ashtakavarga& a, int row, int col) { return std::stoi(a.mshAshtaVarga.Text(row, col)); }

// The grids of tests/data/analysis/ashtakavarga_grids.txt: one chart cell by
// cell, and the Sun's and Rahu's columns with every contributor in Libra.
TEST(Ashtakavarga, GridsCountedFromTheTable) {
  const ChartData chart = ChartWithRasis({4, 10, 6, 4, 5, 2, 11, 12}, 3);
  clsStar star;
  Ashtakavarga a, libra;
  FillAshtakavarga(chart, star, a);
  FillAshtakavarga(ChartWithRasis({7, 7, 7, 7, 7, 7, 7, 7}, 7), star, libra);
  ASSERT_EQ(a.mshAshtaVarga.Rows(), 14);
  ASSERT_EQ(a.mshAshtaVarga.Cols(), 12);
  EXPECT_EQ(a.mshAshtaVarga.Text(13, 0), "Total");
  const auto rows = testing::TestDataTable("analysis/ashtakavarga_grids.txt");
  ASSERT_EQ(rows.size(), 24u);
  for (const auto& row : rows) {
    const int rasi = std::stoi(row[1]);
    SCOPED_TRACE(row[0] + " rasi " + row[1]);
    if (row[0] == "Chart") {
      ASSERT_EQ(row.size(), 13u);
      EXPECT_EQ(a.mshAshtaVarga.Text(rasi, 0), chart.RasiNames[static_cast<size_t>(rasi - 1)]);
      for (int col = 1; col <= 11; ++col) EXPECT_EQ(Cell(a, rasi, col), std::stoi(row[static_cast<size_t>(col) + 1])) << col;
    } else {
      ASSERT_EQ(row.size(), 4u);
      EXPECT_EQ(Cell(libra, rasi, 1), std::stoi(row[2]));
      EXPECT_EQ(Cell(libra, rasi, 9), std::stoi(row[3]));
    }
  }
}

// The column totals follow from the table alone: its count of entries.
TEST(Ashtakavarga, TableColumnTotals) {
  // Sun, Moon, Mars, Mercury, Jupiter, Venus, Saturn, Lagna, Rahu.
  constexpr std::array<int, 9> kTotals = {48, 49, 39, 54, 56, 52, 39, 49, 43};
  for (size_t col = 0; col < kAshtakavargaTable.size(); ++col) {
    int entries = 0;
    for (const AshtakavargaHouses& h : kAshtakavargaTable[col].from) {
      entries += h.count;
      for (int i = 0; i < h.count; ++i) {
        EXPECT_GE(h.house[static_cast<size_t>(i)], 1);
        EXPECT_LE(h.house[static_cast<size_t>(i)], 12);
        if (i > 0) {
          EXPECT_LT(h.house[static_cast<size_t>(i - 1)], h.house[static_cast<size_t>(i)]);
        }
      }
    }
    EXPECT_EQ(entries, kTotals[col]) << kAshtakavargaTable[col].column;
  }
}

// Over many charts: the Total row never changes, every rasi's points lie in 0
// to 8 for a column, the two sums add up row by row, turning every contributor
// by k rasis turns the grid by k rows, and Rahu's own rasi changes nothing.
TEST(Ashtakavarga, InvariantsOverRandomCharts) {
  constexpr std::array<int, 11> kTotalRow = {48, 49, 39, 54, 56, 52, 39, 49, 43, 337, 429};
  std::mt19937 random(20261121);
  std::uniform_int_distribution<int> rasiOf(1, 12);
  clsStar star;
  for (int n = 0; n < 500; ++n) {
    std::array<int, 8> r{};
    for (int& x : r) x = rasiOf(random);
    const int k = rasiOf(random);
    std::array<int, 8> turned{};
    for (size_t i = 0; i < 8; ++i) turned[i] = (r[i] + k - 1) % 12 + 1;

    Ashtakavarga a, b, c;
    FillAshtakavarga(ChartWithRasis(r, rasiOf(random)), star, a);
    FillAshtakavarga(ChartWithRasis(turned), star, b);
    FillAshtakavarga(ChartWithRasis(r, rasiOf(random)), star, c);
    for (int col = 1; col <= 11; ++col) {
      EXPECT_EQ(Cell(a, 13, col), kTotalRow[static_cast<size_t>(col - 1)]) << col;
    }
    for (int row = 1; row <= 12; ++row) {
      int planets = 0;
      for (int col = 1; col <= 9; ++col) {
        const int points = Cell(a, row, col);
        EXPECT_GE(points, 0);
        EXPECT_LE(points, 8);
        if (col <= 7) planets += points;
        const int turnedRow = (row + k - 1) % 12 + 1;
        EXPECT_EQ(Cell(b, turnedRow, col), points) << "turn " << k;
        EXPECT_EQ(Cell(c, row, col), points) << "Rahu's rasi";
      }
      EXPECT_EQ(Cell(a, row, 10), planets);
      EXPECT_EQ(Cell(a, row, 11), planets + Cell(a, row, 8) + Cell(a, row, 9));
    }
  }
}

TEST(Ashtakavarga, CaptionsByLanguage) {
  struct Case {
    const char* language;
    std::array<const char*, 12> captions;
  };
  const Case cases[] = {
      {"Sanskrit",
       {"Rasi         ", " Surya  ", "Chandra", "Kuja ", "Budha  ", "Guru   ", "Sukra", "Sani  ", "Lagna *",
        "Rahu *", "Total ", "Total With *"}},
      {"English",
       {"Zodiac       ", " Sun    ", "Moon   ", "Mars ", "Mercury", "Jupiter", "Venus", "Saturn", "Asc   *",
        "Rahu *", "Total ", "Total With * "}},
  };
  // Any other language gets the English captions.
  for (const Case& c : {cases[0], cases[1], Case{"Tamil", cases[1].captions}}) {
    ChartData chart = ChartWithRasis({1, 2, 3, 4, 5, 6, 7, 8});
    chart.language = c.language;
    chart.RasiNames[0] = "Mesha";
    clsStar star;
    Ashtakavarga a;
    FillAshtakavarga(chart, star, a);
    ASSERT_EQ(a.mshAshtaVarga.Cols(), 12);
    for (int col = 0; col < 12; ++col) {
      EXPECT_EQ(a.mshAshtaVarga.Text(0, col), c.captions[static_cast<size_t>(col)]) << c.language << " " << col;
    }
    EXPECT_EQ(a.mshAshtaVarga.Text(1, 0), "Mesha");
  }
}

// The sample chart's Moon, 275.456182876786, is Uttarashada pada 3, where
// findstar assigns no HouseNo: the step keeps what the shared object held.
TEST(Ashtakavarga, MoonStarKeepsTheCarriedHouseNo) {
  ChartData chart = ChartWithRasis({3, 10, 2, 4, 3, 9, 10, 8});
  chart.longitude[static_cast<size_t>(Body::Moon)] = 275.456182876786;
  clsStar star;
  star.PlanetPosition = 10.0;  // Ashwini pada 3, navamsa Gemini
  star.findstar();
  ASSERT_EQ(star.HouseNo, 3);
  Ashtakavarga a;
  FillAshtakavarga(chart, star, a);
  EXPECT_EQ(a.MoonStarName, "Uttarashada");
  EXPECT_EQ(a.MoonStarPada, 3);
  EXPECT_EQ(a.MoonHouseNo, 3);

  clsStar fresh;
  FillAshtakavarga(chart, fresh, a);
  EXPECT_EQ(a.MoonHouseNo, 0);

  // Rohini pada 2 (43.3 to 46.7) is assigned: Taurus.
  chart.longitude[static_cast<size_t>(Body::Moon)] = 45.0;
  FillAshtakavarga(chart, star, a);
  EXPECT_EQ(a.MoonStarName, "Rohini");
  EXPECT_EQ(a.MoonStarPada, 2);
  EXPECT_EQ(a.MoonHouseNo, 2);
}

TEST(Ashtakavarga, ContributorWithoutARasiFails) {
  ChartData chart = ChartWithRasis({1, 2, 3, 4, 5, 6, 7, 8});
  chart.rasi[static_cast<size_t>(Body::Saturn)] = 0;
  clsStar star;
  Ashtakavarga a;
  EXPECT_THROW(FillAshtakavarga(chart, star, a), CalculationError);
}

// A second fill replaces the first: nothing of a Sanskrit grid stays behind.
TEST(Ashtakavarga, RefillReplacesTheGrid) {
  ChartData chart = ChartWithRasis({1, 1, 1, 1, 1, 1, 1, 1});
  chart.language = "Sanskrit";
  clsStar star;
  Ashtakavarga a;
  FillAshtakavarga(chart, star, a);
  const std::string firstAries = a.mshAshtaVarga.Text(1, 1);
  chart = ChartWithRasis({12, 12, 12, 12, 12, 12, 12, 12});
  FillAshtakavarga(chart, star, a);
  EXPECT_EQ(a.mshAshtaVarga.Text(0, 0), "Zodiac       ");
  EXPECT_EQ(a.mshAshtaVarga.Text(12, 1), firstAries);  // the same houses from Pisces
}

}  // namespace
}  // namespace kelvaro
