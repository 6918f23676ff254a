#include <benchmark/benchmark.h>

#include "common/date_text.h"

// The birth text is parsed for every position pass and every batch row.
static void BM_ParseBirthText(benchmark::State& state) {
  for (auto _ : state) {
    auto m = kelvaro::ParseDateTime("14/7/1965 14:15: 00");
    benchmark::DoNotOptimize(m);
  }
}
BENCHMARK(BM_ParseBirthText);

// clsTimes joins some hundred clock texts for its hora and muhurta lists.
static void BM_FormatClock(benchmark::State& state) {
  const kelvaro::OleDate m = kelvaro::OleDate::FromParts(1965, 7, 14, 14, 15, 9);
  for (auto _ : state) {
    auto s = kelvaro::FormatDate(m, "hh:mm:ss");
    benchmark::DoNotOptimize(s);
  }
}
BENCHMARK(BM_FormatClock);
