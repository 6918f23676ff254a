#pragma once
// StoreError: a failure of the database file itself (missing, foreign, damaged,
// locked, read-only) or of a write that was rolled back. The message names the
// file and says why, in words a user can act on. Validation failures are not
// errors: they come back as a FieldMessage.
#include <stdexcept>
#include <string>

namespace kelvaro::store {

class StoreError : public std::runtime_error {
 public:
  explicit StoreError(const std::string& message) : std::runtime_error(message) {}
};

}  // namespace kelvaro::store
