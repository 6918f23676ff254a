#pragma once
// "Edit Personal Info": the owner's letterhead that the report prints on its
// first page. "&Edit" goes to the name, "&New" clears the boxes and removes
// the stored details, "&Save" replaces them ("Details Saved"), "&Close"
// leaves. After "&New" or "&Save" the main window's report reads the
// letterhead anew.
#include <QDialog>
#include <array>
#include <functional>

#include "store/database.h"
#include "store/personal_details.h"

class QLineEdit;
class QPushButton;
class QSettings;

namespace kelvaro::shell {

inline constexpr const char* kPersonalInfoCaption = "Edit Personal Info";

class PersonalInfoDialog : public QDialog {
  Q_OBJECT

 public:
  struct Services {
    store::Database* db = nullptr;
    QSettings* settings = nullptr;
    // The letterhead as it now stands, for the report.
    std::function<void(const store::PersonalDetails& letterhead)> changed;
  };

  // Reads the stored details; a StoreError goes to the caller.
  PersonalInfoDialog(Services services, QWidget* parent);

  store::PersonalDetails Details() const;

  void Edit();
  void New();
  void Save();

 private:
  void Show(const store::PersonalDetails& details);

  Services services_;
  // txtName, txtAdd, txtAdd2, txtCity, txtCountry, txtZip, txtPhone, txtEmail
  std::array<QLineEdit*, 8> boxes_{};
};

}  // namespace kelvaro::shell
