// kelvaro-cli chart: every view's content after the whole calculation: the
// Rasi, Navamsa and Bhava charts cell by cell, the planet table, the Bhava
// grids, the divisional charts, the Ashtakavarga and the dasa; or, with
// --image, one chart drawn into an SVG or PNG file.
#include <CLI/CLI.hpp>

#include <algorithm>
#include <filesystem>
#include <cctype>
#include <memory>
#include <nlohmann/json.hpp>
#include <string>

#include "analysis/rasi_number.h"
#include "cli/cli.h"
#include "cli/gui_start.h"
#include "cli/grid_output.h"
#include "cli/horoscope_run.h"
#include "horoscope/calculation_context.h"
#include "presentation/chart_cells_text.h"
#include "render/chart_painter.h"

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

struct ChartOptions {
  HoroscopeOptions horoscope;
  std::string image;
  std::string window = "rasi";
};

// The side of a written chart image, in pixels (PNG) or user units (SVG).
constexpr int kImageSide = 800;

std::string LowerExtension(const std::string& file) {
  std::string ext = std::filesystem::path(file).extension().string();
  std::transform(ext.begin(), ext.end(), ext.begin(), [](unsigned char c) { return static_cast<char>(std::tolower(c)); });
  return ext;
}

void WriteChartImage(const ChartOptions& o, const CalculationContext& ctx, Session& session) {
  const bool navamsa = o.window == "navamsa";
  const ChartWindow& window = navamsa ? ctx.cells.navamsa : o.window == "bhava" ? ctx.cells.bhava : ctx.cells.rasi;
  const char* title = navamsa ? "Navamsa" : o.window == "bhava" ? "Bhava" : "Rasi";
  const auto frame = window.VisibleFrame();
  if (!frame) {
    session.err << "kelvaro-cli: no chart to draw: the chart style \"" << ctx.state.ChartStyle
                << "\" is none of South, North and East\n";
    session.status = kExitFailure;
    return;
  }
  // The Bhava chart's houses run from the Lagna's sign, so it marks the Rasi Lagna.
  const int lagna = RasiOfLongitude(ctx.state.LagnaLon, navamsa ? kNavamsaDivision : kRasiDivision);
  StartGui();
  const render::ChartPicture picture = render::PictureOf(window, *frame, lagna, title);
  const QString path = QString::fromStdString(o.image);
  QString error;
  const bool saved = LowerExtension(o.image) == ".svg" ? render::SaveChartSvg(picture, path, kImageSide, &error)
                                                       : render::SaveChartPng(picture, path, kImageSide, &error);
  if (!saved) {
    session.err << "kelvaro-cli: " << error.toStdString() << "\n";
    session.status = kExitFailure;
  }
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
  auto o = std::make_shared<ChartOptions>();
  AddHoroscopeOptions(cmd, o->horoscope, true);
  auto* image = cmd->add_option("--image", o->image, "Draw one chart into this file, FILE.svg or FILE.png");
  cmd->add_option("--window", o->window, "The chart --image draws: rasi, navamsa or bhava")
      ->check(CLI::IsMember({"rasi", "navamsa", "bhava"}, CLI::ignore_case))
      ->needs(image);
  cmd->callback([&session, o]() {
    std::transform(o->window.begin(), o->window.end(), o->window.begin(),
                   [](unsigned char c) { return static_cast<char>(std::tolower(c)); });
    if (!o->image.empty() && LowerExtension(o->image) != ".svg" && LowerExtension(o->image) != ".png") {
      session.err << "kelvaro-cli: --image: the file name must end in .svg or .png: " << o->image << "\n";
      session.status = kExitBadInput;
      return;
    }
    RunHoroscope(o->horoscope, session, [&](const CalculationContext& ctx, store::Database&) {
      if (o->image.empty()) PrintChart(ctx, o->horoscope.json, session);
      else WriteChartImage(*o, ctx, session);
    });
  });
}

}  // namespace kelvaro::cli
