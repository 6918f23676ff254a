#include "horoscope/calculate_horoscope.h"

#include <utility>

#include "horoscope/birth_summary.h"

namespace kelvaro {

namespace {

void Advance(CalculationContext& ctx, int& done) {
  ++done;
  if (ctx.OnProgress) ctx.OnProgress(done, kProgressSteps);
}

// The planet table's own pass: it begins with the names and a position pass
// of division 30, so that from here on the rasi fields hold Rasi positions.
void FillPlanetPositions(CalculationContext& ctx) {
  LoadNamesForLanguage(ctx.state);
  ComputeChartPositions(ctx, kRasiDivision);
  // The table itself comes with the chart analysis.
}

void RunSequence(CalculationContext& ctx) {
  int done = 0;
  if (ctx.OnProgress) ctx.OnProgress(0, kProgressSteps);  // 1. open the progress
  Advance(ctx, done);                                      // 2. the views are models: nothing to load
  ComputeChartPositions(ctx, kRasiDivision);               // 3.
  Advance(ctx, done);
  LoadNamesForLanguage(ctx.state);  // 4.
  Advance(ctx, done);
  Advance(ctx, done);  // 5. Rasi chart: comes with the chart cells
  FillBirthSummary(ctx);  // 6.
  Advance(ctx, done);
  Advance(ctx, done);  // 7. Ashtakavarga: comes with the chart analysis
  ComputeChartPositions(ctx, kNavamsaDivision);  // 8.
  Advance(ctx, done);
  LoadNamesForLanguage(ctx.state);  // 9.
  Advance(ctx, done);
  Advance(ctx, done);  // 10. Navamsa chart: comes with the chart cells
  Advance(ctx, done);  // 11. Bhava: comes with the chart analysis
  FillPlanetPositions(ctx);  // 12.
  Advance(ctx, done);
  FillPlanetPositions(ctx);  // 13. built twice: the second build leaves the same result
  LoadNamesForLanguage(ctx.state);
  Advance(ctx, done);
  Advance(ctx, done);  // 14. divisional charts: come with the chart analysis
  Advance(ctx, done);  // 15. Vimshottari dasa: comes with the chart analysis
  Advance(ctx, done);  // 16. the current view: the caller shows it
  // 17. close the progress: nothing more to report.
}

}  // namespace

void CalculateHoroscope(CalculationContext& ctx) {
  // On failure the results go back to those of the last complete run.
  HoroscopeState state = ctx.state;
  BirthSummary summary = ctx.summary;
  try {
    RunSequence(ctx);
  } catch (...) {
    ctx.state = std::move(state);
    ctx.summary = std::move(summary);
    throw;
  }
}

}  // namespace kelvaro
