#pragma once
// What the commands that run the whole calculation share: the birth given by
// flags or by a saved chart, the preferences from the database with flags
// overriding them, and the run itself with its errors reported.
#include <cstdint>
#include <functional>
#include <string>

#include "cli/birth_input.h"
#include "cli/cli.h"

namespace CLI {
class App;
}

namespace kelvaro {
struct CalculationContext;
}

namespace kelvaro::store {
class Database;
}

namespace kelvaro::cli {

struct HoroscopeOptions {
  BirthText birth;
  std::string name, gender = "Male", city, country, zoneName;
  // With --tz auto: the zone whose IANA rules give the offset, when no
  // --city and --country name the place.
  std::string zoneId;
  std::string ayanamsa, language, style, bhava, days;
  std::string zeroYear, progress;
  std::int64_t chart = 0;
  std::string database;
  bool json = false;
};

// Adds the birth flags (--date ... --tz, --name ... --zone-name, --zone-id), --chart,
// --ayanamsa with --zero-year and --progress, --language and --database to
// the command. `withChartPrefs` adds --style, --bhava and --days; `withJson`
// adds --json.
void AddHoroscopeOptions(CLI::App* cmd, HoroscopeOptions& o, bool withChartPrefs, bool withJson = true);

// Opens the database, fills a context from the options, runs CalculateHoroscope
// and hands the finished context and the open database to `print`. Bad input sets status 2; a file
// or calculation failure status 1; each with one line on stderr.
void RunHoroscope(const HoroscopeOptions& o, Session& session,
                  const std::function<void(const CalculationContext&, store::Database&)>& print);

}  // namespace kelvaro::cli
