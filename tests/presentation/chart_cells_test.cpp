#include "presentation/chart_cells.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <string>

#include "common/calculation_error.h"
#include "presentation/chart_cells_text.h"
#include "support/sample_chart.h"

namespace kelvaro {
namespace {

using testing::EnglishNames;
using testing::kSampleLongitude;
using testing::kSampleNavamsa;
using testing::kSampleRasi;
using testing::SanskritNames;

ChartData SampleChart(const std::string& style, bool navamsa) { return testing::SampleChartData(style, navamsa); }

std::array<std::string, 12> Captions(const LabelArray& a) {
  std::array<std::string, 12> out;
  for (int i = 0; i < 12; ++i) out[static_cast<size_t>(i)] = a.Caption(a.FirstIndex() + i);
  return out;
}

// Expected captions are listed cell 1 (sign or house 1) to cell 12.
void ExpectCells(const LabelArray& a, const std::array<std::string, 12>& expected, const std::string& what) {
  const auto got = Captions(a);
  for (size_t i = 0; i < 12; ++i) EXPECT_EQ(got[i], expected[i]) << what << " " << a.Name() << " cell " << i + 1;
}

void ExpectHouseNumbers(const ChartWindow& w, const std::array<int, 12>& signs, const std::string& what) {
  for (int k = 1; k <= 12; ++k) {
    EXPECT_EQ(w.northHouseNo.Caption(k), std::to_string(signs[static_cast<size_t>(k - 1)])) << what << " house " << k;
  }
}

TEST(ChartCells, SecondFormOfEachKindForTwoBodiesInOneSign) {
  // Sun at 12 deg 5 min and Moon at 3 deg 40 min of Leo. Both minute values
  // come out one short before the seconds carry (0.0833.. * 60 = 4.99..).
  const double sun = 132.0 + 5.0 / 60, moon = 123.0 + 40.0 / 60;
  struct Case {
    const char* kind;
    const char* expected;
  } cases[] = {
      {"1", "Sun  12.5\r\nMoo  3.40"},
      {"2", "Sun  \r\nMoo  "},
      {"3", "Sun    Moo"},  // one line, four blanks between the names
      {"5", "Sun  \r\nMoo  "},
  };
  for (const auto& c : cases) {
    ChartCells cells;
    ChartCellFill(cells, c.kind, "Sun", 5, sun);
    ChartCellFill(cells, c.kind, "Moo", 5, moon);
    const std::string kind = c.kind;
    const LabelArray& a = kind == "1"   ? cells.rasi.south
                          : kind == "2" ? cells.navamsa.south
                          : kind == "3" ? cells.rasi.east
                                        : cells.navamsa.east;
    const int index = (kind == "1" || kind == "2") ? 4 : 5;  // South arrays start at 0
    EXPECT_EQ(a.Caption(index), c.expected) << "kind " << kind;
    for (int i = a.FirstIndex(); i <= a.LastIndex(); ++i) {
      if (i != index) {
        EXPECT_EQ(a.Caption(i), "") << "kind " << kind << " index " << i;
      }
    }
  }
}

TEST(ChartCells, ThirdBodyAndDegreesInTheSouthRasiCell) {
  ChartCells cells;
  ChartCellFill(cells, "3", "Mar", 6, 164.6);
  ChartCellFill(cells, "3", "Gul", 6, 179.0);
  ChartCellFill(cells, "3", "Maa", 6, 172.5);
  EXPECT_EQ(cells.rasi.east.Caption(6), "Mar    Gul  Maa");

  struct Case {
    double longitude;
    const char* cell;
  } cases[] = {
      {59.99999, "Sun  29.60"},  // 59 min 59.964 s carries to 60 minutes, degrees stay
      {30.0, "Sun  0.0"},        // folds to 0
      {0.0, "Sun  0.0"},
      {359.5, "Sun  29.30"},
  };
  for (const auto& c : cases) {
    ChartCells fresh;
    ChartCellFill(fresh, "1", "Sun", 1, c.longitude);
    EXPECT_EQ(fresh.rasi.south.Caption(0), c.cell) << c.longitude;
  }
}

TEST(ChartCells, SignOutOfRangeAndUnknownKindsAndSelectors) {
  ChartCells cells;
  EXPECT_THROW(ChartCellFill(cells, "1", "Sun", 0, 10.0), CalculationError);
  EXPECT_THROW(ChartCellFill(cells, "2", "Sun", 13, 10.0), CalculationError);
  EXPECT_THROW(ChartCellFill(cells, "3", "Sun", 0, 10.0), CalculationError);
  EXPECT_THROW(ChartCellFill(cells, "5", "Sun", 13, 10.0), CalculationError);
  EXPECT_NO_THROW(ChartCellFill(cells, "1", "Sun", 12, 10.0));  // index 11, the last South label
  EXPECT_NO_THROW(ChartCellFill(cells, "3", "Sun", 12, 10.0));
  EXPECT_THROW((void)cells.rasi.north.Caption(0), CalculationError);
  EXPECT_THROW((void)cells.rasi.south.Caption(12), CalculationError);

  // No kind "4", and no other: nothing is written anywhere.
  ChartCells untouched;
  for (const char* kind : {"4", "0", "", "1 "}) ChartCellFill(untouched, kind, "Sun", 3, 10.0);
  for (const ChartWindow* w : {&untouched.rasi, &untouched.navamsa, &untouched.bhava}) {
    for (ChartFrame f : {ChartFrame::South, ChartFrame::East, ChartFrame::North}) {
      for (const auto& caption : Captions(w->Cells(f))) EXPECT_EQ(caption, "");
    }
  }
}

TEST(ChartCells, EachSelectorClearsExactlyItsArray) {
  struct Case {
    int selector;
    const char* window;
    ChartFrame frame;
  } cases[] = {
      {1, "frm_rasi", ChartFrame::South},          {2, "frm_Navamsa", ChartFrame::South},
      {3, "frm_rasi", ChartFrame::North},          {4, "frm_Navamsa", ChartFrame::North},
      {5, "frm_rasi", ChartFrame::East},           {6, "frm_Navamsa", ChartFrame::East},
      {7, "frm_BhavaChart", ChartFrame::North},    {8, "frm_BhavaChart", ChartFrame::East},
      {9, "frm_BhavaChart", ChartFrame::South},    {0, "", ChartFrame::South},
      {10, "", ChartFrame::South},
  };
  for (const auto& c : cases) {
    ChartCells cells;
    for (ChartWindow* w : {&cells.rasi, &cells.navamsa, &cells.bhava}) {
      for (ChartFrame f : {ChartFrame::South, ChartFrame::East, ChartFrame::North}) {
        LabelArray& a = w->Cells(f);
        for (int i = a.FirstIndex(); i <= a.LastIndex(); ++i) a.SetCaption(i, "x");
      }
    }
    ChartCellClear(cells, static_cast<std::int16_t>(c.selector));
    for (const ChartWindow* w : {&cells.rasi, &cells.navamsa, &cells.bhava}) {
      for (ChartFrame f : {ChartFrame::South, ChartFrame::East, ChartFrame::North}) {
        const bool cleared = w->name == c.window && f == c.frame;
        for (const auto& caption : Captions(w->Cells(f))) {
          EXPECT_EQ(caption, cleared ? "" : "x") << "selector " << c.selector << " " << w->name;
        }
      }
    }
  }
}

// Every fill begins with its clear: each style is filled twice, so doubled
// text would show in the cells.
TEST(ChartCells, SampleRasiChartInEachStyle) {
  ChartCells cells;
  FillRasiChart(SampleChart("South", false), cells);
  FillRasiChart(SampleChart("South", false), cells);
  EXPECT_EQ(cells.rasi.VisibleFrame(), ChartFrame::South);  // that one alone
  // Degrees folded into the sign, worked from the longitudes: Lagna 25.2472
  // is 25 deg 14 min 50.0 s, Sun 28.3176 is 28 19 3.3, and so on.
  ExpectCells(cells.rasi.south,
              {"", "Jup  25.29\r\nRah  18.18", "Sun  28.19", "Mer  24.37\r\nVen  22.59", "",
               "Mar  14.39\r\nGul  29.0\r\nMaa  22.35", "Asc  25.14", "Ket  18.18", "", "Moo  5.27", "Sat  23.36", ""},
              "South");

  FillRasiChart(SampleChart("East", false), cells);
  FillRasiChart(SampleChart("East", false), cells);
  EXPECT_EQ(cells.rasi.VisibleFrame(), ChartFrame::East);
  ExpectCells(cells.rasi.east,
              {"", "Jup    Rah", "Sun  ", "Mer    Ven", "", "Mar    Gul  Maa", "Asc  ", "Ket  ", "", "Moo  ", "Sat  ", ""},
              "East");

  FillRasiChart(SampleChart("North", false), cells);
  FillRasiChart(SampleChart("North", false), cells);
  EXPECT_EQ(cells.rasi.VisibleFrame(), ChartFrame::North);
  // Lagna in Libra (7): Sun in Gemini is the 9th house, Moon in Capricorn the
  // 4th, Mars, Gulika and Maandi in Virgo the 12th.
  ExpectCells(cells.rasi.north,
              {"Asc  ", "Ket  ", "", "Moo  ", "Sat  ", "", "", "Jup  Rah  ", "Sun  ", "Mer  Ven  ", "", "Mar  Gul  Maa  "},
              "North");
  ExpectHouseNumbers(cells.rasi, {7, 8, 9, 10, 11, 12, 1, 2, 3, 4, 5, 6}, "North");
  const std::array<std::int16_t, 11> houses = {9, 4, 12, 10, 8, 10, 5, 8, 2, 12, 12};
  EXPECT_EQ(cells.northHouseOfBody, houses);
  const std::array<std::int16_t, 12> rasis = {7, 8, 9, 10, 11, 12, 1, 2, 3, 4, 5, 6};
  EXPECT_EQ(cells.northRasiOfHouse, rasis);

  // The earlier drawings keep their text: only a fill's own array is cleared.
  EXPECT_EQ(cells.rasi.south.Caption(6), "Asc  25.14");
  EXPECT_EQ(cells.rasi.east.Caption(7), "Asc  ");
  // The Navamsa window is untouched by the Rasi fill.
  EXPECT_FALSE(cells.navamsa.VisibleFrame().has_value());
  EXPECT_EQ(cells.navamsa.north.Caption(1), "");
}

TEST(ChartCells, SampleNavamsaChartInEachStyle) {
  ChartCells cells;
  FillNavamsaChart(SampleChart("South", true), cells);
  EXPECT_EQ(cells.navamsa.VisibleFrame(), ChartFrame::South);
  const std::array<std::string, 12> bySign = {
      "", "Asc  \r\nMar  \r\nSat  ", "Sun  \r\nRah  ", "Maa  ", "Jup  ", "Gul  ", "", "", "Ket  ", "Ven  ",
      "Moo  \r\nMer  ", ""};
  ExpectCells(cells.navamsa.south, bySign, "South");

  FillNavamsaChart(SampleChart("East", true), cells);
  EXPECT_EQ(cells.navamsa.VisibleFrame(), ChartFrame::East);
  ExpectCells(cells.navamsa.east, bySign, "East");  // same texts, indexed by the sign itself

  FillNavamsaChart(SampleChart("North", true), cells);
  EXPECT_EQ(cells.navamsa.VisibleFrame(), ChartFrame::North);
  // Navamsa Lagna in Taurus (2).
  ExpectCells(cells.navamsa.north,
              {"Asc  Mar  Sat  ", "Sun  Rah  ", "Maa  ", "Jup  ", "Gul  ", "", "", "Ket  ", "Ven  ", "Moo  Mer  ", "", ""},
              "North");
  ExpectHouseNumbers(cells.navamsa, {2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 1}, "North");
  EXPECT_FALSE(cells.rasi.VisibleFrame().has_value());
  EXPECT_EQ(cells.rasi.north.Caption(1), "");
}

TEST(ChartCells, NorthHouseNumbersForSeveralLagnas) {
  struct Case {
    std::int16_t lagna;
    std::array<int, 12> signs;
    std::int16_t sunSign;
    int sunHouse;
  } cases[] = {
      {1, {1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12}, 12, 12},
      {12, {12, 1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11}, 1, 2},
      {4, {4, 5, 6, 7, 8, 9, 10, 11, 12, 1, 2, 3}, 4, 1},
  };
  for (const auto& c : cases) {
    ChartData chart = EnglishNames();
    chart.chartStyle = "North";
    chart.rasi.fill(c.lagna);
    chart.rasi[static_cast<size_t>(Body::Sun)] = c.sunSign;
    ChartCells cells;
    FillRasiChart(chart, cells);
    const std::string what = "Lagna " + std::to_string(c.lagna);
    ExpectHouseNumbers(cells.rasi, c.signs, what);
    for (int k = 1; k <= 12; ++k) {
      EXPECT_EQ(cells.northRasiOfHouse[static_cast<size_t>(k - 1)], c.signs[static_cast<size_t>(k - 1)]) << what;
    }
    EXPECT_EQ(cells.northHouseOfBody[0], c.sunHouse) << what;
    // Every body but the Sun stands in the Lagna's sign, so in house 1.
    const std::string others = "Moo  Mar  Mer  Jup  Ven  Sat  Rah  Ket  Gul  Maa  ";
    if (c.sunHouse == 1) {
      EXPECT_EQ(cells.rasi.north.Caption(1), "Asc  Sun  " + others) << what;
    } else {
      EXPECT_EQ(cells.rasi.north.Caption(1), "Asc  " + others) << what;
      EXPECT_EQ(cells.rasi.north.Caption(c.sunHouse), "Sun  ") << what;
    }
  }
}

// South and East show the short text of the Lagna, North its long text.
TEST(ChartCells, SanskritNamesInEachStyle) {
  ChartData chart = SanskritNames();
  chart.longitude = kSampleLongitude;
  chart.rasi = kSampleRasi;
  ChartCells cells;
  chart.chartStyle = "South";
  FillRasiChart(chart, cells);
  EXPECT_EQ(cells.rasi.south.Caption(6), "Lag  25.14");
  EXPECT_EQ(cells.rasi.south.Caption(3), "Bud  24.37\r\nSuk  22.59");
  chart.chartStyle = "North";
  FillRasiChart(chart, cells);
  EXPECT_EQ(cells.rasi.north.Caption(1), "Lagna  ");
  EXPECT_EQ(cells.rasi.north.Caption(10), "Bud  Suk  ");
}

TEST(ChartCells, OtherStyleLeavesTheChartAsItIs) {
  ChartCells cells;
  FillRasiChart(SampleChart("East", false), cells);
  FillNavamsaChart(SampleChart("North", true), cells);
  const ChartCells before = cells;
  for (const char* style : {"", "south", "West", "North "}) {
    FillRasiChart(SampleChart(style, false), cells);
    FillNavamsaChart(SampleChart(style, true), cells);
    FillBhavaChart(style, {1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12}, {"Asc Sun"}, cells);
    for (auto pair : {&ChartCells::rasi, &ChartCells::navamsa, &ChartCells::bhava}) {
      const ChartWindow& now = cells.*pair;
      const ChartWindow& was = before.*pair;
      EXPECT_EQ(now.southVisible, was.southVisible) << style;
      EXPECT_EQ(now.eastVisible, was.eastVisible) << style;
      EXPECT_EQ(now.northVisible, was.northVisible) << style;
      for (ChartFrame f : {ChartFrame::South, ChartFrame::East, ChartFrame::North}) {
        EXPECT_EQ(Captions(now.Cells(f)), Captions(was.Cells(f))) << style << " " << now.name;
      }
      EXPECT_EQ(Captions(now.northHouseNo), Captions(was.northHouseNo)) << style;
    }
    EXPECT_EQ(cells.northHouseOfBody, before.northHouseOfBody);
  }
  EXPECT_EQ(cells.rasi.VisibleFrame(), ChartFrame::East);
  EXPECT_EQ(cells.navamsa.VisibleFrame(), ChartFrame::North);
}

TEST(ChartCells, BhavaChartInEachStyle) {
  // Houses from a Lagna in Libra: house k shows rasi 7 + k - 1, folded.
  const std::array<std::int16_t, 12> rasi = {7, 8, 9, 10, 11, 12, 1, 2, 3, 4, 5, 6};
  const std::array<std::string, 12> planets = {"Asc", "Ket", "", "Moo", "Sat", "", "", "Jup Rah", "Sun", "Mer Ven",
                                               "",    "Mar"};
  const std::array<std::string, 12> bySign = {"", "Jup Rah", "Sun", "Mer Ven", "", "Mar", "Asc", "Ket", "", "Moo", "Sat", ""};
  ChartCells cells;
  FillBhavaChart("South", rasi, planets, cells);
  EXPECT_EQ(cells.bhava.VisibleFrame(), ChartFrame::South);
  ExpectCells(cells.bhava.south, bySign, "South");
  FillBhavaChart("East", rasi, planets, cells);
  EXPECT_EQ(cells.bhava.VisibleFrame(), ChartFrame::East);
  ExpectCells(cells.bhava.east, bySign, "East");
  FillBhavaChart("North", rasi, planets, cells);
  FillBhavaChart("North", rasi, planets, cells);  // cleared first: no doubling
  EXPECT_EQ(cells.bhava.VisibleFrame(), ChartFrame::North);
  ExpectCells(cells.bhava.north, planets, "North");
  ExpectHouseNumbers(cells.bhava, {7, 8, 9, 10, 11, 12, 1, 2, 3, 4, 5, 6}, "North");
  // The Navamsa window shares the array names but not the labels.
  EXPECT_EQ(cells.navamsa.north.Caption(1), "");

  std::array<std::int16_t, 12> bad = rasi;
  bad[3] = 13;
  EXPECT_THROW(FillBhavaChart("South", bad, planets, cells), CalculationError);
}

TEST(ChartCellsText, ExactAndReadableForms) {
  ChartCells cells;
  EXPECT_EQ(CellsExactText(cells.rasi), "frm_rasi (no chart)\n");
  EXPECT_TRUE(VisibleCellRows(cells.rasi).empty());

  FillRasiChart(SampleChart("South", false), cells);
  const auto rows = VisibleCellRows(cells.rasi);
  ASSERT_EQ(rows.size(), 12u);
  EXPECT_EQ(rows[5].array, "Lab_GM_GirlHouse");
  EXPECT_EQ(rows[5].index, 5);
  EXPECT_EQ(rows[0].index, 0);

  const std::string exact = CellsExactText(cells.rasi);
  EXPECT_EQ(exact.substr(0, exact.find('\n') + 1), "frm_rasi Frame_SouthBride\n");
  EXPECT_NE(exact.find("Lab_GM_GirlHouse(5) = \"Mar  14.39\\r\\nGul  29.0\\r\\nMaa  22.35\"\n"), std::string::npos);
  EXPECT_NE(exact.find("Lab_GM_GirlHouse(0) = \"\"\n"), std::string::npos);
  EXPECT_EQ(std::count(exact.begin(), exact.end(), '\n'), 13);

  const std::string readable = CellsReadableText(cells.rasi);
  EXPECT_NE(readable.find("Lab_GM_GirlHouse(5)  Mar  14.39\n"
                          "                     Gul  29.0\n"
                          "                     Maa  22.35\n"),
            std::string::npos);
  EXPECT_EQ(readable.find('\r'), std::string::npos);

  FillRasiChart(SampleChart("North", false), cells);
  const std::string north = CellsExactText(cells.rasi);
  EXPECT_NE(north.find("Lab_ChartHouseN_Girl(1) [7] = \"Asc  \"\n"), std::string::npos);
  EXPECT_NE(north.find("Lab_ChartHouseN_Girl(12) [6] = \"Mar  Gul  Maa  \"\n"), std::string::npos);

  EXPECT_EQ(QuotedCaption("a\\b\"c\r\n"), "\"a\\\\b\\\"c\\r\\n\"");
}

}  // namespace
}  // namespace kelvaro
