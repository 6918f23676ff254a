#include "panchanga/time_converters.h"

#include <cctype>
#include <charconv>
#include <cmath>
#include <string>

#include "common/date_text.h"
#include "common/number_rules.h"

namespace kelvaro {

namespace {

std::string Trim(const std::string& s) {
  const auto a = s.find_first_not_of(' ');
  if (a == std::string::npos) return {};
  return s.substr(a, s.find_last_not_of(' ') - a + 1);
}

std::optional<int> WholeNumber(const std::string& text) {
  const std::string t = Trim(text);
  int v = 0;
  const auto r = std::from_chars(t.data(), t.data() + t.size(), v);
  if (t.empty() || r.ec != std::errc() || r.ptr != t.data() + t.size()) return std::nullopt;
  return v;
}

std::optional<int> MonthNumber(const std::string& text) {
  if (auto n = WholeNumber(text)) return *n;
  const std::string t = Trim(text);
  for (int m = 1; m <= 12; ++m) {
    const std::string name = MonthName(m, true);
    if (t.size() == 3 && std::tolower(static_cast<unsigned char>(t[0])) == std::tolower(static_cast<unsigned char>(name[0])) &&
        std::tolower(static_cast<unsigned char>(t[1])) == name[1] && std::tolower(static_cast<unsigned char>(t[2])) == name[2]) {
      return m;
    }
  }
  return std::nullopt;
}

}  // namespace

std::optional<ConverterProblem> ValidateConverter(const ConverterEntry& e, Conversion conversion) {
  if (Trim(e.day).empty()) return ConverterProblem{"txtDate", "Enter Date"};
  if (Trim(e.month).empty()) return ConverterProblem{"txtMonth", "Enter Month"};
  if (Trim(e.year).empty()) return ConverterProblem{"txtYear", "Enter Year"};
  const auto year = WholeNumber(e.year);
  if (!year || *year < 1800 || *year > 3000) return ConverterProblem{"txtYear", "Enter Year Between 1800 and 3000"};
  if (conversion == Conversion::ToIshtaGhati) {
    const auto day = WholeNumber(e.day);
    const auto month = MonthNumber(e.month);
    if (!day || !month || !OleDate::IsValidDate(*year, *month, *day)) {
      return ConverterProblem{"txtDate", "Enter Correct Date"};
    }
  }
  if (Trim(e.hour).empty()) return ConverterProblem{"cbHour", "Enter Correct Time"};
  if (Trim(e.minute).empty()) return ConverterProblem{"cbMins", "Enter Correct Time"};
  const auto hour = WholeNumber(e.hour);
  const bool toGhati = conversion == Conversion::ToIshtaGhati;
  if (!hour || (toGhati ? (*hour < 1 || *hour > 12) : (*hour < 0 || *hour > 60))) {
    return ConverterProblem{"cbHour", "Enter Correct Time"};
  }
  const auto minute = WholeNumber(e.minute);
  if (!minute || *minute < 0 || *minute > 59) return ConverterProblem{"cbMins", "Enter Correct Time"};
  if (!e.countryChosen) return ConverterProblem{"Cmb_VP_Country", "Select Country"};
  if (!e.cityChosen) return ConverterProblem{"Cmb_VP_City", "Select City"};
  return std::nullopt;
}

std::optional<OleDate> ConverterMoment(const ConverterEntry& e) {
  const auto day = WholeNumber(e.day);
  const auto month = MonthNumber(e.month);
  const auto year = WholeNumber(e.year);
  const auto hour = WholeNumber(e.hour);
  const auto minute = WholeNumber(e.minute);
  if (!day || !month || !year || !hour || !minute) return std::nullopt;
  // Joined as "DD/MM/YYYY hh:mm: 00 AM/PM" and read with that pattern.
  return ParseDateTime(std::to_string(*day) + "/" + std::to_string(*month) + "/" + std::to_string(*year) + " " +
                       std::to_string(*hour) + ":" + std::to_string(*minute) + ": 00 " + (e.pm ? "PM" : "AM"));
}

std::string IshtaGhati::Text() const {
  return "Ishta Ghati : " + std::to_string(ghati) + ":" + std::to_string(vighati) + ":" + std::to_string(third);
}

IshtaGhati BirthTimeToIshtaGhati(OleDate birth, const SunriseOfDate& sunriseOf) {
  OleDate sunrise = sunriseOf(birth);
  if (birth < sunrise) sunrise = sunriseOf(DateAdd(Interval::Day, -1, birth));
  const double minutes = static_cast<double>(DateDiff(Interval::Minute, sunrise, birth));
  const double ghatis = minutes / 60 * 2.5;
  // Through the digit pattern and read back: four decimals, half away from zero.
  const double g = std::stod(FormatPattern(ghatis, "00.0000"));
  IshtaGhati r;
  r.ghati = static_cast<int>(Int(g));
  const double v = (g - Int(g)) * 60;
  r.vighati = static_cast<int>(Int(v));
  r.third = static_cast<int>(Int((v - Int(v)) * 60));
  return r;
}

OleDate IshtaGhatiToBirthTime(OleDate date, double ghatis, double vighatis, const SunriseOfDate& sunriseOf) {
  const double x = ghatis * 24 / 60;
  const double y = vighatis * 24 / 60;
  const double hours = Int(x);
  const double minutesOfHours = (x - Int(x)) * 60;
  const double minutesOfVighatis = Int(y);
  const double seconds = (y - Int(y)) * 60;
  OleDate t = sunriseOf(date);
  t = DateAdd(Interval::Second, seconds, t);
  t = DateAdd(Interval::Minute, minutesOfVighatis, t);
  t = DateAdd(Interval::Minute, minutesOfHours, t);
  t = DateAdd(Interval::Hour, hours, t);
  return t;
}

std::string BirthTimeText(OleDate moment) { return "Birth Time : " + FormatDate(moment, "HH:NN AM/PM"); }

}  // namespace kelvaro
