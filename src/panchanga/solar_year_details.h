#pragma once
// ClsSolarYear: the row of the sixty-year cycle for a Gregorian year, read
// from KaliyugaYearDetails: the year's name, its YearVal, YearRemain and the
// weekday value of its start (DayVal, kept here as YearDay).
//
// Usage: set EnglishYear, call FindSolarYear(), read the four results. The
// row is the year's Yearno (KaliyugaYearNumber): the year of that name begins
// in April of EnglishYear. A year with no row (after 2106) assigns nothing
// and the previous call's values stay.
#include <cstdint>
#include <string>

#include "panchanga/kaliyuga_year_table.h"

namespace kelvaro {

class ClsSolarYear {
 public:
  explicit ClsSolarYear(const KaliyugaYearTable& table) : table_(&table) {}

  std::int16_t EnglishYear = 0;
  std::string yearname;
  double YearVal = 0;
  double YearRemain = 0;
  std::int16_t YearDay = 0;

  void FindSolarYear();

 private:
  const KaliyugaYearTable* table_;
};

}  // namespace kelvaro
