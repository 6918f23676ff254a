#include "render/day_bar_painter.h"

#include <QColor>
#include <QFontMetricsF>
#include <QString>

namespace kelvaro::render {

QRectF PeriodRect(const QRectF& area, const DayBarPeriod& period, int totalMinutes) {
  const double perMinute = area.width() / totalMinutes;
  return {area.left() + period.left * perMinute, area.top(), period.width * perMinute, area.height()};
}

void PaintDayBar(QPainter& painter, const QRectF& area, const std::vector<DayBarPeriod>& periods,
                 int totalMinutes) {
  if (totalMinutes <= 0 || area.isEmpty()) return;
  painter.save();
  painter.setRenderHint(QPainter::Antialiasing, false);
  // The bar takes the top two thirds; the ticks and hours the rest.
  const QRectF bar(area.left(), area.top(), area.width(), area.height() * 2 / 3);
  const QRectF band = bar.adjusted(0, bar.height() / 4, 0, -bar.height() / 4);
  for (bool ground : {true, false}) {
    for (const DayBarPeriod& p : periods) {
      const bool isGround = p.name == "Day" || p.name == "Night";
      if (isGround != ground) continue;
      const QRectF r = PeriodRect(ground ? bar : band, p, totalMinutes);
      painter.fillRect(r, QColor(QString::fromStdString(p.backColor)));
      painter.setPen(QColor(QString::fromStdString(p.foreColor)));
      painter.drawRect(r);
      // A name too long for its period shrinks to its first word, and that
      // failing is left out rather than spill over its neighbour; the
      // caption is in the tooltip and the table.
      const QString name = QString::fromStdString(p.name);
      for (const QString& label : {name, name.section(' ', 0, 0)}) {
        if (QFontMetricsF(painter.font()).horizontalAdvance(label) + 4 <= r.width()) {
          painter.drawText(r, Qt::AlignCenter, label);
          break;
        }
      }
    }
  }
  painter.setPen(Qt::black);
  painter.drawRect(bar);
  const double perMinute = area.width() / totalMinutes;
  for (int m = 0; m <= totalMinutes; m += 60) {
    const double x = area.left() + m * perMinute;
    painter.drawLine(QPointF(x, bar.bottom()), QPointF(x, bar.bottom() + 4));
  }
  painter.restore();
}

}  // namespace kelvaro::render
