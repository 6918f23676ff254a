#pragma once
// clsStar: the lunar mansion (star, nakshatra) of a sidereal longitude, its
// quarter (pada), the navamsa sign of that quarter and the distance to the
// quarter's end. No astronomy: a table classifier.
//
// Usage: set PlanetPosition (degrees), call findstar(), read StarName,
// StarQuarter, StarNo, HouseNo and StarPadaDistance right away. Results that a
// call does not assign keep the previous call's values, on purpose:
//  - a position outside 0 to 360 assigns no number, and StarName is set back
//    to the name of the last star found by this object;
//  - HouseNo is not assigned from above 253.333333333333 up to 280
//    (Poorvashada, Uttarashada and its Abijit part), where callers read the
//    previous star's value.
// StarNo runs 1 to 28: "Uttarashada - Abijit" takes 22, so from "Shravana" on
// a star's number is one above its place among the 27.
#include <cstdint>
#include <string>

namespace kelvaro {

class clsStar {
 public:
  double PlanetPosition = 0;  // input, degrees

  // Results.
  std::string StarName;
  std::int16_t StarQuarter = 0;  // pada, 1 to 4
  std::string House;             // never assigned; stays empty
  std::int16_t HouseNo = 0;      // navamsa sign of the pada, 1 to 12
  std::int16_t StarNo = 0;       // 1 to 28
  double StarPadaDistance = 0;   // degrees from the position to the pada's end

  void findstar();

 private:
  double position_ = 0;  // the position this call works on
  std::string name_;     // the name being built; copied to StarName last
};

}  // namespace kelvaro
