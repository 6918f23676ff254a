#pragma once
// Test helpers for the calendars: a KaliyugaYearTable held in a map, the sixty
// rows of the seed file data/kaliyuga_years.csv, and a day with its sunrise at
// 06:00 and its sunset at 18:30.
#include <fstream>
#include <map>
#include <optional>
#include <sstream>
#include <string>

#include "panchanga/kaliyuga_year_table.h"
#include "panchanga/sun_times.h"

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
  std::ifstream in(std::string(KELVARO_DATA_DIR) + "/kaliyuga_years.csv");
  std::string line;
  std::getline(in, line);
  while (std::getline(in, line)) {
    std::istringstream f(line);
    std::string yearno, name, yearVal, dayVal, remain;
    std::getline(f, yearno, ',');
    std::getline(f, name, ',');
    std::getline(f, yearVal, ',');
    std::getline(f, dayVal, ',');
    std::getline(f, remain, ',');
    t.rows[std::stoi(yearno)] = {name, std::stod(yearVal), static_cast<std::int16_t>(std::stoi(dayVal)),
                                 std::stod(remain)};
  }
  return t;
}

inline SunTimes FixedDay(OleDate date) {
  return {OleDate::FromParts(date.Year(), date.Month(), date.Day(), 6, 0),
          OleDate::FromParts(date.Year(), date.Month(), date.Day(), 18, 30)};
}

}  // namespace kelvaro::testing
