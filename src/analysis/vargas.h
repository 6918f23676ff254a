#pragma once
// The divisional charts: for each of 21 charts the sign in which each of the
// ten bodies falls, in the grid mshVargas. Part of the charts divide the
// longitude by the chart's division size; the others, whose classical rules
// plain division cannot express, are looked up in the chartsmaster bands.
#include <array>
#include <string>
#include <string_view>

#include "analysis/chart_data.h"
#include "analysis/charts_master_table.h"
#include "analysis/grid.h"

namespace kelvaro {

struct Vargas {
  // Header, then one row per chart in the order of kVargaCharts; column 0
  // the chart's label, columns 1 to 10 the short sign name of Lagna to Ketu.
  Grid mshVargas{"mshVargas"};
};

// One divisional chart as the grid lists it.
struct VargaChart {
  const char* label;  // column 0
  const char* name;   // handed to the lookup and to the choice of the row
  double size;        // division size in degrees; unused for the result of a table chart
  bool fromTable;     // the sign comes from chartsmaster
};

inline constexpr int kVargaChartCount = 21;

// The 21 charts in row order (row 1 is the Rasi chart, row 21 Nava-Navamsa).
extern const std::array<VargaChart, kVargaChartCount> kVargaCharts;

// Fills the grid: the header by chart.language ("Sanskrit" or "English"; any
// other value leaves the header of the last fill), the labels, and the signs
// of the ten bodies on every row. A table chart whose band is missing raises
// CalculationError naming the chart, the sign and the degree.
void FillVargas(const ChartData& chart, const ChartsMasterTable& table, Vargas& out);

// The grid row (2 to 21) of a chart name handed on, compared trimmed and
// without regard to case; 0 for a name that is none of them.
int VargaRowOfChart(std::string_view chartName);

// The RasiShortNames entry that stands beside the full name in RasiNames;
// empty text for a name that is not there.
const std::string& RasiShortFromName(const ChartData& chart, const std::string& fullName);

}  // namespace kelvaro
