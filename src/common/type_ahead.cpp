#include "common/type_ahead.h"

namespace kelvaro {

namespace {

char FoldCase(char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c; }

bool StartsWithFolded(std::string_view item, std::string_view prefix) {
  if (item.size() < prefix.size()) return false;
  for (std::size_t i = 0; i < prefix.size(); ++i) {
    if (FoldCase(item[i]) != FoldCase(prefix[i])) return false;
  }
  return true;
}

}  // namespace

std::optional<std::size_t> FindItemStartingWith(const std::vector<std::string>& items, std::string_view typed) {
  if (typed.empty()) return std::nullopt;
  for (std::size_t i = 0; i < items.size(); ++i) {
    if (StartsWithFolded(items[i], typed)) return i;
  }
  return std::nullopt;
}

}  // namespace kelvaro
