#pragma once
// The start of the solar year (the Sun's entry into sidereal Aries, in
// mid-April), found the way the almanac finds it: from the sixty-year table of
// KaliyugaYearDetails, a correction by sixty-year period, and the sunrise of
// the day.
#include <optional>
#include <string>

#include "common/ole_date.h"
#include "panchanga/kaliyuga_year_table.h"
#include "panchanga/sun_times.h"

namespace kelvaro {

// "Sunday" for 1 on to "Saturday" for 7; 7 is taken away while the number is
// 8 or more. Numbers below 1 have no name.
std::string WeekdayNameOf(int number);

// The Yearno of a year: the year minus 1986, less 60 once if above 60, then
// raised by 60 while below 0; 0 becomes 60. Above 2106 it passes 60 and so
// names no row.
int KaliyugaYearNumber(int year);

// The yearname of the row of KaliyugaYearNumber(year); empty when there is no
// such row (a year after 2106).
std::string KaliyugaYearName(int year, const KaliyugaYearTable& table);

// The year start of `year`: the moment of the sunrise on which the year
// begins. Nothing for a year before 1866 (no correction), a year with no row,
// or a weekday that none of the candidate dates has.
std::optional<OleDate> FindYearStart(int year, const KaliyugaYearTable& table, const SunTimesOfDate& sunTimes);

// The year start and the fraction of a day that the months are laid out
// from: YearRemain plus the period's correction, reduced to its fractional
// part.
struct YearStart {
  OleDate moment;
  double fraction = 0;
};
std::optional<YearStart> FindYearStartAndFraction(int year, const KaliyugaYearTable& table,
                                                  const SunTimesOfDate& sunTimes);

}  // namespace kelvaro
