#include "cli/birth_input.h"

#include <cctype>
#include <charconv>
#include <cmath>
#include <string_view>

#include "common/date_text.h"
#include "common/ole_date.h"

namespace kelvaro::cli {

namespace {

bool AllDigits(std::string_view s) {
  if (s.empty()) return false;
  for (char c : s) {
    if (!std::isdigit(static_cast<unsigned char>(c))) return false;
  }
  return true;
}

// Digits as a number; a count too large for an int gives -1, which every
// range check then refuses, so nothing too large is read silently as 0.
int ToInt(std::string_view s) {
  int v = 0;
  const auto r = std::from_chars(s.data(), s.data() + s.size(), v);
  if (r.ec != std::errc() || r.ptr != s.data() + s.size()) return -1;
  return v;
}

// A plain decimal number: digits with at most one point, no sign, no exponent.
std::optional<double> PlainNumber(std::string_view s) {
  if (s.empty() || s.find_first_not_of("0123456789.") != std::string_view::npos) return std::nullopt;
  if (s.find('.') != s.rfind('.') || s == ".") return std::nullopt;
  double v = 0;
  auto r = std::from_chars(s.data(), s.data() + s.size(), v);
  if (r.ec != std::errc() || r.ptr != s.data() + s.size()) return std::nullopt;
  return v;
}

std::optional<double> SignedNumber(std::string_view s) {
  bool negative = false;
  if (!s.empty() && (s.front() == '-' || s.front() == '+')) {
    negative = s.front() == '-';
    s.remove_prefix(1);
  }
  auto v = PlainNumber(s);
  if (!v) return std::nullopt;
  return negative ? -*v : *v;
}

// "17N20": degrees, hemisphere letter, minutes. Minutes may be omitted ("17N").
std::optional<InputError> ReadAngle(const std::string& field, const std::string& value, char positive,
                                    char negative, int maxDegrees, double& degrees, double& minutes,
                                    std::string& letter) {
  const auto at = value.find_first_of(std::string{positive, negative});
  const std::string example = maxDegrees == 90 ? "17N20" : "78E30";
  if (at == std::string::npos || !AllDigits(value.substr(0, at)) ||
      (at + 1 < value.size() && !AllDigits(value.substr(at + 1)))) {
    return InputError{field, value,
                      std::string("expected degrees, ") + positive + " or " + negative + ", then minutes, as in " +
                          example};
  }
  const int d = ToInt(value.substr(0, at));
  const int m = at + 1 < value.size() ? ToInt(value.substr(at + 1)) : 0;
  if (d < 0 || d > maxDegrees) return InputError{field, value, "degrees must be 0 to " + std::to_string(maxDegrees)};
  if (m < 0 || m > 59) return InputError{field, value, "minutes must be 0 to 59"};
  if (d == maxDegrees && m != 0) {
    return InputError{field, value, "must not exceed " + std::to_string(maxDegrees) + " degrees"};
  }
  degrees = d;
  minutes = m;
  letter = std::string(1, value[at]);
  return std::nullopt;
}

}  // namespace

std::optional<InputError> ApplyBirthText(const BirthText& text, const std::string& prefix, HoroscopeState& s) {
  if (auto e = ApplyBirthDetails(text, prefix, s)) return e;
  return ApplyAyanamsa(text.ayanamsa, text.zeroYear, text.progress, prefix, s);
}

std::optional<InputError> ApplyBirthDetails(const BirthText& text, const std::string& prefix, HoroscopeState& s) {
  // Date: DD/MM/YYYY.
  {
    const std::string& v = text.date;
    const auto a = v.find('/');
    const auto b = a == std::string::npos ? a : v.find('/', a + 1);
    if (b == std::string::npos || !AllDigits(v.substr(0, a)) || !AllDigits(v.substr(a + 1, b - a - 1)) ||
        !AllDigits(v.substr(b + 1)) || a > 2 || b - a - 1 > 2 || v.size() - b - 1 != 4) {
      return InputError{prefix + "date", v, "expected DD/MM/YYYY"};
    }
    const int day = ToInt(v.substr(0, a));
    const int month = ToInt(v.substr(a + 1, b - a - 1));
    const int year = ToInt(v.substr(b + 1));
    if (month < 1 || month > 12) return InputError{prefix + "date", v, "month must be 1 to 12"};
    // The birth form's range, everywhere.
    if (year < 1800 || year > 3000) return InputError{prefix + "date", v, "year must be 1800 to 3000"};
    if (!OleDate::IsValidDate(year, month, day)) {
      return InputError{prefix + "date", v, "there is no such day"};
    }
    // As the birth form holds them: "05", "Jul", "1965".
    s.BirthDay = (day < 10 ? "0" : "") + std::to_string(day);
    s.BirthMonth = MonthName(month, true);
    s.BirthYear = std::to_string(year);
  }
  // Time: HH:MM on a 24-hour clock.
  {
    const std::string& v = text.time;
    const auto colon = v.find(':');
    if (colon == std::string::npos || colon == 0 || colon > 2 || !AllDigits(v.substr(0, colon)) ||
        v.size() - colon - 1 != 2 || !AllDigits(v.substr(colon + 1))) {
      return InputError{prefix + "time", v, "expected HH:MM on a 24-hour clock"};
    }
    const int hour = ToInt(v.substr(0, colon));
    const int minute = ToInt(v.substr(colon + 1));
    if (hour < 0 || hour > 23) return InputError{prefix + "time", v, "hour must be 0 to 23"};
    if (minute < 0 || minute > 59) return InputError{prefix + "time", v, "minute must be 0 to 59"};
    // As the form turns its 12-hour list into 24-hour text: "0" for 12 AM, the
    // list's "02" for 2 AM, the sum "14" for 2 PM.
    s.BirthHour = hour == 0 ? "0" : (hour < 10 ? "0" : "") + std::to_string(hour);
    s.BirthMinute = (minute < 10 ? "0" : "") + std::to_string(minute);
  }
  if (auto e = ReadAngle(prefix + "lat", text.lat, 'N', 'S', 90, s.LatDeg, s.LatMin, s.LatNS)) return e;
  if (auto e = ReadAngle(prefix + "lon", text.lon, 'E', 'W', 180, s.LonDeg, s.LonMin, s.LonEW)) return e;
  // Zone: decimal hours and a side.
  {
    const std::string& v = text.tz;
    const char side = v.empty() ? '\0' : v.back();
    const auto hours = v.size() > 1 ? PlainNumber(std::string_view(v).substr(0, v.size() - 1)) : std::nullopt;
    if ((side != 'E' && side != 'W') || !hours) {
      return InputError{prefix + "tz", v, "expected hours then E or W, as in 5.5E or 8W"};
    }
    if (*hours > 14) return InputError{prefix + "tz", v, "a zone is at most 14 hours from Greenwich"};
    s.TimeDiff = *hours;
    s.TimeDiffEW = std::string(1, side);
  }
  return std::nullopt;
}

std::optional<InputError> ApplyAyanamsa(const std::string& v, const std::optional<std::string>& zeroYearText,
                                        const std::optional<std::string>& progressText, const std::string& prefix,
                                        HoroscopeState& s) {
  // Compared case-sensitively, as the engine compares it.
  if (v != "Lahiri" && v != "Raman" && v != "KP" && v != "Sayana" && v != "Custom") {
    return InputError{prefix + "ayanamsa", v, "must be one of Lahiri, Raman, KP, Sayana, Custom"};
  }
  double zeroYear = 0, progress = 0;
  if (v == "Custom") {
    if (!zeroYearText) return InputError{prefix + "zero-year", "", "Custom needs a zero year"};
    if (!progressText) return InputError{prefix + "progress", "", "Custom needs a yearly progress"};
    const auto z = SignedNumber(*zeroYearText);
    if (!z || *z != std::trunc(*z) || std::fabs(*z) > 9999) {
      return InputError{prefix + "zero-year", *zeroYearText, "expected a whole year"};
    }
    const auto p = SignedNumber(*progressText);
    if (!p || std::fabs(*p) > 3600) {
      return InputError{prefix + "progress", *progressText, "expected seconds of arc a year, at most 3600"};
    }
    zeroYear = *z;
    progress = *p;
  }
  s.AyanamsaName = v;
  s.AyanamsaInForce = v;
  s.PrefYear = s.YearInForce = zeroYear;
  s.PrefProgress = s.ProgressInForce = progress;
  return std::nullopt;
}

}  // namespace kelvaro::cli
