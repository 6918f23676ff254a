#pragma once
// Test helper: the divisional-chart bands of the seed file
// data/chartsmaster.csv, answered from memory as the store answers them.
#include <cctype>
#include <fstream>
#include <optional>
#include <sstream>
#include <string>
#include <vector>

#include "analysis/charts_master_table.h"

namespace kelvaro::testing {

class SeedChartsMaster : public ChartsMasterTable {
 public:
  SeedChartsMaster() {
    std::ifstream in(std::string(KELVARO_DATA_DIR) + "/chartsmaster.csv");
    std::string line;
    std::getline(in, line);
    while (std::getline(in, line)) {
      std::istringstream f(line);
      Band b;
      std::string rasi, start, end, house;
      std::getline(f, b.chart, ',');
      std::getline(f, rasi, ',');
      std::getline(f, start, ',');
      std::getline(f, end, ',');
      std::getline(f, house, ',');
      b.rasi = std::stoi(rasi);
      b.start = std::stod(start);
      b.end = std::stod(end);
      b.house = std::stoi(house);
      bands_.push_back(b);
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
