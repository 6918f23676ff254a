#include "common/ole_date.h"

#include <algorithm>
#include <cmath>
#include <stdexcept>
#include <string>

#include "common/number_rules.h"

namespace kelvaro {

namespace {

constexpr double kSecondsPerDay = 86400.0;
constexpr std::int64_t kUnixDayOfOleZero = -25569;  // 1899-12-30 counted from 1970-01-01

std::int64_t FloorDiv(std::int64_t a, std::int64_t b) {
  std::int64_t q = a / b;
  if ((a % b != 0) && ((a < 0) != (b < 0))) --q;
  return q;
}

// Days from 1970-01-01 of a proleptic Gregorian date (H. Hinnant's algorithm).
std::int64_t DaysFromCivil(std::int64_t y, unsigned m, unsigned d) {
  y -= m <= 2;
  const std::int64_t era = (y >= 0 ? y : y - 399) / 400;
  const unsigned yoe = static_cast<unsigned>(y - era * 400);
  const unsigned doy = (153 * (m + (m > 2 ? -3 : 9)) + 2) / 5 + d - 1;
  const unsigned doe = yoe * 365 + yoe / 4 - yoe / 100 + doy;
  return era * 146097 + static_cast<std::int64_t>(doe) - 719468;
}

void CivilFromDays(std::int64_t z, int& year, int& month, int& day) {
  z += 719468;
  const std::int64_t era = (z >= 0 ? z : z - 146096) / 146097;
  const unsigned doe = static_cast<unsigned>(z - era * 146097);
  const unsigned yoe = (doe - doe / 1460 + doe / 36524 - doe / 146096) / 365;
  const std::int64_t y = static_cast<std::int64_t>(yoe) + era * 400;
  const unsigned doy = doe - (365 * yoe + yoe / 4 - yoe / 100);
  const unsigned mp = (5 * doy + 2) / 153;
  const unsigned d = doy - (153 * mp + 2) / 5 + 1;
  const unsigned m = mp < 10 ? mp + 3 : mp - 9;
  year = static_cast<int>(y + (m <= 2));
  month = static_cast<int>(m);
  day = static_cast<int>(d);
}

// The moment as whole seconds since 1899-12-30 00:00, rounded to the nearest.
std::int64_t RoundedSeconds(OleDate moment) {
  return static_cast<std::int64_t>(std::floor(moment.Linear() * kSecondsPerDay + 0.5));
}

}  // namespace

std::int64_t DayNumberOf(int year, int month, int day) {
  return DaysFromCivil(year, static_cast<unsigned>(month), static_cast<unsigned>(day)) - kUnixDayOfOleZero;
}

void DateOfDayNumber(std::int64_t dayNumber, int& year, int& month, int& day) {
  CivilFromDays(dayNumber + kUnixDayOfOleZero, year, month, day);
}

Interval ParseInterval(std::string_view word) {
  if (word == "yyyy") return Interval::Year;
  if (word == "m") return Interval::Month;
  if (word == "d" || word == "D") return Interval::Day;
  if (word == "h" || word == "H") return Interval::Hour;
  if (word == "n") return Interval::Minute;
  if (word == "s") return Interval::Second;
  throw std::invalid_argument("Unknown date interval \"" + std::string(word) + "\"");
}

int OleDate::DaysInMonth(int year, int month) {
  static constexpr int kDays[12] = {31, 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};
  if (month < 1 || month > 12) return 0;
  if (month == 2) {
    const bool leap = (year % 4 == 0 && year % 100 != 0) || year % 400 == 0;
    return leap ? 29 : 28;
  }
  return kDays[month - 1];
}

bool OleDate::IsValidDate(int year, int month, int day) {
  return year >= 100 && year <= 9999 && month >= 1 && month <= 12 && day >= 1 && day <= DaysInMonth(year, month);
}

OleDate OleDate::FromParts(int year, int month, int day, int hour, int minute, int second) {
  if (!IsValidDate(year, month, day)) {
    throw std::invalid_argument("Invalid date " + std::to_string(day) + "/" + std::to_string(month) + "/" +
                                std::to_string(year));
  }
  if (hour < 0 || hour > 23 || minute < 0 || minute > 59 || second < 0 || second > 59) {
    throw std::invalid_argument("Invalid time " + std::to_string(hour) + ":" + std::to_string(minute) + ":" +
                                std::to_string(second));
  }
  const double clock = (hour * 3600.0 + minute * 60.0 + second) / kSecondsPerDay;
  return FromLinear(static_cast<double>(DayNumberOf(year, month, day)) + clock);
}

OleDate OleDate::FromLinear(double days) {
  if (days >= 0) return OleDate(days);
  const double day = std::floor(days);
  const double clock = days - day;
  return OleDate(day - clock);
}

double OleDate::Linear() const {
  if (value_ >= 0) return value_;
  const double day = std::trunc(value_);  // toward zero: -1.25 is day -1
  return day + (day - value_);            // and its clock 0.25 runs forward
}

DateParts OleDate::Parts() const {
  const std::int64_t secs = RoundedSeconds(*this);
  const std::int64_t dayNumber = FloorDiv(secs, 86400);
  const std::int64_t clock = secs - dayNumber * 86400;
  DateParts p;
  DateOfDayNumber(dayNumber, p.year, p.month, p.day);
  p.hour = static_cast<int>(clock / 3600);
  p.minute = static_cast<int>((clock / 60) % 60);
  p.second = static_cast<int>(clock % 60);
  return p;
}

int OleDate::Weekday() const {
  const std::int64_t dayNumber = FloorDiv(RoundedSeconds(*this), 86400);
  // Day 0, 1899-12-30, was a Saturday.
  return static_cast<int>(((dayNumber + 6) % 7 + 7) % 7) + 1;
}

OleDate OleDate::DateOnly() const {
  return FromLinear(static_cast<double>(FloorDiv(RoundedSeconds(*this), 86400)));
}

OleDate DateAdd(Interval interval, double count, OleDate moment) {
  const double n = static_cast<double>(CLng(count));  // the count is made whole first
  const double linear = moment.Linear();
  switch (interval) {
    case Interval::Day:
      return OleDate::FromLinear(linear + n);
    case Interval::Hour:
      return OleDate::FromLinear(linear + n / 24.0);
    case Interval::Minute:
      return OleDate::FromLinear(linear + n / 1440.0);
    case Interval::Second:
      return OleDate::FromLinear(linear + n / kSecondsPerDay);
    case Interval::Month:
    case Interval::Year: {
      const double day = std::floor(linear);
      const double clock = linear - day;
      int y, m, d;
      DateOfDayNumber(static_cast<std::int64_t>(day), y, m, d);
      const std::int64_t months = (interval == Interval::Month ? static_cast<std::int64_t>(n)
                                                               : static_cast<std::int64_t>(n) * 12);
      const std::int64_t total = static_cast<std::int64_t>(y) * 12 + (m - 1) + months;
      const int ny = static_cast<int>(FloorDiv(total, 12));
      const int nm = static_cast<int>(total - static_cast<std::int64_t>(ny) * 12) + 1;
      const int nd = std::min(d, OleDate::DaysInMonth(ny, nm));
      return OleDate::FromLinear(static_cast<double>(DayNumberOf(ny, nm, nd)) + clock);
    }
  }
  return moment;
}

OleDate DateAdd(std::string_view interval, double count, OleDate moment) {
  return DateAdd(ParseInterval(interval), count, moment);
}

std::int64_t DateDiff(Interval interval, OleDate from, OleDate to) {
  const std::int64_t a = RoundedSeconds(from);
  const std::int64_t b = RoundedSeconds(to);
  switch (interval) {
    case Interval::Day:
      return FloorDiv(b, 86400) - FloorDiv(a, 86400);
    case Interval::Year:
      return to.Year() - from.Year();
    case Interval::Month: {
      const DateParts pa = from.Parts();
      const DateParts pb = to.Parts();
      return (static_cast<std::int64_t>(pb.year) * 12 + pb.month) - (static_cast<std::int64_t>(pa.year) * 12 + pa.month);
    }
    case Interval::Hour:
      return (b - a) / 3600;
    case Interval::Minute:
      return (b - a) / 60;
    case Interval::Second:
      return b - a;
  }
  return 0;
}

std::int64_t DateDiff(std::string_view interval, OleDate from, OleDate to) {
  return DateDiff(ParseInterval(interval), from, to);
}

}  // namespace kelvaro
