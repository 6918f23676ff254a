#pragma once
// The divisional-chart bands of the database, read once and answered from
// memory: a calculation asks for about a hundred bands, and one query each
// would cost more than the rest of the calculation.
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "analysis/charts_master_table.h"
#include "store/database.h"

namespace kelvaro::store {

class DatabaseChartsMasterTable : public kelvaro::ChartsMasterTable {
 public:
  // Reads every row of chartsmaster now; later changes to the table are not
  // seen. A database failure raises StoreError.
  explicit DatabaseChartsMasterTable(Database& db);

  // As the lookup query would answer: the chart name without regard to case
  // (ASCII letters only, as the column's collation), the first band in the
  // table's own order whose startDegree is not above and whose EndDegree is
  // above the degree, and whose RasiHouse is the rasi.
  std::optional<int> House(std::string_view chartName, double degree, int rasi) const override;

  // How many rows were read.
  std::size_t RowCount() const { return rows_; }

 private:
  struct Band {
    int rasi = 0;
    double start = 0;
    double end = 0;
    int house = 0;
  };
  struct Chart {
    std::string name;         // as the first of its rows spells it
    std::vector<Band> bands;  // in the table's order
  };

  std::vector<Chart> charts_;
  std::size_t rows_ = 0;
};

}  // namespace kelvaro::store
