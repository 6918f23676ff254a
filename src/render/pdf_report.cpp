#include "render/pdf_report.h"

#include <QBuffer>
#include <QFontMetricsF>
#include <QPageLayout>
#include <QPdfWriter>
#include <algorithm>
#include <array>
#include <cctype>
#include <initializer_list>

#include "presentation/chart_geometry.h"
#include "render/chart_painter.h"
#include "render/pdf_document.h"
#include "report/destinations.h"
#include "report/period_blocks.h"

namespace kelvaro::render {

namespace {

constexpr int kDotsPerInch = 600;
constexpr double kPointsPerInch = 72;
constexpr double kMarginPoints = 50;
constexpr double kChartGapPoints = 18;
const QColor kInk(25, 20, 16);
const QColor kMuted(110, 90, 70);
const QColor kBand(250, 243, 226);
const QColor kBandEdge(190, 160, 110);

// Values are laid out for a fixed pitch, some with doubled blanks as
// spacing; in a proportional font single blanks read right.
QString Value(const std::string& text) { return QString::fromStdString(text).simplified(); }

QString Cell(const Grid& grid, int row, int col) {
  return row < grid.Rows() && col < grid.Cols() ? QString::fromStdString(grid.Text(row, col)).trimmed() : QString();
}

std::vector<QString> Cells(const Grid& grid, int row, std::initializer_list<int> cols) {
  std::vector<QString> texts;
  for (int col : cols) texts.push_back(Cell(grid, row, col));
  return texts;
}

// ---- Page 1 -----------------------------------------------------------------

void Letterhead(PdfDocument& doc, const OwnerDetails& o) {
  const QString name = Value(o.name);
  QStringList address;
  for (const std::string* part : {&o.address, &o.address2, &o.city}) {
    if (!Value(*part).isEmpty()) address << Value(*part);
  }
  QString country = Value(o.country);
  if (!Value(o.zipcode).isEmpty()) country += (country.isEmpty() ? "" : " - ") + Value(o.zipcode);
  if (!country.isEmpty()) address << country;
  if (!Value(o.phone).isEmpty()) address << "Phone : " + Value(o.phone);
  if (!name.isEmpty()) doc.Text(name, doc.Font(kSerifFamily, 16, true), Qt::AlignHCenter);
  if (!address.isEmpty()) doc.Text(address.join(", "), doc.Font(kSansFamily, 8.5), Qt::AlignHCenter, kMuted);
  if (!Value(o.email).isEmpty()) doc.Text("E-Mail : " + Value(o.email), doc.Font(kSansFamily, 8.5), Qt::AlignHCenter, kMuted);
  doc.Space(4);
  doc.Rule(1.2);
  doc.Space(1.5);
  doc.Rule(0.4);
}

// The Lagna, the Rasi and the star, side by side in a band.
void KeyBand(PdfDocument& doc, const TitlePageValues& t) {
  const std::array<std::pair<QString, QString>, 3> keys = {
      {{"Lagna", Value(t.janmaLagna)}, {"Rasi", Value(t.janmaRasi)}, {"Star", Value(t.star)}}};
  const QFont label = doc.Font(kSansFamily, 8);
  const QFont value = doc.Font(kSerifFamily, 14, true);
  const double height = doc.Pt(50);
  doc.Figure(height, [&](QPainter& p, const QRectF& area) {
    const double gap = doc.Pt(10);
    const double width = (area.width() - 2 * gap) / 3;
    for (std::size_t i = 0; i < keys.size(); ++i) {
      const QRectF box(area.left() + static_cast<double>(i) * (width + gap), area.top(), width, area.height());
      p.setPen(QPen(kBandEdge, doc.Pt(0.8)));
      p.setBrush(kBand);
      p.drawRoundedRect(box, doc.Pt(4), doc.Pt(4));
      p.setPen(kMuted);
      p.setFont(label);
      p.drawText(box.adjusted(0, doc.Pt(6), 0, 0), Qt::AlignHCenter | Qt::AlignTop, keys[i].first.toUpper());
      // A long star name (with its pada) shrinks to the box rather than being cut.
      QFont fitted = value;
      while (QFontMetricsF(fitted).horizontalAdvance(keys[i].second) > box.width() - doc.Pt(10) &&
             fitted.pixelSize() > doc.Pt(7)) {
        fitted.setPixelSize(fitted.pixelSize() - 1);
      }
      p.setFont(fitted);
      p.setPen(kInk);
      p.drawText(box.adjusted(doc.Pt(5), doc.Pt(18), -doc.Pt(5), 0), Qt::AlignHCenter | Qt::AlignVCenter,
                 keys[i].second);
    }
  });
}

// Two columns of labelled values: the birth data and the almanac.
void Particulars(PdfDocument& doc, const TitlePageValues& t) {
  const auto fields = TitlePageFields(t);
  const QFont label = doc.Font(kSansFamily, 9);
  const QFont value = doc.Font(kSansFamily, 9, true);
  const QFont heading = doc.Font(kSerifFamily, 11.5, true);
  const QFontMetricsF m(label);
  const double row = m.height() * 1.75;
  struct Group {
    QString title;
    std::size_t first, last;  // indices into the fields
  };
  const std::array<std::vector<Group>, 2> columns = {{
      {{"Birth Particulars", 0, 15}},
      {{"Almanac", 15, 22}, {"Janma", 22, 29}},
  }};
  auto columnHeight = [&](const std::vector<Group>& groups) {
    double h = 0;
    for (const Group& g : groups) h += row * 1.6 + row * static_cast<double>(g.last - g.first) + row * 0.6;
    return h;
  };
  const double height = std::max(columnHeight(columns[0]), columnHeight(columns[1]));
  doc.Figure(height, [&](QPainter& p, const QRectF& area) {
    const double gap = doc.Pt(kChartGapPoints);
    // The almanac's values (the lunar dates) are the longer ones.
    const std::array<double, 2> widths = {(area.width() - gap) * 0.45, (area.width() - gap) * 0.55};
    double labelWidth = 0;
    for (const auto& f : fields) labelWidth = std::max(labelWidth, m.horizontalAdvance(f.first));
    labelWidth += doc.Pt(8);
    for (std::size_t c = 0; c < columns.size(); ++c) {
      const double left = c == 0 ? area.left() : area.left() + widths[0] + gap;
      const double width = widths[c];
      double y = area.top();
      for (const Group& g : columns[c]) {
        p.setFont(heading);
        p.setPen(kInk);
        p.drawText(QRectF(left, y, width, row * 1.3), Qt::AlignLeft | Qt::AlignVCenter, g.title);
        y += row * 1.3;
        p.setPen(QPen(kBandEdge, doc.Pt(0.6)));
        p.drawLine(QPointF(left, y), QPointF(left + width, y));
        y += row * 0.3;
        for (std::size_t i = g.first; i < g.last; ++i) {
          // The text report's label keeps its old spelling; a client reads
          // this one, so it says what it means.
          const QString caption = QString::fromLatin1(fields[i].first);
          const QString text = caption == "Birth County" ? QStringLiteral("Birth Country") : caption;
          p.setFont(label);
          p.setPen(kMuted);
          p.drawText(QRectF(left, y, labelWidth, row), Qt::AlignLeft | Qt::AlignVCenter, text);
          QFont fitted = value;
          const QString v = Value(*fields[i].second);
          const double room = width - labelWidth;
          // Shrunk to fit, down to a size that still reads; beyond it elided
          // (a long name stands whole in the title above).
          while (QFontMetricsF(fitted).horizontalAdvance(v) > room && fitted.pixelSize() > doc.Pt(7.5)) {
            fitted.setPixelSize(fitted.pixelSize() - 1);
          }
          p.setFont(fitted);
          p.setPen(kInk);
          p.drawText(QRectF(left + labelWidth, y, room, row), Qt::AlignLeft | Qt::AlignVCenter,
                     QFontMetricsF(fitted).elidedText(v, Qt::ElideRight, room));
          y += row;
        }
        y += row * 0.6;
      }
    }
  });
}

void FirstPage(PdfDocument& doc, const ReportInput& in) {
  Letterhead(doc, in.owner);
  doc.Space(16);
  doc.Text("AUM GANESHAYA NAMAH", doc.Font(kSerifFamily, 10, true), Qt::AlignHCenter, kMuted);
  doc.Space(3);
  doc.Text("JANANI JANMA SOUKHYANAM VARDHINEE KULA SAMPADAM", doc.Font(kSerifFamily, 8.5, false, true),
           Qt::AlignHCenter, kMuted);
  doc.Text("PADAVI POORVA PUNYANAM  LIKHYATE  JANMA PATRIKA", doc.Font(kSerifFamily, 8.5, false, true),
           Qt::AlignHCenter, kMuted);
  doc.Space(22);
  if (Value(in.title.name).isEmpty()) {
    doc.Text("Horoscope", doc.Font(kSerifFamily, 24, true), Qt::AlignHCenter);
  } else {
    doc.Text("Horoscope of", doc.Font(kSerifFamily, 11, false, true), Qt::AlignHCenter, kMuted);
    doc.Text(Value(in.title.name), doc.Font(kSerifFamily, 24, true), Qt::AlignHCenter);
  }
  QStringList born;
  for (const std::string* part : {&in.title.sex, &in.title.dateOfBirth, &in.title.timeOfBirth}) {
    if (!Value(*part).isEmpty()) born << Value(*part);
  }
  QStringList place;
  for (const std::string* part : {&in.title.birthCity, &in.title.birthCountry}) {
    if (!Value(*part).isEmpty()) place << Value(*part);
  }
  if (!place.isEmpty()) born << place.join(", ");
  doc.Space(4);
  doc.Text(born.join(QStringLiteral("  \u00b7  ")), doc.Font(kSansFamily, 9.5), Qt::AlignHCenter);
  doc.Space(18);
  KeyBand(doc, in.title);
  doc.Space(20);
  Particulars(doc, in.title);
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
        p.setPen(kMuted);
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
        p.setPen(kMuted);
        p.drawText(QPointF(lordX, y + mb.ascent()), periodHeading);
        p.drawText(QPointF(startX, y + mb.ascent()), "Start");
        p.drawText(QPointF(endX, y + mb.ascent()), "End");
        y += row * 1.5;
        for (std::size_t index : placed[c]) {
          const PeriodBlock& b = blocks[index];
          p.fillRect(QRectF(left, y, width, row), kBand);
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

QByteArray PdfReport(const ReportInput& input, PaperSize paper) {
  QByteArray bytes;
  QBuffer buffer(&bytes);
  buffer.open(QIODevice::WriteOnly);
  QPdfWriter writer(&buffer);
  writer.setResolution(kDotsPerInch);
  writer.setPageLayout(QPageLayout(QPageSize(paper == PaperSize::Letter ? QPageSize::Letter : QPageSize::A4),
                                   QPageLayout::Portrait, QMarginsF(0, 0, 0, 0)));
  writer.setTitle(Footer(input));
  writer.setCreator(QStringLiteral("Kelvaro"));
  const PageFrame frame{QSizeF(writer.width(), writer.height()), kDotsPerInch / kPointsPerInch, kMarginPoints};
  // The first run only counts the pages, for the footers of the second.
  PdfDocument measure(nullptr, nullptr, frame, Footer(input), 0);
  Compose(measure, input);
  const int pages = measure.Finish();
  QPainter painter(&writer);
  painter.setRenderHint(QPainter::Antialiasing);
  PdfDocument doc(&painter, &writer, frame, Footer(input), pages);
  Compose(doc, input);
  doc.Finish();
  painter.end();
  return bytes;
}

void WritePdfReport(const std::filesystem::path& path, const ReportInput& input, PaperSize paper) {
  const QByteArray bytes = PdfReport(input, paper);
  WriteReportFile(path, std::string_view(bytes.constData(), static_cast<std::size_t>(bytes.size())));
}

}  // namespace kelvaro::render
