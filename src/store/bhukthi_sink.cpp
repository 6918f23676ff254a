#include "store/bhukthi_sink.h"

#include "store/calculation_tables.h"

namespace kelvaro::store {

void DatabaseBhukthiSink::Replace(const std::string& userId, const std::vector<kelvaro::BhukthiRow>& rows) {
  std::vector<BhukthiRow> stored;
  stored.reserve(rows.size());
  for (const kelvaro::BhukthiRow& r : rows) stored.push_back({r.dasaName, r.bhukthiName, r.start, r.end, r.age});
  ReplaceBhukthiRows(db_, userId, stored);
}

}  // namespace kelvaro::store
