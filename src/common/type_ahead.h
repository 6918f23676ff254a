#pragma once
// The type-ahead of the editable lists: the first item, from the top, that
// begins with what has been typed, without regard to case.
#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace kelvaro {

// Letters A to Z are compared without regard to case; every other byte (the
// letters of other scripts in UTF-8 among them) must match as it is. Nothing
// when no item begins with `typed` or `typed` is empty.
std::optional<std::size_t> FindItemStartingWith(const std::vector<std::string>& items, std::string_view typed);

}  // namespace kelvaro
