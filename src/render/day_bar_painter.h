#pragma once
// The day from sunrise to the next sunrise drawn as one bar: the day and the
// night as the ground, the named periods (Rahu Kalam, Yamaganda, Gulika
// Kalam, the vishaghati) as bands across its middle with their names, and
// hour ticks below.
#include <QPainter>
#include <QRectF>
#include <vector>

#include "panchanga/time_display.h"

namespace kelvaro::render {

// Draws `periods` into `area`, `totalMinutes` (sunrise to next sunrise)
// filling its width. Periods named "Day" and "Night" are the ground; the
// others are drawn over it in the order given. Nothing is drawn for a total
// of 0 or less.
void PaintDayBar(QPainter& painter, const QRectF& area, const std::vector<DayBarPeriod>& periods,
                 int totalMinutes);

// Where a period lies across `area`.
QRectF PeriodRect(const QRectF& area, const DayBarPeriod& period, int totalMinutes);

}  // namespace kelvaro::render
