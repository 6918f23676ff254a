#include "astronomy/find_sunset.h"

#include "astronomy/find_sunrise.h"

namespace kelvaro {

OleDate clsFindSunSet::FnFindSunset(OleDate date, const std::string& strNS, double latDeg, double latMin,
                                    const std::string& strEW, double lonDeg, double lonMin,
                                    std::int16_t daylightFlag, double zoneHours, const std::string& strZoneSide) {
  RunSunriseFacade(m_sunrise, date, strNS, latDeg, latMin, strEW, lonDeg, lonMin, daylightFlag, zoneHours,
                   strZoneSide);
  return m_sunrise.m_dateSunset;
}

}  // namespace kelvaro
