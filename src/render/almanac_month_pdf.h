#pragma once
// The month at a glance on paper: a heading with the place and the month,
// then one table row a day (date, week-day, the tithi, star and yoga at
// sunrise with the times they end), "Page n of m" in the footer. It is given
// the texts to print and works nothing out. Needs a QGuiApplication.
#include <QByteArray>
#include <QPagedPaintDevice>
#include <QPainter>
#include <filesystem>

#include "render/pdf_report.h"
#include "report/almanac_month_sheet.h"

namespace kelvaro::render {

// Draws the sheet on `device` from its first page on (a PDF writer or a
// printer set to its full page); returns the page count.
int PaintAlmanacMonth(QPainter& painter, QPagedPaintDevice& device, const AlmanacMonthSheet& sheet);

QByteArray AlmanacMonthPdf(const AlmanacMonthSheet& sheet, PaperSize paper);

// AlmanacMonthPdf written atomically: a failed write leaves an earlier file
// of that name as it was. Raises ReportWriteError.
void WriteAlmanacMonthPdf(const std::filesystem::path& path, const AlmanacMonthSheet& sheet, PaperSize paper);

}  // namespace kelvaro::render
