// kelvaro-cli summary: the birth summary of a birth given by flags or of a
// saved chart, after the whole calculation.
#include <CLI/CLI.hpp>
#include <fmt/format.h>

#include <memory>
#include <nlohmann/json.hpp>
#include <string>

#include "cli/birth_input.h"
#include "cli/cli.h"
#include "cli/database_option.h"
#include "common/calculation_error.h"
#include "common/number_rules.h"
#include "horoscope/calculate_horoscope.h"
#include "store/chart_store.h"
#include "store/country_master.h"
#include "store/database.h"
#include "store/charts_master_table.h"
#include "store/kaliyuga_year_table.h"
#include "store/preferences.h"
#include "store/store_error.h"

namespace kelvaro::cli {

namespace {

struct SummaryOptions {
  BirthText birth;
  std::string name, gender = "Male", city, country, zoneName;
  std::string ayanamsa, language;
  std::string zeroYear, progress;
  std::int64_t chart = 0;
  std::string database;
  bool json = false;
};

// The preferences in force, from the Preference row; flags override the
// ayanamsa (with its custom year and progress) and the language.
void ApplyPreferences(const store::Preferences& p, const SummaryOptions& o, HoroscopeState& s) {
  s.DaysInYear = p.dayInYear;
  s.ChartStyle = p.chartStyle;
  s.Language = o.language.empty() ? p.language : o.language;
  s.BhavaSystem = p.bhava;
  s.AyanamsaName = s.AyanamsaInForce = p.ayanamsa;
  s.PrefYear = s.YearInForce = p.customYear;
  s.PrefProgress = s.ProgressInForce = p.customProgress;
}

// A saved chart's birth details, as the birth form hands them over.
bool ApplySavedChart(store::Database& db, std::int64_t sno, HoroscopeState& s, Session& session) {
  const auto chart = store::OpenChart(db, sno);
  if (!chart) {
    session.err << "kelvaro-cli: no saved chart has the number " << sno << "\n";
    session.status = kExitBadInput;
    return false;
  }
  s.ChartName = chart->name;
  s.BirthGender = chart->gender;
  s.BirthDay = (chart->day < 10 ? "0" : "") + std::to_string(chart->day);
  s.BirthMonth = chart->month;
  s.BirthYear = std::to_string(chart->year);
  const int hour = chart->hour12 == 12 ? (chart->pm ? 12 : 0) : chart->hour12 + (chart->pm ? 12 : 0);
  s.BirthHour = hour == 0 ? "0" : (hour < 10 ? "0" : "") + std::to_string(hour);
  s.BirthMinute = (chart->minute < 10 ? "0" : "") + std::to_string(chart->minute);
  s.BirthCity = chart->city;
  if (const auto country = store::CountryById(db, chart->countryId)) s.BirthCountry = country->name;
  s.BirthTimeZoneName = chart->zoneText;
  s.LatDeg = chart->latDeg;
  s.LatMin = chart->latMin;
  s.LatNS = chart->latNS;
  s.LonDeg = chart->lonDeg;
  s.LonMin = chart->lonMin;
  s.LonEW = chart->lonEW;
  s.TimeDiff = chart->timeDiff;
  s.TimeDiffEW = chart->timeDiffEW;
  return true;
}

void PrintSummary(const BirthSummary& summary, bool json, Session& session) {
  if (json) {
    nlohmann::ordered_json j;
    for (const auto& f : summary.Fields()) j[f.control] = *f.text;
    session.out << j.dump(2) << "\n";
    return;
  }
  for (const auto& f : summary.Fields()) session.out << fmt::format("{:<24}: {}\n", f.label, *f.text);
}

void RunSummary(const SummaryOptions& o, bool fromChart, Session& session) {
  try {
    store::Database db(DatabasePathOrDefault(o.database));
    store::DatabaseKaliyugaYearTable years(db);
    store::DatabaseChartsMasterTable charts(db);
    // The tool reads the database and writes nothing to it: the tempBhukthi
    // rows of the dasa step are not kept.
    CalculationContext ctx(&years, &charts);
    HoroscopeState& s = ctx.state;
    ApplyPreferences(store::ReadPreferences(db), o, s);
    if (fromChart) {
      if (!ApplySavedChart(db, o.chart, s, session)) return;
      ctx.UserId = std::to_string(o.chart);
    } else {
      s.ChartName = o.name;
      s.BirthGender = o.gender;
      s.BirthCity = o.city;
      s.BirthCountry = o.country;
      s.BirthTimeZoneName = o.zoneName;
    }
    if (!fromChart) {
      if (const auto error = ApplyBirthDetails(o.birth, "--", s)) {
        session.err << "kelvaro-cli: " << error->Message() << "\n";
        session.status = kExitBadInput;
        return;
      }
    }
    if (!o.ayanamsa.empty() || !o.zeroYear.empty() || !o.progress.empty()) {
      const std::string name = o.ayanamsa.empty() ? s.AyanamsaName : o.ayanamsa;
      const auto year = o.zeroYear.empty() ? NumberText(s.PrefYear) : o.zeroYear;
      const auto progress = o.progress.empty() ? NumberText(s.PrefProgress) : o.progress;
      if (const auto error = ApplyAyanamsa(name, year, progress, "--", s)) {
        session.err << "kelvaro-cli: " << error->Message() << "\n";
        session.status = kExitBadInput;
        return;
      }
    }
    if (s.Language != "English" && s.Language != "Sanskrit") {
      session.err << "kelvaro-cli: --language \"" << s.Language << "\": must be English or Sanskrit\n";
      session.status = kExitBadInput;
      return;
    }
    CalculateHoroscope(ctx);
    PrintSummary(ctx.summary, o.json, session);
  } catch (const store::StoreError& e) {
    session.err << "kelvaro-cli: " << e.what() << "\n";
    session.status = kExitFailure;
  } catch (const CalculationError& e) {
    session.err << "kelvaro-cli: " << e.what() << "\n";
    session.status = kExitFailure;
  }
}

}  // namespace

void RegisterSummaryCommand(CLI::App& app, Session& session) {
  auto* cmd = app.add_subcommand("summary", "The birth summary: clock times, place and the almanac of the moment");
  auto o = std::make_shared<SummaryOptions>();
  auto* date = cmd->add_option("--date", o->birth.date, "Date of birth, DD/MM/YYYY");
  auto* time = cmd->add_option("--time", o->birth.time, "Clock time of birth, HH:MM on a 24-hour clock");
  auto* lat = cmd->add_option("--lat", o->birth.lat, "Latitude, DEG{N|S}MIN, e.g. 17N20");
  auto* lon = cmd->add_option("--lon", o->birth.lon, "Longitude, DEG{E|W}MIN, e.g. 78E30");
  auto* tz = cmd->add_option("--tz", o->birth.tz, "Time zone, HOURS{E|W}, e.g. 5.5E or 8W");
  cmd->add_option("--name", o->name, "Name");
  cmd->add_option("--gender", o->gender, "Male or Female")->check(CLI::IsMember({"Male", "Female"}));
  cmd->add_option("--city", o->city, "City of birth, as shown");
  cmd->add_option("--country", o->country, "Country of birth, as shown");
  cmd->add_option("--zone-name", o->zoneName, "Time zone, as shown");
  cmd->add_option("--ayanamsa", o->ayanamsa, "Lahiri, Raman, KP, Sayana or Custom (default: the preferences)");
  cmd->add_option("--zero-year", o->zeroYear, "Zero year of the Custom ayanamsa");
  cmd->add_option("--progress", o->progress, "Yearly progress of the Custom ayanamsa, seconds of arc");
  cmd->add_option("--language", o->language, "English or Sanskrit (default: the preferences)");
  auto* chart = cmd->add_option("--chart", o->chart, "Number (Sno) of a saved chart");
  cmd->add_option("--database", o->database, "Database file (default: the per-user data folder)");
  cmd->add_flag("--json", o->json, "Print one JSON object of the fields by control name");
  for (auto* opt : {date, time, lat, lon, tz}) chart->excludes(opt);
  cmd->callback([&session, o, chart, date, time, lat, lon, tz]() {
    const bool fromChart = chart->count() > 0;
    if (!fromChart) {
      for (auto* opt : {date, time, lat, lon, tz}) {
        if (opt->count() == 0) {
          session.err << "kelvaro-cli: " << opt->get_name() << " is required (or give --chart ID)\n";
          session.status = kExitBadInput;
          return;
        }
      }
    }
    RunSummary(*o, fromChart, session);
  });
}

}  // namespace kelvaro::cli
