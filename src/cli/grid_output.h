#pragma once
// The two forms in which the CLI prints a grid: an array of rows of cell
// texts (JSON), and aligned columns (text).
#include <nlohmann/json.hpp>
#include <string>

#include "analysis/grid.h"

namespace kelvaro::cli {

nlohmann::json GridJson(const Grid& grid);

// Each column as wide as its widest cell, two blanks between columns, a rule
// under the fixed rows; the cells' own blanks and line breaks are kept, a
// line break in a cell continuing on the next line of that column.
std::string GridText(const Grid& grid);

}  // namespace kelvaro::cli
