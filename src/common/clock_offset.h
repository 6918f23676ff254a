#pragma once
// ClockOffset: the clock offset in force at a place and a local time, with
// what it was (standard time, summer time, war time, local mean time) and why,
// from the rules of a named time zone. ZoneRules is the one question the
// calculation asks of a tz database; the store answers it from the system's.
#include <string>
#include <string_view>

namespace kelvaro {

enum class OffsetKind { Standard, Daylight, LocalMeanTime };

// Which of two readings a local time that happened twice means.
enum class Fold { Earlier, Later };

struct ClockOffset {
  std::string zoneId;
  int offsetSeconds = 0;  // east of Greenwich positive
  OffsetKind kind = OffsetKind::Standard;
  std::string abbreviation;  // the database's ("IST", "BDST", "+0630"); "LMT" before standard time
  // "standard time", "summer time", "double summer time", "war time" or
  // "local mean time".
  std::string reason;

  // The clocks jumped over this local time: they went from gapFrom to gapTo
  // ("02:00", "03:00"). The offset is the one in force before the jump.
  bool nonexistent = false;
  std::string gapFrom, gapTo;

  // The clocks went back over this local time, so it happened twice; the
  // offset is the reading asked for, otherOffsetSeconds the other one.
  bool ambiguous = false;
  int otherOffsetSeconds = 0;
  std::string otherReason;

  // The birth lies after the year of the database's release, whose rules may
  // since have changed (dataVersion: "2026f").
  bool beyondData = false;
  std::string dataVersion;

  double OffsetHours() const { return offsetSeconds / 3600.0; }
};

// A local birth: the clock time on the calendar, and the place's longitude in
// degrees (east positive), from which local mean time is reckoned.
struct LocalClockTime {
  int year = 0, month = 0, day = 0, hour = 0, minute = 0;
  double longitudeEast = 0;
};

class ZoneRules {
 public:
  virtual ~ZoneRules() = default;
  // Throws std::invalid_argument naming a zone the database does not know.
  virtual ClockOffset OffsetAt(std::string_view zoneId, const LocalClockTime& time,
                               Fold fold = Fold::Earlier) const = 0;
  virtual bool Knows(std::string_view zoneId) const = 0;
};

// "+6:30", "-5:00", "+5:14:08": hours and minutes, with seconds only when
// there are some (a local mean time).
std::string OffsetText(int offsetSeconds);

// The offset in the form of the --tz option and the zone master: "6.5E",
// "5W", "5.2333E" (decimal hours to four places, trailing zeros dropped).
std::string TzText(int offsetSeconds);

// The line that says what was chosen and why:
// "Asia/Kolkata: +6:30 on 14/07/1943 (war time)", with " (the clocks went
// from 02:00 to 03:00)", " (this time happened twice)" or the database's age
// added where they apply.
std::string AuditLine(const ClockOffset& offset, const LocalClockTime& time);

}  // namespace kelvaro
