#include "store/system_zone_rules.h"

#include <date/tz.h>
#include <fmt/format.h>

#include <chrono>
#include <cmath>
#include <fstream>
#include <stdexcept>

namespace kelvaro::store {

namespace {

using std::chrono::seconds;

const date::time_zone* Zone(std::string_view zoneId) {
  try {
    return date::locate_zone(zoneId);
  } catch (const std::runtime_error&) {
    throw std::invalid_argument("unknown time zone \"" + std::string(zoneId) + "\"");
  }
}

// The compiled database keeps only a summer-time flag, not its amount, so the
// amount is the difference from the nearest standard period before it (or,
// for a zone that began on summer time, after it).
seconds StandardOffsetNear(const date::time_zone& zone, const date::sys_info& info) {
  date::sys_info step = info;
  for (int i = 0; i < 24 && step.save != std::chrono::minutes{0}; ++i) {
    if (step.begin <= date::sys_seconds{} + seconds{-8'000'000'000LL}) break;
    step = zone.get_info(step.begin - seconds{1});
  }
  if (step.save == std::chrono::minutes{0}) return step.offset;
  step = info;
  for (int i = 0; i < 24 && step.save != std::chrono::minutes{0}; ++i) step = zone.get_info(step.end);
  return step.save == std::chrono::minutes{0} ? step.offset : info.offset - seconds{3600};
}

bool InWorldWarTwo(const date::sys_info& info) {
  using namespace date;
  const sys_days warFrom = year{1939} / September / 1, warTo = year{1946} / January / 1;
  return info.begin < warTo && info.end > warFrom;
}

struct Reading {
  int offsetSeconds = 0;
  OffsetKind kind = OffsetKind::Standard;
  std::string abbreviation;
  std::string reason;
};

// Before a place took a standard time its clocks kept its own local mean
// time; the database's LMT is that of the zone's reference city, so it is
// replaced by the birth's own longitude (4 minutes of time a degree).
Reading Read(const date::time_zone& zone, const date::sys_info& info, double longitudeEast) {
  Reading r;
  r.abbreviation = info.abbrev;
  if (info.abbrev == "LMT") {
    r.offsetSeconds = static_cast<int>(std::lround(longitudeEast * 240.0));
    r.kind = OffsetKind::LocalMeanTime;
    r.reason = "local mean time";
    return r;
  }
  r.offsetSeconds = static_cast<int>(info.offset.count());
  if (info.save == std::chrono::minutes{0}) {
    r.reason = "standard time";
    return r;
  }
  r.kind = OffsetKind::Daylight;
  const seconds advance = info.offset - StandardOffsetNear(zone, info);
  if (advance >= seconds{7200}) {
    r.reason = "double summer time";
  } else if (InWorldWarTwo(info)) {
    r.reason = "war time";
  } else {
    r.reason = "summer time";
  }
  return r;
}

std::string ClockText(seconds sinceMidnight) {
  const long long s = ((sinceMidnight.count() % 86400) + 86400) % 86400;
  return fmt::format("{:02}:{:02}", s / 3600, s / 60 % 60);
}

int VersionYear(const std::string& version) {
  int year = 0;
  for (std::size_t i = 0; i < version.size() && i < 4; ++i) {
    if (version[i] < '0' || version[i] > '9') return 0;
    year = year * 10 + (version[i] - '0');
  }
  return year;
}

// The compiled zone files list each transition only up to 2037 and leave
// the years after it to a rule that date/tz.h does not read. A later date is
// read in the latest listed year whose month of the date begins on the same
// week-day (and, for February, that is leap when the date's year is): summer
// time rules are week-day rules within a month ("last Sunday of March"), so
// that year holds the same clock changes on the same days, by the rules in
// force at the end of the data.
int ListedYearLike(int y, unsigned month) {
  using namespace date;
  constexpr int kLastListedYear = 2037;
  if (y <= kLastListedYear) return y;
  const auto firstWeekday = [month](int n) { return weekday{sys_days{year{n} / date::month{month} / 1}}; };
  for (int candidate = kLastListedYear; candidate > kLastListedYear - 28; --candidate) {
    if (firstWeekday(candidate) == firstWeekday(y) && (month != 2 || year{candidate}.is_leap() == year{y}.is_leap())) {
      return candidate;
    }
  }
  return kLastListedYear;
}

std::string ReadDataVersion() {
  // Debian's tzdata names its release in the first line of the source it
  // ships: "# version 2026f".
  std::ifstream source("/usr/share/zoneinfo/tzdata.zi");
  std::string line;
  if (source && std::getline(source, line) && line.rfind("# version ", 0) == 0) return line.substr(10);
  try {
    return date::get_tzdb().version;
  } catch (const std::exception&) {
    return {};
  }
}

}  // namespace

std::string SystemZoneRules::DataVersion() {
  static const std::string version = ReadDataVersion();
  return version;
}

bool SystemZoneRules::Knows(std::string_view zoneId) const {
  try {
    date::locate_zone(zoneId);
    return true;
  } catch (const std::runtime_error&) {
    return false;
  }
}

ClockOffset SystemZoneRules::OffsetAt(std::string_view zoneId, const LocalClockTime& t, Fold fold) const {
  using namespace date;
  const time_zone* zone = Zone(zoneId);
  const local_seconds clock = local_days{year{ListedYearLike(t.year, static_cast<unsigned>(t.month))} / t.month / t.day} + std::chrono::hours{t.hour} +
                              std::chrono::minutes{t.minute};
  const local_info info = zone->get_info(clock);

  ClockOffset out;
  out.zoneId = std::string(zoneId);
  Reading chosen;
  switch (info.result) {
    case local_info::unique:
      chosen = Read(*zone, info.first, t.longitudeEast);
      break;
    case local_info::nonexistent: {
      chosen = Read(*zone, info.first, t.longitudeEast);
      const Reading after = Read(*zone, info.second, t.longitudeEast);
      const seconds jump = info.second.begin.time_since_epoch();
      out.nonexistent = true;
      out.gapFrom = ClockText(jump + seconds{chosen.offsetSeconds});
      out.gapTo = ClockText(jump + seconds{after.offsetSeconds});
      break;
    }
    case local_info::ambiguous: {
      const Reading earlier = Read(*zone, info.first, t.longitudeEast);
      const Reading later = Read(*zone, info.second, t.longitudeEast);
      chosen = fold == Fold::Earlier ? earlier : later;
      const Reading& other = fold == Fold::Earlier ? later : earlier;
      out.ambiguous = true;
      out.otherOffsetSeconds = other.offsetSeconds;
      out.otherReason = other.reason;
      break;
    }
  }
  out.offsetSeconds = chosen.offsetSeconds;
  out.kind = chosen.kind;
  out.abbreviation = chosen.abbreviation;
  out.reason = chosen.reason;
  out.dataVersion = DataVersion();
  const int released = VersionYear(out.dataVersion);
  out.beyondData = released > 0 && t.year > released;
  return out;
}

}  // namespace kelvaro::store
