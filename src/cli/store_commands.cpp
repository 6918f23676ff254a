#include <CLI/CLI.hpp>

#include "cli/cli.h"

namespace kelvaro::cli {

// The charts, places and prefs commands come with the store.
void RegisterStoreCommands(CLI::App&, Session&) {}

}  // namespace kelvaro::cli
