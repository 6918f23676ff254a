#include "shell/clock_fields.h"

#include <QComboBox>
#include <QDate>
#include <QRadioButton>
#include <QTime>

namespace kelvaro::shell {

QString TwoDigits(int value) { return QStringLiteral("%1").arg(value, 2, 10, QLatin1Char('0')); }

void ShowDate(const ClockFields& f, const QDate& date) {
  f.day->setCurrentIndex(date.day() - 1);
  f.month->setCurrentIndex(date.month() - 1);
  f.year->setEditText(QString::number(date.year()));
}

void ShowTime(const ClockFields& f, const QTime& time) {
  const int hour = time.hour();
  const int hour12 = hour % 12 == 0 ? 12 : hour % 12;
  f.hour->setEditText(TwoDigits(hour12));
  f.minute->setCurrentIndex(time.minute());
  (hour < 12 ? f.am : f.pm)->setChecked(true);
}

}  // namespace kelvaro::shell
