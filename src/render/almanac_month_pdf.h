#pragma once
// The month at a glance on paper: a heading with the place and the month,
// then one table row a day (date, week-day, the tithi, star and yoga at
// sunrise with the times they end), "Page n of m" in the footer. It is given
// the texts to print and works nothing out. Needs a QGuiApplication.
#include <QByteArray>
#include <QPagedPaintDevice>
#include <QPainter>
#include <filesystem>
#include <string>
#include <vector>

#include "render/pdf_report.h"

namespace kelvaro::render {

struct AlmanacMonthLine {
  std::string date;  // "DD/MM/YYYY"
  std::string weekday;
  std::string tithi;
  std::string tithiEnd;  // "HH:MM", or with the date where it ends on another day
  std::string star;
  std::string starEnd;
  std::string yoga;
  std::string yogaEnd;
};

struct AlmanacMonthSheet {
  std::string place;  // "Hyderabad, India"
  std::string month;  // "January 2024"
  std::vector<AlmanacMonthLine> lines;
};

// Draws the sheet on `device` from its first page on (a PDF writer or a
// printer set to its full page); returns the page count.
int PaintAlmanacMonth(QPainter& painter, QPagedPaintDevice& device, const AlmanacMonthSheet& sheet);

QByteArray AlmanacMonthPdf(const AlmanacMonthSheet& sheet, PaperSize paper);

// AlmanacMonthPdf written atomically: a failed write leaves an earlier file
// of that name as it was. Raises ReportWriteError.
void WriteAlmanacMonthPdf(const std::filesystem::path& path, const AlmanacMonthSheet& sheet, PaperSize paper);

}  // namespace kelvaro::render
