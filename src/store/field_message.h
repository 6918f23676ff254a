#pragma once
// What a master, chart or preference operation answers: the first failing
// validation message with the field that takes the focus, or success with the
// row written and the messages the window shows.
#include <cstdint>
#include <optional>
#include <string>

namespace kelvaro::store {

struct FieldMessage {
  std::string field;    // control that gets the focus; empty when no field does
  std::string message;  // shown exactly as written, trailing blanks included
  friend bool operator==(const FieldMessage&, const FieldMessage&) = default;
};

struct WriteResult {
  std::optional<FieldMessage> failure;  // set: nothing was written
  std::int64_t id = 0;                  // key of the row written
  std::string notice;                   // said before the write (the zone's "saved as" text)
  std::string message;                  // said after the write ("Details Saved")

  bool ok() const { return !failure.has_value(); }
  static WriteResult Fail(std::string field, std::string message) {
    WriteResult r;
    r.failure = FieldMessage{std::move(field), std::move(message)};
    return r;
  }
};

}  // namespace kelvaro::store
