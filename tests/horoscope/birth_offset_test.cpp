// The birth form's clock offset from the IANA rules at its date, clock and
// longitude, and the user's word over them. The offsets are the tz
// database's as zdump -v prints them; the local mean time is the longitude at
// 4 minutes a degree (78 E 30 gives 5:14, not Kolkata's 5:53:28).
#include "horoscope/birth_offset.h"

#include <gtest/gtest.h>

#include <tuple>

#include "store/system_zone_rules.h"
#include "support/sample_birth_form.h"

namespace kelvaro {
namespace {

BirthFormFields Form(const char* day, const char* month, const char* year, const char* hour, bool pm, double lon,
                     const char* ew) {
  BirthFormFields f = testing::SampleBirthForm();
  f.day = day, f.month = month, f.year = year, f.hour = hour, f.minute = "30", f.pm = pm;
  f.lonDeg = lon, f.lonMin = 0, f.lonEW = ew;
  return f;
}

TEST(BirthOffset, RulesClockChangesAndTheUsersWord) {
  const BirthFormFields war = Form("14", "Jul", "1943", "02", true, 88, "E");
  const BirthFormFields gap = Form("10", "Mar", "2024", "02", false, 74, "W");
  const BirthFormFields twice = Form("03", "Nov", "2024", "01", false, 74, "W");
  BirthFormFields halfTyped = war;
  halfTyped.day.clear();
  struct Case {
    const char* name;
    BirthFormFields form;
    const char* zone;
    bool overruled;
    Fold fold;
    double timeDiff;
    const char* ew;
    const char* line;  // the start of it
    bool nonexistent = false, ambiguous = false;
  } cases[] = {
      {"war time", war, "Asia/Kolkata", false, Fold::Earlier, 6.5, "E", "Asia/Kolkata: +6:30 on 14/07/1943 (war time)"},
      {"clocks jumped", gap, "America/New_York", false, Fold::Earlier, 5, "W",
       "America/New_York: -5:00 on 10/03/2024 (standard time); no such clock time there: the clocks went from 02:00 "
       "to 03:00", true, false},
      {"twice, earlier", twice, "America/New_York", false, Fold::Earlier, 4, "W",
       "America/New_York: -4:00 on 03/11/2024 (summer time); this clock time happened twice", false, true},
      {"twice, later", twice, "America/New_York", false, Fold::Later, 5, "W",
       "America/New_York: -5:00 on 03/11/2024 (standard time); this clock time happened twice", false, true},
      {"before standard time", Form("01", "Jan", "1850", "12", true, 78.5, "E"), "Asia/Kolkata", false,
       Fold::Earlier, 5 + 14 / 60.0, "E", "Asia/Kolkata: +5:14 on 01/01/1850 (local mean time)"},
      {"overruled", war, "Asia/Kolkata", true, Fold::Earlier, 5.5, "E",
       "Asia/Kolkata: +6:30 on 14/07/1943 (war time); overruled by the user: 5.5 E"},
      {"no zone id", war, "", false, Fold::Earlier, 5.5, "E", ""},
      {"unknown zone", war, "Asia/Hyderabad", false, Fold::Earlier, 5.5, "E", ""},
      {"half typed", halfTyped, "Asia/Kolkata", false, Fold::Earlier, 5.5, "E",
       "Asia/Kolkata: waiting for the date and time"},
  };
  const store::SystemZoneRules rules;
  for (const Case& c : cases) {
    SCOPED_TRACE(c.name);
    const OffsetDecision d = DecideBirthOffset(c.form, c.zone, c.overruled, c.fold, rules);
    EXPECT_NEAR(d.timeDiff, c.timeDiff, 1e-9);
    EXPECT_EQ(d.timeDiffEW, c.ew);
    EXPECT_EQ(d.line.substr(0, std::string(c.line).size()), c.line);
    EXPECT_EQ(d.Nonexistent(), c.nonexistent);
    EXPECT_EQ(d.Ambiguous(), c.ambiguous);
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
