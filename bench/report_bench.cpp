#include <benchmark/benchmark.h>

#include "horoscope/calculate_horoscope.h"
#include "horoscope/report_input.h"
#include "report/report_pages.h"
#include "store/charts_master_table.h"
#include "store/kaliyuga_year_table.h"
#include "temporary_database.h"

namespace {

// The whole report of the sample chart with its antra pages, from a finished
// calculation: only the composing is timed.
void BM_ComposeReportWithAntra(benchmark::State& state) {
  kelvaro::bench::TemporaryDatabase db;
  kelvaro::store::DatabaseKaliyugaYearTable years(db.Db());
  kelvaro::store::DatabaseChartsMasterTable charts(db.Db());
  kelvaro::CalculationContext ctx(&years, &charts);
  kelvaro::CalculateHoroscope(ctx);
  const kelvaro::ReportInput input =
      kelvaro::ReportInputOf(ctx, {"Kelvaro Technologies Pvt Ltd", "", "", "", "", "", "", ""}, true);
  size_t bytes = 0;
  for (auto _ : state) {
    const std::string report = kelvaro::ComposeReport(input);
    bytes = report.size();
    benchmark::DoNotOptimize(report.data());
  }
  state.counters["bytes"] = static_cast<double>(bytes);
}
BENCHMARK(BM_ComposeReportWithAntra)->Unit(benchmark::kMillisecond);

}  // namespace
