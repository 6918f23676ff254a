#include "shell/country_master_dialog.h"

#include <QFormLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QTabWidget>
#include <QVBoxLayout>

#include "shell/messages.h"

namespace kelvaro::shell {

namespace {

QListWidget* MakeList(QWidget* parent, const char* name) {
  auto* list = new QListWidget(parent);
  list->setObjectName(name);
  list->setMinimumHeight(220);
  return list;
}

}  // namespace

CountryMasterDialog::CountryMasterDialog(store::Database& db, QSettings* settings, QWidget* parent)
    : MasterDialog(db, settings, kCountryMasterCaption, "frm_Add_Country", parent) {
  tabs_ = new QTabWidget(this);
  tabs_->setObjectName("TabStrip1");

  auto* add = new QWidget(tabs_);
  add->setObjectName("frameAdd");
  search_ = MakeEdit(add, "txtSearch");
  addList_ = MakeList(add, "lstboxAdd");
  addName_ = MakeEdit(add, "txtAddName");
  save_ = new QPushButton(tr("&Save"), add);
  save_->setObjectName("cmdAddSave");
  auto* addForm = new QFormLayout(add);
  addForm->addRow(tr("Search"), search_);
  addForm->addRow(tr("Existing Country"), addList_);
  addForm->addRow(tr("Enter Country"), addName_);
  addForm->addRow(QString(), save_);
  addForm->setAlignment(save_, Qt::AlignLeft);
  tabs_->addTab(add, tr("Add Country"));

  auto* edit = new QWidget(tabs_);
  edit->setObjectName("frameEdit");
  editSearch_ = MakeEdit(edit, "txtEditSearch");
  editList_ = MakeList(edit, "lstEditBox");
  editName_ = MakeEdit(edit, "txtEdit");
  update_ = new QPushButton(tr("&Update"), edit);
  update_->setObjectName("cmdEditUpdate");
  auto* editForm = new QFormLayout(edit);
  editForm->addRow(tr("Search"), editSearch_);
  editForm->addRow(tr("Select Country"), editList_);
  editForm->addRow(tr("Modified Name"), editName_);
  editForm->addRow(QString(), update_);
  editForm->setAlignment(update_, Qt::AlignLeft);
  tabs_->addTab(edit, tr("Edit Country"));

  auto* close = new QPushButton(tr("&Cancel"), this);
  close->setObjectName("cmdAddCLose");
  auto* layout = new QVBoxLayout(this);
  layout->addWidget(tabs_);
  auto* buttons = new QHBoxLayout;
  buttons->addStretch(1);
  buttons->addWidget(close);
  layout->addLayout(buttons);
  // Enter in a name box is the save or the update; no button is pressed by
  // an Enter that lands elsewhere.
  for (QPushButton* b : {save_, update_, close}) b->setAutoDefault(false);
  PressOnEnter(addName_, save_);
  PressOnEnter(editName_, update_);

  connect(search_, &QLineEdit::textEdited, this, [this] { Search(search_, addList_); });
  connect(editSearch_, &QLineEdit::textEdited, this, [this] { Search(editSearch_, editList_); });
  connect(editList_, &QListWidget::currentRowChanged, this, [this] { ChooseForEdit(); });
  connect(save_, &QPushButton::clicked, this, &CountryMasterDialog::Add);
  connect(update_, &QPushButton::clicked, this, &CountryMasterDialog::Update);
  connect(close, &QPushButton::clicked, this, &QDialog::reject);
  connect(tabs_, &QTabWidget::currentChanged, this, [this] {
    editName_->clear();
    editList_->setCurrentRow(-1);
  });
  Refill();
  RestoreSize({420, 480});
  addName_->setFocus();
}

void CountryMasterDialog::Refill() {
  Guarded([&] { countries_ = store::ListCountries(db_); });
  for (QListWidget* list : {addList_, editList_}) {
    const QSignalBlocker quiet(list);
    list->clear();
    for (const auto& c : countries_) {
      auto* item = new QListWidgetItem(Qs(c.name), list);
      item->setData(Qt::UserRole, QVariant::fromValue<qlonglong>(c.id));
    }
    // Wide enough for the longest name, so no name is cut.
    list->setMinimumWidth(list->sizeHintForColumn(0) + 2 * list->frameWidth() + 24);
  }
  // Nothing to rename until a country is chosen.
  editName_->clear();
  editName_->setEnabled(false);
}

void CountryMasterDialog::Search(QLineEdit* box, QListWidget* list) {
  const store::SearchResult found = store::SearchCountries(countries_, Std(box->text()));
  if (!found.found()) {
    ShowFailure(*found.failure);
    box->setFocus();
    return;
  }
  list->setCurrentRow(static_cast<int>(*found.index));
  list->scrollToItem(list->currentItem(), QAbstractItemView::PositionAtTop);
}

void CountryMasterDialog::ChooseForEdit() {
  QListWidgetItem* item = editList_->currentItem();
  editName_->setEnabled(item != nullptr);
  if (item) editName_->setText(item->text());
}

void CountryMasterDialog::Add() {
  store::WriteResult result;
  if (!Guarded([&] { result = store::AddCountry(db_, Std(addName_->text())); })) return;
  if (!result.ok()) {
    ShowFailure(*result.failure);
    return;
  }
  Say(result.message);
  addName_->clear();
  Refill();
  for (int row = 0; row < addList_->count(); ++row) {
    if (addList_->item(row)->data(Qt::UserRole).toLongLong() == result.id) addList_->setCurrentRow(row);
  }
}

void CountryMasterDialog::Update() {
  // With no country chosen the name box is empty, so the store's first test
  // answers.
  QListWidgetItem* item = editList_->currentItem();
  const std::int64_t id = item ? item->data(Qt::UserRole).toLongLong() : 0;
  store::WriteResult result;
  if (!Guarded([&] { result = store::RenameCountry(db_, id, Std(editName_->text())); })) return;
  if (!result.ok()) {
    ShowFailure(*result.failure);
    return;
  }
  Say(result.message);
  editName_->clear();
  Refill();
}

}  // namespace kelvaro::shell
