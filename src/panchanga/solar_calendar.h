#pragma once
// The solar date of a moment (day, solar month and the year's name) and the
// Kaliyuga year, laid out from the year starts of FindYearStart.
#include <array>
#include <cstdint>
#include <string>

#include "common/ole_date.h"
#include "panchanga/kaliyuga_year_table.h"
#include "panchanga/solar_year.h"
#include "panchanga/sun_times.h"

namespace kelvaro {

// The twelve solar months of one year: their names, "Chaitra" to "Phalguna",
// and the sunrise on which each begins.
struct SolarMonthStarts {
  std::array<std::string, 12> names;
  std::array<OleDate, 12> starts;
};

// Month 1 begins at the sunrise of the year start's date; month m from 2 on
// at the sunrise of the day on which the year start plus the month's offset
// falls, or of the next day when that moment is at or after sunset.
SolarMonthStarts SolarMonthsOf(const YearStart& start, const SunTimesOfDate& sunTimes);

// The day of the solar month and the month's length in days.
struct SolarDay {
  std::int16_t day = 0;
  std::int16_t length = 0;
};

// The day of the month that began at `monthStart` (a sunrise) on which
// `moment` falls: the calendar days from the month start, plus one from the
// sunrise of the moment's date on, and never 0. The length counts calendar
// days to `nextMonthStart`.
SolarDay SolarDayOf(OleDate monthStart, OleDate nextMonthStart, OleDate moment, const SunTimesOfDate& sunTimes);

// The month of the year that begins at `start` and ends at `yearEnd` (the
// next year's start, which closes month 12) that holds `moment`.
struct SolarMonth {
  int index = 0;  // 1 to 12; 0 when no month holds the moment
  std::string name;
  OleDate start;
  SolarDay day;
};
SolarMonth SolarMonths(const YearStart& start, OleDate yearEnd, OleDate moment, const SunTimesOfDate& sunTimes);

// The Kaliyuga year of a moment: the Gregorian year plus 3101, counted from
// the anchor of its sixty-year period; 0 before 1866.
std::int32_t KaliyugaYearOf(OleDate moment);

// The day count the summary keeps beside the solar date. It counts to `today`,
// the day the program runs, not to the birth.
std::int32_t KaliDays(OleDate today);

// What the birth summary shows of the solar calendar.
struct SolarDate {
  bool found = false;        // the moment lies in a year whose start is known
  std::int16_t day = 0;      // day of the solar month, 1 upward
  std::string monthName;     // kept from the previous date when not found
  OleDate monthStart;
  std::int16_t monthLength = 0;
  std::string yearName;
  std::int32_t kaliyugaYear = 0;
  std::int32_t kaliDays = 0;
};

// "day  /  month  /  year", as the summary shows it; empty when not found.
std::string SolarDateText(const SolarDate& date);

// The solar calendar of one run. It keeps the month name of the last date
// found, which a moment outside every known year leaves in place.
class SolarCalendar {
 public:
  explicit SolarCalendar(const KaliyugaYearTable& table) : table_(table) {}

  // The solar date and Kaliyuga year of `moment`, by the sunrises of the
  // place that `sunTimes` gives. `today` feeds KaliDays only.
  SolarDate SolarDateOf(OleDate moment, OleDate today, const SunTimesOfDate& sunTimes);

 private:
  const KaliyugaYearTable& table_;
  std::string monthName_;
};

}  // namespace kelvaro
