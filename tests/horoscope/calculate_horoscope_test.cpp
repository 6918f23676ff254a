// The whole calculation of the sample chart: the sequence and its progress,
// the birth summary against values worked by hand, and the rollback on failure.
#include <gtest/gtest.h>

#include <map>
#include <string>
#include <vector>

#include "common/calculation_error.h"
#include "common/date_text.h"
#include "horoscope/calculate_horoscope.h"
#include "support/charts_master.h"
#include "support/test_data.h"
#include "support/year_table.h"

namespace kelvaro {
namespace {

class SampleChartRun : public ::testing::Test {
 protected:
  testing::MapYearTable years_ = testing::SeedYearTable();
  testing::SeedChartsMaster charts_;
  CalculationContext ctx_{&years_, &charts_};
};

TEST_F(SampleChartRun, ProgressAdvancesFifteenTimes) {
  std::vector<int> seen;
  ctx_.OnProgress = [&](int done, int total) {
    EXPECT_EQ(total, kProgressSteps);
    seen.push_back(done);
  };
  CalculateHoroscope(ctx_);
  std::vector<int> expected;
  for (int i = 0; i <= 15; ++i) expected.push_back(i);
  EXPECT_EQ(seen, expected);
  // The planet table's pass runs last: the rasi fields hold Rasi positions.
  EXPECT_EQ(ctx_.state.MoonRasi, 10);
  EXPECT_EQ(ctx_.state.ShortNameOf(Body::Moon), "Moo");
}

// Worked by hand, field by field, in tests/data/horoscope/sample_summary.txt.
TEST_F(SampleChartRun, SummaryOfTheSampleChart) {
  ctx_.state.BirthTimeZoneName = "IST";
  CalculateHoroscope(ctx_);
  const BirthSummary& b = ctx_.summary;
  std::map<std::string, std::string> shown;
  for (const BirthSummary::Field& f : b.Fields()) shown[f.control] = *f.text;
  const auto rows = testing::TestDataTable("horoscope/sample_summary.txt");
  ASSERT_EQ(rows.size(), 26u);
  for (const auto& row : rows) {
    ASSERT_EQ(row.size(), 2u);
    ASSERT_EQ(shown.count(row[0]), 1u) << row[0];
    EXPECT_EQ(shown[row[0]], row[1]) << row[0];
  }
  // The ghatis from the day's sunrise, which the text rounds.
  const double minutes = static_cast<double>(
      DateDiff(Interval::Minute, ctx_.state.SunriseOfBirthDay, OleDate::FromParts(1965, 7, 14, 13, 59)));
  EXPECT_DOUBLE_EQ(b.IshtaGhati, minutes / 60 * 2.5);
  EXPECT_EQ(FormatDate(ctx_.state.SunriseOfBirthDay, "HH:NN"), "05:50");
}

TEST_F(SampleChartRun, BeforeSunriseTheVedicDayIsTheDayBefore) {
  ctx_.state.BirthHour = "03";
  ctx_.state.BirthMinute = "00";
  CalculateHoroscope(ctx_);
  EXPECT_EQ(ctx_.summary.txtGregorian, "Wednesday");
  EXPECT_EQ(ctx_.summary.txtVedic, "Tuesday");
  EXPECT_EQ(ctx_.summary.txtTimeOfBirth, "3 : 00  AM");
}

// The local mean time is geometric (east positive), and the ishta ghati
// counts from the last sunrise before the local mean time moment.
TEST_F(SampleChartRun, LocalMeanTimeWestOfTheMeridianAndIshtaGhatiNearSunrise) {
  struct Case {
    const char* hour;
    const char* minute;
    double latDeg, latMin;
    const char* latNS;
    double lonDeg, lonMin;
    const char* lonEW;
    double zone;
    const char* zoneEW;
    const char* lmt;
    const char* ghati;
  } cases[] = {
      // New York: 74 W is 1 degree east of 75 W, 4 minutes later.
      {"12", "30", 40, 43, "N", 74, 0, "W", 5, "W", "14/Jul/1965 12:34 PM", nullptr},
      // Los Angeles: 118 15 W is 1.75 degrees east of 120 W, 7 minutes later.
      {"09", "10", 34, 3, "N", 118, 15, "W", 8, "W", "14/Jul/1965 09:17 AM", nullptr},
      // 06:00 at Hyderabad is 05:44 local mean time, before the day's sunrise
      // (05:50): 1435 minutes from the day before's.
      {"06", "00", 17, 20, "N", 78, 30, "E", 5.5, "E", "14/Jul/1965 05:44 AM", "59:7917"},
      // 04:55 at Kolkata is 05:18 local mean time, 18 minutes after sunrise.
      {"04", "55", 22, 34, "N", 88, 22, "E", 5.5, "E", "14/Jul/1965 05:18 AM", "00:7500"},
  };
  for (const Case& c : cases) {
    HoroscopeState& s = ctx_.state;
    s.BirthHour = c.hour;
    s.BirthMinute = c.minute;
    s.LatDeg = c.latDeg, s.LatMin = c.latMin, s.LatNS = c.latNS;
    s.LonDeg = c.lonDeg, s.LonMin = c.lonMin, s.LonEW = c.lonEW;
    s.TimeDiff = c.zone, s.TimeDiffEW = c.zoneEW;
    CalculateHoroscope(ctx_);
    EXPECT_EQ(ctx_.summary.txtlmt, c.lmt);
    if (c.ghati) {
      EXPECT_EQ(ctx_.summary.txtIshtaGhati, c.ghati) << c.lmt;
    }
    EXPECT_GE(ctx_.summary.IshtaGhati, 0) << c.lmt;
    EXPECT_LT(ctx_.summary.IshtaGhati, 60) << c.lmt;
  }
}

// Births from the defects once found: each gives what it must.
TEST_F(SampleChartRun, NoSubPeriodOfZeroLengthAtBirthAndKartikkaIsDakshinaya) {
  HoroscopeState& s = ctx_.state;
  s.BirthDay = "26", s.BirthMonth = "04", s.BirthYear = "1903", s.BirthHour = "23", s.BirthMinute = "03";
  s.LatDeg = 56, s.LatMin = 47, s.LatNS = "N", s.LonDeg = 88, s.LonMin = 1, s.LonEW = "W";
  s.TimeDiff = 6, s.TimeDiffEW = "W";
  s.AyanamsaName = s.AyanamsaInForce = "Sayana";
  CalculateHoroscope(ctx_);
  const Grid& bukti = ctx_.dasa.mshBukti;
  // The Rahu sub-period ends at birth to the second: the first row is the
  // next one, which starts at birth.
  EXPECT_EQ(bukti.RowTexts(1), (std::vector<std::string>{"Jupiter Dasa", "26/Apr/1903", "14/Feb/1904", "0"}));

  // 20/11/2023 10:00 at Hyderabad falls in the month spelled "Kartikka".
  ctx_.state = SampleChart();
  s.BirthDay = "20", s.BirthMonth = "11", s.BirthYear = "2023", s.BirthHour = "10", s.BirthMinute = "00";
  CalculateHoroscope(ctx_);
  EXPECT_NE(ctx_.summary.txtSLunarDate.find("Kartikka"), std::string::npos) << ctx_.summary.txtSLunarDate;
  EXPECT_EQ(ctx_.summary.txtAyana, "Dakshinaya");

  // YearBeforeTheYearTable: said in words, not an empty field and a year 0.
  s.BirthYear = "1850";
  CalculateHoroscope(ctx_);
  EXPECT_EQ(ctx_.summary.txtKaliyugaYear, kYearNotKnown);
  EXPECT_EQ(ctx_.summary.txtSolarDate, kYearNotKnown);
}

// PlaceAtZeroDegreesKeepsItsHemisphere: 0 whole degrees keeps the letter's
// side in the Lagna (the astronomy tests hold sunrise and sunset).
TEST_F(SampleChartRun, PlaceAtZeroDegreesKeepsItsHemisphere) {
  HoroscopeState& s = ctx_.state;
  s.BirthDay = "20", s.BirthMonth = "03", s.BirthYear = "1912", s.BirthHour = "17", s.BirthMinute = "45";
  s.LatDeg = 21, s.LatMin = 17, s.LatNS = "S", s.LonDeg = 0, s.LonMin = 57, s.LonEW = "E";
  s.TimeDiff = 0, s.TimeDiffEW = "E";
  CalculateHoroscope(ctx_);
  // Read as 0 W 57 the Lagna fell in Leo; east of Greenwich it is in Virgo.
  EXPECT_NEAR(ctx_.state.LagnaLon, 150.9, 0.1);
  EXPECT_EQ(ctx_.summary.txtLagna, "Virgo");
}

TEST_F(SampleChartRun, AFailedStepKeepsTheLastCompleteRun) {
  CalculateHoroscope(ctx_);
  const std::string summary = ctx_.summary.txtKLunarDate;
  const double moon = ctx_.state.MoonLon;
  ctx_.state.BirthDay = "31";
  ctx_.state.BirthMonth = "6";  // 31 June
  EXPECT_THROW(CalculateHoroscope(ctx_), CalculationError);
  EXPECT_EQ(ctx_.state.BirthDay, "31");  // the input stays as the caller set it
  EXPECT_EQ(ctx_.state.MoonLon, moon);
  EXPECT_EQ(ctx_.summary.txtKLunarDate, summary);
}

}  // namespace
}  // namespace kelvaro
