#pragma once
// clsFindSunSet: sunset of a civil date at a place given as the birth form
// holds it. The same steps as clsFindSunrise, over a clsSunrise of its own.
#include <cstdint>
#include <string>

#include "astronomy/sunrise.h"
#include "common/ole_date.h"

namespace kelvaro {

class clsFindSunSet {
 public:
  // The moment of sunset on `date`, to the whole minute. Where the Sun rises
  // but does not set within the date's search, the previous call's sunset
  // comes back unchanged.
  OleDate FnFindSunset(OleDate date, const std::string& strNS, double latDeg, double latMin,
                       const std::string& strEW, double lonDeg, double lonMin, std::int16_t daylightFlag,
                       double zoneHours, const std::string& strZoneSide);

  // What the last call found: the set on the date, after midnight (its true
  // date), or why there is none.
  const SunEvent& LastSunset() const { return m_sunrise.m_sunsetEvent; }

 private:
  clsSunrise m_sunrise;
};

}  // namespace kelvaro
