#pragma once
// Jaimini karakas of the planet table: the seven planets Sun to Saturn ranked
// by their degrees within the rasi, as the grids' text gives them.
#include <array>

#include "analysis/grid.h"

namespace kelvaro {

// The karaka names by rank 1 to 7.
inline constexpr std::array<const char*, 7> kKarakaNames = {
    "Atma", "Amatya", "Bhratri", "Matri", "Puttra", "Gnati", "Dara",
};

// The grids' generic descending sort (sort code 2) of rows fromRow to toRow
// on column `col`. The texts of the planet table are degrees with two points,
// which are no numbers, so they compare as text: "9.10.3" ranks above
// "12.5.7". Rows with equal text keep their order.
void SortGenericDescending(Grid& grid, int col, int fromRow, int toRow);

// Ranks the karakas. Writes the degrees text of column 1 of rows 2 to 8 of
// `nirayana` (Sun to Saturn, without any retrograde mark yet) into rows 1 to
// 7 of `sortGrid`, column 0, sorts them descending as text, and for each rank
// in turn writes its karaka name into column 8 of every row of `nirayana`
// whose column 1 holds that rank's text. Two planets with the same text both
// match two ranks and both keep the later one; the earlier rank goes to no
// one.
void RankKarakas(Grid& nirayana, Grid& sortGrid);

}  // namespace kelvaro
