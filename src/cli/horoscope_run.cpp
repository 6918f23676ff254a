#include "cli/horoscope_run.h"

#include <CLI/CLI.hpp>

#include <cstdlib>

#include "cli/database_option.h"
#include "cli/zone_lookup.h"
#include "common/calculation_error.h"
#include "common/number_rules.h"
#include "horoscope/birth_form.h"
#include "horoscope/calculate_horoscope.h"
#include "store/chart_store.h"
#include "store/charts_master_table.h"
#include "store/country_master.h"
#include "store/database.h"
#include "store/kaliyuga_year_table.h"
#include "store/preferences.h"
#include "store/store_error.h"

namespace kelvaro::cli {

namespace {

// A saved chart's birth details, handed over as the birth form hands them.
bool ApplySavedChart(store::Database& db, std::int64_t sno, HoroscopeState& s, Session& session) {
  const auto chart = store::OpenChart(db, sno);
  if (!chart) {
    session.err << "kelvaro-cli: no saved chart has the number " << sno << "\n";
    session.status = kExitBadInput;
    return false;
  }
  const auto country = store::CountryById(db, chart->countryId);
  const BirthFormFields form = FormFieldsOf(*chart, country ? country->name : std::string());
  if (const auto problem = PlaceProblem(form, kStoredColumns)) {
    session.err << "kelvaro-cli: chart " << sno << ": " << *problem << "\n";
    session.status = kExitBadInput;
    return false;
  }
  HandOverBirthForm(form, s);
  return true;
}

bool BadInput(Session& session, const std::string& message) {
  session.err << "kelvaro-cli: " << message << "\n";
  session.status = kExitBadInput;
  return false;
}

// The flags that override the preferences, checked against their choices.
bool ApplyOverrides(const HoroscopeOptions& o, HoroscopeState& s, Session& session) {
  if (!o.ayanamsa.empty() || !o.zeroYear.empty() || !o.progress.empty()) {
    const std::string name = o.ayanamsa.empty() ? s.AyanamsaName : o.ayanamsa;
    const auto year = o.zeroYear.empty() ? NumberText(s.PrefYear) : o.zeroYear;
    const auto progress = o.progress.empty() ? NumberText(s.PrefProgress) : o.progress;
    if (const auto error = ApplyAyanamsa(name, year, progress, "--", s)) return BadInput(session, error->Message());
  }
  if (!o.language.empty()) s.Language = o.language;
  if (s.Language != "English" && s.Language != "Sanskrit") {
    return BadInput(session, "--language \"" + s.Language + "\": must be English or Sanskrit");
  }
  if (!o.style.empty()) {
    if (o.style != "South" && o.style != "North" && o.style != "East") {
      return BadInput(session, "--style \"" + o.style + "\": must be South, North or East");
    }
    s.ChartStyle = o.style;
  }
  if (!o.bhava.empty()) {
    if (o.bhava != "Equal" && o.bhava != "Not Equal") {
      return BadInput(session, "--bhava \"" + o.bhava + "\": must be Equal or \"Not Equal\"");
    }
    s.BhavaSystem = o.bhava;
  }
  if (!o.days.empty()) {
    if (o.days != "365.25" && o.days != "360") return BadInput(session, "--days \"" + o.days + "\": must be 365.25 or 360");
    s.DaysInYear = o.days == "360" ? 360 : 365.25;
  }
  return true;
}

// --tz auto: the offset in force at the place and moment by the IANA rules,
// with its reason kept for the summary and the report.
bool ApplyZoneRules(const HoroscopeOptions& o, store::Database& db, HoroscopeState& s, Session& session) {
  ZoneQuery query;
  query.city = o.zoneId.empty() ? o.city : std::string();
  query.country = o.country;
  query.zoneId = o.zoneId;
  query.date = o.birth.date;
  query.time = o.birth.time;
  query.lat = o.birth.lat;
  query.lon = o.birth.lon;
  ZoneAnswer answer;
  if (const auto error = ResolveZone([&db]() -> store::Database& { return db; }, query, answer)) {
    return BadInput(session, error->Message());
  }
  BirthText birth = o.birth;
  birth.lat = answer.lat;
  birth.lon = answer.lon;
  birth.tz = TzText(answer.offset.offsetSeconds);
  if (const auto error = ApplyBirthDetails(birth, "--", s)) return BadInput(session, error->Message());
  // The exact offset: a local mean time is not a whole number of minutes.
  s.TimeDiff = std::abs(answer.offset.offsetSeconds) / 3600.0;
  s.TimeDiffEW = answer.offset.offsetSeconds < 0 ? "W" : "E";
  if (s.BirthTimeZoneName.empty()) s.BirthTimeZoneName = answer.offset.zoneId;
  s.ClockOffsetNote = answer.audit;
  return true;
}

}  // namespace

void AddHoroscopeOptions(CLI::App* cmd, HoroscopeOptions& o, bool withChartPrefs, bool withJson) {
  auto* date = cmd->add_option("--date", o.birth.date, "Date of birth, DD/MM/YYYY");
  auto* time = cmd->add_option("--time", o.birth.time, "Clock time of birth, HH:MM on a 24-hour clock");
  auto* lat = cmd->add_option("--lat", o.birth.lat, "Latitude, DEG{N|S}MIN, e.g. 17N20");
  auto* lon = cmd->add_option("--lon", o.birth.lon, "Longitude, DEG{E|W}MIN, e.g. 78E30");
  auto* tz = cmd->add_option("--tz", o.birth.tz, "Time zone, HOURS{E|W}, e.g. 5.5E or 8W");
  cmd->add_option("--name", o.name, "Name");
  cmd->add_option("--gender", o.gender, "Male or Female")->check(CLI::IsMember({"Male", "Female"}));
  cmd->add_option("--city", o.city, "City of birth, as shown");
  cmd->add_option("--country", o.country, "Country of birth, as shown");
  cmd->add_option("--zone-name", o.zoneName, "Time zone, as shown");
  auto* zoneId = cmd->add_option("--zone-id", o.zoneId, "IANA zone for --tz auto, with --lat and --lon (as Asia/Kolkata)");
  cmd->add_option("--ayanamsa", o.ayanamsa, "Lahiri, Raman, KP, Sayana or Custom (default: the preferences)");
  cmd->add_option("--zero-year", o.zeroYear, "Zero year of the Custom ayanamsa");
  cmd->add_option("--progress", o.progress, "Yearly progress of the Custom ayanamsa, seconds of arc");
  cmd->add_option("--language", o.language, "English or Sanskrit (default: the preferences)");
  if (withChartPrefs) {
    cmd->add_option("--style", o.style, "South, North or East (default: the preferences)");
    cmd->add_option("--bhava", o.bhava, "Equal or \"Not Equal\" (default: the preferences)");
    cmd->add_option("--days", o.days, "Days in a year of the dasa, 365.25 or 360 (default: the preferences)");
  }
  auto* chart = cmd->add_option("--chart", o.chart, "Number (Sno) of a saved chart");
  cmd->add_option("--database", o.database, "Database file (default: the per-user data folder)");
  if (withJson) cmd->add_flag("--json", o.json, "Print JSON");
  for (auto* opt : {date, time, lat, lon, tz, zoneId}) chart->excludes(opt);
}

void RunHoroscope(const HoroscopeOptions& o, Session& session,
                  const std::function<void(const CalculationContext&, store::Database&)>& print) {
  const bool fromChart = o.chart != 0;
  if (!fromChart) {
    for (const auto& [value, flag] : {std::pair{&o.birth.date, "--date"}, std::pair{&o.birth.time, "--time"},
                                      std::pair{&o.birth.lat, "--lat"}, std::pair{&o.birth.lon, "--lon"},
                                      std::pair{&o.birth.tz, "--tz"}}) {
      // --tz auto with --city takes the place's latitude and longitude.
      const bool fromPlace = o.birth.tz == "auto" && !o.city.empty() && o.zoneId.empty();
      if (value->empty() && !(fromPlace && (value == &o.birth.lat || value == &o.birth.lon))) {
        BadInput(session, std::string(flag) + " is required (or give --chart ID)");
        return;
      }
    }
  }
  for (const auto& [value, flag] : {std::pair{&o.name, "--name"}, std::pair{&o.city, "--city"},
                                    std::pair{&o.country, "--country"}, std::pair{&o.zoneName, "--zone-name"}}) {
    if (!IsValidUtf8(*value)) {
      BadInput(session, std::string(flag) + " \"" + MessageValue(*value) + "\": not valid UTF-8 text");
      return;
    }
  }
  try {
    store::Database db(DatabasePathOrDefault(o.database));
    store::DatabaseKaliyugaYearTable years(db);
    store::DatabaseChartsMasterTable charts(db);
    // The tool reads the database and writes nothing to it: the tempBhukthi
    // rows of the dasa step are not kept.
    CalculationContext ctx(&years, &charts);
    HoroscopeState& s = ctx.state;
    ApplyPreferences(store::ReadPreferences(db), s);
    if (fromChart) {
      if (!ApplySavedChart(db, o.chart, s, session)) return;
      ctx.UserId = std::to_string(o.chart);
    } else {
      s.ChartName = o.name;
      s.BirthGender = o.gender;
      s.BirthCity = o.city;
      s.BirthCountry = o.country;
      s.BirthTimeZoneName = o.zoneName;
      if (o.birth.tz == "auto") {
        if (!ApplyZoneRules(o, db, s, session)) return;
      } else if (const auto error = ApplyBirthDetails(o.birth, "--", s)) {
        BadInput(session, error->Message());
        return;
      }
    }
    if (!ApplyOverrides(o, s, session)) return;
    CalculateHoroscope(ctx);
    print(ctx, db);
  } catch (const store::StoreError& e) {
    session.err << "kelvaro-cli: " << e.what() << "\n";
    session.status = kExitFailure;
  } catch (const CalculationError& e) {
    session.err << "kelvaro-cli: " << e.what() << "\n";
    session.status = kExitFailure;
  }
}

}  // namespace kelvaro::cli
