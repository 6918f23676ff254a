#include "astronomy/find_planet_position.h"
#include "astronomy/signed_degrees.h"

namespace kelvaro {

void ClsFindPlanetPosition::SetInputs(OleDate date, const std::string& strNS, double latDeg, double latMin,
                                      const std::string& strEW, double lonDeg, double lonMin, double zoneHours,
                                      const std::string& strZoneSide, const std::string& ayanamsaType,
                                      double zeroYear, double progress) {
  ClsPlanet& p = planet_;
  p.BirthDateTime = date;
  p.CL_LatitudeDeg = SignedDegrees(strNS == "S", latDeg);
  p.CL_LongitudeDeg = SignedDegrees(strEW == "E", lonDeg);  // East negative in the engine
  p.CL_LongitudeMin = lonMin;
  p.CL_LatitideMin = latMin;
  if (ayanamsaType == "Custom") {
    p.strProgressVal = progress;
    p.strZeroYearVal = zeroYear;
  } else {
    p.strProgressVal = 0;
    p.strZeroYearVal = 0;
  }
  p.TZone = strZoneSide == "W" ? -zoneHours : zoneHours;
  p.DSAVE = 0;
  p.AyType = ayanamsaType;
}

void ClsFindPlanetPosition::FindFixValues(OleDate date, const std::string& strNS, double latDeg, double latMin,
                                          const std::string& strEW, double lonDeg, double lonMin, double zoneHours,
                                          const std::string& strZoneSide, double /*daylightHours*/,
                                          const std::string& ayanamsaType, double zeroYear, double progress) {
  SetInputs(date, strNS, latDeg, latMin, strEW, lonDeg, lonMin, zoneHours, strZoneSide, ayanamsaType, zeroYear,
            progress);
  planet_.FnCalculate();
}

void ClsFindPlanetPosition::FindSunMoonValues(OleDate date, const std::string& strNS, double latDeg, double latMin,
                                              const std::string& strEW, double lonDeg, double lonMin,
                                              double zoneHours, const std::string& strZoneSide,
                                              double /*daylightHours*/, const std::string& ayanamsaType,
                                              double zeroYear, double progress) {
  SetInputs(date, strNS, latDeg, latMin, strEW, lonDeg, lonMin, zoneHours, strZoneSide, ayanamsaType, zeroYear,
            progress);
  planet_.FnCalculateSunMoon();
}

void ClsFindPlanetPosition::FindLagnaValues(OleDate date, const std::string& strNS, double latDeg, double latMin,
                                            const std::string& strEW, double lonDeg, double lonMin, double zoneHours,
                                            const std::string& strZoneSide, double /*daylightHours*/,
                                            const std::string& ayanamsaType, double zeroYear, double progress) {
  SetInputs(date, strNS, latDeg, latMin, strEW, lonDeg, lonMin, zoneHours, strZoneSide, ayanamsaType, zeroYear,
            progress);
  planet_.FnCalculateLagna();
}

}  // namespace kelvaro
