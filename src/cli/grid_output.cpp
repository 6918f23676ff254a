#include "cli/grid_output.h"

#include <algorithm>
#include <string>
#include <vector>

namespace kelvaro::cli {

namespace {

// Display width of a UTF-8 text, one column a code point.
size_t Width(const std::string& text) {
  size_t width = 0;
  for (unsigned char c : text) width += (c & 0xC0) != 0x80;
  return width;
}

std::vector<std::string> Lines(const std::string& cell) {
  std::vector<std::string> lines;
  std::string line;
  for (char c : cell) {
    if (c == '\r') continue;
    if (c == '\n') {
      lines.push_back(line);
      line.clear();
    } else {
      line += c;
    }
  }
  lines.push_back(line);
  return lines;
}

}  // namespace

nlohmann::json GridJson(const Grid& grid) {
  nlohmann::json rows = nlohmann::json::array();
  for (int r = 0; r < grid.Rows(); ++r) rows.push_back(grid.RowTexts(r));
  return rows;
}

std::string GridText(const Grid& grid) {
  std::vector<size_t> widths(static_cast<size_t>(grid.Cols()), 0);
  for (int r = 0; r < grid.Rows(); ++r) {
    for (int c = 0; c < grid.Cols(); ++c) {
      for (const auto& line : Lines(grid.Text(r, c))) {
        widths[static_cast<size_t>(c)] = std::max(widths[static_cast<size_t>(c)], Width(line));
      }
    }
  }
  std::string out;
  for (int r = 0; r < grid.Rows(); ++r) {
    std::vector<std::vector<std::string>> cells;
    size_t height = 1;
    for (int c = 0; c < grid.Cols(); ++c) {
      cells.push_back(Lines(grid.Text(r, c)));
      height = std::max(height, cells.back().size());
    }
    for (size_t h = 0; h < height; ++h) {
      std::string line;
      for (size_t c = 0; c < cells.size(); ++c) {
        const std::string text = h < cells[c].size() ? cells[c][h] : "";
        line += text;
        if (c + 1 < cells.size()) line += std::string(widths[c] - Width(text) + 2, ' ');
      }
      while (!line.empty() && line.back() == ' ') line.pop_back();
      out += line + "\n";
    }
    if (r + 1 == grid.FixedRows) {
      size_t total = 0;
      for (size_t w : widths) total += w + 2;
      out += std::string(total > 2 ? total - 2 : 0, '-') + "\n";
    }
  }
  return out;
}

}  // namespace kelvaro::cli
