#pragma once
// clsTimeDisplay: one period of the day laid out for a bar that starts at
// sunrise: its caption, where it starts and how wide it is, and its colours.
//
// Usage: set TimeStart, TimeEnd, Sunrisetime and Sunsettime (and the colours,
// if the caller wants its own), call DisplayTime(), read the rest.
//  - TimeCaption: the two times in "hh:mm:ss" joined by " to ".
//  - TimeLeft: whole minutes from Sunrisetime to TimeStart; TimeWidth: whole
//    minutes from TimeStart to TimeEnd. Minutes, so that a painter scales
//    them to whatever width it has (a day is some 1440 of them).
//  - TimeBackColor and TimeForeColor ("#rrggbb"): an empty one is filled by
//    the half of the day the period starts in, light on dark text by day
//    (before Sunsettime), dark on light text by night; a colour the caller
//    set stays.
// A TimeEnd before TimeStart gives width 0; nothing raises.
#include <cstdint>
#include <string>

#include "common/ole_date.h"

namespace kelvaro {

class clsTimeDisplay {
 public:
  OleDate TimeStart;
  OleDate TimeEnd;
  OleDate Sunrisetime;
  OleDate Sunsettime;
  std::string TimeCaption;
  std::string TimeBackColor;
  std::string TimeForeColor;
  std::int32_t TimeWidth = 0;
  std::int32_t TimeLeft = 0;

  void DisplayTime();
};

// One period as a bar painter takes it: DisplayTime's results with a name.
struct DayBarPeriod {
  std::string name;
  std::string caption;  // "hh:mm:ss to hh:mm:ss"
  int left = 0;         // minutes from sunrise
  int width = 0;        // minutes
  std::string backColor;
  std::string foreColor;
};

inline constexpr const char* kDayBackColor = "#ffe9a8";
inline constexpr const char* kDayForeColor = "#202020";
inline constexpr const char* kNightBackColor = "#2c3e66";
inline constexpr const char* kNightForeColor = "#f0f0f0";

}  // namespace kelvaro
