// ComputeChartPositions: one position pass of the calculation.
#include <string>

#include "common/calculation_error.h"
#include "common/date_text.h"
#include "horoscope/calculation_context.h"

namespace kelvaro {

namespace {

// The date of `day` joined to the clock of `clock`, to the whole minute, as
// "dd/mmm/yyyy" and "hh:mm AM/PM" texts joined and read back give it.
OleDate JoinDateAndClock(OleDate day, OleDate clock) {
  const DateParts d = day.Parts();
  const DateParts c = clock.Parts();
  return OleDate::FromParts(d.year, d.month, d.day, c.hour, c.minute, 0);
}

bool IsAm(OleDate moment) { return moment.Hour() < 12; }

// The sunrise and sunset of a day and the sunrise after them, as the search
// found them.
struct DayLimits {
  SunEvent rise, set, nextRise;
  // Known, and in their order: near the polar circles a date can hold a set
  // before its rise, which bounds no day.
  bool Known() const {
    return rise.Known() && set.Known() && nextRise.Known() && rise.moment < set.moment &&
           set.moment < nextRise.moment;
  }
  // All three on their own dates: the day the rules were written for.
  bool Ordinary() const {
    return rise.kind == SunEventKind::OnDate && set.kind == SunEventKind::OnDate &&
           nextRise.kind == SunEventKind::OnDate;
  }
};

// The Lagna of a moment, with the ayanamsa in force. Only the Lagna is read,
// so only the Lagna is worked out; it is the value a whole calculation gives.
double LagnaAt(CalculationContext& ctx, OleDate moment) {
  const HoroscopeState& s = ctx.state;
  ctx.positions.FindLagnaValues(moment, s.LatNS, s.LatDeg, s.LatMin, s.LonEW, s.LonDeg, s.LonMin, s.TimeDiff,
                              s.TimeDiffEW, 0, s.AyanamsaInForce, s.YearInForce, s.ProgressInForce);
  return ctx.positions.FnFindLagnaPosition();
}

}  // namespace

void ComputeChartPositions(CalculationContext& ctx, double division) {
  HoroscopeState& s = ctx.state;

  // 1. The moment in force, rebuilt from the birth text fields.
  const std::string text = BirthMomentText(s.BirthDay, s.BirthMonth, s.BirthYear, s.BirthHour, s.BirthMinute);
  const auto moment = ParseDateTime(text);
  if (!moment) throw CalculationError("The birth date and time \"" + text + "\" is not a valid moment");
  s.BirthMomentDate = *moment;

  // 2, 3. The positions of the moment.
  ClsFindPlanetPosition& f = ctx.positions;
  f.FindFixValues(s.BirthMomentDate, s.LatNS, s.LatDeg, s.LatMin, s.LonEW, s.LonDeg, s.LonMin, s.TimeDiff,
                  s.TimeDiffEW, 0, s.AyanamsaName, s.YearInForce, s.ProgressInForce);
  s.LagnaLon = f.FnFindLagnaPosition();
  s.SunLon = f.FnFindSunPosition();
  s.MoonLon = f.FnFindMoonPosition();
  s.MarsLon = f.FnFindMarsPosition();
  s.MercuryLon = f.FnFindMercuryPosition();
  s.JupiterLon = f.FnFindJupiterPosition();
  s.VenusLon = f.FnFindVenusPosition();
  s.SaturnLon = f.FnFindSaturnPosition();
  s.RahuLon = f.FnFindRahuPosition();
  s.KetuLon = f.FnFindKethuPosition();
  s.MidHeaven = f.FnFindMidHeaven();
  s.Ayanamsa = f.FnFindAyanamsa();

  // 4. Rasi numbers under the division of this pass.
  for (int b = static_cast<int>(Body::Lagna); b <= static_cast<int>(Body::Ketu); ++b) {
    const Body body = static_cast<Body>(b);
    s.SetRasi(body, RasiOfLongitude(s.LongitudeOf(body), division));
  }

  // 5. The limits of the civil date, and what the search found for them.
  s.SunriseOfBirthDay = SunriseAtBirthPlace(ctx, s.BirthMomentDate);
  s.SunriseEvent = ctx.sunrise.LastSunrise();
  s.SunsetOfBirthDay = SunsetAtBirthPlace(ctx, s.BirthMomentDate);
  s.SunsetEvent = ctx.sunset.LastSunset();
  s.SunriseNextDay = SunriseAtBirthPlace(ctx, DateAdd(Interval::Day, 1, s.BirthMomentDate));
  const DayLimits civilDay{s.SunriseEvent, s.SunsetEvent, ctx.sunrise.LastSunrise()};

  // 6. Day or night: both limits lie outside the day, so a birth exactly at
  // sunrise or sunset is a night birth. The comparison takes the true sunset,
  // which after midnight lies on the next date.
  s.GulikaMaandiKnown = true;
  bool ordinaryDay = civilDay.Ordinary();
  if (civilDay.Known() && s.BirthMomentDate > civilDay.rise.moment && s.BirthMomentDate < civilDay.set.moment) {
    s.DayOrNight = "Day";
    s.DayCurrentDate = s.BirthMomentDate;
    s.DaySunrise = s.SunriseOfBirthDay;
    s.DaySunset = civilDay.set.moment;
    s.DayNextSunrise = civilDay.nextRise.moment;
  } else {
    s.DayOrNight = "Night";
    // After midnight and before sunrise the astrological day is the one before.
    s.DayCurrentDate = IsAm(s.BirthMomentDate) ? DateAdd(Interval::Day, -1, s.BirthMomentDate) : s.BirthMomentDate;
    s.DaySunrise = SunriseAtBirthPlace(ctx, s.DayCurrentDate);
    const SunEvent rise = ctx.sunrise.LastSunrise();
    s.DaySunset = SunsetAtBirthPlace(ctx, s.DayCurrentDate);
    const SunEvent set = ctx.sunset.LastSunset();
    s.DayNextSunrise = SunriseAtBirthPlace(ctx, DateAdd(Interval::Day, 1, s.DayCurrentDate));
    const DayLimits day{rise, set, ctx.sunrise.LastSunrise()};
    ordinaryDay = day.Ordinary();
    if (!day.Known()) {
      // No sunrise or no sunset bounds the birth's day: there is no day or
      // night to speak of, and Gulika and Maandi cannot be placed.
      s.DayOrNight.clear();
      s.GulikaMaandiKnown = false;
    } else {
      s.DaySunrise = day.rise.moment;
      s.DaySunset = day.set.moment;
      s.DayNextSunrise = day.nextRise.moment;
      // Early in the morning, before the day before's sunset after midnight.
      if (s.BirthMomentDate > day.rise.moment && s.BirthMomentDate < day.set.moment) s.DayOrNight = "Day";
    }
  }
  if (!s.GulikaMaandiKnown) {
    s.GulikaLon = s.MaandiLon = 0;
    s.GulikaRasi = s.MaandiRasi = 0;
    return;
  }

  // 7. The day and night parts.
  clsTimes& t = ctx.times;
  t.currentdate = s.DayCurrentDate;
  t.Sunrisetime = s.DaySunrise;
  t.Sunsettime = s.DaySunset;
  t.SunRiseNexttime = s.DayNextSunrise;
  t.findtimes();
  s.GulikaDay = t.GulikaRise_Day;
  s.GulikaNight = t.GulikaRise_Night;
  s.MandiDay = t.MandiRise_Day;
  s.MandiNight = t.MandiRise_Night;

  // 8. The rise moments joined to their dates. A night rise after midnight
  // falls on the day after the sunrise's; the date found also becomes
  // DayCurrentDate. On a day whose sunset falls after midnight a rise may
  // too, so there each rise keeps its own date.
  if (!ordinaryDay) {
    const OleDate gulika = s.DayOrNight == "Day" ? s.GulikaDay : s.GulikaNight;
    const OleDate mandi = s.DayOrNight == "Day" ? s.MandiDay : s.MandiNight;
    s.GulikaMoment = JoinDateAndClock(gulika, gulika);
    s.MandiMoment = JoinDateAndClock(mandi, mandi);
    s.DayCurrentDate = mandi.DateOnly();
  } else if (s.DayOrNight == "Day") {
    s.GulikaMoment = JoinDateAndClock(s.DaySunrise, s.GulikaDay);
    s.MandiMoment = JoinDateAndClock(s.DaySunrise, s.MandiDay);
  } else {
    s.DayCurrentDate = IsAm(s.GulikaNight) ? DateAdd(Interval::Day, 1, s.DaySunrise) : s.DaySunrise;
    s.GulikaMoment = JoinDateAndClock(s.DayCurrentDate, s.GulikaNight);
    s.DayCurrentDate = IsAm(s.MandiNight) ? DateAdd(Interval::Day, 1, s.DaySunrise) : s.DaySunrise;
    s.MandiMoment = JoinDateAndClock(s.DayCurrentDate, s.MandiNight);
  }

  // 9. Gulika and Maandi are the Lagnas of those moments. The facade is left
  // holding the Maandi moment; every later reader calls FindFixValues first.
  s.GulikaLon = LagnaAt(ctx, s.GulikaMoment);
  s.GulikaRasi = RasiOfLongitude(s.GulikaLon, division);
  s.MaandiLon = LagnaAt(ctx, s.MandiMoment);
  s.MaandiRasi = RasiOfLongitude(s.MaandiLon, division);
}

}  // namespace kelvaro
