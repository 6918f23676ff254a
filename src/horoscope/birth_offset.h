#pragma once
// The clock offset the birth form calculates with. Once the date, the time
// and a place with an IANA zone are on the form, the offset comes from the
// zone's rules at that moment and longitude; a zone the user chose or typed
// overrules them. The decision carries the line shown under the zone and the
// note that the summary and the report print.
#include <optional>
#include <string>
#include <string_view>

#include "common/clock_offset.h"
#include "horoscope/birth_form.h"

namespace kelvaro {

struct OffsetDecision {
  // The rules' answer; nothing when the date, time or zone id is missing or
  // the rules do not know the zone.
  std::optional<ClockOffset> rules;
  LocalClockTime time;
  bool overruled = false;
  // What "&OK" calculates with, in the zone master's form (5.5, "E").
  double timeDiff = 0;
  std::string timeDiffEW = "E";
  // Under the zone list: "Asia/Kolkata: +6:30 on 14/07/1943 (war time)".
  std::string line;
  // For the summary and the report; empty when neither the rules nor an
  // overrule of them had a say.
  std::string note;

  bool Nonexistent() const { return rules && rules->nonexistent; }
  bool Ambiguous() const { return rules && rules->ambiguous; }
};

// The form's date and 12-hour clock with the longitude as a local time, or
// nothing while they do not make one.
std::optional<LocalClockTime> LocalTimeOf(const BirthFormFields& form);

// zoneId: the place's IANA name (the atlas place's, or the city master row's
// ZoneID); empty when the place has none, and then the form's own offset
// stands. overruled: the zone list's offset was chosen by the user and wins.
OffsetDecision DecideBirthOffset(const BirthFormFields& form, std::string_view zoneId, bool overruled, Fold fold,
                                 const ZoneRules& rules);

// The decision into the form's fields, which "&OK" hands over.
void ApplyOffsetDecision(const OffsetDecision& decision, BirthFormFields& form);

// "5.5 E", "0 E", "5.2333 W": an offset in decimal hours as the user reads it.
std::string HoursText(double hours, std::string_view eastWest);

}  // namespace kelvaro
