#pragma once
// The seed files of data/ compiled into the program, so that a first start
// needs no file beside the executable. The build embeds each known file that
// is present in data/ (see embed_seed.cmake).
#include <optional>
#include <string_view>
#include <vector>

namespace kelvaro::store {

// The bytes of data/<name>; nothing when the build had no such file.
std::optional<std::string_view> SeedFile(std::string_view name);

// Names of the files compiled in, in the build's order.
std::vector<std::string_view> SeedFileNames();

}  // namespace kelvaro::store
