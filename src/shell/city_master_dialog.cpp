#include "shell/city_master_dialog.h"

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
#include "store/text_rules.h"

namespace kelvaro::shell {

namespace {


// Degree, minute and letter of one coordinate, on one line.
QHBoxLayout* Coordinate(QLineEdit* degree, QLineEdit* minute, QComboBox* letter, QWidget* parent) {
  auto* line = new QHBoxLayout;
  line->addWidget(degree);
  line->addWidget(new QLabel(QObject::tr("Deg"), parent));
  line->addWidget(minute);
  line->addWidget(new QLabel(QObject::tr("Min"), parent));
  line->addWidget(letter);
  line->addStretch(1);
  return line;
}

}  // namespace

store::CityInput CityMasterDialog::PlaceFields::Input() const {
  store::CityInput in;
  in.countryId = ChosenId(country);
  in.city = Std(city->text());
  in.latDeg = Std(latDeg->text());
  in.latMin = Std(latMin->text());
  in.latNS = Std(latNS->currentText());
  in.lonDeg = Std(lonDeg->text());
  in.lonMin = Std(lonMin->text());
  in.lonEW = Std(lonEW->currentText());
  return in;
}

CityMasterDialog::CityMasterDialog(store::Database& db, QSettings* settings, QWidget* parent)
    : MasterDialog(db, settings, kCityMasterCaption, "frm_New_LatLon", parent) {
  tabs_ = new QTabWidget(this);
  tabs_->setObjectName("TabStrip1");
  tabs_->addTab(BuildAddTab(), tr("Add City"));
  tabs_->addTab(BuildEditTab(), tr("Edit City"));
  tabs_->addTab(BuildViewTab(), tr("View City"));
  LayOutCountryTabs(tabs_, {add_.country, edit_.country, viewCountry_}, "cmdAddCLose1");
  RestoreSize({720, 560});
  add_.country->setFocus();
}

QWidget* CityMasterDialog::BuildAddTab() {
  auto* tab = new QWidget(tabs_);
  tab->setObjectName("frameAdd");
  add_.country = MakeCountryCombo(tab, "cbAddCountry");
  add_.city = MakeEdit(tab, "txtAddCity");
  add_.latDeg = MakeEdit(tab, "txtAddLatDeg", 3);
  add_.latMin = MakeEdit(tab, "txtAddLAtMin", 2);
  add_.latNS = MakeLetterCombo(tab, "cbAddNS", {"N", "S"});
  add_.lonDeg = MakeEdit(tab, "txtAddLonDeg", 3);
  add_.lonMin = MakeEdit(tab, "txtAddLonMin", 2);
  add_.lonEW = MakeLetterCombo(tab, "cbAddEW", {"E", "W"});
  save_ = new QPushButton(tr("&Save"), tab);
  save_->setObjectName("cmdAddSave");
  addGrid_ = MakeMasterGrid(tab, "mshCity", CityGrid({}));

  auto* form = new QGridLayout(tab);
  form->addWidget(new QLabel(tr("Country"), tab), 0, 0);
  form->addWidget(add_.country, 0, 1);
  form->addWidget(new QLabel(tr("City"), tab), 1, 0);
  form->addWidget(add_.city, 1, 1);
  form->addWidget(new QLabel(tr("Latitude"), tab), 2, 0);
  form->addLayout(Coordinate(add_.latDeg, add_.latMin, add_.latNS, tab), 2, 1);
  form->addWidget(new QLabel(tr("Longitude"), tab), 3, 0);
  form->addLayout(Coordinate(add_.lonDeg, add_.lonMin, add_.lonEW, tab), 3, 1);
  form->addWidget(save_, 4, 1, Qt::AlignLeft);
  form->addWidget(addGrid_, 5, 0, 1, 2);
  form->setRowStretch(5, 1);

  const std::vector<QWidget*> order{add_.country, add_.city, add_.latDeg, add_.latMin, add_.latNS,
                                    add_.lonDeg,  add_.lonMin, add_.lonEW, save_};
  for (size_t i = 0; i + 1 < order.size(); ++i) setTabOrder(order[i], order[i + 1]);
  InstallEnterOrder(order);
  connect(add_.country, &QComboBox::activated, this, [this] { ShowCities(add_.country, addGrid_, nullptr); });
  connect(save_, &QPushButton::clicked, this, &CityMasterDialog::Add);
  return tab;
}

QWidget* CityMasterDialog::BuildEditTab() {
  auto* tab = new QWidget(tabs_);
  tab->setObjectName("frameEdit");
  edit_.country = MakeCountryCombo(tab, "cbEditCountry");
  editCity_ = MakeCountryCombo(tab, "cbEditCity");
  edit_.city = MakeEdit(tab, "txtEditCity");
  edit_.latDeg = MakeEdit(tab, "txtEditLatDeg", 3);
  edit_.latMin = MakeEdit(tab, "txtEditLatMIn", 2);
  edit_.latNS = MakeLetterCombo(tab, "cbEditNS", {"N", "S"});
  edit_.lonDeg = MakeEdit(tab, "txtEditLonDeg", 3);
  edit_.lonMin = MakeEdit(tab, "txtEditLonMin", 2);
  edit_.lonEW = MakeLetterCombo(tab, "cbEditEW", {"E", "W"});
  update_ = new QPushButton(tr("&Update"), tab);
  update_->setObjectName("cmdEditUpdate");
  editGrid_ = MakeMasterGrid(tab, "mshEditCity", CityGrid({}));

  auto* form = new QGridLayout(tab);
  form->addWidget(new QLabel(tr("Country"), tab), 0, 0);
  form->addWidget(edit_.country, 0, 1);
  form->addWidget(new QLabel(tr("Select City"), tab), 1, 0);
  form->addWidget(editCity_, 1, 1);
  form->addWidget(new QLabel(tr("City"), tab), 2, 0);
  form->addWidget(edit_.city, 2, 1);
  form->addWidget(new QLabel(tr("Latitude"), tab), 3, 0);
  form->addLayout(Coordinate(edit_.latDeg, edit_.latMin, edit_.latNS, tab), 3, 1);
  form->addWidget(new QLabel(tr("Longitude"), tab), 4, 0);
  form->addLayout(Coordinate(edit_.lonDeg, edit_.lonMin, edit_.lonEW, tab), 4, 1);
  form->addWidget(update_, 5, 1, Qt::AlignLeft);
  form->addWidget(editGrid_, 6, 0, 1, 2);
  form->setRowStretch(6, 1);

  const std::vector<QWidget*> order{edit_.country, editCity_,   edit_.city,  edit_.latDeg, edit_.latMin,
                                    edit_.latNS,   edit_.lonDeg, edit_.lonMin, edit_.lonEW,  update_};
  for (size_t i = 0; i + 1 < order.size(); ++i) setTabOrder(order[i], order[i + 1]);
  InstallEnterOrder(order);
  connect(edit_.country, &QComboBox::activated, this, &CityMasterDialog::ChooseEditCountry);
  connect(editCity_, &QComboBox::activated, this, &CityMasterDialog::ChooseEditCity);
  connect(update_, &QPushButton::clicked, this, &CityMasterDialog::Update);
  return tab;
}

QWidget* CityMasterDialog::BuildViewTab() {
  auto* tab = new QWidget(tabs_);
  tab->setObjectName("Frameview");
  viewCountry_ = MakeCountryCombo(tab, "cmbCountry");
  findText_ = MakeEdit(tab, "txtCityName");
  auto* find = new QPushButton(tr("&Find"), tab);
  find->setObjectName("cmdFind");
  viewGrid_ = MakeMasterGrid(tab, "mshViewCity", CityGrid({}));
  auto* form = new QGridLayout(tab);
  form->addWidget(new QLabel(tr("Select Country"), tab), 0, 0);
  form->addWidget(viewCountry_, 0, 1);
  form->addWidget(new QLabel(tr("Search for City"), tab), 1, 0);
  form->addWidget(findText_, 1, 1);
  form->addWidget(find, 1, 2);
  form->addWidget(viewGrid_, 2, 0, 1, 3);
  form->setRowStretch(2, 1);
  form->setColumnStretch(1, 1);
  InstallEnterOrder({viewCountry_, findText_});
  PressOnEnter(findText_, find);
  connect(viewCountry_, &QComboBox::activated, this, [this] { ShowCities(viewCountry_, viewGrid_, &viewCities_); });
  connect(find, &QPushButton::clicked, this, &CityMasterDialog::Find);
  return tab;
}

void CityMasterDialog::StartWithCountry(std::int64_t countryId) {
  tabs_->setCurrentIndex(0);
  ChooseItemById(add_.country, countryId);
  (ChosenId(add_.country) == 0 ? static_cast<QWidget*>(add_.country) : add_.city)->setFocus();
}

void CityMasterDialog::ShowCities(QComboBox* country, GridView* grid, std::vector<store::CityRow>* rows) {
  std::vector<store::CityRow> cities;
  const std::int64_t id = ChosenId(country);
  if (id != 0 && !Guarded([&] { cities = store::CitiesOf(db_, id); })) return;
  grid->SetGrid(CityGrid(cities));
  if (rows) *rows = std::move(cities);
}

void CityMasterDialog::ChooseEditCountry() {
  ShowCities(edit_.country, editGrid_, &editCities_);
  const QSignalBlocker quiet(editCity_);
  editCity_->clear();
  for (const auto& c : editCities_) editCity_->addItem(Qs(c.name), QVariant::fromValue<qlonglong>(c.id));
  editCity_->setCurrentIndex(-1);
  editCity_->setEditText({});
}

void CityMasterDialog::ChooseEditCity() {
  std::optional<store::CityRow> city;
  const std::int64_t id = ChosenId(editCity_);
  if (id == 0 || !Guarded([&] { city = store::CityById(db_, id); }) || !city) return;
  edit_.city->setText(Qs(city->name));
  edit_.latDeg->setText(Qs(store::NumberText(city->latDeg)));
  edit_.latMin->setText(Qs(store::NumberText(city->latMin)));
  edit_.latNS->setCurrentText(Qs(city->latNS));
  edit_.lonDeg->setText(Qs(store::NumberText(city->lonDeg)));
  edit_.lonMin->setText(Qs(store::NumberText(city->lonMin)));
  edit_.lonEW->setCurrentText(Qs(city->lonEW));
}

void CityMasterDialog::Add() {
  store::WriteResult result;
  if (!Guarded([&] { result = store::AddCity(db_, add_.Input()); })) return;
  if (!result.ok()) {
    ShowFailure(*result.failure);
    return;
  }
  Say(result.message);
  ShowCities(add_.country, addGrid_, nullptr);
  for (QLineEdit* e : {add_.city, add_.latDeg, add_.latMin, add_.lonDeg, add_.lonMin}) e->clear();
  add_.city->setFocus();
}

void CityMasterDialog::Update() {
  const std::int64_t cityId = ChosenId(editCity_);
  store::WriteResult result;
  if (!Guarded([&] { result = store::EditCity(db_, cityId, edit_.Input()); })) return;
  if (!result.ok()) {
    ShowFailure(*result.failure);
    return;
  }
  Say(result.message);
  // The lists show the new name; the city stays chosen.
  ChooseEditCountry();
  ChooseItemById(editCity_, cityId);
}

void CityMasterDialog::Find() {
  const store::SearchResult found = store::FindCityInList(viewCities_, Std(findText_->text()));
  if (!found.found()) {
    ShowFailure(*found.failure);
    findText_->setFocus();
    return;
  }
  const int row = static_cast<int>(*found.index);
  viewGrid_->selectRow(row);
  viewGrid_->scrollTo(viewGrid_->model()->index(row, 0), QAbstractItemView::PositionAtTop);
}

}  // namespace kelvaro::shell
