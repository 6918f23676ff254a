#pragma once
// The city master: rows of City_Master, added, edited and found. A city name
// is unique within its country only; the same name may stand in two countries.
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "store/database.h"
#include "store/field_message.h"
#include "store/search_result.h"

namespace kelvaro::store {

struct CityRow {
  std::int64_t id = 0;
  std::string name;
  std::int64_t countryId = 0;
  double latDeg = 0.0;
  std::string latNS;
  double latMin = 0.0;
  double lonDeg = 0.0;
  std::string lonEW;
  double lonMin = 0.0;
  std::string zoneId;  // IANA name; empty for a city added without one
};

// The cities of a country, ordered by name (without regard to case).
std::vector<CityRow> CitiesOf(Database& db, std::int64_t countryId);
std::optional<CityRow> CityById(Database& db, std::int64_t id);
// The city of that name in that country (the name compared without regard to
// case); the country is part of the lookup so that two same-named cities of
// different countries are told apart.
std::optional<CityRow> CityByName(Database& db, std::int64_t countryId, std::string_view name);

// "17 N 20": degree, letter, minute, as the birth form shows a place.
std::string PlaceText(double degree, std::string_view letter, double minute);
// "17 20 N, 78 30 E".
std::string CoordinatesText(const CityRow& city);

// The fields of the add or edit tab, as typed. countryId 0: no country chosen.
struct CityInput {
  std::int64_t countryId = 0;
  std::string city;
  std::string latDeg;
  std::string latMin;
  std::string latNS;  // "N" or "S"; anything else counts as not chosen
  std::string lonDeg;
  std::string lonMin;
  std::string lonEW;  // "E" or "W"
};

// Tests in this order, the first failure ending the add: "Select Country ",
// "Enter City ", "Enter Lat Deg", "Enter Lat Min", "Add Lat Zone",
// "Enter Lon Deg", "Enter Lon Min", "Add Lon Zone", then "Enter Number " for
// each of the four numbers in turn, then "City Details Already Exists" for a
// name the country already has. Success message: "City Details Saved".
WriteResult AddCity(Database& db, const CityInput& input);

// Tests in this order: "Select Country ", "Select CIty" (cityId 0),
// "Enter City ", "Enter Lat Min", "Add Lat Zone", "Enter Lon Deg",
// "Enter Lon Min", "Add Lon Zone", "Enter Number " for the four numbers. There
// is no test of an empty latitude degree here (unlike the add): it fails only
// as "Enter Number ". The name and the six place columns are rewritten; the
// country stays. Success message: "Successfully Updated". An id with no row
// gives a StoreError.
WriteResult EditCity(Database& db, std::int64_t cityId, const CityInput& input);

// The first city whose name, cut to the length of the trimmed text and
// lower-cased, equals that text lower-cased. An empty text gives "Enter City
// Name to Search"; no match "No matches found for the City Name entered".
SearchResult FindCityInList(const std::vector<CityRow>& cities, std::string_view text);

}  // namespace kelvaro::store
