#pragma once
// What the three master windows (countries, cities, time zones) share: the
// database, the caption that titles their messages, the size remembered
// between openings, the store's answers shown as the program shows
// messages, and the small controls their tabs are built from.
#include <QDialog>
#include <cstdint>
#include <string>
#include <vector>

#include "store/country_master.h"
#include "store/database.h"
#include "store/field_message.h"

class QAbstractButton;
class QComboBox;
class QLineEdit;
class QSettings;
class QTabWidget;

namespace kelvaro {
class Grid;
}

namespace kelvaro::shell {

class GridView;

class MasterDialog : public QDialog {
  Q_OBJECT

 public:
  // `settings` keeps the window's size; it may be null (nothing kept).
  MasterDialog(store::Database& db, QSettings* settings, const char* caption, const char* objectName,
               QWidget* parent);

  // However the window closes (its button, Escape, the title bar), its size
  // is kept and finished() is emitted.
  void done(int result) override;

 protected:
  // Called once the controls stand, so that the kept size wins over the
  // layout's own.
  void RestoreSize(QSize fallback);
  // The city and zone masters: the tabs above a row that holds only the
  // close button (`closeName`, "&Cancel"); every country list (one a tab, in
  // tab order) filled; a country chosen on one tab comes along to a tab that
  // has none chosen.
  void LayOutCountryTabs(QTabWidget* tabs, const std::vector<QComboBox*>& countries, const char* closeName);
  // A validation message: an information box titled with the caption, then
  // the focus on the field it names.
  void ShowFailure(const store::FieldMessage& failure);
  void Say(const std::string& text);
  // An unexpected error of a store call, shown in the critical box; false
  // when the call failed.
  template <class Call>
  bool Guarded(Call&& call) {
    try {
      call();
      return true;
    } catch (const std::exception& e) {
      ShowUnexpected(e);
      return false;
    }
  }

  store::Database& db_;

 private:
  void ShowUnexpected(const std::exception& e);

  QSettings* settings_;
  QString caption_;
  std::int64_t lastCountry_ = 0;  // the country chosen last, on any tab
};

// A country list of the masters: editable, with the type-ahead, each item
// keeping its CountryID.
QComboBox* MakeCountryCombo(QWidget* parent, const char* name);
void FillCountryCombo(QComboBox* combo, const std::vector<store::CountryRow>& countries);
// The id kept by the item that the box's text names; 0 when it names none.
std::int64_t ChosenId(const QComboBox* combo);
// Chooses the item keeping `id`, as a click on it would (its handler runs).
void ChooseItemById(QComboBox* combo, std::int64_t id);
// A direction list ("N", "S" or "E", "W") with nothing chosen.
QComboBox* MakeLetterCombo(QWidget* parent, const char* name, const QStringList& letters);
// A text box; with `digits` above 0, a numeric field of at most that many
// digits (a degree takes 3, a minute or an hour 2).
QLineEdit* MakeEdit(QWidget* parent, const char* name, int digits = 0);
// A grid of the masters: whole rows chosen, one line a row, first showing
// `empty` (the heading alone).
GridView* MakeMasterGrid(QWidget* parent, const char* name, const Grid& empty);
// Enter in `field` presses `button`, and goes no further.
void PressOnEnter(QWidget* field, QAbstractButton* button);

}  // namespace kelvaro::shell
