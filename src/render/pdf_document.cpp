#include "render/pdf_document.h"

#include <QFontMetricsF>
#include <QTextLayout>
#include <algorithm>
#include <cmath>

namespace kelvaro::render {

namespace {

constexpr double kFooterPoints = 7.5;
constexpr double kMinTablePoints = 6;
constexpr double kCellPaddingPoints = 4;
constexpr double kRowSpacing = 1.45;       // a row's height, in lines of its font
constexpr int kShortColumnChars = 5;       // columns of texts this short are centred
constexpr double kKeepWholeOfPage = 0.6;   // tables up to this much of a page never split

QFont MakeFont(const char* family, double pixels, bool bold, bool italic) {
  QFont font(QString::fromLatin1(family));
  font.setPixelSize(std::max(1, static_cast<int>(std::lround(pixels))));
  font.setBold(bold);
  font.setItalic(italic);
  // Outlines as drawn, without hinting, so that the widths measured are those
  // the PDF shows at any zoom.
  font.setHintingPreference(QFont::PreferNoHinting);
  // A spacing too small to see keeps the shaper from joining "ffi" into one
  // glyph, so that a reader can search and copy every word (an e-mail
  // address, a name) as it was written.
  font.setLetterSpacing(QFont::AbsoluteSpacing, 0.05);
  return font;
}

double RowHeight(const QFontMetricsF& m) { return m.height() * kRowSpacing; }

int HeadingLines(const TextTable& table) {
  int lines = 1;
  for (const QString& h : table.headings) lines = std::max(lines, static_cast<int>(h.count('\n')) + 1);
  return lines;
}

}  // namespace

TableLayout LayOutTable(const TextTable& table, double width, double dotsPerPoint) {
  TableLayout layout;
  const std::size_t columns = table.headings.size();
  layout.aligns.assign(columns, Qt::AlignLeft);
  for (std::size_t c = 0; c < columns; ++c) {
    bool isShort = true;
    for (const auto& row : table.rows) {
      if (c < row.size() && row[c].size() > kShortColumnChars) isShort = false;
    }
    if (isShort) layout.aligns[c] = Qt::AlignHCenter;
  }
  for (double points = table.fontPoints; points >= kMinTablePoints; points -= 0.5) {
    const QFontMetricsF plain(MakeFont(kSansFamily, points * dotsPerPoint, false, false));
    const QFontMetricsF bold(MakeFont(kSansFamily, points * dotsPerPoint, true, false));
    const double padding = 2 * kCellPaddingPoints * dotsPerPoint;
    std::vector<double> natural(columns, 0);
    for (std::size_t c = 0; c < columns; ++c) {
      for (const QString& line : table.headings[c].split('\n')) natural[c] = std::max(natural[c], bold.horizontalAdvance(line));
      for (const auto& row : table.rows) {
        if (c < row.size()) natural[c] = std::max(natural[c], plain.horizontalAdvance(row[c]));
      }
      natural[c] += padding;
    }
    double total = 0;
    for (double w : natural) total += w;
    layout.fontPoints = points;
    layout.widths = natural;
    if (total <= width || points - 0.5 < kMinTablePoints) {
      // The width left over goes to the columns evenly, so that short columns
      // gain as much air as long ones.
      const double extra = columns > 0 && total < width ? (width - total) / static_cast<double>(columns) : 0;
      for (double& w : layout.widths) w += extra;
      return layout;
    }
  }
  return layout;
}

PdfDocument::PdfDocument(QPainter* painter, QPagedPaintDevice* device, PageFrame frame, QString footer, int totalPages)
    : painter_(painter), device_(device), frame_(frame), footer_(std::move(footer)), totalPages_(totalPages) {
  const double margin = Pt(frame_.marginPoints);
  // The footer stands in the lower margin.
  content_ = QRectF(margin, margin, frame_.size.width() - 2 * margin, frame_.size.height() - 2 * margin);
  y_ = content_.top();
}

QFont PdfDocument::Font(const char* family, double points, bool bold, bool italic) const {
  return MakeFont(family, Pt(points), bold, italic);
}

void PdfDocument::Footer() {
  if (!painter_) return;
  const QFont font = Font(kSansFamily, kFooterPoints);
  const QFontMetricsF m(font);
  const double top = content_.bottom() + Pt(frame_.marginPoints) * 0.35;
  painter_->save();
  painter_->setPen(QPen(kRuleColour, Pt(0.4)));
  painter_->drawLine(QPointF(content_.left(), top), QPointF(content_.right(), top));
  painter_->setFont(font);
  painter_->setPen(kMutedInk);
  const QRectF line(content_.left(), top + Pt(3), content_.width(), m.height());
  painter_->drawText(line, Qt::AlignLeft | Qt::AlignTop, footer_);
  const QString number = totalPages_ > 0 ? QStringLiteral("Page %1 of %2").arg(page_).arg(totalPages_)
                                         : QStringLiteral("Page %1").arg(page_);
  painter_->drawText(line, Qt::AlignRight | Qt::AlignTop, number);
  painter_->restore();
}

void PdfDocument::NewPage() {
  Footer();
  if (painter_ && device_) device_->newPage();
  ++page_;
  y_ = content_.top();
}

void PdfDocument::EnsureRoom(double height) {
  if (height > Remaining() && y_ > content_.top()) NewPage();
}

double PdfDocument::TextHeight(const QString& text, const QFont& font) const {
  QTextLayout layout(text, font);
  QTextOption option;
  option.setWrapMode(QTextOption::WordWrap);
  layout.setTextOption(option);
  layout.beginLayout();
  double height = 0;
  for (QTextLine line = layout.createLine(); line.isValid(); line = layout.createLine()) {
    line.setLineWidth(content_.width());
    height += line.height();
  }
  layout.endLayout();
  return height;
}

void PdfDocument::Text(const QString& text, const QFont& font, Qt::Alignment align, const QColor& colour) {
  const double height = TextHeight(text, font);
  EnsureRoom(height);
  if (painter_) {
    painter_->setFont(font);
    painter_->setPen(colour);
    painter_->drawText(QRectF(content_.left(), y_, content_.width(), height), static_cast<int>(align) | Qt::TextWordWrap,
                       text);
  }
  y_ += height;
}

void PdfDocument::Heading(const QString& text, double following) {
  const QFont font = Font(kSerifFamily, 13, true);
  const double height = TextHeight(text, font) + Pt(4);
  EnsureRoom(height + following);
  Text(text, font, Qt::AlignLeft, kInk);
  Rule(0.8);
  y_ += Pt(4);
}

void PdfDocument::Rule(double widthPoints, const QColor& colour) {
  if (painter_) {
    painter_->setPen(QPen(colour, Pt(widthPoints)));
    painter_->drawLine(QPointF(content_.left(), y_), QPointF(content_.right(), y_));
  }
  y_ += Pt(widthPoints);
}

namespace {

struct TableRows {
  double row = 0, heading = 0;
};

TableRows RowsOf(const TextTable& table, const QFont& plain) {
  const QFontMetricsF m(plain);
  const double row = RowHeight(m);
  return {row, row + m.lineSpacing() * (HeadingLines(table) - 1)};
}

}  // namespace

double PdfDocument::TableStartHeight(const TextTable& table) const {
  const TableLayout layout = LayOutTable(table, content_.width(), frame_.dotsPerPoint);
  const TableRows rows = RowsOf(table, Font(kSansFamily, layout.fontPoints));
  const double whole = rows.heading + rows.row * static_cast<double>(table.rows.size());
  const int keep = std::min<int>(table.keepRows, static_cast<int>(table.rows.size()));
  return whole <= content_.height() * kKeepWholeOfPage ? whole : rows.heading + rows.row * keep;
}

void PdfDocument::Table(const TextTable& table) {
  const TableLayout layout = LayOutTable(table, content_.width(), frame_.dotsPerPoint);
  const QFont plain = Font(kSansFamily, layout.fontPoints);
  const QFont bold = Font(kSansFamily, layout.fontPoints, true);
  const TableRows rows = RowsOf(table, plain);
  const double row = rows.row;
  const double headingHeight = rows.heading;
  const double padding = Pt(kCellPaddingPoints);
  EnsureRoom(TableStartHeight(table));

  auto drawCells = [&](const std::vector<QString>& texts, double top, double height, const QFont& font, bool heading) {
    double x = content_.left();
    for (std::size_t c = 0; c < layout.widths.size(); ++c) {
      const double w = layout.widths[c];
      if (c < texts.size() && !texts[c].isEmpty()) {
        const QRectF cell(x + padding, top, w - 2 * padding, height);
        const QString shown = heading ? texts[c] : QFontMetricsF(font).elidedText(texts[c], Qt::ElideRight, cell.width());
        painter_->drawText(cell, static_cast<int>(layout.aligns[c] | Qt::AlignVCenter), shown);
      }
      x += w;
    }
  };
  auto drawHeading = [&] {
    if (painter_) {
      const QRectF band(content_.left(), y_, content_.width(), headingHeight);
      painter_->fillRect(band, kHeadingTint);
      painter_->setPen(QPen(kRuleColour, Pt(0.8)));
      painter_->drawLine(band.topLeft(), band.topRight());
      painter_->drawLine(band.bottomLeft(), band.bottomRight());
      painter_->setFont(bold);
      painter_->setPen(kInk);
      drawCells(table.headings, y_, headingHeight, bold, true);
    }
    y_ += headingHeight;
  };

  drawHeading();
  for (std::size_t r = 0; r < table.rows.size(); ++r) {
    if (row > Remaining()) {
      NewPage();
      drawHeading();
    }
    if (painter_) {
      if (r % 2 == 1) painter_->fillRect(QRectF(content_.left(), y_, content_.width(), row), kStripeTint);
      painter_->setFont(plain);
      painter_->setPen(kInk);
      drawCells(table.rows[r], y_, row, plain, false);
    }
    y_ += row;
  }
  if (painter_) {
    painter_->setPen(QPen(kRuleColour, Pt(0.8)));
    painter_->drawLine(QPointF(content_.left(), y_), QPointF(content_.right(), y_));
  }
  y_ += Pt(0.8);
}

void PdfDocument::Figure(double height, const std::function<void(QPainter&, const QRectF&)>& draw) {
  EnsureRoom(height);
  if (painter_) {
    painter_->save();
    draw(*painter_, QRectF(content_.left(), y_, content_.width(), height));
    painter_->restore();
  }
  y_ += height;
}

int PdfDocument::Finish() {
  Footer();
  return page_;
}

}  // namespace kelvaro::render
