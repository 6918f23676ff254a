#pragma once
// The two time converters: "Birth Time To Ishta Ghatika" (a date and a clock
// time to the ishta ghati) and "Ishta Ghatika To Birth Time" (ghatis and
// vighatis after sunrise back to a clock time), each with its own place:
// country, city and zone from the masters. "&Submit" checks the fields in
// order and shows the result below them; the window stays open for the next.
#include <QDateTime>
#include <QDialog>
#include <functional>

#include "panchanga/time_converters.h"
#include "store/database.h"

class QComboBox;
class QLineEdit;
class QRadioButton;
class QSettings;

namespace kelvaro::shell {

QString ConverterCaption(Conversion conversion);

class TimeConverterDialog : public QDialog {
  Q_OBJECT

 public:
  struct Services {
    store::Database* db = nullptr;
    QSettings* settings = nullptr;
    // The place the window starts on: the chart in force's.
    std::string country, city;
    std::function<QDateTime()> now = [] { return QDateTime::currentDateTime(); };
  };

  // Reads the countries; a StoreError goes to the caller.
  TimeConverterDialog(Conversion conversion, Services services, QWidget* parent);

  void Submit();
  QString Result() const;

 private:
  void BuildControls();
  void SetDefaults();
  void ChooseCountry();
  std::int64_t CountryId() const;
  void ShowFailure(const ConverterProblem& problem);

  Conversion conversion_;
  Services services_;
  QComboBox* day_ = nullptr;
  QComboBox* month_ = nullptr;
  QComboBox* year_ = nullptr;
  QComboBox* hour_ = nullptr;
  QComboBox* minute_ = nullptr;
  QRadioButton* am_ = nullptr;
  QRadioButton* pm_ = nullptr;
  QComboBox* country_ = nullptr;
  QComboBox* city_ = nullptr;
  QComboBox* zone_ = nullptr;
  QLineEdit* result_ = nullptr;
};

}  // namespace kelvaro::shell
