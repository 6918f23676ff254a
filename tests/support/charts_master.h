#pragma once
// Test helper: the divisional-chart bands of the seed file
// data/chartsmaster.csv, answered from memory as the store answers them.
#include <cctype>
#include <optional>
#include <string>
#include <vector>

#include "analysis/charts_master_table.h"
#include "support/test_data.h"

namespace kelvaro::testing {

class SeedChartsMaster : public ChartsMasterTable {
 public:
  SeedChartsMaster() {
    // chartname, RasiHouse, startDegree, EndDegree, HouseNumber
    for (const auto& r : SeedCsvRows("chartsmaster.csv")) {
      bands_.push_back({r.at(0), std::stoi(r.at(1)), std::stod(r.at(2)), std::stod(r.at(3)), std::stoi(r.at(4))});
    }
  }
  std::optional<int> House(std::string_view chartName, double degree, int rasi) const override {
    for (const Band& b : bands_) {
      if (b.rasi == rasi && b.start <= degree && b.end > degree && SameName(b.chart, chartName)) return b.house;
    }
    return std::nullopt;
  }
  size_t Size() const { return bands_.size(); }

 private:
  struct Band {
    std::string chart;
    int rasi = 0;
    double start = 0, end = 0;
    int house = 0;
  };
  static bool SameName(std::string_view a, std::string_view b) {
    if (a.size() != b.size()) return false;
    for (size_t i = 0; i < a.size(); ++i) {
      if (std::tolower(static_cast<unsigned char>(a[i])) != std::tolower(static_cast<unsigned char>(b[i]))) {
        return false;
      }
    }
    return true;
  }
  std::vector<Band> bands_;
};

}  // namespace kelvaro::testing
