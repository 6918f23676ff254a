#pragma once
// The date and the 12-hour clock as the birth form and the time converter
// show them: day, month and year lists, hour and minute lists, AM and PM.
#include <QString>

class QComboBox;
class QDate;
class QRadioButton;
class QTime;

namespace kelvaro::shell {

struct ClockFields {
  QComboBox* day;
  QComboBox* month;
  QComboBox* year;
  QComboBox* hour;
  QComboBox* minute;
  QRadioButton* am;
  QRadioButton* pm;
};

// "05": the lists' form of a number.
QString TwoDigits(int value);

// Shows the date, and the time on the 12-hour clock (noon is 12 PM,
// midnight 12 AM).
void ShowDate(const ClockFields& fields, const QDate& date);
void ShowTime(const ClockFields& fields, const QTime& time);

}  // namespace kelvaro::shell
