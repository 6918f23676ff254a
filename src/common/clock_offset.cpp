#include "common/clock_offset.h"

#include <fmt/format.h>

#include <cmath>
#include <cstdlib>

namespace kelvaro {

std::string OffsetText(int offsetSeconds) {
  const char sign = offsetSeconds < 0 ? '-' : '+';
  const int s = std::abs(offsetSeconds);
  if (s % 60 != 0) return fmt::format("{}{}:{:02}:{:02}", sign, s / 3600, s / 60 % 60, s % 60);
  return fmt::format("{}{}:{:02}", sign, s / 3600, s / 60 % 60);
}

std::string TzText(int offsetSeconds) {
  std::string hours = fmt::format("{:.4f}", std::abs(offsetSeconds) / 3600.0);
  while (hours.back() == '0') hours.pop_back();
  if (hours.back() == '.') hours.pop_back();
  return hours + (offsetSeconds < 0 ? "W" : "E");
}

std::string AuditLine(const ClockOffset& offset, const LocalClockTime& time) {
  std::string line = fmt::format("{}: {} on {:02}/{:02}/{:04} ({})", offset.zoneId, OffsetText(offset.offsetSeconds),
                                 time.day, time.month, time.year, offset.reason);
  if (offset.nonexistent) {
    line += fmt::format("; no such clock time there: the clocks went from {} to {}", offset.gapFrom, offset.gapTo);
  }
  if (offset.ambiguous) {
    line += fmt::format("; this clock time happened twice, the other reading is {} ({})",
                        OffsetText(offset.otherOffsetSeconds), offset.otherReason);
  }
  if (offset.beyondData) {
    line += fmt::format("; the system's time zone data ({}) is older than this date", offset.dataVersion);
  }
  return line;
}

}  // namespace kelvaro
