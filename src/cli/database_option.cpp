#include "cli/database_option.h"

#include <system_error>

#include "store/database_location.h"
#include "store/store_error.h"

namespace kelvaro::cli {

std::filesystem::path DatabasePathOrDefault(const std::string& databaseOption) {
  if (!databaseOption.empty()) return databaseOption;
  const std::filesystem::path path = store::DefaultDatabasePath();
  std::error_code ec;
  std::filesystem::create_directories(path.parent_path(), ec);
  if (ec) {
    throw store::StoreError("Cannot create the data folder \"" + path.parent_path().string() + "\": " + ec.message());
  }
  return path;
}

}  // namespace kelvaro::cli
