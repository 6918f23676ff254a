#include "store/charts_master_table.h"

#include <algorithm>

namespace kelvaro::store {

namespace {

char FoldAscii(char c) { return (c >= 'A' && c <= 'Z') ? static_cast<char>(c - 'A' + 'a') : c; }

// NOCASE of the chartname column folds the ASCII letters and nothing else.
bool SameName(std::string_view a, std::string_view b) {
  return a.size() == b.size() &&
         std::equal(a.begin(), a.end(), b.begin(), [](char x, char y) { return FoldAscii(x) == FoldAscii(y); });
}

}  // namespace

DatabaseChartsMasterTable::DatabaseChartsMasterTable(Database& db) {
  db.Read("read chartsmaster", [&](SQLite::Database& c) {
    SQLite::Statement q(c,
                        "SELECT chartname, RasiHouse, startDegree, EndDegree, HouseNumber FROM chartsmaster "
                        "ORDER BY rowid");
    while (q.executeStep()) {
      const std::string name = q.getColumn(0).getString();
      const Band band{q.getColumn(1).getInt(), q.getColumn(2).getDouble(), q.getColumn(3).getDouble(),
                      q.getColumn(4).getInt()};
      auto chart = std::find_if(charts_.begin(), charts_.end(), [&](const Chart& ch) { return SameName(ch.name, name); });
      if (chart == charts_.end()) chart = charts_.insert(charts_.end(), Chart{name, {}});
      chart->bands.push_back(band);
      ++rows_;
    }
  });
}

std::optional<int> DatabaseChartsMasterTable::House(std::string_view chartName, double degree, int rasi) const {
  const auto chart =
      std::find_if(charts_.begin(), charts_.end(), [&](const Chart& ch) { return SameName(ch.name, chartName); });
  if (chart == charts_.end()) return std::nullopt;
  for (const Band& b : chart->bands) {
    if (b.rasi == rasi && b.start <= degree && b.end > degree) return b.house;
  }
  return std::nullopt;
}

}  // namespace kelvaro::store
