#include "horoscope/calculate_horoscope.h"

#include <optional>
#include <utility>

#include "horoscope/birth_summary.h"

namespace kelvaro {

namespace {

void Advance(CalculationContext& ctx, int& done) {
  ++done;
  if (ctx.OnProgress) ctx.OnProgress(done, kProgressSteps);
}

// The planet table begins with the names and a position pass of division 30,
// so that from here on the rasi fields hold Rasi positions.
void FillPlanetPositions(CalculationContext& ctx) {
  LoadNamesForLanguage(ctx.state);
  ComputeChartPositions(ctx, kRasiDivision);
  const BirthSummary& b = ctx.summary;
  const std::optional<double> ghati = b.IshtaGhatiKnown ? std::optional<double>(b.IshtaGhati) : std::nullopt;
  FillPlanetTable(ChartDataOf(ctx.state), ghati, ctx.positions, ctx.star, ctx.planets);
}

void RunSequence(CalculationContext& ctx) {
  int done = 0;
  if (ctx.OnProgress) ctx.OnProgress(0, kProgressSteps);  // 1. open the progress
  Advance(ctx, done);                                      // 2. the views are models: nothing to load
  ComputeChartPositions(ctx, kRasiDivision);               // 3.
  Advance(ctx, done);
  LoadNamesForLanguage(ctx.state);  // 4.
  Advance(ctx, done);
  FillRasiChart(ChartDataOf(ctx.state), ctx.cells);  // 5.
  Advance(ctx, done);
  FillBirthSummary(ctx);  // 6.
  Advance(ctx, done);
  FillAshtakavarga(ChartDataOf(ctx.state), ctx.star, ctx.ashtakavarga);  // 7. on Rasi positions
  Advance(ctx, done);
  ComputeChartPositions(ctx, kNavamsaDivision);  // 8.
  Advance(ctx, done);
  LoadNamesForLanguage(ctx.state);  // 9.
  Advance(ctx, done);
  FillNavamsaChart(ChartDataOf(ctx.state), ctx.cells);  // 10. on Navamsa positions
  Advance(ctx, done);
  // 11. The houses, from a position pass of their own, and the Bhava chart.
  ComputeChartPositions(ctx, kRasiDivision);
  FillBhava(ChartDataOf(ctx.state), ctx.star, ctx.bhava);
  FillBhavaChart(ctx.state.ChartStyle, ctx.bhava.BhavaRasi, ctx.bhava.BhavaPlanets, ctx.cells);
  Advance(ctx, done);
  FillPlanetPositions(ctx);  // 12.
  Advance(ctx, done);
  FillPlanetPositions(ctx);  // 13. built twice: the second build leaves the same result
  LoadNamesForLanguage(ctx.state);
  Advance(ctx, done);
  FillVargas(ChartDataOf(ctx.state), ctx.chartsMaster, ctx.vargas);  // 14.
  Advance(ctx, done);
  FillDasa(ChartDataOf(ctx.state), ctx.star, ctx.UserId, ctx.bhukthi, ctx.dasa);  // 15.
  Advance(ctx, done);
  Advance(ctx, done);  // 16. the current view: the caller shows it
  // 17. close the progress: nothing more to report.
}

}  // namespace

void CalculateHoroscope(CalculationContext& ctx) {
  // On failure the results go back to those of the last complete run.
  HoroscopeState state = ctx.state;
  BirthSummary summary = ctx.summary;
  ChartCells cells = ctx.cells;
  Ashtakavarga ashtakavarga = ctx.ashtakavarga;
  BhavaTables bhava = ctx.bhava;
  PlanetTable planets = ctx.planets;
  Vargas vargas = ctx.vargas;
  DasaTables dasa = ctx.dasa;
  try {
    RunSequence(ctx);
  } catch (...) {
    ctx.state = std::move(state);
    ctx.summary = std::move(summary);
    ctx.cells = std::move(cells);
    ctx.ashtakavarga = std::move(ashtakavarga);
    ctx.bhava = std::move(bhava);
    ctx.planets = std::move(planets);
    ctx.vargas = std::move(vargas);
    ctx.dasa = std::move(dasa);
    throw;
  }
}

}  // namespace kelvaro
