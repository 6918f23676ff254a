#pragma once
// Where the command-line tool keeps DBMirvaneBasic.db when no --database is
// given: the per-user data folder, $XDG_DATA_HOME or else ~/.local/share,
// then Kelvaro/DBMirvaneBasic.db. (The desktop program asks Qt for the same
// folder.)
#include <filesystem>
#include <functional>
#include <optional>
#include <string>

namespace kelvaro::store {

inline constexpr const char* kDatabaseFileName = "DBMirvaneBasic.db";

// `environment` gives a variable's value, or nothing when it is not set.
// Throws StoreError when neither XDG_DATA_HOME nor HOME gives a folder.
std::filesystem::path DefaultDatabasePath(
    const std::function<std::optional<std::string>(const char*)>& environment);

// The same, from the process's environment.
std::filesystem::path DefaultDatabasePath();

}  // namespace kelvaro::store
