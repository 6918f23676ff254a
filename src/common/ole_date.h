#pragma once
// OleDate: a moment as an OLE Automation date, a double of days since
// 1899-12-30 with the clock as the fraction. Before 1899-12-30 the stored
// double is negative with a positive clock fraction (-1.25 is 29 Dec 1899
// 06:00); all arithmetic here follows the calendar, not the raw double.
//
// Rules (shared by every subsystem):
//  - parts (year .. second, weekday) are read from the moment rounded to the
//    nearest second;
//  - weekday runs Sunday 1 to Saturday 7;
//  - DateAdd makes the count whole first, half to even, as a 32-bit integer;
//    months and years keep the day, clamped to the month's last day;
//  - DateDiff in days counts midnights crossed, in years year numbers crossed,
//    in hours, minutes and seconds the whole units between the two moments.
#include <cstdint>
#include <string_view>

namespace kelvaro {

struct DateParts {
  int year = 1899;
  int month = 12;
  int day = 30;
  int hour = 0;
  int minute = 0;
  int second = 0;
};

enum class Interval { Year, Month, Day, Hour, Minute, Second };

// "yyyy", "m", "d"/"D", "h"/"H", "n", "s". Throws std::invalid_argument otherwise.
Interval ParseInterval(std::string_view word);

class OleDate {
 public:
  constexpr OleDate() = default;
  constexpr explicit OleDate(double oleValue) : value_(oleValue) {}

  // The calendar date and clock. Throws std::invalid_argument for a date that
  // does not exist (31 April, month 13, year outside 100..9999).
  static OleDate FromParts(int year, int month, int day, int hour = 0, int minute = 0, int second = 0);
  static bool IsValidDate(int year, int month, int day);
  static int DaysInMonth(int year, int month);

  // Continuous days since 1899-12-30 (negative before it, clock added forward).
  static OleDate FromLinear(double days);
  double Linear() const;

  constexpr double Value() const { return value_; }

  DateParts Parts() const;  // rounded to the nearest second
  int Year() const { return Parts().year; }
  int Month() const { return Parts().month; }
  int Day() const { return Parts().day; }
  int Hour() const { return Parts().hour; }
  int Minute() const { return Parts().minute; }
  int Second() const { return Parts().second; }
  int Weekday() const;  // Sunday 1 .. Saturday 7

  OleDate DateOnly() const;  // the midnight that starts the moment's day

  friend bool operator<(OleDate a, OleDate b) { return a.Linear() < b.Linear(); }
  friend bool operator>(OleDate a, OleDate b) { return b < a; }
  friend bool operator<=(OleDate a, OleDate b) { return !(b < a); }
  friend bool operator>=(OleDate a, OleDate b) { return !(a < b); }
  friend bool operator==(OleDate a, OleDate b) { return a.Linear() == b.Linear(); }
  friend bool operator!=(OleDate a, OleDate b) { return !(a == b); }

 private:
  double value_ = 0.0;
};

OleDate DateAdd(Interval interval, double count, OleDate moment);
OleDate DateAdd(std::string_view interval, double count, OleDate moment);

std::int64_t DateDiff(Interval interval, OleDate from, OleDate to);
std::int64_t DateDiff(std::string_view interval, OleDate from, OleDate to);

// Day count of a proleptic Gregorian date, 0 for 1899-12-30.
std::int64_t DayNumberOf(int year, int month, int day);
void DateOfDayNumber(std::int64_t dayNumber, int& year, int& month, int& day);

}  // namespace kelvaro
