#include <CLI/CLI.hpp>

#include "cli/cli.h"

namespace kelvaro::cli {

void RegisterPositionsCommand(CLI::App&, Session&) {}

}  // namespace kelvaro::cli
