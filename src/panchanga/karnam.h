#pragma once
// clsKarnam: the two karanas (half lunar days) of one tithi, with their names
// and the moments each begins and ends.
//
// Usage: set TithiNumber (1 to 30), TithiStart and TithiEnd, call FindKarnam(),
// read KarnamName1/2, KarnamStart1/2 and KarnamEnd1/2. TithiNo is the tithi's
// name as the caller shows it; it is carried along, not read.
//
// The first karana runs from the tithi's start to its middle, the second from
// the middle to its end. The middle is the midpoint in time, to the whole
// second: the class has no longitudes to work with. A caller that can see the
// Moon (the daily almanac) moves the split to the moment the elongation
// passes the half-way mark. A TithiNumber outside 1 to 30 assigns nothing and
// the previous call's results stay.
#include <cstdint>
#include <string>

#include "common/ole_date.h"

namespace kelvaro {

class clsKarnam {
 public:
  std::string TithiNo;
  OleDate TithiStart;
  OleDate TithiEnd;
  std::int16_t TithiNumber = 0;
  std::string KarnamName1;
  std::string KarnamName2;
  OleDate KarnamStart1;
  OleDate KarnamStart2;
  OleDate KarnamEnd1;
  OleDate KarnamEnd2;

  void FindKarnam();
};

}  // namespace kelvaro
