#include "store/column_number.h"

#include <limits>

#include "store/text_rules.h"

namespace kelvaro::store {

double ColumnNumber(const SQLite::Column& column) {
  if (column.isInteger() || column.isFloat()) return column.getDouble();
  if (column.isText()) {
    if (const auto value = NumericValue(column.getString())) return *value;
  }
  return std::numeric_limits<double>::quiet_NaN();
}

}  // namespace kelvaro::store
