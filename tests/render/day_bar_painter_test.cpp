#include "render/day_bar_painter.h"

#include <gtest/gtest.h>

#include <QImage>

namespace kelvaro::render {
namespace {

// A day of 720 minutes and a night of 720 on a bar 1440 pixels wide: one
// pixel a minute, so each period's place can be read off by hand.
TEST(DayBarPainter, PeriodsWhereTheirMinutesPutThem) {
  const std::vector<DayBarPeriod> periods = {
      {"Day", "", 0, 720, "#ffff00", "#000000"},
      {"Night", "", 720, 720, "#000080", "#ffffff"},
      {"Rahu Kalam", "", 450, 90, "#ff0000", "#000000"},
  };
  QImage image(1440, 90, QImage::Format_RGB32);
  image.fill(Qt::white);
  QPainter painter(&image);
  PaintDayBar(painter, QRectF(0, 0, 1440, 90), periods, 1440);
  painter.end();
  // The bar is the top 60 pixels; the band the middle 30 of them.
  EXPECT_EQ(image.pixelColor(100, 10), QColor("#ffff00"));
  EXPECT_EQ(image.pixelColor(1000, 10), QColor("#000080"));
  EXPECT_EQ(image.pixelColor(455, 20), QColor("#ff0000"));
  EXPECT_EQ(image.pixelColor(445, 20), QColor("#ffff00"));  // before the band starts
  EXPECT_EQ(image.pixelColor(455, 10), QColor("#ffff00"));  // above the band
  EXPECT_EQ(image.pixelColor(545, 30), QColor("#ffff00"));  // after it ends
  EXPECT_EQ(PeriodRect(QRectF(0, 0, 720, 10), periods[2], 1440), QRectF(225, 0, 45, 10));
}

TEST(DayBarPainter, NothingForAnEmptyDay) {
  QImage image(100, 30, QImage::Format_RGB32);
  image.fill(Qt::white);
  QPainter painter(&image);
  PaintDayBar(painter, QRectF(0, 0, 100, 30), {{"Day", "", 0, 10, "#ff0000", "#000000"}}, 0);
  painter.end();
  EXPECT_EQ(image.pixelColor(5, 5), QColor(Qt::white));
}

}  // namespace
}  // namespace kelvaro::render
