// The birth form's decisions without its widgets: the thirteen checks in
// order, the 12-hour clock, the hand-over, and a chart's round trips through
// the chart store's form and the "Horo" settings.
#include "horoscope/birth_form.h"

#include <gtest/gtest.h>

#include "common/calculation_error.h"
#include "horoscope/views.h"
#include "support/sample_birth_form.h"

namespace kelvaro {
namespace {

BirthFormFields Filled() { return testing::SampleBirthForm(); }

TEST(BirthForm, ChecksInOrderWithTheirFields) {
  struct Case {
    void (*change)(BirthFormFields&);
    const char* field;
    const char* message;
  } cases[] = {
      {[](BirthFormFields& f) { f.name = "  "; f.day.clear(); }, "Txt_VC_ChartName", "Enter Name"},
      {[](BirthFormFields& f) { f.day.clear(); f.month.clear(); }, "txt_Date", "Enter Date of Birth"},
      {[](BirthFormFields& f) { f.month.clear(); f.year.clear(); }, "txt_Month", "Enter Month"},
      {[](BirthFormFields& f) { f.year.clear(); }, "txt_Year", "Enter Year"},
      {[](BirthFormFields& f) { f.year = "1799"; }, "txt_Year", "Enter Year Between 1800 and 3000"},
      {[](BirthFormFields& f) { f.year = "3001"; }, "txt_Year", "Enter Year Between 1800 and 3000"},
      {[](BirthFormFields& f) { f.year = "19a5"; }, "txt_Year", "Enter Year Between 1800 and 3000"},
      {[](BirthFormFields& f) { f.day = "31"; f.month = "Jun"; f.hour.clear(); }, "", "Enter Correct Date"},
      {[](BirthFormFields& f) { f.day = "29"; f.month = "Feb"; f.year = "1900"; }, "", "Enter Correct Date"},
      {[](BirthFormFields& f) { f.hour.clear(); f.minute.clear(); }, "cbHour", "Enter Correct Time"},
      {[](BirthFormFields& f) { f.minute.clear(); }, "cbMins", "Enter Correct Time"},
      {[](BirthFormFields& f) { f.hour = "25"; }, "cbHour", "Enter Correct Time"},
      {[](BirthFormFields& f) { f.hour = "1a"; }, "cbHour", "Enter Correct Time"},
      {[](BirthFormFields& f) { f.minute = "60"; }, "cbMins", "Enter Correct Time"},
      {[](BirthFormFields& f) { f.country.clear(); f.city.clear(); }, "txt_VC_Country", "Select Country"},
      {[](BirthFormFields& f) { f.city.clear(); f.zone.clear(); }, "txt_VC_City", "Select City"},
      {[](BirthFormFields& f) { f.zone.clear(); }, "cbTimeZone", "Select Timezone"},
  };
  for (const Case& c : cases) {
    BirthFormFields f = Filled();
    c.change(f);
    const auto failure = ValidateBirthForm(f);
    ASSERT_TRUE(failure.has_value()) << c.message;
    EXPECT_EQ(failure->field, c.field) << c.message;
    EXPECT_EQ(failure->message, c.message);
  }
  // The limits pass: 1800 and 3000, 29 Feb of a leap year, hour 24 (the
  // 12-hour list notwithstanding), minute 59.
  for (auto change : {+[](BirthFormFields& f) { f.year = "1800"; }, +[](BirthFormFields& f) { f.year = "3000"; },
                      +[](BirthFormFields& f) { f.day = "29"; f.month = "Feb"; f.year = "2000"; },
                      +[](BirthFormFields& f) { f.hour = "24"; f.minute = "59"; }}) {
    BirthFormFields f = Filled();
    change(f);
    EXPECT_FALSE(ValidateBirthForm(f).has_value()) << f.day << "/" << f.month << "/" << f.year << " " << f.hour;
  }
}

TEST(BirthForm, TwelveHourClockAndHandOver) {
  EXPECT_EQ(TwentyFourHourText("12", false), "0");
  EXPECT_EQ(TwentyFourHourText("12", true), "12");
  EXPECT_EQ(TwentyFourHourText("02", true), "14");
  EXPECT_EQ(TwentyFourHourText("02", false), "02");
  EXPECT_EQ(TwentyFourHourText("012", false), "012");  // not the text "12"

  HoroscopeState s;
  s.AyanamsaName = "KP";
  HandOverBirthForm(Filled(), s);
  EXPECT_EQ(s.BirthHour, "14");
  EXPECT_EQ(s.AyanamsaInForce, "KP");
  EXPECT_EQ(s.BirthMoment.Parts().hour, 14);
  EXPECT_EQ(s.BirthMoment.Parts().minute, 15);
  EXPECT_EQ(s.BirthTimeZoneName, "Asia/Kolkata  (5.5 hrs E)");

  // Hour 24 passes the checks and is refused here, before the state changes.
  BirthFormFields late = Filled();
  late.name = "Late";
  late.hour = "24";
  late.pm = false;
  EXPECT_THROW(HandOverBirthForm(late, s), CalculationError);
  EXPECT_EQ(s.ChartName, "Velnesh");
}

TEST(BirthForm, RoundTripsThroughStoreAndSettings) {
  BirthFormFields noon = Filled();
  noon.name = "O'Brien; \xE0\xA4\xB0\xE0\xA4\xBE\xE0\xA4\xAE";  // a quote, a semicolon and Devanagari
  noon.hour = "12";
  noon.pm = true;
  const store::ChartFields saved = ChartFieldsOf(noon, 99, 184);
  EXPECT_EQ(saved.hour, 12);
  EXPECT_EQ(saved.countryId, 99);
  EXPECT_EQ(saved.zoneSno, 184);

  // What the store gives back on opening comes back to the same form.
  store::OpenedChart opened;
  opened.name = noon.name;
  opened.gender = "Male";
  opened.day = 14;
  opened.month = "Jul";
  opened.year = 1965;
  store::TwelveHourClock(saved.hour, opened.hour12, opened.pm);
  opened.minute = saved.minute;
  opened.city = noon.city;
  opened.latDeg = 17, opened.latMin = 20, opened.latNS = "N";
  opened.lonDeg = 78, opened.lonMin = 30, opened.lonEW = "E";
  opened.zoneText = noon.zone;
  opened.timeDiff = 5.5, opened.timeDiffEW = "E";
  const BirthFormFields back = FormFieldsOf(opened, "India");
  EXPECT_EQ(back.name, noon.name);
  EXPECT_EQ(back.hour, "12");
  EXPECT_TRUE(back.pm);
  EXPECT_EQ(back.day, "14");

  // The settings keep the chart for the next start.
  store::InMemorySettings settings;
  store::WriteLastChart(settings, LastChartOf(noon));
  HoroscopeState s;
  ASSERT_FALSE(ApplyLastChart(store::ReadLastChart(settings), s).has_value());
  EXPECT_EQ(s.ChartName, noon.name);
  EXPECT_EQ(s.BirthHour, "12");
  EXPECT_EQ(s.TimeDiff, 5.5);
  EXPECT_EQ(s.BirthTimeZoneName, "");  // the zone's name is written, never read

  // A hand-edited settings file is named, and the state is left alone.
  settings.Write(store::kHoroSection, "LatDeg", "north");
  HoroscopeState untouched = SampleChart();
  const auto problem = ApplyLastChart(store::ReadLastChart(settings), untouched);
  ASSERT_TRUE(problem.has_value());
  EXPECT_NE(problem->find("LatDeg"), std::string::npos);
  EXPECT_EQ(untouched.ChartName, "Velnesh");
}

TEST(HoroscopeViews, NamesAndKeys) {
  EXPECT_EQ(ViewIndexOfName(""), 0u);
  EXPECT_EQ(ViewIndexOfName("AVargas"), 7u);
  EXPECT_EQ(ViewIndexOfName("Nonsense"), 0u);
  EXPECT_EQ(ViewIndexOfKey("Bava"), 3u);
  EXPECT_FALSE(ViewIndexOfKey("Bhava").has_value());
  EXPECT_EQ(kHoroscopeViews[ViewIndexOfKey("AshtaVargas").value()].name, "AVargas");
}

}  // namespace
}  // namespace kelvaro
