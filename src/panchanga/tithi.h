#pragma once
// clsTithi: the lunar day (tithi), its fortnight and its karana from the
// longitudes of the Sun and the Moon at one moment. A pure table classifier:
// it does not search for the start or end of the tithi.
//
// Usage: set moonA, then sunC (degrees), call FindTithi(), read Tithi,
// TithiPosition, TithiNo and Karnam. Results that a call does not assign keep
// the previous call's values: an elongation outside 0 to 360 (from an input
// outside 0 to 360) assigns nothing.
#include <cstdint>
#include <string>

namespace kelvaro {

class clsTithi {
 public:
  // Inputs, degrees.
  double sunC = 0;
  double moonA = 0;

  // Results.
  std::string Tithi;          // name of the lunar day
  std::string TithiPosition;  // "Bright" or "Dark"
  std::int16_t TithiNo = 0;   // 1 to 30
  std::string Karnam;         // name of the karana

  void FindTithi();

 private:
  double sun_ = 0;
  double moon_ = 0;
};

// The three wrappers the lunar calendar searches call: each sets moonA and
// sunC on the given (shared) instance, calls FindTithi and returns one result.
// Like the class, they never fail; a value not assigned is the previous one.
std::string TithiNameOf(clsTithi& tithi, double moon, double sun);
std::int16_t TithiNumberOf(clsTithi& tithi, double moon, double sun);
std::string TithiSideOf(clsTithi& tithi, double moon, double sun);

// The karana of the first (half 1) or second (half 2) half of tithi 1 to 30,
// spelt as FindTithi spells it; empty for any other number.
std::string KaranaOfTithi(int tithiNo, int half);

}  // namespace kelvaro
