#pragma once
// "About us": the program, its version, the database in use, and the
// licences of the libraries and fonts the program is built with.
#include <QDialog>

namespace kelvaro::shell {

inline constexpr const char* kProgramVersion = "2.4";

class AboutDialog : public QDialog {
  Q_OBJECT

 public:
  AboutDialog(const QString& databasePath, QWidget* parent);

  // The text shown, as rich text.
  static QString Text(const QString& databasePath);
};

}  // namespace kelvaro::shell
