#pragma once
// A number read from a column of the store. SQLite gives 0 for a text that is
// no number and for NULL; a place or a zone read that way would be computed
// at 0 degrees without a word. Here such a value is NaN, which every range
// check downstream refuses.
#include <SQLiteCpp/Column.h>

namespace kelvaro::store {

double ColumnNumber(const SQLite::Column& column);

}  // namespace kelvaro::store
