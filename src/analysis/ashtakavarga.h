#pragma once
// The Ashtakavarga: for each rasi the benefic points (bindus) of the seven
// planets, of the Lagna and of Rahu, with two totals. The Lagna and Rahu
// columns are extras beside the classical seven; Rahu's own rasi contributes
// nothing, its column is made of the contributions of the eight others.
#include <array>
#include <cstdint>
#include <initializer_list>
#include <string>

#include "analysis/chart_data.h"
#include "analysis/grid.h"
#include "panchanga/star.h"

namespace kelvaro {

// The houses, counted from a contributor's rasi (its own rasi is house 1),
// that receive a point.
struct AshtakavargaHouses {
  std::array<std::int8_t, 12> house{};
  std::int8_t count = 0;
};

constexpr AshtakavargaHouses Houses(std::initializer_list<int> houses) {
  AshtakavargaHouses h;
  for (int house : houses) h.house[static_cast<size_t>(h.count++)] = static_cast<std::int8_t>(house);
  return h;
}

// The contributors in the order of the table's columns: Venus stands before
// Jupiter here, unlike everywhere else.
enum class AshtakavargaContributor { Sun, Moon, Mars, Mercury, Venus, Jupiter, Saturn, Lagna };
inline constexpr int kAshtakavargaContributors = 8;

struct AshtakavargaRow {
  const char* column;  // the grid column the row fills
  std::array<AshtakavargaHouses, kAshtakavargaContributors> from;  // by AshtakavargaContributor
};

// One row per grid column 1 to 9. Over the twelve rasis a column always
// totals its count of entries: 48, 49, 39, 54, 56, 52, 39, 49 and 43.
inline constexpr std::array<AshtakavargaRow, 9> kAshtakavargaTable = {{
    // Houses from Sun, Moon, Mars, Mercury, Venus, Jupiter, Saturn, Lagna.
    {"Sun",     {Houses({1, 2, 4, 7, 8, 9, 10, 11}), Houses({3, 6, 10, 11}), Houses({1, 2, 4, 7, 8, 9, 10, 11}), Houses({3, 5, 6, 9, 10, 11, 12}), Houses({6, 7, 12}), Houses({5, 6, 9, 11}), Houses({1, 2, 4, 7, 8, 9, 10, 11}), Houses({3, 4, 6, 10, 11, 12})}},
    {"Moon",    {Houses({3, 6, 7, 8, 10, 11}), Houses({1, 3, 6, 7, 10, 11}), Houses({2, 3, 5, 6, 9, 10, 11}), Houses({1, 3, 4, 5, 7, 8, 10, 11}), Houses({3, 4, 5, 7, 9, 10, 11}), Houses({1, 4, 7, 8, 10, 11, 12}), Houses({3, 5, 6, 11}), Houses({3, 6, 10, 11})}},
    {"Mars",    {Houses({3, 5, 6, 10, 11}), Houses({3, 6, 11}), Houses({1, 2, 4, 7, 8, 10, 11}), Houses({3, 5, 6, 11}), Houses({6, 8, 11, 12}), Houses({6, 10, 11, 12}), Houses({1, 4, 7, 8, 9, 10, 11}), Houses({1, 3, 6, 10, 11})}},
    {"Mercury", {Houses({5, 6, 9, 11, 12}), Houses({2, 4, 6, 8, 10, 11}), Houses({1, 2, 4, 7, 8, 9, 10, 11}), Houses({1, 3, 5, 6, 9, 10, 11, 12}), Houses({1, 2, 3, 4, 5, 8, 9, 11}), Houses({6, 8, 11, 12}), Houses({1, 2, 4, 7, 8, 9, 10, 11}), Houses({1, 2, 4, 6, 8, 10, 11})}},
    {"Jupiter", {Houses({1, 2, 3, 4, 7, 8, 9, 10, 11}), Houses({2, 5, 7, 9, 11}), Houses({1, 2, 4, 7, 8, 10, 11}), Houses({1, 2, 4, 5, 6, 9, 10, 11}), Houses({2, 5, 6, 9, 10, 11}), Houses({1, 2, 3, 4, 7, 8, 10, 11}), Houses({3, 5, 6, 12}), Houses({1, 2, 4, 5, 6, 7, 9, 10, 11})}},
    {"Venus",   {Houses({8, 11, 12}), Houses({1, 2, 3, 4, 5, 8, 9, 11, 12}), Houses({3, 5, 6, 9, 11, 12}), Houses({3, 5, 6, 9, 11}), Houses({1, 2, 3, 4, 5, 8, 9, 10, 11}), Houses({5, 8, 9, 10, 11}), Houses({3, 4, 5, 8, 9, 10, 11}), Houses({1, 2, 3, 4, 5, 8, 9, 11})}},
    {"Saturn",  {Houses({1, 2, 4, 7, 8, 10, 11}), Houses({3, 6, 11}), Houses({3, 5, 6, 10, 11, 12}), Houses({6, 8, 9, 10, 11, 12}), Houses({6, 11, 12}), Houses({5, 6, 11, 12}), Houses({3, 5, 6, 11}), Houses({1, 3, 4, 6, 10, 11})}},
    {"Lagna",   {Houses({3, 4, 6, 10, 11, 12}), Houses({3, 6, 10, 11, 12}), Houses({1, 3, 6, 10, 11}), Houses({1, 2, 4, 6, 8, 10, 11}), Houses({1, 2, 3, 4, 5, 8, 9}), Houses({1, 2, 4, 5, 6, 7, 9, 10, 11}), Houses({1, 3, 4, 6, 10, 11}), Houses({3, 6, 10, 11})}},
    {"Rahu",    {Houses({1, 2, 3, 4, 7, 8, 10}), Houses({1, 3, 5, 7, 8, 9, 10}), Houses({2, 3, 5, 12}), Houses({2, 4, 7, 8, 12}), Houses({6, 7, 11, 12}), Houses({1, 3, 4, 6, 8}), Houses({3, 5, 7, 10, 11, 12}), Houses({3, 4, 5, 9, 12})}},
}};

// Frm_AVargas: the grid and the Moon's star as the step read it.
struct Ashtakavarga {
  // 14 rows (header, rasis 1 to 12, "Total") by 12 columns: rasi name, the
  // nine columns of the table, the sum of the seven planets, the sum of all
  // nine.
  Grid mshAshtaVarga{"mshAshtaVarga"};
  std::string MoonStarName;
  std::int16_t MoonStarPada = 0;
  std::int16_t MoonHouseNo = 0;
};

// Runs while the rasi numbers of `chart` are Rasi positions (division 30).
// Sets the Moon into the shared `star` and keeps its star, pada and HouseNo.
// HouseNo is read right after findstar as it stands: from above
// 253.333333333333 to 280 findstar leaves it at the previous call's value, and
// that carried value is what the step keeps.
void FillAshtakavarga(const ChartData& chart, clsStar& star, Ashtakavarga& out);

}  // namespace kelvaro
