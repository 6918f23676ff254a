#pragma once
// Grid: a table of text cells, the model behind each grid of the views
// (mshNirayana, msh_Bhava, mshVargas, mshAshtaVarga, mshDasa, mshBukti,
// mshAntra, ...). The analysis steps fill it; the views show it through a
// table model; the report and the karaka ranking read its text back.
//
// Row 0 is the header when the grid has one (FixedRows 1). A cell outside the
// grid raises CalculationError, as an out-of-range subscript fails the step.
#include <string>
#include <vector>

namespace kelvaro {

class Grid {
 public:
  explicit Grid(std::string name = {}) : name_(std::move(name)) {}

  const std::string& Name() const { return name_; }

  int Rows() const { return rows_; }
  int Cols() const { return cols_; }
  int FixedRows = 1;

  // New size; cells inside both sizes keep their text, new cells are empty.
  void Resize(int rows, int cols);
  // No rows and no columns.
  void Clear() { Resize(0, 0); }

  const std::string& Text(int row, int col) const;
  void SetText(int row, int col, std::string text);
  bool Bold(int row, int col) const;
  void SetBold(int row, int col, bool bold);

  // Sets the header row from a text whose columns are separated by "|", as
  // in "Planet|   Longitude  |   Rasi    ": the grid takes as many columns
  // (and at least one row); each caption keeps its blanks.
  void SetHeader(const std::string& header);

  // The texts of one row, left to right.
  std::vector<std::string> RowTexts(int row) const;

 private:
  size_t Index(int row, int col) const;

  std::string name_;
  int rows_ = 0;
  int cols_ = 0;
  std::vector<std::string> text_;
  std::vector<bool> bold_;
};

}  // namespace kelvaro
