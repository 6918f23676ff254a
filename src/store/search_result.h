#pragma once
// The answer of a search in a list the window already shows: the index of the
// row to select, or the message to show.
#include <cstddef>
#include <optional>

#include "store/field_message.h"

namespace kelvaro::store {

struct SearchResult {
  std::optional<std::size_t> index;
  std::optional<FieldMessage> failure;
  bool found() const { return index.has_value(); }
};

}  // namespace kelvaro::store
