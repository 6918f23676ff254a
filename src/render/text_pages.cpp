#include "render/text_pages.h"

#include <QFontMetricsF>
#include <QStringList>
#include <algorithm>

#include "render/pdf_document.h"

namespace kelvaro::render {

namespace {

QStringList Lines(const std::string& piece) {
  QString text = QString::fromStdString(piece);
  text.remove('\r');
  return text.split('\n');
}

}  // namespace

void PaintTextPages(QPainter& painter, QPagedPaintDevice& device, const std::vector<std::string>& pieces) {
  const double width = device.width();
  const double height = device.height();
  // One size for every page, so that the report reads evenly: the largest
  // at which the widest line and the longest piece fit.
  qsizetype widest = 1;
  qsizetype longest = 1;
  std::vector<QStringList> pages;
  for (const std::string& piece : pieces) {
    pages.push_back(Lines(piece));
    longest = std::max(longest, pages.back().size());
    for (const QString& line : pages.back()) widest = std::max(widest, line.size());
  }
  constexpr int kProbe = 1000;  // pixels of a font measured once, to scale from
  QFont font(QString::fromLatin1(kMonoFamily));
  font.setStyleHint(QFont::TypeWriter);
  font.setPixelSize(kProbe);
  const QFontMetricsF probe(font);
  const double advance = probe.horizontalAdvance(QLatin1Char('M')) / kProbe;
  const double spacing = probe.lineSpacing() / kProbe;
  const double largest = kTextPagePoints * device.logicalDpiY() / 72.0;
  const double pixels = std::min({largest, width / (static_cast<double>(widest) * advance),
                                  height / (static_cast<double>(longest) * spacing)});
  font.setPixelSize(std::max(1, static_cast<int>(pixels)));
  const QFontMetricsF metrics(font);
  painter.setFont(font);
  painter.setPen(Qt::black);
  for (std::size_t page = 0; page < pages.size(); ++page) {
    if (page > 0) device.newPage();
    double baseline = metrics.ascent();
    for (const QString& line : pages[page]) {
      painter.drawText(QPointF(0, baseline), line);
      baseline += metrics.lineSpacing();
    }
  }
}

}  // namespace kelvaro::render
