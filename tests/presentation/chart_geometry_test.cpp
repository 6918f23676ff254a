#include "presentation/chart_geometry.h"

#include <gtest/gtest.h>

#include <cmath>
#include <string>
#include <vector>

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

}  // namespace
}  // namespace kelvaro

namespace kelvaro {
namespace {

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

// The conventional places: a point well inside the cell a reader expects.
TEST(ChartGeometry, SignsAndHousesStandInTheirConventionalPlaces) {
  struct Case {
    ChartFrame style;
    int cell;  // sign (South, East) or house (North), 1..12
    ChartPoint inside;
  } cases[] = {
      {ChartFrame::South, 12, {0.1, 0.1}},    // Pisces top left
      {ChartFrame::South, 1, {0.4, 0.1}},     // Aries beside it
      {ChartFrame::South, 3, {0.9, 0.1}},     // Gemini top right
      {ChartFrame::South, 6, {0.9, 0.9}},     // Virgo bottom right
      {ChartFrame::South, 9, {0.1, 0.9}},     // Sagittarius bottom left
      {ChartFrame::South, 11, {0.1, 0.4}},    // Aquarius left, upper
      {ChartFrame::East, 1, {0.5, 0.15}},     // Aries top middle
      {ChartFrame::East, 2, {0.25, 0.05}},    // Taurus on the top edge, left
      {ChartFrame::East, 3, {0.05, 0.25}},    // Gemini on the left edge, top
      {ChartFrame::East, 5, {0.05, 0.75}},    // Leo on the left edge, bottom
      {ChartFrame::East, 7, {0.5, 0.85}},     // Libra bottom middle
      {ChartFrame::East, 9, {0.95, 0.75}},    // Sagittarius on the right edge, bottom
      {ChartFrame::East, 12, {0.75, 0.05}},   // Pisces on the top edge, right
      {ChartFrame::North, 1, {0.5, 0.25}},    // house 1 top middle diamond
      {ChartFrame::North, 2, {0.25, 0.05}},   // top-left, on the top edge
      {ChartFrame::North, 3, {0.05, 0.25}},   // top-left, on the left edge
      {ChartFrame::North, 4, {0.25, 0.5}},    // left diamond
      {ChartFrame::North, 7, {0.5, 0.75}},    // bottom diamond
      {ChartFrame::North, 10, {0.75, 0.5}},   // right diamond
      {ChartFrame::North, 12, {0.75, 0.05}},  // top-right, on the top edge
  };
  for (const Case& c : cases) {
    SCOPED_TRACE(std::string(FrameName(c.style)) + " cell " + std::to_string(c.cell));
    EXPECT_TRUE(ConvexPolygonContains(ChartCellShapes(c.style)[static_cast<size_t>(c.cell - 1)].outline, c.inside));
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
