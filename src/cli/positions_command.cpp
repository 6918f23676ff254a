// kelvaro-cli positions: the positions, the day's limits, Gulika and Maandi of
// one birth, or of every row of a CSV file.
#include <CLI/CLI.hpp>
#include <cmath>
#include <memory>
#include <fmt/format.h>

#include <filesystem>
#include <fstream>
#include <nlohmann/json.hpp>
#include <sstream>
#include <string>
#include <vector>

#include "cli/birth_input.h"
#include "cli/cli.h"
#include "cli/database_option.h"
#include "cli/zone_lookup.h"
#include "store/database.h"
#include "store/store_error.h"
#include "common/angle_text.h"
#include "common/calculation_error.h"
#include "common/date_text.h"
#include "common/number_rules.h"
#include "horoscope/calculation_context.h"

namespace kelvaro::cli {

namespace {

constexpr const char* kBodyKeys[kBodyCount] = {"lagna",   "sun",   "moon",   "mars", "mercury", "jupiter",
                                               "venus",   "saturn", "rahu",  "ketu", "gulika",  "maandi"};
constexpr const char* kBodyLabels[kBodyCount] = {"Lagna",  "Sun",    "Moon", "Mars", "Mercury", "Jupiter",
                                                 "Venus",  "Saturn", "Rahu", "Ketu", "Gulika",  "Maandi"};

std::string Clock24(OleDate moment) { return FormatDate(moment, "DD/MM/YYYY HH:NN"); }

// A sunrise or sunset: its true moment (on the next date when it falls after
// midnight), or the words that say there is none.
std::string SunEventText(const SunEvent& event) {
  return event.Known() ? Clock24(event.moment) : std::string(SunEventWords(event));
}

// Where no sunrise or sunset bounds the birth's day.
constexpr const char* kLeftOut = "left out: no sunrise or sunset bounds the day";

bool LeftOut(const HoroscopeState& s, int body) {
  return !s.GulikaMaandiKnown && (body == static_cast<int>(Body::Gulika) || body == static_cast<int>(Body::Maandi));
}

// 205.2472 -> 205°14'50", by the program's own angle rule.
std::string DegreesMinutesSeconds(double angle) {
  const AngleParts p = SplitAngle(angle);
  return fmt::format("{}{}°{:02d}'{:02d}\"", p.negative ? "-" : "", p.degrees, p.minutes, p.seconds);
}

nlohmann::ordered_json PositionsJson(const HoroscopeState& s) {
  nlohmann::ordered_json j;
  for (int b = 0; b < 10; ++b) j[kBodyKeys[b]] = s.LongitudeOf(static_cast<Body>(b));
  j["midheaven"] = s.MidHeaven;
  j["ayanamsa"] = s.Ayanamsa;
  j["sunrise"] = SunEventText(s.SunriseEvent);
  j["sunset"] = SunEventText(s.SunsetEvent);
  const bool known = s.GulikaMaandiKnown;
  j["day_or_night"] = known ? nlohmann::ordered_json(s.DayOrNight) : nlohmann::ordered_json();
  j["gulika"] = known ? nlohmann::ordered_json(s.GulikaLon) : nlohmann::ordered_json();
  j["maandi"] = known ? nlohmann::ordered_json(s.MaandiLon) : nlohmann::ordered_json();
  nlohmann::ordered_json rasi;
  for (int b = 0; b < kBodyCount; ++b) {
    rasi[kBodyKeys[b]] = LeftOut(s, b) ? nlohmann::ordered_json() : nlohmann::ordered_json(s.RasiOf(static_cast<Body>(b)));
  }
  j["rasi"] = rasi;
  return j;
}

std::string PositionsTable(const HoroscopeState& s) {
  std::string out;
  out += fmt::format("{:<10} {:>13}  {:<11} {:>10}\n", "Body", "Longitude", "Rasi", "In rasi");
  for (int b = 0; b < kBodyCount; ++b) {
    if (LeftOut(s, b)) {
      out += fmt::format("{:<10} {}\n", kBodyLabels[b], kLeftOut);
      continue;
    }
    const Body body = static_cast<Body>(b);
    const double lon = s.LongitudeOf(body);
    const int rasi = s.RasiOf(body);
    out += fmt::format("{:<10} {:>13}  {:<11} {:>10}\n", kBodyLabels[b], DegreesMinutesSeconds(lon),
                       s.RasiNames[static_cast<size_t>(rasi - 1)], DegreesMinutesSeconds(lon - (rasi - 1) * 30.0));
  }
  out += fmt::format("{:<10} {:>13}\n", "Midheaven", DegreesMinutesSeconds(s.MidHeaven));
  out += fmt::format("{:<10} {:>13}  ({})\n", "Ayanamsa", DegreesMinutesSeconds(s.Ayanamsa), s.AyanamsaName);
  out += fmt::format("{:<10} {}\n", "Sunrise", SunEventText(s.SunriseEvent));
  out += fmt::format("{:<10} {}\n", "Sunset", SunEventText(s.SunsetEvent));
  out += fmt::format("{:<10} {}\n", "Birth by", s.GulikaMaandiKnown ? s.DayOrNight : kLeftOut);
  return out;
}

// Runs one birth on a fresh context, so every result depends on its own row
// alone and never on what was calculated before it.
// `offsetSeconds`, when given, is the exact offset of the zone rules (a local
// mean time is no whole number of minutes).
HoroscopeState Calculate(const BirthText& text, const std::string& prefix, std::optional<InputError>& error,
                         std::optional<int> offsetSeconds = std::nullopt) {
  CalculationContext ctx;
  error = ApplyBirthText(text, prefix, ctx.state);
  if (error) return ctx.state;
  if (offsetSeconds) {
    ctx.state.TimeDiff = std::abs(*offsetSeconds) / 3600.0;
    ctx.state.TimeDiffEW = *offsetSeconds < 0 ? "W" : "E";
  }
  ctx.state.Language = "English";
  LoadNamesForLanguage(ctx.state);
  ComputeChartPositions(ctx, kRasiDivision);
  return ctx.state;
}

std::vector<std::string> SplitCsvLine(std::string line) {
  if (!line.empty() && line.back() == '\r') line.pop_back();
  std::vector<std::string> fields;
  std::string field;
  bool quoted = false;
  for (size_t i = 0; i < line.size(); ++i) {
    const char c = line[i];
    if (quoted) {
      if (c == '"' && i + 1 < line.size() && line[i + 1] == '"') {
        field += '"';
        ++i;
      } else if (c == '"') {
        quoted = false;
      } else {
        field += c;
      }
    } else if (c == '"') {
      quoted = true;
    } else if (c == ',') {
      fields.push_back(field);
      field.clear();
    } else {
      field += c;
    }
  }
  fields.push_back(field);
  for (auto& f : fields) {
    while (!f.empty() && f.front() == ' ') f.erase(f.begin());
    while (!f.empty() && f.back() == ' ') f.pop_back();
  }
  return fields;
}

// The longest line a batch row may have; a longer one (an endless input with
// no line break among it) ends the batch instead of filling the memory.
constexpr std::size_t kMaxBatchLine = 4096;

enum class LineRead { Line, End, TooLong };

LineRead ReadBatchLine(std::istream& in, std::string& line) {
  line.clear();
  char c;
  while (in.get(c)) {
    if (c == '\n') return LineRead::Line;
    if (line.size() == kMaxBatchLine) return LineRead::TooLong;
    line += c;
  }
  return line.empty() ? LineRead::End : LineRead::Line;
}

void RunBatch(const std::string& path, Session& session) {
  std::error_code ec;
  if (std::filesystem::is_directory(path, ec)) {
    session.err << "kelvaro-cli: batch file \"" << MessageValue(path) << "\" is a folder, not a file\n";
    session.status = kExitFailure;
    return;
  }
  std::ifstream in(path, std::ios::binary);
  if (!in) {
    session.err << "kelvaro-cli: cannot open batch file \"" << MessageValue(path) << "\"\n";
    session.status = kExitFailure;
    return;
  }
  const auto tooLong = [&](long row) {
    session.err << "kelvaro-cli: batch file \"" << MessageValue(path) << "\": row " << row << " is longer than "
                << kMaxBatchLine << " characters; the batch stops there\n";
    session.status = kExitBadInput;
  };
  std::string line;
  const LineRead first = ReadBatchLine(in, line);
  if (first == LineRead::TooLong) return tooLong(1);
  if (first == LineRead::End) {
    session.err << "kelvaro-cli: batch file \"" << MessageValue(path) << "\" is empty\n";
    session.status = kExitBadInput;
    return;
  }
  // A byte order mark, as some spreadsheets write one, is no part of the header.
  if (line.rfind("\xEF\xBB\xBF", 0) == 0) line.erase(0, 3);
  if (!line.empty() && line.back() == '\r') line.pop_back();
  const std::vector<std::string> header = SplitCsvLine(line);
  const std::vector<std::string> required = {"date", "time", "lat", "lon", "tz", "ayanamsa"};
  const std::vector<std::string> custom = {"date", "time", "lat", "lon", "tz", "ayanamsa", "zero_year", "progress"};
  if (header != required && header != custom) {
    session.err << "kelvaro-cli: batch file \"" << path
                << "\": the header must be date,time,lat,lon,tz,ayanamsa (optionally ,zero_year,progress)\n";
    session.status = kExitBadInput;
    return;
  }
  long rowNumber = 1;  // the header is row 1
  long rows = 0, rejected = 0, failed = 0;
  std::string buffer;
  bool stopped = false;
  for (LineRead read; (read = ReadBatchLine(in, line)) != LineRead::End;) {
    ++rowNumber;
    if (read == LineRead::TooLong) {
      stopped = true;
      break;
    }
    if (line.empty() || line == "\r") continue;
    ++rows;
    const std::vector<std::string> f = SplitCsvLine(line);
    if (f.size() != header.size()) {
      session.err << "kelvaro-cli: row " << rowNumber << ": expected " << header.size() << " fields, found "
                  << f.size() << "\n";
      ++rejected;
      continue;
    }
    BirthText text{f[0], f[1], f[2], f[3], f[4], f[5], std::nullopt, std::nullopt};
    if (f.size() == 8 && !f[6].empty()) text.zeroYear = f[6];
    if (f.size() == 8 && !f[7].empty()) text.progress = f[7];
    try {
      std::optional<InputError> error;
      const HoroscopeState s = Calculate(text, "", error);
      if (error) {
        session.err << "kelvaro-cli: row " << rowNumber << ": " << error->Message() << "\n";
        ++rejected;
        continue;
      }
      buffer += PositionsJson(s).dump(-1, ' ', false, nlohmann::json::error_handler_t::replace);
      buffer += '\n';
      if (buffer.size() > (1 << 16)) {
        session.out << buffer;
        buffer.clear();
      }
    } catch (const CalculationError& e) {
      session.err << "kelvaro-cli: row " << rowNumber << ": " << e.what() << "\n";
      ++failed;
    }
  }
  session.out << buffer;
  session.out.flush();
  if (rejected + failed > 0) {
    session.err << "kelvaro-cli: " << (rejected + failed) << " of " << rows << " rows rejected\n";
    session.status = rejected > 0 ? kExitBadInput : kExitFailure;
  }
  if (stopped) tooLong(rowNumber);
}

}  // namespace

void RegisterPositionsCommand(CLI::App& app, Session& session) {
  auto* cmd = app.add_subcommand("positions", "Sidereal positions, sunrise and sunset, Gulika and Maandi of a birth");
  auto text = std::make_shared<BirthText>();
  auto zeroYear = std::make_shared<std::string>();
  auto progress = std::make_shared<std::string>();
  auto json = std::make_shared<bool>(false);
  auto batch = std::make_shared<std::string>();
  auto place = std::make_shared<ZoneQuery>();
  auto database = std::make_shared<std::string>();
  text->ayanamsa = "Lahiri";
  auto* date = cmd->add_option("--date", text->date, "Date of birth, DD/MM/YYYY");
  auto* time = cmd->add_option("--time", text->time, "Clock time of birth, HH:MM on a 24-hour clock");
  auto* lat = cmd->add_option("--lat", text->lat, "Latitude, DEG{N|S}MIN, e.g. 17N20");
  auto* lon = cmd->add_option("--lon", text->lon, "Longitude, DEG{E|W}MIN, e.g. 78E30");
  auto* tz = cmd->add_option("--tz", text->tz, "Time zone, HOURS{E|W}, e.g. 5.5E or 8W, or auto");
  cmd->add_option("--city", place->city, "With --tz auto: place of birth (\"Hyderabad\" or \"Hyderabad, Sindh\")");
  cmd->add_option("--country", place->country, "With --tz auto and --city: country name or CountryID");
  cmd->add_option("--zone-id", place->zoneId, "With --tz auto: IANA zone, as Asia/Kolkata (with --lat and --lon)");
  cmd->add_option("--database", *database, "With --tz auto and --city: database file (default: the per-user data folder)");
  cmd->add_option("--ayanamsa", text->ayanamsa, "Lahiri, Raman, KP, Sayana or Custom")->capture_default_str();
  auto* zy = cmd->add_option("--zero-year", *zeroYear, "Zero year of the Custom ayanamsa");
  auto* pr = cmd->add_option("--progress", *progress, "Yearly progress of the Custom ayanamsa, seconds of arc");
  cmd->add_flag("--json", *json, "Print one JSON object instead of the table");
  auto* b = cmd->add_option("--batch", *batch, "CSV file with the header date,time,lat,lon,tz,ayanamsa");
  for (auto* o : {date, time, lat, lon, tz}) b->excludes(o);
  cmd->callback([&session, text, zeroYear, progress, json, batch, b, date, time, lat, lon, tz, zy, pr, place,
                 database]() {
    if (b->count() > 0) {
      RunBatch(*batch, session);
      return;
    }
    // --tz auto with --city takes the place's latitude and longitude.
    const bool fromPlace = text->tz == "auto" && !place->city.empty() && place->zoneId.empty();
    for (auto* o : {date, time, lat, lon, tz}) {
      if (o->count() == 0 && !(fromPlace && (o == lat || o == lon))) {
        session.err << "kelvaro-cli: " << o->get_name() << " is required (or give --batch FILE)\n";
        session.status = kExitBadInput;
        return;
      }
    }
    if (zy->count() > 0) text->zeroYear = *zeroYear;
    if (pr->count() > 0) text->progress = *progress;
    std::optional<InputError> error;
    std::optional<int> offset;
    std::string audit;
    if (text->tz == "auto") {
      try {
        std::unique_ptr<store::Database> db;
        const auto open = [&]() -> store::Database& {
          if (!db) db = std::make_unique<store::Database>(DatabasePathOrDefault(*database));
          return *db;
        };
        ZoneQuery query = *place;
        if (!query.zoneId.empty()) query.city.clear();
        query.date = text->date;
        query.time = text->time;
        query.lat = text->lat;
        query.lon = text->lon;
        ZoneAnswer answer;
        error = ResolveZone(open, query, answer);
        if (!error) {
          text->lat = answer.lat;
          text->lon = answer.lon;
          text->tz = TzText(answer.offset.offsetSeconds);
          offset = answer.offset.offsetSeconds;
          audit = answer.audit;
        }
      } catch (const store::StoreError& e) {
        session.err << "kelvaro-cli: " << e.what() << "\n";
        session.status = kExitFailure;
        return;
      }
    }
    const HoroscopeState s = error ? HoroscopeState{} : Calculate(*text, "--", error, offset);
    if (error) {
      session.err << "kelvaro-cli: " << error->Message() << "\n";
      session.status = kExitBadInput;
      return;
    }
    if (*json) {
      auto j = PositionsJson(s);
      if (!audit.empty()) j["clock_offset"] = audit;
      session.out << j.dump(2, ' ', false, nlohmann::json::error_handler_t::replace) << "\n";
    } else {
      session.out << PositionsTable(s);
      if (!audit.empty()) session.out << fmt::format("{:<10} {}\n", "Clock", audit);
    }
  });
}

}  // namespace kelvaro::cli
