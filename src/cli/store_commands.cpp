// kelvaro-cli charts, places and prefs: the saved charts, the place masters
// and the preferences row of DBMirvaneBasic.db.
#include <charconv>
#include <limits>
#include <CLI/CLI.hpp>
#include <fmt/format.h>

#include <algorithm>
#include <cmath>
#include <filesystem>
#include <functional>
#include <memory>
#include <span>
#include <nlohmann/json.hpp>
#include <string>
#include <vector>

#include "common/text_checks.h"
#include "cli/cli.h"
#include "cli/database_option.h"
#include "store/chart_store.h"
#include "store/city_master.h"
#include "store/country_master.h"
#include "store/database.h"
#include "store/database_location.h"
#include "store/preferences.h"
#include "store/store_error.h"
#include "store/text_rules.h"
#include "store/time_zone_master.h"

namespace kelvaro::cli {

namespace {

using store::Database;

// The options of one subcommand; CLI11 writes into them while parsing.
struct StoreOptions {
  std::string database;
  bool json = false;
  std::string filter = "All";
  std::string id;  // the chart number as typed; ChartNumber reads it
  std::string country;
  std::vector<std::string> pairs;
};

// A usage fault the user can mend: the message goes out as it stands.
struct BadInput {
  std::string message;
};

// Runs one command against the database, turning its failures into the
// exit status: 2 for input the user can mend, 1 for a file failure.
void Run(Session& session, const StoreOptions& o, const std::function<void(Database&)>& body) {
  try {
    Database db(DatabasePathOrDefault(o.database));
    body(db);
  } catch (const BadInput& e) {
    session.err << "kelvaro-cli: " << e.message << "\n";
    session.status = kExitBadInput;
  } catch (const store::StoreError& e) {
    session.err << "kelvaro-cli: " << e.what() << "\n";
    session.status = kExitFailure;
  }
}

// Display width of a UTF-8 text, one column a code point.
std::size_t Width(const std::string& text) {
  std::size_t width = 0;
  for (unsigned char c : text) width += (c & 0xC0) != 0x80;
  return width;
}

std::string PadRight(const std::string& text, std::size_t width) {
  const std::size_t w = Width(text);
  return w >= width ? text : text + std::string(width - w, ' ');
}

// A country by its name (without regard to case) or its CountryID.
store::CountryRow CountryOf(Database& db, const std::string& text) {
  std::optional<store::CountryRow> country = store::CountryByName(db, text);
  if (!country) {
    const auto number = store::NumericValue(text);
    if (number && *number > 0 && *number == static_cast<double>(static_cast<std::int64_t>(*number))) {
      country = store::CountryById(db, static_cast<std::int64_t>(*number));
    }
  }
  if (!country) throw BadInput{"No Such Country Exists: " + text};
  return *country;
}

// ---- charts ----

void ChartsList(Session& s, const StoreOptions& o) {
  Run(s, o, [&](Database& db) {
    const store::ChartList list = store::ListCharts(db, o.filter);
    if (o.json) {
      nlohmann::ordered_json j = nlohmann::ordered_json::array();
      for (const auto& item : list.items) j.push_back({{"sno", item.sno}, {"chart_name", item.chartName}});
      s.out << j.dump(2, ' ', false, nlohmann::json::error_handler_t::replace) << "\n";
      return;
    }
    // One line a chart whatever its name holds: a line break or a byte that
    // is no text is shown escaped.
    for (const auto& item : list.items) {
      s.out << fmt::format("{:>6}  {}\n", item.sno, MessageValue(item.chartName, item.chartName.size()));
    }
  });
}

// A chart number: digits that fit a 64-bit number; anything else (a number
// too large among it) is refused, never clamped.
std::int64_t ChartNumber(const std::string& text) {
  std::int64_t value = 0;
  const auto r = std::from_chars(text.data(), text.data() + text.size(), value);
  if (text.empty() || r.ec != std::errc() || r.ptr != text.data() + text.size() || value < 1) {
    throw BadInput{fmt::format("ID \"{}\": a chart number is a whole number from 1 to {}", text.substr(0, 40),
                               std::numeric_limits<std::int64_t>::max())};
  }
  return value;
}

void ChartsShow(Session& s, const StoreOptions& o) {
  Run(s, o, [&](Database& db) {
    const std::int64_t id = ChartNumber(o.id);
    const auto chart = store::OpenChart(db, id);
    if (!chart) throw BadInput{fmt::format("no saved chart has the number {}", id)};
    const auto country = store::CountryById(db, chart->countryId);
    const std::string countryName = country ? country->name : fmt::format("(no country {})", chart->countryId);
    const std::string date = fmt::format("{:02d}/{}/{}", chart->day, chart->month, chart->year);
    const std::string time = fmt::format("{:02d}:{:02d} {}", chart->hour12, chart->minute, chart->pm ? "PM" : "AM");
    if (o.json) {
      nlohmann::ordered_json j;
      j["sno"] = chart->sno;
      j["name"] = chart->name;
      j["gender"] = chart->gender;
      j["date"] = date;
      j["time"] = time;
      j["country_id"] = chart->countryId;
      j["country"] = countryName;
      j["city"] = chart->city;
      j["lat_deg"] = chart->latDeg;
      j["lat_ns"] = chart->latNS;
      j["lat_min"] = chart->latMin;
      j["lon_deg"] = chart->lonDeg;
      j["lon_ew"] = chart->lonEW;
      j["lon_min"] = chart->lonMin;
      if (chart->zoneSno) {
        j["zone_sno"] = *chart->zoneSno;
      } else {
        j["zone_sno"] = nullptr;
      }
      j["zone"] = chart->zoneText;
      j["time_difference"] = chart->timeDiff;
      j["time_difference_ew"] = chart->timeDiffEW;
      s.out << j.dump(2, ' ', false, nlohmann::json::error_handler_t::replace) << "\n";
      return;
    }
    const std::pair<const char*, std::string> rows[] = {
        {"Chart", std::to_string(chart->sno)},
        {"Name", chart->name},
        {"Gender", chart->gender},
        {"Birth Date", date},
        {"Birth Time", time},
        {"Birth Country", countryName},
        {"Birth City", chart->city},
        {"Latitude", chart->latText},
        {"Longitude", chart->lonText},
        {"Time Zone", chart->zoneText},
    };
    for (const auto& [label, value] : rows) s.out << fmt::format("{:<14} {}\n", label, value);
  });
}

void ChartsDelete(Session& s, const StoreOptions& o) {
  Run(s, o, [&](Database& db) {
    const std::int64_t id = ChartNumber(o.id);
    if (!store::DeleteChart(db, id)) throw BadInput{fmt::format("no saved chart has the number {}", id)};
    s.out << store::kChartDeletedMessage << "\n";
  });
}

// ---- places ----

void PlacesCountries(Session& s, const StoreOptions& o) {
  Run(s, o, [&](Database& db) {
    const auto countries = store::ListCountries(db);
    if (o.json) {
      nlohmann::ordered_json j = nlohmann::ordered_json::array();
      for (const auto& c : countries) j.push_back({{"id", c.id}, {"name", c.name}, {"time_zone_ids", c.timeZoneIds}});
      s.out << j.dump(2, ' ', false, nlohmann::json::error_handler_t::replace) << "\n";
      return;
    }
    for (const auto& c : countries) s.out << fmt::format("{:>6}  {}\n", c.id, c.name);
  });
}

void PlacesCities(Session& s, const StoreOptions& o) {
  Run(s, o, [&](Database& db) {
    const store::CountryRow country = CountryOf(db, o.country);
    const auto cities = store::CitiesOf(db, country.id);
    if (o.json) {
      nlohmann::ordered_json j = nlohmann::ordered_json::array();
      for (const auto& c : cities) {
        j.push_back({{"id", c.id},
                     {"name", c.name},
                     {"lat_deg", c.latDeg},
                     {"lat_min", c.latMin},
                     {"lat_ns", c.latNS},
                     {"lon_deg", c.lonDeg},
                     {"lon_min", c.lonMin},
                     {"lon_ew", c.lonEW},
                     {"coordinates", store::CoordinatesText(c)}});
      }
      s.out << j.dump(2, ' ', false, nlohmann::json::error_handler_t::replace) << "\n";
      return;
    }
    std::size_t width = 0;
    for (const auto& c : cities) width = std::max(width, Width(c.name));
    for (const auto& c : cities) s.out << PadRight(c.name, width) << "  " << store::CoordinatesText(c) << "\n";
  });
}

void PlacesZones(Session& s, const StoreOptions& o) {
  Run(s, o, [&](Database& db) {
    const store::CountryRow country = CountryOf(db, o.country);
    const auto zones = store::ZonesOf(db, country.id);
    if (o.json) {
      nlohmann::ordered_json j = nlohmann::ordered_json::array();
      for (const auto& z : zones) {
        j.push_back({{"sno", z.sno}, {"place", z.place}, {"time_difference", z.timeDifference}, {"direction", z.direction}});
      }
      s.out << j.dump(2, ' ', false, nlohmann::json::error_handler_t::replace) << "\n";
      return;
    }
    std::size_t width = 0;
    for (const auto& z : zones) width = std::max(width, Width(z.place));
    for (const auto& z : zones) {
      s.out << fmt::format("{:>6}  ", z.sno) << PadRight(z.place, width) << "  " << store::OffsetText(z) << "\n";
    }
  });
}

// ---- prefs ----

// The keys of `prefs set`, with the field name the validation reports.
struct PreferenceKey {
  const char* key;
  const char* field;
};
constexpr PreferenceKey kPreferenceKeys[] = {
    {"ayanamsa", "cbAyanamsa"}, {"bhava", "cbBhava"},       {"days", "Cbdays"},         {"chart-style", "cbChart"},
    {"language", "cbLanguage"}, {"zero-year", "txtZero"}, {"progression", "txtPogression"},
};

std::string KeyOfField(const std::string& field) {
  for (const auto& k : kPreferenceKeys) {
    if (field == k.field) return k.key;
  }
  return field;
}

// A choice given as its stored value or its list text, without regard to case.
std::string ChoiceOf(std::span<const store::Choice> choices, const std::string& key, const std::string& value) {
  const std::string wanted = store::LowerAscii(store::Trim(value));
  std::string names;
  for (const store::Choice& c : choices) {
    if (store::LowerAscii(c.stored) == wanted || store::LowerAscii(c.listText) == wanted) return std::string(c.stored);
    names += (names.empty() ? "" : ", ") + std::string(c.stored);
  }
  throw BadInput{key + " must be one of " + names + ", not \"" + value + "\""};
}

void PrintPreferences(Session& s, const store::Preferences& p, bool json) {
  if (json) {
    nlohmann::ordered_json j;
    j["ayanamsa"] = p.ayanamsa;
    j["bhava"] = p.bhava;
    j["day_in_year"] = p.dayInYear;
    j["chart_style"] = p.chartStyle;
    j["language"] = p.language;
    j["custom_year"] = p.customYear;
    j["custom_progress"] = p.customProgress;
    s.out << j.dump(2, ' ', false, nlohmann::json::error_handler_t::replace) << "\n";
    return;
  }
  const std::pair<const char*, std::string> rows[] = {
      {"ayanamsa", p.ayanamsa},
      {"bhava", p.bhava},
      {"days", store::NumberText(p.dayInYear)},
      {"chart-style", p.chartStyle},
      {"language", p.language},
      {"zero-year", store::NumberText(p.customYear)},
      {"progression", store::NumberText(p.customProgress)},
  };
  for (const auto& [key, value] : rows) s.out << fmt::format("{:<12} {}\n", key, value);
}

void PrefsShow(Session& s, const StoreOptions& o) {
  Run(s, o, [&](Database& db) { PrintPreferences(s, store::ReadPreferences(db), o.json); });
}

void PrefsSet(Session& s, const StoreOptions& o) {
  Run(s, o, [&](Database& db) {
    if (o.pairs.empty() || o.pairs.size() % 2 != 0) throw BadInput{"prefs set takes KEY VALUE pairs"};
    const store::Preferences now = store::ReadPreferences(db);
    store::PreferenceInput in{now.ayanamsa, now.bhava, now.dayInYear, now.chartStyle, now.language,
                              store::NumberText(now.customYear), store::NumberText(now.customProgress)};
    bool customValueGiven = false;
    for (std::size_t i = 0; i < o.pairs.size(); i += 2) {
      const std::string& key = o.pairs[i];
      const std::string& value = o.pairs[i + 1];
      if (key == "ayanamsa") {
        in.ayanamsa = ChoiceOf(store::kAyanamsaChoices, key, value);
      } else if (key == "bhava") {
        in.bhava = ChoiceOf(store::kBhavaChoices, key, value);
      } else if (key == "days") {
        in.dayInYear = *store::NumericValue(ChoiceOf(store::kDayInYearChoices, key, value));
      } else if (key == "chart-style") {
        in.chartStyle = ChoiceOf(store::kChartStyleChoices, key, value);
      } else if (key == "language") {
        in.language = ChoiceOf(store::kLanguageChoices, key, value);
      } else if (key == "zero-year") {
        in.zeroYear = value;
        customValueGiven = true;
      } else if (key == "progression") {
        in.progression = value;
        customValueGiven = true;
      } else {
        std::string keys;
        for (const auto& k : kPreferenceKeys) keys += (keys.empty() ? "" : ", ") + std::string(k.key);
        throw BadInput{"unknown preference \"" + key + "\"; the keys are " + keys};
      }
    }
    // What --zero-year refuses, this refuses too: a year is whole.
    if (in.ayanamsa == "Custom" && !store::ValidatePreferences(in)) {
      const double year = *store::NumericValue(in.zeroYear);
      if (year != std::trunc(year)) throw BadInput{"zero-year \"" + in.zeroYear + "\": expected a whole year"};
    }
    const store::WriteResult saved = store::SavePreferences(db, in);
    if (!saved.ok()) throw BadInput{KeyOfField(saved.failure->field) + ": " + saved.failure->message};
    if (customValueGiven && in.ayanamsa != "Custom") {
      s.err << "kelvaro-cli: zero-year and progression are kept only with the Custom ayanamsa; both are stored as 0\n";
    }
    PrintPreferences(s, store::ReadPreferences(db), o.json);
  });
}

void AddDatabaseOption(CLI::App* command, StoreOptions& o) {
  command->add_option("--database", o.database,
                      "SQLite file (default: $XDG_DATA_HOME or ~/.local/share, then Kelvaro/DBMirvaneBasic.db)");
}

}  // namespace

void RegisterStoreCommands(CLI::App& app, Session& session) {
  auto o = std::make_shared<StoreOptions>();

  CLI::App* charts = app.add_subcommand("charts", "Saved charts: list, show, delete");
  charts->require_subcommand(1);
  CLI::App* list = charts->add_subcommand("list", "List the saved charts by name");
  AddDatabaseOption(list, *o);
  list->add_flag("--json", o->json, "Print JSON");
  list->add_option("--filter", o->filter, "All (default), Male, Female, or G for couple charts")
      ->check(CLI::IsMember({"All", "Male", "Female", "G"}));
  list->callback([&session, o] { ChartsList(session, *o); });

  CLI::App* show = charts->add_subcommand("show", "Show a saved chart as the birth form shows it");
  AddDatabaseOption(show, *o);
  show->add_flag("--json", o->json, "Print JSON");
  show->add_option("ID", o->id, "Chart number (Sno)")->required();
  show->callback([&session, o] { ChartsShow(session, *o); });

  CLI::App* del = charts->add_subcommand("delete", "Delete a saved chart");
  AddDatabaseOption(del, *o);
  del->add_option("ID", o->id, "Chart number (Sno)")->required();
  del->callback([&session, o] { ChartsDelete(session, *o); });

  CLI::App* places = app.add_subcommand("places", "Countries, cities and time zones");
  places->require_subcommand(1);
  CLI::App* countries = places->add_subcommand("countries", "List the countries");
  AddDatabaseOption(countries, *o);
  countries->add_flag("--json", o->json, "Print JSON");
  countries->callback([&session, o] { PlacesCountries(session, *o); });

  CLI::App* cities = places->add_subcommand("cities", "List the cities of a country");
  AddDatabaseOption(cities, *o);
  cities->add_flag("--json", o->json, "Print JSON");
  cities->add_option("COUNTRY", o->country, "Country name or CountryID")->required();
  cities->callback([&session, o] { PlacesCities(session, *o); });

  CLI::App* zones = places->add_subcommand("zones", "List the time zones of a country");
  AddDatabaseOption(zones, *o);
  zones->add_flag("--json", o->json, "Print JSON");
  zones->add_option("COUNTRY", o->country, "Country name or CountryID")->required();
  zones->callback([&session, o] { PlacesZones(session, *o); });

  CLI::App* prefs = app.add_subcommand("prefs", "The preferences");
  prefs->require_subcommand(1);
  CLI::App* prefsShow = prefs->add_subcommand("show", "Show the preferences");
  AddDatabaseOption(prefsShow, *o);
  prefsShow->add_flag("--json", o->json, "Print JSON");
  prefsShow->callback([&session, o] { PrefsShow(session, *o); });

  CLI::App* prefsSet = prefs->add_subcommand(
      "set", "Change preferences: KEY VALUE pairs; keys ayanamsa, bhava, days, chart-style, language, zero-year, "
             "progression");
  AddDatabaseOption(prefsSet, *o);
  prefsSet->add_flag("--json", o->json, "Print JSON");
  prefsSet->add_option("KEY_VALUE", o->pairs, "KEY VALUE [KEY VALUE ...]")->required();
  prefsSet->callback([&session, o] { PrefsSet(session, *o); });
}

}  // namespace kelvaro::cli
