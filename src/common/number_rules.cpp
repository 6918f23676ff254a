#include "common/number_rules.h"

#include <cmath>
#include <cstdio>
#include <limits>
#include <string>

#include "common/calculation_error.h"

namespace kelvaro {

namespace {

double HalfEven(double x) {
  // std::nearbyint honours the current rounding mode, which is never changed
  // by this program: round to nearest, ties to even.
  return std::nearbyint(x);
}

template <typename T>
T ConvertHalfEven(double x, const char* type) {
  if (!std::isfinite(x)) throw CalculationError(std::string("Overflow converting a non-finite value to ") + type);
  const double r = HalfEven(x);
  if (r < static_cast<double>(std::numeric_limits<T>::min()) ||
      r > static_cast<double>(std::numeric_limits<T>::max())) {
    char buf[64];
    std::snprintf(buf, sizeof buf, "%.15g", x);
    throw CalculationError(std::string("Overflow: ") + buf + " does not fit a " + type);
  }
  return static_cast<T>(r);
}

}  // namespace

std::int16_t CInt(double x) { return ConvertHalfEven<std::int16_t>(x, "16-bit integer"); }

std::int32_t CLng(double x) { return ConvertHalfEven<std::int32_t>(x, "32-bit integer"); }

double RoundHalfEven(double x, int digits) {
  if (digits == 0) return HalfEven(x);
  const double scale = std::pow(10.0, digits);
  return HalfEven(x * scale) / scale;
}

std::string FormatDigits(double x, int integerDigits, int fractionDigits) {
  if (!std::isfinite(x)) return "NaN";
  const bool negative = x < 0;
  const double a = std::fabs(x);

  // digits[] holds the decimal digits of |x| and `point` the number of them
  // that stand before the decimal point (may be <= 0 or > size).
  std::string digits;
  int point = 0;
  if (a != 0.0) {
    char buf[40];
    std::snprintf(buf, sizeof buf, "%.14e", a);  // 15 significant digits
    const std::string s(buf);
    const auto e = s.find('e');
    digits = s.substr(0, 1) + s.substr(2, e - 2);
    point = std::stoi(s.substr(e + 1)) + 1;
  }

  // Keep `point + fractionDigits` leading digits, rounding half away from zero.
  const int keep = point + fractionDigits;
  std::string kept;
  if (keep >= static_cast<int>(digits.size())) {
    kept = digits + std::string(static_cast<size_t>(keep) - digits.size(), '0');
  } else if (keep < 0) {
    kept.clear();
  } else {
    kept = digits.substr(0, static_cast<size_t>(keep));
    if (digits[static_cast<size_t>(keep)] >= '5') {
      int i = keep - 1;
      while (i >= 0 && kept[static_cast<size_t>(i)] == '9') kept[static_cast<size_t>(i--)] = '0';
      if (i >= 0) {
        ++kept[static_cast<size_t>(i)];
      } else {
        kept.insert(kept.begin(), '1');
        ++point;
      }
    }
  }
  // kept now holds point + fractionDigits digits (none when the value rounds
  // away entirely); pad on the left so there is at least one integer digit.
  if (static_cast<int>(kept.size()) < fractionDigits + 1) {
    kept.insert(0, static_cast<size_t>(fractionDigits + 1) - kept.size(), '0');
  }
  std::string integerPart = kept.substr(0, kept.size() - static_cast<size_t>(fractionDigits));
  std::string fractionPart = kept.substr(kept.size() - static_cast<size_t>(fractionDigits));
  // Strip leading zeros down to the pattern's width.
  size_t lead = 0;
  while (lead + 1 < integerPart.size() && integerPart[lead] == '0') ++lead;
  integerPart.erase(0, lead);
  if (static_cast<int>(integerPart.size()) < integerDigits) {
    integerPart.insert(0, static_cast<size_t>(integerDigits) - integerPart.size(), '0');
  }
  if (integerDigits == 0 && integerPart == "0") integerPart.clear();

  std::string out = integerPart;
  if (fractionDigits > 0) out += "." + fractionPart;
  const bool allZero = out.find_first_not_of("0.") == std::string::npos;
  if (negative && !allZero) out.insert(out.begin(), '-');
  return out;
}

std::string NumberText(double value) {
  char buf[40];
  std::snprintf(buf, sizeof buf, "%.15G", value);
  std::string out = buf;
  if (out == "-0") out = "0";
  return out;
}

std::string FormatPattern(double x, const std::string& pattern) {
  const auto dot = pattern.find('.');
  if (dot == std::string::npos) return FormatDigits(x, static_cast<int>(pattern.size()), 0);
  return FormatDigits(x, static_cast<int>(dot), static_cast<int>(pattern.size() - dot - 1));
}

}  // namespace kelvaro
