#include "shell/daily_almanac_window.h"

#include <QCloseEvent>
#include <QComboBox>
#include <QDateEdit>
#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QHelpEvent>
#include <QLabel>
#include <QLocale>
#include <QPainter>
#include <QPrintPreviewDialog>
#include <QPrinter>
#include <QPushButton>
#include <QSettings>
#include <QTabWidget>
#include <QTableWidget>
#include <QToolTip>
#include <QVBoxLayout>

#include "common/date_text.h"
#include "horoscope/almanac_month_lines.h"
#include "render/almanac_month_pdf.h"
#include "render/day_bar_painter.h"
#include "shell/form_keys.h"
#include "shell/messages.h"
#include "store/database.h"
#include "store/time_zone_master.h"

namespace kelvaro::shell {

namespace {

constexpr const char* kGeometryKey = "DailyAlmanac/geometry";
constexpr const char* kFolderKey = "DailyAlmanac/folder";
constexpr const char* kPreviewKey = "DailyAlmanac/previewGeometry";
// The paper chosen in the Print view serves the month too.
constexpr const char* kPaperKey = "Print/paper";

QString Q(const std::string& text) { return QString::fromStdString(text); }
QString Clock(OleDate m) { return Q(FormatDate(m, "DD/MM/YYYY HH:NN:SS")); }
QString Until(const std::string& name, OleDate end) { return Q(name) + " until " + Clock(end); }

OleDate OleOf(QDate d) { return OleDate::FromParts(d.year(), d.month(), d.day()); }

void SetRows(QTableWidget* table, const std::vector<QStringList>& rows) {
  table->setRowCount(static_cast<int>(rows.size()));
  for (int r = 0; r < static_cast<int>(rows.size()); ++r) {
    for (int c = 0; c < rows[static_cast<std::size_t>(r)].size(); ++c) {
      auto* item = new QTableWidgetItem(rows[static_cast<std::size_t>(r)][c]);
      item->setFlags(Qt::ItemIsSelectable | Qt::ItemIsEnabled);
      table->setItem(r, c, item);
    }
  }
  table->resizeColumnsToContents();
}

QTableWidget* NewTable(const QStringList& headers, const QString& name) {
  auto* t = new QTableWidget(0, static_cast<int>(headers.size()));
  t->setObjectName(name);
  t->setHorizontalHeaderLabels(headers);
  t->verticalHeader()->setVisible(false);
  t->horizontalHeader()->setStretchLastSection(true);
  t->setEditTriggers(QAbstractItemView::NoEditTriggers);
  return t;
}

}  // namespace

DayBarWidget::DayBarWidget(QWidget* parent) : QWidget(parent) {
  setObjectName("picDayBar");
  setMinimumHeight(54);
  setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
}

void DayBarWidget::SetDay(std::vector<DayBarPeriod> periods, int totalMinutes) {
  periods_ = std::move(periods);
  totalMinutes_ = totalMinutes;
  update();
}

void DayBarWidget::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  render::PaintDayBar(painter, QRectF(rect()).adjusted(4, 4, -4, -4), periods_, totalMinutes_);
}

bool DayBarWidget::event(QEvent* e) {
  if (e->type() == QEvent::ToolTip && totalMinutes_ > 0) {
    auto* help = static_cast<QHelpEvent*>(e);
    const QRectF area = QRectF(rect()).adjusted(4, 4, -4, -4);
    // The last period drawn under the mouse is the one on top.
    QString text;
    for (const DayBarPeriod& p : periods_) {
      if (render::PeriodRect(area, p, totalMinutes_).contains(help->pos())) text = Q(p.name + ": " + p.caption);
    }
    if (text.isEmpty()) {
      QToolTip::hideText();
    } else {
      QToolTip::showText(help->globalPos(), text, this);
    }
    return true;
  }
  return QWidget::event(e);
}

DailyAlmanacWindow::DailyAlmanacWindow(store::Database& db, const KaliyugaYearTable& years, QSettings* settings,
                                       QDate date, const QString& country, const QString& city, QWidget* parent)
    : QDialog(parent), db_(db), settings_(settings), maker_(std::make_unique<DailyAlmanacMaker>(years)) {
  setObjectName("frmDailyAlmanac");
  setWindowTitle(tr("Daily Almanac"));
  date_ = new QDateEdit(date.isValid() ? date : QDate::currentDate());
  date_->setObjectName("dtpAlmanacDate");
  date_->setDisplayFormat("dd/MM/yyyy");
  date_->setCalendarPopup(true);
  date_->setDateRange(QDate(1800, 1, 1), QDate(3000, 12, 31));
  country_ = new QComboBox;
  country_->setObjectName("cmbCountry");
  country_->setEditable(true);
  InstallTypeAhead(country_);
  city_ = new QComboBox;
  city_->setObjectName("cmbCity");
  city_->setEditable(true);
  InstallTypeAhead(city_);
  auto* previous = new QPushButton(tr("&Previous Day"));
  previous->setObjectName("cmdPrevious");
  auto* today = new QPushButton(tr("&Today"));
  today->setObjectName("cmdToday");
  auto* next = new QPushButton(tr("&Next Day"));
  next->setObjectName("cmdNext");
  auto* show = new QPushButton(tr("&Show"));
  show->setObjectName("cmdShow");
  show->setDefault(true);

  auto* top = new QHBoxLayout;
  auto* dateLabel = new QLabel(tr("&Date"));
  dateLabel->setBuddy(date_);
  top->addWidget(dateLabel);
  top->addWidget(date_);
  auto* countryLabel = new QLabel(tr("C&ountry"));
  countryLabel->setBuddy(country_);
  top->addWidget(countryLabel);
  top->addWidget(country_, 1);
  auto* cityLabel = new QLabel(tr("C&ity"));
  cityLabel->setBuddy(city_);
  top->addWidget(cityLabel);
  top->addWidget(city_, 1);
  auto* steps = new QHBoxLayout;
  for (QPushButton* b : {previous, today, next, show}) steps->addWidget(b);
  steps->addStretch();

  dayTable_ = NewTable({tr("Item"), tr("Value")}, "mshAlmanacDay");
  planets_ = NewTable({tr("Planet"), tr("Sign"), tr("Star"), tr("Pada"), tr("Strength"), tr("Nature")},
                      "mshAlmanacPlanets");
  bar_ = new DayBarWidget;
  auto* dayPage = new QWidget;
  auto* dayLayout = new QVBoxLayout(dayPage);
  dayLayout->addWidget(bar_);
  dayLayout->addWidget(dayTable_, 3);
  dayLayout->addWidget(planets_, 2);
  month_ = NewTable({tr("Date"), tr("Sunrise"), tr("Tithi"), tr("Star"), tr("Yoga")}, "mshAlmanacMonth");
  auto* savePdf = new QPushButton(tr("Save as P&DF"));
  savePdf->setObjectName("cmdMonthPdf");
  auto* print = new QPushButton(tr("P&rint"));
  print->setObjectName("cmdMonthPrint");
  auto* monthButtons = new QHBoxLayout;
  monthButtons->addStretch();
  monthButtons->addWidget(savePdf);
  monthButtons->addWidget(print);
  auto* monthPage = new QWidget;
  auto* monthLayout = new QVBoxLayout(monthPage);
  monthLayout->addWidget(month_, 1);
  monthLayout->addLayout(monthButtons);
  tabs_ = new QTabWidget;
  tabs_->addTab(dayPage, tr("D&ay"));
  tabs_->addTab(monthPage, tr("&Month"));
  status_ = new QLabel;
  status_->setObjectName("lblAlmanacStatus");

  auto* layout = new QVBoxLayout(this);
  layout->addLayout(top);
  layout->addLayout(steps);
  layout->addWidget(tabs_, 1);
  layout->addWidget(status_);

  FillCountries(country);
  FillCities(city);
  connect(country_, &QComboBox::activated, this, [this] { FillCities({}); });
  connect(previous, &QPushButton::clicked, this, [this] { Step(-1); });
  connect(next, &QPushButton::clicked, this, [this] { Step(1); });
  connect(today, &QPushButton::clicked, this, [this] {
    date_->setDate(QDate::currentDate());
    ShowDay();
  });
  connect(show, &QPushButton::clicked, this, [this] { ShowDay(); });
  connect(savePdf, &QPushButton::clicked, this, [this] { SaveMonthAsPdf(); });
  connect(print, &QPushButton::clicked, this, [this] { PrintMonth(); });
  // The month is worked out when its tab is opened, not with every day.
  connect(tabs_, &QTabWidget::currentChanged, this, [this](int index) {
    if (index == 1) ShowMonth();
  });

  resize(760, 680);
  if (settings_) restoreGeometry(settings_->value(kGeometryKey).toByteArray());
}

DailyAlmanacWindow::~DailyAlmanacWindow() = default;

void DailyAlmanacWindow::closeEvent(QCloseEvent* event) {
  if (settings_) settings_->setValue(kGeometryKey, saveGeometry());
  QDialog::closeEvent(event);
}

void DailyAlmanacWindow::FillCountries(const QString& chosen) {
  countries_ = store::ListCountries(db_);
  country_->clear();
  int index = 0;
  for (std::size_t i = 0; i < countries_.size(); ++i) {
    country_->addItem(Q(countries_[i].name));
    if (Q(countries_[i].name).compare(chosen, Qt::CaseInsensitive) == 0) index = static_cast<int>(i);
  }
  country_->setCurrentIndex(countries_.empty() ? -1 : index);
}

void DailyAlmanacWindow::FillCities(const QString& chosen) {
  city_->clear();
  cities_.clear();
  const int c = country_->currentIndex();
  if (c < 0 || c >= static_cast<int>(countries_.size())) return;
  cities_ = store::CitiesOf(db_, countries_[static_cast<std::size_t>(c)].id);
  int index = 0;
  for (std::size_t i = 0; i < cities_.size(); ++i) {
    city_->addItem(Q(cities_[i].name));
    if (Q(cities_[i].name).compare(chosen, Qt::CaseInsensitive) == 0) index = static_cast<int>(i);
  }
  city_->setCurrentIndex(cities_.empty() ? -1 : index);
}

bool DailyAlmanacWindow::PlaceOf(AlmanacPlace& place) {
  const int c = country_->currentIndex();
  if (c < 0 || country_->currentText() != country_->itemText(c)) {
    ShowInformation(this, windowTitle(), tr("Select Country"));
    country_->setFocus();
    return false;
  }
  const int i = city_->currentIndex();
  if (i < 0 || city_->currentText() != city_->itemText(i)) {
    ShowInformation(this, windowTitle(), tr("Select City"));
    city_->setFocus();
    return false;
  }
  const auto zones = store::ZonesOf(db_, countries_[static_cast<std::size_t>(c)].id);
  if (zones.empty()) {
    ShowInformation(this, windowTitle(), tr("Select Timezone"));
    return false;
  }
  const store::CityRow& city = cities_[static_cast<std::size_t>(i)];
  place.place = {city.latNS,  city.latDeg, city.latMin, city.lonEW, city.lonDeg,
                 city.lonMin, zones.front().timeDifference, zones.front().direction};
  return true;
}

void DailyAlmanacWindow::Step(int days) {
  date_->setDate(date_->date().addDays(days));
  ShowDay();
}

bool DailyAlmanacWindow::ShowDay() {
  AlmanacPlace place;
  if (!PlaceOf(place)) return false;
  DailyAlmanac d;
  try {
    d = maker_->DayOf(OleOf(date_->date()), place);
  } catch (const std::exception& e) {
    ShowError(this, QString::fromUtf8(e.what()));
    return false;
  }
  std::vector<QStringList> rows = {
      {tr("Week-day"), Q(d.gregorianWeekday) + "  (Vedic: " + Q(d.vedicWeekday) + ")"},
      {tr("Sunrise"), Clock(d.sunrise)},
      {tr("Sunset"), Clock(d.sunset)},
      {tr("Next sunrise"), Clock(d.nextSunrise)},
      {tr("Tithi"), Until(d.tithi + ", " + d.paksha, d.tithiEnd) +
                        (d.tithiSpansNextSunrise ? tr("  (holds at the next sunrise too)") : QString())},
      {tr("Next tithi"), Until(d.nextTithi, d.nextTithiEnd) + (d.nextTithiKshaya ? tr("  (kshaya)") : QString())},
      {tr("Karana"), Q(d.karanas[0].name) + "  " + Clock(d.karanas[0].start) + " to " + Clock(d.karanas[0].end)},
      {tr("Karana"), Q(d.karanas[1].name) + "  " + Clock(d.karanas[1].start) + " to " + Clock(d.karanas[1].end)},
      {tr("Star"), Until(d.star + ", Pada " + std::to_string(d.pada), d.starEnd)},
      {tr("Vishaghati"), Clock(d.vishaStart) + " to " + Clock(d.vishaEnd)},
      {tr("Yoga"), Until(d.yoga, d.yogaEnd)},
      {tr("Lunar Date (Krishnadi)"), Q(d.lunarKrishnadi)},
      {tr("Lunar Date (Sukladi)"), Q(d.lunarSukladi)},
      {tr("Solar Date"), Q(d.solarDate)},
      {tr("Year"), Q(d.yearName)},
  };
  for (const AlmanacPeriod* p : {&d.rahuKalam, &d.yamaganda, &d.gulikaKalam}) {
    rows.push_back({Q(p->name), Clock(p->start) + " to " + Clock(p->end)});
  }
  for (std::size_t h = 0; h < d.horas.size(); ++h) {
    rows.push_back({tr("Hora %1").arg(h + 1), Q(d.horas[h].lord + "  " + d.horas[h].start + " to " + d.horas[h].end)});
  }
  SetRows(dayTable_, rows);
  std::vector<QStringList> planets;
  for (const AlmanacPlanet& p : d.planets) {
    planets.push_back({Q(p.name), Q(p.sign), Q(p.star), QString::number(p.pada), Q(p.strength),
                       p.hasNature ? QString::number(p.nature) : QString()});
  }
  SetRows(planets_, planets);
  bar_->SetDay(d.dayBar, static_cast<int>(DateDiff(Interval::Minute, d.sunrise, d.nextSunrise)));
  status_->setText(tr("%1, %2").arg(city_->currentText(), country_->currentText()));
  if (tabs_->currentIndex() == 1) return ShowMonth();
  return true;
}

bool DailyAlmanacWindow::ShowMonth() {
  AlmanacPlace place;
  if (!PlaceOf(place)) return false;
  const QDate first(date_->date().year(), date_->date().month(), 1);
  std::vector<QStringList> rows;
  AlmanacMonthSheet sheet;
  sheet.place = Std(city_->currentText()) + ", " + Std(country_->currentText());
  sheet.period = Std(QLocale(QLocale::English).toString(first, "MMMM yyyy"));
  try {
    for (QDate day = first; day.month() == first.month(); day = day.addDays(1)) {
      const DailyAlmanac d = maker_->SunriseLineOf(OleOf(day), place);
      sheet.lines.push_back(AlmanacMonthLineOf(OleOf(day), d));
      rows.push_back({Q(FormatDate(OleOf(day), "DD/MM/YYYY ddd")), Q(FormatDate(d.sunrise, "HH:NN")),
                      Until(d.tithi, d.tithiEnd) + (d.nextTithiKshaya ? ", " + Until(d.nextTithi, d.nextTithiEnd) : ""),
                      Until(d.star, d.starEnd), Until(d.yoga, d.yogaEnd)});
    }
  } catch (const std::exception& e) {
    ShowError(this, QString::fromUtf8(e.what()));
    return false;
  }
  SetRows(month_, rows);
  monthSheet_ = std::move(sheet);
  return true;
}

render::PaperSize DailyAlmanacWindow::Paper() const {
  const QString name = settings_ ? settings_->value(kPaperKey).toString() : QString();
  return render::PaperSizeOf(Std(name)).value_or(render::PaperSize::A4);
}

void DailyAlmanacWindow::SaveMonthAsPdf() {
  // The month of the date and place on the form, worked out afresh.
  if (!ShowMonth()) return;
  const QString folder = settings_ ? settings_->value(kFolderKey, QDir::homePath()).toString() : QDir::homePath();
  QFileDialog dialog(this, tr("Save as PDF"), folder, tr("PDF Files (*.pdf)"));
  dialog.setAcceptMode(QFileDialog::AcceptSave);
  dialog.setDefaultSuffix("pdf");
  dialog.selectFile(tr("Almanac %1.pdf").arg(Q(monthSheet_.period)));
  if (dialog.exec() != QDialog::Accepted || dialog.selectedFiles().isEmpty()) return;
  const QString file = dialog.selectedFiles().constFirst();
  if (settings_) settings_->setValue(kFolderKey, QFileInfo(file).absolutePath());
  try {
    render::WriteAlmanacMonthPdf(Std(file), monthSheet_, Paper());
  } catch (const std::exception& e) {
    ShowError(this, QString::fromUtf8(e.what()));
  }
}

void DailyAlmanacWindow::PrintMonth() {
  if (!ShowMonth()) return;
  QPrinter printer(QPrinter::HighResolution);
  printer.setPageSize(QPageSize(Paper() == render::PaperSize::Letter ? QPageSize::Letter : QPageSize::A4));
  // The sheet keeps its own margins, as in the PDF.
  printer.setFullPage(true);
  printer.setDocName(tr("Almanac %1").arg(Q(monthSheet_.period)));
  QPrintPreviewDialog preview(&printer, this);
  preview.setWindowTitle(tr("Print Preview"));
  connect(&preview, &QPrintPreviewDialog::paintRequested, this, [this](QPrinter* target) {
    QPainter painter(target);
    render::PaintAlmanacMonth(painter, *target, monthSheet_);
  });
  preview.resize(900, 760);
  if (settings_) preview.restoreGeometry(settings_->value(kPreviewKey).toByteArray());
  preview.exec();
  if (settings_) settings_->setValue(kPreviewKey, preview.saveGeometry());
}

}  // namespace kelvaro::shell
