// Clock offsets from the system's tz database, checked against the worked
// transitions that `zdump -v ZONE` prints for the same database.
#include <gtest/gtest.h>

#include <sstream>
#include <stdexcept>

#include "store/system_zone_rules.h"
#include "support/test_data.h"

namespace kelvaro::store {
namespace {

// The rows of tests/data/store/zone_offsets.txt.
TEST(SystemZoneRules, OffsetsMatchZdump) {
  const char* kinds[] = {"standard", "daylight", "local mean time"};
  const auto rows = kelvaro::testing::TestDataTable("store/zone_offsets.txt");
  ASSERT_EQ(rows.size(), 10u);
  const SystemZoneRules rules;
  for (const auto& row : rows) {
    ASSERT_EQ(row.size(), 7u);
    SCOPED_TRACE(row[0]);
    LocalClockTime t;
    std::istringstream(row[2]) >> t.year >> t.month >> t.day >> t.hour >> t.minute >> t.longitudeEast;
    const ClockOffset o = rules.OffsetAt(row[1], t, row[3] == "later" ? Fold::Later : Fold::Earlier);
    EXPECT_EQ(o.offsetSeconds, std::stoi(row[4]));
    EXPECT_EQ(o.reason, row[5]);
    EXPECT_EQ(kinds[static_cast<int>(o.kind)], row[6]);
    EXPECT_EQ(o.zoneId, row[1]);
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
