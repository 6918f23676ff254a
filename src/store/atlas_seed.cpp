// Schema step 2: the world atlas (data/atlas.csv, compiled in compressed) and
// the zone of each city. The cities already in a file keep their rows and
// numbers; they only gain their zone where the seed data names one.
#include <charconv>
#include <deque>
#include <map>
#include <string_view>
#include <vector>
#include <string>

#include "store/csv_table.h"
#include "store/gunzip.h"
#include "store/schema.h"
#include "store/seed_files.h"
#include "store/store_error.h"
#include "store/text_rules.h"

namespace kelvaro::store {

namespace {

constexpr const char* kVersion2 = R"sql(
ALTER TABLE City_Master ADD COLUMN ZoneID TEXT;

CREATE TABLE Atlas (
  PlaceID   INTEGER PRIMARY KEY AUTOINCREMENT,
  PlaceName TEXT COLLATE NOCASE NOT NULL,
  Region    TEXT COLLATE NOCASE NOT NULL DEFAULT '',
  CountryID INTEGER NOT NULL,
  Latitude  REAL NOT NULL CHECK (Latitude BETWEEN -90 AND 90),
  Longitude REAL NOT NULL CHECK (Longitude BETWEEN -180 AND 180),
  ZoneID    TEXT NOT NULL,
  Population INTEGER NOT NULL DEFAULT 0
);
)sql";

// Built after the rows are in, which is several times faster than keeping it
// up to date row by row.
constexpr const char* kAtlasKey = "CREATE UNIQUE INDEX Atlas_Place ON Atlas (CountryID, PlaceName, Region)";

CsvTable SeedTable(const char* name) {
  const auto bytes = SeedFile(name);
  if (!bytes) throw StoreError(std::string("the program was built without its seed file data/") + name);
  return CsvTable::Parse(*bytes, name);
}

// The CountryID of each ISO code, by the country's name in countries.csv; a
// country that a file no longer holds under that name is added again.
std::map<std::string, std::int64_t> CountryIds(SQLite::Database& db) {
  const CsvTable t = SeedTable("countries.csv");
  SQLite::Statement find(db, "SELECT min(CountryID) FROM Country_Master WHERE CountryName = ?");
  SQLite::Statement add(db, "INSERT INTO Country_Master (CountryName, TimeZoneID) VALUES (?, '')");
  std::map<std::string, std::int64_t> ids;
  for (std::size_t r = 0; r < t.RowCount(); ++r) {
    const std::string& name = t.Cell(r, "name");
    find.reset();
    find.bind(1, name);
    find.executeStep();
    if (find.getColumn(0).isNull()) {
      add.reset();
      add.bind(1, name);
      add.exec();
      ids[t.Cell(r, "iso")] = db.getLastInsertRowid();
    } else {
      ids[t.Cell(r, "iso")] = find.getColumn(0).getInt64();
    }
  }
  return ids;
}

void SetCityZones(SQLite::Database& db, const std::map<std::string, std::int64_t>& countries) {
  SQLite::Statement update(db,
                           "UPDATE City_Master SET ZoneID = ? WHERE ZoneID IS NULL AND CityName = ? AND CountryID = ?");
  for (const char* file : {"sample_places.csv", "zone_cities.csv", "cities_curated.csv"}) {
    if (!SeedFile(file)) continue;
    const CsvTable t = SeedTable(file);
    for (std::size_t r = 0; r < t.RowCount(); ++r) {
      const auto country = countries.find(Trim(t.Cell(r, "iso")));
      if (country == countries.end()) continue;
      update.reset();
      update.bind(1, Trim(t.Cell(r, "zone")));
      update.bind(2, Trim(t.Cell(r, "city")));
      update.bind(3, country->second);
      update.exec();
    }
  }
}

// The fields of one CSV line starting at `at` (RFC 4180 quoting), into
// `fields`; moves `at` past the line. A field in quotes is unquoted into
// `scratch` (a deque, whose elements never move), so the views stay valid
// until the next call.
bool NextRow(std::string_view text, std::size_t& at, std::vector<std::string_view>& fields,
             std::deque<std::string>& scratch) {
  fields.clear();
  scratch.clear();
  if (at >= text.size()) return false;
  while (true) {
    if (at < text.size() && text[at] == '"') {
      std::string unquoted;
      for (++at; at < text.size(); ++at) {
        if (text[at] == '"') {
          if (at + 1 < text.size() && text[at + 1] == '"') {
            unquoted += '"';
            ++at;
          } else {
            break;
          }
        } else {
          unquoted += text[at];
        }
      }
      if (at >= text.size()) throw StoreError("atlas.csv: a quote is not closed");
      ++at;
      scratch.push_back(std::move(unquoted));
      fields.emplace_back(scratch.back());
    } else {
      const std::size_t end = text.find_first_of(",\n", at);
      const std::size_t stop = end == std::string_view::npos ? text.size() : end;
      std::string_view field = text.substr(at, stop - at);
      if (!field.empty() && field.back() == '\r') field.remove_suffix(1);
      fields.push_back(field);
      at = stop;
    }
    if (at >= text.size() || text[at] == '\n') {
      ++at;
      return true;
    }
    ++at;  // the comma
  }
}

double AtlasNumber(std::string_view field, std::size_t line) {
  double value = 0;
  const auto r = std::from_chars(field.data(), field.data() + field.size(), value);
  if (r.ec != std::errc() || r.ptr != field.data() + field.size()) {
    throw StoreError("atlas.csv line " + std::to_string(line) + ": \"" + std::string(field) + "\" is not a number");
  }
  return value;
}

// The atlas is read with a parser of its own rather than CsvTable: at some
// fifty thousand rows, a table of strings would double the time a new file
// takes to make.
void LoadAtlas(SQLite::Database& db, const std::map<std::string, std::int64_t>& countries) {
  const auto compressed = SeedFile("atlas.csv.gz");
  if (!compressed) return;  // a build without the atlas: the step adds the empty table
  const std::string text = Gunzip(*compressed, "atlas.csv");
  constexpr std::string_view kHeader = "iso,name,region,lat,lon,zone,population";
  std::size_t at = 0;
  std::vector<std::string_view> f;
  std::deque<std::string> scratch;
  if (!NextRow(text, at, f, scratch) || f.size() != 7 ||
      text.substr(0, kHeader.size()) != kHeader) {
    throw StoreError(std::string("atlas.csv: the header is not \"") + std::string(kHeader) + "\"");
  }
  SQLite::Statement insert(db,
                           "INSERT INTO Atlas (PlaceName, Region, CountryID, Latitude, Longitude, ZoneID, Population) "
                           "VALUES (?, ?, ?, ?, ?, ?, ?)");
  for (std::size_t line = 2; NextRow(text, at, f, scratch); ++line) {
    if (f.size() == 1 && f[0].empty()) continue;  // a blank line
    if (f.size() != 7) throw StoreError("atlas.csv line " + std::to_string(line) + ": expected 7 fields");
    const auto country = countries.find(std::string(f[0]));
    if (country == countries.end()) {
      throw StoreError("atlas.csv line " + std::to_string(line) + ": unknown country code " + std::string(f[0]));
    }
    insert.reset();
    insert.bind(1, std::string(f[1]));
    insert.bind(2, std::string(f[2]));
    insert.bind(3, country->second);
    insert.bind(4, AtlasNumber(f[3], line));
    insert.bind(5, AtlasNumber(f[4], line));
    insert.bind(6, std::string(f[5]));
    insert.bind(7, static_cast<std::int64_t>(AtlasNumber(f[6], line)));
    insert.exec();
  }
}

}  // namespace

void AddAtlasVersion2(SQLite::Database& db) {
  db.exec(kVersion2);
  const auto countries = CountryIds(db);
  SetCityZones(db, countries);
  LoadAtlas(db, countries);
  db.exec(kAtlasKey);
}

}  // namespace kelvaro::store
