#pragma once
// The time zone master: rows of TimeZone, and each country's TimeZoneID list
// (the SNo values of its zones, joined by ",").
//
// A zone's offset is stored in decimal hours, always positive, with its
// direction "E" or "W": hours plus minutes over 60, rounded to two decimals,
// so 5 hours 30 minutes is 5.5 and 5 hours 45 minutes 5.75.
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "store/database.h"
#include "store/field_message.h"

namespace kelvaro::store {

struct ZoneRow {
  std::int64_t sno = 0;
  std::string place;
  double timeDifference = 0.0;
  std::string direction;  // "E" or "W"
};

// The zones of a country in the order of its TimeZoneID list. Elements that
// are not numbers or name no row are passed over; an empty list gives none.
std::vector<ZoneRow> ZonesOf(Database& db, std::int64_t countryId);
std::optional<ZoneRow> ZoneBySno(Database& db, std::int64_t sno);
// Every zone, by SNo.
std::vector<ZoneRow> ListZones(Database& db);

// The item of the birth form's zone list: "Asia/Kolkata  (5.5 hrs E)".
std::string ZoneItemText(const ZoneRow& zone);
// "5.5 E".
std::string OffsetText(const ZoneRow& zone);

// Hours plus minutes over 60, rounded half away from zero to two decimals.
double StoredOffset(double hours, double minutes);

// The fields of the add or edit tab, as typed. countryId 0: no country chosen.
struct ZoneInput {
  std::int64_t countryId = 0;
  std::string name;
  std::string hours;
  std::string minutes;
  std::string direction;  // "E" or "W"; anything else counts as not chosen
};

// Tests in this order: "Select Country ", "Enter City " (the zone's name),
// "Enter Time Hours", "Enter Time Min", "Enter Zone", "Enter Number " for the
// hours, then for the minutes. Then the zone is inserted and its SNo appended
// to the country's list, both in one transaction (a country that does not
// exist gives a StoreError and nothing is written). notice: "Your Entered
// Time  5  hours 30  Minutes is saved as  5.5 hours"; message: "Details
// successfully saved".
WriteResult AddZone(Database& db, const ZoneInput& input);

// Tests in this order: "Select Country ", "Select Time Zone" (sno 0),
// "Enter Time Zone ", "Enter Hours", "Enter Minutes", "Add Zone",
// "Enter Number " twice. Rewrites Place, TimeDifference and TimeZone; the
// country lists stay. notice: "Your Entered Time  5  hours  30 Minutes  is
// saved as  5.5 hours"; message "Successfully Updated".
WriteResult EditZone(Database& db, std::int64_t sno, const ZoneInput& input);

// The edit tab's fields for a zone: whole hours and minutes, so that 5.5
// shows as 5 and 30 and an unchanged update keeps the offset.
struct ZoneEditFields {
  std::string name;
  std::string hours;
  std::string minutes;
  std::string direction;
};
ZoneEditFields ZoneForEdit(const ZoneRow& zone);

}  // namespace kelvaro::store
