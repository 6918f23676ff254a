#include "render/chart_painter.h"

#include <QBuffer>
#include <QFileInfo>
#include <QFontMetricsF>
#include <QPainterPath>
#include <QPolygonF>
#include <QSaveFile>
#include <QSvgGenerator>
#include <algorithm>
#include <charconv>
#include <cmath>
#include <set>
#include <utility>

#include "presentation/chart_geometry.h"

namespace kelvaro::render {
namespace {

// Proportions of the chart's side.
constexpr double kTextPerSide = 1.0 / 34;   // the cell texts' starting size
constexpr double kTitlePerSide = 1.0 / 17;  // the title's starting size
constexpr double kSignNumberOfText = 0.8;   // North's sign numbers, of the text size
constexpr double kPaddingPerSide = 0.008;   // between a text box and its text
constexpr double kLinePerSide = 0.0035;     // inner lines; the border is half again as wide
constexpr double kMarkOfEdge = 0.3;         // the Lagna stroke cuts this much of the shortest edge
constexpr double kMarkPerSide = 0.006;      // the Lagna stroke's width

const QColor kBackground(253, 246, 228);    // a light warm paper
const QColor kLagnaTint(244, 226, 186);     // North's house 1
const QColor kLines(59, 42, 30);
const QColor kText(25, 20, 16);
const QColor kSignNumber(128, 88, 48);
const QColor kLagnaMark(150, 30, 30);

QRectF ToArea(const ChartBox& box, const QRectF& square) {
  const double s = square.width();
  return {square.left() + box.left * s, square.top() + box.top * s, box.width * s, box.height * s};
}

QPointF ToArea(ChartPoint p, const QRectF& square) {
  return {square.left() + p.x * square.width(), square.top() + p.y * square.width()};
}

QPolygonF ToArea(const std::vector<ChartPoint>& outline, const QRectF& square) {
  QPolygonF polygon;
  for (const ChartPoint& p : outline) polygon << ToArea(p, square);
  return polygon;
}

QFont ChartFont(int pixels, bool bold = false) {
  QFont font(QStringLiteral("DejaVu Sans"));
  font.setStyleHint(QFont::SansSerif);
  font.setPixelSize(std::max(1, pixels));
  font.setBold(bold);
  return font;
}

// The paragraphs of a cell (CR LF breaks), each as its entries (separated by
// two or more blanks), blanks at either end dropped.
std::vector<QStringList> Paragraphs(const std::string& text) {
  std::vector<QStringList> paragraphs;
  const QString all = QString::fromStdString(text);
  for (const QString& line : all.split(QStringLiteral("\r\n"))) {
    QStringList entries;
    for (const QString& entry : line.split(QStringLiteral("  "), Qt::SkipEmptyParts)) {
      const QString trimmed = entry.trimmed();
      if (!trimmed.isEmpty()) entries.append(trimmed);
    }
    if (!entries.isEmpty()) paragraphs.push_back(std::move(entries));
  }
  return paragraphs;
}

// Greedy filling of lines no wider than `width`: the pieces joined by `glue`.
// A piece wider than the width alone keeps a line of its own.
void FillLines(const QStringList& pieces, const QString& glue, double width, const QFontMetricsF& metrics,
               std::vector<QString>& lines) {
  QString current;
  for (const QString& piece : pieces) {
    const QString joined = current.isEmpty() ? piece : current + glue + piece;
    if (current.isEmpty() || metrics.horizontalAdvance(joined) <= width) {
      current = joined;
    } else {
      lines.push_back(current);
      current = piece;
    }
  }
  if (!current.isEmpty()) lines.push_back(current);
}

std::vector<QString> WrapLines(const std::vector<QStringList>& paragraphs, double width,
                               const QFontMetricsF& metrics) {
  std::vector<QString> lines;
  for (const auto& entries : paragraphs) {
    std::vector<QString> joined;
    FillLines(entries, QStringLiteral("  "), width, metrics, joined);
    for (const QString& line : joined) {
      if (metrics.horizontalAdvance(line) <= width) {
        lines.push_back(line);
      } else {  // one entry too wide on its own: break it at its single blanks
        FillLines(line.split(QLatin1Char(' '), Qt::SkipEmptyParts), QStringLiteral(" "), width, metrics, lines);
      }
    }
  }
  return lines;
}

// Lines centred in `box`, one under the other.
void PlaceBlock(const std::vector<QString>& lines, const QFont& font, const QFontMetricsF& metrics, const QRectF& box,
                PlacedText::Kind kind, int cell, bool clipped, std::vector<PlacedText>& out) {
  const double blockHeight = metrics.lineSpacing() * static_cast<double>(lines.size() - 1) + metrics.height();
  double top = box.center().y() - blockHeight / 2;
  for (const QString& line : lines) {
    const double width = metrics.horizontalAdvance(line);
    PlacedText placed;
    placed.kind = kind;
    placed.cell = cell;
    placed.line = line;
    placed.font = font;
    placed.rect = QRectF(box.center().x() - width / 2, top, width, metrics.height());
    placed.baseline = QPointF(placed.rect.left(), top + metrics.ascent());
    placed.box = box;
    placed.clipped = clipped;
    out.push_back(std::move(placed));
    top += metrics.lineSpacing();
  }
}

// The text shrunk from `startPixels` one pixel at a time until it fits the
// box, with a line break at every CR LF as the model has them. Once the font
// is down to half its starting size, the text may also run its lines on
// (joined by two blanks, as entries are) where that fits at the larger size:
// a crowded cell stays readable in a small chart. At kMinTextPixels, run on
// and clipped.
void FitText(const std::vector<QStringList>& paragraphs, const QRectF& box, int startPixels, bool bold,
             PlacedText::Kind kind, int cell, std::vector<PlacedText>& out) {
  if (paragraphs.empty() || box.isEmpty()) return;
  QStringList runOn;
  for (const QStringList& entries : paragraphs) runOn += entries;
  const std::vector<QStringList> joined{runOn};
  const int start = std::max(startPixels, kMinTextPixels);
  const int readable = std::max(kMinTextPixels, start / 2);
  auto attempt = [&](const std::vector<QStringList>& text, int pixels, bool lastResort) {
    const QFont font = ChartFont(pixels, bold);
    const QFontMetricsF metrics(font);
    const std::vector<QString> lines = WrapLines(text, box.width(), metrics);
    double widest = 0;
    for (const QString& line : lines) widest = std::max(widest, metrics.horizontalAdvance(line));
    const double height = metrics.lineSpacing() * static_cast<double>(lines.size() - 1) + metrics.height();
    const bool fits = widest <= box.width() && height <= box.height();
    if (fits || lastResort) PlaceBlock(lines, font, metrics, box, kind, cell, !fits, out);
    return fits;
  };
  for (int pixels = start; pixels >= kMinTextPixels; --pixels) {
    if (attempt(paragraphs, pixels, false)) return;
    if (pixels <= readable && paragraphs.size() > 1 && attempt(joined, pixels, false)) return;
  }
  attempt(joined, kMinTextPixels, true);
}

// The Lagna's cell in the cell order of the style; -1 when none is marked.
int LagnaCell(const ChartPicture& chart) {
  if (chart.lagnaSign < 1 || chart.lagnaSign > 12) return -1;
  return chart.style == ChartFrame::North ? 0 : chart.lagnaSign - 1;
}

// The stroke across one corner of the Lagna's cell (South, East): the corner
// farthest from the text box, so that the stroke stays clear of the text.
QLineF LagnaStroke(const ChartCellShape& cell, const QRectF& square) {
  const auto& o = cell.outline;
  const ChartPoint centre{cell.textBox.left + cell.textBox.width / 2, cell.textBox.top + cell.textBox.height / 2};
  std::size_t corner = 0;
  double shortest = 1;
  double farthest = -1;
  for (std::size_t i = 0; i < o.size(); ++i) {
    // A margin keeps the first of equally far corners (top-left in a square).
    const double d = std::hypot(o[i].x - centre.x, o[i].y - centre.y);
    if (d > farthest + 1e-9) {
      farthest = d;
      corner = i;
    }
    const ChartPoint& next = o[(i + 1) % o.size()];
    shortest = std::min(shortest, std::hypot(next.x - o[i].x, next.y - o[i].y));
  }
  const ChartPoint v = o[corner];
  const ChartPoint prev = o[(corner + o.size() - 1) % o.size()];
  const ChartPoint next = o[(corner + 1) % o.size()];
  const double cut = kMarkOfEdge * shortest;
  auto along = [&](ChartPoint to) {
    const double length = std::hypot(to.x - v.x, to.y - v.y);
    return ChartPoint{v.x + cut * (to.x - v.x) / length, v.y + cut * (to.y - v.y) / length};
  };
  return {ToArea(along(prev), square), ToArea(along(next), square)};
}

// Every edge of the cells once (a shared edge is drawn once, not twice), the
// chart's border left out.
std::vector<QLineF> InnerEdges(const std::array<ChartCellShape, 12>& cells, const QRectF& square) {
  auto onBorder = [](ChartPoint a, ChartPoint b) {
    constexpr double kEps = 1e-9;
    return (std::abs(a.x - b.x) < kEps && (std::abs(a.x) < kEps || std::abs(a.x - 1) < kEps)) ||
           (std::abs(a.y - b.y) < kEps && (std::abs(a.y) < kEps || std::abs(a.y - 1) < kEps));
  };
  auto key = [](ChartPoint p) { return std::pair<long, long>(std::lround(p.x * 1e6), std::lround(p.y * 1e6)); };
  std::set<std::pair<std::pair<long, long>, std::pair<long, long>>> seen;
  std::vector<QLineF> edges;
  for (const ChartCellShape& cell : cells) {
    const auto& o = cell.outline;
    for (std::size_t i = 0; i < o.size(); ++i) {
      const ChartPoint a = o[i], b = o[(i + 1) % o.size()];
      if (onBorder(a, b)) continue;
      auto ka = key(a), kb = key(b);
      if (kb < ka) std::swap(ka, kb);
      if (seen.insert({ka, kb}).second) edges.emplace_back(ToArea(a, square), ToArea(b, square));
    }
  }
  return edges;
}

bool WriteFile(const QString& path, const QByteArray& bytes, QString* error) {
  QSaveFile file(path);
  if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size() || !file.commit()) {
    if (error) *error = QStringLiteral("Cannot write %1: %2").arg(QFileInfo(path).absoluteFilePath(), file.errorString());
    return false;
  }
  return true;
}

}  // namespace

ChartPicture PictureOf(const ChartWindow& window, ChartFrame style, int lagnaSign, std::string title) {
  ChartPicture picture;
  picture.style = style;
  picture.lagnaSign = lagnaSign;
  picture.title = std::move(title);
  for (int k = 0; k < 12; ++k) {
    const auto i = static_cast<std::size_t>(k);
    switch (style) {
      case ChartFrame::South: picture.cells[i] = window.south.Caption(k); break;
      case ChartFrame::East: picture.cells[i] = window.east.Caption(k + 1); break;
      case ChartFrame::North: {
        picture.cells[i] = window.north.Caption(k + 1);
        const std::string& number = window.northHouseNo.Caption(k + 1);
        int sign = 0;
        const auto [end, failure] = std::from_chars(number.data(), number.data() + number.size(), sign);
        picture.houseSigns[i] = failure == std::errc() && end == number.data() + number.size() && sign >= 1 &&
                                        sign <= 12
                                    ? sign
                                    : 0;
        break;
      }
    }
  }
  return picture;
}

QRectF ChartSquare(const QRectF& area) {
  const double side = std::max(0.0, std::min(area.width(), area.height()));
  return {area.center().x() - side / 2, area.center().y() - side / 2, side, side};
}

std::vector<PlacedText> LayoutChart(const ChartPicture& chart, const QRectF& area) {
  std::vector<PlacedText> placed;
  const QRectF square = ChartSquare(area);
  const double side = square.width();
  if (side <= 0) return placed;
  const auto cells = ChartCellShapes(chart.style);
  const double padding = side * kPaddingPerSide;
  const int textPixels = static_cast<int>(std::lround(side * kTextPerSide));
  for (std::size_t i = 0; i < cells.size(); ++i) {
    const QRectF box = ToArea(cells[i].textBox, square).adjusted(padding, padding, -padding, -padding);
    FitText(Paragraphs(chart.cells[i]), box, textPixels, false, PlacedText::Kind::Cell, static_cast<int>(i), placed);
  }
  if (chart.style == ChartFrame::North) {
    const QFont font = ChartFont(std::max(kMinTextPixels, static_cast<int>(std::lround(textPixels * kSignNumberOfText))));
    const QFontMetricsF metrics(font);
    for (std::size_t i = 0; i < cells.size(); ++i) {
      if (chart.houseSigns[i] < 1) continue;
      const QPointF at = ToArea(cells[i].signLabel, square);
      const QString number = QString::number(chart.houseSigns[i]);
      const double width = metrics.horizontalAdvance(number);
      const QRectF rect(at.x() - width / 2, at.y() - metrics.height() / 2, width, metrics.height());
      placed.push_back({PlacedText::Kind::SignNumber, static_cast<int>(i), number, font, rect,
                        QPointF(rect.left(), rect.top() + metrics.ascent()), rect, false});
    }
  }
  const ChartBox titleBox = ChartTitleBox(chart.style);
  if (!titleBox.Empty() && !chart.title.empty()) {
    const QRectF box = ToArea(titleBox, square).adjusted(padding, padding, -padding, -padding);
    FitText({QStringList{QString::fromStdString(chart.title).trimmed()}}, box, static_cast<int>(std::lround(side * kTitlePerSide)),
            true, PlacedText::Kind::Title, -1, placed);
  }
  return placed;
}

void PaintChart(QPainter& painter, const QRectF& area, const ChartPicture& chart) {
  const QRectF square = ChartSquare(area);
  const double side = square.width();
  if (side <= 0) return;
  const auto cells = ChartCellShapes(chart.style);
  painter.save();
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setRenderHint(QPainter::TextAntialiasing);
  painter.fillRect(square, kBackground);

  const int lagnaCell = LagnaCell(chart);
  if (lagnaCell >= 0 && chart.style == ChartFrame::North) {
    // House 1 is the Lagna by definition: a tint, not a stroke.
    QPainterPath house;
    house.addPolygon(ToArea(cells[0].outline, square));
    painter.fillPath(house, kLagnaTint);
  }

  const double lineWidth = std::max(1.0, side * kLinePerSide);
  painter.setPen(QPen(kLines, lineWidth, Qt::SolidLine, Qt::FlatCap, Qt::MiterJoin));
  painter.setBrush(Qt::NoBrush);
  const std::vector<QLineF> edges = InnerEdges(cells, square);
  painter.drawLines(edges.data(), static_cast<int>(edges.size()));
  const double border = lineWidth * 1.5;
  painter.setPen(QPen(kLines, border, Qt::SolidLine, Qt::SquareCap, Qt::MiterJoin));
  painter.drawRect(square.adjusted(border / 2, border / 2, -border / 2, -border / 2));

  if (lagnaCell >= 0 && chart.style != ChartFrame::North) {
    painter.setPen(QPen(kLagnaMark, std::max(1.5, side * kMarkPerSide), Qt::SolidLine, Qt::RoundCap));
    painter.drawLine(LagnaStroke(cells[static_cast<std::size_t>(lagnaCell)], square));
  }

  for (const PlacedText& text : LayoutChart(chart, area)) {
    painter.setFont(text.font);
    painter.setPen(text.kind == PlacedText::Kind::SignNumber ? kSignNumber : kText);
    if (text.clipped) {
      painter.save();
      painter.setClipRect(text.box, Qt::IntersectClip);
      painter.drawText(text.baseline, text.line);
      painter.restore();
    } else {
      painter.drawText(text.baseline, text.line);
    }
  }
  painter.restore();
}

QImage ChartImage(const ChartPicture& chart, int sidePixels) {
  QImage image(std::max(1, sidePixels), std::max(1, sidePixels), QImage::Format_ARGB32_Premultiplied);
  image.fill(Qt::white);
  QPainter painter(&image);
  PaintChart(painter, QRectF(0, 0, image.width(), image.height()), chart);
  painter.end();
  return image;
}

bool SaveChartPng(const ChartPicture& chart, const QString& path, int sidePixels, QString* error) {
  QByteArray bytes;
  QBuffer buffer(&bytes);
  buffer.open(QIODevice::WriteOnly);
  if (!ChartImage(chart, sidePixels).save(&buffer, "PNG")) {
    if (error) *error = QStringLiteral("Cannot encode the chart as PNG for %1").arg(path);
    return false;
  }
  return WriteFile(path, bytes, error);
}

bool SaveChartSvg(const ChartPicture& chart, const QString& path, int sidePixels, QString* error) {
  QByteArray bytes;
  QBuffer buffer(&bytes);
  buffer.open(QIODevice::WriteOnly);
  const int side = std::max(1, sidePixels);
  QSvgGenerator generator;
  generator.setOutputDevice(&buffer);
  generator.setSize(QSize(side, side));
  generator.setViewBox(QRectF(0, 0, side, side));
  generator.setTitle(QString::fromStdString(chart.title));
  QPainter painter;
  if (!painter.begin(&generator)) {
    if (error) *error = QStringLiteral("Cannot draw the chart as SVG for %1").arg(path);
    return false;
  }
  PaintChart(painter, QRectF(0, 0, side, side), chart);
  painter.end();
  return WriteFile(path, bytes, error);
}

}  // namespace kelvaro::render
