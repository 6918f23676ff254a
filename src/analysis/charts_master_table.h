#pragma once
// ChartsMasterTable: the divisional-chart bands of the master table
// chartsmaster, as the divisional charts read them. The program's table lives
// in the store; tests give small tables of their own.
#include <optional>
#include <string_view>

namespace kelvaro {

class ChartsMasterTable {
 public:
  virtual ~ChartsMasterTable() = default;

  // The resulting sign (HouseNumber) of the first band of chart `chartName`
  // (compared without regard to case) for sign `rasi` that holds `degree`
  // (degrees within the sign): its start not above the degree, its end above
  // it. Nothing when no band holds the degree.
  virtual std::optional<int> House(std::string_view chartName, double degree, int rasi) const = 0;
};

}  // namespace kelvaro
