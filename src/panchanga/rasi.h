#pragma once
// clsRasi: the sign (rasi) of a sidereal longitude and which half of the sign
// it lies in, with the sign's name in Sanskrit or English.
//
// Usage: set nchkLanguage ("Sanskrit" or "English", exactly) and
// PlanetPosition (degrees), call findRasi(), read RasiName, RasiNo, RasiHalf.
// Results that a call does not assign keep the previous call's values: with
// any other language word nothing at all is assigned; a position outside 0 to
// 360 assigns no name or number, but RasiHalf is still worked out.
#include <cstdint>
#include <string>

namespace kelvaro {

class clsRasi {
 public:
  double PlanetPosition = 0;  // input, degrees
  std::string RasiName;
  std::int16_t RasiNo = 0;    // 1 to 12
  std::int16_t RasiHalf = 0;  // 1 or 2
  std::string nchkLanguage;   // input, "Sanskrit" or "English"

  void findRasi();

 private:
  double position_ = 0;  // the position this call works on
};

}  // namespace kelvaro
