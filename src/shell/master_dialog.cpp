#include "shell/master_dialog.h"

#include <QAbstractButton>
#include <QBoxLayout>
#include <QComboBox>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLineEdit>
#include <QPushButton>
#include <QSettings>
#include <QTabWidget>

#include "shell/form_keys.h"
#include "shell/grid_view.h"
#include "shell/messages.h"

namespace kelvaro::shell {

namespace {

QString SizeKey(const QObject* window) { return window->objectName() + "/geometry"; }

class EnterPresses final : public QObject {
 public:
  EnterPresses(QWidget* field, QAbstractButton* button) : QObject(field), button_(button) {}
  bool eventFilter(QObject*, QEvent* event) override {
    if (event->type() != QEvent::KeyPress) return false;
    const int key = static_cast<QKeyEvent*>(event)->key();
    if (key != Qt::Key_Return && key != Qt::Key_Enter) return false;
    button_->click();
    return true;
  }

 private:
  QAbstractButton* button_;
};

}  // namespace

MasterDialog::MasterDialog(store::Database& db, QSettings* settings, const char* caption, const char* objectName,
                           QWidget* parent)
    : QDialog(parent), db_(db), settings_(settings), caption_(caption) {
  setWindowTitle(caption_);
  setObjectName(objectName);
  setModal(true);
  setAttribute(Qt::WA_DeleteOnClose);
}

void MasterDialog::LayOutCountryTabs(QTabWidget* tabs, const std::vector<QComboBox*>& countries,
                                     const char* closeName) {
  auto* close = new QPushButton(tr("&Cancel"), this);
  close->setObjectName(closeName);
  close->setAutoDefault(false);
  connect(close, &QPushButton::clicked, this, &QDialog::reject);
  connect(tabs, &QTabWidget::currentChanged, this, [this, countries](int tab) {
    QComboBox* country = countries.at(static_cast<std::size_t>(tab));
    if (lastCountry_ != 0 && ChosenId(country) == 0) ChooseItemById(country, lastCountry_);
  });
  for (QComboBox* c : countries) {
    connect(c, &QComboBox::activated, this, [this, c] { lastCountry_ = ChosenId(c); });
  }
  auto* layout = new QVBoxLayout(this);
  layout->addWidget(tabs);
  auto* buttons = new QHBoxLayout;
  buttons->addStretch(1);
  buttons->addWidget(close);
  layout->addLayout(buttons);

  std::vector<store::CountryRow> rows;
  Guarded([&] { rows = store::ListCountries(db_); });
  for (QComboBox* c : countries) FillCountryCombo(c, rows);
}

void MasterDialog::RestoreSize(QSize fallback) {
  resize(fallback);
  if (settings_) restoreGeometry(settings_->value(SizeKey(this)).toByteArray());
}

void MasterDialog::done(int result) {
  if (settings_) settings_->setValue(SizeKey(this), saveGeometry());
  QDialog::done(result);
}

void MasterDialog::ShowFailure(const store::FieldMessage& failure) {
  ShowInformation(this, caption_, Qs(failure.message));
  if (failure.field.empty()) return;
  if (auto* w = findChild<QWidget*>(Qs(failure.field))) w->setFocus(Qt::OtherFocusReason);
}

void MasterDialog::Say(const std::string& text) { ShowInformation(this, caption_, Qs(text)); }

void MasterDialog::ShowUnexpected(const std::exception& e) { ShowError(this, Qs(e.what())); }

QComboBox* MakeCountryCombo(QWidget* parent, const char* name) {
  auto* combo = new QComboBox(parent);
  combo->setObjectName(name);
  combo->setEditable(true);
  combo->setMaxVisibleItems(20);
  combo->setMinimumContentsLength(24);
  // Sized by that length, not by measuring every name of the atlas.
  combo->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
  InstallTypeAhead(combo);
  return combo;
}

void FillCountryCombo(QComboBox* combo, const std::vector<store::CountryRow>& countries) {
  const QSignalBlocker quiet(combo);
  combo->clear();
  for (const auto& c : countries) combo->addItem(Qs(c.name), QVariant::fromValue<qlonglong>(c.id));
  combo->setCurrentIndex(-1);
  combo->setEditText({});
}

std::int64_t ChosenId(const QComboBox* combo) {
  const int item = ItemMatchingText(combo);
  return item < 0 ? 0 : combo->itemData(item).toLongLong();
}

void ChooseItemById(QComboBox* combo, std::int64_t id) {
  const int item = combo->findData(QVariant::fromValue<qlonglong>(id));
  if (item < 0) return;
  combo->setCurrentIndex(item);
  emit combo->activated(item);
}

QComboBox* MakeLetterCombo(QWidget* parent, const char* name, const QStringList& letters) {
  auto* combo = new QComboBox(parent);
  combo->setObjectName(name);
  combo->addItems(letters);
  combo->setCurrentIndex(-1);
  return combo;
}

QLineEdit* MakeEdit(QWidget* parent, const char* name, int digits) {
  auto* edit = new QLineEdit(parent);
  edit->setObjectName(name);
  if (digits > 0) {
    AcceptDigitsOnly(edit);
    edit->setMaxLength(digits);
    edit->setMaximumWidth(64);
  }
  return edit;
}

GridView* MakeMasterGrid(QWidget* parent, const char* name, const Grid& empty) {
  auto* grid = new GridView(parent);
  grid->setObjectName(name);
  grid->setSelectionBehavior(QAbstractItemView::SelectRows);
  // Rows of one fixed line: a grid of a large country is laid out without
  // measuring every cell.
  grid->verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
  grid->verticalHeader()->setDefaultSectionSize(grid->fontMetrics().height() + 6);
  grid->SetGrid(empty);
  return grid;
}

void PressOnEnter(QWidget* field, QAbstractButton* button) { field->installEventFilter(new EnterPresses(field, button)); }

}  // namespace kelvaro::shell
