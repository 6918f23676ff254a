#include "analysis/grid.h"

#include <algorithm>
#include <string>

#include "common/calculation_error.h"

namespace kelvaro {

void Grid::Resize(int rows, int cols) {
  if (rows < 0 || cols < 0) throw CalculationError("Grid " + name_ + ": a size cannot be negative");
  std::vector<std::string> text(static_cast<size_t>(rows) * static_cast<size_t>(cols));
  std::vector<bool> bold(text.size(), false);
  for (int r = 0; r < std::min(rows, rows_); ++r) {
    for (int c = 0; c < std::min(cols, cols_); ++c) {
      const size_t to = static_cast<size_t>(r) * static_cast<size_t>(cols) + static_cast<size_t>(c);
      text[to] = std::move(text_[Index(r, c)]);
      bold[to] = bold_[Index(r, c)];
    }
  }
  rows_ = rows;
  cols_ = cols;
  text_ = std::move(text);
  bold_ = std::move(bold);
}

size_t Grid::Index(int row, int col) const {
  if (row < 0 || row >= rows_ || col < 0 || col >= cols_) {
    throw CalculationError("Subscript out of range: cell (" + std::to_string(row) + ", " + std::to_string(col) +
                           ") of grid " + name_ + " of " + std::to_string(rows_) + " rows and " +
                           std::to_string(cols_) + " columns");
  }
  return static_cast<size_t>(row) * static_cast<size_t>(cols_) + static_cast<size_t>(col);
}

const std::string& Grid::Text(int row, int col) const { return text_[Index(row, col)]; }

void Grid::SetText(int row, int col, std::string text) { text_[Index(row, col)] = std::move(text); }

bool Grid::Bold(int row, int col) const { return bold_[Index(row, col)]; }

void Grid::SetBold(int row, int col, bool bold) { bold_[Index(row, col)] = bold; }

void Grid::SetHeader(const std::string& header) {
  std::vector<std::string> captions;
  size_t start = 0;
  while (true) {
    const size_t bar = header.find('|', start);
    captions.push_back(header.substr(start, bar == std::string::npos ? std::string::npos : bar - start));
    if (bar == std::string::npos) break;
    start = bar + 1;
  }
  Resize(std::max(rows_, 1), static_cast<int>(captions.size()));
  for (size_t c = 0; c < captions.size(); ++c) SetText(0, static_cast<int>(c), captions[c]);
}

std::vector<std::string> Grid::RowTexts(int row) const {
  std::vector<std::string> texts;
  for (int c = 0; c < cols_; ++c) texts.push_back(Text(row, c));
  return texts;
}

}  // namespace kelvaro
