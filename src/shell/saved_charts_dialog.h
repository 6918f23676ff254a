#pragma once
// "Available Users": the saved charts by name, read anew at every opening.
// A click on a name opens that chart into the birth form and closes the list.
#include <QDialog>
#include <cstdint>

#include "store/database.h"

class QLabel;
class QListWidget;

namespace kelvaro::shell {

class SavedChartsDialog : public QDialog {
  Q_OBJECT

 public:
  SavedChartsDialog(store::Database& db, QWidget* parent);
  QListWidget& List() { return *list_; }

 signals:
  void ChartChosen(std::int64_t sno);

 private:
  void Choose();

  QListWidget* list_;
  QLabel* details_;
};

inline constexpr const char* kSavedChartsCaption = "Available Users";

}  // namespace kelvaro::shell
