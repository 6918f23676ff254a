#include "common/angle_text.h"

#include <cmath>
#include <string>

#include "common/number_rules.h"

namespace kelvaro {

AngleParts SplitAngle(double angle) {
  AngleParts p;
  p.negative = angle < 0;
  const double a = std::fabs(angle);
  const double f = a - Int(a);
  p.degrees = static_cast<long>(Int(a));
  p.minutes = std::stoi(FormatPattern(Int(f * 60), "00"));
  if (p.minutes >= 60) p.minutes -= 60;
  p.seconds = std::stoi(FormatPattern(f * 3600 - p.minutes * 60.0, "00"));
  if (p.seconds >= 60) {
    p.minutes += 1;
    p.seconds -= 60;
  }
  return p;
}

std::string DegreeMinuteText(double angle) {
  const AngleParts p = SplitAngle(angle);
  return (p.negative ? "-" : "") + std::to_string(p.degrees) + "." + std::to_string(p.minutes);
}

std::string DegreeMinuteSecondText(double angle) {
  const AngleParts p = SplitAngle(angle);
  return (p.negative ? "-" : "") + std::to_string(p.degrees) + "." + std::to_string(p.minutes) + "." +
         std::to_string(p.seconds);
}

}  // namespace kelvaro
