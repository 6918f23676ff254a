// kelvaro-cli convert: a birth time to ishta ghati, and ishta ghati back to a
// birth time, at a city of the database.
#include <CLI/CLI.hpp>

#include <memory>
#include <string>

#include "astronomy/find_sunrise.h"
#include "cli/cli.h"
#include "cli/database_option.h"
#include "common/calculation_error.h"
#include "common/date_text.h"
#include "panchanga/time_converters.h"
#include "store/city_master.h"
#include "store/country_master.h"
#include "store/database.h"
#include "store/store_error.h"
#include "store/time_zone_master.h"

namespace kelvaro::cli {

namespace {

struct ConvertOptions {
  std::string date;  // DD/MM/YYYY
  std::string time;  // HH:MM on a 24-hour clock, or hh:mm AM/PM
  std::string ghati, vighati;
  std::string city, country, zone;
  std::string database;
};

// The window's fields from the flags: the date's three parts as typed, the
// time on the window's 12-hour lists.
ConverterEntry EntryOf(const ConvertOptions& o, Conversion conversion) {
  ConverterEntry e;
  const auto a = o.date.find('/');
  const auto b = a == std::string::npos ? a : o.date.find('/', a + 1);
  if (b != std::string::npos) {
    e.day = o.date.substr(0, a);
    e.month = o.date.substr(a + 1, b - a - 1);
    e.year = o.date.substr(b + 1);
  } else {
    e.day = o.date;
  }
  if (conversion == Conversion::ToBirthTime) {
    e.hour = o.ghati;
    e.minute = o.vighati;
    return e;
  }
  int hour = 0, minute = 0;
  if (ParseClock(o.time, hour, minute)) {
    e.hour = std::to_string(hour % 12 == 0 ? 12 : hour % 12);
    e.minute = std::to_string(minute);
    e.pm = hour >= 12;
  } else {
    e.hour = o.time.empty() ? "" : "?";  // not a time: the window's own test says so
  }
  return e;
}

void RunConvert(const ConvertOptions& o, Conversion conversion, Session& session) {
  try {
    store::Database db(DatabasePathOrDefault(o.database));
    ConverterEntry entry = EntryOf(o, conversion);
    const auto country = o.country.empty() ? std::nullopt : store::CountryByName(db, o.country);
    entry.countryChosen = country.has_value();
    const auto city = (country && !o.city.empty()) ? store::CityByName(db, country->id, o.city) : std::nullopt;
    entry.cityChosen = city.has_value();
    if (const auto problem = ValidateConverter(entry, conversion)) {
      session.err << "kelvaro-cli: " << problem->message << "\n";
      session.status = kExitBadInput;
      return;
    }
    // The zone: the one named, or the country's first.
    std::optional<store::ZoneRow> zone;
    for (const auto& z : store::ZonesOf(db, country->id)) {
      if (o.zone.empty() || z.place == o.zone) {
        zone = z;
        break;
      }
    }
    if (!zone) {
      session.err << "kelvaro-cli: Select Timezone\n";
      session.status = kExitBadInput;
      return;
    }
    clsFindSunrise finder;
    // Both conversions count from a sunrise of the date; beyond the polar
    // circles there may be none, and then there is nothing to count from.
    const SunriseOfDate sunriseOf = [&](OleDate date) {
      const OleDate sunrise = finder.FnFindSunrise(date, city->latNS, city->latDeg, city->latMin, city->lonEW,
                                                   city->lonDeg, city->lonMin, 0, zone->timeDifference,
                                                   zone->direction);
      const SunEvent& event = finder.LastSunrise();
      if (event.kind != SunEventKind::OnDate) {
        const std::string why = event.Known() ? "the Sun rises only after midnight" : SunEventWords(event);
        throw CalculationError("No sunrise at " + o.city + " on " + FormatDate(date, "dd/MMM/yyyy") + ": " + why);
      }
      return sunrise;
    };
    if (conversion == Conversion::ToIshtaGhati) {
      const auto moment = ConverterMoment(entry);
      if (!moment) throw CalculationError("\"" + o.date + " " + o.time + "\" is not a moment");
      session.out << BirthTimeToIshtaGhati(*moment, sunriseOf).Text() << "\n";
    } else {
      ConverterEntry dateOnly = entry;
      dateOnly.hour = "12";
      dateOnly.minute = "0";
      const auto day = ConverterMoment(dateOnly);
      if (!day) {
        // As the other conversion says it.
        session.err << "kelvaro-cli: Enter Correct Date\n";
        session.status = kExitBadInput;
        return;
      }
      const OleDate t = IshtaGhatiToBirthTime(day->DateOnly(), std::stod(entry.hour), std::stod(entry.minute),
                                              sunriseOf);
      session.out << BirthTimeText(t) << "\n";
    }
  } catch (const store::StoreError& e) {
    session.err << "kelvaro-cli: " << e.what() << "\n";
    session.status = kExitFailure;
  } catch (const CalculationError& e) {
    session.err << "kelvaro-cli: " << e.what() << "\n";
    session.status = kExitFailure;
  }
}

void AddPlaceOptions(CLI::App* cmd, ConvertOptions& o) {
  cmd->add_option("--date", o.date, "Date, DD/MM/YYYY");
  cmd->add_option("--city", o.city, "City, as the database has it");
  cmd->add_option("--country", o.country, "Country, as the database has it");
  cmd->add_option("--zone", o.zone, "Time zone of the country (default: its first)");
  cmd->add_option("--database", o.database, "Database file (default: the per-user data folder)");
}

}  // namespace

void RegisterConvertCommand(CLI::App& app, Session& session) {
  auto* convert = app.add_subcommand("convert", "Birth time to ishta ghati and back");
  convert->require_subcommand(1);
  auto toGhati = std::make_shared<ConvertOptions>();
  auto* a = convert->add_subcommand("to-ghati", "Ishta ghati of a birth time");
  AddPlaceOptions(a, *toGhati);
  a->add_option("--time", toGhati->time, "Clock time, HH:MM on a 24-hour clock or hh:mm AM/PM");
  a->callback([&session, toGhati]() { RunConvert(*toGhati, Conversion::ToIshtaGhati, session); });
  auto toTime = std::make_shared<ConvertOptions>();
  auto* b = convert->add_subcommand("to-time", "Birth time of an ishta ghati");
  AddPlaceOptions(b, *toTime);
  b->add_option("--ghati", toTime->ghati, "Ghatis after sunrise, 0 to 60");
  b->add_option("--vighati", toTime->vighati, "Vighatis, 0 to 59");
  b->callback([&session, toTime]() { RunConvert(*toTime, Conversion::ToBirthTime, session); });
}

}  // namespace kelvaro::cli
