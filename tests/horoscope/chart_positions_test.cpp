// One position pass: the day-or-night rule, the astrological day, the joining
// of Gulika's and Maandi's rise clocks to their dates, and the rasi numbers.
// The rise clocks are worked here from the sunrise and sunset the engine gives
// and the weekday rows of the day's parts: sunrise plus k parts, each part the
// span over 8 (or 30) in whole seconds.
#include <gtest/gtest.h>

#include <cmath>
#include <string>

#include "common/date_text.h"
#include "horoscope/calculation_context.h"

namespace kelvaro {
namespace {

// The sample chart at another day and clock.
void SetBirth(CalculationContext& ctx, int day, int hour, int minute) {
  ctx.state.BirthDay = std::to_string(day);
  ctx.state.BirthHour = std::to_string(hour);
  ctx.state.BirthMinute = std::to_string(minute);
}

// Start plus k parts of the span, the part being span / n in whole seconds
// (the eighth rounded half to even, the thirtieth from that eighth).
OleDate PartsFrom(OleDate start, OleDate end, int n, int k) {
  const double eighth = std::nearbyint(static_cast<double>(DateDiff(Interval::Second, start, end)) / 8);
  const double part = n == 8 ? eighth : eighth * 8 / n;
  OleDate t = start;
  for (int i = 0; i < k; ++i) t = DateAdd(Interval::Second, part, t);
  return t;
}

OleDate Minute(OleDate day, OleDate clock) {
  return OleDate::FromParts(day.Year(), day.Month(), day.Day(), clock.Hour(), clock.Minute());
}

double LagnaAt(OleDate moment) {
  ClsFindPlanetPosition f;
  f.FindFixValues(moment, "N", 17, 20, "E", 78, 30, 5.5, "E", 0, "Lahiri", 0, 0);
  return f.FnFindLagnaPosition();
}

// Gulika rises at the start of a weekday's eighth and Maandi at that of a
// thirtieth, of the day or of the night, on the date of the day's sunrise or,
// after midnight, on the next; the astrological day's current date follows.
TEST(ChartPositions, GulikaAndMaandiByDayAndNight) {
  const struct {
    int hour;
    const char* why;
    const char* dayOrNight;
    const char* sunriseDate;
    int gulikaPart, maandiPart;
    bool nextDate;
    const char* currentDate;
  } cases[] = {
      {14, "Wednesday day", "Day", "14/07/1965", 4, 14, false, "14/07/1965"},
      {3, "03:00 on Wednesday is Tuesday's night, both in the evening", "Night", "13/07/1965", 1, 2, false,
       "13/07/1965"},
      {22, "Wednesday night, both after midnight", "Night", "14/07/1965", 7, 26, true, "15/07/1965"},
  };
  for (const auto& c : cases) {
    SCOPED_TRACE(c.why);
    CalculationContext ctx;
    SetBirth(ctx, 14, c.hour, c.hour == 14 ? 15 : 0);
    ComputeChartPositions(ctx, kRasiDivision);
    const HoroscopeState& s = ctx.state;
    EXPECT_EQ(s.DayOrNight, c.dayOrNight);
    EXPECT_EQ(FormatDate(s.DaySunrise, "DD/MM/YYYY"), c.sunriseDate);
    EXPECT_EQ(DateDiff(Interval::Day, s.DaySunrise, s.DayNextSunrise), 1);
    const bool day = std::string(c.dayOrNight) == "Day";
    const OleDate from = day ? s.DaySunrise : s.DaySunset;
    const OleDate to = day ? s.DaySunset : s.DayNextSunrise;
    const OleDate date = c.nextDate ? DateAdd(Interval::Day, 1, s.DaySunrise) : s.DaySunrise;
    const OleDate gulika = Minute(date, PartsFrom(from, to, 8, c.gulikaPart));
    const OleDate maandi = Minute(date, PartsFrom(from, to, 30, c.maandiPart));
    EXPECT_EQ(FormatDate(s.GulikaMoment, "DD/MM/YYYY HH:NN"), FormatDate(gulika, "DD/MM/YYYY HH:NN"));
    EXPECT_EQ(FormatDate(s.MandiMoment, "DD/MM/YYYY HH:NN"), FormatDate(maandi, "DD/MM/YYYY HH:NN"));
    EXPECT_DOUBLE_EQ(s.GulikaLon, LagnaAt(gulika));
    EXPECT_DOUBLE_EQ(s.MaandiLon, LagnaAt(maandi));
    EXPECT_EQ(FormatDate(s.DayCurrentDate, "DD/MM/YYYY"), c.currentDate);
  }
}

TEST(ChartPositions, DayBirthKeepsItsMomentAndRasis) {
  CalculationContext ctx;  // the sample chart: Wednesday 14 July 1965, 14:15
  ComputeChartPositions(ctx, kRasiDivision);
  const HoroscopeState& s = ctx.state;
  EXPECT_EQ(FormatDate(s.BirthMomentDate, "DD/MM/YYYY HH:NN"), "14/07/1965 14:15");
  EXPECT_EQ(s.DayCurrentDate, s.BirthMomentDate);
  EXPECT_EQ(s.DaySunrise, s.SunriseOfBirthDay);
  EXPECT_EQ(FormatDate(s.SunriseNextDay, "DD/MM/YYYY"), "15/07/1965");
  EXPECT_EQ(s.GulikaRasi, RasiOfLongitude(s.GulikaLon, 30));
  // The ten bodies' rasis of the sample chart, from their longitudes.
  const int rasis[10] = {7, 3, 10, 6, 4, 2, 4, 11, 2, 8};
  for (int b = 0; b < 10; ++b) EXPECT_EQ(s.RasiOf(static_cast<Body>(b)), rasis[b]) << b;
}

TEST(ChartPositions, BothLimitsOfTheDayAreNight) {
  CalculationContext probe;
  ComputeChartPositions(probe, kRasiDivision);
  const OleDate rise = probe.state.SunriseOfBirthDay;
  const struct {
    OleDate at;
    const char* dayOrNight;
    const char* sunriseDate;
  } cases[] = {
      {rise, "Night", "13/07/1965"},  // the clock reads AM: the timings are those of the day before
      {DateAdd(Interval::Minute, 1, rise), "Day", "14/07/1965"},
      {probe.state.SunsetOfBirthDay, "Night", "14/07/1965"},
  };
  for (const auto& c : cases) {
    CalculationContext ctx;
    SetBirth(ctx, 14, c.at.Hour(), c.at.Minute());
    ComputeChartPositions(ctx, kRasiDivision);
    EXPECT_EQ(ctx.state.DayOrNight, c.dayOrNight) << FormatDate(c.at, "HH:NN");
    EXPECT_EQ(FormatDate(ctx.state.DaySunrise, "DD/MM/YYYY"), c.sunriseDate) << FormatDate(c.at, "HH:NN");
  }
}

TEST(ChartPositions, NavamsaPassChangesOnlyTheRasiNumbers) {
  CalculationContext rasi;
  ComputeChartPositions(rasi, kRasiDivision);
  CalculationContext navamsa;
  ComputeChartPositions(navamsa, kNavamsaDivision);
  EXPECT_EQ(navamsa.state.SunLon, rasi.state.SunLon);
  EXPECT_EQ(navamsa.state.GulikaLon, rasi.state.GulikaLon);
  // Sun 88.3176: 26 whole navamsas from Aries, the 27th is Gemini (3).
  EXPECT_EQ(navamsa.state.SunRasi, 3);
  // Moon 275.4562: the 83rd navamsa, 83 - 72 = 11.
  EXPECT_EQ(navamsa.state.MoonRasi, 11);
}

TEST(RasiOfLongitude, BoundariesAndFolding) {
  struct Case {
    double longitude, division;
    int expected;
  } cases[] = {
      {0, 30, 1},        {29.999999, 30, 1}, {30, 30, 2},
      {359.9, 30, 12},   {360, 30, 1},       {3.33333333333333, 3.33333333333333, 2},
      {3.3333333333333, 3.33333333333333, 1}, {359.99, 3.33333333333333, 12},
      {40, 3.33333333333333, 1},  // 40 / 3.33333333333333 is just above 12
  };
  for (const auto& c : cases) EXPECT_EQ(RasiOfLongitude(c.longitude, c.division), c.expected) << c.longitude;
}

TEST(Names, LanguagesAndTheVenusJupiterOrder) {
  HoroscopeState s;
  s.Language = "Hindi";
  LoadNamesForLanguage(s);
  EXPECT_EQ(s.ShortNames[0], "");  // nothing loaded: empty at the first run
  s.Language = "Sanskrit";
  LoadNamesForLanguage(s);
  EXPECT_EQ(s.ShortNameOf(Body::Jupiter), "Gur");
  EXPECT_EQ(s.LongNameOf(Body::Jupiter), "Guru");
  EXPECT_EQ(s.LongNameOf(Body::Venus), "Sukra");
  EXPECT_EQ(s.LongNames[5], "Sukra");  // Venus stands before Jupiter in this table
  EXPECT_EQ(s.RasiNames[7], "Vrischika");
  s.Language = "English";
  LoadNamesForLanguage(s);
  EXPECT_EQ(s.RasiNames[8], "Sagitarius");
  EXPECT_EQ(s.RasiNames[9], "Capricon");
  EXPECT_EQ(s.ShortNameOf(Body::Lagna), "Asc");
  EXPECT_EQ(s.LongNameOf(Body::Maandi), "Maandi");
  s.Language = "english";  // any other value leaves the last tables
  LoadNamesForLanguage(s);
  EXPECT_EQ(s.RasiNames[9], "Capricon");
}

}  // namespace
}  // namespace kelvaro
