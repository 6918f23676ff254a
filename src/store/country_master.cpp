#include "store/country_master.h"

#include "store/store_error.h"
#include "store/text_rules.h"

namespace kelvaro::store {

namespace {

constexpr const char* kColumns = "SELECT CountryID, CountryName, TimeZoneID FROM Country_Master ";

CountryRow RowOf(SQLite::Statement& q) {
  return {q.getColumn(0).getInt64(), q.getColumn(1).getString(), q.getColumn(2).getString()};
}

// CountryName compares without regard to case (its column collation), as the
// duplicate test of the master expects.
bool NameTaken(SQLite::Database& c, const std::string& name) {
  SQLite::Statement q(c, "SELECT 1 FROM Country_Master WHERE CountryName = ? LIMIT 1");
  q.bind(1, name);
  return q.executeStep();
}

}  // namespace

std::vector<CountryRow> ListCountries(Database& db) {
  return db.Read("list the countries", [](SQLite::Database& c) {
    std::vector<CountryRow> rows;
    SQLite::Statement q(c, std::string(kColumns) + "ORDER BY CountryName, CountryID");
    while (q.executeStep()) rows.push_back(RowOf(q));
    return rows;
  });
}

std::vector<CountryRow> CountriesInTableOrder(Database& db) {
  return db.Read("list the countries", [](SQLite::Database& c) {
    std::vector<CountryRow> rows;
    SQLite::Statement q(c, std::string(kColumns) + "ORDER BY CountryID");
    while (q.executeStep()) rows.push_back(RowOf(q));
    return rows;
  });
}

std::optional<CountryRow> CountryById(Database& db, std::int64_t id) {
  return db.Read("read the country", [&](SQLite::Database& c) -> std::optional<CountryRow> {
    SQLite::Statement q(c, std::string(kColumns) + "WHERE CountryID = ?");
    q.bind(1, id);
    if (!q.executeStep()) return std::nullopt;
    return RowOf(q);
  });
}

std::optional<CountryRow> CountryByName(Database& db, std::string_view name) {
  return db.Read("read the country", [&](SQLite::Database& c) -> std::optional<CountryRow> {
    SQLite::Statement q(c, std::string(kColumns) + "WHERE CountryName = ? ORDER BY CountryID LIMIT 1");
    q.bind(1, Trim(name));
    if (!q.executeStep()) return std::nullopt;
    return RowOf(q);
  });
}

SearchResult SearchCountries(const std::vector<CountryRow>& countries, std::string_view text) {
  const std::string wanted = LowerAscii(Trim(text));
  for (std::size_t i = 0; i < countries.size(); ++i) {
    if (LowerAscii(countries[i].name).compare(0, wanted.size(), wanted) == 0) return {i, std::nullopt};
  }
  return {std::nullopt, FieldMessage{"", "No Such Country Exists"}};
}

WriteResult AddCountry(Database& db, std::string_view text) {
  const std::string name = Trim(text);
  if (name.empty()) return WriteResult::Fail("txtAddName", "Enter a Country Name");
  WriteResult result;
  db.Write("add the country", [&](SQLite::Database& c) {
    if (NameTaken(c, name)) {
      result = WriteResult::Fail("txtAddName", "Country Name already Exists");
      return;
    }
    SQLite::Statement insert(c, "INSERT INTO Country_Master (CountryName, TimeZoneID) VALUES (?, '')");
    insert.bind(1, name);
    insert.exec();
    result.id = c.getLastInsertRowid();
    result.message = "Details Saved";
  });
  return result;
}

WriteResult RenameCountry(Database& db, std::int64_t id, std::string_view text) {
  const std::string name = Trim(text);
  if (name.empty()) return WriteResult::Fail("txtEdit", "Enter the New Name");
  WriteResult result;
  db.Write("rename the country", [&](SQLite::Database& c) {
    SQLite::Statement current(c, "SELECT CountryName FROM Country_Master WHERE CountryID = ?");
    current.bind(1, id);
    if (!current.executeStep()) {
      throw StoreError("Cannot rename country " + std::to_string(id) + " in \"" + db.Path().string() +
                       "\": there is no such country");
    }
    // The present name is compared exactly: a change of case alone is a
    // modification, which the duplicate test then refuses.
    if (current.getColumn(0).getString() == name) {
      result = WriteResult::Fail("txtEdit", "No Modifications Done");
      return;
    }
    if (NameTaken(c, name)) {
      result = WriteResult::Fail("txtEdit", "Country Name already Exists");
      return;
    }
    SQLite::Statement update(c, "UPDATE Country_Master SET CountryName = ? WHERE CountryID = ?");
    update.bind(1, name);
    update.bind(2, id);
    update.exec();
    result.id = id;
    result.message = "Successfully Updated";
  });
  return result;
}

}  // namespace kelvaro::store
