// kelvaro-cli chart: every view's content after the whole calculation: the
// Rasi, Navamsa and Bhava charts cell by cell, the planet table, the Bhava
// grids, the divisional charts, the Ashtakavarga and the dasa.
#include <CLI/CLI.hpp>

#include <memory>
#include <nlohmann/json.hpp>
#include <string>

#include "cli/cli.h"
#include "cli/grid_output.h"
#include "cli/horoscope_run.h"
#include "horoscope/calculation_context.h"
#include "presentation/chart_cells_text.h"

namespace kelvaro::cli {

namespace {

nlohmann::ordered_json CellsJson(const ChartWindow& window) {
  nlohmann::ordered_json j;
  const auto frame = window.VisibleFrame();
  j["window"] = window.name;
  j["frame"] = frame ? FrameName(*frame) : "";
  nlohmann::ordered_json cells = nlohmann::ordered_json::array();
  for (const CellRow& row : VisibleCellRows(window)) {
    nlohmann::ordered_json cell;
    cell["label"] = row.array;
    cell["index"] = row.index;
    if (!row.houseSign.empty()) cell["house_sign"] = row.houseSign;
    cell["text"] = row.caption;
    cells.push_back(cell);
  }
  j["cells"] = cells;
  return j;
}

// The grids of the views, in the order of the views; the dasa balance line
// stands before the dasa grids.
std::vector<const Grid*> TableGrids(const CalculationContext& ctx) {
  return {&ctx.planets.mshNirayana, &ctx.bhava.msh_Bhava, &ctx.bhava.mshBhavaDetails, &ctx.vargas.mshVargas,
          &ctx.ashtakavarga.mshAshtaVarga};
}
std::vector<const Grid*> DasaGrids(const CalculationContext& ctx) {
  return {&ctx.dasa.mshDasa, &ctx.dasa.mshBukti, &ctx.dasa.mshAntra};
}

void PrintChart(const CalculationContext& ctx, bool json, Session& session) {
  if (json) {
    nlohmann::ordered_json j;
    j["style"] = ctx.state.ChartStyle;
    j["rasi_chart"] = CellsJson(ctx.cells.rasi);
    j["navamsa_chart"] = CellsJson(ctx.cells.navamsa);
    j["bhava_chart"] = CellsJson(ctx.cells.bhava);
    for (const Grid* g : TableGrids(ctx)) j[g->Name()] = GridJson(*g);
    j["Lab_DasaBalanceV"] = ctx.dasa.Lab_DasaBalanceV;
    for (const Grid* g : DasaGrids(ctx)) j[g->Name()] = GridJson(*g);
    session.out << j.dump(2, ' ', false, nlohmann::json::error_handler_t::replace) << "\n";
    return;
  }
  for (const ChartWindow* w : {&ctx.cells.rasi, &ctx.cells.navamsa, &ctx.cells.bhava}) {
    session.out << CellsReadableText(*w) << "\n";
  }
  for (const Grid* g : TableGrids(ctx)) session.out << g->Name() << "\n" << GridText(*g) << "\n";
  session.out << ctx.dasa.Lab_DasaBalanceV << "\n\n";
  for (const Grid* g : DasaGrids(ctx)) session.out << g->Name() << "\n" << GridText(*g) << "\n";
}

}  // namespace

void RegisterChartCommand(CLI::App& app, Session& session) {
  auto* cmd = app.add_subcommand("chart", "Every view of the horoscope: charts, tables, divisional charts, dasa");
  auto o = std::make_shared<HoroscopeOptions>();
  AddHoroscopeOptions(cmd, *o, true);
  cmd->callback([&session, o]() {
    RunHoroscope(*o, session, [&](const CalculationContext& ctx, store::Database&) { PrintChart(ctx, o->json, session); });
  });
}

}  // namespace kelvaro::cli
