#include "panchanga/sun_times.h"

namespace kelvaro {

SunTimesOfDate SunTimesAt(clsFindSunrise& sunrise, clsFindSunSet& sunset, const CalendarPlace& place) {
  return [&sunrise, &sunset, &place](OleDate date) {
    const OleDate rise = sunrise.FnFindSunrise(date, place.latNS, place.latDeg, place.latMin, place.lonEW,
                                               place.lonDeg, place.lonMin, 0, place.zoneHours, place.zoneSide);
    const OleDate set = sunset.FnFindSunset(date, place.latNS, place.latDeg, place.latMin, place.lonEW, place.lonDeg,
                                            place.lonMin, 0, place.zoneHours, place.zoneSide);
    return SunTimes{rise, set};
  };
}

DaySunTimes SunTimesOf(OleDate moment, const SunTimesOfDate& sunTimes) {
  const SunTimes day = sunTimes(moment);
  return {day.sunrise, day.sunset, sunTimes(DateAdd(Interval::Day, 1, moment)).sunrise};
}

OleDate SunriseOf(OleDate moment, const SunTimesOfDate& sunTimes) { return sunTimes(moment).sunrise; }

}  // namespace kelvaro
