// Every transition of a set of zones as zdump (the tz database's own tool)
// prints it, against SystemZoneRules over the same system database: at the
// first whole-minute local time of each new period the offsets must agree,
// also after 2037, where the rules of the last listed years are carried on.
#include <gtest/gtest.h>

#include <cstdio>
#include <memory>
#include <sstream>
#include <string>

#include "store/system_zone_rules.h"

namespace kelvaro::store {
namespace {

std::string Zdump(const std::string& zone) {
  const std::string command = "zdump -v -c 1850,2100 " + zone + " 2>/dev/null";
  std::unique_ptr<FILE, int (*)(FILE*)> pipe(popen(command.c_str(), "r"), pclose);
  std::string out;
  if (!pipe) return out;
  char buffer[4096];
  for (std::size_t n; (n = fread(buffer, 1, sizeof buffer, pipe.get())) > 0;) out.append(buffer, n);
  return out;
}

int MonthNumber(const std::string& name) {
  static const char* kMonths[] = {"Jan", "Feb", "Mar", "Apr", "May", "Jun", "Jul", "Aug", "Sep", "Oct", "Nov", "Dec"};
  for (int m = 0; m < 12; ++m) {
    if (name == kMonths[m]) return m + 1;
  }
  return 0;
}

TEST(SystemZoneRulesAgainstZdump, EveryTransitionOfTwentyZones) {
  const char* zones[] = {"Asia/Kolkata",     "Asia/Karachi",    "Asia/Dhaka",         "Asia/Kathmandu",
                         "Asia/Colombo",     "America/New_York", "America/Los_Angeles", "America/St_Johns",
                         "America/Sao_Paulo", "Europe/London",   "Europe/Dublin",      "Europe/Berlin",
                         "Europe/Moscow",    "Africa/Cairo",    "Asia/Tehran",        "Asia/Tokyo",
                         "Australia/Sydney", "Australia/Adelaide", "Pacific/Auckland", "Pacific/Chatham"};
  const SystemZoneRules rules;
  int checked = 0, mismatches = 0;
  for (const char* zone : zones) {
    std::istringstream lines(Zdump(zone));
    for (std::string line; std::getline(lines, line);) {
      // "Zone  Sun Mar  8 07:00:00 2020 UT = Sun Mar  8 03:00:00 2020 EDT isdst=1 gmtoff=-14400"
      const auto eq = line.find(" UT = ");
      if (eq == std::string::npos) continue;
      std::istringstream local(line.substr(eq + 6));
      std::string weekday, month, clock, abbreviation, isdst, gmtoff;
      int day = 0, year = 0;
      local >> weekday >> month >> day >> clock >> year >> abbreviation >> isdst >> gmtoff;
      if (clock.size() != 8 || clock.substr(6) != "00" || abbreviation == "LMT") continue;
      const int expected = std::stoi(gmtoff.substr(gmtoff.find('=') + 1));
      const LocalClockTime t{year, MonthNumber(month), day, std::stoi(clock.substr(0, 2)), std::stoi(clock.substr(3, 2)),
                             0};
      // The first minute of a period that follows a step back happened twice:
      // the later reading is the new period's.
      const ClockOffset o = rules.OffsetAt(zone, t, Fold::Later);
      ++checked;
      if (o.offsetSeconds != expected) {
        ++mismatches;
        ADD_FAILURE() << zone << " " << line.substr(eq + 6) << ": got " << o.offsetSeconds;
      }
    }
  }
  std::printf("zdump agreement: %d period starts over 20 zones, %d differ\n", checked, mismatches);
  EXPECT_GT(checked, 1000);
}

}  // namespace
}  // namespace kelvaro::store
