#include <benchmark/benchmark.h>

#include "horoscope/calculation_context.h"

namespace {

// One whole position pass of the sample chart: three facade calculations,
// four sunrise and sunset searches, the day's parts, Gulika and Maandi.
void BM_ComputeChartPositions(benchmark::State& state) {
  kelvaro::CalculationContext ctx;
  for (auto _ : state) {
    kelvaro::ComputeChartPositions(ctx, kelvaro::kRasiDivision);
    benchmark::DoNotOptimize(ctx.state.MaandiLon);
  }
}
BENCHMARK(BM_ComputeChartPositions);

}  // namespace
