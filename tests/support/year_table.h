#pragma once
// Test helpers for the calendars: a KaliyugaYearTable held in a map, the sixty
// rows of the seed file data/kaliyuga_years.csv, and a day with its sunrise at
// 06:00 and its sunset at 18:30.
#include <map>
#include <optional>
#include <string>

#include "panchanga/kaliyuga_year_table.h"
#include "panchanga/sun_times.h"
#include "support/test_data.h"

namespace kelvaro::testing {

class MapYearTable : public KaliyugaYearTable {
 public:
  std::map<int, KaliyugaYearValues> rows;
  std::optional<KaliyugaYearValues> Row(int yearno) const override {
    const auto it = rows.find(yearno);
    if (it == rows.end()) return std::nullopt;
    return it->second;
  }
};

// Reads the seed file; the test target defines KELVARO_DATA_DIR.
inline MapYearTable SeedYearTable() {
  MapYearTable t;
  // Yearno, yearname, YearVal, DayVal, YearRemain
  for (const auto& r : SeedCsvRows("kaliyuga_years.csv")) {
    t.rows[std::stoi(r.at(0))] = {r.at(1), std::stod(r.at(2)), static_cast<std::int16_t>(std::stoi(r.at(3))),
                                  std::stod(r.at(4))};
  }
  return t;
}

inline SunTimes FixedDay(OleDate date) {
  return {OleDate::FromParts(date.Year(), date.Month(), date.Day(), 6, 0),
          OleDate::FromParts(date.Year(), date.Month(), date.Day(), 18, 30)};
}

}  // namespace kelvaro::testing
