#pragma once
// clsFindSunrise: sunrise of a civil date at a place given as the birth form
// holds it (unsigned degrees and minutes with "N"/"S", "E"/"W", zone hours with
// "E" or another side). A thin facade over its own clsSunrise.
#include <cstdint>
#include <string>

#include "astronomy/sunrise.h"
#include "common/ole_date.h"

namespace kelvaro {

class clsFindSunrise {
 public:
  // The moment of sunrise on `date`, to the whole minute. "W" turns the
  // longitude negative here (East positive), the opposite of the position
  // facade. A daylightFlag of 0 clears DSAVE; any other value leaves it alone.
  // When no sunrise is found the previous call's value comes back.
  OleDate FnFindSunrise(OleDate date, const std::string& strNS, double latDeg, double latMin,
                        const std::string& strEW, double lonDeg, double lonMin, std::int16_t daylightFlag,
                        double zoneHours, const std::string& strZoneSide);

  // What the last call found: the rise on the date, after midnight, or why
  // there is none.
  const SunEvent& LastSunrise() const { return m_sunrise.m_sunriseEvent; }

 private:
  clsSunrise m_sunrise;
};

// Shared by the two facades: the seven steps up to and including FnCalculate.
void RunSunriseFacade(clsSunrise& sunrise, OleDate date, const std::string& strNS, double latDeg, double latMin,
                      const std::string& strEW, double lonDeg, double lonMin, std::int16_t daylightFlag,
                      double zoneHours, const std::string& strZoneSide);

}  // namespace kelvaro
