#include "panchanga/karnam.h"

#include "panchanga/tithi.h"

namespace kelvaro {

void clsKarnam::FindKarnam() {
  if (TithiNumber < 1 || TithiNumber > 30) return;
  KarnamName1 = KaranaOfTithi(TithiNumber, 1);
  KarnamName2 = KaranaOfTithi(TithiNumber, 2);
  const std::int64_t seconds = DateDiff(Interval::Second, TithiStart, TithiEnd);
  const OleDate middle = DateAdd(Interval::Second, static_cast<double>(seconds / 2), TithiStart);
  KarnamStart1 = TithiStart;
  KarnamEnd1 = middle;
  KarnamStart2 = middle;
  KarnamEnd2 = TithiEnd;
}

}  // namespace kelvaro
