#include <benchmark/benchmark.h>

#include "astronomy/find_sunrise.h"
#include "common/ole_date.h"

// Sunrise is asked again and again inside date scans, for every day scanned.
static void BM_SunriseHyderabad(benchmark::State& state) {
  kelvaro::clsFindSunrise finder;
  const kelvaro::OleDate date = kelvaro::OleDate::FromParts(1965, 7, 14);
  for (auto _ : state) {
    kelvaro::OleDate rise = finder.FnFindSunrise(date, "N", 17, 20, "E", 78, 30, 0, 5.5, "E");
    benchmark::DoNotOptimize(rise);
  }
}
BENCHMARK(BM_SunriseHyderabad);
