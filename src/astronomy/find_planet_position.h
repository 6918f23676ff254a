#pragma once
// ClsFindPlanetPosition: how the rest of the program asks for positions. It
// turns hemisphere letters into the engine's signs (East and South negative),
// runs the calculation, and hands out the results one at a time.
//
// Call pattern: FindFixValues once for a moment, then read any getters. The
// getters do not calculate: on a new facade they return 0. A value already
// negative in latDeg or lonDeg passes unchanged whatever its letter, so
// callers pass magnitudes with letters.
#include <string>

#include "astronomy/planet.h"

namespace kelvaro {

class ClsFindPlanetPosition {
 public:
  double FnFindLagnaPosition() const { return planet_.LagnaValue; }
  double FnFindSunPosition() const { return planet_.SuryaValue; }
  double FnFindAyanamsa() const { return planet_.Ayanamsa; }
  double FnFindMoonPosition() const { return planet_.ChandraValue; }
  double FnFindMarsPosition() const { return planet_.KujaValue; }
  double FnFindMercuryPosition() const { return planet_.BudhaValue; }
  double FnFindJupiterPosition() const { return planet_.GuruValue; }
  double FnFindVenusPosition() const { return planet_.SukraValue; }
  double FnFindSaturnPosition() const { return planet_.SaniValue; }
  double FnFindRahuPosition() const { return planet_.RahuValue; }
  double FnFindMidHeaven() const { return planet_.MidHeaven; }
  double FnFindKethuPosition() const { return planet_.KethuValue; }

  // daylightHours is accepted and not used: the engine always runs with 0.
  void FindFixValues(OleDate date, const std::string& strNS, double latDeg, double latMin, const std::string& strEW,
                     double lonDeg, double lonMin, double zoneHours, const std::string& strZoneSide,
                     double daylightHours, const std::string& ayanamsaType, double zeroYear, double progress);

  // The same inputs, but only the Sun and Moon (and the ayanamsa) are worked
  // out; FnFindSunPosition and FnFindMoonPosition then give exactly what
  // FindFixValues gives. For searches that probe many moments.
  void FindSunMoonValues(OleDate date, const std::string& strNS, double latDeg, double latMin,
                         const std::string& strEW, double lonDeg, double lonMin, double zoneHours,
                         const std::string& strZoneSide, double daylightHours, const std::string& ayanamsaType,
                         double zeroYear, double progress);

  // The same inputs, but only the Lagna and Midheaven (and the ayanamsa) are
  // worked out; the other getters keep the values of the last full
  // calculation, so a reader of them calls FindFixValues first, as always.
  void FindLagnaValues(OleDate date, const std::string& strNS, double latDeg, double latMin,
                       const std::string& strEW, double lonDeg, double lonMin, double zoneHours,
                       const std::string& strZoneSide, double daylightHours, const std::string& ayanamsaType,
                       double zeroYear, double progress);

  const ClsPlanet& Planet() const { return planet_; }
  ClsPlanet& Planet() { return planet_; }

 private:
  void SetInputs(OleDate date, const std::string& strNS, double latDeg, double latMin, const std::string& strEW,
                 double lonDeg, double lonMin, double zoneHours, const std::string& strZoneSide,
                 const std::string& ayanamsaType, double zeroYear, double progress);
  ClsPlanet planet_;
};

}  // namespace kelvaro
