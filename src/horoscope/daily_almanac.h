#pragma once
// The almanac of one day at one place, from that day's sunrise to the next:
// what the "Daily Almanac" window, the month table and `kelvaro-cli almanac`
// show. Plain data; every moment is on the place's clock.
//
// Every end and start is the moment the classic engine's longitudes cross the
// boundary. The engine reads its moment to the whole minute, so the crossing
// is first found between two whole minutes, by halving a bracket of a day and
// a half (no tithi, star or yoga lasts 36 hours), and then placed to the
// second on the straight line between the two minutes' values: each moment
// is the first whole second at which that line has passed the boundary.
#include <array>
#include <cstdint>
#include <functional>
#include <string>
#include <vector>

#include "astronomy/find_planet_position.h"
#include "astronomy/find_sunrise.h"
#include "astronomy/find_sunset.h"
#include "common/ole_date.h"
#include "panchanga/kaliyuga_year_table.h"
#include "panchanga/lunar_calendar.h"
#include "panchanga/rasi.h"
#include "panchanga/solar_calendar.h"
#include "panchanga/star.h"
#include "panchanga/sun_times.h"
#include "panchanga/times.h"
#include "panchanga/time_display.h"
#include "panchanga/tithi.h"
#include "panchanga/yoga.h"

namespace kelvaro {

// A named stretch of time.
struct AlmanacPeriod {
  std::string name;
  OleDate start;
  OleDate end;
};

// One hora as clsTimes gives it: the lord's weekday name and two clock times
// "hh:mm:ss" (a night hora may end past midnight).
struct AlmanacHora {
  std::string lord;
  std::string start;
  std::string end;
};

// One planet at sunrise.
struct AlmanacPlanet {
  std::string name;       // "Sun" .. "Saturn", "Rahu", "Kethu"
  double longitude = 0;   // sidereal degrees
  std::string sign;       // English sign name
  std::string star;
  int pada = 0;
  std::string strength;   // clsPlanetStrength's word, as it stands
  int nature = 0;         // clsPlanetNature by the Lagna of sunrise; 0 for the nodes
  bool hasNature = false; // the nodes have no row of natures
};

struct DailyAlmanac {
  OleDate date;  // the civil date, midnight
  std::string vedicWeekday;
  std::string gregorianWeekday;
  OleDate sunrise;
  OleDate sunset;
  OleDate nextSunrise;

  // The tithi at sunrise.
  int tithiNo = 0;  // 1 to 30
  std::string tithi;
  std::string paksha;  // "Sukla Paksha (Bright)" or "Krishna Paksha (Dark)"
  OleDate tithiStart;
  OleDate tithiEnd;
  bool tithiSpansNextSunrise = false;  // it holds at the next sunrise too
  // The tithi after it; kshaya when it also ends before the next sunrise
  // (it then holds at no sunrise).
  int nextTithiNo = 0;
  std::string nextTithi;
  OleDate nextTithiEnd;
  bool nextTithiKshaya = false;
  std::array<AlmanacPeriod, 2> karanas;  // the two halves of the tithi at sunrise

  // The star of the Moon at sunrise.
  int starIndex = 0;  // place among the 27, Ashwini 1
  std::string star;   // clsStar's name
  int pada = 0;
  OleDate starStart;
  OleDate starEnd;
  std::string vishaStartText;  // the table's longitudes
  std::string vishaEndText;
  OleDate vishaStart;  // when the Moon crosses them, within the star
  OleDate vishaEnd;

  int yogaNo = 0;
  std::string yoga;
  OleDate yogaEnd;

  std::string lunarKrishnadi;  // "flag  /  month  /  year"
  std::string lunarSukladi;
  std::string solarDate;  // "day  /  month  /  year", or a word when not known
  std::string yearName;   // of the sixty-year cycle, the one in force at sunrise

  AlmanacPeriod rahuKalam;
  AlmanacPeriod yamaganda;
  AlmanacPeriod gulikaKalam;
  std::vector<AlmanacHora> horas;  // 24: twelve of the day, twelve of the night

  double lagnaAtSunrise = 0;
  std::vector<AlmanacPlanet> planets;  // Sun .. Saturn, Rahu, Kethu
  std::vector<DayBarPeriod> dayBar;
};

// Where the almanac is made.
struct AlmanacPlace {
  CalendarPlace place;
  std::string ayanamsa = "Lahiri";
  double customYear = 0;
  double customProgress = 0;
};

// Makes almanacs. Holds the engine and the classifiers it works with, so one
// maker serves many days; not shareable between threads.
class DailyAlmanacMaker {
 public:
  explicit DailyAlmanacMaker(const KaliyugaYearTable& years);
  DailyAlmanacMaker(const DailyAlmanacMaker&) = delete;
  DailyAlmanacMaker& operator=(const DailyAlmanacMaker&) = delete;

  // The almanac of `date` (its clock is ignored). Raises CalculationError
  // when the Sun does not rise or does not set there that day or the next,
  // or a boundary is not found within its bracket.
  DailyAlmanac DayOf(OleDate date, const AlmanacPlace& place);

  // The month table's line: the tithi, star and yoga at sunrise with their
  // ends, without the calendars, planets and periods of the full day.
  DailyAlmanac SunriseLineOf(OleDate date, const AlmanacPlace& place);

  // Sun and Moon (sidereal degrees) at a moment, as the searches see them.
  struct SunMoon {
    double sun = 0;
    double moon = 0;
  };
  SunMoon SunMoonAt(OleDate moment, const AlmanacPlace& place);

  // The first whole second after `from` (within `maxSeconds`) at which
  // `progress(moment)`, read at whole minutes and joined by straight lines,
  // has passed `boundary` degrees, `progress` running forward around the
  // circle. Raises CalculationError when the bracket does
  // not hold the crossing.
  OleDate Crossing(OleDate from, std::int64_t maxSeconds, double boundary,
                   const std::function<double(OleDate)>& progress, const char* what);

  // The day the program runs, for the Kali day count of the solar date.
  std::function<OleDate()> today;

 private:
  void FillSunTimes(DailyAlmanac& day, const AlmanacPlace& place);
  void FillSunriseLine(DailyAlmanac& day, const AlmanacPlace& place);
  void FillCalendars(DailyAlmanac& day, const AlmanacPlace& place);
  void FillPeriods(DailyAlmanac& day);
  void FillPlanets(DailyAlmanac& day, const AlmanacPlace& place);

  const KaliyugaYearTable& years_;
  ClsFindPlanetPosition positions_;
  ClsFindPlanetPosition calendarPositions_;
  clsFindSunrise sunrise_;
  clsFindSunSet sunset_;
  clsTithi tithi_;
  clsStar star_;
  clsYoga yoga_;
  clsRasi rasi_;
  clsTimes times_;
  LunarCalendar lunar_;
  SolarCalendar solar_;
};

// Sidereal elongation of the Moon from the Sun, 0 to below 360.
double Elongation(double moon, double sun);

}  // namespace kelvaro
