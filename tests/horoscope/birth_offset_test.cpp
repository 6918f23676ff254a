// The birth form's clock offset from the IANA rules at its date, clock and
// longitude, and the user's word over them.
#include "horoscope/birth_offset.h"

#include <gtest/gtest.h>

#include <tuple>

#include "store/system_zone_rules.h"
#include "support/sample_birth_form.h"
#include "support/test_data.h"

namespace kelvaro {
namespace {

BirthFormFields Form(const std::string& day, const std::string& month, const std::string& year,
                     const std::string& hour, bool pm, double lon, const std::string& ew) {
  BirthFormFields f = testing::SampleBirthForm();
  f.day = day, f.month = month, f.year = year, f.hour = hour, f.minute = "30", f.pm = pm;
  f.lonDeg = lon, f.lonMin = 0, f.lonEW = ew;
  return f;
}

// The rows of tests/data/horoscope/birth_offsets.txt.
TEST(BirthOffset, RulesClockChangesAndTheUsersWord) {
  const auto rows = testing::TestDataTable("horoscope/birth_offsets.txt");
  ASSERT_EQ(rows.size(), 9u);
  const store::SystemZoneRules rules;
  for (const auto& r : rows) {
    ASSERT_EQ(r.size(), 15u);
    SCOPED_TRACE(r[0]);
    const BirthFormFields form = Form(r[1], r[2], r[3], r[4], r[5] == "PM", std::stod(r[6]), r[7]);
    const Fold fold = r[10] == "later" ? Fold::Later : Fold::Earlier;
    const OffsetDecision d = DecideBirthOffset(form, r[8], r[9] == "user", fold, rules);
    EXPECT_NEAR(d.timeDiff, std::stod(r[11]), 1e-9);
    EXPECT_EQ(d.timeDiffEW, r[12]);
    EXPECT_EQ(d.line.substr(0, r[13].size()), r[13]);
    EXPECT_EQ(d.Nonexistent(), r[14] == "nonexistent");
    EXPECT_EQ(d.Ambiguous(), r[14] == "ambiguous");
    EXPECT_EQ(d.note, d.rules ? d.line : "");
  }
}

// West of Greenwich through "&OK" and the chart store's forms, and back.
TEST(BirthOffset, HandedOverSavedAndOpened) {
  BirthFormFields f = Form("10", "Mar", "2024", "01", false, 74, "W");
  ApplyOffsetDecision(DecideBirthOffset(f, "America/New_York", false, Fold::Earlier, store::SystemZoneRules()), f);
  HoroscopeState s;
  HandOverBirthForm(f, s);
  EXPECT_EQ(std::tie(s.TimeDiff, s.TimeDiffEW, s.ClockOffsetNote),
            std::tie(f.timeDiff, f.timeDiffEW, f.clockOffsetNote));
  EXPECT_DOUBLE_EQ(s.TimeDiff, 5);
  store::OpenedChart opened;
  opened.timeDiff = 5.5;  // the zone row's, under the saved offset
  opened.clockOffsetHours = ChartFieldsOf(f, 3, 40).clockOffsetHours;
  EXPECT_EQ(opened.clockOffsetHours, -5.0);
  const BirthFormFields back = FormFieldsOf(opened, "USA");
  EXPECT_EQ(std::tie(back.timeDiff, back.timeDiffEW), std::tie(f.timeDiff, f.timeDiffEW));
  f.clockOffsetNote.clear();  // no note: the zone row's offset, nothing kept
  EXPECT_FALSE(ChartFieldsOf(f, 3, 40).clockOffsetHours);
}

}  // namespace
}  // namespace kelvaro
