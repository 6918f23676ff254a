#include "store/kaliyuga_year_table.h"

#include "common/number_rules.h"
#include "store/calculation_tables.h"

namespace kelvaro::store {

std::optional<kelvaro::KaliyugaYearValues> DatabaseKaliyugaYearTable::Row(int yearno) const {
  const auto row = KaliyugaYear(db_, yearno);
  if (!row) return std::nullopt;
  return kelvaro::KaliyugaYearValues{row->yearname, row->yearVal, CInt(static_cast<double>(row->dayVal)),
                                     row->yearRemain};
}

}  // namespace kelvaro::store
