// kelvaro-cli almanac: the daily almanac of a date, or of N days from it, at a
// city of the database or at a latitude, longitude and zone; as text, JSON or
// the month-at-a-glance sheet in a PDF file.
#include <CLI/CLI.hpp>
#include <fmt/format.h>

#include <memory>
#include <nlohmann/json.hpp>
#include <optional>
#include <string>
#include <vector>

#include "cli/birth_input.h"
#include "cli/cli.h"
#include "cli/database_option.h"
#include "cli/gui_start.h"
#include "common/calculation_error.h"
#include "common/date_text.h"
#include "common/number_rules.h"
#include "common/text_checks.h"
#include "horoscope/almanac_month_lines.h"
#include "horoscope/birth_form.h"
#include "horoscope/daily_almanac.h"
#include "render/almanac_month_pdf.h"
#include "report/destinations.h"
#include "store/city_master.h"
#include "store/country_master.h"
#include "store/database.h"
#include "store/kaliyuga_year_table.h"
#include "store/preferences.h"
#include "store/store_error.h"
#include "store/time_zone_master.h"

namespace kelvaro::cli {

namespace {

// Enough for a year at a glance and a little over; past it a run is a batch job.
constexpr int kMaxDays = 400;

struct AlmanacOptions {
  std::string date;
  std::string city, country, zone;
  std::string lat, lon, tz;
  std::string ayanamsa, zeroYear, progress;
  int days = 1;
  bool json = false;
  std::string format = "text";
  std::string output;
  std::string paper = "A4";
  std::string database;
};

// The place as the sheet's heading names it: the city and country asked
// for, or the numbers given.
std::string SheetPlace(const AlmanacOptions& o) {
  if (!o.city.empty()) return o.city + ", " + o.country;
  return o.lat + " " + o.lon + " (zone " + o.tz + ")";
}

// "January 2024" for a whole month from its first day, else the dates.
std::string SheetPeriod(OleDate first, int days) {
  static constexpr const char* kMonths[] = {"January", "February", "March",     "April",   "May",      "June",
                                            "July",    "August",   "September", "October", "November", "December"};
  const DateParts p = first.Parts();
  if (p.day == 1 && days == OleDate::DaysInMonth(p.year, p.month)) {
    return std::string(kMonths[p.month - 1]) + " " + std::to_string(p.year);
  }
  const std::string from = FormatDate(first, "DD/MM/YYYY");
  return days == 1 ? from : from + " to " + FormatDate(DateAdd(Interval::Day, days - 1, first), "DD/MM/YYYY");
}

void WriteSheet(const AlmanacOptions& o, OleDate first, const std::vector<DailyAlmanac>& days, Session& session) {
  AlmanacMonthSheet sheet{SheetPlace(o), SheetPeriod(first, o.days), {}};
  for (std::size_t i = 0; i < days.size(); ++i) {
    sheet.lines.push_back(AlmanacMonthLineOf(DateAdd(Interval::Day, static_cast<double>(i), first), days[i]));
  }
  StartGui();
  try {
    render::WriteAlmanacMonthPdf(o.output, sheet, render::PaperSizeOf(o.paper).value_or(render::PaperSize::A4));
  } catch (const ReportWriteError& e) {
    session.err << "kelvaro-cli: " << e.what() << "\n";
    session.status = kExitFailure;
  }
}

std::string Moment(OleDate m) { return FormatDate(m, "DD/MM/YYYY HH:NN:SS"); }

nlohmann::ordered_json PeriodJson(const AlmanacPeriod& p) {
  return {{"start", Moment(p.start)}, {"end", Moment(p.end)}};
}

nlohmann::ordered_json DayJson(const DailyAlmanac& d) {
  nlohmann::ordered_json j;
  j["date"] = FormatDate(d.date, "DD/MM/YYYY");
  j["vedic_weekday"] = d.vedicWeekday;
  j["gregorian_weekday"] = d.gregorianWeekday;
  j["sunrise"] = Moment(d.sunrise);
  j["sunset"] = Moment(d.sunset);
  j["next_sunrise"] = Moment(d.nextSunrise);
  j["tithi"] = d.tithi;
  j["tithi_number"] = d.tithiNo;
  j["paksha"] = d.paksha;
  j["tithi_start"] = Moment(d.tithiStart);
  j["tithi_end"] = Moment(d.tithiEnd);
  j["tithi_spans_next_sunrise"] = d.tithiSpansNextSunrise;
  j["next_tithi"] = d.nextTithi;
  j["next_tithi_end"] = Moment(d.nextTithiEnd);
  j["next_tithi_kshaya"] = d.nextTithiKshaya;
  j["karanas"] = nlohmann::ordered_json::array();
  for (const AlmanacPeriod& k : d.karanas) {
    nlohmann::ordered_json kj{{"name", k.name}};
    kj.update(PeriodJson(k));
    j["karanas"].push_back(kj);
  }
  j["star"] = d.star;
  j["pada"] = d.pada;
  j["star_start"] = Moment(d.starStart);
  j["star_end"] = Moment(d.starEnd);
  j["vishaghati"] = {{"start", Moment(d.vishaStart)},
                     {"end", Moment(d.vishaEnd)},
                     {"from_longitude", d.vishaStartText},
                     {"to_longitude", d.vishaEndText}};
  j["yoga"] = d.yoga;
  j["yoga_end"] = Moment(d.yogaEnd);
  j["lunar_date_krishnadi"] = d.lunarKrishnadi;
  j["lunar_date_sukladi"] = d.lunarSukladi;
  j["solar_date"] = d.solarDate;
  j["year_name"] = d.yearName;
  j["rahu_kalam"] = PeriodJson(d.rahuKalam);
  j["yamaganda"] = PeriodJson(d.yamaganda);
  j["gulika_kalam"] = PeriodJson(d.gulikaKalam);
  j["horas"] = nlohmann::ordered_json::array();
  for (const AlmanacHora& h : d.horas) j["horas"].push_back({{"lord", h.lord}, {"start", h.start}, {"end", h.end}});
  j["lagna_at_sunrise"] = d.lagnaAtSunrise;
  j["planets"] = nlohmann::ordered_json::array();
  for (const AlmanacPlanet& p : d.planets) {
    nlohmann::ordered_json pj{{"name", p.name}, {"longitude", p.longitude}, {"sign", p.sign},
                              {"star", p.star}, {"pada", p.pada},           {"strength", p.strength}};
    pj["nature"] = p.hasNature ? nlohmann::ordered_json(p.nature) : nlohmann::ordered_json(nullptr);
    j["planets"].push_back(pj);
  }
  return j;
}

void PrintDay(const DailyAlmanac& d, std::ostream& out) {
  const auto line = [&out](const char* label, const std::string& text) {
    out << fmt::format("{:<24}: {}\n", label, text);
  };
  const auto until = [](const std::string& name, OleDate end) { return name + " until " + Moment(end); };
  line("Date", FormatDate(d.date, "DD/MM/YYYY") + " " + d.gregorianWeekday + " (Vedic day " + d.vedicWeekday + ")");
  line("Sunrise", Moment(d.sunrise));
  line("Sunset", Moment(d.sunset));
  line("Next sunrise", Moment(d.nextSunrise));
  line("Tithi", until(d.tithi + ", " + d.paksha, d.tithiEnd) +
                    (d.tithiSpansNextSunrise ? " (holds at the next sunrise too)" : ""));
  line("Next tithi", until(d.nextTithi, d.nextTithiEnd) + (d.nextTithiKshaya ? " (kshaya: at no sunrise)" : ""));
  for (const AlmanacPeriod& k : d.karanas) line("Karana", k.name + " " + Moment(k.start) + " to " + Moment(k.end));
  line("Star", until(d.star + ", Pada " + std::to_string(d.pada), d.starEnd));
  line("Vishaghati", Moment(d.vishaStart) + " to " + Moment(d.vishaEnd) + " (" + d.vishaStartText + " to " +
                         d.vishaEndText + ")");
  line("Yoga", until(d.yoga, d.yogaEnd));
  line("Lunar Date (Krishnadi)", d.lunarKrishnadi);
  line("Lunar Date (Sukladi)", d.lunarSukladi);
  line("Solar Date", d.solarDate);
  line("Year", d.yearName);
  for (const AlmanacPeriod* p : {&d.rahuKalam, &d.yamaganda, &d.gulikaKalam}) {
    line(p->name.c_str(), Moment(p->start) + " to " + Moment(p->end));
  }
  std::string horas;
  for (const AlmanacHora& h : d.horas) horas += (horas.empty() ? "" : ", ") + h.lord.substr(0, 3) + " " + h.start;
  line("Horas", horas);
  out << fmt::format("{:<8} {:>9}  {:<11} {:<22} {:<4} {:<8} {}\n", "Planet", "Longitude", "Sign", "Star", "Pada",
                     "Strength", "Nature");
  for (const AlmanacPlanet& p : d.planets) {
    out << fmt::format("{:<8} {:>9.4f}  {:<11} {:<22} {:<4} {:<8} {}\n", p.name, p.longitude, p.sign, p.star, p.pada,
                       p.strength, p.hasNature ? std::to_string(p.nature) : "");
  }
}

bool BadInput(Session& session, const std::string& message) {
  session.err << "kelvaro-cli: " << message << "\n";
  session.status = kExitBadInput;
  return false;
}

// The place and ayanamsa into `s`, from the city and country of the database
// or from the three flags; false (with the message said) on bad input.
bool ReadPlace(const AlmanacOptions& o, store::Database& db, HoroscopeState& s, Session& session) {
  const bool byCity = !o.city.empty() || !o.country.empty();
  const bool byNumbers = !o.lat.empty() || !o.lon.empty() || !o.tz.empty();
  if (byCity == byNumbers) {
    return BadInput(session, "name the place by --city and --country, or by --lat, --lon and --tz");
  }
  BirthText text;
  text.date = o.date;
  text.time = "12:00";  // the almanac runs from the date's sunrise; the clock is not read
  text.lat = byNumbers ? o.lat : "0N0";
  text.lon = byNumbers ? o.lon : "0E0";
  text.tz = byNumbers ? o.tz : "0E";
  if (const auto error = ApplyBirthDetails(text, "--", s)) return BadInput(session, error->Message());
  if (byCity) {
    const auto country = o.country.empty() ? std::nullopt : store::CountryByName(db, o.country);
    if (!country) return BadInput(session, "Select Country");
    const auto city = o.city.empty() ? std::nullopt : store::CityByName(db, country->id, o.city);
    if (!city) return BadInput(session, "Select City");
    std::optional<store::ZoneRow> zone;
    for (const auto& z : store::ZonesOf(db, country->id)) {
      if (o.zone.empty() || z.place == o.zone) {
        zone = z;
        break;
      }
    }
    if (!zone) return BadInput(session, "Select Timezone");
    BirthFormFields place;
    place.latDeg = city->latDeg, place.latNS = city->latNS, place.latMin = city->latMin;
    place.lonDeg = city->lonDeg, place.lonEW = city->lonEW, place.lonMin = city->lonMin;
    place.timeDiff = zone->timeDifference, place.timeDiffEW = zone->direction;
    if (const auto problem = PlaceProblem(place, kStoredColumns)) {
      return BadInput(session, MessageValue(city->name) + ": " + *problem);
    }
    s.LatDeg = city->latDeg, s.LatMin = city->latMin, s.LatNS = city->latNS;
    s.LonDeg = city->lonDeg, s.LonMin = city->lonMin, s.LonEW = city->lonEW;
    s.TimeDiff = zone->timeDifference, s.TimeDiffEW = zone->direction;
  }
  if (!o.ayanamsa.empty() || !o.zeroYear.empty() || !o.progress.empty()) {
    const std::string name = o.ayanamsa.empty() ? s.AyanamsaName : o.ayanamsa;
    const auto year = o.zeroYear.empty() ? NumberText(s.PrefYear) : o.zeroYear;
    const auto progress = o.progress.empty() ? NumberText(s.PrefProgress) : o.progress;
    if (const auto error = ApplyAyanamsa(name, year, progress, "--", s)) return BadInput(session, error->Message());
  }
  return true;
}

void RunAlmanac(const AlmanacOptions& o, Session& session) {
  for (const auto* value : {&o.city, &o.country, &o.zone}) {
    if (!IsValidUtf8(*value)) {
      BadInput(session, "\"" + MessageValue(*value) + "\": not valid UTF-8 text");
      return;
    }
  }
  if (o.days < 1 || o.days > kMaxDays) {
    BadInput(session, "--days \"" + std::to_string(o.days) + "\": must be 1 to " + std::to_string(kMaxDays));
    return;
  }
  try {
    store::Database db(DatabasePathOrDefault(o.database));
    HoroscopeState s;
    ApplyPreferences(store::ReadPreferences(db), s);
    if (!ReadPlace(o, db, s, session)) return;
    store::DatabaseKaliyugaYearTable years(db);
    DailyAlmanacMaker maker(years);
    AlmanacPlace place;
    place.place = {s.LatNS, s.LatDeg, s.LatMin, s.LonEW, s.LonDeg, s.LonMin, s.TimeDiff, s.TimeDiffEW};
    place.ayanamsa = s.AyanamsaInForce;
    place.customYear = s.YearInForce;
    place.customProgress = s.ProgressInForce;
    // ApplyBirthDetails has checked the date's form and range.
    const OleDate first = ParseDateTime(o.date).value();
    // Everything is worked out before anything is printed, so a failure on
    // a later day leaves no half-written output.
    std::vector<DailyAlmanac> days;
    for (int i = 0; i < o.days; ++i) days.push_back(maker.DayOf(DateAdd(Interval::Day, i, first), place));
    if (o.format == "pdf") {
      WriteSheet(o, first, days, session);
    } else if (o.json) {
      nlohmann::ordered_json j;
      if (o.days == 1) {
        j = DayJson(days.front());
      } else {
        j = nlohmann::ordered_json::array();
        for (const DailyAlmanac& d : days) j.push_back(DayJson(d));
      }
      session.out << j.dump(2, ' ', false, nlohmann::json::error_handler_t::replace) << "\n";
    } else {
      for (std::size_t i = 0; i < days.size(); ++i) {
        if (i > 0) session.out << "\n";
        PrintDay(days[i], session.out);
      }
    }
  } catch (const store::StoreError& e) {
    session.err << "kelvaro-cli: " << e.what() << "\n";
    session.status = kExitFailure;
  } catch (const CalculationError& e) {
    session.err << "kelvaro-cli: " << e.what() << "\n";
    session.status = kExitFailure;
  }
}

}  // namespace

void RegisterAlmanacCommand(CLI::App& app, Session& session) {
  auto o = std::make_shared<AlmanacOptions>();
  auto* cmd = app.add_subcommand("almanac", "The daily almanac of a date, or of N days from it, at a place");
  cmd->add_option("--date", o->date, "First day, DD/MM/YYYY")->required();
  cmd->add_option("--city", o->city, "City, as the database has it (with --country)");
  cmd->add_option("--country", o->country, "Country, as the database has it");
  cmd->add_option("--zone", o->zone, "Time zone of the country (default: its first)");
  cmd->add_option("--lat", o->lat, "Latitude, DEG{N|S}MIN, e.g. 17N20 (with --lon and --tz)");
  cmd->add_option("--lon", o->lon, "Longitude, DEG{E|W}MIN, e.g. 78E30");
  cmd->add_option("--tz", o->tz, "Zone, HOURS{E|W}, e.g. 5.5E");
  cmd->add_option("--days", o->days, "Number of days from the date (default 1)");
  cmd->add_option("--ayanamsa", o->ayanamsa, "Lahiri, Raman, KP, Sayana or Custom (default: the preferences)");
  cmd->add_option("--zero-year", o->zeroYear, "Zero year of the Custom ayanamsa");
  cmd->add_option("--progress", o->progress, "Yearly progress of the Custom ayanamsa, seconds of arc");
  cmd->add_flag("--json", o->json, "Print JSON: one object, or an array of them with --days");
  cmd->add_option("--format", o->format, "text or pdf (the month-at-a-glance sheet, with --output)")
      ->check(CLI::IsMember({"text", "pdf"}));
  cmd->add_option("--output", o->output, "PDF file to write");
  cmd->add_option("--paper", o->paper, "Paper of the PDF: A4 or Letter")
      ->check(CLI::IsMember({"A4", "Letter"}, CLI::ignore_case));
  cmd->add_option("--database", o->database, "Database file (default: the per-user data folder)");
  cmd->callback([&session, o]() {
    if (o->format == "pdf" && (o->output.empty() || o->json)) {
      session.err << "kelvaro-cli: --format pdf needs --output FILE, and no --json\n";
      session.status = kExitBadInput;
      return;
    }
    RunAlmanac(*o, session);
  });
}

}  // namespace kelvaro::cli
