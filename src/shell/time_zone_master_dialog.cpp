#include "shell/time_zone_master_dialog.h"

#include <QComboBox>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTabWidget>
#include <QVBoxLayout>

#include "shell/form_keys.h"
#include "shell/grid_view.h"
#include "shell/master_grids.h"
#include "shell/messages.h"

namespace kelvaro::shell {

store::ZoneInput TimeZoneMasterDialog::ZoneFields::Input() const {
  store::ZoneInput in;
  in.countryId = ChosenId(country);
  in.name = Std(name->text());
  in.hours = Std(hours->text());
  in.minutes = Std(minutes->text());
  in.direction = Std(direction->currentText());
  return in;
}

TimeZoneMasterDialog::TimeZoneMasterDialog(store::Database& db, QSettings* settings, QWidget* parent)
    : MasterDialog(db, settings, kTimeZoneMasterCaption, "frm_AddTimeZone", parent) {
  tabs_ = new QTabWidget(this);
  tabs_->setObjectName("TabStrip1");
  tabs_->addTab(BuildZoneTab(add_, false, save_, addGrid_), tr("Add Time Zone"));
  tabs_->addTab(BuildZoneTab(edit_, true, update_, editGrid_), tr("Edit Time Zone"));
  tabs_->addTab(BuildViewTab(), tr("View  Time Zone"));
  LayOutCountryTabs(tabs_, {add_.country, edit_.country, viewCountry_}, "Command1");

  connect(add_.country, &QComboBox::activated, this, [this] { ShowZones(add_.country, addGrid_, nullptr); });
  connect(edit_.country, &QComboBox::activated, this, &TimeZoneMasterDialog::ChooseEditCountry);
  connect(editZone_, &QComboBox::activated, this, &TimeZoneMasterDialog::ChooseEditZone);
  connect(viewCountry_, &QComboBox::activated, this, [this] { ShowZones(viewCountry_, viewGrid_, nullptr); });
  connect(save_, &QPushButton::clicked, this, &TimeZoneMasterDialog::Add);
  connect(update_, &QPushButton::clicked, this, &TimeZoneMasterDialog::Update);

  RestoreSize({620, 520});
  add_.country->setFocus();
}

// The add and the edit tab differ only in the names of their controls and
// in the edit's list of the country's zones.
QWidget* TimeZoneMasterDialog::BuildZoneTab(ZoneFields& f, bool editing, QPushButton*& button, GridView*& grid) {
  auto* tab = new QWidget(tabs_);
  tab->setObjectName(editing ? "frameEdit" : "frameAdd");
  f.country = MakeCountryCombo(tab, editing ? "cbEditCountry" : "cbAddCountry");
  if (editing) editZone_ = MakeCountryCombo(tab, "cbEditCity");
  f.name = MakeEdit(tab, editing ? "txtEditCity" : "txtAddCity");
  f.hours = MakeEdit(tab, editing ? "txtEditLatDeg" : "txtAddLatDeg", 2);
  f.minutes = MakeEdit(tab, editing ? "txtEditLatMIn" : "txtAddLAtMin", 2);
  f.direction = MakeLetterCombo(tab, editing ? "cbEditEW" : "cbAddEW", {"E", "W"});
  button = new QPushButton(editing ? tr("&Update") : tr("&Save"), tab);
  button->setObjectName(editing ? "cmdEditUpdate" : "cmdAddSave");
  grid = MakeMasterGrid(tab, editing ? "mshEditCity" : "mshCity", ZoneGrid({}));

  auto* form = new QGridLayout(tab);
  int row = 0;
  auto line = [&](const QString& label, QWidget* field) {
    form->addWidget(new QLabel(label, tab), row, 0);
    form->addWidget(field, row++, 1, Qt::AlignLeft);
  };
  line(tr("Country"), f.country);
  if (editing) line(tr("Select Time Zone"), editZone_);
  line(tr("Time Zone"), f.name);
  line(tr("Hours"), f.hours);
  line(tr("Minutes"), f.minutes);
  line(tr("East / West"), f.direction);
  form->addWidget(button, row++, 1, Qt::AlignLeft);
  form->addWidget(grid, row, 0, 1, 2);
  form->setRowStretch(row, 1);
  form->setColumnStretch(1, 1);
  f.name->setMinimumWidth(240);

  std::vector<QWidget*> order{f.country, f.name, f.hours, f.minutes, f.direction, button};
  if (editing) order.insert(order.begin() + 1, editZone_);
  for (size_t i = 0; i + 1 < order.size(); ++i) setTabOrder(order[i], order[i + 1]);
  InstallEnterOrder(order);
  return tab;
}

QWidget* TimeZoneMasterDialog::BuildViewTab() {
  auto* tab = new QWidget(tabs_);
  tab->setObjectName("FrameView");
  viewCountry_ = MakeCountryCombo(tab, "cmbCountry");
  viewGrid_ = MakeMasterGrid(tab, "mshViewCity", ZoneGrid({}));
  auto* form = new QGridLayout(tab);
  form->addWidget(new QLabel(tr("Select Country"), tab), 0, 0);
  form->addWidget(viewCountry_, 0, 1, Qt::AlignLeft);
  form->addWidget(viewGrid_, 1, 0, 1, 2);
  form->setRowStretch(1, 1);
  form->setColumnStretch(1, 1);
  InstallEnterOrder({viewCountry_, viewGrid_});
  return tab;
}

void TimeZoneMasterDialog::StartWithCountry(std::int64_t countryId) {
  tabs_->setCurrentIndex(0);
  ChooseItemById(add_.country, countryId);
  (ChosenId(add_.country) == 0 ? static_cast<QWidget*>(add_.country) : add_.name)->setFocus();
}

void TimeZoneMasterDialog::ShowZones(QComboBox* country, GridView* grid, std::vector<store::ZoneRow>* rows) {
  std::vector<store::ZoneRow> zones;
  const std::int64_t id = ChosenId(country);
  if (id != 0 && !Guarded([&] { zones = store::ZonesOf(db_, id); })) return;
  grid->SetGrid(ZoneGrid(zones));
  if (rows) *rows = std::move(zones);
}

void TimeZoneMasterDialog::ChooseEditCountry() {
  std::vector<store::ZoneRow> zones;
  ShowZones(edit_.country, editGrid_, &zones);
  const QSignalBlocker quiet(editZone_);
  editZone_->clear();
  for (const auto& z : zones) editZone_->addItem(Qs(z.place), QVariant::fromValue<qlonglong>(z.sno));
  editZone_->setCurrentIndex(-1);
  editZone_->setEditText({});
}

void TimeZoneMasterDialog::ChooseEditZone() {
  std::optional<store::ZoneRow> zone;
  const std::int64_t sno = ChosenId(editZone_);
  if (sno == 0 || !Guarded([&] { zone = store::ZoneBySno(db_, sno); }) || !zone) return;
  const store::ZoneEditFields shown = store::ZoneForEdit(*zone);
  edit_.name->setText(Qs(shown.name));
  edit_.hours->setText(Qs(shown.hours));
  edit_.minutes->setText(Qs(shown.minutes));
  edit_.direction->setCurrentText(Qs(shown.direction));
}

void TimeZoneMasterDialog::Report(const store::WriteResult& result) {
  Say(result.notice);
  Say(result.message);
}

void TimeZoneMasterDialog::Add() {
  store::WriteResult result;
  if (!Guarded([&] { result = store::AddZone(db_, add_.Input()); })) return;
  if (!result.ok()) {
    ShowFailure(*result.failure);
    return;
  }
  Report(result);
  ShowZones(add_.country, addGrid_, nullptr);
  for (QLineEdit* e : {add_.name, add_.hours, add_.minutes}) e->clear();
  add_.name->setFocus();
}

void TimeZoneMasterDialog::Update() {
  const std::int64_t sno = ChosenId(editZone_);
  store::WriteResult result;
  if (!Guarded([&] { result = store::EditZone(db_, sno, edit_.Input()); })) return;
  if (!result.ok()) {
    ShowFailure(*result.failure);
    return;
  }
  Report(result);
  // The lists show the zone as stored; it stays chosen.
  ChooseEditCountry();
  ChooseItemById(editZone_, sno);
}

}  // namespace kelvaro::shell
