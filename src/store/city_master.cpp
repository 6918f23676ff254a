#include "store/city_master.h"

#include "store/column_number.h"
#include "store/store_error.h"
#include "store/text_rules.h"

namespace kelvaro::store {

namespace {

constexpr const char* kColumns =
    "SELECT CityID, CityName, CountryID, LatitudeDegree, Latitude_NS, LatitudeMinute, LongitudeDegree, Longitude_EW, "
    "LongitudeMinute, ZoneID FROM City_Master ";

CityRow RowOf(SQLite::Statement& q) {
  CityRow r;
  r.id = q.getColumn(0).getInt64();
  r.name = q.getColumn(1).getString();
  r.countryId = q.getColumn(2).getInt64();
  r.latDeg = ColumnNumber(q.getColumn(3));
  r.latNS = q.getColumn(4).getString();
  r.latMin = ColumnNumber(q.getColumn(5));
  r.lonDeg = ColumnNumber(q.getColumn(6));
  r.lonEW = q.getColumn(7).getString();
  r.lonMin = ColumnNumber(q.getColumn(8));
  if (!q.getColumn(9).isNull()) r.zoneId = q.getColumn(9).getString();
  return r;
}

struct PlaceNumbers {
  double latDeg, latMin, lonDeg, lonMin;
};

// The "Enter Number " test of the four numbers, in the order of the fields.
std::optional<FieldMessage> NumbersOf(const CityInput& in, const char* const fields[4], PlaceNumbers& out) {
  const std::string* texts[4] = {&in.latDeg, &in.latMin, &in.lonDeg, &in.lonMin};
  double* values[4] = {&out.latDeg, &out.latMin, &out.lonDeg, &out.lonMin};
  for (int i = 0; i < 4; ++i) {
    const auto value = NumericValue(*texts[i]);
    if (!value) return FieldMessage{fields[i], "Enter Number "};
    *values[i] = *value;
  }
  // Beyond the master's own tests: no place lies past a pole or the date line,
  // and a minute stops below 60, so a slip of the keys is not stored as a city.
  const struct {
    double value, limit;
    const char* message;
  } ranges[4] = {{out.latDeg, 90, "Enter Lat Deg between 0 and 90"},
                 {out.latMin, 60, "Enter Lat Min between 0 and 59"},
                 {out.lonDeg, 180, "Enter Lon Deg between 0 and 180"},
                 {out.lonMin, 60, "Enter Lon Min between 0 and 59"}};
  for (int i = 0; i < 4; ++i) {
    const bool minute = i % 2 == 1;
    const bool beyond = ranges[i].value < 0 || (minute ? ranges[i].value >= 60 : ranges[i].value > ranges[i].limit);
    // 90 or 180 whole degrees take no minutes.
    const bool pastEnd = minute && ranges[i].value > 0 && ranges[i - 1].value == ranges[i - 1].limit;
    if (beyond || pastEnd) return FieldMessage{fields[i], ranges[i].message};
  }
  return std::nullopt;
}

void BindPlace(SQLite::Statement& s, int first, const CityInput& in, const PlaceNumbers& n) {
  s.bind(first, n.latDeg);
  s.bind(first + 1, in.latNS);
  s.bind(first + 2, n.latMin);
  s.bind(first + 3, n.lonDeg);
  s.bind(first + 4, in.lonEW);
  s.bind(first + 5, n.lonMin);
}

}  // namespace

std::vector<CityRow> CitiesOf(Database& db, std::int64_t countryId) {
  return db.Read("list the cities", [&](SQLite::Database& c) {
    std::vector<CityRow> rows;
    SQLite::Statement q(c, std::string(kColumns) + "WHERE CountryID = ? ORDER BY CityName, CityID");
    q.bind(1, countryId);
    while (q.executeStep()) rows.push_back(RowOf(q));
    return rows;
  });
}

std::optional<CityRow> CityById(Database& db, std::int64_t id) {
  return db.Read("read the city", [&](SQLite::Database& c) -> std::optional<CityRow> {
    SQLite::Statement q(c, std::string(kColumns) + "WHERE CityID = ?");
    q.bind(1, id);
    if (!q.executeStep()) return std::nullopt;
    return RowOf(q);
  });
}

std::optional<CityRow> CityByName(Database& db, std::int64_t countryId, std::string_view name) {
  return db.Read("read the city", [&](SQLite::Database& c) -> std::optional<CityRow> {
    SQLite::Statement q(c, std::string(kColumns) + "WHERE CountryID = ? AND CityName = ? ORDER BY CityID LIMIT 1");
    q.bind(1, countryId);
    q.bind(2, Trim(name));
    if (!q.executeStep()) return std::nullopt;
    return RowOf(q);
  });
}

std::string PlaceText(double degree, std::string_view letter, double minute) {
  return NumberText(degree) + " " + std::string(letter) + " " + NumberText(minute);
}

std::string CoordinatesText(const CityRow& city) {
  return NumberText(city.latDeg) + " " + NumberText(city.latMin) + " " + city.latNS + ", " + NumberText(city.lonDeg) +
         " " + NumberText(city.lonMin) + " " + city.lonEW;
}

WriteResult AddCity(Database& db, const CityInput& in) {
  if (in.countryId == 0) return WriteResult::Fail("cbAddCountry", "Select Country ");
  if (IsBlank(in.city)) return WriteResult::Fail("txtAddCity", "Enter City ");
  if (IsBlank(in.latDeg)) return WriteResult::Fail("txtAddLatDeg", "Enter Lat Deg");
  if (IsBlank(in.latMin)) return WriteResult::Fail("txtAddLAtMin", "Enter Lat Min");
  if (in.latNS != "N" && in.latNS != "S") return WriteResult::Fail("cbAddNS", "Add Lat Zone");
  if (IsBlank(in.lonDeg)) return WriteResult::Fail("txtAddLonDeg", "Enter Lon Deg");
  if (IsBlank(in.lonMin)) return WriteResult::Fail("txtAddLonMin", "Enter Lon Min");
  if (in.lonEW != "E" && in.lonEW != "W") return WriteResult::Fail("cbAddEW", "Add Lon Zone");
  static constexpr const char* kFields[4] = {"txtAddLatDeg", "txtAddLAtMin", "txtAddLonDeg", "txtAddLonMin"};
  PlaceNumbers numbers{};
  if (auto failure = NumbersOf(in, kFields, numbers)) return WriteResult{failure, 0, {}, {}};

  const std::string name = Trim(in.city);
  WriteResult result;
  db.Write("add the city", [&](SQLite::Database& c) {
    SQLite::Statement same(c, "SELECT 1 FROM City_Master WHERE CountryID = ? AND CityName = ? LIMIT 1");
    same.bind(1, in.countryId);
    same.bind(2, name);
    if (same.executeStep()) {
      result = WriteResult::Fail("txtAddCity", "City Details Already Exists");
      return;
    }
    SQLite::Statement insert(c,
                             "INSERT INTO City_Master (CityName, CountryID, LatitudeDegree, Latitude_NS, "
                             "LatitudeMinute, LongitudeDegree, Longitude_EW, LongitudeMinute) "
                             "VALUES (?, ?, ?, ?, ?, ?, ?, ?)");
    insert.bind(1, name);
    insert.bind(2, in.countryId);
    BindPlace(insert, 3, in, numbers);
    insert.exec();
    result.id = c.getLastInsertRowid();
    result.message = "City Details Saved";
  });
  return result;
}

WriteResult EditCity(Database& db, std::int64_t cityId, const CityInput& in) {
  if (in.countryId == 0) return WriteResult::Fail("cbEditCountry", "Select Country ");
  if (cityId == 0) return WriteResult::Fail("cbEditCity", "Select CIty");
  if (IsBlank(in.city)) return WriteResult::Fail("txtEditCity", "Enter City ");
  if (IsBlank(in.latMin)) return WriteResult::Fail("txtEditLatMIn", "Enter Lat Min");
  if (in.latNS != "N" && in.latNS != "S") return WriteResult::Fail("cbEditNS", "Add Lat Zone");
  if (IsBlank(in.lonDeg)) return WriteResult::Fail("txtEditLonDeg", "Enter Lon Deg");
  if (IsBlank(in.lonMin)) return WriteResult::Fail("txtEditLonMin", "Enter Lon Min");
  if (in.lonEW != "E" && in.lonEW != "W") return WriteResult::Fail("cbEditEW", "Add Lon Zone");
  static constexpr const char* kFields[4] = {"txtEditLatDeg", "txtEditLatMIn", "txtEditLonDeg", "txtEditLonMin"};
  PlaceNumbers numbers{};
  if (auto failure = NumbersOf(in, kFields, numbers)) return WriteResult{failure, 0, {}, {}};

  WriteResult result;
  db.Write("update the city", [&](SQLite::Database& c) {
    SQLite::Statement update(c,
                             "UPDATE City_Master SET CityName = ?, LatitudeDegree = ?, Latitude_NS = ?, "
                             "LatitudeMinute = ?, LongitudeDegree = ?, Longitude_EW = ?, LongitudeMinute = ? "
                             "WHERE CityID = ?");
    update.bind(1, Trim(in.city));
    BindPlace(update, 2, in, numbers);
    update.bind(8, cityId);
    if (update.exec() == 0) {
      throw StoreError("Cannot update city " + std::to_string(cityId) + " in \"" + db.Path().string() +
                       "\": there is no such city");
    }
    result.id = cityId;
    result.message = "Successfully Updated";
  });
  return result;
}

SearchResult FindCityInList(const std::vector<CityRow>& cities, std::string_view text) {
  const std::string wanted = LowerAscii(Trim(text));
  if (wanted.empty()) return {std::nullopt, FieldMessage{"txtCityName", "Enter City Name to Search"}};
  for (std::size_t i = 0; i < cities.size(); ++i) {
    if (LowerAscii(cities[i].name.substr(0, wanted.size())) == wanted) return {i, std::nullopt};
  }
  return {std::nullopt, FieldMessage{"txtCityName", "No matches found for the City Name entered"}};
}

}  // namespace kelvaro::store
