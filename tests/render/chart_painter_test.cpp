#include "render/chart_painter.h"

#include <gtest/gtest.h>

#include <QFile>
#include <QTemporaryDir>
#include <cmath>
#include <string>

#include "presentation/chart_geometry.h"
#include "support/sample_chart.h"

namespace kelvaro::render {
namespace {

constexpr ChartFrame kStyles[] = {ChartFrame::South, ChartFrame::East, ChartFrame::North};
constexpr double kEdgePixels = 1.5;  // antialiasing spreads a stroke this far

// The sample chart's Rasi window in a style, as the desktop shows it.
ChartPicture SamplePicture(ChartFrame style, int lagnaSign) {
  ChartCells cells;
  const char* names[] = {"South", "East", "North"};
  FillRasiChart(testing::SampleChartData(names[static_cast<int>(style)], false), cells);
  return PictureOf(cells.rasi, style, lagnaSign, "Rasi");
}

// The twelve bodies in one cell, as the South fill writes them (a line each,
// with degrees) and as the East fill writes them (one line).
const std::string kTwelveLines =
    "Asc  12.5\r\nSun  29.59\r\nMoo  3.40\r\nMar  14.39\r\nMer  24.37\r\nJup  25.29\r\n"
    "Ven  22.59\r\nSat  23.36\r\nRah  18.18\r\nKet  18.18\r\nGul  29.0\r\nMaa  22.35";
const std::string kTwelveOnOneLine = "Asc  Sun  Moo  Mar  Mer  Jup  Ven  Sat  Rah  Ket  Gul  Maa  ";

QRectF Scaled(const ChartBox& b, const QRectF& square) {
  const double s = square.width();
  return {square.left() + b.left * s, square.top() + b.top * s, b.width * s, b.height * s};
}

QString Words(const std::string& text) {
  return QString::fromStdString(text).simplified();
}

// Every cell full: each line lies in its cell's text box, the words arrive
// in order with none lost, and the font stays above the floor.
TEST(ChartPainter, CrowdedCellsStayInsideTheirTextBoxes) {
  for (ChartFrame style : kStyles) {
    for (const std::string& text : {kTwelveLines, kTwelveOnOneLine}) {
      for (const QRectF area : {QRectF(0, 0, 150, 150), QRectF(0, 0, 300, 300), QRectF(0, 0, 900, 900),
                                QRectF(7, 40, 300, 420)}) {
        SCOPED_TRACE(std::string(FrameName(style)) + " " + std::to_string(area.height()) + " " + text.substr(0, 12));
        ChartPicture chart;
        chart.style = style;
        chart.cells.fill(text);
        const QRectF square = ChartSquare(area);
        EXPECT_EQ(square.width(), std::min(area.width(), area.height()));
        EXPECT_EQ(square.center(), area.center());
        const auto shapes = ChartCellShapes(style);
        std::array<QString, 12> drawn;
        for (const PlacedText& t : LayoutChart(chart, area)) {
          ASSERT_EQ(t.kind, PlacedText::Kind::Cell);
          const QRectF box = Scaled(shapes[static_cast<size_t>(t.cell)].textBox, square);
          EXPECT_TRUE(box.contains(t.rect)) << t.line.toStdString() << " in cell " << t.cell;
          EXPECT_FALSE(t.clipped);
          EXPECT_GE(t.font.pixelSize(), kMinTextPixels);
          drawn[static_cast<size_t>(t.cell)] += t.line + QLatin1Char(' ');
        }
        for (const QString& words : drawn) EXPECT_EQ(words.simplified(), Words(text));
      }
    }
  }
}

// Differing pixels between two drawings, each checked against `allowed`
// (grown by the antialiasing margin); returns how many differ.
template <typename Allowed>
int DifferingPixels(const QImage& a, const QImage& b, Allowed allowed, int* outside) {
  int differing = 0;
  *outside = 0;
  for (int y = 0; y < a.height(); ++y) {
    for (int x = 0; x < a.width(); ++x) {
      if (a.pixel(x, y) == b.pixel(x, y)) continue;
      ++differing;
      bool near = false;
      for (double dx : {-kEdgePixels, 0.0, kEdgePixels}) {
        for (double dy : {-kEdgePixels, 0.0, kEdgePixels}) near = near || allowed(x + 0.5 + dx, y + 0.5 + dy);
      }
      if (!near) ++*outside;
    }
  }
  return differing;
}

// The Lagna's mark changes pixels of the Lagna's cell only: Libra in South,
// Taurus (a cut corner) in East, house 1 in North.
TEST(ChartPainter, LagnaMarkLiesInTheLagnasCell) {
  constexpr int kSide = 400;
  const struct {
    ChartFrame style;
    int lagnaSign, cell;
  } cases[] = {{ChartFrame::South, 7, 6}, {ChartFrame::East, 2, 1}, {ChartFrame::North, 7, 0}};
  for (const auto& c : cases) {
    SCOPED_TRACE(FrameName(c.style));
    const QImage plain = ChartImage(SamplePicture(c.style, 0), kSide);
    const QImage marked = ChartImage(SamplePicture(c.style, c.lagnaSign), kSide);
    const auto outline = ChartCellShapes(c.style)[static_cast<size_t>(c.cell)].outline;
    int outside = 0;
    const int differing = DifferingPixels(
        plain, marked, [&](double x, double y) { return ConvexPolygonContains(outline, {x / kSide, y / kSide}); },
        &outside);
    EXPECT_GT(differing, 20);
    EXPECT_EQ(outside, 0);
  }
}

// Text drawn (crowded cells, also where a chart too small forces clipping)
// changes pixels inside the text boxes only.
TEST(ChartPainter, PaintedTextNeverLeavesItsBox) {
  for (ChartFrame style : kStyles) {
    for (int side : {40, 300}) {
      SCOPED_TRACE(std::string(FrameName(style)) + " " + std::to_string(side));
      ChartPicture empty;
      empty.style = style;
      ChartPicture full = empty;
      full.cells.fill(kTwelveLines);
      const auto layout = LayoutChart(full, QRectF(0, 0, side, side));
      const bool clipped = std::any_of(layout.begin(), layout.end(), [](const PlacedText& t) { return t.clipped; });
      EXPECT_EQ(clipped, side == 40);
      const auto shapes = ChartCellShapes(style);
      int outside = 0;
      const int differing = DifferingPixels(
          ChartImage(empty, side), ChartImage(full, side),
          [&](double x, double y) {
            return std::any_of(shapes.begin(), shapes.end(), [&](const ChartCellShape& s) {
              return Scaled(s.textBox, QRectF(0, 0, side, side)).contains(x, y);
            });
          },
          &outside);
      EXPECT_GT(differing, 0);
      EXPECT_EQ(outside, 0);
    }
  }
}

// The sample chart's Lagna is Libra (7): the North houses run Libra onwards
// and the Lagna's text stands in Libra's cell (South, East) or house 1.
TEST(ChartPainter, PictureOfReadsTheStylesLabels) {
  for (ChartFrame style : kStyles) {
    SCOPED_TRACE(FrameName(style));
    const ChartPicture p = SamplePicture(style, 7);
    EXPECT_EQ(p.cells[style == ChartFrame::North ? 0 : 6].rfind("Asc", 0), 0u);
    for (int house = 1; house <= 12; ++house) {
      EXPECT_EQ(p.houseSigns[static_cast<size_t>(house - 1)], style == ChartFrame::North ? (house + 5) % 12 + 1 : 0);
    }
  }
}

TEST(ChartPainter, SavesPngAndSvgAndNamesAFailedPath) {
  QTemporaryDir dir;
  ASSERT_TRUE(dir.isValid());
  const ChartPicture chart = SamplePicture(ChartFrame::South, 7);
  using Saver = bool (*)(const ChartPicture&, const QString&, int, QString*);
  const struct {
    const char* file;
    Saver save;
  } cases[] = {{"chart.png", SaveChartPng}, {"chart.svg", SaveChartSvg}};
  for (const auto& c : cases) {
    SCOPED_TRACE(c.file);
    const QString path = dir.filePath(QString::fromLatin1(c.file));
    QString error;
    ASSERT_TRUE(c.save(chart, path, 321, &error)) << error.toStdString();
    EXPECT_TRUE(error.isEmpty());
    if (path.endsWith(QLatin1String(".png"))) {
      const QImage image(path);
      EXPECT_EQ(image.size(), QSize(321, 321));
    } else {
      QFile file(path);
      ASSERT_TRUE(file.open(QIODevice::ReadOnly));
      const QByteArray svg = file.readAll();
      EXPECT_TRUE(svg.startsWith("<?xml") || svg.contains("<svg"));
      for (const char* text : {"Rasi", "Asc", "Sun", "Sat"}) EXPECT_TRUE(svg.contains(text)) << text;
    }
    const QString missing = dir.filePath(QStringLiteral("no-such-folder/")) + QString::fromLatin1(c.file);
    EXPECT_FALSE(c.save(chart, missing, 100, &error));
    EXPECT_TRUE(error.contains(missing)) << error.toStdString();
    EXPECT_FALSE(QFile::exists(missing));
  }
}

}  // namespace
}  // namespace kelvaro::render
