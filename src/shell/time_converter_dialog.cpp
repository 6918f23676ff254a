#include "shell/time_converter_dialog.h"

#include <QComboBox>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QVBoxLayout>

#include "common/date_text.h"
#include "horoscope/time_conversion.h"
#include "shell/clock_fields.h"
#include "shell/form_keys.h"
#include "shell/messages.h"
#include "shell/remembered_size.h"
#include "store/city_master.h"
#include "store/country_master.h"
#include "store/time_zone_master.h"

namespace kelvaro::shell {

namespace {

QComboBox* MakeList(QWidget* parent, const char* name) {
  auto* combo = new QComboBox(parent);
  combo->setObjectName(name);
  combo->setEditable(true);
  combo->setMaxVisibleItems(20);
  InstallTypeAhead(combo);
  return combo;
}

}  // namespace

QString ConverterCaption(Conversion conversion) {
  return conversion == Conversion::ToIshtaGhati ? "Birth Time To Ishta Ghatika" : "Ishta Ghatika To Birth Time";
}

TimeConverterDialog::TimeConverterDialog(Conversion conversion, Services services, QWidget* parent)
    : QDialog(parent), conversion_(conversion), services_(std::move(services)) {
  setWindowTitle(ConverterCaption(conversion));
  setObjectName(conversion == Conversion::ToIshtaGhati ? "frm_BirthTimetoIshtaGhatika"
                                                        : "frm_IshtaghatikaToBirthTime");
  setModal(true);
  setAttribute(Qt::WA_DeleteOnClose);
  BuildControls();
  for (const auto& row : store::CountriesInTableOrder(*services_.db)) {
    country_->addItem(Qs(row.name), QVariant::fromValue<qlonglong>(row.id));
  }
  SetDefaults();
  RememberSize(this, services_.settings,
               conversion == Conversion::ToIshtaGhati ? "BirthTimeToIshtaGhatika/geometry"
                                                      : "IshtaGhatikaToBirthTime/geometry");
  day_->setFocus();
}

void TimeConverterDialog::BuildControls() {
  const bool toGhati = conversion_ == Conversion::ToIshtaGhati;
  day_ = MakeList(this, "txtDate");
  for (int d = 1; d <= 31; ++d) day_->addItem(TwoDigits(d));
  month_ = MakeList(this, "txtMonth");
  for (int m = 1; m <= 12; ++m) month_->addItem(Qs(MonthName(m, true)));
  year_ = MakeList(this, "txtYear");
  for (int y = 1900; y <= 2050; ++y) year_->addItem(QString("%1").arg(y, 4, 10, QChar('0')));
  hour_ = MakeList(this, "cbHour");
  // A clock's hours one way, the ghatis of a day (0 to 60) the other.
  for (int h = toGhati ? 1 : 0; h <= (toGhati ? 12 : 60); ++h) hour_->addItem(TwoDigits(h));
  minute_ = MakeList(this, "cbMins");
  for (int m = 0; m <= 59; ++m) minute_->addItem(TwoDigits(m));
  for (QComboBox* numeric : {day_, year_, hour_, minute_}) AcceptDigitsOnly(numeric);
  am_ = new QRadioButton("AM", this);
  am_->setObjectName("Opt_AM");
  pm_ = new QRadioButton("PM", this);
  pm_->setObjectName("Opt_PM");
  am_->setVisible(toGhati);
  pm_->setVisible(toGhati);
  country_ = MakeList(this, "Cmb_VP_Country");
  city_ = MakeList(this, "Cmb_VP_City");
  zone_ = new QComboBox(this);
  zone_->setObjectName("cbTimeZone");
  zone_->setMinimumContentsLength(28);
  result_ = new QLineEdit(this);
  result_->setObjectName(toGhati ? "txtIshtaGhati" : "txtBirthTime");
  result_->setReadOnly(true);
  auto* submit = new QPushButton(tr("&Submit"), this);
  submit->setObjectName("cmdSubmit");
  submit->setDefault(true);
  auto* close = new QPushButton(tr("&Close"), this);
  close->setObjectName("CMDCANCEl");
  close->setAutoDefault(false);

  auto* date = new QHBoxLayout;
  date->addWidget(day_);
  date->addWidget(month_);
  date->addWidget(year_);
  date->addWidget(new QLabel("(DD/MMM/YYYY)", this));
  date->addStretch(1);
  auto* time = new QHBoxLayout;
  time->addWidget(hour_);
  time->addWidget(minute_);
  time->addWidget(am_);
  time->addWidget(pm_);
  time->addStretch(1);
  auto* form = new QFormLayout;
  form->setFieldGrowthPolicy(QFormLayout::AllNonFixedFieldsGrow);
  // A row of several fields is labelled for its first, so its accelerator works.
  auto buddyLabel = [this](const QString& text, QWidget* buddy) {
    auto* label = new QLabel(text, this);
    label->setBuddy(buddy);
    return label;
  };
  form->addRow(buddyLabel(tr("&Date"), day_), date);
  form->addRow(buddyLabel(toGhati ? tr("Birth &Time") : tr("&Ghati / Vighati"), hour_), time);
  form->addRow(tr("C&ountry"), country_);
  form->addRow(tr("C&ity"), city_);
  form->addRow(tr("Time &Zone"), zone_);
  form->addRow(toGhati ? tr("Ishta Ghati") : tr("Birth Time"), result_);
  auto* buttons = new QHBoxLayout;
  buttons->addStretch(1);
  buttons->addWidget(submit);
  buttons->addWidget(close);
  auto* layout = new QVBoxLayout(this);
  layout->addLayout(form);
  layout->addStretch(1);
  layout->addLayout(buttons);

  if (toGhati) {
    InstallEnterOrder({day_, month_, year_, hour_, minute_, am_, country_});
    InstallEnterOrder({pm_, country_, city_, zone_, submit});
  } else {
    InstallEnterOrder({day_, month_, year_, hour_, minute_, country_, city_, zone_, submit});
  }
  connect(country_, &QComboBox::activated, this, [this] { ChooseCountry(); });
  connect(submit, &QPushButton::clicked, this, &TimeConverterDialog::Submit);
  connect(close, &QPushButton::clicked, this, &QDialog::reject);
}

void TimeConverterDialog::SetDefaults() {
  const QDateTime now = services_.now();
  const ClockFields clock{day_, month_, year_, hour_, minute_, am_, pm_};
  ShowDate(clock, now.date());
  if (conversion_ == Conversion::ToIshtaGhati) {
    ShowTime(clock, now.time());
  } else {
    hour_->setCurrentIndex(0);
    minute_->setCurrentIndex(0);
  }
  country_->setCurrentIndex(country_->findText(Qs(services_.country)));
  ChooseCountry();
  city_->setEditText(Qs(services_.city));
}

std::int64_t TimeConverterDialog::CountryId() const {
  const int item = ItemMatchingText(country_);
  return item < 0 ? 0 : country_->itemData(item).toLongLong();
}

void TimeConverterDialog::ChooseCountry() {
  city_->clear();
  zone_->clear();
  const std::int64_t id = CountryId();
  if (id == 0) return;
  try {
    for (const auto& c : store::CitiesOf(*services_.db, id)) city_->addItem(Qs(c.name));
    for (const auto& z : store::ZonesOf(*services_.db, id)) {
      zone_->addItem(Qs(store::ZoneItemText(z)), QVariant::fromValue(QString::fromStdString(z.place)));
    }
  } catch (const std::exception& e) {
    ShowError(this, Qs(e.what()));
  }
  city_->setCurrentIndex(-1);
  city_->setEditText({});
  // The country's first zone, as the command line takes it.
  zone_->setCurrentIndex(zone_->count() > 0 ? 0 : -1);
}

void TimeConverterDialog::ShowFailure(const ConverterProblem& problem) {
  ShowInformation(this, ConverterCaption(conversion_), Qs(problem.message));
  if (auto* w = findChild<QWidget*>(Qs(problem.field))) w->setFocus(Qt::OtherFocusReason);
}

void TimeConverterDialog::Submit() {
  result_->clear();
  ConverterEntry entry;
  entry.day = Std(day_->currentText());
  entry.month = Std(month_->currentText());
  entry.year = Std(year_->currentText());
  entry.hour = Std(hour_->currentText());
  entry.minute = Std(minute_->currentText());
  entry.pm = conversion_ == Conversion::ToIshtaGhati && pm_->isChecked();
  try {
    const std::int64_t countryId = CountryId();
    entry.countryChosen = countryId != 0;
    std::optional<store::CityRow> city;
    if (countryId != 0) city = store::CityByName(*services_.db, countryId, Std(city_->currentText().trimmed()));
    entry.cityChosen = city.has_value();
    std::optional<store::ZoneRow> zone;
    if (countryId != 0 && zone_->currentIndex() >= 0) {
      zone = ConverterZone(*services_.db, countryId, Std(zone_->currentData().toString()));
    }
    const ConversionOutcome outcome = ConvertTime(entry, conversion_, city, zone);
    if (outcome.problem) {
      ShowFailure(*outcome.problem);
      return;
    }
    result_->setText(Qs(outcome.text));
  } catch (const std::exception& e) {
    ShowError(this, Qs(e.what()));
  }
}

QString TimeConverterDialog::Result() const { return result_->text(); }

}  // namespace kelvaro::shell
