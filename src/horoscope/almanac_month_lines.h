#pragma once
// The line of the month at a glance for one day, shared by the Daily
// Almanac window and `kelvaro-cli almanac --format pdf`.
#include "common/ole_date.h"
#include "horoscope/daily_almanac.h"
#include "report/almanac_month_sheet.h"

namespace kelvaro {

// The day's tithi, star and yoga at sunrise with the times they end; a
// kshaya tithi after the one at sunrise stands beside it ("A / B").
AlmanacMonthLine AlmanacMonthLineOf(OleDate day, const DailyAlmanac& almanac);

}  // namespace kelvaro
