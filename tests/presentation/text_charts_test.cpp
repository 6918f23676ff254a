#include "presentation/text_charts.h"

#include <gtest/gtest.h>

#include <array>
#include <cstdint>
#include <map>
#include <string>
#include <utility>
#include <vector>

#include "support/sample_chart.h"
#include "support/test_data.h"

namespace kelvaro {
namespace {

using testing::EnglishNames;
using testing::kSampleLongitude;
using testing::kSampleNavamsa;
using testing::kSampleRasi;

ChartData SampleChart(const std::string& style, bool navamsa) { return testing::SampleChartData(style, navamsa); }

// The drawing's lines without their CR LF, each checked to begin with the
// margin and given back without it.
std::vector<std::string> Lines(const std::string& drawing, int margin) {
  std::vector<std::string> out;
  const std::string pad(static_cast<size_t>(margin), ' ');
  size_t from = 0;
  while (from < drawing.size()) {
    const size_t end = drawing.find("\r\n", from);
    EXPECT_NE(end, std::string::npos) << "a line without CR LF at the end";
    if (end == std::string::npos) break;
    const std::string line = drawing.substr(from, end - from);
    EXPECT_EQ(line.substr(0, pad.size()), pad) << "margin of line " << out.size() + 1;
    EXPECT_EQ(line.find('\n'), std::string::npos);
    EXPECT_EQ(line.find('\r'), std::string::npos);
    out.push_back(line.substr(std::min(line.size(), pad.size())));
    from = end + 2;
  }
  return out;
}

// Compares a drawing with its golden under tests/data/text_charts, laid out
// from the line tables by hand and a separate script, margins left off.
void ExpectDrawing(const std::string& drawing, int margin, const std::string& golden) {
  EXPECT_EQ(Lines(drawing, margin), testing::TestDataLines("text_charts/" + golden + ".txt")) << golden;
}

// Where the frame's "*" stand, line by line.
std::vector<std::vector<size_t>> StarColumns(const std::vector<std::string>& lines) {
  std::vector<std::vector<size_t>> out;
  for (const std::string& line : lines) {
    std::vector<size_t> columns;
    for (size_t c = 0; c < line.size(); ++c) {
      if (line[c] == '*') columns.push_back(c);
    }
    out.push_back(std::move(columns));
  }
  return out;
}

// The sample chart's reduced cells, cell 1 first, read off its labels by hand.
const TextChartCells kSouthRasiCells = {"", "Jup Rah", "Sun", "Mer Ven", "", "Mar Gul Maa",
                                        "Asc", "Ket", "", "Moo", "Sat", ""};
const TextChartCells kSouthNavamsaCells = {"", "Asc Mar Sat", "Sun Rah", "Maa", "Jup", "Gul",
                                           "", "", "Ket", "Ven", "Moo Mer", ""};
const TextChartCells kNorthRasiCells = {"Asc", "Ket", "", "Moo", "Sat", "", "", "Jup Rah", "Sun", "Mer Ven", "",
                                        "Mar Gul Maa"};
// The East Rasi label keeps its bodies on one line: three characters remain.
const TextChartCells kEastRasiCells = {"", "Jup", "Sun", "Mer", "", "Mar", "Asc", "Ket", "", "Moo", "Sat", ""};
// Full cells: all twelve bodies in every cell, cell k starting k bodies
// further on ("Sun Moo ... Maa Asc" in cell 2), so that a cut taken from the
// wrong cell or place shows.
TextChartCells FullCells() {
  const std::string bodies = "Asc Sun Moo Mar Mer Jup Ven Sat Rah Ket Gul Maa ";
  TextChartCells cells;
  for (size_t k = 0; k < 12; ++k) {
    const std::string turned = bodies.substr(4 * k) + bodies.substr(0, 4 * k);
    cells[k] = turned.substr(0, turned.size() - 1);
  }
  return cells;
}
const TextChartCells kFullCells = FullCells();


// ---- Reducers ---------------------------------------------------------------

// The rows of tests/data/presentation/reduce_cells.txt, each through its
// function: the three reducers of a label, and the tightening of blanks
// (runs of three, in one pass from the left).
TEST(ReduceCell, EachReducerOnItsLabels) {
  using Reducer = std::string (*)(const std::string&);
  const std::map<std::string, Reducer> functions = {{"ReduceCellLines", ReduceCellLines},
                                                    {"ReduceCellPairs", ReduceCellPairs},
                                                    {"ReduceCellBlanks", ReduceCellBlanks},
                                                    {"TightenBlanks", TightenBlanks}};
  const auto rows = testing::TestDataTable("presentation/reduce_cells.txt");
  ASSERT_EQ(rows.size(), 29u);
  for (const auto& row : rows) {
    ASSERT_EQ(row.size(), 3u);
    ASSERT_EQ(functions.count(row[0]), 1u) << row[0];
    EXPECT_EQ(functions.at(row[0])(testing::Unescaped(row[1])), row[2]) << row[0] << " \"" << row[1] << '"';
  }
}

TEST(TightenBlanks, EachRoutineTightensItsCellsFirst) {
  TextChartCells cells{};
  cells[0] = "Sun   Moo";  // three blanks, as ReduceCellPairs leaves of six
  const std::vector<std::string> south = Lines(SouthTextChart(cells, ""), kSouthTextChartMargin);
  EXPECT_EQ(south[1].substr(0, 13), "*Sun Moo    *");
  const std::vector<std::string> north = Lines(NorthTextChart(cells, "", 1), kNorthTextChartMargin);
  EXPECT_EQ(north[4].substr(0, 7), "* Sun *");  // C(1,1,3)
  EXPECT_EQ(north[5].substr(0, 9), "*Moo    *");  // C(1,5,7)
  const std::vector<std::string> east = Lines(EastTextChart(cells, ""), kEastTextChartMargin);
  EXPECT_EQ(east[3].substr(0, 5), "*Sun*");  // C(1,1,3)
  EXPECT_EQ(east[4].substr(0, 5), "*Moo ");  // C(1,5,3)
}

// ---- Drawings of the sample chart --------------------------------------------

TEST(TextCharts, GoldenDrawings) {
  // The sample chart, and full cells cut at the tables' places.
  ExpectDrawing(SouthTextChart(kSouthRasiCells, "Rasi"), kSouthTextChartMargin, "south_rasi");
  ExpectDrawing(SouthTextChart(kSouthNavamsaCells, "Navamsa"), kSouthTextChartMargin, "south_navamsa");
  ExpectDrawing(NorthTextChart(kNorthRasiCells, "Rasi", 7), kNorthTextChartMargin, "north_rasi");
  ExpectDrawing(EastTextChart(kEastRasiCells, "Rasi"), kEastTextChartMargin, "east_rasi");
  ExpectDrawing(SouthTextChart(kFullCells, "Rasi"), kSouthTextChartMargin, "south_full");
  ExpectDrawing(NorthTextChart(kFullCells, "Navamsa", 12), kNorthTextChartMargin, "north_full");
  ExpectDrawing(EastTextChart(kFullCells, "Bhava"), kEastTextChartMargin, "east_full");
}

// ---- Widths and the frame -----------------------------------------------------

// Lines() also holds every line to its CR LF and its margin, so a drawing
// that does not end with CR LF, or holds an empty line, fails here too.
TEST(TextCharts, EveryLineAsWideAsItsTable) {
  for (const TextChartCells& cells : {TextChartCells{}, kSouthRasiCells, kFullCells}) {
    const std::vector<std::string> south = Lines(SouthTextChart(cells, "Navamsa"), kSouthTextChartMargin);
    ASSERT_EQ(south.size(), 21u);
    for (size_t i = 0; i < south.size(); ++i) EXPECT_EQ(south[i].size(), 49u) << "South line " << i + 1;

    // The North and East drawings have their title line first.
    const std::vector<std::string> north = Lines(NorthTextChart(cells, "Rasi", 3), kNorthTextChartMargin);
    ASSERT_EQ(north.size(), 23u);
    for (size_t i = 1; i < north.size(); ++i) {
      // Line 2 of the table ends in " * * ", one blank past the frame.
      EXPECT_EQ(north[i].size(), i == 2 ? 42u : 41u) << "North line " << i;
    }
    const std::vector<std::string> east = Lines(EastTextChart(cells, "Rasi"), kEastTextChartMargin);
    ASSERT_EQ(east.size(), 23u);
    for (size_t i = 1; i < east.size(); ++i) EXPECT_EQ(east[i].size(), 43u) << "East line " << i;
  }
}

TEST(TextCharts, FullCellsKeepTheFrame) {
  // Cell texts hold no "*", so every "*" is frame: it must stand where it
  // stands with empty cells, whatever the cells hold.
  const TextChartCells empty{};
  EXPECT_EQ(StarColumns(Lines(SouthTextChart(kFullCells, "Rasi"), kSouthTextChartMargin)),
            StarColumns(Lines(SouthTextChart(empty, "Rasi"), kSouthTextChartMargin)));
  EXPECT_EQ(StarColumns(Lines(NorthTextChart(kFullCells, "Rasi", 5), kNorthTextChartMargin)),
            StarColumns(Lines(NorthTextChart(empty, "Rasi", 5), kNorthTextChartMargin)));
  EXPECT_EQ(StarColumns(Lines(EastTextChart(kFullCells, "Rasi"), kEastTextChartMargin)),
            StarColumns(Lines(EastTextChart(empty, "Rasi"), kEastTextChartMargin)));
  // And the frame of the empty South chart is the golden's.
  const std::vector<std::string> golden = testing::TestDataLines("text_charts/south_rasi.txt");
  EXPECT_EQ(StarColumns(Lines(SouthTextChart(empty, "Rasi"), kSouthTextChartMargin)), StarColumns(golden));
  // Longer texts than the cuts take change nothing either.
  TextChartCells longer;
  for (auto& cell : longer) cell = std::string(80, 'x');
  EXPECT_EQ(StarColumns(Lines(EastTextChart(longer, "Rasi"), kEastTextChartMargin)),
            StarColumns(Lines(EastTextChart(empty, "Rasi"), kEastTextChartMargin)));
}

// ---- The South title ---------------------------------------------------------

TEST(SouthTextChart, TitleCentredWithHalfToEvenPad) {
  // Left pad 12 - length / 2, rounded half to even; the right pad fills 23.
  const struct {
    std::string title;
    std::string centre;
  } cases[] = {
      {"Rasi", "          Rasi         "},     // 10
      {"Navamsa", "        Navamsa        "},  // 8.5 -> 8
      {"Bhava", "          Bhava        "},    // 9.5 -> 10
      {"", "                       "},
      {"X", "            X          "},  // 11.5 -> 12
      {"Twenty-three characters", "Twenty-three characters"},
      {"Twenty-four characters!!", "Twenty-four characters!"},  // cut to the centre
  };
  for (const auto& c : cases) {
    const std::vector<std::string> lines = Lines(SouthTextChart({}, c.title), kSouthTextChartMargin);
    ASSERT_EQ(lines.size(), 21u);
    EXPECT_EQ(lines[10], "*************" + c.centre + "*************") << '"' << c.title << '"';
  }
}

// The goldens hold the North and East title lines, centred half to even
// ("Rasi" 18.5 to 18 over North, 19.5 to 20 over East); an empty title
// leaves the margin alone.
TEST(TextCharts, EmptyTitleLeavesAnEmptyLine) {
  EXPECT_EQ(Lines(NorthTextChart({}, "", 1), kNorthTextChartMargin)[0], "");
  EXPECT_EQ(Lines(EastTextChart({}, ""), kEastTextChartMargin)[0], "");
}

// ---- North sign numbers ------------------------------------------------------

// The inner corner of each cell in the North drawing: line (0 is the title
// line) and column of its two-character sign field, cell 1 first.
constexpr std::array<std::pair<size_t, size_t>, 12> kNorthCorners = {{
    {6, 8},    // cell 1, upper-left triangle
    {5, 11},   // cell 2, top-left triangle
    {10, 20},  // cell 3, top diamond, above the centre
    {5, 29},   // cell 4
    {6, 31},   // cell 5
    {12, 18},  // cell 6, left diamond, left of the centre
    {12, 21},  // cell 7, right diamond
    {16, 8},   // cell 8
    {18, 11},  // cell 9
    {13, 20},  // cell 10, bottom diamond, below the centre
    {18, 29},  // cell 11
    {16, 31},  // cell 12
}};

std::array<std::string, 12> CornerNumbers(const std::string& drawing) {
  const std::vector<std::string> lines = Lines(drawing, kNorthTextChartMargin);
  std::array<std::string, 12> out;
  for (size_t k = 0; k < 12; ++k) {
    const auto [line, column] = kNorthCorners[k];
    out[k] = lines.at(line).substr(column, 2);
  }
  return out;
}

TEST(NorthTextChart, SignNumbersAtTheInnerCornersForSeveralLagnas) {
  const struct {
    int lagna;
    std::array<std::string, 12> signs;  // at the corners of cells 1 to 12
  } cases[] = {
      {1, {" 1", " 2", " 3", " 4", " 5", " 6", " 7", " 8", " 9", "10", "11", "12"}},
      {7, {" 7", " 8", " 9", "10", "11", "12", " 1", " 2", " 3", " 4", " 5", " 6"}},
      {11, {"11", "12", " 1", " 2", " 3", " 4", " 5", " 6", " 7", " 8", " 9", "10"}},
      {12, {"12", " 1", " 2", " 3", " 4", " 5", " 6", " 7", " 8", " 9", "10", "11"}},
  };
  for (const auto& c : cases) {
    EXPECT_EQ(CornerNumbers(NorthTextChart({}, "Rasi", c.lagna)), c.signs) << "Lagna " << c.lagna;
    // Full cells do not move them.
    EXPECT_EQ(CornerNumbers(NorthTextChart(kFullCells, "Rasi", c.lagna)), c.signs) << "Lagna " << c.lagna;
  }
}

TEST(NorthTextChart, CornerNumbersAreTheWindowsHouseSigns) {
  ChartCells cells;
  for (bool navamsa : {false, true}) {
    ChartWindow& window = navamsa ? cells.navamsa : cells.rasi;
    if (navamsa) {
      FillNavamsaChart(SampleChart("North", true), cells);
    } else {
      FillRasiChart(SampleChart("North", false), cells);
    }
    EXPECT_EQ(NorthLagnaSign(window), navamsa ? 2 : 7);
    const auto corners = CornerNumbers(NorthTextChart(ReportCells(window, "NORTH"), "x", NorthLagnaSign(window)));
    for (int k = 1; k <= 12; ++k) {
      std::string expected = window.northHouseNo.Caption(k);
      if (expected.size() == 1) expected.insert(0, " ");
      EXPECT_EQ(corners[static_cast<size_t>(k - 1)], expected) << window.name << " cell " << k;
    }
  }
  EXPECT_EQ(NorthLagnaSign(cells.bhava), 0);  // never filled
}

// ---- The report's cells ------------------------------------------------------

TEST(ReportCells, SampleRasiInEachStyleAndNavamsa) {
  ChartCells cells;
  FillRasiChart(SampleChart("South", false), cells);
  EXPECT_EQ(ReportCells(cells.rasi, "SOUTH"), kSouthRasiCells);
  FillRasiChart(SampleChart("North", false), cells);
  EXPECT_EQ(ReportCells(cells.rasi, "NORTH"), kNorthRasiCells);
  FillRasiChart(SampleChart("East", false), cells);
  EXPECT_EQ(ReportCells(cells.rasi, "EAST"), kEastRasiCells);
  // The style is compared upper-cased; another gives empty cells.
  EXPECT_EQ(ReportCells(cells.rasi, "East"), kEastRasiCells);
  EXPECT_EQ(ReportCells(cells.rasi, "Western"), TextChartCells{});
  EXPECT_EQ(ReportCells(cells.rasi, ""), TextChartCells{});
  FillNavamsaChart(SampleChart("South", true), cells);
  EXPECT_EQ(ReportCells(cells.navamsa, "south"), kSouthNavamsaCells);
}

TEST(ReportCells, BhavaCellsByBlanks) {
  // The sample chart's houses: rasi of house k, and its short names as the
  // Bhava system lists them, the Lagna's name and a blank first in house 1.
  const std::array<std::int16_t, 12> rasi = {7, 8, 9, 10, 11, 12, 1, 2, 3, 4, 5, 6};
  const std::array<std::string, 12> planets = {"Asc ", "Ket", "Moo", "", "Sat", "", "", "Jup Rah", "Sun",
                                               "Mer Ven", "", "Mar Gul"};
  const TextChartCells bySign = {"", "Jup Rah", "Sun", "Mer Ven", "", "Mar Gul", "Asc", "Ket", "Moo", "", "Sat", ""};
  const TextChartCells byHouse = {"Asc", "Ket", "Moo", "", "Sat", "", "", "Jup Rah", "Sun", "Mer Ven", "", "Mar Gul"};
  ChartCells cells;
  FillBhavaChart("South", rasi, planets, cells);
  EXPECT_EQ(ReportBhavaCells(cells.bhava, "SOUTH"), bySign);
  FillBhavaChart("East", rasi, planets, cells);
  EXPECT_EQ(ReportBhavaCells(cells.bhava, "EAST"), bySign);
  FillBhavaChart("North", rasi, planets, cells);
  EXPECT_EQ(ReportBhavaCells(cells.bhava, "NORTH"), byHouse);
  EXPECT_EQ(NorthLagnaSign(cells.bhava), 7);
  EXPECT_EQ(ReportBhavaCells(cells.bhava, "WEST"), TextChartCells{});
}

TEST(TextChart, RoutineByTheUpperCasedStyle) {
  EXPECT_EQ(TextChart("SOUTH", kFullCells, "Rasi", 4), SouthTextChart(kFullCells, "Rasi"));
  EXPECT_EQ(TextChart("south", kFullCells, "Rasi", 4), SouthTextChart(kFullCells, "Rasi"));
  EXPECT_EQ(TextChart("North", kFullCells, "Rasi", 4), NorthTextChart(kFullCells, "Rasi", 4));
  EXPECT_EQ(TextChart("EAST", kFullCells, "Rasi", 4), EastTextChart(kFullCells, "Rasi"));
  EXPECT_EQ(TextChart("", kFullCells, "Rasi", 4), "");
  EXPECT_EQ(TextChart("South ", kFullCells, "Rasi", 4), "");
  EXPECT_EQ(TextChart("Western", kFullCells, "Rasi", 4), "");
}

}  // namespace
}  // namespace kelvaro
