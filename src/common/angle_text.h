#pragma once
// The text forms of an angle that the tables and the summary print.
//
// Minutes are the whole part of the fraction of a degree times 60; seconds
// the fraction times 3600 less the minutes times 60, through the digit pattern
// "00" (half away from zero); 60 seconds carry into the minutes. A minute
// value of 60 is taken back to 0 before that carry, so a carry can still make
// 60 minutes: 29.99999 is 29.60. Degrees are never carried.
#include <string>

namespace kelvaro {

struct AngleParts {
  bool negative = false;
  long degrees = 0;  // whole degrees of the magnitude
  int minutes = 0;
  int seconds = 0;
};

AngleParts SplitAngle(double angle);

// "12.5" for 12 degrees 5 minutes: no leading zeros; not a decimal fraction.
std::string DegreeMinuteText(double angle);

// "5.7.9" for 5 degrees 7 minutes 9 seconds; a negative angle leads with "-".
// FormatDegrees is the same routine.
std::string DegreeMinuteSecondText(double angle);
inline std::string FormatDegrees(double angle) { return DegreeMinuteSecondText(angle); }

}  // namespace kelvaro
