#include "render/pdf_first_page.h"

#include <QFontMetricsF>
#include <algorithm>
#include <array>
#include <vector>

namespace kelvaro::render {

namespace {

constexpr double kColumnGapPoints = 18;

QString Value(const std::string& text) { return SingleSpaced(text); }

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
  if (!address.isEmpty()) doc.Text(address.join(", "), doc.Font(kSansFamily, 8.5), Qt::AlignHCenter, kMutedInk);
  if (!Value(o.email).isEmpty()) doc.Text("E-Mail : " + Value(o.email), doc.Font(kSansFamily, 8.5), Qt::AlignHCenter, kMutedInk);
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
      p.setBrush(kBandTint);
      p.drawRoundedRect(box, doc.Pt(4), doc.Pt(4));
      p.setPen(kMutedInk);
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
    const double gap = doc.Pt(kColumnGapPoints);
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
          p.setPen(kMutedInk);
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

}  // namespace

QString SingleSpaced(const std::string& text) { return QString::fromStdString(text).simplified(); }

void FirstPage(PdfDocument& doc, const ReportInput& in) {
  Letterhead(doc, in.owner);
  doc.Space(16);
  doc.Text("AUM GANESHAYA NAMAH", doc.Font(kSerifFamily, 10, true), Qt::AlignHCenter, kMutedInk);
  doc.Space(3);
  doc.Text("JANANI JANMA SOUKHYANAM VARDHINEE KULA SAMPADAM", doc.Font(kSerifFamily, 8.5, false, true),
           Qt::AlignHCenter, kMutedInk);
  doc.Text("PADAVI POORVA PUNYANAM  LIKHYATE  JANMA PATRIKA", doc.Font(kSerifFamily, 8.5, false, true),
           Qt::AlignHCenter, kMutedInk);
  doc.Space(22);
  if (Value(in.title.name).isEmpty()) {
    doc.Text("Horoscope", doc.Font(kSerifFamily, 24, true), Qt::AlignHCenter);
  } else {
    doc.Text("Horoscope of", doc.Font(kSerifFamily, 11, false, true), Qt::AlignHCenter, kMutedInk);
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

}  // namespace kelvaro::render
