#include "presentation/chart_geometry.h"

#include "common/number_rules.h"

namespace kelvaro {

std::int16_t HouseFromLagna(std::int16_t lagnaSign, std::int16_t bodySign) {
  int house = 13 - lagnaSign + bodySign;
  if (house > 12) house -= 12;
  return static_cast<std::int16_t>(house);
}

double FoldToSign(double position) {
  while (position >= 30) position -= 30;
  return position;
}

std::int16_t SignOfLongitude(double position, double width) {
  double sign = Int(position / width) + 1;
  while (sign >= 13) sign -= 12;
  return CInt(sign);
}

}  // namespace kelvaro
