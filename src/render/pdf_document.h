#pragma once
// A small typesetter for paged documents drawn through a QPainter: text
// blocks, tables with aligned columns that repeat their heading on a new
// page, drawings, and a running footer with the page number. It runs twice
// over the same content: once measuring (no painter) to count the pages,
// once drawing, so that the footer can say "Page 3 of 9".
#include <QColor>
#include <QFont>
#include <QPagedPaintDevice>
#include <QPainter>
#include <QRectF>
#include <QString>
#include <functional>
#include <vector>

namespace kelvaro::render {

// The page in device units, and the device's resolution for converting points.
struct PageFrame {
  QSizeF size;              // the whole sheet
  double dotsPerPoint = 1;  // device units in one typographic point
  double marginPoints = 50;
};

// Font families: DejaVu for the typeset text, Liberation Mono for a fixed pitch.
inline constexpr const char* kSansFamily = "DejaVu Sans";
inline constexpr const char* kSerifFamily = "DejaVu Serif";
inline constexpr const char* kMonoFamily = "Liberation Mono";

// The colours of the typeset pages: ink, muted ink for labels, and the warm
// tints of the charts' paper for bands and table headings.
inline const QColor kInk(25, 20, 16);
inline const QColor kMutedInk(110, 90, 70);
inline const QColor kRuleColour(150, 120, 80);
inline const QColor kHeadingTint(240, 229, 205);
inline const QColor kStripeTint(250, 246, 237);
inline const QColor kBandTint(250, 243, 226);
inline const QColor kBandEdge(190, 160, 110);

struct TextTable {
  // One heading per column; a "\n" in it starts a second heading line.
  std::vector<QString> headings;
  std::vector<std::vector<QString>> rows;
  double fontPoints = 8.5;
  // Rows that must stand on the page of the heading; a table shorter than
  // three fifths of a page is kept whole.
  int keepRows = 3;
};

class PdfDocument {
 public:
  // Measures when painter is null; device starts the new pages when drawing.
  PdfDocument(QPainter* painter, QPagedPaintDevice* device, PageFrame frame, QString footer, int totalPages);

  double Pt(double points) const { return points * frame_.dotsPerPoint; }
  QFont Font(const char* family, double points, bool bold = false, bool italic = false) const;
  double Width() const { return content_.width(); }
  double Remaining() const { return content_.bottom() - y_; }

  void NewPage();
  // A new page unless `height` still fits on this one (a fresh page takes
  // whatever it is given).
  void EnsureRoom(double height);
  void Space(double points) { y_ += Pt(points); }

  // Lines of text in the content's width, wrapped at blanks.
  void Text(const QString& text, const QFont& font, Qt::Alignment align = Qt::AlignLeft,
            const QColor& colour = kInk);
  // A heading kept on the page of what follows it, `following` high (in
  // device units).
  void Heading(const QString& text, double following);
  void Rule(double widthPoints = 0.6, const QColor& colour = kRuleColour);

  // A table across the content's width; the columns as wide as their texts
  // need, the rest of the width shared among them; the font shrinks (to 6
  // points) when the texts would not fit otherwise.
  void Table(const TextTable& table);
  // What Table keeps on the page where it starts: the whole table when it is
  // short, else its heading and first keepRows rows. A heading before a table
  // asks for this much room after it, so that it never stands alone.
  double TableStartHeight(const TextTable& table) const;

  // A drawing of a fixed height across the content's width.
  void Figure(double height, const std::function<void(QPainter&, const QRectF&)>& draw);

  // Ends the last page with its footer; returns the page count.
  int Finish();

 private:
  void Footer();
  // The height of Text's lines.
  double TextHeight(const QString& text, const QFont& font) const;

  QPainter* painter_;
  QPagedPaintDevice* device_;
  PageFrame frame_;
  QString footer_;
  int totalPages_;
  QRectF content_;
  double y_ = 0;
  int page_ = 1;
};

// A table's laid-out columns: each column's width and alignment, and the
// font size that lets the widest texts fit the given width.
struct TableLayout {
  std::vector<double> widths;
  std::vector<Qt::Alignment> aligns;
  double fontPoints = 0;
};
TableLayout LayOutTable(const TextTable& table, double width, double dotsPerPoint);

}  // namespace kelvaro::render
