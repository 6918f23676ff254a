#pragma once
// ClsVishaGhati: the vishaghati (poison period) of each of the 27 stars, as
// the stretch of the Moon's sidereal longitude it covers, 53' 20" long.
//
// Usage: set StarIndex (the star's place among the 27, Ashwini 1 to Revati
// 27; not clsStar's StarNo, which counts Abijit), call dispVishaghati(), read
// the two texts as the table holds them and the two longitudes in degrees.
// The almanac turns the longitudes into the moments the Moon crosses them.
//
// The texts are kept as written, "12.00.00" (two digits of degrees) and
// "339.33.40" (40 seconds where 20 would keep the 53' 20" rule) among them;
// the degrees are read from the texts, so Uttarabhadra's window is 40 seconds
// of arc longer than the others. An index outside 1 to 27 assigns nothing.
#include <string>

namespace kelvaro {

class ClsVishaGhati {
 public:
  int StarIndex = 0;          // input, 1 to 27
  std::string VishaStartText;  // "ddd.mm.ss"
  std::string VishaEndText;
  double VishaStart = 0;  // degrees
  double VishaEnd = 0;    // degrees

  void dispVishaghati();
};

// Degrees of a "d.m.s" text of the table: 11.06.40 is 11 + 6/60 + 40/3600.
// Throws CalculationError for a text that is not three numbers.
double VishaGhatiDegrees(const std::string& text);

}  // namespace kelvaro
