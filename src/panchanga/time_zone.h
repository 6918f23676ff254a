#pragma once
// TimeZone: the zone of a meridian, in hours from Greenwich, east positive:
// 82 degrees 30 minutes is 5.5 hours, 75 degrees west (-75, 0) is -5.
//
// Usage: set TZoneLongitudeDegree (negative west) and TZoneLongitudeMinute
// (0 to 59, counted on the side of the degrees), call findTimeZone(), read
// TimeZone. The hours are not rounded to a half or a quarter: a meridian of
// 78 degrees 30 minutes gives 5.2333... A minute outside 0 to 59 or a
// meridian beyond 180 degrees assigns nothing and the old value stays.
#include <cstdint>

namespace kelvaro {

class TimeZone {
 public:
  std::int16_t TZoneLongitudeDegree = 0;
  std::int16_t TZoneLongitudeMinute = 0;
  // Named as its class, as the almanac names it; a class with such a member
  // may declare no constructor, and this one needs none.
  double TimeZone = 0;

  void findTimeZone();
};

}  // namespace kelvaro
