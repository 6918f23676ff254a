// kelvaro-cli places find and zone: the atlas searched by name, and the clock
// offset of a birth from the IANA rules with the reason for it.
#include <CLI/CLI.hpp>
#include <fmt/format.h>

#include <cmath>
#include <memory>
#include <nlohmann/json.hpp>

#include "cli/cli.h"
#include "cli/database_option.h"
#include "cli/zone_lookup.h"
#include "common/text_checks.h"
#include "store/country_master.h"
#include "store/database.h"
#include "store/place_search.h"
#include "store/store_error.h"
#include "store/text_rules.h"

namespace kelvaro::cli {

namespace {

struct FindOptions {
  std::string name, country, database;
  bool json = false;
};

struct ZoneOptions {
  ZoneQuery query;
  std::string database;
  bool json = false;
};

// "17.3840 N, 78.4564 E"
std::string PlaceText(const store::PlaceRecord& p) {
  return fmt::format("{:.4f} {}, {:.4f} {}", std::fabs(p.latitude), p.latitude < 0 ? 'S' : 'N',
                     std::fabs(p.longitude), p.longitude < 0 ? 'W' : 'E');
}

void Fail(Session& s, int status, const std::string& message) {
  s.err << "kelvaro-cli: " << message << "\n";
  s.status = status;
}

void PlacesFind(Session& s, const FindOptions& o) {
  if (!IsValidUtf8(o.name) || !IsValidUtf8(o.country)) return Fail(s, kExitBadInput, "NAME: not valid UTF-8 text");
  try {
    store::Database db(DatabasePathOrDefault(o.database));
    std::optional<std::int64_t> countryId;
    if (!o.country.empty()) {
      auto country = store::CountryByName(db, o.country);
      const auto number = store::NumericValue(o.country);
      if (!country && number && *number > 0 && *number == std::floor(*number)) {
        country = store::CountryById(db, static_cast<std::int64_t>(*number));
      }
      if (!country) return Fail(s, kExitBadInput, "No Such Country Exists: " + o.country);
      countryId = country->id;
    }
    const store::PlaceIndex index = store::PlaceIndex::Load(db);
    const auto found = index.Find(o.name, countryId);
    if (o.json) {
      nlohmann::ordered_json j = nlohmann::ordered_json::array();
      for (const store::PlaceRecord* p : found) {
        j.push_back({{"name", p->name},
                     {"region", p->region},
                     {"country", p->country},
                     {"latitude", p->latitude},
                     {"longitude", p->longitude},
                     {"zone_id", p->zoneId},
                     {"population", p->population},
                     {"source", p->cityId != 0 ? "city master" : "atlas"}});
      }
      s.out << j.dump(2, ' ', false, nlohmann::json::error_handler_t::replace) << "\n";
      return;
    }
    if (found.empty()) return Fail(s, kExitBadInput, "no place begins with \"" + o.name + "\"");
    for (const store::PlaceRecord* p : found) {
      s.out << fmt::format("{}  {}  {}  {}\n", p->Label(), p->country, PlaceText(*p),
                           p->zoneId.empty() ? "(no zone)" : p->zoneId);
    }
  } catch (const store::StoreError& e) {
    Fail(s, kExitFailure, e.what());
  }
}

const char* KindName(OffsetKind kind) {
  switch (kind) {
    case OffsetKind::Daylight:
      return "daylight";
    case OffsetKind::LocalMeanTime:
      return "local mean time";
    case OffsetKind::Standard:
      break;
  }
  return "standard";
}

void Zone(Session& s, const ZoneOptions& o) {
  try {
    std::unique_ptr<store::Database> db;
    const auto open = [&]() -> store::Database& {
      if (!db) db = std::make_unique<store::Database>(DatabasePathOrDefault(o.database));
      return *db;
    };
    ZoneAnswer a;
    if (const auto error = ResolveZone(open, o.query, a)) return Fail(s, kExitBadInput, error->Message());
    const ClockOffset& z = a.offset;
    if (o.json) {
      nlohmann::ordered_json j;
      j["zone_id"] = z.zoneId;
      j["offset_hours"] = z.OffsetHours();
      j["tz"] = TzText(z.offsetSeconds);
      j["kind"] = KindName(z.kind);
      j["abbreviation"] = z.abbreviation;
      j["ambiguous"] = z.ambiguous;
      j["nonexistent"] = z.nonexistent;
      j["reason"] = z.reason;
      if (z.nonexistent) {
        j["clocks_from"] = z.gapFrom;
        j["clocks_to"] = z.gapTo;
      }
      if (z.ambiguous) j["other_offset_hours"] = z.otherOffsetSeconds / 3600.0;
      j["place"] = a.place;
      j["country"] = a.country;
      j["lat"] = a.lat;
      j["lon"] = a.lon;
      j["tz_data"] = z.dataVersion;
      j["after_tz_data"] = z.beyondData;
      j["audit"] = a.audit;
      s.out << j.dump(2, ' ', false, nlohmann::json::error_handler_t::replace) << "\n";
      return;
    }
    if (!a.place.empty()) s.out << fmt::format("{}, {}  {} {}\n", a.place, a.country, a.lat, a.lon);
    s.out << a.audit << "\n";
    s.out << fmt::format("--tz {}  ({}, {})\n", TzText(z.offsetSeconds), z.abbreviation, KindName(z.kind));
  } catch (const store::StoreError& e) {
    Fail(s, kExitFailure, e.what());
  }
}

}  // namespace

void RegisterPlaceZoneCommands(CLI::App& app, Session& session) {
  auto f = std::make_shared<FindOptions>();
  CLI::App* places = app.get_subcommand("places");
  CLI::App* find = places->add_subcommand("find", "Find places of the atlas and the city master by name");
  find->add_option("NAME", f->name, "The first letters of the name")->required();
  find->add_option("--country", f->country, "Country name or CountryID");
  find->add_option("--database", f->database, "Database file (default: the per-user data folder)");
  find->add_flag("--json", f->json, "Print JSON");
  find->callback([&session, f] { PlacesFind(session, *f); });

  auto z = std::make_shared<ZoneOptions>();
  CLI::App* zone = app.add_subcommand("zone", "The clock offset of a birth from the IANA time zone rules, and why");
  zone->add_option("--city", z->query.city, "Place of birth (\"Hyderabad\" or \"Hyderabad, Sindh\")");
  zone->add_option("--country", z->query.country, "Country name or CountryID");
  zone->add_option("--zone-id", z->query.zoneId, "IANA zone, as Asia/Kolkata (with --lat and --lon)");
  zone->add_option("--lat", z->query.lat, "Latitude, DEG{N|S}MIN (default: the place's)");
  zone->add_option("--lon", z->query.lon, "Longitude, DEG{E|W}MIN (default: the place's)");
  zone->add_option("--date", z->query.date, "Date of birth, DD/MM/YYYY")->required();
  zone->add_option("--time", z->query.time, "Clock time of birth, HH:MM on a 24-hour clock")->required();
  zone->add_flag("--later", z->query.later, "A clock time that happened twice: the second time");
  zone->add_option("--database", z->database, "Database file (default: the per-user data folder)");
  zone->add_flag("--json", z->json, "Print JSON");
  zone->callback([&session, z] { Zone(session, *z); });
}

}  // namespace kelvaro::cli
