#include "horoscope/time_conversion.h"

#include <charconv>

#include "astronomy/find_sunrise.h"
#include "common/calculation_error.h"
#include "common/date_text.h"
#include "common/text_checks.h"
#include "horoscope/birth_form.h"

namespace kelvaro {

namespace {

// The lists hold whole numbers; ValidateConverter has checked them.
double ListNumber(const std::string& text) {
  const auto first = text.find_first_not_of(' ');
  int value = 0;
  if (first != std::string::npos) std::from_chars(text.data() + first, text.data() + text.size(), value);
  return value;
}

}  // namespace

std::optional<store::ZoneRow> ConverterZone(store::Database& db, std::int64_t countryId, const std::string& zoneName) {
  for (auto& zone : store::ZonesOf(db, countryId)) {
    if (zoneName.empty() || zone.place == zoneName) return zone;
  }
  return std::nullopt;
}

ConversionOutcome ConvertTime(const ConverterEntry& entry, Conversion conversion,
                              const std::optional<store::CityRow>& city, const std::optional<store::ZoneRow>& zone) {
  ConversionOutcome out;
  out.problem = ValidateConverter(entry, conversion);
  if (out.problem) return out;
  if (!city) {
    out.problem = ConverterProblem{"Cmb_VP_City", "Select City"};
    return out;
  }
  if (!zone) {
    out.problem = ConverterProblem{"cbTimeZone", "Select Timezone"};
    return out;
  }
  // A stored place that no birth can have (a damaged or hand-edited store).
  BirthFormFields place;
  place.latDeg = city->latDeg, place.latNS = city->latNS, place.latMin = city->latMin;
  place.lonDeg = city->lonDeg, place.lonEW = city->lonEW, place.lonMin = city->lonMin;
  place.timeDiff = zone->timeDifference, place.timeDiffEW = zone->direction;
  if (const auto problem = PlaceProblem(place, kStoredColumns)) {
    out.problem = ConverterProblem{"Cmb_VP_City", MessageValue(city->name) + ": " + *problem};
    return out;
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
      throw CalculationError("No sunrise at " + MessageValue(city->name) + " on " + FormatDate(date, "dd/MMM/yyyy") +
                             ": " + why);
    }
    return sunrise;
  };
  if (conversion == Conversion::ToIshtaGhati) {
    const auto moment = ConverterMoment(entry);
    if (!moment) throw CalculationError("\"" + entry.day + "/" + entry.month + "/" + entry.year + "\" is not a moment");
    out.text = BirthTimeToIshtaGhati(*moment, sunriseOf).Text();
    return out;
  }
  // The lists hold ghatis and vighatis here, not a clock: noon stands in for
  // the time so that the date alone makes the moment.
  ConverterEntry dateOnly = entry;
  dateOnly.hour = "12";
  dateOnly.minute = "0";
  dateOnly.pm = false;
  const auto day = ConverterMoment(dateOnly);
  if (!day) {
    out.problem = ConverterProblem{"txtDate", "Enter Correct Date"};
    return out;
  }
  out.text = BirthTimeText(
      IshtaGhatiToBirthTime(day->DateOnly(), ListNumber(entry.hour), ListNumber(entry.minute), sunriseOf));
  return out;
}

}  // namespace kelvaro
