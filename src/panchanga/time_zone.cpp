#include "panchanga/time_zone.h"

#include <cstdlib>

namespace kelvaro {

void TimeZone::findTimeZone() {
  if (TZoneLongitudeMinute < 0 || TZoneLongitudeMinute > 59) return;
  const double degrees = std::abs(TZoneLongitudeDegree) + TZoneLongitudeMinute / 60.0;
  if (degrees > 180) return;
  const double side = TZoneLongitudeDegree < 0 ? -1 : 1;
  TimeZone = side * degrees / 15;
}

}  // namespace kelvaro
