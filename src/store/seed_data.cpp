// The seed data of a new database file, read from the seed files compiled in
// (data/*.csv; data/README.md says where each comes from).
#include <map>
#include <optional>
#include <set>
#include <sstream>
#include <string>
#include <vector>

#include "store/csv_table.h"
#include "store/schema.h"
#include "store/seed_files.h"
#include "store/store_error.h"
#include "store/text_rules.h"

namespace kelvaro::store {

namespace {

CsvTable RequiredTable(const char* name) {
  const auto bytes = SeedFile(name);
  if (!bytes) throw StoreError(std::string("the program was built without its seed file data/") + name);
  return CsvTable::Parse(*bytes, name);
}

std::optional<CsvTable> OptionalTable(const char* name) {
  const auto bytes = SeedFile(name);
  if (!bytes) return std::nullopt;
  return CsvTable::Parse(*bytes, name);
}

void RequireColumns(const CsvTable& table, std::string_view source, std::initializer_list<const char*> columns) {
  for (const char* column : columns) {
    if (!table.HasColumn(column)) throw StoreError(std::string(source) + ": no column \"" + column + "\"");
  }
}

void LoadPreference(SQLite::Database& db) {
  const CsvTable t = RequiredTable("preference.csv");
  RequireColumns(t, "preference.csv",
                 {"PreID", "Ayanamsa", "Bhava", "DayInYear", "ChartStyle", "PreferLanguage", "CustomYear", "CustomProgress"});
  if (t.RowCount() != 1) throw StoreError("preference.csv must hold exactly one row");
  SQLite::Statement insert(db,
                           "INSERT INTO Preference (PreID, Ayanamsa, Bhava, DayInYear, ChartStyle, PreferLanguage, "
                           "CustomYear, CustomProgress) VALUES (?, ?, ?, ?, ?, ?, ?, ?)");
  insert.bind(1, t.Cell(0, "PreID"));
  insert.bind(2, t.Cell(0, "Ayanamsa"));
  insert.bind(3, t.Cell(0, "Bhava"));
  insert.bind(4, t.Number(0, "DayInYear"));
  insert.bind(5, t.Cell(0, "ChartStyle"));
  insert.bind(6, t.Cell(0, "PreferLanguage"));
  insert.bind(7, t.Number(0, "CustomYear"));
  insert.bind(8, t.Number(0, "CustomProgress"));
  insert.exec();
}

struct Places {
  std::map<std::string, std::int64_t> countryOfIso;   // ISO code -> CountryID
  std::map<std::int64_t, std::vector<std::int64_t>> zonesOfCountry;
  std::set<std::pair<std::int64_t, std::string>> cities;  // CountryID, lower-cased name
};

void LoadCountries(SQLite::Database& db, Places& places) {
  const CsvTable t = RequiredTable("countries.csv");
  RequireColumns(t, "countries.csv", {"iso", "name"});
  SQLite::Statement insert(db, "INSERT INTO Country_Master (CountryName, TimeZoneID) VALUES (?, '')");
  for (std::size_t r = 0; r < t.RowCount(); ++r) {
    insert.reset();
    insert.bind(1, t.Cell(r, "name"));
    insert.exec();
    if (!places.countryOfIso.emplace(t.Cell(r, "iso"), db.getLastInsertRowid()).second) {
      throw StoreError(t.Where(r) + ": country code " + t.Cell(r, "iso") + " appears twice");
    }
  }
}

void LoadZones(SQLite::Database& db, Places& places) {
  const CsvTable t = RequiredTable("time_zones.csv");
  RequireColumns(t, "time_zones.csv", {"zone", "countries", "TimeDifference", "TimeZone"});
  SQLite::Statement insert(db, "INSERT INTO TimeZone (Place, TimeDifference, TimeZone) VALUES (?, ?, ?)");
  for (std::size_t r = 0; r < t.RowCount(); ++r) {
    insert.reset();
    insert.bind(1, t.Cell(r, "zone"));
    insert.bind(2, t.Number(r, "TimeDifference"));
    insert.bind(3, t.Cell(r, "TimeZone"));
    insert.exec();
    const std::int64_t sno = db.getLastInsertRowid();
    std::istringstream codes(t.Cell(r, "countries"));
    for (std::string code; codes >> code;) {
      const auto country = places.countryOfIso.find(code);
      if (country == places.countryOfIso.end()) throw StoreError(t.Where(r) + ": unknown country code " + code);
      places.zonesOfCountry[country->second].push_back(sno);
    }
  }
  SQLite::Statement update(db, "UPDATE Country_Master SET TimeZoneID = ? WHERE CountryID = ?");
  for (const auto& [countryId, zones] : places.zonesOfCountry) {
    std::string list;
    for (std::int64_t sno : zones) list += (list.empty() ? "" : ",") + std::to_string(sno);
    update.reset();
    update.bind(1, list);
    update.bind(2, countryId);
    update.exec();
  }
}

// One file of cities; a city already present for its country is kept as it is.
// The zone column serves the data's own checks: City_Master holds no zone.
void LoadCities(SQLite::Database& db, Places& places, const CsvTable& t, const std::string& source) {
  RequireColumns(t, source.c_str(),
                 {"iso", "city", "lat_deg", "lat_min", "lat_ns", "lon_deg", "lon_min", "lon_ew", "zone"});
  SQLite::Statement insert(db,
                           "INSERT INTO City_Master (CityName, CountryID, LatitudeDegree, Latitude_NS, LatitudeMinute, "
                           "LongitudeDegree, Longitude_EW, LongitudeMinute) VALUES (?, ?, ?, ?, ?, ?, ?, ?)");
  for (std::size_t r = 0; r < t.RowCount(); ++r) {
    const auto country = places.countryOfIso.find(Trim(t.Cell(r, "iso")));
    if (country == places.countryOfIso.end()) throw StoreError(t.Where(r) + ": unknown country code " + t.Cell(r, "iso"));
    const std::string city = Trim(t.Cell(r, "city"));
    if (city.empty()) throw StoreError(t.Where(r) + ": no city name");
    if (!places.cities.emplace(country->second, LowerAscii(city)).second) continue;
    insert.reset();
    insert.bind(1, city);
    insert.bind(2, country->second);
    insert.bind(3, static_cast<double>(t.WholeNumber(r, "lat_deg")));
    insert.bind(4, Trim(t.Cell(r, "lat_ns")));
    insert.bind(5, static_cast<double>(t.WholeNumber(r, "lat_min")));
    insert.bind(6, static_cast<double>(t.WholeNumber(r, "lon_deg")));
    insert.bind(7, Trim(t.Cell(r, "lon_ew")));
    insert.bind(8, static_cast<double>(t.WholeNumber(r, "lon_min")));
    insert.exec();
  }
}

void LoadKaliyugaYears(SQLite::Database& db) {
  const CsvTable t = RequiredTable("kaliyuga_years.csv");
  RequireColumns(t, "kaliyuga_years.csv", {"Yearno", "yearname", "YearVal", "DayVal", "YearRemain"});
  SQLite::Statement insert(
      db, "INSERT INTO KaliyugaYearDetails (Yearno, yearname, YearVal, DayVal, YearRemain) VALUES (?, ?, ?, ?, ?)");
  for (std::size_t r = 0; r < t.RowCount(); ++r) {
    insert.reset();
    insert.bind(1, static_cast<std::int64_t>(t.WholeNumber(r, "Yearno")));
    insert.bind(2, t.Cell(r, "yearname"));
    insert.bind(3, t.Number(r, "YearVal"));
    insert.bind(4, static_cast<std::int64_t>(t.WholeNumber(r, "DayVal")));
    insert.bind(5, t.Number(r, "YearRemain"));
    insert.exec();
  }
}

void LoadChartsMaster(SQLite::Database& db) {
  const auto t = OptionalTable("chartsmaster.csv");
  if (!t) return;
  RequireColumns(*t, "chartsmaster.csv", {"chartname", "RasiHouse", "startDegree", "EndDegree", "HouseNumber"});
  SQLite::Statement insert(
      db, "INSERT INTO chartsmaster (chartname, RasiHouse, startDegree, EndDegree, HouseNumber) VALUES (?, ?, ?, ?, ?)");
  for (std::size_t r = 0; r < t->RowCount(); ++r) {
    insert.reset();
    insert.bind(1, Trim(t->Cell(r, "chartname")));
    insert.bind(2, static_cast<std::int64_t>(t->WholeNumber(r, "RasiHouse")));
    insert.bind(3, t->Number(r, "startDegree"));
    insert.bind(4, t->Number(r, "EndDegree"));
    insert.bind(5, static_cast<std::int64_t>(t->WholeNumber(r, "HouseNumber")));
    insert.exec();
  }
}

}  // namespace

void LoadSeedData(SQLite::Database& db) {
  LoadPreference(db);
  Places places;
  LoadCountries(db, places);
  LoadZones(db, places);
  // The sample chart's city first, then the principal city of each zone, then
  // the curated list: the first row of a name in a country wins.
  LoadCities(db, places, RequiredTable("sample_places.csv"), "sample_places.csv");
  LoadCities(db, places, RequiredTable("zone_cities.csv"), "zone_cities.csv");
  if (auto curated = OptionalTable("cities_curated.csv")) LoadCities(db, places, *curated, "cities_curated.csv");
  LoadKaliyugaYears(db);
  LoadChartsMaster(db);
  SQLite::Statement sandhi(db, "INSERT INTO tempdasasandhi (Sno) VALUES (1)");
  sandhi.exec();
}

}  // namespace kelvaro::store
