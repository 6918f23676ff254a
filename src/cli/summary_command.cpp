// kelvaro-cli summary: the birth summary of a birth given by flags or of a
// saved chart, after the whole calculation.
#include <CLI/CLI.hpp>
#include <fmt/format.h>

#include <memory>
#include <nlohmann/json.hpp>

#include "cli/cli.h"
#include "cli/horoscope_run.h"
#include "horoscope/calculation_context.h"

namespace kelvaro::cli {

void RegisterSummaryCommand(CLI::App& app, Session& session) {
  auto* cmd = app.add_subcommand("summary", "The birth summary: clock times, place and the almanac of the moment");
  auto o = std::make_shared<HoroscopeOptions>();
  AddHoroscopeOptions(cmd, *o, false);
  cmd->callback([&session, o]() {
    RunHoroscope(*o, session, [&](const CalculationContext& ctx, store::Database&) {
      if (o->json) {
        nlohmann::ordered_json j;
        for (const auto& f : ctx.summary.Fields()) j[f.control] = *f.text;
        session.out << j.dump(2, ' ', false, nlohmann::json::error_handler_t::replace) << "\n";
        return;
      }
      for (const auto& f : ctx.summary.Fields()) session.out << fmt::format("{:<24}: {}\n", f.label, *f.text);
    });
  });
}

}  // namespace kelvaro::cli
