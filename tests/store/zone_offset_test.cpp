// Clock offsets from the system's tz database, checked against the worked
// transitions that `zdump -v ZONE` prints for the same database.
#include <gtest/gtest.h>

#include <stdexcept>

#include "store/system_zone_rules.h"

namespace kelvaro::store {
namespace {

struct Case {
  const char* name;
  const char* zone;
  LocalClockTime time;
  Fold fold;
  int offsetSeconds;
  const char* reason;
  OffsetKind kind;
};

// Every expected offset is zdump's gmtoff for the period, except local mean
// time, which is the birth's longitude times 240 seconds a degree.
TEST(SystemZoneRules, OffsetsMatchZdump) {
  const Case cases[] = {
      {"Kolkata war time", "Asia/Kolkata", {1943, 7, 14, 12, 0, 88.37}, Fold::Earlier, 23400, "war time",
       OffsetKind::Daylight},
      // The system database keeps no Bombay time: Mumbai in 1950 is on IST.
      {"Mumbai 1950", "Asia/Kolkata", {1950, 6, 1, 10, 0, 72.88}, Fold::Earlier, 19800, "standard time",
       OffsetKind::Standard},
      {"New York war time", "America/New_York", {1943, 1, 15, 12, 0, -74.0}, Fold::Earlier, -14400, "war time",
       OffsetKind::Daylight},
      {"London double summer time", "Europe/London", {1943, 7, 1, 12, 0, -0.13}, Fold::Earlier, 7200,
       "double summer time", OffsetKind::Daylight},
      {"London war winter", "Europe/London", {1943, 1, 15, 12, 0, -0.13}, Fold::Earlier, 3600, "war time",
       OffsetKind::Daylight},
      {"Sydney January", "Australia/Sydney", {2020, 1, 15, 12, 0, 151.2}, Fold::Earlier, 39600, "summer time",
       OffsetKind::Daylight},
      // Albany, 73 45 W, before the railways' standard time of 1883: its own
      // mean time, not New York's (-4:56:02).
      {"Albany 1880 local mean time", "America/New_York", {1880, 3, 1, 9, 0, -73.75}, Fold::Earlier, -17700,
       "local mean time", OffsetKind::LocalMeanTime},
      {"New York last LMT minute", "America/New_York", {1883, 11, 18, 11, 55, -74.0}, Fold::Earlier, -17760,
       "local mean time", OffsetKind::LocalMeanTime},
      {"Doubled hour, later", "America/New_York", {2020, 11, 1, 1, 30, -74.0}, Fold::Later, -18000,
       "standard time", OffsetKind::Standard},
      {"After the data's release", "America/New_York", {2999, 7, 4, 12, 0, -74.0}, Fold::Earlier, -14400,
       "summer time", OffsetKind::Daylight},
  };
  const SystemZoneRules rules;
  for (const Case& c : cases) {
    SCOPED_TRACE(c.name);
    const ClockOffset o = rules.OffsetAt(c.zone, c.time, c.fold);
    EXPECT_EQ(o.offsetSeconds, c.offsetSeconds);
    EXPECT_EQ(o.reason, c.reason);
    EXPECT_EQ(o.kind, c.kind);
    EXPECT_EQ(o.zoneId, c.zone);
  }
}

TEST(SystemZoneRules, ClockChangesAreFlagged) {
  const SystemZoneRules rules;
  const ClockOffset skipped = rules.OffsetAt("America/New_York", {2020, 3, 8, 2, 30, -74.0});
  EXPECT_TRUE(skipped.nonexistent);
  EXPECT_FALSE(skipped.ambiguous);
  EXPECT_EQ(skipped.gapFrom, "02:00");
  EXPECT_EQ(skipped.gapTo, "03:00");

  const ClockOffset twice = rules.OffsetAt("America/New_York", {2020, 11, 1, 1, 30, -74.0}, Fold::Later);
  EXPECT_TRUE(twice.ambiguous);
  EXPECT_FALSE(twice.nonexistent);
  EXPECT_EQ(twice.otherOffsetSeconds, -14400);
  EXPECT_EQ(twice.otherReason, "summer time");

  // A minute before and after each change is unique.
  EXPECT_FALSE(rules.OffsetAt("America/New_York", {2020, 3, 8, 1, 59, -74.0}).nonexistent);
  EXPECT_FALSE(rules.OffsetAt("America/New_York", {2020, 3, 8, 3, 0, -74.0}).nonexistent);
  EXPECT_FALSE(rules.OffsetAt("America/New_York", {2020, 11, 1, 2, 0, -74.0}).ambiguous);
  EXPECT_FALSE(rules.OffsetAt("America/New_York", {2020, 11, 1, 0, 59, -74.0}).ambiguous);
}

TEST(SystemZoneRules, DataAgeAndUnknownZones) {
  const SystemZoneRules rules;
  const std::string version = SystemZoneRules::DataVersion();
  ASSERT_GE(version.size(), 5u);
  const int released = std::stoi(version.substr(0, 4));
  EXPECT_FALSE(rules.OffsetAt("Asia/Kolkata", {released, 1, 1, 0, 0, 78.5}).beyondData);
  const ClockOffset later = rules.OffsetAt("Asia/Kolkata", {released + 1, 1, 1, 0, 0, 78.5});
  EXPECT_TRUE(later.beyondData);
  EXPECT_EQ(later.dataVersion, version);

  EXPECT_TRUE(rules.Knows("Asia/Calcutta"));  // an old name, kept as a link
  EXPECT_FALSE(rules.Knows("Asia/Hyderabad"));
  EXPECT_THROW(rules.OffsetAt("Asia/Hyderabad", {2000, 1, 1, 0, 0, 78.5}), std::invalid_argument);
}

TEST(ClockOffsetText, OffsetsTzFormsAndAuditLines) {
  EXPECT_EQ(OffsetText(23400), "+6:30");
  EXPECT_EQ(OffsetText(-18000), "-5:00");
  EXPECT_EQ(OffsetText(-17762), "-4:56:02");
  EXPECT_EQ(OffsetText(0), "+0:00");
  EXPECT_EQ(TzText(23400), "6.5E");
  EXPECT_EQ(TzText(-18000), "5W");
  EXPECT_EQ(TzText(20700), "5.75E");
  EXPECT_EQ(TzText(18840), "5.2333E");

  const SystemZoneRules rules;
  const LocalClockTime war{1943, 7, 14, 12, 0, 88.37};
  EXPECT_EQ(AuditLine(rules.OffsetAt("Asia/Kolkata", war), war), "Asia/Kolkata: +6:30 on 14/07/1943 (war time)");
  const LocalClockTime skipped{2020, 3, 8, 2, 30, -74.0};
  EXPECT_EQ(AuditLine(rules.OffsetAt("America/New_York", skipped), skipped),
            "America/New_York: -5:00 on 08/03/2020 (standard time); no such clock time there: the clocks went "
            "from 02:00 to 03:00");
}

}  // namespace
}  // namespace kelvaro::store
