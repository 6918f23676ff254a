#include "horoscope/daily_almanac.h"

#include <algorithm>
#include <chrono>
#include <cmath>

#include "common/calculation_error.h"
#include "common/date_text.h"
#include "horoscope/birth_summary.h"
#include "panchanga/karnam.h"
#include "panchanga/planet_nature.h"
#include "panchanga/planet_strength.h"
#include "panchanga/solar_year.h"
#include "panchanga/solar_year_details.h"
#include "panchanga/time_display.h"
#include "panchanga/visha_ghati.h"

namespace kelvaro {

namespace {

constexpr double kStarSpan = 40.0 / 3;  // degrees of one star, and of one yoga
constexpr double kTithiSpan = 12;       // degrees of elongation of one tithi
constexpr double kKaranaSpan = 6;
// No tithi, star or yoga lasts 36 hours; the brackets of the searches.
constexpr std::int64_t kBracketSeconds = 36 * 3600;

OleDate SystemToday() {
  const auto now = std::chrono::system_clock::now();
  const std::chrono::year_month_day ymd{std::chrono::floor<std::chrono::days>(now)};
  return OleDate::FromParts(static_cast<int>(ymd.year()), static_cast<int>(static_cast<unsigned>(ymd.month())),
                            static_cast<int>(static_cast<unsigned>(ymd.day())));
}

double Wrap360(double degrees) {
  double d = std::fmod(degrees, 360);
  if (d < 0) d += 360;
  return d;
}

// How far past `boundary` a longitude lies, in -180 to 180.
double PastBoundary(double value, double boundary) {
  double d = std::fmod(value - boundary, 360);
  if (d > 180) d -= 360;
  if (d <= -180) d += 360;
  return d;
}

// The division a longitude falls in, counting from 1, upper bound included
// as the classifiers include it (0 itself is in the first).
int DivisionOf(double longitude, double span) {
  const int n = static_cast<int>(std::ceil(longitude / span));
  return n < 1 ? 1 : n;
}

std::string DateText(OleDate date) { return FormatDate(date, "DD/MM/YYYY"); }

}  // namespace

double Elongation(double moon, double sun) { return Wrap360(moon - sun); }

DailyAlmanacMaker::DailyAlmanacMaker(const KaliyugaYearTable& years)
    : today(SystemToday),
      years_(years),
      lunar_(calendarPositions_, tithi_, sunrise_, sunset_, years),
      solar_(years) {}

DailyAlmanacMaker::SunMoon DailyAlmanacMaker::SunMoonAt(OleDate moment, const AlmanacPlace& p) {
  const CalendarPlace& c = p.place;
  positions_.FindSunMoonValues(moment, c.latNS, c.latDeg, c.latMin, c.lonEW, c.lonDeg, c.lonMin, c.zoneHours,
                               c.zoneSide, 0, p.ayanamsa, p.customYear, p.customProgress);
  return {positions_.FnFindSunPosition(), positions_.FnFindMoonPosition()};
}

OleDate DailyAlmanacMaker::Crossing(OleDate from, std::int64_t maxSeconds, double boundary,
                                    const std::function<double(OleDate)>& progress, const char* what) {
  // The engine reads its moment to the whole minute, so the search runs over
  // whole minutes from the minute of `from`, and the second inside the last
  // minute comes from the straight line between the two minutes' values.
  const OleDate base = DateAdd(Interval::Second, -from.Second(), from);
  const auto at = [&](std::int64_t minutes) { return DateAdd(Interval::Minute, static_cast<double>(minutes), base); };
  const auto pastBy = [&](std::int64_t minutes) { return PastBoundary(progress(at(minutes)), boundary); };
  std::int64_t lo = 0;
  std::int64_t hi = (maxSeconds + from.Second() + 59) / 60;
  double loPast = pastBy(lo);
  double hiPast = pastBy(hi);
  if (loPast > 0 || !(hiPast > 0)) {
    throw CalculationError(std::string("The ") + what + " could not be found within " +
                           std::to_string(maxSeconds / 3600) + " hours of " + FormatDate(from, "DD/MM/YYYY HH:NN:SS"));
  }
  // The longitudes move forward all the time, so halving keeps lo at or
  // before the boundary and hi past it.
  while (hi - lo > 1) {
    const std::int64_t mid = lo + (hi - lo) / 2;
    const double midPast = pastBy(mid);
    if (midPast > 0) {
      hi = mid;
      hiPast = midPast;
    } else {
      lo = mid;
      loPast = midPast;
    }
  }
  // The first whole second at which the line has passed the boundary.
  const double fraction = -loPast / (hiPast - loPast);
  const auto second = std::min<std::int64_t>(60, static_cast<std::int64_t>(std::floor(fraction * 60)) + 1);
  return DateAdd(Interval::Second, static_cast<double>(second), at(lo));
}

void DailyAlmanacMaker::FillSunTimes(DailyAlmanac& day, const AlmanacPlace& place) {
  const SunTimesOfDate sunTimes = SunTimesAt(sunrise_, sunset_, place.place);
  const DaySunTimes t = SunTimesOf(day.date, sunTimes);
  const OleDate next = DateAdd(Interval::Day, 1, day.date);
  // The facades hand back an earlier value when the Sun does not rise or set;
  // a time on another date, or out of order, is that case.
  if (t.sunrise.DateOnly() != day.date || t.sunset.DateOnly() != day.date || !(t.sunrise < t.sunset) ||
      t.nextSunrise.DateOnly() != next) {
    throw CalculationError("The Sun does not both rise and set at this place on " + DateText(day.date) +
                           " (or does not rise on " + DateText(next) +
                           "): there is no almanac from sunrise to sunrise");
  }
  day.sunrise = t.sunrise;
  day.sunset = t.sunset;
  day.nextSunrise = t.nextSunrise;
  day.gregorianWeekday = WeekdayName(day.date.Weekday());
  // The Vedic day runs from sunrise, and the almanac starts at sunrise.
  day.vedicWeekday = WeekdayName(day.sunrise.Weekday());
}

void DailyAlmanacMaker::FillSunriseLine(DailyAlmanac& day, const AlmanacPlace& place) {
  const SunMoon rise = SunMoonAt(day.sunrise, place);
  const auto elongation = [&](OleDate t) {
    const SunMoon sm = SunMoonAt(t, place);
    return Elongation(sm.moon, sm.sun);
  };
  const auto moon = [&](OleDate t) { return SunMoonAt(t, place).moon; };
  const auto yogaSum = [&](OleDate t) {
    const SunMoon sm = SunMoonAt(t, place);
    return Wrap360(sm.moon + sm.sun);
  };
  const OleDate before = DateAdd(Interval::Second, static_cast<double>(-kBracketSeconds), day.sunrise);

  // Tithi.
  tithi_.moonA = rise.moon;
  tithi_.sunC = rise.sun;
  tithi_.FindTithi();
  day.tithiNo = tithi_.TithiNo;
  day.tithi = tithi_.Tithi;
  day.paksha = tithi_.TithiNo <= 15 ? "Sukla Paksha (Bright)" : "Krishna Paksha (Dark)";
  const double tithiTop = day.tithiNo * kTithiSpan;
  day.tithiStart = Crossing(before, kBracketSeconds, tithiTop - kTithiSpan, elongation, "start of the tithi");
  day.tithiEnd = Crossing(day.sunrise, kBracketSeconds, tithiTop, elongation, "end of the tithi");
  day.tithiSpansNextSunrise = day.tithiEnd > day.nextSunrise;
  day.nextTithiNo = day.tithiNo % 30 + 1;
  tithi_.moonA = Wrap360(rise.sun + tithiTop + kTithiSpan / 2);  // the middle of the next tithi
  tithi_.sunC = rise.sun;
  tithi_.FindTithi();
  day.nextTithi = tithi_.Tithi;
  day.nextTithiEnd = Crossing(day.tithiEnd, kBracketSeconds, tithiTop + kTithiSpan, elongation, "end of the next tithi");
  day.nextTithiKshaya = day.nextTithiEnd <= day.nextSunrise;

  // Karanas: names and halves from clsKarnam, the split moved to the moment
  // the elongation passes the half-way mark.
  clsKarnam karnam;
  karnam.TithiNo = day.tithi;
  karnam.TithiNumber = static_cast<std::int16_t>(day.tithiNo);
  karnam.TithiStart = day.tithiStart;
  karnam.TithiEnd = day.tithiEnd;
  karnam.FindKarnam();
  const std::int64_t tithiSeconds = DateDiff(Interval::Second, day.tithiStart, day.tithiEnd);
  const OleDate split =
      Crossing(day.tithiStart, tithiSeconds, tithiTop - kKaranaSpan, elongation, "middle of the tithi");
  day.karanas = {AlmanacPeriod{karnam.KarnamName1, karnam.KarnamStart1, split},
                 AlmanacPeriod{karnam.KarnamName2, split, karnam.KarnamEnd2}};

  // Star.
  star_.PlanetPosition = rise.moon;
  star_.findstar();
  day.star = star_.StarName;
  day.pada = star_.StarQuarter;
  day.starIndex = DivisionOf(rise.moon, kStarSpan);
  const double starTop = day.starIndex * kStarSpan;
  day.starStart = Crossing(before, kBracketSeconds, starTop - kStarSpan, moon, "start of the star");
  day.starEnd = Crossing(day.sunrise, kBracketSeconds, starTop, moon, "end of the star");
  ClsVishaGhati visha;
  visha.StarIndex = day.starIndex;
  visha.dispVishaghati();
  day.vishaStartText = visha.VishaStartText;
  day.vishaEndText = visha.VishaEndText;
  // Moola's window ends with its star: a minute past the star's end keeps
  // the bracket's far end beyond the boundary.
  const std::int64_t starSeconds = DateDiff(Interval::Second, day.starStart, day.starEnd) + 60;
  day.vishaStart = Crossing(day.starStart, starSeconds, visha.VishaStart, moon, "start of the vishaghati");
  day.vishaEnd = Crossing(day.starStart, starSeconds, visha.VishaEnd, moon, "end of the vishaghati");

  // Yoga.
  yoga_.moon_position = rise.moon;
  yoga_.sun_position = rise.sun;
  yoga_.findyoga();
  day.yoga = yoga_.YogaName;
  day.yogaNo = yoga_.YogaNo;
  day.yogaEnd = Crossing(day.sunrise, kBracketSeconds, DivisionOf(Wrap360(rise.moon + rise.sun), kStarSpan) * kStarSpan,
                         yogaSum, "end of the yoga");
}

void DailyAlmanacMaker::FillCalendars(DailyAlmanac& day, const AlmanacPlace& place) {
  LunarCalendarInputs in;
  in.place = place.place;
  in.ayanamsa = place.ayanamsa;
  in.customYear = place.customYear;
  in.customProgress = place.customProgress;
  // Krishnadi first, as the horoscope asks: it reads what the Sukladi count
  // of the call before left.
  day.lunarKrishnadi = LunarDateText(lunar_.LunarDateKrishnadi(day.sunrise, "TP", in));
  day.lunarSukladi = LunarDateText(lunar_.LunarDateSukladi(day.sunrise, "TP", in));
  const SunTimesOfDate sunTimes = SunTimesAt(sunrise_, sunset_, place.place);
  const SolarDate solar = solar_.SolarDateOf(day.sunrise, today(), sunTimes);
  day.solarDate = solar.found ? SolarDateText(solar) : std::string(kYearNotKnown);
  // The year of the cycle begins in April: before its start the one that
  // began the April before is in force.
  ClsSolarYear year(years_);
  const int gregorian = day.date.Year();
  const auto start = FindYearStart(gregorian, years_, sunTimes);
  year.EnglishYear = static_cast<std::int16_t>(start && day.sunrise < *start ? gregorian - 1 : gregorian);
  year.FindSolarYear();
  day.yearName = year.yearname.empty() ? std::string(kYearNotKnown) : year.yearname;
}

void DailyAlmanacMaker::FillPeriods(DailyAlmanac& day) {
  times_.currentdate = day.date;
  times_.Sunrisetime = day.sunrise;
  times_.Sunsettime = day.sunset;
  times_.SunRiseNexttime = day.nextSunrise;
  times_.findtimes();
  day.rahuKalam = {"Rahu Kalam", times_.RahukaalStart, times_.RahukaalEnd};
  day.yamaganda = {"Yamaganda", times_.yamaghantaStart, times_.yamaghantaEnd};
  day.gulikaKalam = {"Gulika Kalam", times_.GulikaStart_Day, times_.GulikaEnd_Day};
  const auto split = [](const std::string& text) {
    std::vector<std::string> parts;
    std::size_t from = 0;
    for (;;) {
      const std::size_t at = text.find('~', from);
      parts.push_back(text.substr(from, at - from));
      if (at == std::string::npos) return parts;
      from = at + 1;
    }
  };
  day.horas.clear();
  for (const auto& [names, starts, ends] :
       {std::tuple{times_.HoraName_DayTemp, times_.HoraStart_DayTemp, times_.HoraEnd_DayTemp},
        std::tuple{times_.HoraName_NightTemp, times_.HoraStart_NightTemp, times_.HoraEnd_NightTemp}}) {
    const auto n = split(names), s = split(starts), e = split(ends);
    for (std::size_t i = 0; i < n.size() && i < s.size() && i < e.size(); ++i) day.horas.push_back({n[i], s[i], e[i]});
  }

  // The day bar: the three periods and the vishaghati where it falls within
  // this sunrise-to-sunrise day.
  day.dayBar.clear();
  const auto addBar = [&](const std::string& name, OleDate start, OleDate end, const char* color) {
    if (end <= day.sunrise || start >= day.nextSunrise) return;
    clsTimeDisplay display;
    display.Sunrisetime = day.sunrise;
    display.Sunsettime = day.sunset;
    display.TimeStart = start < day.sunrise ? day.sunrise : start;
    display.TimeEnd = end > day.nextSunrise ? day.nextSunrise : end;
    // The day and the night take the class's own colours; each period its own.
    display.TimeBackColor = color;
    display.DisplayTime();
    day.dayBar.push_back({name, display.TimeCaption, display.TimeLeft, display.TimeWidth, display.TimeBackColor,
                          display.TimeForeColor});
  };
  addBar("Day", day.sunrise, day.sunset, "");
  addBar("Night", day.sunset, day.nextSunrise, "");
  addBar(day.rahuKalam.name, day.rahuKalam.start, day.rahuKalam.end, "#d9534f");
  addBar(day.yamaganda.name, day.yamaganda.start, day.yamaganda.end, "#f0ad4e");
  addBar(day.gulikaKalam.name, day.gulikaKalam.start, day.gulikaKalam.end, "#9b72cf");
  addBar("Vishaghati", day.vishaStart, day.vishaEnd, "#5cb85c");
}

void DailyAlmanacMaker::FillPlanets(DailyAlmanac& day, const AlmanacPlace& place) {
  const CalendarPlace& c = place.place;
  positions_.FindFixValues(day.sunrise, c.latNS, c.latDeg, c.latMin, c.lonEW, c.lonDeg, c.lonMin, c.zoneHours,
                           c.zoneSide, 0, place.ayanamsa, place.customYear, place.customProgress);
  day.lagnaAtSunrise = positions_.FnFindLagnaPosition();
  const double longitudes[] = {positions_.FnFindSunPosition(),     positions_.FnFindMoonPosition(),
                               positions_.FnFindMarsPosition(),    positions_.FnFindMercuryPosition(),
                               positions_.FnFindJupiterPosition(), positions_.FnFindVenusPosition(),
                               positions_.FnFindSaturnPosition(),  positions_.FnFindRahuPosition(),
                               positions_.FnFindKethuPosition()};
  // A sign 0 to 11; the engine's 360 is Aries again.
  const auto house = [](double lon) { return static_cast<std::int16_t>(static_cast<int>(Wrap360(lon) / 30)); };
  clsPlanetStrength strength;
  strength.SunHouse = house(longitudes[0]);
  strength.MoonHouse = house(longitudes[1]);
  strength.MarsHouse = house(longitudes[2]);
  strength.MercuryHouse = house(longitudes[3]);
  strength.JupiterHouse = house(longitudes[4]);
  strength.VenusHouse = house(longitudes[5]);
  strength.SaturnHouse = house(longitudes[6]);
  strength.RahuHouse = house(longitudes[7]);
  strength.KethuHouse = house(longitudes[8]);
  strength.FindPlanetStrength();
  clsPlanetNature nature;
  nature.LagnaPosition = Wrap360(day.lagnaAtSunrise);
  nature.FindPlanet();

  const char* names[] = {"Sun", "Moon", "Mars", "Mercury", "Jupiter", "Venus", "Saturn", "Rahu", "Kethu"};
  const std::string* words[] = {&strength.SunStrength,     &strength.MoonStrength,  &strength.MarsStrength,
                                &strength.MercuryStrength, &strength.JupiterStrength, &strength.VenusStrength,
                                &strength.SaturnStrength,  &strength.RahuStrength,  &strength.KethuStrength};
  const int natures[] = {nature.SunNature,     nature.MoonNature,  nature.MarsNature,  nature.MercuryNature,
                         nature.JupiterNature, nature.VenusNature, nature.SaturnNature};
  rasi_.nchkLanguage = "English";
  day.planets.clear();
  for (std::size_t i = 0; i < 9; ++i) {
    AlmanacPlanet p;
    p.name = names[i];
    p.longitude = longitudes[i];
    rasi_.PlanetPosition = longitudes[i];
    rasi_.findRasi();
    p.sign = rasi_.RasiName;
    star_.PlanetPosition = longitudes[i];
    star_.findstar();
    p.star = star_.StarName;
    p.pada = star_.StarQuarter;
    p.strength = *words[i];
    p.hasNature = i < 7;
    p.nature = i < 7 ? natures[i] : 0;
    day.planets.push_back(p);
  }
}

DailyAlmanac DailyAlmanacMaker::SunriseLineOf(OleDate date, const AlmanacPlace& place) {
  DailyAlmanac day;
  day.date = date.DateOnly();
  FillSunTimes(day, place);
  FillSunriseLine(day, place);
  return day;
}

DailyAlmanac DailyAlmanacMaker::DayOf(OleDate date, const AlmanacPlace& place) {
  DailyAlmanac day = SunriseLineOf(date, place);
  FillCalendars(day, place);
  FillPeriods(day);
  FillPlanets(day, place);
  return day;
}

}  // namespace kelvaro
