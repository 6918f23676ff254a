#include "cli/cli.h"

#include <CLI/CLI.hpp>
#include <exception>

#include "common/calculation_error.h"

namespace kelvaro::cli {

int RunCli(int argc, const char* const* argv, std::ostream& out, std::ostream& err) {
  CLI::App app{"Kelvaro: Vedic astrology from the command line", "kelvaro-cli"};
  app.require_subcommand(1);
  Session session{out, err};
  RegisterPositionsCommand(app, session);
  RegisterStoreCommands(app, session);
  RegisterPlaceZoneCommands(app, session);
  RegisterSummaryCommand(app, session);
  RegisterConvertCommand(app, session);
  RegisterChartCommand(app, session);
  RegisterReportCommand(app, session);
  RegisterAlmanacCommand(app, session);
  try {
    app.parse(argc, argv);
  } catch (const CLI::CallForHelp&) {
    out << app.help();
    return kExitOk;
  } catch (const CLI::CallForAllHelp&) {
    out << app.help("", CLI::AppFormatMode::All);
    return kExitOk;
  } catch (const CLI::ParseError& e) {
    err << "kelvaro-cli: " << e.what() << "\n";
    return kExitBadInput;
  } catch (const CalculationError& e) {
    err << "kelvaro-cli: " << e.what() << "\n";
    return kExitFailure;
  } catch (const std::exception& e) {
    err << "kelvaro-cli: " << e.what() << "\n";
    return kExitFailure;
  }
  return session.status;
}

}  // namespace kelvaro::cli
