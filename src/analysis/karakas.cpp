#include "analysis/karakas.h"

#include <algorithm>
#include <string>
#include <vector>

namespace kelvaro {

namespace {

constexpr int kFirstPlanetRow = 2;  // Sun; row 1 is the Lagna
constexpr int kRankedPlanets = 7;   // Sun to Saturn: the nodes take no part
constexpr int kDegreesCol = 1;
constexpr int kKarakaCol = 8;

}  // namespace

void SortGenericDescending(Grid& grid, int col, int fromRow, int toRow) {
  std::vector<std::string> texts;
  for (int r = fromRow; r <= toRow; ++r) texts.push_back(grid.Text(r, col));
  std::stable_sort(texts.begin(), texts.end(), [](const std::string& a, const std::string& b) { return a > b; });
  for (int r = fromRow; r <= toRow; ++r) grid.SetText(r, col, std::move(texts[static_cast<size_t>(r - fromRow)]));
}

void RankKarakas(Grid& nirayana, Grid& sortGrid) {
  // A fixed row 0 above the seven texts, as the grid stands on the form.
  sortGrid.Clear();
  sortGrid.Resize(kRankedPlanets + 1, 1);
  for (int k = 1; k <= kRankedPlanets; ++k) {
    sortGrid.SetText(k, 0, nirayana.Text(kFirstPlanetRow + k - 1, kDegreesCol));
  }
  SortGenericDescending(sortGrid, 0, 1, kRankedPlanets);
  for (int k = 1; k <= kRankedPlanets; ++k) {
    for (int row = kFirstPlanetRow; row < kFirstPlanetRow + kRankedPlanets; ++row) {
      if (nirayana.Text(row, kDegreesCol) == sortGrid.Text(k, 0)) {
        nirayana.SetText(row, kKarakaCol, kKarakaNames[static_cast<size_t>(k - 1)]);
      }
    }
  }
}

}  // namespace kelvaro
