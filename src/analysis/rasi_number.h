#pragma once
// RasiOfLongitude: the rasi (division 30) or the Navamsa rasi (division
// 3.33333333333333) of a longitude: the whole part of longitude / division,
// plus 1, folded into 1 to 12 by taking 12 away while above 12. The Navamsa
// counts from Aries through the whole zodiac, with no regard to the element.
#include <cstdint>

namespace kelvaro {

inline constexpr double kRasiDivision = 30;
inline constexpr double kNavamsaDivision = 3.33333333333333;  // this literal, not a third of 10

std::int16_t RasiOfLongitude(double longitude, double division);

}  // namespace kelvaro
