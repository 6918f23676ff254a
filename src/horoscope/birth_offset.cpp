#include "horoscope/birth_offset.h"

#include <algorithm>
#include <cctype>
#include <cmath>
#include <cstdio>
#include <stdexcept>

#include "common/date_text.h"
#include "store/text_rules.h"

namespace kelvaro {

namespace {

std::optional<int> Number(std::string_view text) {
  const std::string t = store::Trim(text);
  if (t.empty() || t.size() > 4) return std::nullopt;
  int value = 0;
  for (char c : t) {
    if (c < '0' || c > '9') return std::nullopt;
    value = value * 10 + (c - '0');
  }
  return value;
}

std::optional<int> MonthOf(std::string_view text) {
  const std::string t = store::Trim(text);
  for (int m = 1; m <= 12; ++m) {
    const std::string name = MonthName(m, true);
    if (t.size() == name.size() && std::equal(t.begin(), t.end(), name.begin(), [](char a, char b) {
          return std::tolower(static_cast<unsigned char>(a)) == std::tolower(static_cast<unsigned char>(b));
        })) {
      return m;
    }
  }
  return std::nullopt;
}

}  // namespace

std::optional<LocalClockTime> LocalTimeOf(const BirthFormFields& f) {
  const auto day = Number(f.day), year = Number(f.year), hour = Number(f.hour), minute = Number(f.minute);
  const auto month = MonthOf(f.month);
  if (!day || !year || !hour || !minute || !month) return std::nullopt;
  if (*hour < 1 || *hour > 12 || *minute > 59) return std::nullopt;
  // The form's own date check: 31 Jun and 29 Feb 1900 are no dates.
  if (!ParseDateTime(store::Trim(f.day) + "/" + store::Trim(f.month) + "/" + store::Trim(f.year))) return std::nullopt;
  LocalClockTime t;
  t.year = *year;
  t.month = *month;
  t.day = *day;
  t.hour = *hour % 12 + (f.pm ? 12 : 0);
  t.minute = *minute;
  const double lon = f.lonDeg + f.lonMin / 60.0;
  t.longitudeEast = f.lonEW == "W" ? -lon : lon;
  return t;
}

std::string HoursText(double hours, std::string_view eastWest) {
  char buffer[32];
  std::snprintf(buffer, sizeof buffer, "%.4f", std::fabs(hours));
  std::string text = buffer;
  while (text.back() == '0') text.pop_back();
  if (text.back() == '.') text.pop_back();
  return text + " " + std::string(eastWest);
}

OffsetDecision DecideBirthOffset(const BirthFormFields& f, std::string_view zoneId, bool overruled, Fold fold,
                                 const ZoneRules& rules) {
  OffsetDecision d;
  d.timeDiff = f.timeDiff;
  d.timeDiffEW = f.timeDiffEW;
  d.overruled = overruled;
  const auto time = LocalTimeOf(f);
  if (time && !zoneId.empty() && rules.Knows(zoneId)) {
    d.time = *time;
    try {
      d.rules = rules.OffsetAt(zoneId, *time, fold);
    } catch (const std::invalid_argument&) {
      d.rules.reset();
    }
  }
  const std::string userText = "overruled by the user: " + HoursText(f.timeDiff, f.timeDiffEW);
  if (!d.rules) {
    if (!zoneId.empty() && !time) d.line = std::string(zoneId) + ": waiting for the date and time";
    if (overruled) d.line = userText;
    return d;
  }
  d.line = AuditLine(*d.rules, *time);
  if (overruled) {
    d.line += "; " + userText;
    d.note = d.line;
    return d;
  }
  // The exact offset: a local mean time is not a whole number of minutes.
  d.timeDiff = std::abs(d.rules->offsetSeconds) / 3600.0;
  d.timeDiffEW = d.rules->offsetSeconds < 0 ? "W" : "E";
  d.note = d.line;
  return d;
}

void ApplyOffsetDecision(const OffsetDecision& d, BirthFormFields& f) {
  f.timeDiff = d.timeDiff;
  f.timeDiffEW = d.timeDiffEW;
  f.clockOffsetNote = d.note;
}

}  // namespace kelvaro
