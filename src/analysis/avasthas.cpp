#include "analysis/avasthas.h"

#include <array>
#include <cstdint>
#include <string>

#include "analysis/lords.h"
#include "common/calculation_error.h"
#include "common/number_rules.h"

namespace kelvaro {

namespace {

// 16-bit integer arithmetic: a result that does not fit is an overflow.
std::int16_t Checked16(int value) {
  if (value < -32768 || value > 32767) throw CalculationError("Overflow");
  return static_cast<std::int16_t>(value);
}
std::int16_t Add16(std::int16_t a, std::int16_t b) { return Checked16(a + b); }
std::int16_t Mul16(std::int16_t a, std::int16_t b) { return Checked16(a * b); }

// Upper limit of navamsa 1 to 9 within a rasi, in degrees, limit included.
// The program's 15-digit decimals, not multiples of 10/3.
constexpr std::array<double, 9> kNavamsaLimits = {
    3.33333333333333, 6.66666666666667, 10, 13.3333333333333, 16.6666666666667,
    20,               23.3333333333333, 26.6666666666667, 30,
};

constexpr std::array<const char*, 9> kOrdinalNames = {
    "Sun", "Moon", "Mars", "Mercury", "Jupiter", "Venus", "Saturn", "Rahu", "Kethu",
};

constexpr std::array<const char*, 12> kAvasthaNames = {
    "Sayana", "Upavesana", "Netrapani", "Prakasava", "Gamana", "Aagamana",
    "Sabha",  "Agama",     "Bhojana",   "Nrityalipsa", "Kautuka", "Nidra",
};

}  // namespace

std::int16_t SortedStarNumber(clsStar& star, double longitude) {
  star.PlanetPosition = longitude;
  star.findstar();
  std::int16_t number = star.StarNo;
  if (number >= 22) number = static_cast<std::int16_t>(number - 1);
  return number;
}

std::int16_t PlanetOrdinal(const std::string& lordName) {
  for (size_t i = 0; i < kOrdinalNames.size(); ++i) {
    if (lordName == kOrdinalNames[i]) return static_cast<std::int16_t>(i + 1);
  }
  return 0;
}

std::int16_t NavamsaInRasi(double degreesInRasi) {
  for (size_t i = 0; i < kNavamsaLimits.size(); ++i) {
    if (degreesInRasi <= kNavamsaLimits[i]) return static_cast<std::int16_t>(i + 1);
  }
  return 0;
}

std::string AvasthaName(int number) {
  if (number < 1 || number > 12) return {};
  return kAvasthaNames[static_cast<size_t>(number - 1)];
}

std::string SayanadiAvastha(clsStar& star, double bodyLongitude, const std::string& lordName, double moonLongitude,
                            std::int16_t lagnaRasi, double ishtaGhati) {
  std::int16_t number = Mul16(SortedStarNumber(star, bodyLongitude), PlanetOrdinal(lordName));
  number = Mul16(number, NavamsaInRasi(DegreesInRasi(bodyLongitude)));
  number = Add16(number, SortedStarNumber(star, moonLongitude));
  number = Add16(number, CInt(ishtaGhati));
  number = Add16(number, lagnaRasi);
  // Remainder with the sign of the number, as integer division leaves it.
  int avastha = number % 12;
  if (avastha == 0) avastha = 12;
  return AvasthaName(avastha);
}

}  // namespace kelvaro
