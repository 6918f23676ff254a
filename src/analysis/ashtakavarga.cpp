#include "analysis/ashtakavarga.h"

#include <string>

#include "common/calculation_error.h"

namespace kelvaro {

namespace {

constexpr int kRasiRows = 12;
constexpr int kTotalRow = 13;
constexpr int kPlanetTotalCol = 10;  // columns 1 to 7
constexpr int kAllTotalCol = 11;     // columns 1 to 9
constexpr size_t kGridRows = 14;
constexpr size_t kGridCols = 12;

// The captions keep their uneven blanks; the English one ends with a blank.
constexpr const char* kSanskritHeader =
    "Rasi         | Surya  |Chandra|Kuja |Budha  |Guru   |Sukra|Sani  |Lagna *|Rahu *|Total |Total With *";
constexpr const char* kOtherHeader =
    "Zodiac       | Sun    |Moon   |Mars |Mercury|Jupiter|Venus|Saturn|Asc   *|Rahu *|Total |Total With * ";

// The contributors' bodies, in the table's column order.
constexpr std::array<Body, kAshtakavargaContributors> kContributorBodies = {
    Body::Sun, Body::Moon, Body::Mars, Body::Mercury, Body::Venus, Body::Jupiter, Body::Saturn, Body::Lagna};

}  // namespace

void FillAshtakavarga(const ChartData& chart, clsStar& star, Ashtakavarga& out) {
  star.PlanetPosition = chart.Longitude(Body::Moon);
  star.findstar();
  out.MoonStarName = star.StarName;
  out.MoonStarPada = star.StarQuarter;
  out.MoonHouseNo = star.HouseNo;

  Grid& grid = out.mshAshtaVarga;
  grid.Clear();
  grid.SetHeader(chart.language == "Sanskrit" ? kSanskritHeader : kOtherHeader);
  grid.Resize(static_cast<int>(kGridRows), static_cast<int>(kGridCols));
  for (int rasi = 1; rasi <= kRasiRows; ++rasi) grid.SetText(rasi, 0, chart.RasiNames[static_cast<size_t>(rasi - 1)]);

  // Points by row (1 to 12 the rasis, 13 the column total) and grid column.
  std::array<std::array<int, kGridCols>, kGridRows> points{};
  for (size_t column = 0; column < kAshtakavargaTable.size(); ++column) {
    const int col = static_cast<int>(column) + 1;
    for (size_t c = 0; c < kContributorBodies.size(); ++c) {
      const int from = chart.Rasi(kContributorBodies[c]);
      const AshtakavargaHouses& houses = kAshtakavargaTable[column].from[c];
      for (int i = 0; i < houses.count; ++i) {
        int rasi = from + houses.house[static_cast<size_t>(i)] - 1;
        if (rasi > kRasiRows) rasi -= kRasiRows;
        // A contributor without a rasi number fails the step, as the
        // out-of-range subscript of the point counts would.
        if (rasi < 1 || rasi > kRasiRows) {
          throw CalculationError("Subscript out of range: Ashtakavarga rasi " + std::to_string(rasi));
        }
        ++points[static_cast<size_t>(rasi)][static_cast<size_t>(col)];
      }
    }
    for (int rasi = 1; rasi <= kRasiRows; ++rasi) {
      points[kTotalRow][static_cast<size_t>(col)] += points[static_cast<size_t>(rasi)][static_cast<size_t>(col)];
    }
  }

  for (int row = 1; row <= kTotalRow; ++row) {
    auto& p = points[static_cast<size_t>(row)];
    for (int col = 1; col <= 7; ++col) p[kPlanetTotalCol] += p[static_cast<size_t>(col)];
    p[kAllTotalCol] = p[kPlanetTotalCol] + p[8] + p[9];
    for (int col = 1; col <= kAllTotalCol; ++col) grid.SetText(row, col, std::to_string(p[static_cast<size_t>(col)]));
  }
  grid.SetText(kTotalRow, 0, "Total");
}

}  // namespace kelvaro
