#include "render/almanac_month_pdf.h"

#include <QFontMetricsF>
#include <QPdfWriter>

#include "render/pdf_document.h"
#include "report/destinations.h"

namespace kelvaro::render {

namespace {

constexpr double kPointsPerInch = 72;
constexpr double kMarginPoints = 50;

QString Q(const std::string& text) { return QString::fromStdString(text); }

QString Footer(const AlmanacMonthSheet& sheet) {
  return QStringLiteral("Daily Almanac, %1, %2").arg(Q(sheet.period), Q(sheet.place));
}

void Compose(PdfDocument& doc, const AlmanacMonthSheet& sheet) {
  doc.Text(QStringLiteral("Daily Almanac of %1").arg(Q(sheet.period)), doc.Font(kSerifFamily, 16, true),
           Qt::AlignHCenter);
  doc.Space(4);
  doc.Text(Q(sheet.place), doc.Font(kSerifFamily, 11), Qt::AlignHCenter, kMutedInk);
  doc.Space(4);
  doc.Text(QStringLiteral("The tithi, star and yoga in force at sunrise, and the times they end"),
           doc.Font(kSansFamily, 8.5, false, true), Qt::AlignHCenter, kMutedInk);
  doc.Space(8);
  doc.Rule();
  doc.Space(10);

  TextTable table;
  table.headings = {"Date", "Day", "Tithi", "Ends", "Star", "Ends", "Yoga", "Ends"};
  table.fontPoints = 9;
  for (const AlmanacMonthLine& l : sheet.lines) {
    table.rows.push_back({Q(l.date), Q(l.weekday), Q(l.tithi), Q(l.tithiEnd), Q(l.star), Q(l.starEnd), Q(l.yoga),
                          Q(l.yogaEnd)});
  }
  doc.Table(table);
}

PageFrame FrameOf(const QPagedPaintDevice& device) {
  const double dotsPerPoint = device.logicalDpiX() / kPointsPerInch;
  return PageFrame{QSizeF(device.width(), device.height()), dotsPerPoint, kMarginPoints};
}

}  // namespace

int PaintAlmanacMonth(QPainter& painter, QPagedPaintDevice& device, const AlmanacMonthSheet& sheet) {
  const PageFrame frame = FrameOf(device);
  // The first run only counts the pages, for the footers of the second.
  PdfDocument measure(nullptr, nullptr, frame, Footer(sheet), 0);
  Compose(measure, sheet);
  const int pages = measure.Finish();
  PdfDocument doc(&painter, &device, frame, Footer(sheet), pages);
  Compose(doc, sheet);
  doc.Finish();
  return pages;
}

QByteArray AlmanacMonthPdf(const AlmanacMonthSheet& sheet, PaperSize paper) {
  return PdfBytes(paper, Footer(sheet),
                  [&](QPainter& painter, QPdfWriter& writer) { PaintAlmanacMonth(painter, writer, sheet); });
}

void WriteAlmanacMonthPdf(const std::filesystem::path& path, const AlmanacMonthSheet& sheet, PaperSize paper) {
  const QByteArray bytes = AlmanacMonthPdf(sheet, paper);
  WriteReportFile(path, std::string_view(bytes.constData(), static_cast<std::size_t>(bytes.size())));
}

}  // namespace kelvaro::render
