#pragma once
// Where a body stands in a chart drawing: its sign, its house from the Lagna,
// and its degrees within the sign; and the shapes of the three drawn charts.
#include <array>
#include <cstdint>
#include <vector>

#include "presentation/chart_cells.h"

namespace kelvaro {

// 13 minus the Lagna's sign plus the body's sign, 12 less when above 12: the
// house of the body counted from the Lagna, 1 to 12.
std::int16_t HouseFromLagna(std::int16_t lagnaSign, std::int16_t bodySign);

// Takes 30 away while the value is at least 30; below 30 it stays.
double FoldToSign(double position);

// The whole part of position / width, plus 1; 12 less while 13 or more.
std::int16_t SignOfLongitude(double position, double width);

// ---------------------------------------------------------------------------
// The drawn charts' geometry, in the unit square: x to the right, y down,
// (0, 0) the chart's top-left corner, (1, 1) its bottom-right corner. The
// painter scales it to the square it draws into.

struct ChartPoint {
  double x = 0, y = 0;
};

struct ChartBox {
  double left = 0, top = 0, width = 0, height = 0;
  bool Empty() const { return width <= 0 || height <= 0; }
};

// One cell of a drawn chart.
struct ChartCellShape {
  std::vector<ChartPoint> outline;  // a convex polygon, corners in drawing order
  ChartBox textBox;                 // axis-aligned, inside the outline: the bodies go here
  // North only: the centre of the house's sign number, inside the outline,
  // in the house's corner nearest the chart's centre and clear of textBox.
  // South and East: the cell's centre (unused by the painter).
  ChartPoint signLabel;
};

// The twelve cells of a style: index 0..11 is sign 1..12 for South and East,
// house 1..12 (counted from the Lagna) for North. South: the 4 by 4 square,
// Pisces top left, the signs running clockwise. East: the 3 by 3 square,
// Aries top middle, the signs running counter-clockwise, each corner cell cut
// by its diagonal into two signs. North: the diamond in a square, house 1
// the top middle diamond, the houses running counter-clockwise.
std::array<ChartCellShape, 12> ChartCellShapes(ChartFrame style);

// Where the chart's title goes: the open centre of South (its middle 2 by 2)
// and East (its middle cell). North has no open centre (every point belongs
// to a house, and the centre is where four houses' sign numbers sit), so it
// returns an empty box and the title is left to the window or page caption.
ChartBox ChartTitleBox(ChartFrame style);

// Whether p lies inside the convex polygon or on its border (within 1e-12).
bool ConvexPolygonContains(const std::vector<ChartPoint>& polygon, ChartPoint p);

}  // namespace kelvaro
