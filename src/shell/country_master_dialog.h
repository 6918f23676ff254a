#pragma once
// "Country": adds and renames the countries; there is no delete. Each tab
// lists the countries by name, and its search box selects the first one that
// begins with what is typed, as it is typed.
#include "shell/master_dialog.h"

class QLineEdit;
class QListWidget;
class QPushButton;
class QTabWidget;

namespace kelvaro::shell {

inline constexpr const char* kCountryMasterCaption = "Country";

class CountryMasterDialog : public MasterDialog {
  Q_OBJECT

 public:
  CountryMasterDialog(store::Database& db, QSettings* settings, QWidget* parent);

  void Add();
  void Update();

 private:
  void Refill();
  void Search(QLineEdit* box, QListWidget* list);
  void ChooseForEdit();

  std::vector<store::CountryRow> countries_;  // as the lists show them
  QTabWidget* tabs_;
  QLineEdit* search_;
  QListWidget* addList_;
  QLineEdit* addName_;
  QPushButton* save_;
  QLineEdit* editSearch_;
  QListWidget* editList_;
  QLineEdit* editName_;
  QPushButton* update_;
};

}  // namespace kelvaro::shell
