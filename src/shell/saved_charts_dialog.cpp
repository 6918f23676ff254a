#include "shell/saved_charts_dialog.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QVBoxLayout>

#include "shell/messages.h"
#include "store/chart_store.h"

namespace kelvaro::shell {

SavedChartsDialog::SavedChartsDialog(store::Database& db, QWidget* parent)
    : QDialog(parent), list_(new QListWidget(this)), details_(new QLabel(this)) {
  setWindowTitle(kSavedChartsCaption);
  setObjectName("Frm_RetriveBirthData");
  setModal(true);
  setAttribute(Qt::WA_DeleteOnClose);
  list_->setObjectName("List_VC_ChartName");
  details_->setObjectName("Lab_Details");
  auto* open = new QPushButton(tr("&Open"), this);
  open->setObjectName("Cmd_Submit");
  auto* cancel = new QPushButton(tr("&Cancel"), this);
  cancel->setObjectName("Cmd_Close");
  auto* layout = new QVBoxLayout(this);
  layout->addWidget(details_);
  layout->addWidget(list_, 1);
  auto* buttons = new QHBoxLayout;
  buttons->addStretch(1);
  buttons->addWidget(open);
  buttons->addWidget(cancel);
  layout->addLayout(buttons);
  resize(360, 420);

  try {
    const store::ChartList charts = store::ListCharts(db, "All");
    details_->setText(Qs(charts.label));
    for (const auto& item : charts.items) {
      auto* row = new QListWidgetItem(Qs(item.chartName), list_);
      row->setData(Qt::UserRole, QVariant::fromValue<qlonglong>(item.sno));
    }
  } catch (const std::exception& e) {
    ShowError(this, Qs(e.what()));
  }
  // A single click opens, as does Enter or the button on the chosen name.
  connect(list_, &QListWidget::itemClicked, this, [this] { Choose(); });
  connect(list_, &QListWidget::itemActivated, this, [this] { Choose(); });
  connect(open, &QPushButton::clicked, this, [this] {
    if (!list_->currentItem()) {
      ShowInformation(this, kSavedChartsCaption, "Select Chart Name ");
      return;
    }
    Choose();
  });
  connect(cancel, &QPushButton::clicked, this, &QDialog::reject);
  list_->setFocus();
}

void SavedChartsDialog::Choose() {
  QListWidgetItem* item = list_->currentItem();
  if (!item) return;
  const auto sno = static_cast<std::int64_t>(item->data(Qt::UserRole).toLongLong());
  accept();
  emit ChartChosen(sno);
}

}  // namespace kelvaro::shell
