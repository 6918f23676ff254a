#include "panchanga/solar_year_details.h"

#include "panchanga/solar_year.h"

namespace kelvaro {

void ClsSolarYear::FindSolarYear() {
  const auto row = table_->Row(KaliyugaYearNumber(EnglishYear));
  if (!row) return;
  yearname = row->yearname;
  YearVal = row->YearVal;
  YearRemain = row->YearRemain;
  YearDay = row->DayVal;
}

}  // namespace kelvaro
