#pragma once
// Inflates gzip data held in memory (the compressed seed files).
#include <string>
#include <string_view>

namespace kelvaro::store {

// Throws StoreError naming `source` when the data is not whole gzip data.
std::string Gunzip(std::string_view compressed, const std::string& source);

}  // namespace kelvaro::store
