#pragma once
// The owner's letterhead: zero or one row of PersonalDetails, printed on the
// report's first page.
#include <optional>
#include <string>
#include <string_view>

#include "store/database.h"
#include "store/field_message.h"

namespace kelvaro::store {

struct PersonalDetails {
  std::string name;
  std::string address;
  std::string address2;
  std::string city;
  std::string country;
  std::string zipcode;
  std::string phone;
  std::string email;
  friend bool operator==(const PersonalDetails&, const PersonalDetails&) = default;
};

// The name shown when no details were ever saved.
inline constexpr std::string_view kDefaultOwnerName = "Kelvaro Technologies Pvt Ltd";

std::optional<PersonalDetails> ReadPersonalDetails(Database& db);
// The details, or the default name alone when there is no row.
PersonalDetails LetterheadOf(Database& db);

// "&New": removes the row.
void ClearPersonalDetails(Database& db);
// "&Save": replaces the row, so the table never holds more than one.
// Message "Details Saved".
WriteResult SavePersonalDetails(Database& db, const PersonalDetails& details);

}  // namespace kelvaro::store
