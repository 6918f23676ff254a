// The birth form's clock offset: the IANA rules at the form's date, clock and
// longitude, the line under the zone, the clock changes, and the user's word
// over the rules. The expected offsets are the tz database's as zdump -v
// prints them; the local mean time is the longitude at 4 minutes a degree.
#include "horoscope/birth_offset.h"

#include <gtest/gtest.h>

#include "store/system_zone_rules.h"
#include "support/sample_birth_form.h"

namespace kelvaro {
namespace {

BirthFormFields Form(const char* day, const char* month, const char* year, const char* hour, const char* minute,
                     bool pm, double lonDeg, double lonMin, const char* ew) {
  BirthFormFields f = testing::SampleBirthForm();
  f.day = day;
  f.month = month;
  f.year = year;
  f.hour = hour;
  f.minute = minute;
  f.pm = pm;
  f.lonDeg = lonDeg;
  f.lonMin = lonMin;
  f.lonEW = ew;
  return f;
}

TEST(BirthOffset, RulesAtTheFormsDateClockAndLongitude) {
  struct Case {
    const char* name;
    BirthFormFields form;
    const char* zone;
    Fold fold;
    double timeDiff;
    const char* ew;
    const char* line;
  } cases[] = {
      {"Kolkata war time", Form("14", "Jul", "1943", "02", "15", true, 88, 22, "E"), "Asia/Kolkata", Fold::Earlier,
       6.5, "E", "Asia/Kolkata: +6:30 on 14/07/1943 (war time)"},
      {"New York clocks jumped", Form("10", "Mar", "2024", "02", "30", false, 74, 0, "W"), "America/New_York",
       Fold::Earlier, 5, "W", "America/New_York: -5:00 on 10/03/2024 (standard time); no such clock time there: the clocks went from 02:00 "
       "to 03:00"},
      {"New York twice, earlier", Form("03", "Nov", "2024", "01", "30", false, 74, 0, "W"), "America/New_York",
       Fold::Earlier, 4, "W", "America/New_York: -4:00 on 03/11/2024 (summer time); this clock time happened twice, the other reading is "
       "-5:00 (standard time)"},
      {"New York twice, later", Form("03", "Nov", "2024", "01", "30", false, 74, 0, "W"), "America/New_York",
       Fold::Later, 5, "W", "America/New_York: -5:00 on 03/11/2024 (standard time); this clock time happened twice, the other reading "
       "is -4:00 (summer time)"},
      // 78 E 30 at 4 minutes a degree is 5:14:00, not Kolkata's 5:53:28.
      {"Hyderabad before standard time", Form("01", "Jan", "1850", "12", "00", true, 78, 30, "E"), "Asia/Kolkata",
       Fold::Earlier, 5 + 14 / 60.0, "E", "Asia/Kolkata: +5:14 on 01/01/1850 (local mean time)"},
  };
  const store::SystemZoneRules rules;
  for (const Case& c : cases) {
    SCOPED_TRACE(c.name);
    const OffsetDecision d = DecideBirthOffset(c.form, c.zone, false, c.fold, rules);
    ASSERT_TRUE(d.rules);
    EXPECT_NEAR(d.timeDiff, c.timeDiff, 1e-9);
    EXPECT_EQ(d.timeDiffEW, c.ew);
    EXPECT_EQ(d.line, c.line);
    EXPECT_EQ(d.note, d.line);
  }
}

TEST(BirthOffset, ClockChangesAreFlagged) {
  const store::SystemZoneRules rules;
  const auto gap = DecideBirthOffset(Form("10", "Mar", "2024", "02", "30", false, 74, 0, "W"), "America/New_York",
                                     false, Fold::Earlier, rules);
  EXPECT_TRUE(gap.Nonexistent());
  EXPECT_FALSE(gap.Ambiguous());
  const auto twice = DecideBirthOffset(Form("03", "Nov", "2024", "01", "30", false, 74, 0, "W"),
                                       "America/New_York", false, Fold::Earlier, rules);
  EXPECT_TRUE(twice.Ambiguous());
  EXPECT_EQ(twice.rules->otherOffsetSeconds, -5 * 3600);
  // An hour later the clocks had gone back already: one reading only.
  const auto after = DecideBirthOffset(Form("03", "Nov", "2024", "02", "30", false, 74, 0, "W"),
                                       "America/New_York", false, Fold::Earlier, rules);
  EXPECT_FALSE(after.Ambiguous());
  EXPECT_FALSE(after.Nonexistent());
}

TEST(BirthOffset, TheUsersOffsetWinsAndTheNoteSaysSo) {
  const store::SystemZoneRules rules;
  const BirthFormFields war = Form("14", "Jul", "1943", "02", "15", true, 88, 22, "E");
  const OffsetDecision d = DecideBirthOffset(war, "Asia/Kolkata", true, Fold::Earlier, rules);
  EXPECT_DOUBLE_EQ(d.timeDiff, 5.5);
  EXPECT_EQ(d.note, "Asia/Kolkata: +6:30 on 14/07/1943 (war time); overruled by the user: 5.5 E");

  // A city without a zone id: the zone list's offset stands, with nothing to say.
  const OffsetDecision plain = DecideBirthOffset(war, "", false, Fold::Earlier, rules);
  EXPECT_FALSE(plain.rules);
  EXPECT_DOUBLE_EQ(plain.timeDiff, 5.5);
  EXPECT_EQ(plain.note, "");
  // A half-typed date waits; an unknown zone is left to the list as well.
  BirthFormFields half = war;
  half.day.clear();
  EXPECT_EQ(DecideBirthOffset(half, "Asia/Kolkata", false, Fold::Earlier, rules).line,
            "Asia/Kolkata: waiting for the date and time");
  EXPECT_FALSE(DecideBirthOffset(war, "Asia/Hyderabad", false, Fold::Earlier, rules).rules);
}

TEST(BirthOffset, OkCalculatesWithTheDecision) {
  const store::SystemZoneRules rules;
  BirthFormFields f = Form("14", "Jul", "1943", "02", "15", true, 88, 22, "E");
  ApplyOffsetDecision(DecideBirthOffset(f, "Asia/Kolkata", false, Fold::Earlier, rules), f);
  HoroscopeState s;
  HandOverBirthForm(f, s);
  EXPECT_DOUBLE_EQ(s.TimeDiff, 6.5);
  EXPECT_EQ(s.TimeDiffEW, "E");
  EXPECT_EQ(s.ClockOffsetNote, "Asia/Kolkata: +6:30 on 14/07/1943 (war time)");
}

TEST(BirthOffset, TheChartStoreKeepsTheOffsetItWasCalculatedWith) {
  BirthFormFields f = Form("10", "Mar", "2024", "01", "30", false, 74, 0, "W");
  f.timeDiff = 5;
  f.timeDiffEW = "W";
  f.zoneId = "America/New_York";
  f.clockOffsetNote = "America/New_York: -5:00 on 10/03/2024 (standard time)";
  const store::ChartFields saved = ChartFieldsOf(f, 3, 40);
  ASSERT_TRUE(saved.clockOffsetHours);
  EXPECT_DOUBLE_EQ(*saved.clockOffsetHours, -5);
  EXPECT_EQ(saved.zoneId, "America/New_York");

  store::OpenedChart opened;
  opened.timeDiff = 5.5;  // the zone row's, which the saved offset overrides
  opened.clockOffsetHours = -5;
  opened.clockOffsetNote = saved.clockOffsetNote;
  opened.zoneId = saved.zoneId;
  const BirthFormFields back = FormFieldsOf(opened, "USA");
  EXPECT_DOUBLE_EQ(back.timeDiff, 5);
  EXPECT_EQ(back.timeDiffEW, "W");
  EXPECT_EQ(back.clockOffsetNote, f.clockOffsetNote);

  // Without a note the zone row's offset is the chart's, and nothing is kept.
  f.clockOffsetNote.clear();
  EXPECT_FALSE(ChartFieldsOf(f, 3, 40).clockOffsetHours);
  opened.clockOffsetHours.reset();
  EXPECT_DOUBLE_EQ(FormFieldsOf(opened, "USA").timeDiff, 5.5);
}

TEST(BirthOffset, HoursText) {
  EXPECT_EQ(HoursText(5.5, "E"), "5.5 E");
  EXPECT_EQ(HoursText(0, "E"), "0 E");
  EXPECT_EQ(HoursText(5 + 14 / 60.0, "W"), "5.2333 W");
}

}  // namespace
}  // namespace kelvaro
