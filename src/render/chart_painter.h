#pragma once
// The drawn charts: South, East and North in vector graphics (lines,
// polygons, text) through a QPainter, so one drawing serves the screen, the
// printer, PDF, PNG and SVG. Qt GUI only; no widgets.
#include <QFont>
#include <QImage>
#include <QPainter>
#include <QRectF>
#include <QString>
#include <array>
#include <string>
#include <vector>

#include "presentation/chart_cells.h"

namespace kelvaro::render {

// What one drawn chart shows, independent of the window it came from.
struct ChartPicture {
  ChartFrame style = ChartFrame::South;
  // The texts in cell order: sign 1..12 (index 0 = sign 1) for South and East,
  // house 1..12 for North; as the model holds them, CR LF ("\r\n") is a line break,
  // and entries inside a line are separated by two blanks.
  std::array<std::string, 12> cells;
  std::array<int, 12> houseSigns{};  // North: the sign number shown at house k (index k-1); 0 = none
  int lagnaSign = 0;                 // 1..12: the Lagna's sign (its cell is marked); 0 = no mark
  std::string title;                 // "Rasi", "Navamsa", "Bhava"
};

// The picture of one window of the cell model in a style (reads south[0..11],
// east[1..12] or north[1..12] and northHouseNo[1..12]; a house number that is
// not a sign 1..12, a blank one included, becomes 0 and is not drawn).
ChartPicture PictureOf(const ChartWindow& window, ChartFrame style, int lagnaSign, std::string title);

// One line of text as PaintChart draws it, in the painter's coordinates.
struct PlacedText {
  enum class Kind { Cell, SignNumber, Title };
  Kind kind = Kind::Cell;
  int cell = -1;  // cell index 0..11; -1 for the title
  QString line;
  QFont font;
  QRectF rect;       // the line's extent: its advance by the font's height
  QPointF baseline;  // where the line starts, on its baseline
  QRectF box;        // the box the text was fitted into (the cell's text box, inset)
  // True when even the smallest font left the text wider or taller than its
  // box: then the painter clips the line to `box`.
  bool clipped = false;
};

// The smallest font the cell texts shrink to, in pixels (device units).
inline constexpr int kMinTextPixels = 2;

// Every text of the chart, as PaintChart draws it into `area`: the cell
// texts split at CR LF, wrapped at the two-blank separators (at single blanks
// when an entry alone is too wide) and shrunk until they fit their cell's
// text box; North's sign numbers; the title of South and East.
std::vector<PlacedText> LayoutChart(const ChartPicture& chart, const QRectF& area);

// The largest square centred in `area`.
QRectF ChartSquare(const QRectF& area);

// Draws the chart filling the largest square centred in `area`, with vector
// graphics only (lines, polygons, text), so it is crisp on screen, printer, PDF, SVG.
void PaintChart(QPainter& painter, const QRectF& area, const ChartPicture& chart);

QImage ChartImage(const ChartPicture& chart, int sidePixels);  // white background

// Write a PNG or an SVG of the chart; false and a message (naming the file) on failure.
bool SaveChartPng(const ChartPicture& chart, const QString& path, int sidePixels, QString* error);
bool SaveChartSvg(const ChartPicture& chart, const QString& path, int sidePixels, QString* error);

}  // namespace kelvaro::render
