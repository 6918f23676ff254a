#include "shell/birth_form_dialog.h"

#include <QAction>
#include <QApplication>
#include <QCheckBox>
#include <cmath>
#include <QComboBox>
#include <QCompleter>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QMenuBar>
#include <QPushButton>
#include <QRadioButton>
#include <QStringListModel>
#include <QStyle>
#include <QToolBar>
#include <QVBoxLayout>

#include "common/date_text.h"
#include "shell/city_master_dialog.h"
#include "shell/clock_fields.h"
#include "shell/form_keys.h"
#include "shell/messages.h"
#include "shell/saved_charts_dialog.h"
#include "shell/time_zone_master_dialog.h"
#include "store/chart_store.h"
#include "store/city_master.h"
#include "store/country_master.h"
#include "store/store_error.h"
#include "store/time_zone_master.h"

namespace kelvaro::shell {

namespace {

QComboBox* MakeCombo(QWidget* parent, const char* name, bool editable) {
  auto* combo = new QComboBox(parent);
  combo->setObjectName(name);
  combo->setEditable(editable);
  combo->setMaxVisibleItems(20);
  if (editable) InstallTypeAhead(combo);
  return combo;
}

}  // namespace

BirthFormDialog::BirthFormDialog(Services services, QWidget* parent) : QDialog(parent), services_(std::move(services)) {
  setWindowTitle(kBirthFormCaption);
  setObjectName("frm_OpenChart");
  setModal(true);
  setAttribute(Qt::WA_DeleteOnClose);
  BuildControls();
  FillCountries();
  SetDefaults();
  name_->setFocus();
}

void BirthFormDialog::BuildControls() {
  name_ = new QLineEdit(this);
  name_->setObjectName("Txt_VC_ChartName");
  gender_ = MakeCombo(this, "cbGender", false);
  gender_->addItems({"Male", "Female"});
  day_ = MakeCombo(this, "txt_Date", true);
  for (int d = 1; d <= 31; ++d) day_->addItem(TwoDigits(d));
  month_ = MakeCombo(this, "txt_Month", true);
  for (int m = 1; m <= 12; ++m) month_->addItem(Qs(MonthName(m, true)));
  year_ = MakeCombo(this, "txt_Year", true);
  for (int y = 1900; y <= 2050; ++y) year_->addItem(QString::number(y));
  hour_ = MakeCombo(this, "cbHour", true);
  for (int h = 1; h <= 12; ++h) hour_->addItem(TwoDigits(h));
  minute_ = MakeCombo(this, "cbMins", true);
  for (int m = 0; m <= 59; ++m) minute_->addItem(TwoDigits(m));
  for (QWidget* numeric : {static_cast<QWidget*>(day_), static_cast<QWidget*>(year_), static_cast<QWidget*>(hour_),
                           static_cast<QWidget*>(minute_)}) {
    AcceptDigitsOnly(numeric);
  }
  am_ = new QRadioButton("AM", this);
  am_->setObjectName("Opt_AM");
  pm_ = new QRadioButton("PM", this);
  pm_->setObjectName("Opt_PM");
  find_ = new QLineEdit(this);
  find_->setObjectName("txtFindPlace");
  find_->setPlaceholderText(tr("Type a place's name: Hyderabad, Sao Paulo, ..."));
  found_ = new QStringListModel(this);
  completer_ = new QCompleter(found_, this);
  // The list is the search's own, ranked and without regard to accents.
  completer_->setCompletionMode(QCompleter::UnfilteredPopupCompletion);
  completer_->setMaxVisibleItems(12);
  find_->setCompleter(completer_);
  country_ = MakeCombo(this, "txt_VC_Country", true);
  city_ = MakeCombo(this, "txt_VC_City", true);
  zone_ = MakeCombo(this, "cbTimeZone", true);
  zone_->setMinimumContentsLength(28);
  offsetLine_ = new QLabel(this);
  offsetLine_->setObjectName("lblClockOffset");
  offsetLine_->setWordWrap(true);
  offsetLine_->setTextInteractionFlags(Qt::TextSelectableByMouse);
  autoOffset_ = new QCheckBox(tr("&Automatic offset"), this);
  autoOffset_->setObjectName("chkAutoOffset");
  autoOffset_->setChecked(true);
  autoOffset_->setToolTip(
      tr("The offset in force at the place, date and time by the rules of its zone. Clear it to calculate with the "
         "chosen zone's offset."));
  fold_ = MakeCombo(this, "cbClockFold", false);
  fold_->addItems({tr("Earlier reading"), tr("Later reading")});
  fold_->setToolTip(tr("The clocks went back over this time, so it happened twice: which of the two it was"));
  fold_->hide();
  cityButton_ = new QPushButton("+", this);
  cityButton_->setObjectName("cmdadd");
  zoneButton_ = new QPushButton("?", this);
  zoneButton_->setObjectName("cmdTimeZoneHelp");
  cityButton_->setToolTip(tr("Add or edit a city (City Details)"));
  zoneButton_->setToolTip(tr("Add or edit a time zone (Time Zone)"));
  for (QPushButton* b : {cityButton_, zoneButton_}) {
    b->setAutoDefault(false);
    b->setFixedWidth(28);
  }
  lat_ = new QLineEdit(this);
  lat_->setObjectName("txtLatDetails");
  lon_ = new QLineEdit(this);
  lon_->setObjectName("txtLonDetails");
  for (QLineEdit* e : {lat_, lon_}) e->setReadOnly(true);
  ok_ = new QPushButton(tr("&OK"), this);
  ok_->setObjectName("cmdSave");
  ok_->setDefault(true);
  cancel_ = new QPushButton(tr("&Cancel"), this);
  cancel_->setObjectName("CMDCANCEl");

  auto* layout = new QVBoxLayout(this);
  BuildMenuAndToolbar(layout);
  auto* grid = new QGridLayout;
  int row = 0;
  auto label = [&](const QString& text, QWidget* buddy) {
    auto* l = new QLabel(text, this);
    l->setBuddy(buddy);
    grid->addWidget(l, row, 0);
  };
  label(tr("&Name"), name_);
  grid->addWidget(name_, row++, 1, 1, 4);
  label(tr("&Gender"), gender_);
  grid->addWidget(gender_, row++, 1);
  label(tr("Birth &Date"), day_);
  auto* date = new QHBoxLayout;
  date->addWidget(day_);
  date->addWidget(month_);
  date->addWidget(year_);
  date->addWidget(new QLabel("(DD/MMM/YYYY)", this));
  date->addStretch(1);
  grid->addLayout(date, row++, 1, 1, 4);
  label(tr("Birth &Time"), hour_);
  auto* time = new QHBoxLayout;
  time->addWidget(hour_);
  time->addWidget(minute_);
  time->addWidget(am_);
  time->addWidget(pm_);
  time->addStretch(1);
  grid->addLayout(time, row++, 1, 1, 4);
  label(tr("Find &Place"), find_);
  grid->addWidget(find_, row++, 1, 1, 3);
  label(tr("Birth C&ountry"), country_);
  grid->addWidget(country_, row++, 1, 1, 3);
  label(tr("Birth C&ity"), city_);
  grid->addWidget(city_, row, 1, 1, 3);
  grid->addWidget(cityButton_, row++, 4);
  label(tr("Time &Zone"), zone_);
  grid->addWidget(zone_, row, 1, 1, 3);
  grid->addWidget(zoneButton_, row++, 4);
  grid->addWidget(offsetLine_, row++, 1, 1, 4);
  auto* offset = new QHBoxLayout;
  offset->addWidget(autoOffset_);
  offset->addWidget(fold_);
  offset->addStretch(1);
  grid->addLayout(offset, row++, 1, 1, 4);
  label(tr("Latitude"), lat_);
  grid->addWidget(lat_, row++, 1);
  label(tr("Longitude"), lon_);
  grid->addWidget(lon_, row++, 1);
  grid->setColumnStretch(3, 1);
  layout->addLayout(grid);
  auto* buttons = new QHBoxLayout;
  buttons->addStretch(1);
  buttons->addWidget(ok_);
  buttons->addWidget(cancel_);
  layout->addLayout(buttons);

  const std::vector<QWidget*> order{name_, gender_, day_, month_, year_, hour_, minute_, am_, pm_, find_,
                                    country_, city_, zone_, autoOffset_, fold_, lat_, lon_, ok_};
  for (size_t i = 0; i + 1 < order.size(); ++i) setTabOrder(order[i], order[i + 1]);
  setTabOrder(ok_, cancel_);
  // Enter from either of AM and PM goes on to the country, as does Tab from
  // the checked one of the pair.
  InstallEnterOrder({name_, gender_, day_, month_, year_, hour_, minute_, am_, country_});
  InstallEnterOrder({pm_, country_, city_, zone_, lat_, lon_, ok_});

  connect(country_, &QComboBox::activated, this, [this] { ChooseCountry(); });
  connect(city_, &QComboBox::activated, this, [this] { ChooseCity(); });
  connect(zone_, &QComboBox::activated, this, [this] {
    // Another zone than the one chosen before overrules the rules; the first
    // choice, or Enter on the same one, does not.
    const bool known = zoneKnown_;
    const std::int64_t before = ZoneSno();
    ChooseZone();
    if (known && zoneKnown_ && ZoneSno() != before && !zoneId_.empty()) autoOffset_->setChecked(false);
    OffsetInputChanged();
  });
  // Typing another text than the chosen item's unsets what it chose.
  connect(city_, &QComboBox::editTextChanged, this, [this] {
    placeKnown_ = false;
    SetZoneId({});
  });
  connect(zone_, &QComboBox::editTextChanged, this, [this] { zoneKnown_ = false; });
  // The line edits' own signal: the type-ahead completes a text with the
  // combo's signals blocked.
  for (QComboBox* c : {day_, month_, year_, hour_, minute_}) {
    connect(c->lineEdit(), &QLineEdit::textChanged, this, &BirthFormDialog::OffsetInputChanged);
  }
  connect(pm_, &QRadioButton::toggled, this, &BirthFormDialog::OffsetInputChanged);
  connect(autoOffset_, &QCheckBox::toggled, this, &BirthFormDialog::OffsetInputChanged);
  connect(fold_, &QComboBox::currentIndexChanged, this, &BirthFormDialog::OffsetInputChanged);
  connect(cityButton_, &QPushButton::clicked, this, &BirthFormDialog::OpenCityMaster);
  connect(zoneButton_, &QPushButton::clicked, this, &BirthFormDialog::OpenTimeZoneMaster);
  connect(find_, &QLineEdit::textEdited, this, &BirthFormDialog::SearchPlaces);
  connect(qApp, &QApplication::focusChanged, this, [this](QWidget*, QWidget* now) {
    if (now == find_) LoadPlaces();
  });
  connect(completer_, qOverload<const QModelIndex&>(&QCompleter::activated), this,
          [this](const QModelIndex& index) { ChoosePlace(index.row()); });
  connect(ok_, &QPushButton::clicked, this, &BirthFormDialog::Ok);
  connect(cancel_, &QPushButton::clicked, this, &QDialog::reject);
}

void BirthFormDialog::BuildMenuAndToolbar(QVBoxLayout* layout) {
  auto* bar = new QMenuBar(this);
  auto* file = bar->addMenu(tr("&File"));
  file->setObjectName("mnu_File");
  QStyle* s = style();
  newAction_ = new QAction(s->standardIcon(QStyle::SP_FileIcon), tr("&New"), this);
  newAction_->setToolTip("New BrithDetails");
  openAction_ = new QAction(s->standardIcon(QStyle::SP_DialogOpenButton), tr("&Open"), this);
  openAction_->setToolTip("Open Birthdetails");
  saveAction_ = new QAction(s->standardIcon(QStyle::SP_DialogSaveButton), tr("&Save"), this);
  saveAction_->setToolTip("Save Details");
  deleteAction_ = new QAction(s->standardIcon(QStyle::SP_TrashIcon), tr("&Delete"), this);
  deleteAction_->setToolTip("Delete Details");
  closeAction_ = new QAction(s->standardIcon(QStyle::SP_DialogCloseButton), tr("&Close"), this);
  closeAction_->setToolTip("Close");
  newAction_->setShortcut(QKeySequence::New);
  openAction_->setShortcut(QKeySequence::Open);
  saveAction_->setShortcut(QKeySequence::Save);
  file->addAction(newAction_);
  file->addAction(openAction_);
  file->addSeparator();
  file->addAction(saveAction_);
  file->addAction(deleteAction_);
  file->addSeparator();
  file->addAction(closeAction_);
  layout->setMenuBar(bar);
  auto* tools = new QToolBar(this);
  tools->setObjectName("tbrMirvane");
  for (QAction* a : {newAction_, openAction_, saveAction_, deleteAction_, closeAction_}) tools->addAction(a);
  layout->addWidget(tools);
  connect(newAction_, &QAction::triggered, this, &BirthFormDialog::New);
  connect(openAction_, &QAction::triggered, this, &BirthFormDialog::Open);
  connect(saveAction_, &QAction::triggered, this, &BirthFormDialog::Save);
  connect(deleteAction_, &QAction::triggered, this, &BirthFormDialog::Delete);
  connect(closeAction_, &QAction::triggered, this, &QDialog::reject);
}

void BirthFormDialog::SetDefaults() {
  const QDateTime now = services_.now();
  const ClockFields clock{day_, month_, year_, hour_, minute_, am_, pm_};
  ShowDate(clock, now.date());
  ShowTime(clock, now.time());
  gender_->setCurrentIndex(0);
  country_->setCurrentIndex(-1);
  country_->setEditText({});
}

void BirthFormDialog::FillCountries() {
  country_->clear();
  if (!services_.db) return;
  for (const auto& row : store::CountriesInTableOrder(*services_.db)) {
    country_->addItem(Qs(row.name), QVariant::fromValue<qlonglong>(row.id));
  }
}

std::int64_t BirthFormDialog::CountryId() const {
  const int item = ItemMatchingText(country_);
  return item < 0 ? 0 : country_->itemData(item).toLongLong();
}

std::int64_t BirthFormDialog::ZoneSno() const {
  const int item = ItemMatchingText(zone_);
  return item < 0 ? openedZoneSno_ : zone_->itemData(item).toLongLong();
}

void BirthFormDialog::ChooseCountry(bool chooseSingleZone) {
  placeKnown_ = zoneKnown_ = false;
  lat_->clear();
  lon_->clear();
  FillCitiesAndZones(CountryId());
  // A country with one zone needs no question.
  if (chooseSingleZone && zone_->count() == 1) {
    zone_->setCurrentIndex(0);
    ChooseZone();
  }
}

void BirthFormDialog::FillCitiesAndZones(std::int64_t countryId) {
  city_->clear();
  zone_->clear();
  if (countryId != 0 && services_.db) {
    for (const auto& z : store::ZonesOf(*services_.db, countryId)) {
      zone_->addItem(Qs(store::ZoneItemText(z)), QVariant::fromValue<qlonglong>(z.sno));
    }
    for (const auto& c : store::CitiesOf(*services_.db, countryId)) {
      city_->addItem(Qs(c.name), QVariant::fromValue<qlonglong>(c.id));
    }
  }
  city_->setCurrentIndex(-1);
  city_->setEditText({});
  zone_->setCurrentIndex(-1);
  zone_->setEditText({});
}

void BirthFormDialog::SetPlace(double latDeg, const std::string& latNS, double latMin, double lonDeg,
                               const std::string& lonEW, double lonMin) {
  latDeg_ = latDeg;
  latNS_ = latNS;
  latMin_ = latMin;
  lonDeg_ = lonDeg;
  lonEW_ = lonEW;
  lonMin_ = lonMin;
  lat_->setText(Qs(store::PlaceText(latDeg, latNS, latMin)));
  lon_->setText(Qs(store::PlaceText(lonDeg, lonEW, lonMin)));
}

void BirthFormDialog::ChooseCity() {
  if (city_->currentText().trimmed().isEmpty() || !services_.db) return;
  const auto city = store::CityByName(*services_.db, CountryId(), Std(city_->currentText().trimmed()));
  if (!city) return;
  SetPlace(city->latDeg, city->latNS, city->latMin, city->lonDeg, city->lonEW, city->lonMin);
  placeKnown_ = true;
  SetZoneId(city->zoneId);
}

void BirthFormDialog::ChooseZone() {
  const int item = ItemMatchingText(zone_);
  if (item < 0 || !services_.db) return;
  const auto zone = store::ZoneBySno(*services_.db, zone_->itemData(item).toLongLong());
  if (!zone) return;
  timeDiff_ = zone->timeDifference;
  timeDiffEW_ = zone->direction;
  zoneKnown_ = true;
  ShowClockOffset();
}

bool BirthFormDialog::LoadPlaces() {
  if (places_) return true;
  if (!services_.db) return false;
  try {
    places_ = std::make_unique<store::PlaceIndex>(store::PlaceIndex::Load(*services_.db));
  } catch (const store::StoreError& e) {
    ShowError(this, Qs(e.what()));
    return false;
  }
  return true;
}

void BirthFormDialog::SearchPlaces(const QString& text) {
  if (!LoadPlaces()) return;
  shown_.clear();
  QStringList items;
  for (const store::PlaceRecord* p : places_->Find(Std(text.trimmed()), std::nullopt, 20)) {
    shown_.push_back(*p);
    items << Qs(p->Label() + "  (" + p->country + ")");
  }
  found_->setStringList(items);
  if (!items.isEmpty()) completer_->complete();
}

// Degrees and whole minutes, as the form and the chart store keep a place.
static void DegreesMinutes(double value, double& degrees, double& minutes) {
  const double a = std::fabs(value);
  degrees = std::floor(a);
  minutes = std::round((a - degrees) * 60.0);
  if (minutes == 60) {
    degrees += 1;
    minutes = 0;
  }
}

void BirthFormDialog::ChoosePlace(int row) {
  if (row < 0 || row >= static_cast<int>(shown_.size())) return;
  const store::PlaceRecord place = shown_[static_cast<size_t>(row)];
  const int countryItem = country_->findData(QVariant::fromValue<qlonglong>(place.countryId));
  if (countryItem < 0) return;
  country_->setCurrentIndex(countryItem);
  ChooseCountry(false);
  city_->setEditText(Qs(place.cityId != 0 ? place.name : place.Label()));
  double latDeg = 0, latMin = 0, lonDeg = 0, lonMin = 0;
  DegreesMinutes(place.latitude, latDeg, latMin);
  DegreesMinutes(place.longitude, lonDeg, lonMin);
  SetPlace(latDeg, place.latitude < 0 ? "S" : "N", latMin, lonDeg, place.longitude < 0 ? "W" : "E", lonMin);
  placeKnown_ = true;
  SetZoneId(place.zoneId);
  // The country's zone of that name, when its list has one.
  for (int i = 0; i < zone_->count(); ++i) {
    if (zone_->itemText(i).startsWith(Qs(place.zoneId + "  ("))) {
      zone_->setCurrentIndex(i);
      ChooseZone();
      break;
    }
  }
  find_->clear();
  ShowClockOffset();
  (zoneKnown_ ? static_cast<QWidget*>(ok_) : static_cast<QWidget*>(zone_))->setFocus();
}

BirthFormFields BirthFormDialog::Fields() const {
  BirthFormFields f = TypedFields();
  if (savedOffset_) {
    f.timeDiff = savedOffset_->timeDiff;
    f.timeDiffEW = savedOffset_->timeDiffEW;
    f.clockOffsetNote = savedOffset_->note;
    f.offsetByUser = savedOffset_->byUser;
    return f;
  }
  const OffsetDecision d = DecideOffset(f);
  ApplyOffsetDecision(d, f);
  f.offsetByUser = d.overruled && d.rules.has_value();
  return f;
}

OffsetDecision BirthFormDialog::DecideOffset(const BirthFormFields& typed) const {
  return DecideBirthOffset(typed, zoneId_, !zoneId_.empty() && !autoOffset_->isChecked(),
                           fold_->currentIndex() == 1 ? Fold::Later : Fold::Earlier, rules_);
}

BirthFormFields BirthFormDialog::TypedFields() const {
  BirthFormFields f;
  f.name = Std(name_->text());
  f.gender = Std(gender_->currentText());
  f.day = Std(day_->currentText());
  f.month = Std(month_->currentText());
  f.year = Std(year_->currentText());
  f.hour = Std(hour_->currentText());
  f.minute = Std(minute_->currentText());
  f.pm = pm_->isChecked();
  f.country = Std(country_->currentText());
  f.city = Std(city_->currentText());
  f.zone = Std(zone_->currentText());
  f.latDeg = latDeg_;
  f.latMin = latMin_;
  f.latNS = latNS_;
  f.lonDeg = lonDeg_;
  f.lonMin = lonMin_;
  f.lonEW = lonEW_;
  f.timeDiff = timeDiff_;
  f.timeDiffEW = timeDiffEW_;
  f.zoneId = zoneId_;
  return f;
}

void BirthFormDialog::SetZoneId(const std::string& zoneId) {
  if (zoneId == zoneId_) return;
  zoneId_ = zoneId;
  // A new place starts from its rules again.
  autoOffset_->setChecked(true);
  fold_->setCurrentIndex(0);
  OffsetInputChanged();
}

void BirthFormDialog::OffsetInputChanged() {
  savedOffset_.reset();
  ShowClockOffset();
}

void BirthFormDialog::ShowClockOffset() {
  autoOffset_->setEnabled(!zoneId_.empty());
  if (savedOffset_) {
    offsetLine_->setText(Qs(savedOffset_->note));
    fold_->hide();
    FitOffsetLine();
    return;
  }
  const OffsetDecision d = DecideOffset(TypedFields());
  offsetLine_->setText(Qs(d.line));
  fold_->setVisible(d.Ambiguous());
  FitOffsetLine();
}

void BirthFormDialog::FitOffsetLine() {
  // A long line wraps; the form grows to show it whole rather than cut it.
  if (!layout() || !isVisible()) return;
  layout()->activate();
  const int wanted = layout()->totalHeightForWidth(width());
  if (wanted > height()) resize(width(), wanted);
}

void BirthFormDialog::ShowFailure(const std::string& field, const std::string& message) {
  ShowInformation(this, kBirthFormCaption, Qs(message));
  if (field.empty()) return;
  if (auto* w = findChild<QWidget*>(Qs(field))) w->setFocus(Qt::OtherFocusReason);
}

bool BirthFormDialog::Check() {
  const BirthFormFields f = Fields();
  if (const auto failure = ValidateBirthForm(f)) {
    ShowFailure(failure->field, failure->message);
    return false;
  }
  // Texts typed past the lists must still name what the calculation needs.
  if (CountryId() == 0) {
    ShowFailure("txt_VC_Country", "Select Country");
    return false;
  }
  if (!placeKnown_) ChooseCity();
  if (!placeKnown_) {
    ShowFailure("txt_VC_City", "Select City");
    return false;
  }
  if (!zoneKnown_) ChooseZone();
  if (!zoneKnown_) {
    ShowFailure("cbTimeZone", "Select Timezone");
    return false;
  }
  return true;
}

void BirthFormDialog::Ok() {
  if (!Check()) return;
  if (services_.calculate && services_.calculate(Fields(), userId_)) accept();
}

void BirthFormDialog::Save() {
  if (!Check() || !services_.db) return;
  try {
    const BirthFormFields f = Fields();
    const store::ChartFields chart = ChartFieldsOf(f, CountryId(), ZoneSno());
    const store::WriteResult result =
        userId_ == 0 ? store::SaveChart(*services_.db, chart) : store::UpdateChart(*services_.db, userId_, chart);
    if (!result.ok()) {
      ShowFailure(result.failure->field.empty() ? "Txt_VC_ChartName" : result.failure->field, result.failure->message);
      return;
    }
    if (userId_ == 0) userId_ = result.id;
    if (services_.settings) store::WriteLastChart(*services_.settings, LastChartOf(f));
    ShowInformation(this, kBirthFormCaption, Qs(result.message));
  } catch (const std::exception& e) {
    ShowError(this, Qs(e.what()));
  }
}

void BirthFormDialog::New() {
  name_->clear();
  gender_->setCurrentIndex(0);
  for (QComboBox* c : {day_, month_, year_, hour_, minute_, country_}) {
    c->setCurrentIndex(-1);
    c->setEditText({});
  }
  city_->clear();
  zone_->clear();
  lat_->clear();
  lon_->clear();
  placeKnown_ = zoneKnown_ = false;
  // A new chart: a later save inserts and never overwrites the one opened before.
  userId_ = 0;
  openedZoneSno_ = 0;
  SetZoneId({});
  OffsetInputChanged();
  name_->setFocus();
}

void BirthFormDialog::Open() {
  if (!services_.db) return;
  auto* list = new SavedChartsDialog(*services_.db, this);
  connect(list, &SavedChartsDialog::ChartChosen, this, [this](std::int64_t sno) { OpenChart(sno); });
  list->open();
}

void BirthFormDialog::OpenChart(std::int64_t sno) {
  if (!services_.db) return;
  try {
    const auto chart = store::OpenChart(*services_.db, sno);
    if (!chart) {
      ShowError(this, tr("The chart number %1 is no longer saved.").arg(sno));
      return;
    }
    const auto country = store::CountryById(*services_.db, chart->countryId);
    const BirthFormFields f = FormFieldsOf(*chart, country ? country->name : std::string());
    userId_ = chart->sno;
    name_->setText(Qs(f.name));
    gender_->setCurrentIndex(f.gender == "Female" ? 1 : 0);
    day_->setEditText(Qs(f.day));
    month_->setEditText(Qs(f.month));
    year_->setEditText(Qs(f.year));
    hour_->setEditText(Qs(f.hour));
    minute_->setEditText(Qs(f.minute));
    (f.pm ? pm_ : am_)->setChecked(true);
    // The country by its id, which fills the cities and the zones.
    const int countryItem = country_->findData(QVariant::fromValue<qlonglong>(chart->countryId));
    country_->setCurrentIndex(countryItem);
    if (countryItem < 0) country_->setEditText(Qs(f.country));
    ChooseCountry(false);
    city_->setEditText(Qs(f.city));
    SetPlace(f.latDeg, f.latNS, f.latMin, f.lonDeg, f.lonEW, f.lonMin);
    placeKnown_ = true;
    openedZoneSno_ = chart->zoneSno.value_or(0);
    const int zoneItem = zone_->findData(QVariant::fromValue<qlonglong>(openedZoneSno_));
    if (zoneItem >= 0) {
      zone_->setCurrentIndex(zoneItem);
    } else {
      zone_->setEditText(Qs(f.zone));
    }
    zoneKnown_ = !f.zone.empty();
    SetZoneId(f.zoneId);
    autoOffset_->setChecked(!f.offsetByUser);
    // The zone row's offset, under the saved one when the chart kept one.
    timeDiff_ = chart->timeDiff;
    timeDiffEW_ = chart->timeDiffEW;
    if (!f.clockOffsetNote.empty()) savedOffset_ = SavedOffset{f.timeDiff, f.timeDiffEW, f.clockOffsetNote, f.offsetByUser};
    ShowClockOffset();
  } catch (const std::exception& e) {
    ShowError(this, Qs(e.what()));
  }
}

MasterDialog* BirthFormDialog::OpenCityMaster() {
  if (!services_.db) return nullptr;
  auto* master = new CityMasterDialog(*services_.db, services_.windowSettings, this);
  master->StartWithCountry(CountryId());
  ShowWhileOpen(master);
  return master;
}

MasterDialog* BirthFormDialog::OpenTimeZoneMaster() {
  if (!services_.db) return nullptr;
  auto* master = new TimeZoneMasterDialog(*services_.db, services_.windowSettings, this);
  master->StartWithCountry(CountryId());
  ShowWhileOpen(master);
  return master;
}

void BirthFormDialog::ShowWhileOpen(MasterDialog* master) {
  // finished() comes however the master closes: its button, Escape or the
  // title bar.
  connect(master, &QDialog::finished, this, [this] {
    RefillLists();
    show();
    raise();
    activateWindow();
  });
  hide();
  master->open();
}

void BirthFormDialog::RefillLists() {
  const std::int64_t countryId = CountryId();
  const QString countryText = country_->currentText();
  const QString cityText = city_->currentText();
  const QString zoneText = zone_->currentText();
  const std::int64_t zoneSno = zoneKnown_ ? ZoneSno() : 0;
  const bool placeKnown = placeKnown_;
  const bool zoneKnown = zoneKnown_;
  const std::string zoneId = zoneId_;
  const bool automatic = autoOffset_->isChecked();
  const int fold = fold_->currentIndex();
  const std::optional<SavedOffset> saved = savedOffset_;
  try {
    FillCountries();
    const int countryItem = country_->findData(QVariant::fromValue<qlonglong>(countryId));
    country_->setCurrentIndex(countryItem);
    if (countryItem < 0) country_->setEditText(countryText);
    FillCitiesAndZones(CountryId());
    // A city or zone chosen before is read again: the master may have changed it.
    city_->setEditText(cityText);
    placeKnown_ = placeKnown;
    if (placeKnown_ && ItemMatchingText(city_) >= 0) ChooseCity();
    const int zoneItem = zoneSno == 0 ? -1 : zone_->findData(QVariant::fromValue<qlonglong>(zoneSno));
    if (zoneItem >= 0) {
      zone_->setCurrentIndex(zoneItem);
      ChooseZone();
    } else if (zoneText.isEmpty() && zone_->count() == 1) {
      zone_->setCurrentIndex(0);
      ChooseZone();
    } else {
      zone_->setEditText(zoneText);
      zoneKnown_ = zoneKnown;
    }
    // The place, its offset and the user's say over it stay as they were.
    SetZoneId(zoneId);
    autoOffset_->setChecked(automatic);
    fold_->setCurrentIndex(fold);
    savedOffset_ = saved;
    ShowClockOffset();
  } catch (const std::exception& e) {
    ShowError(this, Qs(e.what()));
  }
}

void BirthFormDialog::Delete() {
  if (userId_ == 0 || !services_.db) return;
  if (!AskYesNo(this, kBirthFormCaption, "Are You Sure You want to delete ?")) return;
  try {
    store::DeleteChart(*services_.db, userId_);
    New();
    ShowInformation(this, kBirthFormCaption, Qs(std::string(store::kChartDeletedMessage)));
  } catch (const std::exception& e) {
    ShowError(this, Qs(e.what()));
  }
}

}  // namespace kelvaro::shell
