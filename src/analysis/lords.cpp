#include "analysis/lords.h"

#include <array>
#include <string>

#include "analysis/rasi_number.h"
#include "common/calculation_error.h"
#include "common/number_rules.h"

namespace kelvaro {

namespace {

// Navamsa division size: the program's own 15-digit literal.
constexpr double kNavamsaSize = 3.33333333333333;
constexpr double kRasiSize = 30;

// Lord of rasi 1 to 12, index 0 for rasi 1.
constexpr std::array<const char*, 12> kRasiLords = {
    "Mars", "Venus", "Mercury", "Moon", "Sun", "Mercury", "Venus", "Mars", "Jupiter", "Saturn", "Saturn", "Jupiter",
};

// Lord of star 1 to 28, index 0 for star 1; Abhijit (22) goes with the Sun,
// so from Shravana (23) on the cycle of nine runs one place later.
constexpr std::array<const char*, 28> kStarLords = {
    "Kethu", "Venus", "Sun",  "Moon",    "Mars",  "Rahu",  "Jupiter", "Saturn",  "Mercury",  // 1-9
    "Kethu", "Venus", "Sun",  "Moon",    "Mars",  "Rahu",  "Jupiter", "Saturn",  "Mercury",  // 10-18
    "Kethu", "Venus", "Sun",  "Sun",                                                       // 19-22
    "Moon",  "Mars",  "Rahu", "Jupiter", "Saturn", "Mercury",                              // 23-28
};

// The English lord names in the order of LongNames (Venus before Jupiter),
// from index 1; index 0 of LongNames is the Lagna, which is no lord.
constexpr std::array<const char*, 9> kLongNameLords = {
    "Sun", "Moon", "Mars", "Mercury", "Venus", "Jupiter", "Saturn", "Rahu", "Kethu",
};

const std::string kNoText;

}  // namespace

double DegreesInRasi(double longitude) {
  while (longitude >= 30) longitude -= 30;
  return longitude;
}

const std::string& RasiNameOf(const ChartData& chart, int rasi) {
  if (rasi < 1 || rasi > 12) throw CalculationError("Subscript out of range: rasi " + std::to_string(rasi));
  return chart.RasiNames[static_cast<size_t>(rasi - 1)];
}

std::string RasiLordOf(double longitude, const std::string& kind) {
  const double size = kind == "Rasi" ? kRasiSize : kNavamsaSize;
  const int number = RasiOfLongitude(longitude, size);
  if (number < 1) return {};
  return kRasiLords[static_cast<size_t>(number - 1)];
}

std::string RasiLordOf(const ChartData& chart, double longitude, const std::string& kind) {
  return LocalisedPlanetName(chart, RasiLordOf(longitude, kind));
}

std::string StarLordOf(int starNo) {
  if (starNo < 1 || starNo > 28) return {};
  return kStarLords[static_cast<size_t>(starNo - 1)];
}

const std::string& LocalisedPlanetName(const ChartData& chart, const std::string& englishLord) {
  for (size_t i = 0; i < kLongNameLords.size(); ++i) {
    if (englishLord == kLongNameLords[i]) return chart.LongNames[i + 1];
  }
  return kNoText;
}

}  // namespace kelvaro
