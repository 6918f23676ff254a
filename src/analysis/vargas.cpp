#include "analysis/vargas.h"

#include <cctype>
#include <cstdlib>

#include "analysis/lords.h"
#include "analysis/rasi_number.h"
#include "common/calculation_error.h"
#include "common/number_rules.h"

namespace kelvaro {

// The sizes 7.084, 4.2857, 2.7272, 1.1111 and 0.666666666666667 are the
// program's short decimals, not exact fractions: the difference moves bodies
// near a division's end into the next sign, and that is part of the results.
const std::array<VargaChart, kVargaChartCount> kVargaCharts = {{
    {"Rasi", "", 30, false},
    {"Navamsa", "NAVAMSA", 3.33333333333333, false},
    {"Hora", "HORA", 30, true},
    {"Drekkana", "DREKKANA", 30, true},
    {"Chaturthamsha", "CHATURTHAMSHA", 7.084, true},
    {"Panchamsha", "PANCHAMSHA", 6, false},
    {"Shashtamsha", "SHASHTAMSHA", 5, false},
    {"Sapthamsha", "SAPTHAMSHA", 4.2857, false},
    {"Ashatamsha", "ASHATAMSHA", 3.75, false},
    {"Dashamsha", "DASHAMSHA", 3, true},
    {"Ekadashamsha", "EKADASHAMSHA", 2.7272, true},  // 11-20
    {"Dwadashamsha", "DWADASHAMSHA", 2.5, true},
    {"Shodashamsha", "SHODASHAMSHA", 1.875, false},
    {"Vimshamsha", "VIMSHAMSHA", 1.5, false},
    {"Chaturvimshamsha", "CHATURVIMSHAMSHA", 1.25, true},
    {"Saptavimshamsha", "SAPTAVIMSHAMSHA", 1.1111, false},
    {"Trimshamsha", "TRIMSHAMSHA", 1, true},
    {"Khavedamsa", "KHAVEDAMSA", 0.75, true},
    {"Akshvedamsa", "AKSHVEDAMSA", 0.666666666666667, true},
    {"Shastiamsa", "SHASTIAMSA", 0.5, true},
    {"Nava-Navamsa", "NAVA-NAVAMSA", 360, false},  // 21: on the longitudes times 81
}};

namespace {

constexpr int kBodies = 10;  // Lagna to Ketu
constexpr double kRasiSize = 30;
constexpr double kNavaNavamsaFactor = 81;

constexpr const char* kHeaderSanskrit =
    "  Chart                  | Lag  | Sur  | Cha  | Kuj  | Bud  | Gur  | Suk  | San  | Rah  | Ket  ";
constexpr const char* kHeaderEnglish =
    "  Chart                  | Asc  | Sun  | Moo  | Mar  | Mer  | Jup  | Ven  | Sat  | Rah  | Ket  ";

// The names the row is chosen by, for rows 2 to 21.
constexpr std::array<const char*, kVargaChartCount - 1> kRowNames = {
    "navamsa",    "hora",         "drekkana",     "chaturthamsha",    "panchamsha",
    "shashtamsha", "sapthamsha",  "ashatamsha",   "dashamsha",        "ekadashamsha",
    "dwadashamsha", "shodashamsha", "vimshamsha", "chaturvimshamsha", "saptavimshamsha",
    "trimshamsha", "khavedamsa",  "akshvedamsa",  "shastiamsa",       "nava-navamsa",
};

using Longitudes = std::array<double, kBodies>;
using Signs = std::array<int, kBodies>;

// The degree as the lookup's text carries it: the default text of a number
// keeps 15 significant digits, so a degree a hair below a band's end reaches
// the table as the end itself and falls in the next band.
double AsLookupText(double degree) { return std::strtod(NumberText(degree).c_str(), nullptr); }

void FillVargaRow(const ChartData& chart, const ChartsMasterTable& table, const Longitudes& longitudes,
                  const Signs& rasiPositions, const VargaChart& varga, Grid& grid) {
  Signs signs{};
  for (int b = 0; b < kBodies; ++b) signs[b] = RasiOfLongitude(longitudes[b], varga.size);
  if (varga.fromTable) {
    for (int b = 0; b < kBodies; ++b) {
      const double degree = AsLookupText(DegreesInRasi(longitudes[b]));
      const auto house = table.House(varga.name, degree, rasiPositions[b]);
      if (!house) {
        throw CalculationError(std::string("The divisional chart table has no band for ") + varga.name + ", rasi " +
                               std::to_string(rasiPositions[b]) + ", degree " + NumberText(degree));
      }
      signs[b] = *house;
    }
  }
  const int row = VargaRowOfChart(varga.name);
  if (row == 0) throw CalculationError(std::string("No row of the divisional charts is named ") + varga.name);
  for (int b = 0; b < kBodies; ++b) {
    grid.SetText(row, b + 1, RasiShortFromName(chart, RasiNameOf(chart, signs[b])));
  }
}

}  // namespace

int VargaRowOfChart(std::string_view chartName) {
  while (!chartName.empty() && chartName.front() == ' ') chartName.remove_prefix(1);
  while (!chartName.empty() && chartName.back() == ' ') chartName.remove_suffix(1);
  for (size_t i = 0; i < kRowNames.size(); ++i) {
    const std::string_view want = kRowNames[i];
    if (want.size() != chartName.size()) continue;
    bool same = true;
    for (size_t c = 0; c < want.size() && same; ++c) {
      same = std::tolower(static_cast<unsigned char>(chartName[c])) == want[c];
    }
    if (same) return static_cast<int>(i) + 2;
  }
  return 0;
}

const std::string& RasiShortFromName(const ChartData& chart, const std::string& fullName) {
  static const std::string kNone;
  for (size_t i = 0; i < chart.RasiNames.size(); ++i) {
    if (chart.RasiNames[i] == fullName) return chart.RasiShortNames[i];
  }
  return kNone;
}

void FillVargas(const ChartData& chart, const ChartsMasterTable& table, Vargas& out) {
  Grid& grid = out.mshVargas;
  if (chart.language == "Sanskrit") {
    grid.SetHeader(kHeaderSanskrit);
  } else if (chart.language == "English") {
    grid.SetHeader(kHeaderEnglish);
  }
  grid.Resize(kVargaChartCount + 1, kBodies + 1);
  for (int row = 1; row <= kVargaChartCount; ++row) grid.SetText(row, 0, kVargaCharts[row - 1].label);

  Longitudes longitudes{};
  Signs rasiPositions{};
  for (int b = 0; b < kBodies; ++b) {
    longitudes[b] = chart.longitude[b];
    rasiPositions[b] = RasiOfLongitude(longitudes[b], kRasiSize);
    grid.SetText(1, b + 1, RasiShortFromName(chart, RasiNameOf(chart, rasiPositions[b])));
  }
  for (int row = 2; row <= 20; ++row) {
    FillVargaRow(chart, table, longitudes, rasiPositions, kVargaCharts[row - 1], grid);
  }
  Longitudes scaled{};
  for (int b = 0; b < kBodies; ++b) scaled[b] = longitudes[b] * kNavaNavamsaFactor;
  FillVargaRow(chart, table, scaled, rasiPositions, kVargaCharts[kVargaChartCount - 1], grid);
}

}  // namespace kelvaro
