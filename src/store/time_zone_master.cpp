#include "store/time_zone_master.h"

#include <cmath>
#include <sstream>

#include "common/number_rules.h"
#include "store/column_number.h"
#include "store/store_error.h"
#include "store/text_rules.h"

namespace kelvaro::store {

namespace {

constexpr const char* kColumns = "SELECT SNo, Place, TimeDifference, TimeZone FROM TimeZone ";

ZoneRow RowOf(SQLite::Statement& q) {
  return {q.getColumn(0).getInt64(), q.getColumn(1).getString(), ColumnNumber(q.getColumn(2)), q.getColumn(3).getString()};
}

std::vector<std::int64_t> SplitZoneList(const std::string& list) {
  std::vector<std::int64_t> ids;
  std::stringstream in(list);
  for (std::string element; std::getline(in, element, ',');) {
    const auto value = NumericValue(element);
    if (value && *value == std::floor(*value) && *value > 0) ids.push_back(static_cast<std::int64_t>(*value));
  }
  return ids;
}

struct Offset {
  double hours = 0.0;
  double minutes = 0.0;
};

std::optional<FieldMessage> OffsetOf(const ZoneInput& in, const char* hoursField, const char* minutesField,
                                     Offset& out) {
  const auto hours = NumericValue(in.hours);
  if (!hours) return FieldMessage{hoursField, "Enter Number "};
  const auto minutes = NumericValue(in.minutes);
  if (!minutes) return FieldMessage{minutesField, "Enter Number "};
  // Beyond the master's own tests: no zone lies more than 14 hours from
  // Greenwich, and a minute stops below 60.
  if (*hours < 0 || *hours > 14) return FieldMessage{hoursField, "Enter Time Hours between 0 and 14"};
  if (*minutes < 0 || *minutes >= 60 || (*hours == 14 && *minutes > 0)) {
    return FieldMessage{minutesField, "Enter Time Min between 0 and 59"};
  }
  out = {*hours, *minutes};
  return std::nullopt;
}

}  // namespace

std::vector<ZoneRow> ZonesOf(Database& db, std::int64_t countryId) {
  return db.Read("list the time zones", [&](SQLite::Database& c) {
    std::vector<ZoneRow> rows;
    SQLite::Statement list(c, "SELECT TimeZoneID FROM Country_Master WHERE CountryID = ?");
    list.bind(1, countryId);
    if (!list.executeStep()) return rows;
    SQLite::Statement zone(c, std::string(kColumns) + "WHERE SNo = ?");
    for (std::int64_t sno : SplitZoneList(list.getColumn(0).getString())) {
      zone.reset();
      zone.bind(1, sno);
      if (zone.executeStep()) rows.push_back(RowOf(zone));
    }
    return rows;
  });
}

std::optional<ZoneRow> ZoneBySno(Database& db, std::int64_t sno) {
  return db.Read("read the time zone", [&](SQLite::Database& c) -> std::optional<ZoneRow> {
    SQLite::Statement q(c, std::string(kColumns) + "WHERE SNo = ?");
    q.bind(1, sno);
    if (!q.executeStep()) return std::nullopt;
    return RowOf(q);
  });
}

std::vector<ZoneRow> ListZones(Database& db) {
  return db.Read("list the time zones", [](SQLite::Database& c) {
    std::vector<ZoneRow> rows;
    SQLite::Statement q(c, std::string(kColumns) + "ORDER BY SNo");
    while (q.executeStep()) rows.push_back(RowOf(q));
    return rows;
  });
}

std::string ZoneItemText(const ZoneRow& zone) {
  return zone.place + "  (" + NumberText(zone.timeDifference) + " hrs " + zone.direction + ")";
}

std::string OffsetText(const ZoneRow& zone) { return NumberText(zone.timeDifference) + " " + zone.direction; }

double StoredOffset(double hours, double minutes) {
  // The master formats the sum with "00.00" and stores the text's value.
  return *NumericValue(FormatPattern(hours + minutes / 60, "00.00"));
}

WriteResult AddZone(Database& db, const ZoneInput& in) {
  if (in.countryId == 0) return WriteResult::Fail("cbAddCountry", "Select Country ");
  if (IsBlank(in.name)) return WriteResult::Fail("txtAddCity", "Enter City ");
  if (IsBlank(in.hours)) return WriteResult::Fail("txtAddLatDeg", "Enter Time Hours");
  if (IsBlank(in.minutes)) return WriteResult::Fail("txtAddLAtMin", "Enter Time Min");
  if (in.direction != "E" && in.direction != "W") return WriteResult::Fail("cbAddEW", "Enter Zone");
  Offset offset;
  if (auto failure = OffsetOf(in, "txtAddLatDeg", "txtAddLAtMin", offset)) return WriteResult{failure, 0, {}, {}};

  const double value = StoredOffset(offset.hours, offset.minutes);
  WriteResult result;
  result.notice = "Your Entered Time  " + Trim(in.hours) + "  hours " + Trim(in.minutes) + "  Minutes " +
                  "is saved as  " + NumberText(value) + " hours";
  db.Write("add the time zone", [&](SQLite::Database& c) {
    SQLite::Statement insert(c, "INSERT INTO TimeZone (Place, TimeDifference, TimeZone) VALUES (?, ?, ?)");
    insert.bind(1, Trim(in.name));
    insert.bind(2, value);
    insert.bind(3, in.direction);
    insert.exec();
    result.id = c.getLastInsertRowid();

    SQLite::Statement read(c, "SELECT TimeZoneID FROM Country_Master WHERE CountryID = ?");
    read.bind(1, in.countryId);
    if (!read.executeStep()) {
      throw StoreError("Cannot add the time zone in \"" + db.Path().string() + "\": there is no country " +
                       std::to_string(in.countryId));
    }
    std::string list = read.getColumn(0).getString();
    list += (list.empty() ? "" : ",") + std::to_string(result.id);
    SQLite::Statement update(c, "UPDATE Country_Master SET TimeZoneID = ? WHERE CountryID = ?");
    update.bind(1, list);
    update.bind(2, in.countryId);
    update.exec();
    result.message = "Details successfully saved";
  });
  return result;
}

WriteResult EditZone(Database& db, std::int64_t sno, const ZoneInput& in) {
  if (in.countryId == 0) return WriteResult::Fail("cbEditCountry", "Select Country ");
  if (sno == 0) return WriteResult::Fail("cbEditCity", "Select Time Zone");
  if (IsBlank(in.name)) return WriteResult::Fail("txtEditCity", "Enter Time Zone ");
  if (IsBlank(in.hours)) return WriteResult::Fail("txtEditLatDeg", "Enter Hours");
  if (IsBlank(in.minutes)) return WriteResult::Fail("txtEditLatMIn", "Enter Minutes");
  if (in.direction != "E" && in.direction != "W") return WriteResult::Fail("cbEditEW", "Add Zone");
  Offset offset;
  if (auto failure = OffsetOf(in, "txtEditLatDeg", "txtEditLatMIn", offset)) return WriteResult{failure, 0, {}, {}};

  const double value = StoredOffset(offset.hours, offset.minutes);
  WriteResult result;
  result.notice = "Your Entered Time  " + Trim(in.hours) + "  hours  " + Trim(in.minutes) + " Minutes " +
                  " is saved as  " + NumberText(value) + " hours";
  db.Write("update the time zone", [&](SQLite::Database& c) {
    SQLite::Statement update(c, "UPDATE TimeZone SET Place = ?, TimeDifference = ?, TimeZone = ? WHERE SNo = ?");
    update.bind(1, Trim(in.name));
    update.bind(2, value);
    update.bind(3, in.direction);
    update.bind(4, sno);
    if (update.exec() == 0) {
      throw StoreError("Cannot update time zone " + std::to_string(sno) + " in \"" + db.Path().string() +
                       "\": there is no such zone");
    }
    result.id = sno;
    result.message = "Successfully Updated";
  });
  return result;
}

ZoneEditFields ZoneForEdit(const ZoneRow& zone) {
  // Whole minutes from the decimal hours: 5.5 gives 5 and 30, 5.33 gives 5
  // and 20 (19.8 rounded), which 00.00 stores as 5.33 again.
  double hours = std::floor(zone.timeDifference);
  double minutes = RoundHalfEven((zone.timeDifference - hours) * 60);
  if (minutes >= 60) {
    hours += 1;
    minutes -= 60;
  }
  return {zone.place, NumberText(hours), NumberText(minutes), zone.direction};
}

}  // namespace kelvaro::store
