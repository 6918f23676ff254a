#pragma once
// What the birth form decides, without its widgets: the thirteen checks, the
// hand-over of its texts into HoroscopeState, and the forms a chart takes on
// its way between the form, the chart store and the settings section "Horo".
// The desktop program and kelvaro-cli both go through here.
#include <optional>
#include <string>

#include "horoscope/horoscope_state.h"
#include "store/chart_store.h"
#include "store/field_message.h"
#include "store/preferences.h"
#include "store/settings.h"

namespace kelvaro {

// The birth form's fields, as typed or chosen.
struct BirthFormFields {
  std::string name;         // Txt_VC_ChartName
  std::string gender = "Male";
  std::string day;          // txt_Date, "14"
  std::string month;        // txt_Month, "Jul"
  std::string year;         // txt_Year, "1965"
  std::string hour;         // cbHour, "02" on the 12-hour clock
  std::string minute;       // cbMins, "15"
  bool pm = false;          // Opt_PM
  std::string country;      // txt_VC_Country's text
  std::string city;         // txt_VC_City's text
  std::string zone;         // cbTimeZone's text, "Asia/Kolkata  (5.5 hrs E)"
  // Set by the city and zone choices, or by opening a chart.
  double latDeg = 0, latMin = 0;
  std::string latNS = "N";
  double lonDeg = 0, lonMin = 0;
  std::string lonEW = "E";
  double timeDiff = 0;
  std::string timeDiffEW = "E";
  // The place's IANA zone, and why the offset is what it is (birth_offset.h);
  // both empty when the offset is simply the zone list's.
  std::string zoneId;
  std::string clockOffsetNote;
  bool offsetByUser = false;  // the zone list's offset overruled the rules
};

// The caption of the form, the title of its messages.
inline constexpr const char* kBirthFormCaption = "Enter Birth Details";

// The thirteen checks in order; the first that fails ends the check. The
// field is the control that takes the focus, empty for the date test:
//   Txt_VC_ChartName "Enter Name", txt_Date "Enter Date of Birth",
//   txt_Month "Enter Month", txt_Year "Enter Year", txt_Year "Enter Year
//   Between 1800 and 3000" (a year that is not a whole number fails here
//   too), "Enter Correct Date", cbHour / cbMins "Enter Correct Time" for an
//   empty hour, an empty minute, an hour outside 0 to 24 and a minute outside
//   0 to 59 (a text that is not digits fails the same test), txt_VC_Country
//   "Select Country", txt_VC_City "Select City", cbTimeZone "Select Timezone".
std::optional<store::FieldMessage> ValidateBirthForm(const BirthFormFields& form);

// The hour on the 24-hour clock, as text: "12" AM gives "0", "12" PM "12",
// another PM hour its sum with 12, another AM hour stays as typed ("02"). The
// test is on the text "12", so "012" is not twelve.
std::string TwentyFourHourText(const std::string& hour, bool pm);

// "&OK" after the checks: the name, date, time, place and zone into the birth
// details, the moment into BirthMoment, and the ayanamsa preference into
// AyanamsaInForce. Raises CalculationError when the texts make no moment
// (an hour of 24 passes the checks and fails here), and when the place or
// zone, as the store gave them, is one no birth can have (PlaceProblem).
void HandOverBirthForm(const BirthFormFields& form, HoroscopeState& state);

// What the chart store keeps of the form; the country and the zone go by the
// ids of the chosen list items. The offset is kept with its note when it has
// one, that is when the rules or the user's overrule of them chose it.
store::ChartFields ChartFieldsOf(const BirthFormFields& form, std::int64_t countryId, std::int64_t zoneSno);

// A saved chart as the form shows it on opening. The country is named by the
// caller, who chose it by its id. A chart saved with its offset comes back
// with that offset and note, not with its zone row's.
BirthFormFields FormFieldsOf(const store::OpenedChart& chart, const std::string& countryName);

// The eighteen "Horo" keys that a save writes, from the form.
store::LastChart LastChartOf(const BirthFormFields& form);

// The names a place's values go by where they were kept: the columns of the
// chart store, the city master and the zone master, or the "Horo" keys.
struct PlaceFieldNames {
  const char* where;  // "the stored", "the setting"
  const char *latDeg, *latNS, *latMin, *lonDeg, *lonEW, *lonMin, *timeDiff, *timeDiffEW;
};
inline constexpr PlaceFieldNames kStoredColumns{"the stored",      "LatitudeDegree",  "Latitude_NS",
                                                "LatitudeMinute",  "LongitudeDegree", "Longitude_EW",
                                                "LongitudeMinute", "TimeDifference",  "TimeZone"};
inline constexpr PlaceFieldNames kSettingKeys{"the setting", "LatDeg", "LatNS",    "LatMin",    "LonDeg",
                                              "LonEW",       "LonMin", "TimeDiff", "TimeDiffEW"};

// A kept place that no birth can have: degrees beyond 90 or 180, minutes of
// 60 or more, a zone beyond 14 hours, a number the store could not read (NaN),
// a side letter that is not one of its two. Returns a message naming the
// first such field, or nothing. The form's own lists only offer what the
// masters hold, so this guards against a damaged or hand-edited store.
std::optional<std::string> PlaceProblem(const BirthFormFields& form, const PlaceFieldNames& names);

// Start-up: the last saved chart from the settings into the birth details.
// The zone's name is not kept there, so it stays empty. A key whose text is
// not what its type wants (a hand-edited settings file) leaves the state as
// it was and returns a message naming the key.
std::optional<std::string> ApplyLastChart(const store::LastChart& chart, HoroscopeState& state);

// The preferences into the state, the ayanamsa and its custom values also
// into the copies in force.
void ApplyPreferences(const store::Preferences& preferences, HoroscopeState& state);

}  // namespace kelvaro
