#include "astronomy/find_sunrise.h"
#include "astronomy/signed_degrees.h"

namespace kelvaro {

void RunSunriseFacade(clsSunrise& sunrise, OleDate date, const std::string& strNS, double latDeg, double latMin,
                      const std::string& strEW, double lonDeg, double lonMin, std::int16_t daylightFlag,
                      double zoneHours, const std::string& strZoneSide) {
  sunrise.BirthDateTime = date;
  sunrise.CL_LatitudeDeg = SignedDegrees(strNS == "S", latDeg);
  sunrise.CL_LongitudeDeg = SignedDegrees(strEW == "W", lonDeg);
  sunrise.CL_LongitudeMin = lonMin;
  sunrise.CL_LatitideMin = latMin;
  sunrise.STZ = strZoneSide == "E" ? zoneHours : -zoneHours;
  if (daylightFlag == 0) sunrise.DSAVE = 0;
  sunrise.FnCalculate();
}

OleDate clsFindSunrise::FnFindSunrise(OleDate date, const std::string& strNS, double latDeg, double latMin,
                                      const std::string& strEW, double lonDeg, double lonMin,
                                      std::int16_t daylightFlag, double zoneHours, const std::string& strZoneSide) {
  RunSunriseFacade(m_sunrise, date, strNS, latDeg, latMin, strEW, lonDeg, lonMin, daylightFlag, zoneHours,
                   strZoneSide);
  return m_sunrise.m_dateSunrise;
}

}  // namespace kelvaro
