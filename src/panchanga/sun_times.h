#pragma once
// Sunrise and sunset as the calendars ask for them: of a civil date at the
// place in force. The calendars take them through SunTimesOfDate so that their
// tests can give days of fixed length.
#include <functional>
#include <string>

#include "astronomy/find_sunrise.h"
#include "astronomy/find_sunset.h"
#include "common/ole_date.h"

namespace kelvaro {

// The place as the birth form holds it: unsigned degrees and minutes with
// their letters, and the zone with its side.
struct CalendarPlace {
  std::string latNS = "N";
  double latDeg = 0;
  double latMin = 0;
  std::string lonEW = "E";
  double lonDeg = 0;
  double lonMin = 0;
  double zoneHours = 0;
  std::string zoneSide = "E";
};

// Sunrise and sunset of a civil date at the place in force.
struct SunTimes {
  OleDate sunrise;
  OleDate sunset;
};
using SunTimesOfDate = std::function<SunTimes(OleDate date)>;

// SunTimesOfDate over the two facades (daylight flag 0, as everywhere in the
// calculation). The facades and the place must outlive the result.
SunTimesOfDate SunTimesAt(clsFindSunrise& sunrise, clsFindSunSet& sunset, const CalendarPlace& place);

// Sunrise and sunset of the moment's date and sunrise of the next date.
struct DaySunTimes {
  OleDate sunrise;
  OleDate sunset;
  OleDate nextSunrise;
};
DaySunTimes SunTimesOf(OleDate moment, const SunTimesOfDate& sunTimes);

// Sunrise of the moment's date alone.
OleDate SunriseOf(OleDate moment, const SunTimesOfDate& sunTimes);

}  // namespace kelvaro
