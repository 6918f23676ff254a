#include "render/pdf_report.h"

#include <QBuffer>
#include <QFontMetricsF>
#include <QPageLayout>
#include <QPdfWriter>
#include <algorithm>
#include <cctype>
#include <initializer_list>

#include "presentation/chart_geometry.h"
#include "render/chart_painter.h"
#include "render/pdf_document.h"
#include "render/pdf_first_page.h"
#include "report/destinations.h"
#include "report/period_blocks.h"

namespace kelvaro::render {

namespace {

constexpr int kDotsPerInch = 600;
constexpr double kPointsPerInch = 72;
constexpr double kMarginPoints = 50;
constexpr double kChartGapPoints = 18;

QString Value(const std::string& text) { return SingleSpaced(text); }

QString Cell(const Grid& grid, int row, int col) {
  return row < grid.Rows() && col < grid.Cols() ? QString::fromStdString(grid.Text(row, col)).trimmed() : QString();
}

std::vector<QString> Cells(const Grid& grid, int row, std::initializer_list<int> cols) {
  std::vector<QString> texts;
  for (int col : cols) texts.push_back(Cell(grid, row, col));
  return texts;
}

// ---- Charts -----------------------------------------------------------------

std::optional<ChartPicture> Picture(const ChartWindow& window, int lagnaSign, const char* title) {
  const auto frame = window.VisibleFrame();
  if (!frame) return std::nullopt;
  return PictureOf(window, *frame, lagnaSign, title);
}

// Charts of one size side by side, centred, each with its name under it
// where the style has no room for a title inside.
void ChartRow(PdfDocument& doc, const std::vector<std::pair<std::optional<ChartPicture>, QString>>& charts,
              double side) {
  const QFont caption = doc.Font(kSerifFamily, 10, true);
  const double captionHeight = QFontMetricsF(caption).height() * 1.6;
  const double gap = doc.Pt(kChartGapPoints);
  doc.Figure(side + captionHeight, [&](QPainter& p, const QRectF& area) {
    const double total = side * static_cast<double>(charts.size()) + gap * static_cast<double>(charts.size() - 1);
    double left = area.left() + (area.width() - total) / 2;
    for (const auto& [picture, name] : charts) {
      const QRectF square(left, area.top(), side, side);
      if (picture) {
        PaintChart(p, square, *picture);
      } else {
        p.setPen(kMutedInk);
        p.drawRect(square);
      }
      if (!picture || ChartTitleBox(picture->style).Empty()) {
        p.setFont(caption);
        p.setPen(kInk);
        p.drawText(QRectF(left, area.top() + side, side, captionHeight), Qt::AlignHCenter | Qt::AlignVCenter, name);
      }
      left += side + gap;
    }
  });
}

void ChartPages(PdfDocument& doc, const ReportInput& in) {
  doc.NewPage();
  const double side = (doc.Width() - doc.Pt(kChartGapPoints)) / 2;
  doc.Heading("Rasi and Navamsa", side);
  ChartRow(doc,
           {{Picture(in.cells.rasi, in.rasiLagnaSign, "Rasi"), "Rasi"},
            {Picture(in.cells.navamsa, in.navamsaLagnaSign, "Navamsa"), "Navamsa"}},
           side);
  doc.Space(14);
  doc.Heading("Bhava", side);
  ChartRow(doc, {{Picture(in.cells.bhava, in.rasiLagnaSign, "Bhava"), "Bhava"}}, side);
}

// ---- Tables -----------------------------------------------------------------

void HouseTable(PdfDocument& doc, const ReportInput& in) {
  TextTable table;
  table.headings = {"House", "Mid\nLongitude", "Rasi", "Rasi Lord", "Star", "Pada", "Star Lord", "Sub Lord"};
  const Grid& grid = in.bhava.mshBhavaDetails;
  for (int row = 1; row <= 12 && row < grid.Rows(); ++row) table.rows.push_back(Cells(grid, row, {0, 1, 2, 3, 4, 5, 6, 7}));
  doc.Heading(QString::fromLatin1(in.bhavaSystem == "Equal" ? "Bhava Positions  (Equal Division of Houses From M.C)"
                                                          : "Bhava Positions  (Placidius Semi-Arc System)"),
              doc.TableStartHeight(table));
  doc.Table(table);
}

void PlanetTable(PdfDocument& doc, const ReportInput& in) {
  TextTable table;
  table.headings = {"Planet",    "Longitude", "Rasi",           "Star",
                    "Pada",      "Star\nLord", "Sub\nLord",     "Jaimini\nKaraka", "Sayanadi\nAvastha"};
  const Grid& grid = in.planets.mshNirayana;
  for (int row = 1; row < grid.Rows(); ++row) table.rows.push_back(Cells(grid, row, {0, 1, 2, 4, 5, 6, 7, 8, 9}));
  doc.Heading("Planet Positions", doc.TableStartHeight(table));
  doc.Table(table);
}

void AshtakavargaTable(PdfDocument& doc, const ReportInput& in) {
  const Grid& planets = in.planets.mshNirayana;
  const Grid& grid = in.ashtakavarga.mshAshtaVarga;
  TextTable table;
  table.headings = {"Rasi"};
  // Contributors in the grid's order, Sun to Saturn, then the Lagna and Rahu,
  // the two that only the total "With *" counts.
  for (int row : {2, 3, 4, 5, 6, 7, 8}) table.headings.push_back(Cell(planets, row, 0));
  for (int row : {1, 9}) table.headings.push_back(Cell(planets, row, 0) + "\n*");
  table.headings.push_back("Total");
  table.headings.push_back("Total\nWith *");
  const std::initializer_list<int> cols = {0, 1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11};
  for (int row = 1; row <= 12 && row < grid.Rows(); ++row) table.rows.push_back(Cells(grid, row, cols));
  if (grid.Rows() > 13) {
    table.rows.push_back(Cells(grid, 13, cols));
    table.rows.back()[0] = "Total";
  }
  doc.Heading("Ashta Vargas", doc.TableStartHeight(table));
  doc.Table(table);
}

void VargaTable(PdfDocument& doc, const ReportInput& in) {
  const Grid& grid = in.vargas.mshVargas;
  const std::initializer_list<int> cols = {0, 1, 2, 3, 4, 5, 6, 7, 8, 9, 10};
  TextTable table;
  table.headings = Cells(grid, 0, cols);
  table.headings[0] = "Chart Type";
  for (int row = 1; row < grid.Rows(); ++row) table.rows.push_back(Cells(grid, row, cols));
  doc.Heading("Vargas", doc.TableStartHeight(table));
  doc.Table(table);
}

void DasaTable(PdfDocument& doc, const ReportInput& in) {
  const Grid& grid = in.dasa.mshDasa;
  TextTable table;
  table.headings = {"Dasa", "Start", "End", "Start Age"};
  for (int row = 1; row < grid.Rows(); ++row) table.rows.push_back(Cells(grid, row, {0, 1, 2, 3}));
  table.keepRows = 9;
  doc.Heading("Vimshottari Dasa", doc.Pt(24) + doc.TableStartHeight(table));
  doc.Text("Balance at birth:  " + Value(in.dasa.DasaBalanceText), doc.Font(kSansFamily, 9.5, true));
  doc.Space(6);
  doc.Table(table);
}

// The blocks of periods flow down as many columns as their texts allow, then
// onto the next page; a block is never split.
void PeriodColumns(PdfDocument& doc, const QString& title, const QString& periodHeading,
                   const std::vector<PeriodBlock>& blocks) {
  if (blocks.empty()) return;
  const QFont plain = doc.Font(kSansFamily, 7.5);
  const QFont bold = doc.Font(kSansFamily, 7.5, true);
  const QFontMetricsF m(plain);
  const QFontMetricsF mb(bold);
  double lordWidth = mb.horizontalAdvance(periodHeading), dateWidth = mb.horizontalAdvance("Start");
  double headingWidth = 0;
  std::size_t mostLines = 0;
  for (const PeriodBlock& b : blocks) {
    headingWidth = std::max(headingWidth, mb.horizontalAdvance(QString::fromStdString(b.heading)));
    mostLines = std::max(mostLines, b.lines.size());
    for (const PeriodEntry& e : b.lines) {
      lordWidth = std::max(lordWidth, m.horizontalAdvance(QString::fromStdString(e.lord)));
      dateWidth = std::max({dateWidth, m.horizontalAdvance(QString::fromStdString(e.start)),
                            m.horizontalAdvance(QString::fromStdString(e.end))});
    }
  }
  const double pad = doc.Pt(9);
  const double natural = std::max(headingWidth, lordWidth + 2 * dateWidth + 2 * pad) + doc.Pt(4);
  const double gap = doc.Pt(14);
  const int columns = std::clamp(static_cast<int>((doc.Width() + gap) / (natural + gap)), 1, 3);
  const double width = (doc.Width() - gap * (columns - 1)) / columns;
  const double row = m.height() * 1.35;
  const double blockGap = row * 0.8;
  // A block: its heading, its lines, and the gap below it.
  auto blockHeight = [&](const PeriodBlock& b) { return row * static_cast<double>(b.lines.size() + 1) + blockGap; };

  doc.Heading(title, blockHeight(blocks.front()) + row);
  std::size_t next = 0;
  while (next < blocks.size()) {
    if (blockHeight(blocks[next]) > doc.Remaining() - row * 1.5) doc.NewPage();
    // Which blocks go in which column of this page.
    const double room = doc.Remaining() - row * 1.5;
    std::vector<std::vector<std::size_t>> placed(static_cast<std::size_t>(columns));
    double tallest = 0;
    for (auto& column : placed) {
      double used = 0;
      // A fresh page takes at least one block, however tall.
      while (next < blocks.size() && (used == 0 || used + blockHeight(blocks[next]) <= room)) {
        used += blockHeight(blocks[next]);
        column.push_back(next++);
      }
      tallest = std::max(tallest, used);
    }
    doc.Figure(tallest + row * 1.5, [&](QPainter& p, const QRectF& area) {
      for (std::size_t c = 0; c < placed.size(); ++c) {
        const double left = area.left() + static_cast<double>(c) * (width + gap);
        const double lordX = left + doc.Pt(2), startX = lordX + lordWidth + pad, endX = startX + dateWidth + pad;
        double y = area.top();
        if (placed[c].empty()) continue;
        p.setFont(bold);
        p.setPen(kMutedInk);
        p.drawText(QPointF(lordX, y + mb.ascent()), periodHeading);
        p.drawText(QPointF(startX, y + mb.ascent()), "Start");
        p.drawText(QPointF(endX, y + mb.ascent()), "End");
        y += row * 1.5;
        for (std::size_t index : placed[c]) {
          const PeriodBlock& b = blocks[index];
          p.fillRect(QRectF(left, y, width, row), kBandTint);
          p.setFont(bold);
          p.setPen(kInk);
          p.drawText(QRectF(lordX, y, width, row), Qt::AlignLeft | Qt::AlignVCenter, QString::fromStdString(b.heading));
          y += row;
          p.setFont(plain);
          for (const PeriodEntry& e : b.lines) {
            p.drawText(QRectF(lordX, y, lordWidth, row), Qt::AlignLeft | Qt::AlignVCenter, QString::fromStdString(e.lord));
            p.drawText(QRectF(startX, y, dateWidth, row), Qt::AlignLeft | Qt::AlignVCenter, QString::fromStdString(e.start));
            p.drawText(QRectF(endX, y, dateWidth, row), Qt::AlignLeft | Qt::AlignVCenter, QString::fromStdString(e.end));
            y += row;
          }
          y += blockGap;
        }
      }
    });
    if (next < blocks.size()) doc.NewPage();
  }
}

void Compose(PdfDocument& doc, const ReportInput& in) {
  FirstPage(doc, in);
  ChartPages(doc, in);
  doc.Space(14);
  HouseTable(doc, in);
  doc.Space(16);
  PlanetTable(doc, in);
  doc.Space(16);
  AshtakavargaTable(doc, in);
  doc.Space(16);
  VargaTable(doc, in);
  doc.Space(16);
  DasaTable(doc, in);
  doc.NewPage();
  PeriodColumns(doc, "Bhukti", "Bukti", BhuktiPeriodBlocks(in.dasa));
  if (in.withAntra) {
    doc.NewPage();
    PeriodColumns(doc, "Antra", "Antra", AntraPeriodBlocks(in.dasa));
  }
}

QString Footer(const ReportInput& in) {
  const QString name = Value(in.title.name);
  return name.isEmpty() ? QStringLiteral("Horoscope") : QStringLiteral("Horoscope of %1").arg(name);
}

}  // namespace

std::optional<PaperSize> PaperSizeOf(std::string_view name) {
  std::string upper;
  for (char c : name) upper += static_cast<char>(std::toupper(static_cast<unsigned char>(c)));
  if (upper == "A4") return PaperSize::A4;
  if (upper == "LETTER") return PaperSize::Letter;
  return std::nullopt;
}

const char* PaperSizeName(PaperSize paper) { return paper == PaperSize::Letter ? "Letter" : "A4"; }

QByteArray PdfBytes(PaperSize paper, const QString& title, const std::function<void(QPainter&, QPdfWriter&)>& draw) {
  QByteArray bytes;
  QBuffer buffer(&bytes);
  buffer.open(QIODevice::WriteOnly);
  QPdfWriter writer(&buffer);
  writer.setResolution(kDotsPerInch);
  writer.setPageLayout(QPageLayout(QPageSize(paper == PaperSize::Letter ? QPageSize::Letter : QPageSize::A4),
                                   QPageLayout::Portrait, QMarginsF(0, 0, 0, 0)));
  writer.setTitle(title);
  writer.setCreator(QStringLiteral("Kelvaro"));
  QPainter painter(&writer);
  painter.setRenderHint(QPainter::Antialiasing);
  draw(painter, writer);
  painter.end();
  return bytes;
}

QByteArray PdfReport(const ReportInput& input, PaperSize paper) {
  return PdfBytes(paper, Footer(input), [&](QPainter& painter, QPdfWriter& writer) {
    const PageFrame frame{QSizeF(writer.width(), writer.height()), kDotsPerInch / kPointsPerInch, kMarginPoints};
    // The first run only counts the pages, for the footers of the second.
    PdfDocument measure(nullptr, nullptr, frame, Footer(input), 0);
    Compose(measure, input);
    const int pages = measure.Finish();
    PdfDocument doc(&painter, &writer, frame, Footer(input), pages);
    Compose(doc, input);
    doc.Finish();
  });
}

void WritePdfReport(const std::filesystem::path& path, const ReportInput& input, PaperSize paper) {
  const QByteArray bytes = PdfReport(input, paper);
  WriteReportFile(path, std::string_view(bytes.constData(), static_cast<std::size_t>(bytes.size())));
}

}  // namespace kelvaro::render
