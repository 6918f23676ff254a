#pragma once
// The start of the solar year (the Sun's entry into sidereal Aries, in
// mid-April), found the way the almanac finds it: from the sixty-year table of
// KaliyugaYearDetails, a correction by sixty-year period, and the sunrise of
// the day.
#include <cstdint>
#include <functional>
#include <optional>
#include <string>

#include "common/ole_date.h"

namespace kelvaro {

// One row of KaliyugaYearDetails.
struct KaliyugaYearValues {
  std::string yearname;
  double YearVal = 0;        // read and kept, not used in the calculation
  std::int16_t DayVal = 0;   // weekday value of the year's start
  double YearRemain = 0;     // fraction of a day at the year's start
};

// Where the calculation reads the sixty rows; the store implements it, tests
// use a small table.
class KaliyugaYearTable {
 public:
  virtual ~KaliyugaYearTable() = default;
  // The row of Yearno 1 to 60; nothing for any other number.
  virtual std::optional<KaliyugaYearValues> Row(int yearno) const = 0;
};

// Sunrise and sunset of a civil date at the place in force.
struct SunTimes {
  OleDate sunrise;
  OleDate sunset;
};
using SunTimesOfDate = std::function<SunTimes(OleDate date)>;

// "Sunday" for 1 on to "Saturday" for 7; 7 is taken away while the number is
// 8 or more. Numbers below 1 have no name.
std::string WeekdayNameOf(int number);

// The Yearno of a year: the year minus 1986, less 60 once if above 60, then
// raised by 60 while below 0; 0 becomes 60. Above 2106 it passes 60 and so
// names no row.
int KaliyugaYearNumber(int year);

// The year start of `year`: the moment of the sunrise on which the year
// begins. Nothing for a year before 1866 (no correction), a year with no row,
// or a weekday that none of the candidate dates has.
std::optional<OleDate> FindYearStart(int year, const KaliyugaYearTable& table, const SunTimesOfDate& sunTimes);

}  // namespace kelvaro
