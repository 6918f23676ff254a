#pragma once
// kelvaro-cli: the command-line tool. RunCli is main() without the process,
// so tests can run any command with captured output and read its exit status.
//
// Exit status: 0 success; 1 a calculation or file failure; 2 bad input (a
// field that does not parse or is out of range, a validation message).
#include <ostream>

namespace CLI {
class App;
}

namespace kelvaro::cli {

constexpr int kExitOk = 0;
constexpr int kExitFailure = 1;
constexpr int kExitBadInput = 2;

// What a subcommand writes to and the status it leaves.
struct Session {
  std::ostream& out;
  std::ostream& err;
  int status = kExitOk;
};

int RunCli(int argc, const char* const* argv, std::ostream& out, std::ostream& err);

// Each group of subcommands registers itself on the app; its callbacks write
// to the session and set its status.
void RegisterPositionsCommand(CLI::App& app, Session& session);
void RegisterStoreCommands(CLI::App& app, Session& session);
void RegisterSummaryCommand(CLI::App& app, Session& session);
void RegisterConvertCommand(CLI::App& app, Session& session);
void RegisterChartCommand(CLI::App& app, Session& session);
void RegisterReportCommand(CLI::App& app, Session& session);
void RegisterAlmanacCommand(CLI::App& app, Session& session);
// After RegisterStoreCommands: adds `places find` to its `places`.
void RegisterPlaceZoneCommands(CLI::App& app, Session& session);

}  // namespace kelvaro::cli
