#include "store/csv_table.h"

#include <charconv>

#include "store/store_error.h"
#include "store/text_rules.h"

namespace kelvaro::store {

CsvTable CsvTable::Parse(std::string_view text, std::string source) {
  CsvTable table;
  table.source_ = std::move(source);
  std::vector<std::string> fields;
  std::string field;
  bool quoted = false;
  bool fieldStarted = false;
  std::size_t line = 1;
  std::size_t recordLine = 1;

  auto endRecord = [&] {
    fields.push_back(std::move(field));
    field.clear();
    const bool empty = fields.size() == 1 && fields[0].empty() && !fieldStarted;
    if (!empty) {
      if (table.header_.empty()) {
        table.header_ = std::move(fields);
      } else {
        if (fields.size() != table.header_.size()) {
          throw StoreError(table.source_ + " line " + std::to_string(recordLine) + ": " +
                           std::to_string(fields.size()) + " fields where the header has " +
                           std::to_string(table.header_.size()));
        }
        table.rows_.push_back(std::move(fields));
        table.lines_.push_back(recordLine);
      }
    }
    fields.clear();
    fieldStarted = false;
  };

  // A byte-order mark that an editor may have put at the start is not data.
  if (text.substr(0, 3) == "\xEF\xBB\xBF") text.remove_prefix(3);
  for (std::size_t i = 0; i < text.size(); ++i) {
    const char c = text[i];
    if (quoted) {
      if (c == '"') {
        if (i + 1 < text.size() && text[i + 1] == '"') {
          field += '"';
          ++i;
        } else {
          quoted = false;
        }
      } else {
        if (c == '\n') ++line;
        field += c;
      }
      continue;
    }
    switch (c) {
      case '"':
        quoted = true;
        fieldStarted = true;
        break;
      case ',':
        fields.push_back(std::move(field));
        field.clear();
        fieldStarted = true;
        break;
      case '\r':
        break;
      case '\n':
        endRecord();
        ++line;
        recordLine = line;
        break;
      default:
        field += c;
        fieldStarted = true;
    }
  }
  if (quoted) throw StoreError(table.source_ + " line " + std::to_string(recordLine) + ": a quote is not closed");
  if (fieldStarted || !field.empty() || !fields.empty()) endRecord();
  return table;
}

bool CsvTable::HasColumn(std::string_view name) const {
  for (const auto& h : header_) {
    if (h == name) return true;
  }
  return false;
}

std::size_t CsvTable::ColumnIndex(std::string_view name) const {
  for (std::size_t i = 0; i < header_.size(); ++i) {
    if (header_[i] == name) return i;
  }
  throw StoreError(source_ + ": no column \"" + std::string(name) + "\"");
}

const std::string& CsvTable::Cell(std::size_t row, std::string_view name) const {
  return rows_.at(row)[ColumnIndex(name)];
}

long long CsvTable::WholeNumber(std::size_t row, std::string_view name) const {
  const std::string text = Trim(Cell(row, name));
  long long value = 0;
  const auto [end, ec] = std::from_chars(text.data(), text.data() + text.size(), value);
  if (text.empty() || ec != std::errc() || end != text.data() + text.size()) {
    throw StoreError(Where(row) + ": column " + std::string(name) + " is not a whole number: \"" + text + "\"");
  }
  return value;
}

double CsvTable::Number(std::size_t row, std::string_view name) const {
  const auto value = NumericValue(Cell(row, name));
  if (!value) {
    throw StoreError(Where(row) + ": column " + std::string(name) + " is not a number: \"" + Cell(row, name) + "\"");
  }
  return *value;
}

std::string CsvTable::Where(std::size_t row) const { return source_ + " line " + std::to_string(lines_.at(row)); }

}  // namespace kelvaro::store
