#pragma once
// The clock offset of a birth from the IANA rules: the place by --city and
// --country (looked up among the atlas and the city master) or the zone by
// --zone-id with --lat and --lon. Shared by `zone` and `--tz auto`.
#include <functional>
#include <optional>
#include <string>

#include "cli/birth_input.h"
#include "common/clock_offset.h"

namespace kelvaro::store {
class Database;
}

namespace kelvaro::cli {

struct ZoneQuery {
  std::string city, country;  // a place of the atlas or the city master
  std::string zoneId;         // or a zone, with lat and lon below
  std::string date, time;     // DD/MM/YYYY, HH:MM
  std::string lat, lon;       // DEG{N|S}MIN, DEG{E|W}MIN; from the place when empty
  bool later = false;         // the later reading of a clock time that happened twice
};

struct ZoneAnswer {
  ClockOffset offset;
  LocalClockTime time;
  std::string place;    // "Hyderabad, Telangana", or empty for --zone-id
  std::string country;  // the place's country, as the store names it
  std::string lat, lon;  // the coordinates used, in the flags' form ("17N23")
  std::string audit;    // AuditLine()
};

// Answers the query, or names the flag that is wrong. The city is found by
// its whole name ("Hyderabad") or its name and region ("Hyderabad, Sindh");
// a name that several regions of the country share is refused with their
// list. `openDatabase` is called only when a place is to be looked up; it
// throws store::StoreError for a database that cannot be used.
std::optional<InputError> ResolveZone(const std::function<store::Database&()>& openDatabase, const ZoneQuery& query,
                                      ZoneAnswer& answer);

}  // namespace kelvaro::cli
