#pragma once
// The number rules every subsystem shares.
//  - Int is the floor, Fix truncates toward zero.
//  - Conversion to a 16- or 32-bit integer (CInt, CLng) and Round round half
//    to even, and raise CalculationError when the value does not fit.
//  - A digit pattern ("00", "0000", "00.0000") rounds half away from zero, on
//    the value's 15-significant-digit decimal form, as a text formatter does.
#include <cmath>
#include <cstdint>
#include <string>

namespace kelvaro {

inline double Int(double x) { return std::floor(x); }  // floor
inline double Fix(double x) { return std::trunc(x); }  // truncation toward zero

std::int16_t CInt(double x);  // half to even; CalculationError when outside -32768..32767
std::int32_t CLng(double x);  // half to even; CalculationError when outside 32-bit range

double RoundHalfEven(double x, int digits = 0);

// Formats |x| with at least `integerDigits` digits before the point and exactly
// `fractionDigits` after it, rounding half away from zero; a minus sign leads a
// negative result that is not zero after rounding. FormatDigits(7.5, 2, 0) is "08".
std::string FormatDigits(double x, int integerDigits, int fractionDigits);

// The default text of a number, as a number joined into a text shows: up to
// 15 significant digits, no trailing zeros, no point for a whole number,
// "-0" written "0", very small or large values as "1E-05".
std::string NumberText(double value);

// The same, driven by a pattern made only of '0' and at most one '.'.
std::string FormatPattern(double x, const std::string& pattern);

}  // namespace kelvaro
