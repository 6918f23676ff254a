#pragma once
// The work table tempBhukthi as the dasa step writes it.
#include <string>
#include <vector>

#include "analysis/bhukthi_sink.h"
#include "store/database.h"

namespace kelvaro::store {

class DatabaseBhukthiSink : public kelvaro::BhukthiSink {
 public:
  // The database must outlive the sink.
  explicit DatabaseBhukthiSink(Database& db) : db_(db) {}

  // Deletes the user id's rows and inserts `rows` in their order, in one
  // transaction: a failure leaves the table as it was.
  void Replace(const std::string& userId, const std::vector<kelvaro::BhukthiRow>& rows) override;

 private:
  Database& db_;
};

}  // namespace kelvaro::store
