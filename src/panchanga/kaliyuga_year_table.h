#pragma once
// The sixty rows of KaliyugaYearDetails as the calculation reads them. This
// header stands alone (no library behind it) so that the store can implement
// the interface without linking the calendars.
#include <cstdint>
#include <optional>
#include <string>

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

}  // namespace kelvaro
