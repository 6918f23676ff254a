#pragma once
// "Preferences": the ayanamsa, the days in a year, the house system, the
// chart style and the language. The stored row chooses the current items.
// "&Save" checks the custom ayanamsa's two fields, stores the row and has the
// main window recalculate; "&Apply" recalculates with the new values without
// storing them and without the house system; "&Close" changes nothing.
#include <QDialog>
#include <functional>

#include "store/database.h"
#include "store/preferences.h"

class QComboBox;
class QGroupBox;
class QLineEdit;
class QPushButton;
class QSettings;

namespace kelvaro::shell {

inline constexpr const char* kPreferencesCaption = "Preferences";

class PreferencesDialog : public QDialog {
  Q_OBJECT

 public:
  struct Services {
    store::Database* db = nullptr;
    QSettings* settings = nullptr;  // the window's size
    // Puts the values into the state in force and recalculates; withBhava is
    // false for "&Apply", which keeps the house system in force.
    std::function<void(const store::Preferences& values, bool withBhava)> apply;
  };

  // Reads the stored row; a StoreError goes to the caller.
  PreferencesDialog(Services services, QWidget* parent);

  void Save();
  void Apply();

 private:
  void BuildControls();
  void ShowStored(const store::Preferences& stored);
  void ShowCustomFrame();
  store::PreferenceInput Input() const;
  void ShowFailure(const store::FieldMessage& failure);

  Services services_;
  QComboBox* ayanamsa_ = nullptr;
  QComboBox* days_ = nullptr;
  QComboBox* bhava_ = nullptr;
  QComboBox* chart_ = nullptr;
  QComboBox* language_ = nullptr;
  QGroupBox* custom_ = nullptr;
  QLineEdit* zero_ = nullptr;
  QLineEdit* progression_ = nullptr;
  QPushButton* save_ = nullptr;
  QPushButton* apply_ = nullptr;
  QPushButton* close_ = nullptr;
};

}  // namespace kelvaro::shell
