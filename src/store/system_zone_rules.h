#pragma once
// SystemZoneRules: clock offsets from the system's tz database
// (/usr/share/zoneinfo, Debian's tzdata), read through Howard Hinnant's
// date/tz.h. The program carries no tz data of its own: a newer tzdata
// package brings newer rules without a new build.
#include <string>

#include "common/clock_offset.h"

namespace kelvaro::store {

class SystemZoneRules final : public ZoneRules {
 public:
  // Where the database was released after a transition that the birth
  // follows, the answer comes from the rules in force at its release.
  ClockOffset OffsetAt(std::string_view zoneId, const LocalClockTime& time, Fold fold = Fold::Earlier) const override;
  bool Knows(std::string_view zoneId) const override;

  // The database's release, as "2026f"; empty when it cannot be read.
  static std::string DataVersion();
};

}  // namespace kelvaro::store
