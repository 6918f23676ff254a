#pragma once
// The sixty Kaliyuga years of the database, as the calendars read them.
#include <optional>

#include "panchanga/kaliyuga_year_table.h"
#include "store/database.h"

namespace kelvaro::store {

class DatabaseKaliyugaYearTable : public kelvaro::KaliyugaYearTable {
 public:
  // The database must outlive the table.
  explicit DatabaseKaliyugaYearTable(Database& db) : db_(db) {}

  // The row of KaliyugaYearDetails with that Yearno; nothing when there is
  // none. A DayVal that does not fit 16 bits raises CalculationError.
  std::optional<kelvaro::KaliyugaYearValues> Row(int yearno) const override;

 private:
  Database& db_;
};

}  // namespace kelvaro::store
