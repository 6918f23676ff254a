// One position pass: the day-or-night rule, the astrological day, the joining
// of Gulika's and Maandi's rise clocks to their dates, and the rasi numbers.
// The rise clocks are worked here from the sunrise and sunset the engine gives
// and the weekday rows of the day's parts: sunrise plus k parts, each part the
// span over 8 (or 30) in whole seconds.
#include <gtest/gtest.h>

#include <cmath>

#include "common/calculation_error.h"
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

TEST(ChartPositions, DayBirthTakesTheDayParts) {
  CalculationContext ctx;  // the sample chart: Wednesday 14 July 1965, 14:15
  ComputeChartPositions(ctx, kRasiDivision);
  const HoroscopeState& s = ctx.state;
  EXPECT_EQ(s.DayOrNight, "Day");
  EXPECT_EQ(FormatDate(s.BirthMomentDate, "DD/MM/YYYY HH:NN"), "14/07/1965 14:15");
  EXPECT_EQ(s.DayCurrentDate, s.BirthMomentDate);
  EXPECT_EQ(s.DaySunrise, s.SunriseOfBirthDay);
  EXPECT_EQ(FormatDate(s.SunriseNextDay, "DD/MM/YYYY"), "15/07/1965");
  // Wednesday: Gulika rises at the 4th day eighth, Maandi at the 14th day thirtieth.
  const OleDate gulika = Minute(s.DaySunrise, PartsFrom(s.DaySunrise, s.DaySunset, 8, 4));
  const OleDate maandi = Minute(s.DaySunrise, PartsFrom(s.DaySunrise, s.DaySunset, 30, 14));
  EXPECT_EQ(FormatDate(s.GulikaMoment, "DD/MM/YYYY HH:NN"), FormatDate(gulika, "DD/MM/YYYY HH:NN"));
  EXPECT_EQ(FormatDate(s.MandiMoment, "DD/MM/YYYY HH:NN"), FormatDate(maandi, "DD/MM/YYYY HH:NN"));
  EXPECT_DOUBLE_EQ(s.GulikaLon, LagnaAt(gulika));
  EXPECT_DOUBLE_EQ(s.MaandiLon, LagnaAt(maandi));
  EXPECT_EQ(s.GulikaRasi, RasiOfLongitude(s.GulikaLon, 30));
  // The ten bodies' rasis of the sample chart, from their longitudes.
  const int rasis[10] = {7, 3, 10, 6, 4, 2, 4, 11, 2, 8};
  for (int b = 0; b < 10; ++b) EXPECT_EQ(s.RasiOf(static_cast<Body>(b)), rasis[b]) << b;
}

TEST(ChartPositions, NightBirthAfterMidnightBelongsToTheDayBefore) {
  CalculationContext ctx;
  SetBirth(ctx, 14, 3, 0);  // 03:00 on Wednesday: Tuesday's night
  ComputeChartPositions(ctx, kRasiDivision);
  const HoroscopeState& s = ctx.state;
  EXPECT_EQ(s.DayOrNight, "Night");
  EXPECT_EQ(FormatDate(s.DaySunrise, "DD/MM/YYYY"), "13/07/1965");
  EXPECT_EQ(FormatDate(s.DayNextSunrise, "DD/MM/YYYY"), "14/07/1965");
  // Tuesday night: Gulika at the 1st night eighth, Maandi at the 2nd night
  // thirtieth, both in the evening, so on the date of that sunrise.
  const OleDate gulika = Minute(s.DaySunrise, PartsFrom(s.DaySunset, s.DayNextSunrise, 8, 1));
  const OleDate maandi = Minute(s.DaySunrise, PartsFrom(s.DaySunset, s.DayNextSunrise, 30, 2));
  EXPECT_EQ(FormatDate(s.GulikaMoment, "DD/MM/YYYY HH:NN"), FormatDate(gulika, "DD/MM/YYYY HH:NN"));
  EXPECT_EQ(FormatDate(s.MandiMoment, "DD/MM/YYYY HH:NN"), FormatDate(maandi, "DD/MM/YYYY HH:NN"));
  EXPECT_EQ(FormatDate(s.GulikaMoment, "DD/MM/YYYY"), "13/07/1965");
}

TEST(ChartPositions, NightRiseAfterMidnightFallsOnTheNextDate) {
  CalculationContext ctx;
  SetBirth(ctx, 14, 22, 0);  // Wednesday night, before midnight
  ComputeChartPositions(ctx, kRasiDivision);
  const HoroscopeState& s = ctx.state;
  EXPECT_EQ(s.DayOrNight, "Night");
  EXPECT_EQ(FormatDate(s.DaySunrise, "DD/MM/YYYY"), "14/07/1965");
  // Wednesday night: Gulika at the 7th night eighth and Maandi at the 26th
  // night thirtieth, both after midnight: they take the next date, and so
  // does DayCurrentDate.
  const OleDate next = DateAdd(Interval::Day, 1, s.DaySunrise);
  const OleDate gulika = Minute(next, PartsFrom(s.DaySunset, s.DayNextSunrise, 8, 7));
  const OleDate maandi = Minute(next, PartsFrom(s.DaySunset, s.DayNextSunrise, 30, 26));
  EXPECT_LT(gulika.Hour(), 12);
  EXPECT_EQ(FormatDate(s.GulikaMoment, "DD/MM/YYYY HH:NN"), FormatDate(gulika, "DD/MM/YYYY HH:NN"));
  EXPECT_EQ(FormatDate(s.MandiMoment, "DD/MM/YYYY HH:NN"), FormatDate(maandi, "DD/MM/YYYY HH:NN"));
  EXPECT_EQ(FormatDate(s.DayCurrentDate, "DD/MM/YYYY"), "15/07/1965");
  EXPECT_DOUBLE_EQ(s.MaandiLon, LagnaAt(maandi));
}

TEST(ChartPositions, BothLimitsOfTheDayAreNight) {
  CalculationContext probe;
  ComputeChartPositions(probe, kRasiDivision);
  for (const OleDate limit : {probe.state.SunriseOfBirthDay, probe.state.SunsetOfBirthDay}) {
    CalculationContext ctx;
  SetBirth(ctx, 14, limit.Hour(), limit.Minute());
    ComputeChartPositions(ctx, kRasiDivision);
    EXPECT_EQ(ctx.state.DayOrNight, "Night") << FormatDate(limit, "HH:NN");
  }
  // At sunrise the clock reads AM: the timings are those of the day before.
  CalculationContext atSunrise;
  SetBirth(atSunrise, 14, probe.state.SunriseOfBirthDay.Hour(),
                                          probe.state.SunriseOfBirthDay.Minute());
  ComputeChartPositions(atSunrise, kRasiDivision);
  EXPECT_EQ(FormatDate(atSunrise.state.DaySunrise, "DD/MM/YYYY"), "13/07/1965");
  // One minute after sunrise it is day.
  CalculationContext after;
  SetBirth(after, 14, probe.state.SunriseOfBirthDay.Hour(),
                                      probe.state.SunriseOfBirthDay.Minute() + 1);
  ComputeChartPositions(after, kRasiDivision);
  EXPECT_EQ(after.state.DayOrNight, "Day");
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

TEST(ChartPositions, UnreadableBirthTextIsAnError) {
  CalculationContext ctx;
  SetBirth(ctx, 31, 14, 15);
  ctx.state.BirthMonth = "6";  // 31 June
  EXPECT_THROW(ComputeChartPositions(ctx, kRasiDivision), CalculationError);
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
