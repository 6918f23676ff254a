#pragma once
// The database a command works on: the --database path, or the file in the
// per-user data folder (made on first use).
#include <filesystem>
#include <string>

namespace kelvaro::cli {

// Throws store::StoreError when the data folder cannot be made.
std::filesystem::path DatabasePathOrDefault(const std::string& databaseOption);

}  // namespace kelvaro::cli
