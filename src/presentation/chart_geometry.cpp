#include "presentation/chart_geometry.h"

#include <cmath>
#include <cstddef>
#include <utility>

#include "common/number_rules.h"

namespace kelvaro {

std::int16_t HouseFromLagna(std::int16_t lagnaSign, std::int16_t bodySign) {
  int house = 13 - lagnaSign + bodySign;
  if (house > 12) house -= 12;
  return static_cast<std::int16_t>(house);
}

double FoldToSign(double position) {
  while (position >= 30) position -= 30;
  return position;
}

std::int16_t SignOfLongitude(double position, double width) {
  double sign = Int(position / width) + 1;
  while (sign >= 13) sign -= 12;
  return CInt(sign);
}

namespace {

using Outline = std::vector<ChartPoint>;

ChartPoint Centroid(const Outline& outline) {
  ChartPoint c;
  for (const ChartPoint& p : outline) {
    c.x += p.x;
    c.y += p.y;
  }
  const auto n = static_cast<double>(outline.size());
  return {c.x / n, c.y / n};
}

ChartCellShape SquareCell(double left, double top, double side) {
  ChartCellShape cell;
  cell.outline = {{left, top}, {left + side, top}, {left + side, top + side}, {left, top + side}};
  cell.textBox = {left, top, side, side};
  cell.signLabel = {left + side / 2, top + side / 2};
  return cell;
}

// A right triangle with its right angle at `corner` and legs of length `leg`
// running from there along x (dx = +1 or -1) and along y (dy = +1 or -1). The
// text box is the largest box inside it: the square of half the legs standing
// in the right angle.
ChartCellShape RightTriangle(ChartPoint corner, int dx, int dy, double leg) {
  ChartCellShape cell;
  cell.outline = {corner, {corner.x + dx * leg, corner.y}, {corner.x, corner.y + dy * leg}};
  const double half = leg / 2;
  cell.textBox = {dx > 0 ? corner.x : corner.x - half, dy > 0 ? corner.y : corner.y - half, half, half};
  cell.signLabel = Centroid(cell.outline);
  return cell;
}

// South: 4 by 4 cells of a quarter; (column, row) of signs 1..12.
std::array<ChartCellShape, 12> SouthCells() {
  constexpr std::array<std::pair<int, int>, 12> kPlace = {{
      {1, 0}, {2, 0}, {3, 0}, {3, 1}, {3, 2}, {3, 3},  // Aries .. Virgo
      {2, 3}, {1, 3}, {0, 3}, {0, 2}, {0, 1}, {0, 0},  // Libra .. Pisces
  }};
  constexpr double kSide = 0.25;
  std::array<ChartCellShape, 12> cells;
  for (std::size_t i = 0; i < 12; ++i) cells[i] = SquareCell(kPlace[i].first * kSide, kPlace[i].second * kSide, kSide);
  return cells;
}

// East: 3 by 3 cells of a third. Each corner cell is cut by the diagonal from
// the chart's corner to the cell's inner corner, so each half is a right
// triangle whose right angle stands at one of the cell's two other corners.
std::array<ChartCellShape, 12> EastCells() {
  constexpr double a = 1.0 / 3, b = 2.0 / 3;
  return {
      SquareCell(a, 0, a),                // 1 Aries, top middle
      RightTriangle({a, 0}, -1, +1, a),   // 2 Taurus, top-left, along the top edge
      RightTriangle({0, a}, +1, -1, a),   // 3 Gemini, top-left, along the left edge
      SquareCell(0, a, a),                // 4 Cancer, middle left
      RightTriangle({0, b}, +1, +1, a),   // 5 Leo, bottom-left, along the left edge
      RightTriangle({a, 1}, -1, -1, a),   // 6 Virgo, bottom-left, along the bottom edge
      SquareCell(a, b, a),                // 7 Libra, bottom middle
      RightTriangle({b, 1}, +1, -1, a),   // 8 Scorpio, bottom-right, along the bottom edge
      RightTriangle({1, b}, -1, +1, a),   // 9 Sagittarius, bottom-right, along the right edge
      SquareCell(b, a, a),                // 10 Capricorn, middle right
      RightTriangle({1, a}, -1, -1, a),   // 11 Aquarius, top-right, along the right edge
      RightTriangle({b, 0}, +1, +1, a),   // 12 Pisces, top-right, along the top edge
  };
}

// North: the square's corners, the mid points of its sides, its centre and
// the four points where the diagonals cross the diamond.
std::array<ChartCellShape, 12> NorthCells() {
  const ChartPoint tl{0, 0}, tr{1, 0}, br{1, 1}, bl{0, 1};
  const ChartPoint top{0.5, 0}, right{1, 0.5}, bottom{0.5, 1}, left{0, 0.5}, mid{0.5, 0.5};
  const ChartPoint qtl{0.25, 0.25}, qtr{0.75, 0.25}, qbr{0.75, 0.75}, qbl{0.25, 0.75};
  const std::array<Outline, 12> outlines = {{
      {top, qtr, mid, qtl},     // 1 top diamond
      {tl, top, qtl},           // 2 top-left, along the top edge
      {tl, qtl, left},          // 3 top-left, along the left edge
      {left, qtl, mid, qbl},    // 4 left diamond
      {left, qbl, bl},          // 5
      {bl, qbl, bottom},        // 6
      {bottom, qbl, mid, qbr},  // 7 bottom diamond
      {bottom, qbr, br},        // 8
      {br, qbr, right},         // 9
      {right, qbr, mid, qtr},   // 10 right diamond
      {right, qtr, tr},         // 11
      {tr, qtr, top},           // 12
  }};
  // Text boxes, centred on the cell's axis. A diamond (half-diagonals 0.25)
  // holds a box 0.3 by 0.2: wider than tall because lines of text are, and
  // 96% of the largest (square) box. A triangle along the top or bottom edge
  // holds its largest box, 0.25 by 0.125, on that edge; one along a side
  // edge, 0.15 deep by 0.2 high against that edge (the largest is 0.125 by
  // 0.25, too narrow for a line).
  constexpr double kDiamondW = 0.3, kDiamondH = 0.2, kFlatW = 0.25, kFlatH = 0.125, kSideW = 0.15, kSideH = 0.2;
  std::array<ChartCellShape, 12> cells;
  for (std::size_t i = 0; i < 12; ++i) {
    ChartCellShape& cell = cells[i];
    cell.outline = outlines[i];
    const ChartPoint c = Centroid(cell.outline);
    if (cell.outline.size() == 4) {
      cell.textBox = {c.x - kDiamondW / 2, c.y - kDiamondH / 2, kDiamondW, kDiamondH};
    } else {
      // The triangle's base is the side lying on the chart's edge.
      const bool onTop = c.y < 0.15, onBottom = c.y > 0.85, onLeft = c.x < 0.5;
      if (onTop || onBottom) {
        cell.textBox = {c.x - kFlatW / 2, onTop ? 0 : 1 - kFlatH, kFlatW, kFlatH};
      } else {
        cell.textBox = {onLeft ? 0 : 1 - kSideW, c.y - kSideH / 2, kSideW, kSideH};
      }
    }
    // The sign number: from the corner nearest the chart's centre, 30% of
    // the way to the cell's centroid; inside the cell and below or beside
    // the text box, where a reader of this style looks for it.
    ChartPoint nearest = cell.outline.front();
    for (const ChartPoint& p : cell.outline) {
      if (std::hypot(p.x - 0.5, p.y - 0.5) < std::hypot(nearest.x - 0.5, nearest.y - 0.5)) nearest = p;
    }
    constexpr double kToward = 0.3;
    cell.signLabel = {nearest.x + kToward * (c.x - nearest.x), nearest.y + kToward * (c.y - nearest.y)};
  }
  return cells;
}

}  // namespace

std::array<ChartCellShape, 12> ChartCellShapes(ChartFrame style) {
  switch (style) {
    case ChartFrame::South: return SouthCells();
    case ChartFrame::East: return EastCells();
    case ChartFrame::North: return NorthCells();
  }
  return SouthCells();
}

ChartBox ChartTitleBox(ChartFrame style) {
  switch (style) {
    case ChartFrame::South: return {0.25, 0.25, 0.5, 0.5};
    case ChartFrame::East: return {1.0 / 3, 1.0 / 3, 1.0 / 3, 1.0 / 3};
    case ChartFrame::North: return {};
  }
  return {};
}

bool ConvexPolygonContains(const std::vector<ChartPoint>& polygon, ChartPoint p) {
  // Inside a convex polygon, p lies on the same side of every edge.
  constexpr double kOnEdge = 1e-12;
  bool anyLeft = false, anyRight = false;
  for (std::size_t i = 0; i < polygon.size(); ++i) {
    const ChartPoint& a = polygon[i];
    const ChartPoint& b = polygon[(i + 1) % polygon.size()];
    const double cross = (b.x - a.x) * (p.y - a.y) - (b.y - a.y) * (p.x - a.x);
    if (cross > kOnEdge) anyLeft = true;
    if (cross < -kOnEdge) anyRight = true;
  }
  return !(anyLeft && anyRight) && polygon.size() >= 3;
}

}  // namespace kelvaro
