#pragma once
// CsvTable: a comma-separated table with a header line, as the seed files in
// data/ are written (RFC 4180 quoting: a field in double quotes may hold
// commas, line ends and doubled quotes). Cells are read by column name.
#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace kelvaro::store {

class CsvTable {
 public:
  // Throws StoreError naming `source` when a quote is not closed or a row has
  // another number of fields than the header.
  static CsvTable Parse(std::string_view text, std::string source);

  const std::vector<std::string>& Header() const { return header_; }
  std::size_t RowCount() const { return rows_.size(); }
  bool HasColumn(std::string_view name) const;

  // The cell of row `row` (0 is the first line after the header) in the
  // column `name`. Throws StoreError for a column the header does not hold.
  const std::string& Cell(std::size_t row, std::string_view name) const;
  // The same as a whole number or a number; throws StoreError naming the
  // file, the line and the column when the cell is not one.
  long long WholeNumber(std::size_t row, std::string_view name) const;
  double Number(std::size_t row, std::string_view name) const;

  // "countries.csv line 12" for row 10, for messages.
  std::string Where(std::size_t row) const;

 private:
  std::size_t ColumnIndex(std::string_view name) const;

  std::string source_;
  std::vector<std::string> header_;
  std::vector<std::vector<std::string>> rows_;
  std::vector<std::size_t> lines_;  // file line of each row, for messages
};

}  // namespace kelvaro::store
