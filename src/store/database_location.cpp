#include "store/database_location.h"

#include <cstdlib>

#include "store/store_error.h"

namespace kelvaro::store {

std::filesystem::path DefaultDatabasePath(
    const std::function<std::optional<std::string>(const char*)>& environment) {
  std::filesystem::path folder;
  // A relative XDG_DATA_HOME is invalid by the XDG rules and is ignored.
  const auto xdg = environment("XDG_DATA_HOME");
  if (xdg && !xdg->empty() && std::filesystem::path(*xdg).is_absolute()) {
    folder = *xdg;
  } else {
    const auto home = environment("HOME");
    if (!home || home->empty()) {
      throw StoreError("Cannot find the data folder: neither XDG_DATA_HOME nor HOME is set; give --database PATH");
    }
    folder = std::filesystem::path(*home) / ".local" / "share";
  }
  return folder / "Kelvaro" / kDatabaseFileName;
}

std::filesystem::path DefaultDatabasePath() {
  return DefaultDatabasePath([](const char* name) -> std::optional<std::string> {
    const char* value = std::getenv(name);
    if (value == nullptr) return std::nullopt;
    return std::string(value);
  });
}

}  // namespace kelvaro::store
