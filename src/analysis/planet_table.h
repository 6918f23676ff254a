#pragma once
// The planet positions table (mshNirayana): for the Lagna and the nine
// planets the degrees in the rasi, rasi, rasi lord, star, pada, star lord,
// sub lord, Jaimini karaka and Sayanadi avastha.
#include <optional>
#include <string>

#include "analysis/chart_data.h"
#include "analysis/grid.h"
#include "astronomy/find_planet_position.h"
#include "panchanga/star.h"

namespace kelvaro {

struct PlanetTable {
  // Header row and ten body rows, Lagna to Ketu; ten columns.
  Grid mshNirayana{"mshNirayana"};
  // Work area of the karaka ranking, never shown: a fixed row 0 and the
  // degrees texts of Sun to Saturn in rows 1 to 7, sorted.
  Grid MSFlexGridSort{"MSFlexGridSort"};
};

inline constexpr const char* kPlanetTableHeader =
    "Planet|   Longitude  |   Rasi    |Rasi Lord|Star            |Pada|Star Lord|Sub  Lord|Karaka*|Avasthas** ";

// Sub lords: the LongNames entry of the lord of the band that holds a value
// of degrees within a rasi. A band runs from above the previous limit up to
// and including its own; the first begins at 0 inclusive. Outside 0 to 30:
// empty text. Table 1 serves rasis 1, 5, 9; table 2 rasis 2, 6, 10; table 3
// rasis 3, 7, 11; table 4 rasis 4, 8, 12.
const std::string& SubLordTable1(const ChartData& chart, double degreesInRasi);
const std::string& SubLordTable2(const ChartData& chart, double degreesInRasi);
const std::string& SubLordTable3(const ChartData& chart, double degreesInRasi);
const std::string& SubLordTable4(const ChartData& chart, double degreesInRasi);

// The sub lord of a longitude in rasi 1 to 12 (the table of the rasi, read at
// DegreesInRasi(longitude)); another rasi number gives empty text.
const std::string& SubLordOf(const ChartData& chart, int rasi, double longitude);

// Retrograde mark: kind 1 (Mars to Saturn) gives " (R)" when the longitude a
// day later is not greater than at birth; kind 2 (the nodes) when it is
// greater. No allowance for the passage through 0 degrees: 359 to 0 marks a
// planet retrograde. Any other kind gives empty text.
std::string RetroMark(double today, double nextDay, int kind);

// Fills the table from the chart of the position pass of division 30 that has
// just run. `positions` is run once for the moment a day after the birth (the
// seven planets' retrograde marks) and is left holding that moment. `star` is
// the shared classifier. `ishtaGhati` is the birth's ishta ghati, which feeds
// the avasthas; without one (a day with no sunrise) every avastha cell holds
// "----", as the Lagna's does. On an error (CalculationError) the table is
// left as it was.
void FillPlanetTable(const ChartData& chart, std::optional<double> ishtaGhati, ClsFindPlanetPosition& positions,
                     clsStar& star, PlanetTable& table);

}  // namespace kelvaro
