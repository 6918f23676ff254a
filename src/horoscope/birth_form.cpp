#include "horoscope/birth_form.h"

#include <cctype>
#include <cmath>
#include <limits>
#include <string_view>

#include "common/calculation_error.h"
#include "common/date_text.h"
#include "common/number_rules.h"
#include "common/text_checks.h"
#include "store/text_rules.h"

namespace kelvaro {

namespace {

using store::FieldMessage;

constexpr const char* kCorrectTime = "Enter Correct Time";

bool AllDigits(std::string_view s) {
  if (s.empty()) return false;
  for (char c : s) {
    if (!std::isdigit(static_cast<unsigned char>(c))) return false;
  }
  return true;
}

// A whole number of at most `digits` digits, after trimming; nothing else.
std::optional<int> WholeNumber(std::string_view text, std::size_t digits) {
  const std::string t = store::Trim(text);
  if (!AllDigits(t) || t.size() > digits) return std::nullopt;
  return std::stoi(t);
}

std::string TwoDigits(int value) { return (value < 10 ? "0" : "") + std::to_string(value); }

std::string DateText(const BirthFormFields& f) {
  return store::Trim(f.day) + "/" + store::Trim(f.month) + "/" + store::Trim(f.year);
}

}  // namespace

std::optional<FieldMessage> ValidateBirthForm(const BirthFormFields& f) {
  if (store::IsBlank(f.name)) return FieldMessage{"Txt_VC_ChartName", "Enter Name"};
  if (store::IsBlank(f.day)) return FieldMessage{"txt_Date", "Enter Date of Birth"};
  if (store::IsBlank(f.month)) return FieldMessage{"txt_Month", "Enter Month"};
  if (store::IsBlank(f.year)) return FieldMessage{"txt_Year", "Enter Year"};
  const auto year = WholeNumber(f.year, 9);
  if (!year || *year < 1800 || *year > 3000) return FieldMessage{"txt_Year", "Enter Year Between 1800 and 3000"};
  if (!ParseDateTime(DateText(f))) return FieldMessage{"", "Enter Correct Date"};
  if (store::IsBlank(f.hour)) return FieldMessage{"cbHour", kCorrectTime};
  if (store::IsBlank(f.minute)) return FieldMessage{"cbMins", kCorrectTime};
  const auto hour = WholeNumber(f.hour, 3);
  if (!hour || *hour > 24) return FieldMessage{"cbHour", kCorrectTime};
  const auto minute = WholeNumber(f.minute, 3);
  if (!minute || *minute > 59) return FieldMessage{"cbMins", kCorrectTime};
  if (store::IsBlank(f.country)) return FieldMessage{"txt_VC_Country", "Select Country"};
  if (store::IsBlank(f.city)) return FieldMessage{"txt_VC_City", "Select City"};
  if (store::IsBlank(f.zone)) return FieldMessage{"cbTimeZone", "Select Timezone"};
  return std::nullopt;
}

std::string TwentyFourHourText(const std::string& hour, bool pm) {
  if (hour == "12") return pm ? "12" : "0";
  if (!pm) return hour;
  const auto h = WholeNumber(hour, 3);
  return h ? std::to_string(*h + 12) : hour;
}

// The birth details of the state from the form's fields, the hour already on
// the 24-hour clock and the moment already made from the texts.
void SetBirthDetails(const BirthFormFields& f, const std::string& hour24, OleDate moment, HoroscopeState& s) {
  s.ChartName = f.name;
  s.BirthDay = store::Trim(f.day);
  s.BirthMonth = store::Trim(f.month);
  s.BirthYear = store::Trim(f.year);
  s.BirthHour = hour24;
  s.BirthMinute = store::Trim(f.minute);
  s.BirthTimeZoneName = f.zone;
  s.BirthMoment = moment;
  s.BirthGender = f.gender;
  s.BirthCity = f.city;
  s.BirthCountry = f.country;
  s.AyanamsaInForce = s.AyanamsaName;
  s.LatDeg = f.latDeg;
  s.LatNS = f.latNS;
  s.LatMin = f.latMin;
  s.LonDeg = f.lonDeg;
  s.LonEW = f.lonEW;
  s.LonMin = f.lonMin;
  s.TimeDiff = f.timeDiff;
  s.TimeDiffEW = f.timeDiffEW;
  s.ClockOffsetNote = f.clockOffsetNote;
}

void HandOverBirthForm(const BirthFormFields& f, HoroscopeState& s) {
  const std::string hour = TwentyFourHourText(store::Trim(f.hour), f.pm);
  const std::string text =
      BirthMomentText(store::Trim(f.day), store::Trim(f.month), store::Trim(f.year), hour, store::Trim(f.minute));
  const auto moment = ParseDateTime(text);
  if (!moment) throw CalculationError("The birth date and time \"" + text + "\" is not a valid moment");
  if (const auto problem = PlaceProblem(f, kStoredColumns)) throw CalculationError(*problem);
  SetBirthDetails(f, hour, *moment, s);
}

store::ChartFields ChartFieldsOf(const BirthFormFields& f, std::int64_t countryId, std::int64_t zoneSno) {
  store::ChartFields c;
  c.name = store::Trim(f.name);
  c.gender = f.gender == "Male" ? "Male" : "Female";
  c.countryId = countryId;
  c.city = f.city;
  c.day = store::Trim(f.day);
  c.month = store::Trim(f.month);
  c.year = store::Trim(f.year);
  c.hour = WholeNumber(TwentyFourHourText(store::Trim(f.hour), f.pm), 3).value_or(0);
  c.minute = WholeNumber(f.minute, 3).value_or(0);
  c.latDeg = f.latDeg;
  c.latNS = f.latNS;
  c.latMin = f.latMin;
  c.lonDeg = f.lonDeg;
  c.lonEW = f.lonEW;
  c.lonMin = f.lonMin;
  c.zoneSno = zoneSno;
  if (!f.clockOffsetNote.empty()) {
    c.clockOffsetHours = f.timeDiffEW == "W" ? -f.timeDiff : f.timeDiff;
    c.clockOffsetNote = f.clockOffsetNote;
    c.clockOffsetByUser = f.offsetByUser;
  }
  c.zoneId = f.zoneId;
  return c;
}

BirthFormFields FormFieldsOf(const store::OpenedChart& chart, const std::string& countryName) {
  BirthFormFields f;
  f.name = chart.name;
  f.gender = chart.gender;
  f.day = TwoDigits(chart.day);
  f.month = chart.month;
  f.year = std::to_string(chart.year);
  f.hour = TwoDigits(chart.hour12);
  f.minute = TwoDigits(chart.minute);
  f.pm = chart.pm;
  f.country = countryName;
  f.city = chart.city;
  f.zone = chart.zoneText;
  f.latDeg = chart.latDeg;
  f.latMin = chart.latMin;
  f.latNS = chart.latNS;
  f.lonDeg = chart.lonDeg;
  f.lonMin = chart.lonMin;
  f.lonEW = chart.lonEW;
  f.timeDiff = chart.timeDiff;
  f.timeDiffEW = chart.timeDiffEW;
  f.zoneId = chart.zoneId;
  if (chart.clockOffsetHours) {
    f.timeDiff = std::fabs(*chart.clockOffsetHours);
    f.timeDiffEW = *chart.clockOffsetHours < 0 ? "W" : "E";
    f.clockOffsetNote = chart.clockOffsetNote;
    f.offsetByUser = chart.clockOffsetByUser;
  }
  return f;
}

store::LastChart LastChartOf(const BirthFormFields& f) {
  store::LastChart c;
  c.name = f.name;
  c.day = store::Trim(f.day);
  c.month = store::Trim(f.month);
  c.year = store::Trim(f.year);
  c.hour = TwentyFourHourText(store::Trim(f.hour), f.pm);
  c.minute = store::Trim(f.minute);
  c.timeZone = f.zone;
  c.sex = f.gender;
  c.city = f.city;
  c.country = f.country;
  c.latNS = f.latNS;
  c.latMin = NumberText(f.latMin);
  c.latDeg = NumberText(f.latDeg);
  c.lonEW = f.lonEW;
  c.lonMin = NumberText(f.lonMin);
  c.lonDeg = NumberText(f.lonDeg);
  c.timeDiff = NumberText(f.timeDiff);
  c.timeDiffEW = f.timeDiffEW;
  return c;
}

std::optional<std::string> PlaceProblem(const BirthFormFields& f, const PlaceFieldNames& n) {
  const struct {
    const char* name;
    double value;
    double limit;
    bool below;  // minutes stop below 60; degrees and hours may reach their limit
  } numbers[] = {{n.latDeg, f.latDeg, 90, false}, {n.latMin, f.latMin, 60, true},  {n.lonDeg, f.lonDeg, 180, false},
                 {n.lonMin, f.lonMin, 60, true},  {n.timeDiff, f.timeDiff, 14, false}};
  for (const auto& x : numbers) {
    // Written so that NaN, which fails every comparison, is refused too.
    const bool fits = x.value >= 0 && (x.below ? x.value < x.limit : x.value <= x.limit);
    if (!fits) {
      const std::string shown = std::isnan(x.value) ? "is not a number" : NumberText(x.value) + " is not";
      return std::string(n.where) + " " + x.name + " " + shown + " from 0 to " + (x.below ? "below " : "") +
             NumberText(x.limit);
    }
  }
  if ((f.latDeg == 90 && f.latMin > 0) || (f.lonDeg == 180 && f.lonMin > 0)) {
    const bool lat = f.latDeg == 90 && f.latMin > 0;
    return std::string(n.where) + " " + (lat ? n.latMin : n.lonMin) + " " + NumberText(lat ? f.latMin : f.lonMin) +
           " takes the place beyond " + (lat ? "90" : "180") + " degrees";
  }
  const struct {
    const char* name;
    const std::string& text;
    const char* a;
    const char* b;
  } letters[] = {{n.latNS, f.latNS, "N", "S"}, {n.lonEW, f.lonEW, "E", "W"}, {n.timeDiffEW, f.timeDiffEW, "E", "W"}};
  for (const auto& l : letters) {
    if (l.text != l.a && l.text != l.b) {
      return std::string(n.where) + " " + l.name + " \"" + MessageValue(l.text) + "\" is not " + l.a + " or " + l.b;
    }
  }
  return std::nullopt;
}

std::optional<std::string> ApplyLastChart(const store::LastChart& c, HoroscopeState& s) {
  // A key that is not a number reads as NaN, which the place check refuses.
  const auto number = [](const std::string& text) {
    return store::NumericValue(text).value_or(std::numeric_limits<double>::quiet_NaN());
  };
  const std::string text = BirthMomentText(c.day, c.month, c.year, c.hour, c.minute);
  const auto moment = ParseDateTime(text);
  if (!moment) return "the settings' birth date and time \"" + text + "\" is not a valid moment";
  BirthFormFields f;
  f.name = c.name;
  f.gender = c.sex;
  f.day = c.day;
  f.month = c.month;
  f.year = c.year;
  f.minute = c.minute;
  f.city = c.city;
  f.country = c.country;  // the zone's name is not kept: it stays empty
  f.latNS = c.latNS;
  f.lonEW = c.lonEW;
  f.timeDiffEW = c.timeDiffEW;
  f.latDeg = number(c.latDeg);
  f.latMin = number(c.latMin);
  f.lonDeg = number(c.lonDeg);
  f.lonMin = number(c.lonMin);
  f.timeDiff = number(c.timeDiff);
  if (auto problem = PlaceProblem(f, kSettingKeys)) return problem;
  SetBirthDetails(f, c.hour, *moment, s);
  return std::nullopt;
}

void ApplyPreferences(const store::Preferences& p, HoroscopeState& s) {
  s.DaysInYear = p.dayInYear;
  s.ChartStyle = p.chartStyle;
  s.Language = p.language;
  s.BhavaSystem = p.bhava;
  s.AyanamsaName = s.AyanamsaInForce = p.ayanamsa;
  s.PrefYear = s.YearInForce = p.customYear;
  s.PrefProgress = s.ProgressInForce = p.customProgress;
}

}  // namespace kelvaro
