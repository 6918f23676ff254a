#pragma once
// Where a body stands in a chart drawing: its sign, its house from the Lagna,
// and its degrees within the sign.
#include <cstdint>

namespace kelvaro {

// 13 minus the Lagna's sign plus the body's sign, 12 less when above 12: the
// house of the body counted from the Lagna, 1 to 12.
std::int16_t HouseFromLagna(std::int16_t lagnaSign, std::int16_t bodySign);

// Takes 30 away while the value is at least 30; below 30 it stays.
double FoldToSign(double position);

// The whole part of position / width, plus 1; 12 less while 13 or more.
std::int16_t SignOfLongitude(double position, double width);

}  // namespace kelvaro
