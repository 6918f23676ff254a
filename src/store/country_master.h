#pragma once
// The country master: rows of Country_Master, added and renamed, never
// deleted. A new country has an empty TimeZoneID list until a zone is added
// to it (time_zone_master.h).
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "store/database.h"
#include "store/field_message.h"
#include "store/search_result.h"

namespace kelvaro::store {

struct CountryRow {
  std::int64_t id = 0;
  std::string name;
  std::string timeZoneIds;  // "12,45": SNo values of TimeZone
};

// Every country, ordered by name (without regard to case).
std::vector<CountryRow> ListCountries(Database& db);
// Every country in the table's own order, by CountryID: the birth form's list.
std::vector<CountryRow> CountriesInTableOrder(Database& db);
std::optional<CountryRow> CountryById(Database& db, std::int64_t id);
// The country of that name, compared without regard to case.
std::optional<CountryRow> CountryByName(Database& db, std::string_view name);

// The first country whose name starts with the trimmed text, both
// lower-cased; otherwise "No Such Country Exists".
SearchResult SearchCountries(const std::vector<CountryRow>& countries, std::string_view text);

// Adds a country with an empty zone list. Fails, in this order, with "Enter a
// Country Name" and "Country Name already Exists" (field txtAddName).
// Success message: "Details Saved".
WriteResult AddCountry(Database& db, std::string_view name);

// Renames the country `id`. Fails, in this order, with "Enter the New Name",
// "No Modifications Done" (the trimmed name is the present one, exactly) and
// "Country Name already Exists" (field txtEdit). Success message:
// "Successfully Updated". An id with no row gives a StoreError.
WriteResult RenameCountry(Database& db, std::int64_t id, std::string_view newName);

}  // namespace kelvaro::store
