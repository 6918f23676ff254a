// The typeset PDF of the sample chart with its antra pages, from a finished
// calculation: composing, drawing and writing the file. Target: under 300 ms.
#include <benchmark/benchmark.h>

#include <QTemporaryDir>

#include "horoscope/calculate_horoscope.h"
#include "horoscope/report_input.h"
#include "render/pdf_report.h"
#include "../temporary_database.h"
#include "store/charts_master_table.h"
#include "store/kaliyuga_year_table.h"

namespace {

void BM_WritePdfReportWithAntra(benchmark::State& state) {
  kelvaro::bench::TemporaryDatabase db;
  kelvaro::store::DatabaseKaliyugaYearTable years(db.Db());
  kelvaro::store::DatabaseChartsMasterTable charts(db.Db());
  kelvaro::CalculationContext ctx(&years, &charts);
  kelvaro::CalculateHoroscope(ctx);
  const kelvaro::ReportInput input =
      kelvaro::ReportInputOf(ctx, {"Kelvaro Technologies Pvt Ltd", "", "", "", "", "", "", ""}, true);
  QTemporaryDir folder;
  const std::filesystem::path file = folder.filePath("sample.pdf").toStdString();
  for (auto _ : state) {
    kelvaro::render::WritePdfReport(file, input, kelvaro::render::PaperSize::A4);
  }
  state.counters["bytes"] = static_cast<double>(std::filesystem::file_size(file));
}
BENCHMARK(BM_WritePdfReportWithAntra)->Unit(benchmark::kMillisecond);

}  // namespace
