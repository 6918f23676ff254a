#include "cli/zone_lookup.h"

#include <charconv>
#include <cmath>
#include <stdexcept>

#include "store/country_master.h"
#include "store/place_search.h"
#include "store/system_zone_rules.h"
#include "store/text_rules.h"

namespace kelvaro::cli {

namespace {

int Number(const std::string& text, std::size_t from, std::size_t length) {
  int value = 0;
  std::from_chars(text.data() + from, text.data() + from + length, value);
  return value;
}

// "17N23" from 17.3840: whole minutes, as the birth form keeps a place.
std::string AngleFlag(double degrees, char positive, char negative) {
  const double a = std::fabs(degrees);
  int whole = static_cast<int>(a);
  int minutes = static_cast<int>(std::lround((a - whole) * 60.0));
  if (minutes == 60) {
    ++whole;
    minutes = 0;
  }
  return std::to_string(whole) + (degrees < 0 ? negative : positive) + std::to_string(minutes);
}

std::optional<InputError> FindPlace(store::Database& db, const ZoneQuery& q, store::PlaceRecord& place) {
  std::optional<store::CountryRow> country = store::CountryByName(db, q.country);
  if (!country) {
    const auto number = store::NumericValue(q.country);
    if (number && *number > 0 && *number == std::floor(*number)) {
      country = store::CountryById(db, static_cast<std::int64_t>(*number));
    }
  }
  if (!country) return InputError{"--country", q.country, "No Such Country Exists"};
  const store::PlaceIndex index = store::PlaceIndex::Load(db);
  const std::string wanted = store::FoldForSearch(q.city);
  const std::string name = wanted.substr(0, wanted.find(','));
  std::vector<const store::PlaceRecord*> same;
  for (const store::PlaceRecord* p : index.Find(name, country->id, 1000)) {
    if (store::FoldForSearch(p->name) == wanted || store::FoldForSearch(p->Label()) == wanted) same.push_back(p);
  }
  if (same.empty()) return InputError{"--city", q.city, "no such place in " + country->name};
  if (same.size() > 1) {
    std::string list;
    for (const auto* p : same) list += (list.empty() ? "" : "; ") + p->Label();
    return InputError{"--city", q.city, "several places of " + country->name + " have this name: " + list};
  }
  place = *same.front();
  return std::nullopt;
}

}  // namespace

std::optional<InputError> ResolveZone(const std::function<store::Database&()>& openDatabase, const ZoneQuery& q,
                                      ZoneAnswer& answer) {
  std::string zoneId = q.zoneId;
  std::string lat = q.lat, lon = q.lon;
  if (zoneId.empty()) {
    if (q.city.empty()) return InputError{"--city", "", "give --city and --country, or --zone-id with --lat and --lon"};
    if (q.country.empty()) return InputError{"--country", "", "is required with --city"};
    store::PlaceRecord place;
    if (auto e = FindPlace(openDatabase(), q, place)) return e;
    if (place.zoneId.empty()) return InputError{"--city", q.city, "the place has no time zone; give --zone-id"};
    zoneId = place.zoneId;
    answer.place = place.Label();
    answer.country = place.country;
    if (lat.empty()) lat = AngleFlag(place.latitude, 'N', 'S');
    if (lon.empty()) lon = AngleFlag(place.longitude, 'E', 'W');
  } else {
    if (lat.empty()) return InputError{"--lat", "", "is required with --zone-id"};
    if (lon.empty()) return InputError{"--lon", "", "is required with --zone-id"};
  }
  // The same checks and messages as every other birth of the tool.
  HoroscopeState scratch;
  if (auto e = ApplyBirthDetails(BirthText{q.date, q.time, lat, lon, "0E", "Lahiri", {}, {}}, "--", scratch)) return e;
  const std::size_t colon = q.time.find(':');
  LocalClockTime t;
  t.day = Number(q.date, 0, q.date.find('/'));
  t.month = Number(q.date, q.date.find('/') + 1, q.date.rfind('/') - q.date.find('/') - 1);
  t.year = Number(q.date, q.date.rfind('/') + 1, 4);
  t.hour = Number(q.time, 0, colon);
  t.minute = Number(q.time, colon + 1, 2);
  const double longitude = scratch.LonDeg + scratch.LonMin / 60.0;
  t.longitudeEast = scratch.LonEW == "W" ? -longitude : longitude;

  const store::SystemZoneRules rules;
  if (!rules.Knows(zoneId)) return InputError{"--zone-id", zoneId, "the system's time zone database has no such zone"};
  answer.offset = rules.OffsetAt(zoneId, t, q.later ? Fold::Later : Fold::Earlier);
  answer.time = t;
  answer.lat = lat;
  answer.lon = lon;
  answer.audit = AuditLine(answer.offset, t);
  return std::nullopt;
}

}  // namespace kelvaro::cli
