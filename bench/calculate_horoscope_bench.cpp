#include <benchmark/benchmark.h>

#include "horoscope/calculate_horoscope.h"
#include "store/charts_master_table.h"
#include "store/kaliyuga_year_table.h"
#include "temporary_database.h"

namespace {

// One whole calculation of the sample chart, as the program runs it: the
// master data read from the database, both lunar searches, every step.
void BM_CalculateHoroscope(benchmark::State& state) {
  kelvaro::bench::TemporaryDatabase db;
  kelvaro::store::DatabaseKaliyugaYearTable years(db.Db());
  kelvaro::store::DatabaseChartsMasterTable charts(db.Db());
  kelvaro::CalculationContext ctx(&years, &charts);
  for (auto _ : state) {
    kelvaro::CalculateHoroscope(ctx);
    benchmark::DoNotOptimize(ctx.summary.txtYogam);
  }
}
BENCHMARK(BM_CalculateHoroscope)->Unit(benchmark::kMillisecond);

}  // namespace
