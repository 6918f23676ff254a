#include "presentation/chart_geometry.h"

#include <gtest/gtest.h>

#include <cmath>
#include <sstream>
#include <string>
#include <vector>

#include "support/test_data.h"

namespace kelvaro {
namespace {

TEST(ChartGeometry, HousesSignsAndFolds) {
  struct House {
    int lagna, body, house;
  } houses[] = {{7, 7, 1}, {7, 6, 12}, {7, 10, 4}, {1, 12, 12}, {12, 1, 2}, {1, 1, 1}};
  for (const auto& h : houses) {
    EXPECT_EQ(HouseFromLagna(static_cast<std::int16_t>(h.lagna), static_cast<std::int16_t>(h.body)), h.house);
  }
  EXPECT_EQ(FoldToSign(275.456), 275.456 - 270);
  EXPECT_EQ(FoldToSign(30), 0);
  EXPECT_EQ(FoldToSign(29.999), 29.999);
  EXPECT_EQ(SignOfLongitude(275.456, 30), 10);
  EXPECT_EQ(SignOfLongitude(360, 30), 1);  // 13 folds to 1
  EXPECT_EQ(SignOfLongitude(359.99, 3.33333333333333), 12);
}

constexpr ChartFrame kStyles[] = {ChartFrame::South, ChartFrame::East, ChartFrame::North};

double ShoelaceArea(const std::vector<ChartPoint>& outline) {
  double twice = 0;
  for (size_t i = 0; i < outline.size(); ++i) {
    const ChartPoint& a = outline[i];
    const ChartPoint& b = outline[(i + 1) % outline.size()];
    twice += a.x * b.y - b.x * a.y;
  }
  return std::abs(twice) / 2;
}

bool InBox(const ChartBox& box, ChartPoint p) {
  return p.x >= box.left && p.x <= box.left + box.width && p.y >= box.top && p.y <= box.top + box.height;
}

// Every point of the square lies in exactly one cell, or in the open centre
// (the title box) of South and East; the areas add up to the same.
TEST(ChartGeometry, CellsTileTheSquare) {
  constexpr int kGrid = 60;  // offsets keep the sample points off every drawn line
  constexpr double kAreaTolerance = 1e-12;
  for (ChartFrame style : kStyles) {
    SCOPED_TRACE(FrameName(style));
    const auto cells = ChartCellShapes(style);
    const ChartBox centre = ChartTitleBox(style);
    double area = centre.width * centre.height;
    for (const auto& cell : cells) area += ShoelaceArea(cell.outline);
    EXPECT_NEAR(area, 1.0, kAreaTolerance);
    int misplaced = 0;
    for (int i = 0; i < kGrid; ++i) {
      for (int j = 0; j < kGrid; ++j) {
        const ChartPoint p{(i + 0.37) / kGrid, (j + 0.61) / kGrid};
        int owners = InBox(centre, p) && !centre.Empty() ? 1 : 0;
        for (const auto& cell : cells) owners += ConvexPolygonContains(cell.outline, p) ? 1 : 0;
        if (owners != 1) ++misplaced;
      }
    }
    EXPECT_EQ(misplaced, 0);
  }
}

// The conventional places, from tests/data/presentation/conventional_places.txt.
TEST(ChartGeometry, SignsAndHousesStandInTheirConventionalPlaces) {
  const auto rows = testing::TestDataTable("presentation/conventional_places.txt");
  ASSERT_EQ(rows.size(), 20u);
  for (const auto& row : rows) {
    ASSERT_EQ(row.size(), 4u);
    SCOPED_TRACE(row[0] + " cell " + row[1] + ": " + row[3]);
    const ChartFrame style = row[0] == "South" ? ChartFrame::South : row[0] == "East" ? ChartFrame::East : ChartFrame::North;
    ASSERT_EQ(FrameName(style), "Frame_" + row[0] + "Bride");  // no unknown frame read as North
    ChartPoint inside{};
    std::istringstream(row[2]) >> inside.x >> inside.y;
    EXPECT_TRUE(ConvexPolygonContains(ChartCellShapes(style)[static_cast<size_t>(std::stoi(row[1]) - 1)].outline, inside));
  }
  EXPECT_TRUE(ChartTitleBox(ChartFrame::North).Empty());
}

// Text boxes (all four corners) and North's sign numbers lie inside their
// cells, and the sign number clear of the text box.
TEST(ChartGeometry, TextBoxesAndSignLabelsLieInsideTheirCells) {
  for (ChartFrame style : kStyles) {
    SCOPED_TRACE(FrameName(style));
    const auto cells = ChartCellShapes(style);
    for (size_t i = 0; i < cells.size(); ++i) {
      SCOPED_TRACE(i + 1);
      const ChartBox& b = cells[i].textBox;
      EXPECT_GT(b.width * b.height, 0.15 * ShoelaceArea(cells[i].outline));
      for (const ChartPoint corner : {ChartPoint{b.left, b.top}, ChartPoint{b.left + b.width, b.top},
                                      ChartPoint{b.left, b.top + b.height},
                                      ChartPoint{b.left + b.width, b.top + b.height}}) {
        EXPECT_TRUE(ConvexPolygonContains(cells[i].outline, corner));
      }
      if (style == ChartFrame::North) {
        EXPECT_TRUE(ConvexPolygonContains(cells[i].outline, cells[i].signLabel));
        EXPECT_FALSE(InBox(b, cells[i].signLabel));
      }
    }
  }
}

}  // namespace
}  // namespace kelvaro
